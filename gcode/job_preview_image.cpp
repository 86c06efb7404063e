#include "job_preview_image.h"

#include "grbl_time_estimator.h"

#include <QPainter>
#include <algorithm>

JobPreview renderJobPreview(QIODevice &job, const QRectF &area, double pixelsPerMm, int maxSide,
                            double maxPower, const GrblMachineSettings *machine)
{
    JobPreview result;
    if (area.width() <= 0 || area.height() <= 0)
        return result;
    const double scale =
        std::min(pixelsPerMm, double(maxSide) / std::max(area.width(), area.height()));
    const QSize size(qMax(1, qRound(area.width() * scale)), qMax(1, qRound(area.height() * scale)));
    // Travel and burning go to separate layers so that a laser-off pass along a
    // burnt line (raster overscan, coasting) never hides the burn.
    QImage travelLayer(size, QImage::Format_ARGB32_Premultiplied);
    travelLayer.fill(Qt::transparent);
    QImage burnLayer(size, QImage::Format_ARGB32_Premultiplied);
    burnLayer.fill(Qt::transparent);

    // Machine coordinates to pixels, Y up.
    QTransform toPixels;
    toPixels.translate(0, size.height());
    toPixels.scale(scale, -scale);
    toPixels.translate(-area.left(), -area.top());
    QPainter travelPainter(&travelLayer);
    travelPainter.setTransform(toPixels);
    QPainter burnPainter(&burnLayer);
    burnPainter.setTransform(toPixels);

    QPen travel(QColor(120, 170, 255), 0);
    travel.setCosmetic(true);
    travelPainter.setPen(travel);
    QPen burn(Qt::black, 0);
    burn.setCosmetic(true);
    double penPower = -1.0;

    JobSimulator simulator;
    GrblTimeEstimator estimator(machine ? *machine : GrblMachineSettings());
    auto draw = [&](const JobSimulator::Move &m) {
        if (!m.burning) {
            travelPainter.drawLine(m.from, m.to);
            return;
        }
        if (m.power != penPower) {
            penPower = m.power;
            const int level = 255 - int(255 * std::clamp(m.power / maxPower, 0.0, 1.0));
            burn.setColor(QColor(level, level, level));
            burnPainter.setPen(burn);
        }
        burnPainter.drawLine(m.from, m.to);
    };
    result.ok = job.isReadable();
    QString line;
    while (result.ok && readJobLine(job, &line)) {
        simulator.feedLine(line, draw);
        if (machine)
            estimator.feedLine(line);
    }
    if (machine)
        result.plannedSeconds = estimator.seconds();
    travelPainter.end();
    burnPainter.end();

    result.image = QImage(size, QImage::Format_RGB32);
    result.image.fill(Qt::white);
    QPainter compose(&result.image);
    compose.drawImage(0, 0, travelLayer);
    compose.drawImage(0, 0, burnLayer);
    compose.end();
    result.summary = simulator.summary();
    return result;
}
