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

    bool operator==(const ModalState &o) const;
    bool operator!=(const ModalState &o) const { return !(*this == o); }
};

// Follows a job line by line.
class ModalTracker
{
public:
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
//   G0 X.. Y..           to the resume point, laser off
//   G20                  when the job is in inches
//   G1 F.. / G0 F..      the job's motion mode and feed (G1 for G2/G3, which
//                        cannot stand without an arc: buildResumeJob puts the
//                        G2/G3 in front of the first resumed line instead)
//   G91                  when the job moves relatively
//   M3 S.. / M4 S.. / S..  the laser mode and power; in laser mode the beam
//                        only fires with the next G1/G2/G3 move
QStringList resumePreamble(const ModalState &state);

// A resumed job: the preamble, then lines `fromLine` .. end of `job`.
struct ResumeJob
{
    QStringList lines;
    int preambleLines = 0;
    int fromLine = 1;
    // The job line a line of `lines` (1-based) stands for; fromLine - 1 for a
    // preamble line (the job has reached that far when it runs).
    int jobLineOf(int resumedLine) const;
};
ResumeJob buildResumeJob(const QStringList &job, int fromLine);

// Reads a job file into lines (line ends cut); false when it cannot be read.
bool readJobLines(const QString &path, QStringList *lines, QString *error);
// Writes `lines`, each ended by "\n"; false with the reason when it fails.
bool writeJobLines(const QString &path, const QStringList &lines, QString *error);

} // namespace lumitra::gcode
