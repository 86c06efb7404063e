#include "jk_com.h"

#include "grbl_protocol.h"
#include "program_state.h"
#include "read_txt_thread.h"
#include "send_loop.h"
#include "stream_state.h"
#include "win32_control_lines.h"

#include <QDebug>
#include <QSerialPort>

using lumitra::grbl::SerialLine;

namespace {

constexpr int kReadBufferSize = 1024;
constexpr int kFirstChunkDelayMs = 100;
// After a soft reset nothing is sent until the controller's banner, at most this long.
constexpr int kResetHoldMs = 1000;

} // namespace

Jk_com::Jk_com(QObject *parent) : QThread(parent), m_stream(std::make_shared<StreamState>())
{
    qRegisterMetaType<QMap<QString, QString>>("QMap<QString,QString>");
    m_pollTimer.setInterval(500);
    connect(&m_pollTimer, &QTimer::timeout, this, &Jk_com::requestStatus);
    m_handshakeTimer.setSingleShot(true);
    connect(&m_handshakeTimer, &QTimer::timeout, this, &Jk_com::onHandshakeTimeout);
    connect(this, &Jk_com::xie_xin_hao, this, &Jk_com::xie_cao, Qt::QueuedConnection);
}

Jk_com::~Jk_com()
{
    shutDown();
    if (m_reader)
        m_reader->wait();
}

void Jk_com::setPollInterval(int ms)
{
    m_pollTimer.setInterval(ms);
}

int Jk_com::pollInterval() const
{
    return m_pollTimer.interval();
}

bool Jk_com::isOpen() const
{
    return m_port && m_port->isOpen();
}

QString Jk_com::portName() const
{
    return m_port ? m_port->portName() : QString();
}

bool Jk_com::connectPort(const QString &portName)
{
    shutDown();
#ifdef Q_OS_WIN
    resetFixedPortControlLines();
#endif
    m_port = new QSerialPort(portName, this);
    m_port->setReadBufferSize(kReadBufferSize);
    m_port->setBaudRate(QSerialPort::Baud115200);
    m_port->setDataBits(QSerialPort::Data8);
    m_port->setParity(QSerialPort::NoParity);
    m_port->setStopBits(QSerialPort::OneStop);
    m_port->setFlowControl(QSerialPort::NoFlowControl);
    m_lastError.clear();
    if (!m_port->open(QIODevice::ReadWrite)) {
        m_lastError = m_port->errorString();
        qDebug() << "SerialPortError" << m_port->error() << m_lastError;
    }
    connect(m_port, &QSerialPort::readyRead, this, &Jk_com::jie_shou);
    connect(m_port, &QSerialPort::errorOccurred, this,
            [this](QSerialPort::SerialPortError e) { onPortError(int(e)); });
    if (!m_port->isOpen())
        return false;

    qDebug() << "DTR" << (m_port->isDataTerminalReady() ? "true" : "false") << "RTS"
             << (m_port->isRequestToSend() ? "true" : "false");
    m_handshakeDone = false;
    sendIdentify();
    m_handshakeTimer.start(m_handshakeTimeoutMs);
    return true;
}

void Jk_com::sendIdentify()
{
    // Counted in flight like a streamed line: its "ok" comes after "VER:", when
    // the send loop may already be sending.
    const QString identify = lumitra::grbl::identifyText();
    m_stream->countDirect(identify.size());
    xie_cao(identify);
}

void Jk_com::disconnectPort()
{
    shutDown();
}

void Jk_com::shutDown()
{
    m_pollTimer.stop();
    m_handshakeTimer.stop();
    m_running = false;
    m_stream->wakeAll();
    if (isRunning())
        wait();
    stopReader();
    m_stream->clear();
    forgetStaleLines();
    m_stream->releaseResetHold();
    m_fileRunActive = false;
    m_assembler.clear();
    m_receivedLines.clear();
    m_handshakeDone = false;
    if (m_port) {
        m_port->disconnect(this);
        if (m_port->isOpen())
            m_port->close();
        m_port->deleteLater();
        m_port = nullptr;
    }
}

void Jk_com::onHandshakeTimeout()
{
    if (m_handshakeDone)
        return;
    qDebug() << " out handshake timeout" << portName();
    shutDown();
    emit yi_lian_jie(false);
}

void Jk_com::onPortError(int error)
{
    if (error != QSerialPort::ResourceError && error != QSerialPort::ReadError &&
        error != QSerialPort::WriteError)
        return;
    if (!isOpen())
        return;
    const QString reason = m_port->errorString();
    m_lastError = reason;
    qDebug() << " out port lost" << portName() << reason;
    const bool wasLinked = m_handshakeDone;
    shutDown();
    if (wasLinked)
        emit linkLost(reason);
    else
        emit yi_lian_jie(false);
}

void Jk_com::jie_shou()
{
    if (!m_port)
        return;
    m_receivedLines.append(m_assembler.feed(m_port->readAll()));
    if (m_dispatching)
        return; // the outer call classifies them, in order
    m_dispatching = true;
    while (!m_receivedLines.isEmpty())
        handleLine(m_receivedLines.takeFirst());
    m_dispatching = false;
}

void Jk_com::handleLine(const QString &line)
{
    emit lineReceived(line);
    switch (lumitra::grbl::classifySerialLine(line)) {
    case SerialLine::Ok:
        handleOk();
        break;
    case SerialLine::MachineModel:
        if (lumitra::grbl::namesMakerModel(m_info.readMachineModel(line)))
            lumitra::programState().modelFlag = true;
        break;
    case SerialLine::StationMode:
        m_info.readStationMode(line);
        break;
    case SerialLine::AccessPointMode:
        m_info.readAccessPointMode(line);
        break;
    case SerialLine::Setting:
        m_info.readSetting(line);
        break;
    case SerialLine::Alarm:
        qDebug() << "Alarm";
        faultReset(line, true);
        break;
    case SerialLine::Error:
        faultReset(line, false);
        break;
    case SerialLine::Status:
        emit shu_chu_zhuang_tai(lumitra::grbl::serialStatusText(line));
        break;
    case SerialLine::Version:
        if (!m_handshakeDone)
            completeHandshake();
        break;
    case SerialLine::Other:
        handleOther(line);
        break;
    }
}

void Jk_com::handleOk()
{
    if (m_info.countOk())
        emit shu_chu_can_shu(m_info.map());
    m_stream->releaseOldest();
    checkJobFinished();
}

void Jk_com::handleOther(const QString &line)
{
    if (!lumitra::grbl::isStartupBanner(line))
        return;
    // The controller (re)started: its receive buffer is empty.
    m_stream->releaseResetHold();
    if (!m_handshakeDone && isOpen()) {
        // Boards that reset when the port opens lose the first "$i".
        qDebug() << "banner before handshake, identify again";
        sendIdentify();
    }
}

void Jk_com::completeHandshake()
{
    m_handshakeDone = true;
    m_handshakeTimer.stop();
    emit yi_lian_jie(true);
    if (!isOpen())
        return; // the handler disconnected
    m_running = true;
    start();
    m_pollTimer.start();
}

void Jk_com::faultReset(const QString &line, bool writeReset)
{
    stopReader();
    if (writeReset)
        writeResetByte();
    m_stream->clear();
    forgetStaleLines();
    m_fileRunActive = false;
    queueText(lumitra::grbl::unlockText());
    emit deviceFault(line);
    emit shu_chu_zhuang_tai(QStringLiteral("Alarm"));
}

void Jk_com::xie_cao(const QString &text)
{
    if (sender() == this) {
        // A line of the send loop: skip those emitted before the last stop.
        if (++m_linesDelivered <= m_staleUntil)
            return;
    }
    if (isOpen())
        m_port->write(text.toUtf8());
}

void Jk_com::forgetStaleLines()
{
    m_staleUntil = m_linesEmitted.load();
}

void Jk_com::writeRealTime(char byte)
{
    if (isOpen())
        m_port->write(&byte, 1);
}

void Jk_com::requestStatus()
{
    writeRealTime(lumitra::grbl::kStatusQuery);
}

void Jk_com::feedHold()
{
    writeRealTime(lumitra::grbl::kFeedHold);
}

void Jk_com::cycleStart()
{
    writeRealTime(lumitra::grbl::kCycleStart);
}

bool Jk_com::writeResetByte()
{
    if (!isOpen())
        return false;
    writeRealTime(lumitra::grbl::kSoftReset);
    m_stream->holdForReset(kResetHoldMs);
    return true;
}

void Jk_com::softReset()
{
    writeResetByte();
    stopReader();
    m_stream->clear();
    forgetStaleLines();
    m_fileRunActive = false;
}

void Jk_com::queueText(const QString &text)
{
    if (text == QLatin1String("yunxing")) {
        startFileRun();
        return;
    }
    QStringList lines;
    const QStringList pieces = text.split(QLatin1Char('\n'));
    for (const QString &piece : pieces) {
        const QString line = piece.simplified();
        if (!line.isEmpty() && !line.startsWith(QLatin1Char(';')))
            lines.append(line);
    }
    if (!lines.isEmpty())
        m_stream->enqueue(lines);
}

void Jk_com::requestSettings()
{
    m_info.beginCollecting();
    queueText(lumitra::grbl::settingsRequestText());
}

void Jk_com::startFileRun()
{
    if (m_reader) {
        // A run that is still being read ends here.
        m_reader->requestStop();
        m_reader->wait();
    }
    const QString path = lumitra::programState().jobFilePath;
    m_stream->beginJob(countFileLines(path));
    auto *reader = new ReadTxtThread(path, m_stream);
    connect(reader, &QThread::finished, this, &Jk_com::onReaderFinished);
    m_reader = reader;
    m_fileRunActive = true;
    m_readerDone = false;
    reader->start();

    const quint64 run = m_stream->generation();
    QTimer::singleShot(kFirstChunkDelayMs, this, [this, run] {
        if (m_stream->generation() == run)
            m_stream->refillIfLow();
    });
}

void Jk_com::stopReader()
{
    if (m_reader)
        m_reader->requestStop();
}

void Jk_com::onReaderFinished()
{
    if (sender() != m_reader.data())
        return;
    m_readerDone = true;
    checkJobFinished();
}

void Jk_com::checkJobFinished()
{
    if (!m_fileRunActive || !m_readerDone || !m_stream->drained())
        return;
    m_fileRunActive = false;
    emit jobFinished();
}

void Jk_com::run()
{
    SendLoopOutput out;
    out.write = [this](const QString &line) {
        ++m_linesEmitted;
        emit xie_xin_hao(line);
    };
    out.progress = [this](int percent) { emit diao_ke_jin_du(percent); };
    runSendLoop(*m_stream, m_running, out);
}
