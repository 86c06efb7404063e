#include "su_cai_shang_chuan.h"

#include "hou_tai_jie_kou.h"
#include "message_box.h"
#include "ui_su_cai_shang_chuan.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

using namespace lumitra;

Su_Cai_Shang_Chuan::Su_Cai_Shang_Chuan(Hou_tai_jie_kou *api, QWidget *parent)
    : QDialog(parent), ui(new Ui::Su_Cai_Shang_Chuan), m_api(api)
{
    ui->setupUi(this);
    for (QComboBox *box : {ui->type_Box, ui->materialType_Box})
        box->addItem(QStringLiteral("-"), QString());
    QPointer<Su_Cai_Shang_Chuan> self(this);
    m_api->materialAttributes([self](const CloudResult &r) {
        if (!self || !r.ok)
            return;
        const QList<QPair<QComboBox *, const char *>> boxes = {
            {self->ui->type_Box, "type"}, {self->ui->materialType_Box, "material_type"}};
        for (const auto &b : boxes)
            for (const QJsonValue &v : r.object().value(QLatin1String(b.second)).toArray())
                b.first->addItem(v.toObject().value(QStringLiteral("name")).toString(),
                                 v.toObject().value(QStringLiteral("id")).toVariant().toString());
    });
    connect(ui->file_Btn, &QPushButton::clicked, this, &Su_Cai_Shang_Chuan::chooseFile);
    connect(ui->images_Btn, &QPushButton::clicked, this, &Su_Cai_Shang_Chuan::chooseImages);
    connect(ui->upload_Btn, &QPushButton::clicked, this, &Su_Cai_Shang_Chuan::upload);
    connect(ui->close_Btn, &QPushButton::clicked, this, &QDialog::reject);
}

Su_Cai_Shang_Chuan::~Su_Cai_Shang_Chuan()
{
    delete ui;
}

void Su_Cai_Shang_Chuan::setDesignFile(const QString &path)
{
    ui->file_Edit->setText(path);
    if (ui->title_Edit->text().isEmpty())
        ui->title_Edit->setText(QFileInfo(path).completeBaseName());
}

void Su_Cai_Shang_Chuan::chooseFile()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("选择"), QString());
    if (!path.isEmpty())
        setDesignFile(path);
}

void Su_Cai_Shang_Chuan::chooseImages()
{
    const QStringList paths = QFileDialog::getOpenFileNames(
        this, tr("选择"), QString(), QStringLiteral("*.png *.jpg *.jpeg *.bmp"));
    if (!paths.isEmpty())
        ui->images_Edit->setText(paths.join(QLatin1Char(';')));
}

void Su_Cai_Shang_Chuan::failed(const QString &message)
{
    ui->upload_Btn->setEnabled(true);
    show_notice(this, message.isEmpty() ? tr("请求失败") : message);
}

void Su_Cai_Shang_Chuan::upload()
{
    if (!m_api->loggedIn()) {
        show_notice(this, tr("请先登录"));
        return;
    }
    const QString design = ui->file_Edit->text().trimmed();
    if (ui->title_Edit->text().trimmed().isEmpty() || !QFileInfo(design).isFile()) {
        show_notice(this, tr("请填写完整"));
        return;
    }
    m_pending =
        QStringList{design} + ui->images_Edit->text().split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (QString &p : m_pending)
        p = p.trimmed();
    m_uploaded.clear();
    ui->upload_Btn->setEnabled(false);
    uploadNext();
}

void Su_Cai_Shang_Chuan::uploadNext()
{
    QPointer<Su_Cai_Shang_Chuan> self(this);
    if (!m_pending.isEmpty()) {
        const QString path = m_pending.takeFirst();
        m_api->uploadFile(path, [self](const CloudResult &r) {
            if (!self)
                return;
            const QString url = r.object().value(QStringLiteral("url")).toString();
            if (!r.ok || url.isEmpty())
                return self->failed(r.message);
            self->m_uploaded << url;
            self->uploadNext();
        });
        return;
    }
    MaterialUpload m;
    m.title = ui->title_Edit->text().trimmed();
    m.price = QString::number(ui->price_Box->value(), 'f', 2);
    m.file = m_uploaded.value(0);
    m.images = m_uploaded.mid(1, 1);
    m.detailImages = m_uploaded.mid(1);
    m.detail = ui->detail_Text->toPlainText();
    m.fileType = QFileInfo(ui->file_Edit->text()).suffix().toLower();
    m.type = ui->type_Box->currentData().toString();
    m.materialType = ui->materialType_Box->currentData().toString();
    m.tags = ui->tags_Edit->text().trimmed();
    m_api->uploadMaterial(m, [self](const CloudResult &r) {
        if (!self)
            return;
        if (!r.ok)
            return self->failed(r.message);
        const QString id = r.object().value(QStringLiteral("id")).toVariant().toString();
        self->m_api->materialsAction({id}, QStringLiteral("up"), [self, id](const CloudResult &up) {
            if (!self)
                return;
            if (!up.ok)
                return self->failed(up.message);
            show_notice(self, tr("上传成功"));
            emit self->uploaded(id);
            self->accept();
        });
    });
}
