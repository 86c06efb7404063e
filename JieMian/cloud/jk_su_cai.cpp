#include "jk_su_cai.h"

#include "hou_tai_jie_kou.h"
#include "image_cache.h"
#include "message_box.h"
#include "ui_jk_su_cai.h"

#include <QPixmap>
#include <QPointer>

using namespace lumitra;

namespace {
constexpr int kIdRole = Qt::UserRole;
constexpr int kCoverRole = Qt::UserRole + 1;
} // namespace

jk_su_cai::jk_su_cai(Hou_tai_jie_kou *api, QWidget *parent)
    : QDialog(parent), ui(new Ui::jk_su_cai), m_api(api), m_images(new ImageCache(api, this))
{
    ui->setupUi(this);
    for (QComboBox *box : {ui->type_Box, ui->fileType_Box, ui->materialType_Box, ui->price_Box,
                           ui->modelType_Box, ui->powerType_Box, ui->tags_Box})
        fillFilter(box, QJsonArray());
    connect(ui->search_Btn, &QPushButton::clicked, this, [this]() { loadPage(1); });
    connect(ui->search_Edit, &QLineEdit::returnPressed, this, [this]() { loadPage(1); });
    connect(ui->prev_Btn, &QPushButton::clicked, this, [this]() { loadPage(m_page - 1); });
    connect(ui->next_Btn, &QPushButton::clicked, this, [this]() { loadPage(m_page + 1); });
    connect(ui->close_Btn, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui->list_List, &QListWidget::itemActivated, this,
            [this](QListWidgetItem *item) { emit materialChosen(item->data(kIdRole).toString()); });
    connect(m_images, &ImageCache::loaded, this, &jk_su_cai::showThumbnail);
    ui->prev_Btn->setEnabled(false);
    ui->next_Btn->setEnabled(false);
    loadFilters();
    loadPage(1);
}

jk_su_cai::~jk_su_cai()
{
    delete ui;
}

void jk_su_cai::fillFilter(QComboBox *box, const QJsonArray &options)
{
    box->clear();
    box->addItem(tr("全部"), QString());
    for (const QJsonValue &v : options) {
        const QJsonObject o = v.toObject();
        const QString id = o.value(QStringLiteral("id")).toVariant().toString();
        box->addItem(o.value(QStringLiteral("name")).toString(), id);
    }
}

void jk_su_cai::loadFilters()
{
    QPointer<jk_su_cai> self(this);
    m_api->materialAttributes([self](const CloudResult &r) {
        if (!self || !r.ok)
            return;
        const QJsonObject d = r.object();
        const QList<QPair<QComboBox *, const char *>> boxes = {
            {self->ui->type_Box, "type"},
            {self->ui->fileType_Box, "file_type"},
            {self->ui->materialType_Box, "material_type"},
            {self->ui->modelType_Box, "model_type"},
            {self->ui->powerType_Box, "power_type"},
            {self->ui->tags_Box, "tags"},
            {self->ui->price_Box, "price"}};
        for (const auto &b : boxes)
            self->fillFilter(b.first, d.value(QLatin1String(b.second)).toArray());
    });
}

MaterialQuery jk_su_cai::query(int page) const
{
    MaterialQuery q;
    q.search = ui->search_Edit->text().trimmed();
    q.type = ui->type_Box->currentData().toString();
    q.fileType = ui->fileType_Box->currentData().toString();
    q.materialType = ui->materialType_Box->currentData().toString();
    q.modelType = ui->modelType_Box->currentData().toString();
    q.powerType = ui->powerType_Box->currentData().toString();
    q.tags = ui->tags_Box->currentData().toString();
    q.price = ui->price_Box->currentData().toString();
    q.page = page;
    return q;
}

void jk_su_cai::loadPage(int page)
{
    if (page < 1)
        return;
    QPointer<jk_su_cai> self(this);
    ui->prev_Btn->setEnabled(false);
    ui->next_Btn->setEnabled(false);
    m_api->listMaterials(query(page), [self, page](const CloudResult &r) {
        if (!self)
            return;
        if (!r.ok) {
            self->ui->prev_Btn->setEnabled(self->m_page > 1);
            self->ui->next_Btn->setEnabled(self->m_page < self->m_lastPage);
            show_notice(self, r.message.isEmpty() ? tr("请求失败") : r.message);
            return;
        }
        self->m_page = page;
        self->m_lastPage = qMax(1, r.object().value(QStringLiteral("last_page")).toInt());
        self->showList(r.list);
        emit self->pageShown(page);
    });
}

void jk_su_cai::showList(const QJsonArray &list)
{
    ui->list_List->clear();
    for (const QJsonValue &v : list) {
        const QJsonObject o = v.toObject();
        auto *item =
            new QListWidgetItem(o.value(QStringLiteral("title")).toString(), ui->list_List);
        item->setData(kIdRole, o.value(QStringLiteral("id")).toVariant().toString());
        const QString cover = o.value(QStringLiteral("cover")).toString();
        item->setData(kCoverRole, cover);
        item->setToolTip(o.value(QStringLiteral("price")).toVariant().toString());
        if (m_images->contains(cover))
            showThumbnail(cover, m_images->bytes(cover));
        else
            m_images->request(cover);
    }
    ui->page_Lab->setText(QStringLiteral("%1 / %2").arg(m_page).arg(m_lastPage));
    ui->prev_Btn->setEnabled(m_page > 1);
    ui->next_Btn->setEnabled(m_page < m_lastPage);
}

void jk_su_cai::showThumbnail(const QString &url, const QByteArray &bytes)
{
    QPixmap pixmap;
    if (bytes.isEmpty() || !pixmap.loadFromData(bytes))
        return;
    const QIcon icon(pixmap);
    for (int i = 0; i < ui->list_List->count(); ++i) {
        QListWidgetItem *item = ui->list_List->item(i);
        if (item->data(kCoverRole).toString() == url)
            item->setIcon(icon);
    }
}
