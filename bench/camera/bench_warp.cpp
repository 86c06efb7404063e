// Straightening a camera photo: median time of warpPhoto on a 1600 x 1200
// synthetic calibration photo (the window does this once per photo on the
// GUI thread), and of the turn by 180° that precedes it.
//
//   bench_warp [runs]    (default 21)

#include "photo_warp.h"
#include "synthetic_photo.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTextStream>

#include <algorithm>
#include <vector>

using namespace lumitra::camera;

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    const int runs = argc > 1 ? qMax(1, QByteArray(argv[1]).toInt()) : 21;
    QTextStream out(stdout);

    const SyntheticPhoto photo = makeSyntheticPhoto(QSize(1600, 1200));
    const QImage received = turnHalf(QImage::fromData(photo.jpeg));
    const CalibrationPoints points =
        orderClicks({photo.centres[0], photo.centres[1], photo.centres[2], photo.centres[3]});

    std::vector<double> warpMs, turnMs;
    QImage result;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        const QImage turned = turnHalf(received);
        turnMs.push_back(timer.nsecsElapsed() / 1e6);
        timer.restart();
        QString error;
        result = warpPhoto(turned, points, &error);
        warpMs.push_back(timer.nsecsElapsed() / 1e6);
        if (result.isNull()) {
            out << "warp failed: " << error << '\n';
            return 1;
        }
    }
    auto median = [](std::vector<double> v) {
        std::sort(v.begin(), v.end());
        return v[v.size() / 2];
    };
    out << "photo 1600x1200 -> " << result.width() << 'x' << result.height() << ", " << runs
        << " runs\n";
    out << "turn by 180: median " << QString::number(median(turnMs), 'f', 2) << " ms\n";
    out << "warp:        median " << QString::number(median(warpMs), 'f', 2)
        << " ms (target < 50 ms)\n";
    return 0;
}
