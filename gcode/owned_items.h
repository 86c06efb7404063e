// Design items that live outside a scene, owned together: a design read for
// the headless export, or built by tests and benchmarks.
#pragma once

#include <QList>
#include <memory>
#include <vector>

class Jk_tu_yuan;

namespace lumitra {

class OwnedItems
{
public:
    OwnedItems();
    ~OwnedItems();
    OwnedItems(const OwnedItems &) = delete;
    OwnedItems &operator=(const OwnedItems &) = delete;

    // Takes ownership; returns the item.
    Jk_tu_yuan *take(Jk_tu_yuan *item);
    void take(const QList<Jk_tu_yuan *> &items);

    // In the order taken.
    QList<Jk_tu_yuan *> items() const;
    bool isEmpty() const { return m_items.empty(); }

private:
    std::vector<std::unique_ptr<Jk_tu_yuan>> m_items;
};

} // namespace lumitra
