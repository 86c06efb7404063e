// Outlines between QPainterPath (mm, doubles) and Clipper's integer polygons.
// Internal to the geometry operations: only their .cpp files include it.
#pragma once

#include <polyclipping/clipper.hpp>

#include <QPainterPath>
#include <QPointF>
#include <QVector>
#include <cmath>

namespace lumitra {

// Clipper units per millimetre: 0.1 micrometre steps, far below what a
// controller writes (0.01 mm), and room for designs up to about 100 m across
// before Clipper needs its slower wide arithmetic.
constexpr double kClipperScale = 10000.0;

inline ClipperLib::IntPoint toClipper(const QPointF &p)
{
    return ClipperLib::IntPoint(ClipperLib::cInt(std::llround(p.x() * kClipperScale)),
                                ClipperLib::cInt(std::llround(p.y() * kClipperScale)));
}

inline QPointF fromClipper(const ClipperLib::IntPoint &p)
{
    return QPointF(double(p.X) / kClipperScale, double(p.Y) / kClipperScale);
}

// One subpath of an outline: its elements as they were (curves kept) and its
// flattened polygon (no repeated points; for a closed subpath the closing
// point is not repeated).
struct FlatSubpath
{
    QPainterPath original;
    ClipperLib::Path polygon;
    bool closed = false;
};

// The subpaths of `path` in order; curves are split until no control point is
// more than `tolerance` mm off its chord. Lone points are left out; closed
// subpaths with fewer than three distinct points are kept as open ones.
QVector<FlatSubpath> flattenSubpaths(const QPainterPath &path, double tolerance);

// Polygons back into one even-odd path of closed subpaths. A polygon made of
// exactly the points of one of `originals`' closed subpaths (an outline the
// operation did not touch) is replaced by that subpath as it was, curves and
// all; each original is used at most once.
QPainterPath polygonsToPath(const ClipperLib::Paths &polygons,
                            const QVector<FlatSubpath> &originals = {});

// For each closed polygon, how many of the others hold it wholly (every
// point inside or on the edge). Outlines that cross count as side by side.
QVector<int> nestingDepths(const QVector<const ClipperLib::Path *> &polygons);

// Appends the open subpaths of `subpaths` to `path` as they were.
void appendOpenSubpaths(const QVector<FlatSubpath> &subpaths, QPainterPath &path);

} // namespace lumitra
