// Move, scale, mirror, rotate, fit, align, distribute and place as undoable
// commands: undo and redo give back the same scene outlines, jiao_du stays the
// rotation of the item transform, and every step marks the design unsaved.
#include "alignment.h"
#include "editing_test_support.h"
#include "geometry_command.h"
#include "item_geometry.h"
#include "jk_chang_jing.h"
#include "placement.h"
#include "program_state.h"

#include <QUndoStack>
#include <QtTest>
#include <functional>

using namespace lumitra;
using namespace editing_test;

using RectList = QVector<QRectF>;
Q_DECLARE_METATYPE(RectList)
Q_DECLARE_METATYPE(lumitra::Alignment)

namespace {

using Items = QList<Jk_tu_yuan *>;

// Three different items: a rectangle, a rotated ellipse and a triangle.
Items makeItems()
{
    QPainterPath ellipse;
    ellipse.addEllipse(0, 0, 30, 12);
    auto *e = new Jk_tu_yuan(ellipse, 1);
    e->setPos(70, -60);
    Jk_tu_yuan::rotateItems({e}, 25, QPointF(85, -54));
    auto *t = new Jk_tu_yuan(2);
    t->setPos(120, -150);
    return {rectItem(10, -80, 40, 20), e, t};
}

Items itemsFor(const RectList &rects)
{
    Items items;
    for (const QRectF &r : rects)
        items << rectItem(r.x(), r.y(), r.width(), r.height());
    return items;
}

QUndoCommand *step(const QString &name, const Items &i)
{
    if (name == "move")
        return makeMoveCommand(i, QPointF(12.5, -3.25));
    if (name == "scale")
        return makeScaleCommand(i, 1.7, 0.4, QPointF(33, -21));
    if (name == "mirrorH" || name == "mirrorV")
        return makeMirrorCommand(i, name == "mirrorH");
    if (name == "rotate")
        return makeRotateCommand(i, 37, QPointF(60, -90));
    if (name == "fit" || name == "fitRatio")
        return makeFitCommand(i, QRectF(5, -300, 80, 60), name == "fitRatio");
    if (name == "alignRight")
        return makeAlignCommand(i, Alignment::Right);
    if (name == "spreadDown")
        return makeDistributeCommand(i, Qt::Vertical);
    if (name == "place")
        return makePlaceCommand(i, Placement{QRectF(0, 0, 20, 10), 30, true});
    return nullptr;
}

// The item transform with the rotation by jiao_du taken off; for items only
// rotated, mirrored and uniformly scaled this is diagonal.
QTransform withoutRotation(const Jk_tu_yuan *item)
{
    return item->transform() * QTransform().rotate(-item->jiao_du);
}

// Three rectangles of different sizes: bounds x 10..130, y -100..-20.
const RectList kThree{{10, -100, 20, 10}, {50, -60, 40, 40}, {100, -90, 30, 5}};

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
    void heldNudgesAreOneStep();
    void deletedItemsAreSkipped();

    void alignsToTheSelection_data();
    void alignsToTheSelection();
    void alignsRotatedItemsByTheirOutline();
    void distributesWithEqualGaps_data();
    void distributesWithEqualGaps();

    void placesTheSelection_data();
    void placesTheSelection();
};

void TestGeometryCommands::undoRedoChainsGiveBackTheSameGeometry_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::newRow("rotate mirror rotate") << QStringList{"rotate", "mirrorV", "rotate"};
    QTest::newRow("everything") << QStringList{"move", "rotate", "scale",    "mirrorH", "mirrorV",
                                               "fit",  "rotate", "fitRatio", "move"};
    QTest::newRow("align, place, spread")
        << QStringList{"alignRight", "rotate", "place", "spreadDown", "fit"};
}

void TestGeometryCommands::undoRedoChainsGiveBackTheSameGeometry()
{
    QFETCH(QStringList, steps);
    const Items items = makeItems();
    QUndoStack stack;
    ProgramState &s = programState();
    auto anglesNow = [&] {
        QVector<double> a;
        for (auto *i : items)
            a << i->jiao_du;
        return a;
    };
    QVector<QVector<QPainterPath>> states{scenePaths(items)};
    QVector<QVector<double>> angles{anglesNow()};
    for (const QString &name : steps) {
        s.unsaved = false;
        stack.push(step(name, items));
        QVERIFY(s.unsaved);
        states << scenePaths(items);
        angles << anglesNow();
        QVERIFY2(!samePaths(states.last(), states.at(states.size() - 2)),
                 qPrintable(name + " changed nothing"));
    }
    // Undo all the way back, checking every level, then redo all the way up,
    // twice over; every undo and redo marks the design unsaved.
    for (int round = 0; round < 2; ++round) {
        for (int level = steps.size() - 1; level >= 0; --level) {
            s.unsaved = false;
            stack.undo();
            QVERIFY(s.unsaved);
            QVERIFY2(samePaths(scenePaths(items), states.at(level)),
                     qPrintable(QString("undo to level %1").arg(level)));
            QCOMPARE(anglesNow(), angles.at(level));
        }
        for (int level = 1; level <= steps.size(); ++level) {
            s.unsaved = false;
            stack.redo();
            QVERIFY(s.unsaved);
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
    QTest::newRow("about the centre") << 2.0 << 2.0 << QPointF(20, -45) << QRectF(0, -55, 40, 20);
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
    QVERIFY(item->transform().isIdentity());
    stack.clear();
    delete item;
}

void TestGeometryCommands::mirrorKeepsBoundsAndFlipsRotation_data()
{
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<double>("angle");
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
        stack.push(step(name, {item}));
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
    // 390 degrees is 30: the far end of the line swings round the centre.
    const QPointF end(25 + 25 * std::cos(M_PI / 6), -50 + 25 * std::sin(M_PI / 6));
    QVERIFY(QLineF(item->mapToScene(QPointF(50, 0)), end).length() < 1e-9);
    stack.undo();
    QCOMPARE(item->jiao_du, 90.0);
    stack.undo();
    QCOMPARE(item->jiao_du, 0.0);
    QVERIFY(item->transform().isIdentity());
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
    QCOMPARE(nudgeOffset(Qt::Key_A, false), QPointF());
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

void TestGeometryCommands::alignsToTheSelection_data()
{
    QTest::addColumn<Alignment>("alignment");
    QTest::addColumn<RectList>("expected");
    QTest::newRow("left") << Alignment::Left
                          << RectList{{10, -100, 20, 10}, {10, -60, 40, 40}, {10, -90, 30, 5}};
    QTest::newRow("right") << Alignment::Right
                           << RectList{{110, -100, 20, 10}, {90, -60, 40, 40}, {100, -90, 30, 5}};
    QTest::newRow("bottom") << Alignment::Bottom
                            << RectList{{10, -30, 20, 10}, {50, -60, 40, 40}, {100, -25, 30, 5}};
    QTest::newRow("vertical centres")
        << Alignment::VerticalCentre
        << RectList{{10, -65, 20, 10}, {50, -80, 40, 40}, {100, -62.5, 30, 5}};
    // The block (120 x 80) keeps its shape, centred on (150, -100) of a 300 x 200 area.
    QTest::newRow("work area centre")
        << Alignment::WorkAreaCentre
        << RectList{{90, -140, 20, 10}, {130, -100, 40, 40}, {180, -130, 30, 5}};
}

void TestGeometryCommands::alignsToTheSelection()
{
    QFETCH(Alignment, alignment);
    QFETCH(RectList, expected);
    programState().width = 300;
    programState().height = 200;
    const Items items = itemsFor(kThree);
    alignItems(items, alignment, Jk_chang_jing::workAreaRect());
    for (int i = 0; i < items.size(); ++i) {
        const QRectF got = outlineBounds(items.at(i));
        QVERIFY2(sameRect(got, expected.at(i)), qPrintable(QString::number(i) + describe(got)));
    }
    qDeleteAll(items);
}

void TestGeometryCommands::alignsRotatedItemsByTheirOutline()
{
    // A square turned 45 degrees: its outline reaches out by half the diagonal.
    Jk_tu_yuan *diamond = rectItem(0, 0, 10, 10);
    Jk_tu_yuan::rotateItems({diamond}, 45, QPointF(5, 5));
    Jk_tu_yuan *bar = rectItem(50, 0, 10, 10);
    alignItems({diamond, bar}, Alignment::Left, Jk_chang_jing::workAreaRect());
    const double left = 5 - 5 * std::sqrt(2.0);
    QVERIFY(qAbs(outlineBounds(diamond).left() - left) < 1e-9);
    QVERIFY(qAbs(outlineBounds(bar).left() - left) < 1e-9);
    delete diamond;
    delete bar;
}

void TestGeometryCommands::distributesWithEqualGaps_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<RectList>("start");
    QTest::addColumn<RectList>("expected");
    // Horizontal: span 0..100, widths 10 + 30 + 20 + 10 = 70, three gaps of 10.
    QTest::newRow("horizontal, shuffled order")
        << int(Qt::Horizontal)
        << RectList{{90, 0, 10, 5}, {0, 7, 10, 5}, {60, -3, 20, 5}, {12, 0, 30, 5}}
        << RectList{{90, 0, 10, 5}, {0, 7, 10, 5}, {60, -3, 20, 5}, {20, 0, 30, 5}};
    QTest::newRow("vertical") << int(Qt::Vertical)
                              << RectList{{0, -100, 5, 10}, {3, -95, 5, 20}, {1, -10, 5, 10}}
                              << RectList{{0, -100, 5, 10}, {3, -60, 5, 20}, {1, -10, 5, 10}};
    QTest::newRow("overlapping items spread evenly")
        << int(Qt::Horizontal) << RectList{{0, 0, 40, 5}, {10, 0, 40, 5}, {30, 0, 40, 5}}
        << RectList{{0, 0, 40, 5}, {15, 0, 40, 5}, {30, 0, 40, 5}};
}

void TestGeometryCommands::distributesWithEqualGaps()
{
    QFETCH(int, orientation);
    QFETCH(RectList, start);
    QFETCH(RectList, expected);
    const Items items = itemsFor(start);
    distributeItems(items, Qt::Orientation(orientation));
    for (int i = 0; i < items.size(); ++i) {
        const QRectF got = outlineBounds(items.at(i));
        QVERIFY2(sameRect(got, expected.at(i)), qPrintable(QString::number(i) + describe(got)));
    }
    qDeleteAll(items);
}

void TestGeometryCommands::placesTheSelection_data()
{
    QTest::addColumn<QRectF>("machine");
    QTest::addColumn<double>("rotation");
    QTest::addColumn<bool>("resize");
    QTest::addColumn<QRectF>("expectedMachine");
    // The selection: two rectangles, scene bounds (10, -60, 40 x 20).
    QTest::newRow("move only") << QRectF(100, 100, 40, 20) << 0.0 << false
                               << QRectF(100, 100, 40, 20);
    QTest::newRow("quarter turn, then to the corner")
        << QRectF(5, 5, 999, 999) << 90.0 << false << QRectF(5, 5, 20, 40);
    QTest::newRow("turn and resize")
        << QRectF(0, 0, 10, 10) << -90.0 << true << QRectF(0, 0, 10, 10);
}

void TestGeometryCommands::placesTheSelection()
{
    QFETCH(QRectF, machine);
    QFETCH(double, rotation);
    QFETCH(bool, resize);
    QFETCH(QRectF, expectedMachine);
    const Items items{rectItem(10, -60, 10, 20), rectItem(30, -50, 20, 10)};
    placeItems(items, Placement{machine, rotation, resize});
    const QRectF got = machineRectFromScene(outlineBounds(items));
    QVERIFY2(sameRect(got, expectedMachine, 1e-9), qPrintable(describe(got)));
    QVERIFY(sameRect(sceneRectFromMachine(got), outlineBounds(items), 1e-9));
    QCOMPARE(items.first()->jiao_du, rotation);
    qDeleteAll(items);
}

QTEST_MAIN(TestGeometryCommands)
#include "tst_geometry_commands.moc"
