#include "svg_reader.h"

#include "svg_document.h"
#include "svg_geometry_attributes.h"
#include "svg_shapes.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QUrl>
#include <QVarLengthArray>
#include <array>
#include <cmath>

namespace lumitra {

namespace {

constexpr int kMaxDepth = 200;              // element nesting the reader accepts
constexpr int kMaxShapes = 200000;          // shapes per file, counting every use
constexpr int kMaxVisits = 2000000;         // elements visited, counting every use
constexpr int kMaxUseDepth = 50;            // uses within uses
constexpr qint64 kMaxFileBytes = 256 << 20; // bytes
constexpr double kMaxCoordinateMm = 1e6;    // one kilometre either way
constexpr double kMinExtentMm = 1e-9;       // smaller shapes are points
constexpr qint64 kMaxImagePixels = 100'000'000;
const QLatin1String kSvgNamespace("http://www.w3.org/2000/svg");

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

// "name: value" from a style attribute ("a:b; c:d"), without allocating.
bool styleValue(QStringView style, QLatin1String name, QStringView *value)
{
    int pos = 0;
    while (pos < style.size()) {
        int end = style.indexOf(QLatin1Char(';'), pos);
        if (end < 0)
            end = style.size();
        const QStringView decl = style.mid(pos, end - pos);
        const int colon = decl.indexOf(QLatin1Char(':'));
        if (colon > 0 && decl.left(colon).trimmed() == name) {
            QStringView v = decl.mid(colon + 1).trimmed();
            if (v.endsWith(QLatin1String("!important")))
                v = v.chopped(10).trimmed();
            *value = v;
            return true;
        }
        pos = end + 1;
    }
    return false;
}

// Interned names of the element kinds the reader tells apart.
struct Tags
{
    explicit Tags(const SvgDocument &doc)
    {
        auto id = [&doc](const char *n) { return doc.nameId(QString::fromLatin1(n)); };
        const char *shapeNames[] = {"path", "rect",    "circle",  "ellipse",
                                    "line", "polygon", "polyline"};
        for (size_t i = 0; i < shapes.size(); ++i)
            shapes[i] = id(shapeNames[i]);
        g = id("g");
        a = id("a");
        svg = id("svg");
        sw = id("switch");
        use = id("use");
        symbol = id("symbol");
        text = id("text");
        flowRoot = id("flowRoot");
        image = id("image");
    }
    int shapeKind(int tag) const
    {
        if (tag == SvgDocument::kNone)
            return -1;
        for (size_t i = 0; i < shapes.size(); ++i)
            if (shapes[i] == tag)
                return int(i);
        return -1;
    }
    std::array<int, 7> shapes;
    int g, a, svg, sw, use, symbol, text, flowRoot, image;
};

// What an element inherits from where it is drawn.
struct Context
{
    QTransform toMm;
    SvgLengthContext lengths;
    bool visible = true;
    bool svgDefaultNamespace = true;
    QStringView stroke = QStringView(u"none"); // inherited paint, when colours are read
    QStringView fill = QStringView(u"black");
};

struct Bucket
{
    QList<QPainterPath> paths;
    QVector<QRgb> colours;
};
using Buckets = std::array<Bucket, 7>;

// A paint value ("none", a colour, "url(#id) fallback"); false for none.
bool readPaint(QStringView text, QRgb *rgb)
{
    QStringView v = text.trimmed();
    if (v.startsWith(QLatin1String("url("))) {
        const int close = v.indexOf(QLatin1Char(')'));
        v = close < 0 ? QStringView() : v.mid(close + 1).trimmed();
        if (v.isEmpty()) {
            *rgb = qRgb(0, 0, 0); // a gradient or pattern: drawn, of no one colour
            return true;
        }
    }
    if (v == QLatin1String("none") || v == QLatin1String("transparent"))
        return false;
    if (v.startsWith(QLatin1String("rgb"))) {
        const int open = v.indexOf(QLatin1Char('(')), close = v.indexOf(QLatin1Char(')'));
        const QString inside =
            open < 0 || close < open ? QString() : v.mid(open + 1, close - open - 1).toString();
        const QStringList parts = inside.split(QLatin1Char(','));
        int c[3] = {0, 0, 0};
        for (int i = 0; i < 3 && i < parts.size(); ++i) {
            const QString p = parts[i].trimmed();
            c[i] = p.endsWith(QLatin1Char('%')) ? qRound(p.chopped(1).toDouble() * 2.55)
                                                : qRound(p.toDouble());
            c[i] = qBound(0, c[i], 255);
        }
        *rgb = qRgb(c[0], c[1], c[2]);
        return true;
    }
    const QColor colour(v.toString());
    *rgb = colour.isValid() ? colour.rgb() : qRgb(0, 0, 0);
    return true;
}

bool userLanguageMatches(QStringView list)
{
    static const QStringList mine = [] {
        QStringList langs;
        for (QString l : QLocale().uiLanguages()) {
            l = l.toLower().replace(QLatin1Char('_'), QLatin1Char('-'));
            langs << (l == QLatin1String("c") ? QStringLiteral("en") : l);
        }
        return langs;
    }();
    for (QStringView tag : list.split(QLatin1Char(','))) {
        const QString t = tag.trimmed().toString().toLower();
        if (t.isEmpty())
            continue;
        for (const QString &l : mine)
            if (l == t || l.startsWith(t + QLatin1Char('-')) || t.startsWith(l + QLatin1Char('-')))
                return true;
    }
    return false;
}

class Collector
{
public:
    Collector(const SvgDocument &doc, const QString &baseFolder, bool withColours,
              SvgImportResult &result)
        : m_doc(doc), m_names(doc), m_tags(doc), m_baseFolder(baseFolder),
          m_withColours(withColours), m_result(result)
    {
    }

    void visitRoot()
    {
        const int root = m_doc.root();
        Context ctx;
        const QString width = attr(root, m_names.width), height = attr(root, m_names.height);
        const QString viewBox = attr(root, m_names.viewBox);
        ctx.toMm = svgRootToMm(width, height, viewBox, attr(root, m_names.preserveAspectRatio));
        ctx.lengths.fontSize = fontSize(root, ctx.lengths);
        ctx.lengths.rootFontSize = ctx.lengths.fontSize;
        double w = 0, h = 0;
        svgLengthToUser(width, SvgAxis::X, ctx.lengths, &w);
        svgLengthToUser(height, SvgAxis::Y, ctx.lengths, &h);
        QRectF vb;
        const bool hasViewBox = svgViewBox(viewBox, &vb);
        if (hasViewBox) {
            // Without a size of its own the root is as large as its viewBox in pixels.
            if (!(w > 0))
                w = vb.width();
            if (!(h > 0))
                h = vb.height();
        }
        ctx.lengths.rootWidthPx = w;
        ctx.lengths.rootHeightPx = h;
        ctx.lengths.viewportWidth = hasViewBox ? vb.width() : w;
        ctx.lengths.viewportHeight = hasViewBox ? vb.height() : h;
        applyVisibility(root, &ctx);

        for (int n = m_doc.firstChild(root); n != SvgDocument::kNone && !m_full;
             n = m_doc.nextSibling(n)) {
            const int kind = m_tags.shapeKind(m_doc.tag(n));
            if (kind >= 0 && !isForeign(n, ctx)) {
                Buckets one;
                visit(n, ctx, one, 0);
                flush(one);
            } else {
                Buckets found;
                visit(n, ctx, found, 0);
                flush(found);
            }
        }
    }

    bool full() const { return m_full; }

private:
    const SvgDocument &m_doc;
    const SvgAttributeNames m_names;
    const Tags m_tags;
    const QString m_baseFolder;
    const bool m_withColours;
    SvgImportResult &m_result;
    QHash<QString, int> m_ids;
    bool m_idsBuilt = false;
    QVarLengthArray<int, 16> m_useStack; // elements being expanded by a use
    int m_shapes = 0;
    int m_visits = 0;
    bool m_full = false;

    QString attr(int node, int name) const
    {
        QString v;
        m_doc.attribute(node, name, &v);
        return v;
    }

    // A property from the style attribute, else from the presentation attribute.
    bool property(int node, QLatin1String name, int attributeName, QStringView *value) const
    {
        QString style;
        if (m_doc.attribute(node, m_names.style, &style) && styleValue(style, name, value))
            return true;
        QString v;
        if (!m_doc.attribute(node, attributeName, &v))
            return false;
        // The text lives in the document's buffer, which outlives the view.
        *value = QStringView(v.constData(), v.size());
        return true;
    }

    double fontSize(int node, const SvgLengthContext &parent) const
    {
        QStringView v;
        if (!property(node, QLatin1String("font-size"), m_names.fontSize, &v))
            return parent.fontSize;
        static const QHash<QString, double> keywords = {
            {QStringLiteral("xx-small"), 9},  {QStringLiteral("x-small"), 10},
            {QStringLiteral("small"), 13},    {QStringLiteral("medium"), 16},
            {QStringLiteral("large"), 18},    {QStringLiteral("x-large"), 24},
            {QStringLiteral("xx-large"), 32}, {QStringLiteral("xxx-large"), 48}};
        const QString text = v.toString();
        if (keywords.contains(text))
            return keywords.value(text);
        if (text == QLatin1String("larger"))
            return parent.fontSize * 1.2;
        if (text == QLatin1String("smaller"))
            return parent.fontSize / 1.2;
        // Percentages and em of a font size refer to the parent's font size.
        SvgLengthContext c = parent;
        c.viewportWidth = c.viewportHeight = parent.fontSize;
        double size;
        if (svgLengthToUser(text, SvgAxis::X, c, &size) && size > 0 && std::isfinite(size))
            return size;
        return parent.fontSize;
    }

    bool displayed(int node) const
    {
        QStringView v;
        return !(property(node, QLatin1String("display"), m_names.display, &v)
                 && v == QLatin1String("none"));
    }

    void applyVisibility(int node, Context *ctx) const
    {
        QStringView v;
        if (!property(node, QLatin1String("visibility"), m_names.visibility, &v))
            return;
        if (v == QLatin1String("hidden") || v == QLatin1String("collapse"))
            ctx->visible = false;
        else if (v == QLatin1String("visible"))
            ctx->visible = true;
    }

    // Conditional processing: requiredFeatures (SVG 1.1 features are taken as supported),
    // requiredExtensions (none is supported) and systemLanguage; an empty value is false.
    bool conditionsHold(int node) const
    {
        QString v;
        if (m_doc.attribute(node, m_names.requiredExtensions, &v))
            return false;
        if (m_doc.attribute(node, m_names.requiredFeatures, &v) && v.trimmed().isEmpty())
            return false;
        if (m_doc.attribute(node, m_names.systemLanguage, &v) && !userLanguageMatches(v))
            return false;
        return true;
    }

    // An element of another namespace than SVG's (by its prefix's declaration, or by a
    // default namespace declared on it or above it).
    bool isForeign(int node, const Context &parent) const
    {
        const int prefix = m_doc.prefix(node);
        if (prefix != SvgDocument::kNone) {
            const int decl = m_doc.nameId(QString(QStringLiteral("xmlns:") + m_doc.name(prefix)));
            for (int n = node; n != SvgDocument::kNone; n = m_doc.parent(n)) {
                QString uri;
                if (m_doc.attribute(n, decl, &uri))
                    return uri.trimmed() != kSvgNamespace;
            }
            return false; // undeclared prefixes are read as SVG
        }
        QString uri;
        if (m_doc.attribute(node, m_names.xmlns, &uri))
            return uri.trimmed() != kSvgNamespace;
        return !parent.svgDefaultNamespace;
    }

    // The context of an element's content: its transform, font size and visibility.
    bool enter(int node, const Context &parent, Context *ctx) const
    {
        *ctx = parent;
        QString uri;
        if (m_doc.attribute(node, m_names.xmlns, &uri))
            ctx->svgDefaultNamespace = uri.trimmed() == kSvgNamespace;
        QString t;
        if (m_doc.attribute(node, m_names.transform, &t)) {
            QTransform local;
            if (parseSvgTransform(t, &local))
                ctx->toMm = local * parent.toMm;
            else
                qDebug() << "svg: bad transform" << t.left(80);
        }
        if (m_doc.hasAttribute(node, m_names.fontSize) || m_doc.hasAttribute(node, m_names.style))
            ctx->lengths.fontSize = fontSize(node, parent.lengths);
        applyVisibility(node, ctx);
        if (m_withColours) {
            QStringView v;
            if (property(node, QLatin1String("stroke"), m_names.stroke, &v)
                && v != QLatin1String("inherit"))
                ctx->stroke = v;
            if (property(node, QLatin1String("fill"), m_names.fill, &v)
                && v != QLatin1String("inherit"))
                ctx->fill = v;
        }
        return true;
    }

    // A viewport of w x h at (x, y) holding a viewBox: the content's mapping and lengths.
    void enterViewport(int node, double x, double y, double w, double h, Context *ctx) const
    {
        QRectF vb;
        const bool hasViewBox = svgViewBox(attr(node, m_names.viewBox), &vb);
        const QTransform view = svgViewportTransform(x, y, w, h, hasViewBox ? vb : QRectF(),
                                                     attr(node, m_names.preserveAspectRatio));
        ctx->toMm = view * ctx->toMm;
        ctx->lengths.viewportWidth = hasViewBox ? vb.width() : w;
        ctx->lengths.viewportHeight = hasViewBox ? vb.height() : h;
    }

    double length(int node, int name, SvgAxis axis, const SvgLengthContext &c,
                  double fallback) const
    {
        QString text;
        double v;
        if (!m_doc.attribute(node, name, &text) || !svgLengthToUser(text, axis, c, &v))
            return fallback;
        return v;
    }

    int referenced(int node)
    {
        QString href;
        if (!m_doc.attribute(node, m_names.href, &href)
            && !m_doc.attribute(node, m_names.xlinkHref, &href))
            return SvgDocument::kNone;
        href = href.trimmed();
        if (!href.startsWith(QLatin1Char('#')))
            return SvgDocument::kNone; // other files are not read
        if (!m_idsBuilt) {
            m_idsBuilt = true;
            for (int n = 0; n < m_doc.elementCount(); ++n) {
                QString id;
                if (m_doc.attribute(n, m_names.id, &id) && !m_ids.contains(id))
                    m_ids.insert(QString(id.constData(), id.size()), n);
            }
        }
        return m_ids.value(href.mid(1), SvgDocument::kNone);
    }

    void count(Buckets &found, int kind, const QPainterPath &mm, const Context &ctx)
    {
        if (++m_shapes > kMaxShapes) {
            m_full = true;
            return;
        }
        if (isUsable(mm)) {
            Bucket &b = found[size_t(kind)];
            b.paths.append(mm);
            if (m_withColours) {
                QRgb rgb = qRgb(0, 0, 0);
                if (!readPaint(ctx.stroke, &rgb) && !readPaint(ctx.fill, &rgb))
                    rgb = qRgb(0, 0, 0);
                b.colours.append(rgb);
            }
        } else
            qDebug() << "svg: shape dropped" << svgShapeTags().value(kind);
    }

    void flush(Buckets &found)
    {
        if (m_full)
            return;
        for (Bucket &b : found) {
            m_result.paths.append(b.paths);
            m_result.colours += b.colours;
            b.paths.clear();
            b.colours.clear();
        }
    }

    // Draws one element (and its content) into `found`.
    void visit(int node, const Context &parent, Buckets &found, int useDepth)
    {
        if (m_full)
            return;
        if (++m_visits > kMaxVisits) {
            m_full = true;
            return;
        }
        if (isForeign(node, parent) || !displayed(node) || !conditionsHold(node))
            return;
        const int tag = m_doc.tag(node);
        const int kind = m_tags.shapeKind(tag);
        if (kind >= 0) {
            Context ctx;
            enter(node, parent, &ctx);
            if (!ctx.visible)
                return;
            const QPainterPath local =
                convertSvgShape(SvgShapeKind(kind), m_doc, node, m_names, ctx.lengths);
            if (!local.isEmpty())
                count(found, kind, ctx.toMm.map(local), ctx);
            return;
        }
        if (tag == m_tags.g || tag == m_tags.a) {
            Context ctx;
            enter(node, parent, &ctx);
            visitChildren(node, ctx, found, useDepth);
        } else if (tag == m_tags.svg) {
            Context ctx;
            enter(node, parent, &ctx);
            const SvgLengthContext &l = ctx.lengths;
            enterViewport(node, length(node, m_names.x, SvgAxis::X, l, 0),
                          length(node, m_names.y, SvgAxis::Y, l, 0),
                          length(node, m_names.width, SvgAxis::X, l, -1),
                          length(node, m_names.height, SvgAxis::Y, l, -1), &ctx);
            visitChildren(node, ctx, found, useDepth);
        } else if (tag == m_tags.sw) {
            Context ctx;
            enter(node, parent, &ctx);
            for (int n = m_doc.firstChild(node); n != SvgDocument::kNone; n = m_doc.nextSibling(n))
                if (conditionsHold(n)) {
                    visit(n, ctx, found, useDepth);
                    break;
                }
        } else if (tag == m_tags.use) {
            visitUse(node, parent, found, useDepth);
        } else if (tag == m_tags.text || tag == m_tags.flowRoot) {
            Context ctx;
            enter(node, parent, &ctx);
            if (ctx.visible)
                ++m_result.textCount;
        } else if (tag == m_tags.image) {
            Context ctx;
            enter(node, parent, &ctx);
            if (ctx.visible)
                addImage(node, ctx);
        }
        // Anything else is never drawn, or unknown: skipped with its content.
    }

    void visitChildren(int node, const Context &ctx, Buckets &found, int useDepth)
    {
        for (int n = m_doc.firstChild(node); n != SvgDocument::kNone && !m_full;
             n = m_doc.nextSibling(n))
            visit(n, ctx, found, useDepth);
    }

    void visitUse(int node, const Context &parent, Buckets &found, int useDepth)
    {
        const int target = referenced(node);
        if (target == SvgDocument::kNone || useDepth >= kMaxUseDepth)
            return;
        for (int n : m_useStack)
            if (n == target)
                return; // a use that (indirectly) refers to itself
        // A use may not refer to one of its own ancestors either.
        for (int n = m_doc.parent(node); n != SvgDocument::kNone; n = m_doc.parent(n))
            if (n == target)
                return;
        Context ctx;
        enter(node, parent, &ctx);
        const SvgLengthContext &l = ctx.lengths;
        const double x = length(node, m_names.x, SvgAxis::X, l, 0);
        const double y = length(node, m_names.y, SvgAxis::Y, l, 0);
        ctx.toMm = QTransform::fromTranslate(x, y) * ctx.toMm;
        m_useStack.append(target);
        const int tag = m_doc.tag(target);
        if (tag == m_tags.symbol || tag == m_tags.svg) {
            if (!isForeign(target, ctx) && displayed(target) && conditionsHold(target)) {
                // The use's width and height replace the referenced viewport's (100% when
                // neither gives one).
                Context inner;
                enter(target, ctx, &inner);
                const SvgLengthContext &il = inner.lengths;
                const int wName = m_doc.hasAttribute(node, m_names.width) ? node : target;
                const int hName = m_doc.hasAttribute(node, m_names.height) ? node : target;
                const double w = length(wName, m_names.width, SvgAxis::X, il, il.viewportWidth);
                const double h = length(hName, m_names.height, SvgAxis::Y, il, il.viewportHeight);
                const double vx =
                    tag == m_tags.svg ? length(target, m_names.x, SvgAxis::X, il, 0) : 0.0;
                const double vy =
                    tag == m_tags.svg ? length(target, m_names.y, SvgAxis::Y, il, 0) : 0.0;
                enterViewport(target, vx, vy, w, h, &inner);
                visitChildren(target, inner, found, useDepth + 1);
            }
        } else {
            visit(target, ctx, found, useDepth + 1);
        }
        m_useStack.removeLast();
    }

    void addImage(int node, const Context &ctx)
    {
        QString href;
        if (!m_doc.attribute(node, m_names.href, &href))
            m_doc.attribute(node, m_names.xlinkHref, &href);
        const QImage image = loadImage(href.trimmed());
        if (image.isNull())
            return;
        const SvgLengthContext &l = ctx.lengths;
        const double x = length(node, m_names.x, SvgAxis::X, l, 0);
        const double y = length(node, m_names.y, SvgAxis::Y, l, 0);
        // Without a size the image takes its own, one pixel per user unit.
        double w = length(node, m_names.width, SvgAxis::X, l, -1);
        double h = length(node, m_names.height, SvgAxis::Y, l, -1);
        if (w < 0 && h < 0) {
            w = image.width();
            h = image.height();
        } else if (w < 0) {
            w = h * image.width() / image.height();
        } else if (h < 0) {
            h = w * image.height() / image.width();
        }
        if (!(w > 0 && h > 0))
            return;
        const QTransform place =
            svgViewportTransform(x, y, w, h, QRectF(0, 0, image.width(), image.height()),
                                 attr(node, m_names.preserveAspectRatio));
        m_result.images.append(SvgImage{image, place * ctx.toMm});
    }

    QImage loadImage(const QString &href) const
    {
        QByteArray bytes;
        if (href.startsWith(QLatin1String("data:"))) {
            const int comma = href.indexOf(QLatin1Char(','));
            if (comma < 0)
                return QImage();
            const QString header = href.mid(5, comma - 5);
            const QByteArray payload = href.mid(comma + 1).toLatin1();
            bytes = header.endsWith(QLatin1String(";base64"))
                        ? QByteArray::fromBase64(payload.simplified().replace(' ', ""))
                        : QByteArray::fromPercentEncoding(payload);
        } else {
            QString file = href;
            const QUrl url(href);
            if (url.isLocalFile())
                file = url.toLocalFile();
            else if (!url.scheme().isEmpty() && url.scheme().size() > 1)
                return QImage(); // nothing is fetched from the network
            if (QFileInfo(file).isRelative()) {
                if (m_baseFolder.isEmpty())
                    return QImage();
                file = QDir(m_baseFolder).filePath(file);
            }
            QFile f(file);
            if (!f.open(QIODevice::ReadOnly) || f.size() > kMaxFileBytes)
                return QImage();
            bytes = f.readAll();
        }
        QImage image;
        if (!image.loadFromData(bytes) || qint64(image.width()) * image.height() > kMaxImagePixels)
            return QImage();
        return image;
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

SvgImportResult readSvgData(const QByteArray &data, const QString &baseFolder, bool withColours)
{
    SvgImportResult result;
    if (data.trimmed().isEmpty()) {
        result.error = QCoreApplication::translate("SvgImport", "SVG 文件为空");
        return result;
    }
    SvgDocument doc;
    if (!doc.parse(data, kMaxDepth, &result.error, &result.limitExceeded))
        return result;
    Collector collector(doc, baseFolder, withColours, result);
    collector.visitRoot();
    if (collector.full()) {
        result.paths.clear();
        result.images.clear();
        result.colours.clear();
        result.error = QCoreApplication::translate("SvgImport", "SVG 文件图形数量过多");
        result.limitExceeded = true;
        return result;
    }
    result.ok = true;
    return result;
}

SvgImportResult readSvgFile(const QString &filePath, bool withColours)
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
    return readSvgData(file.readAll(), QFileInfo(filePath).absolutePath(), withColours);
}

} // namespace lumitra
