// SVG import: the geometry of the shape elements of a file, as painter paths in mm.
//
// Fills and strokes are ignored. Shapes are "path", "rect", "circle", "ellipse", "line",
// "polygon" and "polyline". The root's direct children are visited in document order: a
// shape is converted at once, the containers (g, a, nested svg, switch, use) are searched
// shape kind by shape kind — all their paths first, then their rects, and so on — and
// everything else (defs, desc, symbol, clipPath, mask, pattern, marker, metadata, flowed
// text, elements of other namespaces and unknown elements) is skipped with its content.
//
// Within the drawn part the SVG rules hold: transforms, nested viewports and units (em,
// ex, ch and rem of the font size, 16 pixels when none is given; % of the nearest
// viewport; vw and vh of the root's), "use" of symbols and other elements at their x and y
// (nested, with cycles cut), display and visibility as styles or attributes, the first
// applicable child of a switch. Text that was not converted to outlines is counted;
// embedded or neighbouring bitmaps ("image") are returned with their place.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QPainterPath>
#include <QString>
#include <QTransform>
#include <QVector>

namespace lumitra {

// A bitmap of the drawing: image pixel (i, j) covers the unit square at (i, j) mapped by
// pixelToMm.
struct SvgImage
{
    QImage image;
    QTransform pixelToMm;
};

struct SvgImportResult
{
    bool ok = false;            // the file was read and parsed (it may still hold no shapes)
    bool limitExceeded = false; // refused for size, nesting or shape count rather than damage
    QString error;              // why not, for the log or the user
    QList<QPainterPath> paths;  // millimetres, y pointing down as in the file
    int textCount = 0;          // text elements left out (not converted to outlines)
    QList<SvgImage> images;     // bitmaps, in document order
    // With colours asked for: per path, its stroke colour, or its fill colour when it has no
    // stroke (black when neither is readable).
    QVector<QRgb> colours;
};

// The shape tags in the order a container is searched.
const QStringList &svgShapeTags();

// `baseFolder` is where images named by a relative file name are looked for.
SvgImportResult readSvgFile(const QString &filePath, bool withColours = false);
SvgImportResult readSvgData(const QByteArray &data, const QString &baseFolder = QString(),
                            bool withColours = false);

} // namespace lumitra
