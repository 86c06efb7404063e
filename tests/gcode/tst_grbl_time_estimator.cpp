#include "grbl_machine_settings.h"
#include "grbl_time_estimator.h"

#include <QBuffer>
#include <QtTest>
#include <cmath>

// The job time as the controller plans it, against speed profiles worked out
// by hand: trapezoids and triangles, corner and straight junctions, the
// look-ahead buffer, dwells, laser-mode power changes, arcs, and bounds that
// must hold for any job.
namespace {

GrblMachineSettings machine(double accel = 100.0, double rate = 6000.0, bool laser = false)
{
    GrblMachineSettings s;
    for (int i = 0; i < 3; ++i) {
        s.maxRate[i] = rate;
        s.acceleration[i] = accel;
    }
    s.laserMode = laser;
    return s;
}

double estimate(const QStringList &lines, const GrblMachineSettings &s, int *blocks = nullptr)
{
    GrblTimeEstimator e(s);
    for (const QString &line : lines)
        e.feedLine(line);
    const double t = e.seconds();
    if (blocks)
        *blocks = e.blocks();
    return t;
}

// Hand formulas, kept apart from the estimator's own.
double trapezoidTime(double d, double v, double a) // from rest to rest, cruising at v
{
    return 2.0 * v / a + (d - v * v / a) / v;
}
double triangleTime(double d, double v0, double v1, double a) // never reaching the feed
{
    const double peak = std::sqrt((2.0 * a * d + v0 * v0 + v1 * v1) / 2.0);
    return (2.0 * peak - v0 - v1) / a;
}
double cornerSpeedSq(double accel, double deviation, double cosTheta)
{
    const double s = std::sqrt(0.5 * (1.0 - cosTheta));
    return accel * deviation * s / (1.0 - s);
}

// Length of every move divided by its speed: feed for G1, the per-axis
// limited maximum rate for G0. No acceleration, so never slower than the
// machine.
double feedOnlyBound(const QStringList &lines, const GrblMachineSettings &s)
{
    double x = 0, y = 0, feed = 0, seconds = 0;
    bool rapid = true;
    const QRegularExpression word(QStringLiteral("([GXYF])([-0-9.]+)"));
    for (const QString &line : lines) {
        double nx = x, ny = y;
        bool moves = false;
        auto it = word.globalMatch(line);
        while (it.hasNext()) {
            const auto m = it.next();
            const double v = m.captured(2).toDouble();
            switch (m.captured(1).at(0).toLatin1()) {
            case 'G':
                rapid = v == 0;
                break;
            case 'X':
                nx = v;
                moves = true;
                break;
            case 'Y':
                ny = v;
                moves = true;
                break;
            case 'F':
                feed = v;
                break;
            }
        }
        if (!moves)
            continue;
        const double dx = nx - x, dy = ny - y, d = std::hypot(dx, dy);
        if (d > 0) {
            double rate = 1e300;
            if (dx != 0)
                rate = std::min(rate, s.maxRate[0] * d / std::fabs(dx));
            if (dy != 0)
                rate = std::min(rate, s.maxRate[1] * d / std::fabs(dy));
            if (!rapid)
                rate = std::min(rate, feed);
            seconds += d / rate * 60.0;
        }
        x = nx;
        y = ny;
    }
    return seconds;
}

QStringList zigzag(int rows, double width, double pitch)
{
    QStringList job{QStringLiteral("M4"), QStringLiteral("G0X0Y0"), QStringLiteral("F6000S500")};
    for (int r = 0; r < rows; ++r) {
        job << QStringLiteral("G1X%1Y%2").arg(r % 2 ? 0.0 : width).arg(r * pitch, 0, 'f', 2);
        if (r + 1 < rows)
            job << QStringLiteral("G1Y%1").arg((r + 1) * pitch, 0, 'f', 2);
    }
    job << QStringLiteral("M5");
    return job;
}

} // namespace

class TestGrblTimeEstimator : public QObject
{
    Q_OBJECT

private slots:
    void singleMoves_data()
    {
        QTest::addColumn<QStringList>("job");
        QTest::addColumn<double>("accelX");
        QTest::addColumn<double>("accelY");
        QTest::addColumn<double>("rateX");
        QTest::addColumn<double>("rateY");
        QTest::addColumn<double>("expected");
        // 100 mm at 50 mm/s, 100 mm/s²: 12.5 mm up, 75 mm cruise, 12.5 mm down.
        QTest::newRow("trapezoid") << QStringList{"G1X100F3000"} << 100.0 << 100.0 << 6000.0
                                   << 6000.0 << 0.5 + 75.0 / 50.0 + 0.5;
        // 10 mm could only reach 31.6 mm/s of the 100 asked.
        QTest::newRow("triangle") << QStringList{"G1X10F6000"} << 100.0 << 100.0 << 6000.0 << 6000.0
                                  << 2.0 * std::sqrt(10.0 / 100.0);
        // Along (0.6, 0.8) Y's 50 mm/s² limits the move to 62.5 mm/s².
        QTest::newRow("diagonal, slow Y axis") << QStringList{"G1X30Y40F6000"} << 100.0 << 50.0
                                               << 6000.0 << 6000.0 << 2.0 * std::sqrt(50.0 / 62.5);
        QTest::newRow("rapid at the X rate") << QStringList{"G0X100"} << 100.0 << 100.0 << 3000.0
                                             << 6000.0 << 0.5 + 75.0 / 50.0 + 0.5;
        // Along (0.6, 0.8) Y's 1200 mm/min caps the rapid at 1500 mm/min, and the
        // acceleration at 125 mm/s².
        QTest::newRow("rapid limited by Y")
            << QStringList{"G0X30Y40"} << 100.0 << 100.0 << 6000.0 << 1200.0
            << 2.0 * 25.0 / 125.0 + (50.0 - 25.0 * 25.0 / 125.0) / 25.0;
        // A feed above the maximum rate runs at the maximum rate.
        QTest::newRow("feed above the max rate") << QStringList{"G1X100F90000"} << 100.0 << 100.0
                                                 << 3000.0 << 3000.0 << trapezoidTime(100, 50, 100);
        QTest::newRow("relative, two halves straight on")
            << QStringList{"G91", "G1X50F3000", "X50"} << 100.0 << 100.0 << 6000.0 << 6000.0
            << trapezoidTime(100, 50, 100);
        QTest::newRow("inches") << QStringList{"G20G1X1F60"} << 100.0 << 100.0 << 6000.0 << 6000.0
                                << trapezoidTime(25.4, 25.4, 100);
        QTest::newRow("no feed yet: refused")
            << QStringList{"G1X100"} << 100.0 << 100.0 << 6000.0 << 6000.0 << 0.0;
    }
    void singleMoves()
    {
        QFETCH(QStringList, job);
        QFETCH(double, accelX);
        QFETCH(double, accelY);
        QFETCH(double, rateX);
        QFETCH(double, rateY);
        QFETCH(double, expected);
        GrblMachineSettings s = machine();
        s.acceleration[0] = accelX;
        s.acceleration[1] = accelY;
        s.maxRate[0] = rateX;
        s.maxRate[1] = rateY;
        QVERIFY2(std::fabs(estimate(job, s) - expected) < 1e-9,
                 qPrintable(QString::number(estimate(job, s), 'g', 12)));
    }

    void junctions_data()
    {
        QTest::addColumn<QStringList>("job");
        QTest::addColumn<double>("expected");
        const double a = 100.0, v = 50.0;
        // 90°: the corner is taken at sqrt(a_j δ s / (1 - s)), with a_j the
        // acceleration along the bisector (100 / cos 45° per axis).
        const double vj = std::sqrt(cornerSpeedSq(a / std::sqrt(0.5), 0.01, 0.0));
        const double upDown = v / a + (v - vj) / a;
        const double cruise = 50.0 - v * v / (2 * a) - (v * v - vj * vj) / (2 * a);
        QTest::newRow("90 degrees")
            << QStringList{"G1X50F3000", "Y50"} << 2.0 * (upDown + cruise / v);
        QTest::newRow("straight on")
            << QStringList{"G1X50F3000", "X100"} << trapezoidTime(100, v, a);
        QTest::newRow("reversal stops")
            << QStringList{"G1X50F3000", "X0"} << 2.0 * trapezoidTime(50, v, a);
        // 45° turn: cos θ = -cos 45°.
        const double c = -std::sqrt(0.5);
        const double u[2] = {std::sqrt(0.5) - 1.0, std::sqrt(0.5)};
        const double n = std::hypot(u[0], u[1]);
        const double aj = std::min(a / std::fabs(u[0] / n), a / std::fabs(u[1] / n));
        const double v45 = std::sqrt(cornerSpeedSq(aj, 0.01, c));
        // The diagonal move itself accelerates at 100 / cos 45°.
        const double a2 = a / std::sqrt(0.5);
        const double cruise1 = 50.0 - v * v / (2 * a) - (v * v - v45 * v45) / (2 * a);
        const double cruise2 = 50.0 - (v * v - v45 * v45) / (2 * a2) - v * v / (2 * a2);
        QTest::newRow("45 degrees")
            << QStringList{"G1X50F3000", "X85.35533906Y35.35533906"}
            << (v / a + (v - v45) / a + cruise1 / v) + ((v - v45) / a2 + v / a2 + cruise2 / v);
        // A slower second move: the junction is capped by the slower feed.
        QTest::newRow("slower feed after")
            << QStringList{"G1X50F3000", "X100F1500"}
            << (0.5 + 0.25 + (50 - 12.5 - 9.375) / 50.0) + (50.0 - 3.125) / 25.0 + 0.25;
    }
    void junctions()
    {
        QFETCH(QStringList, job);
        QFETCH(double, expected);
        const double t = estimate(job, machine());
        QVERIFY2(
            std::fabs(t - expected) < 1e-6,
            qPrintable(QStringLiteral("%1 vs %2").arg(t, 0, 'g', 12).arg(expected, 0, 'g', 12)));
    }

    // Rows of 20 mm joined by 0.1 mm steps, all at 90° corners: every row
    // and step is a triangle between corner speeds.
    void zigzagRaster()
    {
        const int rows = 200;
        const double a = 100.0;
        const QStringList job = zigzag(rows, 20.0, 0.1);
        const double vj = std::sqrt(cornerSpeedSq(a / std::sqrt(0.5), 0.01, 0.0));
        double expected = 0.0;
        for (int r = 0; r < rows; ++r) {
            const double in = r == 0 ? 0.0 : vj, out = r + 1 == rows ? 0.0 : vj;
            expected += triangleTime(20.0, in, out, a);
            if (r + 1 < rows)
                expected += triangleTime(0.1, vj, vj, a);
        }
        int blocks = 0;
        const double t = estimate(job, machine(a, 6000.0, true), &blocks);
        QCOMPARE(blocks, 2 * rows - 1);
        QVERIFY2(std::fabs(t - expected) < 1e-6, qPrintable(QString::number(t - expected)));
        // Far slower than the feed alone would say.
        QVERIFY(t > 4.0 * feedOnlyBound(job, machine(a)));
    }

    // 1000 collinear 0.01 mm steps: the buffer sees 15 blocks, so the head
    // never leaves a block faster than it could stop within the 14 after it.
    // It speeds up over the first 14 blocks, slows down over the last 14, and
    // in between every block rises to its peak and falls back.
    void lookAheadBuffer()
    {
        QStringList job{QStringLiteral("G1F6000")};
        for (int i = 1; i <= 1000; ++i)
            job << QStringLiteral("X%1").arg(i * 0.01, 0, 'f', 2);
        const double a = 100.0, d = 0.01;
        const double v = std::sqrt(2.0 * a * d * (GrblTimeEstimator::kBufferBlocks - 2));
        const double expected = 2.0 * v / a + (1000 - 28) * triangleTime(d, v, v, a);
        const double t = estimate(job, machine(a));
        QVERIFY2(std::fabs(t - expected) < 1e-6, qPrintable(QString::number(t)));
    }

    void stops_data()
    {
        QTest::addColumn<QStringList>("job");
        QTest::addColumn<bool>("laser");
        QTest::addColumn<double>("expected");
        const QStringList powers{"M4", "G1X10S100F3000", "X20S500", "X30S100"};
        QTest::newRow("laser mode: power rides on the moves")
            << powers << true << trapezoidTime(30, 50, 100);
        QTest::newRow("spindle mode: every power change stops")
            << powers << false << 3.0 * triangleTime(10, 0, 0, 100);
        QTest::newRow("laser off and on stops even in laser mode")
            << QStringList{"M4", "G1X10S100F3000", "M5", "M4", "X20"} << true
            << 2.0 * triangleTime(10, 0, 0, 100);
        QTest::newRow("power alone on a line stops")
            << QStringList{"M4", "G1X10S100F3000", "S200", "X20"} << true
            << 2.0 * triangleTime(10, 0, 0, 100);
        QTest::newRow("power with the laser off never stops")
            << QStringList{"M5", "G1X10S100F3000", "X20S500"} << false
            << triangleTime(20, 0, 0, 100);
        QTest::newRow("dwell") << QStringList{"G1X50F3000", "G4P1.5", "X100"} << true
                               << 2.0 * trapezoidTime(50, 50, 100) + 1.5;
        QTest::newRow("coolant change")
            << QStringList{"G1X50F3000", "M8", "X100"} << true << 2.0 * trapezoidTime(50, 50, 100);
        QTest::newRow("G92 moves nothing")
            << QStringList{"G1X50F3000", "G92X0", "X50"} << true << trapezoidTime(100, 50, 100);
        QTest::newRow("comments and system lines")
            << QStringList{"$H", "(start)G1X50F3000 ; first", "$X", "X100"} << true
            << trapezoidTime(100, 50, 100);
    }
    void stops()
    {
        QFETCH(QStringList, job);
        QFETCH(bool, laser);
        QFETCH(double, expected);
        const double t = estimate(job, machine(100.0, 6000.0, laser));
        QVERIFY2(std::fabs(t - expected) < 1e-9, qPrintable(QString::number(t, 'g', 12)));
    }

    // A full circle of radius 10 cut in chords within the arc tolerance.
    void arcs_data()
    {
        QTest::addColumn<QString>("line");
        QTest::newRow("G2 with I") << "G2X0Y0I10J0F600";
        QTest::newRow("G3 with I") << "G3X0Y0I10J0F600";
    }
    void arcs()
    {
        QFETCH(QString, line);
        const GrblMachineSettings s = machine(1000.0);
        int blocks = 0;
        const double t = estimate({line}, s, &blocks);
        const double tol = s.arcTolerance;
        const int segments = int(std::floor(M_PI * 10.0 / std::sqrt(tol * (2.0 * 10.0 - tol))));
        QCOMPARE(blocks, segments);
        const double bound = 2.0 * M_PI * 10.0 / 10.0;
        QVERIFY2(t > bound * 0.99 && t < bound * 1.01, qPrintable(QString::number(t)));
        // A half circle by radius: half the time, near enough.
        const double half = estimate({QStringLiteral("G2X20Y0R10F600")}, s);
        QVERIFY2(std::fabs(half - t / 2.0) < 0.01, qPrintable(QString::number(half)));
    }

    void neverFasterThanTheFeed_data()
    {
        QTest::addColumn<QStringList>("job");
        QTest::newRow("zigzag") << zigzag(40, 30.0, 0.2);
        QStringList star{"M4", "F2400"};
        for (int i = 0; i < 50; ++i) {
            const double angle = i * 2.4;
            star << QStringLiteral("G0X%1Y%2")
                        .arg(50 + 40 * std::cos(angle), 0, 'f', 2)
                        .arg(50 + 40 * std::sin(angle), 0, 'f', 2)
                 << QStringLiteral("G1X50Y50S%1").arg(100 * (i % 7));
        }
        QTest::newRow("star with rapids") << star;
    }
    void neverFasterThanTheFeed()
    {
        QFETCH(QStringList, job);
        double previous = 1e300;
        const GrblMachineSettings base = machine();
        const double bound = feedOnlyBound(job, base);
        QVERIFY(bound > 0);
        for (const double accel : {5.0, 20.0, 100.0, 500.0, 2000.0, 1e7}) {
            const double t = estimate(job, machine(accel, 6000.0, true));
            QVERIFY2(t >= bound - 1e-9,
                     qPrintable(QStringLiteral("a=%1: %2 < %3").arg(accel).arg(t).arg(bound)));
            QVERIFY2(t <= previous + 1e-9, qPrintable(QStringLiteral("a=%1 slower").arg(accel)));
            previous = t;
        }
        // With near-instant acceleration only the feeds remain.
        QVERIFY2(previous < bound * 1.01, qPrintable(QString::number(previous / bound)));
    }

    void trapezoidTimes_data()
    {
        QTest::addColumn<double>("length");
        QTest::addColumn<double>("v0");
        QTest::addColumn<double>("v1");
        QTest::addColumn<double>("expected");
        QTest::newRow("cruise only") << 10.0 << 50.0 << 50.0 << 0.2;
        QTest::newRow("brake from the feed") << 12.5 << 50.0 << 0.0 << 0.5 + 0.0 / 50;
        QTest::newRow("accelerate then cruise") << 22.5 << 0.0 << 50.0 << 0.5 + 10.0 / 50.0;
        QTest::newRow("triangle between speeds")
            << 1.0 << 10.0 << 5.0 << triangleTime(1.0, 10.0, 5.0, 100.0);
    }
    void trapezoidTimes()
    {
        QFETCH(double, length);
        QFETCH(double, v0);
        QFETCH(double, v1);
        QFETCH(double, expected);
        QVERIFY(std::fabs(trapezoid_seconds(length, v0, v1, 50.0, 100.0) - expected) < 1e-12);
    }

    // Per-line times: a line ends when its last block has run or its dwell
    // waited; lines that do not move take the time of the line before.
    void lineTimes_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QVector<double>>("ends");
        // 10 mm at 10 mm/s with 100 mm/s², rest to rest: 1.1 s.
        const double t = trapezoidTime(10.0, 10.0, 100.0);
        QTest::newRow("stops between moves")
            << QStringList{"M4", "G1X10F600", "G4P2", ";layer", "G1Y10", "M5"}
            << QVector<double>{0.0, t, t + 2.0, t + 2.0, 2.0 * t + 2.0, 2.0 * t + 2.0};
        // Straight on: one profile over 20 mm, the first half ends at the
        // point where it has covered 10 mm accelerating to 10 mm/s and cruising.
        const double whole = trapezoidTime(20.0, 10.0, 100.0);
        QTest::newRow("moves planned together")
            << QStringList{"G1X10F600", "G1X20", "M2"} << QVector<double>{0.1 + 0.95, whole, whole};
        QTest::newRow("nothing moves")
            << QStringList{"G90", "(note)", "M5"} << QVector<double>{0.0, 0.0, 0.0};
    }
    void lineTimes()
    {
        QFETCH(QStringList, lines);
        QFETCH(QVector<double>, ends);
        GrblTimeEstimator e(machine(100.0));
        for (const QString &line : lines)
            e.feedLine(line);
        QCOMPARE(e.lines(), lines.size());
        const QVector<double> got = e.lineEndSeconds();
        QCOMPARE(got.size(), ends.size());
        for (int i = 0; i < ends.size(); ++i)
            QVERIFY2(std::fabs(got.at(i) - ends.at(i)) < 1e-9,
                     qPrintable(QStringLiteral("line %1: %2").arg(i).arg(got.at(i))));
        QVERIFY(std::fabs(got.last() - e.seconds()) < 1e-12);

        // Without line times the same plan, and nothing kept per line.
        GrblTimeEstimator whole(machine(100.0), false);
        for (const QString &line : lines)
            whole.feedLine(line);
        QCOMPARE(whole.lines(), lines.size());
        QCOMPARE(whole.seconds(), e.seconds());
        QVERIFY(whole.lineEndSeconds().isEmpty());
    }

    void settingsDump()
    {
        const QString dump = QStringLiteral("$0=10\r\n$11=0.020\r\n$12=0.005\r\n"
                                            "$110=6000.000 (x max rate, mm/min)\r\n"
                                            "$111 = 4000.5\r\n$32=1\r\n$120=abc\r\n"
                                            "$121=-3\r\n<Idle|MPos:0,0,0>\r\nok\r\n");
        const QMap<int, QString> values = parseGrblSettingsDump(dump);
        QCOMPARE(values.value(110), QStringLiteral("6000.000"));
        QCOMPARE(values.value(111), QStringLiteral("4000.5"));
        QVERIFY(!values.contains(120));
        QCOMPARE(values.size(), 7);
        const GrblMachineSettings s = GrblMachineSettings::fromMap(values);
        QCOMPARE(s.maxRate[0], 6000.0);
        QCOMPARE(s.maxRate[1], 4000.5);
        QCOMPARE(s.maxRate[2], 500.0);
        QCOMPARE(s.acceleration[0], 10.0); // unreadable: default
        QCOMPARE(s.acceleration[1], 10.0); // negative: default
        QCOMPARE(s.junctionDeviation, 0.02);
        QCOMPARE(s.arcTolerance, 0.005);
        QVERIFY(s.laserMode);

        const GrblMachineSettings d = GrblMachineSettings::fromMap({});
        QCOMPARE(d.maxRate[0], 500.0);
        QCOMPARE(d.acceleration[1], 10.0);
        QCOMPARE(d.junctionDeviation, 0.01);
        QVERIFY(!d.laserMode);

        const GrblMachineSettings info = GrblMachineSettings::fromDeviceInfo(
            {{QStringLiteral("$121"), QStringLiteral("800.000")},
             {QStringLiteral("$32"), QStringLiteral("0")},
             {QStringLiteral("ji_xing"), QStringLiteral("X1")}});
        QCOMPARE(info.acceleration[1], 800.0);
        QVERIFY(!info.laserMode);
    }

    // Over a slow link a line is planned only once its bytes are in: the
    // first move waits for its line, and a move whose successor is still on
    // the wire when it would end brakes to a stop at its end.
    void linkArrivals_data()
    {
        QTest::addColumn<QStringList>("job");
        QTest::addColumn<double>("bytesPerSecond");
        QTest::addColumn<double>("expected");
        const double move10 = trapezoidTime(10.0, 10.0, 100.0); // 1.1 s
        const double move20 = trapezoidTime(20.0, 10.0, 100.0); // 2.1 s
        const QStringList two{QStringLiteral("G1X10F600"), QStringLiteral("X20")};
        // 10 bytes (its end included) at 10 B/s.
        QTest::newRow("first line")
            << QStringList{QStringLiteral("G1X10F600")} << 10.0 << 1.0 + move10;
        // "X20" is in at 1.4 s, long before the first move would end: one
        // trapezoid over both.
        QTest::newRow("next in time") << two << 10.0 << 1.0 + move20;
        // At 2 B/s "X20" is in at 7 s; the first move (5 s .. 6.1 s) had to
        // stop, and the second starts from rest.
        QTest::newRow("next too late") << two << 2.0 << 7.0 + move10;
        // A dwell waits for its own line too.
        QTest::newRow("dwell") << QStringList{QStringLiteral("G4P0.5")} << 7.0 << 1.0 + 0.5;
    }

    void linkArrivals()
    {
        QFETCH(QStringList, job);
        QFETCH(double, bytesPerSecond);
        QFETCH(double, expected);
        GrblMachineSettings s = machine(100.0);
        s.linkBytesPerSecond = bytesPerSecond;
        const double t = estimate(job, s);
        QVERIFY2(std::fabs(t - expected) < 1e-9, qPrintable(QString::number(t, 'g', 12)));
    }

    // A 0.1 mm raster of burns and gaps at 6000 mm/min. Unlimited, the
    // planner holds it back; over a link slower than it needs, the time is
    // the link's (the sender keeps the receive buffer full); and a slower
    // link is never faster. A link far faster than the job needs changes
    // nothing but the first line's wait.
    void rasterOverTheLink()
    {
        QStringList job{QStringLiteral("M4"), QStringLiteral("G91"), QStringLiteral("G1F6000S0")};
        for (int i = 0; i < 3000; ++i)
            job << (i % 2 ? QStringLiteral("X.1S0") : QStringLiteral("X.1S500"));
        job << QStringLiteral("M5");
        double bytes = 0;
        for (const QString &line : job)
            bytes += line.size() + 1;

        GrblMachineSettings s = machine(1000.0, 6000.0, true);
        const double unlimited = estimate(job, s);
        const double planned = unlimited; // about 3 kB/s of this job
        QVERIFY(bytes / planned > 2500.0);

        double previous = 0.0;
        for (double rate : {8000.0, 2000.0, 1000.0, 500.0}) {
            s.linkBytesPerSecond = rate;
            const double t = estimate(job, s);
            QVERIFY2(t >= previous, qPrintable(QStringLiteral("%1 B/s faster").arg(rate)));
            QVERIFY2(t >= unlimited, qPrintable(QStringLiteral("%1 B/s").arg(rate)));
            // Never faster than the bytes can come.
            QVERIFY(t >= (bytes - GrblTimeEstimator::kReceiveBuffer) / rate);
            if (rate < bytes / planned) // the link is the limit, not the planner
                QVERIFY2(t < 1.05 * bytes / rate, qPrintable(QString::number(t * rate / bytes)));
            previous = t;
        }
        s.linkBytesPerSecond = 1e6;
        QVERIFY(std::fabs(estimate(job, s) - unlimited) < 1e-3);
    }

    // Long moves need few bytes: a serial link's rate changes the time of a
    // vector job only by the first line's wait.
    void vectorJobOverSerial()
    {
        QStringList job{QStringLiteral("G0X0Y0"), QStringLiteral("G1F3000")};
        for (int i = 0; i < 200; ++i)
            job << QStringLiteral("X%1Y%2").arg(i % 2 ? 0 : 50).arg(i * 0.5);
        GrblMachineSettings s = machine(500.0);
        const double unlimited = estimate(job, s);
        s.linkBytesPerSecond = 11520.0;
        const double serial = estimate(job, s);
        QVERIFY(serial >= unlimited);
        QVERIFY2(serial - unlimited < 0.01, qPrintable(QString::number(serial - unlimited)));
    }

    void wholeDevice()
    {
        QByteArray text("G1X100F3000\nG4P2\n");
        QBuffer job(&text);
        QVERIFY(job.open(QIODevice::ReadOnly));
        double t = 0;
        QVERIFY(GrblTimeEstimator::estimate(job, machine(), &t));
        QVERIFY(std::fabs(t - 4.5) < 1e-9);
        QBuffer closed;
        QVERIFY(!GrblTimeEstimator::estimate(closed, machine(), &t));
    }
};

QTEST_APPLESS_MAIN(TestGrblTimeEstimator)
#include "tst_grbl_time_estimator.moc"
