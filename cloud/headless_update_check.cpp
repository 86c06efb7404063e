#include "headless_update_check.h"

#include "hou_tai_jie_kou.h"
#include "update_pack.h"

#include <QEventLoop>
#include <QTextStream>

namespace lumitra {

int runUpdateCheckHeadless(QTextStream &out, QTextStream &err)
{
    Hou_tai_jie_kou api;
    UpdatePack pack(&api);
    QEventLoop loop;
    UpdateInfo info;
    QObject::connect(&pack, &UpdatePack::checked, &loop, [&](const UpdateInfo &result) {
        info = result;
        loop.quit();
    });
    pack.check();
    loop.exec();
    switch (info.state) {
    case UpdateInfo::Available: {
        QString notes = info.notes.trimmed();
        if (!notes.isEmpty())
            out << notes << '\n';
        out << info.fileUrl.toString() << '\n';
        return 0;
    }
    case UpdateInfo::UpToDate:
        out << "up to date\n";
        return 0;
    case UpdateInfo::Failed:
        break;
    }
    QString why = info.message.simplified();
    err << "update check failed: " << why << '\n';
    return 1;
}

} // namespace lumitra
