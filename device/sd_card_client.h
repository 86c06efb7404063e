#pragma once

#include "sd_card.h"

#include <QObject>
#include <QString>

class HttpThread;
class QNetworkAccessManager;
class QNetworkReply;

// The board's SD card over HTTP: list, delete, start and upload files. One
// request at a time; a call while busy is refused (returns false, nothing
// sent). After a successful delete or upload the listing is fetched again, so
// `listed` follows `removed`/`uploaded` and the client stays busy until then.
// Uploads go through HttpThread's upload (multipart, streamed from the file).
// GUI thread.
class SdCardClient : public QObject
{
    Q_OBJECT

public:
    enum class Operation { List, Delete, Run, Upload };
    Q_ENUM(Operation)

    explicit SdCardClient(QObject *parent = nullptr);
    ~SdCardClient() override;

    void setAddress(const QString &host, int port = 80);
    QString host() const { return m_host; }
    int port() const { return m_port; }
    // Time limit of a list, delete or run request (uploads have none).
    void setTimeout(int ms) { m_timeoutMs = ms; }

    bool isBusy() const { return m_busy; }

    bool refresh();
    // `name` as listed, without a leading "/".
    bool remove(const QString &name);
    bool run(const QString &name);
    // Sends `localPath` to the card as `remoteName`.
    bool upload(const QString &localPath, const QString &remoteName);

signals:
    void listed(const lumitra::sdcard::SdListing &listing);
    void removed(const QString &name);
    // The board accepted the start of `name`.
    void started(const QString &name);
    void uploaded(const QString &name);
    void uploadProgress(qint64 sent, qint64 total);
    // A request did not succeed; `reason` says why (network error text, time
    // limit, or an answer that is not a listing). The client is idle again.
    void failed(SdCardClient::Operation operation, const QString &reason);
    void busyChanged(bool busy);

private:
    bool begin();
    void setBusy(bool busy);
    void sendList();
    void sendGet(Operation operation, const QString &url, const QString &name);
    void replyFinished(QNetworkReply *reply, Operation operation, const QString &name);
    void uploadFinished(bool ok, const QString &error);
    void fail(Operation operation, const QString &reason);

    QNetworkAccessManager *m_manager;
    HttpThread *m_uploader = nullptr;
    QNetworkReply *m_reply = nullptr;
    QString m_host;
    int m_port = 80;
    int m_timeoutMs = 5000;
    QString m_uploadName;
    bool m_busy = false;
};
