#include "selection_tool.h"

#include "geometry_command.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "selection_frame.h"

#include <QCoreApplication>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QLineF>
#include <QTimer>
#include <QUndoStack>
#include <algorithm>
#include <cmath>

namespace lumitra {

namespace {

// A press turns into a drag once the pointer has travelled this far.
constexpr double kDragStartPixels = 3.0;
// Half the side of the square searched for an item under a click, mm.
constexpr double kPickReach = 2.5;

Qt::CursorShape cursorFor(FrameHandle h)
{
    switch (h) {
    case FrameHandle::TopLeft:
    case FrameHandle::BottomRight:
        return Qt::SizeFDiagCursor;
    case FrameHandle::TopRight:
    case FrameHandle::BottomLeft:
        return Qt::SizeBDiagCursor;
    case FrameHandle::Top:
    case FrameHandle::Bottom:
        return Qt::SizeVerCursor;
    case FrameHandle::Left:
    case FrameHandle::Right:
        return Qt::SizeHorCursor;
    case FrameHandle::Rotate:
        return Qt::CrossCursor;
    default:
        return Qt::ArrowCursor;
    }
}

QGraphicsView *viewOf(const QGraphicsSceneMouseEvent *event)
{
    QWidget *w = event ? event->widget() : nullptr;
    return w ? qobject_cast<QGraphicsView *>(w->parentWidget()) : nullptr;
}

QString commandText(const char *text)
{
    return QCoreApplication::translate("EditCommand", text);
}

} // namespace

double mmPerPixel(const QGraphicsSceneMouseEvent *event)
{
    const QGraphicsView *view = viewOf(event);
    if (!view)
        return 1.0;
    const double scale = std::hypot(view->transform().m11(), view->transform().m12());
    return scale > 0 ? 1.0 / scale : 1.0;
}

Jk_tu_yuan *pickItem(Jk_chang_jing *scene, const QPointF &p)
{
    const QRectF around(p.x() - kPickReach, p.y() - kPickReach, 2 * kPickReach, 2 * kPickReach);
    for (QGraphicsItem *g :
         scene->items(around, Qt::IntersectsItemBoundingRect, Qt::DescendingOrder)) {
        auto *item = dynamic_cast<Jk_tu_yuan *>(g);
        if (!item || item->isOnHiddenLayer())
            continue;
        if (item->is_bitmap ? item->sceneTransform().map(item->path).contains(p) : item->hitTest(p))
            return item;
    }
    return nullptr;
}

SelectionTool::SelectionTool(QObject *parent) : QObject(parent), m_refreshTimer(new QTimer(this))
{
    m_refreshTimer->setSingleShot(true);
    m_refreshTimer->setInterval(0);
    connect(m_refreshTimer, &QTimer::timeout, this, &SelectionTool::refresh);
}

void SelectionTool::scheduleRefresh()
{
    m_refreshTimer->start();
}

SelectionTool::~SelectionTool()
{
    leaveScene();
}

void SelectionTool::activate(Jk_chang_jing *scene)
{
    if (scene == m_scene && scene && scene->tool() == this)
        return;
    leaveScene();
    if (!scene)
        return;
    m_scene = scene;
    scene->setTool(this);
    m_frame = new SelectionFrame;
    scene->addItem(m_frame);
    connect(scene, &QGraphicsScene::selectionChanged, this, &SelectionTool::scheduleRefresh);
    connect(scene, &Jk_chang_jing::designChanged, this, &SelectionTool::scheduleRefresh);
    // Geometry edits (and their undo) show up on the stack only.
    connect(scene->undoStack(), &QUndoStack::indexChanged, this, &SelectionTool::scheduleRefresh);
    // The scene deletes the frame with itself.
    connect(scene, &QObject::destroyed, this, [this] {
        m_frame = nullptr;
        m_drag = Drag::None;
    });
    refresh();
}

void SelectionTool::leaveScene()
{
    if (!m_scene)
        return;
    if (m_scene->tool() == this)
        m_scene->setTool(nullptr); // calls deactivated()
    else
        deactivated(m_scene);
}

void SelectionTool::deactivated(Jk_chang_jing *scene)
{
    if (scene != m_scene)
        return;
    cancelDrag();
    disconnect(scene, nullptr, this, nullptr);
    if (scene->undoStack())
        disconnect(scene->undoStack(), nullptr, this, nullptr);
    if (m_frame) {
        scene->removeItem(m_frame);
        delete m_frame;
        m_frame = nullptr;
    }
    m_scene = nullptr;
}

QList<Jk_tu_yuan *> SelectionTool::selection() const
{
    QList<Jk_tu_yuan *> items;
    if (!m_scene)
        return items;
    for (QGraphicsItem *g : m_scene->selectedItems()) {
        if (auto *item = dynamic_cast<Jk_tu_yuan *>(g))
            items.append(item);
    }
    // A steady order, so that nudges of one selection merge into one step.
    std::sort(items.begin(), items.end());
    return items;
}

void SelectionTool::showFrame(const QRectF &bounds, int count)
{
    if (m_frame)
        m_frame->setFrame(count > 0 ? bounds : QRectF());
    emit selectionBoundsChanged(count > 0 ? bounds : QRectF(), count);
}

void SelectionTool::refresh()
{
    m_refreshTimer->stop();
    if (!m_scene || m_drag == Drag::Move || m_drag == Drag::Scale || m_drag == Drag::Rotate)
        return;
    const QList<Jk_tu_yuan *> items = selection();
    showFrame(outlineBounds(items), items.size());
}

bool SelectionTool::mousePress(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event)
{
    if (scene != m_scene || event->button() != Qt::LeftButton)
        return false;
    if (m_refreshTimer->isActive())
        refresh(); // the frame must be current before its handles are looked up
    const QPointF p = event->scenePos();
    const bool toggle = event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
    const FrameHandle h = m_frame && m_frame->isVisible()
                              ? handleAt(m_frame->frame(), p, mmPerPixel(event))
                              : FrameHandle::None;
    m_clickedItem = nullptr;
    if (h == FrameHandle::Rotate) {
        startDrag(Drag::Rotate, p);
        m_handle = h;
        return true;
    }
    if (h != FrameHandle::None && h != FrameHandle::Inside) {
        startDrag(Drag::Scale, p);
        m_handle = h;
        return true;
    }
    if (Jk_tu_yuan *item = pickItem(scene, p)) {
        if (toggle) {
            item->setSelected(!item->isSelected());
            return true;
        }
        if (!item->isSelected()) {
            scene->clearSelection();
            item->setSelected(true);
        } else {
            m_clickedItem = item;
        }
        startDrag(Drag::Pending, p);
        return true;
    }
    if (h == FrameHandle::Inside && !toggle) {
        startDrag(Drag::Pending, p);
        return true;
    }
    // Empty canvas: the view's rubber band. The scene clears the selection on
    // such a press unless Ctrl is held, so Shift is passed on as Ctrl to keep it.
    if (toggle)
        event->setModifiers(event->modifiers() | Qt::ControlModifier);
    return false;
}

void SelectionTool::startDrag(Drag kind, const QPointF &at)
{
    m_drag = kind;
    m_pressPos = at;
    m_items = selection();
    m_start.clear();
    m_start.reserve(m_items.size());
    for (const Jk_tu_yuan *item : m_items)
        m_start.append(captureGeometry(item));
    m_startFrame = m_frame ? m_frame->frame() : outlineBounds(m_items);
}

bool SelectionTool::mouseMove(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event)
{
    if (scene != m_scene)
        return false;
    if (m_drag == Drag::None) {
        // Over a handle: show what a drag would do, and keep the items' hover
        // cursors out of it.
        const FrameHandle h = m_frame && m_frame->isVisible()
                                  ? handleAt(m_frame->frame(), event->scenePos(), mmPerPixel(event))
                                  : FrameHandle::None;
        QGraphicsView *view = viewOf(event);
        if (h != FrameHandle::None && h != FrameHandle::Inside && view) {
            view->viewport()->setCursor(cursorFor(h));
            return true;
        }
        return false;
    }
    if (m_drag == Drag::Pending) {
        const double travel = QLineF(m_pressPos, event->scenePos()).length();
        if (travel < kDragStartPixels * mmPerPixel(event))
            return true;
        m_drag = Drag::Move;
    }
    dragTo(event->scenePos(), event->modifiers());
    return true;
}

bool SelectionTool::isLive() const
{
    return m_items.size() <= kLiveItems;
}

void SelectionTool::dragTo(const QPointF &at, Qt::KeyboardModifiers modifiers)
{
    m_lastPointer = at;
    m_shiftHeld = modifiers & Qt::ShiftModifier;
    if (isLive()) {
        applyDrag();
        return;
    }
    // A large selection stays put while only the frame follows the pointer.
    QRectF rect = m_startFrame;
    QTransform turn;
    if (m_drag == Drag::Move) {
        rect.translate(m_lastPointer - m_pressPos);
    } else if (m_drag == Drag::Scale) {
        rect = scaleTransform().mapRect(m_startFrame);
    } else if (m_drag == Drag::Rotate) {
        turn = rotateTransform();
    }
    if (m_frame)
        m_frame->setTransform(turn);
    showFrame(rect, m_items.size());
    if (!turn.isIdentity())
        emit selectionBoundsChanged(turn.mapRect(rect), m_items.size());
}

QTransform SelectionTool::scaleTransform() const
{
    const ScaleStep step = scaleForHandle(m_startFrame, m_handle, m_lastPointer, m_shiftHeld);
    return QTransform::fromTranslate(-step.anchor.x(), -step.anchor.y())
           * QTransform::fromScale(step.sx, step.sy)
           * QTransform::fromTranslate(step.anchor.x(), step.anchor.y());
}

double SelectionTool::rotateAngle() const
{
    return rotationAngle(m_startFrame.center(), m_pressPos, m_lastPointer, m_shiftHeld);
}

QTransform SelectionTool::rotateTransform() const
{
    const QPointF c = m_startFrame.center();
    return QTransform::fromTranslate(-c.x(), -c.y()) * QTransform().rotate(rotateAngle())
           * QTransform::fromTranslate(c.x(), c.y());
}

void SelectionTool::applyDrag()
{
    if (m_drag == Drag::Move) {
        const QPointF delta = m_lastPointer - m_pressPos;
        for (int i = 0; i < m_items.size(); ++i)
            m_items[i]->setPos(m_start[i].pos + delta);
        showFrame(m_startFrame.translated(delta), m_items.size());
        return;
    }
    for (int i = 0; i < m_items.size(); ++i)
        applyGeometry(m_items[i], m_start[i]);
    if (m_drag == Drag::Scale) {
        const ScaleStep step = scaleForHandle(m_startFrame, m_handle, m_lastPointer, m_shiftHeld);
        scaleItems(m_items, step.sx, step.sy, step.anchor);
        showFrame(scaleTransform().mapRect(m_startFrame), m_items.size());
    } else if (m_drag == Drag::Rotate) {
        Jk_tu_yuan::rotateItems(m_items, rotateAngle(), m_startFrame.center());
        showFrame(outlineBounds(m_items), m_items.size());
    }
}

bool SelectionTool::mouseRelease(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event)
{
    if (scene != m_scene || m_drag == Drag::None || event->button() != Qt::LeftButton)
        return false;
    if (m_drag == Drag::Pending) {
        m_drag = Drag::None;
        if (m_clickedItem) {
            scene->clearSelection();
            m_clickedItem->setSelected(true);
            m_clickedItem = nullptr;
        }
        return true;
    }
    dragTo(event->scenePos(), event->modifiers());
    finishDrag();
    return true;
}

void SelectionTool::finishDrag()
{
    if (!isLive()) {
        if (m_frame)
            m_frame->setTransform(QTransform());
        applyDrag();
    }
    const Drag kind = m_drag;
    m_drag = Drag::None;
    m_clickedItem = nullptr;
    bool changed = false;
    for (int i = 0; i < m_items.size() && !changed; ++i) {
        changed =
            m_items[i]->pos() != m_start[i].pos || m_items[i]->transform() != m_start[i].transform;
    }
    if (changed && m_scene) {
        const char *text = kind == Drag::Move ? "移动" : kind == Drag::Scale ? "缩放" : "旋转";
        m_scene->undoStack()->push(new GeometryCommand(m_items, m_start, commandText(text)));
    }
    m_items.clear();
    m_start.clear();
    refresh();
}

void SelectionTool::cancelDrag()
{
    if (m_drag == Drag::Move || m_drag == Drag::Scale || m_drag == Drag::Rotate) {
        if (isLive()) {
            for (int i = 0; i < m_items.size(); ++i)
                applyGeometry(m_items[i], m_start[i]);
        }
        if (m_frame)
            m_frame->setTransform(QTransform());
    }
    m_drag = Drag::None;
    m_clickedItem = nullptr;
    m_items.clear();
    m_start.clear();
}

bool SelectionTool::keyPress(Jk_chang_jing *scene, QKeyEvent *event)
{
    if (scene != m_scene)
        return false;
    if (event->key() == Qt::Key_Escape) {
        if (m_drag != Drag::None) {
            cancelDrag();
            refresh();
        } else {
            scene->clearSelection();
        }
        return true;
    }
    const QPointF offset = nudgeOffset(event->key(), event->modifiers() & Qt::ShiftModifier);
    if (offset.isNull() || m_drag != Drag::None)
        return false;
    const QList<Jk_tu_yuan *> items = selection();
    if (!items.isEmpty())
        scene->undoStack()->push(makeNudgeCommand(items, offset));
    return true;
}

} // namespace lumitra
