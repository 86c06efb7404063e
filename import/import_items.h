// Turning import results into design items. Items are returned not yet in a scene; the
// caller adds them through the undoable add (which then owns them). Every item takes the
// current layer. GUI thread only.
#pragma once

#include <QColor>
#include <QList>
#include <QPainterPath>
#include <QString>
#include <QVector>

class QGraphicsItem;
class Jk_tu_yuan;

namespace lumitra {

// One vector item per path (millimetres); the drawing as a whole is centred on the work
// area by the centring rule, each item keeping its place within the drawing. The items
// are selected.
QList<Jk_tu_yuan *> makeCentredVectorItems(const QList<QPainterPath> &paths);

struct SvgImportResult;

// The items of an SVG drawing: one vector item per path and one bitmap item per image, at
// its place and size (through the item transform); the drawing as a whole is centred on
// the work area, every item keeping its place within it. The items are selected. The
// paths and images are moved out of `result` into the items.
QList<Jk_tu_yuan *> makeCentredSvgItems(SvgImportResult &result);

// With the import option "colours to layers": the vector items (given in the order of the
// reader's paths, `colours` parallel to them) go to one layer per distinct colour, the
// nearest palette colour first, and new layers are named "SVG #RRGGBB". A drawing of one
// colour is left on the current layer. Returns the layer of each colour group (empty when
// nothing was sorted).
QVector<int> sortSvgItemsByColour(const QList<Jk_tu_yuan *> &items, const QVector<QRgb> &colours);

// What the user is told when `count` texts of a drawing were left out.
QString svgTextLeftOutNotice(int count);

// Importer for ".svg" files (signature of the open dispatch). A file that cannot be read
// or parsed gives no items and no message; a file beyond the reader's limits (nesting,
// shape count, size) gives a message. When texts were left out, *message tells how many
// (with or without items: with items it is a notice for after the import).
QList<Jk_tu_yuan *> importSvgItems(const QString &path, QString *message);

// One vector item for a DXF outline (millimetres, y up) mirrored by the item transform
// scale(1, -1), so that drawing y becomes negative scene y. It keeps the drawing's own
// coordinates (origin at the scene origin) when the mirrored outline lies on the work
// area; otherwise it is centred on the work area. The item is selected.
Jk_tu_yuan *makeDxfItem(const QPainterPath &path);

struct DxfPart;

// With "colours to layers": the DXF drawing as one item per layer and colour (placed as
// the one item `whole` is, which is deleted), each group on its own layer, nearest palette
// colour first; new layers are named "DXF <layer>" ("DXF <layer> ACI <n>" when a layer
// holds several colours).
QList<Jk_tu_yuan *> sortDxfPartsByColour(Jk_tu_yuan *whole, const QList<DxfPart> &parts);

// Importer for ".dxf" files (signature of the open dispatch); failures give a message.
// With "colours to layers" and a drawing of several layers or colours: one item per group.
QList<Jk_tu_yuan *> importDxfItems(const QString &path, QString *message);

// The one selected item when it is a bitmap item, otherwise nullptr.
Jk_tu_yuan *singleSelectedBitmap(const QList<QGraphicsItem *> &selected);

// Traces a bitmap item's displayed image into one vector item lying exactly over the
// bitmap (through the bitmap item's position and transform), not selected. Returns
// nullptr when tracing fails or finds nothing.
Jk_tu_yuan *traceBitmapItem(const Jk_tu_yuan *bitmapItem);

} // namespace lumitra
