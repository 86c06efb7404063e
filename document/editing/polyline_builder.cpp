#include "polyline_builder.h"

#include <QLineF>

namespace lumitra {

bool isNear(const QPointF &a, const QPointF &b, double tolerance)
{
    return QLineF(a, b).length() <= tolerance;
}

bool PolylineBuilder::addPoint(const QPointF &p, double closeTolerance)
{
    if (m_closed)
        return true;
    if (m_points.size() >= 2 && isNear(p, m_points.first(), closeTolerance)) {
        m_closed = true;
        return true;
    }
    // A second click on the same spot adds nothing.
    if (!m_points.isEmpty() && m_points.last() == p)
        return false;
    m_points.append(p);
    return false;
}

void PolylineBuilder::removeLast()
{
    if (m_closed)
        m_closed = false;
    else if (!m_points.isEmpty())
        m_points.removeLast();
}

void PolylineBuilder::clear()
{
    m_points.clear();
    m_closed = false;
}

QPainterPath PolylineBuilder::path() const
{
    QPainterPath p;
    if (m_points.isEmpty())
        return p;
    p.moveTo(m_points.first());
    for (int i = 1; i < m_points.size(); ++i)
        p.lineTo(m_points.at(i));
    if (m_closed)
        p.closeSubpath();
    return p;
}

QPainterPath PolylineBuilder::previewPath(const QPointF &pointer) const
{
    QPainterPath p = path();
    if (!m_points.isEmpty() && !m_closed)
        p.lineTo(pointer);
    return p;
}

} // namespace lumitra
