// Barcodes and 2D codes encoded by zint, read back as a grid of modules.
#pragma once

#include <QString>
#include <QVector>

namespace lumitra {

enum class BarcodeKind { Qr = 0, DataMatrix = 1, Code128 = 2, Ean13 = 3, UpcA = 4 };
enum class QrLevel { L = 0, M = 1, Q = 2, H = 3 };

// The symbol's modules, row-major, row 0 on top. For a 2D code every cell is a
// square module; for a linear barcode the rows are stacked slices of the bars
// (one row for the kinds made here).
struct ModuleGrid
{
    int columns = 0;
    int rows = 0;
    QVector<bool> dark;

    bool isDark(int x, int y) const
    {
        return x >= 0 && y >= 0 && x < columns && y < rows && dark[y * columns + x];
    }
    int darkCount() const;
};

struct BarcodeSymbol
{
    ModuleGrid grid;
    bool linear = false; // bars: the rows share the bar height
    QString text;        // human-readable text (with check digit), linear kinds
};

// True for the kinds drawn as bars.
bool isLinearKind(BarcodeKind kind);

// Encodes `data` (UTF-8 for the 2D codes). False with the reason in `error`
// (zint's own text where zint refused) when the data does not fit the kind:
// EAN-13 takes 12 digits or 13 with a right check digit, UPC-A 11 or 12.
bool encodeBarcode(BarcodeKind kind, const QString &data, QrLevel level, BarcodeSymbol *out,
                   QString *error);

} // namespace lumitra
