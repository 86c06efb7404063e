#include "import_items.h"

#include "bitmap_trace.h"
#include "colour_layers.h"
#include "jk_dxf.h"
#include "jk_tu_yuan.h"
#include "program_state.h"
#include "svg_reader.h"

#include <QCoreApplication>
#include <QDebug>
#include <QHash>
#include <QSet>

namespace lumitra {

namespace {

// Top-left scene position that centres a w x h box on the work area (the centring rule,
// in single precision like the items' own).
QPointF centredTopLeft(const QRectF &box)
{
    const ProgramState &s = programState();
    const float x = float(s.width / 2) - float(box.width()) * 0.5f;
    const float y = float(s.height / 2) - float(box.height()) * 0.5f - float(s.height);
    return QPointF(double(x), double(y));
}

QRectF unionBox(const QList<QPainterPath> &paths)
{
    QRectF box;
    for (const QPainterPath &p : paths)
        box = box.isNull() ? p.boundingRect() : box.united(p.boundingRect());
    return box;
}

// One vector item per path, the paths moved by -box.topLeft() and the items placed at
// `place`. Consumes `paths`: each path goes into its item without a second copy.
QList<Jk_tu_yuan *> placeVectorItems(QList<QPainterPath> &paths, const QRectF &box,
                                     const QPointF &place)
{
    QList<Jk_tu_yuan *> items;
    items.reserve(paths.size());
    const QPointF shift = -box.topLeft();
    for (QPainterPath &p : paths) {
        p.translate(shift);
        auto *item = new Jk_tu_yuan(p, 1);
        p = QPainterPath();
        item->setPos(place);
        item->setSelected(true);
        items.append(item);
    }
    paths.clear();
    return items;
}

} // namespace

QList<Jk_tu_yuan *> makeCentredVectorItems(const QList<QPainterPath> &paths)
{
    QList<QPainterPath> copies = paths;
    const QRectF box = unionBox(paths);
    return placeVectorItems(copies, box, centredTopLeft(box));
}

QList<Jk_tu_yuan *> makeCentredSvgItems(SvgImportResult &result)
{
    QRectF box = unionBox(result.paths);
    for (const SvgImage &image : qAsConst(result.images)) {
        const QRectF r = image.pixelToMm.mapRect(QRectF(QPointF(0, 0), image.image.size()));
        box = box.isNull() ? r : box.united(r);
    }
    const QPointF place = centredTopLeft(box);
    QList<Jk_tu_yuan *> items = placeVectorItems(result.paths, box, place);
    const QPointF shift = -box.topLeft();
    for (const SvgImage &image : qAsConst(result.images)) {
        auto *item = new Jk_tu_yuan(Jk_tu_yuan::greyFromFile(image.image));
        // The item's outline is the image at 0.254 mm per pixel; its transform takes that to
        // the image's place in the drawing.
        const double k = Jk_tu_yuan::kPixelMm;
        item->setTransform(QTransform::fromScale(1 / k, 1 / k) * image.pixelToMm
                           * QTransform::fromTranslate(shift.x(), shift.y()));
        item->setPos(place);
        item->setSelected(true);
        items.append(item);
    }
    result.images.clear();
    return items;
}

QVector<int> sortSvgItemsByColour(const QList<Jk_tu_yuan *> &items, const QVector<QRgb> &colours)
{
    QList<ColourGroup> groups;
    QHash<QRgb, int> index;
    for (int i = 0; i < items.size() && i < colours.size(); ++i) {
        const QRgb c = colours[i] | 0xff000000u;
        auto it = index.find(c);
        if (it == index.end()) {
            it = index.insert(c, groups.size());
            ColourGroup g;
            g.colour = c;
            g.origin = QStringLiteral("SVG ") + QColor(c).name().toUpper();
            groups.append(g);
        }
        groups[*it].items.append(items[i]);
    }
    // One colour: the drawing stays on the current layer, as without the option.
    if (groups.size() < 2)
        return {};
    return applyColourLayers(groups);
}

QString svgTextLeftOutNotice(int count)
{
    return QCoreApplication::translate("SvgImport",
                                       "%1 个文字未导入:请在绘图软件中把文字转换为路径后再导入。")
        .arg(count);
}

QList<Jk_tu_yuan *> importSvgItems(const QString &path, QString *message)
{
    const bool byColour = colourLayersEnabled();
    SvgImportResult result = readSvgFile(path, byColour);
    if (!result.ok) {
        qDebug() << "svg: import failed" << path << result.error;
        if (result.limitExceeded && message)
            *message = result.error;
        return {};
    }
    if (result.textCount > 0 && message)
        *message = svgTextLeftOutNotice(result.textCount);
    const QVector<QRgb> colours = result.colours;
    QList<Jk_tu_yuan *> items = makeCentredSvgItems(result);
    if (byColour)
        sortSvgItemsByColour(items, colours);
    return items;
}

Jk_tu_yuan *makeDxfItem(const QPainterPath &path)
{
    auto *item = new Jk_tu_yuan(path, 1);
    const QTransform mirror = QTransform::fromScale(1, -1);
    item->setTransform(mirror);
    const QRectF mirrored = mirror.mapRect(path.boundingRect());
    const ProgramState &s = programState();
    const QRectF workArea(0, -s.height, s.width, s.height);
    if (!workArea.contains(mirrored))
        item->setPos(centredTopLeft(mirrored) - mirrored.topLeft());
    item->setSelected(true);
    return item;
}

QList<Jk_tu_yuan *> importDxfItems(const QString &path, QString *message)
{
    Jk_dxf *reader = new Jk_dxf(nullptr);
    const bool byColour = colourLayersEnabled();
    reader->setCollectParts(byColour);
    const QPainterPath outline = reader->dxf_jie_xi(path);
    const QString error = reader->lastError();
    const QList<DxfPart> parts = reader->parts();
    delete reader;
    if (outline.elementCount() < 2) {
        qDebug() << "dxf: import failed" << path << error;
        if (message)
            *message = error;
        return {};
    }
    Jk_tu_yuan *whole = makeDxfItem(outline);
    if (!byColour || parts.size() < 2)
        return {whole};
    return sortDxfPartsByColour(whole, parts);
}

QList<Jk_tu_yuan *> sortDxfPartsByColour(Jk_tu_yuan *whole, const QList<DxfPart> &parts)
{
    // One item per part, placed as the whole drawing is.
    QSet<QString> layers, layersWithSeveralColours;
    for (const DxfPart &p : parts) {
        if (layers.contains(p.layer))
            layersWithSeveralColours.insert(p.layer);
        layers.insert(p.layer);
    }
    QList<ColourGroup> groups;
    QList<Jk_tu_yuan *> items;
    for (const DxfPart &p : parts) {
        if (p.path.elementCount() < 2)
            continue;
        auto *item = new Jk_tu_yuan(p.path, 1);
        item->setTransform(whole->transform());
        item->setPos(whole->pos());
        item->setSelected(true);
        items.append(item);
        ColourGroup g;
        g.colour = aciColour(p.colour);
        g.origin = QStringLiteral("DXF ") + p.layer;
        if (layersWithSeveralColours.contains(p.layer))
            g.origin += QStringLiteral(" ACI %1").arg(p.colour);
        g.items = {item};
        groups.append(g);
    }
    delete whole;
    applyColourLayers(groups);
    return items;
}

Jk_tu_yuan *singleSelectedBitmap(const QList<QGraphicsItem *> &selected)
{
    if (selected.size() != 1)
        return nullptr;
    auto *item = dynamic_cast<Jk_tu_yuan *>(selected.first());
    return item && item->is_bitmap ? item : nullptr;
}

Jk_tu_yuan *traceBitmapItem(const Jk_tu_yuan *bitmapItem)
{
    if (!bitmapItem || !bitmapItem->is_bitmap)
        return nullptr;
    const QImage image =
        bitmapItem->display_image.isNull() ? bitmapItem->source_image : bitmapItem->display_image;
    if (image.isNull())
        return nullptr;
    // Item coordinates first: the bitmap fills the item's outline rectangle.
    const QRectF rect = bitmapItem->path.boundingRect();
    const double scale = rect.width() / image.width();
    const auto traced = traceBitmap(image, scale, rect.topLeft());
    if (!traced || traced->isEmpty())
        return nullptr;
    return new Jk_tu_yuan(bitmapItem->sceneTransform().map(*traced), 1);
}

} // namespace lumitra
