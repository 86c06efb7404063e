// The closed subpaths of an outline as polygons, for area operations.
#pragma once

#include "path_parts.h"

#include <QPainterPath>
#include <QPolygonF>
#include <QVector>

namespace lumitra {

// Every subpath of `path` whose end meets its start, flattened into a polygon
// (curves split until no control point lies more than `tolerance` mm off the
// chord). The closing point is not repeated. Open subpaths, and closed ones
// with fewer than three points, are left out.
QVector<QPolygonF> closedPolygons(const QPainterPath &path, double tolerance);

// Appends the flattened cubic (p0, c1, c2, p3) to `out`, without p0.
void flattenCubic(const QPointF &p0, const QPointF &c1, const QPointF &c2, const QPointF &p3,
                  double tolerance, QPolygonF &out);

} // namespace lumitra
