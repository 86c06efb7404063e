#include "widget.h"
#include "ui_widget.h"

#include "align_panel.h"
#include "barcode_actions.h"
#include "camera_controller.h"
#include "close_guard.h"
#include "cloud_controller.h"
#include "cut_order.h"
#include "design_pages.h"
#include "edit_controller.h"
#include "frame_area.h"
#include "gcode_job_controller.h"
#include "geometry_actions.h"
#include "grbl_machine_settings.h"
#include "import_actions.h"
#include "jiao_zhun.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "job_preview_dialog.h"
#include "job_time_display.h"
#include "language_controller.h"
#include "layer_list.h"
#include "layer_palette_bar.h"
#include "layer_panel_controller.h"
#include "layer_rows_panel.h"
#include "machine_controller.h"
#include "machine_panel.h"
#include "message_box.h"
#include "photo_panel.h"
#include "production_controller.h"
#include "program_state.h"
#include "project_commands.h"
#include "recent_files_menu.h"
#include "resume_offer.h"
#include "rotation_field.h"
#include "settings_store.h"
#include "tu_ceng_zhi.h"
#include "wheel_guard.h"
#include "wifi_link_controller.h"
#include "wifi_tools_controller.h"
#include "window_title.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QFile>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>
#include <QUndoStack>
#include <algorithm>

using namespace lumitra;

Widget::Widget(QWidget *parent) : QWidget(parent), ui(new Ui::Widget)
{
    ui->setupUi(this);
    setWindowTitle(QStringLiteral("Lumitra"));
    // Boxes of the panels change only when focused; the wheel elsewhere
    // scrolls the panel or zooms the canvas.
    lumitra::guardWheel(this);

    m_language = new LanguageController(this);
    ui->language_Btn->setMenu(m_language->menu());
    // Quitting for a new language goes through the same unsaved-work guard
    // as closing the window.
    connect(
        m_language, &LanguageController::quitRequested, this,
        [this](int exitCode) {
            if (!confirmQuit())
                return;
            m_machine->shutdownLink();
            emit quitRequested(exitCode);
        },
        Qt::QueuedConnection);

    setupDesign();
    setupEditing();
    setupLayers();
    setupImport();
    setupJobs();
    setupMachine();
    setupCloud();
    buildFileMenu();
    arrangePanels();

    setUnsavedListener([this](bool) { updateTitle(); });
    connect(m_project, &ProjectCommands::currentPathChanged, this, &Widget::updateTitle);
    updateTitle();
}

Widget::~Widget()
{
    setUnsavedListener({});
    delete ui;
}

void Widget::arrangePanels()
{
    // The side panels scroll vertically when the window is short, never
    // sideways: the tabs are as wide as the widest panel needs.
    int panelWidth = 0;
    for (QScrollArea *area : {ui->layerScroll, ui->machineScroll}) {
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        panelWidth = std::max(panelWidth, area->widget()->minimumSizeHint().width()
                                              + area->verticalScrollBar()->sizeHint().width());
    }
    ui->sideTabs->setMinimumWidth(panelWidth + 4);
    // The canvas takes what the window gains.
    ui->mainSplitter->setStretchFactor(0, 0);
    ui->mainSplitter->setStretchFactor(1, 1);
    ui->mainSplitter->setStretchFactor(2, 0);
}

void Widget::updateTitle()
{
    const bool unsaved = programState().unsaved;
    setWindowTitle(windowTitleFor(m_project->currentPath(), unsaved));
    setWindowModified(unsaved);
}

bool Widget::confirmQuit()
{
    return close_guard(this, programState().unsaved, designItemCount(), [this] {
        return m_project->save_project() == ProjectCommands::SaveOutcome::Saved;
    });
}

void Widget::setupDesign()
{
    m_pages = new DesignPages(ui->viewTab);
    ui->canvasHostLayout->addWidget(m_pages);
    m_project = new ProjectCommands(m_pages, this, this);
    connect(ui->open_Btn, &QPushButton::clicked, m_project, &ProjectCommands::open_project);
    connect(ui->save_Btn, &QPushButton::clicked, m_project, &ProjectCommands::save_project);
    // Dropped files land where they are dropped.
    connect(m_pages, &DesignPages::filesDroppedAt, m_project, &ProjectCommands::open_files_at);
}

void Widget::setupEditing()
{
    // The controller puts every edit action on the window, so shortcuts work
    // wherever the focus is; the double-click text edit is its job too.
    m_edit = new EditController(m_pages, this, this);
    auto *tools = new QToolBar(ui->toolHost);
    tools->setOrientation(Qt::Vertical);
    tools->setToolButtonStyle(Qt::ToolButtonTextOnly);
    tools->addActions(m_edit->toolActions());
    tools->addAction(m_edit->nodeToolAction());
    tools->addSeparator();
    for (EditController::Action a :
         {EditController::Text, EditController::Move, EditController::Array,
          EditController::MirrorHorizontal, EditController::MirrorVertical,
          EditController::RotateClockwise, EditController::RotateAnticlockwise,
          EditController::Combine, EditController::BreakApart})
        tools->addAction(m_edit->action(a));
    // Offset, weld and the other outline operations (in the edit menu).
    m_geometry = new GeometryActions(m_pages, this, this);
    ui->toolHostLayout->addWidget(tools);
    auto *align = new AlignPanel(ui->toolHost);
    ui->toolHostLayout->addWidget(align);
    ui->toolHostLayout->addStretch(1);
    connect(align, &AlignPanel::alignRequested, m_edit, &EditController::align);
    connect(align, &AlignPanel::distributeRequested, m_edit, &EditController::distribute);
    connect(m_edit, &EditController::selectionTextChanged, ui->selection_Lab, &QLabel::setText);
    new RotationField(ui->rotate_Box, m_edit, m_pages, this);
}

void Widget::setupLayers()
{
    m_palette = new LayerPaletteBar(ui->paletteHost);
    ui->paletteHostLayout->addWidget(m_palette);
    ui->paletteHostLayout->addStretch(1);
    m_layerRows = new LayerRowsPanel(ui->layerHost);
    m_layerParameters = new Tu_Ceng_Zhi(ui->layerHost);
    ui->layerHostLayout->addWidget(m_layerRows, 1);
    ui->layerHostLayout->addWidget(m_layerParameters);
    m_layers = new LayerPanelController(m_pages, m_layerRows, m_palette, m_layerParameters, this);
    m_layers->rebuild();
}

void Widget::setupImport()
{
    m_import = new ImportActions(this);
    connect(m_import, &ImportActions::itemsCreated, this, [this](const QList<Jk_tu_yuan *> &items) {
        if (Jk_chang_jing *scene = m_pages->currentScene())
            scene->addItemsUndoable(items);
    });
}

void Widget::setupJobs()
{
    m_jobs = new GcodeJobController(this, this);
    connect(ui->saveGcode_Btn, &QPushButton::clicked, this,
            [this] { m_jobs->saveGcode(currentDesignItems()); });
    connect(ui->rotary_Btn, &QPushButton::clicked, m_jobs, &GcodeJobController::editRotary);
    connect(ui->start_Btn, &QPushButton::clicked, this, &Widget::startJob);
    connect(ui->preview_Btn, &QPushButton::clicked, this, &Widget::previewJob);
}

void Widget::previewJob()
{
    const QList<Jk_tu_yuan *> items = currentDesignItems();
    if (items.isEmpty()) {
        show_notice(this, tr("没有可预览的图形!"));
        return;
    }
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("preview.nc"));
    if (!m_jobs->saveGcodeTo(items, path))
        return;
    QFile job(path);
    if (!job.open(QIODevice::ReadOnly))
        return;
    const ProgramState &s = programState();
    auto *dialog = new JobPreviewDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // Timed with the controller's own motion planning: with the settings it
    // last reported, or its factory settings when none has been connected yet
    // (the dialog says so, since those are rarely a laser's).
    const bool factorySettings = m_machine->machineSettings().isEmpty();
    const GrblMachineSettings machine = m_machine->plannedJobSettings();
    dialog->setPreview(
        renderJobPreview(job, QRectF(0, 0, s.width, s.height), 4.0, 2400, 1000.0, &machine),
        factorySettings);
    dialog->setTravelSaved(lumitra::cutOrderTravelSaved(items, LayerList::instance()));
    // The player plays the same job back, timed the same way.
    job.seek(0);
    dialog->setJob(job, &machine);
    dialog->show();
}

void Widget::setupCloud()
{
    // Account, material store and update check, behind a "云" button beside
    // the tools.
    m_cloud = new CloudController(this);
    m_cloud->setDesignFileProvider([this] { return m_project->currentPath(); });
    auto *menu = new QMenu(this);
    menu->addActions(m_cloud->actions());
    auto *button = new QToolButton(ui->tools_Btn->parentWidget());
    button->setObjectName(QStringLiteral("cloud_Btn"));
    button->setText(CloudController::menuTitle());
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(menu);
    for (QBoxLayout *row : ui->tools_Btn->parentWidget()->findChildren<QBoxLayout *>()) {
        const int at = row->indexOf(ui->tools_Btn);
        if (at >= 0) {
            row->insertWidget(at + 1, button);
            break;
        }
    }
    // A bought design opens on a page of its own.
    connect(m_cloud, &CloudController::openDesignFile, this, [this](const QString &path) {
        m_pages->setCurrentIndex(m_pages->addPage());
        m_project->open_file(path);
    });
    connect(m_cloud, &CloudController::quitForInstall, this, [this] {
        if (confirmQuit())
            emit quitRequested(0);
    });
}

void Widget::setupMachine()
{
    m_machinePanel = new MachinePanel(ui->machineHost);
    ui->machineHostLayout->addWidget(m_machinePanel);
    m_machine = new MachineController(m_machinePanel, this, this);
    // After an interrupted job: "resume from line N"; while one runs, the
    // time left beside the progress bar (the WiFi road is added below).
    auto *resumeOffer = new ResumeOffer(m_machine, m_machinePanel, this, this);
    auto *jobTime = new JobTimeDisplay(m_machine, m_machinePanel, this);
    m_machine->setFrameSource(
        [this] { return outputBounds(currentDesignItems(), LayerList::instance()); });
    // The board last reached over WiFi is offered again.
    const QString lastIp = get_setting(QStringLiteral("IP"));
    if (!lastIp.isEmpty())
        ui->ip_Edit->setText(lastIp);
    const QString lastPort = get_setting(QStringLiteral("Port"));
    if (!lastPort.isEmpty())
        ui->port_Edit->setText(lastPort);
    m_machine->setWifiAddress(ui->ip_Edit->text());
    m_wifi = new WifiLinkController(m_machine, ui->wifi_Btn, this, this);
    resumeOffer->watchWifi(m_wifi);
    jobTime->watchWifi(m_wifi);
    connect(ui->wifi_Btn, &QPushButton::clicked, m_wifi,
            [this] { m_wifi->toggle(ui->ip_Edit->text(), ui->port_Edit->text()); });
    m_wifiTools =
        new WifiToolsController(m_machine, m_wifi, ui->ip_Edit, ui->port_Edit, this, this);
    auto *tools = new QMenu(this);
    tools->addActions(m_wifiTools->actions());
    // The camera: calibration and the photo under the design (WiFi boards).
    m_camera = new CameraController(m_machine, m_wifi, m_jobs, m_pages, this, this);
    tools->addSeparator();
    tools->addActions(m_camera->actions());
    // Jobs start where the machine panel says (absolute, head, user origin).
    m_jobs->setJobStartSource([this] { return m_machine->jobStart(); });
    // Over the serial wire a raster job is checked against what the wire carries.
    m_jobs->setSerialLinkSource(
        [] { return programState().connectionMode == lumitra::SerialLink; });
    // QR codes and barcodes land on the current page like any import.
    auto *barcodes = new BarcodeActions(this);
    connect(barcodes, &BarcodeActions::itemsCreated, this,
            [this](const QList<Jk_tu_yuan *> &items) {
                if (Jk_chang_jing *scene = m_pages->currentScene())
                    scene->addItemsUndoable(items);
            });
    // Production: the parameter library and the material test card.
    m_production = new ProductionController(m_pages, m_layers, m_layerParameters, this, this);
    tools->addSeparator();
    tools->addActions(m_production->actions());
    tools->addActions(barcodes->actions());
    tools->addSeparator();
    tools->addActions(m_import->actions()); // colours to layers on import
    ui->tools_Btn->setMenu(tools);
    connect(m_machine, &MachineController::machineTravelKnown, m_pages,
            [this](const MachineTravel &, bool) { m_pages->refreshWorkArea(); });
    connect(m_machine, &MachineController::busyChanged, m_layers, [this](bool busy) {
        if (!busy)
            m_layers->rebuild(); // the list stayed frozen while the job ran
    });
    m_machine->startPortWatcher();
}

void Widget::startJob()
{
    if (programState().connectionMode == NotConnected) {
        show_notice(this, tr("请先连接设备!"));
        return;
    }
    if (m_machine->busy()) {
        show_notice(this, tr("设备雕刻中,暂时停止使用!"));
        return;
    }
    if (!m_jobs->prepareRun(currentDesignItems()))
        return;
    m_machine->runJob(programState().jobFilePath);
    // Progress, pause and stop are on the machine tab.
    ui->sideTabs->setCurrentWidget(ui->machineTab);
}

QList<Jk_tu_yuan *> Widget::currentDesignItems() const
{
    Jk_chang_jing *scene = m_pages->currentScene();
    return scene ? scene->designItems() : QList<Jk_tu_yuan *>();
}

QList<QGraphicsItem *> Widget::currentSelection() const
{
    Jk_chang_jing *scene = m_pages->currentScene();
    return scene ? scene->selectedItems() : QList<QGraphicsItem *>();
}

void Widget::buildFileMenu()
{
    auto *menu = new QMenu(this);
    QAction *newPage = menu->addAction(tr("新建页面"));
    connect(newPage, &QAction::triggered, m_pages, [this] { m_pages->addPage(); });
    QAction *open = menu->addAction(tr("打开"));
    open->setShortcut(QKeySequence::Open);
    connect(open, &QAction::triggered, m_project, &ProjectCommands::open_project);
    auto *recent = new RecentFilesMenu(menu);
    menu->addMenu(recent);
    connect(recent, &RecentFilesMenu::openRequested, m_project, &ProjectCommands::open_file);
    connect(m_project, &ProjectCommands::recentFilesChanged, recent, &RecentFilesMenu::refresh);
    QAction *save = menu->addAction(tr("保存"));
    save->setShortcut(QKeySequence::Save);
    connect(save, &QAction::triggered, m_project, &ProjectCommands::save_project);
    QAction *saveAs = menu->addAction(tr("另存为"));
    saveAs->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+S")));
    connect(saveAs, &QAction::triggered, m_project, &ProjectCommands::save_project_as);
    menu->addSeparator();
    QAction *preview = menu->addAction(tr("图像模式预览"));
    connect(preview, &QAction::triggered, this,
            [this] { m_import->openModePreview(currentSelection()); });
    QAction *trace = menu->addAction(tr("描摹位图"));
    connect(trace, &QAction::triggered, this,
            [this] { m_import->traceSelection(currentSelection()); });
    menu->addSeparator();
    QAction *quit = menu->addAction(tr("退出"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &QWidget::close);
    ui->file_Btn->setMenu(menu);
    addActions(menu->actions()); // shortcuts work without opening the menu

    auto *edit = new QMenu(this);
    for (EditController::Action a :
         {EditController::Undo, EditController::Redo, EditController::Cut, EditController::Copy,
          EditController::Paste, EditController::Duplicate, EditController::Delete,
          EditController::SelectAll})
        edit->addAction(m_edit->action(a));
    edit->addSeparator();
    edit->addActions(m_geometry->actions());
    ui->edit_Btn->setMenu(edit);
}

void Widget::openFiles(const QStringList &paths)
{
    m_project->open_files(paths);
}

int Widget::designItemCount() const
{
    return m_pages->totalItemCount();
}

void Widget::closeEvent(QCloseEvent *event)
{
    if (!confirmQuit()) {
        event->ignore();
        return;
    }
    // The laser goes off (and a running job stops) before the window goes.
    m_machine->shutdownLink();
    event->accept();
}
