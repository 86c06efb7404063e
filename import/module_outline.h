// The dark modules of a grid as one outline: every connected dark region is a
// single closed boundary, every light hole inside it another one, so an
// even-odd (or non-zero) fill covers each dark module exactly once.
#pragma once

#include "barcode_symbol.h"

#include <QPainterPath>
#include <QPointF>

namespace lumitra {

// Module (x, y) covers [origin.x + x * moduleWidth, + moduleWidth] across and
// [origin.y + y * rowHeight, + rowHeight] down (scene orientation, y down).
// Outer boundaries run clockwise on screen, holes counter-clockwise; straight
// runs are single edges. Where two dark modules touch only at a corner they
// stay separate regions. Even-odd fill rule.
QPainterPath moduleOutline(const ModuleGrid &grid, double moduleWidth, double rowHeight,
                           const QPointF &origin = QPointF());

} // namespace lumitra
