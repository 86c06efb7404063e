// The selection tool (tool 0): picking and moving items and working the
// selection frame.
//
//  - click an item: select it alone (a click on an item of a larger selection
//    keeps the selection for a drag and selects the item alone when released
//    without moving); Shift-click or Ctrl-click: add or remove it;
//  - press on empty canvas: the design view's rubber band (Shift or Ctrl keeps
//    what is selected);
//  - drag inside the frame or on an item: move; drag a square handle: scale
//    about the opposite handle (Shift keeps the ratio); drag the round handle:
//    rotate about the frame's centre (Shift snaps to 15 degrees);
//  - arrow keys nudge by 1 mm (Shift: 10 mm), Escape clears the selection.
// Up to kLiveItems items follow the pointer live; a larger selection stays in
// place while only its frame follows, and moves once on release, so that a
// drag of thousands of items costs one repaint per pointer step.
// Every finished drag is one undoable step on the scene's stack. The tool
// serves one scene at a time (see activate). GUI thread only.
#pragma once

#include "frame_geometry.h"
#include "item_geometry.h"
#include "scene_tool.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QTransform>
#include <QVector>

class QTimer;

class Jk_chang_jing;
class Jk_tu_yuan;

namespace lumitra {

class SelectionFrame;

class SelectionTool : public QObject, public SceneTool
{
    Q_OBJECT

public:
    explicit SelectionTool(QObject *parent = nullptr);
    ~SelectionTool() override;

    // Sets the tool on `scene` and shows the frame there (leaving the scene it
    // served before).
    void activate(Jk_chang_jing *scene);
    Jk_chang_jing *scene() const { return m_scene; }
    SelectionFrame *frame() const { return m_frame; }

    static constexpr int kLiveItems = 500;

    int number() const override { return 0; }
    bool mousePress(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) override;
    bool mouseMove(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) override;
    bool mouseRelease(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) override;
    bool keyPress(Jk_chang_jing *scene, QKeyEvent *event) override;
    void deactivated(Jk_chang_jing *scene) override;

    // The selected design items of the served scene, in no particular order.
    QList<Jk_tu_yuan *> selection() const;

public slots:
    // Puts the frame around the current selection and announces its bounds.
    void refresh();
    // The same once control returns to the event loop: selecting thousands of
    // items one by one (a rubber band) then costs one refresh, not thousands.
    void scheduleRefresh();

signals:
    // The selection's outline bounds in scene mm and its item count (0: none),
    // after every change of selection or geometry and during drags.
    void selectionBoundsChanged(const QRectF &sceneBounds, int count);

private:
    enum class Drag { None, Pending, Move, Scale, Rotate };

    void startDrag(Drag kind, const QPointF &at);
    void dragTo(const QPointF &at, Qt::KeyboardModifiers modifiers);
    // Puts the drag so far onto the items, from their state at the press.
    void applyDrag();
    bool isLive() const;
    QTransform scaleTransform() const;
    QTransform rotateTransform() const;
    double rotateAngle() const;
    void finishDrag();
    void cancelDrag();
    void showFrame(const QRectF &bounds, int count);
    void leaveScene();

    QPointer<Jk_chang_jing> m_scene;
    SelectionFrame *m_frame = nullptr;
    QTimer *m_refreshTimer = nullptr;
    Drag m_drag = Drag::None;
    FrameHandle m_handle = FrameHandle::None;
    QPointF m_pressPos;
    QPointF m_lastPointer;
    bool m_shiftHeld = false;
    QRectF m_startFrame;
    QList<Jk_tu_yuan *> m_items;
    QVector<ItemGeometry> m_start;
    Jk_tu_yuan *m_clickedItem = nullptr; // selected alone on a release without a drag
};

// Millimetres per screen pixel of the view an event came from (1 when it came
// from no view).
double mmPerPixel(const QGraphicsSceneMouseEvent *event);

// The topmost design item a click at `scenePos` picks: a bitmap anywhere in its
// outline, a vector item near its line (the item's own hit test); items on
// hidden layers are passed over.
Jk_tu_yuan *pickItem(Jk_chang_jing *scene, const QPointF &scenePos);

} // namespace lumitra
