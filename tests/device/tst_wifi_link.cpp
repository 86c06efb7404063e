#include "fake_board.h"
#include "http_thread.h"
#include "program_state.h"
#include "settings_store.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

// HttpThread against the fake board on 127.0.0.1: commands, the status stream,
// settings, upload and run from the card, and the ways a board fails.
class TestWifiLink : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void noWebSocketSendsNothing_data();
    void noWebSocketSendsNothing();
    void emptyUrlSendsNothing();
    void connectAsksForBuildInfo();
    void statusAcrossFrames_data();
    void statusAcrossFrames();
    void lineSplitAroundChatter();
    void severalLinesInOneFrame();
    void commandTextArrivesExactly_data();
    void commandTextArrivesExactly();
    void statusQueryHeaders();
    void changeSetting();
    void changeSettingFails();
    void uploadIsByteExact();
    void uploadGeneratedJob();
    void uploadFails_data();
    void uploadFails();
    void cancelUpload();
    void runFromCard();
    void runMissingFile();
    void dropMidJob();
    void disconnectOnPurpose();

private:
    static QString writeBytes(const QString &path, const QByteArray &bytes);
};

static void point(HttpThread &link, const FakeBoard &board)
{
    link.setAddress(QStringLiteral("127.0.0.1"), board.httpPort(), board.wsPort());
}

QString TestWifiLink::writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size())
        return QString();
    return path;
}

void TestWifiLink::init()
{
    lumitra::resetProgramState();
    lumitra::set_setting(QStringLiteral("yichangduankai"), QStringLiteral("0"));
}

void TestWifiLink::noWebSocketSendsNothing_data()
{
    QTest::addColumn<bool>("refused");
    QTest::newRow("stalled board") << false;
    QTest::newRow("refused board") << true;
}

void TestWifiLink::noWebSocketSendsNothing()
{
    QFETCH(bool, refused);
    FakeBoard board;
    QVERIFY(board.start());
    HttpThread link;
    point(link, board);
    if (refused)
        board.refuse();
    else
        board.setStalled(true);
    QSignalSpy outcome(&link, &HttpThread::send_Lian_Jie_Message);
    QVERIFY(!link.connectBoard(300));
    QVERIFY(!link.isConnected());
    QCOMPARE(outcome.count(), 1);
    QCOMPARE(outcome.first().first().toBool(), false);
    QTest::qWait(100); // anything sent would have reached the board by now
    QVERIFY(board.rawTargets().isEmpty());
    QCOMPARE(board.webSocketClients(), 0);
}

void TestWifiLink::emptyUrlSendsNothing()
{
    FakeBoard board;
    QVERIFY(board.start());
    HttpThread link;
    point(link, board);
    link.sendUrl(QString());
    link.sendCommand("$H"); // commands go in order: this one follows any earlier
    QTRY_COMPARE(board.commands(), QStringList{"$H"});
    QCOMPARE(board.rawTargets().size(), 1);
}

void TestWifiLink::connectAsksForBuildInfo()
{
    FakeBoard::Options o;
    o.model = "Ortavex_Q7";
    FakeBoard board(o);
    QVERIFY(board.start());
    HttpThread link;
    point(link, board);
    QSignalSpy lines(&link, &HttpThread::lineReceived);
    QSignalSpy address(&link, &HttpThread::sendIpAddress);
    QVERIFY(link.connectBoard(5000));
    QVERIFY(link.isConnected());
    QTRY_COMPARE(board.commands(), QStringList{"$i"});
    QTRY_VERIFY(lumitra::programState().modelFlag);
    QTRY_COMPARE(address.count(), 1);
    QCOMPARE(address.first().first().toString(), QString("127.0.0.1"));
    QStringList received;
    for (const QList<QVariant> &l : lines)
        received << l.first().toString();
    // The board's text chatter on connect is not a GRBL line.
    QCOMPARE(received.first(), QString("[VER:1.1h.20240101:]"));
    QCOMPARE(received.last(), QString("ok"));
    QVERIFY(!received.join('\n').contains("_ID:"));
    QVERIFY(!received.join('\n').contains("PING"));
}

void TestWifiLink::statusAcrossFrames_data()
{
    QTest::addColumn<int>("perFrame");
    QTest::addColumn<bool>("split");
    QTest::addColumn<bool>("text");
    QTest::newRow("line per binary frame") << 1 << false << false;
    QTest::newRow("line per text frame") << 1 << false << true;
    QTest::newRow("four lines per frame") << 4 << false << false;
    QTest::newRow("every frame split") << 1 << true << false;
    QTest::newRow("packed and split") << 7 << true << false;
    QTest::newRow("packed and split text") << 7 << true << true;
}

// The status report and the settings dump come through whatever the framing.
void TestWifiLink::statusAcrossFrames()
{
    QFETCH(int, perFrame);
    QFETCH(bool, split);
    QFETCH(bool, text);
    FakeBoard::Options o;
    o.linesPerFrame = perFrame;
    o.splitFrames = split;
    o.textFrames = text;
    FakeBoard board(o);
    QVERIFY(board.start());
    HttpThread link;
    point(link, board);
    QVERIFY(link.connectBoard(5000));
    QSignalSpy status(&link, &HttpThread::shu_chu_zhuang_tai);
    QSignalSpy settings(&link, &HttpThread::Jie_Xi_Shu_Ju);
    link.queryStatus();
    link.readSettings();
    QTRY_COMPARE(settings.count(), 1);
    QCOMPARE(status.count(), 1);
    QCOMPARE(status.first().first().toString(), QString("Idle X:10.000 Y:5.000 F:0 S:0"));
    const auto map = settings.first().first().value<QMap<int, QString>>();
    QCOMPARE(map, FakeBoard::defaultSettings());
}

void TestWifiLink::lineSplitAroundChatter()
{
    FakeBoard board;
    QVERIFY(board.start());
    HttpThread link;
    point(link, board);
    QVERIFY(link.connectBoard(5000));
    QTRY_VERIFY(!board.commands().isEmpty()); // "$i" answered first
    QTest::qWait(50);
    QSignalSpy status(&link, &HttpThread::shu_chu_zhuang_tai);
    QSignalSpy lines(&link, &HttpThread::lineReceived);
    board.sendFrame("<Run|MPos:1.5");
    board.sendFrame("PING:3", false);
    board.sendFrame("00,-2.250,0.000|FS:100,0>\r");
    board.sendFrame("\nok\r\n");
    QTRY_COMPARE(lines.count(), 2);
    QCOMPARE(status.count(), 1);
    QCOMPARE(status.first().first().toString(), QString("Run X:1.500 Y:-2.250 F:100 S:0"));
    QCOMPARE(lines.at(0).first().toString(), QString("<Run|MPos:1.500,-2.250,0.000|FS:100,0>"));
    QCOMPARE(lines.at(1).first().toString(), QString("ok"));
}

void TestWifiLink::severalLinesInOneFrame()
{
    FakeBoard board;
    QVERIFY(board.start());
    HttpThread link;
    point(link, board);
    QVERIFY(link.connectBoard(5000));
    QTRY_VERIFY(!board.commands().isEmpty());
    QTest::qWait(50);
    QSignalSpy status(&link, &HttpThread::shu_chu_zhuang_tai);
    QSignalSpy lines(&link, &HttpThread::lineReceived);
    QSignalSpy progress(&link, &HttpThread::send_Yun_Xing_Zhi);
    board.sendFrame("ok\r\n<Run|MPos:1.000,2.000,0.000|FS:500,300|SD:12.50,/001.nc>\r\n"
                    "[MSG:Pgm End]\r\n<Idle|MPos:0.000,0.000,0.000|FS:0,0>");
    QTRY_COMPARE(lines.count(), 4);
    QCOMPARE(status.count(), 2);
    QCOMPARE(status.at(0).first().toString(), QString("Run X:1.000 Y:2.000 F:500 S:300"));
    QCOMPARE(status.at(1).first().toString(), QString("Idle X:0.000 Y:0.000 F:0 S:0"));
    QCOMPARE(progress.count(), 1);
    QCOMPARE(progress.first().first().toFloat(), 12.5f);
}

void TestWifiLink::commandTextArrivesExactly_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("password") << QString("[ESP101]pwd=a+b&c%d#e f 20%2B");
    QTest::newRow("jog with blanks") << QString("$J=G91 G21 F3000 X-5Y0");
    QTest::newRow("soft reset byte") << QString(QChar(0x18));
    QTest::newRow("non-ASCII") << QString::fromUtf8("[ESP100]工作室 网络");
}

void TestWifiLink::commandTextArrivesExactly()
{
    QFETCH(QString, command);
    FakeBoard board;
    QVERIFY(board.start());
    HttpThread link;
    point(link, board);
    link.sendCommand(command);
    QTRY_COMPARE(board.commands(), QStringList{command});
}

void TestWifiLink::statusQueryHeaders()
{
    FakeBoard board;
    QVERIFY(board.start());
    HttpThread link;
    point(link, board);
    link.queryStatus();
    link.stop();
    QTRY_COMPARE(board.commands().size(), 2);
    QCOMPARE(board.commands().first(), QString("?"));
    QCOMPARE(board.commands().last(), QString(QChar(0x18)));
    const auto headers = board.requestHeaders().first();
    QCOMPARE(headers.value("content-type"), QByteArray("application/x-www-form-urlencoded"));
    QCOMPARE(headers.value("accept-encoding"), QByteArray("gzip, deflate"));
    QCOMPARE(headers.value("accept-language"), QByteArray("zh-CN,zh;q=0.9"));
    QCOMPARE(headers.value("connection"), QByteArray("keep-alive"));
}

void TestWifiLink::changeSetting()
{
    FakeBoard board;
    QVERIFY(board.start());
    HttpThread link;
    point(link, board);
    QVERIFY(link.connectBoard(5000));
    QSignalSpy settings(&link, &HttpThread::Jie_Xi_Shu_Ju);
    link.changeSetting("$130=512.5");
    QTRY_COMPARE(settings.count(), 1);
    QCOMPARE(board.plainLines(), QStringList{"$130=512.5"});
    QCOMPARE(board.commands().last(), QString("$$"));
    const auto changed = settings.first().first().value<QMap<int, QString>>();
    QCOMPARE(changed.value(130), QString("512.5"));
}

void TestWifiLink::changeSettingFails()
{
    FakeBoard board;
    QVERIFY(board.start());
    board.failRoute("/command", 500);
    HttpThread link;
    point(link, board);
    QSignalSpy news(&link, &HttpThread::send_Ip_Message);
    link.changeSetting("$130=512.5");
    QTRY_COMPARE(news.count(), 1);
    QCOMPARE(news.first().first().toString(), QString("参数更改失败"));
    QCOMPARE(board.rawTargets().size(), 1); // no "$$" after a failed change
}

void TestWifiLink::uploadIsByteExact()
{
    FakeBoard board;
    QVERIFY(board.start());
    QTemporaryDir dir;
    QByteArray job;
    job.reserve(3 << 20);
    // Every byte value, and text that looks like a part boundary.
    for (int i = 0; job.size() < (3 << 20); ++i)
        job += char(i % 256) + QByteArray("\r\n--") + QByteArray::number(i);
    const QString path = writeBytes(dir.filePath("job.nc"), job);
    QVERIFY(!path.isEmpty());

    HttpThread link;
    point(link, board);
    QSignalSpy done(&link, &HttpThread::uploadFinished);
    QSignalSpy progress(&link, &HttpThread::send_Jin_Du_Zhi);
    link.uploadFile(path, "001.nc");
    QVERIFY(link.uploading());
    QVERIFY(done.wait(20000));
    QCOMPARE(done.first().at(0).toBool(), true);
    QVERIFY(!link.uploading());
    QCOMPARE(board.cardFile("001.nc"), job);

    const QList<FakeBoard::UploadPart> parts = board.uploadParts();
    QCOMPARE(parts.size(), 2);
    QCOMPARE(parts.at(0).name, QString("path"));
    QCOMPARE(parts.at(0).body, QByteArray("/"));
    QCOMPARE(parts.at(1).name, QString("myfile[]"));
    QCOMPARE(parts.at(1).contentType, QString("application/octet-stream"));
    QVERIFY(parts.at(1).headers.contains("name=\"myfile[]\"; filename=\"001.nc\""));

    qint64 last = -1;
    for (const QList<QVariant> &p : progress) {
        QVERIFY(p.at(0).toLongLong() >= last);
        last = p.at(0).toLongLong();
        QCOMPARE(p.at(1).toLongLong(), qint64(job.size()));
    }
    QCOMPARE(last, qint64(job.size()));
}

void TestWifiLink::uploadGeneratedJob()
{
    FakeBoard board;
    QVERIFY(board.start());
    const QByteArray job = "M4\nM8\nG0X1Y1\nG1X2Y2S500F1000\nM5\n";
    QVERIFY(!writeBytes(QDir(lumitra::config_dir()).filePath("code.txt"), job).isEmpty());
    HttpThread link;
    point(link, board);
    QSignalSpy done(&link, &HttpThread::uploadFinished);
    link.uploadFile(QString(), "001.nc");
    QVERIFY(done.wait(10000));
    QVERIFY(done.first().at(0).toBool());
    QCOMPARE(board.cardFile("001.nc"), job);
}

void TestWifiLink::uploadFails_data()
{
    QTest::addColumn<QString>("failure");
    QTest::newRow("server error") << "500";
    QTest::newRow("refused") << "refuse";
    QTest::newRow("missing file") << "missing";
}

void TestWifiLink::uploadFails()
{
    QFETCH(QString, failure);
    FakeBoard board;
    QVERIFY(board.start());
    QTemporaryDir dir;
    QString path = writeBytes(dir.filePath("job.nc"), QByteArray(200000, 'G'));
    if (failure == "500")
        board.failRoute("/upload", 500);
    else if (failure == "refuse")
        board.refuse();
    else
        path = dir.filePath("absent.nc");
    HttpThread link;
    point(link, board);
    QSignalSpy done(&link, &HttpThread::uploadFinished);
    QSignalSpy news(&link, &HttpThread::send_Ip_Message);
    link.uploadFile(path, "001.nc");
    QTRY_COMPARE(done.count(), 1);
    QCOMPARE(done.first().at(0).toBool(), false);
    QVERIFY(!done.first().at(1).toString().isEmpty());
    QVERIFY(!link.uploading());
    QVERIFY(news.isEmpty()); // no success message
    if (failure == "missing")
        QCOMPARE(board.uploadCount(), 0);
}

void TestWifiLink::cancelUpload()
{
    FakeBoard board;
    QVERIFY(board.start());
    board.setStalled(true); // takes the bytes, never answers
    QTemporaryDir dir;
    const QString path = writeBytes(dir.filePath("job.nc"), QByteArray(1 << 20, 'G'));
    HttpThread link;
    point(link, board);
    QSignalSpy done(&link, &HttpThread::uploadFinished);
    link.uploadFile(path, "001.nc");
    QTest::qWait(100);
    QVERIFY(link.uploading());
    link.cancelUpload();
    QTRY_COMPARE(done.count(), 1);
    QCOMPARE(done.first().at(0).toBool(), false);
    QCOMPARE(done.first().at(1).toString(), QString("上传已取消"));
    QVERIFY(!link.uploading());
    QVERIFY(board.cardFiles().isEmpty());
}

void TestWifiLink::runFromCard()
{
    FakeBoard::Options o;
    o.jobMs = 200;
    o.reportIntervalMs = 20;
    FakeBoard board(o);
    QVERIFY(board.start());
    board.putCardFile("001.nc", "G0X1\n");
    HttpThread link;
    point(link, board);
    QVERIFY(link.connectBoard(5000));
    QSignalSpy started(&link, &HttpThread::runStarted);
    QSignalSpy progress(&link, &HttpThread::send_Yun_Xing_Zhi);
    QSignalSpy status(&link, &HttpThread::shu_chu_zhuang_tai);
    link.runFile("/001.nc");
    QTRY_COMPARE(started.count(), 1);
    QVERIFY(started.first().at(0).toBool());
    QCOMPARE(board.commands().last(), QString("[ESP220]/001.nc"));
    QCOMPARE(progress.first().first().toFloat(), 1.0f);
    QVERIFY(link.sdJobRunning());
    QTRY_VERIFY(!status.isEmpty() && status.last().first().toString().startsWith("Idle"));
    QVERIFY(status.first().first().toString().startsWith("Run X:10.000 Y:5.000 F:1000 S:500"));
    QVERIFY(!link.sdJobRunning());
}

void TestWifiLink::runMissingFile()
{
    FakeBoard board;
    QVERIFY(board.start());
    HttpThread link;
    point(link, board);
    QSignalSpy started(&link, &HttpThread::runStarted);
    QSignalSpy progress(&link, &HttpThread::send_Yun_Xing_Zhi);
    link.runFile("/nothing.nc");
    QTRY_COMPARE(started.count(), 1);
    QVERIFY(!started.first().at(0).toBool());
    QVERIFY(progress.isEmpty());
    QVERIFY(!link.sdJobRunning());
}

void TestWifiLink::dropMidJob()
{
    FakeBoard::Options o;
    o.jobMs = 60000;
    o.reportIntervalMs = 20;
    FakeBoard board(o);
    QVERIFY(board.start());
    board.putCardFile("001.nc", "G0X1\n");
    HttpThread link;
    point(link, board);
    QVERIFY(link.connectBoard(5000));
    QSignalSpy status(&link, &HttpThread::shu_chu_zhuang_tai);
    QSignalSpy dropped(&link, &HttpThread::sendDisconnectMessage);
    link.runFile("/001.nc");
    QTRY_VERIFY(!status.isEmpty());
    board.dropWebSockets();
    QTRY_COMPARE(dropped.count(), 1);
    QCOMPARE(dropped.first().first().toInt(), -1);
    QVERIFY(!link.isConnected());
    QCOMPARE(lumitra::get_setting("yichangduankai"), QString("-1"));
    // The link stays usable: commands still go out over HTTP.
    link.stop();
    QTRY_COMPARE(board.commands().last(), QString(QChar(0x18)));
    QTest::qWait(50);
    QCOMPARE(dropped.count(), 1);
}

void TestWifiLink::disconnectOnPurpose()
{
    FakeBoard board;
    QVERIFY(board.start());
    HttpThread link;
    point(link, board);
    QVERIFY(link.connectBoard(5000));
    QTRY_COMPARE(board.webSocketClients(), 1);
    QSignalSpy dropped(&link, &HttpThread::sendDisconnectMessage);
    link.disconnectBoard();
    QVERIFY(!link.isConnected());
    QTRY_COMPARE(board.webSocketClients(), 0);
    QCOMPARE(dropped.count(), 0);
    QCOMPARE(lumitra::get_setting("yichangduankai"), QString("0"));
    QVERIFY(link.connectBoard(5000)); // and it connects again
}

QTEST_GUILESS_MAIN(TestWifiLink)
#include "tst_wifi_link.moc"
