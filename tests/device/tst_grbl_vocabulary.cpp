#include "device_info.h"
#include "grbl_protocol.h"
#include "line_assembler.h"
#include "machine_commands.h"
#include "status_reaction.h"
#include "wifi_message.h"

#include <QtTest>

// The link's vocabulary as plain code: what a line means, what the window does
// with a status text, and the WiFi forms of the machine controls (the serial
// forms are checked through the panel against the fake).
using namespace lumitra::grbl;
using namespace lumitra::machine;
using Reads = QList<QByteArray>;
using Entries = QMap<QString, QString>;
using Settings = QMap<int, QString>;
Q_DECLARE_METATYPE(SerialLine)
Q_DECLARE_METATYPE(StatusLink)

static const QString kIdle = "Idle X:0.000 Y:0.000 F:0 S:0";
static const QString kIdleReport = "<Idle|MPos:0.000,0.000,0.000|FS:0,0>";

class TestGrblVocabulary : public QObject
{
    Q_OBJECT

private slots:
    void classification_data();
    void classification();
    void statusText_data();
    void statusText();
    void motionStates_data();
    void motionStates();
    void stopBeforeClosing_data();
    void stopBeforeClosing();
    void lineAssembly_data();
    void lineAssembly();
    void wifiLinkInfo_data();
    void wifiLinkInfo();
    void wifiStatus_data();
    void wifiStatus();
    void wifiDumpAcrossMessages();
    void wifiDumpParsing_data();
    void wifiDumpParsing();
    void reactionIndicatorOnFourthIdle();
    void reactionConsole_data();
    void reactionConsole();
    void reactionAlarmOnlyOnce_data();
    void reactionAlarmOnlyOnce();
    void reactionPositionAndCamera();
    void wifiCommands_data();
    void wifiCommands();
    void wifiCommandUrls_data();
    void wifiCommandUrls();
    void firePower_data();
    void firePower();
};

void TestGrblVocabulary::classification_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<SerialLine>("kind");
    QTest::newRow("ok") << "ok\r" << SerialLine::Ok;
    QTest::newRow("ok wins over an alarm word") << "Alarm ok\r" << SerialLine::Ok;
    QTest::newRow("model") << "[MSG:Using machine:Ortavex_Q7]\r" << SerialLine::MachineModel;
    QTest::newRow("station") << "[Mode=STA:SSID=h:IP=10.0.0.7:]\r" << SerialLine::StationMode;
    QTest::newRow("access point") << "[Mode=AP:SSDI=l:IP=1.2.3.4:]\r"
                                  << SerialLine::AccessPointMode;
    QTest::newRow("setting") << "$130=400.000\r" << SerialLine::Setting;
    QTest::newRow("setting before alarm") << "$Alarm=1\r" << SerialLine::Setting;
    QTest::newRow("alarm status takes the reset path")
        << "<Alarm|MPos:1.000,2.000,0.000|FS:0,0>\r" << SerialLine::Alarm;
    QTest::newRow("capital Error") << "Error: bad\r" << SerialLine::Error;
    QTest::newRow("lowercase error:20 falls through") << "error:20\r" << SerialLine::Other;
    QTest::newRow("uppercase ALARM:1 falls through") << "ALARM:1\r" << SerialLine::Other;
    QTest::newRow("status") << kIdleReport + "\r" << SerialLine::Status;
    QTest::newRow("version") << "[VER:1.1h.20190825:]\r" << SerialLine::Version;
    QTest::newRow("case matters for ok") << "OK\r" << SerialLine::Other;
    QTest::newRow("empty") << "" << SerialLine::Other;
}

void TestGrblVocabulary::classification()
{
    QFETCH(QString, line);
    QFETCH(SerialLine, kind);
    QCOMPARE(classifySerialLine(line), kind);
}

void TestGrblVocabulary::statusText_data()
{
    QTest::addColumn<bool>("serial"); // serialStatusText, else normaliseStatus
    QTest::addColumn<QString>("report");
    QTest::addColumn<QString>("text");
    QTest::newRow("field after FS")
        << false << "<Run|MPos:10.000,20.500,0.000|FS:1200,800|WCO:0.000,0.000,0.000>"
        << "Run X:10.000 Y:20.500 F:1200 S:800";
    QTest::newRow("no bar after speed, z dropped")
        << false << "<Jog|WPos:-1.000,-2.000,99.000|FS:500,0>"
        << "Jog X:-1.000 Y:-2.000 F:500 S:0";
    QTest::newRow("colon in the state word: fields counted from it")
        << false << "<Hold:0|MPos:3.000,4.000,5.000|FS:0,0>"
        << "Hold:0 X:0|MPos:3.000 Y:4.000 F:0 S:0";
    QTest::newRow("buffer field before the feed")
        << false << "<Run|MPos:1.000,2.000,0.000|Bf:12,100|FS:600,300>"
        << "Run X:1.000 Y:2.000 F:600 S:300";
    QTest::newRow("serial camera")
        << true << "<Idle|MPos:0.000,0.000,0.000|FS:0,0|Cam:1.2.3.4>\r" << kIdle + " Cam:1.2.3.4";
    QTest::newRow("serial carriage return kept") << true << kIdleReport + "\r" << kIdle + "\r";
}

void TestGrblVocabulary::statusText()
{
    QFETCH(bool, serial);
    QFETCH(QString, report);
    QFETCH(QString, text);
    QCOMPARE(serial ? serialStatusText(report) : normaliseStatus(report), text);
}

void TestGrblVocabulary::motionStates_data()
{
    QTest::addColumn<QString>("report");
    QTest::addColumn<bool>("motion");
    QTest::newRow("run") << "<Run|MPos:1.000,2.000,0.000|FS:100,0>" << true;
    QTest::newRow("hold with substate") << "<Hold:0|MPos:3.000,4.000,5.000|FS:0,0>" << true;
    QTest::newRow("jog") << "<Jog|WPos:-1.000,-2.000,99.000|FS:500,0>" << true;
    QTest::newRow("home, state only") << "<Home>" << true;
    QTest::newRow("idle") << kIdleReport << false;
    QTest::newRow("alarm") << "<Alarm|MPos:0.000,0.000,0.000|FS:0,0>" << false;
    QTest::newRow("door") << "<Door:1|MPos:0.000,0.000,0.000|FS:0,0>" << false;
    QTest::newRow("state word only starts with Run") << "<Running|MPos:0,0,0>" << false;
    QTest::newRow("not a report") << "Run" << false;
    QTest::newRow("empty report") << "<" << false;
}

void TestGrblVocabulary::motionStates()
{
    QFETCH(QString, report);
    QFETCH(bool, motion);
    QCOMPARE(lumitra::grbl::statusShowsMotion(report), motion);
}

void TestGrblVocabulary::stopBeforeClosing_data()
{
    QTest::addColumn<bool>("laserOn");
    QTest::addColumn<bool>("busy");
    QTest::addColumn<bool>("hold");
    QTest::addColumn<bool>("reset");
    QTest::addColumn<bool>("laserOff");
    QTest::newRow("quiet machine: nothing") << false << false << false << false << false;
    QTest::newRow("test fire: laser off only") << true << false << false << false << true;
    QTest::newRow("job: hold, reset, laser off") << false << true << true << true << true;
    QTest::newRow("both") << true << true << true << true << true;
}

void TestGrblVocabulary::stopBeforeClosing()
{
    QFETCH(bool, laserOn);
    QFETCH(bool, busy);
    const lumitra::grbl::StopBeforeClose stop = lumitra::grbl::stopBeforeClose(laserOn, busy);
    QTEST(stop.hold, "hold");
    QTEST(stop.reset, "reset");
    QTEST(stop.laserOff, "laserOff");
    QCOMPARE(stop.any(), laserOn || busy);
}

void TestGrblVocabulary::lineAssembly_data()
{
    QTest::addColumn<Reads>("reads");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("rest");
    QTest::newRow("two ok in one read")
        << Reads{"ok\r\nok\r\n"} << QStringList{"ok\r", "ok\r"} << "";
    QTest::newRow("split across reads")
        << Reads{"o", "k\r", "\n<Idle|", "MPos>\r\n"} << QStringList{"ok\r", "<Idle|MPos>\r"} << "";
    QTest::newRow("nul drops the rest of its read")
        << Reads{QByteArray("ok\r\nerr\0or\r\nok\r\n", 16), "\r\nok\n"}
        << QStringList{"ok\r", "err\r", "ok"} << "";
    QTest::newRow("leading and blank lines dropped")
        << Reads{"\n\n\nok\n\n"} << QStringList{"ok"} << "";
    QTest::newRow("unfinished kept") << Reads{"ok\nVER"} << QStringList{"ok"} << "VER";
    QTest::newRow("latin-1") << Reads{"[MSG:\xe9\xff]\r\n"}
                             << QStringList{QString::fromLatin1("[MSG:\xe9\xff]\r")} << "";
}

void TestGrblVocabulary::lineAssembly()
{
    QFETCH(Reads, reads);
    QFETCH(QStringList, lines);
    QFETCH(QString, rest);
    LineAssembler a;
    QStringList got;
    for (const QByteArray &r : reads)
        got += a.feed(r);
    QCOMPARE(got, lines);
    QCOMPARE(a.pending(), rest);
}

// The model and setting lines are read through the link in its tests.
void TestGrblVocabulary::wifiLinkInfo_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<Entries>("entries");
    QTest::newRow("station") << "[Mode=STA:SSID=home net:Status=Connected:IP=10.0.0.7:]\r"
                             << Entries{{"Mode", "STA"},
                                        {"SSID", "home net"},
                                        {"Status", "Connected"},
                                        {"IP", "10.0.0.7"}};
    QTest::newRow("station without status")
        << "[Mode=STA:SSID=x:IP=10.0.0.8:]\r"
        << Entries{{"Mode", "STA"}, {"SSID", "x"}, {"IP", "10.0.0.8"}};
    QTest::newRow("access point keeps the board's key")
        << "[Mode=AP:SSDI=laser:IP=192.168.0.1:]\r"
        << Entries{{"Mode", "AP"}, {"SSDI", "laser"}, {"IP", "192.168.0.1"}};
}

void TestGrblVocabulary::wifiLinkInfo()
{
    QFETCH(QString, line);
    QFETCH(Entries, entries);
    DeviceInfo info;
    if (line.contains("Mode=STA"))
        info.readStationMode(line);
    else
        info.readAccessPointMode(line);
    QCOMPARE(info.map(), entries);
}

void TestGrblVocabulary::wifiStatus_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("status"); // empty: none shown
    QTest::addColumn<float>("progress"); // negative: none
    QTest::addColumn<QString>("camera");
    QTest::addColumn<bool>("sdRunning"); // an SD job that was running still is
    QTest::newRow("idle") << "<Idle|MPos:1.500,-2.250,0.000|FS:0,0>"
                          << "Idle X:1.500 Y:-2.250 F:0 S:0" << -1.0f << "" << false;
    QTest::newRow("run with sd progress")
        << "<Run|MPos:1.000,2.000,0.000|FS:100,5|SD:12.50,/001.nc>"
        << "Run X:1.000 Y:2.000 F:100 S:5" << 12.5f << "" << true;
    QTest::newRow("jog is not shown") << "<Jog|MPos:1.000,2.000,0.000|FS:100,0>"
                                      << "" << -1.0f << "" << true;
    QTest::newRow("camera") << "<Idle|MPos:0.000,0.000,0.000|FS:0,0|Cam:10.1.2.3>" << kIdle << -1.0f
                            << "10.1.2.3" << false;
    QTest::newRow("alarm") << "<Alarm|MPos:0.000,0.000,0.000|FS:0,0>"
                           << "Alarm X:0.000 Y:0.000 F:0 S:0" << -1.0f << "" << false;
    QTest::newRow("not a report") << "[MSG:Idle]"
                                  << "" << -1.0f << "" << true;
}

void TestGrblVocabulary::wifiStatus()
{
    QFETCH(QString, message);
    QFETCH(QString, status);
    QFETCH(float, progress);
    QFETCH(QString, camera);
    QFETCH(bool, sdRunning);
    WifiMessageParser parser;
    parser.setSdJobRunning(true);
    const WifiMessageResult r = parser.feed(message);
    QCOMPARE(r.hasStatus, !status.isEmpty());
    QCOMPARE(r.status, status);
    QCOMPARE(r.hasProgress, progress >= 0);
    QCOMPARE(r.progress, std::max(progress, 0.0f));
    QCOMPARE(r.hasCamera, !camera.isEmpty());
    QCOMPARE(r.camera, camera);
    QVERIFY(!r.hasSettings);
    QCOMPARE(parser.sdJobRunning(), sdRunning);
}

void TestGrblVocabulary::wifiDumpAcrossMessages()
{
    WifiMessageParser parser;
    QVERIFY(!parser.feed("$0=10\n$1=25\n").hasSettings);
    QVERIFY(parser.buffer().startsWith("kaishi "));
    QVERIFY(!parser.feed(kIdleReport).hasStatus); // inside the dump: not shown
    QVERIFY(!parser.feed("$110=6000.000\n$130=300.4\n").hasSettings);
    const WifiMessageResult r = parser.feed("$131=180.6\n$135=0\n");
    QVERIFY(r.hasSettings);
    QCOMPARE(
        r.settings,
        (Settings{
            {0, "10"}, {1, "25"}, {110, "6000.000"}, {130, "300.4"}, {131, "180.6"}, {135, "0"}}));
    QVERIFY(parser.buffer().isEmpty());
    QVERIFY(parser.feed(kIdleReport).hasStatus);
}

void TestGrblVocabulary::wifiDumpParsing_data()
{
    QTest::addColumn<QString>("buffer");
    QTest::addColumn<Settings>("settings");
    QTest::newRow("text before the first dollar")
        << "kaishi ok junk $32=1\n$135=0" << Settings{{32, "1"}, {135, "0"}};
    QTest::newRow("non-numeric key skipped") << "$N0= $abc=1 $5=2" << Settings{{5, "2"}};
    QTest::newRow("three parts skipped") << "$5=2=3 $6=7" << Settings{{6, "7"}};
    QTest::newRow("repeated marker") << "kaishi $0=1 kaishi $13=0" << Settings{{0, "1"}, {13, "0"}};
}

void TestGrblVocabulary::wifiDumpParsing()
{
    QFETCH(QString, buffer);
    QFETCH(Settings, settings);
    QCOMPARE(parseWifiSettingsDump(buffer), settings);
}

void TestGrblVocabulary::reactionIndicatorOnFourthIdle()
{
    StatusDisplayState state;
    StatusReaction r = reactToStatus(StatusLink::Serial, state, "Run X:1.000 Y:1.000 F:0 S:0", 0);
    QVERIFY(state.busy);
    QVERIFY(r.showIndicator);
    QVERIFY(!r.startIndicatorTimer);
    QList<bool> hidden;
    for (int i = 0; i < 12; ++i) {
        r = reactToStatus(StatusLink::Serial, state, kIdle, 0);
        QVERIFY(!state.busy);
        QCOMPARE(r.hideIndicator, r.stopIndicatorTimer);
        hidden.append(r.hideIndicator);
    }
    // Counter values 3..9 (the 4th to the 10th Idle) hide the indicator.
    QCOMPARE(hidden, (QList<bool>{false, false, false, true, true, true, true, true, true, true,
                                  false, false}));
    reactToStatus(StatusLink::Serial, state, "Hold:0 X:1.000 Y:1.000 F:0 S:0", 0);
    QVERIFY(state.busy);
    QCOMPARE(state.idleCounter, 0);

    state.idleCounter = kIdleCounterJobStart; // a job just started: the indicator stays
    for (int i = 0; i < 5; ++i)
        QVERIFY(!reactToStatus(StatusLink::Serial, state, kIdle, 0).hideIndicator);
    state.idleCounter = kIdleCounterCeiling - 1;
    reactToStatus(StatusLink::Serial, state, kIdle, 0);
    QCOMPARE(state.idleCounter, kIdleCounterCeiling);
    reactToStatus(StatusLink::Serial, state, kIdle, 0);
    QCOMPARE(state.idleCounter, kIdleCounterRestart);
}

void TestGrblVocabulary::reactionConsole_data()
{
    QTest::addColumn<StatusLink>("link");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("clear");
    QTest::addColumn<bool>("append");
    QTest::newRow("serial below limit") << StatusLink::Serial << kIdle << 1200 << false << true;
    QTest::newRow("serial above limit") << StatusLink::Serial << kIdle << 1201 << true << true;
    QTest::newRow("serial plain ok") << StatusLink::Serial << " ok\r" << 0 << false << false;
    QTest::newRow("serial ok inside") << StatusLink::Serial << "Idle ok" << 0 << false << true;
    QTest::newRow("wifi above limit") << StatusLink::Wifi << kIdle << 1001 << true << true;
    QTest::newRow("wifi ok inside") << StatusLink::Wifi << "Idle ok" << 0 << false << false;
}

void TestGrblVocabulary::reactionConsole()
{
    QFETCH(StatusLink, link);
    QFETCH(QString, text);
    QFETCH(int, length);
    QFETCH(bool, clear);
    QFETCH(bool, append);
    StatusDisplayState state;
    const StatusReaction r = reactToStatus(link, state, text, length);
    QCOMPARE(r.clearConsole, clear);
    QCOMPARE(r.appendConsole, append);
}

void TestGrblVocabulary::reactionAlarmOnlyOnce_data()
{
    QTest::addColumn<StatusLink>("link");
    QTest::addColumn<bool>("hides");
    QTest::newRow("serial") << StatusLink::Serial << true;
    QTest::newRow("wifi") << StatusLink::Wifi << false;
}

void TestGrblVocabulary::reactionAlarmOnlyOnce()
{
    QFETCH(StatusLink, link);
    QFETCH(bool, hides);
    StatusDisplayState state;
    StatusReaction r = reactToStatus(link, state, "Alarm", 0);
    QVERIFY(r.showAlarm);
    QVERIFY(r.stopIndicatorTimer);
    QCOMPARE(r.hideIndicator, hides);
    QVERIFY(!reactToStatus(link, state, "Alarm X:0.000 Y:0.000 F:0 S:0", 0).showAlarm);
    state.alarmShown = false;
    QVERIFY(reactToStatus(link, state, "Alarm", 0).showAlarm);
}

void TestGrblVocabulary::reactionPositionAndCamera()
{
    StatusDisplayState state;
    StatusReaction r = reactToStatus(StatusLink::Serial, state, "Idle X:1 Y:-2.250 F:0 S:0", 0);
    QVERIFY(!r.hasX); // an integer is not taken
    QVERIFY(r.hasY);
    QCOMPARE(r.y, -2.25);
    const QString text = kIdle + " Cam:192.168.4.9";
    r = reactToStatus(StatusLink::Serial, state, text, 0);
    QVERIFY(r.cameraChanged);
    QCOMPARE(r.cameraAddress, QString("192.168.4.9"));
    QVERIFY(!reactToStatus(StatusLink::Serial, state, text, 0).cameraChanged);
    QVERIFY(!reactToStatus(StatusLink::Wifi, state, "Idle X:0.000 Cam:10.0.0.1", 0).cameraChanged);
    // Over WiFi a settings text is not a status.
    StatusDisplayState wifi;
    QVERIFY(reactToStatus(StatusLink::Wifi, wifi, "Run $130=400", 0).ignored);
    QVERIFY(!wifi.busy);
    QCOMPARE(wifi.wifiTextCount, 0);
    reactToStatus(StatusLink::Wifi, wifi, "Run X:0.000 Y:0.000", 0);
    QVERIFY(wifi.busy);
    QCOMPARE(wifi.wifiTextCount, 1);
}

void TestGrblVocabulary::wifiCommands_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("expected");
    QTest::newRow("origin") << goToOriginCommand(Link::Wifi) << "$J=G90 G21 F5000 X0Y0";
    QTest::newRow("move jogs at 7500")
        << moveToCommand(Link::Wifi, 12.5, 40) << "$J=G90 G21 F7500 X12.5Y40";
    QTest::newRow("fire off") << testFireOffCommand(Link::Wifi) << "M5S0G0";
    QTest::newRow("pause") << wifiPauseCommand() << "$!";
    QTest::newRow("resume") << wifiResumeCommand() << "$~";
    QTest::newRow("reset") << wifiSoftResetCommand() << QString(QChar(0x18));
    QTest::newRow("centre") << jogCentreCommand(Link::Wifi, 3000) << "$J=G90 G21 F3000 X0Y0";
    QTest::newRow("jog keeps both axes")
        << jogCommand(Link::Wifi, "0", "10", 3000) << "$J=G91 G21 F3000 X0Y10";
}

void TestGrblVocabulary::wifiCommands()
{
    QFETCH(QString, command);
    QFETCH(QString, expected);
    QCOMPARE(command, expected);
}

void TestGrblVocabulary::wifiCommandUrls_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("url");
    QTest::newRow("blanks")
        << jogCommand(Link::Wifi, "-5", "0", 3000)
        << "http://10.0.0.7/command?commandText=%24J%3DG91%20G21%20F3000%20X-5Y0"
           "&PAGEID=0";
    QTest::newRow("plus, ampersand, hash, percent")
        << "[ESP101]pwd=a+b&c#d%e f"
        << "http://10.0.0.7/command?commandText=%5BESP101%5Dpwd%3Da%2Bb%26c%23d%25e%20f&PAGEID=0";
    QTest::newRow("soft reset byte")
        << wifiSoftResetCommand() << "http://10.0.0.7/command?commandText=%18&PAGEID=0";
    QTest::newRow("query") << "?"
                           << "http://10.0.0.7/command?commandText=%3F&PAGEID=0";
    QTest::newRow("utf-8") << QString::fromUtf8("密码")
                           << "http://10.0.0.7/command?commandText=%E5%AF%86%E7%A0%81&PAGEID=0";
}

void TestGrblVocabulary::wifiCommandUrls()
{
    QFETCH(QString, command);
    QFETCH(QString, url);
    QCOMPARE(wifiCommandUrl("10.0.0.7", command), url);
}

void TestGrblVocabulary::firePower_data()
{
    QTest::addColumn<double>("percent");
    QTest::addColumn<double>("maxS");
    QTest::addColumn<QString>("s");
    QTest::newRow("fraction") << 3.0 << 255.0 << "7.65";
    QTest::newRow("six digits") << 1.0 << 333.3333333 << "3.33333";
    QTest::newRow("zero") << 0.0 << 1000.0 << "0";
    QTest::newRow("large") << 100.0 << 12345678.0 << "1.23457e+07";
}

void TestGrblVocabulary::firePower()
{
    QFETCH(double, percent);
    QFETCH(double, maxS);
    QFETCH(QString, s);
    QCOMPARE(testFirePower(percent, maxS), s);
}

QTEST_APPLESS_MAIN(TestGrblVocabulary)
#include "tst_grbl_vocabulary.moc"
