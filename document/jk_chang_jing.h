#pragma once

#include <QGraphicsScene>
#include <QList>
#include <QPixmap>

class Jk_tu_yuan;
class QUndoStack;
class SceneTool;

// The design scene of one page. One scene unit is one millimetre; the work
// area lies at x 0..width, y -height..0 (machine Y is the negated scene y).
// Owns its items and its undo stack; every edit of its items goes through that
// stack. GUI thread only.
class Jk_chang_jing : public QGraphicsScene
{
    Q_OBJECT

public:
    explicit Jk_chang_jing(QObject *parent = nullptr);
    ~Jk_chang_jing() override;

    // The work area in scene coordinates, from the program-wide width and height.
    static QRectF workAreaRect();

    // The camera photo drawn stretched over the work area under the grid.
    // A null pixmap removes it.
    void setBackgroundPixmap(const QPixmap &photo);
    QPixmap backgroundPixmap() const { return m_photo; }

    // The design items, in descending stacking order (topmost first); other
    // items of the scene (the rubber band, tool handles) are left out.
    QList<Jk_tu_yuan *> designItems() const;
    QList<Jk_tu_yuan *> selectedDesignItems() const;
    int designItemCount() const;

    QUndoStack *undoStack() const { return m_undo; }

    // Adds the items as one undoable command; the scene takes ownership.
    // An empty list does nothing.
    void addItemsUndoable(const QList<Jk_tu_yuan *> &items);
    // Removes the items as one undoable command (the command keeps them).
    void deleteItemsUndoable(const QList<Jk_tu_yuan *> &items);

    // The active mouse tool, or nullptr for plain picking and selection.
    void setTool(SceneTool *tool);
    SceneTool *tool() const { return m_tool; }

    // A scene point rounded to whole millimetres, halves upwards (drawing tools).
    static QPointF roundToMillimetre(const QPointF &p);

    // Repaints every design item, dropping cached drawings: needed after a
    // layer record changed (colour, mode, visibility).
    void repaintItems();

    // Tells listeners that items were added, removed or changed their layer or
    // geometry. Every undo command calls it after doing or undoing.
    void notifyDesignChanged();
    // Relayed from an item's double-click.
    void requestTextEdit(Jk_tu_yuan *item);

signals:
    void designChanged();
    void textEditRequested(Jk_tu_yuan *item);
    void toolChanged(int number);

protected:
    void drawBackground(QPainter *painter, const QRectF &exposed) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QUndoStack *m_undo = nullptr;
    SceneTool *m_tool = nullptr;
    QPixmap m_photo;
};
