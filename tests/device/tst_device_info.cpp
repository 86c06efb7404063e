#include "device_info.h"

#include <QtTest>

using Entries = QMap<QString, QString>;

class TestDeviceInfo : public QObject
{
    Q_OBJECT

private slots:
    void lines_data();
    void lines();
    void modelValue();
    void collectionEndsOnSecondOk();
    void okOutsideCollectionCountsNothing();
};

void TestDeviceInfo::lines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<Entries>("entries");

    QTest::newRow("model") << "[MSG:Using machine:Ortavex_Q7]\r"
                           << Entries{{"ji_xing", "Ortavex_Q7"}};
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
    QTest::newRow("setting") << "$130=400.000\r" << Entries{{"$130", "400.000"}};
    QTest::newRow("setting value loses its last character") << "$32=1\r" << Entries{{"$32", "1"}};
    QTest::newRow("setting without equals") << "$N\r" << Entries{};
}

void TestDeviceInfo::lines()
{
    QFETCH(QString, line);
    QFETCH(Entries, entries);
    DeviceInfo info;
    if (line.contains("Using machine"))
        info.readMachineModel(line);
    else if (line.contains("Mode=STA"))
        info.readStationMode(line);
    else if (line.contains("Mode=AP"))
        info.readAccessPointMode(line);
    else
        info.readSetting(line);
    QCOMPARE(info.map(), entries);
}

void TestDeviceInfo::modelValue()
{
    DeviceInfo info;
    QCOMPARE(info.readMachineModel("[MSG:Using machine:Ortavex_Q7]\r"), QString("Ortavex_Q7"));
}

void TestDeviceInfo::collectionEndsOnSecondOk()
{
    DeviceInfo info;
    info.readSetting("$1=25\r");
    info.beginCollecting();
    QVERIFY(info.map().isEmpty());
    QVERIFY(info.collecting());
    QVERIFY(!info.countOk());
    info.readSetting("$130=300.4\r");
    QVERIFY(info.countOk());
    QVERIFY(!info.collecting());
    QVERIFY(!info.countOk());
    QCOMPARE(info.map(), (Entries{{"$130", "300.4"}}));
}

void TestDeviceInfo::okOutsideCollectionCountsNothing()
{
    DeviceInfo info;
    for (int i = 0; i < 3; ++i)
        QVERIFY(!info.countOk());
    info.beginCollecting();
    QVERIFY(!info.countOk());
    QVERIFY(info.countOk());
}

QTEST_APPLESS_MAIN(TestDeviceInfo)
#include "tst_device_info.moc"
