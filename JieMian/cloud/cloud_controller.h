#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>

class QAction;
class QWidget;
class Jk_deng_lu;
class GeRenZhongXin;
class jk_su_cai;
class Su_Cai_Xiang_Qing;
class Su_Cai_Shang_Chuan;
class GengXinXiaZai;

namespace lumitra {
class CredentialStore;
class Hou_tai_jie_kou;
class ImageCache;
class UpdatePack;
} // namespace lumitra

// The cloud services of the main window: account, material store, upload and
// the update check. Owned by the window (its parent); every dialog is shown
// without blocking the window and deletes itself when closed.
//
// Wiring: put actions() in a "云" menu, call checkForUpdateLater() after the
// window is shown, open the file of openDesignFile() in a new page, and quit
// on quitForInstall().
class CloudController : public QObject
{
    Q_OBJECT

public:
    explicit CloudController(QWidget *window);
    ~CloudController() override;

    // Log in, personal centre, material store, upload material.
    QList<QAction *> actions() const { return m_actions; }
    // The title of the menu that holds them: "云".
    static QString menuTitle();

    // Unless the setting "CheckUpdate" is "0": one update check from the event
    // loop; an offered update opens GengXinXiaZai, a failed check shows nothing.
    void checkForUpdateLater();

    // The current process modes as JSON text, saved from the personal centre.
    void setModesProvider(std::function<QString()> provider) { m_modes = std::move(provider); }
    // The design file offered by the upload dialog (the current project), if any.
    void setDesignFileProvider(std::function<QString()> provider)
    {
        m_design = std::move(provider);
    }
    // Where bought designs are saved (config folder "materials" by default).
    void setMaterialFolder(const QString &folder) { m_materialFolder = folder; }
    void setUpdateFolder(const QString &folder) { m_updateFolder = folder; }

    lumitra::Hou_tai_jie_kou *api() const { return m_api; }
    lumitra::UpdatePack *updates() const { return m_updates; }

    // The dialogs, shown (or raised) and returned; account features without
    // a token show "请先登录" and the log-in dialog instead.
    Jk_deng_lu *showLogin();
    GeRenZhongXin *showPersonalCentre();
    jk_su_cai *showStore();
    Su_Cai_Xiang_Qing *showMaterial(const QString &id);
    Su_Cai_Shang_Chuan *showUpload();
    GengXinXiaZai *updateDialog() const;

signals:
    // A bought design, saved on disk: open it into a new page.
    void openDesignFile(const QString &path);
    // The user chose to quit and install the downloaded update.
    void quitForInstall(const QString &installerPath);

private:
    bool needLogin();
    void showUpdate();
    template<class D> D *present(QPointer<D> &slot, D *created);

    QWidget *m_window;
    lumitra::Hou_tai_jie_kou *m_api;
    lumitra::CredentialStore *m_credentials;
    lumitra::UpdatePack *m_updates;
    lumitra::ImageCache *m_images;
    QList<QAction *> m_actions;
    std::function<QString()> m_modes;
    std::function<QString()> m_design;
    QString m_materialFolder;
    QString m_updateFolder;
    QString m_password; // this session's log-in, for the top-up page; never stored
    QPointer<Jk_deng_lu> m_login;
    QPointer<GeRenZhongXin> m_centre;
    QPointer<jk_su_cai> m_store;
    QPointer<Su_Cai_Xiang_Qing> m_detail;
    QPointer<Su_Cai_Shang_Chuan> m_upload;
    QPointer<GengXinXiaZai> m_updateDialog;
};
