#pragma once

#include <QDialog>
#include <QJsonArray>

namespace Ui {
class jk_su_cai;
}
class QComboBox;
class QListWidgetItem;

namespace lumitra {
class Hou_tai_jie_kou;
class ImageCache;
struct MaterialQuery;
} // namespace lumitra

// The material store: the filters of "/material/attr", a search, the list one
// page at a time with thumbnails loaded when their page is shown (and kept),
// and the detail of a material on activation (double click or Enter).
class jk_su_cai : public QDialog
{
    Q_OBJECT

public:
    explicit jk_su_cai(lumitra::Hou_tai_jie_kou *api, QWidget *parent = nullptr);
    ~jk_su_cai() override;

    int page() const { return m_page; }
    int lastPage() const { return m_lastPage; }
    lumitra::ImageCache *images() const { return m_images; }

public slots:
    void loadPage(int page);

signals:
    // A material was activated: the window (or controller) shows its detail.
    void materialChosen(const QString &id);
    // A page arrived and is shown.
    void pageShown(int page);

private:
    void loadFilters();
    void fillFilter(QComboBox *box, const QJsonArray &options);
    void showList(const QJsonArray &list);
    void showThumbnail(const QString &url, const QByteArray &bytes);
    lumitra::MaterialQuery query(int page) const;

    Ui::jk_su_cai *ui;
    lumitra::Hou_tai_jie_kou *m_api;
    lumitra::ImageCache *m_images;
    int m_page = 1;
    int m_lastPage = 1;
};
