#pragma once

#include <QString>
#include <deque>

// Which line of a streamed job the machine has executed, not only planned.
//
// GRBL answers "ok" once a line is parsed and its motion is in the planner
// buffer (15 usable blocks in GRBL 1.1); the motion runs later. A status report
// with the buffer field "Bf:<free blocks>,<free bytes>" says how many blocks
// are still queued: q = 15 - free, the running block included. While the
// machine runs, blocks whose last step segments are prepared have left the
// planner without having run: the one before the queued ones, and up to four
// more short enough for all of them to fit in the segment buffer (5 segments
// of at most 10 ms; a block takes at least its length at twice its feed). The
// lines that produced those blocks are not done yet; every acknowledged line
// before the first of them is.
//
// Lines that produce no block: G90/G91, G20/G21, F, S (laser mode), comments,
// empty lines, G92, a move to where the head already is, a move shorter than
// one motor step. They only change the parser state, which a resumed job
// rebuilds from the job text, so they count as executed as soon as the block
// before them has run: the first line not yet executed is always a line with a
// block, and the lines between the last executed block and it are reported as
// executed. M3/M4/M5 changes, G4, M2 and M30 make the controller wait for an
// empty buffer before its "ok"; they need no special case.
//
// Everything errs on the side of "not yet executed", so that a resume from
// lastExecutedLine() + 1 leaves no gap (at worst it burns the last queued lines
// again): a line is only counted as a block when it surely makes one (a move of
// at least one step on an axis from a known position); an arc counts as one
// block though it makes several; blocks of a line still being planned (not yet
// answered) are charged to the answered lines; without a buffer field every
// report counts as a full buffer (Idle too: the controller may hold blocks it
// has not started yet).
//
// Plain class, not thread-safe: the stream state calls it under its mutex, in
// the order the lines go out and the answers come in.
class ExecutionTracker
{
public:
    static constexpr int kPlannerBlocks = 15;

    // A new job: numbering starts again, nothing sent.
    void beginJob();
    // The controller was reset, raised an alarm or the port is gone: from now on
    // nothing changes the figures until the next beginJob().
    void freeze() { m_frozen = true; }
    bool frozen() const { return m_frozen; }

    // Distance, in mm, of one motor step on X and Y ($100, $101 are steps/mm).
    void setStepSizes(double xMm, double yMm);

    // Job line `number` (1-based, in sending order) went out.
    void lineSent(int number, const QString &line);
    // The oldest line in flight was answered "ok"; `number` is its job line, or
    // 0 for a line outside the job.
    void lineAcknowledged(int number);
    // A status report arrived (after every answer that came before it).
    void statusReport(const QString &report);

    // Highest job line the controller has answered "ok" (0 before the first).
    int lastAcknowledgedLine() const { return m_lastAcknowledged; }
    // Highest job line N such that every job line up to N has run.
    int lastExecutedLine() const { return m_lastExecuted; }
    // Job lines sent so far.
    int lastSentLine() const { return m_lastSent; }
    // Blocks in the planner at the last report (-1 before the first one).
    int blocksQueued() const { return m_queuedBlocks; }

    // How many planner blocks a line surely makes (0 or 1), following the
    // parser state (distance mode, units, position) of the lines before it.
    // Public for the tests.
    int sureBlocks(const QString &line);

    // The parser state sureBlocks() follows: where the head is after the
    // lines so far (mm of the work coordinates, the job taken to start at
    // 0,0) and whether that is known (not after homing, G92, G10, G28, G30,
    // G53); anchored once an absolute move has set the axis, so that the
    // position no longer rests on where the job started.
    struct ParserModel
    {
        bool absolute = true;
        bool inches = false;
        bool knownX = true, knownY = true;
        bool anchoredX = false, anchoredY = false;
        double x = 0.0, y = 0.0;
        bool rapid = true;
        double feed = 0.0; // mm/min
        bool anchored() const { return knownX && knownY && anchoredX && anchoredY; }
    };
    ParserModel parserModel() const;
    void setParserModel(const ParserModel &model);
    // Whether the lines so far had an arc (G2/G3), which runs off the line
    // between its end points.
    bool sawArc() const { return m_sawArc; }

private:
    struct Acked
    {
        int number = 0;
        int blocks = 0;
        double shortestSeconds = 0.0; // the least its block can take
    };
    using Sent = Acked;

    // The step segment buffer holds up to kSegmentBlocks segments of at most
    // 10 ms each.
    static constexpr double kSegmentSeconds = 0.05;

    int sureBlocks(const QString &line, double *shortestSeconds);
    void settle(int queuedBlocks, bool running);

    // Parser model.
    bool m_absolute = true;
    bool m_inches = false;
    bool m_knownX = true, m_knownY = true;
    bool m_anchoredX = false, m_anchoredY = false;
    double m_x = 0.0, m_y = 0.0;
    bool m_rapid = true; // G0 (not G1, G2, G3)
    double m_feed = 0.0; // mm/min, 0 before any F
    double m_stepX = 0.1, m_stepY = 0.1;
    bool m_sawArc = false;

    std::deque<Sent> m_inFlight;   // sent, not answered
    std::deque<Acked> m_unsettled; // answered, maybe still in the planner
    int m_lastSent = 0;
    int m_lastAcknowledged = 0;
    int m_lastExecuted = 0;
    int m_queuedBlocks = -1;
    bool m_frozen = false;
};

namespace lumitra::grbl {
// Free planner blocks in a status report's "Bf:" field; -1 without one.
int blocksFree(const QString &report);
// While the machine runs, the controller takes a block out of the planner
// (and counts it free) once its last step segment is prepared, up to five
// segments before the motors get there: as many short blocks may still be to
// run beyond those "Bf:" counts. An idle machine prepares nothing.
constexpr int kSegmentBlocks = 5;
// Blocks a report says may still be to run: the queued planner blocks (all
// `plannerBlocks` without a "Bf:" field), and kSegmentBlocks more unless the
// machine is idle.
int blocksToRun(const QString &report, int plannerBlocks);
// The $10 value that keeps the report's position kind (MPos or WPos) and adds
// the buffer field.
int statusMaskWithBuffer(const QString &report);
} // namespace lumitra::grbl
