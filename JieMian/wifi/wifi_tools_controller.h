#pragma once

#include <QMap>
#include <QObject>
#include <QPointer>
#include <functional>

class ControllerSearchDialog;
class MachineController;
class QAction;
class QLineEdit;
class QWidget;
class SdFileManager;
class WIFI_She_Zhi;
class WifiLinkController;

// The window's board tools: the controller's radio setup, the SD card file
// manager and the search for boards on the network. Routes the radio setup's
// command text over the link in use (serial: the link's queue; WiFi: one
// command request per line), feeds the setup dialog the board's network
// information as the link reports it, and puts a found board into the IP and
// port fields. Owns the dialogs; owns none of the window's widgets.
class WifiToolsController : public QObject
{
    Q_OBJECT

public:
    WifiToolsController(MachineController *machine, WifiLinkController *wifi, QLineEdit *ipField,
                        QLineEdit *portField, QWidget *dialogParent, QObject *parent = nullptr);

    // "WiFi设置", "SD卡文件管理", "搜索设备", for the window's menu.
    QList<QAction *> actions() const { return m_actions; }
    // The search's addresses (tests give 127.0.0.1 only); the default is
    // the board's access point, its network name and the local subnets.
    void setSearchAddresses(std::function<QStringList()> addresses);

    // The dialogs while open, else nullptr.
    WIFI_She_Zhi *setupDialog() const;
    SdFileManager *sdManager() const;
    ControllerSearchDialog *searchDialog() const;

public slots:
    void openSetup();
    void openSdManager();
    void openSearch();
    // Sends the radio setup's command text over the link in use.
    void sendSetupText(const QString &commandText);

private:
    void refreshDeviceInfo();
    int portFieldValue() const;

    MachineController *m_machine;
    WifiLinkController *m_wifi;
    QPointer<QLineEdit> m_ip;
    QPointer<QLineEdit> m_port;
    QPointer<QWidget> m_parent;
    QList<QAction *> m_actions;
    QPointer<WIFI_She_Zhi> m_setup;
    QPointer<SdFileManager> m_sd;
    QPointer<ControllerSearchDialog> m_search;
    std::function<QStringList()> m_searchAddresses;
    QMap<QString, QString> m_wifiInfo; // what the board said over WiFi
};
