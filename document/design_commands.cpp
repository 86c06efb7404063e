#include "design_commands.h"

#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "program_state.h"

#include <QCoreApplication>
#include <QSet>
#include <algorithm>

namespace {
// Deletes the items that no scene owns.
void deleteOrphans(const QList<QPointer<Jk_tu_yuan>> &items)
{
    for (const QPointer<Jk_tu_yuan> &item : items)
        if (item && !item->scene())
            delete item.data();
}
} // namespace

DesignCommand::DesignCommand(Jk_chang_jing *scene, const QString &text)
    : QUndoCommand(text), m_scene(scene)
{
}

void DesignCommand::redo()
{
    if (m_scene) {
        apply();
        const QList<Jk_tu_yuan *> items = m_scene->designItems();
        m_orphanedByUndo.reinstate(items);
        m_orphanedByRedo.capture(items);
    }
    changed();
}

void DesignCommand::undo()
{
    if (m_scene) {
        revert();
        const QList<Jk_tu_yuan *> items = m_scene->designItems();
        m_orphanedByRedo.reinstate(items);
        m_orphanedByUndo.capture(items);
    }
    changed();
}

void DesignCommand::changed()
{
    lumitra::setUnsaved(true);
    if (m_scene)
        m_scene->notifyDesignChanged();
}

AddItemsCommand::AddItemsCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items)
    : DesignCommand(scene, QCoreApplication::translate("DesignCommand", "添加"))
{
    for (Jk_tu_yuan *item : items)
        m_items.append(item);
}

AddItemsCommand::~AddItemsCommand()
{
    deleteOrphans(m_items);
}

void AddItemsCommand::apply()
{
    if (m_firstApply) {
        scene()->clearSelection();
        m_firstApply = false;
    }
    for (const QPointer<Jk_tu_yuan> &item : m_items)
        if (item && !item->scene())
            scene()->addItem(item);
}

void AddItemsCommand::revert()
{
    // Topmost first: the scene drops its last item without searching.
    for (auto it = m_items.crbegin(); it != m_items.crend(); ++it)
        if (*it && (*it)->scene() == scene())
            scene()->removeItem(*it);
}

DeleteItemsCommand::DeleteItemsCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items,
                                       const QString &text)
    : DesignCommand(scene,
                    text.isEmpty() ? QCoreApplication::translate("DesignCommand", "删除") : text)
{
    const QSet<Jk_tu_yuan *> doomed(items.begin(), items.end());
    // Walk the stacking order from the top, remembering the last survivor seen.
    QPointer<Jk_tu_yuan> above;
    for (Jk_tu_yuan *item : scene->designItems()) {
        if (doomed.contains(item))
            m_entries.append(Entry{item, above});
        else
            above = item;
    }
    std::reverse(m_entries.begin(), m_entries.end()); // bottom first
}

DeleteItemsCommand::~DeleteItemsCommand()
{
    for (const Entry &e : m_entries)
        if (e.item && !e.item->scene())
            delete e.item.data();
}

void DeleteItemsCommand::apply()
{
    // Topmost first: the scene drops its last item without searching.
    for (auto it = m_entries.crbegin(); it != m_entries.crend(); ++it)
        if (it->item && it->item->scene() == scene())
            scene()->removeItem(it->item);
}

void DeleteItemsCommand::revert()
{
    for (const Entry &e : m_entries)
        if (e.item && !e.item->scene())
            scene()->addItem(e.item);
    for (const Entry &e : m_entries)
        if (e.item && e.above && e.above->scene() == scene())
            e.item->stackBefore(e.above);
}

ChangeLayerCommand::ChangeLayerCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items,
                                       int layer)
    : DesignCommand(scene, QCoreApplication::translate("DesignCommand", "修改图层")), m_layer(layer)
{
    for (Jk_tu_yuan *item : items) {
        m_items.append(item);
        m_oldLayers.append(item->layer_id);
    }
}

void ChangeLayerCommand::apply()
{
    for (const QPointer<Jk_tu_yuan> &item : m_items) {
        if (item) {
            item->layer_id = m_layer;
            item->update();
        }
    }
}

void ChangeLayerCommand::revert()
{
    for (int i = 0; i < m_items.size(); ++i) {
        if (m_items.at(i)) {
            m_items.at(i)->layer_id = m_oldLayers.at(i);
            m_items.at(i)->update();
        }
    }
}
