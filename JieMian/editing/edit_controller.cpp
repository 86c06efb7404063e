#include "edit_controller.h"

#include "array_dialog.h"
#include "combine.h"
#include "design_pages.h"
#include "drawing_tools.h"
#include "drawn_shapes.h"
#include "geometry_command.h"
#include "item_clipboard.h"
#include "item_geometry.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "jk_wen_zi2.h"
#include "move_dialog.h"
#include "node_tool.h"
#include "selection_tool.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTimer>
#include <QUndoGroup>
#include <QUndoStack>
#include <cmath>
#include <functional>

using namespace lumitra;

EditController::EditController(DesignPages *pages, QWidget *window, QObject *parent)
    : QObject(parent), m_pages(pages), m_window(window), m_selection(new SelectionTool),
      m_nodeTool(new NodeTool), m_updateTimer(new QTimer(this))
{
    m_drawingTools.resize(CurveTool + 1);
    m_drawingTools[LineTool] = new PolylineTool;
    for (int tool = RectangleTool; tool <= StarTool; ++tool)
        m_drawingTools[tool] = new ShapeTool(tool);
    m_drawingTools[CurveTool] = new BezierPenTool;

    m_updateTimer->setSingleShot(true);
    m_updateTimer->setInterval(0);
    connect(m_updateTimer, &QTimer::timeout, this, &EditController::updateActions);
    connect(m_selection.get(), &SelectionTool::selectionBoundsChanged, this,
            [this](const QRectF &bounds, int count) {
                emit selectionChanged(bounds, count);
                emit selectionTextChanged(placementText(bounds, count));
            });
    // The node tool changes one outline: its size follows while a node moves.
    connect(m_nodeTool.get(), &NodeTool::outlineChanged, this, [this](const QRectF &bounds) {
        emit selectionChanged(bounds, 1);
        emit selectionTextChanged(placementText(bounds, 1));
    });
    makeActions(window);
    makeToolActions(window);
    connect(pages, &DesignPages::currentPageChanged, this, &EditController::onPageChanged);
    connect(pages, &DesignPages::textEditRequested, this, &EditController::editText);
    onPageChanged();
}

EditController::~EditController()
{
    if (m_scene && m_scene->tool() && m_scene->tool() != m_selection.get()
        && m_scene->tool() != m_nodeTool.get())
        m_scene->setTool(nullptr);
    m_selection.reset();
    m_nodeTool.reset();
    qDeleteAll(m_drawingTools);
}

QList<QAction *> EditController::actions() const
{
    return m_actions.toList();
}

QAction *EditController::toolAction(int number) const
{
    if (number == kNodeToolNumber)
        return m_nodeAction;
    const QList<QAction *> tools = toolActions();
    return number >= 0 && number < tools.size() ? tools.at(number) : nullptr;
}

QList<QAction *> EditController::toolActions() const
{
    QList<QAction *> tools = m_toolGroup->actions();
    tools.removeOne(m_nodeAction);
    return tools;
}

void EditController::makeActions(QWidget *window)
{
    m_actions.resize(ActionCount);
    QUndoGroup *undo = m_pages->undoGroup();
    m_actions[Undo] = undo->createUndoAction(this, tr("撤销"));
    m_actions[Undo]->setShortcut(QKeySequence::Undo);
    m_actions[Redo] = undo->createRedoAction(this, tr("重做"));
    QList<QKeySequence> redoKeys = QKeySequence::keyBindings(QKeySequence::Redo);
    if (!redoKeys.contains(QKeySequence(QStringLiteral("Ctrl+Y"))))
        redoKeys << QKeySequence(QStringLiteral("Ctrl+Y"));
    m_actions[Redo]->setShortcuts(redoKeys);

    const auto make = [this](Action which, const QString &text, const QKeySequence &keys,
                             const std::function<void()> &run) {
        auto *a = new QAction(text, this);
        a->setShortcut(keys);
        connect(a, &QAction::triggered, this, run);
        m_actions[which] = a;
    };
    const auto keys = [](const char *k) { return QKeySequence(QString::fromLatin1(k)); };
    make(Cut, tr("剪切"), QKeySequence::Cut, [this] { cut(); });
    make(Copy, tr("复制"), QKeySequence::Copy, [this] { copy(); });
    make(Paste, tr("粘贴"), QKeySequence::Paste, [this] { paste(); });
    make(Duplicate, tr("再制"), keys("Ctrl+D"), [this] { duplicate(); });
    make(Delete, tr("删除"), QKeySequence::Delete, [this] { deleteSelection(); });
    make(SelectAll, tr("全选"), QKeySequence::SelectAll, [this] { selectAll(); });
    make(MirrorHorizontal, tr("水平镜像"), keys("Ctrl+Shift+H"), [this] { mirror(true); });
    make(MirrorVertical, tr("垂直镜像"), keys("Ctrl+Shift+J"), [this] { mirror(false); });
    make(RotateClockwise, tr("顺时针旋转90°"), keys("Ctrl+R"), [this] { rotateSelection(90); });
    make(RotateAnticlockwise, tr("逆时针旋转90°"), keys("Ctrl+Shift+R"),
         [this] { rotateSelection(-90); });
    make(Combine, tr("组合"), keys("Ctrl+L"), [this] { combine(); });
    make(BreakApart, tr("打散"), keys("Ctrl+K"), [this] { breakApart(); });
    make(Text, tr("文字"), keys("Ctrl+T"), [this] { newText(); });
    make(Move, tr("移动"), keys("Ctrl+M"), [this] { openMoveDialog(); });
    make(Array, tr("阵列"), QKeySequence(), [this] { openArrayDialog(); });
    for (QAction *a : qAsConst(m_actions)) {
        a->setShortcutContext(Qt::WindowShortcut);
        if (window)
            window->addAction(a);
    }
}

void EditController::makeToolActions(QWidget *window)
{
    m_toolGroup = new QActionGroup(this);
    m_toolGroup->setExclusive(true);
    const QString names[] = {tr("选择"),   tr("直线"),   tr("矩形"),   tr("椭圆"), tr("三角形"),
                             tr("五边形"), tr("六边形"), tr("五角星"), tr("曲线")};
    for (int number = 0; number <= CurveTool; ++number) {
        auto *a = new QAction(names[number], m_toolGroup);
        a->setCheckable(true);
        a->setData(number);
        a->setChecked(number == 0);
        connect(a, &QAction::triggered, this, [this, number] { setTool(number); });
        if (window)
            window->addAction(a);
    }
    m_nodeAction = new QAction(tr("节点"), m_toolGroup);
    m_nodeAction->setCheckable(true);
    m_nodeAction->setData(kNodeToolNumber);
    connect(m_nodeAction, &QAction::triggered, this, [this] { setTool(kNodeToolNumber); });
    if (window)
        window->addAction(m_nodeAction);
}

Jk_chang_jing *EditController::scene() const
{
    return m_pages->currentScene();
}

QList<Jk_tu_yuan *> EditController::selectedItems() const
{
    Jk_chang_jing *s = scene();
    return s ? s->selectedDesignItems() : QList<Jk_tu_yuan *>();
}

bool EditController::push(QUndoCommand *command)
{
    Jk_chang_jing *s = scene();
    if (!command || !s) {
        delete command;
        return false;
    }
    s->undoStack()->push(command);
    return true;
}

SceneTool *EditController::toolFor(int number) const
{
    if (number > 0 && number < m_drawingTools.size())
        return m_drawingTools.at(number);
    return nullptr;
}

void EditController::setTool(int number)
{
    if (number < 0 || (number > CurveTool && number != kNodeToolNumber))
        number = 0;
    m_toolNumber = number;
    Jk_chang_jing *s = scene();
    if (s) {
        if (number == 0)
            m_selection->activate(s);
        else if (number == kNodeToolNumber)
            m_nodeTool->activate(s);
        else
            s->setTool(toolFor(number));
    }
    if (QAction *a = toolAction(number))
        a->setChecked(true);
    emit toolChanged(number);
}

void EditController::onPageChanged()
{
    Jk_chang_jing *now = scene();
    if (m_scene && m_scene != now) {
        // The tools serve one page at a time.
        if (m_scene->tool() == m_selection.get() || m_scene->tool() == m_nodeTool.get()
            || m_drawingTools.contains(m_scene->tool()))
            m_scene->setTool(nullptr);
        disconnect(m_scene, nullptr, this, nullptr);
    }
    m_scene = now;
    if (now) {
        connect(now, &QGraphicsScene::selectionChanged, this, &EditController::scheduleUpdate);
        setTool(m_toolNumber);
    }
    updateActions();
}

void EditController::scheduleUpdate()
{
    m_updateTimer->start();
}

void EditController::updateActions()
{
    Jk_chang_jing *s = scene();
    int count = 0;
    int vectors = 0;
    if (s) {
        for (QGraphicsItem *g : s->selectedItems()) {
            if (auto *item = dynamic_cast<Jk_tu_yuan *>(g)) {
                ++count;
                vectors += item->is_bitmap ? 0 : 1;
            }
        }
    }
    for (Action a : {Cut, Copy, Duplicate, Delete, MirrorHorizontal, MirrorVertical,
                     RotateClockwise, RotateAnticlockwise, Move, Array})
        m_actions[a]->setEnabled(count > 0);
    m_actions[Combine]->setEnabled(vectors >= 2);
    m_actions[BreakApart]->setEnabled(vectors >= 1);
}

void EditController::copy()
{
    const QList<Jk_tu_yuan *> items = selectedItems();
    if (items.isEmpty())
        return;
    QApplication::clipboard()->setMimeData(itemsMimeData(items));
    m_pasteCount = 1;
}

void EditController::cut()
{
    const QList<Jk_tu_yuan *> items = selectedItems();
    if (items.isEmpty())
        return;
    QApplication::clipboard()->setMimeData(itemsMimeData(items));
    m_pasteCount = 0; // the first paste puts them back where they were
    scene()->deleteItemsUndoable(items);
}

void EditController::paste()
{
    const double d = kCopyOffset * m_pasteCount;
    if (push(makePasteCommand(scene(), QApplication::clipboard()->mimeData(), QPointF(d, d))))
        ++m_pasteCount;
}

void EditController::duplicate()
{
    push(makeDuplicateCommand(scene(), selectedItems(), QPointF(kCopyOffset, kCopyOffset)));
}

void EditController::deleteSelection()
{
    // With the node tool on a chosen node, the delete key takes the node.
    if (m_toolNumber == kNodeToolNumber && m_nodeTool->scene() == scene()
        && m_nodeTool->chosenNode().isValid()) {
        m_nodeTool->apply(NodeTool::DeleteNode);
        return;
    }
    const QList<Jk_tu_yuan *> items = selectedItems();
    if (!items.isEmpty())
        scene()->deleteItemsUndoable(items);
}

void EditController::selectAll()
{
    Jk_chang_jing *s = scene();
    if (!s)
        return;
    for (QGraphicsItem *g : s->items()) {
        auto *item = dynamic_cast<Jk_tu_yuan *>(g);
        if (item && !item->isOnHiddenLayer())
            item->setSelected(true);
    }
}

void EditController::mirror(bool horizontal)
{
    const QList<Jk_tu_yuan *> items = selectedItems();
    if (!items.isEmpty())
        push(makeMirrorCommand(items, horizontal));
}

void EditController::rotateSelection(double degrees)
{
    const QList<Jk_tu_yuan *> items = selectedItems();
    if (!items.isEmpty())
        push(makeRotateCommand(items, degrees, outlineBounds(items).center()));
}

void EditController::combine()
{
    push(makeCombineCommand(scene(), selectedItems()));
}

void EditController::breakApart()
{
    push(makeBreakApartCommand(scene(), selectedItems()));
}

void EditController::align(Alignment alignment)
{
    const QList<Jk_tu_yuan *> items = selectedItems();
    // Aligning one item to itself changes nothing, but centring it does.
    if (items.size() > 1 || (items.size() == 1 && alignment == Alignment::WorkAreaCentre))
        push(makeAlignCommand(items, alignment));
}

void EditController::distribute(Qt::Orientation orientation)
{
    const QList<Jk_tu_yuan *> items = selectedItems();
    if (items.size() >= 3)
        push(makeDistributeCommand(items, orientation));
}

bool EditController::addText(const QString &text, const TextSettings &settings)
{
    Jk_chang_jing *s = scene();
    Jk_tu_yuan *item = s ? createTextItem(text, settings) : nullptr;
    if (!item)
        return false;
    s->addItemsUndoable({item});
    return true;
}

bool EditController::replaceText(Jk_tu_yuan *item, const QString &text,
                                 const TextSettings &settings)
{
    return push(makeReplaceTextCommand(item, text, settings));
}

bool EditController::place(const Placement &placement)
{
    const QList<Jk_tu_yuan *> items = selectedItems();
    return !items.isEmpty() && push(makePlaceCommand(items, placement));
}

bool EditController::rectangularArray(const RectangularArray &array)
{
    return push(makeRectangularArrayCommand(scene(), selectedItems(), array));
}

bool EditController::circularArray(const CircularArray &array)
{
    return push(makeCircularArrayCommand(scene(), selectedItems(), array));
}

void EditController::newText()
{
    delete m_textDialog;
    m_textDialog = new Jk_wen_zi2(m_window);
    m_textDialog->setAttribute(Qt::WA_DeleteOnClose);
    Jk_wen_zi2 *dialog = m_textDialog;
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { addText(dialog->text(), dialog->settings()); });
    dialog->open();
}

void EditController::editText(Jk_tu_yuan *item)
{
    if (!item || item->is_bitmap || item->wen_zi.isEmpty())
        return;
    delete m_textDialog;
    m_textDialog = new Jk_wen_zi2(m_window);
    m_textDialog->setAttribute(Qt::WA_DeleteOnClose);
    Jk_wen_zi2 *dialog = m_textDialog;
    dialog->setText(item->wen_zi);
    TextSettings settings;
    if (TextSettings::fromString(item->zi_ti, &settings))
        dialog->setSettings(settings);
    QPointer<Jk_tu_yuan> target(item);
    connect(dialog, &QDialog::accepted, this, [this, dialog, target] {
        if (target)
            replaceText(target, dialog->text(), dialog->settings());
    });
    dialog->open();
}

void EditController::openMoveDialog()
{
    const QList<Jk_tu_yuan *> items = selectedItems();
    if (items.isEmpty())
        return;
    delete m_moveDialog;
    m_moveDialog = new MoveDialog(m_window);
    m_moveDialog->setAttribute(Qt::WA_DeleteOnClose);
    MoveDialog *dialog = m_moveDialog;
    // One item shows its own turn; a group starts at 0.
    const double shown = items.size() == 1 ? std::fmod(items.first()->jiao_du, 360.0) : 0.0;
    dialog->setSelection(outlineBounds(items), shown);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { place(dialog->placement()); });
    dialog->open();
}

void EditController::openArrayDialog()
{
    if (selectedItems().isEmpty())
        return;
    delete m_arrayDialog;
    m_arrayDialog = new ArrayDialog(m_window);
    m_arrayDialog->setAttribute(Qt::WA_DeleteOnClose);
    ArrayDialog *dialog = m_arrayDialog;
    dialog->setCentre(Jk_chang_jing::workAreaRect().center());
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        if (dialog->isCircular())
            circularArray(dialog->circular());
        else
            rectangularArray(dialog->rectangular());
    });
    dialog->open();
}
