// Rectangular and circular arrays of a selection.
#include "arrays.h"
#include "editing_test_support.h"
#include "item_geometry.h"
#include "jk_chang_jing.h"
#include "program_state.h"

#include <QUndoCommand>
#include <QUndoStack>
#include <QtTest>
#include <memory>

using namespace lumitra;
using editing_test::describe;
using editing_test::rectItem;
using editing_test::samePath;
using editing_test::sameRect;

class TestArrays : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }

    void rectangularCellsStepByBoundsAndGap_data();
    void rectangularCellsStepByBoundsAndGap();
    void copiesKeepWhatTheOriginalHas();
    void circularCopiesTurnAboutTheCentre_data();
    void circularCopiesTurnAboutTheCentre();
    void circularCopiesWithoutTurning();
    void nothingToCopy_data();
    void nothingToCopy();
    void arrayCommandAddsAndTakesBack();
};

void TestArrays::rectangularCellsStepByBoundsAndGap_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<double>("gapX");
    QTest::addColumn<double>("gapY");
    QTest::newRow("one row") << 1 << 4 << 5.0 << 0.0;
    QTest::newRow("one column") << 3 << 1 << 0.0 << 2.5;
    QTest::newRow("grid") << 3 << 2 << 1.0 << 4.0;
    QTest::newRow("negative gaps overlap") << 2 << 2 << -5.0 << -2.0;
}

void TestArrays::rectangularCellsStepByBoundsAndGap()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    QFETCH(double, gapX);
    QFETCH(double, gapY);
    // A selection of two items whose bounds are (10, -50, 30 x 20).
    const QList<Jk_tu_yuan *> items{rectItem(10, -50, 10, 10), rectItem(30, -40, 10, 10)};
    const QList<Jk_tu_yuan *> copies =
        rectangularArrayCopies(items, RectangularArray{rows, columns, gapX, gapY});
    QCOMPARE(copies.size(), (rows * columns - 1) * items.size());
    int n = 0;
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < columns; ++c) {
            if (r == 0 && c == 0)
                continue;
            const QPointF shift(c * (30 + gapX), r * (20 + gapY));
            for (int k = 0; k < items.size(); ++k) {
                const Jk_tu_yuan *copy = copies.at(n++);
                QVERIFY(!copy->scene());
                QVERIFY(samePath(copy->scenePath(), items.at(k)->scenePath().translated(shift)));
            }
        }
    }
    qDeleteAll(copies);
    qDeleteAll(items);
}

void TestArrays::copiesKeepWhatTheOriginalHas()
{
    Jk_tu_yuan *item = rectItem(0, -20, 10, 5);
    item->layer_id = 7;
    item->wen_zi = "AB";
    item->zi_ti = "{}";
    Jk_tu_yuan::rotateItems({item}, 20, QPointF(5, -17));
    const QList<Jk_tu_yuan *> copies = rectangularArrayCopies({item}, RectangularArray{1, 2, 0, 0});
    QCOMPARE(copies.size(), 1);
    const Jk_tu_yuan *copy = copies.first();
    QCOMPARE(copy->layer_id, 7);
    QCOMPARE(copy->jiao_du, 20.0);
    QCOMPARE(copy->transform(), item->transform());
    QCOMPARE(copy->wen_zi, QString("AB"));
    QCOMPARE(copy->zi_ti, QString("{}"));
    QVERIFY(!copy->isSelected());
    qDeleteAll(copies);
    delete item;
}

void TestArrays::circularCopiesTurnAboutTheCentre_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("sweep");
    QTest::addColumn<double>("step");
    QTest::newRow("six around") << 6 << 360.0 << 60.0;
    QTest::newRow("four around") << 4 << 360.0 << 90.0;
    QTest::newRow("half circle, ends included") << 5 << 180.0 << 45.0;
    QTest::newRow("two") << 2 << 360.0 << 180.0;
}

void TestArrays::circularCopiesTurnAboutTheCentre()
{
    QFETCH(int, count);
    QFETCH(double, sweep);
    QFETCH(double, step);
    const QPointF centre(100, -100);
    Jk_tu_yuan *item = rectItem(140, -105, 20, 10); // to the right of the centre
    const QList<Jk_tu_yuan *> copies =
        circularArrayCopies({item}, CircularArray{count, centre, sweep, true});
    QCOMPARE(copies.size(), count - 1);
    for (int k = 1; k < count; ++k) {
        const Jk_tu_yuan *copy = copies.at(k - 1);
        QCOMPARE(copy->jiao_du, k * step);
        QTransform turn;
        turn.translate(centre.x(), centre.y());
        turn.rotate(k * step);
        turn.translate(-centre.x(), -centre.y());
        const QPainterPath expected = turn.map(item->scenePath());
        QVERIFY2(samePath(copy->scenePath(), expected, 1e-9),
                 qPrintable(editing_test::describe(copy->scenePath())));
    }
    qDeleteAll(copies);
    delete item;
}

void TestArrays::circularCopiesWithoutTurning()
{
    const QPointF centre(0, 0);
    Jk_tu_yuan *item = rectItem(40, -5, 20, 10); // bounds centre (50, 0)
    const QList<Jk_tu_yuan *> copies =
        circularArrayCopies({item}, CircularArray{4, centre, 360, false});
    QCOMPARE(copies.size(), 3);
    const QPointF expectedCentres[] = {{0, 50}, {-50, 0}, {0, -50}};
    for (int k = 0; k < 3; ++k) {
        const QRectF b = outlineBounds(copies.at(k));
        QVERIFY2(QLineF(b.center(), expectedCentres[k]).length() < 1e-9, qPrintable(describe(b)));
        QCOMPARE(b.size(), QSizeF(20, 10)); // not turned
        QCOMPARE(copies.at(k)->jiao_du, 0.0);
    }
    qDeleteAll(copies);
    delete item;
}

void TestArrays::nothingToCopy_data()
{
    QTest::addColumn<bool>("circular");
    QTest::addColumn<int>("a");
    QTest::addColumn<int>("b");
    QTest::newRow("1 x 1") << false << 1 << 1;
    QTest::newRow("0 rows") << false << 0 << 5;
    QTest::newRow("negative columns") << false << 3 << -1;
    QTest::newRow("circle of one") << true << 1 << 0;
    QTest::newRow("circle of zero") << true << 0 << 0;
}

void TestArrays::nothingToCopy()
{
    QFETCH(bool, circular);
    QFETCH(int, a);
    QFETCH(int, b);
    Jk_tu_yuan *item = rectItem(0, 0, 5, 5);
    const QList<Jk_tu_yuan *> copies =
        circular ? circularArrayCopies({item}, CircularArray{a, QPointF(), 360, true})
                 : rectangularArrayCopies({item}, RectangularArray{a, b, 1, 1});
    QVERIFY(copies.isEmpty());
    Jk_chang_jing scene;
    std::unique_ptr<QUndoCommand> command(
        circular ? makeCircularArrayCommand(&scene, {item}, CircularArray{a, QPointF(), 360, true})
                 : makeRectangularArrayCommand(&scene, {item}, RectangularArray{a, b, 1, 1}));
    QVERIFY(!command);
    delete item;
}

void TestArrays::arrayCommandAddsAndTakesBack()
{
    Jk_chang_jing scene;
    Jk_tu_yuan *item = rectItem(0, -10, 10, 10);
    scene.addItem(item);
    QUndoStack stack;
    programState().unsaved = false;
    stack.push(makeRectangularArrayCommand(&scene, {item}, RectangularArray{2, 3, 2, 2}));
    QVERIFY(programState().unsaved);
    QCOMPARE(scene.items().size(), 6);
    QCOMPARE(scene.selectedItems().size(), 5); // the new copies
    stack.undo();
    QCOMPARE(scene.items().size(), 1);
    stack.redo();
    QCOMPARE(scene.items().size(), 6);
    QList<Jk_tu_yuan *> all;
    for (QGraphicsItem *g : scene.items())
        all << dynamic_cast<Jk_tu_yuan *>(g);
    // Three columns of 10 mm with 2 mm gaps, two rows likewise.
    QVERIFY2(sameRect(outlineBounds(all), QRectF(0, -10, 34, 22)),
             qPrintable(describe(outlineBounds(all))));
    stack.undo();
    stack.clear(); // the undone copies go with their command
    QCOMPARE(scene.items().size(), 1);
}

QTEST_MAIN(TestArrays)
#include "tst_arrays.moc"
