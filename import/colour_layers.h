// Sorting an imported drawing onto layers by colour: each distinct colour (an SVG stroke or
// fill, a DXF layer or ACI colour) to its own layer, the palette's nearest colour first.
#pragma once

#include <QColor>
#include <QMap>
#include <QString>
#include <QVector>

class Jk_tu_yuan;

namespace lumitra {

// Settings key of the import option (value "1" when on; off when absent).
inline const QString kColourLayersSetting = QStringLiteral("import_colour_layers");
bool colourLayersEnabled();
void setColourLayersEnabled(bool on);

// Layer numbers for distinct colours, one per colour while free layers last: every
// (colour, layer) pair is taken in order of colour distance (exact matches first, ties by
// colour order then layer number), each colour and layer once; colours left over when all
// 30 layers are taken share their nearest layer.
QVector<int> assignColourLayers(const QVector<QRgb> &colours);

// The colour of an AutoCAD colour index 1..255 (7 is black here: drawn on white).
QRgb aciColour(int index);

// One group of an imported drawing: the items of one colour and where they came from
// ("SVG #FF0000", "DXF CUT", "DXF ACI 3").
struct ColourGroup
{
    QRgb colour = 0;
    QString origin;
    QList<Jk_tu_yuan *> items;
};

// Puts every group's items on its layer (assignColourLayers over the groups' colours) and
// names the layer records that do not exist yet after the origin; existing records keep
// their names and parameters. Returns the layer number of each group.
QVector<int> applyColourLayers(const QList<ColourGroup> &groups);

} // namespace lumitra
