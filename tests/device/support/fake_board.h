#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <memory>

#include "card_job_runner.h"

class QTcpServer;
class QTcpSocket;
class QWebSocket;
class QWebSocketServer;
class QTemporaryDir;
class QTimer;

// A WiFi controller board on 127.0.0.1 for tests and benches: an HTTP server
// (QTcpServer, keep-alive, Content-Length bodies) and a WebSocket server for
// the status stream, both on port 0 (read the ports after start()).
//
// HTTP routes:
//   GET  /command?commandText=X&PAGEID=0   X decoded ("+" is a blank, then %XX),
//                                          recorded, answered over the WebSocket
//   GET  /command?plain=LINE&PAGEID=0      a setting line "$N=V", recorded
//   POST /upload                           multipart/form-data; files kept on disk
//   GET  /upload?path=/&PAGEID=0           JSON list of the card: {"files":[{"name":"a.nc",
//                                          "size":"1.21 KB"}],"path":"/","total":"4096.00 MB",
//                                          "used":..,"occupation":"0","status":"Ok"} (sizes are
//                                          text with a unit, "123 B", "1.21 KB", "3.50 MB")
//   GET  /upload?path=/&action=delete&filename=NAME&PAGEID=0
//   GET  /SD/NAME                          the file's bytes
//   GET  /cam.jpg                          the camera still set by setCameraImage (404
//                                          while none); the first N requests can fail
// Replies to commands go out as GRBL lines ("\r\n"-ended) in binary frames
// (text frames on request), `linesPerFrame` lines packed into one frame, each
// frame optionally split in two at its middle. A new WebSocket client first gets
// the board's own text chatter "CURRENT_ID:0", "ACTIVE_ID:0", "PING:1".
// "[ESP220]/NAME" starts a pretend job on a card file: Run reports every
// `reportIntervalMs` for `jobMs`, then Idle (or an alarm when asked); with
// `executeJobs` the file really runs. A command "$N=V" changes a setting.
// Lives on the thread that creates it (the test's GUI thread).
class FakeBoard : public QObject
{
    Q_OBJECT

public:
    struct Options
    {
        int linesPerFrame = 1;
        bool splitFrames = false; // every frame goes out as two halves
        bool textFrames = false;  // GRBL lines in text frames instead of binary
        bool chatter = true;      // the board's text chatter on connect
        int jobMs = 300;
        int reportIntervalMs = 50;
        int alarmAfterMs = -1; // >= 0: the pretend job raises ALARM:1 after this
        // Run the card file for real (CardJobRunner) instead of pretending:
        // each planner block takes msPerBlock, the reports carry the share of
        // the file read ("SD:"), the head's position and, with $10 bit 1,
        // "Bf:"; the job ends when the file has run (jobMs is not used).
        bool executeJobs = false;
        int msPerBlock = 5;
        int alarmAtBlock = -1; // >= 0: ALARM:1 once this many blocks have run
        QString model;         // named in the "$I" answer when set
    };

    // One part of a multipart upload, in arrival order.
    struct UploadPart
    {
        QByteArray headers; // the part's raw header block
        QString name;       // from Content-Disposition
        QString filename;   // empty for a plain field
        QString contentType;
        qint64 size = 0;
        QByteArray body; // only for plain fields (file bodies stay on disk)
    };

    explicit FakeBoard(const Options &options, QObject *parent = nullptr);
    explicit FakeBoard(QObject *parent = nullptr);
    ~FakeBoard() override;

    bool start();
    quint16 httpPort() const;
    quint16 wsPort() const;
    QString address() const; // "127.0.0.1:<httpPort>"

    // Failure switches.
    void refuse();                 // both servers stop listening
    void setStalled(bool stalled); // accept, never answer (HTTP, WS handshake, status stream)
    void dropWebSockets();         // abort every WebSocket (no close frame)
    void failRoute(const QString &path, int status); // e.g. ("/upload", 500); 0 clears

    // The camera: the bytes "/cam.jpg" answers with (image/jpeg).
    enum class CameraFailure { Status500, DropConnection };
    void setCameraImage(const QByteArray &bytes);
    // The next `count` camera requests fail: HTTP 500, or the connection is
    // closed without an answer.
    void failCameraRequests(int count, CameraFailure how = CameraFailure::Status500);
    int cameraRequests() const { return m_cameraRequests; }

    // Every decoded commandText in order, every plain line in order.
    QStringList commands() const { return m_commands; }
    QStringList plainLines() const { return m_plainLines; }
    // Request paths with their raw query, as they arrived ("/command?...").
    QStringList rawTargets() const { return m_rawTargets; }
    // The headers of each of those requests (names in lower case).
    QList<QMap<QByteArray, QByteArray>> requestHeaders() const { return m_requestHeaders; }
    QList<UploadPart> uploadParts() const { return m_parts; }
    int uploadCount() const { return m_uploadCount; }

    // The card: name to bytes (read back from disk).
    QStringList cardFiles() const;
    QByteArray cardFile(const QString &name) const;
    QString cardFilePath(const QString &name) const;
    qint64 cardFileSize(const QString &name) const;
    void putCardFile(const QString &name, const QByteArray &bytes);

    QMap<int, QString> settings() const { return m_settings; }
    // The job run from the card (executeJobs), or nullptr before the first.
    const CardJobRunner *jobRunner() const { return m_runner.get(); }
    // Every block the card jobs ran, all runs in order.
    QList<CardJobRunner::ExecutedMove> executedMoves() const;
    // The power fails: the job stops where it is and the WebSockets drop.
    void powerCut();
    // Job line of the last block run when the last running report went out.
    int lastReportedRunLine() const { return m_reportedRunLine; }
    bool jobRunning() const { return m_jobRunning; }
    int webSocketClients() const { return m_clients.size(); }

    // Sends GRBL lines (without "\r\n") as the options say, or one raw frame.
    void sendLines(const QList<QByteArray> &lines);
    void sendFrame(const QByteArray &frame, bool binary = true);

    static QMap<int, QString> defaultSettings();

signals:
    void commandReceived(const QString &text);
    void uploadReceived(const QString &filename);
    void webSocketConnected();

private:
    struct Connection;
    void onHttpConnection();
    void onHttpData(QTcpSocket *socket);
    void handleRequest(Connection &c, QTcpSocket *socket);
    void finishUpload(Connection &c, QTcpSocket *socket);
    void feedMultipart(Connection &c, const QByteArray &bytes);
    void beginPart(Connection &c, const QByteArray &headerBlock);
    void endPart(Connection &c);
    void respond(QTcpSocket *socket, int status, const QByteArray &body,
                 const QByteArray &contentType = "text/plain");
    void onCommand(const QString &text);
    void onWebSocketConnection();
    QByteArray cardListJson() const;
    QByteArray statusReport(const char *state);
    void jobTick();

    Options m_opt;
    QTcpServer *m_http = nullptr;
    QWebSocketServer *m_ws = nullptr;
    QTemporaryDir *m_dir = nullptr;
    QTimer *m_jobTimer = nullptr;
    QList<QWebSocket *> m_clients;
    QMap<QTcpSocket *, Connection *> m_connections;
    QMap<QString, int> m_failures;
    QMap<QString, QString> m_card; // name to path on disk
    QMap<int, QString> m_settings;
    QStringList m_commands;
    QStringList m_plainLines;
    QStringList m_rawTargets;
    QList<QMap<QByteArray, QByteArray>> m_requestHeaders;
    QList<UploadPart> m_parts;
    int m_uploadCount = 0;
    int m_fileSerial = 0;
    bool m_stalled = false;
    bool m_jobRunning = false;
    qint64 m_jobElapsedMs = 0;
    QString m_jobFile;
    std::unique_ptr<CardJobRunner> m_runner;
    QList<CardJobRunner::ExecutedMove> m_earlierRuns;
    int m_reportedRunLine = 0;
    QByteArray m_cameraImage;
    int m_cameraFailuresLeft = 0;
    CameraFailure m_cameraFailure = CameraFailure::Status500;
    int m_cameraRequests = 0;
};
