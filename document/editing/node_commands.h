// Undoable node edits of one item's outline. The command keeps the outline
// before and after the edit as they are, so undo gives back exactly the
// previous path (every element, every coordinate) and redo exactly the edited
// one. Every redo and undo sets the program-wide unsaved flag. GUI thread only.
#pragma once

#include "node_path.h"

#include <QPainterPath>
#include <QPointer>
#include <QUndoCommand>

class Jk_tu_yuan;

namespace lumitra {

enum class NodeEdit { MoveNode, MoveControl, AddNode, DeleteNode, Straight, Curved, Break, Join };

// The undo text of an edit ("移动节点", ...).
QString nodeEditText(NodeEdit edit);

class OutlineEditCommand : public QUndoCommand
{
public:
    // `before` is the outline to come back to; the first redo puts `after` on
    // the item (nothing changes when a live drag already put it there).
    OutlineEditCommand(Jk_tu_yuan *item, const QPainterPath &before, const QPainterPath &after,
                       const QString &text, QUndoCommand *parent = nullptr);

    void redo() override;
    void undo() override;

    Jk_tu_yuan *item() const { return m_item.data(); }
    const QPainterPath &before() const { return m_before; }
    const QPainterPath &after() const { return m_after; }

private:
    void apply(const QPainterPath &path);

    QPointer<Jk_tu_yuan> m_item;
    QPainterPath m_before;
    QPainterPath m_after;
};

// The edit from the item's current outline to `edited`; nullptr when it would
// change nothing.
QUndoCommand *makeNodeEditCommand(Jk_tu_yuan *item, const NodePath &edited, NodeEdit edit);
// The same from an outline the item had before a live drag to its current one.
QUndoCommand *makeNodeDragCommand(Jk_tu_yuan *item, const QPainterPath &before, NodeEdit edit);

} // namespace lumitra
