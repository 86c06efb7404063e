#pragma once

#include <QDialog>
#include <QMap>
#include <QString>

namespace Ui {
class WIFI_She_Zhi;
}

// The controller's radio: station mode (join the user's network by name and
// password) or access-point mode. The dialog only checks the entries and emits
// the "$" command text; the window sends it over the current link (serial:
// the link's queue; WiFi: each line of lumitra::wifi::wifiCommandLines as a
// command request). It shows the board's mode, network name, status and
// address from the device information map and follows its changes.
class WIFI_She_Zhi : public QDialog
{
    Q_OBJECT

public:
    explicit WIFI_She_Zhi(QWidget *parent = nullptr);
    ~WIFI_She_Zhi() override;

public slots:
    // The device information map ("Mode", "SSID", "SSDI", "Status", "IP").
    void setDeviceInfo(const QMap<QString, QString> &info);

signals:
    // The command text to send, "\n"-separated lines ending in "$I\n".
    void fa_song_ming_ling(const QString &commandText);

private:
    void stationClicked();
    void accessPointClicked();
    void refreshClicked();

    Ui::WIFI_She_Zhi *ui;
};
