// The path emitter: words and numbers, curves sampled by length, flushes,
// grey power, cancel, rotary bump.
#include "compaction_reference.h"
#include "curve_sampling.h"
#include "gcode_number.h"
#include "grbl_job_check.h"
#include "job_output.h"
#include "job_simulator.h"
#include "path_emitter.h"
#include "tu_ceng.h"

#include <QBuffer>
#include <QPainterPath>
#include <QRandomGenerator>
#include <QtTest>
#include <cmath>

using namespace lumitra;

Q_DECLARE_METATYPE(QPainterPath)
Q_DECLARE_METATYPE(lumitra::RotarySettings)

namespace {

TuCeng layer(int power, int speed)
{
    TuCeng l;
    l.gonglv = power;
    l.sudu = speed;
    return l;
}

// An emitter for one layer writing into memory.
struct Rig
{
    explicit Rig(const TuCeng &l, const RotarySettings &rotary = RotarySettings(),
                 const std::atomic_bool *cancel = nullptr)
        : output((buffer.open(QIODevice::WriteOnly), buffer), rotary),
          emitter(output, rotary, cancel)
    {
        emitter.setLayer(l);
    }
    QByteArray finish() { return output.finish() ? buffer.data() : QByteArray("write failed"); }

    QBuffer buffer;
    JobOutput output;
    PathEmitter emitter;
};

QPainterPath polyline(const QVector<QPointF> &points)
{
    QPainterPath p(points.first());
    for (int i = 1; i < points.size(); ++i)
        p.lineTo(points[i]);
    return p;
}

} // namespace

class TestPathEmitter : public QObject
{
    Q_OBJECT

private slots:
    void lines_data();
    void lines();
    void streamedSteps();
    void cancelStopsAfterCurrentElement();
    void curveSamplesEvenlySpaced_data();
    void curveSamplesEvenlySpaced();
    void curveSamplesCarryNoPowerOrFeed();
    void fineSamplesStayWithinDeviation_data();
    void fineSamplesStayWithinDeviation();
    void fineCurvesLayer_data();
    void fineCurvesLayer();
    void flushesRepeatAllWords();
    void matchesCompactedFullText();
    void rasterRowsInIncrementsLandExactly_data();
    void rasterRowsInIncrementsLandExactly();
    void rotaryRasterStaysAbsolute();
};

void TestPathEmitter::lines_data()
{
    QTest::addColumn<QPainterPath>("path");
    QTest::addColumn<int>("power");
    QTest::addColumn<int>("speed");
    QTest::addColumn<RotarySettings>("rotary");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("first move then only X changes")
        << polyline({{10, -5}, {20, -5}}) << 80 << 5000 << RotarySettings()
        << QByteArray("G0X10.00Y5.00S800.00F5000.00\nG1X20.00\n");
    QTest::newRow("Y negated, two decimals")
        << polyline({{1.005, 2.5}, {-3, 0}, {-3, -0.125}}) << 100 << 300 << RotarySettings()
        << QByteArray("G0X1.00Y-2.50S1000.00F300.00\nG1X-3.00Y0.00\nY0.13\n");
    QPainterPath twoParts = polyline({{0, 0}, {1, 0}});
    twoParts.moveTo(5, 0);
    twoParts.lineTo(5, -1);
    QTest::newRow("second subpath is a move")
        << twoParts << 50 << 1200 << RotarySettings()
        << QByteArray("G0X0.00Y0.00S500.00F1200.00\nG1X1.00\nG0X5.00\nG1Y1.00\n");

    RotarySettings onX;
    onX.mode = RotarySettings::ByCircumference;
    onX.axis = QStringLiteral("X");
    onX.circumference = 100;
    onX.unitsPerTurn = 100;
    QTest::newRow("rotary on X bumps after the first move")
        << polyline({{10, -5}, {20, -5}}) << 80 << 5000 << onX
        << QByteArray("G0Z-10.000Y5.00S800.00F5000.00\nG91\nG0Z7\nZ-7\nG90\nG1Z-20.000\n");
    RotarySettings onY = onX;
    onY.axis = QStringLiteral("Y");
    onY.unitsPerTurn = 200;
    QTest::newRow("rotary on Y, no bump")
        << polyline({{10, -5}, {20, -5}}) << 80 << 5000 << onY
        << QByteArray("G0X10.00Z10.000S800.00F5000.00\nG1X20.00\n");
}

void TestPathEmitter::lines()
{
    QFETCH(QPainterPath, path);
    QFETCH(int, power);
    QFETCH(int, speed);
    QFETCH(RotarySettings, rotary);
    QFETCH(QByteArray, expected);
    Rig rig(layer(power, speed), rotary);
    rig.emitter.emitPath(path);
    QCOMPARE(rig.finish(), expected);
}

void TestPathEmitter::streamedSteps()
{
    // Coasts burn at S0.00; grey g burns at power x 10 x (255 - g) / 255,
    // clamped to white above 255.
    Rig rig(layer(80, 5000));
    rig.emitter.beginPath();
    rig.emitter.travel(1, -1);
    rig.emitter.coast(2, -1);
    rig.emitter.burnGrey(3, -1, 128);
    rig.emitter.burnGrey(4, -1, 300);
    rig.emitter.burnGrey(5, -1, 0);
    rig.emitter.burn(6, -1);
    rig.emitter.endPath();
    QCOMPARE(rig.finish(), QByteArray("G0X1.00Y1.00S800.00F5000.00\nG1X2.00S0.00\nX3.00S398.43\n"
                                      "X4.00S0.00\nX5.00S800.00\nX6.00\n"));
}

void TestPathEmitter::cancelStopsAfterCurrentElement()
{
    std::atomic_bool cancel{false};
    Rig rig(layer(80, 5000), RotarySettings(), &cancel);
    rig.emitter.beginPath();
    rig.emitter.travel(1, 0);
    rig.emitter.burn(2, 0);
    cancel = true;
    QVERIFY(rig.emitter.stopRequested());
    rig.emitter.burn(3, 0);
    rig.emitter.endPath();
    rig.emitter.emitPath(polyline({{0, 0}, {1, 1}})); // a whole path writes nothing either
    QCOMPARE(rig.finish(), QByteArray("G0X1.00Y0.00S800.00F5000.00\nG1X2.00\n"));
}

void TestPathEmitter::curveSamplesEvenlySpaced_data()
{
    QTest::addColumn<QPointF>("p0");
    QTest::addColumn<QPointF>("c1");
    QTest::addColumn<QPointF>("c2");
    QTest::addColumn<QPointF>("p3");
    QTest::addColumn<double>("tolerance"); // of each sample's place along the curve, mm
    QTest::newRow("s-curve") << QPointF(0, 0) << QPointF(50, 0) << QPointF(-50, 30)
                             << QPointF(0, 30) << 0.005;
    QTest::newRow("uneven speed") << QPointF(0, 0) << QPointF(0, 0) << QPointF(1, 1)
                                  << QPointF(25, 3) << 0.005;
    // Controls on the chord but bunched at one end: the parameter runs unevenly.
    QTest::newRow("straight, bunched controls")
        << QPointF(0, 0) << QPointF(0.5, 0) << QPointF(1, 0) << QPointF(10, 0) << 0.01;
    QTest::newRow("short") << QPointF(0, 0) << QPointF(0.2, 0.3) << QPointF(0.5, 0.3)
                           << QPointF(0.7, 0) << 0.005;
    QTest::newRow("long") << QPointF(0, 0) << QPointF(900, 500) << QPointF(-400, 800)
                          << QPointF(300, 300) << 0.005;
    QTest::newRow("zero length gives the end only")
        << QPointF(3, 4) << QPointF(3, 4) << QPointF(3, 4) << QPointF(3, 4) << 0.005;
}

void TestPathEmitter::curveSamplesEvenlySpaced()
{
    QFETCH(QPointF, p0);
    QFETCH(QPointF, c1);
    QFETCH(QPointF, c2);
    QFETCH(QPointF, p3);
    QFETCH(double, tolerance);

    // The cubic as a very fine polyline, with the length run so far at each point.
    const int n = 200000;
    QVector<QPointF> fine{p0};
    QVector<double> run{0.0};
    double finest = 0; // no sample is farther than a fine segment from the polyline
    for (int i = 1; i <= n; ++i) {
        const double t = double(i) / n, mt = 1 - t;
        fine.append(mt * mt * mt * p0 + 3 * mt * mt * t * c1 + 3 * mt * t * t * c2
                    + t * t * t * p3);
        const QPointF d = fine[i] - fine[i - 1];
        run.append(run.last() + std::hypot(d.x(), d.y()));
        finest = qMax(finest, run[i] - run[i - 1]);
    }
    const double length = run.last();
    QVERIFY(std::fabs(cubicLength(p0, c1, c2, p3) - length) <= length * 1e-3 + 1e-9);

    QVector<QPointF> samples;
    sampleCubicByLength(p0, c1, c2, p3, kCurveSampleStep, samples);
    // One sample per whole step that fits before the end, and the end itself.
    const int expectedCount = int(std::ceil(cubicLength(p0, c1, c2, p3) / kCurveSampleStep));
    QCOMPARE(samples.size(), qMax(1, expectedCount));
    QCOMPARE(samples.last(), p3);

    // Sample i lies (i + 1) steps along the curve, within the tolerance (about
    // the written precision): find it on the fine polyline, walking forwards.
    int from = 0;
    for (int i = 0; i + 1 < samples.size(); ++i) {
        const double want = (i + 1) * kCurveSampleStep;
        int best = from;
        double bestDistance = 1e9;
        for (int j = from; j < fine.size() && run[j] < want + 0.1; ++j) {
            const QPointF d = fine[j] - samples[i];
            if (std::hypot(d.x(), d.y()) < bestDistance) {
                bestDistance = std::hypot(d.x(), d.y());
                best = j;
            }
        }
        QVERIFY2(bestDistance < 0.001 + finest, qPrintable(QString::number(bestDistance)));
        QVERIFY2(std::fabs(run[best] - want) < tolerance + finest,
                 qPrintable(QStringLiteral("sample %1 at %2").arg(i).arg(run[best])));
        from = best;
    }
}

void TestPathEmitter::curveSamplesCarryNoPowerOrFeed()
{
    QPainterPath circle;
    circle.addEllipse(QPointF(100, -100), 20, 20);
    Rig rig(layer(80, 5000));
    rig.emitter.emitPath(circle);
    const QList<QByteArray> lines = rig.finish().split('\n');
    QVERIFY(lines.first().startsWith("G0X"));
    QVERIFY(lines.first().endsWith("S800.00F5000.00"));
    // The samples of four quarter circles (40 each), all without S and F.
    static const QRegularExpression move(
        QStringLiteral("^(?:G1)?(?:X(-?[\\d.]+))?(?:Y(-?[\\d.]+))?$"));
    QPointF prev(120, 100);
    int samples = 0;
    for (int i = 1; i < lines.size() && !lines[i].isEmpty(); ++i) {
        const QRegularExpressionMatch m = move.match(QString::fromLatin1(lines[i]));
        QVERIFY2(m.hasMatch(), lines[i].constData());
        // A word that did not change is left out: keep the previous value.
        const QPointF p(m.captured(1).isEmpty() ? prev.x() : m.captured(1).toDouble(),
                        m.captured(2).isEmpty() ? prev.y() : m.captured(2).toDouble());
        QVERIFY2(std::hypot(p.x() - prev.x(), p.y() - prev.y()) < 0.8 + 0.02, lines[i].constData());
        QVERIFY(std::fabs(std::hypot(p.x() - 100, p.y() - 100) - 20) < 0.02);
        prev = p;
        ++samples;
    }
    QCOMPARE(samples, 160);
}

void TestPathEmitter::flushesRepeatAllWords()
{
    // A zigzag long enough for several flushes. A flush follows the element
    // whose full line takes the text past 30000 characters; the first line
    // after it carries all its words again, every other line only what changed.
    QVector<QPointF> points;
    for (int i = 0; i < 4000; ++i)
        points.append(QPointF(i % 2 ? 300.25 : 12.5, -0.5 * i));
    Rig rig(layer(80, 5000));
    rig.emitter.emitPath(polyline(points));
    const QList<QByteArray> lines = rig.finish().split('\n');
    QCOMPARE(lines.size(), points.size() + 1);

    int buffered = 0;
    int flushes = 0;
    for (int i = 0; i < points.size(); ++i) {
        const QByteArray xy = 'X' + QByteArray::number(points[i].x(), 'f', 2) + 'Y'
                              + QByteArray::number(-points[i].y(), 'f', 2);
        const bool pieceStart = i == 0 || buffered > PathEmitter::kFlushThreshold;
        if (pieceStart) {
            flushes += i > 0;
            buffered = 0;
        }
        buffered += QByteArray("G1" + xy + "S800.00F5000.00\n").size();
        if (pieceStart)
            QCOMPARE(lines[i], (i == 0 ? "G0" : "G1") + xy + "S800.00F5000.00");
        else // only the first burn of the job changes the motion word
            QCOMPARE(lines[i], i == 1 ? "G1" + xy : xy);
    }
    QVERIFY(flushes >= 2);
}

void TestPathEmitter::matchesCompactedFullText()
{
    // The emitter leaves out words as it writes; its job must equal the plain
    // way: every line with all its words, cut into pieces after the element
    // that passes 30000 characters, each piece compacted by the word pattern.
    QRandomGenerator rng(3);
    const QByteArray full = "S" + fixedText(370.0, 2) + "F" + fixedText(2750.0, 2) + "\n";
    const QByteArray zero = "S" + fixedText(0.0, 2) + "F" + fixedText(2750.0, 2) + "\n";
    Rig rig(layer(37, 2750));
    PathEmitter &emitter = rig.emitter;
    emitter.beginPath();

    QString expected;
    QByteArray piece;
    auto value = [&] {
        // Few distinct values, so that words repeat, and some that differ
        // only in their last digit or in sign.
        const double grid[] = {0.0, -0.0, 1.0, 1.004, 1.006, -1.0, 12.5, 300.25, -0.001};
        return rng.bounded(3) == 0 ? rng.generateDouble() * 400 - 200 : grid[rng.bounded(9)];
    };
    auto line = [](const char *motion, double x, double y, const QByteArray &words) {
        return QByteArray(motion) + fixedText(x, 2) + "Y" + fixedText(-y, 2) + words;
    };
    for (int i = 0; i < 20000; ++i) {
        const double x = value();
        const double y = value();
        const int kind = rng.bounded(4);
        if (kind == 0) {
            emitter.travel(x, y);
            piece += line("G0X", x, y, full);
        } else if (kind == 1) {
            emitter.burn(x, y);
            piece += line("G1X", x, y, full);
        } else if (kind == 2) {
            emitter.coast(x, y);
            piece += line("G1X", x, y, zero);
        } else {
            const int grey = rng.bounded(256);
            emitter.burnGrey(x, y, grey);
            const QByteArray power = fixedText(370.0 * (255 - grey) / 255, 2);
            piece += line("G1X", x, y, "S" + power + "F" + fixedText(2750.0, 2) + "\n");
        }
        if (piece.size() > PathEmitter::kFlushThreshold) {
            expected += referenceCompaction(QString::fromLatin1(piece));
            piece.clear();
        }
    }
    emitter.endPath();
    expected += referenceCompaction(QString::fromLatin1(piece));
    const QStringList got = QString::fromLatin1(rig.finish()).split(QLatin1Char('\n'));
    const QStringList want = expected.split(QLatin1Char('\n'));
    for (int i = 0; i < qMin(got.size(), want.size()); ++i) {
        if (got[i] != want[i])
            QFAIL(qPrintable(QStringLiteral("line %1: %2 instead of %3 (after %4)")
                                 .arg(i + 1)
                                 .arg(got[i], want[i], i > 0 ? want[i - 1] : QString())));
    }
    QCOMPARE(got.size(), want.size());
}

void TestPathEmitter::rasterRowsInIncrementsLandExactly_data()
{
    QTest::addColumn<QPointF>("shift");
    QTest::addColumn<int>("seed");
    QTest::newRow("at the design's place") << QPointF() << 5;
    QTest::newRow("moved to a job start") << QPointF(-13.337, 41.005) << 6;
}

void TestPathEmitter::rasterRowsInIncrementsLandExactly()
{
    // Rows of raster runs long enough for several flushes, at pixel borders
    // that are not whole hundredths. Written as increments, every move must
    // end where the absolute line would have put it (its coordinates rounded
    // to the hundredth), with no drift however many increments add up, and
    // every piece must leave the controller in absolute mode.
    QFETCH(QPointF, shift);
    QFETCH(int, seed);
    QRandomGenerator rng{quint32(seed)};
    enum Kind { Travel, Burn, Coast };
    struct Step
    {
        double x, y;
        Kind kind;
    };
    QVector<QVector<Step>> paths;
    for (int p = 0; p < 3; ++p) {
        QVector<Step> steps;
        double y = -rng.generateDouble() * 100;
        for (int row = 0; row < 120; ++row) {
            double x = 3.3 + rng.generateDouble();
            steps.append({x, y, Travel});
            const int runs = 10 + rng.bounded(60);
            for (int r = 0; r < runs; ++r) {
                x += 0.0833 * (1 + rng.bounded(40)) * (row % 2 ? -1 : 1);
                steps.append({x, y, rng.bounded(2) == 0 ? Burn : Coast});
            }
            y -= 0.0833;
        }
        paths.append(steps);
    }
    Rig rig(layer(80, 6000));
    rig.emitter.setRasterWords(true);
    rig.emitter.setShift(shift);
    for (const QVector<Step> &steps : qAsConst(paths)) {
        rig.emitter.beginPath();
        for (const Step &s : steps) {
            if (s.kind == Travel)
                rig.emitter.travel(s.x, s.y);
            else if (s.kind == Burn)
                rig.emitter.burn(s.x, s.y);
            else
                rig.emitter.coast(s.x, s.y);
        }
        rig.emitter.endPath();
    }
    const QByteArray job = rig.finish();
    QCOMPARE(grblProblem(job), QString());
    QVERIFY(job.count("G91\n") > paths.size()); // flushes inside the paths
    QVERIFY(job.endsWith("G90\n"));

    // Every G91 is closed by a G90 before the next one and at the end.
    bool relative = false;
    for (const QByteArray &l : job.split('\n')) {
        if (l == "G91") {
            QVERIFY(!relative);
            relative = true;
        } else if (l == "G90") {
            QVERIFY(relative);
            relative = false;
        }
    }
    QVERIFY(!relative);

    // Follow the job and compare every move's end with the absolute position.
    auto hundredths = [](const QPointF &p) {
        return qMakePair(std::llround(p.x() * 100), std::llround(p.y() * 100));
    };
    QVector<QPair<long long, long long>> got, expected;
    JobSimulator sim;
    for (const QByteArray &l : job.split('\n')) {
        sim.feedLine(QString::fromLatin1(l), [&](const JobSimulator::Move &m) {
            if (got.isEmpty() || got.last() != hundredths(m.to))
                got.append(hundredths(m.to));
        });
    }
    // Zero-length moves leave no line: compare the distinct positions in order.
    for (const QVector<Step> &steps : qAsConst(paths)) {
        for (const Step &s : steps) {
            const auto h = qMakePair(std::llround(std::round((s.x + shift.x()) * 100)),
                                     std::llround(std::round(-(s.y - shift.y()) * 100)));
            if (expected.isEmpty() || expected.last() != h)
                expected.append(h);
        }
    }
    QCOMPARE(got.size(), expected.size());
    for (int i = 0; i < got.size(); ++i) {
        if (got[i] != expected[i])
            QFAIL(qPrintable(QStringLiteral("move %1 ends at %2,%3 instead of %4,%5")
                                 .arg(i)
                                 .arg(got[i].first)
                                 .arg(got[i].second)
                                 .arg(expected[i].first)
                                 .arg(expected[i].second)));
    }
    // Increments are short: the lines average under nine bytes.
    const int lines = job.count('\n');
    QVERIFY2(job.size() < lines * 9, qPrintable(QString::number(double(job.size()) / lines)));
}

namespace {

QPointF bezier(const QPointF &p0, const QPointF &c1, const QPointF &c2, const QPointF &p3, double u)
{
    const double v = 1 - u;
    return v * v * v * p0 + 3 * v * v * u * c1 + 3 * v * u * u * c2 + u * u * u * p3;
}

double distanceToSegment(const QPointF &p, const QPointF &a, const QPointF &b)
{
    const QPointF d = b - a;
    const double len2 = QPointF::dotProduct(d, d);
    const double t = len2 > 0 ? qBound(0.0, QPointF::dotProduct(p - a, d) / len2, 1.0) : 0.0;
    return QLineF(p, a + t * d).length();
}

// The G1 points of a job text.
QVector<QPointF> burnPoints(const QByteArray &job)
{
    QVector<QPointF> points;
    QPointF at;
    for (const QByteArray &line : job.split('\n')) {
        const QRegularExpression word(QStringLiteral("([XY])(-?[0-9.]+)"));
        auto it = word.globalMatch(QString::fromLatin1(line));
        bool moved = false;
        while (it.hasNext()) {
            const auto m = it.next();
            (m.captured(1) == QLatin1String("X") ? at.rx() : at.ry()) = m.captured(2).toDouble();
            moved = true;
        }
        if (moved)
            points.append(at);
    }
    return points;
}

} // namespace

void TestPathEmitter::fineSamplesStayWithinDeviation_data()
{
    QTest::addColumn<QPointF>("p0");
    QTest::addColumn<QPointF>("c1");
    QTest::addColumn<QPointF>("c2");
    QTest::addColumn<QPointF>("p3");
    // A quarter circle of radius r as a cubic has its controls at k r, k = 0.5523.
    const double k = 0.5522847498;
    const double r = 1.25;
    QTest::newRow("quarter of a 1.25 mm circle")
        << QPointF(r, 0) << QPointF(r, k * r) << QPointF(k * r, r) << QPointF(0, r);
    QTest::newRow("s-curve") << QPointF(0, 0) << QPointF(10, 30) << QPointF(20, -30)
                             << QPointF(30, 0);
    QTest::newRow("large sweep") << QPointF(0, 0) << QPointF(0, 200) << QPointF(200, 200)
                                 << QPointF(200, 0);
    QTest::newRow("a straight cubic")
        << QPointF(0, 0) << QPointF(1, 1) << QPointF(2, 2) << QPointF(3, 3);
    QTest::newRow("a point") << QPointF(5, 5) << QPointF(5, 5) << QPointF(5, 5) << QPointF(5, 5);
}

void TestPathEmitter::fineSamplesStayWithinDeviation()
{
    QFETCH(QPointF, p0);
    QFETCH(QPointF, c1);
    QFETCH(QPointF, c2);
    QFETCH(QPointF, p3);
    QVector<QPointF> samples;
    sampleCubicByDeviation(p0, c1, c2, p3, kFineCurveDeviation, samples);
    QVERIFY(!samples.isEmpty());
    QCOMPARE(samples.last(), p3);
    samples.prepend(p0);
    // Every point of the curve lies within the deviation of the chord over its parameter
    // stretch (even steps of the parameter).
    const int n = samples.size() - 1;
    double worst = 0;
    for (int i = 0; i < n; ++i)
        for (int j = 0; j <= 16; ++j) {
            const double u = (i + j / 16.0) / n;
            worst = qMax(worst,
                         distanceToSegment(bezier(p0, c1, c2, p3, u), samples[i], samples[i + 1]));
        }
    QVERIFY2(worst <= kFineCurveDeviation, qPrintable(QString::number(worst)));
}

void TestPathEmitter::fineCurvesLayer_data()
{
    QTest::addColumn<double>("radius");
    QTest::addColumn<bool>("fine");
    QTest::addColumn<double>("lowestSag");  // the largest chord sag must reach at least this
    QTest::addColumn<double>("highestSag"); // and stay at or below this
    // Chords of 0.8 mm on a 1.25 mm circle sag by 1.25 - sqrt(1.25^2 - 0.4^2) = 0.066 mm;
    // fine ones stay within 0.01 mm plus the rounding of two decimals (0.005 * sqrt 2).
    QTest::newRow("1.25 mm circle, default steps") << 1.25 << false << 0.05 << 0.07;
    QTest::newRow("1.25 mm circle, fine") << 1.25 << true << 0.0 << 0.01 + 0.0071;
    QTest::newRow("3 mm circle, fine") << 3.0 << true << 0.0 << 0.01 + 0.0071;
}

void TestPathEmitter::fineCurvesLayer()
{
    QFETCH(double, radius);
    QFETCH(bool, fine);
    QFETCH(double, lowestSag);
    QFETCH(double, highestSag);
    TuCeng l = layer(50, 1000);
    l.jingxi = fine;
    Rig rig(l);
    const QPointF centre(20, -20);
    QPainterPath circle;
    circle.addEllipse(centre, radius, radius);
    rig.emitter.emitPath(circle);
    const QVector<QPointF> points = burnPoints(rig.finish());
    QVERIFY(points.size() > 8);
    // Machine y is the negated scene y.
    const QPointF c(centre.x(), -centre.y());
    double worst = 0;
    for (int i = 0; i + 1 < points.size(); ++i) {
        const QPointF mid = (points[i] + points[i + 1]) / 2;
        worst = qMax(worst, radius - QLineF(c, mid).length());
    }
    QVERIFY2(worst >= lowestSag && worst <= highestSag, qPrintable(QString::number(worst)));
}

void TestPathEmitter::rotaryRasterStaysAbsolute()
{
    // The rotary rewrite rounds every number it scales: increments would add
    // up its rounding, so under it raster rows keep absolute words.
    RotarySettings rotary;
    rotary.mode = RotarySettings::ByDiameter;
    rotary.diameter = 47.0;
    Rig rig(layer(80, 6000), rotary);
    rig.emitter.setRasterWords(true);
    rig.emitter.beginPath();
    rig.emitter.travel(1.0, -5.0);
    for (int i = 1; i <= 200; ++i)
        i % 2 ? rig.emitter.burn(1.0 + 0.1 * i, -5.0) : rig.emitter.coast(1.0 + 0.1 * i, -5.0);
    rig.emitter.endPath();
    const QByteArray job = rig.finish();
    QVERIFY(!job.contains("G91\nG1"));
    QVERIFY(job.contains("X21"));
}

QTEST_GUILESS_MAIN(TestPathEmitter)
#include "tst_path_emitter.moc"
