#include "close_guard.h"

#include "message_box.h"

#include <QCoreApplication>

namespace lumitra {

bool close_guard(QWidget *parent, bool unsaved, int itemCount, const std::function<bool()> &save)
{
    if (!unsaved || itemCount <= 0)
        return true;
    const auto tr = [](const char *text) { return QCoreApplication::translate("Widget", text); };
    const int answer =
        show_message(parent, MessageKind::Question, tr("取消"), tr("确定"),
                     save ? tr("保存") : QString(), tr("创作未保存,是否立即退出"), tr("提示"));
    if (answer == 2)
        return save && save();
    return answer == 1;
}

} // namespace lumitra
