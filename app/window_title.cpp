#include "window_title.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace lumitra {

QString windowTitleFor(const QString &projectPath, bool unsaved)
{
    const QString program = QStringLiteral("Lumitra");
    if (projectPath.isEmpty() && !unsaved)
        return program;
    QString name = projectPath.isEmpty() ? QCoreApplication::translate("Widget", "未命名")
                                         : QFileInfo(projectPath).fileName();
    if (unsaved)
        name += QLatin1Char('*');
    return name + QStringLiteral(" - ") + program;
}

} // namespace lumitra
