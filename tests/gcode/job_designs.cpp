#include "job_designs.h"

#include <QPainterPath>
#include <QTransform>

Jk_tu_yuan *JobDesign::addPath(const QPainterPath &path, int number)
{
    Jk_tu_yuan *item = owned.take(new Jk_tu_yuan(path, 1));
    item->layer_id = number;
    return item;
}

Jk_tu_yuan *JobDesign::addSegment(const QPointF &a, const QPointF &b, int number)
{
    QPainterPath path(a);
    path.lineTo(b);
    return addPath(path, number);
}

Jk_tu_yuan *JobDesign::addBitmap(const QImage &image, int number, const QPointF &pos)
{
    Jk_tu_yuan *item = owned.take(new Jk_tu_yuan(image));
    item->layer_id = number;
    item->setPos(pos);
    return item;
}

TuCeng *JobDesign::addLayer(int number, bool bitmap)
{
    auto *layer = new TuCeng(number, bitmap);
    layers.append(layer);
    return layer;
}

namespace {

QPainterPath rectangle(double x, double y, double w, double h)
{
    QPainterPath p;
    p.addRect(x, y, w, h);
    return p;
}

void lines(JobDesign &d)
{
    d.addLayer(0, false);
    TuCeng *second = d.addLayer(2, false);
    second->gonglv = 50;
    second->sudu = 1200;
    second->cishu = 2;
    d.addPath(rectangle(10, -30, 20, 15), 0);
    QPainterPath circle;
    circle.addEllipse(QPointF(60, -40), 8, 8);
    d.addPath(circle, 0);
    QPainterPath triangle;
    triangle.moveTo(100, -10);
    triangle.lineTo(120, -10);
    triangle.lineTo(110, -30);
    triangle.closeSubpath();
    Jk_tu_yuan *moved = d.addPath(triangle, 2);
    moved->setPos(5, -5);
    moved->setTransform(QTransform().rotate(15));
}

void fills(JobDesign &d)
{
    TuCeng *fill = d.addLayer(1, false);
    fill->moshi = 1;
    fill->fangxiang = 45;
    fill->jianju = 1;
    fill->saomiao = 2;
    TuCeng *cross = d.addLayer(3, false);
    cross->moshi = 2;
    cross->jianju = 0.8;
    cross->danxiang = true;
    cross->gonglv = 35;
    QPainterPath ring = rectangle(0, -20, 20, 20);
    ring.addRect(6, -14, 8, 8);
    d.addPath(ring, 1);
    QPainterPath circle;
    circle.addEllipse(QPointF(40, -10), 6, 6);
    d.addPath(circle, 3);
}

void bitmaps(JobDesign &d)
{
    TuCeng *threshold = d.addLayer(0, true);
    threshold->jianju = 0.5;
    threshold->saomiao = 1;
    TuCeng *grey = d.addLayer(4, true);
    grey->moshi = 3;
    grey->jianju = 0.6;
    QImage pattern(12, 8, QImage::Format_ARGB32);
    pattern.fill(Qt::white);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 12; ++x) {
            if ((x / 3 + y / 2) % 2 == 0 || x == 11)
                pattern.setPixel(x, y, qRgb(20, 20, 20));
        }
    }
    d.addBitmap(pattern, 0, QPointF(5, -20));
    QImage ramp(6, 4, QImage::Format_Grayscale8);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 6; ++x)
            ramp.scanLine(y)[x] = uchar(x * 51);
    }
    Jk_tu_yuan *rotated = d.addBitmap(ramp, 4, QPointF(30, -10));
    rotated->setTransform(QTransform().rotate(30));
}

void rotary(JobDesign &d)
{
    d.addLayer(0, false);
    QPainterPath p = rectangle(0, -10, 31.4, 10);
    d.addPath(p, 0);
}

} // namespace

QStringList designNames()
{
    return {QStringLiteral("lines"), QStringLiteral("fills"), QStringLiteral("bitmaps"),
            QStringLiteral("rotary")};
}

void buildDesign(const QString &name, JobDesign &design)
{
    if (name == QLatin1String("lines"))
        lines(design);
    else if (name == QLatin1String("fills"))
        fills(design);
    else if (name == QLatin1String("bitmaps"))
        bitmaps(design);
    else if (name == QLatin1String("rotary"))
        rotary(design);
}
