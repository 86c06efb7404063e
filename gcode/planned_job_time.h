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
    // Time still to run once `acknowledged` lines are answered, `elapsed`
    // seconds after the start: the plan for the lines not yet answered, scaled
    // by how the real time compares with the plan so far (once the plan so far
    // is at least kCorrectAfter seconds; the scale is kept within 0.5 .. 3).
    double remainingSeconds(int acknowledged, double elapsed) const;
    static constexpr double kCorrectAfter = 5.0;

private:
    class Builder;
    QVector<int> m_marks;      // line numbers of the checkpoints, rising, starting at 0
    QVector<double> m_seconds; // planned seconds through each mark
    double m_total = 0.0;
    int m_lineCount = 0;
};

// "1:02:03" (hours only when there are some), for the running display.
QString formatRunTime(double seconds);
