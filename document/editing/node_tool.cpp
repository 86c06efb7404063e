#include "node_tool.h"

#include "item_geometry.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "selection_tool.h"

#include <QAction>
#include <QCoreApplication>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QUndoStack>
#include <QWidget>
#include <cmath>
#include <limits>

namespace lumitra {

namespace {

constexpr double kOverlayZ = 1e6;

double scaleOf(const QTransform &t)
{
    return std::sqrt(std::fabs(t.determinant()));
}

} // namespace

// ---- NodeOverlay -----------------------------------------------------------

NodeOverlay::NodeOverlay()
{
    setZValue(kOverlayZ);
    setAcceptedMouseButtons(Qt::NoButton);
}

void NodeOverlay::setModel(const NodePath &model, const QTransform &toScene, const NodeRef &node,
                           int segmentSubpath, int segment)
{
    prepareGeometryChange();
    m_model = model;
    m_toScene = toScene;
    m_node = node;
    m_segmentSubpath = segmentSubpath;
    m_segment = segment;
    QRectF bounds;
    for (const NodeSubpath &s : m_model.subpaths()) {
        for (const QPointF &p : s.nodes)
            bounds |= QRectF(m_toScene.map(p), QSizeF(0, 0));
        for (const NodeSegment &seg : s.segments) {
            if (seg.curve) {
                bounds |= QRectF(m_toScene.map(seg.c1), QSizeF(0, 0));
                bounds |= QRectF(m_toScene.map(seg.c2), QSizeF(0, 0));
            }
        }
    }
    // Room for the marks, which keep their size on the screen: generous for
    // any zoom down to 0.5 px per mm.
    m_bounds = bounds.adjusted(-20, -20, 20, 20);
    update();
}

QRectF NodeOverlay::boundingRect() const
{
    return m_bounds;
}

void NodeOverlay::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const QTransform &world = painter->worldTransform();
    const double scale = std::hypot(world.m11(), world.m12());
    const double px = scale > 0 ? 1.0 / scale : 1.0; // mm per screen pixel
    painter->setRenderHint(QPainter::Antialiasing, true);
    const QColor accent(0, 120, 215);

    // The chosen segment drawn thick.
    if (m_segmentSubpath >= 0 && m_segment >= 0 && m_segmentSubpath < m_model.subpaths().size()) {
        QPainterPath chosen;
        for (int i = 0; i <= 32; ++i) {
            const QPointF p = m_toScene.map(m_model.pointOn(m_segmentSubpath, m_segment, i / 32.0));
            i == 0 ? chosen.moveTo(p) : chosen.lineTo(p);
        }
        QPen thick(accent, 3);
        thick.setCosmetic(true);
        painter->strokePath(chosen, thick);
    }

    QPen handlePen(QColor(110, 110, 110), 1);
    handlePen.setCosmetic(true);
    painter->setPen(handlePen);
    for (const NodeSubpath &s : m_model.subpaths()) {
        for (int k = 0; k < s.segments.size(); ++k) {
            const NodeSegment &seg = s.segments.at(k);
            if (!seg.curve)
                continue;
            const QPointF a = m_toScene.map(s.nodes.at(k));
            const QPointF b = m_toScene.map(s.nodes.at(s.segmentEnd(k)));
            const QPointF c1 = m_toScene.map(seg.c1), c2 = m_toScene.map(seg.c2);
            painter->setBrush(Qt::NoBrush);
            painter->drawLine(a, c1);
            painter->drawLine(b, c2);
            painter->setBrush(Qt::white);
            painter->drawEllipse(c1, 3 * px, 3 * px);
            painter->drawEllipse(c2, 3 * px, 3 * px);
        }
    }
    QPen nodePen(accent, 1);
    nodePen.setCosmetic(true);
    painter->setPen(nodePen);
    const double half = 3.5 * px;
    for (int i = 0; i < m_model.subpaths().size(); ++i) {
        const QVector<QPointF> &nodes = m_model.subpaths().at(i).nodes;
        for (int k = 0; k < nodes.size(); ++k) {
            const QPointF c = m_toScene.map(nodes.at(k));
            painter->setBrush(m_node == NodeRef{i, k} ? QBrush(accent) : QBrush(Qt::white));
            painter->drawRect(QRectF(c.x() - half, c.y() - half, 2 * half, 2 * half));
        }
    }
}

// ---- NodeTool --------------------------------------------------------------

NodeTool::NodeTool(QObject *parent) : QObject(parent)
{
    // The menu says what the undo step will say.
    const NodeEdit edits[EditCount] = {NodeEdit::DeleteNode, NodeEdit::Straight, NodeEdit::Curved,
                                       NodeEdit::Break, NodeEdit::Join};
    const Qt::Key keys[EditCount] = {Qt::Key_Delete, Qt::Key_L, Qt::Key_C, Qt::Key_B, Qt::Key_J};
    for (int i = 0; i < EditCount; ++i) {
        m_actions[i] = new QAction(nodeEditText(edits[i]), this);
        m_actions[i]->setShortcut(QKeySequence(keys[i]));
        m_actions[i]->setShortcutVisibleInContextMenu(true);
        // The keys reach the tool through the scene; the menu only shows them.
        m_actions[i]->setShortcutContext(Qt::WidgetShortcut);
        connect(m_actions[i], &QAction::triggered, this, [this, i] { apply(Edit(i)); });
    }
    updateActions();
}

NodeTool::~NodeTool()
{
    if (m_scene) {
        if (m_scene->tool() == this)
            m_scene->setTool(nullptr);
        else
            deactivated(m_scene);
    }
}

Jk_tu_yuan *NodeTool::item() const
{
    return m_item.data();
}

QMenu *NodeTool::menu() const
{
    return m_menu.data();
}

void NodeTool::activate(Jk_chang_jing *scene)
{
    if (scene == m_scene && scene && scene->tool() == this)
        return;
    if (m_scene) {
        if (m_scene->tool() == this)
            m_scene->setTool(nullptr);
        else
            deactivated(m_scene);
    }
    if (!scene)
        return;
    m_scene = scene;
    scene->setTool(this);
    m_overlay = new NodeOverlay;
    scene->addItem(m_overlay);
    connect(scene, &QGraphicsScene::selectionChanged, this, &NodeTool::refresh);
    connect(scene, &Jk_chang_jing::designChanged, this, &NodeTool::refresh);
    connect(scene->undoStack(), &QUndoStack::indexChanged, this, &NodeTool::refresh);
    connect(scene, &QObject::destroyed, this, [this] {
        m_overlay = nullptr;
        m_drag = Drag::None;
    });
    refresh();
}

void NodeTool::deactivated(Jk_chang_jing *scene)
{
    if (scene != m_scene)
        return;
    if (m_drag != Drag::None && m_item)
        m_item->set_path(m_dragStart); // a drag cut short leaves no trace
    m_drag = Drag::None;
    disconnect(scene, nullptr, this, nullptr);
    if (scene->undoStack())
        disconnect(scene->undoStack(), nullptr, this, nullptr);
    if (m_menu)
        m_menu->close();
    if (m_overlay) {
        scene->removeItem(m_overlay);
        delete m_overlay;
        m_overlay = nullptr;
    }
    m_scene = nullptr;
    m_item = nullptr;
    m_model = NodePath();
    m_node = NodeRef();
    m_segment = m_segmentSubpath = -1;
    updateActions();
}

void NodeTool::refresh()
{
    if (!m_scene || m_drag != Drag::None)
        return;
    Jk_tu_yuan *target = nullptr;
    const QList<Jk_tu_yuan *> selected = m_scene->selectedDesignItems();
    if (m_item && selected.contains(m_item.data()) && m_item->scene() == m_scene) {
        target = m_item;
    } else {
        for (Jk_tu_yuan *item : selected) {
            if (!item->is_bitmap) {
                target = item;
                break;
            }
        }
    }
    if (target != m_item) {
        m_node = NodeRef();
        m_segment = m_segmentSubpath = -1;
    }
    m_item = target;
    m_model = target ? NodePath(target->path) : NodePath();
    // Keep the choice while it still names something.
    const QVector<NodeSubpath> &subpaths = m_model.subpaths();
    if (m_node.isValid()
        && (m_node.subpath >= subpaths.size()
            || m_node.node >= subpaths.at(m_node.subpath).nodes.size()))
        m_node = NodeRef();
    if (m_segment >= 0
        && (m_segmentSubpath >= subpaths.size()
            || m_segment >= subpaths.at(m_segmentSubpath).segments.size()))
        m_segment = m_segmentSubpath = -1;
    showOverlay();
    updateActions();
}

void NodeTool::setItem(Jk_tu_yuan *item)
{
    if (!m_scene)
        return;
    m_scene->clearSelection();
    if (item)
        item->setSelected(true); // refresh() follows the selection
    refresh();
}

void NodeTool::showOverlay()
{
    if (!m_overlay)
        return;
    m_overlay->setVisible(m_item);
    m_overlay->setModel(m_model, m_item ? m_item->sceneTransform() : QTransform(), m_node,
                        m_segmentSubpath, m_segment);
    if (m_item)
        emit outlineChanged(outlineBounds(m_item.data()));
}

void NodeTool::updateActions()
{
    const bool node = m_item && m_node.isValid();
    bool segmentCurved = false, segmentStraight = false;
    int sub = m_segmentSubpath, seg = m_segment;
    if (seg < 0 && node) { // the segment leaving the chosen node, or arriving at an end
        sub = m_node.subpath;
        const NodeSubpath &s = m_model.subpaths().at(sub);
        seg = m_node.node < s.segments.size() ? m_node.node : s.segments.size() - 1;
    }
    if (m_item && sub >= 0 && sub < m_model.subpaths().size() && seg >= 0
        && seg < m_model.subpaths().at(sub).segments.size()) {
        const bool curve = m_model.subpaths().at(sub).segments.at(seg).curve;
        segmentCurved = !curve;
        segmentStraight = curve;
    }
    m_actions[DeleteNode]->setEnabled(node);
    m_actions[MakeStraight]->setEnabled(segmentStraight);
    m_actions[MakeCurved]->setEnabled(segmentCurved);
    m_actions[BreakNode]->setEnabled(node && !m_model.isEndNode(m_node));
    m_actions[JoinEnds]->setEnabled(node && m_model.isEndNode(m_node));
}

bool NodeTool::push(const NodePath &edited, NodeEdit edit)
{
    QUndoCommand *command = m_item ? makeNodeEditCommand(m_item, edited, edit) : nullptr;
    if (!command || !m_scene)
        return false;
    m_scene->undoStack()->push(command); // refresh() follows the stack
    return true;
}

bool NodeTool::apply(Edit edit)
{
    if (!m_item)
        return false;
    NodePath edited = m_model;
    switch (edit) {
    case DeleteNode:
        if (!edited.deleteNode(m_node))
            return false;
        m_node = NodeRef();
        m_segment = m_segmentSubpath = -1;
        return push(edited, NodeEdit::DeleteNode);
    case MakeStraight:
    case MakeCurved: {
        int sub = m_segmentSubpath, seg = m_segment;
        if (seg < 0 && m_node.isValid()) {
            sub = m_node.subpath;
            const NodeSubpath &s = m_model.subpaths().at(sub);
            seg = m_node.node < s.segments.size() ? m_node.node : s.segments.size() - 1;
        }
        const bool curved = edit == MakeCurved;
        if (!edited.setSegmentCurved(sub, seg, curved))
            return false;
        return push(edited, curved ? NodeEdit::Curved : NodeEdit::Straight);
    }
    case BreakNode:
        if (!edited.breakAt(m_node))
            return false;
        m_node = NodeRef();
        m_segment = m_segmentSubpath = -1;
        return push(edited, NodeEdit::Break);
    case JoinEnds: {
        if (!m_model.isEndNode(m_node))
            return false;
        // The nearest other end of an open subpath.
        const QPointF from = m_model.nodePos(m_node);
        NodeRef best;
        double bestDistance = std::numeric_limits<double>::max();
        for (int i = 0; i < m_model.subpaths().size(); ++i) {
            const NodeSubpath &s = m_model.subpaths().at(i);
            for (int k : {0, int(s.nodes.size()) - 1}) {
                const NodeRef other{i, k};
                if (other == m_node || !m_model.isEndNode(other))
                    continue;
                if (i == m_node.subpath && s.nodes.size() < 3)
                    continue; // a single segment cannot close on itself
                const double d = QLineF(from, s.nodes.at(k)).length();
                if (d < bestDistance) {
                    bestDistance = d;
                    best = other;
                }
            }
        }
        if (!best.isValid() || !edited.join(m_node, best))
            return false;
        m_node = NodeRef();
        m_segment = m_segmentSubpath = -1;
        return push(edited, NodeEdit::Join);
    }
    case EditCount:
        break;
    }
    return false;
}

QPointF NodeTool::toItem(const QPointF &scenePos) const
{
    return m_item ? m_item->sceneTransform().inverted().map(scenePos) : scenePos;
}

double NodeTool::itemTolerance(const QGraphicsSceneMouseEvent *event) const
{
    const double scale = m_item ? scaleOf(m_item->sceneTransform()) : 1.0;
    const double mm = kGrabPixels * mmPerPixel(event);
    return scale > 0 ? mm / scale : mm;
}

bool NodeTool::mousePress(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event)
{
    if (scene != m_scene)
        return false;
    if (event->button() == Qt::RightButton) {
        openMenu(event);
        return true;
    }
    if (event->button() != Qt::LeftButton)
        return true;
    m_moved = false;
    m_drag = Drag::None;
    if (m_item) {
        const QPointF p = toItem(event->scenePos());
        const double tolerance = itemTolerance(event);
        const ControlRef control = m_model.controlAt(p, tolerance);
        const NodeRef node = m_model.nodeAt(p, tolerance);
        if (node.isValid()) {
            m_node = node;
            m_segment = m_segmentSubpath = -1;
            m_drag = Drag::Node;
            m_pressOffset = m_model.nodePos(node) - p;
        } else if (control.isValid()) {
            m_control = control;
            m_drag = Drag::Control;
            m_pressOffset = m_model.controlPos(control) - p;
        } else {
            const SegmentHit hit = m_model.segmentAt(p, tolerance);
            if (hit.isValid()) {
                m_node = NodeRef();
                m_segmentSubpath = hit.subpath;
                m_segment = hit.segment;
                showOverlay();
                updateActions();
                return true;
            }
        }
        if (m_drag != Drag::None) {
            m_dragStart = m_item->path;
            showOverlay();
            updateActions();
            return true;
        }
    }
    // Anything else: another item to edit, or nothing.
    Jk_tu_yuan *picked = pickItem(scene, event->scenePos());
    if (picked && picked->is_bitmap)
        picked = nullptr;
    if (picked != m_item)
        setItem(picked);
    else {
        m_node = NodeRef();
        m_segment = m_segmentSubpath = -1;
        showOverlay();
        updateActions();
    }
    return true;
}

bool NodeTool::mouseMove(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event)
{
    if (scene != m_scene)
        return false;
    if (m_drag == Drag::None || !m_item || !(event->buttons() & Qt::LeftButton))
        return m_drag != Drag::None;
    const QPointF target = toItem(event->scenePos()) + m_pressOffset;
    NodePath edited(m_dragStart);
    const bool ok = m_drag == Drag::Node ? edited.moveNode(m_node, target)
                                         : edited.moveControl(m_control, target);
    if (!ok)
        return true;
    m_moved = true;
    m_model = edited;
    m_item->set_path(edited.path());
    showOverlay();
    return true;
}

bool NodeTool::mouseRelease(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event)
{
    Q_UNUSED(event);
    if (scene != m_scene)
        return false;
    const Drag drag = m_drag;
    m_drag = Drag::None;
    if (drag != Drag::None && m_moved && m_item) {
        QUndoCommand *command = makeNodeDragCommand(
            m_item, m_dragStart, drag == Drag::Node ? NodeEdit::MoveNode : NodeEdit::MoveControl);
        if (command)
            scene->undoStack()->push(command);
    }
    m_moved = false;
    return true;
}

bool NodeTool::mouseDoubleClick(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event)
{
    if (scene != m_scene || event->button() != Qt::LeftButton || !m_item)
        return scene == m_scene;
    m_drag = Drag::None;
    const QPointF p = toItem(event->scenePos());
    const double tolerance = itemTolerance(event);
    const NodeRef node = m_model.nodeAt(p, tolerance);
    if (node.isValid()) {
        m_node = node;
        apply(DeleteNode);
        return true;
    }
    const SegmentHit hit = m_model.segmentAt(p, tolerance);
    if (hit.isValid()) {
        NodePath edited = m_model;
        if (edited.insertNode(hit.subpath, hit.segment, hit.t)) {
            m_node = {hit.subpath, hit.segment + 1};
            m_segment = m_segmentSubpath = -1;
            push(edited, NodeEdit::AddNode);
        }
    }
    return true;
}

bool NodeTool::keyPress(Jk_chang_jing *scene, QKeyEvent *event)
{
    if (scene != m_scene)
        return false;
    switch (event->key()) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        return apply(DeleteNode) || m_item;
    case Qt::Key_L:
        apply(MakeStraight);
        return true;
    case Qt::Key_C:
        apply(MakeCurved);
        return true;
    case Qt::Key_B:
        apply(BreakNode);
        return true;
    case Qt::Key_J:
        apply(JoinEnds);
        return true;
    case Qt::Key_Escape:
        m_node = NodeRef();
        m_segment = m_segmentSubpath = -1;
        showOverlay();
        updateActions();
        return true;
    default:
        return false;
    }
}

void NodeTool::openMenu(const QGraphicsSceneMouseEvent *event)
{
    if (!m_item)
        return;
    // Right click on a node or segment chooses it first.
    const QPointF p = toItem(event->scenePos());
    const double tolerance = itemTolerance(event);
    const NodeRef node = m_model.nodeAt(p, tolerance);
    if (node.isValid()) {
        m_node = node;
        m_segment = m_segmentSubpath = -1;
    } else {
        const SegmentHit hit = m_model.segmentAt(p, tolerance);
        if (hit.isValid()) {
            m_node = NodeRef();
            m_segmentSubpath = hit.subpath;
            m_segment = hit.segment;
        }
    }
    showOverlay();
    updateActions();
    QWidget *owner = event->widget();
    if (m_menu)
        m_menu->deleteLater();
    m_menu = new QMenu(owner ? owner->window() : nullptr);
    m_menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction *a : m_actions)
        m_menu->addAction(a);
    m_menu->popup(event->screenPos()); // not modal: the event loop goes on
}

} // namespace lumitra
