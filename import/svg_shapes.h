// Conversion of one SVG shape element of an SvgDocument into a path in its own user units.
#pragma once

#include "svg_document.h"
#include "svg_geometry_attributes.h"

#include <QPainterPath>

namespace lumitra {

// The shape kinds in the order a container is searched (the order of svgShapeTags()).
enum SvgShapeKind { SvgPath, SvgRect, SvgCircle, SvgEllipse, SvgLine, SvgPolygon, SvgPolyline };

// Name numbers of the attributes the reader asks for, looked up once per document.
struct SvgAttributeNames
{
    explicit SvgAttributeNames(const SvgDocument &doc);
    int d, x, y, width, height, rx, ry, cx, cy, r, x1, y1, x2, y2, points;
    int transform, style, display, visibility, fontSize, id, href, xlinkHref;
    int viewBox, preserveAspectRatio, requiredFeatures, requiredExtensions, systemLanguage;
    int xmlns, fill, stroke;
};

// One shape element in its own user units, before any transform; lengths with relative
// units are resolved against `lengths`. Degenerate geometry gives an empty path.
QPainterPath convertSvgShape(SvgShapeKind kind, const SvgDocument &doc, int node,
                             const SvgAttributeNames &names, const SvgLengthContext &lengths);

} // namespace lumitra
