#include "read_txt_thread.h"
#include "send_loop.h"
#include "stream_state.h"

#include <QMutex>
#include <QTemporaryDir>
#include <QtTest>
#include <thread>

// Runs the send loop on its own thread and records what it writes.
class LoopRunner
{
public:
    explicit LoopRunner(StreamState &s) : m_stream(s)
    {
        m_running = true;
        SendLoopOutput out;
        out.write = [this](const QString &line) {
            QMutexLocker lock(&m_mutex);
            m_written.append(line);
        };
        out.progress = [this](int p) {
            QMutexLocker lock(&m_mutex);
            m_progress.append(p);
        };
        m_thread = std::thread([this, out] { runSendLoop(m_stream, m_running, out); });
    }
    ~LoopRunner()
    {
        m_running = false;
        m_stream.wakeAll();
        m_thread.join();
    }
    QStringList written() const
    {
        QMutexLocker lock(&m_mutex);
        return m_written;
    }
    QList<int> progress() const
    {
        QMutexLocker lock(&m_mutex);
        return m_progress;
    }

private:
    StreamState &m_stream;
    std::atomic_bool m_running{false};
    std::thread m_thread;
    mutable QMutex m_mutex;
    QStringList m_written;
    QList<int> m_progress;
};

class TestStreamState : public QObject
{
    Q_OBJECT

private slots:
    void window_data();
    void window();
    void okReleasesOldestFirst();
    void loopStopsAtWindowUntilOk();
    void fullBufferLineBlocksUntilStop();
    void stopDropsTakenLine();
    void resetHoldUntilBanner();
    void resetHoldExpires();
    void staleReaderLinesRejected();
    void refillBelowThreshold_data();
    void refillBelowThreshold();
    void progress_data();
    void progress();
    void loopAnnouncesProgress();
    void readerKeepsMemoryFlat();
    void readerStopsOnRequest();
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
    QCOMPARE(s.inFlight(), 13);
    s.releaseOldest();
    QCOMPARE(s.inFlightLengths(), (QList<int>{8}));
    s.releaseOldest();
    s.releaseOldest(); // an extra ok on an empty list changes nothing
    QCOMPARE(s.inFlight(), 0);
    QVERIFY(s.drained());
}

void TestStreamState::loopStopsAtWindowUntilOk()
{
    StreamState s;
    QStringList lines;
    for (int i = 0; i < 20; ++i)
        lines << QString("G1X%1Y%2F3000").arg(100 + i).arg(200 + i); // 16 bytes with "\n"
    s.enqueue(lines);
    LoopRunner loop(s);
    QTRY_COMPARE(loop.written().size(), 7); // 7 × 16 = 112; an 8th would make 128
    QTest::qWait(50);
    QCOMPARE(loop.written().size(), 7);
    QCOMPARE(s.inFlight(), 112);
    s.releaseOldest();
    QTRY_COMPARE(loop.written().size(), 8);
    QCOMPARE(loop.written().first(), lines.first() + "\n");
    QCOMPARE(loop.written().last(), lines.at(7) + "\n");
}

void TestStreamState::fullBufferLineBlocksUntilStop()
{
    StreamState s;
    s.enqueue({QString(127, 'X'), "G0X1"});
    LoopRunner loop(s);
    QTest::qWait(150);
    QVERIFY(loop.written().isEmpty());
    QCOMPARE(s.queued(), 1); // the loop holds the long line; G0X1 waits behind it
    s.clear();
    s.enqueue({"G0X2"});
    QTRY_COMPARE(loop.written(), QStringList{"G0X2\n"});
    QTest::qWait(30);
    QCOMPARE(loop.written(), QStringList{"G0X2\n"});
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
    s.beginJob(total);
    for (const QList<int> &expected : announced)
        QCOMPARE(s.countSent(), expected);
}

void TestStreamState::loopAnnouncesProgress()
{
    StreamState s;
    s.beginJob(2);
    s.enqueue({"G0X1", "G0X2"});
    LoopRunner loop(s);
    QTRY_COMPARE(loop.progress(), (QList<int>{0, 50, 100}));
}

namespace {

QString writeJob(const QTemporaryDir &dir, int lines)
{
    const QString path = dir.filePath(QString("job%1.nc").arg(lines));
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly))
        return QString();
    for (int i = 0; i < lines; ++i)
        f.write(QString("G1X%1Y%2\r\n").arg(i).arg(i % 97).toLatin1());
    return path;
}

} // namespace

void TestStreamState::readerKeepsMemoryFlat()
{
    QTemporaryDir dir;
    const int total = 20000;
    const QString path = writeJob(dir, total);
    auto stream = std::make_shared<StreamState>();
    auto *reader = new ReadTxtThread(path, stream);
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
        QVERIFY2(stream->peakBuffered() <= StreamState::kMostLinesHeld,
                 qPrintable(QString::number(stream->peakBuffered())));
    }
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(got.first(), QString("G1X0Y0\n"));
    QCOMPARE(got.at(12345), QString("G1X12345Y%1\n").arg(12345 % 97));
    QCOMPARE(got.last(), QString("G1X%1Y%2\n").arg(total - 1).arg((total - 1) % 97));
    QVERIFY(stream->drained());
}

void TestStreamState::readerStopsOnRequest()
{
    QTemporaryDir dir;
    const QString path = writeJob(dir, 5000);
    auto stream = std::make_shared<StreamState>();
    QPointer<ReadTxtThread> reader = new ReadTxtThread(path, stream);
    reader->start();
    QTRY_COMPARE(stream->pendingCount() >= StreamState::kPendingLimit, true);
    reader->requestStop();
    QTRY_VERIFY(reader.isNull()); // finished and deleted itself
    QVERIFY(stream->pendingCount() < 5000);
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
