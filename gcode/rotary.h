// Rotary attachment: the program-wide settings and the rewrite of G-code pieces.
//
// With a rotary attachment the object turns instead of the head moving along
// one design axis. Every flushed piece of a job passes through rewriteForRotary,
// which writes that axis's coordinates as Z words in the controller's rotary
// units. The settings live in the settings store under "GunZhou/...".
#pragma once

#include <QByteArray>
#include <QString>

namespace lumitra {

struct RotarySettings
{
    enum Mode { Off = 0, ByCircumference = 1, ByDiameter = 2 };

    int mode = Off;                     // "GunZhou/GunZhouKaiGuan"
    QString axis = QStringLiteral("Y"); // "GunZhou/GunZhouZhou": "Y", "X" or "A"
    double circumference = 100.0;       // "GunZhou/GunZhouZhouChang", mm (mode 1)
    double diameter = 50.0;             // "GunZhou/GunZhouZhiJing", mm (mode 2)
    double unitsPerTurn = 360.0;        // "GunZhou/GunZhouMM", rotary units per turn

    // True in modes 1 and 2, the modes that rewrite coordinates.
    bool rewrites() const { return mode == ByCircumference || mode == ByDiameter; }
    // Rotary units per millimetre of surface (meaningful when rewrites()).
    double factor() const;
    // False when the mode in use has a divisor or unit count that is not
    // positive; a job must not be generated with such settings.
    bool isUsable() const;
};

// Reads the settings from the store; a missing or unreadable value keeps its
// default above (an empty axis reads as "Y").
RotarySettings loadRotarySettings();
// Writes every field back; doubles in the shortest form with six significant
// digits ("360", "3.14159").
void saveRotarySettings(const RotarySettings &settings);

// The settings key names.
extern const char *const kRotaryModeKey;
extern const char *const kRotaryAxisKey;
extern const char *const kRotaryCircumferenceKey;
extern const char *const kRotaryDiameterKey;
extern const char *const kRotaryUnitsKey;

// Rewrites one piece of G-code. Unchanged unless the mode is 1 or 2. Otherwise
// every occurrence of the axis letter followed by a run of "-", digits and
// points becomes "Z" and the value times the factor (mode 1: units per turn /
// circumference; mode 2: units per turn / (diameter x 3.14), the literal 3.14)
// with three decimals, its sign flipped for axis "X"; an axis other than "X"
// or "A" works on "Y". Finally the last "G0X0Z0.000" (or, when there is none,
// the last "G0Z0.000Y0") is put back to "G0X0Y0", the return to the origin.
QByteArray rewriteForRotary(const QByteArray &piece, const RotarySettings &settings);

// The bump that frees the rotary at the start of a job (modes 1 and 2 with the
// job's rotary flag) and after the first move of every path (mode above 0,
// axis "X"). Empty when it does not apply.
QByteArray rotaryStartBump(const RotarySettings &settings, bool jobFlag);
QByteArray rotaryPathBump(const RotarySettings &settings);

} // namespace lumitra
