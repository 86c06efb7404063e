// Speed and memory of timing a job the way the controller plans it.
//
//   bench_job_time FILE [DUMP] [--baud N]
//
// FILE is a G-code job (for example one written by bench_gcode), DUMP a text
// file holding the controller's "$$" reply (its factory values otherwise).
// Prints the planned seconds, the wall-clock seconds of the whole-job
// estimate (what --estimate does) and of the line-by-line plan a running job
// shows its time left from, and the process's peak resident memory (VmHWM)
// after each.
#include "grbl_machine_settings.h"
#include "grbl_time_estimator.h"
#include "peak_memory.h"
#include "planned_job_time.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTextStream>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QStringList args = app.arguments().mid(1);
    QTextStream out(stdout);
    GrblMachineSettings settings;
    const int baudAt = args.indexOf(QStringLiteral("--baud"));
    if (baudAt >= 0 && baudAt + 1 < args.size()) {
        settings.linkBytesPerSecond = args.at(baudAt + 1).toDouble() / 10.0;
        args.erase(args.begin() + baudAt, args.begin() + baudAt + 2);
    }
    if (args.isEmpty()) {
        out << "usage: bench_job_time FILE [DUMP] [--baud N]\n";
        return 2;
    }
    if (args.size() > 1) {
        QFile dump(args.at(1));
        if (!dump.open(QIODevice::ReadOnly)) {
            out << "cannot read " << args.at(1) << '\n';
            return 1;
        }
        const double link = settings.linkBytesPerSecond;
        settings = GrblMachineSettings::fromMap(
            parseGrblSettingsDump(QString::fromLatin1(dump.readAll())));
        settings.linkBytesPerSecond = link;
    }

    QFile job(args.at(0));
    if (!job.open(QIODevice::ReadOnly)) {
        out << "cannot read " << args.at(0) << '\n';
        return 1;
    }
    QElapsedTimer clock;
    clock.start();
    double seconds = 0.0;
    GrblTimeEstimator::estimate(job, settings, &seconds);
    out << QStringLiteral("estimate: %1 s planned, %2 s to work out, peak memory %3\n")
               .arg(seconds, 0, 'f', 3)
               .arg(clock.elapsed() / 1000.0, 0, 'f', 2)
               .arg(QStringLiteral("%1 kB").arg(peakMemoryKb()));
    out.flush();

    clock.restart();
    PlannedJobTime timeline;
    PlannedJobTime::planFile(args.at(0), settings, &timeline);
    out << QStringLiteral("time-left plan: %1 s planned over %2 lines, %3 s to work out, peak "
                          "memory %4\n")
               .arg(timeline.totalSeconds(), 0, 'f', 3)
               .arg(timeline.lines())
               .arg(clock.elapsed() / 1000.0, 0, 'f', 2)
               .arg(QStringLiteral("%1 kB").arg(peakMemoryKb()));
    return 0;
}
