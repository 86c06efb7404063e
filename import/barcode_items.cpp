#include "barcode_items.h"

#include "jk_tu_yuan.h"
#include "module_outline.h"
#include "program_state.h"
#include "text_outline.h"

#include <QCoreApplication>

namespace lumitra {

namespace {

// Text size and gap, in modules: close to what retail barcodes print.
constexpr double kTextEmModules = 9.0;
constexpr double kTextGapModules = 1.5;

TextSettings textSettings(double sizeMm)
{
    TextSettings s;
    s.sizeMm = sizeMm;
    return s;
}

} // namespace

int defaultQuietModules(BarcodeKind kind)
{
    switch (kind) {
    case BarcodeKind::Qr:
        return 4;
    case BarcodeKind::DataMatrix:
        return 1;
    case BarcodeKind::Code128:
        return 10;
    case BarcodeKind::Ean13:
    case BarcodeKind::UpcA:
        return 9;
    }
    return 4;
}

bool layoutBarcode(const BarcodeSettings &settings, BarcodeLayout *out, QString *error)
{
    const bool linear = isLinearKind(settings.kind);
    if (!(settings.widthMm > 0) || (linear && !(settings.heightMm > 0))
        || settings.quietModules < 0) {
        if (error)
            *error = QCoreApplication::translate("lumitra::Barcode", "尺寸必须大于 0!");
        return false;
    }
    BarcodeLayout l;
    if (!encodeBarcode(settings.kind, settings.data, settings.level, &l.symbol, error))
        return false;

    const ModuleGrid &grid = l.symbol.grid;
    l.moduleMm = settings.widthMm / grid.columns;
    l.rowMm = linear ? settings.heightMm / grid.rows : l.moduleMm;
    const double quiet = settings.quietModules * l.moduleMm;
    l.symbolOrigin = QPointF(quiet, quiet);
    l.bars = moduleOutline(grid, l.moduleMm, l.rowMm, l.symbolOrigin);
    const double symbolHeight = l.rowMm * grid.rows;
    double bottom = quiet + symbolHeight;

    if (linear && settings.showText && !l.symbol.text.isEmpty()) {
        l.text = l.symbol.text;
        l.textSizeMm = kTextEmModules * l.moduleMm;
        l.textOutline = lumitra::textOutline(l.text, textSettings(l.textSizeMm));
        if (!l.textOutline.isEmpty()) {
            const QRectF ink = l.textOutline.boundingRect();
            const double centreX = quiet + settings.widthMm / 2;
            const double top = quiet + symbolHeight + kTextGapModules * l.moduleMm;
            l.textPos = QPointF(centreX - ink.center().x(), top - ink.top());
            bottom = top + ink.height();
        } else {
            l.text.clear();
        }
    }
    l.frame = QRectF(0, 0, settings.widthMm + 2 * quiet, bottom + quiet);
    *out = l;
    return true;
}

QList<Jk_tu_yuan *> createBarcodeItems(const BarcodeLayout &layout)
{
    QList<Jk_tu_yuan *> items;
    if (layout.bars.isEmpty())
        return items;
    // The same centring as a single item, for the whole frame.
    const ProgramState &s = programState();
    const QPointF base(double(s.width / 2) - layout.frame.width() / 2 - layout.frame.left(),
                       double(s.height / 2) - layout.frame.height() / 2 - s.height
                           - layout.frame.top());

    auto *symbol = new Jk_tu_yuan(layout.bars, 1);
    symbol->setPos(base);
    symbol->setSelected(true);
    items << symbol;

    if (!layout.text.isEmpty() && !layout.textOutline.isEmpty()) {
        auto *text = new Jk_tu_yuan(layout.textOutline, 1);
        text->wen_zi = layout.text;
        text->zi_ti = textSettings(layout.textSizeMm).toString();
        text->setPos(base + layout.textPos);
        text->setSelected(true);
        items << text;
    }
    return items;
}

} // namespace lumitra
