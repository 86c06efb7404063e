#pragma once

#include "tu_ceng.h"

#include <QList>
#include <QMetaType>
#include <QVector>

// Which layer an item belongs to: its layer number and bitmap flag.
struct LayerKey
{
    int number = 0;
    bool bitmap = false;
    bool operator==(const LayerKey &o) const { return number == o.number && bitmap == o.bitmap; }
    bool operator!=(const LayerKey &o) const { return !(*this == o); }
};
Q_DECLARE_METATYPE(LayerKey)

// The program-wide ordered list of layer records. The list owns its records.
// GUI thread only.
class LayerList
{
public:
    static LayerList &instance();

    LayerList() = default;
    ~LayerList();
    LayerList(const LayerList &) = delete;
    LayerList &operator=(const LayerList &) = delete;

    const QList<TuCeng *> &layers() const { return m_layers; }
    int count() const { return m_layers.size(); }
    bool isEmpty() const { return m_layers.isEmpty(); }

    // The record for a layer number and bitmap flag, or nullptr.
    TuCeng *find(int number, bool bitmap) const;
    TuCeng *find(const LayerKey &key) const { return find(key.number, key.bitmap); }
    // The position of a layer in the list, or -1.
    int indexOf(const LayerKey &key) const;

    // Takes ownership and appends.
    void append(TuCeng *layer);
    // Takes ownership and inserts at `index` (clamped to the list).
    void insert(int index, TuCeng *layer);
    // Moves the record at `from` to position `to`; false when either is out of range.
    bool move(int from, int to);
    void clear();
    // Exchanges the records of two lists (a page parks its layers while
    // another page is current).
    void swap(LayerList &other) { m_layers.swap(other.m_layers); }

    // Brings the list in step with the items, given in scene order: walks the
    // items from last to first creating a default record for every new
    // (number, bitmap) pair, then removes the records no item uses. Records in
    // use keep their parameters. Returns true when the list changed.
    bool rebuild(const QVector<LayerKey> &itemsInSceneOrder);

private:
    QList<TuCeng *> m_layers;
};
