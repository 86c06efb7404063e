#pragma once

#include <QObject>
#include <QQueue>
#include <QString>
#include <QStringList>

class BoardProbe;
class QNetworkAccessManager;

// Looks for controller boards: probes every address of a list (BoardProbe, the
// SD listing request) with a short time limit each, a bounded number at once,
// and reports each address as it is answered. The list is given by the caller
// (lumitra::search::defaultSearchAddresses for the real search). An entry is
// a host ("192.168.0.7", "lumitra.local") or host:port; a bare host uses the
// search's port. GUI thread.
class ControllerSearch : public QObject
{
    Q_OBJECT

public:
    explicit ControllerSearch(QObject *parent = nullptr);
    ~ControllerSearch() override;

    void setAddresses(const QStringList &addresses);
    QStringList addresses() const { return m_addresses; }
    void setPort(int port) { m_port = port; }
    int port() const { return m_port; }
    void setTimeout(int ms) { m_timeoutMs = ms; }
    int timeout() const { return m_timeoutMs; }
    void setMaxParallel(int count) { m_maxParallel = qMax(1, count); }
    int maxParallel() const { return m_maxParallel; }

    // Starts over with the current list (a running search is stopped first).
    void start();
    // Abandons the probes in flight; no further reports, no `finished`.
    void stop();
    bool isRunning() const { return m_running; }

    int probedCount() const { return m_probed; }
    // The entries found online so far, in the order they answered.
    QStringList found() const { return m_found; }

    // host and port of an entry ("host" or "host:port"); the port is
    // `defaultPort` when the entry has none or an invalid one.
    static void splitAddress(const QString &entry, int defaultPort, QString *host, int *port);

signals:
    // One report per entry of the list, as written in the list.
    void isOnline(const QString &address, bool online);
    void progress(int probed, int total);
    // Every entry has been reported.
    void finished();

private:
    void launchMore();

    QNetworkAccessManager *m_manager;
    QStringList m_addresses;
    QQueue<QString> m_pending;
    QList<BoardProbe *> m_probes;
    QStringList m_found;
    int m_port = 80;
    int m_timeoutMs = 800;
    int m_maxParallel = 16;
    int m_probed = 0;
    bool m_running = false;
};
