// Image modes for bitmaps: five pure pixel transforms, one image in, one image out.
//
// Mode indices as shown in the mode combo box:
//   0 black and white (fixed threshold), 1 dither (error diffusion), 2 outline (edges),
//   3 greyscale, 4 negative. Any other index returns an unchanged copy.
// A null image passes through every mode unchanged. All functions are reentrant and touch
// no program state; they run on whichever thread calls them.
#pragma once

#include <QImage>

namespace lumitra {

// Grey level of a colour: (11 R + 16 G + 5 B) / 32 in integers, truncating.
inline int greyLevel(int r, int g, int b)
{
    return (11 * r + 16 * g + 5 * b) >> 5;
}
// The unshifted weighted sum; a colour is black when this is below 4096 (grey < 128).
inline int greySum(int r, int g, int b)
{
    return 11 * r + 16 * g + 5 * b;
}
inline bool isBlackSum(int r, int g, int b)
{
    return greySum(r, g, b) < 4096;
}

// Mode 0: RGBA8888 result; alpha 0 becomes transparent (0,0,0,0), dark pixels opaque black,
// the rest opaque white.
QImage thresholdImage(const QImage &image);
// Mode 1: RGB32 result, pure black and white. The source is drawn over a yellow background
// first, so transparent areas dither as nearly white.
QImage ditherImage(const QImage &image);
// Mode 2: Grayscale8 result, black edges (Canny 100/200, aperture 3) on white.
QImage outlineImage(const QImage &image);
// Mode 3: Grayscale8 result; fully transparent pixels become white first.
QImage greyscaleImage(const QImage &image);
// Mode 4: colours inverted and alpha forced opaque. RGB32, ARGB32 (plain or premultiplied),
// RGBA8888 variants and Grayscale8 keep their format; any other format is converted to
// ARGB32 first.
QImage negativeImage(const QImage &image);

// Dispatch by mode index (see above).
QImage applyImageMode(const QImage &image, int mode);

} // namespace lumitra
