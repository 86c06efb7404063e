#pragma once

#include <QGraphicsView>
#include <QPixmap>
#include <QPointF>
#include <QVector>

class QGraphicsPixmapItem;

// Shows the camera photo for the calibration and collects the user's clicks
// on the four cross centres. Scene coordinates are the photo's own pixels (the
// pixmap item sits at 0, 0), so a click is stored as a photo pixel position,
// ready for the warp. Clicks are drawn as marks. The wheel zooms about the
// cursor (1.05 per step in, 0.95 out); there are no scroll bars.
// GUI thread only.
class JiaoZhunView : public QGraphicsView
{
    Q_OBJECT

public:
    static constexpr int kClicksNeeded = 4;
    static constexpr double kZoomIn = 1.05;
    static constexpr double kZoomOut = 0.95;

    explicit JiaoZhunView(QWidget *parent = nullptr);

    // Shows `photo` fitted into the view. The clicks made so far stay.
    void setPhoto(const QPixmap &photo);
    QPixmap photo() const { return m_photo; }
    bool hasPhoto() const { return !m_photo.isNull(); }

    // Clicks in photo pixels, in the order they were made (at most four).
    QVector<QPointF> clicks() const { return m_clicks; }
    int clickCount() const { return m_clicks.size(); }

    // No photo, no clicks, no zoom.
    void reset();

    // Screen pixels per photo pixel.
    double zoom() const;

signals:
    // A click on the photo was stored (photo pixels); `count` clicks so far.
    void clicked(const QPointF &photoPos, int count);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void drawForeground(QPainter *painter, const QRectF &rect) override;

private:
    void zoomAbout(double factor, const QPoint &viewportPos);

    QGraphicsPixmapItem *m_item;
    QPixmap m_photo;
    QVector<QPointF> m_clicks;
};
