#include "frame_geometry.h"

#include <QLineF>
#include <cmath>

namespace lumitra {

namespace {

constexpr double kMinExtent = 0.1; // mm a scaled frame keeps at least

bool movesX(FrameHandle h)
{
    return h == FrameHandle::TopLeft || h == FrameHandle::TopRight || h == FrameHandle::Right
           || h == FrameHandle::BottomRight || h == FrameHandle::BottomLeft
           || h == FrameHandle::Left;
}

bool movesY(FrameHandle h)
{
    return h == FrameHandle::TopLeft || h == FrameHandle::Top || h == FrameHandle::TopRight
           || h == FrameHandle::BottomRight || h == FrameHandle::Bottom
           || h == FrameHandle::BottomLeft;
}

// Factor taking `from` (distance handle - anchor) to `to` along one axis.
double axisFactor(double from, double to)
{
    if (from == 0)
        return 1.0;
    const double f = to / from;
    const double least = kMinExtent / std::abs(from);
    return f < least ? least : f;
}

} // namespace

QPointF handlePosition(const QRectF &frame, FrameHandle handle, double mmPerPixel)
{
    const QPointF c = frame.center();
    switch (handle) {
    case FrameHandle::TopLeft:
        return frame.topLeft();
    case FrameHandle::Top:
        return QPointF(c.x(), frame.top());
    case FrameHandle::TopRight:
        return frame.topRight();
    case FrameHandle::Right:
        return QPointF(frame.right(), c.y());
    case FrameHandle::BottomRight:
        return frame.bottomRight();
    case FrameHandle::Bottom:
        return QPointF(c.x(), frame.bottom());
    case FrameHandle::BottomLeft:
        return frame.bottomLeft();
    case FrameHandle::Left:
        return QPointF(frame.left(), c.y());
    case FrameHandle::Rotate:
        return QPointF(c.x(), frame.top() - kRotateHandlePixels * mmPerPixel);
    case FrameHandle::None:
    case FrameHandle::Inside:
        break;
    }
    return c;
}

FrameHandle handleAt(const QRectF &frame, const QPointF &p, double mmPerPixel)
{
    const double reach = kHandlePixels * mmPerPixel;
    static const FrameHandle order[] = {
        FrameHandle::Rotate,      FrameHandle::TopLeft,    FrameHandle::TopRight,
        FrameHandle::BottomRight, FrameHandle::BottomLeft, FrameHandle::Top,
        FrameHandle::Right,       FrameHandle::Bottom,     FrameHandle::Left};
    for (FrameHandle h : order) {
        const QPointF at = handlePosition(frame, h, mmPerPixel);
        if (std::abs(p.x() - at.x()) <= reach && std::abs(p.y() - at.y()) <= reach)
            return h;
    }
    const QRectF inside = frame.adjusted(-reach / 2, -reach / 2, reach / 2, reach / 2);
    return inside.contains(p) ? FrameHandle::Inside : FrameHandle::None;
}

FrameHandle oppositeHandle(FrameHandle handle)
{
    switch (handle) {
    case FrameHandle::TopLeft:
        return FrameHandle::BottomRight;
    case FrameHandle::Top:
        return FrameHandle::Bottom;
    case FrameHandle::TopRight:
        return FrameHandle::BottomLeft;
    case FrameHandle::Right:
        return FrameHandle::Left;
    case FrameHandle::BottomRight:
        return FrameHandle::TopLeft;
    case FrameHandle::Bottom:
        return FrameHandle::Top;
    case FrameHandle::BottomLeft:
        return FrameHandle::TopRight;
    case FrameHandle::Left:
        return FrameHandle::Right;
    default:
        return FrameHandle::None;
    }
}

ScaleStep scaleForHandle(const QRectF &frame, FrameHandle handle, const QPointF &pointer,
                         bool keepRatio)
{
    ScaleStep step;
    const FrameHandle fixed = oppositeHandle(handle);
    if (fixed == FrameHandle::None) {
        step.anchor = frame.center();
        return step;
    }
    step.anchor = handlePosition(frame, fixed, 0);
    const QPointF from = handlePosition(frame, handle, 0) - step.anchor;
    const QPointF to = pointer - step.anchor;
    if (movesX(handle))
        step.sx = axisFactor(from.x(), to.x());
    if (movesY(handle))
        step.sy = axisFactor(from.y(), to.y());
    if (keepRatio) {
        const bool useX = movesX(handle) && frame.width() > 0;
        const bool useY = movesY(handle) && frame.height() > 0;
        double s = 1.0;
        if (useX && useY)
            s = std::abs(step.sx - 1) >= std::abs(step.sy - 1) ? step.sx : step.sy;
        else if (useX)
            s = step.sx;
        else if (useY)
            s = step.sy;
        step.sx = frame.width() > 0 ? s : 1.0;
        step.sy = frame.height() > 0 ? s : 1.0;
    }
    return step;
}

double rotationAngle(const QPointF &centre, const QPointF &from, const QPointF &to, bool snap)
{
    const double a0 = std::atan2(from.y() - centre.y(), from.x() - centre.x());
    const double a1 = std::atan2(to.y() - centre.y(), to.x() - centre.x());
    double degrees = (a1 - a0) * 180.0 / M_PI;
    while (degrees > 180)
        degrees -= 360;
    while (degrees <= -180)
        degrees += 360;
    if (snap)
        degrees = std::round(degrees / 15.0) * 15.0;
    return degrees;
}

} // namespace lumitra
