#include "synthetic_photo.h"

#include "calibration.h"
#include "photo_warp.h"

#include <QBuffer>
#include <QPainter>
#include <QPolygonF>

#include <cmath>

SyntheticPhoto makeSyntheticPhoto(const QSize &size)
{
    const qreal w = size.width();
    const qreal h = size.height();
    const QPolygonF workArea(
        {QPointF(0, -400), QPointF(400, -400), QPointF(400, 0), QPointF(0, 0)});
    // Near edge (bottom of the upright photo) wider than the far edge.
    const QPolygonF seen({QPointF(0.25 * w, 0.10 * h), QPointF(0.75 * w, 0.10 * h),
                          QPointF(0.806 * w, 0.917 * h), QPointF(0.194 * w, 0.917 * h)});
    SyntheticPhoto photo;
    QTransform::quadToQuad(workArea, seen, photo.view);

    photo.upright = QImage(size, QImage::Format_RGB888);
    photo.upright.fill(Qt::white);
    {
        QPainter painter(&photo.upright);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::black, 3.0, Qt::SolidLine, Qt::FlatCap));
        for (const QPainterPath &mark : lumitra::camera::calibrationMarkPaths(400, 400))
            painter.drawPath(photo.view.map(mark));
    }
    const QPointF sceneCentres[4] = {QPointF(25, -375), QPointF(375, -375), QPointF(375, -25),
                                     QPointF(25, -25)};
    for (int i = 0; i < 4; ++i)
        photo.centres[i] = photo.view.map(sceneCentres[i]) - QPointF(0.5, 0.5);

    QBuffer buffer(&photo.jpeg);
    buffer.open(QIODevice::WriteOnly);
    lumitra::camera::turnHalf(photo.upright).save(&buffer, "JPG", 92);
    return photo;
}

QPointF findCrossCentre(const QImage &image, const QPointF &expected, int radius, int band)
{
    const int cx = int(std::lround(expected.x()));
    const int cy = int(std::lround(expected.y()));
    double sum = 0, sx = 0, sy = 0;
    for (int y = cy - radius; y <= cy + radius; ++y) {
        for (int x = cx - radius; x <= cx + radius; ++x) {
            if (!image.valid(x, y))
                continue;
            if (std::abs(x - cx) > band && std::abs(y - cy) > band)
                continue;
            const int darkness = 200 - qGray(image.pixel(x, y));
            if (darkness <= 0)
                continue;
            sum += darkness;
            sx += darkness * x;
            sy += darkness * y;
        }
    }
    if (sum <= 0)
        return QPointF(-1, -1);
    return QPointF(sx / sum, sy / sum);
}
