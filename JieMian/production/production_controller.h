// The window's production tools: the parameter library and the material test
// card. Owns their dialogs; owns none of the window's widgets.
#pragma once

#include "parameter_library.h"
#include "test_card.h"

#include <QList>
#include <QObject>
#include <QPointer>

class DesignPages;
class LayerPanelController;
class ParameterLibraryDialog;
class QAction;
class QWidget;
class TestCardDialog;
class Tu_Ceng_Zhi;

class ProductionController : public QObject
{
    Q_OBJECT

public:
    // The current layer is the one `panel` shows; presets are applied through
    // `layers` as undo steps.
    ProductionController(DesignPages *pages, LayerPanelController *layers, Tu_Ceng_Zhi *panel,
                         QWidget *dialogParent, QObject *parent = nullptr);

    // "参数库", "材料测试卡", for the window's menu.
    QList<QAction *> actions() const { return m_actions; }

    // The dialogs while open, else nullptr.
    ParameterLibraryDialog *libraryDialog() const;
    TestCardDialog *testCardDialog() const;

    // Writes a preset into the current layer as one undo step; false when no
    // layer is shown.
    bool applyPreset(const lumitra::ParameterPreset &preset);
    // Puts the card on the pages: the first block on the current page when it
    // is empty (else on a new page), every further block on a new page. Each
    // block's items are one undoable add and its layer records are set by
    // key. Returns the number of pages used (0 when the settings are refused).
    int generateTestCard(const lumitra::TestCardSettings &settings);
    // Stores one square's settings in the library under "P<power> F<speed>"
    // (replacing a preset of that name and material). False when the square
    // is outside the card or the stored library cannot be read (told).
    bool saveCellToLibrary(const lumitra::TestCardSettings &settings, int row, int column,
                           const QString &material, double thicknessMm);

public slots:
    void openLibrary();
    void openTestCard();

private:
    DesignPages *m_pages;
    LayerPanelController *m_layers;
    QPointer<Tu_Ceng_Zhi> m_panel;
    QPointer<QWidget> m_parent;
    QList<QAction *> m_actions;
    QPointer<ParameterLibraryDialog> m_library;
    QPointer<TestCardDialog> m_card;
};
