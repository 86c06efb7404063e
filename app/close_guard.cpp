#include "close_guard.h"

#include "message_box.h"

#include <QCoreApplication>

namespace lumitra {

bool close_guard(QWidget *parent, bool unsaved, int itemCount)
{
    if (!unsaved || itemCount <= 0)
        return true;
    return show_message(parent, MessageKind::Question,
                        QCoreApplication::translate("Widget", "取消"),
                        QCoreApplication::translate("Widget", "确定"),
                        QCoreApplication::translate("Widget", "创作未保存,是否立即退出"),
                        QCoreApplication::translate("Widget", "提示"))
           != 0;
}

} // namespace lumitra
