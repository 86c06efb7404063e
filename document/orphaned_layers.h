#pragma once

#include "tu_ceng.h"

#include <QList>
#include <QVector>

class Jk_tu_yuan;

// The layer records that a change of the items leaves without an item. The
// next rebuild of the layer list destroys them; keeping a copy here lets the
// reverse change bring each one back with every parameter and at its old
// place in the list instead of as a fresh default record.
// Works on the program-wide layer list, which holds the current page's layers.
class OrphanedLayers
{
public:
    // Remembers every record of the list that none of `items` uses, with its
    // position. Call after the items changed and before the list is rebuilt.
    void capture(const QList<Jk_tu_yuan *> &items);
    // Puts the remembered records that `items` use again back into the list at
    // their old positions (a record already there gets the saved parameters and
    // is moved), then forgets them all. Call after the items changed back.
    void reinstate(const QList<Jk_tu_yuan *> &items);
    bool isEmpty() const { return m_entries.isEmpty(); }

private:
    struct Entry
    {
        TuCeng record;
        int index = 0;
    };
    QVector<Entry> m_entries; // ascending index
};
