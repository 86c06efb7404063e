#include "array_dialog.h"

#include "ui_array_dialog.h"

ArrayDialog::ArrayDialog(QWidget *parent) : QDialog(parent), ui(new Ui::ArrayDialog)
{
    ui->setupUi(this);
    connect(ui->confirm_Btn, &QPushButton::clicked, this, &ArrayDialog::accept);
    connect(ui->close_Btn, &QPushButton::clicked, this, &ArrayDialog::reject);
}

ArrayDialog::~ArrayDialog()
{
    delete ui;
}

void ArrayDialog::setCentre(const QPointF &sceneCentre)
{
    ui->zhongxinX_Box->setValue(sceneCentre.x());
    ui->zhongxinY_Box->setValue(-sceneCentre.y());
}

bool ArrayDialog::isCircular() const
{
    return ui->leixing_Tab->currentWidget() == ui->yuanxing_Page;
}

lumitra::RectangularArray ArrayDialog::rectangular() const
{
    return lumitra::RectangularArray{ui->hang_Box->value(), ui->lie_Box->value(),
                                     ui->hengjianju_Box->value(), ui->zongjianju_Box->value()};
}

lumitra::CircularArray ArrayDialog::circular() const
{
    return lumitra::CircularArray{ui->shuliang_Box->value(),
                                  QPointF(ui->zhongxinX_Box->value(), -ui->zhongxinY_Box->value()),
                                  ui->jiaodu_Box->value(), ui->xuanzhuan_Box->isChecked()};
}
