#include "execution_tracker.h"
#include "link_fixture.h"
#include "program_state.h"

#include <QtTest>

// Which job line the machine has executed: the pure accounting of "ok"s and
// "Bf:" reports, then the serial link against the fake with its planner.
class TestExecutionTracker : public QObject
{
    Q_OBJECT

private slots:
    void init() { lumitra::resetProgramState(); }

    void sureBlocks_data();
    void sureBlocks();
    void settle_data();
    void settle();
    void bufferField_data();
    void bufferField();
    void againstTheFake_data();
    void againstTheFake();
};

void TestExecutionTracker::sureBlocks_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QList<int>>("blocks");
    QTest::newRow("absolute moves, one to where the head is")
        << QStringList{"G0X10Y10", "G1X20", "G1X20", "Y20F300"} << QList<int>{1, 1, 0, 1};
    QTest::newRow("modal words alone")
        << QStringList{"G90", "G21", "F3000", "S500", "M4", "; comment", "", "(note)G1"}
        << QList<int>{0, 0, 0, 0, 0, 0, 0, 0};
    QTest::newRow("relative raster row, a move under one step")
        << QStringList{"G91", "G1X0.1S200", "X0.05S0", "X-3", "G90X0"} << QList<int>{0, 1, 0, 1, 1};
    QTest::newRow("inches") << QStringList{"G20", "G91", "G1X0.01", "X0.001"}
                            << QList<int>{0, 0, 1, 0};
    // As the controller reads words: either case, blanks inside, comments out.
    QTest::newRow("how words are written") << QStringList{"g0 x 10 y10",
                                                          "G1 X10 ; X99",
                                                          "(to X50) G1 X10",
                                                          "G1 X+10.0 Y 10.",
                                                          "x12.",
                                                          "G1X-.5",
                                                          "G1 X-0.5 (same)",
                                                          "G91",
                                                          "X.1",
                                                          "x .1 (relative)",
                                                          "X",
                                                          "G90 Y.05"}
                                           << QList<int>{1, 0, 0, 0, 1, 1, 0, 0, 1, 1, 0, 1};
    QTest::newRow("G92.1 forgets where the head is, G92 too")
        << QStringList{"G1X10Y10", "G92.1", "G1X20Y10", "G1X30", "G92X0Y0", "G1X5Y5", "X6"}
        << QList<int>{1, 0, 0, 1, 0, 0, 1};
    QTest::newRow("position unknown after origin set and homing")
        << QStringList{"G92X0Y0", "G1X5", "G1X5Y5", "$H", "G91X1", "G90X7", "X8"}
        << QList<int>{0, 0, 0, 0, 1, 0, 1};
    QTest::newRow("arc counts one") << QStringList{"G2X10Y0I5J0"} << QList<int>{1};
}

void TestExecutionTracker::sureBlocks()
{
    QFETCH(QStringList, lines);
    QFETCH(QList<int>, blocks);
    ExecutionTracker t;
    QList<int> got;
    for (const QString &line : lines)
        got << t.sureBlocks(line);
    QCOMPARE(got, blocks);
}

// Events: "send" (every job line goes out), "ack N" (lines up to N answered),
// a status report (starts with "<"), "freeze".
void TestExecutionTracker::settle_data()
{
    QTest::addColumn<QStringList>("job");
    QTest::addColumn<QStringList>("events");
    QTest::addColumn<int>("executed");
    QTest::addColumn<int>("acknowledged");
    // 0.1 mm at F6000: short enough for five of them to wait in the step
    // segments of a running machine after leaving the planner.
    const QStringList moves{"G1X0.1F6000", "X0.2", "X0.3", "X0.4", "X0.5",
                            "X0.6",        "X0.7", "X0.8", "X0.9", "X1"};
    const QString run = "<Run|MPos:1.000,0.000,0.000|Bf:%1,128|FS:600,0>";
    QTest::newRow("planner empty, segments left")
        << moves << QStringList{"send", "ack 10", run.arg(15)} << 5 << 10;
    QTest::newRow("two blocks queued")
        << moves << QStringList{"send", "ack 10", run.arg(13)} << 3 << 10;
    QTest::newRow("answers after the report do not count")
        << moves << QStringList{"send", "ack 8", run.arg(14), "ack 10"} << 2 << 10;
    QTest::newRow("modal lines between blocks count once the block before ran")
        << QStringList{"G1X0.1F6000", "F6001", "G1X0.2", "S5",   "G1X0.3",
                       "X0.4",        "X0.5",  "X0.6",   "X0.7", "X0.8"}
        << QStringList{"send", "ack 10", run.arg(14)} << 4 << 10;
    QTest::newRow("a move to where the head is makes no block")
        << QStringList{"G1X0.1F6000", "G1X0.1", "G1X0.2", "X0.3", "X0.4", "X0.5", "X0.6", "X0.7"}
        << QStringList{"send", "ack 8", run.arg(13)} << 0 << 8;
    // 10 mm at F600 take 0.5 s: only the block before the queued ones can
    // have left the planner unrun.
    QTest::newRow("long blocks: one in the segments")
        << QStringList{"G1X10F600", "X20", "X30", "X40", "X50", "X60", "X70", "X80", "X90", "X100"}
        << QStringList{"send", "ack 10", run.arg(13)} << 7 << 10;
    QTest::newRow("more blocks queued than answered lines (an arc being planned)")
        << moves << QStringList{"send", "ack 2", run.arg(5)} << 0 << 2;
    QTest::newRow("no buffer field: a full planner is assumed")
        << moves << QStringList{"send", "ack 10", "<Run|MPos:1.000,0.000,0.000|FS:600,0>"} << 0
        << 10;
    QTest::newRow("idle with blocks not yet started")
        << moves << QStringList{"send", "ack 10", "<Idle|MPos:0.000,0.000,0.000|Bf:12,128|FS:0,0>"}
        << 7 << 10;
    QTest::newRow("idle and empty: all has run")
        << moves << QStringList{"send", "ack 10", "<Idle|MPos:0.000,0.000,0.000|Bf:15,128|FS:0,0>"}
        << 10 << 10;
    QTest::newRow("never goes back")
        << moves << QStringList{"send", "ack 10", run.arg(15), run.arg(10)} << 5 << 10;
    QTest::newRow("alarm report and freeze change nothing")
        << moves << QStringList{"send",      "ack 9",
                                run.arg(13), "<Alarm|MPos:0.000,0.000,0.000|Bf:15,128|FS:0,0>",
                                "freeze",    "ack 10",
                                run.arg(15)}
        << 2 << 9;
}

void TestExecutionTracker::settle()
{
    QFETCH(QStringList, job);
    QFETCH(QStringList, events);
    QFETCH(int, executed);
    QFETCH(int, acknowledged);
    ExecutionTracker t;
    t.beginJob();
    int answered = 0;
    for (const QString &e : events) {
        if (e == "send") {
            for (int i = 0; i < job.size(); ++i)
                t.lineSent(i + 1, job.at(i));
        } else if (e.startsWith("ack ")) {
            const int upTo = e.mid(4).toInt();
            while (answered < upTo)
                t.lineAcknowledged(++answered);
        } else if (e == "freeze") {
            t.freeze();
        } else {
            t.statusReport(e);
        }
    }
    QCOMPARE(t.lastExecutedLine(), executed);
    QCOMPARE(t.lastAcknowledgedLine(), acknowledged);
    QCOMPARE(t.lastSentLine(), job.size());
}

void TestExecutionTracker::bufferField_data()
{
    QTest::addColumn<QString>("report");
    QTest::addColumn<int>("free");
    QTest::addColumn<int>("mask");
    QTest::newRow("machine position with buffer")
        << "<Run|MPos:1.000,2.000,0.000|Bf:7,100|FS:600,0>" << 7 << 3;
    QTest::newRow("work position, no buffer") << "<Idle|WPos:0.000,0.000,0.000|FS:0,0>" << -1 << 2;
    QTest::newRow("buffer last") << "<Idle|MPos:0.000,0.000,0.000|Bf:15>" << 15 << 3;
}

void TestExecutionTracker::bufferField()
{
    QFETCH(QString, report);
    QFETCH(int, free);
    QFETCH(int, mask);
    QCOMPARE(lumitra::grbl::blocksFree(report), free);
    QCOMPARE(lumitra::grbl::statusMaskWithBuffer(report), mask);
}

void TestExecutionTracker::againstTheFake_data()
{
    QTest::addColumn<QString>("statusMask");
    QTest::newRow("reports carry Bf") << "3";
    QTest::newRow("Bf turned on at the job start") << "1";
}

// The link never claims a line the machine has not run, lags behind the
// answers while the planner is full, and reaches the last line at the end.
void TestExecutionTracker::againstTheFake()
{
    QFETCH(QString, statusMask);
    QTemporaryDir dir;
    const int total = 120;
    QFile f(dir.filePath("job.nc"));
    QVERIFY(f.open(QIODevice::WriteOnly));
    for (int i = 0; i < total; ++i)
        f.write(QString("G1X%1Y0F3000\n").arg(i + 1).toLatin1());
    f.close();
    lumitra::programState().jobFilePath = f.fileName();

    GrblFake::Options o;
    o.motionMsPerLine = 8;
    o.settings.insert(10, statusMask);
    GrblFake fake(o);
    Jk_com com;
    com.setPollInterval(20);
    QSignalSpy ready(&com, &Jk_com::reportFieldsReady);
    QVERIFY(linkTo(fake, com));
    QVERIFY(ready.wait(3000));
    QCOMPARE(com.reportsBufferField(), statusMask == "3");

    int checks = 0;
    bool lagged = false;
    bool overclaimed = false;
    QObject::connect(&com, &Jk_com::shu_chu_zhuang_tai, &com, [&] {
        const int ran = fake.executedMoves().size(); // one block per line
        overclaimed |= com.lastExecutedLine() > ran;
        lagged |=
            com.lastExecutedLine() > 0 && com.lastExecutedLine() + 5 <= com.lastAcknowledgedLine();
        ++checks;
    });
    QSignalSpy finished(&com, &Jk_com::jobFinished);
    com.queueText("yunxing");
    QVERIFY(finished.wait(10000));
    QTRY_COMPARE_WITH_TIMEOUT(com.lastExecutedLine(), total, 5000);
    QVERIFY(checks > 10);
    QVERIFY(!overclaimed);
    QVERIFY(lagged);
    QCOMPARE(fake.executedMoves().size(), total);
    QCOMPARE(fake.setting(10), 3);
    QCOMPARE(fake.lines().contains("$10=3"), statusMask != "3");
}

QTEST_GUILESS_MAIN(TestExecutionTracker)
#include "tst_execution_tracker.moc"
