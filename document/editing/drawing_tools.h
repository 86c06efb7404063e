// The drawing tools of the design scene. Each new outline becomes one vector
// item on the current layer, added through the scene's undoable add and left
// selected; the tool stays active for the next shape.
//
//  - ShapeTool (tools 2..7): press, drag, release over the drag rectangle,
//    pointer rounded to whole mm; Shift draws squares, circles and regular
//    polygons. A click without a drag draws nothing.
//  - PolylineTool (tool 1): a click per corner; a click on the first corner closes
//    the outline; double-click, Enter or a right click ends an open line;
//    Backspace takes back the last corner, Escape drops the line.
//  - BezierPenTool (tool 8): the Bezier pen; click for a corner, press and drag for
//    a smooth point, click on the first point to close; ends like PolylineTool.
// While drawing, a dashed preview of the outline is shown. GUI thread only.
#pragma once

#include "bezier_pen.h"
#include "polyline_builder.h"
#include "scene_tool.h"

#include <QPainterPath>
#include <QPointF>
#include <QPointer>

class Jk_chang_jing;
class Jk_tu_yuan;
class QGraphicsPathItem;

namespace lumitra {

// Adds a drawn outline (scene mm) as a new selected item whose position is
// the outline's top-left. Returns the item, or nullptr for an empty outline.
Jk_tu_yuan *addDrawnOutline(Jk_chang_jing *scene, const QPainterPath &sceneOutline);

// Shared preview handling.
class PreviewingTool : public SceneTool
{
public:
    ~PreviewingTool() override;
    void deactivated(Jk_chang_jing *scene) override;

protected:
    void showPreview(Jk_chang_jing *scene, const QPainterPath &path);
    void hidePreview();
    // Drops whatever is being drawn.
    virtual void reset() = 0;

private:
    QGraphicsPathItem *m_preview = nullptr;
    QPointer<Jk_chang_jing> m_previewScene;
};

class ShapeTool : public PreviewingTool
{
public:
    explicit ShapeTool(int toolNumber) : m_tool(toolNumber) {}
    int number() const override { return m_tool; }
    bool mousePress(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) override;
    bool mouseMove(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) override;
    bool mouseRelease(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) override;
    bool keyPress(Jk_chang_jing *scene, QKeyEvent *event) override;

protected:
    void reset() override;

private:
    int m_tool;
    bool m_dragging = false;
    QPointF m_press;
};

// A tool that builds its outline from clicks (line, curve). A press adds a
// point (or closes the outline on the first one), a closed outline is added
// on release; double-click, Enter or a right click ends an open outline.
class ClickPathTool : public PreviewingTool
{
public:
    bool mousePress(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) override;
    bool mouseMove(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) override;
    bool mouseRelease(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) override;
    bool mouseDoubleClick(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) override;
    bool keyPress(Jk_chang_jing *scene, QKeyEvent *event) override;

protected:
    virtual int pointCount() const = 0;
    virtual void pressAt(const QPointF &p, double closeTolerance) = 0;
    virtual void dragTo(const QPointF &) {}
    virtual void releaseButton() {}
    virtual bool isDragging() const { return false; }
    virtual bool isClosed() const = 0;
    virtual QPainterPath outline() const = 0;
    virtual QPainterPath outlineTo(const QPointF &pointer) const = 0;
    virtual void takeBackLast() = 0;

private:
    void finish(Jk_chang_jing *scene);
    QPointF m_pointer;
};

class PolylineTool : public ClickPathTool
{
public:
    int number() const override { return 1; }

protected:
    void reset() override { m_line.clear(); }
    int pointCount() const override { return m_line.count(); }
    void pressAt(const QPointF &p, double tolerance) override { m_line.addPoint(p, tolerance); }
    bool isClosed() const override { return m_line.isClosed(); }
    QPainterPath outline() const override { return m_line.path(); }
    QPainterPath outlineTo(const QPointF &p) const override { return m_line.previewPath(p); }
    void takeBackLast() override { m_line.removeLast(); }

private:
    PolylineBuilder m_line;
};

class BezierPenTool : public ClickPathTool
{
public:
    int number() const override { return 8; }

protected:
    void reset() override { m_pen.clear(); }
    int pointCount() const override { return m_pen.count(); }
    void pressAt(const QPointF &p, double tolerance) override { m_pen.press(p, tolerance); }
    void dragTo(const QPointF &p) override { m_pen.drag(p); }
    void releaseButton() override { m_pen.release(); }
    bool isDragging() const override { return m_pen.isDragging(); }
    bool isClosed() const override { return m_pen.isClosed(); }
    QPainterPath outline() const override { return m_pen.path(); }
    QPainterPath outlineTo(const QPointF &p) const override { return m_pen.previewPath(p); }
    void takeBackLast() override { m_pen.removeLast(); }

private:
    BezierPen m_pen;
};

} // namespace lumitra
