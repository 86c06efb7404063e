#include "jk_chang_jing.h"

#include "design_commands.h"
#include "jk_tu_yuan.h"
#include "program_state.h"
#include "scene_tool.h"
#include "work_area_background.h"

#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QUndoStack>
#include <cmath>

Jk_chang_jing::Jk_chang_jing(QObject *parent) : QGraphicsScene(parent), m_undo(new QUndoStack(this))
{
}

Jk_chang_jing::~Jk_chang_jing()
{
    // Commands own the items they took out of the scene; drop them before the
    // scene deletes the items it still holds.
    delete m_undo;
    m_undo = nullptr;
}

QRectF Jk_chang_jing::workAreaRect()
{
    const lumitra::ProgramState &s = lumitra::programState();
    return QRectF(0, -s.height, s.width, s.height);
}

void Jk_chang_jing::setBackgroundPixmap(const QPixmap &photo)
{
    m_photo = photo;
    invalidate(workAreaRect(), QGraphicsScene::BackgroundLayer);
}

QList<Jk_tu_yuan *> Jk_chang_jing::designItems() const
{
    QList<Jk_tu_yuan *> result;
    for (QGraphicsItem *g : items(Qt::DescendingOrder))
        if (auto *item = dynamic_cast<Jk_tu_yuan *>(g))
            result.append(item);
    return result;
}

QList<Jk_tu_yuan *> Jk_chang_jing::selectedDesignItems() const
{
    QList<Jk_tu_yuan *> result;
    for (Jk_tu_yuan *item : designItems())
        if (item->isSelected())
            result.append(item);
    return result;
}

int Jk_chang_jing::designItemCount() const
{
    int n = 0;
    for (QGraphicsItem *g : items())
        if (dynamic_cast<Jk_tu_yuan *>(g))
            ++n;
    return n;
}

void Jk_chang_jing::addItemsUndoable(const QList<Jk_tu_yuan *> &list)
{
    if (!list.isEmpty())
        m_undo->push(new AddItemsCommand(this, list));
}

void Jk_chang_jing::deleteItemsUndoable(const QList<Jk_tu_yuan *> &list)
{
    if (!list.isEmpty())
        m_undo->push(new DeleteItemsCommand(this, list));
}

void Jk_chang_jing::setTool(SceneTool *tool)
{
    if (tool == m_tool)
        return;
    if (m_tool)
        m_tool->deactivated(this);
    m_tool = tool;
    emit toolChanged(tool ? tool->number() : 0);
}

QPointF Jk_chang_jing::roundToMillimetre(const QPointF &p)
{
    return QPointF(std::floor(p.x() + 0.5), std::floor(p.y() + 0.5));
}

void Jk_chang_jing::repaintItems()
{
    for (QGraphicsItem *g : items())
        if (auto *item = dynamic_cast<Jk_tu_yuan *>(g))
            item->update();
}

void Jk_chang_jing::notifyDesignChanged()
{
    emit designChanged();
}

void Jk_chang_jing::requestTextEdit(Jk_tu_yuan *item)
{
    emit textEditRequested(item);
}

void Jk_chang_jing::drawBackground(QPainter *painter, const QRectF &exposed)
{
    paintWorkArea(painter, exposed, workAreaRect(), m_photo);
}

void Jk_chang_jing::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_tool && m_tool->mousePress(this, event)) {
        event->accept();
        return;
    }
    QGraphicsScene::mousePressEvent(event);
}

void Jk_chang_jing::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_tool && m_tool->mouseMove(this, event)) {
        event->accept();
        return;
    }
    QGraphicsScene::mouseMoveEvent(event);
}

void Jk_chang_jing::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_tool && m_tool->mouseRelease(this, event)) {
        event->accept();
        return;
    }
    QGraphicsScene::mouseReleaseEvent(event);
}

void Jk_chang_jing::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_tool && m_tool->mouseDoubleClick(this, event)) {
        event->accept();
        return;
    }
    QGraphicsScene::mouseDoubleClickEvent(event);
}

void Jk_chang_jing::keyPressEvent(QKeyEvent *event)
{
    if (m_tool && m_tool->keyPress(this, event)) {
        event->accept();
        return;
    }
    QGraphicsScene::keyPressEvent(event);
}
