#include "get_pixmap_thread.h"

#include "board_request.h"

#include <QAtomicInt>
#include <QDebug>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QThread>
#include <QTimer>

namespace {

// Lives on the fetch thread: owns the network manager and sends the requests.
class PixmapFetcher : public QObject
{
    Q_OBJECT

public:
    PixmapFetcher(const QString &url, int retryDelayMs, int maxAttempts, int timeoutMs,
                  QAtomicInt *attempts)
        : m_url(url), m_retryDelayMs(retryDelayMs), m_maxAttempts(maxAttempts),
          m_timeoutMs(timeoutMs), m_attempts(attempts)
    {
    }

    void run()
    {
        if (!m_manager) {
            m_manager = new QNetworkAccessManager(this);
            lumitra::board::useDirectConnection(*m_manager);
        }
        m_attempts->fetchAndAddOrdered(1);
        QNetworkReply *reply = lumitra::board::get(*m_manager, m_url, m_timeoutMs);
        connect(reply, &QNetworkReply::finished, this, [this, reply] { onFinished(reply); });
    }

signals:
    void imageReady(const QImage &image);
    void attemptFailed(const QString &error);
    void gaveUp(const QString &lastError);

private:
    void onFinished(QNetworkReply *reply)
    {
        reply->deleteLater();
        QString error = lumitra::board::failureReason(reply);
        QImage image;
        if (error.isEmpty()) {
            image = QImage::fromData(reply->readAll());
            if (image.isNull())
                error = QStringLiteral("the answer is not an image");
        }
        if (error.isEmpty()) {
            emit imageReady(image);
            QThread::currentThread()->quit();
            return;
        }
        qWarning().noquote() << "Failed to load image:" << error;
        emit attemptFailed(error);
        // The next attempt starts on a fresh connection, not on one the
        // board may have left half closed.
        m_manager->clearConnectionCache();
        if (m_maxAttempts > 0 && m_attempts->loadAcquire() >= m_maxAttempts) {
            emit gaveUp(error);
            QThread::currentThread()->quit();
            return;
        }
        QTimer::singleShot(m_retryDelayMs, this, &PixmapFetcher::run);
    }

    QString m_url;
    int m_retryDelayMs;
    int m_maxAttempts;
    int m_timeoutMs;
    QAtomicInt *m_attempts;
    QNetworkAccessManager *m_manager = nullptr;
};

} // namespace

struct GetPixmapThread::Private
{
    QString hostPort;
    int retryDelayMs = 500;
    int maxAttempts = 0;
    int timeoutMs = 10000;
    QAtomicInt attempts = 0;
    QThread *thread = nullptr;
    // Counts start() calls: news queued by an earlier, cancelled fetch is
    // recognised and dropped.
    int generation = 0;

    void join()
    {
        thread->wait();
        delete thread;
        thread = nullptr;
    }
};

GetPixmapThread::GetPixmapThread(const QString &hostPort, QObject *parent)
    : QObject(parent), d(new Private)
{
    d->hostPort = hostPort;
}

GetPixmapThread::~GetPixmapThread()
{
    cancel();
    delete d;
}

QString GetPixmapThread::hostPort() const
{
    return d->hostPort;
}

int GetPixmapThread::retryDelayMs() const
{
    return d->retryDelayMs;
}

void GetPixmapThread::setRetryDelayMs(int ms)
{
    d->retryDelayMs = qMax(0, ms);
}

int GetPixmapThread::maxAttempts() const
{
    return d->maxAttempts;
}

void GetPixmapThread::setMaxAttempts(int attempts)
{
    d->maxAttempts = qMax(0, attempts);
}

int GetPixmapThread::attemptTimeoutMs() const
{
    return d->timeoutMs;
}

void GetPixmapThread::setAttemptTimeoutMs(int ms)
{
    d->timeoutMs = qMax(1, ms);
}

bool GetPixmapThread::isRunning() const
{
    return d->thread != nullptr;
}

int GetPixmapThread::attempts() const
{
    return d->attempts.loadAcquire();
}

void GetPixmapThread::start()
{
    if (d->thread)
        return;
    const int generation = ++d->generation;
    d->attempts.storeRelease(0);
    const QString url = QStringLiteral("http://") + d->hostPort + QStringLiteral("/cam.jpg");
    qDebug() << "camera fetch" << url;

    auto *thread = new QThread;
    thread->setObjectName(QStringLiteral("GetPixmapThread"));
    auto *fetcher =
        new PixmapFetcher(url, d->retryDelayMs, d->maxAttempts, d->timeoutMs, &d->attempts);
    fetcher->moveToThread(thread);
    connect(thread, &QThread::started, fetcher, &PixmapFetcher::run);
    // Deleted on its own thread as the thread ends, with its manager and replies.
    connect(thread, &QThread::finished, fetcher, &QObject::deleteLater);

    // Queued: these run on the creator's thread, where cancel() may already
    // have dropped the thread.
    auto current = [this, generation] { return d->thread && d->generation == generation; };
    connect(
        fetcher, &PixmapFetcher::attemptFailed, this,
        [this, current](const QString &error) {
            if (current())
                emit attemptFailed(error);
        },
        Qt::QueuedConnection);
    connect(
        fetcher, &PixmapFetcher::imageReady, this,
        [this, current](const QImage &image) {
            if (!current())
                return;
            d->join();
            emit imageReady(image);
            emit finished();
        },
        Qt::QueuedConnection);
    connect(
        fetcher, &PixmapFetcher::gaveUp, this,
        [this, current](const QString &error) {
            if (!current())
                return;
            d->join();
            emit gaveUp(error);
            emit finished();
        },
        Qt::QueuedConnection);

    d->thread = thread;
    thread->start();
}

void GetPixmapThread::cancel()
{
    if (!d->thread)
        return;
    d->thread->quit();
    d->join();
}

#include "get_pixmap_thread.moc"
