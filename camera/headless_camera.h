#pragma once

#include <QString>

class QTextStream;

// Takes a straightened photo of the work area without a window: fetches
// "/cam.jpg" from the board (GetPixmapThread, at most `maxAttempts` tries so
// that scripts end), reads the calibration file from the card, turns the
// photo by 180°, warps it with the calibration and writes the 650 x 650
// result to `output` (format from the file name, PNG by default).
//
// `hostPort` is "HOST" or "HOST:PORT". Returns CameraDone, or writes one line
// to `err` and returns another CameraExit. Needs a QCoreApplication; blocks
// in local event loops.
enum CameraExit {
    CameraDone = 0,
    CameraBadOutput = 2,     // the photo file cannot be written
    CameraNoPhoto = 3,       // no photo from the camera after every attempt
    CameraNoCalibration = 4, // the card holds no calibration
    CameraNoWarp = 5,        // the calibration does not fit the photo
};

struct HeadlessCameraOptions
{
    int maxAttempts = 10;
    int retryDelayMs = 500;
    int attemptTimeoutMs = 5000;
    int calibrationTimeoutMs = 5000;
};

int takeCameraPhotoHeadless(const QString &hostPort, const QString &output, QTextStream &err,
                            const HeadlessCameraOptions &options = {});
