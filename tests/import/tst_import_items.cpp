// The DXF reader (each entity kind, bulges, object coordinate systems pointing down, units,
// blocks, spline accuracy), then import results as design items: centred SVG drawings, the
// mirrored DXF item through the undoable add, and the traced item lying over its bitmap.
#include "colour_layers.h"
#include "dxf_text.h"
#include "import_items.h"
#include "jk_chang_jing.h"
#include "jk_dxf.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "program_state.h"
#include "tu_ceng.h"

#include <QPainter>
#include <QTemporaryDir>
#include <QUndoStack>
#include <QtTest>
#include <cmath>

using namespace dxftext;
using namespace lumitra;

namespace {

bool near(const QRectF &a, const QRectF &b, double tol)
{
    return qAbs(a.left() - b.left()) <= tol && qAbs(a.top() - b.top()) <= tol
           && qAbs(a.right() - b.right()) <= tol && qAbs(a.bottom() - b.bottom()) <= tol;
}

QByteArray describe(const QRectF &r)
{
    return QStringLiteral("(%1,%2 %3x%4)")
        .arg(r.x())
        .arg(r.y())
        .arg(r.width())
        .arg(r.height())
        .toUtf8();
}

QRectF sceneBox(const Jk_tu_yuan *item)
{
    return item->sceneTransform().map(item->path).boundingRect();
}

// The outline's vertices, subpath by subpath (the reader flattens splines into lines).
QVector<QPolygonF> lineVertices(const QPainterPath &path)
{
    QVector<QPolygonF> out;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        if (e.isMoveTo() || out.isEmpty())
            out.append(QPolygonF());
        out.last().append(QPointF(e.x, e.y));
    }
    return out;
}

double distanceToPolyline(const QPointF &p, const QPolygonF &poly)
{
    double best = 1e300;
    for (int i = 0; i + 1 < poly.size(); ++i) {
        const QPointF a = poly[i], d = poly[i + 1] - a;
        const double len2 = QPointF::dotProduct(d, d);
        const double t = len2 > 0 ? qBound(0.0, QPointF::dotProduct(p - a, d) / len2, 1.0) : 0.0;
        best = std::min(best, QLineF(p, a + t * d).length());
    }
    return best;
}

} // namespace

class TestImportItems : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }
    void entities_data();
    void entities();
    void unitsFromHeader_data();
    void unitsFromHeader();
    void splineWithinTolerance_data();
    void splineWithinTolerance();
    void rationalSplineIsACircle();
    void fitPointSplinePassesThroughItsPoints();
    void selfInsertingBlockEnds();
    void svgFileBecomesCentredItems_data();
    void svgFileBecomesCentredItems();
    void svgImagesAndTexts();
    void svgColoursToLayers_data();
    void svgColoursToLayers();
    void colourAssignment();
    void dxfColoursToLayers();
    void dxfItemIsMirrored_data();
    void dxfItemIsMirrored();
    void dxfFileGoesThroughTheUndoableAdd();
    void dxfFailuresCarryAMessage();
    void tracedItemLiesOverTheBitmap_data();
    void tracedItemLiesOverTheBitmap();
    void traceOfBlankBitmapGivesNothing();

private:
    QTemporaryDir m_dir;
    int m_files = 0;

    QString put(const QString &text)
    {
        const QString path = m_dir.filePath(QStringLiteral("f%1.dxf").arg(++m_files));
        return write(path, text.toUtf8()) ? path : QString();
    }
};

void TestImportItems::entities_data()
{
    QTest::addColumn<QString>("blocks");
    QTest::addColumn<QString>("entities");
    QTest::addColumn<QRectF>("box");
    QTest::addColumn<int>("subpaths");
    const QString none;
    const double r50 = std::sqrt(50.0);
    auto row = [](const char *name, const QString &blocks, const QString &entities, QRectF box,
                  int subpaths) { QTest::newRow(name) << blocks << entities << box << subpaths; };
    row("circle", none, circle(10, 20, 5), {5, 15, 10, 10}, 1);
    row("arc first quadrant", none, arc(0, 0, 10, 0, 90), {0, 0, 10, 10}, 1);
    row("arc across zero degrees", none, arc(0, 0, 10, 270, 90), {0, -10, 10, 20}, 1);
    row("full ellipse", none, ellipse(0, 0, 20, 0, 0.5, 0, 2 * M_PI), {-20, -10, 40, 20}, 1);
    row("ellipse with vertical major axis", none, ellipse(0, 0, 0, 20, 0.25, 0, 2 * M_PI),
        {-5, -20, 10, 40}, 1);
    row("half ellipse", none, ellipse(0, 0, 20, 0, 0.5, 0, M_PI), {-20, 0, 40, 10}, 1);
    // A bulge of 1 is a half circle turning counter-clockwise: below a left-to-right chord.
    row("bulge 1 bows below", none, lwpolyline({{0, 0, 1}, {10, 0, 0}}, false), {0, -5, 10, 5}, 1);
    row("bulge -1 bows above", none, lwpolyline({{0, 0, -1}, {10, 0, 0}}, false), {0, 0, 10, 5}, 1);
    row("closing segment with bulge", none, lwpolyline({{0, 0, 0}, {10, 0, 0}, {10, 10, 1}}, true),
        {5 - r50, 0, 5 + r50, 5 + r50}, 1);
    row("old-style polyline with bulge", none, polyline({{0, 0, 0}, {20, 0, 1}, {20, 10, 0}}),
        {0, 0, 25, 10}, 1);
    row("point ignored beside a line", none, point(500, 500) + line(0, 0, 1, 1), {0, 0, 1, 1}, 1);
    row("lwpolyline with extrusion down", none, lwpolyline({{1, 1, 0}, {2, 3, 0}}, false, true),
        {-2, 1, 1, 2}, 1);
    row("only the arc with extrusion down is mirrored", none,
        arc(10, 0, 5, 0, 90, true) + line(0, 0, 1, 1), {-15, 0, 16, 5}, 2);

    const QString square = lwpolyline({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}, true);
    const QString sq = block("SQ", 0, 0, square);
    row("insert scaled and rotated", sq, insert("SQ", 100, 200, 2, 2, 90), {98, 200, 2, 2}, 1);
    row("block base point",
        block("B", 5, 5, lwpolyline({{5, 5, 0}, {6, 5, 0}, {6, 6, 0}, {5, 6, 0}}, true)),
        insert("B", 0, 0), {0, 0, 1, 1}, 1);
    row("nested blocks",
        block("INNER", 0, 0, line(0, 0, 1, 0)) + block("OUTER", 0, 0, insert("INNER", 10, 0)),
        insert("OUTER", 0, 5, 3, 3), {30, 5, 3, 0}, 1);
    row("array of inserts", sq, insert("SQ", 0, 0, 1, 1, 0, 3, 2, 10, 20), {0, 0, 21, 21}, 6);
    row("mirrored insert", sq, insert("SQ", 5, 0, -1, 1), {4, 0, 1, 1}, 1);
    row("insert with extrusion down", sq, insert("SQ", 5, 0, 1, 1, 0, 1, 1, 0, 0, true),
        {-6, 0, 1, 1}, 1);
    // Object coordinate systems tilted away from Z, by the arbitrary axis algorithm: for
    // N = (0, 0.6, 0.8) the OCS axes are Ax = (-1, 0, 0), Ay = (0, -0.8, 0.6), so seen from
    // above x -> -x, y -> -0.8 y + 0.6 z; for N = (0.6, 0, 0.8) they are Ax = (0, 1, 0),
    // Ay = (-0.8, 0, 0.6): x -> -0.8 y + 0.6 z, y -> x.
    row("circle in a tilted OCS is an ellipse", none,
        ent("CIRCLE") + xy(10, 10, 20) + extrusion(0, 0.6, 0.8) + g(40, 5.0), {-15, -20, 10, 8}, 1);
    row("arc in a tilted OCS", none,
        ent("ARC") + xy(10, 0, 0) + g(40, 10.0) + extrusion(0.6, 0, 0.8) + g(50, 0.0) + g(51, 90.0),
        {-8, 0, 8, 10}, 1);
    // The half circle below (0,0)-(10,0) at elevation 5: x in [-10, 0], y in [3, 7].
    row("lwpolyline with a bulge and an elevation in a tilted OCS", none,
        ent("LWPOLYLINE") + g(90, 2) + g(70, 0) + g(38, 5.0) + g(10, 0.0) + g(20, 0.0) + g(42, 1.0)
            + g(10, 10.0) + g(20, 0.0) + extrusion(0, 0.6, 0.8),
        {-10, 3, 10, 4}, 1);
    // World centre and major axis (20, 0, 0); minor = 0.5 * N x major = (0, 8, -6).
    row("ellipse in a tilted plane", none,
        ent("ELLIPSE") + xy(10, 0, 0) + xy(11, 20, 0) + extrusion(0, 0.6, 0.8) + g(40, 0.5)
            + g(41, 0.0) + g(42, 2 * M_PI),
        {-20, -8, 40, 16}, 1);
    row("insert in a tilted OCS", sq,
        ent("INSERT") + g(2, "SQ") + xy(10, 5, 0) + extrusion(0, 0.6, 0.8), {-6, -0.8, 1, 0.8}, 1);
    row("block names ignore case", block("Part", 0, 0, square), insert("PART", 7, 7), {7, 7, 1, 1},
        1);
    row("missing block skipped", none, insert("NONE", 7, 7) + line(0, 0, 2, 2), {0, 0, 2, 2}, 1);
    row("block content alone is not drawn", block("UNUSED", 0, 0, line(100, 100, 200, 200)),
        line(0, 0, 2, 2), {0, 0, 2, 2}, 1);
}

void TestImportItems::entities()
{
    QFETCH(QString, blocks);
    QFETCH(QString, entities);
    QFETCH(QRectF, box);
    QFETCH(int, subpaths);
    Jk_dxf reader(nullptr);
    const QPainterPath path = reader.dxf_jie_xi(put(file(entities, 4, blocks)));
    QVERIFY2(reader.lastError().isEmpty(), qPrintable(reader.lastError()));
    QVERIFY2(near(path.boundingRect(), box, 1e-6),
             describe(path.boundingRect()) + " expected " + describe(box));
    QCOMPARE(lineVertices(path).size(), subpaths);
}

void TestImportItems::unitsFromHeader_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<double>("mmPerUnit");
    QTest::newRow("no header variable") << -1 << 1.0;
    const QList<QPair<int, double>> units = {{0, 1.0},    {1, 25.4},   {2, 304.8},
                                             {5, 10.0},   {6, 1000.0}, {9, 0.0254},
                                             {13, 0.001}, {14, 100.0}, {99, 1.0}};
    for (const auto &u : units)
        QTest::addRow("$INSUNITS %d", u.first) << u.first << u.second;
}

void TestImportItems::unitsFromHeader()
{
    QFETCH(int, code);
    QFETCH(double, mmPerUnit);
    Jk_dxf reader(nullptr);
    const QPainterPath path =
        reader.dxf_jie_xi(put(file(line(1, 2, 3, 6) + circle(0, 0, 0.5), code)));
    const double f = mmPerUnit;
    QVERIFY2(near(path.boundingRect(), QRectF(-0.5 * f, -0.5 * f, 3.5 * f, 6.5 * f), 1e-9),
             describe(path.boundingRect()));
}

void TestImportItems::splineWithinTolerance_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<double>("insertScale");
    QTest::newRow("millimetres") << 4 << 1.0;
    QTest::newRow("inches") << 1 << 1.0;
    QTest::newRow("inserted 50 times larger") << 4 << 50.0;
}

void TestImportItems::splineWithinTolerance()
{
    // A clamped cubic with four control points is one Bézier segment, evaluated here with
    // the Bernstein form, independently of the reader.
    QFETCH(int, units);
    QFETCH(double, insertScale);
    const QVector<QPointF> c = {{0, 0}, {30, 80}, {70, -60}, {100, 20}};
    const QString s = spline(3, c, {0, 0, 0, 0, 1, 1, 1, 1});
    Jk_dxf reader(nullptr);
    const QPainterPath path =
        reader.dxf_jie_xi(put(insertScale == 1.0 ? file(s, units)
                                                 : file(insert("S", 0, 0, insertScale, insertScale),
                                                        units, block("S", 0, 0, s))));
    QVERIFY2(reader.lastError().isEmpty(), qPrintable(reader.lastError()));
    const QVector<QPolygonF> polys = lineVertices(path);
    QCOMPARE(polys.size(), 1);
    const double f = reader.millimetresPerUnit() * insertScale;
    double worst = 0;
    for (int i = 0; i <= 4000; ++i) {
        const double t = i / 4000.0, u = 1 - t;
        const QPointF p =
            (u * u * u * c[0] + 3 * u * u * t * c[1] + 3 * u * t * t * c[2] + t * t * t * c[3]) * f;
        worst = std::max(worst, distanceToPolyline(p, polys[0]));
    }
    QVERIFY2(worst <= Jk_dxf::kSplineToleranceMm + 1e-9, qPrintable(QString::number(worst)));
    QVERIFY(worst > 0.0005); // flattened, not oversampled into a point cloud
    QCOMPARE(polys[0].first(), c[0] * f);
    QVERIFY(QLineF(polys[0].last(), c[3] * f).length() < 1e-9);
}

void TestImportItems::rationalSplineIsACircle()
{
    // A rational quadratic with weights 1, sqrt(2)/2, 1 is exactly a quarter circle.
    for (double r : {1.0, 500.0}) {
        Jk_dxf reader(nullptr);
        const QVector<QPolygonF> polys = lineVertices(reader.dxf_jie_xi(put(file(
            spline(2, {{r, 0}, {r, r}, {0, r}}, {0, 0, 0, 1, 1, 1}, {1, std::sqrt(0.5), 1})))));
        QCOMPARE(polys.size(), 1);
        const QPolygonF &poly = polys[0];
        QVERIFY(poly.size() >= 3);
        for (int i = 0; i < poly.size(); ++i) {
            QVERIFY(qAbs(QLineF(QPointF(), poly[i]).length() - r) < 1e-9 * r);
            if (i > 0) {
                const double half = QLineF(poly[i - 1], poly[i]).length() / 2;
                const double sag = r - std::sqrt(r * r - half * half);
                QVERIFY2(sag <= Jk_dxf::kSplineToleranceMm + 1e-9,
                         qPrintable(QString::number(sag)));
            }
        }
    }
}

void TestImportItems::fitPointSplinePassesThroughItsPoints()
{
    const QVector<QPointF> fit = {{0, 0}, {10, 5}, {20, -5}, {30, 0}};
    Jk_dxf reader(nullptr);
    const QPainterPath path = reader.dxf_jie_xi(put(file(spline(3, {}, {}, {}, fit))));
    QVERIFY2(reader.lastError().isEmpty(), qPrintable(reader.lastError()));
    for (const QPointF &p : fit) {
        bool found = false;
        for (int i = 0; i < path.elementCount(); ++i)
            found |= QLineF(p, QPointF(path.elementAt(i).x, path.elementAt(i).y)).length() < 1e-9;
        QVERIFY(found);
    }
}

void TestImportItems::selfInsertingBlockEnds()
{
    // A block that inserts itself twice: expansion stops at the nesting limit.
    const QString loop =
        block("LOOP", 0, 0,
              line(0, 0, 1, 0) + insert("LOOP", 1, 0, 0.5, 0.5) + insert("LOOP", 0, 1, 0.5, 0.5));
    Jk_dxf reader(nullptr);
    const QPainterPath path = reader.dxf_jie_xi(put(file(insert("LOOP", 0, 0), 4, loop)));
    QVERIFY(!path.isEmpty());
    QVERIFY(path.boundingRect().width() < 3);
}

void TestImportItems::svgFileBecomesCentredItems_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<QPointF>("topLeft");
    // The drawing's union (10,10)-(150,190) is 140 x 180; its top-left goes to
    // (width/2 - 70, height/2 - 90 - height).
    QTest::newRow("400 x 400") << 400 << 400 << QPointF(130, -290);
    QTest::newRow("odd sizes use integer halves") << 301 << 201 << QPointF(80, -191);
}

void TestImportItems::svgFileBecomesCentredItems()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(QPointF, topLeft);
    programState().width = width;
    programState().height = height;
    programState().currentLayer = 7;
    const QList<Jk_tu_yuan *> items = importSvgItems(
        QStringLiteral(LUMITRA_TEST_DATA_DIR "/import/svg/mm_viewbox_layers.svg"), nullptr);
    QCOMPARE(items.size(), 4);
    const QPointF shift = topLeft - QPointF(10, 10);
    const QList<QRectF> inFile = {
        {30, 95, 50, 25}, {10, 10, 100, 50}, {60, 70, 20, 40}, {110, 150, 40, 40}};
    for (int i = 0; i < items.size(); ++i) {
        QVERIFY2(near(sceneBox(items[i]), inFile[i].translated(shift), 0.01),
                 describe(sceneBox(items[i])) + " expected "
                     + describe(inFile[i].translated(shift)));
        QCOMPARE(items[i]->layer_id, 7);
        QVERIFY(!items[i]->is_bitmap);
        QVERIFY(items[i]->isSelected());
    }
    qDeleteAll(items);
}

void TestImportItems::svgImagesAndTexts()
{
    // A 10 x 5 mm rectangle at (0, 0), a 20 x 10 pixel image stretched over (30, 0)-(50, 20)
    // (preserveAspectRatio none), and two texts; the union is 50 x 20.
    programState().width = 400;
    programState().height = 400;
    QImage image(20, 10, QImage::Format_RGB32);
    image.fill(Qt::black);
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QVERIFY(image.save(dir.filePath(QStringLiteral("pic.png"))));
    const QString svg = dir.filePath(QStringLiteral("drawing.svg"));
    QFile file(svg);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<svg xmlns='http://www.w3.org/2000/svg' width='100mm' height='100mm' "
               "viewBox='0 0 100 100'><rect width='10' height='5'/>"
               "<image x='30' width='20' height='20' preserveAspectRatio='none' "
               "href='pic.png'/><text>a</text><text>b</text></svg>");
    file.close();
    QString message;
    const QList<Jk_tu_yuan *> items = importSvgItems(svg, &message);
    QCOMPARE(items.size(), 2);
    QVERIFY(message.contains(QLatin1String("2")));
    QCOMPARE(message, svgTextLeftOutNotice(2));
    // The union's top-left goes to (200 - 25, 200 - 10 - 400).
    const QPointF at(175, -210);
    QVERIFY(!items[0]->is_bitmap);
    QVERIFY2(near(sceneBox(items[0]), QRectF(at, QSizeF(10, 5)), 1e-4),
             describe(sceneBox(items[0])));
    QVERIFY(items[1]->is_bitmap);
    QCOMPARE(items[1]->source_image.size(), QSize(20, 10));
    QVERIFY2(near(sceneBox(items[1]), QRectF(at + QPointF(30, 0), QSizeF(20, 20)), 1e-4),
             describe(sceneBox(items[1])));
    QVERIFY(items[1]->isSelected());
    qDeleteAll(items);
}

void TestImportItems::svgColoursToLayers_data()
{
    QTest::addColumn<bool>("option");
    QTest::addColumn<QString>("body");
    QTest::addColumn<QVector<int>>("layers"); // per item
    QTest::addColumn<QStringList>("newNames");
    const QString two = QStringLiteral("<rect stroke='#ff0000' fill='none' width='5' height='5'/>"
                                       "<rect stroke='#0000fe' fill='none' width='5' height='5'/>"
                                       "<rect style='stroke:red' width='1' height='1'/>");
    // Palette layer 2 is pure red, layer 1 pure blue.
    QTest::newRow("option off: the current layer")
        << false << two << QVector<int>{7, 7, 7} << QStringList{};
    QTest::newRow("two colours, each on its nearest layer")
        << true << two << QVector<int>{2, 1, 2}
        << QStringList{QStringLiteral("SVG #0000FE"), QStringLiteral("SVG #FF0000")};
    QTest::newRow("one colour: the current layer")
        << true
        << QStringLiteral("<rect stroke='red' width='5' height='5'/><circle stroke='red' r='2'/>")
        << QVector<int>{7, 7} << QStringList{};
}

void TestImportItems::svgColoursToLayers()
{
    QFETCH(bool, option);
    QFETCH(QString, body);
    QFETCH(QVector<int>, layers);
    QFETCH(QStringList, newNames);
    programState().currentLayer = 7;
    LayerList::instance().clear();
    setColourLayersEnabled(option);
    QCOMPARE(colourLayersEnabled(), option);
    const QString svg = m_dir.filePath(QStringLiteral("colours.svg"));
    QFile file(svg);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(("<svg xmlns='http://www.w3.org/2000/svg' width='10mm' height='10mm' "
                "viewBox='0 0 10 10'>"
                + body + "</svg>")
                   .toUtf8());
    file.close();
    const QList<Jk_tu_yuan *> items = importSvgItems(svg, nullptr);
    QVector<int> got;
    for (const Jk_tu_yuan *item : items)
        got.append(item->layer_id);
    QCOMPARE(got, layers);
    QStringList names;
    for (const TuCeng *l : LayerList::instance().layers())
        names.append(l->mingcheng);
    names.sort();
    QCOMPARE(names, newNames);
    qDeleteAll(items);
    LayerList::instance().clear();
    setColourLayersEnabled(false);
}

void TestImportItems::colourAssignment()
{
    // Exact palette colours take their own layers, whatever the order; a near colour takes
    // the nearest layer still free.
    const QRgb nearFive = layerColor(5).rgb() ^ 0x010101;
    QCOMPARE(assignColourLayers({nearFive}), QVector<int>{5});
    const QVector<int> three =
        assignColourLayers({nearFive, layerColor(5).rgb(), layerColor(0).rgb()});
    QCOMPARE(three[1], 5);
    QCOMPARE(three[2], 0);
    QVERIFY(three[0] != 5 && three[0] != 0);
    QVector<QRgb> many;
    for (int i = 0; i < 40; ++i)
        many.append(qRgb(i * 6, 255 - i * 6, (i * 37) % 256));
    const QVector<int> layers = assignColourLayers(many);
    QCOMPARE(layers.size(), 40);
    QSet<int> distinct;
    for (int l : layers) {
        QVERIFY(l >= 0 && l < kLayerCount);
        distinct.insert(l);
    }
    QCOMPARE(distinct.size(), kLayerCount); // every layer used once the colours outnumber them
    // AutoCAD colour index: the first ones by name, 7 drawn black, the greys at the end.
    QCOMPARE(aciColour(1), qRgb(255, 0, 0));
    QCOMPARE(aciColour(5), qRgb(0, 0, 255));
    QCOMPARE(aciColour(7), qRgb(0, 0, 0));
    QCOMPARE(aciColour(255), qRgb(255, 255, 255));
    QCOMPARE(aciColour(10), qRgb(255, 0, 0));
}

void TestImportItems::dxfColoursToLayers()
{
    // Layer CUT is red (ACI 1) in the table; ENGRAVE has no table entry.
    const QString tables = g(0, "SECTION") + g(2, "TABLES") + g(0, "TABLE") + g(2, "LAYER")
                           + g(70, 1) + g(0, "LAYER") + g(2, "CUT") + g(70, 0) + g(62, 1)
                           + g(6, "CONTINUOUS") + g(0, "ENDTAB") + g(0, "ENDSEC");
    auto on = [](const char *layer, int colour) {
        return g(8, layer) + (colour >= 0 ? g(62, colour) : QString());
    };
    const QString blocks = ent("BLOCK") + g(2, "MARKER") + g(70, 0) + xy(10, 0, 0) + g(3, "MARKER")
                           + g(0, "LINE") + on("0", 0) + xy(10, 0, 0) + xy(11, 1, 0)
                           + ent("ENDBLK");
    const QString entities =
        g(0, "LINE") + on("CUT", -1) + xy(10, 0, 0) + xy(11, 10, 0)        // CUT by layer
        + g(0, "CIRCLE") + on("ENGRAVE", 5) + xy(10, 20, 20) + g(40, 2.0)  // blue
        + g(0, "LINE") + on("CUT", 3) + xy(10, 0, 5) + xy(11, 10, 5)       // CUT, green
        + g(0, "INSERT") + on("MARK", 6) + g(2, "MARKER") + xy(10, 30, 30) // by block
        + g(0, "LINE") + on("CUT", 256) + xy(10, 0, 10) + xy(11, 10, 10);  // CUT again
    QString text = file(entities, 4, blocks);
    text.insert(text.indexOf(g(0, "SECTION") + g(2, "BLOCKS")), tables);
    const QString path = put(text);

    programState().currentLayer = 7;
    LayerList::instance().clear();
    setColourLayersEnabled(false);
    QString message;
    QList<Jk_tu_yuan *> items = importDxfItems(path, &message);
    QCOMPARE(items.size(), 1);
    const QRectF whole = sceneBox(items.first());
    qDeleteAll(items);

    setColourLayersEnabled(true);
    items = importDxfItems(path, &message);
    QCOMPARE(items.size(), 4);
    QStringList names;
    for (const TuCeng *l : LayerList::instance().layers())
        names.append(l->mingcheng);
    QCOMPARE(names, (QStringList{"DXF CUT ACI 1", "DXF ENGRAVE", "DXF CUT ACI 3", "DXF MARK"}));
    // The red and blue groups take the palette's red and blue layers; all differ.
    QCOMPARE(items[0]->layer_id, 2);
    QCOMPARE(items[1]->layer_id, 1);
    QSet<int> used;
    QRectF together;
    for (const Jk_tu_yuan *item : items) {
        used.insert(item->layer_id);
        together = together.isNull() ? sceneBox(item) : together.united(sceneBox(item));
    }
    QCOMPARE(used.size(), 4);
    // The parts lie where the one item lay; the by-layer line of CUT came with the first.
    QVERIFY2(near(together, whole, 1e-9), describe(together) + " vs " + describe(whole));
    QVERIFY2(near(sceneBox(items[0]), QRectF(whole.left(), whole.bottom() - 10, 10, 10), 1e-9),
             describe(sceneBox(items[0])));
    qDeleteAll(items);
    LayerList::instance().clear();
    setColourLayersEnabled(false);
}

void TestImportItems::dxfItemIsMirrored_data()
{
    QTest::addColumn<QRectF>("drawing");
    QTest::addColumn<QRectF>("scene");
    QTest::newRow("on the work area: drawing y up is scene y negative")
        << QRectF(10, 20, 40, 40) << QRectF(10, -60, 40, 40);
    QTest::newRow("touching the origin") << QRectF(0, 0, 400, 400) << QRectF(0, -400, 400, 400);
    QTest::newRow("off the work area: centred")
        << QRectF(1000, 2000, 100, 50) << QRectF(150, -225, 100, 50);
    QTest::newRow("below the drawing origin: centred")
        << QRectF(10, -30, 20, 20) << QRectF(190, -210, 20, 20);
}

void TestImportItems::dxfItemIsMirrored()
{
    QFETCH(QRectF, drawing);
    QFETCH(QRectF, scene);
    QPainterPath outline;
    outline.moveTo(drawing.topLeft());
    outline.lineTo(drawing.bottomRight());
    Jk_tu_yuan *item = makeDxfItem(outline);
    QCOMPARE(item->transform(), QTransform::fromScale(1, -1));
    QCOMPARE(item->path, outline); // the flip lives in the transform, not the path
    QVERIFY2(near(sceneBox(item), scene, 1e-4), describe(sceneBox(item)));
    // The end that is higher in the drawing is higher on the screen (smaller scene y).
    QVERIFY(item->sceneTransform().map(drawing.bottomRight()).y()
            < item->sceneTransform().map(drawing.topLeft()).y());
    delete item;
}

void TestImportItems::dxfFileGoesThroughTheUndoableAdd()
{
    QString message;
    const QList<Jk_tu_yuan *> items =
        importDxfItems(put(file(line(0, 0, 2, 1) + circle(1, 1, 0.5), 5)), &message); // cm
    QCOMPARE(items.size(), 1);
    QVERIFY(message.isEmpty());
    QVERIFY2(near(sceneBox(items[0]), QRectF(0, -15, 20, 15), 1e-6), describe(sceneBox(items[0])));
    Jk_chang_jing scene;
    scene.addItemsUndoable(items);
    QCOMPARE(scene.designItemCount(), 1);
    scene.undoStack()->undo();
    QCOMPARE(scene.designItemCount(), 0);
    scene.undoStack()->redo();
    QCOMPARE(scene.designItemCount(), 1);
    const QRectF box = scene.designItems().first()->sceneBoundingRect();
    QVERIFY2(box.bottom() <= 1e-6 && box.top() >= -15 - 1e-6, describe(box));
}

void TestImportItems::dxfFailuresCarryAMessage()
{
    for (const QString &path :
         {put(file(point(1, 1) + point(3, 4))), m_dir.filePath(QStringLiteral("missing.dxf"))}) {
        QString message;
        QVERIFY(importDxfItems(path, &message).isEmpty());
        QVERIFY(!message.isEmpty());
    }
    // A binary DXF is refused as binary, not as damaged; a file with zero bytes in its text
    // is damaged.
    QByteArray binary("AutoCAD Binary DXF\r\n\x1a");
    binary.append('\0');
    binary.append("\x00\x00SECTION\x00\x02\x00HEADER\x00", 20);
    const QString binaryPath = m_dir.filePath(QStringLiteral("binary.dxf"));
    QVERIFY(write(binaryPath, binary));
    QString message;
    QVERIFY(importDxfItems(binaryPath, &message).isEmpty());
    QCOMPARE(message, QCoreApplication::translate("DxfImport", "不支持二进制 DXF 文件"));
    QByteArray zeros = file(line(0, 0, 1, 1)).toUtf8();
    zeros[10] = '\0';
    const QString zeroPath = m_dir.filePath(QStringLiteral("zeros.dxf"));
    QVERIFY(write(zeroPath, zeros));
    QVERIFY(importDxfItems(zeroPath, &message).isEmpty());
    QCOMPARE(message, QCoreApplication::translate("DxfImport", "DXF 文件已损坏"));
}

void TestImportItems::tracedItemLiesOverTheBitmap_data()
{
    QTest::addColumn<QPointF>("position");
    QTest::addColumn<double>("scale");
    QTest::newRow("as placed") << QPointF(-1, -1) << 1.0;
    QTest::newRow("moved and enlarged") << QPointF(30.0, -40.0) << 2.0;
}

void TestImportItems::tracedItemLiesOverTheBitmap()
{
    QFETCH(QPointF, position);
    QFETCH(double, scale);
    programState().currentLayer = 3;
    QImage img(100, 80, QImage::Format_ARGB32);
    img.fill(Qt::white);
    QPainter(&img).fillRect(10, 20, 20, 30, Qt::black);
    Jk_tu_yuan bitmap(img);
    if (position != QPointF(-1, -1))
        bitmap.setPos(position);
    bitmap.setTransform(QTransform::fromScale(scale, scale));
    Jk_tu_yuan *traced = traceBitmapItem(&bitmap);
    QVERIFY(traced);
    QVERIFY(!traced->is_bitmap);
    QCOMPARE(traced->layer_id, 3);
    QCOMPARE(traced->pos(), QPointF(0, 0));
    const double px = Jk_tu_yuan::kPixelMm;
    const QRectF expected =
        bitmap.sceneTransform().mapRect(QRectF(10 * px, 20 * px, 20 * px, 30 * px));
    QVERIFY2(near(sceneBox(traced), expected, 1e-6),
             describe(sceneBox(traced)) + " expected " + describe(expected));
    delete traced;
}

void TestImportItems::traceOfBlankBitmapGivesNothing()
{
    QImage img(20, 20, QImage::Format_ARGB32);
    img.fill(Qt::white);
    Jk_tu_yuan bitmap(img);
    QVERIFY(!traceBitmapItem(&bitmap));
    Jk_tu_yuan vector(0);
    QVERIFY(!traceBitmapItem(&vector));
}

QTEST_MAIN(TestImportItems)
#include "tst_import_items.moc"
