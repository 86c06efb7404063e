#pragma once

#include "work_area_background.h"

#include <QGraphicsView>
#include <QPointer>

class Jk_chang_jing;
class QMimeData;
class RulerBar;
class SelectRectItem;

// The design view of one page: the work area with rulers, zoom about the
// cursor with the wheel, panning with the middle button (or Space and the left
// button), fit-to-work-area, and the rubber-band selection rectangle
// `SelectRectItem` on empty canvas. Scroll bars stay hidden; the view can
// travel far beyond the work area. It may draw a photo of the work area under
// the design (background only, never an item, so never part of a job).
// GUI thread only.
class Jk_shi_tu : public QGraphicsView
{
    Q_OBJECT

public:
    static constexpr double kMinScale = 0.02; // screen pixels per mm
    static constexpr double kMaxScale = 500.0;
    static constexpr double kWheelStep = 1.15; // zoom factor per wheel notch

    explicit Jk_shi_tu(Jk_chang_jing *scene, QWidget *parent = nullptr);

    Jk_chang_jing *designScene() const;

    // Screen pixels per millimetre.
    double zoom() const;
    // Multiplies the zoom by `factor` (clamped to the limits) keeping the scene
    // point under `viewportPos` where it is.
    void zoomAbout(double factor, const QPoint &viewportPos);
    // Shows the whole work area with a small margin. Until the user zooms or
    // pans, the view fits the work area again whenever it is resized.
    void fitWorkArea();
    // Moves the view by a distance in screen pixels.
    void panBy(const QPoint &pixels);

    // The rubber band while the user drags one, else nullptr.
    SelectRectItem *rubberBandItem() const { return m_band; }

    // The photo under the design, drawn into `sceneRect` (mm) instead of the
    // scene's own background picture; a null pixmap removes it.
    void setBackgroundPhoto(const QPixmap &photo, const QRectF &sceneRect);
    void clearBackgroundPhoto();
    // 0 (invisible) .. 1 (opaque); values outside are clamped.
    void setPhotoOpacity(double opacity);
    void setPhotoHidden(bool hidden);
    const BackgroundPhoto &backgroundPhoto() const { return m_photo; }

signals:
    // The pointer's scene position in mm, for a coordinate display.
    void cursorMoved(const QPointF &scenePos);
    // Files dropped onto the canvas that the open dispatch accepts.
    void filesDropped(const QStringList &paths);
    // The same drop with the scene point it was dropped at.
    void filesDroppedAt(const QStringList &paths, const QPointF &scenePos);
    // A rubber band finished; the selection has been updated.
    void rubberBandSelected(const QRectF &sceneRect);
    void zoomChanged(double pixelsPerMm);

protected:
    void drawBackground(QPainter *painter, const QRectF &rect) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void finishRubberBand(Qt::KeyboardModifiers modifiers);
    void layoutRulers();
    void updateRulers();
    static QStringList openablePaths(const QMimeData *mime);

    RulerBar *m_topRuler = nullptr;
    RulerBar *m_leftRuler = nullptr;
    SelectRectItem *m_band = nullptr;
    bool m_autoFit = true;
    bool m_panning = false;
    bool m_spaceHeld = false;
    QPoint m_lastPanPos;
    BackgroundPhoto m_photo;
};
