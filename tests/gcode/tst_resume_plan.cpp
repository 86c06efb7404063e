#include "gcode_line_code.h"
#include "job_simulator.h"
#include "job_state_index.h"
#include "resume_plan.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using lumitra::gcode::ModalState;
using lumitra::gcode::ModalTracker;

// The state a job has at a line, and the lines that restore it safely.
class TestResumePlan : public QObject
{
    Q_OBJECT

private slots:
    void stateBefore_data();
    void stateBefore();
    void preamble_data();
    void preamble();
    void resumeEveryLine_data();
    void resumeEveryLine();
    void lineMapping();
    void resumesAFileAsItStands();
    void indexKnowsEveryLine();
};

namespace {

// Vector moves in absolute coordinates, constant power.
const QStringList kVectorJob{"M4",     "M8",     "G90",    "G0X10Y10", "G1X20Y10S500F1200",
                             "X20Y20", "X10Y20", "X10Y10", "G0X30Y30", "G1X40Y35",
                             "M9",     "G1S0",   "M5",     "G90",      "G0X0Y0",
                             "M2"};

// Raster rows as relative moves, dynamic power, power changing along the row.
const QStringList kRasterJob{
    "G90 G21", "M4 S0",         "G0 X5 Y5", "G91",     "G1 F3000",      "X0.3 S200",
    "X0.2 S0", "X0.5 S800",     "X0.1 S0",  "G0 Y0.1", "G1 X-0.4 S350", "X-0.7 S0",
    "G0 Y0.1", "G1 X1.1 S1000", "G90",      "M5",      "G0 X0 Y0"};

// Arcs with modal G2 continuation lines, constant power.
const QStringList kArcJob{"G21",
                          "G90",
                          "M3 S300",
                          "G0 X10 Y10",
                          "G1 F400",
                          "X20 Y10",
                          "G2 X30 Y20 I0 J10",
                          "X20 Y30 I-10 J0",
                          "G1 X10 Y30",
                          "G3 X10 Y10 I0 J-10",
                          "M5"};

// A rotary job: the cylinder turns with Z, rows run relatively.
const QStringList kRotaryJob{
    "G90 G21",   "M4 S0", "G0X10Z72.000S0", "G91",      "G1X5S500F1500", "X5", "G0Z0.720",
    "G1X-5S500", "X-5",   "G0Z0.720",       "G1X5S500", "G90",           "M5", "G0X0Z0"};

// Arcs continued by modal lines, with a comment and a power-only line
// between them.
const QStringList kArcCommentJob{"G21 G90",    "M4 S500", "G1 F600",      "G2 X10 Y0 I5 J0",
                                 "(next arc)", "S400",    "X0 Y0 I-5 J0", "M5"};

// In inches.
const QStringList kInchJob{"G20", "G90", "M3 S300", "G0 X1 Y1", "G1 F40", "X2 Y1", "M5"};

struct Burn
{
    QPointF from, to;
    double power;
};

// Burnt moves of `lines`, each with the number (1-based) of its line.
QList<QPair<int, Burn>> burnt(const QStringList &lines)
{
    JobSimulator sim;
    QList<QPair<int, Burn>> out;
    for (int i = 0; i < lines.size(); ++i)
        sim.feedLine(lines.at(i), [&](const JobSimulator::Move &m) {
            if (m.burning)
                out.append({i + 1, Burn{m.from, m.to, m.power}});
        });
    return out;
}

bool samePoint(const QPointF &a, const QPointF &b)
{
    return qAbs(a.x() - b.x()) < 1e-6 && qAbs(a.y() - b.y()) < 1e-6;
}

// A machine left in an unlucky state: laser on, relative inches, arc mode.
const QStringList kDirtyMachine{"G20", "G91", "M3 S999", "G2 X0.1 Y0 I0.05 J0", "F5"};

} // namespace

void TestResumePlan::stateBefore_data()
{
    QTest::addColumn<QStringList>("job");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("motion");
    QTest::addColumn<bool>("absolute");
    QTest::addColumn<bool>("inches");
    QTest::addColumn<int>("spindle");
    QTest::addColumn<double>("power");
    QTest::addColumn<double>("feed");
    QTest::addColumn<QPointF>("position");
    QTest::newRow("start") << kVectorJob << 1 << 0 << true << false << 5 << 0.0 << 0.0
                           << QPointF(0, 0);
    QTest::newRow("inside the square")
        << kVectorJob << 7 << 1 << true << false << 4 << 500.0 << 1200.0 << QPointF(20, 20);
    QTest::newRow("after the laser went off")
        << kVectorJob << 15 << 1 << true << false << 5 << 0.0 << 1200.0 << QPointF(40, 35);
    QTest::newRow("raster row, relative")
        << kRasterJob << 9 << 1 << false << false << 4 << 800.0 << 3000.0 << QPointF(6.0, 5);
    QTest::newRow("raster second row")
        << kRasterJob << 12 << 1 << false << false << 4 << 350.0 << 3000.0 << QPointF(5.7, 5.1);
    QTest::newRow("arc mode") << kArcJob << 8 << 2 << true << false << 3 << 300.0 << 400.0
                              << QPointF(30, 20);
    QTest::newRow("inches") << kInchJob << 7 << 1 << true << true << 3 << 300.0 << 40.0
                            << QPointF(2 * 25.4, 25.4);
}

void TestResumePlan::stateBefore()
{
    QFETCH(QStringList, job);
    QFETCH(int, line);
    const ModalState s = lumitra::gcode::modalStateBefore(job, line);
    QTEST(s.motion, "motion");
    QTEST(s.absolute, "absolute");
    QTEST(s.inches, "inches");
    QTEST(s.spindle, "spindle");
    QTEST(s.power, "power");
    QTEST(s.feed, "feed");
    QFETCH(QPointF, position);
    QVERIFY2(samePoint(s.position, position),
             qPrintable(QString("%1,%2").arg(s.position.x()).arg(s.position.y())));
}

void TestResumePlan::preamble_data()
{
    QTest::addColumn<QStringList>("job");
    QTest::addColumn<int>("line");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("vector, dynamic power")
        << kVectorJob << 7 << QStringList{"M5 S0", "G90 G21", "G0 X20 Y20", "G0 F1200", "M4 S500"};
    QTest::newRow("relative raster row")
        << kRasterJob << 12
        << QStringList{"M5 S0", "G90 G21", "G0 X5.7 Y5.1", "G0 F3000", "G91", "M4 S350"};
    QTest::newRow("inches, constant power")
        << kInchJob << 6
        << QStringList{"M5 S0", "G90 G21", "G0 X25.4 Y25.4", "G20", "G0 F40", "M3 S300"};
    QTest::newRow("arc mode") << kArcJob << 8
                              << QStringList{"M5 S0", "G90 G21", "G0 X30 Y20", "G0 F400",
                                             "M3 S300"};
    QTest::newRow("start of the job")
        << kVectorJob << 1 << QStringList{"M5 S0", "G90 G21", "G0 X0 Y0", "S0"};
    // A rotary job turns the cylinder with Z: the turn is restored too.
    QTest::newRow("rotary") << kRotaryJob << 9
                            << QStringList{"M5 S0",    "G90 G21", "G0 X15 Y0 Z72.72",
                                           "G0 F1500", "G91",     "M4 S500"};
}

void TestResumePlan::preamble()
{
    QFETCH(QStringList, job);
    QFETCH(int, line);
    QTEST(lumitra::gcode::resumePreamble(lumitra::gcode::modalStateBefore(job, line)), "expected");
}

void TestResumePlan::resumeEveryLine_data()
{
    QTest::addColumn<QStringList>("job");
    QTest::newRow("vector, absolute, M4") << kVectorJob;
    QTest::newRow("raster rows, G91, M4") << kRasterJob;
    QTest::newRow("arcs, M3") << kArcJob;
    QTest::newRow("rotary, G91, M4") << kRotaryJob;
    QTest::newRow("arcs across a comment") << kArcCommentJob;
    QTest::newRow("inches, M3") << kInchJob;
}

// From every line: the preamble brings even a machine in an unlucky state to
// the job's state without burning, the arc mode is carried over, and what
// burns afterwards is exactly what the job burns from that line on.
void TestResumePlan::resumeEveryLine()
{
    QFETCH(QStringList, job);
    const auto whole = burnt(job);
    for (int n = 1; n <= job.size() + 1; ++n) {
        const auto r = lumitra::gcode::buildResumeJob(job, n);
        QCOMPARE(r.fromLine, n);
        const ModalState want = lumitra::gcode::modalStateBefore(job, n);

        ModalTracker machine;
        JobSimulator sim;
        bool burntEarly = false;
        for (const QString &l : kDirtyMachine) {
            machine.feed(l);
            sim.feedLine(l, [](const JobSimulator::Move &) {});
        }
        for (int i = 0; i < r.preambleLines; ++i) {
            machine.feed(r.lines.at(i));
            sim.feedLine(r.lines.at(i),
                         [&](const JobSimulator::Move &m) { burntEarly |= m.burning; });
        }
        QVERIFY2(!burntEarly, qPrintable(QString("line %1").arg(n)));
        ModalState reached = machine.state();
        if (!want.hasFeed) { // no feed to restore: the machine keeps its own
            reached.hasFeed = false;
            reached.feed = 0.0;
        }
        // The preamble stays in G0, where no beam fires; the job's own mode
        // is named on the first resumed line that moves.
        QCOMPARE(reached.motion, 0);
        reached.motion = want.motion;
        QVERIFY2(reached == want, qPrintable(QString("line %1").arg(n)));
        QVERIFY(samePoint(sim.position(), want.position));

        // The rest of the job follows word for word, but for the motion mode
        // in front of the first line that moves without naming its own.
        static const QRegularExpression motionWord("G0*[0-3](?![0-9.])");
        static const QRegularExpression axisWord("[XYZ]");
        bool named = want.motion == 0;
        for (int i = r.preambleLines; i < r.lines.size(); ++i) {
            const QString original = job.at(n - 1 + i - r.preambleLines);
            const QString code = lumitra::gcodeLineCode(original);
            if (named || (!code.contains(motionWord) && !code.contains(axisWord))) {
                QCOMPARE(r.lines.at(i), original);
            } else if (code.contains(motionWord)) {
                QCOMPARE(r.lines.at(i), original);
                named = true;
            } else {
                QCOMPARE(r.lines.at(i), QString("G%1 ").arg(want.motion) + original);
                named = true;
            }
        }

        // Burn geometry (the simulator runs arcs as chords, the same on both sides).
        QList<Burn> expected;
        for (const auto &b : whole)
            if (b.first >= n)
                expected << b.second;
        const auto got = burnt(r.lines);
        QCOMPARE(got.size(), expected.size());
        for (int i = 0; i < got.size(); ++i) {
            QVERIFY(got.at(i).first > r.preambleLines);
            QVERIFY(samePoint(got.at(i).second.from, expected.at(i).from));
            QVERIFY(samePoint(got.at(i).second.to, expected.at(i).to));
            QCOMPARE(got.at(i).second.power, expected.at(i).power);
        }
    }
}

void TestResumePlan::lineMapping()
{
    const auto r = lumitra::gcode::buildResumeJob(kRasterJob, 12);
    QCOMPARE(r.jobLineOf(1), 11);
    QCOMPARE(r.jobLineOf(r.preambleLines), 11);
    QCOMPARE(r.jobLineOf(r.preambleLines + 1), 12);
    QCOMPARE(r.jobLineOf(r.lines.size()), kRasterJob.size());
    QCOMPARE(r.lines.size() - r.preambleLines, kRasterJob.size() - 11);
}

// A file resumes byte for byte whatever its line ends (CRLF kept, one added
// after a last line without) and whatever its comments hold; a line past the
// end writes the preamble alone and says so.
void TestResumePlan::resumesAFileAsItStands()
{
    QTemporaryDir dir;
    const QString in = dir.filePath("job.nc"), out = dir.filePath("resumed.nc");
    QFile file(in);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("G21 G90\r\nM4 S0\r\n; 图层 1\r\nG0 X5 Y5\r\nG1 X10 S300 F900\r\nX20 (end)");
    file.close();
    lumitra::gcode::ResumeJob r;
    QString error;
    QVERIFY2(lumitra::gcode::writeResumeJobFile(in, 3, out, &r, &error), qPrintable(error));
    QCOMPARE(r.jobLines, 6);
    QCOMPARE(r.fromLine, 3);
    QFile resumed(out);
    QVERIFY(resumed.open(QIODevice::ReadOnly));
    const QByteArray expected = "M5 S0\nG90 G21\nG0 X0 Y0\nM4 S0\n; 图层 1\r\nG0 X5 Y5\r\n"
                                "G1 X10 S300 F900\r\nX20 (end)\n";
    QCOMPARE(resumed.readAll(), expected);
    QCOMPARE(r.preambleLines, 4);

    QVERIFY(lumitra::gcode::writeResumeJobFile(in, 99, out, &r, &error));
    QVERIFY(r.fromLine > r.jobLines);
    QVERIFY(!lumitra::gcode::writeResumeJobFile(dir.filePath("missing.nc"), 1, out, &r, &error));
    QVERIFY(error.startsWith("cannot read"));
}

// The index answers for every line what replaying the whole job gives, across
// many of its checkpoints, and knows the job's extent.
void TestResumePlan::indexKnowsEveryLine()
{
    QStringList job{"G21", "M4 S0", "G0 X-3 Y2"};
    QRandomGenerator random(7);
    for (int i = 0; i < 3 * lumitra::gcode::JobStateIndex::kStride; ++i) {
        switch (random.bounded(5)) {
        case 0:
            job << QString("G91 G1 X%1 S%2 F%3")
                       .arg(random.bounded(20) / 10.0)
                       .arg(random.bounded(1000))
                       .arg(1000 + random.bounded(5000));
            break;
        case 1:
            job << QString("G90 G0 X%1 Y%2").arg(random.bounded(100)).arg(random.bounded(80));
            break;
        case 2:
            job << QString("Y%1 Z%2").arg(random.bounded(10) / 10.0).arg(random.bounded(360));
            break;
        case 3:
            job << (random.bounded(2) ? "M3" : "M5");
            break;
        default:
            job << "; comment";
        }
    }
    QTemporaryDir dir;
    const QString path = dir.filePath("job.nc");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write((job.join('\n') + '\n').toUtf8());
    file.close();

    lumitra::gcode::JobStateIndex index;
    QVERIFY(index.build(path));
    QCOMPARE(index.lineCount(), job.size());
    ModalTracker tracker;
    double left = 0, right = 0, bottom = 0, top = 0;
    for (int line = 1; line <= job.size() + 1; ++line) {
        if (line % 97 == 0 || line % lumitra::gcode::JobStateIndex::kStride <= 1
            || line > job.size())
            QVERIFY2(index.stateBefore(line) == tracker.state(), qPrintable(QString::number(line)));
        if (line <= job.size()) {
            tracker.feed(job.at(line - 1));
            const QPointF p = tracker.state().position;
            left = qMin(left, p.x());
            right = qMax(right, p.x());
            bottom = qMin(bottom, p.y());
            top = qMax(top, p.y());
        }
    }
    QCOMPARE(index.extent(), QRectF(left, bottom, right - left, top - bottom));

    // Written from the index's nearest checkpoint, a resumed job is the same
    // as one read from the start.
    for (int line : {2, 1500, 2 * lumitra::gcode::JobStateIndex::kStride + 1, int(job.size())}) {
        const QString fromStart = dir.filePath("a.nc"), fromIndex = dir.filePath("b.nc");
        lumitra::gcode::ResumeJob a, b;
        QVERIFY(lumitra::gcode::writeResumeJobFile(path, line, fromStart, &a, nullptr));
        QVERIFY(lumitra::gcode::writeResumeJobFile(path, line, fromIndex, &b, nullptr,
                                                   index.checkpointBefore(line)));
        QCOMPARE(b.jobLines, a.jobLines);
        QCOMPARE(b.preambleLines, a.preambleLines);
        QFile fa(fromStart), fb(fromIndex);
        QVERIFY(fa.open(QIODevice::ReadOnly) && fb.open(QIODevice::ReadOnly));
        QCOMPARE(fb.readAll(), fa.readAll());
    }
    QVERIFY(!index.build(dir.filePath("missing.nc")));
}

QTEST_GUILESS_MAIN(TestResumePlan)
#include "tst_resume_plan.moc"
