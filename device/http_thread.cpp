#include "http_thread.h"

#include "machine_commands.h"
#include "program_state.h"
#include "settings_store.h"
#include "wifi_frame_lines.h"
#include "wifi_message.h"

#include <QDebug>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QHttpMultiPart>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QQueue>
#include <QRegularExpression>
#include <QTimer>
#include <QWebSocket>
#include <functional>

namespace {

// A command that hangs on the board does not hold up the ones behind it for
// longer than this.
constexpr int kCommandTimeoutMs = 10000;
constexpr int kProgressIntervalMs = 1000;

struct PendingRequest
{
    QNetworkRequest request;
    std::function<void(QNetworkReply *)> done;
};

} // namespace

struct HttpThread::Private
{
    QNetworkAccessManager *nam = nullptr;
    QWebSocket *ws = nullptr;
    QString host;
    int httpPort = 80;
    int wsPort = 81;
    bool connected = false;
    bool closing = false; // our own close or abort: not an abnormal drop

    WifiFrameLines frames;
    WifiMessageParser parser;

    // Commands go one at a time, in the order they were given: boards run
    // them as they arrive and parallel connections would reorder them.
    QQueue<PendingRequest> queue;
    QNetworkReply *inFlight = nullptr;

    QNetworkReply *upload = nullptr;
    QTimer *progressTimer = nullptr;
    qint64 fileSize = 0;
    qint64 requestSent = 0;
    qint64 requestTotal = 0;
    int lastPercent = -1;
    bool uploadCancelled = false;

    QString address() const
    {
        return httpPort == 80 ? host : host + QLatin1Char(':') + QString::number(httpPort);
    }
    qint64 fileBytesSent() const
    {
        if (requestTotal <= 0)
            return 0;
        return qMin(fileSize, fileSize * requestSent / requestTotal);
    }
};

HttpThread::HttpThread(QObject *parent) : QObject(parent), d(new Private)
{
    qRegisterMetaType<QMap<int, QString>>("QMap<int,QString>");
    d->nam = new QNetworkAccessManager(this);
    d->ws = new QWebSocket(QString(), QWebSocketProtocol::VersionLatest, this);
    d->progressTimer = new QTimer(this);
    d->progressTimer->setInterval(kProgressIntervalMs);
    connect(d->progressTimer, &QTimer::timeout, this,
            [this] { emit send_Jin_Du_Zhi(d->fileBytesSent(), d->fileSize); });

    auto onFrame = [this](const QByteArray &frame) {
        const QStringList lines = d->frames.feed(frame);
        for (const QString &line : lines)
            handleLine(line);
    };
    connect(d->ws, &QWebSocket::binaryMessageReceived, this, onFrame);
    connect(d->ws, &QWebSocket::textMessageReceived, this,
            [onFrame](const QString &text) { onFrame(text.toUtf8()); });
    connect(d->ws, &QWebSocket::disconnected, this, [this] {
        if (d->closing || !d->connected) {
            d->connected = false;
            return;
        }
        d->connected = false;
        qDebug() << "disconnected!";
        emit send_Ip_Message(QStringLiteral("disconnected!"));
        emit sendDisconnectMessage(-1);
        lumitra::set_setting(QStringLiteral("yichangduankai"), QStringLiteral("-1"));
    });
}

HttpThread::~HttpThread()
{
    d->closing = true;
    if (d->upload) {
        d->upload->disconnect(this);
        d->upload->abort();
    }
    if (d->inFlight)
        d->inFlight->disconnect(this);
    d->ws->disconnect(this);
    d->ws->abort();
    delete d;
}

void HttpThread::setAddress(const QString &host, int httpPort, int wsPort)
{
    d->host = host.trimmed();
    d->httpPort = httpPort;
    d->wsPort = wsPort;
}

QString HttpThread::host() const
{
    return d->host;
}

int HttpThread::httpPort() const
{
    return d->httpPort;
}

int HttpThread::wsPort() const
{
    return d->wsPort;
}

// ---- WebSocket -----------------------------------------------------------------

bool HttpThread::connectBoard(int timeoutMs)
{
    d->connected = false;
    if (d->ws->state() != QAbstractSocket::UnconnectedState) {
        d->closing = true;
        d->ws->abort();
        d->closing = false;
    }
    d->frames.clear();

    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    connect(d->ws, &QWebSocket::connected, &loop, &QEventLoop::quit);
    connect(d->ws, &QWebSocket::disconnected, &loop, &QEventLoop::quit);
    connect(d->ws, QOverload<QAbstractSocket::SocketError>::of(&QWebSocket::error), &loop,
            &QEventLoop::quit);
    const QUrl url(QStringLiteral("ws://%1:%2").arg(d->host).arg(d->wsPort));
    qDebug() << "connecting" << url.toString();
    d->ws->open(url);
    timer.start(timeoutMs);
    loop.exec();

    if (d->ws->state() == QAbstractSocket::ConnectedState) {
        d->connected = true;
        qDebug() << "Connected2!";
        emit send_Ip_Message(QStringLiteral("Connected2!"));
        sendCommand(QStringLiteral("$i"));
    } else {
        qDebug() << "Error: no WebSocket from" << url.toString() << d->ws->errorString();
        d->closing = true;
        d->ws->abort();
        d->closing = false;
    }
    emit send_Lian_Jie_Message(d->connected);
    return d->connected;
}

bool HttpThread::isConnected() const
{
    return d->connected;
}

void HttpThread::disconnectBoard()
{
    d->closing = true;
    d->connected = false;
    d->ws->close();
    d->ws->abort();
    d->closing = false;
    d->frames.clear();
}

void HttpThread::handleLine(const QString &line)
{
    emit lineReceived(line);
    if (line.contains(QLatin1String("IP="))) {
        static const QRegularExpression ipField(QStringLiteral("IP=([^:\\]]+)"));
        const QRegularExpressionMatch m = ipField.match(line);
        if (m.hasMatch())
            emit sendIpAddress(m.captured(1));
    }
    // The parser expects each message with its line end: a settings dump is
    // collected text, split on whitespace.
    const WifiMessageResult r = d->parser.feed(line + QLatin1Char('\n'));
    if (r.namesMakerModel)
        lumitra::programState().modelFlag = true;
    if (r.hasProgress)
        emit send_Yun_Xing_Zhi(r.progress);
    if (r.hasStatus)
        emit shu_chu_zhuang_tai(r.status);
    if (r.hasCamera)
        emit sendCamerIp(r.camera);
    if (r.hasSettings)
        emit Jie_Xi_Shu_Ju(r.settings);
}

// ---- Commands ------------------------------------------------------------------

bool HttpThread::commandsPending() const
{
    return d->inFlight || !d->queue.isEmpty();
}

void HttpThread::enqueue(const QNetworkRequest &request,
                         const std::function<void(QNetworkReply *)> &done, bool urgent)
{
    PendingRequest p{request, done};
    p.request.setTransferTimeout(kCommandTimeoutMs);
    if (urgent)
        d->queue.prepend(p);
    else
        d->queue.enqueue(p);
    sendNext();
}

void HttpThread::sendNext()
{
    if (d->inFlight || d->queue.isEmpty())
        return;
    const PendingRequest p = d->queue.dequeue();
    QNetworkReply *reply = d->nam->get(p.request);
    d->inFlight = reply;
    connect(reply, &QNetworkReply::finished, this, [this, reply, done = p.done] {
        if (reply->error() != QNetworkReply::NoError)
            qDebug() << "Error:" << reply->errorString();
        if (done)
            done(reply);
        else
            reply->readAll();
        reply->deleteLater();
        d->inFlight = nullptr;
        sendNext();
    });
}

void HttpThread::sendUrl(const QString &url)
{
    if (url.isEmpty())
        return;
    qDebug() << " order" << url;
    enqueue(QNetworkRequest(QUrl(url)), nullptr, false);
}

void HttpThread::sendCommand(const QString &commandText)
{
    sendUrl(lumitra::machine::wifiCommandUrl(d->address(), commandText));
}

void HttpThread::queryStatus()
{
    QNetworkRequest request(
        QUrl(lumitra::machine::wifiCommandUrl(d->address(), QStringLiteral("?"))));
    request.setRawHeader("Content-Type", "application/x-www-form-urlencoded");
    request.setRawHeader("Accept-Encoding", "gzip, deflate");
    request.setRawHeader("Accept-Language", "zh-CN,zh;q=0.9");
    request.setRawHeader("Connection", "keep-alive");
    enqueue(request, nullptr, false);
}

void HttpThread::readSettings()
{
    sendCommand(QStringLiteral("$$"));
}

void HttpThread::changeSetting(const QString &settingLine)
{
    const QString url = QStringLiteral("http://") + d->address() + QStringLiteral("/command?plain=")
                        + QString::fromLatin1(QUrl::toPercentEncoding(settingLine))
                        + QStringLiteral("&PAGEID=0");
    qDebug() << " order" << url;
    enqueue(
        QNetworkRequest(QUrl(url)),
        [this](QNetworkReply *reply) {
            reply->readAll();
            if (reply->error() != QNetworkReply::NoError) {
                emit send_Ip_Message(tr("参数更改失败"));
                return;
            }
            readSettings();
        },
        false);
}

void HttpThread::runFile(const QString &remotePath)
{
    const QString url =
        lumitra::machine::wifiCommandUrl(d->address(), QStringLiteral("[ESP220]") + remotePath);
    qDebug() << "filename " << remotePath;
    enqueue(
        QNetworkRequest(QUrl(url)),
        [this](QNetworkReply *reply) {
            const QByteArray text = reply->readAll();
            if (reply->error() != QNetworkReply::NoError) {
                emit runStarted(false, reply->errorString());
                return;
            }
            emit send_Yun_Xing_Zhi(1.0f);
            d->parser.setSdJobRunning(true);
            qDebug() << " yunxing" << text;
            emit runStarted(true, QString());
        },
        false);
}

void HttpThread::stop()
{
    // Ahead of anything still waiting: a stop must not queue behind jogs.
    const QString url =
        lumitra::machine::wifiCommandUrl(d->address(), lumitra::machine::wifiSoftResetCommand());
    qDebug() << " order" << url;
    enqueue(QNetworkRequest(QUrl(url)), nullptr, true);
}

bool HttpThread::sdJobRunning() const
{
    return d->parser.sdJobRunning();
}

// ---- Upload --------------------------------------------------------------------

void HttpThread::uploadFile(const QString &localPath, const QString &remoteName)
{
    if (d->upload) {
        emit uploadFinished(false, tr("上一个文件仍在上传"));
        return;
    }
    QString source = localPath;
    if (source.isEmpty() && remoteName == QLatin1String("001.nc"))
        source = QDir(lumitra::config_dir()).filePath(QStringLiteral("code.txt"));

    auto *multi = new QHttpMultiPart(QHttpMultiPart::FormDataType);
    auto *file = new QFile(source, multi);
    if (source.isEmpty() || !file->open(QIODevice::ReadOnly)) {
        qDebug() << "Error: cannot read" << source;
        delete multi;
        emit uploadFinished(false, tr("无法读取文件: %1").arg(source));
        return;
    }
    QHttpPart path;
    path.setHeader(QNetworkRequest::ContentDispositionHeader,
                   QStringLiteral("form-data; name=\"path\""));
    path.setBody("/");
    QHttpPart body;
    body.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/octet-stream"));
    body.setHeader(QNetworkRequest::ContentDispositionHeader,
                   QStringLiteral("form-data; name=\"myfile[]\"; filename=\"%1\"").arg(remoteName));
    body.setBodyDevice(file); // read as it is sent: memory stays flat for any size
    multi->append(path);
    multi->append(body);

    const QUrl url(QStringLiteral("http://") + d->address() + QStringLiteral("/upload"));
    qDebug() << "upload" << source << "to" << url.toString() << "as" << remoteName;
    d->fileSize = file->size();
    d->requestSent = 0;
    d->requestTotal = 0;
    d->lastPercent = -1;
    d->uploadCancelled = false;
    QNetworkReply *reply = d->nam->post(QNetworkRequest(url), multi);
    multi->setParent(reply);
    d->upload = reply;
    connect(reply, &QNetworkReply::uploadProgress, this, [this](qint64 sent, qint64 total) {
        if (total <= 0 || sent < d->requestSent)
            return; // the closing (0, 0) report, not a step back
        d->requestSent = sent;
        d->requestTotal = total;
        const int percent = total > 0 ? int(100 * sent / total) : 0;
        if (percent != d->lastPercent) {
            d->lastPercent = percent;
            emit send_Jin_Du_Zhi(d->fileBytesSent(), d->fileSize);
        }
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply] { onUploadDone(reply); });
    d->progressTimer->start();
    emit send_Jin_Du_Zhi(0, d->fileSize);
}

void HttpThread::onUploadDone(QNetworkReply *reply)
{
    d->progressTimer->stop();
    d->upload = nullptr;
    reply->deleteLater();
    if (d->uploadCancelled) {
        qDebug() << "upload cancelled";
        emit uploadFinished(false, tr("上传已取消"));
        return;
    }
    if (reply->error() != QNetworkReply::NoError) {
        qDebug() << "Error:" << reply->errorString();
        emit uploadFinished(false, tr("上传失败: %1").arg(reply->errorString()));
        return;
    }
    qDebug() << "File uploaded successfully!";
    emit send_Ip_Message(QStringLiteral("File uploaded successfully!"));
    emit send_Jin_Du_Zhi(d->fileSize, d->fileSize);
    emit uploadFinished(true, QString());
}

void HttpThread::cancelUpload()
{
    if (!d->upload)
        return;
    d->uploadCancelled = true;
    d->upload->abort();
}

bool HttpThread::uploading() const
{
    return d->upload != nullptr;
}
