#pragma once

#include "device_info.h"

#include <QMap>
#include <QPointer>
#include <QString>
#include <QThread>
#include <QTimer>
#include <atomic>
#include <memory>

class ReadTxtThread;
class SerialPortWorker;
class StreamState;

// The serial link to a GRBL controller. The object lives on the GUI thread,
// which runs every public call, the timers and the classification of received
// lines; its own thread (run) is the character-counting send loop, which hands
// each line on through the signal xie_xin_hao. The port itself sits on a third
// thread (SerialPortWorker): it writes those lines and releases the in-flight
// bytes of every "ok" there, so streaming keeps the wire busy even while the
// GUI thread is blocked (a long repaint of a large design).
//
// Life: connectPort() opens the port and writes "$i\n"; the first "VER:" line
// completes the handshake (yi_lian_jie(true), send loop and 500 ms "?" poll
// start); no "VER:" within handshakeTimeout() closes the port and emits
// yi_lian_jie(false) (handshakeFailed says why). A failing port (unplugged) is
// closed and reported by linkLost. disconnectPort() is the user's disconnect.
//
// Every close of an open port (disconnectPort, a new connectPort, the
// destructor) first stops the machine when the laser may be on: with a job
// streaming or the machine reporting motion it writes "!", 0x18 and then
// "M5\n"; with only test fire on, "M5\n". Those bytes are on the wire before
// the port closes (see SerialPortWorker::stopAndClose). A port that failed
// cannot be written and is only closed.
class Jk_com : public QThread
{
    Q_OBJECT

public:
    explicit Jk_com(QObject *parent = nullptr);
    ~Jk_com() override;

    // Opens `portName` at 115200 8N1 without flow control (read buffer 1024
    // bytes) and starts the handshake. False when the port did not open: that is
    // only logged, and no yi_lian_jie follows.
    bool connectPort(const QString &portName);
    // Stops the poll, the send loop and a running job, stops the machine as
    // described above, empties the queues and closes the port. Blocks until the
    // port is closed (at most about 2 s). Emits nothing; safe when closed.
    void disconnectPort();

    // The laser was switched on outside a job (test fire on) or off again; the
    // link switches it off before it closes. Cleared by every close.
    void setLaserOn(bool on) { m_laserOn = on; }
    bool laserOn() const { return m_laserOn; }
    // A file run streams, or the last status report showed motion (Run, Hold,
    // Jog, Home) with no Idle or alarm since.
    bool machineBusy() const { return m_fileRunActive || m_machineMoving; }

    // The one entry for serial G-code. "yunxing" runs the job file
    // (lumitra::programState().jobFilePath); any other text is split on "\n",
    // each piece whitespace-simplified, and the pieces that are neither empty nor
    // ";" comments are queued.
    void queueText(const QString &text);
    // Empties the information map and queues "$I\n$$\n"; the second "ok" after
    // it emits shu_chu_can_shu with the collected map.
    void requestSettings();

    // Real-time bytes, written at once when the port is open.
    void requestStatus(); // "?"
    void feedHold();      // "!"
    void cycleStart();    // "~"
    // Stop: byte 0x18 when the port is open, then (written or not) the job
    // reader stops and the queue, the pending lines and the in-flight list empty.
    void softReset();

    bool isOpen() const;
    bool isLinked() const { return m_handshakeDone; }
    // A file run is streaming (from "yunxing" until jobFinished or a stop).
    bool jobRunning() const { return m_fileRunActive; }
    // Every line answered, the machine not yet reported idle.
    bool jobDraining() const { return m_awaitingIdle; }

    // Lines of the file run (1-based, counted from the file's first line): the
    // last one the controller has executed (every line up to it has run; see
    // ExecutionTracker for how "ok"s and the status report's "Bf:" field tell
    // it), the last one answered "ok", and the last one sent. They stay as
    // they were after a stop, an alarm or a lost port, until the next run.
    int lastExecutedLine() const;
    int lastAcknowledgedLine() const;
    int lastSentLine() const;
    // The status reports carry the planner's free blocks ("Bf:"). When they
    // do not, a file run starts with "$10=<mask>" (keeping the reports'
    // MPos/WPos choice, adding the buffer field; the controller keeps the
    // setting, the previous value is not restored).
    bool reportsBufferField() const { return m_reportsBuffer; }
    const QMap<QString, QString> &deviceInfo() const { return m_info.map(); }
    StreamState &stream() const { return *m_stream; }
    QString portName() const { return m_portName; }
    // Why the last connectPort() failed, or why the link was lost.
    QString lastError() const { return m_lastError; }

    // Waits for the handshake (default 5000 ms) and between two "?" (default
    // 500 ms); set before connectPort.
    void setHandshakeTimeout(int ms) { m_handshakeTimeoutMs = ms; }
    int handshakeTimeout() const { return m_handshakeTimeoutMs; }
    void setPollInterval(int ms);
    int pollInterval() const;

signals:
    void yi_lian_jie(bool linked);
    void shu_chu_zhuang_tai(const QString &status);
    void shu_chu_can_shu(const QMap<QString, QString> &can_shu);
    void diao_ke_jin_du(int percent);
    void xie_xin_hao(const QString &line);

    // The handshake on `portName` failed; emitted just before yi_lian_jie(false).
    // `reason` is empty when nothing answered "VER:" within handshakeTimeout(),
    // otherwise the system's text for the port failing during the handshake.
    void handshakeFailed(const QString &portName, const QString &reason);

    // Every received line, before it is classified (console, headless sender).
    void lineReceived(const QString &line);
    // An alarm or "Error" line reset the stream (after shu_chu_zhuang_tai("Alarm")).
    void deviceFault(const QString &line);
    // The port failed while open (unplugged) and was closed; the job stopped.
    void linkLost(const QString &reason);
    // Every line of the file run was sent and acknowledged ("ok": planned;
    // the planner may still hold blocks to run).
    void jobFinished();
    // After jobFinished, the first report of an idle machine: the whole file
    // has run.
    void jobRan();
    // The first status report after the handshake was read: a file run
    // started from now on turns the buffer field on when it is missing.
    void reportFieldsReady();

public slots:
    // Write handler: `text` as UTF-8 when the port is open.
    void xie_cao(const QString &text);

protected:
    void run() override;

private:
    // The lines the port worker assembled, classified in order.
    void onLines(quint64 session, const QStringList &lines);
    void handleLine(const QString &line);
    void handleOk();
    void handleOther(const QString &line);
    void completeHandshake();
    void sendIdentify();
    void faultReset(const QString &line, bool writeReset);
    void writeRealTime(char byte);
    void resetStream(bool writeReset);
    void startFileRun();
    void stopReader();
    void onReaderFinished();
    void checkJobFinished();
    void onHandshakeTimeout();
    void onPortFailed(quint64 session, const QString &reason);
    void shutDown();
    void forgetStaleLines();
    void checkReportFields(const QString &report);
    void takeStepSizes();

    QThread m_ioThread;
    SerialPortWorker *m_worker = nullptr; // lives on m_ioThread
    QString m_portName;
    QString m_lastError;
    QStringList m_receivedLines; // assembled, not yet classified (keeps order on re-entry)
    bool m_dispatching = false;
    std::shared_ptr<StreamState> m_stream;
    bool m_handshakeDone = false;
    DeviceInfo m_info;
    QTimer m_pollTimer;
    QTimer m_handshakeTimer;
    int m_handshakeTimeoutMs = 5000;
    std::atomic_bool m_running{false};
    QPointer<ReadTxtThread> m_reader;
    bool m_fileRunActive = false;
    bool m_awaitingIdle = false;  // jobFinished came, jobRan not yet
    bool m_machineMoving = false; // last status report showed motion
    bool m_laserOn = false;       // test fire on
    bool m_readerDone = false;
    bool m_firstReportSeen = false;
    bool m_reportsBuffer = false;
    int m_statusMask = 3;
    // Lines the send loop emitted; those emitted before a stop are not written
    // after it.
    std::atomic<quint64> m_linesEmitted{0};
};
