// Combine and break apart: outlines become one item and come apart again,
// holes staying with the outline around them.
#include "combine.h"
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
using editing_test::samePath;
using editing_test::samePaths;
using editing_test::scenePaths;

Q_DECLARE_METATYPE(QPainterPath)

namespace {

QPainterPath square(double x, double y, double side)
{
    QPainterPath p;
    p.addRect(x, y, side, side);
    return p;
}

QPainterPath circle(const QPointF &c, double r)
{
    QPainterPath p;
    p.addEllipse(c, r, r);
    return p;
}

QPainterPath joined(std::initializer_list<QPainterPath> parts)
{
    QPainterPath p;
    for (const QPainterPath &part : parts)
        p.addPath(part);
    return p;
}

QPainterPath openLine(double x, double y)
{
    QPainterPath p;
    p.moveTo(x, y);
    p.lineTo(x + 10, y + 3);
    p.lineTo(x + 20, y);
    return p;
}

Jk_tu_yuan *itemAt(const QPainterPath &path, const QPointF &pos)
{
    auto *item = new Jk_tu_yuan(path, 1);
    item->setPos(pos);
    return item;
}

QList<Jk_tu_yuan *> sceneItems(const Jk_chang_jing &scene)
{
    QList<Jk_tu_yuan *> items;
    for (QGraphicsItem *g : scene.items(Qt::AscendingOrder))
        items << dynamic_cast<Jk_tu_yuan *>(g);
    return items;
}

} // namespace

class TestCombine : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }

    void splitsIntoSubpaths_data();
    void splitsIntoSubpaths();
    void closedSubpaths_data();
    void closedSubpaths();
    void breakApartGroupsHoles_data();
    void breakApartGroupsHoles();
    void combinedRingKeepsItsHole();
    void combineKeepsASharedTransform();
    void combineOfMixedTransformsWorksInSceneCoordinates();
    void combineNeedsTwoVectorItems();
    void combineUndoRedo();
    void breakApartUndoRedo();
};

void TestCombine::splitsIntoSubpaths_data()
{
    QTest::addColumn<QPainterPath>("path");
    QTest::addColumn<QVector<int>>("elementCounts");
    QTest::newRow("one square") << square(0, 0, 10) << QVector<int>{5};
    QTest::newRow("square and circle")
        << joined({square(0, 0, 10), circle({50, 50}, 5)}) << QVector<int>{5, 13};
    QTest::newRow("open line, square")
        << joined({openLine(0, 0), square(30, 0, 5)}) << QVector<int>{3, 5};
    QPainterPath lonelyMove;
    lonelyMove.moveTo(5, 5);
    lonelyMove.lineTo(9, 9);
    lonelyMove.moveTo(20, 20);
    QTest::newRow("a trailing bare move is dropped") << lonelyMove << QVector<int>{2};
    QTest::newRow("empty") << QPainterPath() << QVector<int>{};
}

void TestCombine::splitsIntoSubpaths()
{
    QFETCH(QPainterPath, path);
    QFETCH(QVector<int>, elementCounts);
    const QList<QPainterPath> parts = splitSubpaths(path);
    QCOMPARE(parts.size(), elementCounts.size());
    QPainterPath again;
    for (int i = 0; i < parts.size(); ++i) {
        QCOMPARE(parts.at(i).elementCount(), elementCounts.at(i));
        again.addPath(parts.at(i));
    }
    if (path.elementCount() > 0 && path.elementCount() == again.elementCount())
        QVERIFY2(samePath(again, path), qPrintable(describe(again)));
}

void TestCombine::closedSubpaths_data()
{
    QTest::addColumn<QPainterPath>("path");
    QTest::addColumn<bool>("closed");
    QTest::newRow("square") << square(0, 0, 4) << true;
    QTest::newRow("circle") << circle({0, 0}, 3) << true;
    QTest::newRow("open polyline") << openLine(0, 0) << false;
    QPainterPath segment;
    segment.moveTo(0, 0);
    segment.lineTo(5, 0);
    QTest::newRow("segment") << segment << false;
    QPainterPath back;
    back.moveTo(0, 0);
    back.lineTo(5, 0);
    back.lineTo(5, 5);
    back.lineTo(0, 0);
    QTest::newRow("returns without closeSubpath") << back << true;
}

void TestCombine::closedSubpaths()
{
    QFETCH(QPainterPath, path);
    QFETCH(bool, closed);
    QCOMPARE(isClosedSubpath(path), closed);
}

void TestCombine::breakApartGroupsHoles_data()
{
    QTest::addColumn<QPainterPath>("path");
    QTest::addColumn<QVector<int>>("subpathsPerGroup");
    QTest::newRow("letter O: ring stays whole")
        << joined({circle({0, 0}, 10), circle({0, 0}, 6)}) << QVector<int>{2};
    QTest::newRow("hole listed first")
        << joined({circle({0, 0}, 6), circle({0, 0}, 10)}) << QVector<int>{2};
    QTest::newRow("two separate squares")
        << joined({square(0, 0, 10), square(20, 0, 10)}) << QVector<int>{1, 1};
    QTest::newRow("square with two holes")
        << joined({square(0, 0, 30), square(2, 2, 5), square(20, 20, 5)}) << QVector<int>{3};
    QTest::newRow("island in a hole is its own piece")
        << joined({square(0, 0, 30), square(5, 5, 20), square(10, 10, 10)}) << QVector<int>{2, 1};
    QTest::newRow("two rings") << joined(
        {circle({0, 0}, 10), circle({0, 0}, 6), circle({40, 0}, 10), circle({40, 0}, 6)})
                               << QVector<int>{2, 2};
    QTest::newRow("open line inside a square stays apart")
        << joined({square(0, 0, 30), openLine(5, 5)}) << QVector<int>{1, 1};
    QTest::newRow("overlapping squares are not holes")
        << joined({square(0, 0, 10), square(5, 5, 10)}) << QVector<int>{1, 1};
}

void TestCombine::breakApartGroupsHoles()
{
    QFETCH(QPainterPath, path);
    QFETCH(QVector<int>, subpathsPerGroup);
    const QList<QPainterPath> groups = breakApartOutline(path);
    QCOMPARE(groups.size(), subpathsPerGroup.size());
    int total = 0;
    for (int i = 0; i < groups.size(); ++i) {
        QCOMPARE(splitSubpaths(groups.at(i)).size(), subpathsPerGroup.at(i));
        QCOMPARE(groups.at(i).fillRule(), Qt::OddEvenFill);
        total += subpathsPerGroup.at(i);
    }
    QCOMPARE(total, splitSubpaths(path).size()); // nothing lost
}

void TestCombine::combinedRingKeepsItsHole()
{
    // An outer and an inner circle drawn as two items, at different positions.
    Jk_tu_yuan *outer = itemAt(circle({10, 10}, 10), {40, -60});
    Jk_tu_yuan *inner = itemAt(circle({0, 0}, 5), {50, -50});
    std::unique_ptr<Jk_tu_yuan> ring(combineItems({outer, inner}));
    QVERIFY(ring);
    const QPainterPath p = ring->scenePath();
    QCOMPARE(p.fillRule(), Qt::OddEvenFill);
    QVERIFY(!p.contains(QPointF(50, -50))); // the hole
    QVERIFY(p.contains(QPointF(50, -42)));  // the ring
    QVERIFY(!p.contains(QPointF(50, -39))); // outside
    // And it comes apart as one ring again.
    QCOMPARE(breakApartItem(ring.get()).size(), 0);
    QCOMPARE(breakApartOutline(ring->path).size(), 1);
    delete outer;
    delete inner;
}

void TestCombine::combineKeepsASharedTransform()
{
    Jk_tu_yuan *a = itemAt(square(0, 0, 10), {10, -30});
    Jk_tu_yuan *b = itemAt(square(0, 0, 6), {40, -30});
    Jk_tu_yuan::rotateItems({a, b}, 30, QPointF(30, -25));
    a->layer_id = 4;
    b->layer_id = 9;
    const QVector<QPainterPath> before = scenePaths({a, b});
    std::unique_ptr<Jk_tu_yuan> combined(combineItems({a, b}));
    QVERIFY(combined);
    QCOMPARE(combined->jiao_du, 30.0);
    QCOMPARE(combined->transform(), a->transform());
    QCOMPARE(combined->pos(), a->pos());
    QCOMPARE(combined->layer_id, 4);
    QVERIFY(!combined->isSelected());
    QVERIFY(samePath(combined->scenePath(), joined({before.at(0), before.at(1)}), 1e-9));
    delete a;
    delete b;
}

void TestCombine::combineOfMixedTransformsWorksInSceneCoordinates()
{
    Jk_tu_yuan *a = itemAt(square(0, 0, 10), {10, -30});
    Jk_tu_yuan *b = itemAt(circle({5, 5}, 5), {40, -50});
    Jk_tu_yuan::rotateItems({b}, 45, QPointF(45, -45));
    const QVector<QPainterPath> before = scenePaths({a, b});
    std::unique_ptr<Jk_tu_yuan> combined(combineItems({a, b}));
    QVERIFY(combined);
    QVERIFY(combined->transform().isIdentity());
    QCOMPARE(combined->jiao_du, 0.0);
    QCOMPARE(combined->pos(), outlineBounds({a, b}).topLeft());
    QVERIFY(samePath(combined->scenePath(), joined({before.at(0), before.at(1)}), 1e-9));
    delete a;
    delete b;
}

void TestCombine::combineNeedsTwoVectorItems()
{
    Jk_tu_yuan *vector = itemAt(square(0, 0, 10), {0, 0});
    QImage image(10, 10, QImage::Format_Grayscale8);
    image.fill(0);
    auto *bitmap = new Jk_tu_yuan(image);
    QVERIFY(!combineItems({vector}));
    QVERIFY(!combineItems({vector, bitmap}));
    Jk_chang_jing scene;
    QVERIFY(!std::unique_ptr<QUndoCommand>(makeCombineCommand(&scene, {vector, bitmap})));
    QVERIFY(!std::unique_ptr<QUndoCommand>(makeBreakApartCommand(&scene, {vector, bitmap})));
    delete vector;
    delete bitmap;
}

void TestCombine::combineUndoRedo()
{
    Jk_chang_jing scene;
    Jk_tu_yuan *bottom = itemAt(square(0, 0, 10), {0, -10});
    Jk_tu_yuan *middle = itemAt(circle({5, 5}, 5), {20, -10});
    Jk_tu_yuan *top = itemAt(square(0, 0, 4), {40, -10});
    for (auto *i : {bottom, middle, top})
        scene.addItem(i);
    const QVector<QPainterPath> start = scenePaths(sceneItems(scene));

    QUndoStack stack;
    programState().unsaved = false;
    stack.push(makeCombineCommand(&scene, {bottom, top}));
    QVERIFY(programState().unsaved);
    QCOMPARE(scene.items().size(), 2);
    QVERIFY(!bottom->scene() && !top->scene());
    QCOMPARE(scene.selectedItems().size(), 1);
    const QVector<QPainterPath> combined = scenePaths(sceneItems(scene));

    stack.undo();
    // Same items, same outlines, same stacking order as before.
    QCOMPARE(sceneItems(scene), (QList<Jk_tu_yuan *>{bottom, middle, top}));
    QVERIFY(samePaths(scenePaths(sceneItems(scene)), start));
    stack.redo();
    QVERIFY(samePaths(scenePaths(sceneItems(scene)), combined));
    stack.undo();
    stack.clear(); // the undone combined item is deleted with its command
    QCOMPARE(scene.items().size(), 3);
}

void TestCombine::breakApartUndoRedo()
{
    Jk_chang_jing scene;
    // A ring and a square in one item, turned and moved.
    Jk_tu_yuan *item =
        itemAt(joined({circle({10, 10}, 10), circle({10, 10}, 6), square(30, 0, 8)}), {5, -40});
    Jk_tu_yuan::rotateItems({item}, 15, QPointF(20, -30));
    item->layer_id = 3;
    scene.addItem(item);
    const QPainterPath whole = item->scenePath();

    QUndoStack stack;
    stack.push(makeBreakApartCommand(&scene, {item}));
    const QList<Jk_tu_yuan *> pieces = sceneItems(scene);
    QCOMPARE(pieces.size(), 2);
    QPainterPath together;
    for (Jk_tu_yuan *piece : pieces) {
        QCOMPARE(piece->jiao_du, 15.0);
        QCOMPARE(piece->transform(), item->transform());
        QCOMPARE(piece->layer_id, 3);
        QVERIFY(piece->isSelected());
    }
    // Pieces in the order of their first outline: the ring, then the square;
    // together they are the old outline.
    QCOMPARE(splitSubpaths(pieces.at(0)->path).size(), 2);
    QCOMPARE(splitSubpaths(pieces.at(1)->path).size(), 1);
    together.addPath(pieces.at(0)->scenePath());
    together.addPath(pieces.at(1)->scenePath());
    QVERIFY2(samePath(together, whole, 1e-9), qPrintable(describe(together)));
    stack.undo();
    QCOMPARE(sceneItems(scene), QList<Jk_tu_yuan *>{item});
    QVERIFY(samePath(item->scenePath(), whole));
    stack.redo();
    QCOMPARE(scene.items().size(), 2);
}

QTEST_MAIN(TestCombine)
#include "tst_combine.moc"
