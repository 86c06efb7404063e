#pragma once

#include "arrays.h"

#include <QDialog>

namespace Ui {
class ArrayDialog;
}

// The array dialog: a rectangular array (rows, columns, gaps in mm) or a
// circular one (count, centre in machine coordinates, angle covered, whether
// the copies turn). It only collects the numbers; the edit controller adds the
// copies as one undoable step.
class ArrayDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ArrayDialog(QWidget *parent = nullptr);
    ~ArrayDialog() override;

    // The centre offered for a circular array, in scene mm (the work area's
    // centre or the selection's).
    void setCentre(const QPointF &sceneCentre);

    bool isCircular() const;
    lumitra::RectangularArray rectangular() const;
    // The centre is returned in scene coordinates.
    lumitra::CircularArray circular() const;

private:
    Ui::ArrayDialog *ui;
};
