#include "svg_shapes.h"

#include "svg_numbers.h"
#include "svg_path_data.h"

#include <cmath>

namespace lumitra {

SvgAttributeNames::SvgAttributeNames(const SvgDocument &doc)
{
    auto id = [&doc](const char *name) { return doc.nameId(QString::fromLatin1(name)); };
    d = id("d");
    x = id("x");
    y = id("y");
    width = id("width");
    height = id("height");
    rx = id("rx");
    ry = id("ry");
    cx = id("cx");
    cy = id("cy");
    r = id("r");
    x1 = id("x1");
    y1 = id("y1");
    x2 = id("x2");
    y2 = id("y2");
    points = id("points");
    transform = id("transform");
    style = id("style");
    display = id("display");
    visibility = id("visibility");
    fontSize = id("font-size");
    this->id = id("id");
    href = id("href");
    xlinkHref = id("xlink:href");
    viewBox = id("viewBox");
    preserveAspectRatio = id("preserveAspectRatio");
    requiredFeatures = id("requiredFeatures");
    requiredExtensions = id("requiredExtensions");
    systemLanguage = id("systemLanguage");
    xmlns = id("xmlns");
    fill = id("fill");
    stroke = id("stroke");
}

namespace {

struct Reader
{
    const SvgDocument &doc;
    int node;
    const SvgLengthContext &lengths;

    double length(int name, SvgAxis axis, double fallback = 0.0) const
    {
        QString text;
        double v;
        if (!doc.attribute(node, name, &text) || !svgLengthToUser(text, axis, lengths, &v))
            return fallback;
        return v;
    }
};

QPainterPath rectPath(const Reader &in, const SvgAttributeNames &n)
{
    QPainterPath path;
    const QRectF r(in.length(n.x, SvgAxis::X), in.length(n.y, SvgAxis::Y),
                   in.length(n.width, SvgAxis::X), in.length(n.height, SvgAxis::Y));
    if (!(r.width() > 0 && r.height() > 0))
        return path;
    // A missing corner radius takes the other one; both are limited to half the side.
    double rx = in.length(n.rx, SvgAxis::X, -1), ry = in.length(n.ry, SvgAxis::Y, -1);
    if (rx < 0)
        rx = ry;
    if (ry < 0)
        ry = rx;
    rx = std::min(std::max(rx, 0.0), r.width() / 2);
    ry = std::min(std::max(ry, 0.0), r.height() / 2);
    if (rx > 0 && ry > 0)
        path.addRoundedRect(r, rx, ry, Qt::AbsoluteSize);
    else
        path.addRect(r);
    return path;
}

// Circles and ellipses: the bounding rectangle traced as one full turn from 0 degrees.
QPainterPath ellipsePath(double cx, double cy, double rx, double ry)
{
    QPainterPath path;
    if (!(rx > 0 && ry > 0))
        return path;
    const QRectF box(cx - rx, cy - ry, 2 * rx, 2 * ry);
    path.arcMoveTo(box, 0);
    path.arcTo(box, 0, 360);
    path.closeSubpath();
    return path;
}

QPainterPath polyPath(const Reader &in, int pointsName, bool close)
{
    QPainterPath path;
    QString text;
    in.doc.attribute(in.node, pointsName, &text);
    const QVector<double> v = splitCoordinateList(text);
    if (v.size() < 2)
        return path;
    path.moveTo(v[0], v[1]);
    for (int i = 2; i + 1 < v.size(); i += 2)
        path.lineTo(v[i], v[i + 1]);
    if (close)
        path.closeSubpath();
    return path;
}

} // namespace

QPainterPath convertSvgShape(SvgShapeKind kind, const SvgDocument &doc, int node,
                             const SvgAttributeNames &n, const SvgLengthContext &lengths)
{
    const Reader in{doc, node, lengths};
    switch (kind) {
    case SvgPath: {
        QString d;
        doc.attribute(node, n.d, &d);
        return parseSvgPathData(d);
    }
    case SvgRect:
        return rectPath(in, n);
    case SvgCircle: {
        const double r = in.length(n.r, SvgAxis::Other);
        return ellipsePath(in.length(n.cx, SvgAxis::X), in.length(n.cy, SvgAxis::Y), r, r);
    }
    case SvgEllipse:
        return ellipsePath(in.length(n.cx, SvgAxis::X), in.length(n.cy, SvgAxis::Y),
                           in.length(n.rx, SvgAxis::X), in.length(n.ry, SvgAxis::Y));
    case SvgLine: {
        QPainterPath path;
        path.moveTo(in.length(n.x1, SvgAxis::X), in.length(n.y1, SvgAxis::Y));
        path.lineTo(in.length(n.x2, SvgAxis::X), in.length(n.y2, SvgAxis::Y));
        return path;
    }
    case SvgPolygon:
        return polyPath(in, n.points, true);
    case SvgPolyline:
        return polyPath(in, n.points, false);
    }
    return QPainterPath();
}

} // namespace lumitra
