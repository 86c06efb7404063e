#pragma once

#include "grbl_machine_settings.h"

#include <QString>
#include <QStringList>
#include <QVector>

// The planned time of a job line by line, for the elapsed / remaining display
// of a running job. The controller's motion planning (GrblTimeEstimator) is run
// once over the whole job; at a few hundred checkpoints it is run to a stop to
// give the time through that line, and lines in between are interpolated.
// Plain class, any thread.
class PlannedJobTime
{
public:
    static constexpr int kCheckpoints = 256;

    PlannedJobTime() = default;
    static PlannedJobTime plan(const QStringList &job, const GrblMachineSettings &settings);
    // Streams the file; false when it cannot be read.
    static bool planFile(const QString &path, const GrblMachineSettings &settings,
                         PlannedJobTime *timeline);

    int lines() const { return m_lineCount; }
    double totalSeconds() const { return m_total; }
    // Planned seconds until lines 1 .. `line` have run.
    double secondsThrough(int line) const;
    // Planned seconds until the controller has answered line `line`: when it
    // had room to plan it. Lines answered are not yet run (up to a planner's
    // worth of them still waits).
    double secondsAnswered(int line) const;
    // Time still to run once `acknowledged` lines are answered, `elapsed`
    // seconds after the start: the plan from that answer on (the planned
    // lines still to run included), scaled by how the real time compares with
    // the plan so far (once the plan so far is at least kCorrectAfter seconds;
    // the scale is kept within 0.5 .. 3).
    double remainingSeconds(int acknowledged, double elapsed) const;
    // The same when the machine is known to run line `running` (a job from
    // the board's card, placed by the head's position): the lines before it
    // have run.
    double remainingFromRunning(int running, double elapsed) const;
    static constexpr double kCorrectAfter = 5.0;

private:
    class Builder;
    double interpolated(const QVector<double> &atMarks, int line) const;
    double remainingAfter(double done, double elapsed) const;
    QVector<int> m_marks;       // line numbers of the checkpoints, rising, starting at 0
    QVector<double> m_seconds;  // planned seconds through each mark
    QVector<double> m_answered; // planned seconds until each mark's line was answered
    double m_total = 0.0;
    int m_lineCount = 0;
};

// "1:02:03" (hours only when there are some), for the running display.
QString formatRunTime(double seconds);
