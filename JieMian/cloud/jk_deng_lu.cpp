#include "jk_deng_lu.h"

#include "credential_store.h"
#include "hou_tai_jie_kou.h"
#include "message_box.h"
#include "ui_jk_deng_lu.h"

#include <QPointer>

using namespace lumitra;

Jk_deng_lu::Jk_deng_lu(Hou_tai_jie_kou *api, CredentialStore *credentials, QWidget *parent)
    : QDialog(parent), ui(new Ui::Jk_deng_lu), m_api(api), m_credentials(credentials)
{
    ui->setupUi(this);
    const QString email = m_credentials ? m_credentials->rememberedEmail() : QString();
    ui->email_Edit->setText(email);
    if (m_credentials && !email.isEmpty()) {
        QPointer<Jk_deng_lu> self(this);
        m_credentials->recallPassword(email, [self](const QString &password) {
            if (self && !password.isEmpty() && self->ui->password_Edit->text().isEmpty()) {
                self->ui->password_Edit->setText(password);
                self->ui->remember_Box->setChecked(true);
            }
        });
    }
    connect(ui->login_Btn, &QPushButton::clicked, this, &Jk_deng_lu::logIn);
    connect(ui->register_Btn, &QPushButton::clicked, this, &Jk_deng_lu::registerAccount);
    connect(ui->reset_Btn, &QPushButton::clicked, this, &Jk_deng_lu::resetPassword);
    connect(ui->code_Btn, &QPushButton::clicked, this, [this]() { sendCode(LoginPage); });
    connect(ui->regCode_Btn, &QPushButton::clicked, this, [this]() { sendCode(RegisterPage); });
    connect(ui->resetCode_Btn, &QPushButton::clicked, this, [this]() { sendCode(ResetPage); });
    connect(ui->useCode_Box, &QCheckBox::toggled, this, &Jk_deng_lu::updateLoginMode);
    updateLoginMode();
}

Jk_deng_lu::~Jk_deng_lu()
{
    delete ui;
}

void Jk_deng_lu::showPage(Page page)
{
    ui->pages_Tab->setCurrentIndex(page);
}

void Jk_deng_lu::updateLoginMode()
{
    const bool code = ui->useCode_Box->isChecked();
    ui->password_Edit->setEnabled(!code);
    ui->remember_Box->setEnabled(!code);
    ui->code_Edit->setEnabled(code);
    ui->code_Btn->setEnabled(code);
}

void Jk_deng_lu::setBusy(bool busy)
{
    ui->pages_Tab->setEnabled(!busy);
}

bool Jk_deng_lu::refused(const CloudResult &r)
{
    setBusy(false);
    if (r.ok)
        return false;
    show_notice(this, r.message.isEmpty() ? tr("请求失败") : r.message);
    return true;
}

void Jk_deng_lu::sendCode(int purpose)
{
    QLineEdit *edit = purpose == LoginPage      ? ui->email_Edit
                      : purpose == RegisterPage ? ui->regEmail_Edit
                                                : ui->resetEmail_Edit;
    const QString email = edit->text().trimmed();
    if (email.isEmpty()) {
        show_notice(this, tr("请输入邮箱"));
        return;
    }
    QPointer<Jk_deng_lu> self(this);
    auto done = [self](const CloudResult &r) {
        if (self && !self->refused(r))
            show_notice(self, tr("验证码已发送"));
    };
    setBusy(true);
    if (purpose == LoginPage)
        m_api->sendLoginCode(email, done);
    else if (purpose == RegisterPage)
        m_api->sendRegisterCode(email, done);
    else
        m_api->sendResetCode(email, done);
}

void Jk_deng_lu::logIn()
{
    const QString email = ui->email_Edit->text().trimmed();
    const bool byCode = ui->useCode_Box->isChecked();
    const QString secret = byCode ? ui->code_Edit->text().trimmed() : ui->password_Edit->text();
    if (email.isEmpty() || secret.isEmpty()) {
        show_notice(this, byCode ? tr("请输入邮箱和验证码") : tr("请输入邮箱和密码"));
        return;
    }
    QPointer<Jk_deng_lu> self(this);
    const bool remember = ui->remember_Box->isChecked();
    auto done = [self, email, secret, byCode, remember](const CloudResult &r) {
        if (!self || self->refused(r))
            return;
        if (self->m_credentials)
            self->m_credentials->remember(email, byCode || !remember ? QString() : secret);
        emit self->loggedIn(email, byCode ? QString() : secret);
        self->accept();
    };
    setBusy(true);
    if (byCode)
        m_api->loginWithCode(email, secret, done);
    else
        m_api->login(email, secret, done);
}

void Jk_deng_lu::registerAccount()
{
    const QString email = ui->regEmail_Edit->text().trimmed();
    const QString password = ui->regPassword_Edit->text();
    if (email.isEmpty() || ui->regCode_Edit->text().trimmed().isEmpty() || password.isEmpty()) {
        show_notice(this, tr("请填写完整"));
        return;
    }
    if (password != ui->regConfirm_Edit->text()) {
        show_notice(this, tr("两次密码不一致"));
        return;
    }
    QPointer<Jk_deng_lu> self(this);
    setBusy(true);
    m_api->registerAccount(email, ui->regCode_Edit->text().trimmed(),
                           ui->regName_Edit->text().trimmed(), password,
                           ui->regConfirm_Edit->text(), [self, email](const CloudResult &r) {
                               if (!self || self->refused(r))
                                   return;
                               show_notice(self, tr("注册成功"));
                               self->ui->email_Edit->setText(email);
                               self->ui->password_Edit->clear();
                               self->showPage(LoginPage);
                           });
}

void Jk_deng_lu::resetPassword()
{
    const QString email = ui->resetEmail_Edit->text().trimmed();
    const QString password = ui->resetPassword_Edit->text();
    if (email.isEmpty() || ui->resetCode_Edit->text().trimmed().isEmpty() || password.isEmpty()) {
        show_notice(this, tr("请填写完整"));
        return;
    }
    if (password != ui->resetConfirm_Edit->text()) {
        show_notice(this, tr("两次密码不一致"));
        return;
    }
    QPointer<Jk_deng_lu> self(this);
    setBusy(true);
    m_api->resetPassword(email, ui->resetCode_Edit->text().trimmed(), password,
                         ui->resetConfirm_Edit->text(), [self, email](const CloudResult &r) {
                             if (!self || self->refused(r))
                                 return;
                             show_notice(self, tr("修改成功,请去登录！"));
                             self->ui->email_Edit->setText(email);
                             self->ui->password_Edit->clear();
                             self->showPage(LoginPage);
                         });
}
