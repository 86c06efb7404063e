#include "move_dialog.h"

#include "ui_move_dialog.h"

#include <QSignalBlocker>

MoveDialog::MoveDialog(QWidget *parent) : QDialog(parent), ui(new Ui::MoveDialog)
{
    ui->setupUi(this);
    connect(ui->confirm_Btn, &QPushButton::clicked, this, &MoveDialog::accept);
    connect(ui->close_Btn, &QPushButton::clicked, this, &MoveDialog::reject);
    connect(ui->kuan_Box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &MoveDialog::widthEdited);
    connect(ui->gao_Box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &MoveDialog::heightEdited);
}

MoveDialog::~MoveDialog()
{
    delete ui;
}

void MoveDialog::setSelection(const QRectF &sceneBounds, double rotation)
{
    m_start = lumitra::machineRectFromScene(sceneBounds);
    m_startRotation = rotation;
    m_syncing = true;
    ui->x_Box->setValue(m_start.x());
    ui->y_Box->setValue(m_start.y());
    ui->kuan_Box->setValue(m_start.width());
    ui->gao_Box->setValue(m_start.height());
    ui->jiaodu_Box->setValue(rotation);
    m_syncing = false;
    // The boxes round to two decimals; remember what they show.
    m_start =
        QRectF(ui->x_Box->value(), ui->y_Box->value(), ui->kuan_Box->value(), ui->gao_Box->value());
    m_startRotation = ui->jiaodu_Box->value();
}

void MoveDialog::widthEdited(double width)
{
    if (m_syncing || !ui->suoding_Box->isChecked() || m_start.width() <= 0)
        return;
    m_syncing = true;
    ui->gao_Box->setValue(m_start.height() * width / m_start.width());
    m_syncing = false;
}

void MoveDialog::heightEdited(double height)
{
    if (m_syncing || !ui->suoding_Box->isChecked() || m_start.height() <= 0)
        return;
    m_syncing = true;
    ui->kuan_Box->setValue(m_start.width() * height / m_start.height());
    m_syncing = false;
}

lumitra::Placement MoveDialog::placement() const
{
    lumitra::Placement p;
    p.machineRect =
        QRectF(ui->x_Box->value(), ui->y_Box->value(), ui->kuan_Box->value(), ui->gao_Box->value());
    p.rotation = ui->jiaodu_Box->value() - m_startRotation;
    p.resize = p.machineRect.size() != m_start.size();
    return p;
}
