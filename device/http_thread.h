#pragma once

#include <QMap>
#include <QObject>
#include <QString>

#include <functional>

class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;
class QWebSocket;

// The WiFi link to the controller board: commands as HTTP GET requests to
// "/command", the job uploaded to the board's SD card ("/upload", multipart)
// and started there, status arriving over the board's WebSocket. Status and
// replies come as text or binary frames; lines are assembled across frames
// before they are classified (WifiMessageParser). GUI thread (it lives where
// it is created; all network work is asynchronous).
//
// Addresses: `host` is the IP field's text (a name or IPv4 address, no
// scheme); HTTP goes to `httpPort`, the WebSocket to `wsPort` (81 on boards).
class HttpThread : public QObject
{
    Q_OBJECT

public:
    explicit HttpThread(QObject *parent = nullptr);
    ~HttpThread() override;

    void setAddress(const QString &host, int httpPort = 80, int wsPort = 81);
    QString host() const;
    int httpPort() const;
    int wsPort() const;

    // Opens the WebSocket and waits for it in a local event loop, at most
    // `timeoutMs`. On success logs "Connected2!", sets the connected flag and
    // sends "$i". Returns the connected flag; nothing is sent on failure.
    bool connectBoard(int timeoutMs = 5000);
    bool isConnected() const;
    // Closes the WebSocket on purpose (no abnormal-disconnect marker).
    void disconnectBoard();

    // A full command URL as built by lumitra::machine::wifiCommandUrl; an empty
    // URL sends nothing. Logged " order" + URL.
    void sendUrl(const QString &url);
    // The command text of a control (plain text: blanks, "+", "&" and the
    // soft-reset byte as they are); percent-encoded as a whole.
    void sendCommand(const QString &commandText);
    // "?" with the status headers.
    void queryStatus();
    // "$$"; the dump arrives over the WebSocket as Jie_Xi_Shu_Ju.
    void readSettings();
    // "/command?plain=<line>" then a fresh "$$"; "参数更改失败" on failure.
    void changeSetting(const QString &settingLine);

    // Uploads `localPath` to the card as `remoteName`, streaming the file
    // (memory stays flat for any size). "001.nc" without a local path takes
    // the generated job file "code.txt". Progress: send_Jin_Du_Zhi. Result:
    // uploadFinished.
    void uploadFile(const QString &localPath, const QString &remoteName);
    void cancelUpload();
    bool uploading() const;
    // "[ESP220]" + path: starts a file on the card; on success emits
    // send_Yun_Xing_Zhi(1.0) and sets the SD-job-running flag.
    void runFile(const QString &remotePath);
    // The soft reset ("%18").
    void stop();
    bool sdJobRunning() const;
    // A command request is in flight or waiting.
    bool commandsPending() const;

signals:
    // Free-text news of the link for a console line.
    void send_Ip_Message(const QString &text);
    // The outcome of connectBoard.
    void send_Lian_Jie_Message(bool connected);
    // Upload progress in bytes.
    void send_Jin_Du_Zhi(qint64 sent, qint64 total);
    // The settings dump, number to value.
    void Jie_Xi_Shu_Ju(const QMap<int, QString> &settings);
    // A normalised status text (state word, " X:", " Y:", ...).
    void shu_chu_zhuang_tai(const QString &status);
    void sendCamerIp(const QString &address);
    // SD job progress, percent (1.0 when a run starts).
    void send_Yun_Xing_Zhi(float percent);
    // The board's own address as it reported it.
    void sendIpAddress(const QString &address);
    // The WebSocket dropped while connected: -1.
    void sendDisconnectMessage(int code);
    // Every complete line the board sent (for the console), after assembly.
    void lineReceived(const QString &line);
    // The upload ended: ok, or the reason it did not.
    void uploadFinished(bool ok, const QString &error);
    // The board's answer to runFile: ok, or the reason it did not start.
    void runStarted(bool ok, const QString &error);

private:
    void handleLine(const QString &line);
    void enqueue(const QNetworkRequest &request, const std::function<void(QNetworkReply *)> &done,
                 bool urgent);
    void sendNext();
    void onUploadDone(QNetworkReply *reply);

    struct Private;
    Private *d;
};
