#include "wifi_tools_controller.h"

#include "controller_search_dialog.h"
#include "device_info.h"
#include "http_thread.h"
#include "jk_com.h"
#include "machine_controller.h"
#include "message_box.h"
#include "program_state.h"
#include "sd_file_manager.h"
#include "search_addresses.h"
#include "wifi_link_controller.h"
#include "wifi_setup.h"
#include "wifi_she_zhi.h"

#include <QAction>
#include <QLineEdit>

using lumitra::programState;

namespace {
constexpr int kDefaultHttpPort = 80;

template<typename Dialog> void showAndRaise(Dialog *dialog)
{
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}
} // namespace

WifiToolsController::WifiToolsController(MachineController *machine, WifiLinkController *wifi,
                                         QLineEdit *ipField, QLineEdit *portField,
                                         QWidget *dialogParent, QObject *parent)
    : QObject(parent), m_machine(machine), m_wifi(wifi), m_ip(ipField), m_port(portField),
      m_parent(dialogParent), m_searchAddresses(lumitra::search::defaultSearchAddresses)
{
    const auto add = [this](const QString &text, void (WifiToolsController::*slot)()) {
        auto *action = new QAction(text, this);
        connect(action, &QAction::triggered, this, slot);
        m_actions << action;
    };
    add(tr("WiFi设置"), &WifiToolsController::openSetup);
    add(tr("SD卡文件管理"), &WifiToolsController::openSdManager);
    add(tr("搜索设备"), &WifiToolsController::openSearch);
}

WIFI_She_Zhi *WifiToolsController::setupDialog() const
{
    return m_setup;
}

SdFileManager *WifiToolsController::sdManager() const
{
    return m_sd;
}

ControllerSearchDialog *WifiToolsController::searchDialog() const
{
    return m_search;
}

void WifiToolsController::setSearchAddresses(std::function<QStringList()> addresses)
{
    m_searchAddresses = std::move(addresses);
}

int WifiToolsController::portFieldValue() const
{
    bool ok = false;
    const int port = m_port ? m_port->text().trimmed().toInt(&ok) : 0;
    return ok && port > 0 && port <= 65535 ? port : kDefaultHttpPort;
}

void WifiToolsController::openSetup()
{
    if (!m_setup) {
        m_setup = new WIFI_She_Zhi(m_parent);
        m_setup->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_setup, &WIFI_She_Zhi::fa_song_ming_ling, this,
                &WifiToolsController::sendSetupText);
        // The board answers "$I" line by line; the information follows.
        connect(m_machine, &MachineController::lineReceived, m_setup,
                [this] { refreshDeviceInfo(); });
        connect(m_wifi, &WifiLinkController::lineReceived, m_setup, [this](const QString &line) {
            DeviceInfo info;
            if (line.contains(QLatin1String("Mode=STA")))
                info.readStationMode(line);
            else if (line.contains(QLatin1String("Mode=AP")))
                info.readAccessPointMode(line);
            else
                return;
            m_wifiInfo = info.map();
            refreshDeviceInfo();
        });
    }
    refreshDeviceInfo();
    showAndRaise(m_setup.data());
}

void WifiToolsController::refreshDeviceInfo()
{
    if (!m_setup)
        return;
    if (programState().connectionMode == lumitra::SerialLink && m_machine->link())
        m_setup->setDeviceInfo(m_machine->link()->deviceInfo());
    else if (programState().connectionMode == lumitra::WifiLink)
        m_setup->setDeviceInfo(m_wifiInfo);
}

void WifiToolsController::sendSetupText(const QString &commandText)
{
    switch (programState().connectionMode) {
    case lumitra::SerialLink:
        if (Jk_com *serial = m_machine->link())
            serial->queueText(commandText);
        return;
    case lumitra::WifiLink:
        if (HttpThread *link = m_wifi->link()) {
            for (const QString &line : lumitra::wifi::wifiCommandLines(commandText))
                link->sendCommand(line);
        }
        return;
    default:
        lumitra::show_notice(m_parent, tr("请先连接设备!"));
    }
}

void WifiToolsController::openSdManager()
{
    const QString host = m_ip ? m_ip->text().trimmed() : QString();
    if (host.isEmpty()) {
        lumitra::show_notice(m_parent, tr("IP不能为空!"));
        return;
    }
    if (!m_sd) {
        m_sd = new SdFileManager(m_parent);
        m_sd->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_sd->setAddress(host, portFieldValue());
    showAndRaise(m_sd.data());
}

void WifiToolsController::openSearch()
{
    if (m_search) {
        showAndRaise(m_search.data());
        return;
    }
    m_search = new ControllerSearchDialog(m_searchAddresses(), portFieldValue(), m_parent);
    m_search->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_search, &ControllerSearchDialog::controllerChosen, this,
            [this](const QString &host, int port) {
                if (m_ip)
                    m_ip->setText(host);
                if (m_port)
                    m_port->setText(QString::number(port));
            });
    showAndRaise(m_search.data());
}
