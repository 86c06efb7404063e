// Raster engraving: where runs burn, how gaps are crossed, overscan, direction,
// grey power, transforms, and the pixel levels read from images.
#include "bitmap_raster.h"
#include "jk_tu_yuan.h"
#include "raster_engrave.h"
#include "recording_sink.h"
#include "tu_ceng.h"

#include <QtTest>
#include <cmath>

using namespace lumitra;

namespace {

// A map from rows of text: '#' black (0), '.' white, digits grey levels x 25.
LevelMap mapOf(const QStringList &rows)
{
    LevelMap m;
    m.height = rows.size();
    m.width = rows.first().size();
    for (const QString &row : rows) {
        for (const QChar c : row)
            m.levels.push_back(c == '#' ? 0 : c == '.' ? LevelMap::kWhite : c.digitValue() * 25);
    }
    return m;
}

RecordingSink engrave(const LevelMap &map, const QTransform &toScene, double spacing,
                      double overscan = 0, bool oneDirection = false, bool grey = false)
{
    RasterSettings s;
    s.spacing = spacing;
    s.overscan = overscan;
    s.oneDirection = oneDirection;
    s.greyPower = grey;
    RecordingSink sink;
    engraveRaster(map, toScene, s, sink);
    return sink;
}

// The steps as text: kind letter and scene point, e.g. "T-2,0.5 B3,0.5".
QString trace(const RecordingSink &sink)
{
    QStringList out;
    for (const ToolStep &s : sink.steps)
        out << QStringLiteral("%1%2,%3").arg("TBCG"[s.kind]).arg(s.at.x()).arg(s.at.y());
    return out.join(QLatin1Char(' '));
}

} // namespace

class TestRasterEngrave : public QObject
{
    Q_OBJECT

private slots:
    void transformedBitmaps_data();
    void transformedBitmaps();
    void lineOrderAndGaps_data();
    void lineOrderAndGaps();
    void greyRunsMergedAndScaled();
    void nothingToBurnAndStop();
    void binaryLevels_data();
    void binaryLevels();
    void levelsOfModes();
    void bitmapItemPlacement();
};

void TestRasterEngrave::transformedBitmaps_data()
{
    QTest::addColumn<QTransform>("toScene");
    QTest::newRow("scaled") << QTransform::fromScale(0.254, 0.254);
    QTest::newRow("rotated 30, moved")
        << QTransform().rotate(30) * QTransform::fromTranslate(50, -20);
    QTest::newRow("mirrored") << QTransform::fromScale(-2, 1.5);
    QTest::newRow("sheared") << QTransform(1, 0.3, 0.5, 1, 0, 0);
}

void TestRasterEngrave::transformedBitmaps()
{
    // Every burnt stretch must lie over black pixels, and the burnt length
    // times the spacing must match the black area in the scene.
    QFETCH(QTransform, toScene);
    const LevelMap map =
        mapOf({"..####..", ".#....#.", "#..##..#", "#..##..#", ".######.", "........"});
    const int black = int(std::count(map.levels.begin(), map.levels.end(), 0));
    const double pixelArea = std::fabs(toScene.determinant());
    const double spacing = 0.01 * std::sqrt(pixelArea);
    const RecordingSink sink = engrave(map, toScene, spacing);
    const QTransform toPixel = toScene.inverted();
    for (const auto &b : sink.burns()) {
        for (double f : {0.01, 0.5, 0.99}) {
            const QPointF p = toPixel.map(b.first + (b.second - b.first) * f);
            QCOMPARE(int(map.at(int(std::floor(p.x())), int(std::floor(p.y())))), 0);
        }
    }
    const double area = sink.length(ToolStep::Burn) * spacing;
    QVERIFY2(std::fabs(area - black * pixelArea) < black * pixelArea * 0.02,
             qPrintable(QStringLiteral("%1 vs %2").arg(area).arg(black * pixelArea)));
}

void TestRasterEngrave::lineOrderAndGaps_data()
{
    // 1 mm pixels, 1 mm spacing: lines at y = 0.5, 1.5, ...
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<double>("overscan");
    QTest::addColumn<bool>("oneDirection");
    QTest::addColumn<QString>("steps");

    // White lines are skipped and do not count for the alternation.
    QTest::newRow("overscan at line ends, alternating")
        << QStringList{".##.", "....", ".##."} << 3.0 << false
        << "T-2,0.5 C1,0.5 B3,0.5 C6,0.5 T6,2.5 C3,2.5 B1,2.5 C-2,2.5";
    QTest::newRow("one direction") << QStringList{".##.", "....", ".##."} << 3.0 << true
                                   << "T-2,0.5 C1,0.5 B3,0.5 C6,0.5 T-2,2.5 C1,2.5 B3,2.5 C6,2.5";
    QTest::newRow("equal pixels make one run, runs alternate")
        << QStringList{"###", "###", "#.."} << 0.0 << false
        << "T0,0.5 B3,0.5 T3,1.5 B0,1.5 T0,2.5 B1,2.5";
    // A white gap longer than 5 mm plus both overscans is travelled, a shorter one coasted.
    QTest::newRow("short gap coasted")
        << QStringList{"#....#"} << 0.0 << false << "T0,0.5 B1,0.5 C5,0.5 B6,0.5";
    QTest::newRow("long gap travelled")
        << QStringList{"#......#"} << 0.0 << false << "T0,0.5 B1,0.5 T7,0.5 B8,0.5";
    QTest::newRow("overscan makes it short")
        << QStringList{"#......#"} << 1.0 << false << "T-1,0.5 C0,0.5 B1,0.5 C7,0.5 B8,0.5 C9,0.5";
    QTest::newRow("long even with overscan")
        << QStringList{"#.........#"} << 1.0 << false
        << "T-1,0.5 C0,0.5 B1,0.5 C2,0.5 T9,0.5 C10,0.5 B11,0.5 C12,0.5";
}

void TestRasterEngrave::lineOrderAndGaps()
{
    QFETCH(QStringList, rows);
    QFETCH(double, overscan);
    QFETCH(bool, oneDirection);
    QFETCH(QString, steps);
    QCOMPARE(trace(engrave(mapOf(rows), QTransform(), 1, overscan, oneDirection)), steps);
}

void TestRasterEngrave::greyRunsMergedAndScaled()
{
    // Equal neighbours merge, white is coasted over, grey levels go with the burn.
    const RecordingSink sink = engrave(mapOf({"2233.#.9"}), QTransform(), 1, 0, false, true);
    QString greys;
    for (const ToolStep &s : sink.steps)
        greys += QStringLiteral("%1%2:%3 ").arg("TBCG"[s.kind]).arg(s.at.x()).arg(s.grey);
    QCOMPARE(greys, QStringLiteral("T0:0 G2:50 G4:75 C5:0 G6:0 C7:0 G8:225 "));
}

void TestRasterEngrave::nothingToBurnAndStop()
{
    QVERIFY(engrave(mapOf({"....", "...."}), QTransform(), 0.1).steps.isEmpty());
    // A flattened bitmap has no area.
    QVERIFY(engrave(mapOf({"#"}), QTransform::fromScale(0, 1), 0.1).steps.isEmpty());

    RecordingSink sink;
    sink.stopAfter = 5;
    RasterSettings settings;
    settings.spacing = 0.5;
    engraveRaster(mapOf({"#.#", "#.#", "#.#"}), QTransform(), settings, sink);
    QVERIFY(sink.steps.size() >= 5);
    QVERIFY(sink.steps.size() < 10); // the current line is finished, no more
}

void TestRasterEngrave::binaryLevels_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<int>("level");
    for (QImage::Format f : {QImage::Format_ARGB32, QImage::Format_RGBA8888,
                             QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB888}) {
        const QByteArray name = QByteArray::number(int(f));
        QTest::newRow(name + " black") << int(f) << QColor(0, 0, 0) << 0;
        QTest::newRow(name + " grey 127") << int(f) << QColor(127, 127, 127) << 0;
        QTest::newRow(name + " grey 128") << int(f) << QColor(128, 128, 128) << 255;
        QTest::newRow(name + " weighted green") << int(f) << QColor(0, 255, 90) << 255;
        QTest::newRow(name + " weighted red") << int(f) << QColor(255, 0, 90) << 0;
        if (f != QImage::Format_RGB888)
            QTest::newRow(name + " transparent black") << int(f) << QColor(0, 0, 0, 0) << 255;
    }
    QTest::newRow("grey8 dark") << int(QImage::Format_Grayscale8) << QColor(100, 100, 100) << 0;
    QTest::newRow("grey8 light") << int(QImage::Format_Grayscale8) << QColor(200, 200, 200) << 255;
}

void TestRasterEngrave::binaryLevels()
{
    QFETCH(int, format);
    QFETCH(QColor, colour);
    QFETCH(int, level);
    QImage image(3, 2, QImage::Format(format));
    image.fill(colour);
    const LevelMap map = lumitra::binaryLevels(image);
    QCOMPARE(map.width, 3);
    QCOMPARE(map.height, 2);
    QCOMPARE(int(std::count(map.levels.begin(), map.levels.end(), level)), 6);
}

void TestRasterEngrave::levelsOfModes()
{
    QImage colour(2, 1, QImage::Format_ARGB32);
    colour.setPixel(0, 0, qRgba(200, 100, 40, 255));
    colour.setPixel(1, 0, qRgba(10, 10, 10, 0));
    const LevelMap levels = greyLevels(colour);
    QCOMPARE(int(levels.at(0, 0)), (11 * 200 + 16 * 100 + 5 * 40) / 32);
    QCOMPARE(int(levels.at(1, 0)), 255); // transparent is white

    QImage white(4, 4, QImage::Format_ARGB32);
    white.fill(Qt::white);
    QImage grey = white;
    grey.fill(QColor(60, 60, 60));
    auto count = [](const LevelMap &m, int level) {
        return int(std::count(m.levels.begin(), m.levels.end(), (unsigned char)level));
    };
    QCOMPARE(count(levelsForMode(white, ThresholdMode), 255), 16);
    QCOMPARE(count(levelsForMode(grey, ThresholdMode), 0), 16);
    QCOMPARE(count(levelsForMode(white, NegativeMode), 0), 16); // white inverts to black
    QCOMPARE(count(levelsForMode(grey, NegativeMode), 255), 16);
    QCOMPARE(count(levelsForMode(grey, GreyscaleMode), 60), 16);
    QCOMPARE(count(levelsForMode(white, OutlineMode), 255), 16); // flat: no edges
    QVERIFY(levelsForMode(grey, 5).isEmpty());
    const int dark = count(levelsForMode(grey, DitherMode), 0);
    QVERIFY(dark > 0 && dark < 16); // grey 60 dithers to mostly black with some white
}

void TestRasterEngrave::bitmapItemPlacement()
{
    // 1000 x 500 pixels at 254 DPI: 254 x 127 mm, the top-left corner at the item's place.
    QImage image(1000, 500, QImage::Format_Grayscale8);
    image.fill(0);
    Jk_tu_yuan item(image);
    item.setPos(10, -200);
    const QTransform t = pixelToScene(item, image.size());
    QCOMPARE(t.map(QPointF(0, 0)), QPointF(10, -200));
    QVERIFY(QLineF(t.map(QPointF(1000, 500)), QPointF(10 + 254, -200 + 127)).length() < 1e-9);

    item.setTransform(QTransform().rotate(90));
    const QPointF corner = pixelToScene(item, image.size()).map(QPointF(1000, 0));
    QVERIFY(QLineF(corner, QPointF(10, -200 + 254)).length() < 1e-9); // top-right pixel corner

    // The whole item burns: rotated, 254 lines of 127 mm at 1 mm spacing.
    TuCeng layer(0, true);
    layer.jianju = 1;
    RecordingSink sink;
    engraveBitmapItem(item, layer, sink);
    QCOMPARE(sink.burns().size(), 254);
    QVERIFY(std::fabs(sink.length(ToolStep::Burn) - 254 * 127) < 1e-6);
}

QTEST_MAIN(TestRasterEngrave)
#include "tst_raster_engrave.moc"
