#pragma once

#include "cloud_reply.h"

#include <QObject>
#include <QString>
#include <QUrl>

namespace lumitra {

class FileDownload;
class Hou_tai_jie_kou;

// What "/app/check" said.
struct UpdateInfo
{
    enum State { Failed, UpToDate, Available };
    State state = Failed;
    QString notes;   // "up_content"
    QUrl fileUrl;    // "file_url"
    QString message; // why the check failed (network, refusal, server error)
};

// An update is on offer when the envelope says "success" and names a file.
// Any other envelope means there is none; no envelope, or an HTTP error
// status, is a failed check.
UpdateInfo parse_update_reply(const CloudResult &reply);

// The update check and the installer download. The window starts check()
// after it shows; a failed check is only logged.
class UpdatePack : public QObject
{
    Q_OBJECT

public:
    explicit UpdatePack(Hou_tai_jie_kou *api, QObject *parent = nullptr);

    void check();
    UpdateInfo lastCheck() const { return m_info; }

    // Downloads the offered file into `folder` (default_download_folder()).
    void download(const QString &folder = QString());
    void cancelDownload();
    bool downloading() const;

signals:
    void checked(const lumitra::UpdateInfo &info);
    void downloadProgress(qint64 received, qint64 total);
    // message: "File downloaded successfully!", "Download failed: ..." or
    // "Failed to save file."; path is the saved file on success.
    void downloadFinished(bool ok, const QString &message, const QString &path);

private:
    Hou_tai_jie_kou *m_api;
    FileDownload *m_download;
    UpdateInfo m_info;
};

} // namespace lumitra

Q_DECLARE_METATYPE(lumitra::UpdateInfo)
