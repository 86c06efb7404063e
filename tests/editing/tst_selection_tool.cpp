// The selection tool through a real design view: picking, Shift-click, the
// rubber band, moving, scaling and rotating with the frame, nudging.
#include "canvas_fixture.h"
#include "editing_test_support.h"
#include "item_geometry.h"
#include "program_state.h"
#include "selection_frame.h"
#include "selection_tool.h"

#include <QSignalSpy>
#include <QUndoStack>

using namespace lumitra;
using editing_test::Canvas;
using editing_test::describe;
using editing_test::samePaths;
using editing_test::sameRect;
using editing_test::scenePaths;

namespace {

// Two 20 x 10 rectangles side by side and a circle, on the scene.
struct Board : Canvas
{
    Jk_tu_yuan *left;
    Jk_tu_yuan *right;
    Jk_tu_yuan *round;
    SelectionTool tool;

    Board()
    {
        left = editing_test::rectItem(50, -120, 20, 10);
        right = editing_test::rectItem(100, -120, 20, 10);
        QPainterPath c;
        c.addEllipse(0, 0, 20, 20);
        round = new Jk_tu_yuan(c, 1);
        round->setPos(150, -80);
        for (Jk_tu_yuan *i : {left, right, round})
            scene.addItem(i);
        tool.activate(&scene);
    }
};

} // namespace

class TestSelectionTool : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }

    void clickPicksNearTheOutline();
    void shiftClickTogglesItems();
    void rubberBandKeepsTheSelectionWithShift();
    void frameFollowsTheSelection();
    void dragMovesTheSelectionInOneStep();
    void clickInASelectionSelectsThatItemAlone();
    void handleScales_data();
    void handleScales();
    void rotateHandleTurnsAboutTheCentre();
    void arrowKeysNudge();
    void escapeCancelsADragOrClearsTheSelection();
    void largeSelectionsMoveOnRelease_data();
    void largeSelectionsMoveOnRelease();
    void toolLeavesOneSceneForAnother();
};

void TestSelectionTool::clickPicksNearTheOutline()
{
    Board b;
    b.click(QPointF(60, -119.5)); // just inside the top edge of the left rectangle
    QCOMPARE(b.selected(), QList<Jk_tu_yuan *>{b.left});
    b.click(QPointF(110, -110.5)); // just inside the bottom edge of the right one
    QCOMPARE(b.selected(), QList<Jk_tu_yuan *>{b.right});
    b.click(QPointF(160, -70)); // the middle of the circle: not its line
    QVERIFY(b.selected().isEmpty());
    b.click(QPointF(300, -300)); // far from everything
    QVERIFY(b.selected().isEmpty());
    b.click(QPointF(60, -121)); // outside the rectangle: only its inner side picks
    QVERIFY(b.selected().isEmpty());
}

void TestSelectionTool::shiftClickTogglesItems()
{
    Board b;
    b.click(QPointF(50, -115));
    b.click(QPointF(100, -115), Qt::ShiftModifier);
    b.click(QPointF(150, -70), Qt::ShiftModifier);
    QCOMPARE(b.selected().size(), 3);
    b.click(QPointF(100, -115), Qt::ShiftModifier);
    QCOMPARE(b.selected().size(), 2);
    QVERIFY(!b.right->isSelected());
    b.click(QPointF(100, -115), Qt::ControlModifier);
    QVERIFY(b.right->isSelected());
}

void TestSelectionTool::rubberBandKeepsTheSelectionWithShift()
{
    Board b;
    b.click(QPointF(150, -70));
    QCOMPARE(b.selected(), QList<Jk_tu_yuan *>{b.round});
    // Left to right over both rectangles, holding Shift: the circle stays.
    b.drag(QPointF(40, -130), QPointF(125, -105), Qt::ShiftModifier);
    QCOMPARE(b.selected().size(), 3);
    // Without Shift a new band replaces the selection.
    b.drag(QPointF(40, -130), QPointF(75, -105));
    QCOMPARE(b.selected(), QList<Jk_tu_yuan *>{b.left});
}

void TestSelectionTool::frameFollowsTheSelection()
{
    Board b;
    QSignalSpy spy(&b.tool, &SelectionTool::selectionBoundsChanged);
    QVERIFY(!b.tool.frame()->isVisible());
    b.left->setSelected(true);
    b.round->setSelected(true);
    QVERIFY(!b.tool.frame()->isVisible()); // brought up to date once, by the event loop
    QCoreApplication::processEvents();
    QVERIFY(b.tool.frame()->isVisible());
    QVERIFY(sameRect(b.tool.frame()->frame(), QRectF(50, -120, 120, 60)));
    QVERIFY(!spy.isEmpty());
    QCOMPARE(spy.last().at(1).toInt(), 2);
    QVERIFY(sameRect(spy.last().at(0).toRectF(), QRectF(50, -120, 120, 60)));
    const int emitted = spy.size();
    b.scene.clearSelection();
    QCoreApplication::processEvents();
    QVERIFY(!b.tool.frame()->isVisible());
    QCOMPARE(spy.size(), emitted + 1);
    QCOMPARE(spy.last().at(1).toInt(), 0);
    // The frame is no design item.
    QCOMPARE(b.items().size(), 3);
}

void TestSelectionTool::dragMovesTheSelectionInOneStep()
{
    Board b;
    b.left->setSelected(true);
    b.right->setSelected(true);
    const QVector<QPainterPath> start = scenePaths({b.left, b.right, b.round});
    programState().unsaved = false;
    b.drag(QPointF(60, -120), QPointF(70, -100)); // grab the left one's edge
    QCOMPARE(b.left->pos(), QPointF(60, -100));
    QCOMPARE(b.right->pos(), QPointF(110, -100));
    QCOMPARE(b.round->pos(), QPointF(150, -80));
    QCOMPARE(b.scene.undoStack()->count(), 1);
    QVERIFY(programState().unsaved);
    QVERIFY(sameRect(b.tool.frame()->frame(), QRectF(60, -100, 70, 10)));
    b.scene.undoStack()->undo();
    QVERIFY(samePaths(scenePaths({b.left, b.right, b.round}), start));
    QCoreApplication::processEvents();
    QVERIFY(sameRect(b.tool.frame()->frame(), QRectF(50, -120, 70, 10)));
    // A drag inside the frame, off any outline, moves too.
    b.drag(QPointF(85, -115), QPointF(85, -125));
    QCOMPARE(b.left->pos(), QPointF(50, -130));
}

void TestSelectionTool::clickInASelectionSelectsThatItemAlone()
{
    Board b;
    b.left->setSelected(true);
    b.right->setSelected(true);
    b.click(QPointF(100, -115));
    QCOMPARE(b.selected(), QList<Jk_tu_yuan *>{b.right});
    QCOMPARE(b.scene.undoStack()->count(), 0);
}

void TestSelectionTool::handleScales_data()
{
    QTest::addColumn<QPointF>("grab");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<QRectF>("bounds");
    // The two rectangles: frame (50, -120, 70 x 10).
    QTest::newRow("right edge") << QPointF(120, -115) << QPointF(190, -115) << false
                                << QRectF(50, -120, 140, 10);
    QTest::newRow("bottom-right corner")
        << QPointF(120, -110) << QPointF(155, -100) << false << QRectF(50, -120, 105, 20);
    QTest::newRow("bottom-right, ratio kept")
        << QPointF(120, -110) << QPointF(155, -100) << true << QRectF(50, -120, 140, 20);
    QTest::newRow("top-left corner")
        << QPointF(50, -120) << QPointF(85, -125) << false << QRectF(85, -125, 35, 15);
}

void TestSelectionTool::handleScales()
{
    QFETCH(QPointF, grab);
    QFETCH(QPointF, to);
    QFETCH(bool, shift);
    QFETCH(QRectF, bounds);
    Board b;
    b.left->setSelected(true);
    b.right->setSelected(true);
    const QVector<QPainterPath> start = scenePaths({b.left, b.right});
    b.drag(grab, to, shift ? Qt::ShiftModifier : Qt::NoModifier);
    const QRectF got = outlineBounds({b.left, b.right});
    QVERIFY2(sameRect(got, bounds, 1e-6), qPrintable(describe(got)));
    QVERIFY(sameRect(b.tool.frame()->frame(), bounds, 1e-6));
    QCOMPARE(b.scene.undoStack()->count(), 1);
    QCOMPARE(b.left->jiao_du, 0.0);
    b.scene.undoStack()->undo();
    QVERIFY(samePaths(scenePaths({b.left, b.right}), start));
    b.scene.undoStack()->redo();
    QVERIFY(sameRect(outlineBounds({b.left, b.right}), bounds, 1e-6));
}

void TestSelectionTool::rotateHandleTurnsAboutTheCentre()
{
    Board b;
    b.left->setSelected(true); // frame (50, -120, 20 x 10), centre (60, -115)
    // The rotate handle is 24 px (6 mm at 4 px/mm) above the top centre.
    const QPointF handle(60, -126);
    // Dragged round to the right of the centre: a quarter turn clockwise.
    b.drag(handle, QPointF(71, -115));
    QCOMPARE(b.left->jiao_du, 90.0);
    QVERIFY(sameRect(outlineBounds(b.left), QRectF(55, -125, 10, 20), 1e-9));
    QCOMPARE(b.scene.undoStack()->count(), 1);
    b.scene.undoStack()->undo();
    QCOMPARE(b.left->jiao_du, 0.0);
    QVERIFY(b.left->transform().isIdentity());
    // With Shift the angle snaps to 15 degrees.
    b.drag(handle, QPointF(67, -124), Qt::ShiftModifier);
    QCOMPARE(std::fmod(b.left->jiao_du, 15.0), 0.0);
    QVERIFY(b.left->jiao_du > 0);
}

void TestSelectionTool::arrowKeysNudge()
{
    Board b;
    b.left->setSelected(true);
    b.key(Qt::Key_Right);
    b.key(Qt::Key_Right);
    b.key(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(b.left->pos(), QPointF(52, -130));
    QCOMPARE(b.right->pos(), QPointF(100, -120));
    QCOMPARE(b.scene.undoStack()->count(), 1); // one step for the held keys
    b.scene.undoStack()->undo();
    QCOMPARE(b.left->pos(), QPointF(50, -120));
    b.scene.clearSelection();
    b.key(Qt::Key_Left);
    QCOMPARE(b.left->pos(), QPointF(50, -120));
}

void TestSelectionTool::escapeCancelsADragOrClearsTheSelection()
{
    Board b;
    b.left->setSelected(true);
    // On the top edge, clear of the frame's handles.
    b.press(QPointF(54, -120));
    b.moveHeld(QPointF(59, -120));
    b.moveHeld(QPointF(74, -100));
    QCOMPARE(b.left->pos(), QPointF(70, -100));
    b.key(Qt::Key_Escape);
    QCOMPARE(b.left->pos(), QPointF(50, -120));
    b.release(QPointF(74, -100));
    QCOMPARE(b.scene.undoStack()->count(), 0);
    QVERIFY(b.left->isSelected());
    b.key(Qt::Key_Escape);
    QVERIFY(b.selected().isEmpty());
}

void TestSelectionTool::largeSelectionsMoveOnRelease_data()
{
    QTest::addColumn<int>("extra"); // items added to the three of the board
    QTest::newRow("small selection follows live") << 10;
    QTest::newRow("large selection waits") << SelectionTool::kLiveItems;
}

void TestSelectionTool::largeSelectionsMoveOnRelease()
{
    QFETCH(int, extra);
    Board b;
    QList<Jk_tu_yuan *> all{b.left, b.right, b.round};
    for (int i = 0; i < extra; ++i) {
        Jk_tu_yuan *item = editing_test::rectItem(200 + (i % 20) * 3, -300 + (i / 20) * 3, 2, 2);
        b.scene.addItem(item);
        all << item;
    }
    for (Jk_tu_yuan *i : all)
        i->setSelected(true);
    QCoreApplication::processEvents();
    const bool live = all.size() <= SelectionTool::kLiveItems;
    const QVector<QPainterPath> start = scenePaths(all);
    const QRectF frame = b.tool.frame()->frame();
    // Move: grab the left rectangle's edge.
    b.press(QPointF(54, -120));
    b.moveHeld(QPointF(60, -120));
    b.moveHeld(QPointF(74, -110));
    QCOMPARE(b.left->pos(), live ? QPointF(70, -110) : QPointF(50, -120));
    QVERIFY(sameRect(b.tool.frame()->frame(), frame.translated(20, 10)));
    b.release(QPointF(74, -110));
    QCOMPARE(b.left->pos(), QPointF(70, -110));
    QCOMPARE(b.round->pos(), QPointF(170, -70));
    QCOMPARE(b.scene.undoStack()->count(), 1);
    b.scene.undoStack()->undo();
    QVERIFY(samePaths(scenePaths(all), start));
    QCoreApplication::processEvents();
    // Rotate a quarter turn with the round handle (6 mm above the top centre).
    const QRectF f = b.tool.frame()->frame();
    const QPointF handle(f.center().x(), f.top() - 6);
    b.press(handle);
    b.moveHeld(handle + QPointF(1, 0));
    b.moveHeld(QPointF(f.right() + 30, f.center().y()));
    QCOMPARE(b.left->jiao_du, live ? 90.0 : 0.0);
    QCOMPARE(b.tool.frame()->transform().isIdentity(), live);
    b.release(QPointF(f.right() + 30, f.center().y()));
    QCOMPARE(b.left->jiao_du, 90.0);
    QVERIFY(b.tool.frame()->transform().isIdentity());
    QCOMPARE(b.scene.undoStack()->count(), 1);
    b.scene.undoStack()->undo();
    QVERIFY(samePaths(scenePaths(all), start));
}

void TestSelectionTool::toolLeavesOneSceneForAnother()
{
    Board b;
    Jk_chang_jing other;
    b.left->setSelected(true);
    const int withFrame = b.scene.items().size();
    b.tool.activate(&other);
    QCOMPARE(b.scene.items().size(), withFrame - 1 - 9); // frame and its handles
    QVERIFY(b.scene.tool() == nullptr);
    QVERIFY(other.tool() == &b.tool);
    b.tool.activate(&b.scene);
    QVERIFY(b.tool.frame()->isVisible()); // the selection there is shown at once
    QVERIFY(other.tool() == nullptr);
}

QTEST_MAIN(TestSelectionTool)
#include "tst_selection_tool.moc"
