// Fill hatching: even-odd coverage, direction, spacing, overscan, order.
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

QPainterPath ring()
{
    QPainterPath p = rect(0, -20, 20, 20);
    p.addRect(5, -15, 10, 10); // same winding as the outer square
    return p;
}

QPainterPath letterO()
{
    QPainterPath p;
    p.addEllipse(QPointF(50, -50), 20, 30);
    p.addEllipse(QPointF(50, -50), 12, 22);
    return p;
}

QPainterPath twoRooms()
{
    // Two squares joined by a thin bottom bar: a U seen from above.
    QPainterPath p;
    p.moveTo(0, 0);
    p.lineTo(30, 0);
    p.lineTo(30, -20);
    p.lineTo(20, -20);
    p.lineTo(20, -2);
    p.lineTo(10, -2);
    p.lineTo(10, -20);
    p.lineTo(0, -20);
    p.closeSubpath();
    return p;
}

RecordingSink run(const QPainterPath &path, const HatchSettings &s)
{
    RecordingSink sink;
    hatchOutline(path, s, sink);
    return sink;
}

} // namespace

class TestFillHatch : public QObject
{
    Q_OBJECT

private slots:
    void burnsCoverTheArea_data();
    void burnsCoverTheArea();
    void holesStayEmpty_data();
    void holesStayEmpty();
    void openSubpathsAreNotFilled();
    void direction_data();
    void direction();
    void linesOnTheSpacingGrid();
    void alternatesUnlessOneDirection_data();
    void alternatesUnlessOneDirection();
    void overscanIsCoasted_data();
    void overscanIsCoasted();
    void orderKeepsTravelShort();
    void stopsWhenAsked();
    void nothingForBadSpacing_data();
    void nothingForBadSpacing();
};

void TestFillHatch::burnsCoverTheArea_data()
{
    QTest::addColumn<QPainterPath>("path");
    QTest::addColumn<double>("spacing");
    QTest::addColumn<double>("area");

    QTest::newRow("rectangle") << rect(0, -5, 10, 5) << 1.0 << 50.0;
    QTest::newRow("ring") << ring() << 0.5 << 300.0;
    QTest::newRow("circle") << [] {
        QPainterPath p;
        p.addEllipse(QPointF(200, -200), 15, 15);
        return p;
    }() << 0.1 << M_PI * 225;
    QTest::newRow("letter O") << letterO() << 0.2 << M_PI * (20 * 30 - 12 * 22);
    QTest::newRow("U shape") << twoRooms() << 0.25 << 30.0 * 20 - 10 * 18;
}

void TestFillHatch::burnsCoverTheArea()
{
    QFETCH(QPainterPath, path);
    QFETCH(double, spacing);
    QFETCH(double, area);
    for (double angle : {0.0, 30.0, 90.0, 135.0}) {
        const RecordingSink sink = run(path, hatch(angle, spacing));
        const double covered = sink.burntLength() * spacing;
        QVERIFY2(
            std::fabs(covered - area) < area * 0.03,
            qPrintable(QStringLiteral("angle %1: %2 vs %3").arg(angle).arg(covered).arg(area)));
        // Every burnt stretch lies inside the shape (check its middle).
        for (const auto &b : sink.burns())
            QVERIFY(path.contains((b.first + b.second) / 2));
    }
}

void TestFillHatch::holesStayEmpty_data()
{
    QTest::addColumn<QPainterPath>("path");
    QTest::addColumn<QRectF>("hole");
    QTest::newRow("square hole") << ring() << QRectF(5.01, -14.99, 9.98, 9.98);
    QTest::newRow("counter of an O") << letterO() << QRectF(50 - 8, -50 - 15, 16, 30);
}

void TestFillHatch::holesStayEmpty()
{
    QFETCH(QPainterPath, path);
    QFETCH(QRectF, hole);
    const RecordingSink sink = run(path, hatch(0, 0.2));
    QVERIFY(!sink.burns().isEmpty());
    for (const auto &b : sink.burns()) {
        // A horizontal stretch at the hole's height must not cross the hole.
        const double y = b.first.y();
        if (y <= hole.top() || y >= hole.bottom())
            continue;
        const double lo = qMin(b.first.x(), b.second.x());
        const double hi = qMax(b.first.x(), b.second.x());
        QVERIFY2(hi <= hole.left() || lo >= hole.right(),
                 qPrintable(QStringLiteral("%1..%2 at %3").arg(lo).arg(hi).arg(y)));
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

    QPainterPath mixed = open;
    mixed.addRect(20, -10, 10, 10);
    const RecordingSink sink = run(mixed, hatch(0, 0.5));
    QVERIFY(!sink.steps.isEmpty());
    for (const ToolStep &s : sink.steps)
        QVERIFY(s.at.x() >= 20 - 1e-9);
}

void TestFillHatch::direction_data()
{
    QTest::addColumn<double>("angle");
    QTest::newRow("0") << 0.0;
    QTest::newRow("45") << 45.0;
    QTest::newRow("90") << 90.0;
    QTest::newRow("160") << 160.0;
    QTest::newRow("360") << 360.0;
}

void TestFillHatch::direction()
{
    QFETCH(double, angle);
    // The angle is counter-clockwise in machine coordinates, where Y points
    // up the screen: scene direction (cos a, -sin a).
    const QPointF want(std::cos(angle * M_PI / 180), -std::sin(angle * M_PI / 180));
    const RecordingSink sink = run(rect(0, -30, 30, 30), hatch(angle, 1, 0, true));
    QVERIFY(sink.burns().size() > 10);
    for (const auto &b : sink.burns()) {
        const QPointF d = b.second - b.first;
        const double len = std::hypot(d.x(), d.y());
        QVERIFY(std::fabs(d.x() / len - want.x()) < 1e-9);
        QVERIFY(std::fabs(d.y() / len - want.y()) < 1e-9);
    }
}

void TestFillHatch::linesOnTheSpacingGrid()
{
    // Two items hatched separately share one grid of lines.
    for (const QPainterPath &path : {rect(3.3, -17.7, 10, 9.1), rect(40, -12.05, 7, 7)}) {
        const RecordingSink sink = run(path, hatch(0, 0.3));
        for (const auto &b : sink.burns()) {
            const double k = -b.first.y() / 0.3 - 0.5;
            QVERIFY(std::fabs(k - std::round(k)) < 1e-6);
        }
    }
}

void TestFillHatch::alternatesUnlessOneDirection_data()
{
    QTest::addColumn<bool>("oneDirection");
    QTest::newRow("alternating") << false;
    QTest::newRow("one direction") << true;
}

void TestFillHatch::alternatesUnlessOneDirection()
{
    QFETCH(bool, oneDirection);
    QPainterPath circle;
    circle.addEllipse(QPointF(0, 0), 10, 10);
    const auto burns = run(circle, hatch(0, 0.5, 0, oneDirection)).burns();
    QCOMPARE(burns.size(), 40);
    for (int i = 0; i < burns.size(); ++i) {
        const bool rightwards = burns[i].second.x() > burns[i].first.x();
        QCOMPARE(rightwards, oneDirection || i % 2 == 0);
        if (i > 0) // neighbouring lines, one spacing apart
            QVERIFY(std::fabs(std::fabs(burns[i].first.y() - burns[i - 1].first.y()) - 0.5) < 1e-9);
    }
}

void TestFillHatch::overscanIsCoasted_data()
{
    QTest::addColumn<double>("angle");
    QTest::addColumn<bool>("oneDirection");
    QTest::newRow("alternating") << 0.0 << false;
    QTest::newRow("one direction, slanted") << 30.0 << true;
}

void TestFillHatch::overscanIsCoasted()
{
    QFETCH(double, angle);
    QFETCH(bool, oneDirection);
    const double overscan = 2.5;
    const QPainterPath square = rect(0, -10, 10, 10);
    const RecordingSink sink = run(square, hatch(angle, 1, overscan, oneDirection));
    QVERIFY(sink.steps.size() >= 40);
    QCOMPARE(sink.steps.size() % 4, 0);
    for (int i = 0; i < sink.steps.size(); i += 4) {
        QCOMPARE(sink.steps[i].kind, ToolStep::Travel);
        QCOMPARE(sink.steps[i + 1].kind, ToolStep::Coast);
        QCOMPARE(sink.steps[i + 2].kind, ToolStep::Burn);
        QCOMPARE(sink.steps[i + 3].kind, ToolStep::Coast);
        const QPointF lead = sink.steps[i + 1].at - sink.steps[i].at;
        const QPointF burn = sink.steps[i + 2].at - sink.steps[i + 1].at;
        const QPointF out = sink.steps[i + 3].at - sink.steps[i + 2].at;
        QVERIFY(std::fabs(std::hypot(lead.x(), lead.y()) - overscan) < 1e-9);
        QVERIFY(std::fabs(std::hypot(out.x(), out.y()) - overscan) < 1e-9);
        // Lead-in, burn and lead-out run the same way.
        QVERIFY(QPointF::dotProduct(lead, burn) > 0);
        QVERIFY(QPointF::dotProduct(out, burn) > 0);
        // The laser only burns inside the shape.
        QVERIFY(square.contains((sink.steps[i + 1].at + sink.steps[i + 2].at) / 2));
    }
}

void TestFillHatch::orderKeepsTravelShort()
{
    // The plain order (every line left to right across both arms) travels
    // across the gap on every line above the bar; the chosen order finishes
    // one arm before the other.
    const double spacing = 0.5;
    const QVector<HatchLine> lines = hatchLines(twoRooms(), hatch(0, spacing));
    double plain = 0;
    QPointF at;
    bool first = true;
    for (const HatchLine &line : lines) {
        for (const HatchSpan &span : line.spans) {
            if (!first)
                plain += std::hypot(span.u0 - at.x(), line.v - at.y());
            at = QPointF(span.u1, line.v);
            first = false;
        }
    }
    const RecordingSink sink = run(twoRooms(), hatch(0, spacing));
    QVERIFY2(sink.travelLength() < plain / 10,
             qPrintable(QStringLiteral("%1 vs %2").arg(sink.travelLength()).arg(plain)));
    // Every span is burnt exactly once.
    int spans = 0;
    for (const HatchLine &line : lines)
        spans += line.spans.size();
    QCOMPARE(sink.burns().size(), spans);
}

void TestFillHatch::stopsWhenAsked()
{
    RecordingSink sink;
    sink.stopAfter = 6;
    hatchOutline(rect(0, -10, 10, 10), hatch(0, 0.1), sink);
    QCOMPARE(sink.steps.size(), 6);
}

void TestFillHatch::nothingForBadSpacing_data()
{
    QTest::addColumn<double>("spacing");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative") << -1.0;
    QTest::newRow("not a number") << std::nan("");
}

void TestFillHatch::nothingForBadSpacing()
{
    QFETCH(double, spacing);
    QVERIFY(run(rect(0, -10, 10, 10), hatch(0, spacing)).steps.isEmpty());
}

QTEST_GUILESS_MAIN(TestFillHatch)
#include "tst_fill_hatch.moc"
