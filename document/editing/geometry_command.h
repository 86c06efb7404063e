// Undoable geometry edits: move, nudge, scale, mirror, rotate, fit to a
// rectangle, outline replacement. Each command remembers every item's geometry
// before and after, so undo and redo always give back exactly the same state.
// Every redo and undo sets the program-wide unsaved flag. They do not raise the
// scene's designChanged: items keep their layers, and what listens to it
// rebuilds the layer list and repaints every item. Follow the undo stack's
// indexChanged to hear of them. GUI thread only.
#pragma once

#include "item_geometry.h"

#include <QPointer>
#include <QUndoCommand>
#include <QVector>
#include <functional>

class Jk_tu_yuan;

namespace lumitra {

class GeometryCommand : public QUndoCommand
{
public:
    using Operation = std::function<void(const QList<Jk_tu_yuan *> &)>;

    // The edit is `operation`, run on the items at the first redo; the state
    // before it is taken right then, so the command also works as a child of a
    // composite command whose earlier children moved the same items.
    GeometryCommand(const QList<Jk_tu_yuan *> &items, Operation operation, const QString &text,
                    QUndoCommand *parent = nullptr);

    // An edit the user already made live (dragging the selection frame):
    // `before` is the state at the start, the items' current state is the
    // result. The first redo changes nothing.
    GeometryCommand(const QList<Jk_tu_yuan *> &items, const QVector<ItemGeometry> &before,
                    const QString &text, QUndoCommand *parent = nullptr);

    // Commands made with a non-zero merge id fold into the previous command
    // with the same id and the same items (a held arrow key is one step).
    void setMergeId(int id) { m_mergeId = id; }
    int id() const override { return m_mergeId; }
    bool mergeWith(const QUndoCommand *other) override;

    void redo() override;
    void undo() override;

    QList<Jk_tu_yuan *> items() const;

private:
    void apply(const QVector<ItemGeometry> &state);
    void finished();

    QVector<QPointer<Jk_tu_yuan>> m_items;
    Operation m_operation;
    QVector<ItemGeometry> m_before;
    QVector<ItemGeometry> m_after;
    bool m_hasAfter = false;
    int m_mergeId = -1;
};

// Merge id of keyboard nudges.
constexpr int kNudgeMergeId = 0x4e75;

// The scene offset of an arrow-key nudge: 1 mm, 10 mm with Shift. Up on the
// screen is negative scene y. A null point for any other key.
QPointF nudgeOffset(int key, bool shift);

QUndoCommand *makeMoveCommand(const QList<Jk_tu_yuan *> &items, const QPointF &delta);
// A move that merges with the nudges right before it.
QUndoCommand *makeNudgeCommand(const QList<Jk_tu_yuan *> &items, const QPointF &delta);
QUndoCommand *makeScaleCommand(const QList<Jk_tu_yuan *> &items, double sx, double sy,
                               const QPointF &centre);
// Mirrors about the centre of the set's outline bounds.
QUndoCommand *makeMirrorCommand(const QList<Jk_tu_yuan *> &items, bool horizontal);
// Rotates through Jk_tu_yuan::rotateItems, so jiao_du grows by `angle`.
QUndoCommand *makeRotateCommand(const QList<Jk_tu_yuan *> &items, double angle,
                                const QPointF &centre);
QUndoCommand *makeFitCommand(const QList<Jk_tu_yuan *> &items, const QRectF &target,
                             bool keepRatio);

} // namespace lumitra
