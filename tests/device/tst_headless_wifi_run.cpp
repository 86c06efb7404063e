#include "fake_board.h"
#include "headless_wifi_run.h"
#include "program_state.h"

#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>
#include <QTimer>

// The window-less WiFi run: upload, start on the card, follow the status to
// Idle. Against the fake board, in process and through the executable.
class TestHeadlessWifiRun : public QObject
{
    Q_OBJECT

private slots:
    void init() { lumitra::resetProgramState(); }
    void throughTheExecutable_data();
    void throughTheExecutable();
    void droppedWebSocket();
    void silentBoard();
    void badInputs_data();
    void badInputs();
};

static QByteArray jobBytes()
{
    QByteArray job;
    for (int i = 0; i < 20000; ++i)
        job +=
            "G1X" + QByteArray::number(i % 300) + "Y" + QByteArray::number(i % 200) + "S500F3000\n";
    return job;
}

struct Outcome
{
    int code = -1;
    QString out, err;
};

static Outcome runInProcess(const FakeBoard &board, const QString &file,
                            const HeadlessWifiOptions &options = {})
{
    Outcome o;
    QTextStream out(&o.out), err(&o.err);
    o.code = runWifiJobHeadless(board.address(), board.wsPort(), file, out, err, options);
    return o;
}

void TestHeadlessWifiRun::throughTheExecutable_data()
{
    QTest::addColumn<QString>("failure");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("errStart");
    QTest::newRow("job done") << "" << int(HeadlessDone) << "";
    QTest::newRow("refused") << "refuse" << int(HeadlessNoPort) << "cannot connect";
    QTest::newRow("upload fails") << "upload" << int(HeadlessNotTaken) << "upload failed";
    QTest::newRow("start refused") << "start" << int(HeadlessNotTaken) << "the board did not";
    QTest::newRow("alarm") << "alarm" << int(HeadlessMachineFault) << "board reported: ALARM:1";
}

// `lumitra --wifi HOST:PORT --run FILE --ws-port N`, the real executable.
void TestHeadlessWifiRun::throughTheExecutable()
{
    QFETCH(QString, failure);
    QFETCH(int, exitCode);
    QFETCH(QString, errStart);
    QTemporaryDir dir;
    const QByteArray job = jobBytes();
    const QString file = dir.filePath("job.gcode");
    {
        QFile f(file);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(job);
    }
    FakeBoard::Options o;
    o.jobMs = 400;
    o.reportIntervalMs = 40;
    o.linesPerFrame = 3;
    o.splitFrames = true;
    if (failure == "alarm")
        o.alarmAfterMs = 120;
    FakeBoard board(o);
    QVERIFY(board.start());
    const QString address = board.address();
    const quint16 wsPort = board.wsPort();
    if (failure == "refuse")
        board.refuse();
    else if (failure == "upload")
        board.failRoute("/upload", 500);
    else if (failure == "start")
        board.failRoute("/command", 500);

    QProcess app;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("XDG_DATA_HOME", dir.filePath("data"));
    env.insert("XDG_RUNTIME_DIR", dir.path());
    env.remove("DISPLAY");
    app.setProcessEnvironment(env);
    app.start(LUMITRA_EXE,
              {"--wifi", address, "--run", file, "--ws-port", QString::number(wsPort)});
    QVERIFY(app.waitForStarted());
    // The board answers from this process's event loop: wait without blocking it.
    QTRY_COMPARE_WITH_TIMEOUT(app.state(), QProcess::NotRunning, 60000);
    QCOMPARE(app.exitStatus(), QProcess::NormalExit);
    const QString out = QString::fromUtf8(app.readAllStandardOutput());
    const QString err = QString::fromUtf8(app.readAllStandardError());
    QVERIFY2(app.exitCode() == exitCode, qPrintable(out + err));
    if (exitCode == HeadlessDone) {
        QVERIFY(err.isEmpty());
        QVERIFY2(out.endsWith("done\n"), qPrintable(out));
        QVERIFY(out.contains("upload 100%\n"));
        QCOMPARE(board.cardFile("001.nc"), job);
        // The planner's free blocks are asked for in the reports before the start.
        QCOMPARE(board.commands().mid(0, 3), (QStringList{"$i", "$10=3", "[ESP220]/001.nc"}));
        QVERIFY(!board.jobRunning());
        return;
    }
    QCOMPARE(err.count('\n'), 1);
    QVERIFY2(err.startsWith(errStart), qPrintable(err));
    QVERIFY(!out.contains("done"));
    if (failure == "refuse" || failure == "upload")
        QVERIFY(!board.commands().contains("[ESP220]/001.nc"));
}

void TestHeadlessWifiRun::droppedWebSocket()
{
    QTemporaryDir dir;
    const QString file = dir.filePath("job.nc");
    QFile f(file);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(jobBytes());
    f.close();
    FakeBoard::Options o;
    o.jobMs = 60000;
    o.reportIntervalMs = 20;
    FakeBoard board(o);
    QVERIFY(board.start());
    // The drop comes once the job runs.
    connect(&board, &FakeBoard::commandReceived, &board, [&board](const QString &text) {
        if (text.startsWith("[ESP220]"))
            QTimer::singleShot(100, &board, [&board] { board.dropWebSockets(); });
    });
    const Outcome r = runInProcess(board, file);
    QCOMPARE(r.code, int(HeadlessPortLost));
    QCOMPARE(r.err, QString("lost the connection to the board\n"));
    QVERIFY(board.jobRunning());
}

void TestHeadlessWifiRun::silentBoard()
{
    QTemporaryDir dir;
    const QString file = dir.filePath("job.nc");
    QFile f(file);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("G0X1\n");
    f.close();
    FakeBoard::Options o;
    o.jobMs = 60000;
    o.reportIntervalMs = 20;
    FakeBoard board(o);
    QVERIFY(board.start());
    // Once the job runs the board goes quiet: no reports, no answers.
    connect(&board, &FakeBoard::commandReceived, &board, [&board](const QString &text) {
        if (text.startsWith("[ESP220]"))
            QTimer::singleShot(0, &board, [&board] { board.setStalled(true); });
    });
    HeadlessWifiOptions options;
    options.silenceTimeoutMs = 300;
    options.pollIntervalMs = 50;
    const Outcome r = runInProcess(board, file, options);
    QCOMPARE(r.code, int(HeadlessSilent));
    QCOMPARE(r.err, QString("the board stopped answering\n"));
}

void TestHeadlessWifiRun::badInputs_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("fileExists");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("missing file") << "" << false << int(HeadlessBadFile);
    QTest::newRow("bad port") << "127.0.0.1:99999" << true << int(HeadlessBadFile);
    QTest::newRow("no host") << ":80" << true << int(HeadlessBadFile);
}

void TestHeadlessWifiRun::badInputs()
{
    QFETCH(QString, address);
    QFETCH(bool, fileExists);
    QFETCH(int, exitCode);
    QTemporaryDir dir;
    FakeBoard board;
    QVERIFY(board.start());
    const QString file = dir.filePath("job.nc");
    if (fileExists) {
        QFile f(file);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("G0X1\n");
    }
    Outcome o;
    QTextStream out(&o.out), err(&o.err);
    o.code = runWifiJobHeadless(address.isEmpty() ? board.address() : address, board.wsPort(), file,
                                out, err);
    QCOMPARE(o.code, exitCode);
    QCOMPARE(o.err.count('\n'), 1);
    QVERIFY(board.rawTargets().isEmpty());
    QCOMPARE(board.webSocketClients(), 0);
}

QTEST_GUILESS_MAIN(TestHeadlessWifiRun)
#include "tst_headless_wifi_run.moc"
