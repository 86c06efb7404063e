#include "outline_polygons.h"

#include <QVarLengthArray>
#include <cmath>

namespace lumitra {

namespace {

constexpr int kMaxSplitDepth = 16;

struct CubicPiece
{
    QPointF p0, c1, c2, p3;
    int depth;
};

// Distance of `p` from the line through a and b (or from a when they meet).
double offChord(const QPointF &p, const QPointF &a, const QPointF &b)
{
    const double dx = b.x() - a.x();
    const double dy = b.y() - a.y();
    const double len = std::hypot(dx, dy);
    if (len == 0)
        return std::hypot(p.x() - a.x(), p.y() - a.y());
    return std::fabs((p.x() - a.x()) * dy - (p.y() - a.y()) * dx) / len;
}

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
    // Depth-first with the earlier half on top, so points come out in order.
    QVarLengthArray<CubicPiece, 2 * kMaxSplitDepth + 2> stack;
    stack.append({p0, c1, c2, p3, 0});
    while (!stack.isEmpty()) {
        const CubicPiece c = stack.last();
        stack.removeLast();
        const bool flat =
            offChord(c.c1, c.p0, c.p3) <= tolerance && offChord(c.c2, c.p0, c.p3) <= tolerance;
        if (flat || c.depth >= kMaxSplitDepth) {
            out.append(c.p3);
            continue;
        }
        const QPointF a = (c.p0 + c.c1) / 2;
        const QPointF b = (c.c1 + c.c2) / 2;
        const QPointF d = (c.c2 + c.p3) / 2;
        const QPointF ab = (a + b) / 2;
        const QPointF bd = (b + d) / 2;
        const QPointF mid = (ab + bd) / 2;
        stack.append({mid, bd, d, c.p3, c.depth + 1});
        stack.append({c.p0, a, ab, mid, c.depth + 1});
    }
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
