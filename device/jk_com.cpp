#include "jk_com.h"

#include "execution_tracker.h"
#include "grbl_protocol.h"
#include "program_state.h"
#include "read_txt_thread.h"
#include "send_loop.h"
#include "serial_port_worker.h"
#include "stream_state.h"
#include "win32_control_lines.h"

#include <QDebug>

using lumitra::grbl::SerialLine;

namespace {

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

    m_worker = new SerialPortWorker(m_stream);
    m_worker->moveToThread(&m_ioThread);
    connect(&m_ioThread, &QThread::finished, m_worker, &QObject::deleteLater);
    connect(this, &Jk_com::xie_xin_hao, m_worker, &SerialPortWorker::writeStreamLine,
            Qt::QueuedConnection);
    connect(m_worker, &SerialPortWorker::linesReceived, this, &Jk_com::onLines,
            Qt::QueuedConnection);
    connect(m_worker, &SerialPortWorker::portFailed, this, &Jk_com::onPortFailed,
            Qt::QueuedConnection);
    m_ioThread.setObjectName(QStringLiteral("serial port"));
    m_ioThread.start();
}

Jk_com::~Jk_com()
{
    shutDown();
    m_ioThread.quit();
    m_ioThread.wait();
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
    return m_worker->isOpen();
}

bool Jk_com::connectPort(const QString &portName)
{
    shutDown();
#ifdef Q_OS_WIN
    resetFixedPortControlLines();
#endif
    m_portName = portName;
    m_lastError.clear();
    bool opened = false;
    QMetaObject::invokeMethod(
        m_worker, [&] { opened = m_worker->open(portName, &m_lastError); },
        Qt::BlockingQueuedConnection);
    if (!opened)
        return false;
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
    const lumitra::grbl::StopBeforeClose stop =
        lumitra::grbl::stopBeforeClose(m_laserOn, machineBusy());
    m_laserOn = false;
    m_machineMoving = false;
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
    m_awaitingIdle = false;
    m_receivedLines.clear();
    m_handshakeDone = false;
    // Queued behind every write handed to the worker so far; the stale stream
    // lines among them are dropped there (forgetStaleLines above).
    QMetaObject::invokeMethod(
        m_worker, [this, stop] { m_worker->stopAndClose(stop); }, Qt::BlockingQueuedConnection);
}

void Jk_com::onHandshakeTimeout()
{
    if (m_handshakeDone)
        return;
    qDebug() << " out handshake timeout" << portName();
    shutDown();
    emit handshakeFailed(m_portName, QString());
    emit yi_lian_jie(false);
}

void Jk_com::onPortFailed(quint64 session, const QString &reason)
{
    if (session != m_worker->session())
        return;
    m_lastError = reason;
    const bool wasLinked = m_handshakeDone;
    shutDown();
    if (wasLinked) {
        emit linkLost(reason);
    } else {
        emit handshakeFailed(m_portName, reason);
        emit yi_lian_jie(false);
    }
}

void Jk_com::onLines(quint64 session, const QStringList &lines)
{
    if (session != m_worker->session() || !isOpen())
        return; // read on a port closed since
    m_receivedLines.append(lines);
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
        takeStepSizes();
        break;
    case SerialLine::Alarm:
        qDebug() << "Alarm";
        m_machineMoving = false;
        faultReset(line, true);
        break;
    case SerialLine::Error:
        faultReset(line, false);
        break;
    case SerialLine::Status:
        m_machineMoving = lumitra::grbl::statusShowsMotion(line);
        checkReportFields(line);
        {
            const QString status = lumitra::grbl::serialStatusText(line);
            emit shu_chu_zhuang_tai(status);
            if (m_awaitingIdle && status.startsWith(QLatin1String("Idle"))) {
                m_awaitingIdle = false;
                emit jobRan();
            }
            break;
        }
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
    // The port worker has already released the line's in-flight bytes.
    if (m_info.countOk())
        emit shu_chu_can_shu(m_info.map());
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
    m_firstReportSeen = false;
    m_reportsBuffer = false;
    emit yi_lian_jie(true);
    if (!isOpen())
        return; // the handler disconnected
    m_running = true;
    start();
    m_pollTimer.start();
}

void Jk_com::checkReportFields(const QString &report)
{
    m_reportsBuffer = lumitra::grbl::blocksFree(report) >= 0;
    m_statusMask = lumitra::grbl::statusMaskWithBuffer(report);
    if (m_firstReportSeen || !m_handshakeDone)
        return;
    m_firstReportSeen = true;
    emit reportFieldsReady();
}

void Jk_com::takeStepSizes()
{
    const double x = m_info.map().value(QStringLiteral("$100")).toDouble();
    const double y = m_info.map().value(QStringLiteral("$101")).toDouble();
    m_stream->setStepSizes(x > 0.0 ? 1.0 / x : 0.0, y > 0.0 ? 1.0 / y : 0.0);
}

int Jk_com::lastExecutedLine() const
{
    return m_stream->lastExecutedLine();
}

int Jk_com::lastAcknowledgedLine() const
{
    return m_stream->lastAcknowledgedLine();
}

int Jk_com::lastSentLine() const
{
    return m_stream->lastSentJobLine();
}

void Jk_com::faultReset(const QString &line, bool writeReset)
{
    stopReader();
    resetStream(writeReset);
    queueText(lumitra::grbl::unlockText());
    emit deviceFault(line);
    emit shu_chu_zhuang_tai(QStringLiteral("Alarm"));
}

void Jk_com::xie_cao(const QString &text)
{
    QMetaObject::invokeMethod(
        m_worker, [worker = m_worker, text] { worker->writeText(text); }, Qt::QueuedConnection);
}

void Jk_com::forgetStaleLines()
{
    m_worker->forgetLinesUpTo(m_linesEmitted.load());
}

void Jk_com::writeRealTime(char byte)
{
    QMetaObject::invokeMethod(
        m_worker, [worker = m_worker, byte] { worker->writeByte(byte); }, Qt::QueuedConnection);
}

void Jk_com::requestStatus()
{
    if (isOpen())
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

void Jk_com::softReset()
{
    stopReader();
    resetStream(true);
}

void Jk_com::resetStream(bool writeReset)
{
    // Nothing taken before this point goes out after the reset byte: the
    // stream is emptied and the lines already handed to the port are dropped
    // first, then the byte is queued behind them.
    const bool writeByte = writeReset && isOpen();
    if (writeByte)
        m_stream->holdForReset(kResetHoldMs);
    m_stream->clear();
    forgetStaleLines();
    if (writeByte)
        writeRealTime(lumitra::grbl::kSoftReset);
    m_fileRunActive = false;
    m_awaitingIdle = false;
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
    if (m_firstReportSeen && !m_reportsBuffer) {
        // Ask for the planner's free blocks in every report from now on.
        queueText(QStringLiteral("$10=%1").arg(m_statusMask));
        m_reportsBuffer = true;
    }
    m_stream->beginJob(countFileLines(path));
    auto *reader = new ReadTxtThread(path, m_stream);
    connect(reader, &QThread::finished, this, &Jk_com::onReaderFinished);
    m_reader = reader;
    m_fileRunActive = true;
    m_awaitingIdle = false;
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
    m_awaitingIdle = true;
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
