#include "close_guard.h"

#include "message_box.h"

#include <QCoreApplication>

namespace lumitra {

bool close_guard(QWidget *parent, bool unsaved, int itemCount, const std::function<bool()> &save)
{
    if (!unsaved || itemCount <= 0)
        return true;
    const int answer =
        show_message(parent, MessageKind::Question, QCoreApplication::translate("Widget", "取消"),
                     QCoreApplication::translate("Widget", "确定"),
                     save ? QCoreApplication::translate("Widget", "保存") : QString(),
                     QCoreApplication::translate("Widget", "创作未保存,是否立即退出"),
                     QCoreApplication::translate("Widget", "提示"));
    if (answer == 2)
        return save && save();
    return answer == 1;
}

} // namespace lumitra
