#pragma once

#include "job_state_index.h"
#include "resume_plan.h"

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QTemporaryDir>
#include <functional>

class Jk_com;
class MachineController;
class MachinePanel;
class ResumeDialog;
class SdJobWatch;
class WifiLinkController;
class QWidget;

// Offers to resume a job that was interrupted: a lost port or WiFi link, an
// alarm or error from the controller, or the user's stop. The link tells how
// far the machine has surely executed (Jk_com::lastExecutedLine over the
// serial wire, SdJobWatch::resumeLine for a job on the board's card); the
// dialog suggests
// the next line, lets the user change it and shows where it is; accepting
// writes the resumed job (the state at that line restored with the laser off,
// then the rest) and runs it through the machine controller. A job that was
// itself a resumed one is counted in the lines of the original job. GUI thread.
class ResumeOffer : public QObject
{
    Q_OBJECT

public:
    // The panel's stop button counts as an interruption.
    ResumeOffer(MachineController *machine, MachinePanel *panel, QWidget *dialogParent,
                QObject *parent = nullptr);
    ~ResumeOffer() override;

    // Follows the machine controller's serial link (call again after a
    // connect: the link exists from the first connect on). Idempotent.
    void watchLink();
    // Follows the jobs the WiFi road starts on the board's card.
    void watchWifi(WifiLinkController *wifi);

    // The dialog on screen, or nullptr.
    ResumeDialog *dialog() const;
    // Where a resumed job runs from (the original job's path and line).
    QString originalJob() const { return m_original; }

public slots:
    // The job stopped before its end; `positionLost` when the controller was
    // reset or raised an alarm (it must be homed, or its origin set again).
    void interrupted(bool positionLost);
    // Runs the job `m_original` from `line` on.
    bool resumeFrom(int line);

signals:
    // A resumed job was handed to the machine controller.
    void resumed(const QString &originalJob, int fromLine);

private:
    void onProgress(int percent);
    void onFinished();
    void onWifiJobStarted(const QString &path);
    void onWifiInterrupted(bool positionLost);
    void onStop();
    // A run of `path` started: a new job unless it is the resumed one.
    void jobStarted(const QString &path);
    // Shows the dialog with `next` (a line of the original job) suggested,
    // once the job is read.
    void offer(int next, bool positionLost, const QString &warning = QString());
    struct PreparedOffer
    {
        lumitra::gcode::JobStateIndex job;
        QImage preview;
        bool ok = false;
    };
    void showOffer(const PreparedOffer &prepared, int next, bool positionLost,
                   const QString &warning);
    // The running job's line `fileLine` in the original job.
    int originalLine(int fileLine) const;
    // Size and time of the file at `path`: it changes when a new job is written.
    static QString jobStamp(const QString &path);

    QPointer<MachineController> m_machine;
    QPointer<QWidget> m_dialogParent;
    QPointer<Jk_com> m_watched;
    QPointer<WifiLinkController> m_wifi;
    QPointer<SdJobWatch> m_wifiJob; // the running job's, while one runs on the card
    QPointer<ResumeDialog> m_dialog;
    bool m_jobActive = false;
    bool m_positionLost = false;                  // of the interruption on offer
    QString m_warning;                            // its own warning, when not the reset's
    QString m_running;                            // file the link runs
    QString m_original;                           // the job it stands for
    QString m_offeredJob;                         // jobStamp of m_original when offered
    quint64 m_offerRun = 0;                       // the offer being prepared; others are stale
    lumitra::gcode::JobStateIndex m_offeredIndex; // of m_original, when offered
    int m_preambleLines = 0;
    int m_firstJobLine = 1;
    QTemporaryDir m_dir; // resumed jobs
};
