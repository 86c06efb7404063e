#pragma once

#include "tu_ceng.h"

#include <QObject>

class DesignPages;
class LayerPaletteBar;
class LayerRowsPanel;
class Tu_Ceng_Zhi;

// Keeps the layer rows, the parameter panel and the palette in step with the
// current page. The rebuild runs after every change to the current page's
// items, after a page switch and after a change in a row; while a job runs it
// only repaints. Every change made in the rows or the panel sets the unsaved
// flag. The controller owns none of the widgets.
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

signals:
    // The panel was asked for; a window that docks it may raise its dock.
    void parametersShown(TuCeng *layer);

private:
    void onRowEdited(TuCeng *layer);
    void onPanelChanged(TuCeng *layer);
    void deleteLayerItems(TuCeng *layer);
    void repaintCurrent();

    DesignPages *m_pages;
    LayerRowsPanel *m_rows;
    LayerPaletteBar *m_palette;
    Tu_Ceng_Zhi *m_panel;
};
