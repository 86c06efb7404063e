#include "jk_tu_yuan.h"

#include "path_parts.h"

#include "jk_chang_jing.h"
#include "layer_list.h"
#include "program_state.h"

#include <QGraphicsScene>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QPainter>
#include <QPainterPathStroker>
#include <QStyleOptionGraphicsItem>
#include <algorithm>

namespace {
constexpr double kMinExtent = 0.3;   // mm; keeps straight lines pickable
constexpr double kPickWidth = 5.0;   // mm; stroker width for hit testing
constexpr double kHoverSquare = 3.0; // mm
// Outlines smaller than this on the screen are drawn with a one-pixel line.
constexpr double kThinLinePixels = 12.0;

QPainterPath pathForShape(int shapeNumber)
{
    QPainterPath p;
    switch (shapeNumber) {
    case 0:
        p.addRect(0, 0, 100, 100);
        break;
    case 1:
        p.addEllipse(0, 0, 100, 100);
        break;
    case 2:
        p.moveTo(0, 0);
        p.lineTo(100, 0);
        p.lineTo(50, 100);
        p.closeSubpath();
        break;
    default:
        break;
    }
    return p;
}
} // namespace

void Jk_tu_yuan::initCommon()
{
    // Selectable and focusable, not movable: the design view moves items itself.
    setFlags(QGraphicsItem::ItemIsSelectable | QGraphicsItem::ItemIsFocusable);
    setAcceptHoverEvents(true);
    layer_id = lumitra::programState().currentLayer;
}

void Jk_tu_yuan::initBitmap(const QImage &source, const QImage &display)
{
    source_image = source;
    display_image = display;
    is_bitmap = true;
    path = QPainterPath();
    path.addRect(0, 0, source.width() * kPixelMm, source.height() * kPixelMm);
    centreOnWorkArea();
    setSelected(true);
}

Jk_tu_yuan::Jk_tu_yuan()
{
    initCommon();
}

Jk_tu_yuan::Jk_tu_yuan(int shapeNumber)
{
    initCommon();
    path = pathForShape(shapeNumber);
    centreOnWorkArea();
    setSelected(true);
}

QImage Jk_tu_yuan::greyFromFile(const QImage &image)
{
    QImage img = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < img.height(); ++y) {
        QRgb *line = reinterpret_cast<QRgb *>(img.scanLine(y));
        for (int x = 0; x < img.width(); ++x) {
            const QRgb c = line[x];
            const int a = qAlpha(c);
            if (a == 0)
                continue; // fully transparent pixels keep their colour values
            const int g = (qRed(c) + qGreen(c) + qBlue(c)) / 3;
            line[x] = qRgba(g, g, g, a);
        }
    }
    return img;
}

Jk_tu_yuan::Jk_tu_yuan(const QString &imageFile)
{
    initCommon();
    const QImage grey = greyFromFile(QImage(imageFile));
    initBitmap(grey, grey);
}

Jk_tu_yuan::Jk_tu_yuan(const QPixmap &pixmap)
{
    initCommon();
    const QImage grey = pixmap.toImage().convertToFormat(QImage::Format_Grayscale8);
    initBitmap(grey, grey);
}

Jk_tu_yuan::Jk_tu_yuan(const QImage &image)
{
    initCommon();
    initBitmap(image, image);
}

Jk_tu_yuan::Jk_tu_yuan(const QImage &source, const QImage &display)
{
    initCommon();
    initBitmap(source, display);
}

Jk_tu_yuan::Jk_tu_yuan(const QPainterPath &p, int keepPlace)
{
    initCommon();
    setCacheMode(QGraphicsItem::DeviceCoordinateCache);
    path = p;
    if (keepPlace == 0) {
        centreOnWorkArea();
        setSelected(true);
    }
}

Jk_tu_yuan::Jk_tu_yuan(const Jk_tu_yuan *other)
{
    initCommon();
    source_image = other->source_image;
    display_image = other->display_image;
    path = other->path;
    is_bitmap = other->is_bitmap;
    jiao_du = other->jiao_du;
    layer_id = other->layer_id;
    reserved = other->reserved;
    setTransform(other->transform());
}

void Jk_tu_yuan::centreOnWorkArea()
{
    const lumitra::ProgramState &s = lumitra::programState();
    const QRectF r = path.boundingRect();
    // Computed in single precision, as the positions always were.
    const float x = float(s.width / 2) - float(r.width()) * 0.5f;
    const float y = float(s.height / 2) - float(r.height()) * 0.5f - float(s.height);
    setPos(double(x), double(y));
}

QRectF Jk_tu_yuan::boundingRect() const
{
    QRectF r = path.boundingRect();
    if (r.width() == 0)
        r.setWidth(kMinExtent);
    if (r.height() == 0)
        r.setHeight(kMinExtent);
    return r;
}

void Jk_tu_yuan::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *)
{
    const LayerList &layers = LayerList::instance();
    const int current = lumitra::programState().currentLayer;
    QPen pen(layerColor(current), 2);
    pen.setCosmetic(true);

    if (is_bitmap) {
        if (!layers.isEmpty()) {
            if (const TuCeng *l = layers.find(layer_id, true)) {
                if (!l->xianshi) {
                    setSelected(false);
                    return;
                }
                pen.setColor(layerColor(layer_id));
            }
        }
        painter->setPen(pen);
        painter->drawImage(path.boundingRect(), display_image, QRectF(display_image.rect()));
        paintSelectionMark(painter);
        return;
    }

    filled = false;
    if (!layers.isEmpty()) {
        if (const TuCeng *l = layers.find(layer_id, false)) {
            if (!l->xianshi) {
                setSelected(false);
                return;
            }
            pen.setColor(layerColor(layer_id));
            // A fill layer fills what its job hatches: closed outlines.
            if (l->moshi > 0 && closure() != Closure::AllOpen) {
                painter->setBrush(QBrush(layerColor(layer_id)));
                filled = true;
            }
        }
    }
    // An outline only a few pixels across gets a one-pixel line: the library
    // draws those on its fast path, which keeps a canvas of thousands of small
    // shapes responsive, and at that size the two look alike.
    const QRectF box = path.boundingRect();
    const double lod = option ? option->levelOfDetailFromTransform(painter->worldTransform()) : 1;
    if (std::max(box.width(), box.height()) * lod < kThinLinePixels)
        pen.setWidth(1);
    painter->setPen(pen);
    if (filled && closure() == Closure::Mixed) {
        // Open subpaths cannot be filled: the job burns them as lines, so
        // only the closed ones are painted filled.
        painter->save();
        painter->setPen(Qt::NoPen);
        painter->drawPath(m_closedPart);
        painter->restore();
    }
    if (!filled || closure() == Closure::Mixed)
        painter->setBrush(Qt::NoBrush);
    painter->drawPath(path);
    paintSelectionMark(painter);
}

Jk_tu_yuan::Closure Jk_tu_yuan::closure() const
{
    // Copies of a path share its data, so this compare is cheap while the
    // outline is unchanged.
    if (!m_closureKnown || !(m_closureOf == path)) {
        m_closureOf = path;
        lumitra::PathParts parts = lumitra::splitByClosure(path);
        m_closure = parts.open.isEmpty()     ? Closure::AllClosed
                    : parts.closed.isEmpty() ? Closure::AllOpen
                                             : Closure::Mixed;
        m_closedPart = m_closure == Closure::Mixed ? std::move(parts.closed) : QPainterPath();
        m_closureKnown = true;
    }
    return m_closure;
}

void Jk_tu_yuan::paintSelectionMark(QPainter *painter) const
{
    if (!isSelected())
        return;
    QPen dash(QColor(0, 120, 215), 1, Qt::DashLine);
    dash.setCosmetic(true);
    painter->setPen(dash);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(boundingRect());
}

void Jk_tu_yuan::set_path(const QPainterPath &newPath)
{
    prepareGeometryChange();
    path = newPath;
    update();
}

bool Jk_tu_yuan::hitTest(const QPointF &scenePos) const
{
    QPainterPathStroker stroker;
    stroker.setWidth(kPickWidth);
    QPainterPath bounds;
    bounds.addRect(boundingRect());
    const QPainterPath pickable = stroker.createStroke(path).intersected(bounds);
    return pickable.contains(mapFromScene(scenePos));
}

QPainterPath Jk_tu_yuan::scenePath() const
{
    return sceneTransform().map(path);
}

bool Jk_tu_yuan::isOnHiddenLayer() const
{
    const TuCeng *l = LayerList::instance().find(layer_id, is_bitmap);
    return l && !l->xianshi;
}

void Jk_tu_yuan::rotateItems(const QList<Jk_tu_yuan *> &items, double angle, const QPointF &centre)
{
    QTransform aboutCentre;
    aboutCentre.translate(centre.x(), centre.y());
    aboutCentre.rotate(angle);
    aboutCentre.translate(-centre.x(), -centre.y());
    for (Jk_tu_yuan *item : items) {
        const QTransform t = item->sceneTransform() * aboutCentre;
        // Keep the translation in the position, the rest in the item transform.
        item->setPos(t.dx(), t.dy());
        item->setTransform(QTransform(t.m11(), t.m12(), t.m21(), t.m22(), 0, 0));
        item->jiao_du += angle;
    }
    if (!items.isEmpty() && items.first()->scene())
        items.first()->scene()->update();
}

void Jk_tu_yuan::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        emit textEditRequested(this);
        if (auto *designScene = qobject_cast<Jk_chang_jing *>(scene()))
            designScene->requestTextEdit(this);
    }
    QGraphicsItem::mouseDoubleClickEvent(event);
}

void Jk_tu_yuan::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    // An open outline is picked only near its line, never in its interior.
    if (!is_bitmap && !hitTest(event->scenePos())) {
        event->ignore();
        return;
    }
    QGraphicsItem::mousePressEvent(event);
}

void Jk_tu_yuan::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    QGraphicsItem::mouseReleaseEvent(event);
}

void Jk_tu_yuan::hoverMoveEvent(QGraphicsSceneHoverEvent *event)
{
    if (!scene())
        return;
    const QPointF p = event->scenePos();
    const QRectF square(p.x() - kHoverSquare / 2, p.y() - kHoverSquare / 2, kHoverSquare,
                        kHoverSquare);
    bool overPickable = false;
    for (QGraphicsItem *g : scene()->items(square)) {
        auto *item = dynamic_cast<Jk_tu_yuan *>(g);
        if (item && (item->is_bitmap || item->hitTest(p))) {
            overPickable = true;
            break;
        }
    }
    for (QGraphicsView *v : scene()->views()) {
        if (overPickable)
            v->viewport()->setCursor(isSelected() ? Qt::SizeAllCursor : Qt::PointingHandCursor);
        else
            v->viewport()->unsetCursor();
    }
}

void Jk_tu_yuan::hoverLeaveEvent(QGraphicsSceneHoverEvent *)
{
    if (!scene())
        return;
    for (QGraphicsView *v : scene()->views()) {
        v->viewport()->unsetCursor();
        v->viewport()->update();
    }
}
