// Geometry behind the tools: pointer rounding, drag rectangles and shape
// outlines, the line and Bezier pen builders, and the selection frame's handles.
#include "bezier_pen.h"
#include "drawn_shapes.h"
#include "editing_test_support.h"
#include "frame_geometry.h"
#include "jk_chang_jing.h"
#include "polyline_builder.h"

#include <QtTest>

using namespace lumitra;
using namespace editing_test;

using PointList = QVector<QPointF>;
Q_DECLARE_METATYPE(PointList)
Q_DECLARE_METATYPE(lumitra::FrameHandle)

namespace {
// Frame (100, -200, 80 x 40); at 0.5 mm per pixel handles reach 4 mm.
const QRectF kFrame(100, -200, 80, 40);
} // namespace

class TestToolGeometry : public QObject
{
    Q_OBJECT

private slots:
    void dragRectangle_data();
    void dragRectangle();
    void shapesFillTheDragFromAnyCorner_data();
    void shapesFillTheDragFromAnyCorner();
    void noOutline_data();
    void noOutline();

    void polylineFollowsTheClicks_data();
    void polylineFollowsTheClicks();
    void penDragMakesASmoothPoint();
    void penPressOnFirstPointCloses_data();
    void penPressOnFirstPointCloses();
    void penDragWhileClosingShapesTheFirstPoint();
    void penRemovalReopens();

    void handleUnderThePointer_data();
    void handleUnderThePointer();
    void scaleFactorsKeepTheOppositeHandle_data();
    void scaleFactorsKeepTheOppositeHandle();
    void rotationAngles_data();
    void rotationAngles();
};

void TestToolGeometry::dragRectangle_data()
{
    QTest::addColumn<QPointF>("press");
    QTest::addColumn<QPointF>("pointer");
    QTest::addColumn<bool>("proportional");
    QTest::addColumn<QRectF>("expected");
    QTest::newRow("up left keeps signs")
        << QPointF(50, -50) << QPointF(20.2, -90.5) << false << QRectF(50, -50, -30, -40);
    QTest::newRow("negative halves round up")
        << QPointF(-2.5, -40.5) << QPointF(10.49, 9.5) << false << QRectF(-2, -40, 12, 50);
    QTest::newRow("press rounded too")
        << QPointF(10.4, -10.6) << QPointF(20, -5) << false << QRectF(10, -11, 10, 6);
    QTest::newRow("proportional keeps each sign")
        << QPointF(0, 0) << QPointF(-8, 25) << true << QRectF(0, 0, -25, 25);
    QTest::newRow("proportional flat drag")
        << QPointF(0, 0) << QPointF(15, 0) << true << QRectF(0, 0, 15, 15);
}

void TestToolGeometry::dragRectangle()
{
    QFETCH(QPointF, press);
    QFETCH(QPointF, pointer);
    QFETCH(bool, proportional);
    QFETCH(QRectF, expected);
    const QRectF r = lumitra::dragRectangle(press, pointer, proportional);
    QVERIFY2(sameRect(r, expected, 0), qPrintable(describe(r)));
}

void TestToolGeometry::shapesFillTheDragFromAnyCorner_data()
{
    QTest::addColumn<int>("tool");
    QTest::addColumn<QRectF>("drag");
    for (int tool = RectangleTool; tool <= StarTool; ++tool) {
        const QByteArray name = QByteArray::number(tool);
        QTest::newRow(name + " plain") << tool << QRectF(20, -150, 80, 45);
        QTest::newRow(name + " negative both") << tool << QRectF(120, -20, -33, -71);
        QTest::newRow(name + " thin") << tool << QRectF(5, -5, 1, 300);
    }
}

void TestToolGeometry::shapesFillTheDragFromAnyCorner()
{
    QFETCH(int, tool);
    QFETCH(QRectF, drag);
    const QPainterPath p = shapeOutline(tool, drag);
    QVERIFY(!p.isEmpty());
    QVERIFY2(sameRect(p.boundingRect(), drag.normalized(), 1e-9),
             qPrintable(describe(p.boundingRect()) + " vs " + describe(drag.normalized())));
    // One closed outline, so it can be filled.
    QCOMPARE(QPointF(p.elementAt(p.elementCount() - 1)), QPointF(p.elementAt(0)));
    const QRectF n = drag.normalized();
    if (tool == TriangleTool) // apex up, in the middle of the top edge
        QCOMPARE(QPointF(p.elementAt(2)), QPointF(n.center().x(), n.top()));
    // The same rectangle dragged from each corner to the opposite one.
    const QPainterPath reference =
        shapeOutline(tool, lumitra::dragRectangle(n.topLeft(), n.bottomRight(), false));
    for (const auto &ends :
         {std::pair{n.bottomRight(), n.topLeft()}, std::pair{n.topRight(), n.bottomLeft()}}) {
        const QPainterPath other =
            shapeOutline(tool, lumitra::dragRectangle(ends.first, ends.second, false));
        QVERIFY2(samePath(reference, other), qPrintable(describe(other)));
    }
    // Proportional drags grow away from the press point: same shape, other side.
    const QPainterPath square =
        shapeOutline(tool, lumitra::dragRectangle(n.topLeft(), n.bottomRight(), true));
    const QPainterPath back =
        shapeOutline(tool, lumitra::dragRectangle(n.bottomRight(), n.topLeft(), true));
    QVERIFY(
        samePath(square.translated(back.boundingRect().topLeft() - square.boundingRect().topLeft()),
                 back, 1e-9));
    QCOMPARE(back.boundingRect().width(), back.boundingRect().height());
}

void TestToolGeometry::noOutline_data()
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

void TestToolGeometry::noOutline()
{
    QFETCH(int, tool);
    QFETCH(QRectF, drag);
    QFETCH(bool, empty);
    QCOMPARE(shapeOutline(tool, drag).isEmpty(), empty);
}

void TestToolGeometry::polylineFollowsTheClicks_data()
{
    QTest::addColumn<PointList>("clicks");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<int>("corners");
    QTest::newRow("open zigzag") << PointList{{0, 0}, {10, -10}, {20, 0}, {30, -10}} << false << 4;
    QTest::newRow("near first but only two points") << PointList{{0, 0}, {0.3, 0}} << false << 2;
    QTest::newRow("double click on one spot adds once")
        << PointList{{0, 0}, {5, 5}, {5, 5}, {9, 1}} << false << 3;
    QTest::newRow("clicks after closing are ignored")
        << PointList{{0, 0}, {10, 0}, {5, 8}, {0.2, 0.1}, {50, 50}} << true << 3;
}

void TestToolGeometry::polylineFollowsTheClicks()
{
    QFETCH(PointList, clicks);
    QFETCH(bool, closed);
    QFETCH(int, corners);
    PolylineBuilder line;
    bool finished = false;
    for (const QPointF &p : clicks)
        finished = line.addPoint(p, 0.5);
    QCOMPARE(finished, closed);
    QCOMPARE(line.isClosed(), closed);
    QCOMPARE(line.count(), corners);
    const QPainterPath p = line.path();
    QCOMPARE(p.elementCount(), corners + (closed ? 1 : 0));
    for (int i = 0; i < p.elementCount(); ++i)
        QCOMPARE(QPointF(p.elementAt(i)), line.points().at(i % corners));
}

void TestToolGeometry::penDragMakesASmoothPoint()
{
    BezierPen pen;
    pen.press({0, 0}, 1);
    pen.release();
    pen.press({30, 0}, 1);
    pen.drag({35, -10});
    pen.drag({40, -10}); // the last drag position wins
    pen.release();
    pen.drag({99, 99}); // moving without the button changes nothing
    pen.press({60, 0}, 1);
    pen.release();

    QVERIFY(pen.anchors().first().isCorner() && pen.anchors().last().isCorner());
    const PenAnchor &smooth = pen.anchors().at(1);
    QCOMPARE(smooth.out, QPointF(40, -10));
    QCOMPARE(smooth.in, QPointF(20, 10)); // mirrored through the point
    QPainterPath expected;
    expected.moveTo(0, 0);
    expected.cubicTo(QPointF(0, 0), QPointF(20, 10), QPointF(30, 0));
    expected.cubicTo(QPointF(40, -10), QPointF(60, 0), QPointF(60, 0));
    QVERIFY2(samePath(pen.path(), expected), qPrintable(describe(pen.path())));
}

void TestToolGeometry::penPressOnFirstPointCloses_data()
{
    QTest::addColumn<int>("anchorsBefore");
    QTest::addColumn<QPointF>("press");
    QTest::addColumn<bool>("closes");
    QTest::newRow("within tolerance") << 3 << QPointF(0.7, -0.7) << true;
    QTest::newRow("just outside") << 3 << QPointF(1.1, 0) << false;
    QTest::newRow("only one point yet") << 1 << QPointF(0, 0) << false;
    QTest::newRow("two points suffice") << 2 << QPointF(0, 0.5) << true;
}

void TestToolGeometry::penPressOnFirstPointCloses()
{
    QFETCH(int, anchorsBefore);
    QFETCH(QPointF, press);
    QFETCH(bool, closes);
    const QPointF points[] = {{0, 0}, {40, 0}, {40, -40}};
    BezierPen pen;
    for (int i = 0; i < anchorsBefore; ++i) {
        pen.press(points[i], 1);
        pen.release();
    }
    QCOMPARE(pen.press(press, 1), closes);
    pen.release();
    QCOMPARE(pen.isClosed(), closes);
    const QPainterPath p = pen.path();
    QCOMPARE(QPointF(p.elementAt(p.elementCount() - 1)), closes ? QPointF(0, 0) : press);
    QCOMPARE(pen.count(), closes ? anchorsBefore : anchorsBefore + 1);
}

void TestToolGeometry::penDragWhileClosingShapesTheFirstPoint()
{
    BezierPen pen;
    for (const QPointF &p : {QPointF(0, 0), QPointF(40, 0), QPointF(20, -30)}) {
        pen.press(p, 1);
        pen.release();
    }
    QVERIFY(pen.press({0.2, 0}, 1));
    pen.drag({-5, 5});
    pen.release();
    QCOMPARE(pen.anchors().first().out, QPointF(-5, 5));
    QCOMPARE(pen.anchors().first().in, QPointF(5, -5));
    // The first segment leaves through the outgoing handle; the closing one
    // arrives through the incoming handle.
    const QPainterPath p = pen.path();
    const int n = p.elementCount();
    QCOMPARE(p.elementAt(1).type, QPainterPath::CurveToElement);
    QCOMPARE(QPointF(p.elementAt(1)), QPointF(-5, 5));
    QCOMPARE(QPointF(p.elementAt(n - 2)), QPointF(5, -5));
    QCOMPARE(QPointF(p.elementAt(n - 1)), QPointF(0, 0));
}

void TestToolGeometry::penRemovalReopens()
{
    BezierPen pen;
    for (const QPointF &p : {QPointF(0, 0), QPointF(50, 0)}) {
        pen.press(p, 1);
        pen.release();
    }
    pen.removeLast();
    QCOMPARE(pen.count(), 1);
    pen.press({0, 20}, 1);
    pen.press({0, 0}, 1); // closes
    QVERIFY(pen.isClosed());
    pen.removeLast(); // reopens without losing points
    QVERIFY(!pen.isClosed());
    QCOMPARE(pen.count(), 2);
    pen.clear();
    QVERIFY(pen.path().isEmpty());
}

void TestToolGeometry::handleUnderThePointer_data()
{
    QTest::addColumn<QPointF>("pointer");
    QTest::addColumn<double>("mmPerPixel");
    QTest::addColumn<FrameHandle>("handle");
    QTest::newRow("top-left corner") << QPointF(101, -199) << 0.5 << FrameHandle::TopLeft;
    QTest::newRow("just outside the corner") << QPointF(95.9, -200) << 0.5 << FrameHandle::None;
    QTest::newRow("right edge centre") << QPointF(183, -180) << 0.5 << FrameHandle::Right;
    QTest::newRow("bottom-left") << QPointF(97, -163) << 0.5 << FrameHandle::BottomLeft;
    // 24 px above the top centre at 0.5 mm/px is 12 mm up.
    QTest::newRow("rotate handle") << QPointF(140, -212) << 0.5 << FrameHandle::Rotate;
    QTest::newRow("inside") << QPointF(120, -175) << 0.5 << FrameHandle::Inside;
    QTest::newRow("outside") << QPointF(300, -175) << 0.5 << FrameHandle::None;
    // Zoomed in, handles shrink to 0.4 mm in the scene.
    QTest::newRow("zoomed: on the corner")
        << QPointF(100.3, -199.7) << 0.05 << FrameHandle::TopLeft;
    QTest::newRow("zoomed: rotate") << QPointF(140, -201.2) << 0.05 << FrameHandle::Rotate;
}

void TestToolGeometry::handleUnderThePointer()
{
    QFETCH(QPointF, pointer);
    QFETCH(double, mmPerPixel);
    QFETCH(FrameHandle, handle);
    QCOMPARE(handleAt(kFrame, pointer, mmPerPixel), handle);
}

void TestToolGeometry::scaleFactorsKeepTheOppositeHandle_data()
{
    QTest::addColumn<QRectF>("frame");
    QTest::addColumn<FrameHandle>("handle");
    QTest::addColumn<QPointF>("pointer");
    QTest::addColumn<bool>("keepRatio");
    QTest::addColumn<double>("sx");
    QTest::addColumn<double>("sy");
    QTest::addColumn<QPointF>("anchor");
    QTest::newRow("right edge, ratio kept") << kFrame << FrameHandle::Right << QPointF(220, -150)
                                            << true << 1.5 << 1.5 << QPointF(100, -180);
    QTest::newRow("top edge taller") << kFrame << FrameHandle::Top << QPointF(0, -240) << false
                                     << 1.0 << 2.0 << QPointF(140, -160);
    QTest::newRow("past the anchor stops at 0.1 mm")
        << kFrame << FrameHandle::Left << QPointF(250, -180) << false << 0.1 / 80 << 1.0
        << QPointF(180, -180);
    QTest::newRow("flat frame keeps its height")
        << QRectF(0, 0, 50, 0) << FrameHandle::BottomRight << QPointF(100, 30) << true << 2.0 << 1.0
        << QPointF(0, 0);
    QTest::newRow("flat frame top handle does nothing")
        << QRectF(0, 0, 50, 0) << FrameHandle::Top << QPointF(25, -30) << false << 1.0 << 1.0
        << QPointF(25, 0);
}

void TestToolGeometry::scaleFactorsKeepTheOppositeHandle()
{
    QFETCH(QRectF, frame);
    QFETCH(FrameHandle, handle);
    QFETCH(QPointF, pointer);
    QFETCH(bool, keepRatio);
    QFETCH(double, sx);
    QFETCH(double, sy);
    QFETCH(QPointF, anchor);
    const ScaleStep step = scaleForHandle(frame, handle, pointer, keepRatio);
    QCOMPARE(step.sx, sx);
    QCOMPARE(step.sy, sy);
    QCOMPARE(step.anchor, anchor);
}

void TestToolGeometry::rotationAngles_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<bool>("snap");
    QTest::addColumn<double>("angle");
    // Centre (0, 0); scene y grows down the screen, so a quarter turn from
    // straight up to the right is clockwise, +90.
    QTest::newRow("up to left") << QPointF(0, -10) << QPointF(-10, 0) << false << -90.0;
    QTest::newRow("across the seam")
        << QPointF(-10, 1) << QPointF(-10, -1) << false << 2 * qRadiansToDegrees(std::atan(0.1));
    QTest::newRow("snapped to zero") << QPointF(10, 0) << QPointF(10, 1.2) << true << 0.0;
}

void TestToolGeometry::rotationAngles()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(bool, snap);
    QFETCH(double, angle);
    QVERIFY(qAbs(rotationAngle(QPointF(0, 0), from, to, snap) - angle) < 1e-9);
}

QTEST_MAIN(TestToolGeometry)
#include "tst_tool_geometry.moc"
