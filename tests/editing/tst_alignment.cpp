// Alignment to the selection's edges and centres, centring on the work area,
// and equal spacing.
#include "alignment.h"
#include "editing_test_support.h"
#include "item_geometry.h"
#include "jk_chang_jing.h"
#include "program_state.h"

#include <QUndoStack>
#include <QtTest>

using namespace lumitra;
using editing_test::describe;
using editing_test::rectItem;
using editing_test::samePaths;
using editing_test::sameRect;
using editing_test::scenePaths;

using RectList = QVector<QRectF>;
Q_DECLARE_METATYPE(RectList)
Q_DECLARE_METATYPE(lumitra::Alignment)

namespace {

QList<Jk_tu_yuan *> itemsFor(const RectList &rects)
{
    QList<Jk_tu_yuan *> items;
    for (const QRectF &r : rects)
        items << rectItem(r.x(), r.y(), r.width(), r.height());
    return items;
}

// Three rectangles of different sizes: bounds x 10..130, y -100..-20.
const RectList kThree{{10, -100, 20, 10}, {50, -60, 40, 40}, {100, -90, 30, 5}};

} // namespace

class TestAlignment : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }

    void alignsToTheSelection_data();
    void alignsToTheSelection();
    void centresTheSelectionOnTheWorkArea();
    void alignsRotatedItemsByTheirOutline();
    void distributesWithEqualGaps_data();
    void distributesWithEqualGaps();
    void alignAndDistributeUndo();
};

void TestAlignment::alignsToTheSelection_data()
{
    QTest::addColumn<Alignment>("alignment");
    QTest::addColumn<RectList>("expected");
    QTest::newRow("left") << Alignment::Left
                          << RectList{{10, -100, 20, 10}, {10, -60, 40, 40}, {10, -90, 30, 5}};
    QTest::newRow("right") << Alignment::Right
                           << RectList{{110, -100, 20, 10}, {90, -60, 40, 40}, {100, -90, 30, 5}};
    QTest::newRow("top") << Alignment::Top
                         << RectList{{10, -100, 20, 10}, {50, -100, 40, 40}, {100, -100, 30, 5}};
    QTest::newRow("bottom") << Alignment::Bottom
                            << RectList{{10, -30, 20, 10}, {50, -60, 40, 40}, {100, -25, 30, 5}};
    QTest::newRow("horizontal centres")
        << Alignment::HorizontalCentre
        << RectList{{60, -100, 20, 10}, {50, -60, 40, 40}, {55, -90, 30, 5}};
    QTest::newRow("vertical centres")
        << Alignment::VerticalCentre
        << RectList{{10, -65, 20, 10}, {50, -80, 40, 40}, {100, -62.5, 30, 5}};
}

void TestAlignment::alignsToTheSelection()
{
    QFETCH(Alignment, alignment);
    QFETCH(RectList, expected);
    const QList<Jk_tu_yuan *> items = itemsFor(kThree);
    alignItems(items, alignment, Jk_chang_jing::workAreaRect());
    for (int i = 0; i < items.size(); ++i) {
        const QRectF got = outlineBounds(items.at(i));
        QVERIFY2(sameRect(got, expected.at(i)), qPrintable(QString::number(i) + describe(got)));
    }
    qDeleteAll(items);
}

void TestAlignment::centresTheSelectionOnTheWorkArea()
{
    programState().width = 300;
    programState().height = 200;
    const QList<Jk_tu_yuan *> items = itemsFor(kThree);
    alignItems(items, Alignment::WorkAreaCentre, Jk_chang_jing::workAreaRect());
    // The block keeps its shape (120 x 80) and is centred on (150, -100).
    QVERIFY(sameRect(outlineBounds(items), QRectF(90, -140, 120, 80)));
    QVERIFY(sameRect(outlineBounds(items.at(1)), QRectF(130, -100, 40, 40)));
    qDeleteAll(items);
}

void TestAlignment::alignsRotatedItemsByTheirOutline()
{
    // A square turned 45 degrees: its outline reaches out by half the diagonal.
    Jk_tu_yuan *diamond = rectItem(0, 0, 10, 10);
    Jk_tu_yuan::rotateItems({diamond}, 45, QPointF(5, 5));
    Jk_tu_yuan *bar = rectItem(50, 0, 10, 10);
    alignItems({diamond, bar}, Alignment::Left, Jk_chang_jing::workAreaRect());
    const double halfDiagonal = 5 * std::sqrt(2.0);
    QVERIFY(qAbs(outlineBounds(diamond).left() - (5 - halfDiagonal)) < 1e-9);
    QVERIFY(qAbs(outlineBounds(bar).left() - (5 - halfDiagonal)) < 1e-9);
    delete diamond;
    delete bar;
}

void TestAlignment::distributesWithEqualGaps_data()
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
    QTest::newRow("two items stay")
        << int(Qt::Horizontal) << RectList{{0, 0, 10, 5}, {13, 0, 10, 5}}
        << RectList{{0, 0, 10, 5}, {13, 0, 10, 5}};
}

void TestAlignment::distributesWithEqualGaps()
{
    QFETCH(int, orientation);
    QFETCH(RectList, start);
    QFETCH(RectList, expected);
    const QList<Jk_tu_yuan *> items = itemsFor(start);
    distributeItems(items, Qt::Orientation(orientation));
    for (int i = 0; i < items.size(); ++i) {
        const QRectF got = outlineBounds(items.at(i));
        QVERIFY2(sameRect(got, expected.at(i)), qPrintable(QString::number(i) + describe(got)));
    }
    qDeleteAll(items);
}

void TestAlignment::alignAndDistributeUndo()
{
    const QList<Jk_tu_yuan *> items = itemsFor(kThree);
    const QVector<QPainterPath> start = scenePaths(items);
    QUndoStack stack;
    stack.push(makeAlignCommand(items, Alignment::Right));
    const QVector<QPainterPath> aligned = scenePaths(items);
    stack.push(makeDistributeCommand(items, Qt::Vertical));
    const QVector<QPainterPath> spread = scenePaths(items);
    QVERIFY(!samePaths(aligned, spread));
    stack.undo();
    QVERIFY(samePaths(scenePaths(items), aligned));
    stack.undo();
    QVERIFY(samePaths(scenePaths(items), start));
    stack.redo();
    stack.redo();
    QVERIFY(samePaths(scenePaths(items), spread));
    stack.clear();
    qDeleteAll(items);
}

QTEST_MAIN(TestAlignment)
#include "tst_alignment.moc"
