// The drawing and selection tools driven through a real design view with mouse
// and key events in scene millimetres.
#include "drawing_tools.h"
#include "drawn_shapes.h"
#include "editing_test_support.h"
#include "item_geometry.h"
#include "jk_chang_jing.h"
#include "jk_shi_tu.h"
#include "program_state.h"
#include "selection_frame.h"
#include "selection_tool.h"

#include <QApplication>
#include <QSignalSpy>
#include <QUndoStack>
#include <QtTest>

using namespace lumitra;
using namespace editing_test;

namespace {

// A shown view at 4 px per mm centred on (100, -100), with two 20 x 10
// rectangles side by side and a circle on the scene.
struct Canvas
{
    Jk_chang_jing scene;
    Jk_shi_tu view{&scene};
    Jk_tu_yuan *left = rectItem(50, -120, 20, 10);
    Jk_tu_yuan *right = rectItem(100, -120, 20, 10);
    Jk_tu_yuan *round;
    SelectionTool tool;

    explicit Canvas(bool withItems = true)
    {
        view.resize(900, 700);
        view.show();
        QTest::qWaitForWindowExposed(&view);
        view.setTransform(QTransform::fromScale(4, 4));
        view.centerOn(100, -100);
        QPainterPath c;
        c.addEllipse(0, 0, 20, 20);
        round = new Jk_tu_yuan(c, 1);
        round->setPos(150, -80);
        for (Jk_tu_yuan *i : {left, right, round}) {
            if (withItems)
                scene.addItem(i);
            else
                delete i;
        }
        if (withItems)
            tool.activate(&scene);
    }
    ~Canvas() { scene.setTool(nullptr); }

    void send(QEvent::Type type, const QPointF &at, Qt::MouseButton button, Qt::MouseButtons held,
              Qt::KeyboardModifiers m)
    {
        const QPoint p = view.mapFromScene(at);
        QMouseEvent e(type, p, view.viewport()->mapToGlobal(p), button, held, m);
        QApplication::sendEvent(view.viewport(), &e);
    }
    void press(const QPointF &p, Qt::KeyboardModifiers m = {}, Qt::MouseButton b = Qt::LeftButton)
    {
        send(QEvent::MouseButtonPress, p, b, b, m);
    }
    void moveHeld(const QPointF &p, Qt::KeyboardModifiers m = {})
    {
        send(QEvent::MouseMove, p, Qt::NoButton, Qt::LeftButton, m);
    }
    void hover(const QPointF &p) { send(QEvent::MouseMove, p, Qt::NoButton, Qt::NoButton, {}); }
    void release(const QPointF &p, Qt::KeyboardModifiers m = {})
    {
        send(QEvent::MouseButtonRelease, p, Qt::LeftButton, Qt::NoButton, m);
    }
    void click(const QPointF &p, Qt::KeyboardModifiers m = {})
    {
        press(p, m);
        release(p, m);
    }
    void doubleClick(const QPointF &p)
    {
        click(p);
        send(QEvent::MouseButtonDblClick, p, Qt::LeftButton, Qt::LeftButton, {});
        release(p);
    }
    // Press, a few moves on the way, release.
    void drag(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers m = {})
    {
        press(from, m);
        for (int i = 1; i <= 4; ++i)
            moveHeld(from + (to - from) * i / 4.0, m);
        release(to, m);
    }
    void key(int key, Qt::KeyboardModifiers m = {})
    {
        QKeyEvent e(QEvent::KeyPress, key, m);
        QApplication::sendEvent(view.viewport(), &e);
    }
    QList<Jk_tu_yuan *> items() const { return scene.designItems(); }
    QList<Jk_tu_yuan *> selected() const { return scene.selectedDesignItems(); }
    QUndoStack *stack() const { return scene.undoStack(); }
    void select(std::initializer_list<Jk_tu_yuan *> items)
    {
        for (Jk_tu_yuan *i : items)
            i->setSelected(true);
    }
};

} // namespace

class TestCanvasTools : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }

    void dragDrawsTheShape_data();
    void dragDrawsTheShape();
    void noShapeFromClicksFlatDragsOrEscape();
    void lineFromClicksAndKeys();
    void curveMakesSmoothAndCornerPoints();
    void switchingToolsDropsTheDrawing();

    void clickAndShiftClickPick();
    void rubberBandKeepsTheSelectionWithShift();
    void frameFollowsTheSelection();
    void dragMovesTheSelectionInOneStep();
    void handleScales_data();
    void handleScales();
    void rotateHandleTurnsAboutTheCentre();
    void arrowKeysNudge();
    void escapeCancelsADragOrClearsTheSelection();
    void largeSelectionsMoveOnRelease_data();
    void largeSelectionsMoveOnRelease();
    void toolLeavesOneSceneForAnother();
};

void TestCanvasTools::dragDrawsTheShape_data()
{
    QTest::addColumn<int>("tool");
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<QRectF>("bounds");
    QTest::newRow("rectangle, rounded")
        << int(RectangleTool) << QPointF(10.1, -150.1) << QPointF(60.9, -120.1) << false
        << QRectF(10, -150, 51, 30);
    QTest::newRow("star, right to left")
        << int(StarTool) << QPointF(60.9, -120.1) << QPointF(10.1, -150.1) << false
        << QRectF(10, -150, 51, 30);
    QTest::newRow("ellipse, shift") << int(EllipseTool) << QPointF(20, -100) << QPointF(50, -90)
                                    << true << QRectF(20, -100, 30, 30);
    QTest::newRow("hexagon, shift") << int(HexagonTool) << QPointF(20, -100) << QPointF(50, -90)
                                    << true << QRectF(20, -100, 30, 30);
}

void TestCanvasTools::dragDrawsTheShape()
{
    QFETCH(int, tool);
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(bool, shift);
    QFETCH(QRectF, bounds);
    programState().currentLayer = 4;
    ShapeTool shapes(tool);
    Canvas c(false);
    c.scene.setTool(&shapes);
    programState().unsaved = false;
    c.drag(from, to, shift ? Qt::ShiftModifier : Qt::NoModifier);
    QCOMPARE(c.items().size(), 1);
    Jk_tu_yuan *item = c.items().first();
    QVERIFY(!item->is_bitmap);
    QCOMPARE(item->layer_id, 4);
    QVERIFY(item->isSelected());
    QVERIFY(programState().unsaved);
    // The item sits at the outline's top-left; its scene outline is the shape.
    QCOMPARE(item->pos(), bounds.topLeft());
    QVERIFY2(samePath(item->scenePath(), shapeOutline(tool, bounds), 1e-9),
             qPrintable(describe(item->scenePath())));
    c.stack()->undo();
    QCOMPARE(c.items().size(), 0);
    c.stack()->redo();
    QVERIFY(samePath(c.items().first()->scenePath(), shapeOutline(tool, bounds), 1e-9));
}

void TestCanvasTools::noShapeFromClicksFlatDragsOrEscape()
{
    ShapeTool shapes(StarTool);
    Canvas c(false);
    c.scene.setTool(&shapes);
    c.click(QPointF(30, -30));
    c.drag(QPointF(30, -30), QPointF(30.2, -29.8)); // rounds to the same millimetre
    c.drag(QPointF(30, -30), QPointF(60, -30));     // flat: no height
    const int before = c.scene.items().size();
    c.press(QPointF(10, -10));
    c.moveHeld(QPointF(40, -40));
    QCOMPARE(c.scene.items().size(), before + 1); // the preview
    c.key(Qt::Key_Escape);
    QCOMPARE(c.scene.items().size(), before);
    c.release(QPointF(40, -40));
    QCOMPARE(c.items().size(), 0);
    QCOMPARE(c.stack()->count(), 0);
}

void TestCanvasTools::lineFromClicksAndKeys()
{
    PolylineTool line;
    Canvas c(false);
    c.scene.setTool(&line);
    c.click(QPointF(10.1, -9.9));
    c.hover(QPointF(30, -15));
    c.click(QPointF(40, -10));
    c.doubleClick(QPointF(40.1, -39.9)); // ends the line
    QCOMPARE(c.items().size(), 1);
    QPainterPath expected;
    expected.moveTo(10, -10);
    expected.lineTo(40, -10);
    expected.lineTo(40, -40);
    QVERIFY2(samePath(c.items().first()->scenePath(), expected),
             qPrintable(describe(c.items().first()->scenePath())));
    QCOMPARE(c.stack()->count(), 1);
    // Backspace takes the last corner back, Enter ends the line.
    c.click(QPointF(0, 0));
    c.click(QPointF(20, 0));
    c.click(QPointF(20, -20));
    c.key(Qt::Key_Backspace);
    c.key(Qt::Key_Enter);
    QCOMPARE(c.items().size(), 2);
    QCOMPARE(c.stack()->count(), 2);
    // Escape and the right button drop a line.
    c.click(QPointF(0, -50));
    c.click(QPointF(20, -50));
    c.key(Qt::Key_Escape);
    c.press(QPointF(50, -50), Qt::NoModifier, Qt::RightButton);
    QCOMPARE(c.items().size(), 2);
    // The first line has three corners, the second two.
    QCOMPARE(c.items().at(0)->scenePath().elementCount()
                 + c.items().at(1)->scenePath().elementCount(),
             5);
    // At 4 px per mm a click within 2 mm of the first point closes the line,
    // and a single point left is no outline.
    for (const QPointF &p :
         {QPointF(10, -10), QPointF(50, -10), QPointF(30, -40), QPointF(11, -11)})
        c.click(p);
    QCOMPARE(c.items().size(), 3);
    QPainterPath p;
    for (Jk_tu_yuan *i : c.items())
        p = i->scenePath().elementCount() == 4 ? i->scenePath() : p;
    QVERIFY(!p.isEmpty());
    QCOMPARE(QPointF(p.elementAt(3)), QPointF(10, -10));
    c.click(QPointF(100, -100));
    c.key(Qt::Key_Return);
    QCOMPARE(c.items().size(), 3);
}

void TestCanvasTools::curveMakesSmoothAndCornerPoints()
{
    BezierPenTool curve;
    Canvas c(false);
    QCOMPARE(curve.number(), 8);
    c.scene.setTool(&curve);
    c.click(QPointF(0, 0));
    c.drag(QPointF(30, 0), QPointF(40, -10)); // smooth point, handle free
    c.doubleClick(QPointF(60, 0));
    QCOMPARE(c.items().size(), 1);
    QPainterPath expected;
    expected.moveTo(0, 0);
    expected.cubicTo(QPointF(0, 0), QPointF(20, 10), QPointF(30, 0));
    expected.cubicTo(QPointF(40, -10), QPointF(60, 0), QPointF(60, 0));
    const QPainterPath got = c.items().first()->scenePath();
    QVERIFY2(samePath(got, expected, 0.3), qPrintable(describe(got)));
    // Clicking the first point again closes a new curve.
    for (const QPointF &p : {QPointF(0, -50), QPointF(40, -50), QPointF(20, -80)})
        c.click(p);
    QCOMPARE(c.items().size(), 1);
    c.click(QPointF(0.5, -49.5));
    QCOMPARE(c.items().size(), 2);
}

void TestCanvasTools::switchingToolsDropsTheDrawing()
{
    PolylineTool line;
    ShapeTool rect(RectangleTool);
    Canvas c(false);
    c.scene.setTool(&line);
    const int before = c.scene.items().size();
    c.click(QPointF(0, 0));
    c.hover(QPointF(10, 10));
    QCOMPARE(c.scene.items().size(), before + 1);
    c.scene.setTool(&rect);
    QCOMPARE(c.scene.items().size(), before);
    c.scene.setTool(&line);
    c.click(QPointF(50, 50));
    c.click(QPointF(60, 50));
    c.key(Qt::Key_Return);
    // Only the new line: the dropped one left no corner behind.
    QCOMPARE(c.items().first()->scenePath().elementCount(), 2);
}

void TestCanvasTools::clickAndShiftClickPick()
{
    Canvas b;
    b.click(QPointF(60, -119.5)); // just inside the top edge of the left rectangle
    QCOMPARE(b.selected(), QList<Jk_tu_yuan *>{b.left});
    b.click(QPointF(110, -110.5)); // just inside the bottom edge of the right one
    QCOMPARE(b.selected(), QList<Jk_tu_yuan *>{b.right});
    b.click(QPointF(160, -70)); // the middle of the circle: not its line
    QVERIFY(b.selected().isEmpty());
    b.click(QPointF(60, -121)); // outside the rectangle: only its inner side picks
    QVERIFY(b.selected().isEmpty());

    b.click(QPointF(50, -115));
    b.click(QPointF(100, -115), Qt::ShiftModifier);
    b.click(QPointF(150, -70), Qt::ShiftModifier);
    QCOMPARE(b.selected().size(), 3);
    b.click(QPointF(100, -115), Qt::ShiftModifier);
    QCOMPARE(b.selected().size(), 2);
    QVERIFY(!b.right->isSelected());
    b.click(QPointF(100, -115), Qt::ControlModifier);
    QVERIFY(b.right->isSelected());
    // A plain click in a selection selects that item alone and records nothing.
    b.click(QPointF(100, -115));
    QCOMPARE(b.selected(), QList<Jk_tu_yuan *>{b.right});
    QCOMPARE(b.stack()->count(), 0);
}

void TestCanvasTools::rubberBandKeepsTheSelectionWithShift()
{
    Canvas b;
    b.select({b.round});
    // Left to right over both rectangles, holding Shift: the circle stays.
    b.drag(QPointF(40, -130), QPointF(125, -105), Qt::ShiftModifier);
    QCOMPARE(b.selected().size(), 3);
    // Without Shift a new band replaces the selection.
    b.drag(QPointF(40, -130), QPointF(75, -105));
    QCOMPARE(b.selected(), QList<Jk_tu_yuan *>{b.left});
}

void TestCanvasTools::frameFollowsTheSelection()
{
    Canvas b;
    QSignalSpy spy(&b.tool, &SelectionTool::selectionBoundsChanged);
    QVERIFY(!b.tool.frame()->isVisible());
    b.select({b.left, b.round});
    QVERIFY(!b.tool.frame()->isVisible()); // brought up to date once, by the event loop
    QCoreApplication::processEvents();
    QVERIFY(b.tool.frame()->isVisible());
    QVERIFY(sameRect(b.tool.frame()->frame(), QRectF(50, -120, 120, 60)));
    QCOMPARE(spy.last().at(1).toInt(), 2);
    QVERIFY(sameRect(spy.last().at(0).toRectF(), QRectF(50, -120, 120, 60)));
    const int emitted = spy.size();
    b.scene.clearSelection();
    QCoreApplication::processEvents();
    QVERIFY(!b.tool.frame()->isVisible());
    QCOMPARE(spy.size(), emitted + 1);
    QCOMPARE(spy.last().at(1).toInt(), 0);
    QCOMPARE(b.items().size(), 3); // the frame is no design item
}

void TestCanvasTools::dragMovesTheSelectionInOneStep()
{
    Canvas b;
    b.select({b.left, b.right});
    const QVector<QPainterPath> start = scenePaths({b.left, b.right, b.round});
    programState().unsaved = false;
    b.drag(QPointF(60, -120), QPointF(70, -100)); // grab the left one's edge
    QCOMPARE(b.left->pos(), QPointF(60, -100));
    QCOMPARE(b.right->pos(), QPointF(110, -100));
    QCOMPARE(b.round->pos(), QPointF(150, -80));
    QCOMPARE(b.stack()->count(), 1);
    QVERIFY(programState().unsaved);
    QVERIFY(sameRect(b.tool.frame()->frame(), QRectF(60, -100, 70, 10)));
    const QVector<QPainterPath> moved = scenePaths({b.left, b.right, b.round});
    b.stack()->undo();
    QVERIFY(samePaths(scenePaths({b.left, b.right, b.round}), start));
    QCoreApplication::processEvents();
    QVERIFY(sameRect(b.tool.frame()->frame(), QRectF(50, -120, 70, 10)));
    b.stack()->redo();
    QVERIFY(samePaths(scenePaths({b.left, b.right, b.round}), moved));
    b.stack()->undo();
    // A drag inside the frame, off any outline, moves too.
    b.drag(QPointF(85, -115), QPointF(85, -125));
    QCOMPARE(b.left->pos(), QPointF(50, -130));
}

void TestCanvasTools::handleScales_data()
{
    QTest::addColumn<QPointF>("grab");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<QRectF>("bounds");
    // The two rectangles: frame (50, -120, 70 x 10).
    QTest::newRow("right edge") << QPointF(120, -115) << QPointF(190, -115) << false
                                << QRectF(50, -120, 140, 10);
    QTest::newRow("bottom-right, ratio kept")
        << QPointF(120, -110) << QPointF(155, -100) << true << QRectF(50, -120, 140, 20);
    QTest::newRow("top-left corner")
        << QPointF(50, -120) << QPointF(85, -125) << false << QRectF(85, -125, 35, 15);
}

void TestCanvasTools::handleScales()
{
    QFETCH(QPointF, grab);
    QFETCH(QPointF, to);
    QFETCH(bool, shift);
    QFETCH(QRectF, bounds);
    Canvas b;
    b.select({b.left, b.right});
    const QVector<QPainterPath> start = scenePaths({b.left, b.right});
    b.drag(grab, to, shift ? Qt::ShiftModifier : Qt::NoModifier);
    const QRectF got = outlineBounds({b.left, b.right});
    QVERIFY2(sameRect(got, bounds, 1e-6), qPrintable(describe(got)));
    QVERIFY(sameRect(b.tool.frame()->frame(), bounds, 1e-6));
    QCOMPARE(b.stack()->count(), 1);
    QCOMPARE(b.left->jiao_du, 0.0);
    const QVector<QPainterPath> scaled = scenePaths({b.left, b.right});
    b.stack()->undo();
    QVERIFY(samePaths(scenePaths({b.left, b.right}), start));
    b.stack()->redo();
    QVERIFY(samePaths(scenePaths({b.left, b.right}), scaled));
}

void TestCanvasTools::rotateHandleTurnsAboutTheCentre()
{
    Canvas b;
    b.select({b.left}); // frame (50, -120, 20 x 10), centre (60, -115)
    // The rotate handle is 24 px (6 mm at 4 px/mm) above the top centre.
    const QPointF handle(60, -126);
    // Dragged round to the right of the centre: a quarter turn clockwise.
    b.drag(handle, QPointF(71, -115));
    QCOMPARE(b.left->jiao_du, 90.0);
    QVERIFY(sameRect(outlineBounds(b.left), QRectF(55, -125, 10, 20), 1e-9));
    QCOMPARE(b.stack()->count(), 1);
    b.stack()->undo();
    QCOMPARE(b.left->jiao_du, 0.0);
    QVERIFY(b.left->transform().isIdentity());
    // With Shift the angle snaps to 15 degrees.
    b.drag(handle, QPointF(67, -124), Qt::ShiftModifier);
    QCOMPARE(std::fmod(b.left->jiao_du, 15.0), 0.0);
    QVERIFY(b.left->jiao_du > 0);
}

void TestCanvasTools::arrowKeysNudge()
{
    Canvas b;
    b.select({b.left});
    b.key(Qt::Key_Right);
    b.key(Qt::Key_Right);
    b.key(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(b.left->pos(), QPointF(52, -130));
    QCOMPARE(b.right->pos(), QPointF(100, -120));
    QCOMPARE(b.stack()->count(), 1); // one step for the held keys
    b.stack()->undo();
    QCOMPARE(b.left->pos(), QPointF(50, -120));
    b.scene.clearSelection();
    b.key(Qt::Key_Left);
    QCOMPARE(b.left->pos(), QPointF(50, -120));
}

void TestCanvasTools::escapeCancelsADragOrClearsTheSelection()
{
    Canvas b;
    b.select({b.left});
    // On the top edge, clear of the frame's handles.
    b.press(QPointF(54, -120));
    b.moveHeld(QPointF(59, -120));
    b.moveHeld(QPointF(74, -100));
    QCOMPARE(b.left->pos(), QPointF(70, -100));
    b.key(Qt::Key_Escape);
    QCOMPARE(b.left->pos(), QPointF(50, -120));
    b.release(QPointF(74, -100));
    QCOMPARE(b.stack()->count(), 0);
    QVERIFY(b.left->isSelected());
    b.key(Qt::Key_Escape);
    QVERIFY(b.selected().isEmpty());
}

void TestCanvasTools::largeSelectionsMoveOnRelease_data()
{
    QTest::addColumn<int>("extra"); // items added to the three of the board
    QTest::newRow("small selection follows live") << 10;
    QTest::newRow("large selection waits") << SelectionTool::kLiveItems;
}

void TestCanvasTools::largeSelectionsMoveOnRelease()
{
    QFETCH(int, extra);
    Canvas b;
    QList<Jk_tu_yuan *> all{b.left, b.right, b.round};
    for (int i = 0; i < extra; ++i) {
        all << rectItem(200 + (i % 20) * 3, -300 + (i / 20) * 3, 2, 2);
        b.scene.addItem(all.last());
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
    QCOMPARE(b.stack()->count(), 1);
    b.stack()->undo();
    QVERIFY(samePaths(scenePaths(all), start));
    QCoreApplication::processEvents();
    // Rotate a quarter turn with the round handle (6 mm above the top centre).
    const QRectF f = b.tool.frame()->frame();
    const QPointF handle(f.center().x(), f.top() - 6);
    const QPointF end(f.right() + 30, f.center().y());
    b.press(handle);
    b.moveHeld(handle + QPointF(1, 0));
    b.moveHeld(end);
    QCOMPARE(b.left->jiao_du, live ? 90.0 : 0.0);
    QCOMPARE(b.tool.frame()->transform().isIdentity(), live);
    b.release(end);
    QCOMPARE(b.left->jiao_du, 90.0);
    QVERIFY(b.tool.frame()->transform().isIdentity());
    QCOMPARE(b.stack()->count(), 1);
    b.stack()->undo();
    QVERIFY(samePaths(scenePaths(all), start));
}

void TestCanvasTools::toolLeavesOneSceneForAnother()
{
    Canvas b;
    Jk_chang_jing other;
    b.select({b.left});
    const int withFrame = b.scene.items().size();
    b.tool.activate(&other);
    QCOMPARE(b.scene.items().size(), withFrame - 1 - 9); // frame and its handles
    QVERIFY(b.scene.tool() == nullptr);
    QVERIFY(other.tool() == &b.tool);
    b.tool.activate(&b.scene);
    QVERIFY(b.tool.frame()->isVisible()); // the selection there is shown at once
    QVERIFY(other.tool() == nullptr);
}

QTEST_MAIN(TestCanvasTools)
#include "tst_canvas_tools.moc"
