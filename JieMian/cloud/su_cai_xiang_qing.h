#pragma once

#include <QDialog>
#include <QJsonObject>
#include <QUrl>

namespace Ui {
class Su_Cai_Xiang_Qing;
}

namespace lumitra {
class FileDownload;
class Hou_tai_jie_kou;
class ImageCache;
} // namespace lumitra

// One material: title, picture, description and price; buying (asked first,
// "请先登录" without a token) and opening a bought design, which is downloaded
// into `downloadFolder` and handed on through openDesignFile().
class Su_Cai_Xiang_Qing : public QDialog
{
    Q_OBJECT

public:
    Su_Cai_Xiang_Qing(lumitra::Hou_tai_jie_kou *api, lumitra::ImageCache *images,
                      const QString &downloadFolder, QWidget *parent = nullptr);
    ~Su_Cai_Xiang_Qing() override;

    // Asks the service for the material; an empty answer shows "没有发现素材数据"
    // and closes the dialog.
    void load(const QString &id);
    QString materialId() const { return m_id; }

signals:
    void loaded();
    void openDesignFile(const QString &path);
    // Buying needs a log-in: the controller shows the log-in dialog.
    void loginNeeded();

private:
    void showMaterial(const QJsonObject &d);
    void buy();
    void openDesign();

    Ui::Su_Cai_Xiang_Qing *ui;
    lumitra::Hou_tai_jie_kou *m_api;
    lumitra::ImageCache *m_images;
    lumitra::FileDownload *m_download;
    QString m_folder;
    QString m_id;
    QUrl m_fileUrl;
    QString m_image;
};
