#include "photo_warp.h"

#include <QDebug>

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <cmath>

namespace lumitra::camera {

QImage turnHalf(const QImage &photo)
{
    return photo.mirrored(true, true);
}

namespace {

void setError(QString *error, const QString &text)
{
    if (error)
        *error = text;
    qDebug() << "warp:" << text;
}

} // namespace

// The warp maps P1..P4 onto the 400-pixel square at P1 inside a canvas of
// twice the photo's size and keeps the 650 x 650 square at round(P1 - 125).
// Only that square is computed: the canvas transform is followed by the shift
// to the crop corner, so the result equals cropping the full canvas while the
// work is a fraction of it.
QImage warpPhoto(const QImage &photo, const CalibrationPoints &points, QString *error)
{
    if (photo.isNull()) {
        setError(error, QStringLiteral("no photo"));
        return QImage();
    }
    const QImage rgb = photo.convertToFormat(QImage::Format_RGB888);
    const double x1 = points.p[0].x();
    const double y1 = points.p[0].y();
    const int cropX = int(std::lround(x1 - kCrossMargin));
    const int cropY = int(std::lround(y1 - kCrossMargin));
    const int canvasW = 2 * rgb.width();
    const int canvasH = 2 * rgb.height();
    if (cropX < 0 || cropY < 0 || cropX + kWarpedSize > canvasW || cropY + kWarpedSize > canvasH) {
        setError(error, QStringLiteral("crop %1,%2 650x650 leaves the %3x%4 canvas")
                            .arg(cropX)
                            .arg(cropY)
                            .arg(canvasW)
                            .arg(canvasH));
        return QImage();
    }

    try {
        const cv::Mat source(rgb.height(), rgb.width(), CV_8UC3,
                             const_cast<uchar *>(rgb.constBits()), size_t(rgb.bytesPerLine()));
        const float fx = float(x1);
        const float fy = float(y1);
        const cv::Point2f from[4] = {
            {float(points.p[0].x()), float(points.p[0].y())},
            {float(points.p[1].x()), float(points.p[1].y())},
            {float(points.p[2].x()), float(points.p[2].y())},
            {float(points.p[3].x()), float(points.p[3].y())},
        };
        const cv::Point2f to[4] = {{fx, fy},
                                   {fx + kCrossSquare, fy},
                                   {fx + kCrossSquare, fy + kCrossSquare},
                                   {fx, fy + kCrossSquare}};
        const cv::Mat m = cv::getPerspectiveTransform(from, to);
        const double d = cv::determinant(m);
        if (!std::isfinite(d) || std::abs(d) < 1e-12) {
            setError(error, QStringLiteral("the four points do not span a quadrilateral"));
            return QImage();
        }
        cv::Mat shift = cv::Mat::eye(3, 3, CV_64F);
        shift.at<double>(0, 2) = -cropX;
        shift.at<double>(1, 2) = -cropY;
        const cv::Mat toCrop = shift * m;

        QImage out(kWarpedSize, kWarpedSize, QImage::Format_RGB888);
        cv::Mat target(kWarpedSize, kWarpedSize, CV_8UC3, out.bits(), size_t(out.bytesPerLine()));
        cv::warpPerspective(source, target, toCrop, target.size(), cv::INTER_LINEAR,
                            cv::BORDER_CONSTANT, cv::Scalar(0, 0, 0));
        return out;
    } catch (const cv::Exception &e) {
        setError(error, QString::fromStdString(e.what()));
        return QImage();
    }
}

QRectF photoSceneRect(int width, int height)
{
    const qreal sx = (width - 50) / qreal(kCrossSquare);
    const qreal sy = (height - 50) / qreal(kCrossSquare);
    return QRectF(25 - kCrossMargin * sx, 25 - height - kCrossMargin * sy, kWarpedSize * sx,
                  kWarpedSize * sy);
}

} // namespace lumitra::camera
