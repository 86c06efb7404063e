// The point-by-point line tool and the Bezier pen.
#include "bezier_pen.h"
#include "editing_test_support.h"
#include "polyline_builder.h"

#include <QtTest>

using namespace lumitra;
using editing_test::describe;
using editing_test::samePath;

using PointList = QVector<QPointF>;
Q_DECLARE_METATYPE(PointList)

class TestPenPaths : public QObject
{
    Q_OBJECT

private slots:
    void polylineFollowsTheClicks_data();
    void polylineFollowsTheClicks();
    void polylineEditing();
    void polylinePreviewAddsARubberSegment();

    void clicksMakeCorners();
    void dragMakesASmoothPoint();
    void pressOnFirstPointCloses_data();
    void pressOnFirstPointCloses();
    void dragWhileClosingShapesTheFirstPoint();
    void penPreviewAndRemoval();
};

void TestPenPaths::polylineFollowsTheClicks_data()
{
    QTest::addColumn<PointList>("clicks");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<int>("corners");
    QTest::newRow("open zigzag") << PointList{{0, 0}, {10, -10}, {20, 0}, {30, -10}} << false << 4;
    QTest::newRow("closed on first point")
        << PointList{{0, 0}, {10, 0}, {10, -10}, {0.2, 0.1}} << true << 3;
    QTest::newRow("near first but only two points") << PointList{{0, 0}, {0.3, 0}} << false << 2;
    QTest::newRow("double click on one spot adds once")
        << PointList{{0, 0}, {5, 5}, {5, 5}, {9, 1}} << false << 3;
    QTest::newRow("clicks after closing are ignored")
        << PointList{{0, 0}, {10, 0}, {5, 8}, {0, 0}, {50, 50}} << true << 3;
}

void TestPenPaths::polylineFollowsTheClicks()
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
    for (int i = 0; i < corners; ++i)
        QCOMPARE(QPointF(p.elementAt(i)), line.points().at(i));
    if (closed)
        QCOMPARE(QPointF(p.elementAt(corners)), line.points().first());
}

void TestPenPaths::polylineEditing()
{
    PolylineBuilder line;
    line.addPoint({0, 0}, 1);
    line.addPoint({10, 0}, 1);
    line.addPoint({10, 10}, 1);
    QVERIFY(line.addPoint({0.5, 0.5}, 1));
    line.removeLast(); // reopens
    QVERIFY(!line.isClosed());
    QCOMPARE(line.count(), 3);
    line.removeLast();
    QCOMPARE(line.count(), 2);
    QCOMPARE(line.points().last(), QPointF(10, 0));
    line.clear();
    QCOMPARE(line.count(), 0);
    QVERIFY(line.path().isEmpty());
}

void TestPenPaths::polylinePreviewAddsARubberSegment()
{
    PolylineBuilder line;
    QVERIFY(line.previewPath({3, 3}).isEmpty());
    line.addPoint({0, 0}, 1);
    line.addPoint({10, 0}, 1);
    const QPainterPath preview = line.previewPath({10, -7});
    QCOMPARE(preview.elementCount(), 3);
    QCOMPARE(QPointF(preview.elementAt(2)), QPointF(10, -7));
    QCOMPARE(line.path().elementCount(), 2); // the preview changes nothing
}

void TestPenPaths::clicksMakeCorners()
{
    BezierPen pen;
    for (const QPointF &p : {QPointF(0, 0), QPointF(20, 0), QPointF(20, -20)}) {
        pen.press(p, 1);
        pen.release();
    }
    QPainterPath expected;
    expected.moveTo(0, 0);
    expected.lineTo(20, 0);
    expected.lineTo(20, -20);
    QVERIFY2(samePath(pen.path(), expected), qPrintable(describe(pen.path())));
    for (const PenAnchor &a : pen.anchors())
        QVERIFY(a.isCorner());
}

void TestPenPaths::dragMakesASmoothPoint()
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

    const PenAnchor &smooth = pen.anchors().at(1);
    QCOMPARE(smooth.out, QPointF(40, -10));
    QCOMPARE(smooth.in, QPointF(20, 10)); // mirrored through the point
    QPainterPath expected;
    expected.moveTo(0, 0);
    expected.cubicTo(QPointF(0, 0), QPointF(20, 10), QPointF(30, 0));
    expected.cubicTo(QPointF(40, -10), QPointF(60, 0), QPointF(60, 0));
    QVERIFY2(samePath(pen.path(), expected), qPrintable(describe(pen.path())));
}

void TestPenPaths::pressOnFirstPointCloses_data()
{
    QTest::addColumn<int>("anchorsBefore");
    QTest::addColumn<QPointF>("press");
    QTest::addColumn<bool>("closes");
    QTest::newRow("on the first point") << 3 << QPointF(0, 0) << true;
    QTest::newRow("within tolerance") << 3 << QPointF(0.7, -0.7) << true;
    QTest::newRow("just outside") << 3 << QPointF(1.1, 0) << false;
    QTest::newRow("only one point yet") << 1 << QPointF(0, 0) << false;
    QTest::newRow("two points suffice") << 2 << QPointF(0, 0.5) << true;
}

void TestPenPaths::pressOnFirstPointCloses()
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
    const QPointF end = p.elementAt(p.elementCount() - 1);
    QCOMPARE(end, closes ? QPointF(0, 0) : press);
    QCOMPARE(pen.count(), closes ? anchorsBefore : anchorsBefore + 1);
}

void TestPenPaths::dragWhileClosingShapesTheFirstPoint()
{
    BezierPen pen;
    pen.press({0, 0}, 1);
    pen.release();
    pen.press({40, 0}, 1);
    pen.release();
    pen.press({20, -30}, 1);
    pen.release();
    QVERIFY(pen.press({0.2, 0}, 1));
    pen.drag({-5, 5});
    pen.release();
    const PenAnchor &first = pen.anchors().first();
    QCOMPARE(first.out, QPointF(-5, 5));
    QCOMPARE(first.in, QPointF(5, -5));
    const QPainterPath p = pen.path();
    // First segment now leaves through the outgoing handle; the closing one
    // arrives through the incoming handle.
    QCOMPARE(p.elementAt(1).type, QPainterPath::CurveToElement);
    QCOMPARE(QPointF(p.elementAt(1)), QPointF(-5, 5));
    const int n = p.elementCount();
    QCOMPARE(QPointF(p.elementAt(n - 2)), QPointF(5, -5));
    QCOMPARE(QPointF(p.elementAt(n - 1)), QPointF(0, 0));
}

void TestPenPaths::penPreviewAndRemoval()
{
    BezierPen pen;
    pen.press({0, 0}, 1);
    pen.drag({10, 0});
    pen.release();
    const QPainterPath preview = pen.previewPath({30, -30});
    QCOMPARE(preview.elementCount(), 4); // move + one cubic to the pointer
    QCOMPARE(QPointF(preview.elementAt(1)), QPointF(10, 0));
    QCOMPARE(QPointF(preview.elementAt(3)), QPointF(30, -30));
    pen.press({50, 0}, 1);
    pen.release();
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

QTEST_MAIN(TestPenPaths)
#include "tst_pen_paths.moc"
