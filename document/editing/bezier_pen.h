// The outline of the curve tool (tool 8), a Bezier pen: a click puts a corner
// point, a press-and-drag puts a smooth point whose outgoing handle follows the
// pointer (the incoming handle mirrors it), and a press on the first point
// closes the outline. Pure geometry in scene mm.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QVector>

namespace lumitra {

struct PenAnchor
{
    QPointF pos;
    QPointF in;  // incoming handle; equal to pos for a corner
    QPointF out; // outgoing handle; equal to pos for a corner
    bool isCorner() const { return in == pos && out == pos; }
};

class BezierPen
{
public:
    // Mouse press. Returns true when the press closed the outline (it was on
    // the first point, within `closeTolerance`, with at least two points).
    bool press(const QPointF &p, double closeTolerance);
    // Pointer moved with the button held: the anchor just pressed (or the first
    // one, when closing) becomes smooth with its outgoing handle at `p`.
    void drag(const QPointF &p);
    void release() { m_dragging = false; }

    void removeLast();
    void clear();

    int count() const { return m_anchors.size(); }
    bool isClosed() const { return m_closed; }
    bool isDragging() const { return m_dragging; }
    const QVector<PenAnchor> &anchors() const { return m_anchors; }

    // The outline so far: straight lines between two corners, cubic curves
    // otherwise; closed with the segment back to the first point.
    QPainterPath path() const;
    // The outline plus a rubber segment to the pointer while the pen is open.
    QPainterPath previewPath(const QPointF &pointer) const;

private:
    QVector<PenAnchor> m_anchors;
    int m_active = -1; // anchor shaped by drag()
    bool m_closed = false;
    bool m_dragging = false;
};

} // namespace lumitra
