// Raster engraving of a pixel map along horizontal scan lines.
//
// The map is placed in the scene by an affine pixel-to-scene transform (pixel
// (0, 0) at its top-left corner, so rotated, mirrored and scaled bitmaps
// engrave where they are shown). Scan lines run along the scene x axis on a
// fixed grid: y = (k + 0.5) x spacing. Along a line the image is read exactly
// where the line crosses pixel borders, and equal neighbouring pixels make one
// run. Runs darker than white burn; white runs are crossed with the laser off,
// coasting at feed speed, or by a rapid travel when longer than
// kRapidGap + 2 x overscan. Each line is entered and left with `overscan` mm of
// coasting. Lines alternate direction unless oneDirection is set; lines that
// are all white are skipped.
#pragma once

#include <QTransform>
#include <vector>

namespace lumitra {

class ToolpathSink;

// A white gap longer than this (plus both overscans) is travelled at rapid speed, mm.
constexpr double kRapidGap = 5.0;

// Pixel levels, row by row: 255 is white (never burnt), anything lower burns.
struct LevelMap
{
    static constexpr unsigned char kWhite = 255;

    int width = 0;
    int height = 0;
    std::vector<unsigned char> levels;

    bool isEmpty() const { return width <= 0 || height <= 0; }
    unsigned char at(int x, int y) const { return levels[size_t(y) * size_t(width) + size_t(x)]; }
};

struct RasterSettings
{
    double spacing = 0.1; // mm between scan lines, must be positive
    double overscan = 0;  // mm before and after every burnt stretch of a line
    bool oneDirection = false;
    bool greyPower = false; // burn each run at its grey level (else full power)
};

// Engraves `map` into `sink`. Nothing happens when the map is empty, the
// spacing is not positive or the transform cannot be inverted. Stops early
// when the sink asks to.
void engraveRaster(const LevelMap &map, const QTransform &pixelToScene,
                   const RasterSettings &settings, ToolpathSink &sink);

} // namespace lumitra
