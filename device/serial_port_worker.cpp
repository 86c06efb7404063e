#include "serial_port_worker.h"

#include "grbl_protocol.h"
#include "stream_state.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QSerialPort>

#ifdef Q_OS_UNIX
#include <termios.h>
#elif defined(Q_OS_WIN)
#include <qt_windows.h>
#endif

namespace {

constexpr int kReadBufferSize = 1024;
// Bounds of the stop before closing: how long a write may take to leave the
// port, and how long the controller may take to come back after a soft reset.
constexpr int kDrainTimeoutMs = 500;
constexpr int kBannerTimeoutMs = 1000;

} // namespace

SerialPortWorker::SerialPortWorker(std::shared_ptr<StreamState> stream)
    : m_stream(std::move(stream))
{
}

SerialPortWorker::~SerialPortWorker()
{
    close();
}

bool SerialPortWorker::open(const QString &name, QString *error)
{
    close();
    m_port = new QSerialPort(name, this);
    m_port->setReadBufferSize(kReadBufferSize);
    m_port->setBaudRate(QSerialPort::Baud115200);
    m_port->setDataBits(QSerialPort::Data8);
    m_port->setParity(QSerialPort::NoParity);
    m_port->setStopBits(QSerialPort::OneStop);
    m_port->setFlowControl(QSerialPort::NoFlowControl);
    if (!m_port->open(QIODevice::ReadWrite)) {
        *error = m_port->errorString();
        qDebug() << "SerialPortError" << m_port->error() << *error;
        delete m_port;
        m_port = nullptr;
        return false;
    }
    connect(m_port, &QSerialPort::readyRead, this, &SerialPortWorker::jie_shou);
    connect(m_port, &QSerialPort::errorOccurred, this,
            [this](QSerialPort::SerialPortError e) { onError(int(e)); });
    qDebug() << "DTR" << (m_port->isDataTerminalReady() ? "true" : "false") << "RTS"
             << (m_port->isRequestToSend() ? "true" : "false");
    m_assembler.clear();
    ++m_session;
    m_open = true;
    return true;
}

void SerialPortWorker::close()
{
    m_open = false;
    if (!m_port)
        return;
    m_port->disconnect(this);
    if (m_port->isOpen())
        m_port->close();
    m_port->deleteLater();
    m_port = nullptr;
    m_assembler.clear();
}

// The order is "!", 0x18, then "M5\n" once the controller is back:
// - "!" (feed hold) lets the motion decelerate under the controller's control
//   instead of the steppers stopping dead at full speed.
// - 0x18 (soft reset) follows at once. It empties the controller's receive
//   and planner buffers, drops the job, and switches the spindle output (the
//   laser) off as part of the reset. Position may be lost when the hold had
//   not finished decelerating; the laser going off matters more, and the next
//   connect homes the machine.
// - "M5\n" is a line, so it queues behind whatever the controller still holds:
//   written before the reset it would be discarded with the job lines, and
//   written during the reset it may be dropped while the controller restarts.
//   It therefore waits for the start-up banner (bounded) and goes out into an
//   empty buffer, a second, explicit laser-off that also covers a controller
//   that kept its spindle state. Without a running job (test fire only) it is
//   the one thing written.
// Each part is drained to the wire before the next, so nothing is still in
// QSerialPort's buffer (or the driver's) when the port closes.
void SerialPortWorker::stopAndClose(const lumitra::grbl::StopBeforeClose &stop)
{
    if (!m_open || !m_port || !stop.any()) {
        close();
        return;
    }
    m_open = false; // no other write from here on
    // Errors while stopping only end the stop early; they must not delete the
    // port under this function.
    m_port->disconnect(this);
    const QString name = m_port->portName();
    bool ok = true;
    if (stop.hold)
        ok = writeAndDrain(QByteArray(1, lumitra::grbl::kFeedHold), kDrainTimeoutMs);
    if (ok && stop.reset) {
        ok = writeAndDrain(QByteArray(1, lumitra::grbl::kSoftReset), kDrainTimeoutMs);
        if (ok)
            waitForBanner(kBannerTimeoutMs);
    }
    if (ok && stop.laserOff)
        ok = writeAndDrain(lumitra::grbl::laserOffText().toLatin1(), kDrainTimeoutMs);
    qDebug() << "stop before close" << name << "hold" << stop.hold << "reset" << stop.reset
             << "laser off" << stop.laserOff << (ok ? "written" : " out not written");
    close();
}

bool SerialPortWorker::writeAndDrain(const QByteArray &bytes, int timeoutMs)
{
    if (!m_port->isOpen() || m_port->write(bytes) != bytes.size())
        return false;
    QElapsedTimer clock;
    clock.start();
    while (m_port->bytesToWrite() > 0) {
        const int left = timeoutMs - int(clock.elapsed());
        if (left <= 0 || !m_port->waitForBytesWritten(left))
            break;
    }
    if (m_port->bytesToWrite() > 0)
        return false;
        // Out of QSerialPort's buffer; now out of the driver's too, before close
        // restores the line settings.
#ifdef Q_OS_UNIX
    ::tcdrain(m_port->handle());
#elif defined(Q_OS_WIN)
    ::FlushFileBuffers(m_port->handle());
#endif
    return true;
}

void SerialPortWorker::waitForBanner(int timeoutMs)
{
    LineAssembler assembler;
    QElapsedTimer clock;
    clock.start();
    for (;;) {
        const QStringList lines = assembler.feed(m_port->readAll());
        for (const QString &line : lines) {
            if (lumitra::grbl::isStartupBanner(line))
                return;
        }
        const int left = timeoutMs - int(clock.elapsed());
        if (left <= 0 || !m_port->waitForReadyRead(left)) {
            qDebug() << " out no banner after reset";
            return;
        }
    }
}

void SerialPortWorker::writeText(const QString &text)
{
    if (m_open)
        m_port->write(text.toUtf8());
}

void SerialPortWorker::writeStreamLine(const QString &line)
{
    if (++m_linesDelivered <= m_staleUntil.load())
        return; // emitted before the last stop
    writeText(line);
}

void SerialPortWorker::writeByte(char byte)
{
    if (m_open)
        m_port->write(&byte, 1);
}

void SerialPortWorker::jie_shou()
{
    if (!m_port)
        return;
    const QStringList lines = m_assembler.feed(m_port->readAll());
    if (lines.isEmpty())
        return;
    // In arrival order, so that a status report is read against exactly the
    // answers that came before it.
    for (const QString &line : lines) {
        switch (lumitra::grbl::classifySerialLine(line)) {
        case lumitra::grbl::SerialLine::Ok:
            m_stream->releaseOldest();
            break;
        case lumitra::grbl::SerialLine::Status:
            m_stream->noteStatusReport(line);
            break;
        case lumitra::grbl::SerialLine::Alarm:
        case lumitra::grbl::SerialLine::Error:
            m_stream->freezeExecution();
            break;
        default:
            break;
        }
    }
    emit linesReceived(m_session, lines);
}

void SerialPortWorker::onError(int error)
{
    if (error != QSerialPort::ResourceError && error != QSerialPort::ReadError
        && error != QSerialPort::WriteError)
        return;
    if (!m_open)
        return;
    const QString reason = m_port->errorString();
    qDebug() << " out port lost" << m_port->portName() << reason;
    close();
    emit portFailed(m_session, reason);
}
