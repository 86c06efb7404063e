#include "status_reaction.h"

#include <QtTest>

Q_DECLARE_METATYPE(StatusLink)

class TestStatusReaction : public QObject
{
    Q_OBJECT

private slots:
    void position_data();
    void position();
    void runThenIdleHidesIndicatorOnFourthIdle();
    void jobStartCounterKeepsIndicator();
    void idleCounterWraps();
    void console_data();
    void console();
    void alarmOnlyOnce_data();
    void alarmOnlyOnce();
    void serialCamera();
    void wifiIgnoresSettingsText();
};

void TestStatusReaction::position_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasX");
    QTest::addColumn<double>("x");
    QTest::addColumn<bool>("hasY");
    QTest::addColumn<double>("y");

    QTest::newRow("both") << "Idle X:1.500 Y:-2.250 F:0 S:0" << true << 1.5 << true << -2.25;
    QTest::newRow("integer x not taken")
        << "Idle X:1 Y:-2.250 F:0 S:0" << false << 0.0 << true << -2.25;
    QTest::newRow("none") << "Alarm" << false << 0.0 << false << 0.0;
}

void TestStatusReaction::position()
{
    QFETCH(QString, text);
    QFETCH(bool, hasX);
    QFETCH(double, x);
    QFETCH(bool, hasY);
    QFETCH(double, y);
    StatusDisplayState state;
    const StatusReaction r = reactToStatus(StatusLink::Serial, state, text, 0);
    QCOMPARE(r.hasX, hasX);
    QCOMPARE(r.x, x);
    QCOMPARE(r.hasY, hasY);
    QCOMPARE(r.y, y);
}

void TestStatusReaction::runThenIdleHidesIndicatorOnFourthIdle()
{
    StatusDisplayState state;
    StatusReaction r = reactToStatus(StatusLink::Serial, state, "Run X:1.000 Y:1.000 F:0 S:0", 0);
    QVERIFY(state.busy);
    QVERIFY(r.showIndicator);
    QVERIFY(!r.startIndicatorTimer);
    QCOMPARE(state.idleCounter, 0);

    QList<bool> hidden;
    for (int i = 0; i < 12; ++i) {
        r = reactToStatus(StatusLink::Serial, state, "Idle X:1.000 Y:1.000 F:0 S:0", 0);
        QVERIFY(!state.busy);
        QCOMPARE(r.hideIndicator, r.stopIndicatorTimer);
        hidden.append(r.hideIndicator);
    }
    // Counter values 3..9 (the 4th to the 10th Idle) hide the indicator.
    QCOMPARE(hidden, (QList<bool>{false, false, false, true, true, true, true, true, true, true,
                                  false, false}));
    QCOMPARE(state.idleCounter, 12);

    r = reactToStatus(StatusLink::Serial, state, "Hold:0 X:1.000 Y:1.000 F:0 S:0", 0);
    QVERIFY(state.busy);
    QCOMPARE(state.idleCounter, 0);
}

void TestStatusReaction::jobStartCounterKeepsIndicator()
{
    StatusDisplayState state;
    state.idleCounter = kIdleCounterJobStart;
    for (int i = 0; i < 5; ++i) {
        const StatusReaction r =
            reactToStatus(StatusLink::Serial, state, "Idle X:0.000 Y:0.000 F:0 S:0", 0);
        QVERIFY(!r.hideIndicator);
    }
}

void TestStatusReaction::idleCounterWraps()
{
    StatusDisplayState state;
    state.idleCounter = kIdleCounterCeiling;
    reactToStatus(StatusLink::Serial, state, "Idle X:0.000 Y:0.000 F:0 S:0", 0);
    QCOMPARE(state.idleCounter, kIdleCounterRestart);
    state.idleCounter = kIdleCounterCeiling - 1;
    reactToStatus(StatusLink::Serial, state, "Idle X:0.000 Y:0.000 F:0 S:0", 0);
    QCOMPARE(state.idleCounter, kIdleCounterCeiling);
}

void TestStatusReaction::console_data()
{
    QTest::addColumn<StatusLink>("link");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("clear");
    QTest::addColumn<bool>("append");

    QTest::newRow("serial below limit")
        << StatusLink::Serial << "Idle X:0.000" << 1200 << false << true;
    QTest::newRow("serial above limit")
        << StatusLink::Serial << "Idle X:0.000" << 1201 << true << true;
    QTest::newRow("serial plain ok") << StatusLink::Serial << " ok\r" << 0 << false << false;
    QTest::newRow("serial ok inside") << StatusLink::Serial << "Idle ok" << 0 << false << true;
    QTest::newRow("wifi above limit") << StatusLink::Wifi << "Idle X:0.000" << 1001 << true << true;
    QTest::newRow("wifi ok inside") << StatusLink::Wifi << "Idle ok" << 0 << false << false;
}

void TestStatusReaction::console()
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

void TestStatusReaction::alarmOnlyOnce_data()
{
    QTest::addColumn<StatusLink>("link");
    QTest::addColumn<bool>("hides");
    QTest::newRow("serial") << StatusLink::Serial << true;
    QTest::newRow("wifi") << StatusLink::Wifi << false;
}

void TestStatusReaction::alarmOnlyOnce()
{
    QFETCH(StatusLink, link);
    QFETCH(bool, hides);
    StatusDisplayState state;
    StatusReaction r = reactToStatus(link, state, "Alarm", 0);
    QVERIFY(r.showAlarm);
    QVERIFY(r.stopIndicatorTimer);
    QCOMPARE(r.hideIndicator, hides);
    QVERIFY(state.alarmShown);
    r = reactToStatus(link, state, "Alarm X:0.000 Y:0.000 F:0 S:0", 0);
    QVERIFY(!r.showAlarm);
    state.alarmShown = false;
    QVERIFY(reactToStatus(link, state, "Alarm", 0).showAlarm);
}

void TestStatusReaction::serialCamera()
{
    StatusDisplayState state;
    const QString text = "Idle X:0.000 Y:0.000 F:0 S:0 Cam:192.168.4.9";
    StatusReaction r = reactToStatus(StatusLink::Serial, state, text, 0);
    QVERIFY(r.cameraChanged);
    QCOMPARE(r.cameraAddress, QString("192.168.4.9"));
    r = reactToStatus(StatusLink::Serial, state, text, 0);
    QVERIFY(!r.cameraChanged);
    r = reactToStatus(StatusLink::Wifi, state, "Idle X:0.000 Y:0.000 Cam:10.0.0.1", 0);
    QVERIFY(!r.cameraChanged);
}

void TestStatusReaction::wifiIgnoresSettingsText()
{
    StatusDisplayState state;
    const StatusReaction r = reactToStatus(StatusLink::Wifi, state, "Run $130=400", 0);
    QVERIFY(r.ignored);
    QVERIFY(!state.busy);
    QCOMPARE(state.wifiTextCount, 0);
    reactToStatus(StatusLink::Wifi, state, "Run X:0.000 Y:0.000", 0);
    QVERIFY(state.busy);
    QCOMPARE(state.wifiTextCount, 1);
}

QTEST_APPLESS_MAIN(TestStatusReaction)
#include "tst_status_reaction.moc"
