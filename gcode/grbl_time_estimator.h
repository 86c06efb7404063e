#pragma once

#include "grbl_machine_settings.h"

#include <QString>
#include <QVector>
#include <deque>
#include <vector>

class QIODevice;

// Estimates how long the controller takes to run a job by planning it the way
// the controller does: a look-ahead buffer of 16 blocks (15 usable), a
// backward pass from a full stop at the end of the buffer and a forward pass
// from the current speed, junction speeds from the junction deviation and the
// angle between moves, and a trapezoid (or triangle) speed profile per block.
// Rapids run at the maximum rates, limited per axis; everything that makes the
// controller wait for its buffer to empty (dwell, spindle and coolant
// changes, the program end, and power changes outside laser mode) brings the
// machine to a stop. When the settings name a link rate, the controller can
// only plan a line once its bytes have come down the link, and the sender
// keeps at most kReceiveBuffer bytes unanswered: a job that needs more than
// the link carries starves the buffer, which then plans to stop at its end.
// Plain class, any thread. Units: mm, mm/min, seconds.
class GrblTimeEstimator
{
public:
    // `lineTimes`: keep every line's end for lineEndSeconds() (8 bytes a
    // line); without it only the whole time is known.
    explicit GrblTimeEstimator(const GrblMachineSettings &settings = GrblMachineSettings(),
                               bool lineTimes = true);

    // Takes one line of G-code (without its end).
    void feedLine(const QString &line);
    // Runs what is still buffered to a stop and returns the whole time so far.
    double seconds();
    // When the controller answered the last line fed ("ok": the line is
    // planned, after any wait for a free planner slot, a sync or a dwell),
    // in seconds from the start. A sender that has its answer for that line
    // is this far into the job, though the lines still in the planner have
    // not run yet.
    double answeredSeconds() const { return m_lastAnswered; }
    // Planned motion blocks so far (arcs count one per segment).
    int blocks() const { return m_blocks; }
    // Lines fed so far, every line counted (comments and refused lines too).
    int lines() const { return m_lines; }
    // For every line fed so far (empty when line times are not kept), the
    // time (seconds from the start) by which the controller has run it: its
    // last block finished, its dwell waited. A line that does not move ends
    // when the line before it does, so the times never decrease. Runs what is
    // still buffered to a stop first, as seconds() does.
    QVector<double> lineEndSeconds();

    // Estimates a whole job; false when the device cannot be read.
    static bool estimate(QIODevice &job, const GrblMachineSettings &settings, double *seconds);

    static constexpr int kBufferBlocks = 16;
    // The controller's receive buffer the sender fills by counting characters.
    static constexpr int kReceiveBuffer = 127;

private:
    struct Block
    {
        double length = 0.0;     // mm
        double accel = 0.0;      // mm/s², limited per axis
        double nominal = 0.0;    // mm/s
        double maxEntrySq = 0.0; // (mm/s)²
        int line = 0;            // the line it came from
        double parsed = 0.0;     // when the controller planned it (s)
    };

    void parseLine(const QString &line);
    double receive(int bytes);
    double exitSqWithin(size_t known) const;
    void addLine(const double target[3], bool rapid);
    void addArc(const double target[3], const double offset[3], bool clockwise);
    void synchronize();
    void executeFront();

    GrblMachineSettings m_settings;
    std::deque<Block> m_queue; // planned, not yet run
    double m_entrySq = 0.0;    // speed² at the start of the front block
    double m_prevUnit[3] = {0.0, 0.0, 0.0};
    double m_prevNominal = 0.0;
    double m_seconds = 0.0;
    int m_blocks = 0;
    bool m_lineTimes = true;
    int m_lines = 0;
    std::vector<double> m_lineEnd; // per line fed when kept; negative until it has run

    // The link (only with a link rate).
    double m_now = 0.0;          // when the controller has the line it parses
    double m_lastAnswered = 0.0; // when the line before it was answered
    double m_wireFree = 0.0;     // when the link has sent everything so far
    double m_sent = 0.0;         // bytes sent so far
    // (bytes sent through a line, when it was answered) for the lines that
    // may still hold the receive buffer; starts with the empty start.
    std::deque<std::pair<double, double>> m_answers{{0.0, 0.0}};

    // Parser state.
    double m_pos[3] = {0.0, 0.0, 0.0};
    int m_motion = 0; // 0, 1, 2, 3
    int m_plane[2] = {0, 1};
    bool m_absolute = true;
    double m_unit = 1.0; // mm per programmed unit
    double m_feed = 0.0; // mm/min, 0 = none yet
    double m_power = 0.0;
    int m_spindle = 5; // 3, 4 or 5
    int m_coolant = 9; // 7, 8 or 9
};

// The time of one block: from speed v0 to v1 (mm/s) over `length` mm, never
// faster than `nominal`, accelerating and braking at `accel` mm/s².
double trapezoid_seconds(double length, double v0, double v1, double nominal, double accel);
