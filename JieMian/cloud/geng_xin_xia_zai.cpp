#include "geng_xin_xia_zai.h"

#include "message_box.h"
#include "ui_geng_xin_xia_zai.h"
#include "update_pack.h"

using namespace lumitra;

GengXinXiaZai::GengXinXiaZai(UpdatePack *pack, QWidget *parent)
    : QDialog(parent), ui(new Ui::GengXinXiaZai), m_pack(pack)
{
    ui->setupUi(this);
    ui->notes_Text->setPlainText(pack->lastCheck().notes);
    ui->progress_Bar->hide();
    connect(ui->update_Btn, &QPushButton::clicked, this, &GengXinXiaZai::startDownload);
    connect(ui->cancel_Btn, &QPushButton::clicked, this, &GengXinXiaZai::cancelClicked);
    connect(pack, &UpdatePack::downloadProgress, this, [this](qint64 received, qint64 total) {
        if (total > 0) {
            ui->progress_Bar->setMaximum(1000);
            ui->progress_Bar->setValue(int(received * 1000 / total));
        } else {
            ui->progress_Bar->setMaximum(0); // busy
        }
    });
    connect(pack, &UpdatePack::downloadFinished, this, &GengXinXiaZai::downloadFinished);
}

GengXinXiaZai::~GengXinXiaZai()
{
    if (m_pack->downloading())
        m_pack->cancelDownload();
    delete ui;
}

void GengXinXiaZai::startDownload()
{
    ui->update_Btn->setEnabled(false);
    ui->status_Lab->clear();
    ui->progress_Bar->setValue(0);
    ui->progress_Bar->show();
    m_pack->download(m_folder);
}

void GengXinXiaZai::cancelClicked()
{
    if (m_pack->downloading())
        m_pack->cancelDownload();
    else
        reject();
}

void GengXinXiaZai::downloadFinished(bool ok, const QString &message, const QString &path)
{
    ui->update_Btn->setEnabled(true);
    if (!ok) {
        ui->progress_Bar->hide();
        ui->status_Lab->setText(message);
        return;
    }
    ui->progress_Bar->setMaximum(1000);
    ui->progress_Bar->setValue(1000);
    show_notice(this, tr("下载完成"));
    if (show_message(this, MessageKind::Question, tr("稍后退出"), tr("立即退出"), tr("请退出安装"),
                     tr("提示")))
        emit quitForInstall(path);
    accept();
}
