// Fill hatching: even-odd coverage, direction, spacing grid, overscan, order.
#include "fill_hatch.h"
#include "recording_sink.h"

#include <QPainterPath>
#include <QtTest>
#include <cmath>

using namespace lumitra;

Q_DECLARE_METATYPE(QPainterPath)

namespace {

HatchSettings hatch(double angle, double spacing, double overscan = 0, bool oneDirection = false)
{
    HatchSettings s;
    s.angle = angle;
    s.spacing = spacing;
    s.overscan = overscan;
    s.oneDirection = oneDirection;
    return s;
}

QPainterPath rect(double x, double y, double w, double h)
{
    QPainterPath p;
    p.addRect(x, y, w, h);
    return p;
}

QPainterPath twoRooms()
{
    // Two squares joined by a thin bottom bar: a U seen from above.
    QPainterPath p;
    p.moveTo(0, 0);
    for (const QPointF &c : {QPointF(30, 0), QPointF(30, -20), QPointF(20, -20), QPointF(20, -2),
                             QPointF(10, -2), QPointF(10, -20), QPointF(0, -20)})
        p.lineTo(c);
    p.closeSubpath();
    return p;
}

RecordingSink run(const QPainterPath &path, const HatchSettings &s)
{
    RecordingSink sink;
    hatchOutline(path, s, sink);
    return sink;
}

// The hatch direction in scene coordinates: the angle is counter-clockwise in
// machine coordinates, where Y points up the screen.
QPointF along(double angle)
{
    return QPointF(std::cos(angle * M_PI / 180), -std::sin(angle * M_PI / 180));
}

} // namespace

class TestFillHatch : public QObject
{
    Q_OBJECT

private slots:
    void coverage_data();
    void coverage();
    void openSubpathsAreNotFilled();
    void overscanAndDirection_data();
    void overscanAndDirection();
    void orderKeepsTravelShort();
    void stopsAndRefusesBadSpacing();
};

void TestFillHatch::coverage_data()
{
    QTest::addColumn<QPainterPath>("path");
    QTest::addColumn<double>("spacing");
    QTest::addColumn<double>("area");

    QPainterPath ring = rect(0, -20, 20, 20);
    ring.addRect(5, -15, 10, 10); // same winding as the outer square: still a hole
    QPainterPath circle;
    circle.addEllipse(QPointF(200, -200), 15, 15);
    QPainterPath letterO;
    letterO.addEllipse(QPointF(50, -50), 20, 30);
    letterO.addEllipse(QPointF(50, -50), 12, 22);
    QTest::newRow("rectangle") << rect(0, -5, 10, 5) << 1.0 << 50.0;
    QTest::newRow("off the grid") << rect(40, -32.05, 30, 30) << 0.3 << 900.0;
    QTest::newRow("ring") << ring << 0.5 << 300.0;
    QTest::newRow("circle") << circle << 0.1 << M_PI * 225;
    QTest::newRow("letter O") << letterO << 0.2 << M_PI * (20 * 30 - 12 * 22);
    QTest::newRow("U shape") << twoRooms() << 0.25 << 30.0 * 20 - 10 * 18;
}

void TestFillHatch::coverage()
{
    // Burnt length times spacing is the even-odd area; every stretch lies
    // inside the shape (holes stay empty), along the hatch angle, on the
    // grid of lines half a spacing off the machine origin shared by all items.
    QFETCH(QPainterPath, path);
    QFETCH(double, spacing);
    QFETCH(double, area);
    for (double angle : {0.0, 30.0, 90.0, 135.0}) {
        const RecordingSink sink = run(path, hatch(angle, spacing));
        const double covered = sink.length(ToolStep::Burn) * spacing;
        QVERIFY2(
            std::fabs(covered - area) < area * 0.03,
            qPrintable(QStringLiteral("angle %1: %2 vs %3").arg(angle).arg(covered).arg(area)));
        const QPointF d = along(angle);
        for (const auto &b : sink.burns()) {
            QVERIFY(path.contains((b.first + b.second) / 2));
            const QPointF s = b.second - b.first;
            QVERIFY(std::fabs(s.x() * d.y() - s.y() * d.x()) < 1e-9 * distance(b.first, b.second));
            const double k = (b.first.x() * d.y() - b.first.y() * d.x()) / spacing - 0.5;
            QVERIFY2(std::fabs(k - std::round(k)) < 1e-6, qPrintable(QString::number(k)));
        }
    }
}

void TestFillHatch::openSubpathsAreNotFilled()
{
    QPainterPath open;
    open.moveTo(0, 0);
    open.lineTo(10, 0);
    open.lineTo(10, -10);
    open.lineTo(0, -10); // not back to the start
    QVERIFY(run(open, hatch(0, 0.5)).steps.isEmpty());

    open.addRect(20, -10, 10, 10);
    const RecordingSink sink = run(open, hatch(0, 0.5));
    QVERIFY(!sink.steps.isEmpty());
    for (const ToolStep &s : sink.steps)
        QVERIFY(s.at.x() >= 20 - 1e-9);
}

void TestFillHatch::overscanAndDirection_data()
{
    QTest::addColumn<double>("angle");
    QTest::addColumn<bool>("oneDirection");
    QTest::newRow("alternating") << 0.0 << false;
    QTest::newRow("one direction, slanted") << 30.0 << true;
    QTest::newRow("one direction, past half a turn") << 160.0 << true;
}

void TestFillHatch::overscanAndDirection()
{
    // Each line: travel, coast the overscan in, burn, coast the overscan out,
    // all the same way; lines alternate unless one direction is asked for.
    QFETCH(double, angle);
    QFETCH(bool, oneDirection);
    const double overscan = 2.5;
    const QPainterPath square = rect(0, -10, 10, 10);
    const RecordingSink sink = run(square, hatch(angle, 1, overscan, oneDirection));
    QVERIFY(sink.steps.size() >= 40);
    QCOMPARE(sink.kinds(), QByteArray("TCBC").repeated(sink.steps.size() / 4));
    for (int i = 0; i < sink.steps.size(); i += 4) {
        const QPointF lead = sink.steps[i + 1].at - sink.steps[i].at;
        const QPointF burn = sink.steps[i + 2].at - sink.steps[i + 1].at;
        const QPointF out = sink.steps[i + 3].at - sink.steps[i + 2].at;
        QVERIFY(std::fabs(std::hypot(lead.x(), lead.y()) - overscan) < 1e-9);
        QVERIFY(std::fabs(std::hypot(out.x(), out.y()) - overscan) < 1e-9);
        QVERIFY(QPointF::dotProduct(lead, burn) > 0);
        QVERIFY(QPointF::dotProduct(out, burn) > 0);
        QCOMPARE(QPointF::dotProduct(burn, along(angle)) > 0, oneDirection || i % 8 == 0);
        QVERIFY(square.contains((sink.steps[i + 1].at + sink.steps[i + 2].at) / 2));
    }
}

void TestFillHatch::orderKeepsTravelShort()
{
    // The plain order (every line left to right across both arms) travels
    // across the gap on every line above the bar; the chosen order finishes
    // one arm before the other.
    const QVector<HatchLine> lines = hatchLines(twoRooms(), hatch(0, 0.5));
    double plain = 0;
    int spans = 0;
    QPointF at;
    for (const HatchLine &line : lines) {
        for (const HatchSpan &span : line.spans) {
            if (spans++ > 0)
                plain += std::hypot(span.u0 - at.x(), line.v - at.y());
            at = QPointF(span.u1, line.v);
        }
    }
    const RecordingSink sink = run(twoRooms(), hatch(0, 0.5));
    const double travel = sink.length(ToolStep::Travel);
    QVERIFY2(travel < plain / 10, qPrintable(QStringLiteral("%1 vs %2").arg(travel).arg(plain)));
    QCOMPARE(sink.burns().size(), spans); // every span burnt exactly once
}

void TestFillHatch::stopsAndRefusesBadSpacing()
{
    RecordingSink sink;
    sink.stopAfter = 6;
    hatchOutline(rect(0, -10, 10, 10), hatch(0, 0.1), sink);
    QCOMPARE(sink.steps.size(), 6);
    for (double spacing : {0.0, -1.0, std::nan("")})
        QVERIFY(run(rect(0, -10, 10, 10), hatch(0, spacing)).steps.isEmpty());
}

QTEST_GUILESS_MAIN(TestFillHatch)
#include "tst_fill_hatch.moc"
