#pragma once

#include <QList>
#include <QRectF>
#include <QString>

class Jk_tu_yuan;
class LayerList;

namespace lumitra {

// An item the job would send beyond the work area.
struct OutsideItem
{
    const Jk_tu_yuan *item = nullptr;
    QString layerName; // the item's layer as the user knows it ("L3")
    QRectF bounds;     // what it burns, scene mm (machine Y is -y)
};

// True when the item's layer is sent to the machine (an item whose layer has
// no record yet counts as sent, as the generator will make it one).
bool isOutputItem(const Jk_tu_yuan &item, const LayerList &layers);
// The area an item burns, scene mm: the bitmap's rectangle, or the outline's
// bounds (not the item's pick margin).
QRectF burntBounds(const Jk_tu_yuan &item);

// The items of the job (those on layers switched to output) whose burnt area
// reaches beyond `workArea` (scene mm: x 0..width, y -height..0), in the
// order given. A hair's breadth over the edge (rounding) does not count.
QList<OutsideItem> itemsOutsideWorkArea(const QList<Jk_tu_yuan *> &items, const LayerList &layers,
                                        const QRectF &workArea);

// The work area of the program state, in scene mm.
QRectF currentWorkArea();

} // namespace lumitra
