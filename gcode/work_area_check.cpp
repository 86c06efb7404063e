#include "work_area_check.h"

#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "program_state.h"

namespace lumitra {

namespace {
constexpr double kEdgeTolerance = 0.01; // mm
} // namespace

bool isOutputItem(const Jk_tu_yuan &item, const LayerList &layers)
{
    const TuCeng *layer = layers.find(item.layer_id, item.is_bitmap);
    return !layer || layer->shuchu;
}

QRectF burntBounds(const Jk_tu_yuan &item)
{
    return item.is_bitmap ? item.sceneBoundingRect() : item.scenePath().boundingRect();
}

QList<OutsideItem> itemsOutsideWorkArea(const QList<Jk_tu_yuan *> &items, const LayerList &layers,
                                        const QRectF &workArea)
{
    const QRectF allowed =
        workArea.adjusted(-kEdgeTolerance, -kEdgeTolerance, kEdgeTolerance, kEdgeTolerance);
    QList<OutsideItem> outside;
    for (const Jk_tu_yuan *item : items) {
        if (!isOutputItem(*item, layers))
            continue;
        const QRectF bounds = burntBounds(*item);
        // Compared edge by edge: a straight line has an empty rectangle,
        // which QRectF::contains never reports as inside.
        if (bounds.left() >= allowed.left() && bounds.right() <= allowed.right()
            && bounds.top() >= allowed.top() && bounds.bottom() <= allowed.bottom())
            continue;
        const TuCeng *layer = layers.find(item->layer_id, item->is_bitmap);
        const QString name = layer ? layer->mingcheng : QStringLiteral("L%1").arg(item->layer_id);
        outside.append(OutsideItem{item, name, bounds});
    }
    return outside;
}

QRectF currentWorkArea()
{
    const ProgramState &s = programState();
    return QRectF(0, -s.height, s.width, s.height);
}

} // namespace lumitra
