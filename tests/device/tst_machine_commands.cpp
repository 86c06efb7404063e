#include "machine_commands.h"

#include <QtTest>

using namespace lumitra::machine;
Q_DECLARE_METATYPE(Link)

class TestMachineCommands : public QObject
{
    Q_OBJECT

private slots:
    void controls_data();
    void controls();
    void testFirePower_data();
    void testFirePower();
    void jog_data();
    void jog();
    void jogPad_data();
    void jogPad();
    void framing();
    void sceneRectToMachine();
    void wifiUrl();
};

void TestMachineCommands::controls_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("expected");

    QTest::newRow("home serial unlocks first") << homeCommand(Link::Serial) << "$X\n$H\n";
    QTest::newRow("home wifi") << homeCommand(Link::Wifi) << "$H";
    QTest::newRow("origin serial") << goToOriginCommand(Link::Serial) << "$J=G90X0Y0F5000";
    QTest::newRow("origin wifi") << goToOriginCommand(Link::Wifi) << "$J=G90%20G21%20F5000%20X0Y0";
    QTest::newRow("set origin") << setOriginCommand() << "G92X0Y0Z0";
    QTest::newRow("clear origin") << clearOriginCommand() << "G92.1";
    QTest::newRow("move serial has no feed")
        << moveToCommand(Link::Serial, 12.5, -3) << "G90X12.5Y-3";
    QTest::newRow("move wifi jogs at 7500")
        << moveToCommand(Link::Wifi, 12.5, 40) << "$J=G90%20G21%20F7500%20X12.5Y40";
    QTest::newRow("fire on") << testFireOnCommand("10") << "M3S10G1F1000";
    QTest::newRow("fire off serial keeps feed")
        << testFireOffCommand(Link::Serial) << "M5S0G0F1000";
    QTest::newRow("fire off wifi") << testFireOffCommand(Link::Wifi) << "M5S0G0";
    QTest::newRow("wifi pause") << wifiPauseCommand() << "$!";
    QTest::newRow("wifi resume") << wifiResumeCommand() << "$~";
    QTest::newRow("wifi reset") << wifiSoftResetCommand() << "%18";
    QTest::newRow("centre serial") << jogCentreCommand(Link::Serial, 3000) << "$J=G90X0Y0F3000";
    QTest::newRow("centre wifi") << jogCentreCommand(Link::Wifi, 3000)
                                 << "$J=G90%20G21%20F3000%20X0Y0";
}

void TestMachineCommands::controls()
{
    QFETCH(QString, command);
    QFETCH(QString, expected);
    QCOMPARE(command, expected);
}

void TestMachineCommands::testFirePower_data()
{
    QTest::addColumn<double>("percent");
    QTest::addColumn<double>("maxS");
    QTest::addColumn<QString>("s");

    QTest::newRow("1% of 1000") << 1.0 << 1000.0 << "10";
    QTest::newRow("fraction") << 3.0 << 255.0 << "7.65";
    QTest::newRow("six digits") << 1.0 << 333.3333333 << "3.33333";
    QTest::newRow("zero") << 0.0 << 1000.0 << "0";
    QTest::newRow("large") << 100.0 << 12345678.0 << "1.23457e+07";
}

void TestMachineCommands::testFirePower()
{
    QFETCH(double, percent);
    QFETCH(double, maxS);
    QFETCH(QString, s);
    QCOMPARE(lumitra::machine::testFirePower(percent, maxS), s);
}

void TestMachineCommands::jog_data()
{
    QTest::addColumn<Link>("link");
    QTest::addColumn<QString>("dx");
    QTest::addColumn<QString>("dy");
    QTest::addColumn<QString>("command");

    QTest::newRow("serial diagonal") << Link::Serial << "10"
                                     << "-10"
                                     << "$J=G91X10Y-10F3000";
    QTest::newRow("serial x only") << Link::Serial << "-10"
                                   << "0"
                                   << "$J=G91X-10F3000";
    QTest::newRow("serial y only") << Link::Serial << "0"
                                   << "10"
                                   << "$J=G91Y10F3000";
    QTest::newRow("wifi keeps both") << Link::Wifi << "0"
                                     << "10"
                                     << "$J=G91%20G21%20F3000%20X0Y10";
}

void TestMachineCommands::jog()
{
    QFETCH(Link, link);
    QFETCH(QString, dx);
    QFETCH(QString, dy);
    QFETCH(QString, command);
    QCOMPARE(jogCommand(link, dx, dy, 3000), command);
}

void TestMachineCommands::jogPad_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("dx");
    QTest::addColumn<QString>("dy");

    QTest::newRow("top left") << 0 << "-5"
                              << "5";
    QTest::newRow("up") << 1 << "0"
                        << "5";
    QTest::newRow("top right") << 2 << "5"
                               << "5";
    QTest::newRow("left") << 3 << "-5"
                          << "0";
    QTest::newRow("right") << 5 << "5"
                           << "0";
    QTest::newRow("bottom left") << 6 << "-5"
                                 << "-5";
    QTest::newRow("down") << 7 << "0"
                          << "-5";
    QTest::newRow("bottom right") << 8 << "5"
                                  << "-5";
}

void TestMachineCommands::jogPad()
{
    QFETCH(int, index);
    QFETCH(QString, dx);
    QFETCH(QString, dy);
    const JogDirection d = jogPadDirection(index);
    QCOMPARE(jogOffset(d.x, 5), dx);
    QCOMPARE(jogOffset(d.y, 5), dy);
}

void TestMachineCommands::framing()
{
    const QStringList lines = framingCommands(QRectF(QPointF(10, 20), QPointF(110.5, 70.25)), 2500);
    QCOMPARE(lines, (QStringList{"M5S0", "$J=G90X10.00Y20.00F2500", "$J=G90X110.50Y20.00F2500",
                                 "$J=G90X110.50Y70.25F2500", "$J=G90X10.00Y70.25F2500",
                                 "$J=G90X10.00Y20.00F2500"}));
    for (const QString &line : lines)
        QVERIFY2(!line.contains("M3") && !line.contains("M4"), qPrintable(line));
}

void TestMachineCommands::sceneRectToMachine()
{
    // Scene y runs from -height (top) to 0; machine Y is its negation.
    QCOMPARE(sceneToMachine(QRectF(10, -80, 50, 30)), QRectF(10, 50, 50, 30));
    QCOMPARE(sceneToMachine(QRectF(QPointF(60, -50), QPointF(10, -80))), QRectF(10, 50, 50, 30));
}

void TestMachineCommands::wifiUrl()
{
    QCOMPARE(wifiCommandUrl("192.168.0.1", "$H"),
             QString("http://192.168.0.1/command?commandText=$H&PAGEID=0"));
}

QTEST_APPLESS_MAIN(TestMachineCommands)
#include "tst_machine_commands.moc"
