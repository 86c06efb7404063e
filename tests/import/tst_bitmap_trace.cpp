// Tracing: which pixels count as foreground, the bit packing at word boundaries, the
// placement by scale and offset, and the shape of the outlines.
#include "bitmap_trace.h"

#include <QPainter>
#include <QtTest>

using namespace lumitra;

namespace {

QImage whiteImage(int w, int h)
{
    QImage img(w, h, QImage::Format_ARGB32);
    img.fill(qRgb(255, 255, 255));
    return img;
}

QPainterPath traced(const QImage &img, double scale = 1.0, QPointF offset = QPointF())
{
    const auto path = traceBitmap(img, scale, offset);
    if (!path)
        return QPainterPath();
    return *path;
}

bool near(const QRectF &a, const QRectF &b, double tol)
{
    return qAbs(a.left() - b.left()) <= tol && qAbs(a.top() - b.top()) <= tol
        && qAbs(a.right() - b.right()) <= tol && qAbs(a.bottom() - b.bottom()) <= tol;
}

QString describe(const QRectF &r)
{
    return QStringLiteral("(%1,%2 %3x%4)").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
}

} // namespace

class TestBitmapTrace : public QObject
{
    Q_OBJECT

private slots:
    void nothingToTrace_data();
    void nothingToTrace();
    void foregroundRule_data();
    void foregroundRule();
    void singlePixelAtWordBoundaries_data();
    void singlePixelAtWordBoundaries();
    void squareIsPlacedByScaleAndOffset_data();
    void squareIsPlacedByScaleAndOffset();
    void holesAreSubpaths();
    void eachCurveIsClosed();
};

void TestBitmapTrace::nothingToTrace_data()
{
    QTest::addColumn<QImage>("image");
    QTest::newRow("all white") << whiteImage(30, 20);
    QImage transparent(30, 20, QImage::Format_ARGB32);
    transparent.fill(qRgba(0, 0, 0, 0));
    QTest::newRow("fully transparent black") << transparent;
    QImage grey8(17, 9, QImage::Format_Grayscale8);
    grey8.fill(255);
    QTest::newRow("white 8-bit grey") << grey8;
    QImage semi(30, 20, QImage::Format_ARGB32);
    semi.fill(qRgba(0, 0, 0, 254));
    QTest::newRow("black at alpha 254") << semi;
}

void TestBitmapTrace::nothingToTrace()
{
    QFETCH(QImage, image);
    const auto path = traceBitmap(image, 0.254, QPointF(3, 4));
    QVERIFY(path.has_value());
    QVERIFY(path->isEmpty());
}

void TestBitmapTrace::foregroundRule_data()
{
    QTest::addColumn<QRgb>("colour");
    QTest::addColumn<bool>("traced");
    QTest::newRow("opaque black") << qRgba(0, 0, 0, 255) << true;
    QTest::newRow("opaque red") << qRgba(255, 0, 0, 255) << true;
    QTest::newRow("almost white 255,255,254") << qRgba(255, 255, 254, 255) << true;
    QTest::newRow("pure white") << qRgba(255, 255, 255, 255) << false;
    QTest::newRow("black alpha 254") << qRgba(0, 0, 0, 254) << false;
    QTest::newRow("black alpha 1") << qRgba(0, 0, 0, 1) << false;
}

void TestBitmapTrace::foregroundRule()
{
    QFETCH(QRgb, colour);
    QFETCH(bool, traced);
    QImage img = whiteImage(12, 12);
    for (int y = 4; y < 8; ++y)
        for (int x = 4; x < 8; ++x)
            img.setPixel(x, y, colour);
    QCOMPARE(!::traced(img).isEmpty(), traced);
}

void TestBitmapTrace::singlePixelAtWordBoundaries_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    for (int x : {0, 1, 31, 32, 63, 64, 65, 127, 128})
        QTest::addRow("x=%d", x) << x << 3;
    QTest::newRow("last row") << 70 << 6;
}

void TestBitmapTrace::singlePixelAtWordBoundaries()
{
    // A single black pixel is kept (no speckle is dropped) and traced inside its own square.
    QFETCH(int, x);
    QFETCH(int, y);
    QImage img = whiteImage(129, 7);
    img.setPixel(x, y, qRgb(0, 0, 0));
    const QPointF offset(10.0, -20.0);
    const double s = 0.254;
    const QPainterPath path = traced(img, s, offset);
    QVERIFY(!path.isEmpty());
    const QRectF box = path.boundingRect();
    const QRectF pixel(offset.x() + x * s, offset.y() + y * s, s, s);
    QVERIFY2(pixel.adjusted(-1e-9, -1e-9, 1e-9, 1e-9).contains(box),
             qPrintable(describe(box) + " outside " + describe(pixel)));
    QVERIFY(box.width() > s / 2 && box.height() > s / 2);
    QVERIFY(path.contains(pixel.center()));
}

void TestBitmapTrace::squareIsPlacedByScaleAndOffset_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QPointF>("offset");
    QTest::newRow("pixels") << 1.0 << QPointF(0, 0);
    QTest::newRow("bitmap millimetres") << 0.254 << QPointF(100.0, -250.0);
    QTest::newRow("enlarged") << 2.5 << QPointF(-7.0, 3.0);
}

void TestBitmapTrace::squareIsPlacedByScaleAndOffset()
{
    QFETCH(double, scale);
    QFETCH(QPointF, offset);
    QImage img = whiteImage(40, 30);
    QPainter(&img).fillRect(5, 8, 20, 12, Qt::black);
    const QPainterPath path = traced(img, scale, offset);
    const QRectF expected(offset.x() + 5 * scale, offset.y() + 8 * scale, 20 * scale, 12 * scale);
    QVERIFY2(near(path.boundingRect(), expected, 1e-9 + scale * 1e-6),
             qPrintable(describe(path.boundingRect())));
}

void TestBitmapTrace::holesAreSubpaths()
{
    QImage img = whiteImage(40, 40);
    {
        QPainter p(&img);
        p.fillRect(5, 5, 30, 30, Qt::black);
        p.fillRect(15, 15, 10, 10, Qt::white);
    }
    QPainterPath path = traced(img);
    QCOMPARE(path.toSubpathPolygons().size(), 2);
    path.setFillRule(Qt::OddEvenFill);
    QVERIFY(path.contains(QPointF(8, 8)));    // on the ring
    QVERIFY(!path.contains(QPointF(20, 20))); // in the hole
    QVERIFY(!path.contains(QPointF(2, 2)));   // outside
}

void TestBitmapTrace::eachCurveIsClosed()
{
    QImage img = whiteImage(60, 40);
    {
        QPainter p(&img);
        p.setBrush(Qt::black);
        p.setPen(Qt::NoPen);
        p.drawEllipse(5, 5, 20, 25);
        p.drawRect(35, 10, 15, 15);
    }
    const QPainterPath path = traced(img);
    const auto polygons = path.toSubpathPolygons();
    QCOMPARE(polygons.size(), 2);
    for (const QPolygonF &poly : polygons) {
        QVERIFY(poly.size() > 3);
        QVERIFY(QLineF(poly.first(), poly.last()).length() < 1e-9);
    }
    // The ellipse keeps curves, the square keeps its corners.
    bool hasCurve = false;
    for (int i = 0; i < path.elementCount(); ++i)
        hasCurve |= path.elementAt(i).type == QPainterPath::CurveToElement;
    QVERIFY(hasCurve);
}

QTEST_GUILESS_MAIN(TestBitmapTrace)
#include "tst_bitmap_trace.moc"
