#include "jk_shi_tu.h"

#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "open_dispatch.h"
#include "ruler_bar.h"
#include "select_rect_item.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QUrl>
#include <QWheelEvent>
#include <cmath>

namespace {
// How far the view may travel around the work area, mm.
constexpr double kTravel = 100000.0;
constexpr double kFitMargin = 0.05;
} // namespace

Jk_shi_tu::Jk_shi_tu(Jk_chang_jing *scene, QWidget *parent) : QGraphicsView(scene, parent)
{
    setRenderHint(QPainter::Antialiasing);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTransformationAnchor(QGraphicsView::NoAnchor);
    setResizeAnchor(QGraphicsView::AnchorViewCenter);
    setDragMode(QGraphicsView::NoDrag);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    setAcceptDrops(true);
    setMouseTracking(true);
    setSceneRect(Jk_chang_jing::workAreaRect().adjusted(-kTravel, -kTravel, kTravel, kTravel));

    m_topRuler = new RulerBar(Qt::Horizontal, this);
    m_leftRuler = new RulerBar(Qt::Vertical, this);
    setViewportMargins(RulerBar::kThickness, RulerBar::kThickness, 0, 0);
    fitWorkArea();
}

void Jk_shi_tu::setBackgroundPhoto(const QPixmap &photo, const QRectF &sceneRect)
{
    m_photo.pixmap = photo;
    m_photo.rect = sceneRect;
    resetCachedContent();
    viewport()->update();
}

void Jk_shi_tu::clearBackgroundPhoto()
{
    setBackgroundPhoto(QPixmap(), QRectF());
}

void Jk_shi_tu::setPhotoOpacity(double opacity)
{
    m_photo.opacity = qBound(0.0, opacity, 1.0);
    resetCachedContent();
    viewport()->update();
}

void Jk_shi_tu::setPhotoHidden(bool hidden)
{
    m_photo.hidden = hidden;
    resetCachedContent();
    viewport()->update();
}

void Jk_shi_tu::drawBackground(QPainter *painter, const QRectF &rect)
{
    // Without a photo of its own the view shows the scene's background.
    if (m_photo.pixmap.isNull()) {
        QGraphicsView::drawBackground(painter, rect);
        return;
    }
    paintWorkArea(painter, rect, Jk_chang_jing::workAreaRect(), m_photo);
}

Jk_chang_jing *Jk_shi_tu::designScene() const
{
    return qobject_cast<Jk_chang_jing *>(scene());
}

double Jk_shi_tu::zoom() const
{
    return std::hypot(transform().m11(), transform().m12());
}

void Jk_shi_tu::zoomAbout(double factor, const QPoint &viewportPos)
{
    if (!(factor > 0))
        return;
    m_autoFit = false;
    const QPointF fixed = mapToScene(viewportPos);
    const double scale = qBound(kMinScale, zoom() * factor, kMaxScale);
    setTransform(QTransform::fromScale(scale, scale));
    panBy(mapFromScene(fixed) - viewportPos);
    updateRulers();
    emit zoomChanged(scale);
}

void Jk_shi_tu::fitWorkArea()
{
    // Keep the work area whole even when the machine's travel changed.
    setSceneRect(Jk_chang_jing::workAreaRect().adjusted(-kTravel, -kTravel, kTravel, kTravel));
    const QRectF area = Jk_chang_jing::workAreaRect();
    const double mx = area.width() * kFitMargin;
    const double my = area.height() * kFitMargin;
    fitInView(area.adjusted(-mx, -my, mx, my), Qt::KeepAspectRatio);
    const double scale = qBound(kMinScale, zoom(), kMaxScale);
    setTransform(QTransform::fromScale(scale, scale));
    centerOn(area.center());
    m_autoFit = true;
    updateRulers();
    emit zoomChanged(scale);
}

void Jk_shi_tu::panBy(const QPoint &pixels)
{
    m_autoFit = false;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + pixels.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + pixels.y());
}

void Jk_shi_tu::wheelEvent(QWheelEvent *event)
{
    const double notches = event->angleDelta().y() / 120.0;
    if (notches == 0) {
        event->ignore();
        return;
    }
    zoomAbout(std::pow(kWheelStep, notches), event->position().toPoint());
    event->accept();
}

void Jk_shi_tu::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && m_spaceHeld)) {
        m_panning = true;
        m_lastPanPos = event->pos();
        viewport()->setCursor(Qt::ClosedHandCursor);
        event->accept();
        return;
    }
    QGraphicsView::mousePressEvent(event);
    // Nothing on the canvas took the press: start a rubber band.
    if (event->button() == Qt::LeftButton && !event->isAccepted() && scene() && !m_band) {
        m_band = new SelectRectItem(mapToScene(event->pos()));
        scene()->addItem(m_band);
        event->accept();
    }
}

void Jk_shi_tu::mouseMoveEvent(QMouseEvent *event)
{
    emit cursorMoved(mapToScene(event->pos()));
    if (m_panning) {
        panBy(m_lastPanPos - event->pos());
        m_lastPanPos = event->pos();
        event->accept();
        return;
    }
    if (m_band) {
        m_band->dragTo(mapToScene(event->pos()));
        event->accept();
        return;
    }
    QGraphicsView::mouseMoveEvent(event);
}

void Jk_shi_tu::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_panning && (event->button() == Qt::MiddleButton || event->button() == Qt::LeftButton)) {
        m_panning = false;
        if (m_spaceHeld)
            viewport()->setCursor(Qt::OpenHandCursor);
        else
            viewport()->unsetCursor();
        event->accept();
        return;
    }
    if (m_band && event->button() == Qt::LeftButton) {
        m_band->dragTo(mapToScene(event->pos()));
        finishRubberBand(event->modifiers());
        event->accept();
        return;
    }
    QGraphicsView::mouseReleaseEvent(event);
}

void Jk_shi_tu::finishRubberBand(Qt::KeyboardModifiers modifiers)
{
    const QRectF band = m_band->rect();
    const bool touch = m_band->isReversed();
    scene()->removeItem(m_band);
    delete m_band;
    m_band = nullptr;

    if (!(modifiers & (Qt::ControlModifier | Qt::ShiftModifier)))
        scene()->clearSelection();
    if (band.width() <= 0 && band.height() <= 0)
        return;
    // Left to right picks what lies wholly inside; right to left what it touches.
    const Qt::ItemSelectionMode mode =
        touch ? Qt::IntersectsItemBoundingRect : Qt::ContainsItemBoundingRect;
    for (QGraphicsItem *g : scene()->items(band, mode)) {
        auto *item = dynamic_cast<Jk_tu_yuan *>(g);
        if (item && !item->isOnHiddenLayer())
            item->setSelected(true);
    }
    emit rubberBandSelected(band);
}

void Jk_shi_tu::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        m_spaceHeld = true;
        if (!m_panning)
            viewport()->setCursor(Qt::OpenHandCursor);
        event->accept();
        return;
    }
    QGraphicsView::keyPressEvent(event);
}

void Jk_shi_tu::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        m_spaceHeld = false;
        if (!m_panning)
            viewport()->unsetCursor();
        event->accept();
        return;
    }
    QGraphicsView::keyReleaseEvent(event);
}

void Jk_shi_tu::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    layoutRulers();
    if (m_autoFit)
        fitWorkArea();
}

void Jk_shi_tu::scrollContentsBy(int dx, int dy)
{
    QGraphicsView::scrollContentsBy(dx, dy);
    updateRulers();
}

void Jk_shi_tu::layoutRulers()
{
    const QRect vp = viewport()->geometry();
    const int t = RulerBar::kThickness;
    m_topRuler->setGeometry(vp.left(), vp.top() - t, vp.width(), t);
    m_leftRuler->setGeometry(vp.left() - t, vp.top(), t, vp.height());
    updateRulers();
}

void Jk_shi_tu::updateRulers()
{
    if (m_topRuler)
        m_topRuler->update();
    if (m_leftRuler)
        m_leftRuler->update();
}

QStringList Jk_shi_tu::openablePaths(const QMimeData *mime)
{
    QStringList paths;
    if (!mime || !mime->hasUrls())
        return paths;
    for (const QUrl &url : mime->urls()) {
        const QString path = url.toLocalFile();
        if (!path.isEmpty() && isOpenableFile(path))
            paths.append(path);
    }
    return paths;
}

void Jk_shi_tu::dragEnterEvent(QDragEnterEvent *event)
{
    if (openablePaths(event->mimeData()).isEmpty())
        event->ignore();
    else
        event->acceptProposedAction();
}

void Jk_shi_tu::dragMoveEvent(QDragMoveEvent *event)
{
    if (openablePaths(event->mimeData()).isEmpty())
        event->ignore();
    else
        event->acceptProposedAction();
}

void Jk_shi_tu::dropEvent(QDropEvent *event)
{
    const QStringList paths = openablePaths(event->mimeData());
    if (paths.isEmpty()) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    emit filesDropped(paths);
    emit filesDroppedAt(paths, mapToScene(event->pos()));
}
