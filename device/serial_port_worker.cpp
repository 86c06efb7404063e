#include "serial_port_worker.h"

#include "grbl_protocol.h"
#include "stream_state.h"

#include <QDebug>
#include <QSerialPort>

namespace {

constexpr int kReadBufferSize = 1024;

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
    for (const QString &line : lines) {
        if (lumitra::grbl::classifySerialLine(line) == lumitra::grbl::SerialLine::Ok)
            m_stream->releaseOldest();
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
