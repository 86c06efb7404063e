// The QR code / barcode dialog: kind, content, size, quiet zone, error
// correction and the text beneath a barcode.
#pragma once

#include "barcode_items.h"

#include <QDialog>

namespace Ui {
class BarcodeDialog;
}

// Confirming encodes the content; content the kind cannot hold is refused with
// zint's reason and the dialog stays open. GUI thread only.
class BarcodeDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BarcodeDialog(QWidget *parent = nullptr);
    ~BarcodeDialog() override;

    lumitra::BarcodeSettings settings() const;

signals:
    // A layout was made from the confirmed settings; the dialog then closes.
    void barcodeMade(const lumitra::BarcodeLayout &layout);

private:
    void kindChanged();
    void confirm();

    Ui::BarcodeDialog *ui;
};
