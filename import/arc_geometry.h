// Circular and elliptic arcs as cubic Bézier segments, shared by the SVG and DXF readers.
#pragma once

#include <QPainterPath>
#include <QPointF>

namespace lumitra {

// Largest sweep of one cubic segment. A quarter of that many degrees keeps the radial
// error of the cubic under 5e-6 of the radius.
constexpr double kMaxArcSegmentRadians = 0.7853981633974483; // 45 degrees

// The point at parameter angle t (radians) of an ellipse with centre c, radii rx, ry,
// whose x axis is rotated by phi (radians).
QPointF ellipsePoint(const QPointF &c, double rx, double ry, double phi, double t);

// Appends the arc from parameter angle start over sweep (radians; positive turns from the
// ellipse's x axis towards its y axis) as cubic segments. The path's current point is
// expected at the arc's start; nothing is drawn for a zero sweep.
void appendEllipticArc(QPainterPath &path, const QPointF &centre, double rx, double ry, double phi,
                       double start, double sweep);

// SVG's endpoint form of an elliptical arc: from the current point `from` to `to` with
// radii rx, ry, x-axis rotation phiDegrees and the large-arc and sweep flags. Radii too
// small to reach are scaled up; a zero radius gives a straight line; from == to draws
// nothing.
void appendEndpointArc(QPainterPath &path, const QPointF &from, double rx, double ry,
                       double phiDegrees, bool largeArc, bool sweep, const QPointF &to);

// A circular arc between two points given by its bulge (tan of a quarter of the included
// angle, positive counter-clockwise in a y-up frame) as DXF polylines store it.
void appendBulgeArc(QPainterPath &path, const QPointF &from, const QPointF &to, double bulge);

} // namespace lumitra
