// The path emitter: words and numbers, curves, flushes, cancel, rotary bump.
#include "compaction_reference.h"
#include "curve_sampling.h"
#include "gcode_number.h"
#include "job_output.h"
#include "path_emitter.h"
#include "recording_device.h"
#include "tu_ceng.h"

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

QByteArray emitWith(const QPainterPath &path, const TuCeng &l,
                    const RotarySettings &rotary = RotarySettings())
{
    RecordingDevice device;
    JobOutput output(device, rotary);
    PathEmitter emitter(output, rotary, nullptr);
    emitter.setLayer(l);
    emitter.emitPath(path);
    output.finish();
    return device.all();
}

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
    void curveSamplesCarryNoPowerOrFeed();
    void flushesRepeatAllWords();
    void streamedSteps_data();
    void streamedSteps();
    void cancelStopsAfterCurrentElement();
    void matchesCompactedFullText_data();
    void matchesCompactedFullText();
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
    QTest::newRow("second subpath is a move")
        <<
        [] {
            QPainterPath p = polyline({{0, 0}, {1, 0}});
            p.moveTo(5, 0);
            p.lineTo(5, -1);
            return p;
        }()
        << 50 << 1200 << RotarySettings()
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
    QCOMPARE(emitWith(path, layer(power, speed), rotary), expected);
}

void TestPathEmitter::curveSamplesCarryNoPowerOrFeed()
{
    QPainterPath circle;
    circle.addEllipse(QPointF(100, -100), 20, 20);
    const QList<QByteArray> lines = emitWith(circle, layer(80, 5000)).split('\n');
    QVERIFY(lines.first().startsWith("G0X"));
    QVERIFY(lines.first().endsWith("S800.00F5000.00"));
    // The samples of four quarter circles (40 each), all without S and F.
    QPointF prev(120, 100);
    int samples = 0;
    for (int i = 1; i < lines.size(); ++i) {
        const QByteArray &line = lines[i];
        if (line.isEmpty())
            continue;
        QVERIFY2(!line.contains('S') && !line.contains('F'), line.constData());
        // A word that did not change is left out: keep the previous value.
        const QRegularExpressionMatch m
            = QRegularExpression(QStringLiteral("^(?:G1)?(?:X(-?[\\d.]+))?(?:Y(-?[\\d.]+))?$"))
                  .match(QString::fromLatin1(line));
        QVERIFY2(m.hasMatch(), line.constData());
        const QPointF p(m.captured(1).isEmpty() ? prev.x() : m.captured(1).toDouble(),
                        m.captured(2).isEmpty() ? prev.y() : m.captured(2).toDouble());
        const double step = std::hypot(p.x() - prev.x(), p.y() - prev.y());
        QVERIFY2(step < 0.8 + 0.02, line.constData());
        QVERIFY(std::fabs(std::hypot(p.x() - 100, p.y() - 100) - 20) < 0.02);
        prev = p;
        ++samples;
    }
    QCOMPARE(samples, 160);
}

void TestPathEmitter::flushesRepeatAllWords()
{
    // A zigzag long enough for several flushes. Work out, line by line, where
    // the buffer passes 30000 characters.
    QVector<QPointF> points;
    for (int i = 0; i < 4000; ++i)
        points.append(QPointF(i % 2 ? 300.25 : 12.5, -0.5 * i));
    const QPainterPath path = polyline(points);

    RecordingDevice device;
    JobOutput output(device, RotarySettings());
    PathEmitter emitter(output, RotarySettings(), nullptr);
    emitter.setLayer(layer(80, 5000));
    emitter.emitPath(path);

    QVector<int> piecesStartAt; // element index that opens each piece
    int buffered = 0;
    piecesStartAt.append(0);
    for (int i = 0; i < points.size(); ++i) {
        const QByteArray raw = QByteArray(i == 0 ? "G0X" : "G1X")
                               + QByteArray::number(points[i].x(), 'f', 2) + 'Y'
                               + QByteArray::number(-points[i].y(), 'f', 2) + "S800.00F5000.00\n";
        buffered += raw.size();
        if (buffered > PathEmitter::kFlushThreshold && i + 1 < points.size()) {
            buffered = 0;
            piecesStartAt.append(i + 1);
        }
    }
    QVERIFY(piecesStartAt.size() >= 3);
    QVERIFY(output.finish());

    // One line per element; the first line of every piece carries all its
    // words, every other line only what changed.
    const QList<QByteArray> lines = device.all().split('\n');
    QCOMPARE(lines.size(), points.size() + 1);
    for (int i = 0; i < points.size(); ++i) {
        const QPointF p = points[i];
        if (piecesStartAt.contains(i)) {
            const QByteArray full = QByteArray(i == 0 ? "G0X" : "G1X")
                                    + QByteArray::number(p.x(), 'f', 2) + 'Y'
                                    + QByteArray::number(-p.y(), 'f', 2) + "S800.00F5000.00";
            QCOMPARE(lines[i], full);
            continue;
        }
        const QByteArray changed
            = 'X' + QByteArray::number(p.x(), 'f', 2) + 'Y' + QByteArray::number(-p.y(), 'f', 2);
        // Only the first burn of the job changes the motion word.
        QCOMPARE(lines[i], i == 1 ? "G1" + changed : changed);
    }
}

void TestPathEmitter::streamedSteps_data()
{
    QTest::addColumn<int>("grey");
    QTest::addColumn<QByteArray>("greyLine");
    QTest::addColumn<QByteArray>("lastLine");
    // The grey burn follows a coast at S0.00 and precedes a full-power burn.
    QTest::newRow("black is full power")
        << 0 << QByteArray("X3.00S800.00\n") << QByteArray("X4.00\n");
    QTest::newRow("mid grey scales")
        << 128 << QByteArray("X3.00S398.43\n") << QByteArray("X4.00S800.00\n");
    QTest::newRow("white is none") << 255 << QByteArray("X3.00\n") << QByteArray("X4.00S800.00\n");
    QTest::newRow("out of range is clamped")
        << 300 << QByteArray("X3.00\n") << QByteArray("X4.00S800.00\n");
}

void TestPathEmitter::streamedSteps()
{
    QFETCH(int, grey);
    QFETCH(QByteArray, greyLine);
    QFETCH(QByteArray, lastLine);
    RecordingDevice device;
    JobOutput output(device, RotarySettings());
    PathEmitter emitter(output, RotarySettings(), nullptr);
    emitter.setLayer(layer(80, 5000));
    emitter.beginPath();
    emitter.travel(1, -1);
    emitter.coast(2, -1);
    emitter.burnGrey(3, -1, grey);
    emitter.burn(4, -1);
    emitter.endPath();
    QVERIFY(output.finish());
    QCOMPARE(device.all(),
             QByteArray("G0X1.00Y1.00S800.00F5000.00\nG1X2.00S0.00\n") + greyLine + lastLine);
}

void TestPathEmitter::cancelStopsAfterCurrentElement()
{
    std::atomic_bool cancel{false};
    RecordingDevice device;
    JobOutput output(device, RotarySettings());
    PathEmitter emitter(output, RotarySettings(), &cancel);
    emitter.setLayer(layer(80, 5000));
    emitter.beginPath();
    emitter.travel(1, 0);
    emitter.burn(2, 0);
    cancel = true;
    QVERIFY(emitter.stopRequested());
    emitter.burn(3, 0);
    emitter.endPath();
    QVERIFY(output.finish());
    QCOMPARE(device.all(), QByteArray("G0X1.00Y0.00S800.00F5000.00\nG1X2.00\n"));

    // A whole path given while cancelled writes nothing.
    device.writes.clear();
    emitter.emitPath(polyline({{0, 0}, {1, 1}}));
    QVERIFY(output.finish());
    QVERIFY(device.writes.isEmpty());
}

void TestPathEmitter::matchesCompactedFullText_data()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<int>("elements");
    QTest::newRow("short") << 1 << 50;
    QTest::newRow("several flushes") << 2 << 6000;
    QTest::newRow("many flushes") << 3 << 20000;
}

void TestPathEmitter::matchesCompactedFullText()
{
    // The emitter leaves out words as it writes; its job must equal the plain
    // way: every line with all its words, cut into pieces after the element
    // that passes 30000 characters, each piece compacted by the word pattern.
    QFETCH(int, seed);
    QFETCH(int, elements);
    QRandomGenerator rng{quint32(seed)};
    const TuCeng l = layer(37, 2750);
    const QByteArray full = "S" + fixedText(370.0, 2) + "F" + fixedText(2750.0, 2) + "\n";
    const QByteArray zero = "S" + fixedText(0.0, 2) + "F" + fixedText(2750.0, 2) + "\n";

    RecordingDevice device;
    JobOutput output(device, RotarySettings());
    PathEmitter emitter(output, RotarySettings(), nullptr);
    emitter.setLayer(l);
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
    for (int i = 0; i < elements; ++i) {
        const double x = value();
        const double y = value();
        switch (rng.bounded(5)) {
        case 0:
            emitter.travel(x, y);
            piece += line("G0X", x, y, full);
            break;
        case 1:
            emitter.burn(x, y);
            piece += line("G1X", x, y, full);
            break;
        case 2:
            emitter.coast(x, y);
            piece += line("G1X", x, y, zero);
            break;
        case 3: {
            const int grey = rng.bounded(256);
            emitter.burnGrey(x, y, grey);
            piece += line("G1X", x, y,
                          "S" + fixedText(370.0 * (255 - grey) / 255, 2) + "F"
                              + fixedText(2750.0, 2) + "\n");
            break;
        }
        default: {
            // A curve through the emitter's whole-path entry, as its own path.
            emitter.endPath();
            expected += referenceCompaction(QString::fromLatin1(piece));
            piece.clear();
            // Short curves (a few dozen samples), some of them of zero length.
            auto near = [&](double at) { return at + (rng.bounded(4) == 0 ? 0 : value() / 20); };
            QPainterPath curve(QPointF(x, y));
            const QPointF c1(near(x), near(y)), c2(near(x), near(y)), end(near(x), near(y));
            curve.cubicTo(c1, c2, end);
            emitter.emitPath(curve);
            QVector<QPointF> samples; // Qt leaves out a curve that stays on its start point
            if (curve.elementCount() == 4)
                sampleCubicByLength({x, y}, c1, c2, end, kCurveSampleStep, samples);
            QByteArray curvePiece = line("G0X", x, y, full);
            for (const QPointF &p : samples)
                curvePiece += line("G1X", p.x(), p.y(), "\n");
            expected += referenceCompaction(QString::fromLatin1(curvePiece));
            emitter.beginPath();
            continue;
        }
        }
        if (piece.size() > PathEmitter::kFlushThreshold) {
            expected += referenceCompaction(QString::fromLatin1(piece));
            piece.clear();
        }
    }
    emitter.endPath();
    QVERIFY(output.finish());
    expected += referenceCompaction(QString::fromLatin1(piece));
    const QStringList got = QString::fromLatin1(device.all()).split(QLatin1Char('\n'));
    const QStringList want = expected.split(QLatin1Char('\n'));
    for (int i = 0; i < qMin(got.size(), want.size()); ++i) {
        if (got[i] != want[i])
            QFAIL(qPrintable(QStringLiteral("line %1: %2 instead of %3 (after %4)")
                                 .arg(i + 1)
                                 .arg(got[i], want[i], i > 0 ? want[i - 1] : QString())));
    }
    QCOMPARE(got.size(), want.size());
}

QTEST_GUILESS_MAIN(TestPathEmitter)
#include "tst_path_emitter.moc"
