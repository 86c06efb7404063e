#include "jiao_zhun_view.h"

#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <cmath>

namespace {
// Room around the photo so that zooming about the cursor is never clamped.
constexpr double kTravel = 100000.0;
constexpr double kMarkPx = 12.0; // half the size of a click mark, screen pixels
} // namespace

JiaoZhunView::JiaoZhunView(QWidget *parent) : QGraphicsView(parent), m_item(new QGraphicsPixmapItem)
{
    setScene(new QGraphicsScene(this));
    scene()->addItem(m_item);
    scene()->setSceneRect(-kTravel, -kTravel, 2 * kTravel, 2 * kTravel);
    m_item->setTransformationMode(Qt::SmoothTransformation);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTransformationAnchor(QGraphicsView::NoAnchor);
    setResizeAnchor(QGraphicsView::AnchorViewCenter);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    setBackgroundBrush(QColor(60, 60, 60));
}

void JiaoZhunView::setPhoto(const QPixmap &photo)
{
    m_photo = photo;
    m_item->setPixmap(photo);
    if (!photo.isNull())
        fitInView(m_item, Qt::KeepAspectRatio);
    viewport()->update();
}

void JiaoZhunView::reset()
{
    m_clicks.clear();
    setPhoto(QPixmap());
    resetTransform();
    centerOn(0, 0);
}

double JiaoZhunView::zoom() const
{
    return std::hypot(transform().m11(), transform().m12());
}

void JiaoZhunView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !hasPhoto() || m_clicks.size() >= kClicksNeeded) {
        QGraphicsView::mousePressEvent(event);
        return;
    }
    const QPointF pos = mapToScene(event->pos());
    if (!QRectF(m_photo.rect()).contains(pos))
        return;
    m_clicks.append(pos);
    viewport()->update();
    emit clicked(pos, m_clicks.size());
}

void JiaoZhunView::wheelEvent(QWheelEvent *event)
{
    const int delta = event->angleDelta().y();
    if (delta == 0) {
        event->ignore();
        return;
    }
    zoomAbout(delta > 0 ? kZoomIn : kZoomOut, event->position().toPoint());
    event->accept();
}

void JiaoZhunView::zoomAbout(double factor, const QPoint &viewportPos)
{
    const QPointF fixed = mapToScene(viewportPos);
    scale(factor, factor);
    const QPoint drift = mapFromScene(fixed) - viewportPos;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + drift.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + drift.y());
}

void JiaoZhunView::drawForeground(QPainter *painter, const QRectF &)
{
    if (m_clicks.isEmpty())
        return;
    // Marks keep their screen size whatever the zoom.
    painter->save();
    painter->resetTransform();
    painter->setRenderHint(QPainter::Antialiasing);
    QPen pen(QColor(255, 40, 40), 2);
    painter->setPen(pen);
    QFont font = painter->font();
    font.setBold(true);
    painter->setFont(font);
    for (int i = 0; i < m_clicks.size(); ++i) {
        const QPointF c = mapFromScene(m_clicks[i]);
        painter->drawLine(QPointF(c.x() - kMarkPx, c.y()), QPointF(c.x() + kMarkPx, c.y()));
        painter->drawLine(QPointF(c.x(), c.y() - kMarkPx), QPointF(c.x(), c.y() + kMarkPx));
        painter->drawEllipse(c, kMarkPx / 2, kMarkPx / 2);
        painter->drawText(c + QPointF(kMarkPx / 2 + 2, -kMarkPx / 2 - 2), QString::number(i + 1));
    }
    painter->restore();
}
