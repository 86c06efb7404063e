// The outline of the line tool (tool 1), built point by point from clicks.
// Pure geometry; the scene tool feeds it rounded scene positions in mm.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QVector>

namespace lumitra {

class PolylineBuilder
{
public:
    // Adds a corner. A point within `closeTolerance` of the first point, once
    // there are at least two points, closes the outline instead; returns true
    // when the outline is closed (and therefore finished).
    bool addPoint(const QPointF &p, double closeTolerance);
    // Drops the last point (Backspace while drawing).
    void removeLast();
    void clear();

    int count() const { return m_points.size(); }
    bool isClosed() const { return m_closed; }
    const QVector<QPointF> &points() const { return m_points; }

    // The outline so far; with `pointer`, a rubber segment to it is added.
    QPainterPath path() const;
    QPainterPath previewPath(const QPointF &pointer) const;

private:
    QVector<QPointF> m_points;
    bool m_closed = false;
};

// True when two points are within `tolerance` of each other.
bool isNear(const QPointF &a, const QPointF &b, double tolerance);

} // namespace lumitra
