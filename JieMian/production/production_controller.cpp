#include "production_controller.h"

#include "design_pages.h"
#include "jk_chang_jing.h"
#include "layer_list.h"
#include "layer_panel_controller.h"
#include "message_box.h"
#include "parameter_library_dialog.h"
#include "test_card_dialog.h"
#include "tu_ceng_zhi.h"

#include <QAction>

namespace {
template<typename Dialog> void showAndRaise(Dialog *dialog)
{
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}
} // namespace

ProductionController::ProductionController(DesignPages *pages, LayerPanelController *layers,
                                           Tu_Ceng_Zhi *panel, QWidget *dialogParent,
                                           QObject *parent)
    : QObject(parent), m_pages(pages), m_layers(layers), m_panel(panel), m_parent(dialogParent)
{
    const auto add = [this](const QString &text, void (ProductionController::*slot)()) {
        auto *action = new QAction(text, this);
        connect(action, &QAction::triggered, this, slot);
        m_actions << action;
    };
    add(tr("参数库"), &ProductionController::openLibrary);
    add(tr("材料测试卡"), &ProductionController::openTestCard);
}

ParameterLibraryDialog *ProductionController::libraryDialog() const
{
    return m_library;
}

TestCardDialog *ProductionController::testCardDialog() const
{
    return m_card;
}

bool ProductionController::applyPreset(const lumitra::ParameterPreset &preset)
{
    if (!m_panel || !m_panel->layer())
        return false;
    LayerEdit edit;
    edit.key = m_panel->layerKey();
    edit.field = LayerField::Parameters;
    edit.value = *m_panel->layer();
    lumitra::applyPreset(preset, &edit.value);
    m_layers->applyEdit(edit);
    return true;
}

int ProductionController::generateTestCard(const lumitra::TestCardSettings &settings)
{
    QList<lumitra::TestCardPage> pages = lumitra::generateTestCard(settings);
    for (int i = 0; i < pages.size(); ++i) {
        if (i > 0 || m_pages->currentScene()->designItemCount() > 0)
            m_pages->addPage();
        // As the project opener does: the records join the current list by
        // key before the items, so the rebuild after the add keeps them.
        LayerList &list = LayerList::instance();
        for (const TuCeng &l : qAsConst(pages[i].layers)) {
            if (TuCeng *existing = list.find(l.yanse, l.tupian))
                *existing = l;
            else
                list.append(new TuCeng(l));
        }
        m_pages->currentScene()->addItemsUndoable(pages[i].items);
        pages[i].items.clear();
    }
    return pages.size();
}

bool ProductionController::saveCellToLibrary(const lumitra::TestCardSettings &settings, int row,
                                             int column, const QString &material,
                                             double thicknessMm)
{
    if (row < 0 || row >= settings.rows || column < 0 || column >= settings.columns)
        return false;
    QWidget *parent = m_card ? static_cast<QWidget *>(m_card) : m_parent.data();
    lumitra::ParameterLibrary library;
    QString reason;
    if (!lumitra::loadLibrary(&library, &reason)) {
        lumitra::show_notice(parent, tr("参数库无法读取:%1").arg(reason));
        return false;
    }
    const TuCeng cell = lumitra::testCardCellLayer(settings, row, column, 0);
    const lumitra::ParameterPreset preset =
        lumitra::presetFromLayer(cell, cell.mingcheng, material, thicknessMm);
    const int at = lumitra::findPreset(library, preset.name, preset.material);
    if (at >= 0)
        library[at] = preset;
    else
        library.append(preset);
    lumitra::storeLibrary(library);
    if (m_library)
        m_library->reload();
    lumitra::show_notice(parent, tr("已存入参数库:%1").arg(preset.name));
    return true;
}

void ProductionController::openLibrary()
{
    if (!m_library) {
        m_library = new ParameterLibraryDialog(m_parent);
        m_library->setAttribute(Qt::WA_DeleteOnClose);
        m_library->setLayerSource(
            [this]() -> const TuCeng * { return m_panel ? m_panel->layer() : nullptr; });
        m_library->setApplier(
            [this](const lumitra::ParameterPreset &preset) { return applyPreset(preset); });
    }
    showAndRaise(m_library.data());
}

void ProductionController::openTestCard()
{
    if (!m_card) {
        m_card = new TestCardDialog(m_parent);
        m_card->setAttribute(Qt::WA_DeleteOnClose);
        m_card->setGenerator([this](const lumitra::TestCardSettings &settings) {
            return generateTestCard(settings) > 0;
        });
        m_card->setCellSaver([this](const lumitra::TestCardSettings &settings, int row, int column,
                                    const QString &material, double thickness) {
            return saveCellToLibrary(settings, row, column, material, thickness);
        });
    }
    showAndRaise(m_card.data());
}
