#include "node_commands.h"

#include "jk_tu_yuan.h"
#include "program_state.h"

#include <QCoreApplication>

namespace lumitra {

QString nodeEditText(NodeEdit edit)
{
    const char *text = QT_TRANSLATE_NOOP("EditCommand", "移动节点");
    switch (edit) {
    case NodeEdit::MoveNode:
        text = QT_TRANSLATE_NOOP("EditCommand", "移动节点");
        break;
    case NodeEdit::MoveControl:
        text = QT_TRANSLATE_NOOP("EditCommand", "移动控制点");
        break;
    case NodeEdit::AddNode:
        text = QT_TRANSLATE_NOOP("EditCommand", "添加节点");
        break;
    case NodeEdit::DeleteNode:
        text = QT_TRANSLATE_NOOP("EditCommand", "删除节点");
        break;
    case NodeEdit::Straight:
        text = QT_TRANSLATE_NOOP("EditCommand", "转为直线");
        break;
    case NodeEdit::Curved:
        text = QT_TRANSLATE_NOOP("EditCommand", "转为曲线");
        break;
    case NodeEdit::Break:
        text = QT_TRANSLATE_NOOP("EditCommand", "断开节点");
        break;
    case NodeEdit::Join:
        text = QT_TRANSLATE_NOOP("EditCommand", "连接节点");
        break;
    }
    return QCoreApplication::translate("EditCommand", text);
}

OutlineEditCommand::OutlineEditCommand(Jk_tu_yuan *item, const QPainterPath &before,
                                       const QPainterPath &after, const QString &text,
                                       QUndoCommand *parent)
    : QUndoCommand(text, parent), m_item(item), m_before(before), m_after(after)
{
}

void OutlineEditCommand::apply(const QPainterPath &path)
{
    if (m_item && !sameElements(m_item->path, path))
        m_item->set_path(path);
    setUnsaved(true);
}

void OutlineEditCommand::redo()
{
    apply(m_after);
}

void OutlineEditCommand::undo()
{
    apply(m_before);
}

QUndoCommand *makeNodeEditCommand(Jk_tu_yuan *item, const NodePath &edited, NodeEdit edit)
{
    if (!item)
        return nullptr;
    const QPainterPath after = edited.path();
    if (sameElements(item->path, after))
        return nullptr;
    return new OutlineEditCommand(item, item->path, after, nodeEditText(edit));
}

QUndoCommand *makeNodeDragCommand(Jk_tu_yuan *item, const QPainterPath &before, NodeEdit edit)
{
    if (!item || sameElements(item->path, before))
        return nullptr;
    return new OutlineEditCommand(item, before, item->path, nodeEditText(edit));
}

} // namespace lumitra
