#include "layer_list.h"

LayerList &LayerList::instance()
{
    static LayerList list;
    return list;
}

LayerList::~LayerList()
{
    clear();
}

TuCeng *LayerList::find(int number, bool bitmap) const
{
    for (TuCeng *l : m_layers)
        if (l->yanse == number && l->tupian == bitmap)
            return l;
    return nullptr;
}

void LayerList::append(TuCeng *layer)
{
    m_layers.append(layer);
}

void LayerList::clear()
{
    qDeleteAll(m_layers);
    m_layers.clear();
}

bool LayerList::rebuild(const QVector<LayerKey> &items)
{
    bool changed = false;
    for (int i = items.size() - 1; i >= 0; --i) {
        const LayerKey &k = items.at(i);
        if (!find(k.number, k.bitmap)) {
            m_layers.append(new TuCeng(k.number, k.bitmap));
            changed = true;
        }
    }
    for (TuCeng *l : m_layers)
        l->shanchu = !items.contains(LayerKey{l->yanse, l->tupian});
    for (int i = m_layers.size() - 1; i >= 0; --i) {
        if (m_layers.at(i)->shanchu) {
            delete m_layers.takeAt(i);
            changed = true;
        }
    }
    return changed;
}
