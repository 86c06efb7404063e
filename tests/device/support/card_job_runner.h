#pragma once

#include "job_simulator.h"

#include <QFile>
#include <QList>
#include <QPointF>
#include <deque>

// How the fake WiFi board runs a file from its card: lines are read into a
// planner of 15 blocks as soon as there is room (a line whose move goes
// nowhere makes no block), and each block takes `msPerBlock` to run. Every
// block run is kept with its laser state and its job line. An alarm or a
// reset drops the planner. Plain class.
class CardJobRunner
{
public:
    struct ExecutedMove
    {
        QPointF from, to;
        bool burning = false;
        double power = 0.0;
        int line = 0; // job line (1-based)
    };

    bool open(const QString &path, int msPerBlock, int plannerBlocks = 15);
    // Runs for `ms` (whole blocks; the rest is carried over). With
    // `stopAfterBlocks` >= 0 it stops once that many blocks have run in all and
    // returns true.
    bool advance(int ms, int stopAfterBlocks = -1);
    // The file is read and every block has run.
    bool finished() const;
    // Alarm or reset: the queued blocks are dropped, nothing more is read.
    void halt();

    double percentRead() const;
    int linesRead() const { return m_linesRead; }
    int queuedBlocks() const { return int(m_queue.size()); }
    int blocksRun() const { return m_blocksRun; }
    QPointF position() const { return m_position; }
    // Job line of the first block not run yet: the oldest queued one, or the
    // next line to read.
    int firstQueuedLine() const { return m_queue.empty() ? m_linesRead + 1 : m_queue.front().line; }
    // Job line of the last block run (0 before the first).
    int lastRunLine() const { return m_lastRunLine; }
    const QList<ExecutedMove> &executed() const { return m_executed; }

private:
    void fill();

    QFile m_file;
    JobSimulator m_parser;
    std::deque<ExecutedMove> m_queue;
    QList<ExecutedMove> m_executed;
    qint64 m_size = 0;
    qint64 m_read = 0;
    int m_linesRead = 0;
    int m_msPerBlock = 1;
    int m_plannerBlocks = 15;
    int m_carryMs = 0;
    int m_blocksRun = 0;
    int m_lastRunLine = 0;
    bool m_halted = false;
    QPointF m_position;
};
