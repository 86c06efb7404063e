#include "close_guard.h"

#include "message_box.h"

#include <QCoreApplication>

namespace lumitra {

bool close_guard(QWidget *parent, bool unsaved, int itemCount)
{
    if (!unsaved || itemCount <= 0)
        return true;
    auto tr = [](const char *text) { return QCoreApplication::translate("Widget", text); };
    return show_message(parent, MessageKind::Question, tr("取消"), tr("确定"),
                        tr("创作未保存,是否立即退出"), tr("提示"))
           != 0;
}

} // namespace lumitra
