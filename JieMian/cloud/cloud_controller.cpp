#include "cloud_controller.h"

#include "credential_store.h"
#include "external_url.h"
#include "ge_ren_zhong_xin.h"
#include "geng_xin_xia_zai.h"
#include "hou_tai_jie_kou.h"
#include "image_cache.h"
#include "jk_deng_lu.h"
#include "jk_su_cai.h"
#include "message_box.h"
#include "settings_store.h"
#include "su_cai_shang_chuan.h"
#include "su_cai_xiang_qing.h"
#include "update_pack.h"

#include <QAction>
#include <QDir>
#include <QTimer>
#include <QWidget>

using namespace lumitra;

CloudController::CloudController(QWidget *window)
    : QObject(window), m_window(window), m_api(new Hou_tai_jie_kou(this)),
      m_credentials(new CredentialStore(this)), m_updates(new UpdatePack(m_api, this)),
      m_images(new ImageCache(m_api, this))
{
    auto *login = new QAction(tr("登录"), this);
    connect(login, &QAction::triggered, this, [this]() { showLogin(); });
    auto *centre = new QAction(tr("个人中心"), this);
    connect(centre, &QAction::triggered, this, [this]() { showPersonalCentre(); });
    auto *store = new QAction(tr("素材商城"), this);
    connect(store, &QAction::triggered, this, [this]() { showStore(); });
    auto *upload = new QAction(tr("上传素材"), this);
    connect(upload, &QAction::triggered, this, [this]() { showUpload(); });
    m_actions = {login, centre, store, upload};
    connect(m_updates, &UpdatePack::checked, this, [this](const UpdateInfo &info) {
        if (info.state == UpdateInfo::Available)
            showUpdate();
    });
}

CloudController::~CloudController()
{
    // The dialogs use the interface and the update pack owned here.
    delete m_detail;
    delete m_store;
    delete m_login;
    delete m_centre;
    delete m_upload;
    delete m_updateDialog;
}

template<class D> D *CloudController::present(QPointer<D> &slot, D *created)
{
    slot = created;
    created->setAttribute(Qt::WA_DeleteOnClose);
    created->setWindowModality(Qt::WindowModal);
    created->show();
    return created;
}

QString CloudController::menuTitle()
{
    return tr("云");
}

bool CloudController::needLogin()
{
    if (m_api->loggedIn())
        return false;
    show_notice(m_window, tr("请先登录"));
    showLogin();
    return true;
}

Jk_deng_lu *CloudController::showLogin()
{
    if (m_login) {
        m_login->raise();
        return m_login;
    }
    auto *d = new Jk_deng_lu(m_api, m_credentials, m_window);
    connect(d, &Jk_deng_lu::loggedIn, this,
            [this](const QString &, const QString &password) { m_password = password; });
    return present(m_login, d);
}

GeRenZhongXin *CloudController::showPersonalCentre()
{
    if (needLogin())
        return nullptr;
    if (m_centre) {
        m_centre->raise();
        return m_centre;
    }
    auto *d = new GeRenZhongXin(m_api, m_window);
    d->setModesProvider(m_modes);
    d->setPassword(m_password);
    connect(d, &GeRenZhongXin::loggedOut, this, [this]() { m_password.clear(); });
    return present(m_centre, d);
}

jk_su_cai *CloudController::showStore()
{
    if (m_store) {
        m_store->raise();
        return m_store;
    }
    auto *d = new jk_su_cai(m_api, m_window);
    connect(d, &jk_su_cai::materialChosen, this, [this](const QString &id) { showMaterial(id); });
    return present(m_store, d);
}

Su_Cai_Xiang_Qing *CloudController::showMaterial(const QString &id)
{
    if (m_detail)
        m_detail->close();
    const QString folder = m_materialFolder.isEmpty()
                               ? QDir(config_dir()).filePath(QStringLiteral("materials"))
                               : m_materialFolder;
    auto *d = new Su_Cai_Xiang_Qing(m_api, m_images, folder,
                                    m_store ? static_cast<QWidget *>(m_store) : m_window);
    connect(d, &Su_Cai_Xiang_Qing::openDesignFile, this, &CloudController::openDesignFile);
    connect(d, &Su_Cai_Xiang_Qing::loginNeeded, this, [this]() { showLogin(); });
    present(m_detail, d);
    d->load(id);
    return d;
}

Su_Cai_Shang_Chuan *CloudController::showUpload()
{
    if (needLogin())
        return nullptr;
    if (m_upload) {
        m_upload->raise();
        return m_upload;
    }
    auto *d = new Su_Cai_Shang_Chuan(m_api, m_window);
    if (m_design)
        d->setDesignFile(m_design());
    return present(m_upload, d);
}

void CloudController::checkForUpdateLater()
{
    if (get_setting(QStringLiteral("CheckUpdate")) == QLatin1String("0"))
        return;
    QTimer::singleShot(0, m_updates, &UpdatePack::check);
}

void CloudController::showUpdate()
{
    if (m_updateDialog)
        return;
    auto *d = new GengXinXiaZai(m_updates, m_window);
    if (!m_updateFolder.isEmpty())
        d->setDownloadFolder(m_updateFolder);
    connect(d, &GengXinXiaZai::quitForInstall, this, [this](const QString &path) {
        open_external_url(QUrl::fromLocalFile(path));
        emit quitForInstall(path);
    });
    present(m_updateDialog, d);
}

GengXinXiaZai *CloudController::updateDialog() const
{
    return m_updateDialog;
}
