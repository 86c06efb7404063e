// The five image modes, checked against straightforward per-pixel versions of their
// definitions (pixel()/setPixel() on every pixel), and on the edge cases of each mode.
#include "image_modes.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QtTest>

using namespace lumitra;

namespace {

// ---- per-pixel definitions --------------------------------------------------------------

QImage refThreshold(const QImage &src)
{
    QImage img = src.convertToFormat(QImage::Format_RGBA8888);
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x) {
            const QRgb c = img.pixel(x, y);
            if (qAlpha(c) == 0)
                img.setPixel(x, y, qRgba(0, 0, 0, 0));
            else if (11 * qRed(c) + 16 * qGreen(c) + 5 * qBlue(c) < 4096)
                img.setPixel(x, y, qRgba(0, 0, 0, 255));
            else
                img.setPixel(x, y, qRgba(255, 255, 255, 255));
        }
    return img;
}

QImage refDither(const QImage &src)
{
    QImage img(src.size(), QImage::Format_RGB32);
    img.fill(QColor(Qt::yellow));
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.drawImage(0, 0, src);
    p.end();
    auto grey = [&](int x, int y) {
        const QRgb c = img.pixel(x, y);
        return (11 * qRed(c) + 16 * qGreen(c) + 5 * qBlue(c)) / 32;
    };
    auto spread = [&](int x, int y, int share) {
        if (x < 0 || y < 0 || x >= img.width() || y >= img.height())
            return;
        const int level = qBound(0, grey(x, y) + share, 255);
        img.setPixel(x, y, qRgba(level, level, level, 255));
    };
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x) {
            const QRgb c = img.pixel(x, y);
            const int g = grey(x, y);
            int v;
            if (11 * qRed(c) + 16 * qGreen(c) + 5 * qBlue(c) < 4096) {
                img.setPixel(x, y, qRgba(0, 0, 0, 255));
                v = 0;
            } else {
                img.setPixel(x, y, qRgba(255, 255, 255, 255));
                v = 255;
            }
            const int e = g - v;
            spread(x + 1, y, e * 7 / 16);
            if (x > 0)
                spread(x - 1, y + 1, e * 3 / 16);
            spread(x, y + 1, e * 5 / 16);
            spread(x + 1, y + 1, e * 1 / 16);
        }
    return img;
}

QImage refGreyscale(const QImage &src)
{
    QImage img = src;
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            if (qAlpha(img.pixel(x, y)) == 0)
                img.setPixel(x, y, qRgba(255, 255, 255, 255));
    return img.convertToFormat(QImage::Format_Grayscale8);
}

QImage refNegative(const QImage &src)
{
    QImage img = src;
    for (int x = 0; x < img.width(); ++x)
        for (int y = 0; y < img.height(); ++y) {
            const QRgb c = img.pixel(x, y);
            img.setPixel(x, y, qRgba(255 - qRed(c), 255 - qGreen(c), 255 - qBlue(c), 255));
        }
    return img;
}

// Random pixels; a third of them fully transparent, a third opaque, the rest in between
// (or all opaque).
QImage randomImage(int w, int h, QImage::Format format, quint32 seed, bool opaque = false)
{
    QRandomGenerator rng(seed);
    QImage img(w, h, QImage::Format_ARGB32);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const int pick = int(rng.bounded(3));
            int a = pick == 0 ? 0 : (pick == 1 ? 255 : int(rng.bounded(256)));
            if (opaque)
                a = 255;
            img.setPixel(x, y, qRgba(int(rng.bounded(256)), int(rng.bounded(256)),
                                     int(rng.bounded(256)), a));
        }
    return img.convertToFormat(format);
}

QImage filled(int w, int h, QRgb colour, QImage::Format format = QImage::Format_ARGB32)
{
    QImage img(w, h, format);
    img.fill(colour);
    return img;
}

int countPixels(const QImage &img, QRgb colour)
{
    int n = 0;
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            n += img.pixel(x, y) == colour;
    return n;
}

} // namespace

class TestImageModes : public QObject
{
    Q_OBJECT

private slots:
    void matchesPerPixelDefinition_data();
    void matchesPerPixelDefinition();
    void transparentImage_data();
    void transparentImage();
    void thresholdBoundary_data();
    void thresholdBoundary();
    void ditherSingleColumn_data();
    void ditherSingleColumn();
    void ditherNegativeSharesTruncate_data();
    void ditherNegativeSharesTruncate();
    void ditherTransparentIsMostlyWhite();
    void outlineOfFlatImageIsWhite_data();
    void outlineOfFlatImageIsWhite();
    void outlineFindsEdgesOfASquare();
    void dispatch_data();
    void dispatch();
    void nullImagePassesThrough();
};

void TestImageModes::matchesPerPixelDefinition_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("format");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("opaque");

    const QList<QPair<const char *, QImage::Format>> formats = {
        {"argb32", QImage::Format_ARGB32},
        {"argb32pm", QImage::Format_ARGB32_Premultiplied},
        {"rgb32", QImage::Format_RGB32},
        {"rgba8888", QImage::Format_RGBA8888},
        {"rgba8888pm", QImage::Format_RGBA8888_Premultiplied},
        {"grey8", QImage::Format_Grayscale8},
    };
    const QList<QSize> sizes = {QSize(1, 1), QSize(1, 9), QSize(9, 1), QSize(37, 23)};
    const int modes[] = {0, 1, 3, 4};
    for (int mode : modes)
        for (const auto &f : formats)
            for (const QSize &s : sizes)
                for (bool opaque : {false, true})
                    QTest::addRow("mode%d-%s-%dx%d%s", mode, f.first, s.width(), s.height(),
                                  opaque ? "-opaque" : "")
                        << mode << int(f.second) << s << opaque;
}

void TestImageModes::matchesPerPixelDefinition()
{
    QFETCH(int, mode);
    QFETCH(int, format);
    QFETCH(QSize, size);
    QFETCH(bool, opaque);
    const QImage src = randomImage(size.width(), size.height(), QImage::Format(format),
                                   quint32(mode * 1000 + format * 10 + size.width()), opaque);
    QImage expected;
    switch (mode) {
    case 0:
        expected = refThreshold(src);
        break;
    case 1:
        expected = refDither(src);
        break;
    case 3:
        expected = refGreyscale(src);
        break;
    default:
        expected = refNegative(src);
        break;
    }
    const QImage actual = applyImageMode(src, mode);
    QCOMPARE(actual.format(), expected.format());
    QCOMPARE(actual.size(), expected.size());
    QCOMPARE(actual, expected);
}

void TestImageModes::transparentImage_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QRgb>("hiddenColour");
    QTest::addColumn<QRgb>("expected");

    QTest::newRow("threshold stays transparent") << 0 << qRgba(255, 255, 255, 0) << qRgba(0, 0, 0, 0);
    QTest::newRow("greyscale becomes white") << 3 << qRgba(0, 0, 0, 0) << qRgb(255, 255, 255);
    QTest::newRow("negative of hidden white is opaque black")
        << 4 << qRgba(255, 255, 255, 0) << qRgb(0, 0, 0);
    QTest::newRow("negative of hidden black is opaque white")
        << 4 << qRgba(0, 0, 0, 0) << qRgb(255, 255, 255);
}

void TestImageModes::transparentImage()
{
    QFETCH(int, mode);
    QFETCH(QRgb, hiddenColour);
    QFETCH(QRgb, expected);
    const QImage out = applyImageMode(filled(6, 4, hiddenColour), mode);
    QCOMPARE(out.size(), QSize(6, 4));
    QCOMPARE(countPixels(out, expected), 24);
}

void TestImageModes::thresholdBoundary_data()
{
    QTest::addColumn<QRgb>("colour");
    QTest::addColumn<bool>("white");

    QTest::newRow("grey 128 (sum 4096)") << qRgb(128, 128, 128) << true;
    QTest::newRow("grey 127") << qRgb(127, 127, 127) << false;
    QTest::newRow("colour with sum exactly 4096") << qRgb(96, 160, 96) << true;
    QTest::newRow("colour with sum 4095") << qRgb(96, 160, 95) << false;
    QTest::newRow("pure green (grey 127)") << qRgb(0, 255, 0) << false;
    QTest::newRow("yellow (grey 215)") << qRgb(255, 255, 0) << true;
}

void TestImageModes::thresholdBoundary()
{
    QFETCH(QRgb, colour);
    QFETCH(bool, white);
    const QRgb want = white ? qRgb(255, 255, 255) : qRgb(0, 0, 0);
    QCOMPARE(thresholdImage(filled(1, 1, colour)).pixel(0, 0), want);
    QCOMPARE(ditherImage(filled(1, 1, colour)).pixel(0, 0), want);
}

void TestImageModes::ditherSingleColumn_data()
{
    QTest::addColumn<QList<int>>("greys");
    QTest::addColumn<QList<int>>("expected"); // 0 black, 255 white

    // 120 turns black and leaves +37 (5/16 of 120) below: 90 + 37 = 127 stays black.
    // Had the pixel below received 7/16 it would have turned white.
    QTest::newRow("only the pixel below gets 5/16") << QList<int>{120, 90} << QList<int>{0, 0};
    // 100 -> black, +31 below: 131 -> white, -124 * 5 / 16 = -38 below: 62 -> black.
    QTest::newRow("alternating") << QList<int>{100, 100, 100} << QList<int>{0, 255, 0};
    QTest::newRow("clamped at white") << QList<int>{250, 255, 0} << QList<int>{255, 255, 0};
}

void TestImageModes::ditherSingleColumn()
{
    QFETCH(QList<int>, greys);
    QFETCH(QList<int>, expected);
    QImage img(1, greys.size(), QImage::Format_RGB32);
    for (int y = 0; y < greys.size(); ++y)
        img.setPixel(0, y, qRgb(greys[y], greys[y], greys[y]));
    const QImage out = ditherImage(img);
    for (int y = 0; y < greys.size(); ++y)
        QCOMPARE(qRed(out.pixel(0, y)), expected[y]);
}

void TestImageModes::ditherNegativeSharesTruncate_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("neighbour to the right") << QSize(2, 1);
    QTest::newRow("neighbour below") << QSize(1, 2);
}

void TestImageModes::ditherNegativeSharesTruncate()
{
    // Grey 254 turns white with error -1; every share of -1 truncates to 0, so the 128
    // next to it stays at 128 and turns white (a floor division would make it 127, black).
    QFETCH(QSize, size);
    QImage img(size, QImage::Format_RGB32);
    img.fill(qRgb(128, 128, 128));
    img.setPixel(0, 0, qRgb(254, 254, 254));
    const QImage out = ditherImage(img);
    QCOMPARE(countPixels(out, qRgb(255, 255, 255)), 2);
}

void TestImageModes::ditherTransparentIsMostlyWhite()
{
    // The yellow background has grey 215: about 215/255 of the pixels come out white.
    const QImage out = ditherImage(filled(64, 64, qRgba(0, 0, 0, 0)));
    QCOMPARE(out.format(), QImage::Format_RGB32);
    const int white = countPixels(out, qRgb(255, 255, 255));
    const int black = countPixels(out, qRgb(0, 0, 0));
    QCOMPARE(white + black, 64 * 64);
    const double share = double(white) / (64 * 64);
    QVERIFY2(qAbs(share - 215.0 / 255.0) < 0.02, qPrintable(QString::number(share)));
    QCOMPARE(out.pixel(0, 0), qRgb(255, 255, 255));
}

void TestImageModes::outlineOfFlatImageIsWhite_data()
{
    QTest::addColumn<QRgb>("colour");
    QTest::addColumn<int>("format");
    QTest::newRow("black argb") << qRgb(0, 0, 0) << int(QImage::Format_ARGB32);
    QTest::newRow("mid grey rgb32") << qRgb(120, 120, 120) << int(QImage::Format_RGB32);
    QTest::newRow("red rgba8888") << qRgb(200, 10, 10) << int(QImage::Format_RGBA8888);
    QTest::newRow("grey8") << qRgb(80, 80, 80) << int(QImage::Format_Grayscale8);
    QTest::newRow("fully transparent") << qRgba(255, 255, 255, 0) << int(QImage::Format_ARGB32);
}

void TestImageModes::outlineOfFlatImageIsWhite()
{
    QFETCH(QRgb, colour);
    QFETCH(int, format);
    const QImage out = outlineImage(filled(33, 17, colour, QImage::Format(format)));
    QCOMPARE(out.format(), QImage::Format_Grayscale8);
    QCOMPARE(out.size(), QSize(33, 17));
    QCOMPARE(countPixels(out, qRgb(255, 255, 255)), 33 * 17);
}

void TestImageModes::outlineFindsEdgesOfASquare()
{
    QImage img = filled(40, 40, qRgb(255, 255, 255), QImage::Format_RGB32);
    QPainter(&img).fillRect(10, 10, 20, 20, Qt::black);
    const QImage out = outlineImage(img);
    int edgePixels = 0;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x) {
            const int v = qRed(out.pixel(x, y));
            QVERIFY(v == 0 || v == 255);
            if (v == 0) {
                ++edgePixels;
                // Every edge pixel hugs the square's border.
                const bool nearX = (x >= 8 && x <= 11) || (x >= 28 && x <= 31);
                const bool nearY = (y >= 8 && y <= 11) || (y >= 28 && y <= 31);
                QVERIFY2(nearX || nearY, qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
            }
        }
    QVERIFY(edgePixels >= 4 * 18); // all four sides are found
    QCOMPARE(qRed(out.pixel(20, 20)), 255); // the inside is not an edge
}

void TestImageModes::dispatch_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("format");
    QTest::newRow("0 threshold") << 0 << int(QImage::Format_RGBA8888);
    QTest::newRow("1 dither") << 1 << int(QImage::Format_RGB32);
    QTest::newRow("2 outline") << 2 << int(QImage::Format_Grayscale8);
    QTest::newRow("3 greyscale") << 3 << int(QImage::Format_Grayscale8);
    QTest::newRow("4 negative keeps argb32") << 4 << int(QImage::Format_ARGB32);
    QTest::newRow("-1 unchanged") << -1 << int(QImage::Format_ARGB32);
    QTest::newRow("5 unchanged") << 5 << int(QImage::Format_ARGB32);
}

void TestImageModes::dispatch()
{
    QFETCH(int, mode);
    QFETCH(int, format);
    const QImage src = randomImage(12, 7, QImage::Format_ARGB32, 7);
    const QImage out = applyImageMode(src, mode);
    QCOMPARE(int(out.format()), format);
    QCOMPARE(out.size(), src.size());
    if (mode < 0 || mode > 4) {
        QCOMPARE(out, src);
        QVERIFY(out.constBits() != src.constBits()); // a copy, not shared
    }
}

void TestImageModes::nullImagePassesThrough()
{
    for (int mode = -1; mode <= 5; ++mode)
        QVERIFY(applyImageMode(QImage(), mode).isNull());
}

QTEST_GUILESS_MAIN(TestImageModes)
#include "tst_image_modes.moc"
