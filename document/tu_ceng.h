#pragma once

#include <QColor>
#include <QList>
#include <QMetaType>
#include <QString>

class QDataStream;

// One layer's process parameters. Fields are in the order they sit in memory;
// the stored order (project file) is different, see writeTuCeng/readTuCeng.
struct TuCeng
{
    qint32 yanse = 0;      // layer number 0..29, index into the palette
    qint32 gonglv = 80;    // laser power, percent 0..100 (S = gonglv * 10)
    qint32 sudu = 5000;    // feed, mm/min, 5..99999999
    qint32 fangxiang = 0;  // fill direction, degrees 0..360
    double jianju = 0.1;   // fill / raster line spacing, mm 0.01..100
    double saomiao = 0.0;  // overscan, mm 0..100
    qint32 moshi = 0;      // mode; meaning depends on tupian (see modeLabels)
    bool shuchu = true;    // output to the machine
    bool xianshi = true;   // visible on the canvas
    bool tupian = false;   // bitmap layer
    bool danxiang = false; // burn fill/raster lines in one direction only
    QString mingcheng = QStringLiteral("L0");
    bool shanchu = false;   // removal mark, used only while rebuilding the list
    qint32 cishu = 1;       // passes 1..999
    bool xuanzhong = false; // row tick; never stored, never copied
    double kerf = 0.0;      // width of the cut, mm 0..5; line cuts are moved by half of it
    qint32 cutOrder = 0;    // CutOrder: how the layer's outlines are ordered in the job
    bool jingxi = false;    // fine curves: chords within 0.01 mm of every curve

    TuCeng() = default;
    // A fresh record with the defaults for layer `number`.
    TuCeng(int number, bool bitmap);
    TuCeng(const TuCeng &other);
    TuCeng &operator=(const TuCeng &other);
};

// Vector modes.
enum VectorMode { LineMode = 0, FillMode = 1, CrossFillMode = 2 };
// Bitmap modes (also the image modes of the importer).
enum BitmapMode {
    ThresholdMode = 0,
    DitherMode = 1,
    OutlineMode = 2,
    GreyscaleMode = 3,
    NegativeMode = 4
};

// Order of a layer's outlines in the job: as drawn, or holes and inner shapes
// before the shapes around them and then the nearest next.
enum CutOrder { CutAsDrawn = 0, CutOptimised = 1 };

// The 30-colour layer palette.
constexpr int kLayerCount = 30;
QColor layerColor(int number);
// Palette buttons with a light colour show their number in black.
bool layerUsesDarkText(int number);
// "00".."29".
QString layerLabel(int number);

// Untranslated mode labels for a vector or bitmap layer. The panel and the row
// label the fifth bitmap mode differently ("负向" vs "负像") on purpose.
QStringList modeLabelsForPanel(bool bitmap);
QStringList modeLabelsForRow(bool bitmap);

// Project-file form of one record (without the leading marker, with the trailing
// "123"). readTuCeng returns false when the stream ran out or is corrupt.
void writeTuCeng(QDataStream &out, const TuCeng &layer);
bool readTuCeng(QDataStream &in, TuCeng &layer);

// Fields added after the stored form above, as one string that follows the
// record's "123" ("MY_CENG_EXT kerf=0.1 order=1"); readers that do not know it
// skip it as an unknown marker. Empty when every such field has its default,
// so such a record is stored as it always was.
QString layerExtrasText(const TuCeng &layer);
// True when `text` is such a string; its known fields are then set in `layer`
// (values out of range are brought into it).
bool readLayerExtras(const QString &text, TuCeng &layer);

// Rows and panels pass records by pointer in signals.
Q_DECLARE_METATYPE(TuCeng *)
