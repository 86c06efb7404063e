#include "machine_panel.h"

#include "ui_machine_panel.h"

MachinePanel::MachinePanel(QWidget *parent) : QWidget(parent), m_ui(new Ui::MachinePanel)
{
    m_ui->setupUi(this);
    m_ui->running_Lab->hide();
}

MachinePanel::~MachinePanel() = default;
