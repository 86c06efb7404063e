#include "resume_offer.h"

#include "jk_com.h"
#include "machine_controller.h"
#include "machine_panel.h"
#include "message_box.h"
#include "program_state.h"
#include "resume_dialog.h"
#include "sd_job_watch.h"
#include "ui_machine_panel.h"
#include "wifi_link_controller.h"

#include <QDateTime>
#include <QDebug>
#include <QFileInfo>
#include <QThread>
#include <QTimer>
#include <memory>

ResumeOffer::ResumeOffer(MachineController *machine, MachinePanel *panel, QWidget *dialogParent,
                         QObject *parent)
    : QObject(parent), m_machine(machine), m_dialogParent(dialogParent)
{
    // After the controller's own handler, which has reset the machine.
    connect(panel->form().stop_Btn, &QPushButton::clicked, this, &ResumeOffer::onStop);
    connect(machine, &MachineController::connectionChanged, this, [this] { watchLink(); });
    watchLink();
}

ResumeOffer::~ResumeOffer()
{
    if (m_dialog)
        delete m_dialog;
}

void ResumeOffer::watchLink()
{
    Jk_com *com = m_machine ? m_machine->link() : nullptr;
    if (!com || com == m_watched)
        return;
    m_watched = com;
    connect(com, &Jk_com::diao_ke_jin_du, this, &ResumeOffer::onProgress);
    // Not at the last "ok": the planner may still hold 15 blocks to run.
    connect(com, &Jk_com::jobRan, this, &ResumeOffer::onFinished);
    connect(com, &Jk_com::deviceFault, this, [this] { interrupted(true); });
    connect(com, &Jk_com::linkLost, this, [this] { interrupted(false); });
}

void ResumeOffer::watchWifi(WifiLinkController *wifi)
{
    if (!wifi || wifi == m_wifi)
        return;
    m_wifi = wifi;
    connect(wifi, &WifiLinkController::jobStarted, this, &ResumeOffer::onWifiJobStarted);
}

void ResumeOffer::onWifiJobStarted(const QString &path)
{
    SdJobWatch *watch = m_wifi ? m_wifi->jobWatch() : nullptr;
    if (!watch)
        return;
    m_wifiJob = watch;
    connect(watch, &SdJobWatch::finished, this, &ResumeOffer::onFinished, Qt::UniqueConnection);
    connect(watch, &SdJobWatch::interrupted, this, &ResumeOffer::onWifiInterrupted,
            Qt::UniqueConnection);
    m_jobActive = false;
    jobStarted(path);
}

void ResumeOffer::onWifiInterrupted(bool positionLost)
{
    if (!m_jobActive || !m_wifiJob)
        return;
    m_jobActive = false;
    // A board out of reach may have lost power, or may burn on.
    const QString warning =
        m_wifiJob->ending() == SdJobWatch::Ending::LinkLost
            ? tr("与设备的连接已断开:设备可能已断电,也可能仍在运行。请先确认设备已停止,"
                 "再归位或重新设置原点。")
            : QString();
    // The first line not surely run, less one, is the last one run.
    offer(originalLine(m_wifiJob->resumeLine() - 1) + 1, positionLost, warning);
}

void ResumeOffer::onProgress(int percent)
{
    if (percent != 0 || m_jobActive)
        return;
    m_wifiJob = nullptr;
    jobStarted(lumitra::programState().jobFilePath);
}

void ResumeOffer::jobStarted(const QString &path)
{
    m_jobActive = true;
    // An offer still open, or still being prepared, is for the job before
    // this one.
    ++m_offerRun;
    if (m_dialog)
        m_dialog->close();
    if (path != m_running) {
        m_running = path;
        m_original = path;
        m_preambleLines = 0;
        m_firstJobLine = 1;
    }
}

void ResumeOffer::onFinished()
{
    m_jobActive = false;
}

int ResumeOffer::originalLine(int fileLine) const
{
    if (fileLine <= m_preambleLines)
        return m_firstJobLine - 1;
    return m_firstJobLine + fileLine - m_preambleLines - 1;
}

void ResumeOffer::onStop()
{
    // The card job's watch tells its own interruption.
    if (m_wifiJob && m_jobActive)
        m_wifiJob->stopped();
    else
        interrupted(true);
}

void ResumeOffer::interrupted(bool positionLost)
{
    if (!m_jobActive || !m_watched || m_wifiJob)
        return;
    m_jobActive = false;
    offer(originalLine(m_watched->lastExecutedLine()) + 1, positionLost);
}

void ResumeOffer::offer(int next, bool positionLost, const QString &warning)
{
    m_positionLost = positionLost;
    m_warning = warning;
    m_offeredJob = jobStamp(m_original);
    // Reading and drawing a job of millions of lines takes seconds: done on a
    // thread of its own, the window stays responsive. A newer offer or a new
    // job makes this one stale.
    const quint64 run = ++m_offerRun;
    auto prepared = std::make_shared<PreparedOffer>();
    const QString path = m_original;
    QThread *thread = QThread::create([prepared, path] {
        prepared->ok = prepared->job.build(path);
        if (prepared->ok)
            prepared->preview = ResumeDialog::renderPreview(prepared->job);
    });
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    connect(thread, &QThread::finished, this, [this, run, prepared, next, positionLost, warning] {
        if (run == m_offerRun && prepared->ok && next <= prepared->job.lineCount())
            showOffer(*prepared, next, positionLost, warning);
    });
    thread->start();
}

void ResumeOffer::showOffer(const PreparedOffer &prepared, int next, bool positionLost,
                            const QString &warning)
{
    if (m_dialog)
        delete m_dialog;
    m_offeredIndex = prepared.job;
    m_dialog = new ResumeDialog(prepared.job, next, positionLost, m_dialogParent, prepared.preview);
    if (!warning.isEmpty())
        m_dialog->setWarning(warning);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_dialog, &QDialog::accepted, this, [this] {
        const int line = m_dialog->line();
        QTimer::singleShot(0, this, [this, line] { resumeFrom(line); });
    });
    m_dialog->show();
}

QString ResumeOffer::jobStamp(const QString &path)
{
    const QFileInfo info(path);
    return QStringLiteral("%1 %2").arg(info.size()).arg(info.lastModified().toMSecsSinceEpoch());
}

bool ResumeOffer::resumeFrom(int line)
{
    if (!m_machine)
        return false;
    // A board that lost its WiFi link may still be running the job from its
    // card: nothing is sent before it is idle, and the offer stays.
    if (m_machine->busy()) {
        lumitra::show_notice(m_dialogParent, tr("设备雕刻中,暂时停止使用!"));
        offer(line, m_positionLost, m_warning);
        return false;
    }
    // The window writes every job to the same file: one written since the
    // offer is another job, and its lines are not the ones offered.
    if (jobStamp(m_original) != m_offeredJob) {
        lumitra::show_notice(m_dialogParent, tr("作业文件已被新的作业替换,无法继续。"));
        return false;
    }
    const QString path =
        m_dir.filePath(QStringLiteral("resume-%1").arg(QFileInfo(m_original).fileName()));
    lumitra::gcode::ResumeJob r;
    QString error;
    // The offer's index of this very file lets the writing start near the line.
    const lumitra::gcode::JobCheckpoint start = m_offeredIndex.path() == m_original
                                                    ? m_offeredIndex.checkpointBefore(line)
                                                    : lumitra::gcode::JobCheckpoint();
    if (line < 1 || !m_dir.isValid()
        || !lumitra::gcode::writeResumeJobFile(m_original, line, path, &r, &error, start)
        || r.fromLine > r.jobLines) {
        qDebug() << "resume failed:" << error;
        lumitra::show_notice(m_dialogParent, tr("无法继续作业。"));
        return false;
    }
    m_running = path; // its start keeps this mapping
    m_preambleLines = r.preambleLines;
    m_firstJobLine = r.fromLine;
    m_machine->runJob(path);
    emit resumed(m_original, line);
    return true;
}

ResumeDialog *ResumeOffer::dialog() const
{
    return m_dialog;
}
