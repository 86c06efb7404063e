// Generation speed and peak memory through the application's own generator.
//
//   bench_gcode            runs every case, each in a fresh process
//   bench_gcode CASE [OUT] runs one case: fill, line, dither, dither-natural
//                          or grey
//   --plain-raster         (with either) bitmap layers in two-decimal words,
//                          as vectors, to compare against
//
// Cases: 5,000 random circles (radius 2-20 mm) over the 400 x 400 mm work area
// in fill mode at 0.1 mm; 50,000 random circles in line mode; a 4000 x 4000
// pixel photo in dither mode at 0.1 mm, fitted to the work area (the image
// mode is part of the time); the same photo at its imported size, 1016 mm;
// the photo fitted in greyscale mode at 0.1 mm. Raster cases also print the
// bytes of the raster, its burnt runs (moves that burn, found by simulating
// the job), bytes per burnt run, bytes per move line (burns, coasts and
// travels alike), and the bytes per second the raster needs at its feed
// against a serial link's 11,520.
// Each prints the seconds spent in the generator (wall clock, and the CPU time
// of the process, which other work on the machine disturbs less), MB of G-code
// per second and the process's peak resident memory (VmHWM).
#include "jk_gcode.h"
#include "jk_tu_yuan.h"
#include "job_simulator.h"
#include "layer_list.h"
#include "owned_items.h"
#include "peak_memory.h"
#include "program_state.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPainterPath>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTransform>
#include <cmath>
#include <ctime>
#include <memory>
#include <vector>

namespace {

constexpr double kWorkArea = 400.0;

struct Design
{
    LayerList layers;
    lumitra::OwnedItems items;
};

void randomCircles(Design &d, int count, int mode)
{
    auto *layer = new TuCeng(0, false);
    layer->moshi = mode;
    layer->jianju = 0.1;
    d.layers.append(layer);
    QRandomGenerator rng(1234);
    for (int i = 0; i < count; ++i) {
        const double r = 2 + rng.generateDouble() * 18;
        const QPointF c(r + rng.generateDouble() * (kWorkArea - 2 * r),
                        -r - rng.generateDouble() * (kWorkArea - 2 * r));
        QPainterPath p;
        p.addEllipse(c, r, r);
        d.items.take(new Jk_tu_yuan(p, 1))->layer_id = 0;
    }
}

// A photo-like grey picture: a soft face-like blob, gradients, waves and
// grain, as a file loader hands it over (32-bit). Built from per-row and
// per-column tables so that making it takes little of the run.
QImage syntheticPhoto(int size)
{
    QImage img(size, size, QImage::Format_ARGB32);
    QRandomGenerator rng(99);
    const size_t n = size_t(size);
    std::vector<double> waveU(n), blobU(n), sinU(n), waveV(n), blobV(n), cosV(n);
    for (int i = 0; i < size; ++i) {
        const double t = double(i) / size;
        sinU[size_t(i)] = std::sin(t * 9);
        cosV[size_t(i)] = std::cos(t * 7);
        blobU[size_t(i)] = std::exp(-(t - 0.5) * (t - 0.5) * 12);
        blobV[size_t(i)] = std::exp(-(t - 0.45) * (t - 0.45) * 12);
        waveU[size_t(i)] = std::sin(t * 23);
        waveV[size_t(i)] = std::cos(t * 23);
    }
    std::vector<int> grain(4096);
    for (int &g : grain)
        g = int(rng.bounded(30)) - 15;
    for (int y = 0; y < size; ++y) {
        QRgb *line = reinterpret_cast<QRgb *>(img.scanLine(y));
        const double v = double(y) / size;
        for (int x = 0; x < size; ++x) {
            const double face = blobU[size_t(x)] * blobV[size_t(y)];
            const double wave = waveU[size_t(x)] * waveV[size_t(y)];
            const double g = 40 + 170 * v + 90 * face * sinU[size_t(x)] * cosV[size_t(y)]
                             + 60 * wave * (1 - face) + grain[size_t((x * 7 + y * 13) % 4096)];
            const int level = qBound(0, int(g), 255);
            line[x] = qRgb(level, level, level);
        }
    }
    return img;
}

// The photo on layer 0 in dither mode at 0.1 mm. Fitted to the work area (a
// pixel of 0.1 mm, one scan line per pixel row) unless `natural`, where it
// keeps the 0.254 mm pixels of an imported bitmap (1016 mm square, 2.54 scan
// lines per pixel row).
void photo(Design &d, bool natural, int mode = DitherMode)
{
    auto *layer = new TuCeng(0, true);
    layer->moshi = mode;
    layer->jianju = 0.1;
    d.layers.append(layer);
    Jk_tu_yuan *item = d.items.take(new Jk_tu_yuan(syntheticPhoto(4000)));
    item->layer_id = 0;
    item->setPos(0, -kWorkArea);
    if (!natural) {
        const double fit = kWorkArea / (4000 * Jk_tu_yuan::kPixelMm);
        item->setTransform(QTransform::fromScale(fit, fit));
    }
}

// Burning moves of a job file, as the controller would run it.
struct RunCount
{
    qint64 burnt = 0; // moves that burn
    qint64 moves = 0; // every move: burns, coasts and travels
};

RunCount countRuns(const QString &path)
{
    QFile file(path);
    RunCount count;
    if (!file.open(QIODevice::ReadOnly))
        return count;
    JobSimulator sim;
    sim.run(file, [&count](const JobSimulator::Move &m) {
        count.burnt += m.burning;
        ++count.moves;
    });
    return count;
}

int runCase(const QString &name, const QString &output, bool plainRaster)
{
    Design d;
    if (name == QLatin1String("fill"))
        randomCircles(d, 5000, FillMode);
    else if (name == QLatin1String("line"))
        randomCircles(d, 50000, LineMode);
    else if (name == QLatin1String("dither"))
        photo(d, false);
    else if (name == QLatin1String("dither-natural"))
        photo(d, true);
    else if (name == QLatin1String("grey"))
        photo(d, false, GreyscaleMode);
    else
        return 2;
    Jk_gcode generator;
    generator.setLayerList(&d.layers);
    generator.setRasterWords(!plainRaster);
    lumitra::RotarySettings noRotary;
    generator.setRotarySettings(noRotary);
    QElapsedTimer timer;
    timer.start();
    const std::clock_t cpuStart = std::clock();
    if (!generator.kai_shi_zhuan_huan(d.items.items(), output)) {
        QTextStream(stderr) << name << ": " << generator.lastError() << '\n';
        return 1;
    }
    const double seconds = timer.nsecsElapsed() / 1e9;
    const double cpuSeconds = double(std::clock() - cpuStart) / CLOCKS_PER_SEC;
    const double megabytes = generator.lastJobSize() / 1e6;
    QTextStream(stdout) << QStringLiteral(
                               "%1: %2 s (%3 s CPU), %4 MB of G-code, %5 MB/s, peak memory %6 MB\n")
                               .arg(name, -6)
                               .arg(seconds, 0, 'f', 3)
                               .arg(cpuSeconds, 0, 'f', 3)
                               .arg(megabytes, 0, 'f', 1)
                               .arg(megabytes / seconds, 0, 'f', 1)
                               .arg(peakMemoryKb() / 1024.0, 0, 'f', 1);
    for (const Jk_gcode::RasterSection &section : generator.lastRasterSections()) {
        const RunCount count = countRuns(output);
        const qint64 runs = count.burnt;
        const lumitra::WireLoad load =
            lumitra::wireLoad(double(section.bytes), section.feedLength, section.feed);
        QTextStream(stdout) << QStringLiteral("%1  raster%2: %3 bytes, %4 burnt runs, %5 bytes "
                                              "per run, %9 bytes per move line, %6 bytes/s at "
                                              "F%7 (link 11520; fastest F%8)\n")
                                   .arg(QString(), -6)
                                   .arg(plainRaster ? QStringLiteral(" (plain)") : QString())
                                   .arg(section.bytes)
                                   .arg(runs)
                                   .arg(runs > 0 ? double(section.bytes) / runs : 0.0, 0, 'f', 2)
                                   .arg(load.bytesPerSecond, 0, 'f', 0)
                                   .arg(section.feed)
                                   .arg(load.fastestFeed)
                                   .arg(count.moves > 0 ? double(section.bytes) / count.moves : 0.0,
                                        0, 'f', 2);
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    qSetMessagePattern(QStringLiteral("%{if-critical}%{message}%{endif}"));
    QStringList args = app.arguments();
    const bool plainRaster = args.removeAll(QStringLiteral("--plain-raster")) > 0;
    QTemporaryDir dir;
    if (args.size() >= 2) {
        const QString output = args.size() >= 3 ? args[2] : dir.filePath(QStringLiteral("job.nc"));
        return runCase(args[1], output, plainRaster);
    }
    int failures = 0;
    for (const QString &name :
         {QStringLiteral("fill"), QStringLiteral("line"), QStringLiteral("dither"),
          QStringLiteral("dither-natural"), QStringLiteral("grey")}) {
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedChannels);
        QStringList childArgs{name, dir.filePath(name + QStringLiteral(".nc"))};
        if (plainRaster)
            childArgs << QStringLiteral("--plain-raster");
        child.start(app.applicationFilePath(), childArgs);
        child.waitForFinished(-1);
        failures += child.exitCode() != 0;
    }
    return failures;
}
