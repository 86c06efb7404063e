// What following a job on the board's card costs for a large job: indexing
// the local copy (done on a worker thread when the job starts) and working out
// the resume line after an interruption (done on the GUI thread).
//
//   bench_sd_job_index FILE     e.g. the dither job of "bench_gcode dither OUT"
//
// Prints the index time, its memory (VmHWM of the process) and, for reports at
// 10 % .. 90 % of the file, the time of the resume line by the planner alone
// and with the head's position taken from the job itself.
#include "job_simulator.h"
#include "peak_memory.h"
#include "sd_job_progress.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTextStream>

namespace {

// Where the head is once the job's first `lines` lines have run.
QPointF positionAfter(const QString &path, int lines)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    JobSimulator sim;
    QString line;
    for (int i = 0; i < lines && readJobLine(file, &line); ++i)
        sim.feedLine(line, [](const JobSimulator::Move &) {});
    return sim.position();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    if (argc < 2) {
        out << "usage: bench_sd_job_index FILE\n";
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[1]);
    SdJobProgress progress;
    QElapsedTimer clock;
    clock.start();
    if (!progress.index(path)) {
        out << "cannot read " << path << "\n";
        return 1;
    }
    out << "index: " << progress.lineCount() << " lines, " << progress.size() << " bytes in "
        << clock.elapsed() / 1000.0 << " s; peak memory " << peakMemoryKb() / 1024 << " MB\n";
    for (int tenth = 1; tenth <= 9; ++tenth) {
        const double percent = tenth * 10.0;
        progress.statusReport(QStringLiteral("<Run|Bf:5,0|SD:%1,/001.nc>").arg(percent, 0, 'f', 2));
        clock.restart();
        const int byBuffer = progress.resumeLine();
        const double bufferMs = clock.nsecsElapsed() / 1e6;
        const int reading = progress.currentLine();
        const QPointF at = positionAfter(path, reading - 12);
        progress.statusReport(QStringLiteral("<Run|WPos:%1,%2,0.000|Bf:5,0|SD:%3,/001.nc>")
                                  .arg(at.x(), 0, 'f', 3)
                                  .arg(at.y(), 0, 'f', 3)
                                  .arg(percent, 0, 'f', 2));
        clock.restart();
        const int byPosition = progress.resumeLine();
        const double positionMs = clock.nsecsElapsed() / 1e6;
        out << QString::number(percent, 'f', 0) << " %: reading line " << reading
            << "; resume by the planner " << byBuffer << " (" << QString::number(bufferMs, 'f', 2)
            << " ms), with the position " << byPosition << " ("
            << QString::number(positionMs, 'f', 2) << " ms)\n";
    }
    return 0;
}
