// SVG import: the geometry of the shape elements of a file, as painter paths in mm.
//
// Styles, fills and strokes are ignored. Shapes are "path", "rect", "circle", "ellipse",
// "line", "polygon" and "polyline". The root's direct children are visited in document
// order: a shape is converted at once, containers named like "desc"/"defs" (and the other
// never-drawn containers: clipPath, mask, pattern, marker, symbol, metadata) are skipped
// with their content, and any other element is searched shape kind by shape kind — all
// its paths first, then its rects, and so on.
#pragma once

#include <QByteArray>
#include <QList>
#include <QPainterPath>
#include <QString>

class QDomElement;

namespace lumitra {

struct SvgImportResult
{
    bool ok = false;            // the file was read and parsed (it may still hold no shapes)
    bool limitExceeded = false; // refused for size, nesting or shape count rather than damage
    QString error;              // why not, for the log or the user
    QList<QPainterPath> paths;  // millimetres, y pointing down as in the file
};

// The shape tags in the order a container is searched.
const QStringList &svgShapeTags();

SvgImportResult readSvgFile(const QString &filePath);
SvgImportResult readSvgData(const QByteArray &data);

// One shape element in its own user units, before any transform. An unsupported tag or
// degenerate geometry gives an empty path.
QPainterPath convertSvgElement(const QString &tag, const QDomElement &element);

} // namespace lumitra
