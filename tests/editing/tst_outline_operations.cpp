// Offset and boolean operations on items as undoable steps: the results are
// outline items on their layer, undo gives back exactly the previous outlines,
// and a weld of overlapping letters leaves one outline per connected group
// whose fill covers every point once.
#include "editing_test_support.h"
#include "fill_hatch.h"
#include "jk_chang_jing.h"
#include "outline_operations.h"
#include "program_state.h"
#include "text_outline.h"

#include <QImage>
#include <QPainter>
#include <QUndoStack>
#include <QtTest>
#include <cmath>

using namespace lumitra;
using namespace editing_test;

Q_DECLARE_METATYPE(lumitra::BooleanOperation)
Q_DECLARE_METATYPE(lumitra::CornerStyle)

namespace {

using Items = QList<Jk_tu_yuan *>;

Items designItemsOf(const Jk_chang_jing &scene)
{
    return scene.designItems();
}

// Area of the even-odd fill of a scene path, by pixels at `ppm` per mm.
QImage rasterise(const QPainterPath &path, Qt::FillRule rule, const QRectF &area, double ppm)
{
    QImage image(int(area.width() * ppm) + 1, int(area.height() * ppm) + 1,
                 QImage::Format_Grayscale8);
    image.fill(0);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.scale(ppm, ppm);
    painter.translate(-area.topLeft());
    QPainterPath p = path;
    p.setFillRule(rule);
    painter.fillPath(p, Qt::white);
    return image;
}

int filledPixels(const QImage &image)
{
    int n = 0;
    for (int y = 0; y < image.height(); ++y) {
        const uchar *row = image.constScanLine(y);
        for (int x = 0; x < image.width(); ++x)
            n += row[x] != 0;
    }
    return n;
}

int differentPixels(const QImage &a, const QImage &b)
{
    int n = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            n += (a.constScanLine(y)[x] != 0) != (b.constScanLine(y)[x] != 0);
    }
    return n;
}

// Connected groups of filled pixels (4-neighbours).
int components(QImage image)
{
    int count = 0;
    QVector<QPoint> stack;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.constScanLine(y)[x] == 0)
                continue;
            ++count;
            stack = {QPoint(x, y)};
            image.scanLine(y)[x] = 0;
            while (!stack.isEmpty()) {
                const QPoint p = stack.takeLast();
                for (const QPoint d : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
                    const QPoint q = p + d;
                    if (q.x() < 0 || q.y() < 0 || q.x() >= image.width() || q.y() >= image.height()
                        || image.constScanLine(q.y())[q.x()] == 0)
                        continue;
                    image.scanLine(q.y())[q.x()] = 0;
                    stack.append(q);
                }
            }
        }
    }
    return count;
}

// Subpaths lying inside no other subpath.
int outerOutlines(const QPainterPath &path)
{
    const QList<QPolygonF> polys = path.toSubpathPolygons();
    int outer = 0;
    for (int i = 0; i < polys.size(); ++i) {
        bool inside = false;
        for (int k = 0; k < polys.size() && !inside; ++k)
            inside = k != i && polys[k].containsPoint(polys[i].first(), Qt::OddEvenFill)
                     && polys[k].boundingRect().contains(polys[i].boundingRect());
        outer += inside ? 0 : 1;
    }
    return outer;
}

} // namespace

class TestOutlineOperations : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }
    void booleanSteps_data();
    void booleanSteps();
    void tooFewItemsDoNothing();
    void offsetSteps_data();
    void offsetSteps();
    void weldOverlappingLetters_data();
    void weldOverlappingLetters();
};

void TestOutlineOperations::booleanSteps_data()
{
    QTest::addColumn<BooleanOperation>("operation");
    QTest::addColumn<bool>("rotated"); // the second item in another frame
    QTest::addColumn<double>("area");

    for (bool rotated : {false, true}) {
        const QString frame = rotated ? QStringLiteral(", two frames") : QString();
        QTest::addRow("weld%s", qPrintable(frame)) << BooleanOperation::Weld << rotated << 700.0;
        QTest::addRow("subtract%s", qPrintable(frame))
            << BooleanOperation::Subtract << rotated << 300.0;
        QTest::addRow("intersect%s", qPrintable(frame))
            << BooleanOperation::Intersect << rotated << 100.0;
        QTest::addRow("exclude%s", qPrintable(frame))
            << BooleanOperation::Exclude << rotated << 600.0;
    }
}

void TestOutlineOperations::booleanSteps()
{
    QFETCH(BooleanOperation, operation);
    QFETCH(bool, rotated);
    QFETCH(double, area);
    Jk_chang_jing scene;
    // 20 x 20 at (0, -20) with a round hole; 20 x 20 overlapping it by 10 x 10.
    QPainterPath ring;
    ring.addRect(0, 0, 20, 20);
    ring.addEllipse(QPointF(5, 5), 2, 2);
    auto *a = new Jk_tu_yuan(ring, 1);
    a->setPos(0, -20);
    a->layer_id = 7;
    Jk_tu_yuan *b = rectItem(10, -10, 20, 20);
    b->layer_id = 3;
    if (rotated) {
        // A quarter turn about its own centre: the same square in the scene.
        QPainterPath square;
        square.addRect(-10, -10, 20, 20);
        b->path = square;
        b->setPos(20, 0);
        b->setTransform(QTransform().rotate(90));
    }
    scene.addItem(a);
    scene.addItem(b);
    const QPainterPath aBefore = a->path;
    const QPainterPath bBefore = b->path;
    const QVector<QPainterPath> sceneBefore = scenePaths({a, b});

    QUndoStack *stack = scene.undoStack();
    QUndoCommand *step = makeBooleanCommand(&scene, {a, b}, operation);
    QVERIFY(step);
    programState().unsaved = false;
    stack->push(step);
    QVERIFY(programState().unsaved);
    Items now = designItemsOf(scene);
    QCOMPARE(now.size(), 1);
    Jk_tu_yuan *result = now.first();
    QCOMPARE(result->layer_id, 7);
    QVERIFY(result->isSelected());
    QVERIFY(!result->is_bitmap);
    // The hole (a circle) is away from the other square: kept as a curve
    // wherever it survives (not in an intersection).
    const double holeArea = M_PI * 4;
    const double want = operation == BooleanOperation::Intersect ? area : area - holeArea;
    const QRectF bounds = result->scenePath().boundingRect().adjusted(-1, -1, 1, 1);
    const int filled = filledPixels(rasterise(result->scenePath(), Qt::OddEvenFill, bounds, 20));
    QVERIFY2(std::fabs(filled / 400.0 - want) < want * 0.01,
             qPrintable(QString::number(filled / 400.0)));
    bool curves = false;
    for (int i = 0; i < result->path.elementCount(); ++i)
        curves |= result->path.elementAt(i).type == QPainterPath::CurveToElement;
    QCOMPARE(curves, operation != BooleanOperation::Intersect);

    stack->undo();
    now = designItemsOf(scene);
    QCOMPARE(now.size(), 2);
    QVERIFY(now.contains(a) && now.contains(b));
    QVERIFY(samePath(a->path, aBefore, 0));
    QVERIFY(samePath(b->path, bBefore, 0));
    QVERIFY(samePaths(scenePaths({a, b}), sceneBefore, 0));
    stack->redo();
    QCOMPARE(designItemsOf(scene), Items{result});
}

void TestOutlineOperations::tooFewItemsDoNothing()
{
    Jk_chang_jing scene;
    Jk_tu_yuan *a = rectItem(0, 0, 10, 10);
    scene.addItem(a);
    QVERIFY(!makeBooleanCommand(&scene, {a}, BooleanOperation::Subtract));
    QVERIFY(!makeBooleanCommand(&scene, {a}, BooleanOperation::Intersect));
    QVERIFY(!makeBooleanCommand(&scene, {}, BooleanOperation::Weld));
    Jk_tu_yuan *far = rectItem(50, 0, 10, 10);
    scene.addItem(far);
    QVERIFY(!makeBooleanCommand(&scene, {a, far}, BooleanOperation::Intersect)); // nothing left
    OffsetSettings s;
    s.distance = 0;
    QVERIFY(!makeOffsetCommand(&scene, {a}, s));
    s.distance = 6;
    s.outward = false;
    QVERIFY(!makeOffsetCommand(&scene, {a}, s)); // shrinks away
}

void TestOutlineOperations::offsetSteps_data()
{
    QTest::addColumn<double>("distance");
    QTest::addColumn<bool>("outward");
    QTest::addColumn<CornerStyle>("corners");
    QTest::addColumn<bool>("keep");
    QTest::addColumn<double>("scale"); // the item's own scale
    QTest::addColumn<QSizeF>("size");  // scene size of the result

    QTest::newRow("out") << 1.0 << true << CornerStyle::Mitre << false << 1.0 << QSizeF(22, 12);
    QTest::newRow("in") << 1.0 << false << CornerStyle::Round << false << 1.0 << QSizeF(18, 8);
    QTest::newRow("keep") << 2.0 << true << CornerStyle::Square << true << 1.0 << QSizeF(24, 14);
    // A doubled item: the distance is the scene's.
    QTest::newRow("scaled") << 1.0 << true << CornerStyle::Mitre << false << 2.0 << QSizeF(42, 22);
}

void TestOutlineOperations::offsetSteps()
{
    QFETCH(double, distance);
    QFETCH(bool, outward);
    QFETCH(CornerStyle, corners);
    QFETCH(bool, keep);
    QFETCH(double, scale);
    QFETCH(QSizeF, size);
    Jk_chang_jing scene;
    Jk_tu_yuan *item = rectItem(5, -30, 20, 10);
    item->setTransform(QTransform::fromScale(scale, scale));
    item->wen_zi = QStringLiteral("text");
    scene.addItem(item);
    const QPainterPath before = item->path;

    OffsetSettings s;
    s.distance = distance;
    s.outward = outward;
    s.corners = corners;
    s.keepOriginal = keep;
    scene.undoStack()->push(makeOffsetCommand(&scene, {item}, s));
    const Items now = designItemsOf(scene);
    QCOMPARE(now.size(), keep ? 2 : 1);
    QVERIFY(now.contains(item));
    Jk_tu_yuan *result = item;
    if (keep) {
        result = now.at(now.indexOf(item) == 0 ? 1 : 0);
        QVERIFY(samePath(item->path, before, 0));
        QVERIFY(result->isSelected() && !item->isSelected());
    }
    QVERIFY(result->wen_zi.isEmpty());
    const QSizeF got = result->scenePath().boundingRect().size();
    QVERIFY2(std::fabs(got.width() - size.width()) < 1e-3
                 && std::fabs(got.height() - size.height()) < 1e-3,
             qPrintable(QStringLiteral("%1 x %2").arg(got.width()).arg(got.height())));

    scene.undoStack()->undo();
    QCOMPARE(designItemsOf(scene), Items{item});
    QVERIFY(samePath(item->path, before, 0));
    QCOMPARE(item->wen_zi, QStringLiteral("text"));
}

void TestOutlineOperations::weldOverlappingLetters_data()
{
    QTest::addColumn<double>("spacing");
    QTest::addColumn<bool>("overlaps");
    // Letters apart, some of them run together, all run together.
    QTest::newRow("apart") << 1.0 << false;
    QTest::newRow("touching") << -1.2 << true;
    QTest::newRow("overlapping") << -2.5 << true;
    QTest::newRow("run together") << -5.0 << true;
}

void TestOutlineOperations::weldOverlappingLetters()
{
    QFETCH(double, spacing);
    QFETCH(bool, overlaps);
    TextSettings settings;
    settings.family = QStringLiteral("DejaVu Sans");
    settings.sizeMm = 20;
    settings.bold = true;
    settings.letterSpacingMm = spacing;
    const QPainterPath text = textOutline(QStringLiteral("LASER"), settings);
    QVERIFY(!text.isEmpty());

    Jk_chang_jing scene;
    auto *item = new Jk_tu_yuan(text, 1);
    item->setPos(10, -40);
    scene.addItem(item);
    const QPainterPath sceneText = item->scenePath();
    scene.undoStack()->push(makeBooleanCommand(&scene, {item}, BooleanOperation::Weld));
    QCOMPARE(designItemsOf(scene).size(), 1);
    const QPainterPath welded = designItemsOf(scene).first()->scenePath();

    // The letters' area: the glyphs' non-zero fill. Each connected group of
    // it is one outer outline of the weld, and the weld's even-odd fill (the
    // fill the job burns) is that same area: nothing left out where letters
    // overlap and nothing covered twice.
    const double ppm = 20;
    const QRectF area = sceneText.boundingRect().adjusted(-1, -1, 1, 1);
    const QImage letters = rasterise(sceneText, Qt::WindingFill, area, ppm);
    const QImage weldFill = rasterise(welded, Qt::OddEvenFill, area, ppm);
    const QImage textFill = rasterise(sceneText, Qt::OddEvenFill, area, ppm);
    const int lettersPixels = filledPixels(letters);
    QCOMPARE(outerOutlines(welded), components(letters));
    QVERIFY2(differentPixels(letters, weldFill) < lettersPixels / 200,
             qPrintable(QString::number(differentPixels(letters, weldFill))));
    // Before the weld the overlaps burn as holes.
    QCOMPARE(differentPixels(letters, textFill) > 0, overlaps);
    if (overlaps)
        QVERIFY(components(letters) < 5);

    // The hatch of the weld: its lines cover the letters' area once.
    HatchSettings hatch;
    hatch.spacing = 0.1;
    double burnt = 0;
    for (const HatchLine &line : hatchLines(welded, hatch)) {
        for (const HatchSpan &span : line.spans)
            burnt += span.u1 - span.u0;
    }
    const double lettersArea = lettersPixels / (ppm * ppm);
    QVERIFY2(std::fabs(burnt * hatch.spacing - lettersArea) < lettersArea * 0.02,
             qPrintable(QStringLiteral("%1 vs %2").arg(burnt * hatch.spacing).arg(lettersArea)));

    scene.undoStack()->undo();
    QCOMPARE(designItemsOf(scene), Items{item});
    QVERIFY(samePath(item->path, text, 0));
}

QTEST_MAIN(TestOutlineOperations)
#include "tst_outline_operations.moc"
