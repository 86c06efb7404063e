#pragma once

#include "layer_list.h"

#include <QList>
#include <QVector>

class Jk_chang_jing;
class Jk_tu_yuan;

// The layer keys of items, in the order given.
QVector<LayerKey> layerKeysOf(const QList<Jk_tu_yuan *> &items);

// Brings the program-wide layer list in step with the scene's design items
// (walked in the scene's item order, see LayerList::rebuild) and repaints the
// scene. While a job runs (programState().running) the list is left as it is
// and only the repaint happens. Returns true when the list changed.
bool rebuildLayerList(Jk_chang_jing *scene);
