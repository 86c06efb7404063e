#pragma once

#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

class QNetworkAccessManager;
class QSaveFile;

namespace lumitra {

// The user's download folder (the home folder when the platform has none).
QString default_download_folder();

// The file name a download is saved under: the last part of the address's
// path, without characters that are unsafe in a file name; "download.bin"
// when nothing is left.
QString download_file_name(const QUrl &url);

// Downloads one file into a folder through QSaveFile, so that the file appears
// only when every byte arrived and was written: a dropped connection, an HTTP
// error, a cancel or a failed write leave no file behind. The address obeys the
// same rule as the API (https, or plain http to this machine only). Messages:
// "File downloaded successfully!", "Download failed: <reason>", "Failed to
// save file.". GUI thread; one download per object at a time.
class FileDownload : public QObject
{
    Q_OBJECT

public:
    explicit FileDownload(QNetworkAccessManager *manager, QObject *parent = nullptr);
    ~FileDownload() override;

    // Starts the download; finished() follows exactly once (also on refusal).
    void start(const QUrl &url, const QString &folder, const QByteArray &lang);
    void cancel();
    bool running() const { return m_reply != nullptr; }
    QString filePath() const { return m_path; }

signals:
    void progress(qint64 received, qint64 total);
    void finished(bool ok, const QString &message, const QString &path);

private:
    void onReadyRead();
    void onFinished();
    void fail(const QString &message);

    QNetworkAccessManager *m_manager;
    QPointer<QNetworkReply> m_reply;
    QSaveFile *m_file = nullptr;
    QString m_path;
    bool m_writeFailed = false;
    bool m_cancelled = false;
};

} // namespace lumitra
