// The window's action that makes QR codes and barcodes as vector items.
#pragma once

#include <QList>
#include <QObject>

class QAction;
class QWidget;
class Jk_tu_yuan;
class BarcodeDialog;

// Owned by the main window; GUI thread only.
class BarcodeActions : public QObject
{
    Q_OBJECT

public:
    // `dialogParent` parents the dialog.
    explicit BarcodeActions(QWidget *dialogParent);

    // "二维码/条形码": opens the dialog.
    QList<QAction *> actions() const { return {m_open}; }

    // Opens the dialog (non-blocking, deletes itself when closed) and returns it.
    BarcodeDialog *openDialog();

signals:
    // New items, not yet in a scene, for the window's undoable add: the symbol,
    // then the text beneath a barcode when shown.
    void itemsCreated(const QList<Jk_tu_yuan *> &items);

private:
    QWidget *m_parent;
    QAction *m_open;
};
