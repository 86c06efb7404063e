#pragma once

#include "placement.h"

#include <QDialog>

namespace Ui {
class MoveDialog;
}

// The move dialog: exact X, Y (the selection's lower-left corner in machine
// coordinates), width, height and rotation, with a lock-ratio box that keeps
// width and height in proportion while either is typed. It only collects the
// placement; the edit controller applies it as one undoable step.
class MoveDialog : public QDialog
{
    Q_OBJECT

public:
    explicit MoveDialog(QWidget *parent = nullptr);
    ~MoveDialog() override;

    // The selection to place: its outline bounds in scene mm and the rotation
    // shown in the rotation box (degrees).
    void setSelection(const QRectF &sceneBounds, double rotation);

    // What the user typed: the rectangle, the rotation relative to the one
    // shown, and whether the size was changed.
    lumitra::Placement placement() const;

private:
    void widthEdited(double width);
    void heightEdited(double height);

    Ui::MoveDialog *ui;
    QRectF m_start; // machine rectangle shown at first
    double m_startRotation = 0;
    bool m_syncing = false;
};
