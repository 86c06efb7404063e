#include "burn_check.h"
#include "fake_board.h"
#include "headless_run.h"

#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

// A job the board runs from its card, interrupted and resumed from the line
// the sender printed, burns exactly what the job burns: no gap, and nothing
// twice but lines the board had already read when it stopped. Through the
// executable against the fake board, which really runs the file with a
// 15-block planner and reports the share of the file it has read.
class TestWifiResumeRun : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void interruptAndResume_data();
    void interruptAndResume();

private:
    quint32 m_seed = 0;
};

using burn_check::Burn;

void TestWifiResumeRun::initTestCase()
{
    m_seed = burn_check::resumeSeed();
}

void TestWifiResumeRun::interruptAndResume_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("alarm") << "alarm" << int(HeadlessMachineFault);
    QTest::newRow("power cut") << "power cut" << int(HeadlessPortLost);
    QTest::newRow("stop (SIGTERM)") << "stop" << int(HeadlessStopped);
}

void TestWifiResumeRun::interruptAndResume()
{
    QFETCH(QString, kind);
    QFETCH(int, exitCode);
    QRandomGenerator random(m_seed + quint32(qHash(kind)));
    QTemporaryDir dir;
    const QStringList job = burn_check::makeJob([&](int n) { return random.bounded(n); });
    const QString file = dir.filePath("job.nc");
    QVERIFY(burn_check::writeJob(file, job));
    // The job makes about 260 blocks; stop somewhere inside it.
    const int at = 30 + int(random.bounded(200));
    qInfo("%s after block %d", qPrintable(kind), at);

    FakeBoard::Options o;
    o.executeJobs = true;
    o.msPerBlock = 4;
    o.reportIntervalMs = 20;
    if (kind == "alarm")
        o.alarmAtBlock = at;
    FakeBoard board(o);
    QVERIFY(board.start());

    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("XDG_DATA_HOME", dir.filePath("data"));
    env.insert("XDG_RUNTIME_DIR", dir.path());
    env.remove("DISPLAY");
    auto start = [&](QProcess &app, const QStringList &more) {
        app.setProcessEnvironment(env);
        app.start(LUMITRA_EXE, QStringList{"--wifi", board.address(), "--ws-port",
                                           QString::number(board.wsPort()), "--run", file}
                                   + more);
        return app.waitForStarted();
    };

    QProcess app;
    QVERIFY(start(app, {}));
    if (kind != "alarm") {
        QTRY_VERIFY_WITH_TIMEOUT(board.jobRunner() && board.jobRunner()->blocksRun() >= at, 20000);
        if (kind == "power cut")
            board.powerCut();
        else
            app.terminate();
    }
    QTRY_COMPARE_WITH_TIMEOUT(app.state(), QProcess::NotRunning, 30000);
    const QString out = QString::fromUtf8(app.readAllStandardOutput());
    QVERIFY2(app.exitCode() == exitCode,
             qPrintable(out + QString::fromUtf8(app.readAllStandardError())));
    const auto m =
        QRegularExpression("stopped at ([\\d.]+)% of the file; resume from line (\\d+)\n")
            .match(out);
    QVERIFY2(m.hasMatch(), qPrintable(out));
    QVERIFY(out.contains("home it or set the origin"));
    // Out of reach, the board may have lost power or may burn on.
    QCOMPARE(out.contains("may still be running"), kind == "power cut");
    const int from = m.captured(2).toInt();
    QTRY_VERIFY(!board.jobRunning()); // the reset reached the board
    const CardJobRunner &first = *board.jobRunner();
    const int mayHaveRun = first.linesRead();
    qInfo("resume from %d; the board had read %d lines and run through line %d (%d at its last "
          "report)",
          from, mayHaveRun, first.lastRunLine(), board.lastReportedRunLine());
    QVERIFY(from >= 1 && from <= first.firstQueuedLine());
    // The head's position in the last report the sender read places the resume
    // line on the move running then (or an earlier move through the same
    // point). The board may have sent a report or two more (5 blocks apart)
    // that the sender never read: a stop or a power cut comes in between.
    QVERIFY2(from > board.lastReportedRunLine() - 30, qPrintable(QString::number(from)));

    QProcess resumed;
    QVERIFY(start(resumed, {"--from-line", QString::number(from)}));
    QTRY_COMPARE_WITH_TIMEOUT(resumed.state(), QProcess::NotRunning, 30000);
    const QString out2 = QString::fromUtf8(resumed.readAllStandardOutput());
    QVERIFY2(resumed.exitCode() == 0,
             qPrintable(out2 + QString::fromUtf8(resumed.readAllStandardError())));
    QVERIFY2(out2.startsWith(QString("resuming at line %1 of %2\n").arg(from).arg(job.size())),
             qPrintable(out2));
    QVERIFY2(out2.endsWith("done\n"), qPrintable(out2));

    const QString wrong =
        burn_check::compare(job, burn_check::machineBurns(board.executedMoves()), from, mayHaveRun);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

QTEST_GUILESS_MAIN(TestWifiResumeRun)
#include "tst_wifi_resume_run.moc"
