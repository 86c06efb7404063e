#pragma once

#include <QList>
#include <QRectF>

class Jk_tu_yuan;
class LayerList;

// The canvas rectangle (scene units, mm) that a job would cover: the union of
// the items whose layer is switched to output. Outlines count by their path,
// bitmaps by their whole picture. An item whose layer has no record yet counts
// (new layers output by default). Empty when nothing would be output.
QRectF outputBounds(const QList<Jk_tu_yuan *> &items, const LayerList &layers);
