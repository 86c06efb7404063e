#pragma once

#include <QMetaType>
#include <QPainterPath>
#include <QPointF>
#include <QString>
#include <QVector>

namespace lumitra::camera {

// The four cross centres in photo pixels of the photo turned by 180°:
// P1 top-left, P2 top-right, P3 bottom-right, P4 bottom-left (p[0]..p[3]).
// A P1 with x <= 0 means the camera was never calibrated.
struct CalibrationPoints
{
    QPointF p[4];
    bool calibrated() const { return p[0].x() > 0; }
};

bool operator==(const CalibrationPoints &a, const CalibrationPoints &b);
inline bool operator!=(const CalibrationPoints &a, const CalibrationPoints &b)
{
    return !(a == b);
}

// Name of the calibration file in the root of the board's SD card.
QString calibrationFileName();

// "J" x "," y four times, numbers as printf "%g" (6 significant digits).
QString calibrationFileText(const CalibrationPoints &points);

// Reads the file text into `points`. False for an empty body (nothing is
// changed). Otherwise the text is split at "J" keeping empty parts; part i
// (1..4) with exactly two comma-separated fields becomes point i, other parts
// are skipped and the points they name keep their values.
bool parseCalibrationText(const QString &body, CalibrationPoints *points);

// Four clicks in any order → P1..P4: sorted by y ascending; of the two upper
// ones the smaller x is P1, the other P2; of the two lower ones the larger x
// is P3, the other P4. Fewer or more than four clicks give empty points.
CalibrationPoints orderClicks(const QVector<QPointF> &four);

// The five marks the machine burns for a calibration, in scene millimetres
// (y down, work area x 0..width, y -height..0): four crosses (top-left,
// top-right, bottom-right, bottom-left), 10 mm wide with their centres 25 mm
// in from the two nearest edges, then the frame inset 30 mm on every side.
QVector<QPainterPath> calibrationMarkPaths(int width, int height);

} // namespace lumitra::camera

Q_DECLARE_METATYPE(lumitra::camera::CalibrationPoints)
