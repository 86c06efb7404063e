#pragma once

#include "calibration.h"

#include <QImage>
#include <QRectF>
#include <QString>

namespace lumitra::camera {

// Side of the straightened photo and of the cross square inside it (pixels).
constexpr int kWarpedSize = 650;
constexpr int kCrossSquare = 400;
constexpr int kCrossMargin = 125;

// The photo mirrored horizontally and vertically (turned by 180°), as the
// camera looks at the work area upside down.
QImage turnHalf(const QImage &photo);

// Straightens a turned photo: P1..P4 go to the 400-pixel square starting at
// P1, the photo is warped (bilinear, black border) into twice its size and
// the 650 x 650 square at round(P1 - 125) is cut out, so the crosses land on
// pixels 125 and 525. RGB888. Returns a null image and sets *error when the
// photo is null, the points are degenerate or the crop leaves the canvas.
QImage warpPhoto(const QImage &photo, const CalibrationPoints &points, QString *error = nullptr);

// Where the straightened photo is drawn in scene millimetres (y down, work
// area x 0..width, y -height..0) so its pixels 125..525 cover the cross
// centres 25 mm in from the edges.
QRectF photoSceneRect(int width, int height);

} // namespace lumitra::camera
