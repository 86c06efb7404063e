#pragma once

#include <QPainterPath>

namespace lumitra {

// Distance (mm) within which a subpath's last point counts as its first, so
// that outlines read from files with rounded coordinates still close.
constexpr double kClosingTolerance = 1e-3;

// An outline split by its subpaths: those whose end meets their start (which
// a fill hatches and the canvas paints filled) and the open ones (which can
// only be burnt, and are only drawn, as lines). A lone point is in neither.
struct PathParts
{
    QPainterPath closed;
    QPainterPath open;
};

PathParts splitByClosure(const QPainterPath &path);

// True when at least one subpath of `path` is open.
bool hasOpenSubpath(const QPainterPath &path);

} // namespace lumitra
