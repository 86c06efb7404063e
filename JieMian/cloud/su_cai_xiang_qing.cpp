#include "su_cai_xiang_qing.h"

#include "file_download.h"
#include "hou_tai_jie_kou.h"
#include "image_cache.h"
#include "message_box.h"
#include "ui_su_cai_xiang_qing.h"

#include <QPixmap>
#include <QPointer>

using namespace lumitra;

Su_Cai_Xiang_Qing::Su_Cai_Xiang_Qing(Hou_tai_jie_kou *api, ImageCache *images,
                                     const QString &downloadFolder, QWidget *parent)
    : QDialog(parent), ui(new Ui::Su_Cai_Xiang_Qing), m_api(api), m_images(images),
      m_download(new FileDownload(api->networkManager(), this)), m_folder(downloadFolder)
{
    ui->setupUi(this);
    ui->buy_Btn->setEnabled(false);
    ui->open_Btn->hide();
    connect(ui->buy_Btn, &QPushButton::clicked, this, &Su_Cai_Xiang_Qing::buy);
    connect(ui->open_Btn, &QPushButton::clicked, this, &Su_Cai_Xiang_Qing::openDesign);
    connect(ui->close_Btn, &QPushButton::clicked, this, &QDialog::reject);
    connect(
        m_images, &ImageCache::loaded, this, [this](const QString &url, const QByteArray &bytes) {
            QPixmap pixmap;
            if (url == m_image && pixmap.loadFromData(bytes))
                ui->image_Lab->setPixmap(pixmap.scaled(
                    ui->image_Lab->minimumSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
        });
    connect(m_download, &FileDownload::finished, this,
            [this](bool ok, const QString &message, const QString &path) {
                ui->open_Btn->setEnabled(true);
                if (!ok) {
                    show_notice(this, message);
                    return;
                }
                emit openDesignFile(path);
                accept();
            });
}

Su_Cai_Xiang_Qing::~Su_Cai_Xiang_Qing()
{
    delete ui;
}

void Su_Cai_Xiang_Qing::load(const QString &id)
{
    m_id = id;
    QPointer<Su_Cai_Xiang_Qing> self(this);
    m_api->materialInfo(id, [self](const CloudResult &r) {
        if (!self)
            return;
        if (!r.ok) {
            show_notice(self, r.message.isEmpty() ? tr("请求失败") : r.message);
            self->reject();
            return;
        }
        if (r.object().isEmpty()) {
            show_notice(self, tr("没有发现素材数据"));
            self->reject();
            return;
        }
        self->showMaterial(r.object());
        emit self->loaded();
    });
}

void Su_Cai_Xiang_Qing::showMaterial(const QJsonObject &d)
{
    ui->title_Lab->setText(d.value(QStringLiteral("title")).toString());
    ui->detail_Text->setPlainText(d.value(QStringLiteral("detail")).toString());
    ui->price_Lab->setText(d.value(QStringLiteral("price")).toVariant().toString());
    m_fileUrl = QUrl(d.value(QStringLiteral("file_url")).toString());
    const bool bought =
        d.value(QStringLiteral("bought")).toBool() && m_fileUrl.isValid() && !m_fileUrl.isEmpty();
    ui->buy_Btn->setVisible(!bought);
    ui->buy_Btn->setEnabled(!bought);
    ui->open_Btn->setVisible(bought);
    const QJsonArray images = d.value(QStringLiteral("images")).toArray();
    m_image =
        images.isEmpty() ? d.value(QStringLiteral("cover")).toString() : images.first().toString();
    if (m_images->contains(m_image))
        emit m_images->loaded(m_image, m_images->bytes(m_image));
    else
        m_images->request(m_image);
}

void Su_Cai_Xiang_Qing::buy()
{
    if (!m_api->loggedIn()) {
        show_notice(this, tr("请先登录"));
        emit loginNeeded();
        return;
    }
    if (!show_message(this, MessageKind::Question, tr("取消"), tr("确定"), tr("是否购买素材"),
                      tr("提示")))
        return;
    QPointer<Su_Cai_Xiang_Qing> self(this);
    ui->buy_Btn->setEnabled(false);
    m_api->buyMaterial(m_id, [self](const CloudResult &r) {
        if (!self)
            return;
        if (!r.ok) {
            self->ui->buy_Btn->setEnabled(true);
            QString text = tr("素材购买失败,请重新购买!");
            if (!r.message.isEmpty())
                text += QLatin1Char('\n') + r.message;
            show_notice(self, text);
            return;
        }
        show_notice(self, tr("素材购买成功!"));
        self->load(self->m_id); // the detail now carries the file
    });
}

void Su_Cai_Xiang_Qing::openDesign()
{
    if (m_download->running())
        return;
    ui->open_Btn->setEnabled(false);
    m_download->start(m_fileUrl, m_folder, m_api->language());
}
