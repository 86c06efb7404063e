// Offsets of outlines: a whole outline grown or shrunk by a distance (the
// offset command), and the beam-width compensation of a cut (kerf).
// Plain functions on paths in millimetres; any thread.
#pragma once

#include <QPainterPath>
#include <QVector>

namespace lumitra {

// Curves are flattened to within this distance (mm) before an area operation,
// the same tolerance the fill hatcher flattens with.
constexpr double kGeometryTolerance = 0.005;

enum class CornerStyle { Round = 0, Mitre = 1, Square = 2 };

// The area of `path`'s closed subpaths (even-odd: holes stay holes) grown by
// `distance` mm, or shrunk when it is negative, as an even-odd path of closed
// polygons. Open subpaths become a closed outline around the line when the
// distance is positive and are kept as they were when it is negative. A
// distance of 0 gives `path` back as it was. Mitre corners are cut off at
// twice the distance; an area that shrinks away is left out.
QPainterPath offsetOutline(const QPainterPath &path, double distance, CornerStyle corners,
                           double tolerance = kGeometryTolerance);

// What a layer's kerf (the width of the cut, mm) makes of an outline for the
// job: every closed subpath moved half the kerf outward when it lies inside an
// even number of the others (an outer contour, an island) and inward when
// inside an odd number (a hole), each on its own with round corners, so that
// the part and its holes come out at their drawn size. Open subpaths, and every
// subpath when the kerf is 0, are kept as they were; a hole too small for the
// beam is left out.
QPainterPath kerfOutline(const QPainterPath &path, double kerf,
                         double tolerance = kGeometryTolerance);

// The same for the outlines of a whole layer, one result per outline: nesting
// is counted across all of them, so a hole drawn as an item of its own inside
// a part is a hole too.
QVector<QPainterPath> kerfOutlines(const QVector<QPainterPath> &paths, double kerf,
                                   double tolerance = kGeometryTolerance);

} // namespace lumitra
