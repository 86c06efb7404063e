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
        for (const QChar c : row) {
            if (c == QLatin1Char('#'))
                m.levels.push_back(0);
            else if (c == QLatin1Char('.'))
                m.levels.push_back(LevelMap::kWhite);
            else
                m.levels.push_back((unsigned char)(c.digitValue() * 25));
        }
    }
    return m;
}

RasterSettings raster(double spacing, double overscan = 0, bool oneDirection = false,
                      bool grey = false)
{
    RasterSettings s;
    s.spacing = spacing;
    s.overscan = overscan;
    s.oneDirection = oneDirection;
    s.greyPower = grey;
    return s;
}

// Burnt x intervals on the scan line at scene y, sorted.
QVector<QPair<double, double>> burntOnLine(const RecordingSink &sink, double y)
{
    QVector<QPair<double, double>> out;
    for (const auto &b : sink.burns()) {
        if (std::fabs(b.first.y() - y) < 1e-9)
            out.append({qMin(b.first.x(), b.second.x()), qMax(b.first.x(), b.second.x())});
    }
    std::sort(out.begin(), out.end());
    return out;
}

bool near(double a, double b)
{
    return std::fabs(a - b) < 1e-9;
}

} // namespace

class TestRasterEngrave : public QObject
{
    Q_OBJECT

private slots:
    void runsFollowPixels();
    void transformedBitmaps_data();
    void transformedBitmaps();
    void gapsCoastedOrTravelled_data();
    void gapsCoastedOrTravelled();
    void overscanAtLineEnds();
    void alternatesUnlessOneDirection_data();
    void alternatesUnlessOneDirection();
    void greyRunsMergedAndScaled();
    void allWhiteWritesNothing();
    void stopsWhenAsked();
    void binaryLevels_data();
    void binaryLevels();
    void greyLevelsOfImages();
    void modesPickTheirOutput();
    void bitmapItemPlacement();
};

void TestRasterEngrave::runsFollowPixels()
{
    // 1 mm pixels with the top-left corner at scene (10, -4).
    const LevelMap map = mapOf({"##..#", ".....", "..###", "#...#"});
    const QTransform toScene = QTransform::fromTranslate(10, -4);
    RecordingSink sink;
    engraveRaster(map, toScene, raster(0.5), sink);
    // Lines at y = -3.75, -3.25 (row 0), -2.75, -2.25 (row 1, white), ...
    const QVector<QPair<double, double>> row0 = {{10, 12}, {14, 15}};
    QCOMPARE(burntOnLine(sink, -3.75), row0);
    QCOMPARE(burntOnLine(sink, -3.25), row0);
    QVERIFY(burntOnLine(sink, -2.75).isEmpty());
    QCOMPARE(burntOnLine(sink, -1.25), (QVector<QPair<double, double>>{{12, 15}}));
    QCOMPARE(burntOnLine(sink, -0.25), (QVector<QPair<double, double>>{{10, 11}, {14, 15}}));
    QCOMPARE(sink.burns().size(), 2 + 2 + 1 + 1 + 2 + 2);
}

void TestRasterEngrave::transformedBitmaps_data()
{
    QTest::addColumn<QTransform>("toScene");
    QTest::newRow("scaled") << QTransform::fromScale(0.254, 0.254);
    QTest::newRow("rotated 90") << QTransform().rotate(90);
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
    const LevelMap map
        = mapOf({"..####..", ".#....#.", "#..##..#", "#..##..#", ".######.", "........"});
    int black = 0;
    for (unsigned char l : map.levels)
        black += l == 0;
    const double pixelArea = std::fabs(toScene.determinant());
    const double spacing = 0.01 * std::sqrt(pixelArea);
    RecordingSink sink;
    engraveRaster(map, toScene, raster(spacing), sink);
    const QTransform toPixel = toScene.inverted();
    for (const auto &b : sink.burns()) {
        for (double f : {0.01, 0.5, 0.99}) {
            const QPointF p = toPixel.map(b.first + (b.second - b.first) * f);
            QCOMPARE(int(map.at(int(std::floor(p.x())), int(std::floor(p.y())))), 0);
        }
    }
    const double area = sink.burntLength() * spacing;
    QVERIFY2(std::fabs(area - black * pixelArea) < black * pixelArea * 0.02,
             qPrintable(QStringLiteral("%1 vs %2").arg(area).arg(black * pixelArea)));
}

void TestRasterEngrave::gapsCoastedOrTravelled_data()
{
    QTest::addColumn<double>("gap");
    QTest::addColumn<double>("overscan");
    QTest::addColumn<bool>("travelled");
    QTest::newRow("short gap coasted") << 4.0 << 0.0 << false;
    QTest::newRow("long gap travelled") << 6.0 << 0.0 << true;
    QTest::newRow("overscan makes it short") << 6.0 << 1.0 << false;
    QTest::newRow("long even with overscan") << 9.0 << 1.0 << true;
}

void TestRasterEngrave::gapsCoastedOrTravelled()
{
    QFETCH(double, gap);
    QFETCH(double, overscan);
    QFETCH(bool, travelled);
    // Two black pixels of 1 mm with `gap` mm of white between them, one line.
    const int white = int(gap);
    const LevelMap map = mapOf({"#" + QString(white, QLatin1Char('.')) + "#"});
    RecordingSink sink;
    engraveRaster(map, QTransform(), raster(1, overscan), sink);
    QVector<ToolStep::Kind> kinds;
    for (const ToolStep &s : sink.steps)
        kinds.append(s.kind);
    using K = ToolStep::Kind;
    QVector<K> expected;
    if (overscan > 0)
        expected = travelled
                       ? QVector<K>{K::Travel, K::Coast, K::Burn, K::Coast,
                                    K::Travel, K::Coast, K::Burn, K::Coast}
                       : QVector<K>{K::Travel, K::Coast, K::Burn, K::Coast, K::Burn, K::Coast};
    else
        expected = travelled ? QVector<K>{K::Travel, K::Burn, K::Travel, K::Burn}
                             : QVector<K>{K::Travel, K::Burn, K::Coast, K::Burn};
    QCOMPARE(kinds, expected);
    // The second burn starts exactly where the second pixel starts.
    const auto burns = sink.burns();
    QCOMPARE(burns.size(), 2);
    QVERIFY(near(burns[1].first.x(), 1 + white));
    QVERIFY(near(burns[1].second.x(), 2 + white));
    if (travelled && overscan > 0) {
        QVERIFY(near(sink.steps[3].at.x(), 1 + overscan));         // lead-out after the first pixel
        QVERIFY(near(sink.steps[4].at.x(), 1 + white - overscan)); // lead-in before the second
    }
}

void TestRasterEngrave::overscanAtLineEnds()
{
    const LevelMap map = mapOf({".##.", "....", ".##."});
    RecordingSink sink;
    engraveRaster(map, QTransform(), raster(1, 3), sink);
    // Two lines (rows 0 and 2), each: travel, coast in, burn, coast out.
    QCOMPARE(sink.steps.size(), 8);
    QCOMPARE(sink.steps[0].at, QPointF(-2, 0.5));
    QCOMPARE(sink.steps[1].at, QPointF(1, 0.5));
    QCOMPARE(sink.steps[2].at, QPointF(3, 0.5));
    QCOMPARE(sink.steps[3].at, QPointF(6, 0.5));
    // The second line runs back.
    QCOMPARE(sink.steps[4].at, QPointF(6, 2.5));
    QCOMPARE(sink.steps[5].at, QPointF(3, 2.5));
    QCOMPARE(sink.steps[6].at, QPointF(1, 2.5));
    QCOMPARE(sink.steps[7].at, QPointF(-2, 2.5));
    QCOMPARE(sink.steps[3].kind, ToolStep::Coast);
}

void TestRasterEngrave::alternatesUnlessOneDirection_data()
{
    QTest::addColumn<bool>("oneDirection");
    QTest::newRow("alternating") << false;
    QTest::newRow("one direction") << true;
}

void TestRasterEngrave::alternatesUnlessOneDirection()
{
    QFETCH(bool, oneDirection);
    const LevelMap map = mapOf({"###", "...", "###", "###", "#.."});
    RecordingSink sink;
    engraveRaster(map, QTransform(), raster(1, 0, oneDirection), sink);
    const auto burns = sink.burns();
    QCOMPARE(burns.size(), 4); // the white row is skipped and does not count
    for (int i = 0; i < burns.size(); ++i) {
        const bool rightwards = burns[i].second.x() > burns[i].first.x();
        QCOMPARE(rightwards, oneDirection || i % 2 == 0);
    }
}

void TestRasterEngrave::greyRunsMergedAndScaled()
{
    const LevelMap map = mapOf({"2233.#.9"});
    RecordingSink sink;
    engraveRaster(map, QTransform(), raster(1, 0, false, true), sink);
    QVector<QPair<double, int>> greys;
    for (const ToolStep &s : sink.steps) {
        if (s.kind == ToolStep::Grey)
            greys.append({s.at.x(), s.grey});
    }
    const QVector<QPair<double, int>> expected = {{2, 50}, {4, 75}, {6, 0}, {8, 225}};
    QCOMPARE(greys, expected);
    // White pixels are crossed, never burnt.
    int coasts = 0;
    for (const ToolStep &s : sink.steps)
        coasts += s.kind == ToolStep::Coast;
    QCOMPARE(coasts, 2);
}

void TestRasterEngrave::allWhiteWritesNothing()
{
    RecordingSink sink;
    engraveRaster(mapOf({"....", "...."}), QTransform(), raster(0.1), sink);
    QVERIFY(sink.steps.isEmpty());
    engraveRaster(mapOf({"#"}), QTransform::fromScale(0, 1), raster(0.1), sink);
    QVERIFY(sink.steps.isEmpty()); // a flattened bitmap has no area
}

void TestRasterEngrave::stopsWhenAsked()
{
    RecordingSink sink;
    sink.stopAfter = 5;
    engraveRaster(mapOf({"#.#", "#.#", "#.#"}), QTransform(), raster(0.5), sink);
    QVERIFY(sink.steps.size() >= 5);
    QVERIFY(sink.steps.size() < 10); // the current line is finished, no more
}

void TestRasterEngrave::binaryLevels_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<int>("level");
    const QImage::Format formats[] = {QImage::Format_ARGB32, QImage::Format_RGBA8888,
                                      QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB888};
    for (QImage::Format f : formats) {
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
    for (unsigned char l : map.levels)
        QCOMPARE(int(l), level);
}

void TestRasterEngrave::greyLevelsOfImages()
{
    QImage image(2, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(200, 100, 40, 255));
    image.setPixel(1, 0, qRgba(10, 10, 10, 0));
    const LevelMap map = greyLevels(image);
    QCOMPARE(int(map.at(0, 0)), (11 * 200 + 16 * 100 + 5 * 40) / 32);
    QCOMPARE(int(map.at(1, 0)), 255);
}

void TestRasterEngrave::modesPickTheirOutput()
{
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
    const LevelMap dithered = levelsForMode(grey, DitherMode);
    const int dark = count(dithered, 0);
    QVERIFY(dark > 0 && dark < 16); // grey 60 dithers to mostly black with some white
}

void TestRasterEngrave::bitmapItemPlacement()
{
    QImage image(1000, 500, QImage::Format_Grayscale8);
    image.fill(0);
    Jk_tu_yuan item(image);
    item.setPos(10, -200);
    const QTransform t = pixelToScene(item, image.size());
    QCOMPARE(t.map(QPointF(0, 0)), QPointF(10, -200));
    QVERIFY(near(t.map(QPointF(1000, 500)).x(), 10 + 254));
    QVERIFY(near(t.map(QPointF(1000, 500)).y(), -200 + 127));

    item.setTransform(QTransform().rotate(90));
    const QTransform r = pixelToScene(item, image.size());
    const QPointF corner = r.map(QPointF(1000, 0)); // top-right pixel corner
    QVERIFY(near(corner.x(), 10));
    QVERIFY(near(corner.y(), -200 + 254));

    // The whole item burns: 254 x 127 mm at 1 mm spacing = 127 lines of 254 mm (rotated: 254 of
    // 127).
    TuCeng layer(0, true);
    layer.jianju = 1;
    RecordingSink sink;
    engraveBitmapItem(item, layer, sink);
    QCOMPARE(sink.burns().size(), 254);
    QVERIFY(std::fabs(sink.burntLength() - 254 * 127) < 1e-6);
}

QTEST_MAIN(TestRasterEngrave)
#include "tst_raster_engrave.moc"
