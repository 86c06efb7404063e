// The rotary dialog: edits the rotary attachment settings kept in the settings
// store (mode, wrapped axis, circumference, diameter, rotary units per turn).
#pragma once

#include "rotary.h"

#include <QDialog>

namespace Ui {
class Gun_Zhou;
}

// Opens showing the stored settings; "确定" writes every field back (doubles in
// the shortest form with six significant digits) and accepts, "取消" rejects
// and writes nothing. GUI thread only.
class Gun_Zhou : public QDialog
{
    Q_OBJECT

public:
    explicit Gun_Zhou(QWidget *parent = nullptr);
    ~Gun_Zhou() override;

    // The settings as the fields show them.
    lumitra::RotarySettings settings() const;
    void setSettings(const lumitra::RotarySettings &settings);

public slots:
    // Stores the fields and closes the dialog.
    void confirm();

private slots:
    // Only the field the mode uses can be edited.
    void modeChanged(int mode);

private:
    Ui::Gun_Zhou *ui;
};
