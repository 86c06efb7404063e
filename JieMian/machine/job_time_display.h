#pragma once

#include "planned_job_time.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

class Jk_com;
class MachineController;
class MachinePanel;
class SdJobWatch;
class WifiLinkController;

// The time left of a running job, next to the panel's progress bar (the
// elapsed time is the panel's running clock): the controller's planned time
// of the lines not yet answered (over the serial wire) or not yet read (a job
// on the board's card), scaled by how the real time compared
// with the plan so far. Planned on a worker thread with the machine's settings
// as it last reported them (its defaults otherwise) when the job starts;
// refreshed every second once planned; cleared when the job ends or stops.
// GUI thread.
class JobTimeDisplay : public QObject
{
    Q_OBJECT

public:
    JobTimeDisplay(MachineController *machine, MachinePanel *panel, QObject *parent = nullptr);

    // Follows the machine controller's serial link (again after a connect).
    void watchLink();
    // Follows the jobs the WiFi road starts on the board's card.
    void watchWifi(WifiLinkController *wifi);
    // The label's text now ("剩余 12:34"; empty with no job).
    QString text() const;
    const PlannedJobTime &timeline() const { return m_timeline; }

public slots:
    // Refreshes the label; `elapsedSeconds` < 0 takes the real time since the start.
    void refresh(double elapsedSeconds = -1.0);

private:
    void onProgress(int percent);
    void onWifiJobStarted(const QString &path);
    // Plans `path` and shows its time left from now on.
    void begin(const QString &path);
    // The plan's time still to run, `elapsed` seconds in: from the line the
    // head runs for a job on the card, from the last line answered for a
    // streamed one.
    double remainingSeconds(double elapsed) const;
    void stopShowing();

    QPointer<MachineController> m_machine;
    QPointer<MachinePanel> m_panel;
    QPointer<Jk_com> m_watched;
    QPointer<WifiLinkController> m_wifi;
    QPointer<SdJobWatch> m_wifiJob; // the running job's, for a job on the card
    PlannedJobTime m_timeline;
    bool m_active = false;
    bool m_planned = false; // m_timeline is the running job's
    quint64 m_run = 0;
    QElapsedTimer m_clock;
    QTimer m_tick;
};
