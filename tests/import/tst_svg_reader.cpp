// The SVG reader as a whole: traversal order, skipped containers, the seven shapes,
// transforms through nested groups, and files laid out the way drawing programs save them,
// compared by bounding box to within 0.01 mm.
#include "svg_reader.h"

#include <QtTest>

using namespace lumitra;

using Boxes = QList<QRectF>;

namespace {

QString svgDoc(const QString &body, const QString &rootAttributes = QString())
{
    // Without a viewBox one user unit is one CSS pixel; this root makes it one millimetre.
    const QString attrs = rootAttributes.isEmpty()
        ? QStringLiteral("width='1000mm' height='1000mm' viewBox='0 0 1000 1000'")
        : rootAttributes;
    return QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' %1>%2</svg>").arg(attrs, body);
}

QString describe(const QRectF &r)
{
    return QStringLiteral("(%1,%2 %3x%4)").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
}

void compareBoxes(const QList<QPainterPath> &paths, const Boxes &expected, double tol = 0.01)
{
    QStringList got;
    for (const QPainterPath &p : paths)
        got << describe(p.boundingRect());
    QVERIFY2(paths.size() == expected.size(), qPrintable(got.join(QLatin1Char(' '))));
    for (int i = 0; i < paths.size(); ++i) {
        const QRectF a = paths[i].boundingRect();
        const QRectF &b = expected[i];
        const bool same = qAbs(a.left() - b.left()) <= tol && qAbs(a.top() - b.top()) <= tol
            && qAbs(a.right() - b.right()) <= tol && qAbs(a.bottom() - b.bottom()) <= tol;
        QVERIFY2(same, qPrintable(QStringLiteral("shape %1: %2, expected %3")
                                      .arg(i)
                                      .arg(describe(a), describe(b))));
    }
}

} // namespace

class TestSvgReader : public QObject
{
    Q_OBJECT

private slots:
    void traversal_data();
    void traversal();
    void savedFiles_data();
    void savedFiles();
    void polygonClosesPolylineStaysOpen();
    void roundedRectangleHasRoundCorners();
    void unreadableInput_data();
    void unreadableInput();
    void missingFile();
};

void TestSvgReader::traversal_data()
{
    QTest::addColumn<QString>("svg");
    QTest::addColumn<Boxes>("boxes");

    QTest::newRow("shapes only inside defs") << svgDoc(
        "<defs><rect x='0' y='0' width='5' height='5'/><path d='M0 0 L9 9'/></defs>")
                                             << Boxes{};
    QTest::newRow("desc skipped with content") << svgDoc(
        "<desc><rect x='0' y='0' width='5' height='5'/></desc><rect x='1' y='1' width='2' height='2'/>")
                                               << Boxes{{1, 1, 2, 2}};
    QTest::newRow("group: path before circle whatever the order") << svgDoc(
        "<g><circle cx='50' cy='50' r='10'/><path d='M0 0 L10 5'/></g>")
                                                                  << Boxes{{0, 0, 10, 5},
                                                                           {40, 40, 20, 20}};
    QTest::newRow("group: every kind in the fixed order") << svgDoc(
        "<g><polyline points='0 0 1 1'/><polygon points='0 0 2 0 2 2'/><line x1='0' y1='0' x2='3' y2='3'/>"
        "<ellipse cx='10' cy='10' rx='4' ry='2'/><circle cx='20' cy='20' r='5'/>"
        "<rect x='30' y='30' width='6' height='6'/><path d='M40 40 h7 v7'/></g>")
                                                          << Boxes{{40, 40, 7, 7}, {30, 30, 6, 6},
                                                                   {15, 15, 10, 10}, {6, 8, 8, 4},
                                                                   {0, 0, 3, 3}, {0, 0, 2, 2},
                                                                   {0, 0, 1, 1}};
    QTest::newRow("root children keep document order") << svgDoc(
        "<circle cx='50' cy='50' r='10'/><path d='M0 0 L10 5'/>")
                                                        << Boxes{{40, 40, 20, 20}, {0, 0, 10, 5}};
    QTest::newRow("groups one after the other") << svgDoc(
        "<g><rect x='5' y='5' width='1' height='1'/></g><path d='M0 0 L2 2'/><g><path d='M7 7 L8 9'/></g>")
                                                << Boxes{{5, 5, 1, 1}, {0, 0, 2, 2}, {7, 7, 1, 2}};
    QTest::newRow("defs nested inside a group skipped") << svgDoc(
        "<g><defs><path d='M0 0 L100 100'/></defs><clipPath><rect width='50' height='50'/></clipPath>"
        "<path d='M1 1 L2 2'/></g>")
                                                        << Boxes{{1, 1, 1, 1}};
    QTest::newRow("unsupported elements ignored") << svgDoc(
        "<text x='5' y='5'>hello</text><image width='10' height='10'/><use href='#a'/>"
        "<rect x='0' y='0' width='4' height='4'/>")
                                                  << Boxes{{0, 0, 4, 4}};
    QTest::newRow("nested group transforms combine") << svgDoc(
        "<g transform='translate(100,0)'><g transform='scale(2)'><rect x='1' y='1' width='5' height='5' transform='translate(10 10)'/></g></g>")
                                                     << Boxes{{122, 22, 10, 10}};
    QTest::newRow("rotation about a centre") << svgDoc(
        "<g transform='rotate(-90 50 50)'><rect x='50' y='50' width='20' height='10'/></g>")
                                             << Boxes{{50, 30, 10, 20}};
    QTest::newRow("nested svg viewport") << svgDoc(
        "<svg x='10' y='20' width='100' height='100' viewBox='0 0 10 10'><rect width='10' height='5'/></svg>")
                                         << Boxes{{10, 20, 100, 50}};
    QTest::newRow("prefixed tags") << QStringLiteral(
        "<svg:svg xmlns:svg='http://www.w3.org/2000/svg' width='100mm' height='100mm' viewBox='0 0 100 100'>"
        "<svg:g><svg:rect x='1' y='2' width='3' height='4'/></svg:g></svg:svg>")
                                   << Boxes{{1, 2, 3, 4}};
    QTest::newRow("pixels without a viewBox") << QStringLiteral(
        "<svg xmlns='http://www.w3.org/2000/svg'><rect x='96' y='0' width='96' height='48'/></svg>")
                                              << Boxes{{25.4, 0, 25.4, 12.7}};
    QTest::newRow("absent coordinates are zero") << svgDoc("<line x2='10'/><rect width='3' height='2'/>")
                                                 << Boxes{{0, 0, 10, 0}, {0, 0, 3, 2}};
    // Units on coordinates count in pixels of the user space: true millimetres when the
    // user unit is the pixel, scaled with the viewBox otherwise.
    QTest::newRow("lengths with units, pixel user space")
        << svgDoc("<rect x='1mm' y='0' width='2cm' height='10mm'/>",
                  QStringLiteral("width='100mm' height='100mm'"))
        << Boxes{{1, 0, 20, 10}};
    QTest::newRow("lengths with units, scaled user space")
        << svgDoc("<rect x='0' y='0' width='96px' height='1in'/>",
                  QStringLiteral("width='200mm' height='200mm' viewBox='0 0 100 100'"))
        << Boxes{{0, 0, 192, 192}};
    QTest::newRow("degenerate shapes dropped") << svgDoc(
        "<rect width='0' height='5'/><circle r='-1'/><ellipse rx='3' ry='0'/><polygon points='1'/>"
        "<path d='M5 5'/><rect x='1' y='1' width='1' height='1'/>")
                                               << Boxes{{1, 1, 1, 1}};
    QTest::newRow("bad transform ignored, shape kept") << svgDoc(
        "<rect x='1' y='1' width='1' height='1' transform='rotate(oops)'/>")
                                                       << Boxes{{1, 1, 1, 1}};
    QTest::newRow("huge coordinates dropped") << svgDoc(
        "<path d='M0 0 L1e300 1e300'/><rect x='1' y='1' width='1' height='1'/>")
                                              << Boxes{{1, 1, 1, 1}};
    QTest::newRow("points with exponent and glued minus") << svgDoc(
        "<polyline points='1e-5,0 10-20'/>") << Boxes{{0.00001, -20, 9.99999, 20}};
}

void TestSvgReader::traversal()
{
    QFETCH(QString, svg);
    QFETCH(Boxes, boxes);
    const SvgImportResult result = readSvgData(svg.toUtf8());
    QVERIFY2(result.ok, qPrintable(result.error));
    compareBoxes(result.paths, boxes, 1e-6);
}

void TestSvgReader::savedFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<Boxes>("boxes");

    // Page in mm, layer group moved by (-20, -30): paths first, then rects, then circles.
    QTest::newRow("mm page with layer groups")
        << "mm_viewbox_layers.svg"
        << Boxes{{30, 95, 50, 25}, {10, 10, 100, 50}, {60, 70, 20, 40}, {110, 150, 40, 40}};
    // User unit of one point on a 100 x 50 mm page.
    QTest::newRow("points as user units") << "pt_viewbox.svg"
                                          << Boxes{{10, 10, 80, 30}, {0, 0, 100, 50}, {5, 25, 90, 0}};
    // A hundredth of a millimetre per user unit, matrix, scale and skew.
    QTest::newRow("hundredths with matrices")
        << "hundredth_mm_matrix.svg" << Boxes{{10, 5, 20, 10}, {20, 10, 20, 10}, {50, 0, 20, 10}};
}

void TestSvgReader::savedFiles()
{
    QFETCH(QString, file);
    QFETCH(Boxes, boxes);
    const SvgImportResult result =
        readSvgFile(QStringLiteral(LUMITRA_TEST_DATA_DIR "/import/svg/") + file);
    QVERIFY2(result.ok, qPrintable(result.error));
    compareBoxes(result.paths, boxes);
}

void TestSvgReader::polygonClosesPolylineStaysOpen()
{
    const SvgImportResult result = readSvgData(
        svgDoc("<polygon points='0,0 10,0 10,10'/><polyline points='0,0 10,0 10,10'/>").toUtf8());
    QCOMPARE(result.paths.size(), 2);
    const QPolygonF closed = result.paths[0].toSubpathPolygons().value(0);
    const QPolygonF open = result.paths[1].toSubpathPolygons().value(0);
    QCOMPARE(closed.size(), 4);
    QCOMPARE(closed.first(), closed.last());
    QCOMPARE(open.size(), 3);
    QCOMPARE(open.last(), QPointF(10, 10));
}

void TestSvgReader::roundedRectangleHasRoundCorners()
{
    const SvgImportResult result =
        readSvgData(svgDoc("<rect x='0' y='0' width='40' height='20' rx='5'/>").toUtf8());
    QCOMPARE(result.paths.size(), 1);
    const QPainterPath &p = result.paths[0];
    QCOMPARE(p.boundingRect(), QRectF(0, 0, 40, 20));
    QVERIFY(!p.contains(QPointF(0.5, 0.5)));  // the corner is cut
    QVERIFY(p.contains(QPointF(20, 0.5)));     // the edge is straight
    QVERIFY(p.contains(QPointF(2, 2)));
}

void TestSvgReader::unreadableInput_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("blank") << QByteArray("   \n  ");
    QTest::newRow("not xml") << QByteArray("\x89PNG\r\n\x1a\n\0\0garbage", 18);
    QTest::newRow("truncated") << svgDoc("<g><rect width='5' height='5'/>").toUtf8().left(70);
    QTest::newRow("unclosed tags") << QByteArray("<svg><g><path d='M0 0 L1 1'>");
    QByteArray deep = "<svg>";
    for (int i = 0; i < 5000; ++i)
        deep += "<g>";
    deep += "<rect width='1' height='1'/>";
    for (int i = 0; i < 5000; ++i)
        deep += "</g>";
    deep += "</svg>";
    QTest::newRow("deeply nested groups") << deep;
}

void TestSvgReader::unreadableInput()
{
    QFETCH(QByteArray, data);
    const SvgImportResult result = readSvgData(data);
    QVERIFY(!result.ok);
    QVERIFY(!result.error.isEmpty());
    QVERIFY(result.paths.isEmpty());
}

void TestSvgReader::missingFile()
{
    const SvgImportResult result = readSvgFile(QStringLiteral("/nonexistent/nothing.svg"));
    QVERIFY(!result.ok);
    QVERIFY(result.error.contains(QStringLiteral("nothing.svg")));
}

QTEST_GUILESS_MAIN(TestSvgReader)
#include "tst_svg_reader.moc"
