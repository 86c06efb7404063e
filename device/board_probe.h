#pragma once

#include <QObject>
#include <QString>

class QNetworkAccessManager;
class QNetworkReply;

// Is a board answering at host:port? One SD listing request
// (lumitra::sdcard::listUrl); the board is online when a JSON object comes
// back within the time limit. Any other answer (an error page, a web server
// that is not a board), a refused connection or silence means offline.
// GUI thread or any thread with an event loop.
class BoardProbe : public QObject
{
    Q_OBJECT

public:
    // `manager` is shared when given (not owned); otherwise the probe makes its own.
    explicit BoardProbe(QNetworkAccessManager *manager = nullptr, QObject *parent = nullptr);
    ~BoardProbe() override;

    // Starts a probe; one at a time: a probe still running is abandoned
    // without a report.
    void probe(const QString &host, int port, int timeoutMs = 800);
    bool isRunning() const { return m_reply != nullptr; }
    void cancel();

    // The same, waiting in a local event loop; for a worker thread that has no
    // event loop of its own.
    static bool probeAndWait(const QString &host, int port, int timeoutMs = 800);

    // Whether a finished list reply shows a board.
    static bool isBoardAnswer(QNetworkReply *reply);

signals:
    void finished(const QString &host, int port, bool online);

private:
    QNetworkAccessManager *m_manager;
    QNetworkReply *m_reply = nullptr;
};
