#include "headless_run.h"
#include "link_fixture.h"
#include "program_state.h"

#include <QProcess>
#include <QTextStream>
#include <QTimer>

// The window-less sender, run against the fake controller.
class TestHeadlessRun : public QObject
{
    Q_OBJECT

private slots:
    void init() { lumitra::resetProgramState(); }

    void streamsAndWaitsForIdle_data();
    void streamsAndWaitsForIdle();
    void controllerFaults_data();
    void controllerFaults();
    void handshakeTimeout();
    void lostPort();
    void silentController();
    void badInputs();
    void throughTheExecutable_data();
    void throughTheExecutable();
};

struct Outcome
{
    int code = -1;
    QString out, err;
};

static Outcome run(const QString &port, const QString &file, bool home,
                   const HeadlessRunOptions &options = {})
{
    Outcome o;
    QTextStream out(&o.out), err(&o.err);
    o.code = runJobHeadless(port, file, home, out, err, options);
    return o;
}

void TestHeadlessRun::streamsAndWaitsForIdle_data()
{
    QTest::addColumn<bool>("home");
    QTest::newRow("no homing") << false;
    QTest::newRow("homing first") << true;
}

void TestHeadlessRun::streamsAndWaitsForIdle()
{
    QFETCH(bool, home);
    QTemporaryDir dir;
    const int total = 300;
    const QString file = writeJobFile(dir, total);
    GrblFake::Options o;
    o.motionMsPerLine = 2; // the machine is still moving after the last "ok"
    GrblFake fake(o);
    QVERIFY(fake.start());

    const Outcome r = run(fake.portName(), file, home);
    QCOMPARE(r.code, int(HeadlessDone));
    QVERIFY(r.err.isEmpty());
    QVERIFY(!fake.moving());
    QVERIFY(r.out.contains("progress 0%\n"));
    QVERIFY(r.out.contains("progress 100%\n"));
    QVERIFY(r.out.endsWith("done\n"));

    QStringList expected{"$i"};
    if (home)
        expected << "$H";
    for (int i = 0; i < total; ++i)
        expected << jobLine(i);
    QCOMPARE(fake.lines(), expected);
    QVERIFY(!fake.overrun());
}

void TestHeadlessRun::controllerFaults_data()
{
    QTest::addColumn<QByteArray>("reply"); // to line 40; empty: an alarm instead
    QTest::addColumn<QString>("reported");
    QTest::newRow("alarm") << QByteArray() << "ALARM:2";
    QTest::newRow("error reply") << QByteArray("error:20") << "error:20";
    QTest::newRow("capital Error") << QByteArray("Error: limit") << "Error";
}

void TestHeadlessRun::controllerFaults()
{
    QFETCH(QByteArray, reply);
    QFETCH(QString, reported);
    QTemporaryDir dir;
    const QString file = writeJobFile(dir, 2000);
    GrblFake fake;
    if (reply.isEmpty())
        fake.alarmAtLine(40, 2);
    else
        fake.replyInsteadOfOk(40, reply);
    QVERIFY(fake.start());

    const Outcome r = run(fake.portName(), file, false);
    QCOMPARE(r.code, int(HeadlessMachineFault));
    QCOMPARE(r.err.count('\n'), 1);
    QVERIFY2(r.err.contains(reported), qPrintable(r.err));
    QVERIFY(!r.out.contains("done"));
    QVERIFY(fake.lineCount() < 2001);
}

void TestHeadlessRun::handshakeTimeout()
{
    QTemporaryDir dir;
    GrblFake::Options o;
    o.answerIdentify = false;
    GrblFake fake(o);
    QVERIFY(fake.start());
    HeadlessRunOptions options;
    options.handshakeTimeoutMs = 300;
    const Outcome r = run(fake.portName(), writeJobFile(dir, 5), false, options);
    QCOMPARE(r.code, int(HeadlessNoHandshake));
    QCOMPARE(r.err.count('\n'), 1);
    QCOMPARE(fake.lineCount(), 1);
}

void TestHeadlessRun::lostPort()
{
    QTemporaryDir dir;
    GrblFake::Options o;
    o.bytesPerSecond = 11520.0;
    GrblFake fake(o);
    QVERIFY(fake.start());
    QTimer::singleShot(300, [&fake] { fake.closeFarEnd(); });
    const Outcome r = run(fake.portName(), writeJobFile(dir, 20000), false);
    QCOMPARE(r.code, int(HeadlessPortLost));
    QCOMPARE(r.err.count('\n'), 1);
    QVERIFY(r.err.startsWith("lost the port"));
}

void TestHeadlessRun::silentController()
{
    QTemporaryDir dir;
    GrblFake::Options o;
    o.processingDelayMs = 60000; // takes the lines, never answers them
    GrblFake fake(o);
    QVERIFY(fake.start());
    HeadlessRunOptions options;
    options.silenceTimeoutMs = 300;
    const Outcome r = run(fake.portName(), writeJobFile(dir, 5), false, options);
    // Even "$i" stays unanswered; the silence ends the run before the
    // handshake time does.
    QCOMPARE(r.code, int(HeadlessSilent));
    QCOMPARE(r.err.count('\n'), 1);
}

void TestHeadlessRun::badInputs()
{
    QTemporaryDir dir;
    GrblFake fake;
    QVERIFY(fake.start());
    Outcome r = run(fake.portName(), dir.filePath("missing.nc"), false);
    QCOMPARE(r.code, int(HeadlessBadFile));
    QCOMPARE(fake.lineCount(), 0);
    r = run("/dev/lumitra-no-such-port", writeJobFile(dir, 3), false);
    QCOMPARE(r.code, int(HeadlessNoPort));
    QVERIFY(r.err.startsWith("cannot open the port"));
}

void TestHeadlessRun::throughTheExecutable_data()
{
    QTest::addColumn<bool>("alarm");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("job done") << false << int(HeadlessDone);
    QTest::newRow("alarm") << true << int(HeadlessMachineFault);
}

// `lumitra --port ... --run ...` is the same sender, reached through the
// command line of the one executable.
void TestHeadlessRun::throughTheExecutable()
{
    QFETCH(bool, alarm);
    QFETCH(int, exitCode);
    QTemporaryDir dir;
    const int total = 200;
    const QString file = writeJobFile(dir, total);
    GrblFake fake;
    if (alarm)
        fake.alarmAtLine(50, 1);
    QVERIFY(fake.start());

    QProcess app;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("XDG_DATA_HOME"), dir.filePath(QStringLiteral("data")));
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), dir.path());
    env.remove(QStringLiteral("DISPLAY"));
    app.setProcessEnvironment(env);
    app.start(QStringLiteral(LUMITRA_EXE),
              {QStringLiteral("--port"), fake.portName(), QStringLiteral("--run"), file});
    QVERIFY(app.waitForStarted());
    // The fake answers from this process's event loop, so wait without blocking it.
    QTRY_COMPARE_WITH_TIMEOUT(app.state(), QProcess::NotRunning, 30000);
    QCOMPARE(app.exitStatus(), QProcess::NormalExit);
    QCOMPARE(app.exitCode(), exitCode);
    QVERIFY(!fake.overrun());
    const QString out = QString::fromUtf8(app.readAllStandardOutput());
    if (alarm) {
        QVERIFY(!out.contains(QStringLiteral("done")));
        QVERIFY(fake.lineCount() < total + 1);
    } else {
        QVERIFY2(out.endsWith(QStringLiteral("done\n")), qPrintable(out));
        QCOMPARE(fake.lines().size(), total + 1); // "$i" and every job line
        QCOMPARE(fake.lines().last(), jobLine(total - 1));
    }
}

QTEST_GUILESS_MAIN(TestHeadlessRun)
#include "tst_headless_run.moc"
