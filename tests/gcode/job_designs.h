// Small designs for whole-job tests: items on layers, owned together.
#pragma once

#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "owned_items.h"

#include <QList>
#include <QPainterPath>

struct JobDesign
{
    LayerList layers;
    lumitra::OwnedItems owned;

    QList<Jk_tu_yuan *> items() const { return owned.items(); }
    // An outline item at (0, 0) on layer `number`.
    Jk_tu_yuan *addPath(const QPainterPath &path, int number)
    {
        Jk_tu_yuan *item = owned.take(new Jk_tu_yuan(path, 1));
        item->layer_id = number;
        return item;
    }
    Jk_tu_yuan *addSegment(const QPointF &a, const QPointF &b, int number)
    {
        QPainterPath path(a);
        path.lineTo(b);
        return addPath(path, number);
    }
    // A bitmap item with its top-left corner at `pos`.
    Jk_tu_yuan *addBitmap(const QImage &image, int number, const QPointF &pos)
    {
        Jk_tu_yuan *item = owned.take(new Jk_tu_yuan(image));
        item->layer_id = number;
        item->setPos(pos);
        return item;
    }
    // Appends a default layer record and returns it for tuning.
    TuCeng *addLayer(int number, bool bitmap)
    {
        auto *layer = new TuCeng(number, bitmap);
        layers.append(layer);
        return layer;
    }
};
