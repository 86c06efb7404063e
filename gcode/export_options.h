// The process options of the headless export, read from their command-line
// texts and applied to layer records.
//
//   --power P      laser power, whole percent 0..100
//   --speed S      feed, whole mm/min 5..99999999
//   --passes N     passes 1..999
//   --mode M       vector input: line, fill, crossfill;
//                  bitmap input: threshold, dither, outline, grey, negative
//   --spacing MM   fill and raster line spacing 0.01..100 mm
//   --angle DEG    fill direction, whole degrees 0..360
//   --overscan MM  overscan 0..100 mm
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

struct TuCeng;

namespace lumitra {

struct LayerOverrides
{
    std::optional<int> power;
    std::optional<int> speed;
    std::optional<int> passes;
    std::optional<int> vectorMode; // for vector layers
    std::optional<int> bitmapMode; // for bitmap layers
    std::optional<double> spacing;
    std::optional<int> angle;
    std::optional<double> overscan;

    // Sets every given value on `layer`; a mode only on a layer of its kind.
    void applyTo(TuCeng &layer) const;
};

// Option names accepted, without the leading "--".
QStringList exportOptionNames();

// Reads the option texts (name without "--" -> value as given). Returns false
// with a one-line reason for an unknown name or a value that is not a number
// of the right kind or lies outside its range.
bool parseLayerOverrides(const QMap<QString, QString> &options, LayerOverrides *out,
                         QString *error);

} // namespace lumitra
