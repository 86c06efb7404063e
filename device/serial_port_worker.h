#pragma once

#include "grbl_protocol.h"
#include "line_assembler.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <atomic>
#include <memory>

class QSerialPort;
class StreamState;

// The bytes end of the serial link: owns the QSerialPort on the link's I/O
// thread, writes what the link hands it, and cuts what arrives into lines.
// Every "ok" releases the oldest in-flight line at once, on this thread, so the
// send loop can go on even while the GUI thread is busy (painting a large
// design); all lines then go to the link, in order, for the rest of their
// classification.
//
// Lives on the I/O thread: call its slots through queued (or blocking queued)
// invocations only. isOpen() may be read from any thread.
class SerialPortWorker : public QObject
{
    Q_OBJECT

public:
    explicit SerialPortWorker(std::shared_ptr<StreamState> stream);
    ~SerialPortWorker() override;

    bool isOpen() const { return m_open.load(); }
    // The current open's number (any thread).
    quint64 session() const { return m_session.load(); }

    // Lines of the send loop emitted up to this count belong to a stopped run
    // and are not written (any thread).
    void forgetLinesUpTo(quint64 emitted) { m_staleUntil = emitted; }

public slots:
    // Opens `name` at 115200 8N1, no flow control, read buffer 1024 bytes.
    // False with the port's error text in `error` when it does not open.
    bool open(const QString &name, QString *error);
    void close();
    // Writes what `stop` asks for, waits until those bytes have left the port
    // (bounded, see the .cpp), then closes. With the port already closed or
    // failed it only closes. Blocks the I/O thread for at most about 2 s.
    void stopAndClose(const lumitra::grbl::StopBeforeClose &stop);
    // Write handler: `text` as UTF-8, when the port is open.
    void writeText(const QString &text);
    // A line of the send loop (counted by the loop before it was emitted).
    void writeStreamLine(const QString &line);
    void writeByte(char byte);
    // Read handler: assembles lines, releases in-flight bytes for each "ok".
    void jie_shou();

signals:
    // `session` counts the opens, so that lines and failures of a port closed
    // since can be told apart.
    void linesReceived(quint64 session, const QStringList &lines);
    // The open port failed (unplugged); it has been closed.
    void portFailed(quint64 session, const QString &reason);

private:
    void onError(int error);
    bool writeAndDrain(const QByteArray &bytes, int timeoutMs);
    void waitForBanner(int timeoutMs);

    std::shared_ptr<StreamState> m_stream;
    QSerialPort *m_port = nullptr;
    LineAssembler m_assembler;
    std::atomic_bool m_open{false};
    std::atomic<quint64> m_session{0};
    std::atomic<quint64> m_staleUntil{0};
    quint64 m_linesDelivered = 0;
};
