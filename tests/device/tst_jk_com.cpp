#include "link_fixture.h"
#include "program_state.h"
#include "stream_state.h"

class TestJkCom : public QObject
{
    Q_OBJECT

private slots:
    void init() { lumitra::resetProgramState(); }

    void defaults();
    void handshake_data();
    void handshake();
    void bannerBeforeHandshakeIdentifiesAgain();
    void handshakeTimeoutClosesPort();
    void openFailureIsOnlyLogged();
    void pollAsksForStatus();
    void queueTextExample();
    void twoOksInOneRead();
    void nulCutsTheRead();
    void lowercaseErrorReleasesNothing();
    void capitalErrorEmptiesQueuesAndUnlocks();
    void alarmStatusTakesResetPath();
    void settingsRequest();
    void realTimeBytes();
    void fullBufferLineBlocksUntilStop();
    void writeHandlerNeedsOpenPort();
};

void TestJkCom::defaults()
{
    Jk_com com;
    QCOMPARE(com.handshakeTimeout(), 5000);
    QCOMPARE(com.pollInterval(), 500);
    QVERIFY(!com.isOpen());
    QVERIFY(!com.isLinked());
}

void TestJkCom::handshake_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("flag");
    QTest::newRow("maker's model") << "Ortavex_Q7" << true;
    QTest::newRow("other model") << "Generic" << false;
    QTest::newRow("no model line") << "" << false;
}

void TestJkCom::handshake()
{
    QFETCH(QString, model);
    QFETCH(bool, flag);
    GrblFake::Options o;
    o.model = model;
    GrblFake fake(o);
    Jk_com com;
    QVERIFY(linkTo(fake, com));
    QVERIFY(com.isLinked());
    QCOMPARE(fake.lines(), QStringList{"$i"});
    QCOMPARE(com.deviceInfo().value("ji_xing"), model);
    QCOMPARE(lumitra::programState().modelFlag, flag);
    // The answer's "ok" released the handshake line.
    QTRY_COMPARE(com.stream().inFlight(), 0);
    QVERIFY(!fake.overrun());
}

void TestJkCom::bannerBeforeHandshakeIdentifiesAgain()
{
    GrblFake::Options o;
    o.resetOnFirstByte = true; // the first "$i" is lost while the board boots
    o.bootMs = 300;
    GrblFake fake(o);
    Jk_com com;
    QElapsedTimer clock;
    clock.start();
    QVERIFY(linkTo(fake, com, 5000));
    QVERIFY(clock.elapsed() < 5000);
    QCOMPARE(fake.lines(), QStringList{"$i"});
    QTRY_COMPARE(com.stream().inFlight(), 0);
}

void TestJkCom::handshakeTimeoutClosesPort()
{
    GrblFake::Options o;
    o.answerIdentify = false;
    GrblFake fake(o);
    QVERIFY(fake.start());
    Jk_com com;
    com.setHandshakeTimeout(300);
    QSignalSpy linked(&com, &Jk_com::yi_lian_jie);
    QVERIFY(com.connectPort(fake.portName()));
    QVERIFY(com.isOpen());
    QVERIFY(linked.wait(2000));
    QCOMPARE(linked.count(), 1);
    QCOMPARE(linked.first().first().toBool(), false);
    QVERIFY(!com.isOpen());
    QVERIFY(!com.isLinked());
}

void TestJkCom::openFailureIsOnlyLogged()
{
    Jk_com com;
    com.setHandshakeTimeout(100);
    QSignalSpy linked(&com, &Jk_com::yi_lian_jie);
    QVERIFY(!com.connectPort("/dev/lumitra-no-such-port"));
    QVERIFY(!com.lastError().isEmpty());
    QVERIFY(!linked.wait(400));
    QVERIFY(!com.isOpen());
}

void TestJkCom::pollAsksForStatus()
{
    GrblFake fake;
    Jk_com com;
    com.setPollInterval(100);
    QSignalSpy status(&com, &Jk_com::shu_chu_zhuang_tai);
    QVERIFY(linkTo(fake, com));
    QTRY_VERIFY(status.count() >= 2);
    QVERIFY(fake.realTimeBytes().count('?') >= 2);
    QCOMPARE(status.first().first().toString(), QString("Idle X:0.000 Y:0.000 F:0 S:0\r"));
}

void TestJkCom::queueTextExample()
{
    GrblFake fake;
    Jk_com com;
    QVERIFY(linkTo(fake, com));
    com.queueText("G0X1\n; a comment\n\nG1X2  Y3");
    QTRY_COMPARE(linesAfter(fake, 1), (QStringList{"G0X1", "G1X2 Y3"}));
    QTest::qWait(50);
    QCOMPARE(fake.lineCount(), 3);
}

void TestJkCom::twoOksInOneRead()
{
    GrblFake fake;
    Jk_com com;
    QVERIFY(linkTo(fake, com));
    QTRY_COMPARE(com.stream().inFlight(), 0);
    com.stream().countDirect(5);
    com.stream().countDirect(7);
    QSignalSpy lines(&com, &Jk_com::lineReceived);
    fake.sendRaw("ok\r\nok\r\n");
    QTRY_COMPARE(com.stream().inFlight(), 0);
    QCOMPARE(lines.count(), 2);
    QCOMPARE(lines.at(0).first().toString(), QString("ok\r"));
    QCOMPARE(lines.at(1).first().toString(), QString("ok\r"));
}

void TestJkCom::nulCutsTheRead()
{
    GrblFake fake;
    Jk_com com;
    QVERIFY(linkTo(fake, com));
    QSignalSpy lines(&com, &Jk_com::lineReceived);
    QSignalSpy status(&com, &Jk_com::shu_chu_zhuang_tai);
    fake.sendRaw(QByteArray("<Idle|MPos:1.000,2.000,0.000|FS:0,0>\r\nAB\0CD\r\n", 46));
    QTRY_COMPARE(status.count(), 1);
    fake.sendRaw("C\r\n");
    QTRY_COMPARE(lines.count(), 2);
    QCOMPARE(lines.at(1).first().toString(), QString("ABC\r"));
}

void TestJkCom::lowercaseErrorReleasesNothing()
{
    GrblFake fake;
    Jk_com com;
    QVERIFY(linkTo(fake, com));
    fake.replyInsteadOfOk(2, "error:20");
    QSignalSpy status(&com, &Jk_com::shu_chu_zhuang_tai);
    QSignalSpy faults(&com, &Jk_com::deviceFault);
    com.queueText("G0X1");
    QTRY_COMPARE(fake.lineCount(), 2);
    QTest::qWait(100);
    QCOMPARE(com.stream().inFlight(), 5); // "G0X1\n" still counted
    QCOMPARE(faults.count(), 0);
    for (const QList<QVariant> &s : status)
        QVERIFY(s.first().toString() != "Alarm");
    QCOMPARE(fake.lineCount(), 2); // no "$X"
}

void TestJkCom::capitalErrorEmptiesQueuesAndUnlocks()
{
    GrblFake fake;
    Jk_com com;
    QVERIFY(linkTo(fake, com));
    QStringList job;
    for (int i = 0; i < 5000; ++i)
        job << QString("G1X%1Y%1").arg(i);
    com.queueText(job.join('\n'));
    QTRY_VERIFY(fake.lineCount() > 20);
    QSignalSpy status(&com, &Jk_com::shu_chu_zhuang_tai);
    QSignalSpy faults(&com, &Jk_com::deviceFault);
    fake.sendRaw("Error: stop\r\n");
    QTRY_COMPARE(faults.count(), 1);
    QCOMPARE(status.last().first().toString(), QString("Alarm"));
    QTRY_COMPARE(fake.lines().last(), QString("$X"));
    QTRY_VERIFY(com.stream().drained());
    QTest::qWait(50);
    QCOMPARE(fake.lines().last(), QString("$X")); // the job did not go on
    QVERIFY(fake.lineCount() < 5000);
    QVERIFY(!fake.realTimeBytes().contains(char(0x18)));
    QVERIFY(!fake.overrun());
}

void TestJkCom::alarmStatusTakesResetPath()
{
    GrblFake fake;
    Jk_com com;
    com.setPollInterval(100);
    QVERIFY(linkTo(fake, com));
    QSignalSpy status(&com, &Jk_com::shu_chu_zhuang_tai);
    QSignalSpy faults(&com, &Jk_com::deviceFault);
    fake.raiseAlarm(1);
    QTRY_VERIFY(faults.count() >= 1);
    QVERIFY(faults.first().first().toString().startsWith("<Alarm|"));
    QTRY_VERIFY(fake.realTimeBytes().contains(char(0x18)));
    QTRY_VERIFY(fake.lines().contains("$X"));
    QTRY_VERIFY(!fake.inAlarm());
    for (const QList<QVariant> &s : status) {
        const QString text = s.first().toString();
        QVERIFY2(!text.startsWith("Alarm ") && !text.contains("X:"), qPrintable(text));
    }
}

void TestJkCom::settingsRequest()
{
    GrblFake::Options o;
    o.model = "Ortavex_Q7";
    o.settings = {{30, "1000"}, {110, "6000.000"}, {130, "300.4"}, {131, "180.6"}};
    GrblFake fake(o);
    Jk_com com;
    QVERIFY(linkTo(fake, com));
    QSignalSpy settings(&com, &Jk_com::shu_chu_can_shu);
    com.requestSettings();
    QVERIFY(settings.wait(2000));
    QCOMPARE(settings.count(), 1);
    const auto map = settings.first().first().value<QMap<QString, QString>>();
    QCOMPARE(map, (QMap<QString, QString>{{"ji_xing", "Ortavex_Q7"},
                                          {"$30", "1000"},
                                          {"$110", "6000.000"},
                                          {"$130", "300.4"},
                                          {"$131", "180.6"}}));
    QCOMPARE(linesAfter(fake, 1), (QStringList{"$I", "$$"}));
    QTest::qWait(100);
    QCOMPARE(settings.count(), 1);
}

void TestJkCom::realTimeBytes()
{
    GrblFake fake;
    Jk_com com;
    com.setPollInterval(60000);
    QVERIFY(linkTo(fake, com));
    com.feedHold();
    com.cycleStart();
    com.requestStatus();
    com.softReset();
    QTRY_COMPARE(fake.realTimeBytes(), QByteArray("!~?\x18"));
    QCOMPARE(fake.lineCount(), 1); // none of them was queued as a line
    QTRY_COMPARE(fake.resetCount(), 1);
}

void TestJkCom::fullBufferLineBlocksUntilStop()
{
    GrblFake fake;
    Jk_com com;
    QVERIFY(linkTo(fake, com));
    com.queueText(QString(127, 'X') + "\nG0X1");
    QTest::qWait(300);
    QCOMPARE(fake.lineCount(), 1);
    com.softReset();
    QVERIFY(com.stream().drained());
    com.queueText("G0X2");
    QTRY_COMPARE(linesAfter(fake, 1), QStringList{"G0X2"});
    QTest::qWait(100);
    QCOMPARE(linesAfter(fake, 1), QStringList{"G0X2"});
    QVERIFY(!fake.overrun());
}

void TestJkCom::writeHandlerNeedsOpenPort()
{
    Jk_com com;
    com.xie_cao("G0X1\n"); // no port: nothing happens
    com.feedHold();
    GrblFake fake;
    QVERIFY(linkTo(fake, com));
    com.xie_cao("$J=G91X1F100\n");
    QTRY_COMPARE(linesAfter(fake, 1), QStringList{"$J=G91X1F100"});
    com.disconnectPort();
    QVERIFY(!com.isOpen());
    com.xie_cao("G0X9\n");
    QTest::qWait(50);
    QCOMPARE(fake.lineCount(), 2);
}

QTEST_GUILESS_MAIN(TestJkCom)
#include "tst_jk_com.moc"
