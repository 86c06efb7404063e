// The drawing tools driven through a real design view: shapes from a drag,
// lines and curves from clicks, each one undoable item on the current layer.
#include "canvas_fixture.h"
#include "drawing_tools.h"
#include "drawn_shapes.h"
#include "editing_test_support.h"
#include "program_state.h"

#include <QUndoStack>
#include <memory>

using namespace lumitra;
using editing_test::Canvas;
using editing_test::describe;
using editing_test::samePath;

class TestDrawingTools : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }

    void dragDrawsTheShape_data();
    void dragDrawsTheShape();
    void clickWithoutDragDrawsNothing();
    void escapeDropsTheDrag();
    void lineEndsOnDoubleClick();
    void lineClosesOnTheFirstPoint();
    void lineKeys();
    void curveMakesSmoothAndCornerPoints();
    void curveClosesOnTheFirstPoint();
    void switchingToolsDropsTheDrawing();
};

void TestDrawingTools::dragDrawsTheShape_data()
{
    QTest::addColumn<int>("tool");
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<QRectF>("bounds");
    for (int tool = RectangleTool; tool <= StarTool; ++tool) {
        const QByteArray n = QByteArray::number(tool);
        QTest::newRow(n + " down right, rounded")
            << tool << QPointF(10.1, -150.1) << QPointF(60.9, -120.1) << false
            << QRectF(10, -150, 51, 30);
        QTest::newRow(n + " right to left")
            << tool << QPointF(60.9, -120.1) << QPointF(10.1, -150.1) << false
            << QRectF(10, -150, 51, 30);
        QTest::newRow(n + " shift")
            << tool << QPointF(20, -100) << QPointF(50, -90) << true << QRectF(20, -100, 30, 30);
    }
}

void TestDrawingTools::dragDrawsTheShape()
{
    QFETCH(int, tool);
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(bool, shift);
    QFETCH(QRectF, bounds);
    programState().currentLayer = 4;
    Canvas c;
    ShapeTool shapes(tool);
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
    c.scene.undoStack()->undo();
    QCOMPARE(c.items().size(), 0);
    c.scene.undoStack()->redo();
    QCOMPARE(c.items().size(), 1);
    c.scene.setTool(nullptr);
}

void TestDrawingTools::clickWithoutDragDrawsNothing()
{
    Canvas c;
    ShapeTool shapes(StarTool);
    c.scene.setTool(&shapes);
    c.click(QPointF(30, -30));
    c.drag(QPointF(30, -30), QPointF(30.2, -29.8)); // rounds to the same millimetre
    c.drag(QPointF(30, -30), QPointF(60, -30));     // flat: no height
    QCOMPARE(c.items().size(), 0);
    QCOMPARE(c.scene.undoStack()->count(), 0);
    c.scene.setTool(nullptr);
}

void TestDrawingTools::escapeDropsTheDrag()
{
    Canvas c;
    ShapeTool shapes(RectangleTool);
    c.scene.setTool(&shapes);
    const int before = c.scene.items().size();
    c.press(QPointF(10, -10));
    c.moveHeld(QPointF(40, -40));
    QCOMPARE(c.scene.items().size(), before + 1); // the preview
    c.key(Qt::Key_Escape);
    QCOMPARE(c.scene.items().size(), before);
    c.release(QPointF(40, -40));
    QCOMPARE(c.items().size(), 0);
    c.scene.setTool(nullptr);
}

void TestDrawingTools::lineEndsOnDoubleClick()
{
    Canvas c;
    PolylineTool line;
    c.scene.setTool(&line);
    c.click(QPointF(10.1, -9.9));
    c.hover(QPointF(30, -15));
    c.click(QPointF(40, -10));
    c.doubleClick(QPointF(40.1, -39.9));
    QCOMPARE(c.items().size(), 1);
    QPainterPath expected;
    expected.moveTo(10, -10);
    expected.lineTo(40, -10);
    expected.lineTo(40, -40);
    QVERIFY2(samePath(c.items().first()->scenePath(), expected),
             qPrintable(describe(c.items().first()->scenePath())));
    QCOMPARE(c.scene.undoStack()->count(), 1);
    c.scene.setTool(nullptr);
}

void TestDrawingTools::lineClosesOnTheFirstPoint()
{
    Canvas c; // 4 px per mm: the first point is caught within 2 mm
    PolylineTool line;
    c.scene.setTool(&line);
    c.click(QPointF(10, -10));
    c.click(QPointF(50, -10));
    c.click(QPointF(30, -40));
    c.click(QPointF(11, -11));
    QCOMPARE(c.items().size(), 1);
    const QPainterPath p = c.items().first()->scenePath();
    QCOMPARE(p.elementCount(), 4);
    QCOMPARE(QPointF(p.elementAt(3)), QPointF(10, -10));
    // The next click starts a new line.
    c.click(QPointF(100, -100));
    c.key(Qt::Key_Return);
    QCOMPARE(c.items().size(), 1); // a single point is no outline
    c.scene.setTool(nullptr);
}

void TestDrawingTools::lineKeys()
{
    Canvas c;
    PolylineTool line;
    c.scene.setTool(&line);
    c.click(QPointF(0, 0));
    c.click(QPointF(20, 0));
    c.click(QPointF(20, -20));
    c.key(Qt::Key_Backspace);
    c.key(Qt::Key_Enter);
    QCOMPARE(c.items().size(), 1);
    QCOMPARE(c.items().first()->scenePath().elementCount(), 2);
    c.click(QPointF(0, -50));
    c.click(QPointF(20, -50));
    c.key(Qt::Key_Escape);
    c.press(QPointF(50, -50), Qt::NoModifier, Qt::RightButton);
    QCOMPARE(c.items().size(), 1);
    c.scene.setTool(nullptr);
}

void TestDrawingTools::curveMakesSmoothAndCornerPoints()
{
    Canvas c;
    BezierPenTool curve;
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
    c.scene.setTool(nullptr);
}

void TestDrawingTools::curveClosesOnTheFirstPoint()
{
    Canvas c;
    BezierPenTool curve;
    c.scene.setTool(&curve);
    c.click(QPointF(0, 0));
    c.click(QPointF(40, 0));
    c.click(QPointF(20, -30));
    QCOMPARE(c.items().size(), 0);
    c.click(QPointF(0.5, 0.5));
    QCOMPARE(c.items().size(), 1);
    const QPainterPath p = c.items().first()->scenePath();
    QCOMPARE(QPointF(p.elementAt(p.elementCount() - 1)), QPointF(0, 0));
    QVERIFY(p.contains(QPointF(20, -10)));
    c.scene.setTool(nullptr);
}

void TestDrawingTools::switchingToolsDropsTheDrawing()
{
    Canvas c;
    PolylineTool line;
    ShapeTool rect(RectangleTool);
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
    c.scene.setTool(nullptr);
}

QTEST_MAIN(TestDrawingTools)
#include "tst_drawing_tools.moc"
