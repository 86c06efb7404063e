#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class MachinePanel;
}

// The machine panel: port list and connect button, home and origin buttons,
// move-to, pause/resume, stop, run-file and frame buttons, test fire with its
// power, the nine-button jog pad with step and feed sliders, the running
// indicator with progress and position, and the console. Widgets only; the
// MachineController wires them.
class MachinePanel : public QWidget
{
    Q_OBJECT

public:
    explicit MachinePanel(QWidget *parent = nullptr);
    ~MachinePanel() override;

    Ui::MachinePanel &form() { return *m_ui; }

private:
    std::unique_ptr<Ui::MachinePanel> m_ui;
};
