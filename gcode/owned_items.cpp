#include "owned_items.h"

#include "jk_tu_yuan.h"

namespace lumitra {

OwnedItems::OwnedItems() = default;
OwnedItems::~OwnedItems() = default;

Jk_tu_yuan *OwnedItems::take(Jk_tu_yuan *item)
{
    m_items.emplace_back(item);
    return item;
}

void OwnedItems::take(const QList<Jk_tu_yuan *> &items)
{
    for (Jk_tu_yuan *item : items)
        take(item);
}

QList<Jk_tu_yuan *> OwnedItems::items() const
{
    QList<Jk_tu_yuan *> out;
    out.reserve(int(m_items.size()));
    for (const auto &item : m_items)
        out.append(item.get());
    return out;
}

} // namespace lumitra
