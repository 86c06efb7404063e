#pragma once

#include "execution_tracker.h"

#include <QElapsedTimer>
#include <QList>
#include <QMutex>
#include <QString>
#include <QStringList>
#include <QWaitCondition>
#include <functional>

// Stream accounting of the serial link: the send queue, the pending lines the
// job reader hands over, and the lines in flight (sent, not yet answered by
// "ok") that must fit GRBL's receive buffer. Shared by the GUI thread (queue
// text, "ok", stop), the send-loop thread and the job-reader thread; every
// member sits behind the one stream mutex.
//
// Character counting: a line of n bytes (its "\n" included) may go out only when
// in-flight + n <= 127. A stop bumps a generation number so that a line the send
// loop has already taken off the queue is dropped instead of sent.
class StreamState
{
public:
    static constexpr int kReceiveWindow = 127; // bytes the controller can hold
    static constexpr int kRefillBelow = 300;   // the queue takes the pending lines below this
    static constexpr int kPendingLimit = 300;  // the reader waits while this many are pending
    static constexpr int kReaderChunk = 64;    // lines the reader hands over at a time
    // Most lines ever held at once (queue + pending), whatever the file size: a
    // queue just below the refill mark takes a full pending list, which the
    // reader then fills again.
    static constexpr int kMostLinesHeld = kRefillBelow + 2 * (kPendingLimit + kReaderChunk);

    // A line the send loop took off the queue, with "\n" appended.
    struct Taken
    {
        QString line;
        int bytes = 0;
        quint64 generation = 0;
        int jobLine = 0; // 1-based line of the running job; 0 outside a job
    };

    // GUI thread: lines of a queue-text call, appended to the send queue.
    void enqueue(const QStringList &lines);

    // Reader thread: waits up to `timeoutMs` for room in the pending list; true
    // when fewer than kPendingLimit lines are pending.
    bool waitForPendingRoom(int timeoutMs);
    // Reader thread: adds lines read for the run that began at `generation`;
    // false (nothing added) when a stop has ended that run since.
    bool appendPending(const QStringList &lines, quint64 generation);
    // The current run: changes with every stop.
    quint64 generation() const;

    // Send loop: waits up to `waitMs` for a line and takes it. While the queue
    // is empty the pending lines join it. Nothing is handed out while a reset
    // hold is on.
    bool takeNext(Taken &taken, int waitMs);
    // Send loop: waits up to `waitMs` for the taken line to fit. Returns 1 when
    // it fits, 0 when it still does not, -1 when a stop dropped it.
    int waitForRoom(const Taken &taken, int waitMs);
    // Send loop: under the mutex, hands the line to `send` and counts it in
    // flight. False (nothing sent) when a stop came in between.
    bool commit(const Taken &taken, const std::function<void(const QString &)> &send);
    // Send loop, after each line: the pending lines join a queue shorter than
    // kRefillBelow.
    void refillIfLow();

    // A line written outside the send loop (the handshake) that the controller
    // will answer with "ok".
    void countDirect(int bytes);
    // "ok": the oldest line in flight left the controller's buffer. Ignored while
    // a reset hold is on (those answers belong to lines the reset threw away).
    void releaseOldest();
    // A status report, in the order it arrived among the "ok"s (I/O thread).
    void noteStatusReport(const QString &report);
    // An alarm (or a reset, a lost port): what the job has executed stays as it
    // was until the next job.
    void freezeExecution();
    // Distance of one motor step on X and Y, for the execution figures.
    void setStepSizes(double xMm, double yMm);
    // Figures of the running (or last) job: see ExecutionTracker.
    int lastExecutedLine() const;
    int lastAcknowledgedLine() const;
    int lastSentJobLine() const;
    int plannerBlocksQueued() const;

    // Stop: empties the queue, the pending lines and the in-flight list, and
    // drops a line the loop has taken but not sent. The job's execution figures
    // freeze.
    void clear();
    // After a soft reset was written: nothing is sent and no "ok" counts until
    // the controller's start-up banner (releaseResetHold) or `maxMs` at most.
    void holdForReset(int maxMs);
    // The controller has (re)started: its receive buffer is empty.
    void releaseResetHold();

    // Job progress counters (lines of the running file and lines sent).
    void beginJob(int totalLines);
    // Counts one sent line of the job (`jobLine`; commands sent around it do
    // not count) and returns the progress to announce: the first line of a
    // job announces 0 before counting, later ones a percent that changed.
    QList<int> countSent(bool jobLine);

    int inFlight() const;
    QList<int> inFlightLengths() const;
    int queued() const;
    int pendingCount() const;
    bool holdingReset() const;
    // True when nothing is queued, pending, taken or in flight.
    bool drained() const;
    // Largest number of lines held at once (queue + pending), since the last
    // resetPeak(). Bounded for any file size.
    int peakBuffered() const;
    void resetPeak();

    // Wakes every waiter (the loop and the reader), e.g. when the loop stops.
    void wakeAll();

private:
    bool holdActive() const; // mutex held
    void notePeak();         // mutex held

    mutable QMutex m_mutex;
    QWaitCondition m_changed;
    QStringList m_queue;
    QList<int> m_queueJobLines; // per queued line: its job line, 0 outside a job
    QStringList m_pending;
    QList<int> m_pendingJobLines;
    int m_nextJobLine = 1;
    QList<int> m_inFlight;
    QList<int> m_inFlightJobLines;
    ExecutionTracker m_execution;
    int m_inFlightBytes = 0;
    quint64 m_generation = 0;
    bool m_taken = false;
    bool m_resetHold = false;
    QElapsedTimer m_resetHoldClock;
    int m_resetHoldMs = 0;
    int m_totalLines = 0;
    int m_sentLines = 0;
    int m_lastProgress = -1;
    int m_peak = 0;
};
