// SVG path data ("d" attribute) into a painter path.
#pragma once

#include <QPainterPath>
#include <QString>

namespace lumitra {

// Applies the commands M L H V C S Q T A Z (upper case absolute, lower case relative to
// the current point) with implicit repeats (extra pairs after a moveto are linetos).
// Quadratic segments become cubics; elliptical arcs are converted to cubic segments.
// Data that does not open with a move command is in error at once (an empty path).
// Reading stops at the first error (an unknown letter, a missing or non-finite number),
// keeping what was built before it, as SVG renderers do; *complete (if given) tells
// whether the whole text was read. Coordinates are in the file's user units.
QPainterPath parseSvgPathData(const QString &d, bool *complete = nullptr);

} // namespace lumitra
