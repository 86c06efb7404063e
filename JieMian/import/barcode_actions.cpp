#include "barcode_actions.h"

#include "barcode_dialog.h"
#include "barcode_items.h"
#include "jk_tu_yuan.h"

#include <QAction>

BarcodeActions::BarcodeActions(QWidget *dialogParent)
    : QObject(dialogParent), m_parent(dialogParent), m_open(new QAction(tr("二维码/条形码"), this))
{
    connect(m_open, &QAction::triggered, this, [this] { openDialog(); });
}

BarcodeDialog *BarcodeActions::openDialog()
{
    auto *dialog = new BarcodeDialog(m_parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &BarcodeDialog::barcodeMade, this, [this](const lumitra::BarcodeLayout &l) {
        const QList<Jk_tu_yuan *> items = lumitra::createBarcodeItems(l);
        if (!items.isEmpty())
            emit itemsCreated(items);
    });
    dialog->setWindowModality(Qt::WindowModal);
    dialog->show();
    return dialog;
}
