#include "photo_warp.h"
#include "synthetic_photo.h"

#include <QTest>

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <cmath>

using namespace lumitra::camera;

namespace {

CalibrationPoints pointsOf(const SyntheticPhoto &photo)
{
    return orderClicks({photo.centres[3], photo.centres[1], photo.centres[2], photo.centres[0]});
}

// The warp done the long way: the whole canvas of twice the photo's size,
// then the crop.
QImage referenceWarp(const QImage &photo, const CalibrationPoints &p)
{
    const QImage rgb = photo.convertToFormat(QImage::Format_RGB888);
    const cv::Mat source(rgb.height(), rgb.width(), CV_8UC3, const_cast<uchar *>(rgb.constBits()),
                         size_t(rgb.bytesPerLine()));
    const float x1 = float(p.p[0].x()), y1 = float(p.p[0].y());
    const cv::Point2f from[4] = {{float(p.p[0].x()), float(p.p[0].y())},
                                 {float(p.p[1].x()), float(p.p[1].y())},
                                 {float(p.p[2].x()), float(p.p[2].y())},
                                 {float(p.p[3].x()), float(p.p[3].y())}};
    const cv::Point2f to[4] = {{x1, y1}, {x1 + 400, y1}, {x1 + 400, y1 + 400}, {x1, y1 + 400}};
    cv::Mat canvas;
    cv::warpPerspective(source, canvas, cv::getPerspectiveTransform(from, to),
                        cv::Size(2 * rgb.width(), 2 * rgb.height()), cv::INTER_LINEAR,
                        cv::BORDER_CONSTANT, cv::Scalar(0, 0, 0));
    const cv::Mat crop = canvas(cv::Rect(int(std::lround(p.p[0].x() - 125)),
                                         int(std::lround(p.p[0].y() - 125)), 650, 650))
                             .clone();
    return QImage(crop.data, 650, 650, int(crop.step), QImage::Format_RGB888).copy();
}

} // namespace

// Turning and straightening the photo, and where it lies under the work area.
class TestPhotoWarp : public QObject
{
    Q_OBJECT

private slots:
    void turnHalfMirrorsBothWays();
    void crossesLandOnTheSquare_data();
    void crossesLandOnTheSquare();
    void sameAsTheFullCanvas();
    void cropOutsideTheCanvas_data();
    void cropOutsideTheCanvas();
    void sceneRect_data();
    void sceneRect();
};

void TestPhotoWarp::turnHalfMirrorsBothWays()
{
    QImage photo(3, 2, QImage::Format_RGB32);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            photo.setPixel(x, y, qRgb(x * 50, y * 100, 7));
    const QImage turned = turnHalf(photo);
    QCOMPARE(turned.size(), photo.size());
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            QCOMPARE(turned.pixel(x, y), photo.pixel(2 - x, 1 - y));
    QCOMPARE(turnHalf(turned), photo);
}

void TestPhotoWarp::crossesLandOnTheSquare_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("1600 x 1200") << QSize(1600, 1200);
    QTest::newRow("1280 x 960") << QSize(1280, 960);
    QTest::newRow("1920 x 1080") << QSize(1920, 1080);
}

// The camera's bytes decoded and turned as the program does, the four cross
// centres clicked, the photo straightened: the crosses sit at 125 and 525.
void TestPhotoWarp::crossesLandOnTheSquare()
{
    QFETCH(QSize, size);
    const SyntheticPhoto photo = makeSyntheticPhoto(size);
    const QImage received = turnHalf(QImage::fromData(photo.jpeg));
    QCOMPARE(received.size(), size);
    const CalibrationPoints points = pointsOf(photo);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(points.p[i], photo.centres[i]);
    // The clicks really are on the crosses of the received photo.
    for (int i = 0; i < 4; ++i) {
        const QPointF found = findCrossCentre(received, photo.centres[i], 20, 4);
        QVERIFY2(
            QLineF(found, photo.centres[i]).length() < 1.5,
            qPrintable(QString("photo cross %1 at %2,%3").arg(i).arg(found.x()).arg(found.y())));
    }

    QString error;
    const QImage warped = warpPhoto(received, points, &error);
    QVERIFY2(!warped.isNull(), qPrintable(error));
    QCOMPARE(warped.size(), QSize(650, 650));
    QCOMPARE(warped.format(), QImage::Format_RGB888);
    const QPointF targets[4] = {{125, 125}, {525, 125}, {525, 525}, {125, 525}};
    for (int i = 0; i < 4; ++i) {
        const QPointF found = findCrossCentre(warped, targets[i]);
        QVERIFY2(QLineF(found, targets[i]).length() <= 2.0,
                 qPrintable(QString("cross %1 at %2,%3").arg(i).arg(found.x()).arg(found.y())));
    }
    // The frame, 5 mm inside the crosses, is straight: its top edge lies on
    // one row across the square.
    const qreal mmPerPixel = 350.0 / 400.0;
    const int frameRow = int(std::lround(125 + 5 / mmPerPixel));
    for (int x = 200; x <= 450; x += 50)
        QVERIFY2(qGray(warped.pixel(x, frameRow)) < 128
                     || qGray(warped.pixel(x, frameRow + 1)) < 128
                     || qGray(warped.pixel(x, frameRow - 1)) < 128,
                 qPrintable(QString("frame missing at x %1").arg(x)));
}

void TestPhotoWarp::sameAsTheFullCanvas()
{
    const SyntheticPhoto photo = makeSyntheticPhoto();
    const CalibrationPoints points = pointsOf(photo);
    const QImage fast = warpPhoto(photo.upright, points);
    const QImage full = referenceWarp(photo.upright, points);
    QCOMPARE(fast.size(), full.size());
    int worst = 0;
    for (int y = 0; y < 650; ++y) {
        const uchar *a = fast.constScanLine(y);
        const uchar *b = full.constScanLine(y);
        for (int x = 0; x < 650 * 3; ++x)
            worst = qMax(worst, std::abs(int(a[x]) - int(b[x])));
    }
    QVERIFY2(worst <= 2, qPrintable(QString("largest difference %1").arg(worst)));
}

void TestPhotoWarp::cropOutsideTheCanvas_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPointF>("p1");
    QTest::addColumn<bool>("ok");
    QTest::newRow("P1 124 from the left") << QSize(800, 600) << QPointF(124, 300) << false;
    QTest::newRow("P1 124 from the top") << QSize(800, 600) << QPointF(300, 124) << false;
    QTest::newRow("P1 at 125") << QSize(800, 600) << QPointF(125, 125) << true;
    // A 400 x 325 photo: the doubled canvas is 800 x 650.
    QTest::newRow("fills the doubled canvas") << QSize(400, 325) << QPointF(125, 125) << true;
    QTest::newRow("one row beyond the canvas") << QSize(400, 325) << QPointF(125, 126) << false;
    QTest::newRow("right edge of the canvas") << QSize(400, 325) << QPointF(275, 125) << true;
    QTest::newRow("one column beyond") << QSize(400, 325) << QPointF(276, 125) << false;
}

void TestPhotoWarp::cropOutsideTheCanvas()
{
    QFETCH(QSize, size);
    QFETCH(QPointF, p1);
    QFETCH(bool, ok);
    QImage photo(size, QImage::Format_RGB32);
    photo.fill(Qt::gray);
    CalibrationPoints points;
    points.p[0] = p1;
    points.p[1] = p1 + QPointF(200, 0);
    points.p[2] = p1 + QPointF(200, 200);
    points.p[3] = p1 + QPointF(0, 200);
    QString error;
    const QImage warped = warpPhoto(photo, points, &error);
    QCOMPARE(!warped.isNull(), ok);
    QCOMPARE(error.isEmpty(), ok);
}

void TestPhotoWarp::sceneRect_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("400 x 400") << 400 << 400 << QRectF(-84.375, -484.375, 568.75, 568.75);
    QTest::newRow("450 x 250") << 450 << 250 << QRectF(-100, -287.5, 650, 325);
}

// The rect is exact, and pixels 125 and 525 fall on the cross centres.
void TestPhotoWarp::sceneRect()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(QRectF, rect);
    const QRectF got = photoSceneRect(width, height);
    QCOMPARE(got, rect);
    const qreal sx = got.width() / 650, sy = got.height() / 650;
    QCOMPARE(got.x() + 125 * sx, 25.0);
    QCOMPARE(got.x() + 525 * sx, width - 25.0);
    QCOMPARE(got.y() + 125 * sy, 25.0 - height);
    QCOMPARE(got.y() + 525 * sy, -25.0);
}

QTEST_MAIN(TestPhotoWarp)
#include "tst_photo_warp.moc"
