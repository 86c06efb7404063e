#include "clipper_bridge.h"

#include "cubic_flattening.h"

#include <QHash>
#include <algorithm>
#include <cmath>

namespace lumitra {

namespace {

void appendPoint(ClipperLib::Path &polygon, const QPointF &p)
{
    const ClipperLib::IntPoint q = toClipper(p);
    if (polygon.empty() || polygon.back() != q)
        polygon.push_back(q);
}

void flattenCubicInto(const QPointF &p0, const QPointF &c1, const QPointF &c2, const QPointF &p3,
                      double tolerance, ClipperLib::Path &polygon)
{
    flattenCubicPoints(p0, c1, c2, p3, tolerance,
                       [&polygon](const QPointF &p) { appendPoint(polygon, p); });
}

void finish(FlatSubpath &s, QVector<FlatSubpath> &out)
{
    if (s.original.elementCount() < 2 || s.polygon.size() < 2) {
        s = FlatSubpath();
        return;
    }
    if (s.polygon.size() >= 3 && s.polygon.front() == s.polygon.back()) {
        s.polygon.pop_back();
        s.closed = s.polygon.size() >= 3;
    }
    out.append(s);
    s = FlatSubpath();
}

// An order-independent key of a polygon's points, for finding untouched outlines.
quint64 pointKey(const ClipperLib::IntPoint &p)
{
    quint64 h = quint64(p.X) * 0x9E3779B97F4A7C15ull ^ (quint64(p.Y) + 0x632BE59BD9B4E019ull);
    h ^= h >> 29;
    h *= 0xBF58476D1CE4E5B9ull;
    h ^= h >> 32;
    return h;
}

quint64 polygonKey(const ClipperLib::Path &polygon)
{
    quint64 sum = quint64(polygon.size());
    for (const ClipperLib::IntPoint &p : polygon)
        sum += pointKey(p);
    return sum;
}

bool samePoints(ClipperLib::Path a, ClipperLib::Path b)
{
    if (a.size() != b.size())
        return false;
    const auto less = [](const ClipperLib::IntPoint &p, const ClipperLib::IntPoint &q) {
        return p.X < q.X || (p.X == q.X && p.Y < q.Y);
    };
    std::sort(a.begin(), a.end(), less);
    std::sort(b.begin(), b.end(), less);
    return a == b;
}

} // namespace

QVector<FlatSubpath> flattenSubpaths(const QPainterPath &path, double tolerance)
{
    QVector<FlatSubpath> out;
    FlatSubpath current;
    QPointF last;
    const int n = path.elementCount();
    for (int i = 0; i < n; ++i) {
        const QPainterPath::Element &e = path.elementAt(i);
        switch (e.type) {
        case QPainterPath::MoveToElement:
            finish(current, out);
            current.original.moveTo(e.x, e.y);
            appendPoint(current.polygon, e);
            last = e;
            break;
        case QPainterPath::LineToElement:
            current.original.lineTo(e.x, e.y);
            appendPoint(current.polygon, e);
            last = e;
            break;
        case QPainterPath::CurveToElement:
            if (i + 2 < n) {
                const QPointF c2 = path.elementAt(i + 1);
                const QPointF end = path.elementAt(i + 2);
                current.original.cubicTo(e, c2, end);
                flattenCubicInto(last, e, c2, end, tolerance, current.polygon);
                last = end;
                i += 2;
            }
            break;
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    finish(current, out);
    return out;
}

QPainterPath polygonsToPath(const ClipperLib::Paths &polygons,
                            const QVector<FlatSubpath> &originals)
{
    QMultiHash<quint64, int> byKey;
    for (int i = 0; i < originals.size(); ++i) {
        if (originals[i].closed)
            byKey.insert(polygonKey(originals[i].polygon), i);
    }
    QVector<bool> used(originals.size(), false);
    QPainterPath path;
    for (const ClipperLib::Path &polygon : polygons) {
        if (polygon.size() < 3)
            continue;
        bool replaced = false;
        if (!byKey.isEmpty()) {
            const auto range = byKey.equal_range(polygonKey(polygon));
            for (auto it = range.first; it != range.second; ++it) {
                if (!used[*it] && samePoints(originals[*it].polygon, polygon)) {
                    used[*it] = true;
                    path.addPath(originals[*it].original);
                    replaced = true;
                    break;
                }
            }
        }
        if (replaced)
            continue;
        path.moveTo(fromClipper(polygon.front()));
        for (size_t k = 1; k < polygon.size(); ++k)
            path.lineTo(fromClipper(polygon[k]));
        path.lineTo(fromClipper(polygon.front()));
    }
    // (An empty path would gain a stray move to the origin.)
    if (!path.isEmpty())
        path.setFillRule(Qt::OddEvenFill);
    return path;
}

QVector<int> nestingDepths(const QVector<const ClipperLib::Path *> &polygons)
{
    struct Box
    {
        ClipperLib::cInt x0, y0, x1, y1;
    };
    QVector<Box> boxes;
    boxes.reserve(polygons.size());
    for (const ClipperLib::Path *p : polygons) {
        Box b{p->front().X, p->front().Y, p->front().X, p->front().Y};
        for (const ClipperLib::IntPoint &q : *p) {
            b.x0 = std::min(b.x0, q.X);
            b.y0 = std::min(b.y0, q.Y);
            b.x1 = std::max(b.x1, q.X);
            b.y1 = std::max(b.y1, q.Y);
        }
        boxes.append(b);
    }
    QVector<int> depths(polygons.size(), 0);
    for (int i = 0; i < polygons.size(); ++i) {
        for (int k = 0; k < polygons.size(); ++k) {
            if (k == i)
                continue;
            const Box &in = boxes[i];
            const Box &out = boxes[k];
            if (in.x0 < out.x0 || in.y0 < out.y0 || in.x1 > out.x1 || in.y1 > out.y1)
                continue;
            bool held = true;
            for (const ClipperLib::IntPoint &q : *polygons[i]) {
                if (ClipperLib::PointInPolygon(q, *polygons[k]) == 0) {
                    held = false;
                    break;
                }
            }
            // Two copies of one outline would hold each other: the later one
            // counts as inside.
            if (held && !(k > i && samePoints(*polygons[i], *polygons[k])))
                ++depths[i];
        }
    }
    return depths;
}

void appendOpenSubpaths(const QVector<FlatSubpath> &subpaths, QPainterPath &path)
{
    for (const FlatSubpath &s : subpaths) {
        if (!s.closed)
            path.addPath(s.original);
    }
}

} // namespace lumitra
