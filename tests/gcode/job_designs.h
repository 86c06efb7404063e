// Small designs for whole-job tests: items on layers, owned together.
#pragma once

#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "owned_items.h"

#include <QList>
#include <QString>

struct JobDesign
{
    LayerList layers;
    lumitra::OwnedItems owned;

    QList<Jk_tu_yuan *> items() const { return owned.items(); }
    // Adds a straight line from a to b on layer `number`.
    Jk_tu_yuan *addSegment(const QPointF &a, const QPointF &b, int number);
    // Adds an outline item at (0, 0) on layer `number`.
    Jk_tu_yuan *addPath(const QPainterPath &path, int number);
    // Adds a bitmap item on layer `number`, its top-left corner at `pos`.
    Jk_tu_yuan *addBitmap(const QImage &image, int number, const QPointF &pos);
    // Appends a default layer record and returns it for tuning.
    TuCeng *addLayer(int number, bool bitmap);
};

// The designs kept as golden jobs, by name: "lines", "fills", "bitmaps",
// "rotary". Empty when the name is unknown.
void buildDesign(const QString &name, JobDesign &design);
QStringList designNames();
