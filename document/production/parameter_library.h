// The parameter library: named laser settings per material and thickness,
// kept as JSON text in the settings store and shared as .json files.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

struct TuCeng;

namespace lumitra {

// The settings-store key that holds the library ("" while it is empty).
inline const QString kParameterLibraryKey = QStringLiteral("CanShuKu");

struct ParameterPreset
{
    QString name;
    QString material;
    double thicknessMm = 0;
    int power = 80;    // percent 0..100
    int speed = 5000;  // mm/min 5..99999999
    int passes = 1;    // 1..999
    int mode = 0;      // the layer mode number (vector: line, fill, cross fill)
    int fillAngle = 0; // degrees 0..360
    double intervalMm = 0.1;
    double overscanMm = 0;
    bool unidirectional = false;

    bool operator==(const ParameterPreset &o) const;
    bool operator!=(const ParameterPreset &o) const { return !(*this == o); }
};

using ParameterLibrary = QList<ParameterPreset>;

// Indented JSON: {"format":"lumitra-parameters","version":1,"presets":[...]}.
QString libraryToJson(const ParameterLibrary &library);
// Reads libraryToJson's form. Anything malformed or out of range gives false
// with the reason in `reason` and leaves `out` untouched.
bool libraryFromJson(const QString &text, ParameterLibrary *out, QString *reason);

// The library in the settings store; an empty value is an empty library.
// A stored text that cannot be read gives false with a reason.
bool loadLibrary(ParameterLibrary *out, QString *reason);
void storeLibrary(const ParameterLibrary &library);

// Writes the library to a .json file; false with a reason when it cannot.
bool exportLibrary(const ParameterLibrary &library, const QString &path, QString *reason);
// Merges a .json file into `library`: a preset with the name and material of
// one already there replaces it, the others are appended in file order. An
// unreadable or malformed file gives false with a reason and leaves `library`
// untouched. `added` and `replaced` (when given) count what happened.
bool importLibrary(const QString &path, ParameterLibrary *library, QString *reason,
                   int *added = nullptr, int *replaced = nullptr);

// Writes the preset's settings into a layer record; the record keeps its
// number, name, bitmap flag, output and show. A mode the layer kind does not
// have (a bitmap layer has five, a vector layer three) is left as it was.
void applyPreset(const ParameterPreset &preset, TuCeng *layer);
// A preset holding a layer record's settings.
ParameterPreset presetFromLayer(const TuCeng &layer, const QString &name, const QString &material,
                                double thicknessMm);

// The materials named in the library, sorted, each once.
QStringList libraryMaterials(const ParameterLibrary &library);
// The position of the preset with that name and material, or -1.
int findPreset(const ParameterLibrary &library, const QString &name, const QString &material);

} // namespace lumitra
