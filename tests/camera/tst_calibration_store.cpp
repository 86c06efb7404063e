#include "calibration_store.h"
#include "fake_board.h"
#include "http_thread.h"

#include <QSignalSpy>
#include <QTest>

using lumitra::camera::CalibrationPoints;

namespace {

CalibrationPoints pts(QPointF a, QPointF b, QPointF c, QPointF d)
{
    CalibrationPoints p;
    p.p[0] = a;
    p.p[1] = b;
    p.p[2] = c;
    p.p[3] = d;
    return p;
}

const char *const kFile = "winshexiangtoucanshuzhi2.txt";

} // namespace

// The calibration read from and written to the board's card, over HTTP to
// the fake board.
class TestCalibrationStore : public QObject
{
    Q_OBJECT

private slots:
    void load_data();
    void load();
    void loadedStateAsksNothing_data();
    void loadedStateAsksNothing();
    void saveThenLoad();
};

void TestCalibrationStore::load_data()
{
    QTest::addColumn<QByteArray>("file"); // "<none>": not on the card
    QTest::addColumn<bool>("dialogOpen");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("message");
    QTest::addColumn<CalibrationPoints>("points");
    const CalibrationPoints before = pts({9, 9}, {8, 8}, {7, 7}, {6, 6});
    const QString noCalibration = QString::fromUtf8("请先在设置界面校准摄像头!");
    QTest::newRow("four points") << QByteArray("J1,2J3,4J5,6J7,8") << false << true << 2 << ""
                                 << pts({1, 2}, {3, 4}, {5, 6}, {7, 8});
    QTest::newRow("only P1") << QByteArray("J1,2") << false << true << 2 << ""
                             << pts({1, 2}, {8, 8}, {7, 7}, {6, 6});
    QTest::newRow("empty file") << QByteArray("") << false << false << 1 << noCalibration << before;
    QTest::newRow("no file") << QByteArray("<none>") << false << false << 1 << noCalibration
                             << before;
    QTest::newRow("empty, dialog open") << QByteArray("") << true << true << 1 << "" << before;
    QTest::newRow("no file, dialog open")
        << QByteArray("<none>") << true << true << 1 << "" << before;
}

void TestCalibrationStore::load()
{
    QFETCH(QByteArray, file);
    QFETCH(bool, dialogOpen);
    QFETCH(bool, ok);
    QFETCH(int, state);
    QFETCH(QString, message);
    QFETCH(CalibrationPoints, points);
    FakeBoard board;
    QVERIFY(board.start());
    if (file != "<none>")
        board.putCardFile(kFile, file);
    CalibrationStore store;
    store.setPoints(pts({9, 9}, {8, 8}, {7, 7}, {6, 6}));
    store.setState(1);
    QString said;
    QCOMPARE(store.load(board.address(), dialogOpen, &said), ok);
    QCOMPARE(said, message);
    QCOMPARE(store.state(), state);
    QVERIFY(store.points() == points);
    QCOMPARE(board.rawTargets(), QStringList{QString("/SD/") + kFile});
}

void TestCalibrationStore::loadedStateAsksNothing_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("none") << 0;
    QTest::newRow("loaded") << 2;
}

void TestCalibrationStore::loadedStateAsksNothing()
{
    QFETCH(int, state);
    FakeBoard board;
    QVERIFY(board.start());
    CalibrationStore store;
    store.setState(state);
    QString said;
    QVERIFY(store.load(board.address(), false, &said));
    QVERIFY(said.isEmpty());
    QCOMPARE(store.state(), state);
    QVERIFY(board.rawTargets().isEmpty());
}

// Points picked in the dialog go to the card; the next photo reads them back.
void TestCalibrationStore::saveThenLoad()
{
    FakeBoard board;
    QVERIFY(board.start());
    HttpThread link;
    link.setAddress("127.0.0.1", board.httpPort(), board.wsPort());
    CalibrationStore store;
    store.setState(2);
    QSignalSpy changed(&store, &CalibrationStore::pointsChanged);
    QSignalSpy uploaded(&link, &HttpThread::uploadFinished);
    const CalibrationPoints picked = pts({103.5, 88}, {512, 90.25}, {509, 497}, {101, 494});
    store.save(&link, picked);
    QCOMPARE(store.state(), 1);
    QVERIFY(store.points() == picked);
    QCOMPARE(changed.count(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(uploaded.count(), 1, 30000);
    QVERIFY2(uploaded.at(0).at(0).toBool(), qPrintable(uploaded.at(0).at(1).toString()));
    QCOMPARE(board.cardFile(kFile), QByteArray("J103.5,88J512,90.25J509,497J101,494"));

    CalibrationStore other;
    other.setState(1);
    QString said;
    QVERIFY(other.load(board.address(), false, &said));
    QCOMPARE(other.state(), 2);
    QVERIFY(other.points() == picked);
}

QTEST_MAIN(TestCalibrationStore)
#include "tst_calibration_store.moc"
