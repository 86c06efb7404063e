#pragma once

#include <QGraphicsRectItem>
#include <QObject>

// The rubber-band selection rectangle of the design view. It lives in the
// scene only while the user drags it; it is never a design item. The rectangle
// is kept normalised (positive width and height) in scene millimetres.
class SelectRectItem : public QObject, public QGraphicsRectItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsItem)

public:
    // Starts a band at `anchor` (scene coordinates).
    explicit SelectRectItem(const QPointF &anchor);

    QPointF anchor() const { return m_anchor; }
    // Stretches the band from the anchor to `corner`.
    void dragTo(const QPointF &corner);
    // True when the band was dragged from right to left (touch selection).
    bool isReversed() const { return m_reversed; }

signals:
    void bandChanged(const QRectF &sceneRect);

private:
    QPointF m_anchor;
    bool m_reversed = false;
};
