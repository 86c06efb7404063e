#include "machine_controller.h"

#include "chuan_kou_jian_ce.h"
#include "grbl_protocol.h"
#include "jk_com.h"
#include "machine_commands.h"
#include "machine_panel.h"
#include "message_box.h"
#include "port_choice.h"
#include "program_state.h"
#include "raster_words.h"
#include "settings_store.h"
#include "ui_machine_panel.h"

#include <QCoreApplication>
#include <QDebug>
#include <QSignalBlocker>
#include <QTime>

using lumitra::programState;
namespace machine = lumitra::machine;

namespace {

constexpr int kIndicatorTickMs = 1000;
constexpr int kSettingsAfterConnectMs = 2000;
constexpr int kHomeAfterAlarmMs = 1000;
constexpr int kWifiAlarmRearmMs = 3000;
// The link the machine was last connected over (SerialLink or WifiLink), for
// timing a job while no link is up.
const QString kLastLinkKey = QStringLiteral("JiQi/LianJie");

} // namespace

MachineController::MachineController(MachinePanel *panel, QWidget *dialogParent, QObject *parent)
    : QObject(parent), m_panel(panel), m_dialogParent(dialogParent)
{
    qRegisterMetaType<lumitra::MachineTravel>("lumitra::MachineTravel");
    m_indicatorTimer.setInterval(kIndicatorTickMs);
    connect(&m_indicatorTimer, &QTimer::timeout, this, &MachineController::updateRunTime);
    m_wifiPoll.setInterval(1000);
    connect(&m_wifiPoll, &QTimer::timeout, this, [this] {
        if (!m_wifiStatusPolled || !m_wifiStatusPolled())
            sendWifi(QStringLiteral("?"));
    });
    m_afterConnectTimer.setSingleShot(true);
    m_afterConnectTimer.setInterval(kSettingsAfterConnectMs);
    connect(&m_afterConnectTimer, &QTimer::timeout, this, [this] {
        if (m_com && m_com->isLinked())
            m_com->requestSettings();
    });
    m_portChoice = new PortChoice(panel->form().port_Box, this);
    connectPanel();
    connectStartRow();
    if (QCoreApplication *app = QCoreApplication::instance())
        connect(app, &QCoreApplication::aboutToQuit, this, &MachineController::shutdownLink);
}

MachineController::~MachineController()
{
    // The window's receivers may be half torn down already.
    const QSignalBlocker quiet(this);
    shutdownLink();
    if (m_watcher)
        m_watcher->stop();
}

void MachineController::startPortWatcher(std::function<QStringList()> lister)
{
    if (m_watcher)
        return;
    m_watcher = new Chuan_Kou_Jian_Ce(this);
    if (lister)
        m_watcher->setPortLister(std::move(lister));
    connectWatcher();
    m_watcher->setLinkMode(programState().connectionMode);
    m_watcher->start();
}

void MachineController::connectWatcher()
{
    Ui::MachinePanel &f = m_panel->form();
    connect(m_watcher, &Chuan_Kou_Jian_Ce::portAppended, m_portChoice, &PortChoice::appendPort);
    connect(m_watcher, &Chuan_Kou_Jian_Ce::portRemoved, m_portChoice, &PortChoice::removePortAt);
    connect(m_watcher, &Chuan_Kou_Jian_Ce::selectPort, m_portChoice, &PortChoice::autoSelect);
    connect(m_watcher, &Chuan_Kou_Jian_Ce::send_Duan_Kai, this, [this] {
        if (programState().connectionMode == lumitra::SerialLink)
            onLinkLost();
    });
    connect(f.port_Box, &QComboBox::currentTextChanged, this, [this](const QString &port) {
        if (m_watcher)
            m_watcher->setSelectedPort(port);
    });
    m_watcher->setSelectedPort(f.port_Box->currentText());
}

void MachineController::toggleConnection()
{
    const int mode = programState().connectionMode;
    if (mode == lumitra::SerialLink) {
        disconnectLink();
        return;
    }
    if (mode != lumitra::NotConnected)
        return; // the WiFi link is up
    const QString port = m_portChoice->port();
    if (port.isEmpty()) {
        reportConnectFailure(tr("请选择或输入串口!"));
        return;
    }
    ensureLink();
    m_com->setHandshakeTimeout(m_handshakeTimeoutMs);
    if (!m_com->connectPort(port)) {
        showDisconnected();
        reportConnectFailure(tr("无法打开串口 %1:%2").arg(port, m_com->lastError()));
    }
}

void MachineController::ensureLink()
{
    if (!m_com) {
        m_com = new Jk_com(this);
        connect(m_com, &Jk_com::handshakeFailed, this, &MachineController::onHandshakeFailed,
                Qt::QueuedConnection);
        connect(m_com, &Jk_com::yi_lian_jie, this, &MachineController::onLinkResult,
                Qt::QueuedConnection);
        connect(m_com, &Jk_com::shu_chu_zhuang_tai, this, &MachineController::onStatus,
                Qt::QueuedConnection);
        connect(m_com, &Jk_com::shu_chu_can_shu, this, &MachineController::onSettings,
                Qt::QueuedConnection);
        connect(m_com, &Jk_com::lineReceived, this, &MachineController::lineReceived,
                Qt::QueuedConnection);
        connect(m_com, &Jk_com::linkLost, this, &MachineController::onLinkLost,
                Qt::QueuedConnection);
        connect(m_com, &Jk_com::diao_ke_jin_du, m_panel->form().progress_Bar,
                &QProgressBar::setValue, Qt::QueuedConnection);
    }
}

void MachineController::disconnectLink()
{
    shutdownLink();
}

void MachineController::shutdownLink()
{
    if (m_com)
        m_com->disconnectPort();
    // The WiFi link is not this controller's; its panel state stays.
    if (programState().connectionMode != lumitra::WifiLink)
        showDisconnected();
}

void MachineController::onHandshakeFailed(const QString &port, const QString &reason)
{
    reportConnectFailure(reason.isEmpty() ? tr("串口 %1 上的设备没有作为GRBL控制器应答!").arg(port)
                                          : tr("串口 %1 在连接时出错:%2").arg(port, reason));
}

void MachineController::reportConnectFailure(const QString &text)
{
    qDebug() << " out connect" << text;
    appendConsole(text);
    lumitra::show_notice(m_dialogParent, text);
}

void MachineController::appendConsole(const QString &text)
{
    if (m_panel)
        m_panel->form().console_Edit->appendPlainText(text);
}

void MachineController::onLinkResult(bool linked)
{
    qDebug() << " Com_Lian_Jie_Fan_Hui" << linked;
    if (!linked || !m_com || !m_com->isLinked()) {
        showDisconnected();
        return;
    }
    programState().connectionMode = lumitra::SerialLink;
    lumitra::set_setting(kLastLinkKey, QString::number(lumitra::SerialLink));
    m_com->queueText(lumitra::grbl::homeText());
    m_afterConnectTimer.start();
    m_panel->form().connect_Btn->setText(tr("已连接"));
    appendConsole(tr("已连接到串口 %1").arg(m_com->portName()));
    if (m_watcher) {
        m_watcher->setSelectedPort(m_com->portName());
        m_watcher->setLinkMode(lumitra::SerialLink);
    }
    emit connectionChanged(lumitra::SerialLink);
}

void MachineController::onLinkLost()
{
    qDebug() << " out serial link lost";
    disconnectLink();
}

void MachineController::showDisconnected()
{
    const bool wasConnected = programState().connectionMode == lumitra::SerialLink;
    if (wasConnected)
        programState().connectionMode = lumitra::NotConnected;
    m_afterConnectTimer.stop();
    m_indicatorTimer.stop();
    m_headKnown = false;
    if (m_panel) {
        Ui::MachinePanel &f = m_panel->form();
        f.connect_Btn->setText(tr("连接"));
        f.running_Lab->hide();
        f.pause_Btn->setText(tr("暂停"));
        // The link switched the laser off before it closed; nothing to send.
        const QSignalBlocker quiet(f.fire_Btn);
        f.fire_Btn->setChecked(false);
        f.fire_Btn->setText(tr("点火"));
    }
    if (m_watcher)
        m_watcher->setLinkMode(programState().connectionMode);
    setBusy(false);
    if (wasConnected)
        emit connectionChanged(programState().connectionMode);
}

void MachineController::setBusy(bool serialBusy)
{
    const bool was = busy();
    m_status.busy = serialBusy;
    programState().running = busy();
    if (busy() != was)
        emit busyChanged(busy());
}

void MachineController::setWifiBusy(bool wifiBusy)
{
    const bool was = busy();
    m_wifiBusy = wifiBusy;
    programState().running = busy();
    updateWifiPoll();
    if (busy() != was)
        emit busyChanged(busy());
}

void MachineController::updateWifiPoll()
{
    if (m_wifiBusy && programState().connectionMode == lumitra::WifiLink) {
        if (!m_wifiPoll.isActive())
            m_wifiPoll.start();
    } else {
        m_wifiPoll.stop();
    }
}

void MachineController::onStatus(const QString &text)
{
    applyStatus(StatusLink::Serial, text);
}

void MachineController::onWifiStatus(const QString &text)
{
    applyStatus(StatusLink::Wifi, text);
}

void MachineController::applyStatus(StatusLink link, const QString &text)
{
    qDebug() << text;
    Ui::MachinePanel &f = m_panel->form();
    const bool wasBusy = busy();
    StatusDisplayState &state = link == StatusLink::Wifi ? m_wifiStatus : m_status;
    const StatusReaction r = reactToStatus(link, state, text, f.console_Edit->toPlainText().size());
    if (link == StatusLink::Wifi) {
        m_wifiBusy = m_wifiStatus.busy;
        updateWifiPoll();
    }
    programState().running = busy();
    if (busy() != wasBusy)
        emit busyChanged(busy());

    if (r.hasX || r.hasY) {
        if (r.hasX)
            m_x = r.x;
        if (r.hasY)
            m_y = r.y;
        m_headKnown = r.hasX && r.hasY ? true : m_headKnown;
        f.pos_Lab->setText(QStringLiteral("X:%1 Y:%2").arg(m_x, 0, 'f', 3).arg(m_y, 0, 'f', 3));
        emit positionChanged(m_x, m_y);
    }
    if (r.cameraChanged)
        emit cameraAddressChanged(r.cameraAddress);
    if (r.showIndicator)
        f.running_Lab->show();
    if (r.startIndicatorTimer && !m_indicatorTimer.isActive())
        m_indicatorTimer.start();
    if (r.stopIndicatorTimer)
        m_indicatorTimer.stop();
    if (r.hideIndicator)
        f.running_Lab->hide();
    if (r.clearConsole)
        f.console_Edit->clear();
    if (r.appendConsole)
        f.console_Edit->appendPlainText(text.trimmed());
    if (r.showAlarm) {
        if (link == StatusLink::Wifi)
            QTimer::singleShot(0, this, &MachineController::showWifiAlarm);
        else
            QTimer::singleShot(0, this, &MachineController::showAlarm);
    }
}

QMap<QString, QString> MachineController::machineSettings() const
{
    return lumitra::stored_machine_settings();
}

GrblMachineSettings MachineController::jobTimingSettings(bool fromCard) const
{
    GrblMachineSettings settings = GrblMachineSettings::fromDeviceInfo(machineSettings());
    settings.linkBytesPerSecond = fromCard ? 0.0 : lumitra::kSerialBytesPerSecond;
    return settings;
}

GrblMachineSettings MachineController::plannedJobSettings() const
{
    int link = programState().connectionMode;
    if (link == lumitra::NotConnected)
        link = lumitra::get_setting(kLastLinkKey).toInt();
    return jobTimingSettings(link == lumitra::WifiLink);
}

void MachineController::onSettings(const QMap<QString, QString> &info)
{
    // Kept for the job-time estimate, also for a later run without a machine.
    lumitra::store_machine_settings(info);
    const lumitra::MachineTravel travel =
        lumitra::work_area_from_machine(lumitra::numbered_settings(info));
    Ui::MachinePanel &f = m_panel->form();
    if (travel.maxRateX >= 0) {
        f.feed_Slider->setRange(0, travel.maxRateX);
        f.feed_Slider->setValue(travel.maxRateX / 2);
    }
    m_zTravel = travel.zTravel;
    bool ok = false;
    const double maxS = info.value(QStringLiteral("$30")).toDouble(&ok);
    if (ok && maxS > 0.0)
        m_laserMaxS = maxS;
    if (travel.workAreaKnown)
        m_travelKnown = true;
    const bool firstTime = !m_settingsApplied;
    m_settingsApplied = true;
    emit machineTravelKnown(travel, firstTime);
}

void MachineController::showAlarm()
{
    m_indicatorTimer.stop();
    m_panel->form().running_Lab->hide();
    lumitra::show_message(m_dialogParent, lumitra::MessageKind::Warning, QString(), tr("确定"),
                          tr("设备触发警告!"), tr("警告"));
    QTimer::singleShot(kHomeAfterAlarmMs, this, [this] {
        m_status.alarmShown = false;
        if (programState().connectionMode == lumitra::SerialLink && m_com)
            m_com->queueText(lumitra::grbl::homeText());
    });
}

void MachineController::showWifiAlarm()
{
    m_indicatorTimer.stop();
    m_panel->form().running_Lab->hide();
    const int confirmed =
        lumitra::show_message(m_dialogParent, lumitra::MessageKind::Warning, QString(), tr("确定"),
                              tr("设备触发警告!"), tr("警告"));
    if (confirmed && programState().connectionMode == lumitra::WifiLink) {
        sendWifi(machine::wifiSoftResetCommand());
        sendWifi(machine::homeCommand(machine::Link::Wifi));
    }
    QTimer::singleShot(kWifiAlarmRearmMs, this, [this] { m_wifiStatus.alarmShown = false; });
}

void MachineController::setWifiLinked(const QString &address)
{
    m_wifiAddress = address;
    programState().connectionMode = lumitra::WifiLink;
    lumitra::set_setting(kLastLinkKey, QString::number(lumitra::WifiLink));
    m_wifiStatus = StatusDisplayState();
    if (m_watcher)
        m_watcher->setLinkMode(lumitra::WifiLink);
    sendWifi(machine::homeCommand(machine::Link::Wifi));
    appendConsole(tr("已通过WiFi连接到 %1").arg(address));
    emit connectionChanged(lumitra::WifiLink);
}

void MachineController::onWifiLost(bool expected)
{
    if (programState().connectionMode != lumitra::WifiLink)
        return;
    programState().connectionMode = lumitra::NotConnected;
    m_indicatorTimer.stop();
    m_headKnown = false;
    m_wifiStatus = StatusDisplayState();
    setWifiBusy(false);
    if (m_panel) {
        Ui::MachinePanel &f = m_panel->form();
        f.running_Lab->hide();
        f.pause_Btn->setText(tr("暂停"));
        const QSignalBlocker quiet(f.fire_Btn);
        f.fire_Btn->setChecked(false);
        f.fire_Btn->setText(tr("点火"));
    }
    if (m_watcher)
        m_watcher->setLinkMode(lumitra::NotConnected);
    const QString text = expected ? tr("WiFi连接已断开") : tr("WiFi连接意外断开!");
    appendConsole(text);
    if (!expected)
        lumitra::show_notice(m_dialogParent, text);
    emit connectionChanged(lumitra::NotConnected);
}

void MachineController::onWifiProgress(float percent)
{
    if (m_panel)
        m_panel->form().progress_Bar->setValue(qBound(0, int(percent), 100));
}

void MachineController::onWifiSettings(const QMap<int, QString> &settings)
{
    // The same reaction as to the serial dump, whose keys carry the "$".
    QMap<QString, QString> info;
    for (auto it = settings.constBegin(); it != settings.constEnd(); ++it)
        info.insert(QStringLiteral("$%1").arg(it.key()), it.value());
    onSettings(info);
}

void MachineController::updateRunTime()
{
    ++m_runSeconds;
    m_panel->form().running_Lab->setText(
        QTime(0, 0).addSecs(m_runSeconds).toString(QStringLiteral("hh:mm:ss")));
}

void MachineController::startIndicator()
{
    m_runSeconds = 0;
    m_indicatorTimer.start();
    m_status.idleCounter = kIdleCounterJobStart;
}
