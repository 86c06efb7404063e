#include "layer_panel_controller.h"

#include "design_commands.h"
#include "design_pages.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "layer_palette_bar.h"
#include "layer_rebuild.h"
#include "layer_rows_panel.h"
#include "program_state.h"
#include "tu_ceng_zhi.h"

#include <QUndoStack>

LayerPanelController::LayerPanelController(DesignPages *pages, LayerRowsPanel *rows,
                                           LayerPaletteBar *palette, Tu_Ceng_Zhi *panel,
                                           QObject *parent)
    : QObject(parent), m_pages(pages), m_rows(rows), m_palette(palette), m_panel(panel)
{
    connect(pages, &DesignPages::designChanged, this, &LayerPanelController::rebuild);
    connect(pages, &DesignPages::currentPageChanged, this, &LayerPanelController::rebuild);
    connect(rows, &LayerRowsPanel::layerEdited, this, &LayerPanelController::onRowEdited);
    connect(rows, &LayerRowsPanel::sendCengDblClick, this, &LayerPanelController::showParameters);
    connect(rows, &LayerRowsPanel::deleteRequested, this, &LayerPanelController::deleteLayerItems);
    connect(palette, &LayerPaletteBar::layerPicked, this,
            &LayerPanelController::moveSelectionToLayer);
    connect(panel, &Tu_Ceng_Zhi::layerChanged, this, &LayerPanelController::onPanelChanged);
    palette->setCheckedLayer(lumitra::programState().currentLayer);
    rebuild();
}

void LayerPanelController::rebuild()
{
    Jk_chang_jing *scene = m_pages->currentScene();
    if (!scene)
        return;
    rebuildLayerList(scene);
    if (lumitra::programState().running)
        return; // frozen while the machine works: only the repaint above
    const LayerList &list = LayerList::instance();
    m_rows->setRows(list.layers());
    // The panel follows its layer by key.
    if (m_panel->layer()) {
        const LayerKey key = m_panel->layerKey();
        TuCeng *now = list.find(key.number, key.bitmap);
        if (now != m_panel->layer())
            m_panel->setLayer(now);
    }
    // An empty panel shows the first layer, so the parameters of a new design
    // are at hand without looking for the row to double-click.
    if (!m_panel->layer() && !list.isEmpty())
        m_panel->setLayer(list.layers().first());
}

void LayerPanelController::showParameters(TuCeng *layer)
{
    m_panel->setLayer(layer);
    if (m_panel->isWindow()) {
        m_panel->show();
        m_panel->raise();
        m_panel->activateWindow();
    }
    emit parametersShown(layer);
}

void LayerPanelController::moveSelectionToLayer(int number)
{
    Jk_chang_jing *scene = m_pages->currentScene();
    if (!scene)
        return;
    const QList<Jk_tu_yuan *> selected = scene->selectedDesignItems();
    if (!selected.isEmpty())
        scene->undoStack()->push(new ChangeLayerCommand(scene, selected, number));
    rebuild();
}

void LayerPanelController::onRowEdited(TuCeng *layer)
{
    lumitra::programState().unsaved = true;
    if (m_panel->layer() == layer)
        m_panel->refresh();
    rebuild();
}

void LayerPanelController::onPanelChanged(TuCeng *)
{
    lumitra::programState().unsaved = true;
    m_rows->refreshRows();
    repaintCurrent();
}

void LayerPanelController::deleteLayerItems(TuCeng *layer)
{
    Jk_chang_jing *scene = m_pages->currentScene();
    if (!scene || lumitra::programState().running)
        return;
    QList<Jk_tu_yuan *> doomed;
    for (Jk_tu_yuan *item : scene->designItems())
        if (item->layer_id == layer->yanse && item->is_bitmap == layer->tupian)
            doomed.append(item);
    scene->deleteItemsUndoable(doomed);
}

void LayerPanelController::repaintCurrent()
{
    if (Jk_chang_jing *scene = m_pages->currentScene())
        scene->repaintItems();
}
