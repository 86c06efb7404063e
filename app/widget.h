#pragma once

#include <QList>
#include <QWidget>

class QGraphicsItem;
class Jk_tu_yuan;

namespace Ui {
class Widget;
}

class DesignPages;
class EditController;
class GcodeJobController;
class MachineController;
class MachinePanel;
class ImportActions;
class CloudController;
class GeometryActions;
class LayerPaletteBar;
class LayerPanelController;
class LayerRowsPanel;
class ProjectCommands;
class Tu_Ceng_Zhi;
class WifiLinkController;
class WifiToolsController;
class CameraController;
class ProductionController;

namespace lumitra {
class LanguageController;
}

// The main window. It composes the panels and owns one controller per concern;
// the work itself happens in those controllers and the libraries below them.
class Widget : public QWidget
{
    Q_OBJECT

public:
    explicit Widget(QWidget *parent = nullptr);
    ~Widget() override;

    // Number of items on every design page (the close guard asks only when
    // there is something to lose).
    int designItemCount() const;

    lumitra::LanguageController *languageController() const { return m_language; }
    DesignPages *pages() const { return m_pages; }
    ProjectCommands *projectCommands() const { return m_project; }
    LayerPanelController *layerController() const { return m_layers; }
    GcodeJobController *jobController() const { return m_jobs; }
    MachineController *machineController() const { return m_machine; }
    EditController *editController() const { return m_edit; }
    WifiLinkController *wifiController() const { return m_wifi; }
    WifiToolsController *wifiTools() const { return m_wifiTools; }
    CameraController *cameraController() const { return m_camera; }
    CloudController *cloudController() const { return m_cloud; }

    // Opens design files given on the command line.
    void openFiles(const QStringList &paths);

    // The unsaved-work guard of every quit path (closing the window, quitting
    // for a new language): true when the application may quit.
    bool confirmQuit();

signals:
    // The user chose to quit outside the close button (restart for a new
    // language) and the unsaved-work guard let it go: the application quits
    // with this code.
    void quitRequested(int exitCode);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildFileMenu();
    void arrangePanels();
    void updateTitle();
    void setupDesign();
    void setupLayers();
    void setupImport();
    void setupEditing();
    void setupJobs();
    void setupMachine();
    void setupCloud();
    // Generates the job of the current page and sends it over the open link.
    void startJob();
    // Generates the job and shows what it will burn, with its estimated time.
    void previewJob();
    QList<Jk_tu_yuan *> currentDesignItems() const;
    QList<QGraphicsItem *> currentSelection() const;

    Ui::Widget *ui;
    lumitra::LanguageController *m_language = nullptr;
    DesignPages *m_pages = nullptr;
    ProjectCommands *m_project = nullptr;
    LayerPaletteBar *m_palette = nullptr;
    LayerRowsPanel *m_layerRows = nullptr;
    Tu_Ceng_Zhi *m_layerParameters = nullptr;
    LayerPanelController *m_layers = nullptr;
    ImportActions *m_import = nullptr;
    CloudController *m_cloud = nullptr;
    GeometryActions *m_geometry = nullptr;
    EditController *m_edit = nullptr;
    GcodeJobController *m_jobs = nullptr;
    MachinePanel *m_machinePanel = nullptr;
    MachineController *m_machine = nullptr;
    WifiLinkController *m_wifi = nullptr;
    WifiToolsController *m_wifiTools = nullptr;
    CameraController *m_camera = nullptr;
    ProductionController *m_production = nullptr;
};
