// The control rows of the machine panel: guards, then the command for the
// current link.
#include "jk_com.h"
#include "machine_commands.h"
#include "machine_controller.h"
#include "machine_panel.h"
#include "message_box.h"
#include "program_state.h"
#include "ui_machine_panel.h"

#include <QDebug>
#include <QFileDialog>
#include <QSignalBlocker>
#include <QStandardPaths>

using lumitra::programState;
using lumitra::machine::Link;
namespace machine = lumitra::machine;

void MachineController::connectPanel()
{
    Ui::MachinePanel &f = m_panel->form();
    connect(f.connect_Btn, &QPushButton::clicked, this, &MachineController::toggleConnection);
    connect(f.home_Btn, &QPushButton::clicked, this, &MachineController::home);
    connect(f.origin_Btn, &QPushButton::clicked, this, &MachineController::goToOrigin);
    connect(f.setOrigin_Btn, &QPushButton::clicked, this, &MachineController::setOrigin);
    connect(f.clearOrigin_Btn, &QPushButton::clicked, this, &MachineController::clearOrigin);
    connect(f.move_Btn, &QPushButton::clicked, this, &MachineController::moveToPosition);
    connect(f.pause_Btn, &QPushButton::clicked, this, &MachineController::pauseOrResume);
    connect(f.stop_Btn, &QPushButton::clicked, this, &MachineController::stop);
    connect(f.run_Btn, &QPushButton::clicked, this, &MachineController::runFileFromDisk);
    connect(f.frame_Btn, &QPushButton::clicked, this, &MachineController::frameDesign);
    connect(f.fire_Btn, &QPushButton::toggled, this, &MachineController::testFire);
    connect(f.power_Box, QOverload<int>::of(&QSpinBox::valueChanged), this, [this, &f] {
        // While a job runs a new power would go into the job.
        if (f.fire_Btn->isChecked() && !busy())
            sendTestFire();
    });
    QPushButton *pad[] = {f.jog0_Btn, f.jog1_Btn, f.jog2_Btn, f.jog3_Btn, f.jog4_Btn,
                          f.jog5_Btn, f.jog6_Btn, f.jog7_Btn, f.jog8_Btn};
    for (int i = 0; i < 9; ++i)
        connect(pad[i], &QPushButton::clicked, this, [this, i] { jog(i); });
    connect(f.step_Slider, &QSlider::valueChanged, this,
            [&f](int mm) { f.step_Lab->setText(QStringLiteral("%1 mm").arg(mm)); });
    connect(f.feed_Slider, &QSlider::valueChanged, this,
            [&f](int feed) { f.feed_Lab->setText(QStringLiteral("%1 mm/min").arg(feed)); });
}

bool MachineController::linked()
{
    switch (programState().connectionMode) {
    case lumitra::NotConnected:
        lumitra::show_notice(m_dialogParent, tr("请先连接设备!"));
        return false;
    case lumitra::SerialLink:
        return m_com != nullptr;
    default:
        return true;
    }
}

bool MachineController::notBusy(const QString &refusal)
{
    if (!busy())
        return true;
    lumitra::show_notice(m_dialogParent, refusal);
    return false;
}

void MachineController::send(const QString &serialText, const QString &wifiText)
{
    if (programState().connectionMode == lumitra::SerialLink && m_com)
        m_com->queueText(serialText);
    else if (programState().connectionMode == lumitra::WifiLink)
        sendWifi(wifiText);
}

void MachineController::sendWifi(const QString &command)
{
    emit wifiCommand(machine::wifiCommandUrl(m_wifiAddress, command));
}

void MachineController::home()
{
    if (linked() && notBusy(tr("设备运行中禁用此功能!")))
        send(machine::homeCommand(Link::Serial), machine::homeCommand(Link::Wifi));
}

void MachineController::goToOrigin()
{
    if (linked())
        send(machine::goToOriginCommand(Link::Serial), machine::goToOriginCommand(Link::Wifi));
}

void MachineController::setOrigin()
{
    if (linked())
        send(machine::setOriginCommand(), machine::setOriginCommand());
}

void MachineController::clearOrigin()
{
    if (linked())
        send(machine::clearOriginCommand(), machine::clearOriginCommand());
}

void MachineController::moveToPosition()
{
    if (!linked())
        return;
    Ui::MachinePanel &f = m_panel->form();
    const double x = f.x_Box->value();
    const double y = f.y_Box->value();
    send(machine::moveToCommand(Link::Serial, x, y), machine::moveToCommand(Link::Wifi, x, y));
}

void MachineController::pauseOrResume()
{
    if (!linked() || !busy())
        return;
    const bool serial = programState().connectionMode == lumitra::SerialLink;
    QPushButton *button = m_panel->form().pause_Btn;
    if (button->text() == tr("暂停")) {
        serial ? m_com->feedHold() : sendWifi(machine::wifiPauseCommand());
        button->setText(tr("继续"));
    } else {
        serial ? m_com->cycleStart() : sendWifi(machine::wifiResumeCommand());
        button->setText(tr("暂停"));
    }
}

void MachineController::stop()
{
    if (!linked())
        return;
    if (programState().connectionMode == lumitra::SerialLink) {
        m_com->softReset();
    } else {
        sendWifi(machine::wifiPauseCommand());
        sendWifi(machine::wifiSoftResetCommand());
        QTimer::singleShot(1000, this, [this] { setWifiBusy(false); });
    }
    m_panel->form().pause_Btn->setText(tr("暂停"));
    m_indicatorTimer.stop();
}

void MachineController::testFire(bool on)
{
    QPushButton *button = m_panel->form().fire_Btn;
    const bool connected = programState().connectionMode != lumitra::NotConnected;
    // Either command would be queued into a running job, so both are refused
    // while busy, and the button keeps showing what the laser does. Switching
    // off without a link sends nothing: the link switched the laser off when
    // it closed.
    const bool allowed = on ? linked() && notBusy(tr("设备运行中禁用此功能!"))
                            : !connected || notBusy(tr("设备运行中禁用此功能!"));
    if (!allowed) {
        const QSignalBlocker block(button);
        button->setChecked(!on);
        return;
    }
    if (on) {
        sendTestFire();
        return;
    }
    if (connected) {
        send(machine::testFireOffCommand(Link::Serial), machine::testFireOffCommand(Link::Wifi));
        if (m_com)
            m_com->setLaserOn(false);
    }
    button->setText(tr("点火"));
}

void MachineController::sendTestFire()
{
    const QString s = machine::testFirePower(m_panel->form().power_Box->value(), m_laserMaxS);
    send(machine::testFireOnCommand(s), machine::testFireOnCommand(s));
    if (programState().connectionMode == lumitra::SerialLink && m_com)
        m_com->setLaserOn(true);
}

void MachineController::jog(int padIndex)
{
    if (!linked())
        return;
    if (programState().connectionMode == lumitra::WifiLink && m_wifiAddress.isEmpty()) {
        lumitra::show_notice(m_dialogParent, tr("IP不能为空!"));
        return;
    }
    Ui::MachinePanel &f = m_panel->form();
    const int feed = f.feed_Slider->value();
    if (padIndex == 4) {
        send(machine::jogCentreCommand(Link::Serial, feed),
             machine::jogCentreCommand(Link::Wifi, feed));
        return;
    }
    const machine::JogDirection d = machine::jogPadDirection(padIndex);
    const int step = f.step_Slider->value();
    const QString dx = machine::jogOffset(d.x, step);
    const QString dy = machine::jogOffset(d.y, step);
    send(machine::jogCommand(Link::Serial, dx, dy, feed),
         machine::jogCommand(Link::Wifi, dx, dy, feed));
}

void MachineController::runJob(const QString &path)
{
    programState().jobFilePath = path;
    switch (programState().connectionMode) {
    case lumitra::SerialLink:
        if (!m_com)
            return;
        m_com->queueText(QStringLiteral("yunxing"));
        break;
    case lumitra::WifiLink:
        emit wifiUploadRequested(path);
        break;
    default:
        lumitra::show_notice(m_dialogParent, tr("请先连接设备!"));
        return;
    }
    startIndicator();
}

void MachineController::runFileFromDisk()
{
    if (busy()) {
        lumitra::show_notice(m_dialogParent, tr("设备雕刻中,暂时停止使用!"));
        return;
    }
    const QString path = m_fileChooser
                             ? m_fileChooser()
                             : QFileDialog::getOpenFileName(
                                 m_dialogParent, tr("Open File"),
                                 QStandardPaths::writableLocation(QStandardPaths::DesktopLocation),
                                 tr("Files (*.nc);;Files (*.gcode)"));
    if (!path.endsWith(QLatin1String(".nc"), Qt::CaseInsensitive)
        && !path.endsWith(QLatin1String(".gcode"), Qt::CaseInsensitive))
        return;
    runJob(path);
}

void MachineController::frameDesign()
{
    if (!linked() || !notBusy(tr("设备运行中禁用此功能!")))
        return;
    const QRectF area = m_frameSource ? m_frameSource() : QRectF();
    if (area.isNull()) {
        qDebug() << " out nothing to frame";
        return;
    }
    // The frame shows where the job will burn; started at the current
    // position, the head comes back there so that the job starts where it was.
    const lumitra::JobStart start = jobStart();
    QPointF shift;
    if (!lumitra::jobShift(start, area, &shift)) {
        lumitra::show_notice(m_dialogParent, tr("当前位置未知,请等待设备上报位置!"));
        return;
    }
    QStringList lines =
        machine::framingCommands(machine::sceneToMachine(lumitra::shiftSceneRect(area, shift)),
                                 m_panel->form().feed_Slider->value());
    if (start.mode == lumitra::StartMode::CurrentPosition)
        lines << machine::jogBackTo(start.head, m_panel->form().feed_Slider->value());
    if (programState().connectionMode == lumitra::SerialLink) {
        m_com->queueText(lines.join(QLatin1Char('\n')));
        return;
    }
    for (const QString &line : lines)
        sendWifi(line);
}
