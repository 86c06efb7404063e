#include "dxf_prepare.h"

#include <QCoreApplication>
#include <QFile>

namespace lumitra {

namespace {

constexpr qint64 kMaxFileBytes = qint64(256) << 20;
constexpr long long kMaxCount = 10000000;
constexpr int kMaxLineLength = 1000; // the parser reads lines of up to 1023 characters

// Group codes that announce how many values follow, per entity type.
bool isCountCode(const QByteArray &entity, int code)
{
    if (entity == "LWPOLYLINE")
        return code == 90;
    if (entity == "SPLINE")
        return code == 72 || code == 73 || code == 74;
    if (entity == "HATCH")
        return code == 91 || code == 92 || code == 93 || code == 95 || code == 96 || code == 97;
    if (entity == "LEADER")
        return code == 76;
    return false;
}

// What the parser relies on within one entity.
struct EntityShape
{
    QByteArray type;
    bool counted = false; // LWPOLYLINE 90 seen
    bool vertexSeen = false;
    int splineCounts = 0; // SPLINE 72 and 73 seen

    bool acceptsCode(int code)
    {
        if (type == "LWPOLYLINE") {
            if (code == 90)
                counted = true;
            if (code == 10) {
                vertexSeen = true;
                return counted;
            }
            if (code == 42)
                return vertexSeen;
        } else if (type == "SPLINE" && (code == 72 || code == 73)) {
            ++splineCounts;
        }
        return true;
    }
    bool complete() const { return type != "SPLINE" || splineCounts >= 2; }
};

QByteArray nextLine(const QByteArray &data, int *pos)
{
    const int start = *pos;
    int end = data.indexOf('\n', start);
    if (end < 0)
        end = data.size();
    *pos = end + 1;
    return data.mid(start, std::min(end - start, kMaxLineLength * 4))
        .trimmed()
        .left(kMaxLineLength);
}

} // namespace

bool readDxfForParser(const QString &path, std::string *text, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error =
            QCoreApplication::translate("DxfImport", "无法打开文件") + QStringLiteral(": ") + path;
        return false;
    }
    if (file.size() > kMaxFileBytes) {
        *error = QCoreApplication::translate("DxfImport", "DXF 文件过大");
        return false;
    }
    const QByteArray data = file.readAll();
    if (data.trimmed().isEmpty()) {
        *error = QCoreApplication::translate("DxfImport", "DXF 文件为空");
        return false;
    }
    auto damaged = [error]() {
        *error = QCoreApplication::translate("DxfImport", "DXF 文件已损坏");
        return false;
    };
    // Binary DXF opens with this sentinel; the parser reads only the text form.
    if (data.startsWith("AutoCAD Binary DXF")) {
        *error = QCoreApplication::translate("DxfImport", "不支持二进制 DXF 文件");
        return false;
    }
    if (data.contains('\0'))
        return damaged(); // not a drawing at all

    text->clear();
    text->reserve(size_t(data.size()));
    EntityShape entity;
    int pos = 0;
    while (pos < data.size()) {
        const QByteArray codeLine = nextLine(data, &pos);
        if (pos >= data.size() && codeLine.isEmpty())
            break;
        const QByteArray value = nextLine(data, &pos);
        text->append(codeLine.constData(), size_t(codeLine.size())).append(1, '\n');
        text->append(value.constData(), size_t(value.size())).append(1, '\n');
        bool ok = false;
        const int code = codeLine.toInt(&ok);
        if (!ok)
            continue;
        if (code == 0) {
            if (!entity.complete())
                return damaged();
            entity = EntityShape();
            entity.type = value;
            continue;
        }
        if (!entity.acceptsCode(code))
            return damaged();
        if (isCountCode(entity.type, code)) {
            const long long n = value.toLongLong(&ok);
            if (!ok || n < 0 || n > kMaxCount)
                return damaged();
        }
    }
    return entity.complete() ? true : damaged();
}

} // namespace lumitra
