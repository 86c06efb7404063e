#include "sd_file_manager.h"

#include "message_box.h"
#include "ui_sd_file_manager.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>

using namespace lumitra;
using sdcard::SdFile;
using sdcard::SdListing;

SdFileManager::SdFileManager(QWidget *parent)
    : QDialog(parent), ui(new Ui::SdFileManager), m_client(new SdCardClient(this))
{
    ui->setupUi(this);
    ui->file_Table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    ui->file_Table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    ui->upload_Bar->hide();
    m_chooser = [](QWidget *parentWidget) {
        return QFileDialog::getOpenFileName(parentWidget, tr("选择上传文件"), QString(),
                                            tr("G代码文件 (*.nc *.gcode *.txt);;所有文件 (*)"));
    };
    connect(ui->refresh_Btn, &QPushButton::clicked, m_client, &SdCardClient::refresh);
    connect(ui->upload_Btn, &QPushButton::clicked, this, &SdFileManager::uploadClicked);
    connect(ui->delete_Btn, &QPushButton::clicked, this, &SdFileManager::deleteClicked);
    connect(ui->run_Btn, &QPushButton::clicked, this, &SdFileManager::runClicked);
    connect(ui->close_Btn, &QPushButton::clicked, this, &SdFileManager::reject);
    connect(ui->file_Table, &QTableWidget::itemSelectionChanged, this,
            &SdFileManager::updateButtons);
    connect(m_client, &SdCardClient::listed, this, &SdFileManager::showListing);
    connect(m_client, &SdCardClient::failed, this, &SdFileManager::failed);
    connect(m_client, &SdCardClient::busyChanged, this, &SdFileManager::updateButtons);
    connect(m_client, &SdCardClient::started, this, &SdFileManager::fileStarted);
    connect(m_client, &SdCardClient::uploadProgress, this, [this](qint64 sent, qint64 total) {
        ui->upload_Bar->setRange(0, 1000);
        ui->upload_Bar->setValue(total > 0 ? int(1000 * sent / total) : 0);
    });
    connect(m_client, &SdCardClient::busyChanged, this, [this](bool busy) {
        if (!busy)
            ui->upload_Bar->hide();
    });
    showListing(SdListing());
}

SdFileManager::~SdFileManager()
{
    delete ui;
}

void SdFileManager::setAddress(const QString &host, int port)
{
    m_client->setAddress(host, port);
    ui->address_Lab->setText(host + QLatin1Char(':') + QString::number(port));
}

void SdFileManager::setFileChooser(FileChooser chooser)
{
    m_chooser = std::move(chooser);
}

QStringList SdFileManager::fileNames() const
{
    QStringList names;
    for (const SdFile &file : m_listing.files)
        names << file.name;
    return names;
}

void SdFileManager::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!m_client->host().isEmpty())
        m_client->refresh();
}

void SdFileManager::showListing(const SdListing &listing)
{
    const QString previous = selectedFile() ? selectedFile()->name : QString();
    m_listing = listing;
    QTableWidget *table = ui->file_Table;
    table->clearContents();
    table->setRowCount(listing.files.size());
    for (int row = 0; row < listing.files.size(); ++row) {
        const SdFile &file = listing.files[row];
        auto *name =
            new QTableWidgetItem(file.isDirectory ? file.name + QLatin1Char('/') : file.name);
        auto *size = new QTableWidgetItem(file.sizeText);
        size->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        table->setItem(row, 0, name);
        table->setItem(row, 1, size);
        if (file.name == previous)
            table->selectRow(row);
    }
    const QString unknown = QStringLiteral("-");
    auto shown = [&unknown](qint64 bytes) {
        return bytes < 0 ? unknown : sdcard::formatSize(bytes);
    };
    ui->totalValue_Lab->setText(shown(listing.total));
    ui->usedValue_Lab->setText(shown(listing.used));
    ui->freeValue_Lab->setText(shown(listing.free()));
    ui->statusValue_Lab->setText(listing.status.isEmpty() ? unknown : listing.status);
    updateButtons();
}

const SdFile *SdFileManager::selectedFile() const
{
    const QList<QTableWidgetItem *> items = ui->file_Table->selectedItems();
    if (items.isEmpty())
        return nullptr;
    const int row = items.first()->row();
    return row >= 0 && row < m_listing.files.size() ? &m_listing.files[row] : nullptr;
}

void SdFileManager::uploadClicked()
{
    const QString path = m_chooser ? m_chooser(this) : QString();
    if (path.isEmpty())
        return;
    const QString name = QFileInfo(path).fileName();
    if (fileNames().contains(name)
        && !show_message(this, MessageKind::Question, tr("取消"), tr("确定"),
                         tr("文件 %1 已存在，是否覆盖?").arg(name), tr("提示")))
        return;
    ui->upload_Bar->setRange(0, 0);
    ui->upload_Bar->show();
    m_client->upload(path, name);
}

void SdFileManager::deleteClicked()
{
    const SdFile *file = selectedFile();
    if (!file || file->isDirectory)
        return;
    const QString name = file->name;
    if (show_message(this, MessageKind::Question, tr("取消"), tr("确定"),
                     tr("确定删除文件 %1 吗?").arg(name), tr("提示")))
        m_client->remove(name);
}

void SdFileManager::runClicked()
{
    const SdFile *file = selectedFile();
    if (!file || file->isDirectory)
        return;
    const QString name = file->name;
    if (show_message(this, MessageKind::Question, tr("取消"), tr("确定"),
                     tr("确定运行文件 %1 吗?").arg(name), tr("提示")))
        m_client->run(name);
}

void SdFileManager::failed(SdCardClient::Operation operation, const QString &reason)
{
    QString what;
    switch (operation) {
    case SdCardClient::Operation::List:
        what = tr("读取SD卡文件列表失败");
        break;
    case SdCardClient::Operation::Delete:
        what = tr("删除文件失败");
        break;
    case SdCardClient::Operation::Run:
        what = tr("运行文件失败");
        break;
    case SdCardClient::Operation::Upload:
        what = tr("上传文件失败");
        break;
    }
    show_notice(this, what + QStringLiteral("\n") + reason);
}

void SdFileManager::updateButtons()
{
    const bool idle = !m_client->isBusy();
    const SdFile *file = selectedFile();
    const bool fileChosen = file && !file->isDirectory;
    ui->refresh_Btn->setEnabled(idle);
    ui->upload_Btn->setEnabled(idle);
    ui->delete_Btn->setEnabled(idle && fileChosen);
    ui->run_Btn->setEnabled(idle && fileChosen);
}
