// The frame drawn around the selection: a dashed rectangle over the
// selection's outline bounds with eight square scale handles and a round
// rotate handle above the top edge. The handles keep their size on the screen
// at every zoom. The frame takes no mouse buttons (the selection tool works out
// which handle is under the pointer) and is never a design item.
#pragma once

#include "frame_geometry.h"

#include <QGraphicsItem>
#include <QVector>

namespace lumitra {

class SelectionFrame : public QGraphicsItem
{
public:
    SelectionFrame();

    // Shows the frame around `rect` (scene mm); a null rect (no selection) hides
    // it. A flat rect (a straight line) is shown.
    void setFrame(const QRectF &rect);
    QRectF frame() const { return m_frame; }

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

private:
    QRectF m_frame;
    QVector<QGraphicsItem *> m_handles; // children, in FrameHandle order
};

} // namespace lumitra
