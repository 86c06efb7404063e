#include "arrays.h"

#include "command_sequence.h"
#include "item_geometry.h"
#include "jk_tu_yuan.h"

#include <QCoreApplication>
#include <QLineF>
#include <QTransform>
#include <cmath>

namespace lumitra {

namespace {

QList<Jk_tu_yuan *> cloneAll(const QList<Jk_tu_yuan *> &items)
{
    QList<Jk_tu_yuan *> copies;
    copies.reserve(items.size());
    for (const Jk_tu_yuan *item : items)
        copies.append(cloneItem(item));
    return copies;
}

QUndoCommand *addCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &copies)
{
    if (copies.isEmpty())
        return nullptr;
    for (Jk_tu_yuan *copy : copies)
        copy->setSelected(true);
    return makeReplaceItemsCommand(scene, {}, copies,
                                   QCoreApplication::translate("EditCommand", "阵列"));
}

} // namespace

QList<Jk_tu_yuan *> rectangularArrayCopies(const QList<Jk_tu_yuan *> &items,
                                           const RectangularArray &array)
{
    QList<Jk_tu_yuan *> copies;
    if (items.isEmpty() || array.rows < 1 || array.columns < 1)
        return copies;
    const QRectF bounds = outlineBounds(items);
    const double stepX = bounds.width() + array.gapX;
    const double stepY = bounds.height() + array.gapY;
    for (int r = 0; r < array.rows; ++r) {
        for (int c = 0; c < array.columns; ++c) {
            if (r == 0 && c == 0)
                continue;
            const QList<Jk_tu_yuan *> cell = cloneAll(items);
            translateItems(cell, QPointF(c * stepX, r * stepY));
            copies.append(cell);
        }
    }
    return copies;
}

QList<Jk_tu_yuan *> circularArrayCopies(const QList<Jk_tu_yuan *> &items,
                                        const CircularArray &array)
{
    QList<Jk_tu_yuan *> copies;
    if (items.isEmpty() || array.count < 2)
        return copies;
    const bool fullCircle = std::abs(std::fmod(array.sweep, 360.0)) < 1e-9;
    const double step = array.sweep / (fullCircle ? array.count : array.count - 1);
    const QPointF cellCentre = outlineBounds(items).center();
    for (int k = 1; k < array.count; ++k) {
        const double angle = k * step;
        const QList<Jk_tu_yuan *> cell = cloneAll(items);
        if (array.rotateCopies) {
            Jk_tu_yuan::rotateItems(cell, angle, array.centre);
        } else {
            QTransform turn;
            turn.translate(array.centre.x(), array.centre.y());
            turn.rotate(angle);
            turn.translate(-array.centre.x(), -array.centre.y());
            translateItems(cell, turn.map(cellCentre) - cellCentre);
        }
        copies.append(cell);
    }
    return copies;
}

QUndoCommand *makeRectangularArrayCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items,
                                          const RectangularArray &array)
{
    return addCommand(scene, rectangularArrayCopies(items, array));
}

QUndoCommand *makeCircularArrayCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items,
                                       const CircularArray &array)
{
    return addCommand(scene, circularArrayCopies(items, array));
}

} // namespace lumitra
