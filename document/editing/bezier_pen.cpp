#include "bezier_pen.h"

#include "polyline_builder.h"

namespace lumitra {

namespace {

void addSegment(QPainterPath &path, const PenAnchor &from, const PenAnchor &to)
{
    if (from.out == from.pos && to.in == to.pos)
        path.lineTo(to.pos);
    else
        path.cubicTo(from.out, to.in, to.pos);
}

} // namespace

bool BezierPen::press(const QPointF &p, double closeTolerance)
{
    if (m_closed)
        return true;
    m_dragging = true;
    if (m_anchors.size() >= 2 && isNear(p, m_anchors.first().pos, closeTolerance)) {
        m_closed = true;
        m_active = 0;
        return true;
    }
    m_anchors.append(PenAnchor{p, p, p});
    m_active = m_anchors.size() - 1;
    return false;
}

void BezierPen::drag(const QPointF &p)
{
    if (!m_dragging || m_active < 0 || m_active >= m_anchors.size())
        return;
    PenAnchor &a = m_anchors[m_active];
    a.out = p;
    a.in = 2 * a.pos - p;
}

void BezierPen::removeLast()
{
    m_dragging = false;
    if (m_closed) {
        m_closed = false;
    } else if (!m_anchors.isEmpty()) {
        m_anchors.removeLast();
    }
    m_active = m_anchors.size() - 1;
}

void BezierPen::clear()
{
    m_anchors.clear();
    m_active = -1;
    m_closed = false;
    m_dragging = false;
}

QPainterPath BezierPen::path() const
{
    QPainterPath path;
    if (m_anchors.isEmpty())
        return path;
    path.moveTo(m_anchors.first().pos);
    for (int i = 1; i < m_anchors.size(); ++i)
        addSegment(path, m_anchors.at(i - 1), m_anchors.at(i));
    if (m_closed) {
        addSegment(path, m_anchors.last(), m_anchors.first());
        path.closeSubpath();
    }
    return path;
}

QPainterPath BezierPen::previewPath(const QPointF &pointer) const
{
    QPainterPath path = this->path();
    if (m_anchors.isEmpty() || m_closed)
        return path;
    addSegment(path, m_anchors.last(), PenAnchor{pointer, pointer, pointer});
    return path;
}

} // namespace lumitra
