#include "update_pack.h"

#include "file_download.h"
#include "hou_tai_jie_kou.h"

#include <QDebug>

namespace lumitra {

UpdateInfo parse_update_reply(const CloudResult &r)
{
    UpdateInfo info;
    if (!r.reached || r.httpStatus >= 400) {
        info.message =
            r.message.isEmpty() ? QStringLiteral("HTTP %1").arg(r.httpStatus) : r.message;
        return info;
    }
    const QJsonObject data = r.object();
    const QString file = data.value(QStringLiteral("file_url")).toString().trimmed();
    if (!r.ok || file.isEmpty()) {
        info.state = UpdateInfo::UpToDate;
        info.message = r.message;
        return info;
    }
    info.state = UpdateInfo::Available;
    info.notes = data.value(QStringLiteral("up_content")).toString();
    info.fileUrl = QUrl(file);
    return info;
}

UpdatePack::UpdatePack(Hou_tai_jie_kou *api, QObject *parent)
    : QObject(parent), m_api(api), m_download(new FileDownload(api->networkManager(), this))
{
    qRegisterMetaType<lumitra::UpdateInfo>();
    connect(m_download, &FileDownload::progress, this, &UpdatePack::downloadProgress);
    connect(m_download, &FileDownload::finished, this, &UpdatePack::downloadFinished);
}

void UpdatePack::check()
{
    m_api->checkUpdate([this](const CloudResult &r) {
        m_info = parse_update_reply(r);
        if (m_info.state == UpdateInfo::Failed)
            qDebug() << "update check failed";
        emit checked(m_info);
    });
}

void UpdatePack::download(const QString &folder)
{
    m_download->start(m_info.fileUrl, folder.isEmpty() ? default_download_folder() : folder,
                      m_api->language());
}

void UpdatePack::cancelDownload()
{
    m_download->cancel();
}

bool UpdatePack::downloading() const
{
    return m_download->running();
}

} // namespace lumitra
