#include "search_addresses.h"

#include <QNetworkInterface>
#include <QSet>

namespace lumitra::search {

QString accessPointAddress()
{
    return QStringLiteral("192.168.0.1");
}

QString boardHostName()
{
    return QStringLiteral("lumitra.local");
}

namespace {

bool searchable(const LocalInterface &iface)
{
    return iface.up && iface.running && !iface.loopback && !iface.isVirtual;
}

// The mask of the searched subnet: the interface's own, but never wider than a
// /24 (and at least a /30, which still holds two hosts).
quint32 searchMask(int prefixLength)
{
    return ~quint32(0) << (32 - qBound(24, prefixLength, 30));
}

// Appends the host addresses of the subnet around `ip`.
void appendNeighbours(quint32 ip, quint32 mask, QStringList &out, QSet<QString> &seen)
{
    const quint32 network = ip & mask;
    const quint32 broadcast = network | ~mask;
    for (quint32 host = network + 1; host < broadcast; ++host) {
        if (host == ip)
            continue;
        const QString text = QHostAddress(host).toString();
        if (!seen.contains(text)) {
            seen.insert(text);
            out << text;
        }
    }
}

} // namespace

QStringList searchAddresses(const QList<LocalInterface> &interfaces, int maxSubnets)
{
    QStringList out{accessPointAddress(), boardHostName()};
    QSet<QString> seen(out.begin(), out.end());
    QSet<quint32> subnets;
    for (const LocalInterface &iface : interfaces) {
        if (!searchable(iface))
            continue;
        for (const LocalInterface::Entry &entry : iface.entries) {
            if (entry.ip.protocol() != QAbstractSocket::IPv4Protocol || entry.ip.isLoopback())
                continue;
            const quint32 ip = entry.ip.toIPv4Address();
            if ((ip >> 16) == 0xA9FE) // 169.254/16, link-local
                continue;
            const quint32 mask = searchMask(entry.prefixLength);
            const quint32 subnet = ip & mask;
            if (subnets.contains(subnet))
                continue;
            if (subnets.size() >= maxSubnets)
                return out;
            subnets.insert(subnet);
            appendNeighbours(ip, mask, out, seen);
        }
    }
    return out;
}

QList<LocalInterface> localInterfaces()
{
    QList<LocalInterface> result;
    const QList<QNetworkInterface> all = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &ni : all) {
        LocalInterface iface;
        const QNetworkInterface::InterfaceFlags flags = ni.flags();
        iface.up = flags.testFlag(QNetworkInterface::IsUp);
        iface.running = flags.testFlag(QNetworkInterface::IsRunning);
        iface.loopback = flags.testFlag(QNetworkInterface::IsLoopBack);
        iface.isVirtual = ni.type() == QNetworkInterface::Virtual;
        for (const QNetworkAddressEntry &entry : ni.addressEntries())
            iface.entries << LocalInterface::Entry{entry.ip(), entry.prefixLength()};
        result << iface;
    }
    return result;
}

QStringList defaultSearchAddresses()
{
    return searchAddresses(localInterfaces());
}

} // namespace lumitra::search
