#pragma once

#include <QObject>
#include <QPointer>
#include <QProgressDialog>
#include <QString>

class HttpThread;
class SdJobWatch;
class MachineController;
class QAbstractButton;
class QWidget;

// The window's WiFi road: connects to the board at the IP field's address
// (HTTP on the port field's port, the status WebSocket on port 81), hands
// the board's status, settings and losses to the machine controller, carries
// every WiFi control URL of the machine controller to the board, and runs a
// job by uploading it as "001.nc" (with a progress window that can cancel)
// and starting it on the card; the job on the card is followed by an
// SdJobWatch (progress, the line it has run, how it ended). Owns the link and
// the watch; owns none of the widgets.
// GUI thread only.
class WifiLinkController : public QObject
{
    Q_OBJECT

public:
    // The name every job is uploaded under, and the path it is started from.
    static QString jobName() { return QStringLiteral("001.nc"); }

    WifiLinkController(MachineController *machine, QAbstractButton *connectButton,
                       QWidget *dialogParent, QObject *parent = nullptr);
    ~WifiLinkController() override;

    HttpThread *link() const { return m_link; }
    // Follows the job the board runs from its card (nullptr before the first
    // connect).
    SdJobWatch *jobWatch() const { return m_jobWatch; }
    // The WebSocket port (81 on boards; tests use a free one).
    void setWebSocketPort(int port) { m_wsPort = port; }
    // How long a connect waits for the WebSocket, ms.
    void setConnectTimeout(int ms) { m_connectTimeoutMs = ms; }
    // The upload window while an upload runs, else nullptr.
    QProgressDialog *uploadWindow() const { return m_progress; }

public slots:
    // The WIFI button: connects to `host` (and `portText`, empty for 80), or
    // disconnects when connected. Refused while the serial link is up.
    void toggle(const QString &host, const QString &portText);
    void disconnectBoard();
    // Uploads the job file and starts it on the board.
    void uploadAndRun(const QString &path);

signals:
    // The board accepted the job `path` (the local file uploaded) and runs it.
    void jobStarted(const QString &path);
    // Every line the board sent, for whoever reads the board's answers.
    void lineReceived(const QString &line);

private:
    void connectTo(const QString &host, int httpPort);
    void onUploadProgress(qint64 sent, qint64 total);
    void onUploadFinished(bool ok, const QString &error);
    void onRunStarted(bool ok, const QString &error);
    void showState();

    MachineController *m_machine;
    QPointer<QAbstractButton> m_button;
    QPointer<QWidget> m_dialogParent;
    HttpThread *m_link = nullptr;
    SdJobWatch *m_jobWatch = nullptr;
    QString m_jobPath; // the job being uploaded or started
    QPointer<QProgressDialog> m_progress;
    int m_wsPort = 81;
    int m_connectTimeoutMs = 5000;
    bool m_closing = false;      // the user asked to disconnect
    bool m_jobUploading = false; // the upload in flight is a job to start
    bool m_jobStarting = false;  // the run request in flight is this controller's
};
