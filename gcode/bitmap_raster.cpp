#include "bitmap_raster.h"

#include "image_modes.h"
#include "jk_tu_yuan.h"
#include "tu_ceng.h"

namespace lumitra {

namespace {

// Calls `levelOf(r, g, b, a)` for every pixel and stores the result.
template<typename LevelOf> LevelMap mapPixels(const QImage &image, LevelOf levelOf)
{
    LevelMap map;
    if (image.isNull())
        return map;
    map.width = image.width();
    map.height = image.height();
    map.levels.resize(size_t(map.width) * size_t(map.height));
    unsigned char *out = map.levels.data();
    const int w = map.width;

    switch (image.format()) {
    case QImage::Format_Grayscale8:
        for (int y = 0; y < map.height; ++y) {
            const uchar *line = image.constScanLine(y);
            for (int x = 0; x < w; ++x)
                *out++ = levelOf(line[x], line[x], line[x], 255);
        }
        return map;
    case QImage::Format_RGBA8888:
        for (int y = 0; y < map.height; ++y) {
            const uchar *p = image.constScanLine(y);
            for (int x = 0; x < w; ++x, p += 4)
                *out++ = levelOf(p[0], p[1], p[2], p[3]);
        }
        return map;
    default:
        break;
    }
    // 32-bit formats are read directly; the rest through one conversion.
    const bool direct =
        image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32;
    const QImage argb = direct ? image : image.convertToFormat(QImage::Format_ARGB32);
    const bool opaque = argb.format() == QImage::Format_RGB32;
    for (int y = 0; y < map.height; ++y) {
        const QRgb *line = reinterpret_cast<const QRgb *>(argb.constScanLine(y));
        for (int x = 0; x < w; ++x) {
            const QRgb c = line[x];
            *out++ = levelOf(qRed(c), qGreen(c), qBlue(c), opaque ? 255 : qAlpha(c));
        }
    }
    return map;
}

} // namespace

LevelMap binaryLevels(const QImage &image)
{
    return mapPixels(image, [](int r, int g, int b, int a) -> unsigned char {
        return (a != 0 && isBlackSum(r, g, b)) ? 0 : LevelMap::kWhite;
    });
}

LevelMap greyLevels(const QImage &image)
{
    return mapPixels(image, [](int r, int g, int b, int a) -> unsigned char {
        return a == 0 ? LevelMap::kWhite : (unsigned char)greyLevel(r, g, b);
    });
}

LevelMap levelsForMode(const QImage &source, int mode)
{
    switch (mode) {
    case ThresholdMode:
    case DitherMode:
    case OutlineMode:
    case NegativeMode:
        return binaryLevels(applyImageMode(source, mode));
    case GreyscaleMode:
        return greyLevels(applyImageMode(source, mode));
    default:
        return LevelMap();
    }
}

QTransform pixelToScene(const Jk_tu_yuan &item, const QSize &imageSize)
{
    const QRectF r = item.path.boundingRect();
    if (imageSize.isEmpty())
        return QTransform();
    const QTransform pixelToItem(r.width() / imageSize.width(), 0, 0,
                                 r.height() / imageSize.height(), r.x(), r.y());
    return pixelToItem * item.sceneTransform();
}

void mergeEqualOutput(LevelMap &map, const std::array<int, 256> &table)
{
    unsigned char to[256];
    for (int grey = 0; grey < 256; ++grey) {
        int first = grey;
        while (first > 0 && table[size_t(first - 1)] == table[size_t(grey)])
            --first;
        to[grey] = grey == LevelMap::kWhite ? LevelMap::kWhite : (unsigned char)first;
    }
    for (unsigned char &level : map.levels)
        level = to[level];
}

void engraveBitmapItem(const Jk_tu_yuan &item, const TuCeng &layer, ToolpathSink &sink,
                       const PowerSteps *steps)
{
    const QImage &source = item.source_image.isNull() ? item.display_image : item.source_image;
    LevelMap levels = levelsForMode(source, layer.moshi);
    if (levels.isEmpty())
        return;
    if (steps && layer.moshi == GreyscaleMode)
        mergeEqualOutput(levels, greyPowerTable(layer.gonglv * 10.0, *steps));
    RasterSettings settings;
    settings.spacing = layer.jianju;
    settings.overscan = layer.saomiao;
    settings.oneDirection = layer.danxiang;
    settings.greyPower = layer.moshi == GreyscaleMode;
    engraveRaster(levels, pixelToScene(item, QSize(levels.width, levels.height)), settings, sink);
}

} // namespace lumitra
