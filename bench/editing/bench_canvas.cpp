// Times the canvas operations a user feels with a large design: selecting
// every item, moving them (as one command, with undo, and as a mouse drag
// step), zooming and panning. Each figure is the operation plus a full
// synchronous repaint of the view, in milliseconds (median and worst of
// several runs), against a budget of 100 ms.
//
// Usage: bench_canvas [ITEMS]   (default 10000; runs offscreen unless a
// platform is set)
#include "drawn_shapes.h"
#include "geometry_command.h"
#include "jk_chang_jing.h"
#include "jk_shi_tu.h"
#include "jk_tu_yuan.h"
#include "selection_tool.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QGraphicsSceneMouseEvent>
#include <QUndoStack>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

using namespace lumitra;

namespace {

constexpr double kBudgetMs = 100.0;
constexpr int kRuns = 7;

// A design of `count` shapes spread over the 400 x 400 mm work area: half made
// like drawn shapes (plain items), half like imported outlines (cached items).
void fillScene(Jk_chang_jing &scene, int count)
{
    const int perRow = 100;
    for (int i = 0; i < count; ++i) {
        const int tool = RectangleTool + i % 6;
        const double x = (i % perRow) * 4.0;
        const double y = -400.0 + (i / perRow % perRow) * 4.0;
        const QPainterPath outline = shapeOutline(tool, QRectF(0, 0, 3, 3));
        Jk_tu_yuan *item;
        if (i % 2 == 0) {
            item = new Jk_tu_yuan();
            item->set_path(outline);
        } else {
            item = new Jk_tu_yuan(outline, 1);
        }
        item->setPos(x, y);
        scene.addItem(item);
    }
}

struct Figure
{
    double median = 0;
    double worst = 0;
};

Figure measure(const std::function<void()> &operation, QGraphicsView &view)
{
    std::vector<double> ms;
    for (int run = 0; run < kRuns; ++run) {
        QElapsedTimer t;
        t.start();
        operation();
        QCoreApplication::processEvents(); // deferred refreshes run here
        view.viewport()->repaint();
        ms.push_back(t.nsecsElapsed() / 1e6);
    }
    std::sort(ms.begin(), ms.end());
    return Figure{ms[ms.size() / 2], ms.back()};
}

bool report(const char *what, const Figure &f)
{
    const bool ok = f.worst < kBudgetMs;
    std::printf("%-34s median %8.2f ms   worst %8.2f ms   %s\n", what, f.median, f.worst,
                ok ? "ok" : "OVER 100 ms");
    return ok;
}

// One step of a selection drag as the scene sees it.
void sendSceneMouse(Jk_chang_jing &scene, QEvent::Type type, const QPointF &at)
{
    QGraphicsSceneMouseEvent e(type);
    e.setScenePos(at);
    e.setButton(type == QEvent::GraphicsSceneMouseMove ? Qt::NoButton : Qt::LeftButton);
    e.setButtons(type == QEvent::GraphicsSceneMouseRelease ? Qt::NoButton : Qt::LeftButton);
    QCoreApplication::sendEvent(&scene, &e);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int count = argc > 1 ? std::max(1, atoi(argv[1])) : 10000;

    Jk_chang_jing scene;
    QElapsedTimer build;
    build.start();
    fillScene(scene, count);
    Jk_shi_tu view(&scene);
    view.resize(1280, 900);
    view.show();
    view.fitWorkArea();
    SelectionTool tool;
    tool.activate(&scene);
    QCoreApplication::processEvents();
    view.viewport()->repaint();
    std::printf("canvas of %d items, view %dx%d, built and first painted in %.1f ms\n", count,
                view.viewport()->width(), view.viewport()->height(), build.nsecsElapsed() / 1e6);

    bool ok = true;
    ok &= report("select all",
                 measure(
                     [&] {
                         scene.clearSelection();
                         QPainterPath everything;
                         everything.addRect(scene.itemsBoundingRect());
                         scene.setSelectionArea(everything);
                     },
                     view));
    const QList<Jk_tu_yuan *> all = tool.selection();
    std::printf("  (%d items selected)\n", int(all.size()));

    QUndoStack *stack = scene.undoStack();
    double step = 1;
    ok &= report("move all (command)",
                 measure(
                     [&] {
                         stack->push(makeMoveCommand(all, {step, 0}));
                         step = -step;
                     },
                     view));
    ok &= report("undo move", measure([&] { stack->undo(); }, view));
    ok &= report("redo move", measure([&] { stack->redo(); }, view));

    // A drag of the whole selection: press on an item, then each mouse move
    // moves all of it live.
    const QPointF grab = all.first()->sceneBoundingRect().center();
    QPointF pointer = grab;
    sendSceneMouse(scene, QEvent::GraphicsSceneMousePress, grab);
    ok &= report("drag step (all items follow)",
                 measure(
                     [&] {
                         pointer += QPointF(2, 1);
                         sendSceneMouse(scene, QEvent::GraphicsSceneMouseMove, pointer);
                     },
                     view));
    ok &= report("drag release (one command)",
                 measure(
                     [&] {
                         sendSceneMouse(scene, QEvent::GraphicsSceneMouseRelease, pointer);
                         sendSceneMouse(scene, QEvent::GraphicsSceneMousePress, pointer);
                     },
                     view));
    sendSceneMouse(scene, QEvent::GraphicsSceneMouseRelease, pointer);

    const QPoint middle = view.viewport()->rect().center();
    double factor = 1.15;
    ok &= report("zoom about the cursor",
                 measure(
                     [&] {
                         view.zoomAbout(factor, middle);
                         factor = 1 / factor;
                     },
                     view));
    int dir = 1;
    ok &= report("pan",
                 measure(
                     [&] {
                         view.panBy(QPoint(40 * dir, 25 * dir));
                         dir = -dir;
                     },
                     view));
    view.zoomAbout(4, middle);
    ok &= report("pan, zoomed in 4x",
                 measure(
                     [&] {
                         view.panBy(QPoint(40 * dir, 25 * dir));
                         dir = -dir;
                     },
                     view));
    ok &= report("clear selection", measure([&] { scene.clearSelection(); }, view));
    std::printf("%s\n", ok ? "all within 100 ms" : "SOME OPERATIONS OVER 100 ms");
    return ok ? 0 : 1;
}
