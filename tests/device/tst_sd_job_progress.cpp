// Where a job run from the board's card stands, from the board's reports:
// the line index, the reports it takes, and the line a resumed job starts at,
// checked by hand and against a board that really runs the file.
#include "card_job_runner.h"
#include "sd_job_progress.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

class TestSdJobProgress : public QObject
{
    Q_OBJECT

private slots:
    void lineAtByteMatchesTheFile();
    void sureBlocksFollowTheParser();
    void takesOnlyRunningReportsWithProgress();
    void resumeLineByHand();
    void positionNarrowsTheResumeLine();
    void resumeLineNeverSkipsWhatDidNotRun();

private:
    QString write(const QByteArray &bytes)
    {
        const QString path = m_dir.filePath(QString("job%1.nc").arg(++m_files));
        QFile f(path);
        if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size())
            return QString();
        return path;
    }
    QTemporaryDir m_dir;
    int m_files = 0;
};

void TestSdJobProgress::lineAtByteMatchesTheFile()
{
    // Lines of every length, CRLF and LF, an empty one, no end on the last.
    QRandomGenerator random(7);
    QByteArray bytes;
    QList<qint64> starts;
    const int lines = 3 * SdJobProgress::kIndexStride + 17;
    for (int i = 0; i < lines; ++i) {
        starts << bytes.size();
        bytes += QByteArray(int(random.bounded(12)), 'X');
        if (i + 1 < lines)
            bytes += random.bounded(3) == 0 ? "\r\n" : "\n";
    }
    const QString path = write(bytes);
    SdJobProgress p;
    QVERIFY(p.index(path));
    QCOMPARE(p.lineCount(), lines);
    QCOMPARE(p.size(), qint64(bytes.size()));
    int line = 1;
    for (qint64 offset = 0; offset < bytes.size(); ++offset) {
        while (line < lines && starts.at(line) <= offset)
            ++line;
        QCOMPARE(p.lineAtByte(offset), line);
    }
    QCOMPARE(p.lineAtByte(bytes.size()), lines + 1);
    QCOMPARE(p.lineAtByte(-5), 1);
    QVERIFY(!SdJobProgress().index(m_dir.filePath("missing.nc")));
}

void TestSdJobProgress::sureBlocksFollowTheParser()
{
    const QString path = write("G90 G21\n"
                               "G0 X0 Y0\n" // already there
                               "G1 X10 F1000\n"
                               "X10\n" // no move
                               "S500\n"
                               "G91\n"
                               "X.1\n"
                               "X.05\n" // less than the 0.1 mm taken for a step
                               "; X20\n"
                               "G90 Y5\n");
    SdJobProgress p;
    QVERIFY(p.index(path));
    QList<bool> blocks;
    for (int line = 1; line <= p.lineCount(); ++line)
        blocks << p.makesBlock(line);
    QCOMPARE(blocks,
             (QList<bool>{false, false, true, false, false, false, true, false, false, true}));
    // With the machine's own steps (80 steps/mm) the 0.05 mm move is one.
    QVERIFY(p.index(path, 1.0 / 80, 1.0 / 80));
    QVERIFY(p.makesBlock(8));
}

void TestSdJobProgress::takesOnlyRunningReportsWithProgress()
{
    SdJobProgress p;
    QVERIFY(!p.hasReport());
    QVERIFY(!p.statusReport("<Run|MPos:1.000,2.000,0.000|FS:500,300>"));
    QVERIFY(p.statusReport("<Run|MPos:1.000,2.000,0.000|Bf:10,100|SD:12.50,/001.nc>"));
    QCOMPARE(p.percent(), 12.5);
    // An alarm empties the planner without running it: its report says nothing.
    QVERIFY(!p.statusReport("<Alarm|MPos:1.000,2.000,0.000|Bf:15,127|SD:13.00,/001.nc>"));
    QCOMPARE(p.percent(), 12.5);
    QVERIFY(p.statusReport("<Hold:0|MPos:1.000,2.000,0.000|SD:14,/001.nc>"));
    QCOMPARE(p.percent(), 14.0);
    QVERIFY(!p.statusReport("ok"));
    p.clearReports();
    QVERIFY(!p.hasReport());
}

void TestSdJobProgress::resumeLineByHand()
{
    // 400 lines of 8 bytes, each a move: line k starts at byte 8 (k - 1).
    QByteArray bytes;
    for (int i = 0; i < 400; ++i)
        bytes += "G1X" + QByteArray::number(1000 + i) + "\n";
    SdJobProgress p;
    QVERIFY(p.index(write(bytes)));
    QCOMPARE(p.resumeLine(), 1); // no report yet
    QCOMPARE(p.currentLine(), 0);

    // Half read (1600 bytes): surely parsed are the bytes before
    // 49.99 % of 3200 = 1599, less 127 in the receive buffer: 1472, the start
    // of line 185. Of lines 1 .. 184, the last 5 may be queued, and 5 more
    // may be in the step segments of the running machine.
    p.statusReport("<Run|MPos:0,0,0|Bf:10,0|SD:50.00,/001.nc>");
    QCOMPARE(p.currentLine(), 201);
    QCOMPARE(p.resumeLine(), 175);
    // Without the buffer field the planner counts as full: 15 + 5 lines back.
    p.statusReport("<Run|MPos:0,0,0|SD:50.00,/001.nc>");
    QCOMPARE(p.resumeLine(), 165);
    // An empty planner while running: the segments' 5 lines back.
    p.statusReport("<Run|MPos:0,0,0|Bf:15,127|SD:50.00,/001.nc>");
    QCOMPARE(p.resumeLine(), 180);
    // Idle and empty: everything parsed has run.
    p.statusReport("<Idle|MPos:0,0,0|Bf:15,127|SD:50.00,/001.nc>");
    QCOMPARE(p.resumeLine(), 185);
    // Too little read to be sure of anything.
    p.statusReport("<Run|MPos:0,0,0|Bf:15,127|SD:3.00,/001.nc>");
    QCOMPARE(p.resumeLine(), 1);
}

void TestSdJobProgress::positionNarrowsTheResumeLine()
{
    // Line 1 goes to 0,0; line k (2 .. 400) moves to X k-1: 7 bytes each.
    auto job = [](const QByteArray &first, int arcAt = -1) {
        QByteArray bytes = first;
        for (int x = 1; x < 400; ++x)
            bytes += (x + 1 == arcAt ? "G2X" : "G1X") + QByteArray::number(x).rightJustified(3, '0')
                     + "\n";
        return bytes;
    };
    SdJobProgress p;
    QVERIFY(p.index(write(job("G0X0Y0\n"))));
    QCOMPARE(p.size(), qint64(2800));
    // 50 % read: the buffer alone says line 172 (as by hand above, 7-byte
    // lines); read at most through line 201. The head at X 190.5 is on line
    // 192's move (X190 -> X191).
    p.statusReport("<Run|WPos:190.500,0.000,0.000|Bf:10,0|SD:50.00,/001.nc>");
    QCOMPARE(p.resumeLineByBuffer(), 172);
    QCOMPARE(p.resumeLine(), 192);
    // Machine position with the work offset seen in an earlier report.
    p.clearReports();
    p.statusReport("<Run|MPos:200.500,10.000,0.000|WCO:10.000,10.000,0.000|Bf:10,0|SD:40.00,/"
                   "001.nc>");
    p.statusReport("<Run|MPos:200.500,10.000,0.000|Bf:10,0|SD:50.00,/001.nc>");
    QCOMPARE(p.resumeLine(), 192);
    // The offset from a report of the idle machine before the job.
    p.clearReports();
    p.workOffsetReport("<Idle|MPos:0.000,0.000,0.000|WCO:10.000,10.000,0.000>");
    p.statusReport("<Run|MPos:200.500,10.000,0.000|Bf:10,0|SD:50.00,/001.nc>");
    QCOMPARE(p.resumeLine(), 192);
    // Machine position and no offset known: the buffer's answer.
    p.clearReports();
    p.statusReport("<Run|MPos:200.500,10.000,0.000|Bf:10,0|SD:50.00,/001.nc>");
    QVERIFY(!p.hasPosition());
    QCOMPARE(p.resumeLine(), 172);
    // A position no line read so far passes through: the buffer's answer.
    p.statusReport("<Run|WPos:250.000,0.000,0.000|Bf:10,0|SD:50.00,/001.nc>");
    QCOMPARE(p.resumeLine(), 172);
    // An arc in between, or a job whose moves rest on where it started.
    QVERIFY(p.index(write(job("G0X0Y0\n", 185))));
    p.statusReport("<Run|WPos:190.500,0.000,0.000|Bf:10,0|SD:50.00,/001.nc>");
    QCOMPARE(p.resumeLine(), 172);
    QVERIFY(p.index(write(job("G91X0Y0\n"))));
    p.statusReport("<Run|WPos:190.500,0.000,0.000|Bf:10,0|SD:50.00,/001.nc>");
    QCOMPARE(p.resumeLine(), 172);

    // A square burnt over and over: the head on its bottom side is on every
    // pass the board may have read; the earliest of them is the safe one.
    QByteArray passes = "G0X0Y0\n";
    for (int pass = 0; pass < 100; ++pass)
        passes += "G1X10Y0\nG1X10Y10\nG1X0Y10\nG1X0Y0\n";
    QVERIFY(p.index(write(passes)));
    p.statusReport("<Run|WPos:5.000,0.000,0.000|Bf:3,0|SD:50.00,/001.nc>");
    int firstBottom = p.resumeLineByBuffer();
    while ((firstBottom - 2) % 4 != 0)
        ++firstBottom;
    QVERIFY(firstBottom + 8 < p.lineAtByte(p.size() / 2)); // later passes were read too
    QCOMPARE(p.resumeLine(), firstBottom);
}

// A board that really runs random jobs from its card, stopped at random:
// every line before the resume line has run in full, and the resume line is
// no further back than the planner and the receive buffer explain.
void TestSdJobProgress::resumeLineNeverSkipsWhatDidNotRun()
{
    const quint32 seed = QRandomGenerator::system()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    for (int round = 0; round < 40; ++round) {
        QByteArray bytes = "G90 G21\nM4 S0\nG1 F3000\n";
        const int lines = 200 + int(random.bounded(800));
        for (int i = 0; i < lines; ++i) {
            switch (random.bounded(6)) {
            case 0:
                bytes += "S" + QByteArray::number(random.bounded(1000)) + "\n";
                break;
            case 1:
                bytes += "G91\nX.5\nG90\n";
                break;
            case 2:
                bytes += "; a comment of some length\n";
                break;
            default:
                bytes += "X" + QByteArray::number(random.bounded(300)) + " Y"
                         + QByteArray::number(random.bounded(200)) + " S"
                         + QByteArray::number(random.bounded(1000)) + "\n";
            }
        }
        const QString path = write(bytes);
        SdJobProgress p;
        QVERIFY(p.index(path));
        CardJobRunner board;
        QVERIFY(board.open(path, 1));
        board.advance(int(random.bounded(quint32(lines))));
        const bool withBuffer = random.bounded(2) == 0;
        // Half the reports give the head's position, as GRBL: in steps.
        QByteArray report = "<Run";
        if (random.bounded(2) == 0)
            report += "|WPos:" + QByteArray::number(board.position().x(), 'f', 3) + ","
                      + QByteArray::number(board.position().y(), 'f', 3) + ",0.000";
        if (withBuffer)
            report += "|Bf:" + QByteArray::number(15 - board.queuedBlocks()) + ",0";
        report += "|SD:" + QByteArray::number(board.percentRead(), 'f', 2) + ",/001.nc>";
        QVERIFY(p.statusReport(QString::fromLatin1(report)));
        const int from = p.resumeLine();
        QVERIFY2(from <= board.firstQueuedLine(),
                 qPrintable(QString("round %1: resume at %2, line %3 had not run")
                                .arg(round)
                                .arg(from)
                                .arg(board.firstQueuedLine())));
        // No further back than the planner's and the step segments' blocks
        // before what the receive buffer (and the report's two decimals) may
        // hold.
        QList<int> lengths;
        QFile f(path);
        QVERIFY(f.open(QIODevice::ReadOnly));
        while (!f.atEnd())
            lengths << f.readLine().size();
        const qint64 margin = SdJobProgress::kReceiveBytes + p.size() / 5000 + 1;
        qint64 bytesBack = 0;
        int blocks = 0;
        for (int line = board.linesRead(); line >= from; --line) {
            bytesBack += lengths.at(line - 1);
            if (bytesBack > margin && p.makesBlock(line))
                ++blocks;
        }
        // (+1: the line holding the first byte not surely parsed.)
        QVERIFY2(blocks <= SdJobProgress::kPlannerBlocks + lumitra::grbl::kSegmentBlocks + 1,
                 qPrintable(QString("round %1: resume %2 blocks back").arg(round).arg(blocks)));
    }
}

QTEST_GUILESS_MAIN(TestSdJobProgress)
#include "tst_sd_job_progress.moc"
