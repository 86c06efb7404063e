// Flattening a cubic Bézier curve into chords, shared by the area operations
// of the job (hatching) and of the editing tools (offset, booleans).
#pragma once

#include <QPointF>
#include <QVarLengthArray>
#include <cmath>

namespace lumitra {

// Distance of `p` from the line through a and b (or from a when they meet).
inline double distanceFromChord(const QPointF &p, const QPointF &a, const QPointF &b)
{
    const double dx = b.x() - a.x();
    const double dy = b.y() - a.y();
    const double len = std::hypot(dx, dy);
    if (len == 0)
        return std::hypot(p.x() - a.x(), p.y() - a.y());
    return std::fabs((p.x() - a.x()) * dy - (p.y() - a.y()) * dx) / len;
}

// Calls `onPoint(point)` for the end of every chord of the cubic (p0, c1, c2, p3),
// in order, p0 itself left out. Pieces are halved until neither control point
// lies more than `tolerance` off the chord (at most 16 halvings deep).
template<typename OnPoint>
void flattenCubicPoints(const QPointF &p0, const QPointF &c1, const QPointF &c2, const QPointF &p3,
                        double tolerance, OnPoint &&onPoint)
{
    constexpr int kMaxSplitDepth = 16;
    struct Piece
    {
        QPointF p0, c1, c2, p3;
        int depth;
    };
    // Depth-first with the earlier half on top, so points come out in order.
    QVarLengthArray<Piece, 2 * kMaxSplitDepth + 2> stack;
    stack.append({p0, c1, c2, p3, 0});
    while (!stack.isEmpty()) {
        const Piece c = stack.last();
        stack.removeLast();
        const bool flat = distanceFromChord(c.c1, c.p0, c.p3) <= tolerance
                          && distanceFromChord(c.c2, c.p0, c.p3) <= tolerance;
        if (flat || c.depth >= kMaxSplitDepth) {
            onPoint(c.p3);
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

} // namespace lumitra
