#pragma once

#include <QGraphicsItem>
#include <QImage>
#include <QObject>
#include <QPainterPath>
#include <QPixmap>

// The one item class of the design canvas: an outline in millimetres (item
// coordinates), optionally with a bitmap, and the number of its layer.
// Owned by the scene once added. GUI thread only.
// type() is the library's, so qgraphicsitem_cast cannot tell it apart from
// other items: use dynamic_cast.
class Jk_tu_yuan : public QObject, public QGraphicsItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsItem)

public:
    // One bitmap pixel on the canvas, in millimetres (100 pixels per inch).
    static constexpr double kPixelMm = 0.254;

    Jk_tu_yuan();                                  // empty path, not placed
    explicit Jk_tu_yuan(int shapeNumber);          // 0 square, 1 circle, 2 triangle
    explicit Jk_tu_yuan(const QString &imageFile); // bitmap from a file, per-pixel grey
    explicit Jk_tu_yuan(const QPixmap &pixmap);    // bitmap, 8-bit grey
    explicit Jk_tu_yuan(const QImage &image);      // bitmap as it is
    Jk_tu_yuan(const QImage &source, const QImage &display);
    // A ready outline. keepPlace 0: centred and selected; otherwise at (0, 0),
    // not selected.
    Jk_tu_yuan(const QPainterPath &path, int keepPlace);
    explicit Jk_tu_yuan(const Jk_tu_yuan *other); // copy; position not copied

    QImage scratch;    // unused working image
    QPainterPath path; // outline in item coordinates, mm
    bool is_bitmap = false;
    QImage source_image;  // bitmap as loaded
    QImage display_image; // bitmap after its image mode; drawn and engraved
    double jiao_du = 0.0; // accumulated rotation, degrees, never normalised
    qint32 layer_id = 0;
    qint32 reserved = 0;
    double reservedValue = 0.0;
    QString wen_zi; // text an outline was made from
    QString zi_ti;  // the text settings that went with it
    qint32 spareInt = 0;
    bool spareFlag = false;
    bool filled = false; // true when last painted with a fill brush
    qint32 spareInt2 = 0;
    QPainterPath secondPath;

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

    // Replaces the outline, tells the scene the geometry changed and repaints.
    void set_path(const QPainterPath &newPath);

    // Places the item centred on the work area (the centring rule).
    void centreOnWorkArea();

    // True when a scene point would pick the item: near its stroke (5 mm wide)
    // within its bounding rectangle.
    bool hitTest(const QPointF &scenePos) const;

    // Rotates a set of items by `angle` degrees about `centre` (scene
    // coordinates); each item keeps the rotation in its own transform and its
    // jiao_du grows by the angle.
    static void rotateItems(const QList<Jk_tu_yuan *> &items, double angle, const QPointF &centre);

    // The outline mapped to scene coordinates through position and transform.
    QPainterPath scenePath() const;

    // True when the item's layer record exists and is switched to hidden.
    bool isOnHiddenLayer() const;

    // Image loading with the per-pixel grey step: every pixel whose alpha is not
    // zero becomes grey (r + g + b) / 3 with its alpha kept; fully transparent
    // pixels keep their colour values.
    static QImage greyFromFile(const QImage &image);

signals:
    // Double-click on an item: the window opens the text dialog for it. The
    // design scene relays it as Jk_chang_jing::textEditRequested.
    void textEditRequested(Jk_tu_yuan *item);

protected:
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void hoverMoveEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent *event) override;

private:
    // A thin dashed box around a selected item.
    void paintSelectionMark(QPainter *painter) const;
    // How much of `path` a fill covers: its open subpaths are drawn as lines
    // only, as the job burns them. Kept until `path` changes.
    enum class Closure { AllClosed, Mixed, AllOpen };
    Closure closure() const;

    mutable QPainterPath m_closureOf;  // the outline the cached split belongs to
    mutable QPainterPath m_closedPart; // its closed subpaths when Mixed
    mutable Closure m_closure = Closure::AllClosed;
    mutable bool m_closureKnown = false;
    void initCommon();
    void initBitmap(const QImage &source, const QImage &display);
};
