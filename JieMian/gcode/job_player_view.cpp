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
    m_doneTravel = QImage();
    m_doneBurn = QImage();
    m_doneCount = 0;
    update();
}

QColor JobPlayerView::layerColour(int layer) const
{
    return layer >= 0 && layer < m_colours.size() ? m_colours.at(layer) : QColor(Qt::black);
}

void JobPlayerView::drawMove(QPainter &painter, const QTransform &t, const TimelineMove &move,
                             const QPointF &to)
{
    if (move.burning) {
        painter.setPen(QPen(layerColour(move.layer), 2, Qt::SolidLine, Qt::RoundCap));
    } else {
        painter.setPen(QPen(travelColour(), 1));
    }
    painter.drawLine(t.map(move.from), t.map(to));
}

void JobPlayerView::drawDone(int done)
{
    if (m_doneBurn.isNull() || done < m_doneCount) {
        for (QImage *image : {&m_doneTravel, &m_doneBurn}) {
            *image = QImage(m_planned.size(), QImage::Format_ARGB32_Premultiplied);
            image->fill(Qt::transparent);
        }
        m_doneCount = 0;
    }
    if (done <= m_doneCount || !m_timeline)
        return;
    // Travel and burns on pictures of their own, burns shown over travel, so
    // that a pass with the laser off along a burnt line does not hide it.
    // Lines go out in batches of one pen: a job has up to millions of moves.
    QPainter travel(&m_doneTravel);
    QPainter burn(&m_doneBurn);
    travel.setPen(QPen(travelColour(), 1));
    const QVector<TimelineMove> &moves = m_timeline->moves();
    QVector<QLineF> travelLines, burnLines;
    int burnLayer = -2;
    // Burns two pixels wide: a thin line twice, the second one pixel down and
    // right (ten times faster than a wide pen).
    const auto flushBurns = [&] {
        if (burnLines.isEmpty())
            return;
        burn.drawLines(burnLines);
        burn.translate(1, 1);
        burn.drawLines(burnLines);
        burn.translate(-1, -1);
        burnLines.clear();
    };
    constexpr int kBatch = 4096;
    for (int i = m_doneCount; i < done; ++i) {
        const TimelineMove &m = moves.at(i);
        const QLineF line(m_cacheTransform.map(m.from), m_cacheTransform.map(m.to));
        if (!m.burning) {
            travelLines.append(line);
            if (travelLines.size() >= kBatch) {
                travel.drawLines(travelLines);
                travelLines.clear();
            }
            continue;
        }
        if (m.layer != burnLayer) {
            flushBurns();
            burnLayer = m.layer;
            burn.setPen(QPen(layerColour(m.layer), 0));
        }
        burnLines.append(line);
        if (burnLines.size() >= kBatch)
            flushBurns();
    }
    if (!travelLines.isEmpty())
        travel.drawLines(travelLines);
    flushBurns();
    m_doneCount = done;
}

void JobPlayerView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (!m_timeline)
        return;
    const QVector<TimelineMove> &moves = m_timeline->moves();
    if (m_planned.isNull()) {
        // The pictures are drawn at the transform of the moment; a pan only
        // shifts them until the button is let go.
        m_cacheTransform = toWidget();
        m_planned = QImage(size(), QImage::Format_ARGB32_Premultiplied);
        m_planned.fill(Qt::transparent);
        QPainter planned(&m_planned);
        planned.setPen(QPen(plannedColour(), 1));
        QVector<QLineF> lines;
        for (const TimelineMove &m : moves) {
            if (!m.burning)
                continue;
            lines.append(QLineF(m_cacheTransform.map(m.from), m_cacheTransform.map(m.to)));
            if (lines.size() >= 4096) {
                planned.drawLines(lines);
                lines.clear();
            }
        }
        if (!lines.isEmpty())
            planned.drawLines(lines);
    }
    const QPointF shift = toWidget().map(QPointF()) - m_cacheTransform.map(QPointF());
    painter.drawImage(shift, m_planned);

    double fraction = 0.0;
    const int done = m_timeline->movesDone(m_position, &fraction);
    drawDone(done);
    painter.drawImage(shift, m_doneTravel);
    painter.drawImage(shift, m_doneBurn);
    painter.setRenderHint(QPainter::Antialiasing, true);
    if (done < moves.size() && fraction > 0.0) {
        const TimelineMove &m = moves.at(done);
        drawMove(painter, toWidget(), m, m.from + (m.to - m.from) * fraction);
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
    update(); // the pictures move along; drawn again when the button is let go
}

void JobPlayerView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_panning) {
        m_panning = false;
        unsetCursor();
        invalidate();
    }
}

void JobPlayerView::mouseDoubleClickEvent(QMouseEvent *)
{
    fitToJob();
}
