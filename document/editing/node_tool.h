// The node tool (tool 9): edits the outline of the selected vector item node
// by node.
//
//  - the item's nodes are shown as squares, the control points of its curves
//    as dots on lines from their nodes; the chosen node is filled;
//  - click an item to edit it; click a node to choose it, a segment to choose
//    that segment;
//  - drag a node (its control points follow) or a control point;
//  - double-click a segment: a new node there (the shape stays); double-click
//    a node: delete it;
//  - keys: Delete or Backspace deletes the chosen node, L makes the chosen
//    segment straight, C curved, B breaks the outline at the chosen node,
//    J joins the chosen end with the nearest other end, Escape lets go;
//  - a right click opens a menu with the same edits.
// Every edit is one undoable step on the scene's stack that gives back exactly
// the previous outline. The tool serves one scene at a time (see activate).
// GUI thread only.
#pragma once

#include "node_commands.h"
#include "node_path.h"
#include "scene_tool.h"

#include <QGraphicsItem>
#include <QObject>
#include <QPainterPath>
#include <QPointer>
#include <QTransform>

class QAction;
class QMenu;
class Jk_chang_jing;
class Jk_tu_yuan;

namespace lumitra {

constexpr int kNodeToolNumber = 9;

// Draws the nodes and control points of the edited outline over the scene.
class NodeOverlay : public QGraphicsItem
{
public:
    NodeOverlay();
    void setModel(const NodePath &model, const QTransform &toScene, const NodeRef &node,
                  int segmentSubpath, int segment);
    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *) override;

private:
    NodePath m_model;
    QTransform m_toScene;
    NodeRef m_node;
    int m_segmentSubpath = -1;
    int m_segment = -1;
    QRectF m_bounds;
};

class NodeTool : public QObject, public SceneTool
{
    Q_OBJECT

public:
    enum Edit { DeleteNode, MakeStraight, MakeCurved, BreakNode, JoinEnds, EditCount };

    explicit NodeTool(QObject *parent = nullptr);
    ~NodeTool() override;

    // Sets the tool on `scene` (leaving the scene it served before).
    void activate(Jk_chang_jing *scene);
    Jk_chang_jing *scene() const { return m_scene; }

    // Screen pixels within which a press catches a node or a control point.
    static constexpr double kGrabPixels = 6.0;

    int number() const override { return kNodeToolNumber; }
    bool mousePress(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) override;
    bool mouseMove(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) override;
    bool mouseRelease(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) override;
    bool mouseDoubleClick(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) override;
    bool keyPress(Jk_chang_jing *scene, QKeyEvent *event) override;
    void deactivated(Jk_chang_jing *scene) override;

    // What is being edited, and what is chosen in it.
    Jk_tu_yuan *item() const;
    const NodePath &model() const { return m_model; }
    NodeRef chosenNode() const { return m_node; }
    int chosenSegment() const { return m_segment; }
    NodeOverlay *overlay() const { return m_overlay; }

    // The edits behind the keys and the menu; false when there is nothing to do.
    bool apply(Edit edit);
    // The menu's actions (enabled for what the choice allows).
    QAction *action(Edit edit) const { return m_actions[edit]; }
    // The menu while shown by a right click, else nullptr.
    QMenu *menu() const;

public slots:
    // Takes the outline again from the selected item (after a selection change
    // or an undo).
    void refresh();

signals:
    // The edited item's outline bounds in scene mm, after every change of its
    // outline (also while a node is dragged) and when an item is taken.
    void outlineChanged(const QRectF &sceneBounds);

private:
    void setItem(Jk_tu_yuan *item);
    void showOverlay();
    void updateActions();
    bool push(const NodePath &edited, NodeEdit edit);
    QPointF toItem(const QPointF &scenePos) const;
    double itemTolerance(const QGraphicsSceneMouseEvent *event) const;
    void openMenu(const QGraphicsSceneMouseEvent *event);

    enum class Drag { None, Node, Control };

    QPointer<Jk_chang_jing> m_scene;
    QPointer<Jk_tu_yuan> m_item;
    NodePath m_model;
    NodeOverlay *m_overlay = nullptr;
    NodeRef m_node;
    int m_segmentSubpath = -1;
    int m_segment = -1;
    Drag m_drag = Drag::None;
    ControlRef m_control;
    QPainterPath m_dragStart; // the outline at the press
    QPointF m_pressOffset;    // grabbed point minus pointer, item coordinates
    bool m_moved = false;
    QAction *m_actions[EditCount] = {};
    QPointer<QMenu> m_menu;
};

} // namespace lumitra
