#include "controller_search.h"

#include "board_probe.h"
#include "board_request.h"

#include <QDebug>
#include <QNetworkAccessManager>

ControllerSearch::ControllerSearch(QObject *parent)
    : QObject(parent), m_manager(new QNetworkAccessManager(this))
{
    lumitra::board::useDirectConnection(*m_manager);
}

ControllerSearch::~ControllerSearch()
{
    stop();
}

void ControllerSearch::setAddresses(const QStringList &addresses)
{
    m_addresses.clear();
    for (const QString &entry : addresses) {
        const QString trimmed = entry.trimmed();
        if (!trimmed.isEmpty() && !m_addresses.contains(trimmed))
            m_addresses << trimmed;
    }
}

void ControllerSearch::start()
{
    stop();
    m_pending = QQueue<QString>();
    for (const QString &entry : qAsConst(m_addresses))
        m_pending.enqueue(entry);
    m_found.clear();
    m_probed = 0;
    m_running = true;
    qDebug() << " search" << m_addresses.size() << "addresses";
    if (m_pending.isEmpty()) {
        m_running = false;
        emit progress(0, 0);
        emit finished();
        return;
    }
    launchMore();
}

void ControllerSearch::stop()
{
    const QList<BoardProbe *> probes = m_probes;
    m_probes.clear();
    for (BoardProbe *probe : probes) {
        probe->disconnect(this);
        probe->cancel();
        probe->deleteLater();
    }
    m_pending.clear();
    m_running = false;
}

void ControllerSearch::launchMore()
{
    while (m_running && m_probes.size() < m_maxParallel && !m_pending.isEmpty()) {
        const QString entry = m_pending.dequeue();
        QString host;
        int port = 0;
        splitAddress(entry, m_port, &host, &port);
        auto *probe = new BoardProbe(m_manager, this);
        m_probes << probe;
        connect(probe, &BoardProbe::finished, this,
                [this, probe, entry](const QString &, int, bool online) {
                    m_probes.removeOne(probe);
                    probe->deleteLater();
                    ++m_probed;
                    if (online)
                        m_found << entry;
                    emit isOnline(entry, online);
                    emit progress(m_probed, m_addresses.size());
                    if (!m_running)
                        return; // stopped from a slot of the reports above
                    if (m_pending.isEmpty() && m_probes.isEmpty()) {
                        m_running = false;
                        qDebug() << " search done," << m_found.size() << "found";
                        emit finished();
                        return;
                    }
                    launchMore();
                });
        probe->probe(host, port, m_timeoutMs);
    }
}

void ControllerSearch::splitAddress(const QString &entry, int defaultPort, QString *host, int *port)
{
    const QString text = entry.trimmed();
    const int colon = text.lastIndexOf(QLatin1Char(':'));
    // A single colon separates a port; more than one is an IPv6 address.
    if (colon > 0 && text.indexOf(QLatin1Char(':')) == colon) {
        bool ok = false;
        const int value = text.mid(colon + 1).toInt(&ok);
        *host = text.left(colon);
        *port = ok && value > 0 && value < 65536 ? value : defaultPort;
        return;
    }
    *host = text;
    *port = defaultPort;
}
