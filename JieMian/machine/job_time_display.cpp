#include "job_time_display.h"

#include "grbl_machine_settings.h"
#include "jk_com.h"
#include "machine_controller.h"
#include "machine_panel.h"
#include "program_state.h"
#include "sd_job_watch.h"
#include "ui_machine_panel.h"
#include "wifi_link_controller.h"

#include <QThread>
#include <memory>

JobTimeDisplay::JobTimeDisplay(MachineController *machine, MachinePanel *panel, QObject *parent)
    : QObject(parent), m_machine(machine), m_panel(panel)
{
    m_tick.setInterval(1000);
    connect(&m_tick, &QTimer::timeout, this, [this] { refresh(); });
    connect(machine, &MachineController::connectionChanged, this, [this] { watchLink(); });
    watchLink();
}

void JobTimeDisplay::watchLink()
{
    Jk_com *com = m_machine ? m_machine->link() : nullptr;
    if (!com || com == m_watched)
        return;
    m_watched = com;
    connect(com, &Jk_com::diao_ke_jin_du, this, &JobTimeDisplay::onProgress);
    connect(com, &Jk_com::jobRan, this, &JobTimeDisplay::stopShowing);
    connect(com, &Jk_com::deviceFault, this, &JobTimeDisplay::stopShowing);
    connect(com, &Jk_com::linkLost, this, &JobTimeDisplay::stopShowing);
    if (m_panel)
        connect(m_panel->form().stop_Btn, &QPushButton::clicked, this, &JobTimeDisplay::stopShowing,
                Qt::UniqueConnection);
}

void JobTimeDisplay::watchWifi(WifiLinkController *wifi)
{
    if (!wifi || wifi == m_wifi)
        return;
    m_wifi = wifi;
    connect(wifi, &WifiLinkController::jobStarted, this, &JobTimeDisplay::onWifiJobStarted);
}

void JobTimeDisplay::onWifiJobStarted(const QString &path)
{
    SdJobWatch *watch = m_wifi ? m_wifi->jobWatch() : nullptr;
    if (!watch)
        return;
    m_wifiJob = watch;
    connect(watch, &SdJobWatch::finished, this, &JobTimeDisplay::stopShowing, Qt::UniqueConnection);
    connect(watch, &SdJobWatch::interrupted, this, &JobTimeDisplay::stopShowing,
            Qt::UniqueConnection);
    m_active = false;
    begin(path);
}

void JobTimeDisplay::onProgress(int percent)
{
    if (percent != 0 || m_active || !m_machine)
        return;
    m_wifiJob = nullptr;
    begin(lumitra::programState().jobFilePath);
}

double JobTimeDisplay::remainingSeconds(double elapsed) const
{
    if (m_wifiJob)
        return m_timeline.remainingFromRunning(m_wifiJob->headLine(), elapsed);
    return m_timeline.remainingSeconds(m_watched ? m_watched->lastAcknowledgedLine() : 0, elapsed);
}

void JobTimeDisplay::begin(const QString &path)
{
    if (!m_machine)
        return;
    m_active = true;
    m_planned = false;
    m_clock.start();
    m_tick.start();
    // Planned on a thread of its own: a long job takes a while.
    const quint64 run = ++m_run;
    const GrblMachineSettings settings = m_machine->jobTimingSettings(m_wifiJob != nullptr);
    auto result = std::make_shared<PlannedJobTime>();
    auto ok = std::make_shared<bool>(false);
    QThread *thread =
        QThread::create([=] { *ok = PlannedJobTime::planFile(path, settings, result.get()); });
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    connect(thread, &QThread::finished, this, [this, run, result, ok] {
        if (run != m_run || !m_active)
            return;
        if (!*ok) {
            // The file was not the run's (a report that came before the job
            // file was named): the next start report plans again.
            m_active = false;
            m_tick.stop();
            return;
        }
        m_timeline = *result;
        m_planned = true;
        refresh();
    });
    thread->start();
}

void JobTimeDisplay::refresh(double elapsedSeconds)
{
    if (!m_active || !m_planned || !m_panel)
        return;
    const double elapsed = elapsedSeconds >= 0.0 ? elapsedSeconds : m_clock.elapsed() / 1000.0;
    m_panel->form().remaining_Lab->setText(
        tr("剩余 %1").arg(formatRunTime(remainingSeconds(elapsed))));
}

QString JobTimeDisplay::text() const
{
    return m_panel ? m_panel->form().remaining_Lab->text() : QString();
}

void JobTimeDisplay::stopShowing()
{
    m_active = false;
    m_tick.stop();
    if (m_panel)
        m_panel->form().remaining_Lab->clear();
}
