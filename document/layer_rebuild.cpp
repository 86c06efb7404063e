#include "layer_rebuild.h"

#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "program_state.h"

QVector<LayerKey> layerKeysOf(const QList<Jk_tu_yuan *> &items)
{
    QVector<LayerKey> keys;
    keys.reserve(items.size());
    for (const Jk_tu_yuan *item : items)
        keys.append(LayerKey{item->layer_id, item->is_bitmap});
    return keys;
}

bool rebuildLayerList(Jk_chang_jing *scene)
{
    if (!scene)
        return false;
    bool changed = false;
    if (!lumitra::programState().running)
        changed = LayerList::instance().rebuild(layerKeysOf(scene->designItems()));
    scene->repaintItems();
    return changed;
}
