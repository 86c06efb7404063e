#include "geometry_command.h"

#include "jk_tu_yuan.h"
#include "program_state.h"

#include <QCoreApplication>

namespace lumitra {

namespace {

QString commandText(const char *text)
{
    return QCoreApplication::translate("EditCommand", text);
}

} // namespace

GeometryCommand::GeometryCommand(const QList<Jk_tu_yuan *> &items, Operation operation,
                                 const QString &text, QUndoCommand *parent)
    : QUndoCommand(text, parent), m_operation(std::move(operation))
{
    m_items.reserve(items.size());
    for (Jk_tu_yuan *item : items)
        m_items.append(item);
}

GeometryCommand::GeometryCommand(const QList<Jk_tu_yuan *> &items,
                                 const QVector<ItemGeometry> &before, const QString &text,
                                 QUndoCommand *parent)
    : QUndoCommand(text, parent), m_before(before), m_hasAfter(true)
{
    m_items.reserve(items.size());
    m_after.reserve(items.size());
    for (Jk_tu_yuan *item : items) {
        m_items.append(item);
        m_after.append(captureGeometry(item));
    }
    if (m_before.size() != m_after.size())
        m_before = m_after; // a malformed start state: nothing to undo
}

QList<Jk_tu_yuan *> GeometryCommand::items() const
{
    QList<Jk_tu_yuan *> list;
    list.reserve(m_items.size());
    for (const QPointer<Jk_tu_yuan> &item : m_items) {
        if (item)
            list.append(item.data());
    }
    return list;
}

void GeometryCommand::apply(const QVector<ItemGeometry> &state)
{
    for (int i = 0; i < m_items.size() && i < state.size(); ++i) {
        if (m_items.at(i))
            applyGeometry(m_items.at(i).data(), state.at(i));
    }
}

void GeometryCommand::redo()
{
    if (m_hasAfter) {
        apply(m_after);
    } else {
        const QList<Jk_tu_yuan *> list = items();
        m_before.clear();
        m_before.reserve(m_items.size());
        for (const QPointer<Jk_tu_yuan> &item : m_items)
            m_before.append(item ? captureGeometry(item.data()) : ItemGeometry());
        if (m_operation)
            m_operation(list);
        m_after.clear();
        m_after.reserve(m_items.size());
        for (const QPointer<Jk_tu_yuan> &item : m_items)
            m_after.append(item ? captureGeometry(item.data()) : ItemGeometry());
        m_hasAfter = true;
    }
    QUndoCommand::redo();
    finished();
}

void GeometryCommand::undo()
{
    QUndoCommand::undo();
    apply(m_before);
    finished();
}

void GeometryCommand::finished()
{
    setUnsaved(true);
}

bool GeometryCommand::mergeWith(const QUndoCommand *other)
{
    const auto *o = dynamic_cast<const GeometryCommand *>(other);
    if (!o || m_mergeId < 0 || o->m_mergeId != m_mergeId || o->m_items != m_items || !o->m_hasAfter)
        return false;
    m_after = o->m_after;
    return true;
}

QPointF nudgeOffset(int key, bool shift)
{
    const double step = shift ? 10.0 : 1.0;
    switch (key) {
    case Qt::Key_Left:
        return QPointF(-step, 0);
    case Qt::Key_Right:
        return QPointF(step, 0);
    case Qt::Key_Up:
        return QPointF(0, -step);
    case Qt::Key_Down:
        return QPointF(0, step);
    default:
        return QPointF();
    }
}

QUndoCommand *makeMoveCommand(const QList<Jk_tu_yuan *> &items, const QPointF &delta)
{
    return new GeometryCommand(
        items, [delta](const QList<Jk_tu_yuan *> &list) { translateItems(list, delta); },
        commandText("移动"));
}

QUndoCommand *makeNudgeCommand(const QList<Jk_tu_yuan *> &items, const QPointF &delta)
{
    auto *command = static_cast<GeometryCommand *>(makeMoveCommand(items, delta));
    command->setMergeId(kNudgeMergeId);
    return command;
}

QUndoCommand *makeScaleCommand(const QList<Jk_tu_yuan *> &items, double sx, double sy,
                               const QPointF &centre)
{
    return new GeometryCommand(
        items,
        [sx, sy, centre](const QList<Jk_tu_yuan *> &list) { scaleItems(list, sx, sy, centre); },
        commandText("缩放"));
}

QUndoCommand *makeMirrorCommand(const QList<Jk_tu_yuan *> &items, bool horizontal)
{
    return new GeometryCommand(
        items,
        [horizontal](const QList<Jk_tu_yuan *> &list) {
            mirrorItems(list, horizontal, outlineBounds(list).center());
        },
        horizontal ? commandText("水平镜像") : commandText("垂直镜像"));
}

QUndoCommand *makeRotateCommand(const QList<Jk_tu_yuan *> &items, double angle,
                                const QPointF &centre)
{
    return new GeometryCommand(
        items,
        [angle, centre](const QList<Jk_tu_yuan *> &list) {
            Jk_tu_yuan::rotateItems(list, angle, centre);
        },
        commandText("旋转"));
}

QUndoCommand *makeFitCommand(const QList<Jk_tu_yuan *> &items, const QRectF &target, bool keepRatio)
{
    return new GeometryCommand(
        items,
        [target, keepRatio](const QList<Jk_tu_yuan *> &list) {
            fitItemsTo(list, target, keepRatio);
        },
        commandText("调整大小"));
}

} // namespace lumitra
