#pragma once

#include <QDialog>
#include <QStringList>

namespace Ui {
class Su_Cai_Shang_Chuan;
}

namespace lumitra {
class Hou_tai_jie_kou;
struct MaterialUpload;
} // namespace lumitra

// Offers a design in the store: the design file and its pictures go up through
// "/files" one by one, then the material through "/account/material", and it
// is put on sale ("/account/material/multiple", action "up"). Picture paths
// are separated by ";". Accepted when everything is up.
class Su_Cai_Shang_Chuan : public QDialog
{
    Q_OBJECT

public:
    explicit Su_Cai_Shang_Chuan(lumitra::Hou_tai_jie_kou *api, QWidget *parent = nullptr);
    ~Su_Cai_Shang_Chuan() override;

    // Puts a design (e.g. the window's current project file) in the form.
    void setDesignFile(const QString &path);

signals:
    void uploaded(const QString &id);

private:
    void chooseFile();
    void chooseImages();
    void upload();
    void uploadNext();
    void failed(const QString &message);

    Ui::Su_Cai_Shang_Chuan *ui;
    lumitra::Hou_tai_jie_kou *m_api;
    QStringList m_pending;  // local files still to send, the design first
    QStringList m_uploaded; // their addresses, in the same order
};
