// Times the offset of many circles: the outline operation alone, and the
// undoable offset step on a design page (with set_path and the undo record),
// each the median of several runs against a budget of 0.5 s. Also the layer
// kerf of the same circles as the job applies it.
//
// Usage: bench_offset [CIRCLES] [DISTANCE_MM]   (default 5000 and 0.5)
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "outline_operations.h"
#include "path_offset.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QUndoStack>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

using namespace lumitra;

namespace {

constexpr double kBudgetS = 0.5;
constexpr int kRuns = 5;

// Circles of 2 to 11 mm in diameter on a 400 x 400 mm grid.
QVector<QPainterPath> circles(int count)
{
    QVector<QPainterPath> paths;
    paths.reserve(count);
    for (int i = 0; i < count; ++i) {
        QPainterPath p;
        const double d = 2 + (i % 10);
        p.addEllipse(QPointF(5 + (i % 70) * 5.5, -5 - (i / 70) * 5.5), d / 2, d / 2);
        paths.append(p);
    }
    return paths;
}

double median(const std::function<void()> &run)
{
    std::vector<double> times;
    for (int r = 0; r < kRuns; ++r) {
        QElapsedTimer t;
        t.start();
        run();
        times.push_back(t.nsecsElapsed() / 1e9);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void report(const char *what, int count, double seconds)
{
    std::printf("%-34s %6d circles  %.3f s  %s\n", what, count, seconds,
                seconds < kBudgetS ? "ok" : "OVER BUDGET");
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int count = argc > 1 ? std::max(1, atoi(argv[1])) : 5000;
    const double distance = argc > 2 ? atof(argv[2]) : 0.5;
    const QVector<QPainterPath> paths = circles(count);

    for (CornerStyle corners : {CornerStyle::Round, CornerStyle::Mitre}) {
        int points = 0;
        const double s = median([&] {
            points = 0;
            for (const QPainterPath &p : paths)
                points += offsetOutline(p, distance, corners).elementCount();
        });
        report(corners == CornerStyle::Round ? "offsetOutline, round corners"
                                             : "offsetOutline, mitre corners",
               count, s);
        std::printf("  (%d points out, %.1f per circle)\n", points, double(points) / count);
    }
    report("kerfOutlines (one layer)", count, median([&] { kerfOutlines(paths, 0.1); }));

    // The undoable step on a page: offset, then undo, every run.
    Jk_chang_jing scene;
    QList<Jk_tu_yuan *> items;
    for (const QPainterPath &p : paths) {
        auto *item = new Jk_tu_yuan(p, 1);
        scene.addItem(item);
        items.append(item);
    }
    OffsetSettings settings;
    settings.distance = distance;
    std::vector<double> times;
    for (int r = 0; r < kRuns; ++r) {
        QElapsedTimer t;
        t.start();
        scene.undoStack()->push(makeOffsetCommand(&scene, items, settings));
        times.push_back(t.nsecsElapsed() / 1e9);
        scene.undoStack()->undo();
    }
    std::sort(times.begin(), times.end());
    report("offset step on a page (undoable)", count, times[times.size() / 2]);
    return 0;
}
