// Outlines of the drawing tools, built from a drag rectangle in scene millimetres.
//
// Tool numbers as the user sees them:
//   0 selection, 1 line (point by point), 2 rectangle, 3 ellipse, 4 triangle,
//   5 pentagon, 6 hexagon, 7 five-pointed star, 8 curve (Bezier pen).
// Pure functions; no program state is read.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>

namespace lumitra {

enum DrawTool {
    SelectTool = 0,
    LineTool = 1,
    RectangleTool = 2,
    EllipseTool = 3,
    TriangleTool = 4,
    PentagonTool = 5,
    HexagonTool = 6,
    StarTool = 7,
    CurveTool = 8,
};

// True for the tools that build their outline from one drag rectangle (2..7).
bool isDragShapeTool(int tool);

// The drag rectangle (x, y, w, h) from the press point to the current pointer
// position, both rounded to whole millimetres (halves upwards, as the design
// scene rounds). w and h keep their sign (a drag
// to the left gives a negative w). With `proportional` both are replaced by the
// larger of |w| and |h|, each keeping its own sign.
QRectF dragRectangle(const QPointF &press, const QPointF &pointer, bool proportional);

// The closed template polygon of tools 4..7 in its own coordinates; empty for
// other tools.
QPolygonF shapeTemplate(int tool);

// The outline of a drag-shape tool for the rectangle (x, y, w, h). A negative w
// or h is made positive by moving x (or y) to the other edge, so dragging either
// way over the same rectangle gives the same outline. Rectangle and ellipse use
// addRect / addEllipse; the templates are scaled to the rectangle and their
// bounding rectangle's top-left put on (x, y). An empty path for other tools or
// a degenerate rectangle (zero width and height).
QPainterPath shapeOutline(int tool, const QRectF &dragRect);

} // namespace lumitra
