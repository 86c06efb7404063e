#pragma once

#include <QDialog>

namespace Ui {
class GengXinXiaZai;
}

namespace lumitra {
class UpdatePack;
}

// "版本更新说明": the release notes of the offered update, its download with
// a progress bar and cancel, "下载完成", then "请退出安装" ("立即退出" /
// "稍后退出"). A failed download shows its message in the dialog and may be
// tried again; nothing is left on disk.
class GengXinXiaZai : public QDialog
{
    Q_OBJECT

public:
    // The pack must hold an offered update (lastCheck() Available).
    explicit GengXinXiaZai(lumitra::UpdatePack *pack, QWidget *parent = nullptr);
    ~GengXinXiaZai() override;

    // Where the installer is saved (default_download_folder() unless set).
    void setDownloadFolder(const QString &folder) { m_folder = folder; }

signals:
    // The user chose "立即退出" after the download.
    void quitForInstall(const QString &installerPath);

private:
    void startDownload();
    void cancelClicked();
    void downloadFinished(bool ok, const QString &message, const QString &path);

    Ui::GengXinXiaZai *ui;
    lumitra::UpdatePack *m_pack;
    QString m_folder;
};
