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

int LayerList::indexOf(const LayerKey &key) const
{
    for (int i = 0; i < m_layers.size(); ++i)
        if (m_layers.at(i)->yanse == key.number && m_layers.at(i)->tupian == key.bitmap)
            return i;
    return -1;
}

void LayerList::append(TuCeng *layer)
{
    m_layers.append(layer);
}

void LayerList::insert(int index, TuCeng *layer)
{
    m_layers.insert(qBound(0, index, m_layers.size()), layer);
}

bool LayerList::move(int from, int to)
{
    if (from < 0 || to < 0 || from >= m_layers.size() || to >= m_layers.size())
        return false;
    m_layers.move(from, to);
    return true;
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
