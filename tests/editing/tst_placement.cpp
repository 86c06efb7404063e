// Machine coordinates of a selection and exact placement (the move dialog's
// edit).
#include "editing_test_support.h"
#include "item_geometry.h"
#include "placement.h"
#include "program_state.h"

#include <QUndoStack>
#include <QtTest>

using namespace lumitra;
using editing_test::describe;
using editing_test::rectItem;
using editing_test::samePaths;
using editing_test::sameRect;
using editing_test::scenePaths;

class TestPlacement : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }

    void machineAndSceneRectangles_data();
    void machineAndSceneRectangles();
    void placementText_data();
    void placementText();
    void placesTheSelection_data();
    void placesTheSelection();
    void placementIsOneUndoableStep();
};

void TestPlacement::machineAndSceneRectangles_data()
{
    QTest::addColumn<QRectF>("scene");
    QTest::addColumn<QRectF>("machine");
    // Lower-left corner, machine Y up: scene y -60..-40 is machine Y 40..60.
    QTest::newRow("inside the work area") << QRectF(10, -60, 30, 20) << QRectF(10, 40, 30, 20);
    QTest::newRow("on the origin") << QRectF(0, -5, 5, 5) << QRectF(0, 0, 5, 5);
    QTest::newRow("below the work area") << QRectF(-3, 2, 4, 6) << QRectF(-3, -8, 4, 6);
    QTest::newRow("flat line") << QRectF(10, -50, 40, 0) << QRectF(10, 50, 40, 0);
}

void TestPlacement::machineAndSceneRectangles()
{
    QFETCH(QRectF, scene);
    QFETCH(QRectF, machine);
    QCOMPARE(machineRectFromScene(scene), machine);
    QCOMPARE(sceneRectFromMachine(machine), scene);
}

void TestPlacement::placementText_data()
{
    QTest::addColumn<QRectF>("scene");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("text");
    QTest::newRow("one item") << QRectF(12, -50.5, 40, 20) << 1
                              << "X: 12.00  Y: 30.50  W: 40.00  H: 20.00 mm";
    QTest::newRow("rounded to hundredths")
        << QRectF(0.004, -1, 1.006, 1) << 3 << "X: 0.00  Y: 0.00  W: 1.01  H: 1.00 mm";
    QTest::newRow("nothing selected") << QRectF(1, 1, 1, 1) << 0 << "";
}

void TestPlacement::placementText()
{
    QFETCH(QRectF, scene);
    QFETCH(int, count);
    QFETCH(QString, text);
    QCOMPARE(lumitra::placementText(scene, count), text);
}

void TestPlacement::placesTheSelection_data()
{
    QTest::addColumn<QRectF>("machine");
    QTest::addColumn<double>("rotation");
    QTest::addColumn<bool>("resize");
    QTest::addColumn<QRectF>("expectedMachine");
    QTest::addColumn<double>("expectedAngle");
    // The selection: two rectangles, scene bounds (10, -60, 40 x 20).
    QTest::newRow("move only") << QRectF(100, 100, 40, 20) << 0.0 << false
                               << QRectF(100, 100, 40, 20) << 0.0;
    QTest::newRow("resize") << QRectF(0, 0, 80, 10) << 0.0 << true << QRectF(0, 0, 80, 10) << 0.0;
    QTest::newRow("quarter turn, then to the corner")
        << QRectF(5, 5, 999, 999) << 90.0 << false << QRectF(5, 5, 20, 40) << 90.0;
    QTest::newRow("turn and resize")
        << QRectF(0, 0, 10, 10) << -90.0 << true << QRectF(0, 0, 10, 10) << -90.0;
}

void TestPlacement::placesTheSelection()
{
    QFETCH(QRectF, machine);
    QFETCH(double, rotation);
    QFETCH(bool, resize);
    QFETCH(QRectF, expectedMachine);
    QFETCH(double, expectedAngle);
    const QList<Jk_tu_yuan *> items{rectItem(10, -60, 10, 20), rectItem(30, -50, 20, 10)};
    placeItems(items, Placement{machine, rotation, resize});
    const QRectF got = machineRectFromScene(outlineBounds(items));
    QVERIFY2(sameRect(got, expectedMachine, 1e-9), qPrintable(describe(got)));
    QCOMPARE(items.first()->jiao_du, expectedAngle);
    qDeleteAll(items);
}

void TestPlacement::placementIsOneUndoableStep()
{
    const QList<Jk_tu_yuan *> items{rectItem(10, -60, 10, 20), rectItem(30, -50, 20, 10)};
    const QVector<QPainterPath> start = scenePaths(items);
    QUndoStack stack;
    programState().unsaved = false;
    stack.push(makePlaceCommand(items, Placement{QRectF(0, 0, 20, 10), 30, true}));
    QCOMPARE(stack.count(), 1);
    QVERIFY(programState().unsaved);
    const QVector<QPainterPath> placed = scenePaths(items);
    stack.undo();
    QVERIFY(samePaths(scenePaths(items), start));
    QCOMPARE(items.first()->jiao_du, 0.0);
    stack.redo();
    QVERIFY(samePaths(scenePaths(items), placed));
    stack.clear();
    qDeleteAll(items);
}

QTEST_MAIN(TestPlacement)
#include "tst_placement.moc"
