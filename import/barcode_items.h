// QR codes, Data Matrix and barcodes as design items: the symbol's dark
// modules merged into one outline in mm, and for barcodes the human-readable
// text beneath as a text item.
#pragma once

#include "barcode_symbol.h"

#include <QList>
#include <QPainterPath>
#include <QRectF>
#include <QString>

class Jk_tu_yuan;

namespace lumitra {

struct BarcodeSettings
{
    BarcodeKind kind = BarcodeKind::Qr;
    QString data;
    double widthMm = 20.0;  // width of the symbol itself, without quiet zone
    double heightMm = 15.0; // bar height; barcodes only (2D codes are square modules)
    int quietModules = 4;   // blank margin on every side, in modules
    QrLevel level = QrLevel::M;
    bool showText = true; // barcodes only
};

// A laid-out symbol in mm, origin at the top-left corner of the quiet zone.
struct BarcodeLayout
{
    BarcodeSymbol symbol;
    double moduleMm = 0;      // width of one module
    double rowMm = 0;         // height of one module row
    QPointF symbolOrigin;     // top-left corner of the first module
    QPainterPath bars;        // merged dark modules
    QString text;             // human-readable text, empty when not shown
    QPainterPath textOutline; // as textOutline() makes it (first line box at 0, 0)
    QPointF textPos;          // where textOutline's origin goes
    double textSizeMm = 0;    // em size of the text
    QRectF frame;             // quiet zone around symbol and text
};

// The quiet zone the standards ask for, in modules: 4 for QR, 1 for Data
// Matrix, 10 for Code 128, 9 for EAN-13 and UPC-A.
int defaultQuietModules(BarcodeKind kind);

// Encodes and lays out; false with the reason in `error` (zint's text where
// zint refused) for data the kind cannot hold or a size that is not positive.
bool layoutBarcode(const BarcodeSettings &settings, BarcodeLayout *out, QString *error);

// The items of a layout, not in a scene: the symbol, then the text (a text
// item keeping its text and settings, so the text dialog can edit it). The
// quiet-zone frame is centred on the work area and the items are selected.
QList<Jk_tu_yuan *> createBarcodeItems(const BarcodeLayout &layout);

} // namespace lumitra
