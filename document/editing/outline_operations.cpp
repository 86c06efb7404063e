#include "outline_operations.h"

#include "command_sequence.h"
#include "geometry_command.h"
#include "item_geometry.h"
#include "jk_tu_yuan.h"

#include <QCoreApplication>

namespace lumitra {

namespace {

QString operationText(BooleanOperation operation)
{
    switch (operation) {
    case BooleanOperation::Weld:
        return QCoreApplication::translate("EditCommand", "焊接");
    case BooleanOperation::Subtract:
        return QCoreApplication::translate("EditCommand", "修剪");
    case BooleanOperation::Intersect:
        return QCoreApplication::translate("EditCommand", "相交");
    case BooleanOperation::Exclude:
        return QCoreApplication::translate("EditCommand", "排除");
    }
    return QString();
}

} // namespace

QPainterPath offsetItemOutline(const Jk_tu_yuan *item, const OffsetSettings &settings)
{
    const double distance = settings.outward ? settings.distance : -settings.distance;
    const QTransform linear = item->transform();
    if (linear.isIdentity())
        return offsetOutline(item->path, distance, settings.corners);
    if (!linear.isInvertible())
        return QPainterPath();
    // Offset where distances are the scene's, then back into the item.
    const QPainterPath grown = offsetOutline(linear.map(item->path), distance, settings.corners);
    return linear.inverted().map(grown);
}

QUndoCommand *makeOffsetCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items,
                                const OffsetSettings &settings)
{
    if (!(settings.distance > 0))
        return nullptr;
    QList<Jk_tu_yuan *> changed;
    QList<QPainterPath> outlines;
    for (Jk_tu_yuan *item : vectorItemsOf(items)) {
        const QPainterPath outline = offsetItemOutline(item, settings);
        if (outline.isEmpty())
            continue;
        changed.append(item);
        outlines.append(outline);
    }
    if (changed.isEmpty())
        return nullptr;
    const QString text = QCoreApplication::translate("EditCommand", "偏移");
    if (settings.keepOriginal) {
        QList<Jk_tu_yuan *> added;
        for (int i = 0; i < changed.size(); ++i) {
            Jk_tu_yuan *copy = cloneItem(changed[i]);
            copy->path = outlines[i];
            copy->wen_zi.clear();
            copy->zi_ti.clear();
            copy->setSelected(true);
            added.append(copy);
            changed[i]->setSelected(false);
        }
        return makeReplaceItemsCommand(scene, {}, added, text);
    }
    // Text items lose their text: the outline is no longer what it would give.
    return new GeometryCommand(
        changed,
        [outlines](const QList<Jk_tu_yuan *> &targets) {
            for (int i = 0; i < targets.size() && i < outlines.size(); ++i) {
                targets[i]->wen_zi.clear();
                targets[i]->zi_ti.clear();
                targets[i]->set_path(outlines[i]);
            }
        },
        text);
}

Jk_tu_yuan *booleanItem(const QList<Jk_tu_yuan *> &items, BooleanOperation operation)
{
    const QList<Jk_tu_yuan *> parts = vectorItemsOf(items);
    if (parts.isEmpty() || (parts.size() < 2 && operation != BooleanOperation::Weld))
        return nullptr;
    const Jk_tu_yuan *first = parts.first();
    const JoinedFrame frame = joinedFrame(parts);
    QList<QPainterPath> operands;
    for (const Jk_tu_yuan *item : parts)
        operands.append(outlineInFrame(item, frame));
    const QPainterPath result = combineOutlines(operation, operands);
    if (result.isEmpty())
        return nullptr;
    auto *item = new Jk_tu_yuan(result, 1);
    item->layer_id = first->layer_id;
    placeInFrame(item, frame);
    item->setSelected(true);
    return item;
}

QUndoCommand *makeBooleanCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items,
                                 BooleanOperation operation)
{
    Jk_tu_yuan *result = booleanItem(items, operation);
    if (!result)
        return nullptr;
    return makeReplaceItemsCommand(scene, vectorItemsOf(items), {result}, operationText(operation));
}

} // namespace lumitra
