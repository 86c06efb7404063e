#include "path_booleans.h"

#include "clipper_bridge.h"

namespace lumitra {

namespace {

// The polygons of one operand turned so that outer outlines run one way and
// holes the other; under the non-zero rule they give the operand's area.
ClipperLib::Paths orientedPolygons(const QVector<FlatSubpath> &subpaths)
{
    QVector<const ClipperLib::Path *> closed;
    for (const FlatSubpath &s : subpaths) {
        if (s.closed)
            closed.append(&s.polygon);
    }
    const QVector<int> depths = nestingDepths(closed);
    ClipperLib::Paths out;
    out.reserve(size_t(closed.size()));
    for (int i = 0; i < closed.size(); ++i) {
        ClipperLib::Path p = *closed[i];
        if (ClipperLib::Orientation(p) != (depths[i] % 2 == 0))
            std::reverse(p.begin(), p.end());
        out.push_back(std::move(p));
    }
    return out;
}

ClipperLib::Paths run(ClipperLib::ClipType type, const ClipperLib::Paths &subject,
                      const ClipperLib::Paths &clip)
{
    ClipperLib::Clipper clipper(ClipperLib::ioPreserveCollinear);
    clipper.AddPaths(subject, ClipperLib::ptSubject, true);
    clipper.AddPaths(clip, ClipperLib::ptClip, true);
    ClipperLib::Paths result;
    clipper.Execute(type, result, ClipperLib::pftNonZero, ClipperLib::pftNonZero);
    return result;
}

} // namespace

QPainterPath combineOutlines(BooleanOperation operation, const QList<QPainterPath> &operands,
                             double tolerance)
{
    QVector<QVector<FlatSubpath>> flat;
    QVector<FlatSubpath> all;
    for (const QPainterPath &p : operands) {
        flat.append(flattenSubpaths(p, tolerance));
        all += flat.last();
    }
    if (flat.isEmpty())
        return QPainterPath();

    ClipperLib::Paths result;
    switch (operation) {
    case BooleanOperation::Weld: {
        ClipperLib::Paths subject;
        for (const QVector<FlatSubpath> &f : qAsConst(flat)) {
            const ClipperLib::Paths p = orientedPolygons(f);
            subject.insert(subject.end(), p.begin(), p.end());
        }
        result = run(ClipperLib::ctUnion, subject, {});
        break;
    }
    case BooleanOperation::Subtract: {
        ClipperLib::Paths clip;
        for (int i = 1; i < flat.size(); ++i) {
            const ClipperLib::Paths p = orientedPolygons(flat[i]);
            clip.insert(clip.end(), p.begin(), p.end());
        }
        result = run(ClipperLib::ctDifference, orientedPolygons(flat.first()), clip);
        break;
    }
    case BooleanOperation::Intersect:
    case BooleanOperation::Exclude: {
        const ClipperLib::ClipType type = operation == BooleanOperation::Intersect
                                              ? ClipperLib::ctIntersection
                                              : ClipperLib::ctXor;
        // The first operand cleaned of its own overlaps, then each further one.
        result = run(ClipperLib::ctUnion, orientedPolygons(flat.first()), {});
        for (int i = 1; i < flat.size(); ++i)
            result = run(type, result, orientedPolygons(flat[i]));
        break;
    }
    }

    QPainterPath out = polygonsToPath(result, all);
    switch (operation) {
    case BooleanOperation::Weld:
    case BooleanOperation::Exclude:
        appendOpenSubpaths(all, out);
        break;
    case BooleanOperation::Subtract:
        appendOpenSubpaths(flat.first(), out);
        break;
    case BooleanOperation::Intersect:
        break;
    }
    return out;
}

} // namespace lumitra
