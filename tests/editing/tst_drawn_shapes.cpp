// Outlines of the drag-rectangle drawing tools and the pointer rounding.
#include "drawn_shapes.h"
#include "editing_test_support.h"
#include "jk_chang_jing.h"

#include <QtTest>

using namespace lumitra;
using editing_test::describe;
using editing_test::samePath;
using editing_test::sameRect;

class TestDrawnShapes : public QObject
{
    Q_OBJECT

private slots:
    void roundsToWholeMillimetres_data();
    void roundsToWholeMillimetres();
    void dragRectangleFromPressToPointer_data();
    void dragRectangleFromPressToPointer();
    void outlineFillsTheDragRectangle_data();
    void outlineFillsTheDragRectangle();
    void rightToLeftDragGivesTheSameShape_data();
    void rightToLeftDragGivesTheSameShape();
    void templateCornersLandScaledInTheRectangle_data();
    void templateCornersLandScaledInTheRectangle();
    void rectangleAndEllipseUseTheLibraryShapes();
    void noOutlineForOtherToolsOrEmptyDrags_data();
    void noOutlineForOtherToolsOrEmptyDrags();
};

void TestDrawnShapes::roundsToWholeMillimetres_data()
{
    QTest::addColumn<QPointF>("in");
    QTest::addColumn<QPointF>("out");
    QTest::newRow("already whole") << QPointF(12, -40) << QPointF(12, -40);
    QTest::newRow("below half") << QPointF(12.49, -40.49) << QPointF(12, -40);
    QTest::newRow("half goes up") << QPointF(12.5, 3.5) << QPointF(13, 4);
    QTest::newRow("negative half goes up") << QPointF(-2.5, -40.5) << QPointF(-2, -40);
    QTest::newRow("negative above half") << QPointF(-2.6, -0.51) << QPointF(-3, -1);
    QTest::newRow("just under whole") << QPointF(0.9999, -0.0001) << QPointF(1, 0);
}

void TestDrawnShapes::roundsToWholeMillimetres()
{
    QFETCH(QPointF, in);
    QFETCH(QPointF, out);
    QCOMPARE(Jk_chang_jing::roundToMillimetre(in), out);
}

void TestDrawnShapes::dragRectangleFromPressToPointer_data()
{
    QTest::addColumn<QPointF>("press");
    QTest::addColumn<QPointF>("pointer");
    QTest::addColumn<bool>("proportional");
    QTest::addColumn<QRectF>("expected");
    QTest::newRow("down right") << QPointF(10, -100) << QPointF(40.4, -79.6) << false
                                << QRectF(10, -100, 30, 20);
    QTest::newRow("up left keeps signs")
        << QPointF(50, -50) << QPointF(20.2, -90.5) << false << QRectF(50, -50, -30, -40);
    QTest::newRow("press rounded too")
        << QPointF(10.4, -10.6) << QPointF(20, -5) << false << QRectF(10, -11, 10, 6);
    QTest::newRow("proportional takes the larger side")
        << QPointF(0, 0) << QPointF(30, 12) << true << QRectF(0, 0, 30, 30);
    QTest::newRow("proportional keeps each sign")
        << QPointF(0, 0) << QPointF(-8, 25) << true << QRectF(0, 0, -25, 25);
    QTest::newRow("proportional both negative")
        << QPointF(100, -100) << QPointF(60, -110) << true << QRectF(100, -100, -40, -40);
    QTest::newRow("proportional flat drag")
        << QPointF(0, 0) << QPointF(15, 0) << true << QRectF(0, 0, 15, 15);
}

void TestDrawnShapes::dragRectangleFromPressToPointer()
{
    QFETCH(QPointF, press);
    QFETCH(QPointF, pointer);
    QFETCH(bool, proportional);
    QFETCH(QRectF, expected);
    const QRectF r = dragRectangle(press, pointer, proportional);
    QVERIFY2(sameRect(r, expected, 0), qPrintable(describe(r)));
}

void TestDrawnShapes::outlineFillsTheDragRectangle_data()
{
    QTest::addColumn<int>("tool");
    QTest::addColumn<QRectF>("drag");
    for (int tool = RectangleTool; tool <= StarTool; ++tool) {
        const QByteArray name = QByteArray::number(tool);
        QTest::newRow(name + " plain") << tool << QRectF(20, -150, 80, 45);
        QTest::newRow(name + " negative width") << tool << QRectF(120, -150, -80, 45);
        QTest::newRow(name + " negative both") << tool << QRectF(120, -20, -33, -71);
        QTest::newRow(name + " thin") << tool << QRectF(5, -5, 1, 300);
    }
}

void TestDrawnShapes::outlineFillsTheDragRectangle()
{
    QFETCH(int, tool);
    QFETCH(QRectF, drag);
    const QPainterPath p = shapeOutline(tool, drag);
    QVERIFY(!p.isEmpty());
    QVERIFY2(sameRect(p.boundingRect(), drag.normalized(), 1e-9),
             qPrintable(describe(p.boundingRect()) + " vs " + describe(drag.normalized())));
    // Every shape is one closed outline, so it can be filled.
    const QPainterPath::Element first = p.elementAt(0);
    const QPainterPath::Element last = p.elementAt(p.elementCount() - 1);
    QCOMPARE(QPointF(last), QPointF(first));
}

void TestDrawnShapes::rightToLeftDragGivesTheSameShape_data()
{
    QTest::addColumn<int>("tool");
    QTest::addColumn<bool>("proportional");
    for (int tool = RectangleTool; tool <= StarTool; ++tool) {
        QTest::newRow(QByteArray::number(tool) + " free") << tool << false;
        QTest::newRow(QByteArray::number(tool) + " proportional") << tool << true;
    }
}

void TestDrawnShapes::rightToLeftDragGivesTheSameShape()
{
    QFETCH(int, tool);
    QFETCH(bool, proportional);
    // The same rectangle dragged from each of its four corners to the opposite one.
    const QPointF tl(30, -180), br(150, -90);
    const QPointF tr(br.x(), tl.y()), bl(tl.x(), br.y());
    const QPainterPath reference = shapeOutline(tool, dragRectangle(tl, br, proportional));
    const QPainterPath fromRight = shapeOutline(tool, dragRectangle(br, tl, proportional));
    const QPainterPath fromTopRight = shapeOutline(tool, dragRectangle(tr, bl, proportional));
    if (!proportional) {
        QVERIFY2(samePath(reference, fromRight), qPrintable(describe(fromRight)));
        QVERIFY2(samePath(reference, fromTopRight), qPrintable(describe(fromTopRight)));
    } else {
        // Proportional drags grow away from the press point: same size and shape,
        // only placed on the other side.
        const QPointF shift =
            fromRight.boundingRect().topLeft() - reference.boundingRect().topLeft();
        QVERIFY(samePath(reference.translated(shift), fromRight, 1e-9));
        QCOMPARE(fromRight.boundingRect().width(), fromRight.boundingRect().height());
    }
}

void TestDrawnShapes::templateCornersLandScaledInTheRectangle_data()
{
    QTest::addColumn<int>("tool");
    QTest::addColumn<int>("corner");
    QTest::addColumn<QPointF>("expected");
    // Drag rectangle (10, -210, 200, 100).
    // Triangle template (0,0),(100,0),(50,-100): box (0,-100, 100x100).
    QTest::newRow("triangle first") << int(TriangleTool) << 0 << QPointF(10, -110);
    QTest::newRow("triangle apex") << int(TriangleTool) << 2 << QPointF(110, -210);
    // Pentagon box x 7..174 (167), y 10..171 (161).
    QTest::newRow("pentagon top") << int(PentagonTool) << 0
                                  << QPointF(10 + 84.0 * 200 / 167, -210 + 0.0);
    QTest::newRow("pentagon right")
        << int(PentagonTool) << 1 << QPointF(10 + 200.0, -210 + 60.0 * 100 / 161);
    // Hexagon box x 9..236 (227), y 14..202 (188).
    QTest::newRow("hexagon left") << int(HexagonTool) << 5
                                  << QPointF(10.0, -210 + 94.0 * 100 / 188);
    // Star box x 28..732 (704), y 23..683 (660).
    QTest::newRow("star tip") << int(StarTool) << 0 << QPointF(10 + 352.0 * 200 / 704, -210.0);
    QTest::newRow("star lower right")
        << int(StarTool) << 4 << QPointF(10 + 569.0 * 200 / 704, -110.0);
    QTest::newRow("star inner") << int(StarTool) << 5
                                << QPointF(10 + 352.0 * 200 / 704, -210 + 548.0 * 100 / 660);
}

void TestDrawnShapes::templateCornersLandScaledInTheRectangle()
{
    QFETCH(int, tool);
    QFETCH(int, corner);
    QFETCH(QPointF, expected);
    const QPainterPath p = shapeOutline(tool, QRectF(10, -210, 200, 100));
    QCOMPARE(p.elementCount(), shapeTemplate(tool).size() + 1);
    const QPointF got = p.elementAt(corner);
    QVERIFY2(QLineF(got, expected).length() < 1e-9,
             qPrintable(QString("(%1, %2)").arg(got.x()).arg(got.y())));
}

void TestDrawnShapes::rectangleAndEllipseUseTheLibraryShapes()
{
    const QRectF r(5, -60, 40, 25);
    QPainterPath rect, ellipse;
    rect.addRect(r);
    ellipse.addEllipse(r);
    QVERIFY(samePath(shapeOutline(RectangleTool, r), rect));
    QVERIFY(samePath(shapeOutline(EllipseTool, r), ellipse));
    QVERIFY(samePath(shapeOutline(EllipseTool, QRectF(45, -35, -40, -25)), ellipse));
}

void TestDrawnShapes::noOutlineForOtherToolsOrEmptyDrags_data()
{
    QTest::addColumn<int>("tool");
    QTest::addColumn<QRectF>("drag");
    QTest::addColumn<bool>("empty");
    QTest::newRow("selection tool") << int(SelectTool) << QRectF(0, 0, 10, 10) << true;
    QTest::newRow("line tool") << int(LineTool) << QRectF(0, 0, 10, 10) << true;
    QTest::newRow("curve tool") << int(CurveTool) << QRectF(0, 0, 10, 10) << true;
    QTest::newRow("click without drag") << int(StarTool) << QRectF(3, 3, 0, 0) << true;
    QTest::newRow("flat rectangle is a line") << int(RectangleTool) << QRectF(3, 3, 10, 0) << false;
}

void TestDrawnShapes::noOutlineForOtherToolsOrEmptyDrags()
{
    QFETCH(int, tool);
    QFETCH(QRectF, drag);
    QFETCH(bool, empty);
    QCOMPARE(shapeOutline(tool, drag).isEmpty(), empty);
}

QTEST_MAIN(TestDrawnShapes)
#include "tst_drawn_shapes.moc"
