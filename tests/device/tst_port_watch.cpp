#include "chuan_kou_jian_ce.h"
#include "grbl_fake.h"
#include "port_list_sync.h"
#include "port_probe.h"

#include <QMutex>
#include <QSignalSpy>
#include <QtTest>

class TestPortWatch : public QObject
{
    Q_OBJECT

private slots:
    void sync_data();
    void sync();
    void probes();
    void watcherRounds();
    void watcherReportsLostLinkPort();
};

void TestPortWatch::sync_data()
{
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QStringList>("listed");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<bool>("changed");
    QTest::addColumn<QStringList>("appended");
    QTest::addColumn<QList<int>>("removed");
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<bool>("lost");
    QTest::addColumn<QString>("selectFirst");

    QTest::newRow("same count, nothing")
        << QStringList{"A", "B"} << QStringList{"A", "C"} << 1 << "C" << false << QStringList{}
        << QList<int>{} << QStringList{"A", "C"} << false << "";
    QTest::newRow("new port") << QStringList{"A", "B"} << QStringList{"A"} << 0 << "" << true
                              << QStringList{"B"} << QList<int>{} << QStringList{"A", "B"} << false
                              << "";
    QTest::newRow("removed from the last backwards")
        << QStringList{"B"} << QStringList{"A", "B", "C"} << 0 << "A" << true << QStringList{}
        << QList<int>{2, 0} << QStringList{"B"} << false << "";
    QTest::newRow("linked port gone")
        << QStringList{"B"} << QStringList{"A", "B"} << 1 << "A" << true << QStringList{}
        << QList<int>{0} << QStringList{"B"} << true << "B";
    QTest::newRow("linked port gone, list empty")
        << QStringList{} << QStringList{"A"} << 1 << "A" << true << QStringList{} << QList<int>{0}
        << QStringList{} << true << "";
    QTest::newRow("unlinked port gone is no loss")
        << QStringList{} << QStringList{"A"} << 0 << "A" << true << QStringList{} << QList<int>{0}
        << QStringList{} << false << "";
    QTest::newRow("typed port never listed is no loss")
        << QStringList{"B"} << QStringList{"A", "B"} << 1 << "/dev/serial/by-id/usb-x" << true
        << QStringList{} << QList<int>{0} << QStringList{"B"} << false << "";
    QTest::newRow("wifi mode is no loss")
        << QStringList{} << QStringList{"A"} << 2 << "A" << true << QStringList{} << QList<int>{0}
        << QStringList{} << false << "";
}

void TestPortWatch::sync()
{
    QFETCH(QStringList, present);
    QFETCH(QStringList, listed);
    QFETCH(int, mode);
    QFETCH(QString, selected);
    QFETCH(bool, changed);
    QFETCH(QStringList, appended);
    QFETCH(QList<int>, removed);
    QFETCH(QStringList, after);
    QFETCH(bool, lost);
    QFETCH(QString, selectFirst);

    const PortListUpdate u = syncPortList(present, listed, mode, selected);
    QCOMPARE(u.changed, changed);
    QCOMPARE(u.appended, appended);
    QCOMPARE(u.removedRows, removed);
    QCOMPARE(u.listAfter, after);
    QCOMPARE(u.selectedLost, lost);
    QCOMPARE(u.selectFirst, selectFirst);
}

void TestPortWatch::probes()
{
    GrblFake fake;
    QVERIFY(fake.start());
    QVERIFY(probePort(fake.portName(), 500));
    QTRY_COMPARE(fake.lines(), QStringList{"AT"});
    // A pty carries every rate, so the first one answers.
    QCOMPARE(probeBaudRate(fake.portName(), 300), 1200);
    QTRY_COMPARE(fake.lines(), (QStringList{"AT", "AT "}));

    GrblFake::Options o;
    o.resetOnFirstByte = true; // busy booting: says nothing within the wait
    o.bootMs = 60000;
    GrblFake silent(o);
    QVERIFY(silent.start());
    QVERIFY(!probePort(silent.portName(), 100));
    QCOMPARE(probeBaudRate(silent.portName(), 20), 115200);
    QVERIFY(!probePort("/dev/lumitra-no-such-port", 100));
    QCOMPARE(probeBaudRate("/dev/lumitra-no-such-port", 20), 115200);
}

// The ports "present" for a watcher under test; read on its thread.
struct PortSet
{
    QMutex mutex;
    QStringList ports;
    void set(const QStringList &p)
    {
        QMutexLocker lock(&mutex);
        ports = p;
    }
    QStringList get()
    {
        QMutexLocker lock(&mutex);
        return ports;
    }
};

void TestPortWatch::watcherRounds()
{
    GrblFake fake;
    QVERIFY(fake.start());
    PortSet ports;
    Chuan_Kou_Jian_Ce watcher;
    watcher.setInterval(50);
    watcher.setPortLister([&ports] { return ports.get(); });
    QStringList combo; // the window's list, changed only through the signals
    connect(&watcher, &Chuan_Kou_Jian_Ce::portAppended, this,
            [&combo](const QString &p) { combo.append(p); });
    connect(&watcher, &Chuan_Kou_Jian_Ce::portRemoved, this,
            [&combo](int row) { combo.removeAt(row); });
    QStringList selections;
    connect(&watcher, &Chuan_Kou_Jian_Ce::selectPort, this,
            [&selections](const QString &p) { selections.append(p); });

    // Not linked: the new port is probed with "AT\r\n" and picked.
    ports.set({"/dev/lumitra-gone", fake.portName()});
    watcher.start();
    QTRY_COMPARE(combo, (QStringList{"/dev/lumitra-gone", fake.portName()}));
    QTRY_COMPARE(selections, (QStringList{QString(), fake.portName()}));
    QCOMPARE(fake.lines(), QStringList{"AT"});

    // Every changed round probes again while no link is up.
    ports.set({fake.portName()});
    QTRY_COMPARE(combo, QStringList{fake.portName()});
    QTRY_COMPARE(fake.lines(), (QStringList{"AT", "AT"}));
    QCOMPARE(watcher.listed(), combo);

    // Linked (mode 1): no probing.
    watcher.setLinkMode(1);
    ports.set({fake.portName(), "/dev/lumitra-new"});
    QTRY_COMPARE(combo.size(), 2);
    QTest::qWait(150);
    QCOMPARE(fake.lines(), (QStringList{"AT", "AT"}));
    QCOMPARE(combo, watcher.listed());
    watcher.stop();
    QVERIFY(watcher.isFinished());
}

void TestPortWatch::watcherReportsLostLinkPort()
{
    PortSet ports;
    ports.set({"ttyUSB0", "ttyUSB1"});
    Chuan_Kou_Jian_Ce watcher;
    watcher.setInterval(30);
    watcher.setPortLister([&ports] { return ports.get(); });
    watcher.setPortProber([](const QString &) { return false; });
    QSignalSpy lost(&watcher, &Chuan_Kou_Jian_Ce::send_Duan_Kai);
    QSignalSpy selected(&watcher, &Chuan_Kou_Jian_Ce::selectPort);
    watcher.start();
    QTRY_COMPARE(watcher.listed().size(), 2);
    watcher.setSelectedPort("ttyUSB0");
    watcher.setLinkMode(1);
    ports.set({"ttyUSB1"});
    QTRY_COMPARE(lost.count(), 1);
    QTRY_COMPARE(selected.count(), 1);
    QCOMPARE(selected.first().first().toString(), QString("ttyUSB1"));
    QTest::qWait(100);
    QCOMPARE(lost.count(), 1);
}

QTEST_GUILESS_MAIN(TestPortWatch)
#include "tst_port_watch.moc"
