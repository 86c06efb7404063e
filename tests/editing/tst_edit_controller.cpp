// The edit controller on real design pages (tools, actions and shortcuts,
// clipboard, transforms) and the text, move and array dialogs and alignment
// buttons it opens.
#include "align_panel.h"
#include "array_dialog.h"
#include "combine.h"
#include "design_pages.h"
#include "edit_controller.h"
#include "editing_test_support.h"
#include "item_geometry.h"
#include "jk_chang_jing.h"
#include "jk_wen_zi2.h"
#include "layer_list.h"
#include "message_box.h"
#include "move_dialog.h"
#include "program_state.h"
#include "scene_tool.h"
#include "selection_tool.h"

#include <QAction>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTabWidget>
#include <QToolButton>
#include <QUndoStack>
#include <QtTest>

using namespace lumitra;
using namespace editing_test;

Q_DECLARE_METATYPE(lumitra::Alignment)

namespace {

template<typename T> T *child(QObject *parent, const char *name)
{
    T *w = parent->findChild<T *>(QString::fromLatin1(name));
    if (!w)
        qFatal("no child %s", name);
    return w;
}

struct Window
{
    QWidget window;
    DesignPages *pages = new DesignPages(&window);
    EditController edit{pages, &window};

    Jk_chang_jing *scene() const { return pages->currentScene(); }
    QUndoStack *stack() const { return scene()->undoStack(); }
    // Puts items onto the current page as the importers do and selects them.
    QList<Jk_tu_yuan *> add(const QList<Jk_tu_yuan *> &items)
    {
        for (Jk_tu_yuan *i : items)
            i->setSelected(true);
        scene()->addItemsUndoable(items);
        return items;
    }
};

} // namespace

class TestEditController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { set_message_handler({}); }

    void actionsCarryTheStandardShortcuts();
    void toolsFollowTheCurrentPage();
    void actionsFollowTheSelection();
    void copyPasteAndCut();
    void duplicateAndDelete();
    void selectAllSkipsHiddenLayers();
    void transformActionsAreUndoable_data();
    void transformActionsAreUndoable();
    void textIsCreatedAndReEdited();
    void moveDialogPlacesTheSelection();
    void arrayDialogAddsCopies();
    void selectionIsReportedInMillimetres();

    void textDialogRefusesEmptyText_data();
    void textDialogRefusesEmptyText();
    void moveDialogShowsMachineCoordinates();
    void moveDialogLockRatio_data();
    void moveDialogLockRatio();
    void arrayDialogValues();
    void alignButtons_data();
    void alignButtons();

private:
    QStringList m_notices;
};

void TestEditController::initTestCase()
{
    // Signal spies record only argument types known at run time.
    qRegisterMetaType<Alignment>();
    qRegisterMetaType<Qt::Orientation>();
}

void TestEditController::init()
{
    resetProgramState();
    m_notices.clear();
    set_message_handler([this](const MessageRequest &r) {
        m_notices << r.message;
        return 1;
    });
}

void TestEditController::actionsCarryTheStandardShortcuts()
{
    Window w;
    const std::pair<EditController::Action, QKeySequence> expected[] = {
        {EditController::Undo, QKeySequence::Undo},
        {EditController::Redo, QKeySequence::Redo},
        {EditController::Cut, QKeySequence::Cut},
        {EditController::Copy, QKeySequence::Copy},
        {EditController::Paste, QKeySequence::Paste},
        {EditController::Duplicate, QKeySequence("Ctrl+D")},
        {EditController::Delete, QKeySequence::Delete},
        {EditController::SelectAll, QKeySequence::SelectAll}};
    for (const auto &[action, keys] : expected) {
        QAction *a = w.edit.action(action);
        QVERIFY(a && a->shortcuts().contains(keys));
        QVERIFY(w.window.actions().contains(a)); // live anywhere in the window
    }
    // No two actions share a shortcut.
    QSet<QString> seen;
    for (QAction *each : w.window.actions()) {
        for (const QKeySequence &k : each->shortcuts()) {
            QVERIFY2(!seen.contains(k.toString()), qPrintable(k.toString()));
            seen.insert(k.toString());
        }
    }
}

void TestEditController::toolsFollowTheCurrentPage()
{
    Window w;
    QSignalSpy changed(&w.edit, &EditController::toolChanged);
    QCOMPARE(w.scene()->tool(), static_cast<SceneTool *>(w.edit.selectionTool()));
    w.edit.toolAction(7)->trigger();
    QCOMPARE(w.edit.currentTool(), 7);
    QCOMPARE(w.scene()->tool()->number(), 7);
    QVERIFY(w.edit.toolAction(7)->isChecked());
    QVERIFY(!w.edit.toolAction(0)->isChecked());
    QCOMPARE(changed.last().first().toInt(), 7);
    Jk_chang_jing *first = w.scene();
    w.pages->addPage();
    QVERIFY(w.scene() != first);
    QCOMPARE(first->tool(), nullptr);
    QCOMPARE(w.scene()->tool()->number(), 7);
    w.edit.setTool(0);
    QCOMPARE(w.scene()->tool(), static_cast<SceneTool *>(w.edit.selectionTool()));
    w.pages->setCurrentIndex(0);
    QCOMPARE(w.scene(), first);
    QCOMPARE(first->tool(), static_cast<SceneTool *>(w.edit.selectionTool()));
    w.edit.setTool(42); // unknown: back to selection
    QCOMPARE(w.edit.currentTool(), 0);

    // Closing the page the tools serve hands them to the page that remains.
    first->addItemsUndoable({rectItem(0, -10, 5, 5)});
    QCoreApplication::processEvents(); // the selection frame is up
    QVERIFY(w.pages->closePage(0));
    QCOMPARE(w.pages->count(), 1);
    QCOMPARE(w.scene()->tool(), static_cast<SceneTool *>(w.edit.selectionTool()));
    w.edit.setTool(3);
    QVERIFY(w.pages->closePage(w.pages->addPage() == 1 ? 0 : 1));
    QCOMPARE(w.scene()->tool()->number(), 3);
}

void TestEditController::actionsFollowTheSelection()
{
    Window w;
    QCoreApplication::processEvents();
    QVERIFY(!w.edit.action(EditController::Copy)->isEnabled());
    QVERIFY(!w.edit.action(EditController::Combine)->isEnabled());
    w.add({rectItem(0, -10, 5, 5)});
    QCoreApplication::processEvents();
    QVERIFY(w.edit.action(EditController::Copy)->isEnabled());
    QVERIFY(w.edit.action(EditController::BreakApart)->isEnabled());
    QVERIFY(!w.edit.action(EditController::Combine)->isEnabled());
    w.add({rectItem(20, -10, 5, 5), rectItem(40, -10, 5, 5)});
    w.edit.selectAll();
    QCoreApplication::processEvents();
    QVERIFY(w.edit.action(EditController::Combine)->isEnabled());
    w.scene()->clearSelection();
    QCoreApplication::processEvents();
    QVERIFY(!w.edit.action(EditController::Delete)->isEnabled());
}

void TestEditController::copyPasteAndCut()
{
    Window w;
    const QList<Jk_tu_yuan *> items = w.add({rectItem(0, -10, 5, 5), rectItem(10, -10, 5, 5)});
    const QVector<QPainterPath> originals = scenePaths(items);
    w.edit.action(EditController::Copy)->trigger();
    w.edit.action(EditController::Paste)->trigger();
    w.edit.action(EditController::Paste)->trigger();
    QCOMPARE(w.scene()->designItemCount(), 6);
    // The second paste lies one step further than the first; the pasted items
    // are the selection.
    const QList<Jk_tu_yuan *> second = w.edit.selectedItems();
    QCOMPARE(second.size(), 2);
    QVERIFY(sameRect(outlineBounds(second), QRectF(20, 10, 15, 5)));
    w.stack()->undo();
    w.stack()->undo();
    QCOMPARE(w.scene()->designItemCount(), 2);

    for (Jk_tu_yuan *i : items)
        i->setSelected(true);
    w.edit.action(EditController::Cut)->trigger();
    QCOMPARE(w.scene()->designItemCount(), 0);
    w.edit.action(EditController::Paste)->trigger();
    QCOMPARE(w.scene()->designItemCount(), 2);
    // After a cut the first paste puts them back where they were.
    QVERIFY(samePaths(scenePaths(w.edit.selectedItems()), originals)
            || samePaths(scenePaths({w.edit.selectedItems().at(1), w.edit.selectedItems().at(0)}),
                         originals));
}

void TestEditController::duplicateAndDelete()
{
    Window w;
    w.add({rectItem(0, -10, 5, 5)});
    w.edit.action(EditController::Duplicate)->trigger();
    QCOMPARE(w.scene()->designItemCount(), 2);
    QCOMPARE(w.edit.selectedItems().size(), 1);
    QVERIFY(sameRect(outlineBounds(w.edit.selectedItems()), QRectF(10, 0, 5, 5)));
    w.edit.action(EditController::Delete)->trigger();
    QCOMPARE(w.scene()->designItemCount(), 1);
    w.stack()->undo();
    QCOMPARE(w.scene()->designItemCount(), 2);
}

void TestEditController::selectAllSkipsHiddenLayers()
{
    Window w;
    Jk_tu_yuan *shown = rectItem(0, -10, 5, 5);
    Jk_tu_yuan *hidden = rectItem(10, -10, 5, 5);
    hidden->layer_id = 3;
    w.add({shown, hidden}); // the layer list is rebuilt with both layers
    TuCeng *layer = LayerList::instance().find(3, false);
    QVERIFY(layer);
    layer->xianshi = false;
    w.scene()->clearSelection();
    w.edit.action(EditController::SelectAll)->trigger();
    QCOMPARE(w.edit.selectedItems(), QList<Jk_tu_yuan *>{shown});
}

void TestEditController::transformActionsAreUndoable_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<int>("itemsAfter");
    QTest::newRow("mirror horizontally") << int(EditController::MirrorHorizontal) << 3;
    QTest::newRow("mirror vertically") << int(EditController::MirrorVertical) << 3;
    QTest::newRow("turn clockwise") << int(EditController::RotateClockwise) << 3;
    QTest::newRow("turn anticlockwise") << int(EditController::RotateAnticlockwise) << 3;
    QTest::newRow("combine") << int(EditController::Combine) << 1;
}

void TestEditController::transformActionsAreUndoable()
{
    QFETCH(int, action);
    QFETCH(int, itemsAfter);
    Window w;
    QPainterPath tri;
    tri.moveTo(0, 0);
    tri.lineTo(10, 0);
    tri.lineTo(0, 4);
    tri.closeSubpath();
    auto *t = new Jk_tu_yuan(tri, 1);
    t->setPos(30, -40);
    w.add({rectItem(0, -10, 5, 5), rectItem(10, -30, 8, 5), t});
    const QList<Jk_tu_yuan *> before = w.scene()->designItems();
    const QVector<QPainterPath> start = scenePaths(before);
    w.edit.action(EditController::Action(action))->trigger();
    QCOMPARE(w.scene()->designItemCount(), itemsAfter);
    const QVector<QPainterPath> after = scenePaths(w.scene()->designItems());
    QVERIFY(!samePaths(after, start));
    // The selection's bounds keep their centre.
    QVERIFY(QLineF(outlineBounds(w.scene()->designItems()).center(), outlineBounds(before).center())
                .length()
            < 1e-9);
    w.stack()->undo();
    QVERIFY(samePaths(scenePaths(w.scene()->designItems()), start));
    w.stack()->redo();
    QVERIFY(samePaths(scenePaths(w.scene()->designItems()), after));
    if (action == EditController::Combine) {
        w.edit.action(EditController::BreakApart)->trigger();
        QCOMPARE(w.scene()->designItemCount(), 3);
    }
}

void TestEditController::textIsCreatedAndReEdited()
{
    Window w;
    w.edit.action(EditController::Text)->trigger();
    Jk_wen_zi2 *dialog = w.edit.textDialog();
    QVERIFY(dialog && dialog->isVisible());
    dialog->setText("Lu");
    TextSettings s;
    s.family = "DejaVu Sans";
    s.sizeMm = 20;
    dialog->setSettings(s);
    dialog->accept();
    QCOMPARE(w.scene()->designItemCount(), 1);
    Jk_tu_yuan *item = w.scene()->designItems().first();
    QCOMPARE(item->wen_zi, QString("Lu"));
    QVERIFY(samePaths({item->path}, {textOutline("Lu", s)}));
    QCOMPARE(w.stack()->count(), 1);

    // The item's double-click reaches the controller through the pages.
    emit w.scene()->textEditRequested(item);
    dialog = w.edit.textDialog();
    QVERIFY(dialog);
    QCOMPARE(dialog->text(), QString("Lu"));
    QVERIFY(dialog->settings() == s);
    dialog->setText("Lumen");
    dialog->accept();
    QCOMPARE(w.scene()->designItemCount(), 1);
    QCOMPARE(item->wen_zi, QString("Lumen"));
    QCOMPARE(w.stack()->count(), 2);
    w.stack()->undo();
    QCOMPARE(item->wen_zi, QString("Lu"));
    QVERIFY(samePaths({item->path}, {textOutline("Lu", s)}));

    // Items not made from text do not open the dialog.
    Jk_tu_yuan *plain = rectItem(0, 0, 5, 5);
    w.add({plain});
    w.edit.editText(plain);
    QVERIFY(!w.edit.textDialog() || !w.edit.textDialog()->isVisible());
}

void TestEditController::moveDialogPlacesTheSelection()
{
    Window w;
    w.add({rectItem(10, -60, 40, 20)});
    w.edit.action(EditController::Move)->trigger();
    MoveDialog *dialog = w.edit.moveDialog();
    QVERIFY(dialog);
    child<QDoubleSpinBox>(dialog, "x_Box")->setValue(100);
    child<QDoubleSpinBox>(dialog, "y_Box")->setValue(200);
    child<QDoubleSpinBox>(dialog, "kuan_Box")->setValue(20); // ratio locked
    dialog->accept();
    QVERIFY(sameRect(outlineBounds(w.edit.selectedItems()), QRectF(100, -210, 20, 10)));
    QCOMPARE(w.stack()->count(), 2);
    w.stack()->undo();
    QVERIFY(sameRect(outlineBounds(w.edit.selectedItems()), QRectF(10, -60, 40, 20)));
}

void TestEditController::arrayDialogAddsCopies()
{
    Window w;
    w.add({rectItem(0, -10, 10, 10)});
    w.edit.action(EditController::Array)->trigger();
    ArrayDialog *dialog = w.edit.arrayDialog();
    QVERIFY(dialog);
    dialog->accept(); // 2 x 2 with 5 mm gaps
    QCOMPARE(w.scene()->designItemCount(), 4);
    QVERIFY(sameRect(outlineBounds(w.scene()->designItems()), QRectF(0, -10, 25, 25)));
    w.stack()->undo();
    QCOMPARE(w.scene()->designItemCount(), 1);
}

void TestEditController::selectionIsReportedInMillimetres()
{
    Window w;
    QSignalSpy text(&w.edit, &EditController::selectionTextChanged);
    w.add({rectItem(12, -50.5, 40, 20)});
    QCoreApplication::processEvents();
    QVERIFY(!text.isEmpty());
    QCOMPARE(text.last().first().toString(), QString("X: 12.00  Y: 30.50  W: 40.00  H: 20.00 mm"));
    w.scene()->clearSelection();
    QCoreApplication::processEvents();
    QCOMPARE(text.last().first().toString(), QString());
}

void TestEditController::textDialogRefusesEmptyText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("refused");
    QTest::newRow("blanks") << " \n  " << true;
    QTest::newRow("a letter") << "A" << false;
}

void TestEditController::textDialogRefusesEmptyText()
{
    QFETCH(QString, text);
    QFETCH(bool, refused);
    Jk_wen_zi2 dialog;
    child<QPlainTextEdit>(&dialog, "wenzi_Edit")->setPlainText(text);
    dialog.open();
    dialog.accept();
    QCOMPARE(dialog.isVisible(), refused);
    QCOMPARE(dialog.result(), refused ? int(QDialog::Rejected) : int(QDialog::Accepted));
    QCOMPARE(m_notices, refused ? QStringList{"请输入文字"} : QStringList{});
}

void TestEditController::moveDialogShowsMachineCoordinates()
{
    MoveDialog dialog;
    dialog.setSelection(QRectF(10, -60, 40, 20), 30);
    Placement p = dialog.placement();
    QCOMPARE(p.machineRect, QRectF(10, 40, 40, 20));
    QCOMPARE(p.rotation, 0.0);
    QVERIFY(!p.resize);
    child<QDoubleSpinBox>(&dialog, "x_Box")->setValue(-5);
    child<QDoubleSpinBox>(&dialog, "jiaodu_Box")->setValue(75);
    p = dialog.placement();
    QCOMPARE(p.machineRect.topLeft(), QPointF(-5, 40));
    QCOMPARE(p.rotation, 45.0); // relative to the 30 shown
    QVERIFY(!p.resize);
}

void TestEditController::moveDialogLockRatio_data()
{
    QTest::addColumn<bool>("locked");
    QTest::addColumn<QString>("edited");
    QTest::addColumn<double>("value");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("locked, height") << true << "gao_Box" << 5.0 << QSizeF(10, 5);
    QTest::newRow("free, width") << false << "kuan_Box" << 80.0 << QSizeF(80, 20);
}

void TestEditController::moveDialogLockRatio()
{
    QFETCH(bool, locked);
    QFETCH(QString, edited);
    QFETCH(double, value);
    QFETCH(QSizeF, size);
    MoveDialog dialog;
    dialog.setSelection(QRectF(0, -20, 40, 20), 0);
    child<QCheckBox>(&dialog, "suoding_Box")->setChecked(locked);
    child<QDoubleSpinBox>(&dialog, edited.toLatin1().constData())->setValue(value);
    const Placement p = dialog.placement();
    QCOMPARE(p.machineRect.size(), size);
    QVERIFY(p.resize);
}

void TestEditController::arrayDialogValues()
{
    ArrayDialog dialog;
    dialog.setCentre(QPointF(200, -150));
    QVERIFY(!dialog.isCircular());
    child<QSpinBox>(&dialog, "hang_Box")->setValue(3);
    child<QSpinBox>(&dialog, "lie_Box")->setValue(4);
    child<QDoubleSpinBox>(&dialog, "hengjianju_Box")->setValue(2.5);
    child<QDoubleSpinBox>(&dialog, "zongjianju_Box")->setValue(-1);
    const RectangularArray r = dialog.rectangular();
    QCOMPARE(r.rows, 3);
    QCOMPARE(r.columns, 4);
    QCOMPARE(r.gapX, 2.5);
    QCOMPARE(r.gapY, -1.0);
    // The centre is shown in machine coordinates and handed back in scene ones.
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "zhongxinY_Box")->value(), 150.0);
    auto *tabs = child<QTabWidget>(&dialog, "leixing_Tab");
    tabs->setCurrentIndex(1);
    QVERIFY(dialog.isCircular());
    child<QSpinBox>(&dialog, "shuliang_Box")->setValue(8);
    child<QDoubleSpinBox>(&dialog, "zhongxinX_Box")->setValue(50);
    child<QCheckBox>(&dialog, "xuanzhuan_Box")->setChecked(false);
    const CircularArray c = dialog.circular();
    QCOMPARE(c.count, 8);
    QCOMPARE(c.centre, QPointF(50, -150));
    QCOMPARE(c.sweep, 360.0);
    QVERIFY(!c.rotateCopies);
}

void TestEditController::alignButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("alignment"); // -1 horizontal spacing, -2 vertical
    QTest::newRow("left") << "zuo_Btn" << int(Alignment::Left);
    QTest::newRow("horizontal centre") << "shuipingjuzhong_Btn" << int(Alignment::HorizontalCentre);
    QTest::newRow("right") << "you_Btn" << int(Alignment::Right);
    QTest::newRow("top") << "shang_Btn" << int(Alignment::Top);
    QTest::newRow("vertical centre") << "chuizhijuzhong_Btn" << int(Alignment::VerticalCentre);
    QTest::newRow("bottom") << "xia_Btn" << int(Alignment::Bottom);
    QTest::newRow("work area") << "gongzuoqu_Btn" << int(Alignment::WorkAreaCentre);
    QTest::newRow("spread across") << "hengxiangfenbu_Btn" << -1;
    QTest::newRow("spread down") << "zongxiangfenbu_Btn" << -2;
}

void TestEditController::alignButtons()
{
    QFETCH(QString, button);
    QFETCH(int, alignment);
    AlignPanel panel;
    QSignalSpy aligned(&panel, &AlignPanel::alignRequested);
    QSignalSpy spread(&panel, &AlignPanel::distributeRequested);
    child<QToolButton>(&panel, button.toLatin1().constData())->click();
    if (alignment >= 0) {
        QCOMPARE(aligned.count(), 1);
        QCOMPARE(int(aligned.first().first().value<Alignment>()), alignment);
        QCOMPARE(spread.count(), 0);
    } else {
        QCOMPARE(spread.count(), 1);
        QCOMPARE(spread.first().first().value<Qt::Orientation>(),
                 alignment == -1 ? Qt::Horizontal : Qt::Vertical);
        QCOMPARE(aligned.count(), 0);
    }
}

QTEST_MAIN(TestEditController)
#include "tst_edit_controller.moc"
