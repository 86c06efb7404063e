#pragma once

#include "orphaned_layers.h"

#include <QList>
#include <QPointer>
#include <QUndoCommand>
#include <QVector>

class Jk_chang_jing;
class Jk_tu_yuan;

// Base of every undoable edit of a design scene. Doing or undoing a command
// sets the program-wide unsaved flag and tells the scene the design changed
// (which rebuilds the layer list). A layer record that loses its last item
// through the command (or through its undo) is kept by the command and comes
// back unchanged, at its old place in the list, when the items return. Items
// are held through QPointer so that a command never touches an item deleted
// elsewhere.
class DesignCommand : public QUndoCommand
{
public:
    DesignCommand(Jk_chang_jing *scene, const QString &text);

    void redo() final;
    void undo() final;

protected:
    virtual void apply() = 0;
    virtual void revert() = 0;

    Jk_chang_jing *scene() const { return m_scene; }

private:
    void changed();
    QPointer<Jk_chang_jing> m_scene;
    OrphanedLayers m_orphanedByRedo;
    OrphanedLayers m_orphanedByUndo;
};

// Adds items to the scene (every creator and importer goes through it). Before
// the first do the scene's selection is cleared, so afterwards the new items
// that were made selected are the selection. While undone the command owns the
// items and deletes them with itself.
class AddItemsCommand : public DesignCommand
{
public:
    AddItemsCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items);
    ~AddItemsCommand() override;

protected:
    void apply() override;
    void revert() override;

private:
    QList<QPointer<Jk_tu_yuan>> m_items;
    bool m_firstApply = true;
};

// Removes items from the scene and keeps them for undo; undo puts each back at
// its old place in the stacking order. `text` names the step in the undo
// history (default "删除").
class DeleteItemsCommand : public DesignCommand
{
public:
    DeleteItemsCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items,
                       const QString &text = QString());
    ~DeleteItemsCommand() override;

protected:
    void apply() override;
    void revert() override;

private:
    struct Entry
    {
        QPointer<Jk_tu_yuan> item;
        QPointer<Jk_tu_yuan> above; // nearest remaining item stacked above it
    };
    QVector<Entry> m_entries; // bottom first
};

// Moves items to another layer number (the layer palette's edit).
class ChangeLayerCommand : public DesignCommand
{
public:
    ChangeLayerCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items, int layer);

protected:
    void apply() override;
    void revert() override;

private:
    QList<QPointer<Jk_tu_yuan>> m_items;
    QVector<int> m_oldLayers;
    int m_layer;
};
