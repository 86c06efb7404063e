#pragma once

#include <QHostAddress>
#include <QList>
#include <QString>
#include <QStringList>

// Where the controller search looks for boards: the board's own access point,
// its multicast-DNS name, then the neighbours of every IPv4 address this
// computer holds. Built from a given interface list so that it is a pure
// function; `localInterfaces` reads the real one (no network traffic).
namespace lumitra::search {

// The board's address in access-point mode.
QString accessPointAddress(); // "192.168.0.1"
// The name the board announces over multicast DNS.
QString boardHostName(); // "lumitra.local"

struct LocalInterface
{
    bool up = false;
    bool running = false;
    bool loopback = false;
    bool isVirtual = false;
    struct Entry
    {
        QHostAddress ip;
        int prefixLength = 24;
    };
    QList<Entry> entries;
};

// At most this many subnets are searched (each up to 254 addresses).
constexpr int kMaxSubnets = 4;

// The access point, the host name, then for each IPv4 address of an
// interface that is up, running, not loopback and not virtual: the other host
// addresses of its /24 (or of its own smaller subnet when the prefix is longer
// than 24), lowest first. Link-local (169.254/16) addresses are skipped; no
// address appears twice; at most `maxSubnets` subnets.
QStringList searchAddresses(const QList<LocalInterface> &interfaces, int maxSubnets = kMaxSubnets);

// The computer's interfaces as QNetworkInterface reports them.
QList<LocalInterface> localInterfaces();

// searchAddresses(localInterfaces()).
QStringList defaultSearchAddresses();

} // namespace lumitra::search
