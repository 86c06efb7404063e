#include "read_txt_thread.h"
#include "stream_state.h"

#include <QTemporaryDir>
#include <QtTest>

// The stream's accounting and the file reader, without a port.
class TestStreamState : public QObject
{
    Q_OBJECT

private slots:
    void window_data();
    void window();
    void okReleasesOldestFirst();
    void stopDropsTakenLine();
    void resetHoldUntilBanner();
    void resetHoldExpires();
    void staleReaderLinesRejected();
    void refillBelowThreshold_data();
    void refillBelowThreshold();
    void progress_data();
    void progress();
    void readerTrimsLineEndsAndStaysBounded();
    void lineCount_data();
    void lineCount();
};

void TestStreamState::window_data()
{
    QTest::addColumn<int>("inFlight");
    QTest::addColumn<int>("lineLength"); // without "\n"
    QTest::addColumn<int>("fits");
    QTest::newRow("empty, 126+1") << 0 << 126 << 1;
    QTest::newRow("empty, 127+1 never fits") << 0 << 127 << 0;
    QTest::newRow("100 + 27") << 100 << 26 << 1;
    QTest::newRow("100 + 28") << 100 << 27 << 0;
    QTest::newRow("127 full") << 127 << 0 << 0;
}

void TestStreamState::window()
{
    QFETCH(int, inFlight);
    QFETCH(int, lineLength);
    QFETCH(int, fits);
    StreamState s;
    if (inFlight)
        s.countDirect(inFlight);
    s.enqueue({QString(lineLength, 'G')});
    StreamState::Taken t;
    QVERIFY(s.takeNext(t, 0));
    QCOMPARE(t.bytes, lineLength + 1);
    QCOMPARE(s.waitForRoom(t, 0), fits);
}

void TestStreamState::okReleasesOldestFirst()
{
    StreamState s;
    s.enqueue({"G0X1", "G1X22Y3"});
    StreamState::Taken t;
    for (int i = 0; i < 2; ++i) {
        QVERIFY(s.takeNext(t, 0));
        QVERIFY(s.commit(t, [](const QString &) {}));
    }
    QCOMPARE(s.inFlightLengths(), (QList<int>{5, 8}));
    s.releaseOldest();
    QCOMPARE(s.inFlightLengths(), (QList<int>{8}));
    s.releaseOldest();
    s.releaseOldest(); // an extra ok on an empty list changes nothing
    QCOMPARE(s.inFlight(), 0);
    QVERIFY(s.drained());
}

void TestStreamState::stopDropsTakenLine()
{
    StreamState s;
    s.enqueue({"G0X1"});
    StreamState::Taken t;
    QVERIFY(s.takeNext(t, 0));
    QVERIFY(!s.drained());
    s.clear();
    QCOMPARE(s.waitForRoom(t, 0), -1);
    bool sent = false;
    QVERIFY(!s.commit(t, [&sent](const QString &) { sent = true; }));
    QVERIFY(!sent);
    QVERIFY(s.drained());
}

void TestStreamState::resetHoldUntilBanner()
{
    StreamState s;
    s.countDirect(40);
    s.clear();
    s.holdForReset(5000);
    s.countDirect(4);
    s.releaseOldest(); // an answer to a line the reset threw away
    QCOMPARE(s.inFlight(), 4);
    s.enqueue({"$X"});
    StreamState::Taken t;
    QVERIFY(!s.takeNext(t, 1));
    QVERIFY(s.holdingReset());
    s.releaseResetHold();
    QCOMPARE(s.inFlight(), 0);
    QVERIFY(s.takeNext(t, 0));
    QCOMPARE(t.line, QString("$X\n"));
}

void TestStreamState::resetHoldExpires()
{
    StreamState s;
    s.holdForReset(40);
    s.enqueue({"G0X1"});
    StreamState::Taken t;
    QVERIFY(!s.takeNext(t, 0));
    QTRY_VERIFY_WITH_TIMEOUT(!s.holdingReset(), 1000);
    QVERIFY(s.takeNext(t, 0));
}

void TestStreamState::staleReaderLinesRejected()
{
    StreamState s;
    const quint64 run = s.generation();
    QVERIFY(s.appendPending({"a"}, run));
    s.clear();
    QVERIFY(!s.appendPending({"b"}, run));
    QCOMPARE(s.pendingCount(), 0);
    QVERIFY(s.appendPending({"c"}, s.generation()));
    QCOMPARE(s.pendingCount(), 1);
}

void TestStreamState::refillBelowThreshold_data()
{
    QTest::addColumn<int>("queued");
    QTest::addColumn<bool>("moved");
    QTest::newRow("299 queued") << 299 << true;
    QTest::newRow("300 queued") << 300 << false;
}

void TestStreamState::refillBelowThreshold()
{
    QFETCH(int, queued);
    QFETCH(bool, moved);
    StreamState s;
    QStringList q;
    for (int i = 0; i < queued; ++i)
        q << "G0";
    s.enqueue(q);
    s.appendPending({"p1", "p2"}, s.generation());
    s.refillIfLow();
    QCOMPARE(s.pendingCount(), moved ? 0 : 2);
    QCOMPARE(s.queued(), queued + (moved ? 2 : 0));
}

void TestStreamState::progress_data()
{
    QTest::addColumn<int>("total");
    QTest::addColumn<QList<QList<int>>>("announced");
    QTest::newRow("four lines") << 4 << QList<QList<int>>{{0, 25}, {50}, {75}, {100}};
    QTest::newRow("three lines round") << 3 << QList<QList<int>>{{0, 33}, {67}, {100}};
    QTest::newRow("no job") << 0 << QList<QList<int>>{{0}, {}, {}};
    QTest::newRow("many lines, repeats skipped")
        << 400 << QList<QList<int>>{{0}, {1}, {}, {}, {}, {2}};
}

void TestStreamState::progress()
{
    QFETCH(int, total);
    QFETCH(QList<QList<int>>, announced);
    StreamState s;
    // The commands sent on connecting announce nothing: the window takes a
    // progress of 0 for the start of a job.
    for (int i = 0; i < 3; ++i)
        QCOMPARE(s.countSent(false), QList<int>());
    s.beginJob(total);
    for (const QList<int> &expected : announced) {
        QCOMPARE(s.countSent(true), expected);
        QCOMPARE(s.countSent(false), QList<int>()); // a command between job lines
    }
}

void TestStreamState::readerTrimsLineEndsAndStaysBounded()
{
    QTemporaryDir dir;
    const int total = 5000;
    QFile f(dir.filePath("crlf.nc"));
    QVERIFY(f.open(QIODevice::WriteOnly));
    for (int i = 0; i < total; ++i)
        f.write(QString("G1X%1Y%2\r\n").arg(i).arg(i % 97).toLatin1());
    f.close();
    auto stream = std::make_shared<StreamState>();
    auto *reader = new ReadTxtThread(f.fileName(), stream);
    QSignalSpy finished(reader, &QThread::finished);
    reader->start();
    QStringList got;
    StreamState::Taken t;
    while (got.size() < total) {
        if (stream->takeNext(t, 5)) {
            QVERIFY(stream->commit(t, [&got](const QString &l) { got.append(l); }));
            stream->releaseOldest();
            stream->refillIfLow();
        }
        QVERIFY(stream->peakBuffered() <= StreamState::kMostLinesHeld);
    }
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(got.first(), QString("G1X0Y0\n"));
    QCOMPARE(got.last(), QString("G1X%1Y%2\n").arg(total - 1).arg((total - 1) % 97));
    QVERIFY(stream->drained());
}

void TestStreamState::lineCount_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("lines");
    QTest::newRow("empty") << QByteArray() << 0;
    QTest::newRow("ended") << QByteArray("a\nb\n") << 2;
    QTest::newRow("last unended") << QByteArray("a\r\nb") << 2;
}

void TestStreamState::lineCount()
{
    QFETCH(QByteArray, content);
    QFETCH(int, lines);
    QTemporaryDir dir;
    QFile f(dir.filePath("c.nc"));
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(content);
    f.close();
    QCOMPARE(countFileLines(f.fileName()), lines);
    QCOMPARE(countFileLines(dir.filePath("missing.nc")), 0);
}

QTEST_GUILESS_MAIN(TestStreamState)
#include "tst_stream_state.moc"
