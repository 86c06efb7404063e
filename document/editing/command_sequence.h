// One undoable step made of several commands that were built apart: redo runs
// them in order, undo backwards. Used to put a removal and an addition (for
// combine, break apart) into a single step. GUI thread only.
#pragma once

#include <QList>
#include <QUndoCommand>
#include <memory>
#include <vector>

class Jk_chang_jing;
class Jk_tu_yuan;

namespace lumitra {

class CommandSequence : public QUndoCommand
{
public:
    explicit CommandSequence(const QString &text);
    // Takes ownership; a null command is ignored.
    void append(QUndoCommand *command);
    bool isEmpty() const { return m_parts.empty(); }

    void redo() override;
    void undo() override;

private:
    std::vector<std::unique_ptr<QUndoCommand>> m_parts;
};

// Removes `removed` from the scene and adds `added` (which the step then owns)
// in one step. The added items come in with the selected state they have now.
// nullptr when both lists are empty.
QUndoCommand *makeReplaceItemsCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &removed,
                                      const QList<Jk_tu_yuan *> &added, const QString &text);

} // namespace lumitra
