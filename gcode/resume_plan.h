#pragma once

#include <QPointF>
#include <QString>
#include <QStringList>

class QIODevice;

// Resuming a job part-way: the controller's modal state at a line of the job,
// and the lines that restore it before the rest of the job runs. Plain
// functions, any thread. Lines are numbered from 1, as in the job file.
namespace lumitra::gcode {

// What the G-code parser holds before a line runs.
struct ModalState
{
    int motion = 0;       // G0, G1, G2, G3
    bool absolute = true; // G90 (false: G91)
    bool inches = false;  // G20 (false: G21)
    int spindle = 5;      // M3, M4 or M5
    double power = 0.0;   // S
    double feed = 0.0;    // F, in the job's units per minute
    bool hasFeed = false;
    // Where the head is, in millimetres of the work coordinates. The job is
    // taken to start at 0,0 (an axis the job has not yet moved absolutely and
    // only moved by relative moves is counted from 0 too).
    QPointF position;
    // The third axis (a rotary's turn, in its own units, or a height), once
    // the job has moved it; counted from 0 like X and Y.
    double z = 0.0;
    bool movesZ = false;

    bool operator==(const ModalState &o) const;
    bool operator!=(const ModalState &o) const { return !(*this == o); }
};

// Follows a job line by line.
class ModalTracker
{
public:
    ModalTracker() = default;
    // Goes on from `state` (a state saved part-way through a job).
    explicit ModalTracker(const ModalState &state) : m_state(state) {}
    void feed(const QString &line);
    const ModalState &state() const { return m_state; }

private:
    ModalState m_state;
};

// The state before line `line` (after lines 1 .. line - 1).
ModalState modalStateBefore(const QStringList &job, int line);

// The lines that bring a machine, whatever its parser state, to `state` with
// the laser off until the head is there:
//   M5 S0                laser off (no power either)
//   G90 G21              absolute millimetres for the move
//   G0 X.. Y.. [Z..]     to the resume point, laser off (Z when the job moved
//                        it: the rotary's turn, or the height)
//   G20                  when the job is in inches
//   G0 F..               the job's feed
//   G91                  when the job moves relatively
//   M3 S.. / M4 S.. / S..  the laser mode and power, set in G0, where the
//                        controller keeps the beam off
// The job's G1/G2/G3 mode is not set here: entering G1 without a move turns
// a constant-power (M3) beam on where the head stands, and G2/G3 cannot stand
// without an arc. The resumed job names it on its first line that moves.
QStringList resumePreamble(const ModalState &state);

// A resumed job: the preamble, then lines `fromLine` .. end of the job.
struct ResumeJob
{
    int preambleLines = 0;
    int fromLine = 1;
    int jobLines = 0; // lines of the whole job
    // The resumed job's lines; filled by buildResumeJob only (the file
    // writers stream and keep no lines).
    QStringList lines;
    // The job line a line of the resumed job (1-based) stands for;
    // fromLine - 1 for a preamble line (the job has reached that far when it
    // runs).
    int jobLineOf(int resumedLine) const;
};

// A place to start reading a job other than its first line: where line
// `line` starts in the file and the parser state before it (JobStateIndex
// keeps one every few lines).
struct JobCheckpoint
{
    qint64 offset = 0;
    int line = 1;
    ModalState state;
};

// Streams the job from `job` and writes the resumed job from `fromLine`
// (1 .. lines + 1) to `out`, holding one line at a time: any size of job
// takes the same memory. Reading starts at `start` (the job's start unless
// given; one after fromLine is not used). The lines after the preamble go out
// as they stand, but for the job's motion mode named on the first that moves;
// a last line without its end gets one. `info` gets the mapping and the job's
// length; a `fromLine` past the job's end writes the preamble alone
// (info->fromLine > info->jobLines tells). False when reading or writing fails.
bool writeResumeJob(QIODevice &job, int fromLine, QIODevice &out, ResumeJob *info,
                    const JobCheckpoint &start = JobCheckpoint());
// The same from file to file; false with the reason ("cannot read …" or
// "cannot write …") when a file fails.
bool writeResumeJobFile(const QString &jobPath, int fromLine, const QString &outPath,
                        ResumeJob *info, QString *error,
                        const JobCheckpoint &start = JobCheckpoint());
// The resumed job of a job held in memory, lines included (fromLine is
// brought within 1 .. lines + 1).
ResumeJob buildResumeJob(const QStringList &job, int fromLine);

} // namespace lumitra::gcode
