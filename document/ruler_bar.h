#pragma once

#include <QWidget>

class QGraphicsView;

// A millimetre ruler along the top or left edge of the design view. The top
// ruler shows machine X (= scene x), the left ruler machine Y (= -scene y).
class RulerBar : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kThickness = 20;

    RulerBar(Qt::Orientation orientation, QGraphicsView *view);

    // The labelled tick spacing in mm: the smallest of 1, 2, 5 times a power of
    // ten that keeps labels at least 50 pixels apart.
    static double labelStepFor(double pixelsPerMm);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    // Ruler value (machine mm) at a viewport coordinate along the ruler.
    double valueAt(int viewportPos) const;

    Qt::Orientation m_orientation;
    QGraphicsView *m_view;
};
