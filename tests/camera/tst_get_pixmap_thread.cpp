#include "fake_board.h"
#include "get_pixmap_thread.h"
#include "synthetic_photo.h"

#include <QDir>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

Q_DECLARE_METATYPE(FakeBoard::CameraFailure)

namespace {

// Threads of this process as the kernel lists them. A joined QThread's task
// can linger in the list for a moment while it unwinds, so callers poll.
int processThreads()
{
    return int(QDir(QStringLiteral("/proc/self/task"))
                   .entryList(QDir::Dirs | QDir::NoDotAndDotDot)
                   .size());
}

} // namespace

// The photo fetch against the fake board: retries through failures, one
// image, a clean stop.
class TestGetPixmapThread : public QObject
{
    Q_OBJECT

private slots:
    void retriesUntilThePhotoComes_data();
    void retriesUntilThePhotoComes();
    void givesUpAfterMaxAttempts();
    void cancelLeavesNoThread();
    void destructorCancels();
};

void TestGetPixmapThread::retriesUntilThePhotoComes_data()
{
    QTest::addColumn<int>("failures");
    QTest::addColumn<FakeBoard::CameraFailure>("how");
    QTest::newRow("at once") << 0 << FakeBoard::CameraFailure::Status500;
    QTest::newRow("20 times HTTP 500") << 20 << FakeBoard::CameraFailure::Status500;
    QTest::newRow("20 dropped connections") << 20 << FakeBoard::CameraFailure::DropConnection;
}

void TestGetPixmapThread::retriesUntilThePhotoComes()
{
    QFETCH(int, failures);
    QFETCH(FakeBoard::CameraFailure, how);
    const SyntheticPhoto photo = makeSyntheticPhoto(QSize(640, 480));
    FakeBoard board;
    QVERIFY(board.start());
    board.setCameraImage(photo.jpeg);
    board.failCameraRequests(failures, how);

    GetPixmapThread fetch(board.address());
    QCOMPARE(fetch.retryDelayMs(), 500);
    fetch.setRetryDelayMs(5);
    QSignalSpy images(&fetch, &GetPixmapThread::imageReady);
    QSignalSpy failed(&fetch, &GetPixmapThread::attemptFailed);
    QSignalSpy finished(&fetch, &GetPixmapThread::finished);
    if (failures > 0)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Failed to load image:"));
    fetch.start();
    QVERIFY(fetch.isRunning());
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
    QCOMPARE(images.count(), 1);
    QCOMPARE(board.cameraRequests(), failures + 1);
    QCOMPARE(fetch.attempts(), failed.count() + 1);
    if (how == FakeBoard::CameraFailure::Status500) {
        QCOMPARE(failed.count(), failures);
    } else {
        // Qt sends a request a second time on its own when the connection
        // closes before any answer: a dropped attempt may use two requests.
        QVERIFY2(failed.count() >= failures / 2 && failed.count() <= failures,
                 qPrintable(QString::number(failed.count())));
    }
    QVERIFY(!fetch.isRunning());
    const QImage image = images.at(0).at(0).value<QImage>();
    QCOMPARE(image.size(), QSize(640, 480));
    QCOMPARE(image.pixel(320, 240), QImage::fromData(photo.jpeg).pixel(320, 240));
}

void TestGetPixmapThread::givesUpAfterMaxAttempts()
{
    FakeBoard board;
    QVERIFY(board.start()); // no camera image: every request is a 404
    GetPixmapThread fetch(board.address());
    fetch.setRetryDelayMs(1);
    fetch.setMaxAttempts(3);
    QSignalSpy gaveUp(&fetch, &GetPixmapThread::gaveUp);
    QSignalSpy finished(&fetch, &GetPixmapThread::finished);
    QSignalSpy images(&fetch, &GetPixmapThread::imageReady);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Failed to load image:"));
    fetch.start();
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
    QCOMPARE(gaveUp.count(), 1);
    QCOMPARE(images.count(), 0);
    QCOMPARE(fetch.attempts(), 3);
    QCOMPARE(board.cameraRequests(), 3);
    QVERIFY(!fetch.isRunning());
}

void TestGetPixmapThread::cancelLeavesNoThread()
{
    FakeBoard board;
    QVERIFY(board.start());
    board.setCameraImage(makeSyntheticPhoto(QSize(320, 240)).jpeg);
    // One whole fetch first, so that threads Qt keeps for the process exist.
    {
        GetPixmapThread warmUp(board.address());
        QSignalSpy finished(&warmUp, &GetPixmapThread::finished);
        warmUp.start();
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
    }
    const int threadsBefore = processThreads();

    board.failCameraRequests(1000000);
    GetPixmapThread fetch(board.address());
    fetch.setRetryDelayMs(1);
    QSignalSpy images(&fetch, &GetPixmapThread::imageReady);
    QSignalSpy finished(&fetch, &GetPixmapThread::finished);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Failed to load image:"));
    fetch.start();
    QTRY_VERIFY_WITH_TIMEOUT(fetch.attempts() >= 3, 30000);
    fetch.cancel();
    QVERIFY(!fetch.isRunning());
    fetch.cancel(); // twice is harmless
    QTRY_COMPARE_WITH_TIMEOUT(processThreads(), threadsBefore, 10000);
    const int attempts = fetch.attempts();
    board.failCameraRequests(0);
    // The thread is joined: whatever it queued has been posted. Deliver it.
    QCoreApplication::processEvents();
    QCOMPARE(images.count(), 0);
    QCOMPARE(finished.count(), 0);
    QCOMPARE(fetch.attempts(), attempts);

    // Started again after a cancel, it fetches normally.
    fetch.start();
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
    QCOMPARE(images.count(), 1);
}

void TestGetPixmapThread::destructorCancels()
{
    FakeBoard board;
    QVERIFY(board.start());
    board.failCameraRequests(1000000);
    const int threadsBefore = processThreads();
    auto *fetch = new GetPixmapThread(board.address());
    fetch->setRetryDelayMs(1);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Failed to load image:"));
    fetch->start();
    QTRY_VERIFY_WITH_TIMEOUT(fetch->attempts() >= 2, 30000);
    delete fetch;
    QTRY_COMPARE_WITH_TIMEOUT(processThreads(), threadsBefore, 10000);
}

QTEST_MAIN(TestGetPixmapThread)
#include "tst_get_pixmap_thread.moc"
