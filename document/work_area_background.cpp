#include "work_area_background.h"

#include <QPainter>
#include <QPixmap>
#include <QVector>
#include <cmath>

namespace {
constexpr double kMinLineGapPx = 4.0;

// Vertical and horizontal lines every `step` mm inside `clip`.
QVector<QLineF> gridLines(const QRectF &clip, double step)
{
    QVector<QLineF> lines;
    const double x0 = std::ceil(clip.left() / step) * step;
    for (double x = x0; x <= clip.right(); x += step)
        lines.append(QLineF(x, clip.top(), x, clip.bottom()));
    const double y0 = std::ceil(clip.top() / step) * step;
    for (double y = y0; y <= clip.bottom(); y += step)
        lines.append(QLineF(clip.left(), y, clip.right(), y));
    return lines;
}
} // namespace

double gridStepFor(double pixelsPerMm)
{
    double step = 1.0;
    while (step * pixelsPerMm < kMinLineGapPx && step < 1000.0)
        step *= 10.0;
    return step;
}

void paintWorkArea(QPainter *painter, const QRectF &exposed, const QRectF &area,
                   const QPixmap &photo)
{
    BackgroundPhoto stretched;
    stretched.pixmap = photo;
    stretched.rect = area;
    paintWorkArea(painter, exposed, area, stretched);
}

void paintWorkArea(QPainter *painter, const QRectF &exposed, const QRectF &area,
                   const BackgroundPhoto &photo)
{
    painter->save();
    painter->fillRect(exposed, QColor(214, 214, 214));
    painter->fillRect(area, Qt::white);
    if (photo.visible() && photo.rect.intersects(exposed)) {
        painter->save();
        painter->setOpacity(qBound(0.0, photo.opacity, 1.0));
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawPixmap(photo.rect, photo.pixmap, QRectF(photo.pixmap.rect()));
        painter->restore();
    }

    const QRectF clip = exposed.intersected(area);
    if (!clip.isEmpty()) {
        const double pixelsPerMm =
            std::hypot(painter->worldTransform().m11(), painter->worldTransform().m12());
        const double step = gridStepFor(pixelsPerMm);
        QPen minor(QColor(232, 232, 232), 0);
        QPen major(QColor(200, 200, 200), 0);
        if (step < 10.0) {
            painter->setPen(minor);
            painter->drawLines(gridLines(clip, step));
        }
        painter->setPen(major);
        painter->drawLines(gridLines(clip, std::max(step, 10.0)));
    }
    painter->setPen(QPen(QColor(120, 120, 120), 0));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(area);
    painter->restore();
}
