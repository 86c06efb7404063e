// Prints how long the heavy import operations take, best of three runs each:
//   dithering a 4000 x 4000 image            (target: under 0.5 s)
//   importing an SVG with 20 MB of path data (target: under 2 s; file made here)
//   tracing a 2000 x 2000 black-and-white image (target: under 1 s)
// Usage: bench_import [folder for the generated SVG, default: the temporary folder]
#include "bitmap_trace.h"
#include "image_modes.h"
#include "import_items.h"
#include "jk_tu_yuan.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QRandomGenerator>
#include <cstdio>
#include <ctime>
#include <functional>
#include <optional>

namespace {

double threadCpuSeconds()
{
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return double(ts.tv_sec) + ts.tv_nsec / 1e9;
}

// Best wall-clock time of three runs; *cpu gets the processor time of that run (which a
// busy machine inflates less than the wall clock).
double bestOfThree(const std::function<void()> &run, double *cpu)
{
    double best = 1e9;
    for (int i = 0; i < 3; ++i) {
        QElapsedTimer t;
        t.start();
        const double c0 = threadCpuSeconds();
        run();
        const double wall = t.nsecsElapsed() / 1e9;
        if (wall < best) {
            best = wall;
            *cpu = threadCpuSeconds() - c0;
        }
    }
    return best;
}

QImage photoLike(int w, int h)
{
    QImage img(w, h, QImage::Format_ARGB32);
    QRandomGenerator rng(42);
    for (int y = 0; y < h; ++y) {
        QRgb *line = reinterpret_cast<QRgb *>(img.scanLine(y));
        for (int x = 0; x < w; ++x) {
            const int v = (x * 255 / w + y * 255 / h) / 2;
            const int n = int(rng.bounded(40)) - 20;
            line[x] =
                qRgba(qBound(0, v + n, 255), qBound(0, 255 - v + n, 255), qBound(0, v, 255), 255);
        }
    }
    return img;
}

QImage blobs(int w, int h)
{
    QImage img(w, h, QImage::Format_ARGB32);
    img.fill(Qt::white);
    QPainter p(&img);
    p.setPen(Qt::NoPen);
    QRandomGenerator rng(7);
    for (int i = 0; i < 400; ++i) {
        p.setBrush(i % 5 == 4 ? Qt::white : Qt::black);
        const int r = 5 + int(rng.bounded(60));
        p.drawEllipse(QPoint(int(rng.bounded(w)), int(rng.bounded(h))), r, r * 2 / 3);
    }
    p.end();
    return lumitra::thresholdImage(img);
}

// An SVG whose path data adds up to `bytes`, written the way drawing programs write it:
// relative moves, lines, curves and arcs with decimals, in groups with transforms.
qint64 writeBigSvg(const QString &path, qint64 bytes)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly))
        return 0;
    f.write("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"300mm\" height=\"300mm\" "
            "viewBox=\"0 0 300 300\">\n");
    QRandomGenerator rng(3);
    qint64 written = 0;
    int group = 0;
    while (written < bytes) {
        f.write(QStringLiteral("<g transform=\"translate(%1 %2)\">\n")
                    .arg(group % 10 * 25)
                    .arg(group / 10 % 10 * 25)
                    .toUtf8());
        for (int k = 0; k < 20 && written < bytes; ++k) {
            QByteArray d = "M" + QByteArray::number(rng.bounded(20.0), 'f', 3) + ","
                           + QByteArray::number(rng.bounded(20.0), 'f', 3);
            while (d.size() < 50000) {
                const double a = rng.bounded(2.0) - 1, b = rng.bounded(2.0) - 1;
                switch (rng.bounded(4)) {
                case 0:
                    d += "l" + QByteArray::number(a, 'f', 3) + "," + QByteArray::number(b, 'f', 3);
                    break;
                case 1:
                    d += "c" + QByteArray::number(a / 2, 'f', 3) + ","
                         + QByteArray::number(b, 'f', 3) + " " + QByteArray::number(a, 'f', 3) + ","
                         + QByteArray::number(-b, 'f', 3) + " "
                         + QByteArray::number(a * 1.5, 'f', 3) + ","
                         + QByteArray::number(b / 3, 'f', 3);
                    break;
                case 2:
                    d += "q" + QByteArray::number(a, 'f', 3) + "," + QByteArray::number(b, 'f', 3)
                         + " " + QByteArray::number(b, 'f', 3) + ","
                         + QByteArray::number(a, 'f', 3);
                    break;
                default:
                    d += "a1.5,1 15 0 1 " + QByteArray::number(a, 'f', 3) + ","
                         + QByteArray::number(b, 'f', 3);
                    break;
                }
            }
            d += "z";
            f.write("<path style=\"fill:none;stroke:#000\" d=\"" + d + "\"/>\n");
            written += d.size();
        }
        f.write("</g>\n");
        ++group;
    }
    f.write("</svg>\n");
    return written;
}

int outlineCount(const std::optional<QPainterPath> &path)
{
    if (!path)
        return -1;
    int n = 0;
    for (int i = 0; i < path->elementCount(); ++i)
        n += path->elementAt(i).isMoveTo();
    return n;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::tempPath();

    const QImage photo = photoLike(4000, 4000);
    QImage dithered;
    double cpu = 0;
    const double dither = bestOfThree([&] { dithered = lumitra::ditherImage(photo); }, &cpu);
    std::printf("dither 4000x4000: %.3f s, cpu %.3f s (target < 0.5 s)\n", dither, cpu);

    const QString svgPath = QDir(folder).filePath(QStringLiteral("bench_import_20mb.svg"));
    const qint64 pathBytes = writeBigSvg(svgPath, 20 * 1000 * 1000);
    int shapes = 0, elements = 0;
    const double svg = bestOfThree(
        [&] {
            const QList<Jk_tu_yuan *> items = lumitra::importSvgItems(svgPath, nullptr);
            shapes = items.size();
            elements = 0;
            for (const Jk_tu_yuan *item : items)
                elements += item->path.elementCount();
            qDeleteAll(items);
        },
        &cpu);
    std::printf("svg import %.1f MB path data (%d paths, %d elements): %.3f s, cpu %.3f s "
                "(target < 2 s)\n",
                pathBytes / 1e6, shapes, elements, svg, cpu);
    QFile::remove(svgPath);

    const QImage bw = blobs(2000, 2000);
    std::optional<QPainterPath> traced;
    const double trace =
        bestOfThree([&] { traced = lumitra::traceBitmap(bw, 0.254, QPointF()); }, &cpu);
    int subpaths = outlineCount(traced);
    std::printf("trace 2000x2000 shapes (%d outlines): %.3f s, cpu %.3f s (target < 1 s)\n",
                subpaths, trace, cpu);

    // The hardest black-and-white input: a dithered photo, nearly every pixel an edge.
    const QImage speckle = lumitra::ditherImage(photoLike(2000, 2000));
    const double traceSpeckle =
        bestOfThree([&] { traced = lumitra::traceBitmap(speckle, 0.254, QPointF()); }, &cpu);
    subpaths = outlineCount(traced);
    std::printf("trace 2000x2000 dithered photo (%d outlines): %.3f s, cpu %.3f s\n", subpaths,
                traceSpeckle, cpu);
    return 0;
}
