// Offset and boolean operations on design items, as undoable steps. The
// results are ordinary outline items on the layer of the item they come from,
// so they stay editable; undo gives back the items exactly as they were.
// Bitmap items take part in neither. GUI thread only.
#pragma once

#include "path_booleans.h"
#include "path_offset.h"

#include <QList>
#include <QPainterPath>

class Jk_chang_jing;
class Jk_tu_yuan;
class QUndoCommand;

namespace lumitra {

struct OffsetSettings
{
    double distance = 1.0; // mm in the scene, positive
    bool outward = true;
    CornerStyle corners = CornerStyle::Round;
    bool keepOriginal = false; // add the offset outlines as new items
};

// The outline of `item` offset by the settings, in the item's own coordinates:
// the distance is measured in the scene, whatever the item's scale. An empty
// path when nothing is left (an outline shrunk away).
QPainterPath offsetItemOutline(const Jk_tu_yuan *item, const OffsetSettings &settings);

// Offsets every vector item of `items`: in place, or as new selected items
// next to the originals when keepOriginal is set (then the originals are
// deselected). Items that would vanish are left alone. nullptr when nothing
// changes.
QUndoCommand *makeOffsetCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items,
                                const OffsetSettings &settings);

// One new item (not in a scene, selected) holding the result of `operation`
// on the vector items of `items`, taken in the given order (for subtract the
// first is the one cut from). The frame is kept when all share one item
// transform, otherwise the result is in scene coordinates at its top-left.
// Layer from the first vector item. nullptr when there are too few vector
// items (one for a weld, two otherwise) or nothing is left.
Jk_tu_yuan *booleanItem(const QList<Jk_tu_yuan *> &items, BooleanOperation operation);

// The operation as one undoable step: the vector items are replaced by the
// result. nullptr when there is nothing to do.
QUndoCommand *makeBooleanCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items,
                                 BooleanOperation operation);

} // namespace lumitra
