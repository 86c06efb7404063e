#include "job_file.h"
#include "link_fixture.h"
#include "program_state.h"
#include "read_txt_thread.h"
#include "stream_state.h"

// File runs through the serial link against the fake controller.
class TestStreaming : public QObject
{
    Q_OBJECT

private slots:
    void init() { lumitra::resetProgramState(); }

    void hundredThousandLines();
    void slowControllerNeverOverrun_data();
    void slowControllerNeverOverrun();
    void stopMidJobThenRunAgain();
    void streamsWhileGuiThreadBlocked();
    void missingFileSendsNothing();
};

void TestStreaming::hundredThousandLines()
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

void TestStreaming::slowControllerNeverOverrun_data()
{
    QTest::addColumn<double>("bytesPerSecond");
    QTest::addColumn<int>("delayMs");
    QTest::addColumn<int>("leastPeak"); // bytes that must have waited at once
    // At wire pace each line is taken as soon as it is complete.
    QTest::newRow("115200 baud") << 11520.0 << 0 << 1;
    // A slow planner lets the buffer fill: the window was used.
    QTest::newRow("slow planner") << 0.0 << 2 << 100;
}

void TestStreaming::slowControllerNeverOverrun()
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

void TestStreaming::stopMidJobThenRunAgain()
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
    QVERIFY(afterStop < 20001);
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

void TestStreaming::streamsWhileGuiThreadBlocked()
{
    QTemporaryDir dir;
    const int total = 20000;
    lumitra::programState().jobFilePath = writeJobFile(dir, total);
    GrblFake fake;
    Jk_com com;
    QVERIFY(linkTo(fake, com));
    com.queueText("yunxing");
    QTRY_VERIFY(fake.lineCount() > 10);
    // The GUI thread stops processing events (as during a long repaint): the
    // answers are still taken and the stream goes on far beyond one window of
    // 127 bytes (about 7 lines).
    const int before = fake.lineCount();
    QThread::msleep(300);
    const int during = fake.lineCount() - before;
    QVERIFY2(during > 100, qPrintable(QString::number(during)));
    com.softReset();
    QVERIFY(!fake.overrun());
}

void TestStreaming::missingFileSendsNothing()
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

QTEST_GUILESS_MAIN(TestStreaming)
#include "tst_streaming.moc"
