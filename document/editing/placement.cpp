#include "placement.h"

#include "geometry_command.h"
#include "item_geometry.h"
#include "jk_tu_yuan.h"

#include <QCoreApplication>

namespace lumitra {

QRectF machineRectFromScene(const QRectF &b)
{
    return QRectF(b.left(), -b.bottom(), b.width(), b.height());
}

QRectF sceneRectFromMachine(const QRectF &m)
{
    return QRectF(m.x(), -m.y() - m.height(), m.width(), m.height());
}

QString placementText(const QRectF &sceneBounds, int count)
{
    if (count <= 0)
        return QString();
    const QRectF m = machineRectFromScene(sceneBounds);
    return QStringLiteral("X: %1  Y: %2  W: %3  H: %4 mm")
        .arg(m.x(), 0, 'f', 2)
        .arg(m.y(), 0, 'f', 2)
        .arg(m.width(), 0, 'f', 2)
        .arg(m.height(), 0, 'f', 2);
}

void placeItems(const QList<Jk_tu_yuan *> &items, const Placement &p)
{
    if (items.isEmpty())
        return;
    if (p.rotation != 0)
        Jk_tu_yuan::rotateItems(items, p.rotation, outlineBounds(items).center());
    QRectF target = sceneRectFromMachine(p.machineRect);
    if (!p.resize) {
        const QRectF now = outlineBounds(items);
        target =
            QRectF(p.machineRect.x(), -p.machineRect.y() - now.height(), now.width(), now.height());
    }
    fitItemsTo(items, target, false);
}

QUndoCommand *makePlaceCommand(const QList<Jk_tu_yuan *> &items, const Placement &placement)
{
    return new GeometryCommand(
        items, [placement](const QList<Jk_tu_yuan *> &list) { placeItems(list, placement); },
        QCoreApplication::translate("EditCommand", "移动"));
}

} // namespace lumitra
