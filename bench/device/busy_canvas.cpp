#include "busy_canvas.h"

#include <QGraphicsPathItem>
#include <QGraphicsScene>
#include <QPainterPath>
#include <QRandomGenerator>

BusyCanvas::BusyCanvas(int itemCount) : m_scene(new QGraphicsScene(this))
{
    QRandomGenerator random(7);
    for (int i = 0; i < itemCount; ++i) {
        const double x = random.bounded(400.0);
        const double y = -random.bounded(400.0);
        const double r = 2.0 + random.bounded(18.0);
        QPainterPath path;
        path.addEllipse(QPointF(x, y), r, r);
        path.addRect(x - r / 2, y - r / 2, r, r);
        auto *item = m_scene->addPath(path, QPen(QColor::fromHsv(i % 360, 200, 200), 0));
        item->setBrush(QColor::fromHsv((i * 7) % 360, 120, 240, 90));
    }
    setScene(m_scene);
    setRenderHint(QPainter::Antialiasing);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    resize(1200, 900);
    fitInView(m_scene->itemsBoundingRect(), Qt::KeepAspectRatio);
    m_tick.setInterval(16);
    connect(&m_tick, &QTimer::timeout, this, [this] {
        m_zoom = m_zoom > 1.05 ? 0.95 : m_zoom * 1.002;
        resetTransform();
        fitInView(m_scene->itemsBoundingRect(), Qt::KeepAspectRatio);
        scale(m_zoom, m_zoom);
        viewport()->update();
    });
}

void BusyCanvas::startRepainting()
{
    m_frames = 0;
    m_paintNs = 0;
    m_tick.start();
}

void BusyCanvas::stopRepainting()
{
    m_tick.stop();
}

void BusyCanvas::paintEvent(QPaintEvent *event)
{
    QElapsedTimer clock;
    clock.start();
    QGraphicsView::paintEvent(event);
    m_paintNs += clock.nsecsElapsed();
    ++m_frames;
}
