#include "item_geometry.h"

#include "jk_tu_yuan.h"

#include <cmath>

namespace lumitra {

ItemGeometry captureGeometry(const Jk_tu_yuan *item)
{
    return ItemGeometry{item->pos(), item->transform(), item->jiao_du,
                        item->path,  item->wen_zi,      item->zi_ti};
}

void applyGeometry(Jk_tu_yuan *item, const ItemGeometry &g)
{
    if (item->transform() != g.transform)
        item->setTransform(g.transform);
    if (item->pos() != g.pos)
        item->setPos(g.pos);
    item->jiao_du = g.jiao_du;
    if (!(item->path == g.path))
        item->set_path(g.path);
    item->wen_zi = g.wen_zi;
    item->zi_ti = g.zi_ti;
}

QRectF outlineBounds(const Jk_tu_yuan *item)
{
    const QTransform t = item->sceneTransform();
    // A pure translation needs no mapped copy of the outline.
    if (t.type() <= QTransform::TxTranslate)
        return item->path.boundingRect().translated(t.dx(), t.dy());
    return t.map(item->path).boundingRect();
}

QRectF outlineBounds(const QList<Jk_tu_yuan *> &items)
{
    QRectF r;
    bool first = true;
    for (const Jk_tu_yuan *item : items) {
        const QRectF b = outlineBounds(item);
        // united() drops empty rectangles, which straight lines have.
        if (first) {
            r = b;
            first = false;
        } else {
            const double left = std::min(r.left(), b.left());
            const double top = std::min(r.top(), b.top());
            const double right = std::max(r.right(), b.right());
            const double bottom = std::max(r.bottom(), b.bottom());
            r = QRectF(QPointF(left, top), QPointF(right, bottom));
        }
    }
    return r;
}

void translateItems(const QList<Jk_tu_yuan *> &items, const QPointF &delta)
{
    for (Jk_tu_yuan *item : items)
        item->setPos(item->pos() + delta);
}

void transformItemsAbout(const QList<Jk_tu_yuan *> &items, const QTransform &linear,
                         const QPointF &centre)
{
    const QTransform about = QTransform::fromTranslate(-centre.x(), -centre.y()) * linear
                             * QTransform::fromTranslate(centre.x(), centre.y());
    for (Jk_tu_yuan *item : items) {
        const QTransform t = item->sceneTransform() * about;
        item->setTransform(QTransform(t.m11(), t.m12(), t.m21(), t.m22(), 0, 0));
        item->setPos(t.dx(), t.dy());
    }
}

void scaleItems(const QList<Jk_tu_yuan *> &items, double sx, double sy, const QPointF &centre)
{
    transformItemsAbout(items, QTransform::fromScale(sx, sy), centre);
}

void mirrorItems(const QList<Jk_tu_yuan *> &items, bool horizontal, const QPointF &centre)
{
    transformItemsAbout(items, QTransform::fromScale(horizontal ? -1 : 1, horizontal ? 1 : -1),
                        centre);
    for (Jk_tu_yuan *item : items)
        item->jiao_du = -item->jiao_du;
}

void fitItemsTo(const QList<Jk_tu_yuan *> &items, const QRectF &target, bool keepRatio)
{
    if (items.isEmpty())
        return;
    const QRectF from = outlineBounds(items);
    double sx = from.width() > 0 ? target.width() / from.width() : 1.0;
    double sy = from.height() > 0 ? target.height() / from.height() : 1.0;
    if (keepRatio) {
        double s = sx;
        if (from.width() <= 0)
            s = sy;
        else if (from.height() > 0)
            s = std::min(sx, sy);
        sx = sy = s;
    }
    if (sx != 1.0 || sy != 1.0)
        scaleItems(items, sx, sy, from.topLeft());
    const QRectF now = outlineBounds(items);
    translateItems(items, target.topLeft() - now.topLeft());
}

Jk_tu_yuan *cloneItem(const Jk_tu_yuan *item)
{
    auto *copy = new Jk_tu_yuan(item);
    copy->setPos(item->pos());
    copy->wen_zi = item->wen_zi;
    copy->zi_ti = item->zi_ti;
    copy->setCacheMode(item->cacheMode());
    return copy;
}

QList<Jk_tu_yuan *> vectorItemsOf(const QList<Jk_tu_yuan *> &items)
{
    QList<Jk_tu_yuan *> list;
    for (Jk_tu_yuan *item : items) {
        if (item && !item->is_bitmap)
            list.append(item);
    }
    return list;
}

bool shareItemFrame(const QList<Jk_tu_yuan *> &items)
{
    if (items.isEmpty())
        return false;
    for (const Jk_tu_yuan *item : items) {
        if (item->transform() != items.first()->transform()
            || item->jiao_du != items.first()->jiao_du)
            return false;
    }
    return items.first()->transform().isInvertible();
}

JoinedFrame joinedFrame(const QList<Jk_tu_yuan *> &items)
{
    JoinedFrame frame;
    if (items.isEmpty())
        return frame;
    if (shareItemFrame(items)) {
        frame.kept = items.first();
        frame.sceneToFrame = frame.kept->sceneTransform().inverted();
        frame.pos = frame.kept->pos();
    } else {
        frame.pos = outlineBounds(items).topLeft();
        frame.sceneToFrame = QTransform::fromTranslate(-frame.pos.x(), -frame.pos.y());
    }
    return frame;
}

QPainterPath outlineInFrame(const Jk_tu_yuan *item, const JoinedFrame &frame)
{
    return (item->sceneTransform() * frame.sceneToFrame).map(item->path);
}

void placeInFrame(Jk_tu_yuan *item, const JoinedFrame &frame)
{
    if (frame.kept) {
        item->setTransform(frame.kept->transform());
        item->jiao_du = frame.kept->jiao_du;
    }
    item->setPos(frame.pos);
}

} // namespace lumitra
