#include "burn_check.h"
#include "grbl_fake.h"
#include "headless_run.h"

#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>
#include <cmath>

// An interrupted job, resumed from the line the sender printed, burns exactly
// what the job burns: no gap, and nothing twice but the lines the controller
// had answered (and so might have run) when it stopped; when the port is lost
// the controller also runs the lines still in its input buffer. Run through the
// executable against the fake controller and its planner.
class TestResumeRun : public QObject
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

void TestResumeRun::initTestCase()
{
    m_seed = burn_check::resumeSeed();
}

void TestResumeRun::interruptAndResume_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("alarm") << "alarm" << int(HeadlessMachineFault);
    QTest::newRow("port lost") << "port lost" << int(HeadlessPortLost);
    QTest::newRow("stop (SIGTERM)") << "stop" << int(HeadlessStopped);
}

void TestResumeRun::interruptAndResume()
{
    QFETCH(QString, kind);
    QFETCH(int, exitCode);
    QRandomGenerator random(m_seed + quint32(qHash(kind)));
    QTemporaryDir dir;
    const QStringList job = burn_check::makeJob([&](int n) { return random.bounded(n); });
    const QString file = dir.filePath("job.nc");
    QVERIFY(burn_check::writeJob(file, job));
    // Fake lines: "$i" first, then the job; interrupt somewhere inside it.
    const int at = 10 + int(random.bounded(job.size() - 30));
    qInfo("%s at received line %d of %d", qPrintable(kind), at, int(job.size()));

    GrblFake::Options o;
    o.motionMsPerLine = 8;
    GrblFake first(o);
    if (kind == "alarm")
        first.alarmAtLine(at, 1);
    QVERIFY(first.start());

    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("XDG_DATA_HOME", dir.filePath("data"));
    env.insert("XDG_RUNTIME_DIR", dir.path());
    env.remove("DISPLAY");
    auto start = [&](QProcess &app, const QString &port, const QStringList &more) {
        app.setProcessEnvironment(env);
        app.start(LUMITRA_EXE, QStringList{"--port", port, "--run", file} + more);
        return app.waitForStarted();
    };

    QProcess app;
    QVERIFY(start(app, first.portName(), {}));
    if (kind != "alarm") {
        QTRY_VERIFY_WITH_TIMEOUT(first.lineCount() >= at, 20000);
        if (kind == "port lost")
            first.closeFarEnd();
        else
            app.terminate();
    }
    QTRY_COMPARE_WITH_TIMEOUT(app.state(), QProcess::NotRunning, 40000);
    const QString out = QString::fromUtf8(app.readAllStandardOutput());
    QCOMPARE(app.exitCode(), exitCode);
    const auto m = QRegularExpression("stopped after line (\\d+) was answered, line (\\d+) "
                                      "sent; resume from line (\\d+)\n")
                       .match(out);
    QVERIFY2(m.hasMatch(), qPrintable(out));
    const int answered = m.captured(1).toInt();
    const int sent = m.captured(2).toInt();
    const int from = m.captured(3).toInt();
    // An unplugged controller also runs the lines still waiting in its input;
    // a stopped one may have planned a line whose "ok" was still on its way
    // when the sender quit. Only an alarm halts the machine at once.
    const int mayHaveRun = kind == "alarm" ? answered : sent;
    qInfo("answered %d, resume from %d", answered, from);
    QVERIFY(from >= 1 && from <= answered + 1 && answered <= sent);
    QCOMPARE(out.contains("home it or set the origin"), kind != "port lost");
    QTRY_COMPARE_WITH_TIMEOUT(first.blocksQueued(), 0, 10000); // an unplugged machine goes on

    // Resume: homing clears the alarm; an unplugged controller is a fresh one.
    GrblFake second(o);
    GrblFake &machine = kind == "port lost" ? second : first;
    if (kind == "port lost")
        QVERIFY(second.start());
    QProcess resumed;
    QStringList more{"--from-line", QString::number(from)};
    if (kind == "alarm")
        more << "--home";
    QVERIFY(start(resumed, machine.portName(), more));
    QTRY_COMPARE_WITH_TIMEOUT(resumed.state(), QProcess::NotRunning, 30000);
    const QString out2 = QString::fromUtf8(resumed.readAllStandardOutput());
    QVERIFY2(resumed.exitCode() == int(HeadlessDone),
             qPrintable(out2 + QString::fromUtf8(resumed.readAllStandardError())));
    QVERIFY2(out2.endsWith("done\n"), qPrintable(out2));

    QList<Burn> ran = burn_check::machineBurns(first.executedMoves());
    if (kind == "port lost")
        ran += burn_check::machineBurns(second.executedMoves());
    const QString wrong = burn_check::compare(job, ran, from, mayHaveRun);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

QTEST_GUILESS_MAIN(TestResumeRun)
#include "tst_resume_run.moc"
