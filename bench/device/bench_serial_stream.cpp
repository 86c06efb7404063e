// Streams jobs through the serial link to the GRBL fake on a pty pair: first
// unpaced runs of growing size with the process's peak memory after each, then
// the throughput against the wire rate (115200 baud = 11,520 bytes/s) with the
// fake paced at that rate, alone and while a large canvas repaints continuously.
//
//   bench_serial_stream [seconds-of-job] [canvas-items]
#include "busy_canvas.h"
#include "grbl_fake.h"
#include "jk_com.h"
#include "peak_memory.h"
#include "program_state.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <cstdio>

namespace {

constexpr double kWireBytesPerSecond = 11520.0;

QByteArray jobLine(int i)
{
    return QStringLiteral("G1X%1Y%2S%3F3000")
        .arg((i * 37) % 40000 / 100.0, 0, 'f', 2)
        .arg((i * 53) % 40000 / 100.0, 0, 'f', 2)
        .arg(i % 1000)
        .toLatin1();
}

// Writes a job of `lines` lines; returns its size in bytes ("\n" included).
qint64 writeJob(const QString &path, int lines)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly))
        return -1;
    qint64 bytes = 0;
    for (int i = 0; i < lines; ++i) {
        const QByteArray l = jobLine(i) + '\n';
        bytes += l.size();
        f.write(l);
    }
    return bytes;
}

// Runs the event loop until `signal` of `sender` fires or `ms` pass; true when it fired.
template<typename Sender, typename Signal> bool waitFor(Sender *sender, Signal signal, int ms)
{
    QEventLoop loop;
    bool fired = false;
    QObject::connect(sender, signal, &loop, [&] {
        fired = true;
        loop.quit();
    });
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
    return fired;
}

struct RunResult
{
    bool ok = false;
    double seconds = 0.0;
    qint64 bytes = 0;
    bool overrun = false;
};

RunResult stream(const QString &path, qint64 jobBytes, double bytesPerSecond)
{
    RunResult r;
    GrblFake::Options o;
    o.bytesPerSecond = bytesPerSecond;
    o.recordLines = false;
    GrblFake fake(o);
    if (!fake.start())
        return r;
    Jk_com com;
    if (!com.connectPort(fake.portName()) || !waitFor(&com, &Jk_com::yi_lian_jie, 5000)
        || !com.isLinked())
        return r;
    lumitra::programState().jobFilePath = path;
    const qint64 before = fake.bytesReceived();
    QElapsedTimer clock;
    clock.start();
    com.queueText(QStringLiteral("yunxing"));
    if (!waitFor(&com, &Jk_com::jobFinished, 600000))
        return r;
    r.seconds = clock.nsecsElapsed() / 1e9;
    r.bytes = fake.bytesReceived() - before;
    r.overrun = fake.overrun();
    r.ok = r.bytes >= jobBytes;
    com.disconnectPort();
    return r;
}

void printPaced(const char *label, const RunResult &r)
{
    const double rate = r.bytes / r.seconds;
    std::printf("%-28s %8.2f s  %9lld bytes  %8.0f bytes/s  %5.1f %% of wire%s%s\n", label,
                r.seconds, static_cast<long long>(r.bytes), rate,
                100.0 * rate / kWireBytesPerSecond, r.overrun ? "  OVERRUN" : "",
                r.ok ? "" : "  INCOMPLETE");
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const double seconds = argc > 1 ? QString(argv[1]).toDouble() : 20.0;
    const int items = argc > 2 ? QString(argv[2]).toInt() : 20000;
    qSetMessagePattern(QStringLiteral("%{if-warning}%{message}%{endif}"));

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("job.nc"));
    const int lines = int(seconds * kWireBytesPerSecond / (jobLine(0).size() + 1));
    const qint64 jobBytes = writeJob(path, lines);
    std::printf("job: %d lines, %lld bytes, %.1f s at the wire rate\n", lines,
                static_cast<long long>(jobBytes), jobBytes / kWireBytesPerSecond);

    std::printf("unpaced runs (memory must not grow with the job), peak RSS before: %ld kB\n",
                peakMemoryKb());
    for (int n : {10000, 100000, 1000000}) {
        const QString big = dir.filePath(QStringLiteral("big%1.nc").arg(n));
        const qint64 bytes = writeJob(big, n);
        const RunResult r = stream(big, bytes, 0.0);
        std::printf("%8d lines  %8.2f s  %8.0f lines/s  peak RSS %6ld kB%s%s\n", n, r.seconds,
                    n / r.seconds, peakMemoryKb(), r.overrun ? "  OVERRUN" : "",
                    r.ok ? "" : "  INCOMPLETE");
        QFile::remove(big);
    }

    printPaced("paced, idle window", stream(path, jobBytes, kWireBytesPerSecond));

    BusyCanvas canvas(items);
    canvas.show();
    canvas.startRepainting();
    const RunResult busy = stream(path, jobBytes, kWireBytesPerSecond);
    canvas.stopRepainting();
    printPaced("paced, canvas repainting", busy);
    std::printf("canvas: %d items, %d frames in %.1f s (%.1f fps), %.1f ms painting per frame\n",
                items, canvas.frames(), busy.seconds, canvas.frames() / busy.seconds,
                canvas.frames() ? canvas.paintMs() / canvas.frames() : 0.0);
    canvas.hide();

    return 0;
}
