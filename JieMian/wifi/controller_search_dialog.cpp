#include "controller_search_dialog.h"

#include "controller_search.h"
#include "message_box.h"
#include "ui_controller_search_dialog.h"

#include <QListWidget>
#include <QPushButton>

ControllerSearchDialog::ControllerSearchDialog(const QStringList &addresses, int port,
                                               QWidget *parent)
    : QDialog(parent), ui(new Ui::ControllerSearchDialog), m_search(new ControllerSearch(this))
{
    ui->setupUi(this);
    m_search->setAddresses(addresses);
    m_search->setPort(port);
    connect(m_search, &ControllerSearch::isOnline, this, &ControllerSearchDialog::reported);
    connect(m_search, &ControllerSearch::progress, this, &ControllerSearchDialog::progressed);
    connect(m_search, &ControllerSearch::finished, this, &ControllerSearchDialog::finished);
    connect(ui->search_Btn, &QPushButton::clicked, this, &ControllerSearchDialog::startSearch);
    connect(ui->confirm_Btn, &QPushButton::clicked, this, &ControllerSearchDialog::choose);
    connect(ui->close_Btn, &QPushButton::clicked, this, &ControllerSearchDialog::reject);
    connect(ui->found_List, &QListWidget::itemDoubleClicked, this, &ControllerSearchDialog::choose);
    connect(ui->found_List, &QListWidget::currentRowChanged, this,
            &ControllerSearchDialog::updateButtons);
    ui->progress_Bar->setValue(0);
    updateButtons();
}

ControllerSearchDialog::~ControllerSearchDialog()
{
    m_search->stop();
    delete ui;
}

void ControllerSearchDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!m_started)
        startSearch();
}

void ControllerSearchDialog::done(int result)
{
    m_search->stop();
    QDialog::done(result);
}

void ControllerSearchDialog::startSearch()
{
    m_started = true;
    ui->found_List->clear();
    ui->progress_Bar->setRange(0, qMax(1, m_search->addresses().size()));
    ui->progress_Bar->setValue(0);
    ui->status_Lab->setText(tr("正在搜索设备..."));
    m_search->start();
    updateButtons();
}

void ControllerSearchDialog::reported(const QString &address, bool online)
{
    if (online) {
        ui->found_List->addItem(address);
        if (ui->found_List->currentRow() < 0)
            ui->found_List->setCurrentRow(0);
    }
    updateButtons();
}

void ControllerSearchDialog::progressed(int probed, int total)
{
    ui->progress_Bar->setRange(0, qMax(1, total));
    ui->progress_Bar->setValue(probed);
}

void ControllerSearchDialog::finished()
{
    ui->status_Lab->setText(ui->found_List->count() > 0
                                ? tr("搜索完成!")
                                : tr("搜索完成!") + QLatin1Char(' ') + tr("未找到设备"));
    updateButtons();
}

void ControllerSearchDialog::choose()
{
    QListWidgetItem *item = ui->found_List->currentItem();
    if (!item) {
        lumitra::show_notice(this, tr("请先选择设备"));
        return;
    }
    QString host;
    int port = 0;
    ControllerSearch::splitAddress(item->text(), m_search->port(), &host, &port);
    emit controllerChosen(host, port);
    accept();
}

void ControllerSearchDialog::updateButtons()
{
    ui->search_Btn->setEnabled(!m_search->isRunning());
    ui->confirm_Btn->setEnabled(ui->found_List->currentItem() != nullptr);
}
