#include "path_offset.h"

#include "clipper_bridge.h"

#include <cmath>

namespace lumitra {

namespace {

ClipperLib::JoinType joinOf(CornerStyle corners)
{
    switch (corners) {
    case CornerStyle::Mitre:
        return ClipperLib::jtMiter;
    case CornerStyle::Square:
        return ClipperLib::jtSquare;
    case CornerStyle::Round:
        break;
    }
    return ClipperLib::jtRound;
}

ClipperLib::EndType openEndOf(CornerStyle corners)
{
    switch (corners) {
    case CornerStyle::Mitre:
        return ClipperLib::etOpenButt;
    case CornerStyle::Square:
        return ClipperLib::etOpenSquare;
    case CornerStyle::Round:
        break;
    }
    return ClipperLib::etOpenRound;
}

ClipperLib::ClipperOffset makeOffsetter(double tolerance)
{
    ClipperLib::ClipperOffset offsetter(2.0, 0.25);
    offsetter.ArcTolerance = std::max(1.0, tolerance * kClipperScale);
    return offsetter;
}

} // namespace

QPainterPath offsetOutline(const QPainterPath &path, double distance, CornerStyle corners,
                           double tolerance)
{
    if (distance == 0 || !std::isfinite(distance))
        return path;
    const QVector<FlatSubpath> subpaths = flattenSubpaths(path, tolerance);
    ClipperLib::Paths closed;
    ClipperLib::Paths open;
    for (const FlatSubpath &s : subpaths)
        (s.closed ? closed : open).push_back(s.polygon);
    // Even-odd areas with their holes turned the other way, as the offsetter
    // expects.
    ClipperLib::SimplifyPolygons(closed, ClipperLib::pftEvenOdd);

    ClipperLib::ClipperOffset offsetter = makeOffsetter(tolerance);
    offsetter.AddPaths(closed, joinOf(corners), ClipperLib::etClosedPolygon);
    if (distance > 0)
        offsetter.AddPaths(open, joinOf(corners), openEndOf(corners));
    ClipperLib::Paths result;
    offsetter.Execute(result, distance * kClipperScale);
    QPainterPath out = polygonsToPath(result);
    if (distance < 0)
        appendOpenSubpaths(subpaths, out);
    return out;
}

QPainterPath kerfOutline(const QPainterPath &path, double kerf, double tolerance)
{
    return kerfOutlines({path}, kerf, tolerance).value(0);
}

QVector<QPainterPath> kerfOutlines(const QVector<QPainterPath> &paths, double kerf,
                                   double tolerance)
{
    if (kerf == 0 || !std::isfinite(kerf))
        return paths;
    QVector<QVector<FlatSubpath>> flat;
    flat.reserve(paths.size());
    QVector<const ClipperLib::Path *> closed;
    for (const QPainterPath &path : paths) {
        flat.append(flattenSubpaths(path, tolerance));
        for (const FlatSubpath &s : qAsConst(flat.last())) {
            if (s.closed)
                closed.append(&s.polygon);
        }
    }
    const QVector<int> depths = nestingDepths(closed);
    QVector<QPainterPath> outs;
    outs.reserve(paths.size());
    int c = 0;
    for (const QVector<FlatSubpath> &subpaths : qAsConst(flat)) {
        QPainterPath out;
        for (const FlatSubpath &s : subpaths) {
            if (!s.closed) {
                out.addPath(s.original);
                continue;
            }
            const int depth = depths[c++];
            const double half = (depth % 2 == 0 ? kerf : -kerf) / 2;
            ClipperLib::ClipperOffset offsetter = makeOffsetter(tolerance);
            offsetter.AddPath(s.polygon, ClipperLib::jtRound, ClipperLib::etClosedPolygon);
            ClipperLib::Paths result;
            offsetter.Execute(result, half * kClipperScale);
            // Start where the subpath started, and run the same way, so the
            // cut order stays as it was.
            for (ClipperLib::Path &polygon : result) {
                if (polygon.size() < 3)
                    continue;
                if (ClipperLib::Orientation(polygon) != ClipperLib::Orientation(s.polygon))
                    std::reverse(polygon.begin(), polygon.end());
                size_t nearest = 0;
                double best = -1;
                for (size_t k = 0; k < polygon.size(); ++k) {
                    const double dx = double(polygon[k].X - s.polygon.front().X);
                    const double dy = double(polygon[k].Y - s.polygon.front().Y);
                    const double d = dx * dx + dy * dy;
                    if (best < 0 || d < best) {
                        best = d;
                        nearest = k;
                    }
                }
                std::rotate(polygon.begin(), polygon.begin() + long(nearest), polygon.end());
            }
            out.addPath(polygonsToPath(result));
        }
        if (!out.isEmpty())
            out.setFillRule(Qt::OddEvenFill);
        outs.append(out);
    }
    return outs;
}

} // namespace lumitra
