// Raster engraving of bitmap items: the item's image through its layer's image
// mode, placed by the item's full transform.
#pragma once

#include "raster_engrave.h"
#include "raster_words.h"

#include <QImage>
#include <QTransform>

class Jk_tu_yuan;
struct TuCeng;

namespace lumitra {

class ToolpathSink;

// Levels for the black-and-white modes (threshold, dither, outline, negative
// results): a pixel burns (level 0) when it is not fully transparent and its
// grey level is below 128; every other pixel is white.
LevelMap binaryLevels(const QImage &image);
// Levels for the greyscale mode: the grey level of each pixel; fully
// transparent pixels are white.
LevelMap greyLevels(const QImage &image);

// The image a bitmap layer in mode `mode` engraves, as levels: modes 0, 1, 2
// and 4 binary, mode 3 grey. Any other mode gives an empty map.
LevelMap levelsForMode(const QImage &source, int mode);

// Maps pixel coordinates of an item's image (size `imageSize`) to the scene:
// the image covers the bounding rectangle of the item's outline, which the
// item's scene transform then places.
QTransform pixelToScene(const Jk_tu_yuan &item, const QSize &imageSize);

// Engraves one bitmap item with the parameters of its layer (the spacing,
// overscan and direction of the layer; greyscale power in mode 3). Uses the
// item's source image, or its display image when it has no source. With
// `steps`, greys that burn at the same power step (greyPowerTable) are one
// level, so that neighbouring pixels of equal output make one run.
void engraveBitmapItem(const Jk_tu_yuan &item, const TuCeng &layer, ToolpathSink &sink,
                       const PowerSteps *steps = nullptr);

// Gives every grey the darkest grey with the same output in `table` (white stays white).
void mergeEqualOutput(LevelMap &map, const std::array<int, 256> &table);

} // namespace lumitra
