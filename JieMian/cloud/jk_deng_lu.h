#pragma once

#include <QDialog>

namespace Ui {
class Jk_deng_lu;
}

namespace lumitra {
class CredentialStore;
class Hou_tai_jie_kou;
struct CloudResult;
} // namespace lumitra

// Log in (password or mailed code), register with a mailed code, reset the
// password. The e-mail is remembered; the password only in the system keyring
// and only when "记住密码" is ticked. Accepted after a successful log-in, when
// the interface holds the token. Requests never block the window.
class Jk_deng_lu : public QDialog
{
    Q_OBJECT

public:
    Jk_deng_lu(lumitra::Hou_tai_jie_kou *api, lumitra::CredentialStore *credentials,
               QWidget *parent = nullptr);
    ~Jk_deng_lu() override;

    enum Page { LoginPage = 0, RegisterPage = 1, ResetPage = 2 };
    void showPage(Page page);

signals:
    // After a successful log-in; `password` is empty for a code log-in. Kept
    // in memory by the receiver only (the top-up link needs it).
    void loggedIn(const QString &email, const QString &password);

private:
    void sendCode(int purpose);
    void logIn();
    void registerAccount();
    void resetPassword();
    void updateLoginMode();
    // Shows the service's message (or `fallback`) unless the reply succeeded.
    bool refused(const lumitra::CloudResult &r);
    void setBusy(bool busy);

    Ui::Jk_deng_lu *ui;
    lumitra::Hou_tai_jie_kou *m_api;
    lumitra::CredentialStore *m_credentials;
};
