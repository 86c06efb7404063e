#include "barcode_symbol.h"

#include <QCoreApplication>

#include <memory>
#include <zint.h>

namespace lumitra {

namespace {

struct SymbolDeleter
{
    void operator()(zint_symbol *s) const { ZBarcode_Delete(s); }
};

int zintSymbology(BarcodeKind kind)
{
    switch (kind) {
    case BarcodeKind::Qr:
        return BARCODE_QRCODE;
    case BarcodeKind::DataMatrix:
        return BARCODE_DATAMATRIX;
    case BarcodeKind::Code128:
        return BARCODE_CODE128;
    case BarcodeKind::Ean13:
        return BARCODE_EANX;
    case BarcodeKind::UpcA:
        return BARCODE_UPCA;
    }
    return BARCODE_QRCODE;
}

// zint pads short EAN and UPC input with zeros (or makes EAN-8); a fixed kind
// takes only its own lengths.
bool lengthFits(BarcodeKind kind, int length)
{
    if (kind == BarcodeKind::Ean13)
        return length == 12 || length == 13;
    if (kind == BarcodeKind::UpcA)
        return length == 11 || length == 12;
    return true;
}

} // namespace

int ModuleGrid::darkCount() const
{
    int n = 0;
    for (bool d : dark)
        n += d ? 1 : 0;
    return n;
}

bool isLinearKind(BarcodeKind kind)
{
    return kind == BarcodeKind::Code128 || kind == BarcodeKind::Ean13 || kind == BarcodeKind::UpcA;
}

bool encodeBarcode(BarcodeKind kind, const QString &data, QrLevel level, BarcodeSymbol *out,
                   QString *error)
{
    if (data.isEmpty()) {
        if (error)
            *error = QCoreApplication::translate("lumitra::Barcode", "请输入内容!");
        return false;
    }
    std::unique_ptr<zint_symbol, SymbolDeleter> symbol(ZBarcode_Create());
    if (!symbol) {
        if (error)
            *error = QCoreApplication::translate("lumitra::Barcode", "条码库无法使用!");
        return false;
    }
    symbol->symbology = zintSymbology(kind);
    symbol->input_mode = UNICODE_MODE;
    if (kind == BarcodeKind::Qr)
        symbol->option_1 = int(level) + 1; // 1 = L ... 4 = H
    const QByteArray utf8 = data.toUtf8();
    const int ret = ZBarcode_Encode(
        symbol.get(), reinterpret_cast<const unsigned char *>(utf8.constData()), utf8.size());
    if (ret >= ZINT_ERROR) {
        if (error)
            *error = QString::fromUtf8(symbol->errtxt);
        return false;
    }
    if (!lengthFits(kind, utf8.size())) {
        if (error)
            *error = kind == BarcodeKind::Ean13 ? QCoreApplication::translate("lumitra::Barcode", "EAN-13 需要 12 或 13 位数字!")
                                                : QCoreApplication::translate("lumitra::Barcode", "UPC-A 需要 11 或 12 位数字!");
        return false;
    }
    if (symbol->rows <= 0 || symbol->width <= 0) {
        if (error)
            *error = QString::fromUtf8(symbol->errtxt);
        return false;
    }

    BarcodeSymbol result;
    result.linear = isLinearKind(kind);
    result.grid.columns = symbol->width;
    result.grid.rows = symbol->rows;
    result.grid.dark.resize(symbol->width * symbol->rows);
    // encoded_data holds one bit per module, eight modules a byte, lowest bit first.
    for (int y = 0; y < symbol->rows; ++y)
        for (int x = 0; x < symbol->width; ++x)
            result.grid.dark[y * symbol->width + x] =
                ((symbol->encoded_data[y][x >> 3] >> (x & 7)) & 1) != 0;
    if (result.linear)
        result.text = QString::fromUtf8(reinterpret_cast<const char *>(symbol->text));
    *out = result;
    return true;
}

} // namespace lumitra
