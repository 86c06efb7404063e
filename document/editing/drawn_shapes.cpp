#include "drawn_shapes.h"

#include "jk_chang_jing.h"

#include <QVector>
#include <cmath>

namespace lumitra {

namespace {

QPolygonF polygonOf(std::initializer_list<QPointF> points)
{
    return QPolygonF(QVector<QPointF>(points));
}

} // namespace

bool isDragShapeTool(int tool)
{
    return tool >= RectangleTool && tool <= StarTool;
}

QRectF dragRectangle(const QPointF &press, const QPointF &pointer, bool proportional)
{
    const QPointF a = Jk_chang_jing::roundToMillimetre(press);
    const QPointF b = Jk_chang_jing::roundToMillimetre(pointer);
    double w = b.x() - a.x();
    double h = b.y() - a.y();
    if (proportional) {
        const double side = std::max(std::abs(w), std::abs(h));
        w = w < 0 ? -side : side;
        h = h < 0 ? -side : side;
    }
    return QRectF(a.x(), a.y(), w, h);
}

QPolygonF shapeTemplate(int tool)
{
    switch (tool) {
    case TriangleTool:
        return polygonOf({{0, 0}, {100, 0}, {50, -100}});
    case PentagonTool:
        return polygonOf({{91, 10}, {174, 70}, {142, 171}, {39, 171}, {7, 72}});
    case HexagonTool:
        return polygonOf({{66, 14}, {179, 14}, {236, 108}, {179, 202}, {66, 202}, {9, 108}});
    case StarTool:
        return polygonOf({{380, 23},
                          {489, 241},
                          {732, 275},
                          {556, 444},
                          {597, 683},
                          {380, 571},
                          {163, 682},
                          {204, 444},
                          {28, 275},
                          {271, 241}});
    default:
        return QPolygonF();
    }
}

QPainterPath shapeOutline(int tool, const QRectF &dragRect)
{
    QPainterPath path;
    const QRectF r = dragRect.normalized();
    if (!isDragShapeTool(tool) || (r.width() == 0 && r.height() == 0))
        return path;
    if (tool == RectangleTool) {
        path.addRect(r);
        return path;
    }
    if (tool == EllipseTool) {
        path.addEllipse(r);
        return path;
    }
    const QPolygonF shape = shapeTemplate(tool);
    const QRectF box = shape.boundingRect();
    const double sx = r.width() / box.width();
    const double sy = r.height() / box.height();
    QPolygonF placed;
    placed.reserve(shape.size());
    for (const QPointF &p : shape)
        placed << QPointF(r.x() + (p.x() - box.x()) * sx, r.y() + (p.y() - box.y()) * sy);
    path.addPolygon(placed);
    path.closeSubpath();
    return path;
}

} // namespace lumitra
