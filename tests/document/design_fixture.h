#pragma once

// A small design for the project-file tests: a rectangle, a rotated ellipse, a
// five-pointed star and a bitmap, each on its own layer, the layers with
// parameters other than the defaults.

#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "layer_rebuild.h"

#include <QImage>
#include <QPainterPath>
#include <QPolygonF>

namespace fixture {

// The star template of the drawing tools, as a closed polygon.
inline QPainterPath starOutline()
{
    const qreal xy[] = {380, 23,  489, 241, 732, 275, 556, 444, 597, 683,
                        380, 571, 163, 682, 204, 444, 28,  275, 271, 241};
    QPolygonF star;
    for (int i = 0; i < 20; i += 2)
        star << QPointF(xy[i], xy[i + 1]);
    QPainterPath p;
    p.addPolygon(star);
    p.closeSubpath();
    return p;
}

inline QImage sourceBitmap()
{
    QImage image(6, 4, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgba(x * 40, y * 60, 255 - x * 30, 255 - y * 50));
    return image;
}

inline QImage displayBitmap()
{
    QImage image(6, 4, QImage::Format_Grayscale8);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb((x + y) % 2 * 255, 0, 0));
    return image;
}

// Adds the four items to the scene, rectangle first (bottom), bitmap last (top).
inline QList<Jk_tu_yuan *> addDesign(Jk_chang_jing &scene)
{
    QPainterPath rect;
    rect.addRect(0, 0, 40, 25);
    auto *rectangle = new Jk_tu_yuan(rect, 0);
    rectangle->layer_id = 1;
    rectangle->wen_zi = QStringLiteral("abc");
    rectangle->zi_ti = QStringLiteral("Sans,12");

    QPainterPath oval;
    oval.addEllipse(0, 0, 60, 30);
    auto *ellipse = new Jk_tu_yuan(oval, 0);
    ellipse->layer_id = 2;
    ellipse->setPos(120.25, -310.5);
    Jk_tu_yuan::rotateItems({ellipse}, 35, QPointF(150, -300));
    Jk_tu_yuan::rotateItems({ellipse}, 340, QPointF(150, -300));

    auto *star = new Jk_tu_yuan(starOutline(), 1);
    star->layer_id = 7;
    star->setPos(10, -390);
    star->setTransform(QTransform::fromScale(0.1, -0.1));

    auto *bitmap = new Jk_tu_yuan(sourceBitmap(), displayBitmap());
    bitmap->layer_id = 7;

    const QList<Jk_tu_yuan *> items{rectangle, ellipse, star, bitmap};
    for (Jk_tu_yuan *item : items)
        scene.addItem(item);
    rebuildLayerList(&scene);
    return items;
}

// Gives every layer of the list parameters other than the defaults.
inline void customiseLayers()
{
    int n = 0;
    for (TuCeng *l : LayerList::instance().layers()) {
        ++n;
        l->gonglv = 10 + n;
        l->sudu = 1000 + n;
        l->fangxiang = 30 + n;
        l->jianju = 0.05 * n;
        l->saomiao = 1.5 * n;
        l->moshi = l->tupian ? 3 : n % 3;
        l->shuchu = n % 2 == 0;
        l->xianshi = n != 2;
        l->danxiang = true;
        l->mingcheng = QStringLiteral("layer %1").arg(n);
        l->cishu = n + 1;
    }
}

} // namespace fixture
