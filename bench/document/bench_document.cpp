// Prints how long the design document takes with a large design: writing and
// reading a project of 10,000 outlines and 20 bitmaps, rebuilding the layer
// list, and the undoable add, delete and undo of all items.
//   bench_document [items]

#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "layer_rebuild.h"
#include "project_file.h"

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QUndoStack>
#include <cstdio>

namespace {
QList<Jk_tu_yuan *> makeItems(int count)
{
    QRandomGenerator random(42);
    QList<Jk_tu_yuan *> items;
    for (int i = 0; i < count; ++i) {
        QPainterPath p;
        if (i % 3 == 0)
            p.addRect(0, 0, 5 + i % 17, 3 + i % 11);
        else if (i % 3 == 1)
            p.addEllipse(0, 0, 4 + i % 13, 6 + i % 7);
        else
            p.addPolygon(QPolygonF({{0, 0}, {8, 1}, {4, 9}, {2, 5}, {0, 0}}));
        auto *item = new Jk_tu_yuan(p, 1);
        item->setPos(random.bounded(400.0), -random.bounded(400.0));
        item->layer_id = i % 30;
        items.append(item);
    }
    QImage image(500, 500, QImage::Format_Grayscale8);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb((x ^ y) & 0xff, 0, 0));
    for (int i = 0; i < 20; ++i) {
        auto *bitmap = new Jk_tu_yuan(image);
        bitmap->layer_id = i;
        items.append(bitmap);
    }
    return items;
}

double ms(const QElapsedTimer &t)
{
    return t.nsecsElapsed() / 1e6;
}
} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const int count = argc > 1 ? QByteArray(argv[1]).toInt() : 10000;
    Jk_chang_jing scene;
    const QList<Jk_tu_yuan *> items = makeItems(count);
    QElapsedTimer t;

    t.start();
    scene.addItemsUndoable(items);
    std::printf("undoable add of %d items:   %8.1f ms\n", items.size(), ms(t));

    t.restart();
    rebuildLayerList(&scene);
    std::printf("layer rebuild (%d layers): %8.1f ms\n", LayerList::instance().count(), ms(t));

    ProjectPageOut page;
    page.name = QStringLiteral("bench");
    for (const TuCeng *l : LayerList::instance().layers())
        page.layers.append(l);
    page.items = scene.designItems();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    t.restart();
    writeProject(&buffer, {page});
    const double writeMs = ms(t);
    std::printf("project write:               %8.1f ms  (%.1f MB)\n", writeMs, buffer.size() / 1e6);

    buffer.close();
    buffer.open(QIODevice::ReadOnly);
    t.restart();
    ProjectReadResult read = readProject(&buffer);
    std::printf("project read:                %8.1f ms  (%d items, complete %d)\n", ms(t),
                read.itemCount(), int(read.complete));

    t.restart();
    scene.deleteItemsUndoable(scene.designItems());
    std::printf("undoable delete of all:      %8.1f ms\n", ms(t));
    t.restart();
    scene.undoStack()->undo();
    std::printf("undo of the delete:          %8.1f ms\n", ms(t));
    return read.complete ? 0 : 1;
}
