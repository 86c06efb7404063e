#include "ge_ren_zhong_xin.h"

#include "external_url.h"
#include "hou_tai_jie_kou.h"
#include "message_box.h"
#include "ui_ge_ren_zhong_xin.h"

#include <QPointer>

using namespace lumitra;

GeRenZhongXin::GeRenZhongXin(Hou_tai_jie_kou *api, QWidget *parent)
    : QDialog(parent), ui(new Ui::GeRenZhongXin), m_api(api)
{
    ui->setupUi(this);
    connect(ui->recharge_Btn, &QPushButton::clicked, this, &GeRenZhongXin::recharge);
    connect(ui->saveModes_Btn, &QPushButton::clicked, this, &GeRenZhongXin::saveModes);
    connect(ui->logout_Btn, &QPushButton::clicked, this, &GeRenZhongXin::logOut);
    connect(ui->close_Btn, &QPushButton::clicked, this, &QDialog::reject);
    showAccount();
}

GeRenZhongXin::~GeRenZhongXin()
{
    delete ui;
}

void GeRenZhongXin::showAccount()
{
    const QJsonObject a = m_api->account();
    ui->nameValue_Lab->setText(a.value(QStringLiteral("name")).toString());
    ui->emailValue_Lab->setText(a.value(QStringLiteral("email")).toString());
    ui->balanceValue_Lab->setText(
        QString::number(a.value(QStringLiteral("balance")).toDouble(), 'f', 2));
}

void GeRenZhongXin::recharge()
{
    QPointer<GeRenZhongXin> self(this);
    m_api->recharge(QString::number(ui->money_Box->value()), [self](const CloudResult &r) {
        if (!self)
            return;
        if (!r.ok) {
            show_notice(self, r.message.isEmpty() ? tr("请求失败") : r.message);
            return;
        }
        const QJsonObject d = r.object();
        const QString pay = d.value(QStringLiteral("url")).toString();
        if (!pay.isEmpty()) {
            open_external_url(QUrl(pay));
        } else if (d.contains(QStringLiteral("balance"))) {
            self->ui->balanceValue_Lab->setText(
                QString::number(d.value(QStringLiteral("balance")).toDouble(), 'f', 2));
        } else {
            // The service takes payment on its own page.
            open_external_url(self->m_api->rechargeLink(
                self->m_api->account().value(QStringLiteral("email")).toString(),
                self->m_password));
        }
    });
}

void GeRenZhongXin::saveModes()
{
    const QString name = ui->modeName_Edit->text().trimmed();
    if (name.isEmpty()) {
        show_notice(this, tr("请输入模式名称"));
        return;
    }
    const QString modes = m_modes ? m_modes() : QStringLiteral("[]");
    QPointer<GeRenZhongXin> self(this);
    m_api->saveModes(modes, name, [self](const CloudResult &r) {
        if (self)
            show_notice(self,
                        r.ok ? tr("保存成功") : (r.message.isEmpty() ? tr("请求失败") : r.message));
    });
}

void GeRenZhongXin::logOut()
{
    QPointer<GeRenZhongXin> self(this);
    m_api->logout([self](const CloudResult &) {
        if (!self)
            return;
        emit self->loggedOut();
        self->accept();
    });
}
