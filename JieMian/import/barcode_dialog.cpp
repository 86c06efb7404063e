#include "barcode_dialog.h"

#include "message_box.h"
#include "ui_barcode_dialog.h"

BarcodeDialog::BarcodeDialog(QWidget *parent) : QDialog(parent), ui(new Ui::BarcodeDialog)
{
    ui->setupUi(this);
    connect(ui->kind_Box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &BarcodeDialog::kindChanged);
    connect(ui->confirm_Btn, &QPushButton::clicked, this, &BarcodeDialog::confirm);
    connect(ui->close_Btn, &QPushButton::clicked, this, &QDialog::reject);
    kindChanged();
}

BarcodeDialog::~BarcodeDialog()
{
    delete ui;
}

lumitra::BarcodeSettings BarcodeDialog::settings() const
{
    lumitra::BarcodeSettings s;
    s.kind = lumitra::BarcodeKind(ui->kind_Box->currentIndex());
    s.data = ui->data_Edit->text();
    s.widthMm = ui->width_Spin->value();
    s.heightMm = ui->height_Spin->value();
    s.quietModules = ui->quiet_Spin->value();
    s.level = lumitra::QrLevel(ui->level_Box->currentIndex());
    s.showText = ui->text_Check->isChecked();
    return s;
}

void BarcodeDialog::kindChanged()
{
    const auto kind = lumitra::BarcodeKind(ui->kind_Box->currentIndex());
    const bool linear = lumitra::isLinearKind(kind);
    ui->height_Spin->setEnabled(linear);
    ui->text_Check->setEnabled(linear);
    ui->level_Box->setEnabled(kind == lumitra::BarcodeKind::Qr);
    ui->quiet_Spin->setValue(lumitra::defaultQuietModules(kind));
}

void BarcodeDialog::confirm()
{
    lumitra::BarcodeLayout layout;
    QString error;
    if (!lumitra::layoutBarcode(settings(), &layout, &error)) {
        lumitra::show_notice(this, tr("无法生成条码：%1").arg(error));
        return;
    }
    emit barcodeMade(layout);
    accept();
}
