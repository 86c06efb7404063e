// Bitmap tracing: the foreground of an image becomes closed outlines (potrace).
#pragma once

#include <QImage>
#include <QPainterPath>
#include <QPointF>
#include <optional>

namespace lumitra {

// Traces every fully opaque pixel that is not pure white (alpha 255 and not R = G = B = 255);
// all other pixels are background. No speckle is dropped (turdsize 0); the other tracing
// parameters are potrace's defaults. Each traced curve becomes one subpath; a point (px, py)
// in pixel units lands at (px * scale + offset.x, py * scale + offset.y), y pointing down
// like the image rows. An image without foreground gives an empty path.
// Returns nothing when potrace cannot allocate or trace; the reason goes to standard error.
std::optional<QPainterPath> traceBitmap(const QImage &image, double scale, const QPointF &offset);

} // namespace lumitra
