#pragma once

#include <QImage>
#include <QObject>
#include <QString>

// Fetches one photo "http://" + hostPort + "/cam.jpg" from the board on a
// thread of its own (own QNetworkAccessManager without proxy, own event
// loop). Network errors are logged "Failed to load image:" + error and the
// request is repeated after retryDelayMs(), without limit, until one succeeds
// or cancel() is called. Signals reach the creator's thread queued.
//
// `hostPort` is "host" or "host:port" ("192.168.0.1", "127.0.0.1:8080").
class GetPixmapThread : public QObject
{
    Q_OBJECT

public:
    explicit GetPixmapThread(const QString &hostPort, QObject *parent = nullptr);
    // Cancels and joins the thread.
    ~GetPixmapThread() override;

    QString hostPort() const;
    int retryDelayMs() const;
    // Pause between failed attempts (500 ms by default). Set before start().
    void setRetryDelayMs(int ms);
    // Attempts before giving up with gaveUp(); 0 (the default) never gives up.
    int maxAttempts() const;
    void setMaxAttempts(int attempts);
    // An attempt without a complete answer after this long fails (10000 ms).
    int attemptTimeoutMs() const;
    void setAttemptTimeoutMs(int ms);

    // Starts the fetch; does nothing while one is running.
    void start();
    // Stops the fetch and joins its thread; no signal follows. Safe to call
    // twice and when nothing runs.
    void cancel();
    bool isRunning() const;
    // Requests sent so far (failed ones and the successful one).
    int attempts() const;

signals:
    // The decoded photo, once per start(); finished() follows.
    void imageReady(const QImage &image);
    // One attempt failed (network error, HTTP error or undecodable body).
    void attemptFailed(const QString &error);
    // maxAttempts() attempts failed; the thread has ended. finished() follows.
    void gaveUp(const QString &lastError);
    void finished();

private:
    struct Private;
    Private *d;
};
