// Edits that add or take away items: combine and break apart (holes stay with
// the outline around them), arrays, copy and paste, and text outlines.
#include "arrays.h"
#include "combine.h"
#include "design_commands.h"
#include "editing_test_support.h"
#include "item_clipboard.h"
#include "item_geometry.h"
#include "jk_chang_jing.h"
#include "program_state.h"
#include "text_outline.h"

#include <QMimeData>
#include <QUndoStack>
#include <QtTest>
#include <memory>

using namespace lumitra;
using namespace editing_test;

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

QPainterPath openLine(double x, double y)
{
    QPainterPath p;
    p.moveTo(x, y);
    p.lineTo(x + 10, y + 3);
    p.lineTo(x + 20, y);
    return p;
}

QPainterPath joined(std::initializer_list<QPainterPath> parts)
{
    QPainterPath p;
    for (const QPainterPath &part : parts)
        p.addPath(part);
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

TextSettings sans(double size = 10)
{
    TextSettings s;
    s.family = "DejaVu Sans";
    s.sizeMm = size;
    return s;
}

QRectF textBounds(const QString &text, const TextSettings &s)
{
    return textOutline(text, s).boundingRect();
}

// A turned vector item carrying text settings, and a bitmap item.
QList<Jk_tu_yuan *> sampleItems()
{
    Jk_tu_yuan *a = rectItem(10, -40, 20, 10);
    a->layer_id = 5;
    a->wen_zi = "Hi";
    a->zi_ti = "{\"family\":\"X\",\"size\":3}";
    a->reserved = 17;
    Jk_tu_yuan::rotateItems({a}, 33, QPointF(20, -35));
    QImage image(4, 3, QImage::Format_ARGB32);
    image.fill(qRgba(10, 20, 30, 255));
    image.setPixel(1, 1, qRgba(200, 100, 50, 0));
    QImage shown(4, 3, QImage::Format_Grayscale8);
    shown.fill(128);
    auto *b = new Jk_tu_yuan(image, shown);
    b->setPos(50, -60);
    b->layer_id = 2;
    return {a, b};
}

void compareItems(const Jk_tu_yuan *got, const Jk_tu_yuan *want)
{
    QVERIFY(samePath(got->scenePath(), want->scenePath()));
    QCOMPARE(got->is_bitmap, want->is_bitmap);
    QCOMPARE(got->source_image, want->source_image);
    QCOMPARE(got->display_image, want->display_image);
    QCOMPARE(got->jiao_du, want->jiao_du);
    QCOMPARE(got->layer_id, want->layer_id);
    QCOMPARE(got->reserved, want->reserved);
    QCOMPARE(got->transform(), want->transform());
    QCOMPARE(got->wen_zi, want->wen_zi);
    QCOMPARE(got->zi_ti, want->zi_ti);
    QVERIFY(!got->scene());
}

} // namespace

class TestSceneCommands : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }

    void breakApartGroupsHoles_data();
    void breakApartGroupsHoles();
    void combinedRingKeepsItsHole();
    void combineWorksInSceneCoordinates();
    void combineNeedsTwoVectorItems();
    void combineUndoRedo();
    void breakApartUndoRedo();

    void rectangularCellsStepByBoundsAndGap_data();
    void rectangularCellsStepByBoundsAndGap();
    void circularCopiesTurnAboutTheCentre_data();
    void circularCopiesTurnAboutTheCentre();
    void nothingToCopy_data();
    void nothingToCopy();
    void arrayCommandAddsAndTakesBack();

    void itemsSurviveTheClipboard();
    void foreignDataGivesNothing_data();
    void foreignDataGivesNothing();
    void pasteDuplicateDeleteUndo();

    void textSettingsRoundTrip();
    void textOutlineFollowsSizeStyleAndSpacing();
    void letterOStaysARing();
    void textItemIsCreatedAndReEditedInOneStep();
};

void TestSceneCommands::breakApartGroupsHoles_data()
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
    QPainterPath back; // returns to its start without closeSubpath
    back.moveTo(5, 5);
    back.lineTo(10, 5);
    back.lineTo(10, 10);
    back.lineTo(5, 5);
    QTest::newRow("a line back to its start is a hole")
        << joined({square(0, 0, 30), back}) << QVector<int>{2};
    QTest::newRow("open line inside a square stays apart")
        << joined({square(0, 0, 30), openLine(5, 5)}) << QVector<int>{1, 1};
    QTest::newRow("overlapping squares are not holes")
        << joined({square(0, 0, 10), square(5, 5, 10)}) << QVector<int>{1, 1};
}

void TestSceneCommands::breakApartGroupsHoles()
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

void TestSceneCommands::combinedRingKeepsItsHole()
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

void TestSceneCommands::combineWorksInSceneCoordinates()
{
    // Items turned alike keep their shared transform.
    Jk_tu_yuan *a = itemAt(square(0, 0, 10), {10, -30});
    Jk_tu_yuan *b = itemAt(square(0, 0, 6), {40, -30});
    Jk_tu_yuan::rotateItems({a, b}, 30, QPointF(30, -25));
    a->layer_id = 4;
    b->layer_id = 9;
    QVector<QPainterPath> before = scenePaths({a, b});
    std::unique_ptr<Jk_tu_yuan> combined(combineItems({a, b}));
    QVERIFY(combined);
    QCOMPARE(combined->jiao_du, 30.0);
    QCOMPARE(combined->transform(), a->transform());
    QCOMPARE(combined->pos(), a->pos());
    QCOMPARE(combined->layer_id, 4);
    QVERIFY(!combined->isSelected());
    QVERIFY(samePath(combined->scenePath(), joined({before.at(0), before.at(1)}), 1e-9));
    // Items turned differently become one untransformed outline.
    Jk_tu_yuan::rotateItems({b}, 15, QPointF(45, -45));
    before = scenePaths({a, b});
    combined.reset(combineItems({a, b}));
    QVERIFY(combined->transform().isIdentity());
    QCOMPARE(combined->jiao_du, 0.0);
    QCOMPARE(combined->pos(), outlineBounds({a, b}).topLeft());
    QVERIFY(samePath(combined->scenePath(), joined({before.at(0), before.at(1)}), 1e-9));
    delete a;
    delete b;
}

void TestSceneCommands::combineNeedsTwoVectorItems()
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

void TestSceneCommands::combineUndoRedo()
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

void TestSceneCommands::breakApartUndoRedo()
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
    const QPainterPath together = joined({pieces.at(0)->scenePath(), pieces.at(1)->scenePath()});
    QVERIFY2(samePath(together, whole, 1e-9), qPrintable(describe(together)));
    stack.undo();
    QCOMPARE(sceneItems(scene), QList<Jk_tu_yuan *>{item});
    QVERIFY(samePath(item->scenePath(), whole));
    stack.redo();
    QCOMPARE(scene.items().size(), 2);
}

void TestSceneCommands::rectangularCellsStepByBoundsAndGap_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<double>("gapX");
    QTest::addColumn<double>("gapY");
    QTest::newRow("one row") << 1 << 4 << 5.0 << 0.0;
    QTest::newRow("grid") << 3 << 2 << 1.0 << 4.0;
    QTest::newRow("negative gaps overlap") << 2 << 2 << -5.0 << -2.0;
}

void TestSceneCommands::rectangularCellsStepByBoundsAndGap()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    QFETCH(double, gapX);
    QFETCH(double, gapY);
    // A selection of two items whose bounds are (10, -50, 30 x 20); the first
    // carries what copies must keep.
    const QList<Jk_tu_yuan *> items{rectItem(10, -50, 10, 10), rectItem(30, -40, 10, 10)};
    items.first()->layer_id = 7;
    items.first()->wen_zi = "AB";
    items.first()->zi_ti = "{}";
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
                QVERIFY(!copy->scene() && !copy->isSelected());
                QCOMPARE(copy->layer_id, items.at(k)->layer_id);
                QCOMPARE(copy->wen_zi, items.at(k)->wen_zi);
                QCOMPARE(copy->zi_ti, items.at(k)->zi_ti);
                QVERIFY(samePath(copy->scenePath(), items.at(k)->scenePath().translated(shift)));
            }
        }
    }
    qDeleteAll(copies);
    qDeleteAll(items);
}

void TestSceneCommands::circularCopiesTurnAboutTheCentre_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("sweep");
    QTest::addColumn<bool>("turn");
    QTest::newRow("six around") << 6 << 360.0 << true;
    QTest::newRow("half circle, ends included") << 5 << 180.0 << true;
    QTest::newRow("four around, not turned") << 4 << 360.0 << false;
}

void TestSceneCommands::circularCopiesTurnAboutTheCentre()
{
    QFETCH(int, count);
    QFETCH(double, sweep);
    QFETCH(bool, turn);
    const double step = sweep / (sweep == 360 ? count : count - 1);
    const QPointF centre(100, -100);
    Jk_tu_yuan *item = rectItem(140, -105, 20, 10); // to the right of the centre
    const QList<Jk_tu_yuan *> copies =
        circularArrayCopies({item}, CircularArray{count, centre, sweep, turn});
    QCOMPARE(copies.size(), count - 1);
    for (int k = 1; k < count; ++k) {
        const Jk_tu_yuan *copy = copies.at(k - 1);
        QTransform about;
        about.translate(centre.x(), centre.y());
        about.rotate(k * step);
        about.translate(-centre.x(), -centre.y());
        if (turn) {
            QCOMPARE(copy->jiao_du, k * step);
            QVERIFY2(samePath(copy->scenePath(), about.map(item->scenePath()), 1e-9),
                     qPrintable(describe(copy->scenePath())));
        } else { // only the outline's centre goes round
            QCOMPARE(copy->jiao_du, 0.0);
            const QRectF b = outlineBounds(copy);
            QVERIFY(QLineF(b.center(), about.map(outlineBounds(item).center())).length() < 1e-9);
            QVERIFY(sameRect(b.translated(-b.center()),
                             outlineBounds(item).translated(-outlineBounds(item).center())));
        }
    }
    qDeleteAll(copies);
    delete item;
}

void TestSceneCommands::nothingToCopy_data()
{
    QTest::addColumn<bool>("circular");
    QTest::addColumn<int>("a");
    QTest::addColumn<int>("b");
    QTest::newRow("1 x 1") << false << 1 << 1;
    QTest::newRow("negative columns") << false << 3 << -1;
    QTest::newRow("circle of one") << true << 1 << 0;
}

void TestSceneCommands::nothingToCopy()
{
    QFETCH(bool, circular);
    QFETCH(int, a);
    QFETCH(int, b);
    Jk_tu_yuan *item = rectItem(0, 0, 5, 5);
    const CircularArray round{a, QPointF(), 360, true};
    const RectangularArray grid{a, b, 1, 1};
    QVERIFY((circular ? circularArrayCopies({item}, round) : rectangularArrayCopies({item}, grid))
                .isEmpty());
    Jk_chang_jing scene;
    QVERIFY(!std::unique_ptr<QUndoCommand>(
        circular ? makeCircularArrayCommand(&scene, {item}, round)
                 : makeRectangularArrayCommand(&scene, {item}, grid)));
    delete item;
}

void TestSceneCommands::arrayCommandAddsAndTakesBack()
{
    Jk_chang_jing scene;
    Jk_tu_yuan *item = rectItem(0, -10, 10, 10);
    scene.addItem(item);
    QUndoStack stack;
    programState().unsaved = false;
    stack.push(makeRectangularArrayCommand(&scene, {item}, RectangularArray{2, 3, 2, 2}));
    QVERIFY(programState().unsaved);
    QCOMPARE(scene.selectedItems().size(), 5); // the new copies
    const QVector<QPainterPath> done = scenePaths(sceneItems(scene));
    // Three columns of 10 mm with 2 mm gaps, two rows likewise.
    QVERIFY2(sameRect(outlineBounds(sceneItems(scene)), QRectF(0, -10, 34, 22)),
             qPrintable(describe(outlineBounds(sceneItems(scene)))));
    stack.undo();
    QCOMPARE(sceneItems(scene), QList<Jk_tu_yuan *>{item});
    stack.redo();
    QVERIFY(samePaths(scenePaths(sceneItems(scene)), done));
    stack.undo();
    stack.clear(); // the undone copies go with their command
    QCOMPARE(scene.items().size(), 1);
}

void TestSceneCommands::itemsSurviveTheClipboard()
{
    const QList<Jk_tu_yuan *> items = sampleItems();
    const QByteArray whole = encodeItems(items);
    const QList<Jk_tu_yuan *> back = decodeItems(whole);
    QCOMPARE(back.size(), items.size());
    for (int i = 0; i < items.size(); ++i)
        compareItems(back.at(i), items.at(i));
    qDeleteAll(back);
    // A cut-off stream gives the whole items before the cut and nothing more.
    const int firstEnds = encodeItems({items.first()}).size();
    for (int cut = 0; cut < whole.size(); ++cut) {
        const QList<Jk_tu_yuan *> part = decodeItems(whole.left(cut));
        const int expected = cut >= firstEnds ? 1 : 0;
        QVERIFY2(part.size() == expected, qPrintable(QString("cut at %1").arg(cut)));
        if (expected == 1)
            compareItems(part.first(), items.first());
        qDeleteAll(part);
    }
    qDeleteAll(items);
}

void TestSceneCommands::foreignDataGivesNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("text") << QByteArray("hello, clipboard");
    QByteArray wrongVersion = encodeItems({});
    wrongVersion[5] = 9;
    QTest::newRow("wrong version") << wrongVersion;
    QByteArray negative = encodeItems({});
    negative[6] = char(0xff);
    QTest::newRow("negative count") << negative;
}

void TestSceneCommands::foreignDataGivesNothing()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(decodeItems(bytes).isEmpty());
    QMimeData mime;
    mime.setData(kItemsMimeType, bytes);
    Jk_chang_jing scene;
    QVERIFY(!std::unique_ptr<QUndoCommand>(makePasteCommand(&scene, &mime, QPointF())));
    QMimeData plain;
    plain.setText("not items");
    QVERIFY(!std::unique_ptr<QUndoCommand>(makePasteCommand(&scene, &plain, QPointF())));
    QVERIFY(!std::unique_ptr<QUndoCommand>(makePasteCommand(&scene, nullptr, QPointF())));
}

void TestSceneCommands::pasteDuplicateDeleteUndo()
{
    Jk_chang_jing scene;
    const QList<Jk_tu_yuan *> items = sampleItems();
    std::unique_ptr<QMimeData> mime(itemsMimeData(items));
    for (auto *i : items)
        scene.addItem(i);
    QVector<QVector<QPainterPath>> states{scenePaths(sceneItems(scene))};
    QUndoStack stack;
    stack.push(makePasteCommand(&scene, mime.get(), QPointF(10, 10)));
    QCOMPARE(scene.selectedItems().size(), 2);
    for (QGraphicsItem *g : scene.selectedItems()) { // moved copies of the originals
        auto *copy = dynamic_cast<Jk_tu_yuan *>(g);
        const Jk_tu_yuan *original = items.at(copy->is_bitmap ? 1 : 0);
        QVERIFY(samePath(copy->scenePath(), original->scenePath().translated(10, 10), 1e-9));
        QCOMPARE(copy->layer_id, original->layer_id);
    }
    states << scenePaths(sceneItems(scene));
    stack.push(makeDuplicateCommand(&scene, items, QPointF(5, 5)));
    QCOMPARE(scene.items().size(), 6);
    for (QGraphicsItem *g : scene.selectedItems())
        QVERIFY(!items.contains(dynamic_cast<Jk_tu_yuan *>(g)));
    states << scenePaths(sceneItems(scene));
    stack.push(new DeleteItemsCommand(&scene, items));
    QCOMPARE(scene.items().size(), 4);
    QVERIFY(!items.first()->scene());
    states << scenePaths(sceneItems(scene));
    for (int level = 2; level >= 0; --level) {
        stack.undo();
        QVERIFY2(samePaths(scenePaths(sceneItems(scene)), states.at(level)),
                 qPrintable(QString::number(level)));
    }
    for (int level = 1; level <= 3; ++level) {
        stack.redo();
        QVERIFY2(samePaths(scenePaths(sceneItems(scene)), states.at(level)),
                 qPrintable(QString::number(level)));
    }
    QVERIFY(!std::unique_ptr<QUndoCommand>(makeDuplicateCommand(&scene, {}, QPointF())));
}

void TestSceneCommands::textSettingsRoundTrip()
{
    const TextSettings all[] = {sans(),
                                {"My \"Odd\"; Font", 3.25, true, true, 1.5, -2.0},
                                {"", 0.5, false, true, -0.25, 0.0}};
    for (const TextSettings &s : all) {
        const QString stored = s.toString();
        QVERIFY(!stored.contains('\n'));
        TextSettings back;
        QVERIFY(TextSettings::fromString(stored, &back));
        QVERIFY(back == s);
    }
    for (const char *bad :
         {"", "DejaVu Sans,10,bold", "[1,2]", "{\"family\":\"A\"}",
          "{\"family\":\"A\",\"size\":\"10\"}", "{\"family\":\"A\",\"size\":10"}) {
        TextSettings s = sans(42);
        QVERIFY2(!TextSettings::fromString(bad, &s), bad);
        QCOMPARE(s.sizeMm, 42.0); // untouched
    }
}

void TestSceneCommands::textOutlineFollowsSizeStyleAndSpacing()
{
    const QRectF unit = textBounds("Hg", sans(1));
    QVERIFY(unit.width() > 0.5 && unit.height() > 0.5 && unit.height() < 1.5);
    for (double size : {2.0, 37.5}) {
        const QRectF r = textBounds("Hg", sans(size));
        QVERIFY(qAbs(r.width() - unit.width() * size) < 1e-6 * size);
        QVERIFY(qAbs(r.height() - unit.height() * size) < 1e-6 * size);
        // The first line's box starts at the origin: the capital's top sits
        // just below y = 0.
        QVERIFY(r.top() > 0 && r.top() < 0.3 * size);
    }
    TextSettings bold = sans(), italic = sans(), spaced = sans(), tight = sans(), wide = sans();
    bold.bold = true;
    italic.italic = true;
    spaced.letterSpacingMm = 2;
    tight.letterSpacingMm = -0.5;
    wide.lineSpacingMm = 4;
    QVERIFY(textBounds("Lumen", bold).width() > textBounds("Lumen", sans()).width());
    QVERIFY(textBounds("l", italic).width() > textBounds("l", sans()).width()); // slanted
    // Three gaps between four letters.
    const double plain = textBounds("HHHH", sans()).width();
    QVERIFY(qAbs(textBounds("HHHH", spaced).width() - (plain + 6)) < 0.05);
    QVERIFY(qAbs(textBounds("HHHH", tight).width() - (plain - 1.5)) < 0.05);
    const QRectF oneLine = textBounds("H", sans());
    const QRectF twoLines = textBounds("H\nH", sans());
    QVERIFY(twoLines.height() > 2 * oneLine.height());
    QVERIFY(qAbs(textBounds("H\r\nH", wide).height() - (twoLines.height() + 4)) < 1e-6);
    QVERIFY(qAbs(twoLines.width() - oneLine.width()) < 1e-6); // lines start at x 0
    for (const auto &[text, size] : {std::pair{QString(" \n\t"), 10.0}, {QString("A"), 0.0}}) {
        QVERIFY(textOutline(text, sans(size)).isEmpty());
        QVERIFY(!std::unique_ptr<Jk_tu_yuan>(createTextItem(text, sans(size))));
    }
}

void TestSceneCommands::letterOStaysARing()
{
    const QPainterPath o = textOutline("O", sans(20));
    QCOMPARE(o.fillRule(), Qt::OddEvenFill);
    const QRectF r = o.boundingRect();
    QVERIFY(!o.contains(r.center()));
    QVERIFY(o.contains(QPointF(r.left() + r.width() * 0.04, r.center().y())));
    const QList<QPainterPath> pieces = breakApartOutline(o);
    QCOMPARE(pieces.size(), 1);
    QCOMPARE(splitSubpaths(pieces.first()).size(), 2);
    QCOMPARE(breakApartOutline(textOutline("OO", sans(20))).size(), 2); // two rings
}

void TestSceneCommands::textItemIsCreatedAndReEditedInOneStep()
{
    programState().width = 300;
    programState().height = 200;
    programState().currentLayer = 6;
    std::unique_ptr<Jk_tu_yuan> item(createTextItem("old", sans(10)));
    QVERIFY(item);
    QCOMPARE(item->wen_zi, QString("old"));
    TextSettings back;
    QVERIFY(TextSettings::fromString(item->zi_ti, &back));
    QVERIFY(back == sans(10));
    QVERIFY(!item->is_bitmap);
    QCOMPARE(item->layer_id, 6);
    QVERIFY(item->isSelected());
    // Centred on the work area's centre (150, -100), up to single precision.
    const QRectF r = item->path.boundingRect();
    QVERIFY(QLineF(item->pos(), QPointF(150 - r.width() / 2, -100 - r.height() / 2)).length()
            < 1e-3);

    item->setPos(20, -30);
    Jk_tu_yuan::rotateItems({item.get()}, 10, QPointF(25, -25));
    const QPainterPath oldPath = item->path;
    const QPointF pos = item->pos();
    TextSettings bigger = sans(15);
    bigger.bold = true;
    QUndoStack stack;
    programState().unsaved = false;
    stack.push(makeReplaceTextCommand(item.get(), "new text", bigger));
    QCOMPARE(stack.count(), 1);
    QVERIFY(programState().unsaved);
    QCOMPARE(item->wen_zi, QString("new text"));
    QCOMPARE(item->zi_ti, bigger.toString());
    QVERIFY(samePath(item->path, textOutline("new text", bigger)));
    QCOMPARE(item->pos(), pos);
    QCOMPARE(item->jiao_du, 10.0);
    const QPainterPath newScene = item->scenePath();
    stack.undo();
    QCOMPARE(item->wen_zi, QString("old"));
    QCOMPARE(item->zi_ti, sans(10).toString());
    QVERIFY(samePath(item->path, oldPath));
    stack.redo();
    QCOMPARE(item->wen_zi, QString("new text"));
    QVERIFY(samePath(item->scenePath(), newScene));
    QVERIFY(!std::unique_ptr<QUndoCommand>(makeReplaceTextCommand(item.get(), " ", bigger)));
    stack.clear();
}

QTEST_MAIN(TestSceneCommands)
#include "tst_scene_commands.moc"
