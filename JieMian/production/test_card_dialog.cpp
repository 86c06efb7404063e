#include "test_card_dialog.h"
#include "ui_test_card_dialog.h"

#include "message_box.h"

#include <QDoubleSpinBox>
#include <QSpinBox>

using lumitra::TestCardSettings;

TestCardDialog::TestCardDialog(QWidget *parent) : QDialog(parent), ui(new Ui::TestCardDialog)
{
    ui->setupUi(this);
    ui->modeBox->setCurrentIndex(FillMode);
    for (QSpinBox *box : findChildren<QSpinBox *>())
        connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, [this] { update(); });
    for (QDoubleSpinBox *box : findChildren<QDoubleSpinBox *>())
        connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                [this] { update(); });
    connect(ui->generateButton, &QPushButton::clicked, this, &TestCardDialog::generate);
    connect(ui->saveButton, &QPushButton::clicked, this, &TestCardDialog::saveBestCell);
    update();
}

TestCardDialog::~TestCardDialog()
{
    delete ui;
}

TestCardSettings TestCardDialog::settings() const
{
    TestCardSettings s;
    s.powerFrom = ui->powerFromBox->value();
    s.powerTo = ui->powerToBox->value();
    s.speedFrom = ui->speedFromBox->value();
    s.speedTo = ui->speedToBox->value();
    s.rows = ui->rowsBox->value();
    s.columns = ui->columnsBox->value();
    s.cellMm = ui->cellBox->value();
    s.spacingMm = ui->spacingBox->value();
    s.mode = ui->modeBox->currentIndex() == 0 ? LineMode : FillMode;
    s.passes = ui->passesBox->value();
    return s;
}

void TestCardDialog::setSettings(const TestCardSettings &s)
{
    ui->powerFromBox->setValue(s.powerFrom);
    ui->powerToBox->setValue(s.powerTo);
    ui->speedFromBox->setValue(s.speedFrom);
    ui->speedToBox->setValue(s.speedTo);
    ui->rowsBox->setValue(s.rows);
    ui->columnsBox->setValue(s.columns);
    ui->cellBox->setValue(s.cellMm);
    ui->spacingBox->setValue(s.spacingMm);
    ui->modeBox->setCurrentIndex(s.mode == LineMode ? 0 : 1);
    ui->passesBox->setValue(s.passes);
    update();
}

QString TestCardDialog::note() const
{
    return ui->noteLabel->text();
}

void TestCardDialog::update()
{
    const TestCardSettings s = settings();
    const lumitra::TestCardSplit split = lumitra::testCardSplit(s);
    const int cells = s.rows * s.columns;
    if (split.pages > 1)
        ui->noteLabel->setText(tr("%1个方块超过%2个图层,将分成%3页")
                                   .arg(cells)
                                   .arg(lumitra::kCardCellsPerPage)
                                   .arg(split.pages));
    else
        ui->noteLabel->setText(tr("%1个方块,1页").arg(cells));
    ui->bestRowBox->setMaximum(s.rows);
    ui->bestColumnBox->setMaximum(s.columns);
    const int row = ui->bestRowBox->value() - 1;
    const int column = ui->bestColumnBox->value() - 1;
    ui->bestValueLabel->setText(QStringLiteral("%1% %2 mm/min")
                                    .arg(lumitra::testCardPower(s, row))
                                    .arg(lumitra::testCardSpeed(s, column)));
}

void TestCardDialog::generate()
{
    const TestCardSettings s = settings();
    const QString problem = lumitra::testCardProblem(s);
    if (!problem.isEmpty()) {
        lumitra::show_notice(this, problem);
        return;
    }
    if (m_generate)
        m_generate(s);
}

void TestCardDialog::saveBestCell()
{
    const QString material = ui->materialEdit->text().trimmed();
    if (material.isEmpty()) {
        lumitra::show_notice(this, tr("请输入材料"));
        return;
    }
    if (m_save)
        m_save(settings(), ui->bestRowBox->value() - 1, ui->bestColumnBox->value() - 1, material,
               ui->thicknessBox->value());
}
