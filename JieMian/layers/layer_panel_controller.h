#pragma once

#include "layer_edit.h"
#include "tu_ceng.h"

#include <QObject>

class DesignPages;
class LayerPaletteBar;
class LayerRowsPanel;
class Tu_Ceng_Zhi;
class QUndoCommand;

// Keeps the layer rows, the parameter panel and the palette in step with the
// current page, and turns the edits asked for in the rows and the panel into
// undo steps on the current page's undo stack (settings, moving a layer up or
// down the list, deleting a layer with its items); those steps set the unsaved
// flag. The rebuild runs after every change to the current page's items or
// layers, after a page switch and after every done or undone step; while a job
// runs it only repaints, and moving or deleting a layer is refused. The
// controller owns none of the widgets.
class LayerPanelController : public QObject
{
    Q_OBJECT

public:
    LayerPanelController(DesignPages *pages, LayerRowsPanel *rows, LayerPaletteBar *palette,
                         Tu_Ceng_Zhi *panel, QObject *parent = nullptr);

public slots:
    // The layer-list rebuild for the current page, then new rows.
    void rebuild();
    // Shows the parameter panel for a record (row double-click).
    void showParameters(TuCeng *layer);
    // Moves the selected items of the current page to `number` as one undoable
    // edit, then rebuilds (palette click).
    void moveSelectionToLayer(int number);
    // One setting of a layer as an undo step; an edit that changes nothing or
    // names a missing layer only shows the record again. A saved parameter set
    // comes in as LayerField::Parameters.
    void applyEdit(const LayerEdit &edit);
    // Moves a layer `step` places up (negative) or down the list as an undo step.
    void moveLayer(const LayerKey &key, int step);
    // Deletes every item of a layer as one undo step; undo brings back the
    // items and the layer exactly as it was.
    void deleteLayer(const LayerKey &key);

signals:
    // The panel was asked for; a window that docks it may raise its dock.
    void parametersShown(TuCeng *layer);

private:
    void push(QUndoCommand *command);
    void showRecords();

    DesignPages *m_pages;
    LayerRowsPanel *m_rows;
    LayerPaletteBar *m_palette;
    Tu_Ceng_Zhi *m_panel;
};
