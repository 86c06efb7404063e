#include "png_bytes.h"
#include "project_stream.h"

#include <QBuffer>
#include <QDataStream>
#include <QImage>
#include <QPainterPath>
#include <QTransform>
#include <QtTest>
#include <limits>

Q_DECLARE_METATYPE(QPainterPath)

// The careful readers for paths, images and transforms inside a project
// stream: valid data reads exactly as the library reads it; lies are refused.
class TestProjectStream : public QObject
{
    Q_OBJECT

private slots:
    void validPathsReadLikeTheLibrary_data();
    void validPathsReadLikeTheLibrary();
    void corruptPathsAreRefused_data();
    void corruptPathsAreRefused();
    void validImagesReadLikeTheLibrary_data();
    void validImagesReadLikeTheLibrary();
    void corruptImagesAreRefused_data();
    void corruptImagesAreRefused();
    void transforms_data();
    void transforms();

private:
    static QByteArray stream(const std::function<void(QDataStream &)> &write);
    static void prepare(QDataStream &s);
};

void TestProjectStream::prepare(QDataStream &s)
{
    s.setByteOrder(QDataStream::LittleEndian);
    s.setVersion(19);
}

QByteArray TestProjectStream::stream(const std::function<void(QDataStream &)> &write)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QDataStream out(&buffer);
    prepare(out);
    write(out);
    return bytes;
}

void TestProjectStream::validPathsReadLikeTheLibrary_data()
{
    QTest::addColumn<QPainterPath>("path");
    QTest::newRow("empty") << QPainterPath();
    QTest::newRow("lone move") << QPainterPath(QPointF(3, 4));
    QPainterPath rect;
    rect.addRect(1, 2, 30, 0); // zero height: repeated points
    QTest::newRow("flat rectangle") << rect;
    QPainterPath ellipse;
    ellipse.addEllipse(0, 0, 50, 20);
    QTest::newRow("ellipse curves") << ellipse;
    QPainterPath several;
    several.addRect(0, 0, 10, 10);
    several.moveTo(20, 20);
    several.lineTo(30, 25);
    several.cubicTo(1, 2, 3, 4, 5, 6);
    several.closeSubpath();
    several.lineTo(-4, -4);
    several.setFillRule(Qt::WindingFill);
    QTest::newRow("several subpaths, winding") << several;
}

void TestProjectStream::validPathsReadLikeTheLibrary()
{
    QFETCH(QPainterPath, path);
    const QByteArray bytes = stream([&](QDataStream &out) { out << path << qint32(77); });
    QDataStream lib(bytes);
    prepare(lib);
    QPainterPath expected;
    lib >> expected;

    QDataStream in(bytes);
    prepare(in);
    QPainterPath got;
    QVERIFY(readPathChecked(in, got));
    QCOMPARE(got, expected);
    QCOMPARE(got.fillRule(), expected.fillRule());
    QCOMPARE(got.elementCount(), expected.elementCount());
    qint32 after = 0;
    in >> after;
    QCOMPARE(after, 77); // consumed exactly the path
}

void TestProjectStream::corruptPathsAreRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto elements = [](QList<std::tuple<int, double, double>> list, qint32 start, qint32 rule,
                             int count = INT_MIN) {
        return stream([&](QDataStream &out) {
            out << qint32(count == INT_MIN ? list.size() : count);
            for (const auto &[type, x, y] : list)
                out << qint32(type) << x << y;
            out << start << rule;
        });
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    QTest::newRow("starts with a line") << elements({{1, 0, 0}, {1, 1, 1}}, 0, 0);
    QTest::newRow("curve without control points") << elements({{0, 0, 0}, {2, 1, 1}}, 0, 0);
    QTest::newRow("curve with one control point")
        << elements({{0, 0, 0}, {2, 1, 1}, {3, 2, 2}, {1, 3, 3}}, 0, 0);
    QTest::newRow("control point alone") << elements({{0, 0, 0}, {3, 1, 1}}, 0, 0);
    QTest::newRow("unknown element type") << elements({{0, 0, 0}, {7, 1, 1}}, 0, 0);
    QTest::newRow("NaN coordinate") << elements({{0, 0, 0}, {1, nan, 1}}, 0, 0);
    QTest::newRow("infinite coordinate") << elements({{0, 0, 0}, {1, 1, inf}}, 0, 0);
    QTest::newRow("subpath start past the end") << elements({{0, 0, 0}, {1, 1, 1}}, 5, 0);
    QTest::newRow("subpath start on a line") << elements({{0, 0, 0}, {1, 1, 1}}, 1, 0);
    QTest::newRow("unknown fill rule") << elements({{0, 0, 0}, {1, 1, 1}}, 0, 3);
    QTest::newRow("more elements claimed than sent")
        << elements({{0, 0, 0}, {1, 1, 1}}, 0, 0, 1000);
    QTest::newRow("two billion elements") << elements({{0, 0, 0}}, 0, 0, 0x7fffffff);
    QTest::newRow("negative count") << elements({}, 0, 0, -3);
    QTest::newRow("cut in the count") << QByteArray("\x02\x00", 2);
}

void TestProjectStream::corruptPathsAreRefused()
{
    QFETCH(QByteArray, bytes);
    QDataStream in(bytes);
    prepare(in);
    QPainterPath path;
    QVERIFY(!readPathChecked(in, path));
    QVERIFY(in.status() != QDataStream::Ok);
}

void TestProjectStream::validImagesReadLikeTheLibrary_data()
{
    QTest::addColumn<QImage>("image");
    QTest::newRow("null") << QImage();
    QImage argb(7, 5, QImage::Format_ARGB32);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 7; ++x)
            argb.setPixel(x, y, qRgba(x * 30, y * 50, 9, x * 36));
    QTest::newRow("argb") << argb;
    QImage grey(3, 9, QImage::Format_Grayscale8);
    grey.fill(130);
    QTest::newRow("grey") << grey;
    QImage mono(17, 3, QImage::Format_Mono);
    mono.fill(1);
    QTest::newRow("mono") << mono;
}

void TestProjectStream::validImagesReadLikeTheLibrary()
{
    QFETCH(QImage, image);
    const QByteArray bytes = stream([&](QDataStream &out) { out << image << qint32(-9); });
    QDataStream lib(bytes);
    prepare(lib);
    QImage expected;
    lib >> expected;

    QDataStream in(bytes);
    prepare(in);
    QImage got;
    QVERIFY(readImageChecked(in, got));
    QCOMPARE(got, expected);
    QCOMPARE(got.isNull(), image.isNull());
    if (!image.isNull())
        QCOMPARE(got.convertToFormat(QImage::Format_ARGB32),
                 image.convertToFormat(QImage::Format_ARGB32));
    qint32 after = 0;
    in >> after;
    QCOMPARE(after, -9);
}

void TestProjectStream::corruptImagesAreRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto withMarker = [](const QByteArray &png, qint32 marker = 1) {
        return stream([&](QDataStream &out) {
            out << marker;
            out.writeRawData(png.constData(), png.size());
        });
    };
    QByteArray valid;
    {
        QBuffer b(&valid);
        b.open(QIODevice::WriteOnly);
        QImage img(20, 20, QImage::Format_RGB32);
        img.fill(Qt::red);
        img.save(&b, "PNG");
    }
    QTest::newRow("unknown marker") << withMarker(valid, 2);
    QTest::newRow("not a png") << withMarker(QByteArray("GIF89a....."));
    QTest::newRow("cut in the signature") << withMarker(valid.left(5));
    QTest::newRow("cut in a chunk") << withMarker(valid.left(valid.size() - 20));
    QTest::newRow("no end chunk") << withMarker(valid.left(valid.size() - 12));
    QByteArray badCrc = valid;
    badCrc[valid.indexOf("IDAT") + 6] = char(badCrc.at(valid.indexOf("IDAT") + 6) ^ 0x55);
    QTest::newRow("damaged image data") << withMarker(badCrc);
    QTest::newRow("header claims 20000 x 20000") << withMarker(pngbytes::lyingPng(20000, 20000));
    QTest::newRow("header claims 2^31 x 2^31")
        << withMarker(pngbytes::lyingPng(0x7fffffff, 0x7fffffff));
    QTest::newRow("zero width") << withMarker(pngbytes::lyingPng(0, 10));
    QByteArray noHeader = pngbytes::signature() + pngbytes::chunk("IEND", {});
    QTest::newRow("no header chunk") << withMarker(noHeader);
    QByteArray hugeChunk = pngbytes::signature() + pngbytes::bigEndian(0x7ffffff0) + "IHDR";
    QTest::newRow("chunk longer than the file") << withMarker(hugeChunk);
}

void TestProjectStream::corruptImagesAreRefused()
{
    QFETCH(QByteArray, bytes);
    QDataStream in(bytes);
    prepare(in);
    QImage image;
    QVERIFY(!readImageChecked(in, image));
    QVERIFY(in.status() != QDataStream::Ok);
}

void TestProjectStream::transforms_data()
{
    QTest::addColumn<QTransform>("transform");
    QTest::addColumn<bool>("ok");
    QTest::newRow("identity") << QTransform() << true;
    QTest::newRow("rotate and mirror") << QTransform().rotate(33).scale(1, -1) << true;
    QTest::newRow("projective") << QTransform(1, 0, 0.001, 0, 1, 0, 5, 6, 1) << true;
    QTest::newRow("NaN") << QTransform(std::numeric_limits<double>::quiet_NaN(), 0, 0, 1, 0, 0)
                         << false;
    QTest::newRow("infinite shift")
        << QTransform(1, 0, 0, 1, std::numeric_limits<double>::infinity(), 0) << false;
}

void TestProjectStream::transforms()
{
    QFETCH(QTransform, transform);
    QFETCH(bool, ok);
    const QByteArray bytes = stream([&](QDataStream &out) { out << transform; });
    QDataStream in(bytes);
    prepare(in);
    QTransform got;
    QCOMPARE(readTransformChecked(in, got), ok);
    if (ok)
        QCOMPARE(got, transform);
    QVERIFY(!readTransformChecked(in, got)); // nothing left
}

QTEST_MAIN(TestProjectStream)
#include "tst_project_stream.moc"
