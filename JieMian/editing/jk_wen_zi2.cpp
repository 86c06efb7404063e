#include "jk_wen_zi2.h"

#include "message_box.h"
#include "ui_jk_wen_zi2.h"

Jk_wen_zi2::Jk_wen_zi2(QWidget *parent) : QDialog(parent), ui(new Ui::Jk_wen_zi2)
{
    ui->setupUi(this);
    connect(ui->confirm_Btn, &QPushButton::clicked, this, &Jk_wen_zi2::accept);
    connect(ui->close_Btn, &QPushButton::clicked, this, &Jk_wen_zi2::reject);
}

Jk_wen_zi2::~Jk_wen_zi2()
{
    delete ui;
}

void Jk_wen_zi2::setText(const QString &text)
{
    ui->wenzi_Edit->setPlainText(text);
}

void Jk_wen_zi2::setSettings(const lumitra::TextSettings &s)
{
    if (!s.family.isEmpty())
        ui->ziti_Box->setCurrentFont(QFont(s.family));
    ui->daxiao_Box->setValue(s.sizeMm);
    ui->cuti_Box->setChecked(s.bold);
    ui->xieti_Box->setChecked(s.italic);
    ui->zijianju_Box->setValue(s.letterSpacingMm);
    ui->hangjianju_Box->setValue(s.lineSpacingMm);
}

QString Jk_wen_zi2::text() const
{
    return ui->wenzi_Edit->toPlainText();
}

lumitra::TextSettings Jk_wen_zi2::settings() const
{
    lumitra::TextSettings s;
    s.family = ui->ziti_Box->currentFont().family();
    s.sizeMm = ui->daxiao_Box->value();
    s.bold = ui->cuti_Box->isChecked();
    s.italic = ui->xieti_Box->isChecked();
    s.letterSpacingMm = ui->zijianju_Box->value();
    s.lineSpacingMm = ui->hangjianju_Box->value();
    return s;
}

void Jk_wen_zi2::accept()
{
    if (lumitra::textOutline(text(), settings()).isEmpty()) {
        lumitra::show_notice(this, tr("请输入文字"));
        return;
    }
    QDialog::accept();
}
