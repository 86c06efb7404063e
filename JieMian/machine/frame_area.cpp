#include "frame_area.h"

#include "jk_tu_yuan.h"
#include "layer_list.h"

QRectF outputBounds(const QList<Jk_tu_yuan *> &items, const LayerList &layers)
{
    QRectF bounds;
    for (const Jk_tu_yuan *item : items) {
        const TuCeng *layer = layers.find(item->layer_id, item->is_bitmap);
        if (layer && !layer->shuchu)
            continue;
        const QRectF r =
            item->is_bitmap ? item->sceneBoundingRect() : item->scenePath().boundingRect();
        bounds = bounds.isNull() ? r : bounds.united(r);
    }
    return bounds;
}
