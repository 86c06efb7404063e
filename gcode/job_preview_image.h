#pragma once

#include "grbl_machine_settings.h"
#include "job_simulator.h"

#include <QImage>
#include <QRectF>

class QIODevice;

// Draws a job onto a picture of the work area: burning moves dark, with the
// laser power as their strength; travel moves light. The picture has a fixed
// size whatever the job's length, so a preview of a huge raster job costs only
// time, never memory.
struct JobPreview
{
    QImage image; // machine Y up (row 0 is the far edge)
    JobSimulator::Summary summary;
    // Seconds as the controller plans the job (acceleration and corners
    // included); negative when no machine settings were given.
    double plannedSeconds = -1.0;
    bool ok = false;
};

// `area` is the machine rectangle to show (mm); `pixelsPerMm` its scale,
// limited so that the longer side is at most `maxSide` pixels. `maxPower` is
// the S value of full power. With `machine` the job is also timed with the
// controller's own motion planning.
JobPreview renderJobPreview(QIODevice &job, const QRectF &area, double pixelsPerMm = 4.0,
                            int maxSide = 2400, double maxPower = 1000.0,
                            const GrblMachineSettings *machine = nullptr);
