#pragma once

#include <QRectF>

class QPainter;
class QPixmap;

// Paints the canvas background in scene millimetres: a grey surround, the work
// area in white (or the camera photo stretched over it), a millimetre grid with
// heavier lines every 10 mm, and the work-area border. Minor lines are left
// out when a millimetre is smaller than a few screen pixels.
void paintWorkArea(QPainter *painter, const QRectF &exposed, const QRectF &area,
                   const QPixmap &photo);

// The spacing in mm of the finest grid lines worth drawing at `pixelsPerMm`:
// 1 when a millimetre spans at least 4 pixels, else 10, else 100.
double gridStepFor(double pixelsPerMm);
