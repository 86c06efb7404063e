// Geometry attributes of SVG elements: transform lists, lengths with units, viewports.
#pragma once

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

// A coordinate attribute of a shape (x, width, r, ...) in user units; a unit suffix is
// converted as pixels are. Returns `fallback` when the attribute is absent or unreadable.
double svgCoordinate(const QDomElement &element, const QString &name, double fallback = 0.0);

// The mapping from the root element's user units to millimetres, from its width, height,
// viewBox and preserveAspectRatio. Without a viewBox one user unit is one pixel.
QTransform svgRootToMm(const QDomElement &root);

// The mapping that a nested svg element sets up for its content (x, y and a viewBox
// fitted into its width and height), in the parent's user units.
QTransform svgNestedViewport(const QDomElement &svg);

} // namespace lumitra
