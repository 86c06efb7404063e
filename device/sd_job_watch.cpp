#include "sd_job_watch.h"

#include "execution_tracker.h"
#include "http_thread.h"

#include <QThread>

SdJobWatch::SdJobWatch(HttpThread *link, QObject *parent) : QObject(parent), m_link(link)
{
    m_poll.setInterval(1000);
    connect(&m_poll, &QTimer::timeout, this, [this] {
        if (m_link && m_link->isConnected())
            m_link->queryStatus();
    });
    connect(link, &HttpThread::lineReceived, this, &SdJobWatch::onLine);
    connect(link, &HttpThread::sendDisconnectMessage, this, [this](int) {
        if (m_active)
            end(Ending::LinkLost);
    });
}

SdJobWatch::~SdJobWatch()
{
    if (m_thread)
        m_thread->wait();
}

void SdJobWatch::setStepSizes(double xMm, double yMm)
{
    m_stepX = xMm;
    m_stepY = yMm;
}

void SdJobWatch::askForBufferReports()
{
    if (!m_link || m_anyReport.contains(QLatin1String("Bf:")))
        return;
    m_link->sendCommand(
        QStringLiteral("$10=%1").arg(lumitra::grbl::statusMaskWithBuffer(m_anyReport)));
}

void SdJobWatch::jobStarted(const QString &localPath)
{
    m_active = true;
    m_ending = Ending::Running;
    m_sawRun = false;
    m_lastReport.clear();
    m_progress = SdJobProgress();
    m_progress.workOffsetReport(m_offsetReport);
    m_path = localPath;
    if (m_thread)
        m_thread->wait(); // an earlier job's index, no longer wanted
    auto result = std::make_shared<SdJobProgress>();
    m_indexing = result;
    const double stepX = m_stepX, stepY = m_stepY;
    m_thread = QThread::create(
        [result, localPath, stepX, stepY] { result->index(localPath, stepX, stepY); });
    QThread *thread = m_thread;
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    connect(thread, &QThread::finished, this, [this, thread] {
        if (thread == m_thread) {
            m_thread = nullptr;
            applyIndex();
        }
    });
    thread->start();
    m_poll.start();
}

void SdJobWatch::applyIndex()
{
    if (!m_indexing)
        return;
    m_progress = *m_indexing;
    m_indexing.reset();
    m_progress.workOffsetReport(m_offsetReport);
    if (!m_lastReport.isEmpty())
        m_progress.statusReport(m_lastReport);
}

int SdJobWatch::resumeLine()
{
    if (m_thread) {
        m_thread->wait();
        m_thread = nullptr; // its queued end finds the index applied
        applyIndex();
    }
    return m_progress.resumeLine();
}

void SdJobWatch::stopped()
{
    if (m_active)
        end(Ending::Stopped);
}

void SdJobWatch::onLine(const QString &line)
{
    if (line.startsWith(QLatin1Char('<'))) {
        m_anyReport = line;
        if (line.contains(QLatin1String("WCO:")))
            m_offsetReport = line;
    }
    if (!m_active)
        return;
    if (line.startsWith(QLatin1String("ALARM:"))) {
        end(Ending::Alarm);
        return;
    }
    if (!line.startsWith(QLatin1Char('<')))
        return;
    if (m_progress.statusReport(line))
        m_lastReport = line;
    if (line.startsWith(QLatin1String("<Run")) || line.startsWith(QLatin1String("<Hold")))
        m_sawRun = true;
    else if (line.startsWith(QLatin1String("<Alarm")))
        end(Ending::Alarm);
    else if (line.startsWith(QLatin1String("<Idle")) && m_sawRun)
        end(Ending::Finished);
}

void SdJobWatch::end(Ending how)
{
    m_active = false;
    m_ending = how;
    m_poll.stop();
    if (how == Ending::Finished)
        emit finished();
    else
        emit interrupted(true);
}
