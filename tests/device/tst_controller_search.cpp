#include "board_probe.h"
#include "controller_search.h"
#include "fake_board.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

// The controller search and its probe against boards on 127.0.0.1 only: a fake
// board that answers, a closed port, a board that never answers, and one that
// answers with an error page.
namespace {

// A port on 127.0.0.1 that nobody listens on.
quint16 closedPort()
{
    QTcpServer server;
    if (!server.listen(QHostAddress::LocalHost, 0))
        return 0;
    const quint16 port = server.serverPort();
    server.close();
    return port;
}

// Accepts connections and never answers; counts the connections it got.
class SilentServer : public QTcpServer
{
public:
    SilentServer()
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = nextPendingConnection()) {
                ++accepted;
                Q_UNUSED(socket); // owned by the server, kept open
            }
        });
    }
    int accepted = 0;
};

QString local(quint16 port)
{
    return QStringLiteral("127.0.0.1:%1").arg(port);
}

using Reports = QMap<QString, bool>;

Reports reportsOf(const QSignalSpy &spy)
{
    Reports reports;
    for (const QList<QVariant> &args : spy)
        reports.insert(args.at(0).toString(), args.at(1).toBool());
    return reports;
}

} // namespace

class TestControllerSearch : public QObject
{
    Q_OBJECT

private slots:
    void splitAddress_data();
    void splitAddress();
    void probe();
    void reportsEveryAddress();
    void boundedParallel();
    void stopEndsQuietly();
    void emptyList();
};

void TestControllerSearch::splitAddress_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("host");
    QTest::addColumn<int>("port");
    QTest::newRow("bare address") << "192.168.0.7"
                                  << "192.168.0.7" << 80;
    QTest::newRow("with port") << "127.0.0.1:8080"
                               << "127.0.0.1" << 8080;
    QTest::newRow("host name") << " lumitra.local "
                               << "lumitra.local" << 80;
    QTest::newRow("bad port") << "10.0.0.2:x"
                              << "10.0.0.2" << 80;
    QTest::newRow("port out of range") << "10.0.0.2:70000"
                                       << "10.0.0.2" << 80;
    QTest::newRow("IPv6 literal") << "fe80::1"
                                  << "fe80::1" << 80;
}

void TestControllerSearch::splitAddress()
{
    QFETCH(QString, entry);
    QFETCH(QString, host);
    QFETCH(int, port);
    QString gotHost;
    int gotPort = 0;
    ControllerSearch::splitAddress(entry, 80, &gotHost, &gotPort);
    QCOMPARE(gotHost, host);
    QCOMPARE(gotPort, port);
}

void TestControllerSearch::probe()
{
    FakeBoard board;
    QVERIFY(board.start());
    QVERIFY(BoardProbe::probeAndWait("127.0.0.1", board.httpPort(), 3000));
    QCOMPARE(board.rawTargets().last(), QStringLiteral("/upload?path=/&PAGEID=0"));
    QVERIFY(!BoardProbe::probeAndWait("127.0.0.1", closedPort(), 3000));

    BoardProbe async;
    QSignalSpy spy(&async, &BoardProbe::finished);
    async.probe("127.0.0.1", board.httpPort(), 3000);
    QVERIFY(async.isRunning());
    QVERIFY(spy.wait(5000));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy[0], (QList<QVariant>{"127.0.0.1", int(board.httpPort()), true}));
    QVERIFY(!async.isRunning());
}

void TestControllerSearch::reportsEveryAddress()
{
    FakeBoard board;
    QVERIFY(board.start());
    FakeBoard broken;
    QVERIFY(broken.start());
    broken.failRoute("/upload", 500);
    SilentServer silent;
    QVERIFY(silent.listen(QHostAddress::LocalHost, 0));
    const quint16 closed = closedPort();

    ControllerSearch search;
    search.setTimeout(400);
    search.setPort(board.httpPort());
    // A bare host takes the search's port: "127.0.0.1" is the board too.
    search.setAddresses({local(closed), "127.0.0.1", local(silent.serverPort()),
                         local(broken.httpPort()), local(closed)});
    QCOMPARE(search.addresses().size(), 4); // the repeated entry is probed once
    QSignalSpy reports(&search, &ControllerSearch::isOnline);
    QSignalSpy finished(&search, &ControllerSearch::finished);
    QSignalSpy progress(&search, &ControllerSearch::progress);
    search.start();
    QVERIFY(search.isRunning());
    QVERIFY(finished.wait(10000));

    const Reports expected{{local(closed), false},
                           {"127.0.0.1", true},
                           {local(silent.serverPort()), false},
                           {local(broken.httpPort()), false}};
    QCOMPARE(reports.size(), 4);
    QCOMPARE(reportsOf(reports), expected);
    QCOMPARE(search.found(), QStringList{"127.0.0.1"});
    QCOMPARE(search.probedCount(), 4);
    QVERIFY(!search.isRunning());
    QCOMPARE(progress.last(), (QList<QVariant>{4, 4}));
    QCOMPARE(finished.size(), 1);
    QCOMPARE(silent.accepted, 1);

    // A second search starts over.
    search.setAddresses({"127.0.0.1"});
    search.start();
    QVERIFY(finished.wait(10000));
    QCOMPARE(search.found(), QStringList{"127.0.0.1"});
    QCOMPARE(reports.size(), 5);
}

// No more than the allowed number of probes are out at once: when the first
// answer comes, only that many silent servers have been contacted.
void TestControllerSearch::boundedParallel()
{
    QList<SilentServer *> servers;
    QStringList addresses;
    for (int i = 0; i < 7; ++i) {
        auto *server = new SilentServer;
        servers << server;
        QVERIFY(server->listen(QHostAddress::LocalHost, 0));
        addresses << local(server->serverPort());
    }
    ControllerSearch search;
    search.setTimeout(500);
    search.setMaxParallel(3);
    search.setAddresses(addresses);
    int contactedAtFirstReport = -1;
    connect(&search, &ControllerSearch::isOnline, this, [&] {
        if (contactedAtFirstReport < 0) {
            contactedAtFirstReport = 0;
            for (SilentServer *s : qAsConst(servers))
                contactedAtFirstReport += s->accepted > 0;
        }
    });
    QSignalSpy reports(&search, &ControllerSearch::isOnline);
    QSignalSpy finished(&search, &ControllerSearch::finished);
    search.start();
    QVERIFY(finished.wait(20000));
    QVERIFY2(contactedAtFirstReport >= 1 && contactedAtFirstReport <= 3,
             qPrintable(QString::number(contactedAtFirstReport)));
    QCOMPARE(reports.size(), 7);
    for (SilentServer *s : qAsConst(servers))
        QCOMPARE(s->accepted, 1);
    QVERIFY(reportsOf(reports).keys(true).isEmpty());
    qDeleteAll(servers);
}

void TestControllerSearch::stopEndsQuietly()
{
    SilentServer silent;
    QVERIFY(silent.listen(QHostAddress::LocalHost, 0));
    FakeBoard board;
    QVERIFY(board.start());
    ControllerSearch search;
    search.setTimeout(300);
    search.setMaxParallel(1);
    search.setAddresses({local(silent.serverPort()), local(board.httpPort())});
    QSignalSpy reports(&search, &ControllerSearch::isOnline);
    QSignalSpy finished(&search, &ControllerSearch::finished);
    search.start();
    QTRY_COMPARE(silent.accepted, 1);
    search.stop();
    QVERIFY(!search.isRunning());
    // Longer than the time limit: the abandoned probe would have reported by now.
    QTest::qWait(600);
    QCOMPARE(reports.size(), 0);
    QCOMPARE(finished.size(), 0);
    QVERIFY(!board.rawTargets().contains("/upload?path=/&PAGEID=0"));
}

void TestControllerSearch::emptyList()
{
    ControllerSearch search;
    QSignalSpy finished(&search, &ControllerSearch::finished);
    search.setAddresses({" ", ""});
    search.start();
    QCOMPARE(finished.size(), 1);
    QVERIFY(!search.isRunning());
    QVERIFY(search.found().isEmpty());
}

QTEST_GUILESS_MAIN(TestControllerSearch)
#include "tst_controller_search.moc"
