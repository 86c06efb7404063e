#include "selection_frame.h"

#include <QPainter>

namespace lumitra {

namespace {

constexpr double kFrameZ = 1e9; // above every design item

const QColor kFrameColour(0, 120, 215);

// One handle, drawn in screen pixels around its position.
class HandleMark : public QGraphicsItem
{
public:
    HandleMark(FrameHandle kind, QGraphicsItem *parent) : QGraphicsItem(parent), m_kind(kind)
    {
        setFlag(QGraphicsItem::ItemIgnoresTransformations);
        setAcceptedMouseButtons(Qt::NoButton);
    }

    QRectF boundingRect() const override
    {
        const double h = kHandlePixels;
        return QRectF(-h, -h, 2 * h, 2 * h);
    }

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *) override
    {
        const double h = kHandlePixels / 2;
        painter->setPen(QPen(kFrameColour, 1));
        painter->setBrush(Qt::white);
        if (m_kind == FrameHandle::Rotate)
            painter->drawEllipse(QPointF(0, 0), h, h);
        else
            painter->drawRect(QRectF(-h, -h, 2 * h, 2 * h));
    }

private:
    FrameHandle m_kind;
};

const FrameHandle kHandles[] = {
    FrameHandle::TopLeft,     FrameHandle::Top,    FrameHandle::TopRight,   FrameHandle::Right,
    FrameHandle::BottomRight, FrameHandle::Bottom, FrameHandle::BottomLeft, FrameHandle::Left};

} // namespace

SelectionFrame::SelectionFrame()
{
    setZValue(kFrameZ);
    setAcceptedMouseButtons(Qt::NoButton);
    setAcceptHoverEvents(false);
    for (FrameHandle h : kHandles)
        m_handles.append(new HandleMark(h, this));
    m_handles.append(new HandleMark(FrameHandle::Rotate, this));
    setVisible(false);
}

void SelectionFrame::setFrame(const QRectF &rect)
{
    // The scene indexes items by their bounding rectangle: it must hear of
    // every change of it, hiding included, or it keeps the frame filed under
    // the old one and later paints a frame that has since been deleted.
    prepareGeometryChange();
    if (rect.isNull()) {
        setVisible(false);
        m_frame = QRectF();
        return;
    }
    m_frame = rect;
    for (int i = 0; i < 8; ++i)
        m_handles[i]->setPos(handlePosition(rect, kHandles[i], 0));
    // The rotate handle sits above the top centre by a fixed number of pixels;
    // as a transform-ignoring item its offset is applied in pixels by the view,
    // so it is placed on the top centre and drawn shifted.
    m_handles[8]->setPos(handlePosition(rect, FrameHandle::Top, 0));
    m_handles[8]->setTransform(QTransform::fromTranslate(0, -kRotateHandlePixels));
    setVisible(true);
    update();
}

QRectF SelectionFrame::boundingRect() const
{
    return m_frame;
}

void SelectionFrame::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    QPen pen(kFrameColour, 1, Qt::DashLine);
    pen.setCosmetic(true);
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(m_frame);
}

} // namespace lumitra
