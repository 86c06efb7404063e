#include "file_download.h"

#include "cloud_address.h"
#include "cloud_request.h"

#include <QDebug>
#include <QDir>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTimer>

namespace lumitra {

QString default_download_folder()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    if (folder.isEmpty())
        folder = QDir::homePath();
    return folder;
}

QString download_file_name(const QUrl &url)
{
    QString name = url.fileName();
    static const QString unsafe = QStringLiteral("\\/:*?\"<>|");
    QString clean;
    for (const QChar c : name)
        if (c.unicode() >= 0x20 && !unsafe.contains(c))
            clean += c;
    while (clean.startsWith(QLatin1Char('.')))
        clean.remove(0, 1);
    return clean.isEmpty() ? QStringLiteral("download.bin") : clean;
}

FileDownload::FileDownload(QNetworkAccessManager *manager, QObject *parent)
    : QObject(parent), m_manager(manager)
{
}

FileDownload::~FileDownload()
{
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
    }
    if (m_file)
        m_file->cancelWriting();
    delete m_file;
}

void FileDownload::start(const QUrl &url, const QString &folder, const QByteArray &lang)
{
    if (running())
        return;
    m_writeFailed = false;
    m_cancelled = false;
    QString why;
    if (!is_allowed_cloud_url(url, &why)) {
        QTimer::singleShot(0, this,
                           [this, why]() { fail(QStringLiteral("Download failed: ") + why); });
        return;
    }
    QDir().mkpath(folder);
    m_path = QDir(folder).filePath(download_file_name(url));
    delete m_file;
    m_file = new QSaveFile(m_path);
    if (!m_file->open(QIODevice::WriteOnly)) {
        QTimer::singleShot(0, this, [this]() { fail(QStringLiteral("Failed to save file.")); });
        return;
    }
    QNetworkRequest request = cloud_request(url, lang, QByteArray(), CloudCallKind::Download);
    m_reply = m_manager->get(request);
    qDebug() << " out " << url.path();
    connect(m_reply, &QNetworkReply::readyRead, this, &FileDownload::onReadyRead);
    connect(m_reply, &QNetworkReply::downloadProgress, this, &FileDownload::progress);
    connect(m_reply, &QNetworkReply::finished, this, &FileDownload::onFinished);
}

void FileDownload::cancel()
{
    if (!m_reply)
        return;
    m_cancelled = true;
    m_reply->abort();
}

void FileDownload::onReadyRead()
{
    if (!m_reply || !m_file || m_writeFailed)
        return;
    const QByteArray chunk = m_reply->readAll();
    if (m_file->write(chunk) != chunk.size()) {
        m_writeFailed = true;
        m_reply->abort();
    }
}

void FileDownload::fail(const QString &message)
{
    if (m_file) {
        m_file->cancelWriting();
        delete m_file;
        m_file = nullptr;
    }
    qWarning().noquote() << message;
    emit finished(false, message, QString());
}

void FileDownload::onFinished()
{
    QNetworkReply *reply = m_reply;
    m_reply = nullptr;
    reply->deleteLater();
    if (m_writeFailed)
        return fail(QStringLiteral("Failed to save file."));
    onReadyRead();
    if (m_cancelled)
        return fail(QStringLiteral("Download failed: ") + QStringLiteral("cancelled"));
    if (reply->error() != QNetworkReply::NoError)
        return fail(QStringLiteral("Download failed: ") + reply->errorString());
    const int http = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (http < 200 || http >= 300)
        return fail(QStringLiteral("Download failed: HTTP %1").arg(http));
    const QVariant length = reply->header(QNetworkRequest::ContentLengthHeader);
    if (length.isValid() && m_file->size() != length.toLongLong())
        return fail(QStringLiteral("Download failed: ")
                    + QStringLiteral("%1 of %2 bytes received")
                          .arg(m_file->size())
                          .arg(length.toLongLong()));
    if (m_writeFailed || !m_file->commit()) {
        delete m_file;
        m_file = nullptr;
        qWarning() << "Failed to save file.";
        emit finished(false, QStringLiteral("Failed to save file."), QString());
        return;
    }
    delete m_file;
    m_file = nullptr;
    qDebug() << "File downloaded successfully!";
    emit finished(true, QStringLiteral("File downloaded successfully!"), m_path);
}

} // namespace lumitra
