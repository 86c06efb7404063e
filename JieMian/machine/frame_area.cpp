#include "frame_area.h"

#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "work_area_check.h"

QRectF outputBounds(const QList<Jk_tu_yuan *> &items, const LayerList &layers)
{
    QRectF bounds;
    for (const Jk_tu_yuan *item : items) {
        if (!lumitra::isOutputItem(*item, layers))
            continue;
        const QRectF r = lumitra::burntBounds(*item);
        bounds = bounds.isNull() ? r : bounds.united(r);
    }
    return bounds;
}
