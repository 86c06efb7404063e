// Conversion of one SVG shape element into a path in its own user units.
#include "svg_geometry_attributes.h"
#include "svg_numbers.h"
#include "svg_path_data.h"
#include "svg_reader.h"

#include <QDomElement>
#include <cmath>

namespace lumitra {

namespace {

double attr(const QDomElement &e, const char *name, double fallback = 0.0)
{
    return svgCoordinate(e, QLatin1String(name), fallback);
}

QPainterPath rectPath(const QDomElement &e)
{
    QPainterPath path;
    const QRectF r(attr(e, "x"), attr(e, "y"), attr(e, "width"), attr(e, "height"));
    if (!(r.width() > 0 && r.height() > 0))
        return path;
    // A missing corner radius takes the other one; both are limited to half the side.
    double rx = attr(e, "rx", -1), ry = attr(e, "ry", -1);
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

QPainterPath polyPath(const QDomElement &e, bool close)
{
    QPainterPath path;
    const QVector<double> v = splitCoordinateList(e.attribute(QStringLiteral("points")));
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

QPainterPath convertSvgElement(const QString &tag, const QDomElement &e)
{
    if (tag == QLatin1String("path"))
        return parseSvgPathData(e.attribute(QStringLiteral("d")));
    if (tag == QLatin1String("rect"))
        return rectPath(e);
    if (tag == QLatin1String("circle")) {
        const double r = attr(e, "r");
        return ellipsePath(attr(e, "cx"), attr(e, "cy"), r, r);
    }
    if (tag == QLatin1String("ellipse"))
        return ellipsePath(attr(e, "cx"), attr(e, "cy"), attr(e, "rx"), attr(e, "ry"));
    if (tag == QLatin1String("line")) {
        QPainterPath path;
        path.moveTo(attr(e, "x1"), attr(e, "y1"));
        path.lineTo(attr(e, "x2"), attr(e, "y2"));
        return path;
    }
    if (tag == QLatin1String("polygon"))
        return polyPath(e, true);
    if (tag == QLatin1String("polyline"))
        return polyPath(e, false);
    return QPainterPath();
}

} // namespace lumitra
