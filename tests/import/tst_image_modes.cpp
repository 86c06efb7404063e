// The five image modes against straightforward per-pixel versions of their definitions
// (pixel()/setPixel() on every pixel) and on the edge cases of each mode; then tracing:
// which pixels count, bit packing at word boundaries, placement, and the outlines' shape.
#include "bitmap_trace.h"
#include "image_modes.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QtTest>

using namespace lumitra;

namespace {

int sum32(QRgb c)
{
    return 11 * qRed(c) + 16 * qGreen(c) + 5 * qBlue(c);
}

QImage refThreshold(const QImage &src)
{
    QImage img = src.convertToFormat(QImage::Format_RGBA8888);
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x) {
            const QRgb c = img.pixel(x, y);
            img.setPixel(x, y,
                         qAlpha(c) == 0 ? qRgba(0, 0, 0, 0)
                                        : (sum32(c) < 4096 ? qRgb(0, 0, 0) : qRgb(255, 255, 255)));
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
    auto spread = [&](int x, int y, int share) {
        if (x < 0 || y < 0 || x >= img.width() || y >= img.height())
            return;
        const int level = qBound(0, sum32(img.pixel(x, y)) / 32 + share, 255);
        img.setPixel(x, y, qRgb(level, level, level));
    };
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x) {
            const int s = sum32(img.pixel(x, y));
            const int v = s < 4096 ? 0 : 255;
            img.setPixel(x, y, qRgb(v, v, v));
            const int e = s / 32 - v; // C++ division truncates towards zero, as the shares must
            spread(x + 1, y, e * 7 / 16);
            if (x > 0)
                spread(x - 1, y + 1, e * 3 / 16);
            spread(x, y + 1, e * 5 / 16);
            spread(x + 1, y + 1, e * 1 / 16);
        }
    return img;
}

QImage refGreyscale(QImage img)
{
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            if (qAlpha(img.pixel(x, y)) == 0)
                img.setPixel(x, y, qRgb(255, 255, 255));
    return img.convertToFormat(QImage::Format_Grayscale8);
}

QImage refNegative(QImage img)
{
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x) {
            const QRgb c = img.pixel(x, y);
            img.setPixel(x, y, qRgb(255 - qRed(c), 255 - qGreen(c), 255 - qBlue(c)));
        }
    return img;
}

// Random pixels: a third fully transparent, a third opaque, the rest in between (or all opaque).
QImage randomImage(QSize size, QImage::Format format, quint32 seed, bool opaque)
{
    QRandomGenerator rng(seed);
    QImage img(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const int pick = int(rng.bounded(3));
            const int a = opaque || pick == 1 ? 255 : (pick == 0 ? 0 : int(rng.bounded(256)));
            img.setPixel(
                x, y,
                qRgba(int(rng.bounded(256)), int(rng.bounded(256)), int(rng.bounded(256)), a));
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

QString describe(const QRectF &r)
{
    return QStringLiteral("(%1,%2 %3x%4)").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
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
    void ditherSmallImages_data();
    void ditherSmallImages();
    void outline();
    void otherModesAndNullImages();
    void traceForeground_data();
    void traceForeground();
    void singlePixelAtWordBoundaries_data();
    void singlePixelAtWordBoundaries();
    void squareIsPlacedByScaleAndOffset_data();
    void squareIsPlacedByScaleAndOffset();
    void outlinesAreClosedWithHoles();
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
        {"grey8", QImage::Format_Grayscale8}};
    for (int mode : {0, 1, 3, 4})
        for (const auto &f : formats)
            for (const QSize &s : {QSize(1, 9), QSize(9, 1), QSize(37, 23)})
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
    const QImage src = randomImage(size, QImage::Format(format),
                                   quint32(mode * 1000 + format * 10 + size.width()), opaque);
    const QImage expected = mode == 0   ? refThreshold(src)
                            : mode == 1 ? refDither(src)
                            : mode == 3 ? refGreyscale(src)
                                        : refNegative(src);
    const QImage actual = applyImageMode(src, mode);
    QCOMPARE(actual.format(), expected.format());
    QCOMPARE(actual, expected);
}

void TestImageModes::transparentImage_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QRgb>("hiddenColour");
    QTest::addColumn<QRgb>("expected");
    QTest::addColumn<double>("share"); // of the pixels that must have the expected colour

    QTest::newRow("threshold stays transparent")
        << 0 << qRgba(255, 255, 255, 0) << qRgba(0, 0, 0, 0) << 1.0;
    // Dithered over yellow (grey 215): about 215/255 of the pixels come out white.
    QTest::newRow("dither of the yellow background")
        << 1 << qRgba(0, 0, 0, 0) << qRgb(255, 255, 255) << 215.0 / 255.0;
    QTest::newRow("outline finds no edge")
        << 2 << qRgba(255, 255, 255, 0) << qRgb(255, 255, 255) << 1.0;
    QTest::newRow("greyscale becomes white")
        << 3 << qRgba(0, 0, 0, 0) << qRgb(255, 255, 255) << 1.0;
    QTest::newRow("negative of hidden white is black")
        << 4 << qRgba(255, 255, 255, 0) << qRgb(0, 0, 0) << 1.0;
    QTest::newRow("negative of hidden black is white")
        << 4 << qRgba(0, 0, 0, 0) << qRgb(255, 255, 255) << 1.0;
}

void TestImageModes::transparentImage()
{
    QFETCH(int, mode);
    QFETCH(QRgb, hiddenColour);
    QFETCH(QRgb, expected);
    QFETCH(double, share);
    const QImage out = applyImageMode(filled(64, 64, hiddenColour), mode);
    QCOMPARE(out.size(), QSize(64, 64));
    const int count = countPixels(out, expected);
    if (share == 1.0)
        QCOMPARE(count, 64 * 64);
    QVERIFY2(qAbs(count / (64.0 * 64.0) - share) < 0.02, qPrintable(QString::number(count)));
    if (mode == 1) {
        QCOMPARE(countPixels(out, qRgb(0, 0, 0)) + countPixels(out, expected), 64 * 64);
        QCOMPARE(out.pixel(0, 0), expected);
    }
}

void TestImageModes::thresholdBoundary_data()
{
    QTest::addColumn<QRgb>("colour");
    QTest::addColumn<bool>("white");
    QTest::newRow("grey 128 (sum 4096)") << qRgb(128, 128, 128) << true;
    QTest::newRow("grey 127") << qRgb(127, 127, 127) << false;
    QTest::newRow("colour with sum exactly 4096") << qRgb(96, 160, 96) << true;
    QTest::newRow("colour with sum 4095") << qRgb(96, 160, 95) << false;
}

void TestImageModes::thresholdBoundary()
{
    QFETCH(QRgb, colour);
    QFETCH(bool, white);
    const QRgb want = white ? qRgb(255, 255, 255) : qRgb(0, 0, 0);
    QCOMPARE(thresholdImage(filled(1, 1, colour)).pixel(0, 0), want);
    QCOMPARE(ditherImage(filled(1, 1, colour)).pixel(0, 0), want);
}

void TestImageModes::ditherSmallImages_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QList<int>>("greys");    // row by row
    QTest::addColumn<QList<int>>("expected"); // 0 black, 255 white

    // 120 turns black and leaves +37 (5/16 of 120) below: 90 + 37 = 127 stays black.
    // Had the pixel below received 7/16 it would have turned white.
    QTest::newRow("one column: only 5/16 goes below")
        << 1 << QList<int>{120, 90} << QList<int>{0, 0};
    // 100 -> black, +31 below: 131 -> white, -124 * 5 / 16 = -38 below: 62 -> black.
    QTest::newRow("one column alternating")
        << 1 << QList<int>{100, 100, 100} << QList<int>{0, 255, 0};
    QTest::newRow("one column clamped at white")
        << 1 << QList<int>{250, 255, 0} << QList<int>{255, 255, 0};
    // Grey 254 turns white with error -1; every share of -1 truncates to 0, so the 128 next
    // to it stays 128 and turns white (a floor division would make it 127, black).
    QTest::newRow("negative share to the right")
        << 2 << QList<int>{254, 128} << QList<int>{255, 255};
    QTest::newRow("negative share below") << 1 << QList<int>{254, 128} << QList<int>{255, 255};
}

void TestImageModes::ditherSmallImages()
{
    QFETCH(int, width);
    QFETCH(QList<int>, greys);
    QFETCH(QList<int>, expected);
    QImage img(width, greys.size() / width, QImage::Format_RGB32);
    for (int i = 0; i < greys.size(); ++i)
        img.setPixel(i % width, i / width, qRgb(greys[i], greys[i], greys[i]));
    const QImage out = ditherImage(img);
    for (int i = 0; i < greys.size(); ++i)
        QCOMPARE(qRed(out.pixel(i % width, i / width)), expected[i]);
}

void TestImageModes::outline()
{
    QImage img = filled(40, 40, qRgb(255, 255, 255), QImage::Format_RGB32);
    QPainter(&img).fillRect(10, 10, 20, 20, Qt::black);
    const QImage out = outlineImage(img);
    QCOMPARE(out.format(), QImage::Format_Grayscale8);
    int edgePixels = 0;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x) {
            const int v = qRed(out.pixel(x, y));
            QVERIFY(v == 0 || v == 255);
            if (v == 0) {
                ++edgePixels; // every edge pixel hugs the square's border
                const bool nearX = (x >= 8 && x <= 11) || (x >= 28 && x <= 31);
                const bool nearY = (y >= 8 && y <= 11) || (y >= 28 && y <= 31);
                QVERIFY2(nearX || nearY, qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
            }
        }
    QVERIFY(edgePixels >= 4 * 18); // all four sides are found
    QCOMPARE(qRed(out.pixel(20, 20)), 255);
}

void TestImageModes::otherModesAndNullImages()
{
    const QImage src = randomImage(QSize(12, 7), QImage::Format_ARGB32, 7, false);
    for (int mode : {-1, 5}) {
        const QImage out = applyImageMode(src, mode);
        QCOMPARE(out, src);
        QVERIFY(out.constBits() != src.constBits()); // a copy, not shared
    }
    for (int mode = -1; mode <= 5; ++mode)
        QVERIFY(applyImageMode(QImage(), mode).isNull());
}

void TestImageModes::traceForeground_data()
{
    QTest::addColumn<QImage>("image");
    QTest::addColumn<bool>("traced");
    auto patch = [](QRgb colour) {
        QImage img = filled(12, 12, qRgb(255, 255, 255));
        for (int y = 4; y < 8; ++y)
            for (int x = 4; x < 8; ++x)
                img.setPixel(x, y, colour);
        return img;
    };
    QTest::newRow("opaque black") << patch(qRgba(0, 0, 0, 255)) << true;
    QTest::newRow("opaque red") << patch(qRgba(255, 0, 0, 255)) << true;
    QTest::newRow("almost white 255,255,254") << patch(qRgba(255, 255, 254, 255)) << true;
    QTest::newRow("pure white") << patch(qRgba(255, 255, 255, 255)) << false;
    QTest::newRow("black alpha 254") << patch(qRgba(0, 0, 0, 254)) << false;
    QTest::newRow("black alpha 1") << patch(qRgba(0, 0, 0, 1)) << false;
    QTest::newRow("fully transparent black") << filled(30, 20, qRgba(0, 0, 0, 0)) << false;
    QTest::newRow("white 8-bit grey")
        << filled(17, 9, qRgb(255, 255, 255), QImage::Format_Grayscale8) << false;
}

void TestImageModes::traceForeground()
{
    QFETCH(QImage, image);
    QFETCH(bool, traced);
    const auto path = traceBitmap(image, 0.254, QPointF(3, 4));
    QVERIFY(path.has_value());
    QCOMPARE(!path->isEmpty(), traced);
}

void TestImageModes::singlePixelAtWordBoundaries_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    for (int x : {0, 31, 32, 63, 64, 128})
        QTest::addRow("x=%d", x) << x << 3;
    QTest::newRow("last row") << 70 << 6;
}

void TestImageModes::singlePixelAtWordBoundaries()
{
    // A single black pixel is kept (no speckle is dropped) and traced inside its own square.
    QFETCH(int, x);
    QFETCH(int, y);
    QImage img = filled(129, 7, qRgb(255, 255, 255));
    img.setPixel(x, y, qRgb(0, 0, 0));
    const QPointF offset(10.0, -20.0);
    const double s = 0.254;
    const QPainterPath path = traceBitmap(img, s, offset).value_or(QPainterPath());
    QVERIFY(!path.isEmpty());
    const QRectF box = path.boundingRect();
    const QRectF pixel(offset.x() + x * s, offset.y() + y * s, s, s);
    QVERIFY2(pixel.adjusted(-1e-9, -1e-9, 1e-9, 1e-9).contains(box),
             qPrintable(describe(box) + " outside " + describe(pixel)));
    QVERIFY(box.width() > s / 2 && box.height() > s / 2);
    QVERIFY(path.contains(pixel.center()));
}

void TestImageModes::squareIsPlacedByScaleAndOffset_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QPointF>("offset");
    QTest::newRow("pixels") << 1.0 << QPointF(0, 0);
    QTest::newRow("bitmap millimetres") << 0.254 << QPointF(100.0, -250.0);
}

void TestImageModes::squareIsPlacedByScaleAndOffset()
{
    QFETCH(double, scale);
    QFETCH(QPointF, offset);
    QImage img = filled(40, 30, qRgb(255, 255, 255));
    QPainter(&img).fillRect(5, 8, 20, 12, Qt::black);
    const QRectF box = traceBitmap(img, scale, offset).value_or(QPainterPath()).boundingRect();
    const QRectF expected(offset.x() + 5 * scale, offset.y() + 8 * scale, 20 * scale, 12 * scale);
    const double tol = 1e-9 + scale * 1e-6;
    QVERIFY2(qAbs(box.left() - expected.left()) <= tol && qAbs(box.top() - expected.top()) <= tol
                 && qAbs(box.right() - expected.right()) <= tol
                 && qAbs(box.bottom() - expected.bottom()) <= tol,
             qPrintable(describe(box)));
}

void TestImageModes::outlinesAreClosedWithHoles()
{
    // A ring with a square hole and an ellipse: three closed subpaths, the ellipse with curves.
    QImage img = filled(80, 40, qRgb(255, 255, 255));
    {
        QPainter p(&img);
        p.fillRect(5, 5, 30, 30, Qt::black);
        p.fillRect(15, 15, 10, 10, Qt::white);
        p.setBrush(Qt::black);
        p.setPen(Qt::NoPen);
        p.drawEllipse(45, 5, 20, 25);
    }
    QPainterPath path = traceBitmap(img, 1.0, QPointF()).value_or(QPainterPath());
    const auto polygons = path.toSubpathPolygons();
    QCOMPARE(polygons.size(), 3);
    for (const QPolygonF &poly : polygons) {
        QVERIFY(poly.size() > 3);
        QVERIFY(QLineF(poly.first(), poly.last()).length() < 1e-9);
    }
    bool hasCurve = false;
    for (int i = 0; i < path.elementCount(); ++i)
        hasCurve |= path.elementAt(i).type == QPainterPath::CurveToElement;
    QVERIFY(hasCurve);
    path.setFillRule(Qt::OddEvenFill);
    QVERIFY(path.contains(QPointF(8, 8)));    // on the ring
    QVERIFY(!path.contains(QPointF(20, 20))); // in the hole
    QVERIFY(!path.contains(QPointF(2, 2)));   // outside
    QVERIFY(path.contains(QPointF(55, 17)));  // in the ellipse
}

QTEST_GUILESS_MAIN(TestImageModes)
#include "tst_image_modes.moc"
