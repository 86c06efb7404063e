#include "layer_panel_controller.h"

#include "design_pages.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "layer_commands.h"
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
    connect(rows, &LayerRowsPanel::editRequested, this, &LayerPanelController::applyEdit);
    connect(rows, &LayerRowsPanel::moveRequested, this, &LayerPanelController::moveLayer);
    connect(rows, &LayerRowsPanel::sendCengDblClick, this, &LayerPanelController::showParameters);
    connect(rows, &LayerRowsPanel::deleteRequested, this, &LayerPanelController::deleteLayer);
    connect(palette, &LayerPaletteBar::layerPicked, this,
            &LayerPanelController::moveSelectionToLayer);
    connect(panel, &Tu_Ceng_Zhi::editRequested, this, &LayerPanelController::applyEdit);
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
    showRecords();
}

void LayerPanelController::showRecords()
{
    const LayerList &list = LayerList::instance();
    m_rows->setRows(list.layers());
    // The panel follows its layer by key and shows its values again (an undo
    // may have changed them).
    if (m_panel->layer())
        m_panel->setLayer(list.find(m_panel->layerKey()));
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
        push(new ChangeLayerCommand(scene, selected, number));
    rebuild();
}

void LayerPanelController::push(QUndoCommand *command)
{
    // Doing the command notifies the scene, which rebuilds the list and the rows.
    m_pages->currentUndoStack()->push(command);
}

void LayerPanelController::applyEdit(const LayerEdit &edit)
{
    Jk_chang_jing *scene = m_pages->currentScene();
    if (!scene)
        return;
    auto *command = new LayerSettingCommand(scene, edit);
    if (command->isValid()) {
        push(command);
        return;
    }
    delete command;
    // Nothing to change: the widget that asked shows the record again.
    if (!lumitra::programState().running)
        showRecords();
}

void LayerPanelController::moveLayer(const LayerKey &key, int step)
{
    Jk_chang_jing *scene = m_pages->currentScene();
    if (!scene || lumitra::programState().running)
        return;
    const int from = LayerList::instance().indexOf(key);
    auto *command = new MoveLayerCommand(scene, key, from + step);
    if (from >= 0 && command->isValid())
        push(command);
    else
        delete command;
}

void LayerPanelController::deleteLayer(const LayerKey &key)
{
    Jk_chang_jing *scene = m_pages->currentScene();
    if (!scene || lumitra::programState().running || itemsOfLayer(scene, key).isEmpty())
        return;
    push(new DeleteLayerCommand(scene, key));
}
