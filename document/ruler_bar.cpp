#include "ruler_bar.h"

#include <QGraphicsView>
#include <QPainter>
#include <cmath>

namespace {
constexpr double kMinLabelGapPx = 50.0;
constexpr double kMinTickGapPx = 4.0;
} // namespace

RulerBar::RulerBar(Qt::Orientation orientation, QGraphicsView *view)
    : QWidget(view), m_orientation(orientation), m_view(view)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

double RulerBar::labelStepFor(double pixelsPerMm)
{
    if (!(pixelsPerMm > 0))
        return 1000.0;
    double decade = 1e-3;
    while (decade < 1e7) {
        for (double m : {1.0, 2.0, 5.0}) {
            if (m * decade * pixelsPerMm >= kMinLabelGapPx)
                return m * decade;
        }
        decade *= 10.0;
    }
    return decade;
}

double RulerBar::valueAt(int viewportPos) const
{
    if (m_orientation == Qt::Horizontal)
        return m_view->mapToScene(QPoint(viewportPos, 0)).x();
    return -m_view->mapToScene(QPoint(0, viewportPos)).y();
}

void RulerBar::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.fillRect(rect(), QColor(245, 245, 245));
    p.setPen(QColor(150, 150, 150));
    const bool horizontal = m_orientation == Qt::Horizontal;
    const int length = horizontal ? width() : height();
    if (horizontal)
        p.drawLine(0, height() - 1, width(), height() - 1);
    else
        p.drawLine(width() - 1, 0, width() - 1, height());

    const double v0 = valueAt(0);
    const double v1 = valueAt(length);
    if (!(v0 != v1))
        return;
    const double pixelsPerMm = length / std::fabs(v1 - v0);
    const double label = labelStepFor(pixelsPerMm);
    double tick = label / 10.0;
    if (tick * pixelsPerMm < kMinTickGapPx)
        tick = label / 2.0;

    QFont f = font();
    f.setPixelSize(9);
    p.setFont(f);
    const double lo = std::min(v0, v1);
    const double hi = std::max(v0, v1);
    for (long long i = static_cast<long long>(std::ceil(lo / tick));; ++i) {
        const double v = i * tick;
        if (v > hi)
            break;
        const double pos = (v - v0) / (v1 - v0) * length;
        const bool labelled = std::fabs(std::remainder(v, label)) < tick * 0.01;
        const int tickLen = labelled ? kThickness - 4 : kThickness / 4;
        if (horizontal) {
            p.drawLine(QPointF(pos, height() - tickLen), QPointF(pos, height()));
            if (labelled)
                p.drawText(QPointF(pos + 2, 9), QString::number(v, 'g', 6));
        } else {
            p.drawLine(QPointF(width() - tickLen, pos), QPointF(width(), pos));
            if (labelled) {
                p.save();
                p.translate(9, pos - 2);
                p.rotate(-90);
                p.drawText(QPointF(0, 0), QString::number(v, 'g', 6));
                p.restore();
            }
        }
    }
}
