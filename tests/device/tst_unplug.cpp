#include "job_file.h"
#include "link_fixture.h"
#include "program_state.h"
#include "stream_state.h"

// Pulling the cable: the far end of the pty closes under the link.
class TestUnplug : public QObject
{
    Q_OBJECT

private slots:
    void init() { lumitra::resetProgramState(); }

    void midJob();
    void whileIdle();
    void duringHandshake();
    void linkAgainAfterLoss();
};

void TestUnplug::midJob()
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

    QElapsedTimer clock;
    clock.start();
    fake.closeFarEnd();
    QVERIFY(lost.wait(3000));
    QVERIFY(clock.elapsed() < 3000);
    QCOMPARE(lost.count(), 1);
    QVERIFY(!com.isOpen());
    QVERIFY(!com.isLinked());
    QVERIFY(!com.jobRunning());
    QVERIFY(com.stream().drained());
    QCOMPARE(com.stream().queued(), 0);
    QCOMPARE(com.stream().pendingCount(), 0);

    // The event loop stays responsive and nothing more happens.
    QElapsedTimer idle;
    idle.start();
    QTest::qWait(300);
    QVERIFY(idle.elapsed() < 1000);
    QCOMPARE(lost.count(), 1);
    QCOMPARE(finished.count(), 0);
    com.queueText("G0X1"); // queued, but no port: nothing breaks
    com.softReset();
    QVERIFY(com.stream().drained());
}

void TestUnplug::whileIdle()
{
    GrblFake fake;
    Jk_com com;
    com.setPollInterval(100);
    QVERIFY(linkTo(fake, com));
    QSignalSpy lost(&com, &Jk_com::linkLost);
    fake.closeFarEnd();
    QVERIFY(lost.wait(2000));
    QVERIFY(!com.isOpen());
}

void TestUnplug::duringHandshake()
{
    GrblFake::Options o;
    o.answerIdentify = false;
    GrblFake fake(o);
    QVERIFY(fake.start());
    Jk_com com;
    QSignalSpy linked(&com, &Jk_com::yi_lian_jie);
    QSignalSpy lost(&com, &Jk_com::linkLost);
    QVERIFY(com.connectPort(fake.portName()));
    QTest::qWait(50);
    fake.closeFarEnd();
    QVERIFY(linked.wait(2000)); // well before the 5 s handshake time
    QCOMPARE(linked.first().first().toBool(), false);
    QCOMPARE(lost.count(), 0);
    QVERIFY(!com.isOpen());
}

void TestUnplug::linkAgainAfterLoss()
{
    auto first = std::make_unique<GrblFake>();
    Jk_com com;
    com.setPollInterval(100);
    QVERIFY(linkTo(*first, com));
    QSignalSpy lost(&com, &Jk_com::linkLost);
    first->closeFarEnd();
    QVERIFY(lost.wait(2000));
    first.reset();

    GrblFake second;
    QVERIFY(linkTo(second, com));
    com.queueText("G0X5");
    QTRY_COMPARE(second.lines(), (QStringList{"$i", "G0X5"}));
}

QTEST_GUILESS_MAIN(TestUnplug)
#include "tst_unplug.moc"
