#pragma once

#include <QPixmap>
#include <QRectF>

class QPainter;

// A photo under the design: drawn into `rect` (scene mm) with `opacity`
// (0 invisible .. 1 opaque) over the white work area and under the grid.
// Nothing is drawn while it is null or hidden.
struct BackgroundPhoto
{
    QPixmap pixmap;
    QRectF rect;
    double opacity = 1.0;
    bool hidden = false;

    bool visible() const { return !pixmap.isNull() && !hidden && opacity > 0.0; }
};

// Paints the canvas background in scene millimetres: a grey surround, the work
// area in white, the photo, a millimetre grid with heavier lines every 10 mm,
// and the work-area border. Minor lines are left out when a millimetre is
// smaller than a few screen pixels.
void paintWorkArea(QPainter *painter, const QRectF &exposed, const QRectF &area,
                   const BackgroundPhoto &photo);
// The same with `photo` stretched over the whole work area, fully opaque.
void paintWorkArea(QPainter *painter, const QRectF &exposed, const QRectF &area,
                   const QPixmap &photo);

// The spacing in mm of the finest grid lines worth drawing at `pixelsPerMm`:
// 1 when a millimetre spans at least 4 pixels, else 10, else 100.
double gridStepFor(double pixelsPerMm);
