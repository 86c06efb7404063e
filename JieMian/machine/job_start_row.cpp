// The panel's "起点" row: where jobs and the frame start.
#include "machine_controller.h"
#include "machine_panel.h"
#include "ui_machine_panel.h"

#include <QSignalBlocker>

lumitra::JobStart MachineController::jobStart() const
{
    lumitra::JobStart start;
    if (m_panel) {
        const Ui::MachinePanel &f = m_panel->form();
        start.mode = lumitra::StartMode(
            qBound(0, f.startMode_Box->currentIndex(), int(lumitra::StartMode::UserOrigin)));
        start.anchor = qBound(0, f.startAnchor_Box->currentIndex(), lumitra::kAnchorCount - 1);
    } else {
        start = lumitra::loadJobStart();
    }
    start.headKnown = m_headKnown;
    start.head = QPointF(m_x, m_y);
    return start;
}

void MachineController::connectStartRow()
{
    Ui::MachinePanel &f = m_panel->form();
    const lumitra::JobStart stored = lumitra::loadJobStart();
    {
        const QSignalBlocker quietMode(f.startMode_Box);
        const QSignalBlocker quietAnchor(f.startAnchor_Box);
        f.startMode_Box->setCurrentIndex(int(stored.mode));
        f.startAnchor_Box->setCurrentIndex(stored.anchor);
    }
    // In absolute mode the design stays where it is drawn: no anchor to choose.
    f.startAnchor_Box->setEnabled(stored.relative());
    auto store = [this] {
        const lumitra::JobStart start = jobStart();
        lumitra::saveJobStart(start);
        if (m_panel)
            m_panel->form().startAnchor_Box->setEnabled(start.relative());
    };
    connect(f.startMode_Box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, store);
    connect(f.startAnchor_Box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, store);
}
