#include "calibration.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace lumitra::camera {

bool operator==(const CalibrationPoints &a, const CalibrationPoints &b)
{
    for (int i = 0; i < 4; ++i) {
        if (a.p[i] != b.p[i])
            return false;
    }
    return true;
}

QString calibrationFileName()
{
    return QStringLiteral("winshexiangtoucanshuzhi2.txt");
}

QString calibrationFileText(const CalibrationPoints &points)
{
    QString text;
    for (const QPointF &p : points.p)
        text += QString::asprintf("J%g,%g", p.x(), p.y());
    return text;
}

bool parseCalibrationText(const QString &body, CalibrationPoints *points)
{
    if (body.trimmed().isEmpty() || !points)
        return false;
    const QStringList parts = body.split(QLatin1Char('J'), Qt::KeepEmptyParts);
    for (int i = 1; i <= 4 && i < parts.size(); ++i) {
        const QStringList fields = parts.at(i).split(QLatin1Char(','), Qt::KeepEmptyParts);
        if (fields.size() != 2)
            continue;
        bool okX = false;
        bool okY = false;
        const float x = fields.at(0).toFloat(&okX);
        const float y = fields.at(1).toFloat(&okY);
        if (okX && okY)
            points->p[i - 1] = QPointF(x, y);
    }
    return true;
}

CalibrationPoints orderClicks(const QVector<QPointF> &four)
{
    CalibrationPoints result;
    if (four.size() != 4)
        return result;
    std::array<QPointF, 4> byY = {four[0], four[1], four[2], four[3]};
    std::stable_sort(byY.begin(), byY.end(),
                     [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
    const bool firstLeft = byY[0].x() < byY[1].x();
    result.p[0] = firstLeft ? byY[0] : byY[1];
    result.p[1] = firstLeft ? byY[1] : byY[0];
    const bool thirdRight = byY[2].x() > byY[3].x();
    result.p[2] = thirdRight ? byY[2] : byY[3];
    result.p[3] = thirdRight ? byY[3] : byY[2];
    return result;
}

namespace {

QPainterPath cross(qreal cx, qreal cy)
{
    QPainterPath path;
    path.moveTo(cx - 5, cy);
    path.lineTo(cx + 5, cy);
    path.moveTo(cx, cy - 5);
    path.lineTo(cx, cy + 5);
    return path;
}

} // namespace

QVector<QPainterPath> calibrationMarkPaths(int width, int height)
{
    const qreal w = width;
    const qreal h = height;
    QVector<QPainterPath> marks;
    marks << cross(25, 25 - h) << cross(w - 25, 25 - h);
    // The lower crosses draw their vertical stroke upwards.
    QPainterPath bottomRight;
    bottomRight.moveTo(w - 30, -25);
    bottomRight.lineTo(w - 20, -25);
    bottomRight.moveTo(w - 25, -20);
    bottomRight.lineTo(w - 25, -30);
    QPainterPath bottomLeft;
    bottomLeft.moveTo(20, -25);
    bottomLeft.lineTo(30, -25);
    bottomLeft.moveTo(25, -20);
    bottomLeft.lineTo(25, -30);
    marks << bottomRight << bottomLeft;
    QPainterPath frame;
    frame.moveTo(30, -30);
    frame.lineTo(w - 30, -30);
    frame.lineTo(w - 30, 30 - h);
    frame.lineTo(30, 30 - h);
    frame.lineTo(30, -30);
    marks << frame;
    return marks;
}

} // namespace lumitra::camera
