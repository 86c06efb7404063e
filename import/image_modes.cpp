#include "image_modes.h"

namespace lumitra {

namespace {

constexpr quint32 kOpaqueWhite = 0xffffffffu;

bool isRgbaByteOrder(QImage::Format f)
{
    return f == QImage::Format_RGBA8888 || f == QImage::Format_RGBA8888_Premultiplied
           || f == QImage::Format_RGBX8888;
}

// The formats whose pixels the scan-line loops below read directly.
bool isDirect32(QImage::Format f)
{
    return f == QImage::Format_RGB32 || f == QImage::Format_ARGB32
           || f == QImage::Format_ARGB32_Premultiplied || isRgbaByteOrder(f);
}

// The pixel as QImage::pixel() gives it: 0xAARRGGBB, premultiplied formats as stored.
QRgb readPixel(const uchar *p, QImage::Format f)
{
    QRgb c;
    if (isRgbaByteOrder(f))
        c = qRgba(p[0], p[1], p[2], f == QImage::Format_RGBX8888 ? 255 : p[3]);
    else
        c = *reinterpret_cast<const quint32 *>(p);
    if (f == QImage::Format_RGB32)
        c |= 0xff000000u;
    return c;
}

// Stores an opaque colour as QImage::setPixel() would.
void writeOpaque(uchar *p, QImage::Format f, int r, int g, int b)
{
    if (isRgbaByteOrder(f)) {
        p[0] = uchar(r);
        p[1] = uchar(g);
        p[2] = uchar(b);
        p[3] = 255;
    } else {
        *reinterpret_cast<quint32 *>(p) = qRgb(r, g, b);
    }
}

} // namespace

QImage thresholdImage(const QImage &image)
{
    if (image.isNull())
        return image;
    QImage out = image.convertToFormat(QImage::Format_RGBA8888);
    const int w = out.width();
    for (int y = 0; y < out.height(); ++y) {
        uchar *p = out.scanLine(y);
        for (int x = 0; x < w; ++x, p += 4) {
            if (p[3] == 0) {
                p[0] = p[1] = p[2] = 0;
            } else {
                const uchar v = isBlackSum(p[0], p[1], p[2]) ? 0 : 255;
                p[0] = p[1] = p[2] = v;
                p[3] = 255;
            }
        }
    }
    return out;
}

QImage greyscaleImage(const QImage &image)
{
    if (image.isNull())
        return image;
    if (!image.hasAlphaChannel())
        return image.convertToFormat(QImage::Format_Grayscale8);

    // Fully transparent pixels become opaque white before the conversion.
    QImage work = isDirect32(image.format()) ? image : image.convertToFormat(QImage::Format_ARGB32);
    const QImage::Format f = work.format();
    const int w = work.width();
    for (int y = 0; y < work.height(); ++y) {
        uchar *p = work.scanLine(y);
        for (int x = 0; x < w; ++x, p += 4) {
            const int alpha = isRgbaByteOrder(f) ? p[3] : qAlpha(*reinterpret_cast<quint32 *>(p));
            if (alpha == 0)
                *reinterpret_cast<quint32 *>(p) = kOpaqueWhite;
        }
    }
    return work.convertToFormat(QImage::Format_Grayscale8);
}

QImage negativeImage(const QImage &image)
{
    if (image.isNull())
        return image;
    if (image.format() == QImage::Format_Grayscale8) {
        QImage out = image;
        for (int y = 0; y < out.height(); ++y) {
            uchar *p = out.scanLine(y);
            for (int x = 0; x < out.width(); ++x)
                p[x] = uchar(255 - p[x]);
        }
        return out;
    }
    QImage out = isDirect32(image.format()) ? image : image.convertToFormat(QImage::Format_ARGB32);
    const QImage::Format f = out.format();
    const int w = out.width();
    for (int y = 0; y < out.height(); ++y) {
        uchar *p = out.scanLine(y);
        for (int x = 0; x < w; ++x, p += 4) {
            const QRgb c = readPixel(p, f);
            writeOpaque(p, f, 255 - qRed(c), 255 - qGreen(c), 255 - qBlue(c));
        }
    }
    return out;
}

QImage applyImageMode(const QImage &image, int mode)
{
    switch (mode) {
    case 0:
        return thresholdImage(image);
    case 1:
        return ditherImage(image);
    case 2:
        return outlineImage(image);
    case 3:
        return greyscaleImage(image);
    case 4:
        return negativeImage(image);
    default:
        return image.copy();
    }
}

} // namespace lumitra
