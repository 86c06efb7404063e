// Handles of the selection frame and what dragging them means.
#include "frame_geometry.h"

#include <QLineF>
#include <QtTest>

using namespace lumitra;

Q_DECLARE_METATYPE(lumitra::FrameHandle)

namespace {
// Frame (100, -200, 80 x 40); 0.5 mm per pixel, so handles reach 4 mm.
const QRectF kFrame(100, -200, 80, 40);
constexpr double kMmPerPixel = 0.5;
} // namespace

class TestFrameGeometry : public QObject
{
    Q_OBJECT

private slots:
    void handleUnderThePointer_data();
    void handleUnderThePointer();
    void handlesFollowTheZoom();
    void oppositeHandlesPairUp();
    void scaleFactorsKeepTheOppositeHandle_data();
    void scaleFactorsKeepTheOppositeHandle();
    void rotationAngles_data();
    void rotationAngles();
};

void TestFrameGeometry::handleUnderThePointer_data()
{
    QTest::addColumn<QPointF>("pointer");
    QTest::addColumn<FrameHandle>("handle");
    QTest::newRow("top-left corner") << QPointF(101, -199) << FrameHandle::TopLeft;
    QTest::newRow("just outside the corner") << QPointF(95.9, -200) << FrameHandle::None;
    QTest::newRow("top edge centre") << QPointF(140, -203) << FrameHandle::Top;
    QTest::newRow("right edge centre") << QPointF(183, -180) << FrameHandle::Right;
    QTest::newRow("bottom-right") << QPointF(180, -160) << FrameHandle::BottomRight;
    QTest::newRow("bottom centre") << QPointF(140, -157) << FrameHandle::Bottom;
    QTest::newRow("bottom-left") << QPointF(97, -163) << FrameHandle::BottomLeft;
    QTest::newRow("left centre") << QPointF(100, -180) << FrameHandle::Left;
    // 24 px above the top centre at 0.5 mm/px is 12 mm up.
    QTest::newRow("rotate handle") << QPointF(140, -212) << FrameHandle::Rotate;
    QTest::newRow("inside") << QPointF(120, -175) << FrameHandle::Inside;
    QTest::newRow("outside") << QPointF(300, -175) << FrameHandle::None;
}

void TestFrameGeometry::handleUnderThePointer()
{
    QFETCH(QPointF, pointer);
    QFETCH(FrameHandle, handle);
    QCOMPARE(handleAt(kFrame, pointer, kMmPerPixel), handle);
}

void TestFrameGeometry::handlesFollowTheZoom()
{
    // Zoomed in to 0.05 mm per pixel, handles shrink to 0.4 mm in the scene.
    QCOMPARE(handleAt(kFrame, QPointF(101, -199), 0.05), FrameHandle::Inside);
    QCOMPARE(handleAt(kFrame, QPointF(100.3, -199.7), 0.05), FrameHandle::TopLeft);
    QCOMPARE(handlePosition(kFrame, FrameHandle::Rotate, 0.05), QPointF(140, -201.2));
}

void TestFrameGeometry::oppositeHandlesPairUp()
{
    const FrameHandle all[] = {
        FrameHandle::TopLeft,     FrameHandle::Top,    FrameHandle::TopRight,   FrameHandle::Right,
        FrameHandle::BottomRight, FrameHandle::Bottom, FrameHandle::BottomLeft, FrameHandle::Left};
    for (FrameHandle h : all) {
        QCOMPARE(oppositeHandle(oppositeHandle(h)), h);
        // Opposite handles lie symmetric about the centre.
        const QPointF a = handlePosition(kFrame, h, 1);
        const QPointF b = handlePosition(kFrame, oppositeHandle(h), 1);
        QCOMPARE((a + b) / 2, kFrame.center());
    }
    QCOMPARE(oppositeHandle(FrameHandle::Rotate), FrameHandle::None);
}

void TestFrameGeometry::scaleFactorsKeepTheOppositeHandle_data()
{
    QTest::addColumn<QRectF>("frame");
    QTest::addColumn<FrameHandle>("handle");
    QTest::addColumn<QPointF>("pointer");
    QTest::addColumn<bool>("keepRatio");
    QTest::addColumn<double>("sx");
    QTest::addColumn<double>("sy");
    QTest::addColumn<QPointF>("anchor");
    QTest::newRow("right edge wider") << kFrame << FrameHandle::Right << QPointF(220, -150) << false
                                      << 1.5 << 1.0 << QPointF(100, -180);
    QTest::newRow("right edge, ratio kept") << kFrame << FrameHandle::Right << QPointF(220, -150)
                                            << true << 1.5 << 1.5 << QPointF(100, -180);
    QTest::newRow("top edge taller") << kFrame << FrameHandle::Top << QPointF(0, -240) << false
                                     << 1.0 << 2.0 << QPointF(140, -160);
    QTest::newRow("bottom-right free") << kFrame << FrameHandle::BottomRight << QPointF(140, -170)
                                       << false << 0.5 << 0.75 << QPointF(100, -200);
    QTest::newRow("bottom-right ratio: larger change wins")
        << kFrame << FrameHandle::BottomRight << QPointF(140, -170) << true << 0.5 << 0.5
        << QPointF(100, -200);
    QTest::newRow("top-left grows") << kFrame << FrameHandle::TopLeft << QPointF(60, -220) << false
                                    << 1.5 << 1.5 << QPointF(180, -160);
    QTest::newRow("past the anchor stops at 0.1 mm")
        << kFrame << FrameHandle::Left << QPointF(250, -180) << false << 0.1 / 80 << 1.0
        << QPointF(180, -180);
    QTest::newRow("flat frame keeps its height")
        << QRectF(0, 0, 50, 0) << FrameHandle::BottomRight << QPointF(100, 30) << true << 2.0 << 1.0
        << QPointF(0, 0);
    QTest::newRow("flat frame top handle does nothing")
        << QRectF(0, 0, 50, 0) << FrameHandle::Top << QPointF(25, -30) << false << 1.0 << 1.0
        << QPointF(25, 0);
}

void TestFrameGeometry::scaleFactorsKeepTheOppositeHandle()
{
    QFETCH(QRectF, frame);
    QFETCH(FrameHandle, handle);
    QFETCH(QPointF, pointer);
    QFETCH(bool, keepRatio);
    QFETCH(double, sx);
    QFETCH(double, sy);
    QFETCH(QPointF, anchor);
    const ScaleStep step = scaleForHandle(frame, handle, pointer, keepRatio);
    QCOMPARE(step.sx, sx);
    QCOMPARE(step.sy, sy);
    QCOMPARE(step.anchor, anchor);
}

void TestFrameGeometry::rotationAngles_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<bool>("snap");
    QTest::addColumn<double>("angle");
    // Centre (0, 0); scene y grows down the screen, so a quarter turn from
    // straight up to the right is clockwise, +90.
    QTest::newRow("up to right") << QPointF(0, -10) << QPointF(10, 0) << false << 90.0;
    QTest::newRow("up to left") << QPointF(0, -10) << QPointF(-10, 0) << false << -90.0;
    QTest::newRow("across the seam")
        << QPointF(-10, 1) << QPointF(-10, -1) << false << 2 * qRadiansToDegrees(std::atan(0.1));
    QTest::newRow("snapped down") << QPointF(10, 0) << QPointF(10, 1.5) << true << 15.0;
    QTest::newRow("snapped to zero") << QPointF(10, 0) << QPointF(10, 1.2) << true << 0.0;
    QTest::newRow("half turn") << QPointF(10, 0) << QPointF(-10, 0) << false << 180.0;
}

void TestFrameGeometry::rotationAngles()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(bool, snap);
    QFETCH(double, angle);
    QVERIFY(qAbs(rotationAngle(QPointF(0, 0), from, to, snap) - angle) < 1e-9);
}

QTEST_MAIN(TestFrameGeometry)
#include "tst_frame_geometry.moc"
