#include "wifi_setup.h"

#include <QtTest>

// The radio settings the board is given: which entries are refused and why,
// and the exact command texts, as the serial link queues them and as the WiFi
// link sends them line by line.
using namespace lumitra::wifi;
Q_DECLARE_METATYPE(StationCheck)

class TestWifiSetup : public QObject
{
    Q_OBJECT

private slots:
    void stationCheck_data();
    void stationCheck();
    void stationCommand_data();
    void stationCommand();
    void accessPointCommand();
    void commandLines_data();
    void commandLines();
};

void TestWifiSetup::stationCheck_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("password");
    QTest::addColumn<StationCheck>("expected");

    const QString eight(8, QLatin1Char('a'));
    QTest::newRow("plain") << "HomeNet"
                           << "secret12" << StationCheck::Ok;
    QTest::newRow("blank and punctuation") << "My Net-5G"
                                           << "p@ss w0rd#%" << StationCheck::Ok;
    QTest::newRow("dollar passes") << "Net"
                                   << "pa$$word" << StationCheck::Ok;
    QTest::newRow("8 accepted") << "Net" << eight << StationCheck::Ok;
    QTest::newRow("90 accepted") << "Net" << QString(90, QLatin1Char('x')) << StationCheck::Ok;
    QTest::newRow("7 refused") << "Net" << QString(7, QLatin1Char('x'))
                               << StationCheck::PasswordLength;
    QTest::newRow("91 refused") << "Net" << QString(91, QLatin1Char('x'))
                                << StationCheck::PasswordLength;
    QTest::newRow("empty name") << "" << eight << StationCheck::Empty;
    QTest::newRow("empty password") << "Net"
                                    << "" << StationCheck::Empty;
    QTest::newRow("empty before length") << ""
                                         << "short" << StationCheck::Empty;
    QTest::newRow("length before symbols") << "Net!"
                                           << "a!b" << StationCheck::PasswordLength;
    QTest::newRow("! in name") << "Net!" << eight << StationCheck::ForbiddenSymbol;
    QTest::newRow("? in password") << "Net"
                                   << "secret12?" << StationCheck::ForbiddenSymbol;
    QTest::newRow("~ in password") << "Net"
                                   << "~secret12" << StationCheck::ForbiddenSymbol;
    QTest::newRow("symbols before script")
        << QStringLiteral("网络?") << eight << StationCheck::ForbiddenSymbol;
    QTest::newRow("Chinese name") << QStringLiteral("我的网络") << eight
                                  << StationCheck::NotPlainText;
    QTest::newRow("accented password")
        << "Net" << QStringLiteral("passwörd1") << StationCheck::NotPlainText;
    QTest::newRow("full-width question mark")
        << "Net" << QStringLiteral("secret12？") << StationCheck::NotPlainText;
    QTest::newRow("tab counts as space") << "Net\tA" << eight << StationCheck::Ok;
}

void TestWifiSetup::stationCheck()
{
    QFETCH(QString, name);
    QFETCH(QString, password);
    QFETCH(StationCheck, expected);
    QCOMPARE(checkStation(name, password), expected);
}

void TestWifiSetup::stationCommand_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("expected");
    QTest::newRow("password first")
        << "HomeNet"
        << "secret12"
        << "$Sta/Password=secret12\n$Sta/SSID=HomeNet\n$Radio/Mode=STA\n$I\n";
    QTest::newRow("dollar and blanks kept")
        << "My Net"
        << "pa$$ word"
        << "$Sta/Password=pa$$ word\n$Sta/SSID=My Net\n$Radio/Mode=STA\n$I\n";
}

void TestWifiSetup::stationCommand()
{
    QFETCH(QString, name);
    QFETCH(QString, password);
    QFETCH(QString, expected);
    QCOMPARE(stationModeCommand(name, password), expected);
}

void TestWifiSetup::accessPointCommand()
{
    QCOMPARE(accessPointModeCommand(), QStringLiteral("$Radio/Mode=AP \n$I\n"));
    QCOMPARE(infoCommand(), QStringLiteral("$I\n"));
}

void TestWifiSetup::commandLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("station") << stationModeCommand("Net", "secret12")
                             << QStringList{"$Sta/Password=secret12", "$Sta/SSID=Net",
                                            "$Radio/Mode=STA", "$I"};
    QTest::newRow("access point keeps its blank")
        << accessPointModeCommand() << QStringList{"$Radio/Mode=AP ", "$I"};
    QTest::newRow("carriage returns and empty lines")
        << "$I\r\n\n\r\n$$" << QStringList{"$I", "$$"};
    QTest::newRow("nothing") << "" << QStringList{};
}

void TestWifiSetup::commandLines()
{
    QFETCH(QString, text);
    QFETCH(QStringList, lines);
    QCOMPARE(wifiCommandLines(text), lines);
}

QTEST_GUILESS_MAIN(TestWifiSetup)
#include "tst_wifi_setup.moc"
