// The window's import actions on the selection: the mode preview and tracing of a bitmap.
#pragma once

#include <QList>
#include <QObject>

class QAction;
class QGraphicsItem;
class QWidget;
class Jk_tu_yuan;
class MoShiYuLan;

// Owned by the main window; GUI thread only.
class ImportActions : public QObject
{
    Q_OBJECT

public:
    // `window` parents the preview dialogs.
    explicit ImportActions(QWidget *window);

    // Opens a mode preview of the selected bitmap item's image when exactly one item is
    // selected and it is a bitmap item; otherwise says so ("请先选择一张位图!") and returns
    // nullptr. The dialog deletes itself when closed.
    MoShiYuLan *openModePreview(const QList<QGraphicsItem *> &selected);

    // Traces the selected bitmap item (same selection rule) and announces the new vector
    // item through itemsCreated. False, with a message, when there was nothing to trace or
    // tracing found no outline.
    bool traceSelection(const QList<QGraphicsItem *> &selected);

    // The import option "colours to layers" (checkable; its state is the remembered
    // setting, read by the SVG importer). Owned by this object.
    QAction *colourLayersAction() const { return m_colourLayers; }
    // Every action of this object, for the window's menus.
    QList<QAction *> actions() const;

signals:
    // New items, not yet in a scene, for the window's undoable add.
    void itemsCreated(const QList<Jk_tu_yuan *> &items);

private:
    const Jk_tu_yuan *bitmapOrSay(const QList<QGraphicsItem *> &selected) const;

    QWidget *m_window;
    QAction *m_colourLayers;
};
