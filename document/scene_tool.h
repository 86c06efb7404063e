#pragma once

class Jk_chang_jing;
class QGraphicsSceneMouseEvent;
class QKeyEvent;

// A mouse tool of the design scene (drawing tools, selection frame, ...).
// While a tool is set on the scene, the scene offers it every mouse and key
// event first; a handler returns true when it consumed the event, false to let
// the scene's default behaviour (item picking and selection) run.
// The scene does not own its tool.
class SceneTool
{
public:
    virtual ~SceneTool() = default;

    // The tool number shown to the user (0 selection, 1 line, 2 rectangle, ...).
    virtual int number() const = 0;

    virtual bool mousePress(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) = 0;
    virtual bool mouseMove(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) = 0;
    virtual bool mouseRelease(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event) = 0;
    virtual bool mouseDoubleClick(Jk_chang_jing *, QGraphicsSceneMouseEvent *) { return false; }
    virtual bool keyPress(Jk_chang_jing *, QKeyEvent *) { return false; }

    // Called when the tool is taken off the scene (another tool was chosen).
    virtual void deactivated(Jk_chang_jing *) {}
};
