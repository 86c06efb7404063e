#include "gun_zhou.h"

#include "ui_gun_zhou.h"

using namespace lumitra;

Gun_Zhou::Gun_Zhou(QWidget *parent) : QDialog(parent), ui(new Ui::Gun_Zhou)
{
    ui->setupUi(this);
    connect(ui->kaiGuan_Box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &Gun_Zhou::modeChanged);
    connect(ui->confirm_Btn, &QPushButton::clicked, this, &Gun_Zhou::confirm);
    connect(ui->close_Btn, &QPushButton::clicked, this, &QDialog::reject);
    setSettings(loadRotarySettings());
}

Gun_Zhou::~Gun_Zhou()
{
    delete ui;
}

RotarySettings Gun_Zhou::settings() const
{
    RotarySettings s;
    s.mode = ui->kaiGuan_Box->currentIndex();
    s.axis = ui->zhou_Box->currentText();
    s.circumference = ui->zhouChang_Box->value();
    s.diameter = ui->zhiJing_Box->value();
    s.unitsPerTurn = ui->mm_Box->value();
    return s;
}

void Gun_Zhou::setSettings(const RotarySettings &s)
{
    ui->kaiGuan_Box->setCurrentIndex(qBound(0, s.mode, ui->kaiGuan_Box->count() - 1));
    // An axis the dialog does not offer works as "Y" in the rewrite.
    const int axis = ui->zhou_Box->findText(s.axis);
    ui->zhou_Box->setCurrentIndex(axis < 0 ? 0 : axis);
    ui->zhouChang_Box->setValue(s.circumference);
    ui->zhiJing_Box->setValue(s.diameter);
    ui->mm_Box->setValue(s.unitsPerTurn);
    modeChanged(ui->kaiGuan_Box->currentIndex());
}

void Gun_Zhou::confirm()
{
    saveRotarySettings(settings());
    accept();
}

void Gun_Zhou::modeChanged(int mode)
{
    ui->zhouChang_Box->setEnabled(mode == RotarySettings::ByCircumference);
    ui->zhiJing_Box->setEnabled(mode == RotarySettings::ByDiameter);
    ui->zhou_Box->setEnabled(mode != RotarySettings::Off);
    ui->mm_Box->setEnabled(mode != RotarySettings::Off);
}
