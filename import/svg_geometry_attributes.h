// Geometry attributes of SVG elements: transform lists, lengths with units, viewports.
#pragma once

#include <QRectF>
#include <QString>
#include <QTransform>

class QDomElement;

namespace lumitra {

// Millimetres per CSS pixel (96 pixels per inch); one user unit is one pixel when no
// viewBox says otherwise.
constexpr double kMmPerPx = 25.4 / 96.0;

// A "transform" attribute: matrix, translate, scale, rotate (with optional centre), skewX
// and skewY, separated by whitespace or commas, applied right to left as SVG defines.
// An empty text is the identity. False (and *out untouched) on a syntax error.
bool parseSvgTransform(const QString &text, QTransform *out);

// A length such as "210mm", "8.5in", "12pt", "3pc", "2cm", "100px" or "100" (pixels) in
// millimetres. Percentages and unknown units are not lengths: false.
bool svgLengthToMm(const QString &text, double *mm);

// What relative lengths refer to: the font size of the element (for em, ex and ch), the
// root's font size (rem), the nearest viewport in user units (%), and the root viewport in
// pixels (vw, vh, vmin, vmax). Font sizes are in user units; 16 when no size is given.
struct SvgLengthContext
{
    double fontSize = 16.0;
    double rootFontSize = 16.0;
    double viewportWidth = 0.0, viewportHeight = 0.0;
    double rootWidthPx = 0.0, rootHeightPx = 0.0;
};

// Which side of the viewport a percentage refers to: width (x, cx, width, rx, ...), height
// (y, cy, height, ry, ...) or the normalised diagonal (r and other lengths).
enum class SvgAxis { X, Y, Other };

// A length in user units: absolute units are converted as pixels are (96 per inch), em is
// the font size, ex and ch half of it, rem the root's font size, Q a quarter millimetre,
// % a share of the viewport side, vw/vh/vmin/vmax a hundredth of the root viewport. False
// for an empty text, an unknown unit or a trailing remainder.
bool svgLengthToUser(const QString &text, SvgAxis axis, const SvgLengthContext &context,
                     double *user);

// The mapping from the root element's user units to millimetres, from its width, height,
// viewBox and preserveAspectRatio. Without a viewBox one user unit is one pixel.
QTransform svgRootToMm(const QDomElement &root);
QTransform svgRootToMm(const QString &width, const QString &height, const QString &viewBox,
                       const QString &aspect);

// A viewBox attribute; false when absent, malformed or of zero size.
bool svgViewBox(const QString &text, QRectF *box);

// The mapping that a viewport of w x h user units at (x, y) sets up for its content when
// it holds `viewBox` (may be invalid: then only the move to x, y), in the parent's units.
QTransform svgViewportTransform(double x, double y, double w, double h, const QRectF &viewBox,
                                const QString &aspect);

} // namespace lumitra
