#include "wifi_she_zhi.h"

#include "message_box.h"
#include "ui_wifi_she_zhi.h"
#include "wifi_setup.h"

#include <QLineEdit>
#include <QPushButton>

using lumitra::wifi::StationCheck;

WIFI_She_Zhi::WIFI_She_Zhi(QWidget *parent) : QDialog(parent), ui(new Ui::WIFI_She_Zhi)
{
    ui->setupUi(this);
    connect(ui->sta_Btn, &QPushButton::clicked, this, &WIFI_She_Zhi::stationClicked);
    connect(ui->ap_Btn, &QPushButton::clicked, this, &WIFI_She_Zhi::accessPointClicked);
    connect(ui->refresh_Btn, &QPushButton::clicked, this, &WIFI_She_Zhi::refreshClicked);
    connect(ui->close_Btn, &QPushButton::clicked, this, &WIFI_She_Zhi::reject);
    connect(ui->showPassword_Box, &QCheckBox::toggled, this, [this](bool show) {
        ui->password_Edit->setEchoMode(show ? QLineEdit::Normal : QLineEdit::Password);
    });
    setDeviceInfo({});
}

WIFI_She_Zhi::~WIFI_She_Zhi()
{
    delete ui;
}

void WIFI_She_Zhi::setDeviceInfo(const QMap<QString, QString> &info)
{
    const QString mode = info.value(QStringLiteral("Mode"));
    const QString unknown = QStringLiteral("-");
    auto shown = [&unknown](const QString &text) { return text.isEmpty() ? unknown : text; };
    QString modeText = mode;
    QString network;
    if (mode == QLatin1String("STA")) {
        modeText = tr("STA模式(连接路由器)");
        network = info.value(QStringLiteral("SSID"));
    } else if (mode == QLatin1String("AP")) {
        modeText = tr("AP模式(设备热点)");
        network = info.value(QStringLiteral("SSDI"));
    }
    ui->modeValue_Lab->setText(shown(modeText));
    ui->ssidValue_Lab->setText(shown(network));
    ui->statusValue_Lab->setText(shown(info.value(QStringLiteral("Status"))));
    ui->ipValue_Lab->setText(shown(info.value(QStringLiteral("IP"))));
}

void WIFI_She_Zhi::stationClicked()
{
    const QString name = ui->ssid_Edit->text();
    const QString password = ui->password_Edit->text();
    QString refusal;
    switch (lumitra::wifi::checkStation(name, password)) {
    case StationCheck::Ok:
        emit fa_song_ming_ling(lumitra::wifi::stationModeCommand(name, password));
        return;
    case StationCheck::Empty:
        refusal = tr("密码或账号不能为空!");
        break;
    case StationCheck::PasswordLength:
        refusal = tr("密码长度不匹配");
        break;
    case StationCheck::ForbiddenSymbol:
        refusal = tr("账号或密码不能包含!,？,~,$符号");
        break;
    case StationCheck::NotPlainText:
        refusal = tr("目前仅支持英文,数字,符号输入");
        break;
    }
    lumitra::show_notice(this, refusal);
}

void WIFI_She_Zhi::accessPointClicked()
{
    emit fa_song_ming_ling(lumitra::wifi::accessPointModeCommand());
}

void WIFI_She_Zhi::refreshClicked()
{
    emit fa_song_ming_ling(lumitra::wifi::infoCommand());
}
