#include "stream_state.h"

#include <QMutexLocker>
#include <cmath>

void StreamState::enqueue(const QStringList &lines)
{
    QMutexLocker lock(&m_mutex);
    m_queue.append(lines);
    for (int i = 0; i < lines.size(); ++i)
        m_queueJobLines.append(0);
    notePeak();
    m_changed.wakeAll();
}

bool StreamState::waitForPendingRoom(int timeoutMs)
{
    QMutexLocker lock(&m_mutex);
    if (m_pending.size() >= kPendingLimit)
        m_changed.wait(&m_mutex, timeoutMs);
    return m_pending.size() < kPendingLimit;
}

bool StreamState::appendPending(const QStringList &lines, quint64 generation)
{
    QMutexLocker lock(&m_mutex);
    if (generation != m_generation)
        return false;
    m_pending.append(lines);
    for (int i = 0; i < lines.size(); ++i)
        m_pendingJobLines.append(m_nextJobLine++);
    notePeak();
    m_changed.wakeAll();
    return true;
}

quint64 StreamState::generation() const
{
    QMutexLocker lock(&m_mutex);
    return m_generation;
}

bool StreamState::holdActive() const
{
    return m_resetHold && !m_resetHoldClock.hasExpired(m_resetHoldMs);
}

bool StreamState::takeNext(Taken &taken, int waitMs)
{
    QMutexLocker lock(&m_mutex);
    if (m_queue.isEmpty() && !m_pending.isEmpty()) {
        m_queue.swap(m_pending);
        m_queueJobLines.swap(m_pendingJobLines);
        m_changed.wakeAll();
    }
    if (m_queue.isEmpty() || holdActive()) {
        m_changed.wait(&m_mutex, waitMs);
        return false;
    }
    taken.line = m_queue.takeFirst() + QLatin1Char('\n');
    taken.jobLine = m_queueJobLines.takeFirst();
    taken.bytes = taken.line.toUtf8().size();
    taken.generation = m_generation;
    m_taken = true;
    return true;
}

int StreamState::waitForRoom(const Taken &taken, int waitMs)
{
    QMutexLocker lock(&m_mutex);
    if (taken.generation != m_generation)
        return -1;
    if (taken.bytes <= kReceiveWindow - m_inFlightBytes && !holdActive())
        return 1;
    m_changed.wait(&m_mutex, waitMs);
    if (taken.generation != m_generation)
        return -1;
    return taken.bytes <= kReceiveWindow - m_inFlightBytes && !holdActive() ? 1 : 0;
}

bool StreamState::commit(const Taken &taken, const std::function<void(const QString &)> &send)
{
    QMutexLocker lock(&m_mutex);
    m_taken = false;
    if (taken.generation != m_generation)
        return false;
    send(taken.line);
    if (taken.jobLine > 0)
        m_execution.lineSent(taken.jobLine, taken.line);
    m_inFlight.append(taken.bytes);
    m_inFlightJobLines.append(taken.jobLine);
    m_inFlightBytes += taken.bytes;
    return true;
}

void StreamState::refillIfLow()
{
    QMutexLocker lock(&m_mutex);
    if (m_pending.isEmpty() || m_queue.size() >= kRefillBelow)
        return;
    m_queue.append(m_pending);
    m_queueJobLines.append(m_pendingJobLines);
    m_pending.clear();
    m_pendingJobLines.clear();
    notePeak();
    m_changed.wakeAll();
}

void StreamState::countDirect(int bytes)
{
    QMutexLocker lock(&m_mutex);
    m_inFlight.append(bytes);
    m_inFlightJobLines.append(0);
    m_inFlightBytes += bytes;
}

void StreamState::releaseOldest()
{
    QMutexLocker lock(&m_mutex);
    if (m_inFlight.isEmpty() || holdActive())
        return;
    m_inFlightBytes -= m_inFlight.takeFirst();
    m_execution.lineAcknowledged(m_inFlightJobLines.takeFirst());
    m_changed.wakeAll();
}

void StreamState::noteStatusReport(const QString &report)
{
    QMutexLocker lock(&m_mutex);
    if (!holdActive())
        m_execution.statusReport(report);
}

void StreamState::freezeExecution()
{
    QMutexLocker lock(&m_mutex);
    m_execution.freeze();
}

void StreamState::setStepSizes(double xMm, double yMm)
{
    QMutexLocker lock(&m_mutex);
    m_execution.setStepSizes(xMm, yMm);
}

int StreamState::lastExecutedLine() const
{
    QMutexLocker lock(&m_mutex);
    return m_execution.lastExecutedLine();
}

int StreamState::lastAcknowledgedLine() const
{
    QMutexLocker lock(&m_mutex);
    return m_execution.lastAcknowledgedLine();
}

int StreamState::lastSentJobLine() const
{
    QMutexLocker lock(&m_mutex);
    return m_execution.lastSentLine();
}

int StreamState::plannerBlocksQueued() const
{
    QMutexLocker lock(&m_mutex);
    return m_execution.blocksQueued();
}

void StreamState::clear()
{
    QMutexLocker lock(&m_mutex);
    m_queue.clear();
    m_queueJobLines.clear();
    m_pending.clear();
    m_pendingJobLines.clear();
    m_inFlight.clear();
    m_inFlightJobLines.clear();
    m_inFlightBytes = 0;
    m_taken = false;
    m_execution.freeze();
    ++m_generation;
    m_changed.wakeAll();
}

void StreamState::holdForReset(int maxMs)
{
    QMutexLocker lock(&m_mutex);
    m_resetHold = true;
    m_resetHoldMs = maxMs;
    m_resetHoldClock.start();
}

void StreamState::releaseResetHold()
{
    QMutexLocker lock(&m_mutex);
    m_resetHold = false;
    m_inFlight.clear();
    m_inFlightJobLines.clear();
    m_inFlightBytes = 0;
    m_changed.wakeAll();
}

void StreamState::beginJob(int totalLines)
{
    QMutexLocker lock(&m_mutex);
    m_totalLines = totalLines;
    m_sentLines = 0;
    m_lastProgress = -1;
    m_nextJobLine = 1;
    m_execution.beginJob();
}

QList<int> StreamState::countSent(bool jobLine)
{
    QList<int> announce;
    if (!jobLine)
        return announce; // a command (connecting, "$10", a jog) starts no job
    QMutexLocker lock(&m_mutex);
    if (m_sentLines == 0) {
        announce.append(0);
        m_lastProgress = 0;
    }
    ++m_sentLines;
    if (m_totalLines > 0) {
        const int p = qMin(100, int(std::lround(100.0 * m_sentLines / m_totalLines)));
        if (p != m_lastProgress) {
            announce.append(p);
            m_lastProgress = p;
        }
    }
    return announce;
}

int StreamState::inFlight() const
{
    QMutexLocker lock(&m_mutex);
    return m_inFlightBytes;
}

QList<int> StreamState::inFlightLengths() const
{
    QMutexLocker lock(&m_mutex);
    return m_inFlight;
}

int StreamState::queued() const
{
    QMutexLocker lock(&m_mutex);
    return m_queue.size();
}

int StreamState::pendingCount() const
{
    QMutexLocker lock(&m_mutex);
    return m_pending.size();
}

bool StreamState::holdingReset() const
{
    QMutexLocker lock(&m_mutex);
    return holdActive();
}

bool StreamState::drained() const
{
    QMutexLocker lock(&m_mutex);
    return m_queue.isEmpty() && m_pending.isEmpty() && !m_taken && m_inFlight.isEmpty();
}

int StreamState::peakBuffered() const
{
    QMutexLocker lock(&m_mutex);
    return m_peak;
}

void StreamState::resetPeak()
{
    QMutexLocker lock(&m_mutex);
    m_peak = m_queue.size() + m_pending.size();
}

void StreamState::notePeak()
{
    m_peak = qMax(m_peak, m_queue.size() + m_pending.size());
}

void StreamState::wakeAll()
{
    QMutexLocker lock(&m_mutex);
    m_changed.wakeAll();
}
