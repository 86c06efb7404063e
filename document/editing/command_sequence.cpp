#include "command_sequence.h"

#include "design_commands.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"

namespace lumitra {

CommandSequence::CommandSequence(const QString &text) : QUndoCommand(text) {}

void CommandSequence::append(QUndoCommand *command)
{
    if (command)
        m_parts.emplace_back(command);
}

void CommandSequence::redo()
{
    for (const auto &part : m_parts)
        part->redo();
}

void CommandSequence::undo()
{
    for (auto it = m_parts.rbegin(); it != m_parts.rend(); ++it)
        (*it)->undo();
}

QUndoCommand *makeReplaceItemsCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &removed,
                                      const QList<Jk_tu_yuan *> &added, const QString &text)
{
    if (removed.isEmpty() && added.isEmpty())
        return nullptr;
    auto *step = new CommandSequence(text);
    if (!removed.isEmpty())
        step->append(new DeleteItemsCommand(scene, removed));
    if (!added.isEmpty())
        step->append(new AddItemsCommand(scene, added));
    return step;
}

} // namespace lumitra
