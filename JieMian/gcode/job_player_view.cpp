#include "job_player_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace {
constexpr double kMinScale = 0.05; // px per mm
constexpr double kMaxScale = 400.0;
constexpr int kMargin = 12; // px around a fitted job
} // namespace

JobPlayerView::JobPlayerView(QWidget *parent) : QWidget(parent)
{
    setMinimumSize(200, 200);
    setMouseTracking(false);
    setAutoFillBackground(false);
}

void JobPlayerView::setTimeline(const JobTimeline *timeline)
{
    m_timeline = timeline;
    fitToJob();
}

void JobPlayerView::setLayerColours(const QVector<QColor> &colours)
{
    m_colours = colours;
    invalidate();
}

void JobPlayerView::setPosition(double seconds)
{
    if (seconds == m_position)
        return;
    m_position = seconds;
    update();
}

QTransform JobPlayerView::toWidget() const
{
    // Machine Y up, widget Y down.
    return QTransform(m_scale, 0, 0, -m_scale, m_origin.x(), m_origin.y());
}

QPointF JobPlayerView::mapFromMachine(const QPointF &machine) const
{
    return toWidget().map(machine);
}

QPointF JobPlayerView::mapToMachine(const QPointF &widget) const
{
    return toWidget().inverted().map(widget);
}

void JobPlayerView::fitToJob()
{
    QRectF bounds = m_timeline ? m_timeline->bounds() : QRectF();
    if (bounds.isNull())
        bounds = QRectF(0, 0, 10, 10);
    bounds = bounds.normalized();
    const double w = std::max(bounds.width(), 1.0), h = std::max(bounds.height(), 1.0);
    const double sx = (width() - 2 * kMargin) / w, sy = (height() - 2 * kMargin) / h;
    m_scale = std::clamp(std::min(sx, sy), kMinScale, kMaxScale);
    const QPointF centre = bounds.center();
    m_origin = QPointF(width() / 2.0 - centre.x() * m_scale, height() / 2.0 + centre.y() * m_scale);
    m_autoFit = true;
    invalidate();
}

void JobPlayerView::zoomAt(const QPointF &widgetPoint, double factor)
{
    const QPointF fixed = mapToMachine(widgetPoint);
    m_scale = std::clamp(m_scale * factor, kMinScale, kMaxScale);
    m_origin = widgetPoint - QPointF(fixed.x() * m_scale, -fixed.y() * m_scale);
    m_autoFit = false;
    invalidate();
}

void JobPlayerView::invalidate()
{
    m_planned = QImage();
    m_done = QImage();
    m_doneCount = 0;
    update();
}

void JobPlayerView::drawMove(QPainter &painter, const TimelineMove &move, const QPointF &to)
{
    const QTransform t = toWidget();
    if (move.burning) {
        const QColor colour = move.layer >= 0 && move.layer < m_colours.size()
                                  ? m_colours.at(move.layer)
                                  : QColor(Qt::black);
        painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap));
    } else {
        painter.setPen(QPen(travelColour(), 1));
    }
    painter.drawLine(t.map(move.from), t.map(to));
}

void JobPlayerView::drawDone(int done)
{
    if (m_done.size() != size() || done < m_doneCount) {
        m_done = QImage(size(), QImage::Format_ARGB32_Premultiplied);
        m_done.fill(Qt::transparent);
        m_doneCount = 0;
    }
    if (done <= m_doneCount || !m_timeline)
        return;
    QPainter painter(&m_done);
    painter.setRenderHint(QPainter::Antialiasing, true);
    const QVector<TimelineMove> &moves = m_timeline->moves();
    // Travel first, then burns over it, so that a pass with the laser off
    // along a burnt line does not hide it.
    for (const bool burning : {false, true})
        for (int i = m_doneCount; i < done; ++i)
            if (moves.at(i).burning == burning)
                drawMove(painter, moves.at(i), moves.at(i).to);
    m_doneCount = done;
}

void JobPlayerView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (!m_timeline)
        return;
    const QVector<TimelineMove> &moves = m_timeline->moves();
    if (m_planned.size() != size()) {
        m_planned = QImage(size(), QImage::Format_ARGB32_Premultiplied);
        m_planned.fill(Qt::transparent);
        QPainter planned(&m_planned);
        planned.setPen(QPen(plannedColour(), 1));
        const QTransform t = toWidget();
        for (const TimelineMove &m : moves)
            if (m.burning)
                planned.drawLine(t.map(m.from), t.map(m.to));
    }
    painter.drawImage(0, 0, m_planned);

    double fraction = 0.0;
    const int done = m_timeline->movesDone(m_position, &fraction);
    drawDone(done);
    painter.drawImage(0, 0, m_done);
    painter.setRenderHint(QPainter::Antialiasing, true);
    if (done < moves.size() && fraction > 0.0) {
        const TimelineMove &m = moves.at(done);
        drawMove(painter, m, m.from + (m.to - m.from) * fraction);
    }
    const QPointF head = mapFromMachine(m_timeline->headAt(m_position));
    painter.setPen(QPen(headColour(), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(head, 5, 5);
}

void JobPlayerView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_autoFit)
        fitToJob();
    else
        invalidate();
}

void JobPlayerView::wheelEvent(QWheelEvent *event)
{
    const double steps = event->angleDelta().y() / 120.0;
    if (steps != 0.0)
        zoomAt(event->position(), std::pow(1.25, steps));
    event->accept();
}

void JobPlayerView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        m_panning = true;
        m_lastPointer = event->localPos();
        setCursor(Qt::ClosedHandCursor);
    }
}

void JobPlayerView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_panning)
        return;
    m_origin += event->localPos() - m_lastPointer;
    m_lastPointer = event->localPos();
    m_autoFit = false;
    invalidate();
}

void JobPlayerView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_panning) {
        m_panning = false;
        unsetCursor();
    }
}

void JobPlayerView::mouseDoubleClickEvent(QMouseEvent *)
{
    fitToJob();
}
