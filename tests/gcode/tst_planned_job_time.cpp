#include "grbl_time_estimator.h"
#include "planned_job_time.h"

#include <QBuffer>
#include <QtTest>

// The planned time line by line behind the remaining-time display.
class TestPlannedJobTime : public QObject
{
    Q_OBJECT

private slots:
    void followsThePlan_data();
    void followsThePlan();
    void remainingIsCorrectedByTheRealTime_data();
    void remainingIsCorrectedByTheRealTime();
    void answeredLinesAreNotRunYet();
    void format_data();
    void format();
};

namespace {
QStringList rows(int count)
{
    QStringList job{"G90 G21", "M4 S0", "G0 X0 Y0", "G91", "G1 F3000"};
    for (int i = 0; i < count; ++i)
        job << QString("X%1 S%2").arg(i % 2 ? -20 : 20).arg(300 + i % 5 * 100) << "G0 Y0.1"
            << "G1";
    job << "G90"
        << "M5";
    return job;
}
} // namespace

void TestPlannedJobTime::followsThePlan_data()
{
    QTest::addColumn<int>("rowCount");
    QTest::newRow("fewer lines than checkpoints") << 20;
    QTest::newRow("more lines than checkpoints") << 400;
}

void TestPlannedJobTime::followsThePlan()
{
    QFETCH(int, rowCount);
    const QStringList job = rows(rowCount);
    const GrblMachineSettings settings;
    const PlannedJobTime t = PlannedJobTime::plan(job, settings);

    QByteArray bytes = job.join('\n').toLatin1();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    double whole = 0.0;
    QVERIFY(GrblTimeEstimator::estimate(buffer, settings, &whole));
    QCOMPARE(t.lines(), job.size());
    QVERIFY(qAbs(t.totalSeconds() - whole) < 1e-9);
    QCOMPARE(t.secondsThrough(0), 0.0);
    QCOMPARE(t.secondsThrough(job.size()), t.totalSeconds());
    double last = 0.0;
    for (int line = 1; line <= job.size(); ++line) {
        const double s = t.secondsThrough(line);
        QVERIFY(s >= last - 1e-9);
        last = s;
    }
    // Half the rows take about half the time.
    const double half = t.secondsThrough(job.size() / 2) / t.totalSeconds();
    QVERIFY2(half > 0.4 && half < 0.6, qPrintable(QString::number(half)));
}

void TestPlannedJobTime::remainingIsCorrectedByTheRealTime_data()
{
    QTest::addColumn<double>("speed"); // real time / planned time so far
    QTest::addColumn<double>("scale"); // what the rest is scaled by
    QTest::newRow("as planned") << 1.0 << 1.0;
    QTest::newRow("slower") << 1.5 << 1.5;
    QTest::newRow("much slower is bounded") << 10.0 << 3.0;
    QTest::newRow("faster is bounded") << 0.1 << 0.5;
}

void TestPlannedJobTime::remainingIsCorrectedByTheRealTime()
{
    QFETCH(double, speed);
    QFETCH(double, scale);
    const QStringList job = rows(400);
    const PlannedJobTime t = PlannedJobTime::plan(job, GrblMachineSettings());
    const int line = job.size() / 3;
    const double done = t.secondsAnswered(line);
    QVERIFY(done > PlannedJobTime::kCorrectAfter);
    const double rest = t.totalSeconds() - done;
    QVERIFY(qAbs(t.remainingSeconds(line, done * speed) - rest * scale) < 1e-6);
    // Running a line: the lines before it have run.
    const double run = t.secondsThrough(line - 1);
    QVERIFY(qAbs(t.remainingFromRunning(line, run * speed) - (t.totalSeconds() - run) * scale)
            < 1e-6);
    // Too early to judge: the plan alone.
    const int early = 6;
    QVERIFY(t.secondsAnswered(early) < PlannedJobTime::kCorrectAfter);
    QVERIFY(qAbs(t.remainingSeconds(early, 100.0) - (t.totalSeconds() - t.secondsAnswered(early)))
            < 1e-6);
    QCOMPARE(t.remainingSeconds(job.size(), 1.0), 0.0);
}

// Moves of 50 mm back and forth, each from rest to rest (5.1 s at 10 mm/s
// and 100 mm/s²). The controller answers the first 15 at once, while the
// planner has room; the 16th once the first has run, and so on. So with 16
// lines answered nothing has run yet, and the time left is the whole job.
void TestPlannedJobTime::answeredLinesAreNotRunYet()
{
    QStringList job{"G1F600"};
    for (int i = 0; i < 40; ++i)
        job << (i % 2 ? "X0" : "X50");
    GrblMachineSettings machine;
    for (int i = 0; i < 3; ++i) {
        machine.maxRate[i] = 6000.0;
        machine.acceleration[i] = 100.0;
    }
    const PlannedJobTime t = PlannedJobTime::plan(job, machine);
    const double move = 0.2 + 49.0 / 10.0;
    QVERIFY(qAbs(t.totalSeconds() - 40 * move) < 1e-9);
    QCOMPARE(t.secondsAnswered(16), 0.0);
    QVERIFY(qAbs(t.secondsAnswered(17) - move) < 1e-9);
    QVERIFY(qAbs(t.remainingSeconds(16, 0.0) - t.totalSeconds()) < 1e-9);
    QVERIFY(qAbs(t.remainingSeconds(20, 4 * move) - 36 * move) < 1e-9);
    // Running the 5th move (line 6): four have run.
    QVERIFY(qAbs(t.remainingFromRunning(6, 4 * move) - 36 * move) < 1e-9);
}

void TestPlannedJobTime::format_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0.0 << "0:00";
    QTest::newRow("seconds") << 59.4 << "0:59";
    QTest::newRow("minutes") << 754.0 << "12:34";
    QTest::newRow("hours") << 3723.0 << "1:02:03";
    QTest::newRow("negative") << -5.0 << "0:00";
}

void TestPlannedJobTime::format()
{
    QFETCH(double, seconds);
    QTEST(formatRunTime(seconds), "text");
}

QTEST_GUILESS_MAIN(TestPlannedJobTime)
#include "tst_planned_job_time.moc"
