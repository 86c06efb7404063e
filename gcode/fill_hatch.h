// Fill hatching of closed outlines.
//
// Parallel hatch lines are laid inside the closed subpaths of an outline with
// the even-odd rule: a hole (or the counter of a letter) inside another subpath
// stays empty. Open subpaths are not filled. Lines run at `angle` degrees
// (counter-clockwise from the machine's +X axis, machine Y pointing up) and lie
// on a fixed grid at `spacing` mm, offset half a spacing from the machine
// origin, so that neighbouring items line up. Each line is lengthened by
// `overscan` mm at both ends; the lengthening is coasted (laser off at feed
// speed) so that the head burns at full speed.
#pragma once

#include "hatch_order.h"

#include <QPainterPath>

namespace lumitra {

class ToolpathSink;

struct HatchSettings
{
    double angle = 0;     // degrees
    double spacing = 0.1; // mm, must be positive
    double overscan = 0;  // mm at each end
    bool oneDirection = false;
};

// Flattening tolerance used for curved outlines, mm.
constexpr double kHatchTolerance = 0.005;

// The hatch spans of the closed subpaths of `scenePath` (scene coordinates),
// in the hatch frame: u along the lines, v across them. Empty when the spacing
// is not positive or the outline has nothing closed.
QVector<HatchLine> hatchLines(const QPainterPath &scenePath, const HatchSettings &settings);

// Hatches `scenePath` into `sink`: travel to each span (less the overscan),
// coast the overscan, burn the span, coast the overscan out. Stops early when
// the sink asks to.
void hatchOutline(const QPainterPath &scenePath, const HatchSettings &settings, ToolpathSink &sink);

} // namespace lumitra
