#include "link_fixture.h"
#include "program_state.h"
#include "stream_state.h"

// The serial link against the GRBL fake on a pty: handshake, answers, faults,
// file runs, stop and unplug.
class TestSerialLink : public QObject
{
    Q_OBJECT

private slots:
    void init() { lumitra::resetProgramState(); }

    void handshake_data();
    void handshake();
    void bannerBeforeHandshakeIdentifiesAgain();
    void handshakeFails_data();
    void handshakeFails();
    void queueTextExample();
    void twoOksInOneRead();
    void nulCutsTheRead();
    void lowercaseErrorReleasesNothing();
    void capitalErrorEmptiesQueuesAndUnlocks();
    void alarmStatusTakesResetPath();
    void fullBufferLineBlocksUntilStop();
    void hundredThousandLines();
    void neverOverrun_data();
    void neverOverrun();
    void stopMidJobThenRunAgain();
    void missingFileSendsNothing();
    void unplugMidJob();
    void linkAgainAfterUnplug();
};

void TestSerialLink::handshake_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("flag");
    QTest::newRow("maker's model") << "Ortavex_Q7" << true;
    QTest::newRow("other model") << "Generic" << false;
    QTest::newRow("no model line") << "" << false;
}

void TestSerialLink::handshake()
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
    QTRY_COMPARE(com.stream().inFlight(), 0); // the answer's "ok" released "$i"
}

void TestSerialLink::bannerBeforeHandshakeIdentifiesAgain()
{
    GrblFake::Options o;
    o.resetOnFirstByte = true; // the first "$i" is lost while the board boots
    o.bootMs = 300;
    GrblFake fake(o);
    Jk_com com;
    QVERIFY(linkTo(fake, com, 5000));
    QCOMPARE(fake.lines(), QStringList{"$i"});
    QTRY_COMPARE(com.stream().inFlight(), 0);
}

void TestSerialLink::handshakeFails_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("no answer") << "silent";
    QTest::newRow("unplugged during it") << "unplug";
    QTest::newRow("no such port") << "missing";
}

void TestSerialLink::handshakeFails()
{
    QFETCH(QString, how);
    GrblFake::Options o;
    o.answerIdentify = false;
    GrblFake fake(o);
    QVERIFY(fake.start());
    Jk_com com;
    QSignalSpy linked(&com, &Jk_com::yi_lian_jie);
    QSignalSpy lost(&com, &Jk_com::linkLost);
    if (how == "missing") {
        com.setHandshakeTimeout(100);
        QVERIFY(!com.connectPort("/dev/lumitra-no-such-port"));
        QVERIFY(!com.lastError().isEmpty());
        QVERIFY(!linked.wait(400)); // only logged
    } else {
        if (how == "silent")
            com.setHandshakeTimeout(300);
        QVERIFY(com.connectPort(fake.portName()));
        QVERIFY(com.isOpen());
        if (how == "unplug") {
            QTest::qWait(50);
            fake.closeFarEnd();
        }
        QVERIFY(linked.wait(2000)); // an unplug ends it well before the 5 s
        QCOMPARE(linked.count(), 1);
        QCOMPARE(linked.first().first().toBool(), false);
    }
    QCOMPARE(lost.count(), 0);
    QVERIFY(!com.isOpen());
    QVERIFY(!com.isLinked());
}

void TestSerialLink::queueTextExample()
{
    GrblFake fake;
    Jk_com com;
    QVERIFY(linkTo(fake, com));
    com.queueText("G0X1\n; a comment\n\nG1X2  Y3");
    QTRY_COMPARE(fake.lines().mid(1), (QStringList{"G0X1", "G1X2 Y3"}));
    QTest::qWait(50);
    QCOMPARE(fake.lineCount(), 3);
}

void TestSerialLink::twoOksInOneRead()
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
    // The lines reach this thread by queued signal, maybe after the counts.
    QTRY_COMPARE(lines.count(), 2);
    QCOMPARE(lines.at(0).first().toString(), QString("ok\r"));
    QCOMPARE(lines.at(1).first().toString(), QString("ok\r"));
}

void TestSerialLink::nulCutsTheRead()
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

void TestSerialLink::lowercaseErrorReleasesNothing()
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

void TestSerialLink::capitalErrorEmptiesQueuesAndUnlocks()
{
    GrblFake fake;
    Jk_com com;
    QVERIFY(linkTo(fake, com));
    QStringList job; // long enough to be still running when "Error" comes
    for (int i = 0; i < 50000; ++i)
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
    QVERIFY(fake.lineCount() < 50000);
    QVERIFY(!fake.realTimeBytes().contains(char(0x18)));
    QVERIFY(!fake.overrun());
}

void TestSerialLink::alarmStatusTakesResetPath()
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

void TestSerialLink::fullBufferLineBlocksUntilStop()
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
    QTRY_COMPARE(fake.lines().mid(1), QStringList("G0X2"));
    QTest::qWait(100);
    QCOMPARE(fake.lines().mid(1), QStringList("G0X2"));
    QVERIFY(!fake.overrun());
}

void TestSerialLink::hundredThousandLines()
{
    QTemporaryDir dir;
    const int total = 100000;
    lumitra::programState().jobFilePath = writeJobFile(dir, total);
    GrblFake fake;
    Jk_com com;
    com.setPollInterval(100);
    QVERIFY(linkTo(fake, com));
    QSignalSpy finished(&com, &Jk_com::jobFinished);
    QSignalSpy progress(&com, &Jk_com::diao_ke_jin_du);
    com.stream().resetPeak();
    com.queueText("yunxing");
    QVERIFY(com.jobRunning());
    QVERIFY(finished.wait(60000));

    const QStringList got = fake.lines().mid(1);
    QCOMPARE(got.size(), total);
    for (int i = 0; i < total; ++i) {
        if (got.at(i) != jobLine(i))
            QFAIL(qPrintable(QString("line %1: %2").arg(i).arg(got.at(i))));
    }
    QVERIFY(!fake.overrun());
    QVERIFY(fake.peakWaiting() <= 127);
    // Memory stays flat: the link never held more than a few hundred lines.
    QVERIFY2(com.stream().peakBuffered() <= StreamState::kMostLinesHeld,
             qPrintable(QString::number(com.stream().peakBuffered())));
    QVERIFY(!com.jobRunning());
    QVERIFY(com.stream().drained());
    QCOMPARE(progress.first().first().toInt(), 0);
    QCOMPARE(progress.last().first().toInt(), 100);
    QCOMPARE(progress.count(), 101);
}

void TestSerialLink::neverOverrun_data()
{
    QTest::addColumn<double>("bytesPerSecond");
    QTest::addColumn<int>("delayMs");
    QTest::addColumn<int>("leastPeak"); // bytes that must have waited at once
    // At wire pace each line is taken as soon as it is complete.
    QTest::newRow("115200 baud") << 11520.0 << 0 << 1;
    // A slow planner lets the buffer fill: the window was used.
    QTest::newRow("slow planner") << 0.0 << 2 << 100;
}

void TestSerialLink::neverOverrun()
{
    QFETCH(double, bytesPerSecond);
    QFETCH(int, delayMs);
    QFETCH(int, leastPeak);
    QTemporaryDir dir;
    const int total = 400;
    lumitra::programState().jobFilePath = writeJobFile(dir, total);
    GrblFake::Options o;
    o.bytesPerSecond = bytesPerSecond;
    o.processingDelayMs = delayMs;
    GrblFake fake(o);
    Jk_com com;
    QVERIFY(linkTo(fake, com));
    QSignalSpy finished(&com, &Jk_com::jobFinished);
    com.queueText("yunxing");
    QVERIFY(finished.wait(20000));
    QCOMPARE(fake.lineCount(), total + 1);
    QCOMPARE(fake.lines().last(), jobLine(total - 1));
    QVERIFY(!fake.overrun());
    QVERIFY2(fake.peakWaiting() >= leastPeak, qPrintable(QString::number(fake.peakWaiting())));
}

void TestSerialLink::stopMidJobThenRunAgain()
{
    QTemporaryDir dir;
    lumitra::programState().jobFilePath = writeJobFile(dir, 20000);
    GrblFake::Options o;
    o.processingDelayMs = 1; // lines still waiting in the controller when it stops
    GrblFake fake(o);
    Jk_com com;
    QVERIFY(linkTo(fake, com));
    com.queueText("yunxing");
    QTRY_VERIFY(fake.lineCount() > 200);
    com.softReset();
    QVERIFY(!com.jobRunning());
    QVERIFY(com.stream().drained());
    QTRY_COMPARE(fake.resetCount(), 1);
    QTest::qWait(100);
    const int afterStop = fake.lineCount();
    QTest::qWait(100);
    QCOMPARE(fake.lineCount(), afterStop); // nothing of the stopped job follows

    // A second job streams whole, and answers to the stopped one did not let
    // the link overfill the controller.
    const int second = 3000;
    lumitra::programState().jobFilePath = writeJobFile(dir, second, "second.nc");
    fake.setProcessingDelay(0);
    QSignalSpy finished(&com, &Jk_com::jobFinished);
    com.queueText("yunxing");
    QVERIFY(finished.wait(20000));
    const QStringList got = fake.lines().mid(afterStop);
    QCOMPARE(got.size(), second);
    QCOMPARE(got.first(), jobLine(0));
    QCOMPARE(got.last(), jobLine(second - 1));
    QVERIFY(!fake.overrun());
}

void TestSerialLink::missingFileSendsNothing()
{
    QTemporaryDir dir;
    lumitra::programState().jobFilePath = dir.filePath("none.nc");
    GrblFake fake;
    Jk_com com;
    QVERIFY(linkTo(fake, com));
    QSignalSpy finished(&com, &Jk_com::jobFinished);
    com.queueText("yunxing");
    QVERIFY(finished.wait(2000));
    QCOMPARE(fake.lineCount(), 1);
}

void TestSerialLink::unplugMidJob()
{
    QTemporaryDir dir;
    lumitra::programState().jobFilePath = writeJobFile(dir, 20000);
    GrblFake::Options o;
    o.bytesPerSecond = 11520.0;
    GrblFake fake(o);
    Jk_com com;
    QVERIFY(linkTo(fake, com));
    QSignalSpy lost(&com, &Jk_com::linkLost);
    QSignalSpy finished(&com, &Jk_com::jobFinished);
    com.queueText("yunxing");
    QTRY_VERIFY(fake.lineCount() > 50);
    fake.closeFarEnd();
    QVERIFY(lost.wait(3000));
    QVERIFY(!com.isOpen());
    QVERIFY(!com.isLinked());
    QVERIFY(!com.jobRunning());
    QVERIFY(com.stream().drained());
    QCOMPARE(com.stream().queued(), 0);
    QCOMPARE(com.stream().pendingCount(), 0);
    // The event loop goes on and nothing more happens.
    QTest::qWait(300);
    QCOMPARE(lost.count(), 1);
    QCOMPARE(finished.count(), 0);
    com.queueText("G0X1"); // queued, but no port: nothing breaks
    com.softReset();
    QVERIFY(com.stream().drained());
}

void TestSerialLink::linkAgainAfterUnplug()
{
    auto first = std::make_unique<GrblFake>();
    Jk_com com;
    com.setPollInterval(100);
    QVERIFY(linkTo(*first, com));
    QSignalSpy lost(&com, &Jk_com::linkLost);
    first->closeFarEnd(); // while idle
    QVERIFY(lost.wait(2000));
    QVERIFY(!com.isOpen());
    first.reset();

    GrblFake second;
    QVERIFY(linkTo(second, com));
    com.queueText("G0X5");
    QTRY_COMPARE(second.lines(), (QStringList{"$i", "G0X5"}));
}

QTEST_GUILESS_MAIN(TestSerialLink)
#include "tst_serial_link.moc"
