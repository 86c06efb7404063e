// Boolean operations on outlines: weld (union), subtract, intersect and
// exclude. Every operand is the area of its closed subpaths, an outline lying
// inside an odd number of the others being a hole; outlines of one operand
// that cross (overlapping letters of a text) add up instead of cancelling.
// The result is an even-odd path of closed outlines that do not overlap;
// outlines the operation leaves as they were keep their curves. Plain
// functions on paths in one frame (mm); any thread.
#pragma once

#include "path_offset.h"

#include <QList>
#include <QPainterPath>

namespace lumitra {

enum class BooleanOperation { Weld = 0, Subtract = 1, Intersect = 2, Exclude = 3 };

// Weld: the union of all operands (one operand alone is cleaned of its inner
// overlaps). Subtract: the first operand less all the others. Intersect: what
// all operands cover. Exclude: what an odd number of operands cover.
// Open subpaths are not areas: weld and exclude keep every operand's, subtract
// keeps the first operand's, intersect drops them.
QPainterPath combineOutlines(BooleanOperation operation, const QList<QPainterPath> &operands,
                             double tolerance = kGeometryTolerance);

} // namespace lumitra
