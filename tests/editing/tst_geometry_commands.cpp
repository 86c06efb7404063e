// Move, scale, mirror, rotate and fit as undoable commands: undo and redo give
// back the same scene outlines, jiao_du stays the rotation of the item
// transform, and every step marks the design unsaved.
#include "editing_test_support.h"
#include "geometry_command.h"
#include "item_geometry.h"
#include "program_state.h"

#include <QUndoStack>
#include <QtTest>
#include <functional>

using namespace lumitra;
using editing_test::describe;
using editing_test::rectItem;
using editing_test::samePaths;
using editing_test::sameRect;
using editing_test::scenePaths;

namespace {

using Items = QList<Jk_tu_yuan *>;
using Step = std::function<QUndoCommand *(const Items &)>;

// Three different items: a rectangle, a rotated ellipse and a triangle.
Items makeItems()
{
    Items items;
    items << rectItem(10, -80, 40, 20);
    QPainterPath ellipse;
    ellipse.addEllipse(0, 0, 30, 12);
    auto *e = new Jk_tu_yuan(ellipse, 1);
    e->setPos(70, -60);
    Jk_tu_yuan::rotateItems({e}, 25, QPointF(85, -54));
    items << e;
    auto *t = new Jk_tu_yuan(2);
    t->setPos(120, -150);
    items << t;
    return items;
}

Step stepNamed(const QString &name)
{
    if (name == "move")
        return [](const Items &i) { return makeMoveCommand(i, QPointF(12.5, -3.25)); };
    if (name == "scale")
        return [](const Items &i) { return makeScaleCommand(i, 1.7, 0.4, QPointF(33, -21)); };
    if (name == "mirrorH")
        return [](const Items &i) { return makeMirrorCommand(i, true); };
    if (name == "mirrorV")
        return [](const Items &i) { return makeMirrorCommand(i, false); };
    if (name == "rotate")
        return [](const Items &i) { return makeRotateCommand(i, 37, QPointF(60, -90)); };
    if (name == "fit")
        return [](const Items &i) { return makeFitCommand(i, QRectF(5, -300, 80, 60), false); };
    if (name == "fitRatio")
        return [](const Items &i) { return makeFitCommand(i, QRectF(5, -300, 80, 60), true); };
    return {};
}

// The item transform with the rotation by jiao_du taken off; for items only
// rotated, mirrored and uniformly scaled this is diagonal.
QTransform withoutRotation(const Jk_tu_yuan *item)
{
    return item->transform() * QTransform().rotate(-item->jiao_du);
}

} // namespace

class TestGeometryCommands : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }

    void undoRedoChainsGiveBackTheSameGeometry_data();
    void undoRedoChainsGiveBackTheSameGeometry();
    void scaleAboutAPoint_data();
    void scaleAboutAPoint();
    void mirrorKeepsBoundsAndFlipsRotation_data();
    void mirrorKeepsBoundsAndFlipsRotation();
    void jiaoDuStaysTheTransformRotation_data();
    void jiaoDuStaysTheTransformRotation();
    void rotationAccumulatesThroughUndo();
    void fitToRectangle_data();
    void fitToRectangle();
    void nudgeOffsets_data();
    void nudgeOffsets();
    void heldNudgesAreOneStep();
    void liveEditIsRecordedWithoutMovingAgain();
    void everyStepMarksUnsaved();
    void deletedItemsAreSkipped();
};

void TestGeometryCommands::undoRedoChainsGiveBackTheSameGeometry_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::newRow("move") << QStringList{"move"};
    QTest::newRow("scale then mirror") << QStringList{"scale", "mirrorH"};
    QTest::newRow("rotate mirror rotate") << QStringList{"rotate", "mirrorV", "rotate"};
    QTest::newRow("everything") << QStringList{"move", "rotate", "scale",    "mirrorH", "mirrorV",
                                               "fit",  "rotate", "fitRatio", "move"};
    QTest::newRow("fit, move, fit keeping the ratio") << QStringList{"fit", "move", "fitRatio"};
}

void TestGeometryCommands::undoRedoChainsGiveBackTheSameGeometry()
{
    QFETCH(QStringList, steps);
    const Items items = makeItems();
    QUndoStack stack;
    QVector<QVector<QPainterPath>> states{scenePaths(items)};
    QVector<QVector<double>> angles;
    auto anglesNow = [&] {
        QVector<double> a;
        for (auto *i : items)
            a << i->jiao_du;
        return a;
    };
    angles << anglesNow();
    for (const QString &name : steps) {
        stack.push(stepNamed(name)(items));
        states << scenePaths(items);
        angles << anglesNow();
        QVERIFY2(!samePaths(states.last(), states.at(states.size() - 2)),
                 qPrintable(name + " changed nothing"));
    }
    // Undo all the way back, checking every level, then redo all the way up,
    // twice over.
    for (int round = 0; round < 2; ++round) {
        for (int level = steps.size() - 1; level >= 0; --level) {
            stack.undo();
            QVERIFY2(samePaths(scenePaths(items), states.at(level)),
                     qPrintable(QString("undo to level %1").arg(level)));
            QCOMPARE(anglesNow(), angles.at(level));
        }
        for (int level = 1; level <= steps.size(); ++level) {
            stack.redo();
            QVERIFY2(samePaths(scenePaths(items), states.at(level)),
                     qPrintable(QString("redo to level %1").arg(level)));
            QCOMPARE(anglesNow(), angles.at(level));
        }
    }
    stack.clear();
    qDeleteAll(items);
}

void TestGeometryCommands::scaleAboutAPoint_data()
{
    QTest::addColumn<double>("sx");
    QTest::addColumn<double>("sy");
    QTest::addColumn<QPointF>("centre");
    QTest::addColumn<QRectF>("expected");
    // The item is the rectangle (10, -50, 20 x 10).
    QTest::newRow("about the top-left")
        << 2.0 << 3.0 << QPointF(10, -50) << QRectF(10, -50, 40, 30);
    QTest::newRow("about the centre") << 2.0 << 2.0 << QPointF(20, -45) << QRectF(0, -55, 40, 20);
    QTest::newRow("shrink about the origin")
        << 0.5 << 0.5 << QPointF(0, 0) << QRectF(5, -25, 10, 5);
    QTest::newRow("negative is a mirror")
        << -1.0 << 1.0 << QPointF(0, 0) << QRectF(-30, -50, 20, 10);
}

void TestGeometryCommands::scaleAboutAPoint()
{
    QFETCH(double, sx);
    QFETCH(double, sy);
    QFETCH(QPointF, centre);
    QFETCH(QRectF, expected);
    Jk_tu_yuan *item = rectItem(10, -50, 20, 10);
    QUndoStack stack;
    stack.push(makeScaleCommand({item}, sx, sy, centre));
    QVERIFY2(sameRect(outlineBounds(item), expected), qPrintable(describe(outlineBounds(item))));
    QCOMPARE(item->jiao_du, 0.0);
    QCOMPARE(item->path.boundingRect(), QRectF(0, 0, 20, 10)); // the outline itself is kept
    stack.undo();
    QVERIFY(sameRect(outlineBounds(item), QRectF(10, -50, 20, 10), 0));
    QVERIFY(item->transform().isIdentity());
    stack.clear();
    delete item;
}

void TestGeometryCommands::mirrorKeepsBoundsAndFlipsRotation_data()
{
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<double>("angle");
    QTest::newRow("horizontal, unrotated") << true << 0.0;
    QTest::newRow("vertical, unrotated") << false << 0.0;
    QTest::newRow("horizontal, rotated 30") << true << 30.0;
    QTest::newRow("vertical, rotated 390") << false << 390.0;
}

void TestGeometryCommands::mirrorKeepsBoundsAndFlipsRotation()
{
    QFETCH(bool, horizontal);
    QFETCH(double, angle);
    QPainterPath tri;
    tri.moveTo(0, 0);
    tri.lineTo(30, 0);
    tri.lineTo(0, 10);
    tri.closeSubpath();
    auto *item = new Jk_tu_yuan(tri, 1);
    item->setPos(50, -70);
    Jk_tu_yuan::rotateItems({item}, angle, QPointF(60, -65));
    const QRectF before = outlineBounds(item);
    const QPointF corner = item->mapToScene(QPointF(30, 0));

    QUndoStack stack;
    stack.push(makeMirrorCommand({item}, horizontal));
    QVERIFY2(sameRect(outlineBounds(item), before, 1e-9),
             qPrintable(describe(outlineBounds(item))));
    QCOMPARE(item->jiao_du, -angle);
    // A corner lands on its mirror image across the centre line of the bounds.
    const QPointF c = before.center();
    const QPointF mirrored = horizontal ? QPointF(2 * c.x() - corner.x(), corner.y())
                                        : QPointF(corner.x(), 2 * c.y() - corner.y());
    QVERIFY(QLineF(item->mapToScene(QPointF(30, 0)), mirrored).length() < 1e-9);
    // The transform is the item's own mirror followed by the rotation by jiao_du.
    const QTransform own = withoutRotation(item);
    QVERIFY(qAbs(own.m12()) < 1e-12 && qAbs(own.m21()) < 1e-12);
    QVERIFY(qAbs(qAbs(own.m11()) - 1) < 1e-12 && qAbs(qAbs(own.m22()) - 1) < 1e-12);
    QVERIFY(own.determinant() < 0);
    stack.undo();
    QCOMPARE(item->jiao_du, angle);
    stack.clear();
    delete item;
}

void TestGeometryCommands::jiaoDuStaysTheTransformRotation_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::newRow("rotate") << QStringList{"rotate"};
    QTest::newRow("rotate mirror") << QStringList{"rotate", "mirrorH"};
    QTest::newRow("mirror rotate mirror rotate")
        << QStringList{"mirrorV", "rotate", "mirrorH", "rotate"};
    QTest::newRow("uniform fit between") << QStringList{"rotate", "fitRatio", "mirrorV", "rotate"};
}

void TestGeometryCommands::jiaoDuStaysTheTransformRotation()
{
    QFETCH(QStringList, steps);
    Jk_tu_yuan *item = rectItem(30, -40, 25, 10);
    QUndoStack stack;
    int mirrors = 0;
    for (const QString &name : steps) {
        stack.push(stepNamed(name)({item}));
        mirrors += name.startsWith("mirror") ? 1 : 0;
        const QTransform own = withoutRotation(item);
        QVERIFY2(qAbs(own.m12()) < 1e-9 && qAbs(own.m21()) < 1e-9,
                 qPrintable(QString("after %1: %2 %3").arg(name).arg(own.m12()).arg(own.m21())));
        QVERIFY(qAbs(qAbs(own.m11()) - qAbs(own.m22())) < 1e-9);
        QCOMPARE(own.determinant() < 0, mirrors % 2 == 1);
    }
    stack.clear();
    delete item;
}

void TestGeometryCommands::rotationAccumulatesThroughUndo()
{
    Jk_tu_yuan *item = rectItem(0, -50, 50, 0);
    QUndoStack stack;
    stack.push(makeRotateCommand({item}, 90, QPointF(25, -50)));
    stack.push(makeRotateCommand({item}, 300, QPointF(25, -50)));
    QCOMPARE(item->jiao_du, 390.0);
    const QPointF end = item->mapToScene(QPointF(50, 0));
    // 390 degrees is 30: the far end of the line swings round the centre.
    QVERIFY(
        QLineF(end, QPointF(25 + 25 * std::cos(M_PI / 6), -50 + 25 * std::sin(M_PI / 6))).length()
        < 1e-9);
    stack.undo();
    QCOMPARE(item->jiao_du, 90.0);
    stack.undo();
    QCOMPARE(item->jiao_du, 0.0);
    QVERIFY(item->transform().isIdentity());
    stack.redo();
    stack.redo();
    QCOMPARE(item->jiao_du, 390.0);
    stack.clear();
    delete item;
}

void TestGeometryCommands::fitToRectangle_data()
{
    QTest::addColumn<QRectF>("start"); // outline of a rectangle item
    QTest::addColumn<QRectF>("target");
    QTest::addColumn<bool>("keepRatio");
    QTest::addColumn<QRectF>("expected");
    QTest::newRow("free") << QRectF(10, -50, 20, 10) << QRectF(100, -200, 60, 40) << false
                          << QRectF(100, -200, 60, 40);
    QTest::newRow("ratio, width limits")
        << QRectF(10, -50, 20, 10) << QRectF(0, -100, 40, 40) << true << QRectF(0, -100, 40, 20);
    QTest::newRow("ratio, height limits")
        << QRectF(10, -50, 20, 10) << QRectF(0, -100, 100, 15) << true << QRectF(0, -100, 30, 15);
    QTest::newRow("only moved") << QRectF(10, -50, 20, 10) << QRectF(-5, 7, 20, 10) << false
                                << QRectF(-5, 7, 20, 10);
    QTest::newRow("horizontal line keeps height")
        << QRectF(10, -50, 20, 0) << QRectF(0, -10, 50, 30) << false << QRectF(0, -10, 50, 0);
    QTest::newRow("horizontal line with ratio")
        << QRectF(10, -50, 20, 0) << QRectF(0, -10, 50, 30) << true << QRectF(0, -10, 50, 0);
}

void TestGeometryCommands::fitToRectangle()
{
    QFETCH(QRectF, start);
    QFETCH(QRectF, target);
    QFETCH(bool, keepRatio);
    QFETCH(QRectF, expected);
    QPainterPath p;
    if (start.height() == 0) {
        p.moveTo(0, 0);
        p.lineTo(start.width(), 0);
    } else {
        p.addRect(0, 0, start.width(), start.height());
    }
    auto *item = new Jk_tu_yuan(p, 1);
    item->setPos(start.topLeft());
    QUndoStack stack;
    stack.push(makeFitCommand({item}, target, keepRatio));
    QVERIFY2(sameRect(outlineBounds(item), expected, 1e-9),
             qPrintable(describe(outlineBounds(item))));
    stack.undo();
    QVERIFY(sameRect(outlineBounds(item), start, 0));
    stack.clear();
    delete item;
}

void TestGeometryCommands::nudgeOffsets_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<QPointF>("offset");
    QTest::newRow("left") << int(Qt::Key_Left) << false << QPointF(-1, 0);
    QTest::newRow("right shift") << int(Qt::Key_Right) << true << QPointF(10, 0);
    QTest::newRow("up is negative scene y") << int(Qt::Key_Up) << false << QPointF(0, -1);
    QTest::newRow("down shift") << int(Qt::Key_Down) << true << QPointF(0, 10);
    QTest::newRow("other key") << int(Qt::Key_A) << false << QPointF();
}

void TestGeometryCommands::nudgeOffsets()
{
    QFETCH(int, key);
    QFETCH(bool, shift);
    QFETCH(QPointF, offset);
    QCOMPARE(nudgeOffset(key, shift), offset);
}

void TestGeometryCommands::heldNudgesAreOneStep()
{
    Jk_tu_yuan *a = rectItem(0, 0, 5, 5);
    Jk_tu_yuan *b = rectItem(20, 0, 5, 5);
    QUndoStack stack;
    for (int i = 0; i < 5; ++i)
        stack.push(makeNudgeCommand({a, b}, nudgeOffset(Qt::Key_Right, false)));
    stack.push(makeNudgeCommand({a, b}, nudgeOffset(Qt::Key_Down, true)));
    QCOMPARE(stack.count(), 1);
    QCOMPARE(a->pos(), QPointF(5, 10));
    QCOMPARE(b->pos(), QPointF(25, 10));
    // Another selection, or a plain move in between, starts a new step.
    stack.push(makeNudgeCommand({a}, QPointF(1, 0)));
    QCOMPARE(stack.count(), 2);
    stack.push(makeMoveCommand({a}, QPointF(1, 0)));
    stack.push(makeNudgeCommand({a}, QPointF(1, 0)));
    QCOMPARE(stack.count(), 4);
    stack.setIndex(1);
    QCOMPARE(a->pos(), QPointF(5, 10));
    stack.undo();
    QCOMPARE(a->pos(), QPointF(0, 0));
    QCOMPARE(b->pos(), QPointF(20, 0));
    stack.clear();
    delete a;
    delete b;
}

void TestGeometryCommands::liveEditIsRecordedWithoutMovingAgain()
{
    const Items items = makeItems();
    QVector<ItemGeometry> before;
    for (auto *i : items)
        before << captureGeometry(i);
    const QVector<QPainterPath> start = scenePaths(items);
    // The user dragged and rotated live before letting go.
    translateItems(items, QPointF(4, 4));
    Jk_tu_yuan::rotateItems(items, 15, QPointF(0, 0));
    const QVector<QPainterPath> end = scenePaths(items);
    QUndoStack stack;
    stack.push(new GeometryCommand(items, before, "drag"));
    QVERIFY(samePaths(scenePaths(items), end));
    stack.undo();
    QVERIFY(samePaths(scenePaths(items), start));
    QCOMPARE(items.at(0)->jiao_du, 0.0);
    stack.redo();
    QVERIFY(samePaths(scenePaths(items), end));
    QCOMPARE(items.at(0)->jiao_du, 15.0);
    stack.clear();
    qDeleteAll(items);
}

void TestGeometryCommands::everyStepMarksUnsaved()
{
    Jk_tu_yuan *item = rectItem(0, 0, 5, 5);
    QUndoStack stack;
    ProgramState &s = programState();
    s.unsaved = false;
    stack.push(makeMoveCommand({item}, QPointF(1, 1)));
    QVERIFY(s.unsaved);
    s.unsaved = false;
    stack.undo();
    QVERIFY(s.unsaved);
    s.unsaved = false;
    stack.redo();
    QVERIFY(s.unsaved);
    stack.clear();
    delete item;
}

void TestGeometryCommands::deletedItemsAreSkipped()
{
    Jk_tu_yuan *gone = rectItem(0, 0, 5, 5);
    Jk_tu_yuan *kept = rectItem(10, 0, 5, 5);
    QUndoStack stack;
    stack.push(makeMoveCommand({gone, kept}, QPointF(3, 0)));
    delete gone;
    stack.undo();
    QCOMPARE(kept->pos(), QPointF(10, 0));
    stack.redo();
    QCOMPARE(kept->pos(), QPointF(13, 0));
    stack.clear();
    delete kept;
}

QTEST_MAIN(TestGeometryCommands)
#include "tst_geometry_commands.moc"
