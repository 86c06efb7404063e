#include "offset_dialog.h"

#include "ui_offset_dialog.h"
#include "wheel_guard.h"

#include <QPushButton>

OffsetDialog::OffsetDialog(QWidget *parent) : QDialog(parent), ui(new Ui::OffsetDialog)
{
    ui->setupUi(this);
    connect(ui->confirm_Btn, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui->close_Btn, &QPushButton::clicked, this, &QDialog::reject);
    lumitra::guardWheel(this);
}

OffsetDialog::~OffsetDialog()
{
    delete ui;
}

void OffsetDialog::setSettings(const lumitra::OffsetSettings &s)
{
    ui->juli_Box->setValue(s.distance);
    (s.outward ? ui->xiangwai_Btn : ui->xiangnei_Btn)->setChecked(true);
    ui->guaijiao_Box->setCurrentIndex(int(s.corners));
    ui->baoliu_Box->setChecked(s.keepOriginal);
}

lumitra::OffsetSettings OffsetDialog::settings() const
{
    lumitra::OffsetSettings s;
    s.distance = ui->juli_Box->value();
    s.outward = ui->xiangwai_Btn->isChecked();
    s.corners = lumitra::CornerStyle(qBound(0, ui->guaijiao_Box->currentIndex(), 2));
    s.keepOriginal = ui->baoliu_Box->isChecked();
    return s;
}
