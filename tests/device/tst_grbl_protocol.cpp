#include "grbl_protocol.h"

#include <QtTest>

using namespace lumitra::grbl;
Q_DECLARE_METATYPE(SerialLine)

class TestGrblProtocol : public QObject
{
    Q_OBJECT

private slots:
    void classification_data();
    void classification();
    void normalisation_data();
    void normalisation();
    void serialStatusCarriesCamera_data();
    void serialStatusCarriesCamera();
    void bannerAndModel_data();
    void bannerAndModel();
    void sentTexts();
};

void TestGrblProtocol::classification_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<SerialLine>("kind");

    QTest::newRow("ok") << "ok\r" << SerialLine::Ok;
    QTest::newRow("ok wins over an alarm word") << "Alarm ok\r" << SerialLine::Ok;
    QTest::newRow("model") << "[MSG:Using machine:Ortavex_Q7]\r" << SerialLine::MachineModel;
    QTest::newRow("station") << "[Mode=STA:SSID=home:Status=Connected:IP=10.0.0.7:]\r"
                             << SerialLine::StationMode;
    QTest::newRow("access point") << "[Mode=AP:SSDI=laser:IP=192.168.0.1:]\r"
                                  << SerialLine::AccessPointMode;
    QTest::newRow("setting") << "$130=400.000\r" << SerialLine::Setting;
    QTest::newRow("setting before alarm") << "$Alarm=1\r" << SerialLine::Setting;
    QTest::newRow("alarm status takes the reset path")
        << "<Alarm|MPos:1.000,2.000,0.000|FS:0,0>\r" << SerialLine::Alarm;
    QTest::newRow("capital Error") << "Error: bad\r" << SerialLine::Error;
    QTest::newRow("lowercase error:20 falls through") << "error:20\r" << SerialLine::Other;
    QTest::newRow("uppercase ALARM:1 falls through") << "ALARM:1\r" << SerialLine::Other;
    QTest::newRow("status") << "<Idle|MPos:0.000,0.000,0.000|FS:0,0>\r" << SerialLine::Status;
    QTest::newRow("version") << "[VER:1.1h.20190825:]\r" << SerialLine::Version;
    QTest::newRow("banner") << "Grbl 1.1h ['$' for help]\r" << SerialLine::Other;
    QTest::newRow("case matters for ok") << "OK\r" << SerialLine::Other;
    QTest::newRow("empty") << "" << SerialLine::Other;
}

void TestGrblProtocol::classification()
{
    QFETCH(QString, line);
    QFETCH(SerialLine, kind);
    QCOMPARE(classifySerialLine(line), kind);
}

void TestGrblProtocol::normalisation_data()
{
    QTest::addColumn<QString>("report");
    QTest::addColumn<QString>("text");

    QTest::newRow("idle") << "<Idle|MPos:1.500,-2.250,0.000|FS:0,0>"
                          << "Idle X:1.500 Y:-2.250 F:0 S:0";
    QTest::newRow("origin") << "<Idle|MPos:0.000,0.000,0.000|FS:0,0>"
                            << "Idle X:0.000 Y:0.000 F:0 S:0";
    QTest::newRow("run with a field after FS")
        << "<Run|MPos:10.000,20.500,0.000|FS:1200,800|WCO:0.000,0.000,0.000>"
        << "Run X:10.000 Y:20.500 F:1200 S:800";
    QTest::newRow("no bar after speed") << "<Run|MPos:3.000,4.000,5.000|FS:250,1000>"
                                        << "Run X:3.000 Y:4.000 F:250 S:1000";
    QTest::newRow("colon in the state word: fields counted from it")
        << "<Hold:0|MPos:3.000,4.000,5.000|FS:0,0>"
        << "Hold:0 X:0|MPos:3.000 Y:4.000 F:0 S:0";
    QTest::newRow("z dropped") << "<Jog|WPos:-1.000,-2.000,99.000|FS:500,0>"
                               << "Jog X:-1.000 Y:-2.000 F:500 S:0";
}

void TestGrblProtocol::normalisation()
{
    QFETCH(QString, report);
    QFETCH(QString, text);
    QCOMPARE(normaliseStatus(report), text);
}

void TestGrblProtocol::serialStatusCarriesCamera_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("text");

    QTest::newRow("camera") << "<Idle|MPos:0.000,0.000,0.000|FS:0,0|Cam:192.168.1.20>\r"
                            << "Idle X:0.000 Y:0.000 F:0 S:0 Cam:192.168.1.20";
    QTest::newRow("carriage return kept") << "<Idle|MPos:0.000,0.000,0.000|FS:0,0>\r"
                                          << "Idle X:0.000 Y:0.000 F:0 S:0\r";
}

void TestGrblProtocol::serialStatusCarriesCamera()
{
    QFETCH(QString, line);
    QFETCH(QString, text);
    QCOMPARE(serialStatusText(line), text);
}

void TestGrblProtocol::bannerAndModel_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("banner");
    QTest::addColumn<bool>("maker");

    QTest::newRow("banner") << "Grbl 1.1h ['$' for help]\r" << true << false;
    QTest::newRow("word inside") << "[MSG:Grbl]" << false << false;
    QTest::newRow("model") << "[MSG:Using machine:Ortavex_Q7]" << false << true;
    QTest::newRow("other model") << "[MSG:Using machine:Ortavex_Q5]" << false << false;
}

void TestGrblProtocol::bannerAndModel()
{
    QFETCH(QString, line);
    QFETCH(bool, banner);
    QFETCH(bool, maker);
    QCOMPARE(isStartupBanner(line), banner);
    QCOMPARE(namesMakerModel(line), maker);
}

void TestGrblProtocol::sentTexts()
{
    QCOMPARE(identifyText(), QStringLiteral("$i\n"));
    QCOMPARE(settingsRequestText(), QStringLiteral("$I\n$$\n"));
    QCOMPARE(unlockText(), QStringLiteral("$X\n"));
    QCOMPARE(homeText(), QStringLiteral("$H\n"));
    QCOMPARE(int(kSoftReset), 0x18);
    QCOMPARE(QByteArray() + kStatusQuery + kFeedHold + kCycleStart, QByteArray("?!~"));
}

QTEST_APPLESS_MAIN(TestGrblProtocol)
#include "tst_grbl_protocol.moc"
