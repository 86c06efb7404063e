// Geometry of the selection frame: where its handles are, which handle a
// pointer is on, and what dragging a handle means (scale factors about the
// opposite handle, or a rotation angle about the centre). Pure functions in
// scene millimetres; handle sizes are given in screen pixels and converted
// with the view's millimetres per pixel.
#pragma once

#include <QPointF>
#include <QRectF>

namespace lumitra {

enum class FrameHandle {
    None,
    TopLeft,
    Top,
    TopRight,
    Right,
    BottomRight,
    Bottom,
    BottomLeft,
    Left,
    Rotate, // the round handle above the top edge's centre
    Inside, // within the frame, not on a handle: moves the selection
};

// Handle size and the rotate handle's distance above the frame, in pixels.
constexpr double kHandlePixels = 8.0;
constexpr double kRotateHandlePixels = 24.0;

// Centre of a handle in scene coordinates; the rotate handle sits
// kRotateHandlePixels above the top centre (negative scene y is up).
QPointF handlePosition(const QRectF &frame, FrameHandle handle, double mmPerPixel);

// The handle under `p`, Inside when within the frame, else None. Handles are
// picked within kHandlePixels of their centre; the rotate handle first, then
// corners, then edges.
FrameHandle handleAt(const QRectF &frame, const QPointF &p, double mmPerPixel);

// The handle across the frame from `handle` (the fixed point of a scale).
FrameHandle oppositeHandle(FrameHandle handle);

struct ScaleStep
{
    double sx = 1.0;
    double sy = 1.0;
    QPointF anchor; // fixed point of the scale
};

// Dragging `handle` of `frame` to `pointer`: the factors that take the handle
// there with the opposite handle fixed. Edge handles scale one axis, corners
// both. With `keepRatio` both axes get the same factor (the one that changes
// most). A flat frame keeps factor 1 on its flat axis. Factors never drop
// below the one that leaves 0.1 mm, so a drag past the anchor does not turn
// the selection inside out.
ScaleStep scaleForHandle(const QRectF &frame, FrameHandle handle, const QPointF &pointer,
                         bool keepRatio);

// The angle in degrees (positive turns clockwise on the screen, like
// QTransform::rotate) from the direction centre->from to centre->to. With
// `snap` it is rounded to whole multiples of 15 degrees.
double rotationAngle(const QPointF &centre, const QPointF &from, const QPointF &to, bool snap);

} // namespace lumitra
