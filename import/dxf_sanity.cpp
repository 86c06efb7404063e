#include "dxf_sanity.h"

#include <QCoreApplication>
#include <QFile>

namespace lumitra {

namespace {

constexpr qint64 kMaxFileBytes = qint64(512) << 20;
constexpr long long kMaxCount = 10000000;

QString tr(const char *text) { return QCoreApplication::translate("DxfImport", text); }

// Group codes that announce how many values follow, per entity type.
bool isCountCode(const QByteArray &entity, int code)
{
    if (entity == "LWPOLYLINE")
        return code == 90;
    if (entity == "SPLINE")
        return code == 72 || code == 73 || code == 74;
    if (entity == "HATCH")
        return code == 91 || code == 92 || code == 93 || code == 95 || code == 96 || code == 97;
    return false;
}

} // namespace

bool dxfLooksSane(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = tr("无法打开文件") + QStringLiteral(": ") + path;
        return false;
    }
    if (file.size() > kMaxFileBytes) {
        *error = tr("DXF 文件过大");
        return false;
    }
    if (file.size() == 0) {
        *error = tr("DXF 文件为空");
        return false;
    }
    if (file.peek(4096).contains('\0')) {
        *error = tr("DXF 文件无法读取");
        return false;
    }
    QByteArray entity;
    while (!file.atEnd()) {
        const QByteArray codeLine = file.readLine(4096).trimmed();
        if (file.atEnd())
            break;
        const QByteArray value = file.readLine(4096).trimmed();
        bool ok = false;
        const int code = codeLine.toInt(&ok);
        if (!ok)
            continue;
        if (code == 0) {
            entity = value;
        } else if (isCountCode(entity, code)) {
            const long long n = value.toLongLong(&ok);
            if (!ok || n < 0 || n > kMaxCount) {
                *error = tr("DXF 文件已损坏");
                return false;
            }
        }
    }
    return true;
}

} // namespace lumitra
