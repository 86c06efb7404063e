#pragma once

#include "outline_operations.h"

#include <QDialog>

namespace Ui {
class OffsetDialog;
}

// The offset dialog: distance, outward or inward, corner style, and whether
// the originals stay. It only collects the settings; GeometryActions applies
// them as one undoable step. The last settings are kept for the next time
// within the session.
class OffsetDialog : public QDialog
{
    Q_OBJECT

public:
    explicit OffsetDialog(QWidget *parent = nullptr);
    ~OffsetDialog() override;

    void setSettings(const lumitra::OffsetSettings &settings);
    lumitra::OffsetSettings settings() const;

private:
    Ui::OffsetDialog *ui;
};
