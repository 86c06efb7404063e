#pragma once

#include "tu_ceng.h"

#include <QList>
#include <QVector>

// Which layer an item belongs to: its layer number and bitmap flag.
struct LayerKey
{
    int number = 0;
    bool bitmap = false;
    bool operator==(const LayerKey &o) const { return number == o.number && bitmap == o.bitmap; }
};

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

    // Takes ownership and appends.
    void append(TuCeng *layer);
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
