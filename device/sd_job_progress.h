#pragma once

#include "execution_tracker.h"

#include <QPointF>
#include <QString>
#include <QVector>
#include <vector>

// Where a job that the board runs from its card stands, told from the board's
// status reports, and which line it has surely executed.
//
// The board reports how much of the file it has read, in percent of the
// file's bytes with two decimals ("SD:12.34,/001.nc"). What it has read went
// through GRBL's receive buffer (127 bytes) into the planner (15 blocks)
// before it ran; the report's "Bf:<free blocks>,..." field tells how many
// blocks still wait. So, from the last report of a running machine:
//   - every byte before (percent - 0.01) % of the file, less the 127 bytes a
//     receive buffer may hold, has surely been parsed;
//   - of the lines parsed, the last (15 - free) lines that surely make a
//     planner block may not have run yet (all 15 without a "Bf:" field), and
//     while the machine runs 5 more (lumitra::grbl::kSegmentBlocks);
//   - so every line before the first of those has run.
// The head's position in that report narrows it down: the block running then
// holds the position, so the earliest line from there up to the last line the
// board may have read whose move passes through the position (within a motor
// step) is a safe place to resume. This is only used when the position is
// known in the job's coordinates (WPos, or MPos with a WCO seen) and no arc
// or coordinate change makes the job's moves uncertain.
// As with the serial link's tracking, everything errs towards "not yet run":
// resuming from resumeLine() leaves no gap and burns again at most what the
// planner and the receive buffer held (and what ran after the last report).
// Reports of a stopped machine (Alarm, Door, ...) are not used: an alarm
// empties the planner without running it.
//
// The job is indexed once (where every kIndexStride-th line starts and which
// lines surely make a block), which reads the whole file: do it on a worker
// thread for a large job. After that the queries read at most kIndexStride
// lines. Plain class; the index is not changed by the queries.
class SdJobProgress
{
public:
    static constexpr int kIndexStride = 256;
    static constexpr int kPlannerBlocks = 15;
    static constexpr int kReceiveBytes = 127;
    static constexpr double kPercentStep = 0.01; // the report's resolution

    // Reads the job `path`; `stepXmm`, `stepYmm` are one motor step ($100,
    // $101 are steps per mm; 0 keeps a safe 0.1 mm). False when it cannot be
    // read.
    bool index(const QString &path, double stepXmm = 0.0, double stepYmm = 0.0,
               QString *error = nullptr);
    bool indexed() const { return m_indexed; }
    QString path() const { return m_path; }
    int lineCount() const { return m_lines; }
    qint64 size() const { return m_size; }

    // A status report as the board sent it ("<Run|MPos:...|Bf:12,100|SD:3.50,/001.nc>").
    // Reports that are not a running machine's, or carry no "SD:" field, are
    // ignored; true when the report was taken.
    bool statusReport(const QString &report);
    // Takes only the work coordinate offset ("WCO:") of any report, running or
    // not: GRBL sends it now and then, not in every report.
    void workOffsetReport(const QString &report);
    // Forgets the reports (a new run of the same file).
    void clearReports();
    bool hasReport() const { return m_percent >= 0.0; }
    double percent() const { return m_percent; }

    // The 1-based line holding byte `offset` of the file; lineCount() + 1 at
    // or after the end, 1 before the start.
    int lineAtByte(qint64 offset) const;
    // Whether line `line` surely makes a planner block.
    bool makesBlock(int line) const;
    // The line the board is reading by the last report (for the time left).
    int currentLine() const;
    // The first line not surely executed: a resumed job starts here.
    int resumeLine() const;
    // The same from the read share and the planner alone (no position).
    int resumeLineByBuffer() const;
    // The head's position in the job's coordinates at the last report taken,
    // when known.
    bool hasPosition() const { return m_hasPosition; }
    QPointF position() const { return m_position; }

private:
    QString m_path;
    bool m_indexed = false;
    qint64 m_size = 0;
    int m_lines = 0;
    QVector<qint64> m_marks;        // byte offset of lines 1, 1 + stride, ...
    std::vector<bool> m_sureBlocks; // per line, index 0 = line 1
    // The parser model before each mark's line, and whether an arc came before.
    QVector<ExecutionTracker::ParserModel> m_markModels;
    QVector<bool> m_markArcs;
    double m_stepX = 0.1, m_stepY = 0.1;
    double m_percent = -1.0; // last running report's percent
    int m_blocksToRun = kPlannerBlocks + lumitra::grbl::kSegmentBlocks; // and its blocks to run
    bool m_hasPosition = false; // and the head's position (work coordinates)
    QPointF m_position;
    bool m_hasOffset = false; // the last work coordinate offset reported (WCO)
    QPointF m_offset;
};
