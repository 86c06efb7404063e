// Mode 1: single-pass error diffusion over a yellow background.
//
// The per-pixel definition reads each pixel's grey level, writes neighbours back as grey
// pixels and reads them again later. Since the grey level of a grey pixel (L, L, L) is L
// again, the whole pass can run on integer grey levels: two rows are kept (the row being
// visited and the one below), every share is clamped as it is added, exactly as the
// neighbour would be clamped when written back.
#include "image_modes.h"

#include <QPainter>
#include <vector>

namespace lumitra {

namespace {

inline int clampLevel(int v)
{
    return v < 0 ? 0 : (v > 255 ? 255 : v);
}

void loadGreyRow(const QImage &img, int y, std::vector<int> &row)
{
    const QRgb *p = reinterpret_cast<const QRgb *>(img.constScanLine(y));
    for (int x = 0, w = img.width(); x < w; ++x)
        row[size_t(x)] = greyLevel(qRed(p[x]), qGreen(p[x]), qBlue(p[x]));
}

// True for a 32-bit image with alpha whose every pixel is fully opaque.
bool isOpaque32(const QImage &img)
{
    const QImage::Format f = img.format();
    if (f != QImage::Format_ARGB32 && f != QImage::Format_ARGB32_Premultiplied
        && f != QImage::Format_RGBA8888 && f != QImage::Format_RGBA8888_Premultiplied)
        return false;
    // The alpha byte is the fourth of each pixel in both byte orders on little-endian
    // machines; read it through the 32-bit value to stay independent of that.
    const bool rgbaOrder =
        f == QImage::Format_RGBA8888 || f == QImage::Format_RGBA8888_Premultiplied;
    for (int y = 0; y < img.height(); ++y) {
        const uchar *p = img.constScanLine(y);
        for (int x = 0; x < img.width(); ++x, p += 4) {
            const int alpha = rgbaOrder ? p[3] : qAlpha(*reinterpret_cast<const QRgb *>(p));
            if (alpha != 255)
                return false;
        }
    }
    return true;
}

} // namespace

QImage ditherImage(const QImage &image)
{
    if (image.isNull())
        return image;
    const int w = image.width();
    const int h = image.height();

    // Transparent source areas dither as the yellow background (grey 215). Drawing an
    // opaque image over it leaves just the image, so then a conversion does the same.
    QImage work;
    if (!image.hasAlphaChannel() || isOpaque32(image)) {
        work = image.convertToFormat(QImage::Format_RGB32);
    } else {
        work = QImage(image.size(), QImage::Format_RGB32);
        work.fill(QColor(Qt::yellow));
        QPainter painter(&work);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawImage(0, 0, image);
    }

    std::vector<int> current(static_cast<size_t>(w));
    std::vector<int> below(static_cast<size_t>(w));
    loadGreyRow(work, 0, current);
    for (int y = 0; y < h; ++y) {
        const bool hasBelow = y + 1 < h;
        if (hasBelow)
            loadGreyRow(work, y + 1, below);
        QRgb *out = reinterpret_cast<QRgb *>(work.scanLine(y));
        for (int x = 0; x < w; ++x) {
            const int g = current[size_t(x)];
            const int level = g < 128 ? 0 : 255; // sum < 4096 exactly when grey < 128
            out[x] = level ? 0xffffffffu : 0xff000000u;
            const int e = g - level;
            if (x + 1 < w)
                current[size_t(x + 1)] = clampLevel(current[size_t(x + 1)] + e * 7 / 16);
            if (hasBelow) {
                if (x > 0)
                    below[size_t(x - 1)] = clampLevel(below[size_t(x - 1)] + e * 3 / 16);
                below[size_t(x)] = clampLevel(below[size_t(x)] + e * 5 / 16);
                if (x + 1 < w)
                    below[size_t(x + 1)] = clampLevel(below[size_t(x + 1)] + e * 1 / 16);
            }
        }
        current.swap(below);
    }
    return work;
}

} // namespace lumitra
