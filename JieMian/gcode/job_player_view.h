// Draws a job at a moment of its timeline: what has burnt so far in its
// layer's colour over the travel (thin), the rest of the job faint, and the
// head. The wheel zooms about the pointer, a drag pans; a double-click fits
// the job again. Drawing only: the timeline and the moment come from outside.
#pragma once

#include "job_timeline.h"

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QTransform>
#include <QVector>
#include <QWidget>

class JobPlayerView : public QWidget
{
    Q_OBJECT

public:
    explicit JobPlayerView(QWidget *parent = nullptr);

    // The timeline is not owned and must outlive the view (or be replaced).
    void setTimeline(const JobTimeline *timeline);
    // Colours by layer index of the timeline; missing ones burn black.
    void setLayerColours(const QVector<QColor> &colours);
    void setPosition(double seconds);
    double position() const { return m_position; }

    // Fits the whole job into the view (and again on every resize, until the
    // user zooms or pans).
    void fitToJob();
    // Pixels per mm, and the widget point of a machine point.
    double scale() const { return m_scale; }
    QPointF mapFromMachine(const QPointF &machine) const;
    QPointF mapToMachine(const QPointF &widget) const;
    // Zooms by `factor` keeping the machine point under `widgetPoint` there.
    void zoomAt(const QPointF &widgetPoint, double factor);

    static QColor travelColour() { return QColor(120, 170, 255); }
    static QColor plannedColour() { return QColor(225, 225, 225); }
    static QColor headColour() { return QColor(230, 30, 30); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    QTransform toWidget() const;
    void invalidate();
    // Brings the picture of the finished moves up to `done` moves.
    void drawDone(int done);
    QColor layerColour(int layer) const;
    void drawMove(QPainter &painter, const QTransform &t, const TimelineMove &move,
                  const QPointF &to);

    const JobTimeline *m_timeline = nullptr;
    QVector<QColor> m_colours;
    double m_position = 0.0;
    double m_scale = 1.0;
    QPointF m_origin;            // widget point of machine (0, 0)
    bool m_autoFit = true;       // fits the job again on resizing until zoomed or panned
    QTransform m_cacheTransform; // machine to the pixels of the pictures below
    QImage m_planned;            // the whole job, faint
    QImage m_doneTravel;         // the moves finished by m_doneCount: travel
    QImage m_doneBurn;           // and burns
    int m_doneCount = 0;
    bool m_panning = false;
    QPointF m_lastPointer;
};
