#include "drawing_tools.h"

#include "drawn_shapes.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "selection_tool.h"

#include <QGraphicsPathItem>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QPen>

namespace lumitra {

namespace {

// A click this close to the first point (in screen pixels) closes an outline.
constexpr double kClosePixels = 8.0;

QPointF rounded(const QGraphicsSceneMouseEvent *event)
{
    return Jk_chang_jing::roundToMillimetre(event->scenePos());
}

bool isFinishKey(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

Jk_tu_yuan *addDrawnOutline(Jk_chang_jing *scene, const QPainterPath &sceneOutline)
{
    if (!scene || sceneOutline.elementCount() < 2)
        return nullptr;
    const QPointF topLeft = sceneOutline.boundingRect().topLeft();
    auto *item = new Jk_tu_yuan();
    item->set_path(sceneOutline.translated(-topLeft));
    item->setPos(topLeft);
    item->setSelected(true);
    scene->addItemsUndoable({item});
    return item;
}

PreviewingTool::~PreviewingTool()
{
    hidePreview();
}

void PreviewingTool::deactivated(Jk_chang_jing *)
{
    reset();
    hidePreview();
}

void PreviewingTool::showPreview(Jk_chang_jing *scene, const QPainterPath &path)
{
    if (m_preview && m_previewScene != scene)
        hidePreview();
    if (!m_preview) {
        m_preview = new QGraphicsPathItem;
        QPen pen(QColor(0, 120, 215), 1, Qt::DashLine);
        pen.setCosmetic(true);
        m_preview->setPen(pen);
        m_preview->setZValue(1e9);
        m_preview->setAcceptedMouseButtons(Qt::NoButton);
        scene->addItem(m_preview);
        m_previewScene = scene;
    }
    m_preview->setPath(path);
}

void PreviewingTool::hidePreview()
{
    // A preview in a scene that is gone went with it.
    if (m_preview && m_previewScene)
        delete m_preview;
    m_preview = nullptr;
    m_previewScene = nullptr;
}

bool ShapeTool::mousePress(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return false;
    m_dragging = true;
    m_press = event->scenePos();
    scene->clearSelection();
    return true;
}

bool ShapeTool::mouseMove(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event)
{
    if (!m_dragging)
        return false;
    const bool square = event->modifiers() & Qt::ShiftModifier;
    showPreview(scene, shapeOutline(m_tool, dragRectangle(m_press, event->scenePos(), square)));
    return true;
}

bool ShapeTool::mouseRelease(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event)
{
    if (!m_dragging || event->button() != Qt::LeftButton)
        return false;
    m_dragging = false;
    hidePreview();
    const bool square = event->modifiers() & Qt::ShiftModifier;
    const QRectF r = dragRectangle(m_press, event->scenePos(), square);
    if (r.width() != 0 && r.height() != 0)
        addDrawnOutline(scene, shapeOutline(m_tool, r));
    return true;
}

bool ShapeTool::keyPress(Jk_chang_jing *, QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape || !m_dragging)
        return false;
    reset();
    hidePreview();
    return true;
}

void ShapeTool::reset()
{
    m_dragging = false;
}

bool ClickPathTool::mousePress(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        finish(scene);
        return true;
    }
    if (event->button() != Qt::LeftButton)
        return false;
    if (pointCount() == 0)
        scene->clearSelection();
    m_pointer = rounded(event);
    pressAt(m_pointer, kClosePixels * mmPerPixel(event));
    showPreview(scene, outline());
    return true;
}

bool ClickPathTool::mouseMove(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event)
{
    if (pointCount() == 0)
        return false;
    if (isDragging()) {
        dragTo(event->scenePos()); // curve handles are free, not rounded
        showPreview(scene, outline());
    } else {
        m_pointer = rounded(event);
        showPreview(scene, outlineTo(m_pointer));
    }
    return true;
}

bool ClickPathTool::mouseRelease(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return event->button() == Qt::RightButton;
    releaseButton();
    if (isClosed())
        finish(scene);
    return true;
}

bool ClickPathTool::mouseDoubleClick(Jk_chang_jing *scene, QGraphicsSceneMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return false;
    releaseButton();
    finish(scene);
    return true;
}

bool ClickPathTool::keyPress(Jk_chang_jing *scene, QKeyEvent *event)
{
    if (pointCount() == 0)
        return false;
    if (isFinishKey(event->key())) {
        finish(scene);
    } else if (event->key() == Qt::Key_Escape) {
        reset();
        hidePreview();
    } else if (event->key() == Qt::Key_Backspace) {
        takeBackLast();
        showPreview(scene, outlineTo(m_pointer));
    } else {
        return false;
    }
    return true;
}

void ClickPathTool::finish(Jk_chang_jing *scene)
{
    const QPainterPath path = outline();
    reset();
    hidePreview();
    addDrawnOutline(scene, path);
}

} // namespace lumitra
