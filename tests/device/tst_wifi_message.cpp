#include "wifi_message.h"

#include <QtTest>

using Settings = QMap<int, QString>;

class TestWifiMessage : public QObject
{
    Q_OBJECT

private slots:
    void statusReports_data();
    void statusReports();
    void sdFlagClearedByIdleOrAlarm_data();
    void sdFlagClearedByIdleOrAlarm();
    void makerModel();
    void dumpAcrossMessages();
    void statusInsideDumpIsNotShown();
    void dumpParsing_data();
    void dumpParsing();
};

void TestWifiMessage::statusReports_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("hasStatus");
    QTest::addColumn<QString>("status");
    QTest::addColumn<bool>("hasProgress");
    QTest::addColumn<float>("progress");
    QTest::addColumn<QString>("camera");

    QTest::newRow("idle") << "<Idle|MPos:1.500,-2.250,0.000|FS:0,0>" << true
                          << "Idle X:1.500 Y:-2.250 F:0 S:0" << false << 0.0f << "";
    QTest::newRow("run with sd progress")
        << "<Run|MPos:1.000,2.000,0.000|FS:100,5|SD:12.50,/001.nc>" << true
        << "Run X:1.000 Y:2.000 F:100 S:5" << true << 12.5f << "";
    QTest::newRow("jog is not shown")
        << "<Jog|MPos:1.000,2.000,0.000|FS:100,0>" << false << "" << false << 0.0f << "";
    QTest::newRow("camera") << "<Idle|MPos:0.000,0.000,0.000|FS:0,0|Cam:10.1.2.3>" << true
                            << "Idle X:0.000 Y:0.000 F:0 S:0" << false << 0.0f << "10.1.2.3";
    QTest::newRow("not a report") << "[MSG:Idle]" << false << "" << false << 0.0f << "";
}

void TestWifiMessage::statusReports()
{
    QFETCH(QString, message);
    QFETCH(bool, hasStatus);
    QFETCH(QString, status);
    QFETCH(bool, hasProgress);
    QFETCH(float, progress);
    QFETCH(QString, camera);

    WifiMessageParser parser;
    const WifiMessageResult r = parser.feed(message);
    QCOMPARE(r.hasStatus, hasStatus);
    QCOMPARE(r.status, status);
    QCOMPARE(r.hasProgress, hasProgress);
    QCOMPARE(r.progress, progress);
    QCOMPARE(r.hasCamera, !camera.isEmpty());
    QCOMPARE(r.camera, camera);
    QVERIFY(!r.hasSettings);
}

void TestWifiMessage::sdFlagClearedByIdleOrAlarm_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("stillRunning");

    QTest::newRow("idle") << "<Idle|MPos:0.000,0.000,0.000|FS:0,0>" << false;
    QTest::newRow("alarm") << "<Alarm|MPos:0.000,0.000,0.000|FS:0,0>" << false;
    QTest::newRow("run") << "<Run|MPos:0.000,0.000,0.000|FS:0,0>" << true;
    QTest::newRow("hold") << "<Hold:0|MPos:0.000,0.000,0.000|FS:0,0>" << true;
}

void TestWifiMessage::sdFlagClearedByIdleOrAlarm()
{
    QFETCH(QString, message);
    QFETCH(bool, stillRunning);
    WifiMessageParser parser;
    parser.setSdJobRunning(true);
    parser.feed(message);
    QCOMPARE(parser.sdJobRunning(), stillRunning);
}

void TestWifiMessage::makerModel()
{
    WifiMessageParser parser;
    QVERIFY(parser.feed("[MSG:Using machine:Ortavex_Q7]").namesMakerModel);
    QVERIFY(!parser.feed("[MSG:Using machine:Other]").namesMakerModel);
}

void TestWifiMessage::dumpAcrossMessages()
{
    WifiMessageParser parser;
    WifiMessageResult r = parser.feed("$0=10\n$1=25\n");
    QVERIFY(!r.hasSettings);
    QVERIFY(parser.buffer().startsWith("kaishi "));
    r = parser.feed("$110=6000.000\n$130=300.4\n");
    QVERIFY(!r.hasSettings);
    r = parser.feed("$131=180.6\n$135=0\n");
    QVERIFY(r.hasSettings);
    QCOMPARE(
        r.settings,
        (Settings{
            {0, "10"}, {1, "25"}, {110, "6000.000"}, {130, "300.4"}, {131, "180.6"}, {135, "0"}}));
    QVERIFY(parser.buffer().isEmpty());
}

void TestWifiMessage::statusInsideDumpIsNotShown()
{
    WifiMessageParser parser;
    parser.feed("$0=10\n");
    const QString before = parser.buffer();
    const WifiMessageResult r = parser.feed("<Idle|MPos:0.000,0.000,0.000|FS:0,0>");
    QVERIFY(!r.hasStatus);
    QVERIFY(parser.buffer().size() > before.size());
    // Once the dump ends, reports are shown again.
    parser.feed("$135=0");
    QVERIFY(parser.feed("<Idle|MPos:0.000,0.000,0.000|FS:0,0>").hasStatus);
}

void TestWifiMessage::dumpParsing_data()
{
    QTest::addColumn<QString>("buffer");
    QTest::addColumn<Settings>("settings");

    QTest::newRow("plain") << "kaishi $0=10 $135=1" << Settings{{0, "10"}, {135, "1"}};
    QTest::newRow("text before the first dollar")
        << "kaishi ok junk $32=1\n$135=0" << Settings{{32, "1"}, {135, "0"}};
    QTest::newRow("non-numeric key skipped") << "$N0= $abc=1 $5=2" << Settings{{5, "2"}};
    QTest::newRow("three parts skipped") << "$5=2=3 $6=7" << Settings{{6, "7"}};
    QTest::newRow("repeated marker") << "kaishi $0=1 kaishi $13=0" << Settings{{0, "1"}, {13, "0"}};
}

void TestWifiMessage::dumpParsing()
{
    QFETCH(QString, buffer);
    QFETCH(Settings, settings);
    QCOMPARE(parseWifiSettingsDump(buffer), settings);
}

QTEST_APPLESS_MAIN(TestWifiMessage)
#include "tst_wifi_message.moc"
