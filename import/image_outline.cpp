// Mode 2: Canny edges, black on white.
#include "image_modes.h"

#include <QDebug>
#include <opencv2/imgproc.hpp>

namespace lumitra {

QImage outlineImage(const QImage &image)
{
    if (image.isNull())
        return image;
    // The edge detector reads four 8-bit channels per pixel in B, G, R order; other
    // pixel layouts are brought to 32 bits first.
    QImage copy = image.depth() == 32 ? image : image.convertToFormat(QImage::Format_ARGB32);
    try {
        const cv::Mat bgra(copy.height(), copy.width(), CV_8UC4,
                           const_cast<uchar *>(copy.constBits()), size_t(copy.bytesPerLine()));
        cv::Mat grey, edges;
        cv::cvtColor(bgra, grey, cv::COLOR_BGR2GRAY);
        cv::Canny(grey, edges, 100.0, 200.0, 3, false);

        QImage out(edges.cols, edges.rows, QImage::Format_Grayscale8);
        for (int y = 0; y < edges.rows; ++y) {
            const uchar *src = edges.ptr<uchar>(y);
            uchar *dst = out.scanLine(y);
            for (int x = 0; x < edges.cols; ++x)
                dst[x] = src[x] <= 128 ? 255 : 0;
        }
        return out;
    } catch (const cv::Exception &e) {
        qDebug() << "outline: opencv" << e.what();
        return image.copy();
    }
}

} // namespace lumitra
