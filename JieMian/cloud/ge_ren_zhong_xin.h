#pragma once

#include <QDialog>
#include <functional>

namespace Ui {
class GeRenZhongXin;
}

namespace lumitra {
class Hou_tai_jie_kou;
}

// The personal centre: the account of the last log-in, top-up (the service
// answers with a payment page opened in the system browser, or the new
// balance), saving the current process modes under a name, and log-out.
class GeRenZhongXin : public QDialog
{
    Q_OBJECT

public:
    explicit GeRenZhongXin(lumitra::Hou_tai_jie_kou *api, QWidget *parent = nullptr);
    ~GeRenZhongXin() override;

    // The process modes to save (JSON text), asked for when saving.
    void setModesProvider(std::function<QString()> provider) { m_modes = std::move(provider); }
    // The password of this session's log-in, for the top-up page (may be empty).
    void setPassword(const QString &password) { m_password = password; }

signals:
    void loggedOut();

private:
    void showAccount();
    void recharge();
    void saveModes();
    void logOut();

    Ui::GeRenZhongXin *ui;
    lumitra::Hou_tai_jie_kou *m_api;
    std::function<QString()> m_modes;
    QString m_password;
};
