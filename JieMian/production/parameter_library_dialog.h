#pragma once

#include "parameter_library.h"

#include <QDialog>
#include <functional>

struct TuCeng;
namespace Ui {
class ParameterLibraryDialog;
}

// The parameter library dialog: the presets, filtered by material; adds one
// from the current layer (name, material and thickness from the fields
// below the list), applies the selected one to the current layer, renames it
// (to the name and material in the fields), deletes it, and imports (merging:
// same name and material replace, others are added) or exports a .json file.
// Every change is stored in the settings at once. The current layer and the
// apply step come from the owner through the functions below; refusals go
// through the message-box helper.
class ParameterLibraryDialog : public QDialog
{
    Q_OBJECT

public:
    using LayerSource = std::function<const TuCeng *()>;
    using Applier = std::function<bool(const lumitra::ParameterPreset &)>;
    using FileChooser = std::function<QString(QWidget *parent, bool save)>;

    explicit ParameterLibraryDialog(QWidget *parent = nullptr);
    ~ParameterLibraryDialog() override;

    void setLayerSource(LayerSource source) { m_layer = std::move(source); }
    void setApplier(Applier applier) { m_apply = std::move(applier); }
    // Replaces the file dialogs (tests); an empty path cancels.
    void setFileChooser(FileChooser chooser) { m_chooser = std::move(chooser); }

    const lumitra::ParameterLibrary &library() const { return m_library; }
    // Reads the library from the settings again and shows it.
    void reload();
    // The preset selected in the list, as its position in library(), or -1.
    int selectedIndex() const;
    void selectPreset(int index);

public slots:
    void addFromLayer();
    void applySelected();
    void renameSelected();
    void deleteSelected();
    void importFile();
    void exportFile();

private:
    void fill();
    void showSelected();
    void changed();

    Ui::ParameterLibraryDialog *ui;
    lumitra::ParameterLibrary m_library;
    LayerSource m_layer;
    Applier m_apply;
    FileChooser m_chooser;
};
