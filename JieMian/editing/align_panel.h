#pragma once

#include "alignment.h"

#include <QWidget>

namespace Ui {
class AlignPanel;
}

// A row of buttons for aligning and spacing the selection. Widgets only: it
// asks, the edit controller does.
class AlignPanel : public QWidget
{
    Q_OBJECT

public:
    explicit AlignPanel(QWidget *parent = nullptr);
    ~AlignPanel() override;

signals:
    void alignRequested(lumitra::Alignment alignment);
    void distributeRequested(Qt::Orientation orientation);

private:
    Ui::AlignPanel *ui;
};
