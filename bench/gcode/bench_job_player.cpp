// Speed and memory of playing a job back in the preview.
//
//   bench_job_player [LINES]
//
// Builds a raster-like job of LINES lines (default 1,000,000: rows of 0.1 mm
// steps over 100 mm with changing power, a rapid at each row's start), then
// prints the seconds to lay it out in time by the programmed feeds and by the
// controller's planning, the seconds to draw the whole job once in an
// 800 x 600 player view (what a zoom or the end of a pan costs), and the
// process's peak resident memory (VmHWM).
#include "grbl_machine_settings.h"
#include "job_player_view.h"
#include "job_timeline.h"
#include "peak_memory.h"

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QTextStream>

namespace {

QByteArray rasterJob(int lines)
{
    QByteArray job("M4\nM8\n;Raster\n");
    job.reserve(lines * 16);
    int written = 3;
    for (int row = 0; written < lines; ++row) {
        const double y = row * 0.1;
        job += "G0X0Y" + QByteArray::number(y, 'f', 2) + "\n";
        ++written;
        for (int step = 1; step <= 1000 && written < lines; ++step, ++written)
            job += "G1X" + QByteArray::number(step * 0.1, 'f', 1) + "S"
                   + QByteArray::number((step * 37) % 1000) + "F6000\n";
    }
    return job + "M9\nG1S0\nM5\nM2\n";
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const int lines = argc > 1 ? QByteArray(argv[1]).toInt() : 1000000;
    QTextStream out(stdout);
    const QByteArray text = rasterJob(lines);
    out << "job: " << lines << " lines, " << text.size() / 1e6 << " MB\n";

    QElapsedTimer clock;
    JobTimeline timeline;
    for (const bool planned : {false, true}) {
        QBuffer job;
        job.setData(text);
        job.open(QIODevice::ReadOnly);
        GrblMachineSettings machine;
        clock.start();
        timeline.load(job, planned ? &machine : nullptr);
        out << (planned ? "timeline, planned: " : "timeline, by feeds: ")
            << clock.nsecsElapsed() / 1e9 << " s, " << timeline.moves().size() << " moves, "
            << timeline.totalSeconds() << " s of job\n";
    }

    JobPlayerView view;
    view.resize(800, 600);
    view.setTimeline(&timeline);
    view.setPosition(timeline.totalSeconds());
    clock.start();
    view.grab();
    out << "first picture of the whole job: " << clock.nsecsElapsed() / 1e9 << " s\n";
    view.zoomAt(QPointF(400, 300), 1.25);
    clock.start();
    view.grab();
    out << "picture after a zoom: " << clock.nsecsElapsed() / 1e9 << " s\n";
    out << "peak memory: " << QStringLiteral("%1 kB").arg(peakMemoryKb()) << "\n";
    return 0;
}
