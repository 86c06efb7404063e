#include "svg_reader.h"

#include "svg_geometry_attributes.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDomDocument>
#include <QFile>
#include <QXmlStreamReader>
#include <cmath>
#include <vector>

namespace lumitra {

namespace {

constexpr int kMaxDepth = 200;              // element nesting the reader accepts
constexpr int kMaxShapes = 200000;          // shapes per file
constexpr qint64 kMaxFileBytes = 256 << 20; // bytes
constexpr double kMaxCoordinateMm = 1e6;    // one kilometre either way
constexpr double kMinExtentMm = 1e-9;       // smaller shapes are points

// The tag without a namespace prefix ("svg:path" reads as "path").
QString localTag(const QDomElement &e)
{
    const QString t = e.tagName();
    const int colon = t.indexOf(QLatin1Char(':'));
    return colon < 0 ? t : t.mid(colon + 1);
}

bool isSkippedContainer(const QString &tag)
{
    static const QStringList neverDrawn = {QStringLiteral("clipPath"), QStringLiteral("mask"),
                                           QStringLiteral("pattern"),  QStringLiteral("marker"),
                                           QStringLiteral("symbol"),   QStringLiteral("metadata")};
    return tag.contains(QLatin1String("desc")) || tag.contains(QLatin1String("defs"))
           || neverDrawn.contains(tag);
}

// Nesting depth and well-formedness, checked with the streaming reader before the document
// model is built (whose teardown recurses once per level).
bool precheck(const QByteArray &data, QString *error, bool *limitExceeded)
{
    QXmlStreamReader xml(data);
    int depth = 0;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::StartElement) {
            if (++depth > kMaxDepth) {
                *error = QCoreApplication::translate("SvgImport", "SVG 文件嵌套层数过多");
                *limitExceeded = true;
                return false;
            }
        } else if (token == QXmlStreamReader::EndElement) {
            --depth;
        }
    }
    if (xml.hasError()) {
        *error = QCoreApplication::translate("SvgImport", "SVG 文件格式错误") + QStringLiteral(": ")
                 + xml.errorString();
        return false;
    }
    return true;
}

// The element's own transform and those of every ancestor below the root, then the root's
// mapping to millimetres.
QTransform toMillimetres(const QDomElement &e, const QDomElement &root, const QTransform &rootToMm)
{
    QTransform m;
    for (QDomElement n = e; !n.isNull() && n != root; n = n.parentNode().toElement()) {
        QTransform local;
        const QString t = n.attribute(QStringLiteral("transform"));
        if (!t.isEmpty() && !parseSvgTransform(t, &local))
            qDebug() << "svg: bad transform" << t.left(80);
        if (localTag(n) == QLatin1String("svg"))
            local = local * svgNestedViewport(n);
        m = m * local;
    }
    return m * rootToMm;
}

bool isUsable(const QPainterPath &path)
{
    if (path.elementCount() < 2)
        return false;
    const QRectF box = path.controlPointRect();
    const double extremes[] = {box.left(), box.right(), box.top(), box.bottom()};
    for (double v : extremes)
        if (!std::isfinite(v) || std::abs(v) > kMaxCoordinateMm)
            return false;
    // A shape shrunk to a point has nothing to cut.
    return box.width() > kMinExtentMm || box.height() > kMinExtentMm;
}

class Collector
{
public:
    Collector(const QDomElement &root, SvgImportResult &result)
        : m_root(root), m_result(result), m_rootToMm(svgRootToMm(root))
    {
    }

    void visitRootChildren()
    {
        for (QDomNode n = m_root.firstChild(); !n.isNull() && !m_full; n = n.nextSibling()) {
            const QDomElement e = n.toElement();
            if (e.isNull())
                continue;
            const QString tag = localTag(e);
            if (isSkippedContainer(tag))
                continue;
            if (svgShapeTags().contains(tag))
                emitShape(tag, e);
            else
                searchContainer(e);
        }
    }

    bool full() const { return m_full; }

private:
    const QDomElement &m_root;
    SvgImportResult &m_result;
    QTransform m_rootToMm;
    int m_shapes = 0;
    bool m_full = false;

    // All shape descendants, kind by kind, each kind in document order.
    void searchContainer(const QDomElement &container)
    {
        const QStringList &tags = svgShapeTags();
        std::vector<QList<QDomElement>> byKind(size_t(tags.size()));
        // Iterative walk in document order, not entering skipped containers.
        QDomNode n = container.firstChild();
        while (!n.isNull() && n != container) {
            const QDomElement e = n.toElement();
            bool descend = false;
            if (!e.isNull()) {
                const QString tag = localTag(e);
                const int kind = tags.indexOf(tag);
                if (kind >= 0)
                    byKind[size_t(kind)].append(e);
                descend = !isSkippedContainer(tag);
            }
            if (descend && !n.firstChild().isNull()) {
                n = n.firstChild();
                continue;
            }
            while (!n.isNull() && n != container && n.nextSibling().isNull())
                n = n.parentNode();
            if (n.isNull() || n == container)
                break;
            n = n.nextSibling();
        }
        for (int k = 0; k < tags.size() && !m_full; ++k)
            for (const QDomElement &e : byKind[size_t(k)]) {
                emitShape(tags[k], e);
                if (m_full)
                    break;
            }
    }

    void emitShape(const QString &tag, const QDomElement &e)
    {
        if (++m_shapes > kMaxShapes) {
            m_full = true;
            return;
        }
        const QPainterPath local = convertSvgElement(tag, e);
        if (local.isEmpty())
            return;
        const QPainterPath mm = toMillimetres(e, m_root, m_rootToMm).map(local);
        if (isUsable(mm))
            m_result.paths.append(mm);
        else
            qDebug() << "svg: shape dropped" << tag;
    }
};

} // namespace

const QStringList &svgShapeTags()
{
    static const QStringList tags = {QStringLiteral("path"),    QStringLiteral("rect"),
                                     QStringLiteral("circle"),  QStringLiteral("ellipse"),
                                     QStringLiteral("line"),    QStringLiteral("polygon"),
                                     QStringLiteral("polyline")};
    return tags;
}

SvgImportResult readSvgData(const QByteArray &data)
{
    SvgImportResult result;
    if (data.trimmed().isEmpty()) {
        result.error = QCoreApplication::translate("SvgImport", "SVG 文件为空");
        return result;
    }
    if (!precheck(data, &result.error, &result.limitExceeded))
        return result;
    QDomDocument doc;
    QString message;
    if (!doc.setContent(data, &message)) {
        result.error = QCoreApplication::translate("SvgImport", "SVG 文件格式错误")
                       + QStringLiteral(": ") + message;
        return result;
    }
    const QDomElement root = doc.documentElement();
    Collector collector(root, result);
    collector.visitRootChildren();
    if (collector.full()) {
        result.paths.clear();
        result.error = QCoreApplication::translate("SvgImport", "SVG 文件图形数量过多");
        result.limitExceeded = true;
        return result;
    }
    result.ok = true;
    return result;
}

SvgImportResult readSvgFile(const QString &filePath)
{
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly)) {
        SvgImportResult result;
        result.error = QCoreApplication::translate("SvgImport", "无法打开文件")
                       + QStringLiteral(": ") + filePath;
        return result;
    }
    if (file.size() > kMaxFileBytes) {
        SvgImportResult result;
        result.error = QCoreApplication::translate("SvgImport", "SVG 文件过大");
        result.limitExceeded = true;
        return result;
    }
    return readSvgData(file.readAll());
}

} // namespace lumitra
