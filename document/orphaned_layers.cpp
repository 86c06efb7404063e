#include "orphaned_layers.h"

#include "jk_tu_yuan.h"
#include "layer_list.h"

#include <QSet>

namespace {
QSet<QPair<int, bool>> keysOf(const QList<Jk_tu_yuan *> &items)
{
    QSet<QPair<int, bool>> keys;
    for (const Jk_tu_yuan *item : items)
        keys.insert(qMakePair(int(item->layer_id), bool(item->is_bitmap)));
    return keys;
}
} // namespace

void OrphanedLayers::capture(const QList<Jk_tu_yuan *> &items)
{
    m_entries.clear();
    const QSet<QPair<int, bool>> used = keysOf(items);
    const QList<TuCeng *> &layers = LayerList::instance().layers();
    for (int i = 0; i < layers.size(); ++i) {
        const TuCeng *l = layers.at(i);
        if (!used.contains(qMakePair(int(l->yanse), bool(l->tupian))))
            m_entries.append(Entry{*l, i});
    }
}

void OrphanedLayers::reinstate(const QList<Jk_tu_yuan *> &items)
{
    if (m_entries.isEmpty())
        return;
    const QSet<QPair<int, bool>> used = keysOf(items);
    LayerList &list = LayerList::instance();
    // Ascending positions: each record lands where it was, since the ones
    // before it are back already.
    for (const Entry &e : qAsConst(m_entries)) {
        if (!used.contains(qMakePair(int(e.record.yanse), bool(e.record.tupian))))
            continue;
        const LayerKey key{e.record.yanse, e.record.tupian};
        const int at = list.indexOf(key);
        if (at < 0) {
            list.insert(e.index, new TuCeng(e.record));
            continue;
        }
        *list.layers().at(at) = e.record;
        list.move(at, qMin(e.index, list.count() - 1));
    }
    m_entries.clear();
}
