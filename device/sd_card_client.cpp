#include "sd_card_client.h"

#include "board_request.h"
#include "http_thread.h"

#include <QDebug>
#include <QNetworkAccessManager>
#include <QNetworkReply>

using namespace lumitra;

SdCardClient::SdCardClient(QObject *parent)
    : QObject(parent), m_manager(new QNetworkAccessManager(this))
{
    qRegisterMetaType<sdcard::SdListing>();
    qRegisterMetaType<SdCardClient::Operation>();
    board::useDirectConnection(*m_manager);
}

SdCardClient::~SdCardClient()
{
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
    }
    if (m_uploader)
        m_uploader->disconnect(this);
}

void SdCardClient::setAddress(const QString &host, int port)
{
    m_host = host.trimmed();
    m_port = port;
    if (m_uploader)
        m_uploader->setAddress(m_host, m_port);
}

bool SdCardClient::begin()
{
    if (m_busy)
        return false;
    setBusy(true);
    return true;
}

void SdCardClient::setBusy(bool busy)
{
    if (m_busy == busy)
        return;
    m_busy = busy;
    emit busyChanged(busy);
}

bool SdCardClient::refresh()
{
    if (!begin())
        return false;
    sendList();
    return true;
}

bool SdCardClient::remove(const QString &name)
{
    if (name.isEmpty() || !begin())
        return false;
    sendGet(Operation::Delete, sdcard::deleteUrl(m_host, m_port, name), name);
    return true;
}

bool SdCardClient::run(const QString &name)
{
    if (name.isEmpty() || !begin())
        return false;
    sendGet(Operation::Run, sdcard::runUrl(m_host, m_port, name), name);
    return true;
}

bool SdCardClient::upload(const QString &localPath, const QString &remoteName)
{
    if (localPath.isEmpty() || remoteName.isEmpty() || !begin())
        return false;
    if (!m_uploader) {
        m_uploader = new HttpThread(this);
        connect(m_uploader, &HttpThread::send_Jin_Du_Zhi, this, &SdCardClient::uploadProgress);
        connect(m_uploader, &HttpThread::uploadFinished, this, &SdCardClient::uploadFinished);
    }
    m_uploader->setAddress(m_host, m_port);
    m_uploadName = remoteName;
    qDebug() << " sd upload" << localPath << "as" << remoteName;
    m_uploader->uploadFile(localPath, remoteName);
    return true;
}

void SdCardClient::sendList()
{
    sendGet(Operation::List, sdcard::listUrl(m_host, m_port), QString());
}

void SdCardClient::sendGet(Operation operation, const QString &url, const QString &name)
{
    qDebug() << " sd" << url;
    QNetworkReply *reply = board::get(*m_manager, url, m_timeoutMs);
    m_reply = reply;
    connect(reply, &QNetworkReply::finished, this,
            [this, reply, operation, name] { replyFinished(reply, operation, name); });
}

void SdCardClient::replyFinished(QNetworkReply *reply, Operation operation, const QString &name)
{
    if (m_reply != reply)
        return;
    m_reply = nullptr;
    reply->deleteLater();
    const QString reason = board::failureReason(reply);
    if (!reason.isEmpty()) {
        fail(operation, reason);
        return;
    }
    switch (operation) {
    case Operation::List: {
        const sdcard::SdListing listing = sdcard::parseListing(reply->readAll());
        if (!listing.ok) {
            fail(operation, listing.error);
            return;
        }
        setBusy(false);
        emit listed(listing);
        return;
    }
    case Operation::Delete:
        emit removed(name);
        sendList();
        return;
    case Operation::Run:
        setBusy(false);
        emit started(name);
        return;
    case Operation::Upload:
        return;
    }
}

void SdCardClient::uploadFinished(bool ok, const QString &error)
{
    if (!m_busy || m_uploadName.isEmpty())
        return;
    const QString name = m_uploadName;
    m_uploadName.clear();
    if (!ok) {
        fail(Operation::Upload, error);
        return;
    }
    emit uploaded(name);
    sendList();
}

void SdCardClient::fail(Operation operation, const QString &reason)
{
    qDebug() << " sd failed" << operation << reason;
    setBusy(false);
    emit failed(operation, reason);
}
