#pragma once

#include "sd_job_progress.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <memory>

class HttpThread;
class QThread;

// Follows a job the board runs from its card: the local file that was
// uploaded is indexed on a worker thread, the board is asked for a status
// report every second while the job runs (boards do not all send them by
// themselves), and every report feeds the job's progress (SdJobProgress).
// The job ends finished (Idle after Run) or interrupted: an alarm, the lost
// link, or the user's stop. GUI thread.
class SdJobWatch : public QObject
{
    Q_OBJECT

public:
    explicit SdJobWatch(HttpThread *link, QObject *parent = nullptr);
    ~SdJobWatch() override;

    // One motor step in mm on X and Y (from $100, $101); 0 keeps 0.1 mm.
    void setStepSizes(double xMm, double yMm);
    void setPollInterval(int ms) { m_poll.setInterval(ms); }

    // Before a run: asks the board to add the planner's free blocks ("Bf:") to
    // its reports ($10 with the buffer bit, keeping MPos or WPos as it
    // reports now), unless its last report already had them.
    void askForBufferReports();
    // The board started the job whose local copy is `localPath`.
    void jobStarted(const QString &localPath);
    // The user stopped the job (the board is being reset).
    void stopped();

    bool active() const { return m_active; }
    // How the last job ended.
    enum class Ending { Running, Finished, Alarm, LinkLost, Stopped };
    Ending ending() const { return m_ending; }
    QString jobPath() const { return m_path; }
    // The line the head is running by the last report, for the time left:
    // once the job is indexed, the line a resume would start from (the
    // head's position places it among the lines the planner holds, which
    // may be long moves); before that, the line being read.
    int headLine() const
    {
        return m_progress.indexed() ? m_progress.resumeLine() : m_progress.currentLine();
    }
    // The first line not surely executed; waits for the index when it is not
    // ready yet. Meaningful after the job ended.
    int resumeLine();
    const SdJobProgress &progress() const { return m_progress; }

signals:
    void finished();
    // The job ended early; `positionLost` when the board was reset, raised an
    // alarm or may have lost power (it must be homed or its origin set).
    void interrupted(bool positionLost);

private:
    void onLine(const QString &line);
    void end(Ending how);
    void applyIndex();

    QPointer<HttpThread> m_link;
    SdJobProgress m_progress;
    std::shared_ptr<SdJobProgress> m_indexing; // the worker's result
    QThread *m_thread = nullptr;
    QString m_lastReport;   // last report a running machine sent
    QString m_anyReport;    // last report of any kind
    QString m_offsetReport; // last report with the work offset (WCO)
    QString m_path;
    double m_stepX = 0.0, m_stepY = 0.0;
    bool m_active = false;
    Ending m_ending = Ending::Running;
    bool m_sawRun = false;
    QTimer m_poll;
};
