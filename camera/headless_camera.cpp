#include "headless_camera.h"

#include "calibration_store.h"
#include "get_pixmap_thread.h"
#include "photo_warp.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QImageWriter>
#include <QTextStream>

namespace {

struct Fetched
{
    QImage image;
    QString error;
};

Fetched fetchPhoto(const QString &hostPort, const HeadlessCameraOptions &options)
{
    Fetched result;
    GetPixmapThread fetch(hostPort);
    fetch.setMaxAttempts(qMax(1, options.maxAttempts));
    fetch.setRetryDelayMs(options.retryDelayMs);
    fetch.setAttemptTimeoutMs(options.attemptTimeoutMs);
    QEventLoop loop;
    QObject::connect(&fetch, &GetPixmapThread::imageReady,
                     [&result](const QImage &image) { result.image = image; });
    QObject::connect(&fetch, &GetPixmapThread::gaveUp,
                     [&result](const QString &error) { result.error = error; });
    QObject::connect(&fetch, &GetPixmapThread::finished, &loop, &QEventLoop::quit);
    fetch.start();
    loop.exec();
    return result;
}

} // namespace

int takeCameraPhotoHeadless(const QString &hostPort, const QString &output, QTextStream &err,
                            const HeadlessCameraOptions &options)
{
    const Fetched photo = fetchPhoto(hostPort, options);
    if (photo.image.isNull()) {
        err << "no photo from the camera at " << hostPort << ": " << photo.error << '\n';
        return CameraNoPhoto;
    }

    CalibrationStore store;
    store.setTimeoutMs(options.calibrationTimeoutMs);
    store.setState(1);
    QString message;
    if (!store.load(hostPort, false, &message) || !store.points().calibrated()) {
        err << "the board at " << hostPort << " holds no camera calibration ("
            << lumitra::camera::calibrationFileName() << "); calibrate the camera first\n";
        return CameraNoCalibration;
    }

    QString error;
    const QImage straight =
        lumitra::camera::warpPhoto(lumitra::camera::turnHalf(photo.image), store.points(), &error);
    if (straight.isNull()) {
        err << "the calibration does not fit the photo: " << error << '\n';
        return CameraNoWarp;
    }
    QImageWriter writer(output);
    const QByteArray suffix = QFileInfo(output).suffix().toLower().toLatin1();
    if (!QImageWriter::supportedImageFormats().contains(suffix))
        writer.setFormat("png");
    if (!writer.write(straight)) {
        err << "cannot write " << output << ": " << writer.errorString() << '\n';
        return CameraBadOutput;
    }
    return CameraDone;
}
