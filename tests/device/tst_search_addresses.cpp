#include "search_addresses.h"

#include <QtTest>

// Which addresses the controller search probes, from made-up interface lists:
// nothing here touches the network.
using namespace lumitra::search;

namespace {

LocalInterface iface(const QList<QPair<QString, int>> &addresses, bool up = true,
                     bool running = true, bool loopback = false, bool isVirtual = false)
{
    LocalInterface result;
    result.up = up;
    result.running = running;
    result.loopback = loopback;
    result.isVirtual = isVirtual;
    for (const auto &a : addresses)
        result.entries << LocalInterface::Entry{QHostAddress(a.first), a.second};
    return result;
}

} // namespace
Q_DECLARE_METATYPE(QList<LocalInterface>)
namespace {

const QStringList kFixed{"192.168.0.1", "lumitra.local"};

} // namespace

class TestSearchAddresses : public QObject
{
    Q_OBJECT

private slots:
    void skipped_data();
    void skipped();
    void oneSubnet();
    void smallSubnet();
    void widePrefixStaysA24();
    void fixedEntriesNotRepeated();
    void subnetsCapped();
};

// Interfaces and addresses that give nothing beyond the two fixed entries.
void TestSearchAddresses::skipped_data()
{
    QTest::addColumn<QList<LocalInterface>>("interfaces");
    const QList<QPair<QString, int>> lan{{"10.1.2.3", 24}};
    QTest::newRow("none") << QList<LocalInterface>{};
    QTest::newRow("down") << QList<LocalInterface>{iface(lan, false, false)};
    QTest::newRow("up, not running") << QList<LocalInterface>{iface(lan, true, false)};
    QTest::newRow("loopback flag") << QList<LocalInterface>{iface(lan, true, true, true)};
    QTest::newRow("virtual") << QList<LocalInterface>{iface(lan, true, true, false, true)};
    QTest::newRow("loopback address") << QList<LocalInterface>{iface({{"127.0.0.1", 8}})};
    QTest::newRow("link-local") << QList<LocalInterface>{iface({{"169.254.10.20", 16}})};
    QTest::newRow("IPv6 only") << QList<LocalInterface>{
        iface({{"fe80::1", 64}, {"2001:db8::5", 64}})};
}

void TestSearchAddresses::skipped()
{
    QFETCH(QList<LocalInterface>, interfaces);
    QCOMPARE(searchAddresses(interfaces), kFixed);
}

void TestSearchAddresses::oneSubnet()
{
    const QStringList list = searchAddresses({iface({{"fe80::1", 64}, {"192.168.5.20", 24}})});
    QCOMPARE(list.mid(0, 2), kFixed);
    QCOMPARE(list.size(), 2 + 253); // .1 to .254 without our own .20
    QCOMPARE(list.at(2), QStringLiteral("192.168.5.1"));
    QCOMPARE(list.last(), QStringLiteral("192.168.5.254"));
    QVERIFY(!list.contains("192.168.5.20"));
    QVERIFY(!list.contains("192.168.5.0"));
    QVERIFY(!list.contains("192.168.5.255"));
}

void TestSearchAddresses::smallSubnet()
{
    const QStringList list = searchAddresses({iface({{"10.0.0.6", 30}})});
    QCOMPARE(list, kFixed + QStringList{"10.0.0.5"});
}

void TestSearchAddresses::widePrefixStaysA24()
{
    const QStringList list = searchAddresses({iface({{"172.16.40.9", 16}})});
    QCOMPARE(list.size(), 2 + 253);
    QCOMPARE(list.at(2), QStringLiteral("172.16.40.1"));
    QCOMPARE(list.last(), QStringLiteral("172.16.40.254"));
}

// The computer on the board's own access point: 192.168.0.1 is listed once,
// first; two addresses in one /24 search it once.
void TestSearchAddresses::fixedEntriesNotRepeated()
{
    const QStringList list =
        searchAddresses({iface({{"192.168.0.2", 24}}), iface({{"192.168.0.3", 24}})});
    QCOMPARE(list.count("192.168.0.1"), 1);
    QCOMPARE(list.first(), QStringLiteral("192.168.0.1"));
    QCOMPARE(list.size(), 2 + 252); // .1 already first, our own .2 left out
    QVERIFY(list.contains("192.168.0.3"));
    QCOMPARE(QSet<QString>(list.begin(), list.end()).size(), list.size());
}

void TestSearchAddresses::subnetsCapped()
{
    QList<QPair<QString, int>> many;
    for (int i = 0; i < 6; ++i)
        many << qMakePair(QStringLiteral("10.0.%1.1").arg(i), 24);
    const QStringList list = searchAddresses({iface(many)});
    QCOMPARE(list.size(), 2 + kMaxSubnets * 253);
    QVERIFY(list.contains("10.0.3.2"));
    QVERIFY(!list.contains("10.0.4.2"));
    QCOMPARE(searchAddresses({iface(many)}, 1).size(), 2 + 253);
}

QTEST_GUILESS_MAIN(TestSearchAddresses)
#include "tst_search_addresses.moc"
