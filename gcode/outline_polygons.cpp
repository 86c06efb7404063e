#include "outline_polygons.h"

#include "cubic_flattening.h"

#include <cmath>

namespace lumitra {

namespace {

void closeInto(QPolygonF &subpath, QVector<QPolygonF> &out)
{
    if (subpath.size() < 2)
        return;
    const QPointF first = subpath.first();
    const QPointF last = subpath.last();
    if (std::hypot(last.x() - first.x(), last.y() - first.y()) > kClosingTolerance)
        return; // open: never filled
    subpath.removeLast();
    if (subpath.size() >= 3)
        out.append(subpath);
}

} // namespace

void flattenCubic(const QPointF &p0, const QPointF &c1, const QPointF &c2, const QPointF &p3,
                  double tolerance, QPolygonF &out)
{
    flattenCubicPoints(p0, c1, c2, p3, tolerance, [&out](const QPointF &p) { out.append(p); });
}

QVector<QPolygonF> closedPolygons(const QPainterPath &path, double tolerance)
{
    QVector<QPolygonF> out;
    QPolygonF current;
    const int count = path.elementCount();
    for (int i = 0; i < count; ++i) {
        const QPainterPath::Element &e = path.elementAt(i);
        switch (e.type) {
        case QPainterPath::MoveToElement:
            closeInto(current, out);
            current = QPolygonF();
            current.append(e);
            break;
        case QPainterPath::LineToElement:
            current.append(e);
            break;
        case QPainterPath::CurveToElement:
            if (i + 2 < count && !current.isEmpty()) {
                flattenCubic(current.last(), e, path.elementAt(i + 1), path.elementAt(i + 2),
                             tolerance, current);
                i += 2;
            }
            break;
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    closeInto(current, out);
    return out;
}

} // namespace lumitra
