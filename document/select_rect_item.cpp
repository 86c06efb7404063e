#include "select_rect_item.h"

#include <QBrush>
#include <QPen>

SelectRectItem::SelectRectItem(const QPointF &anchor)
    : QGraphicsRectItem(QRectF(anchor, QSizeF(0, 0))), m_anchor(anchor)
{
    QPen pen(QColor(0, 120, 215), 0, Qt::DashLine);
    pen.setCosmetic(true);
    setPen(pen);
    setBrush(QColor(0, 120, 215, 30));
    setZValue(1e9);
    setAcceptedMouseButtons(Qt::NoButton);
}

void SelectRectItem::dragTo(const QPointF &corner)
{
    m_reversed = corner.x() < m_anchor.x();
    const QRectF band = QRectF(m_anchor, corner).normalized();
    setRect(band);
    emit bandChanged(band);
}
