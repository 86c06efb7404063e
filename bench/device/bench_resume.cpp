// What resuming a large job costs: the offer's index of the job and its
// preview (both on a worker thread in the window), the dialog (GUI thread) and
// writing the resumed job, each timed, with the process's peak memory after
// each step.
//
//   bench_resume FILE [LINE]     e.g. the grey job of "bench_gcode grey OUT";
//                                LINE defaults to the middle of the job
#include "job_state_index.h"
#include "peak_memory.h"
#include "resume_dialog.h"
#include "resume_plan.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QTextStream out(stdout);
    if (argc < 2) {
        out << "usage: bench_resume FILE [LINE]\n";
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[1]);
    QElapsedTimer clock;
    clock.start();
    lumitra::gcode::JobStateIndex index;
    if (!index.build(path)) {
        out << "cannot read " << path << "\n";
        return 1;
    }
    const int line = argc > 2 ? QString::fromLocal8Bit(argv[2]).toInt() : index.lineCount() / 2;
    out << "index: " << index.lineCount() << " lines in " << clock.elapsed() / 1000.0
        << " s; peak memory " << peakMemoryKb() / 1024 << " MB\n";

    // Read and drawn on a worker thread in the window; the dialog itself is
    // made on the GUI thread.
    clock.restart();
    const QImage preview = ResumeDialog::renderPreview(index);
    out << "preview: drawn in " << clock.elapsed() / 1000.0 << " s; peak memory "
        << peakMemoryKb() / 1024 << " MB\n";
    clock.restart();
    {
        ResumeDialog dialog(index, line, false, nullptr, preview);
        const double opened = clock.nsecsElapsed() / 1e6;
        clock.restart();
        dialog.setLine(line + 1000);
        out << "dialog (GUI thread): opened in " << opened << " ms, another line marked in "
            << clock.nsecsElapsed() / 1e6 << " ms; peak memory " << peakMemoryKb() / 1024
            << " MB\n";
    }

    QTemporaryDir dir;
    lumitra::gcode::ResumeJob resumed;
    QString error;
    clock.restart();
    // From the index's nearest checkpoint, as the window does.
    if (!lumitra::gcode::writeResumeJobFile(path, line, dir.filePath("resumed.nc"), &resumed,
                                            &error, index.checkpointBefore(line))) {
        out << error << "\n";
        return 1;
    }
    out << "resumed job from line " << resumed.fromLine << " written in "
        << clock.elapsed() / 1000.0 << " s; peak memory " << peakMemoryKb() / 1024 << " MB\n";
    return 0;
}
