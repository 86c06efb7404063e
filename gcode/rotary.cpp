#include "rotary.h"

#include "gcode_number.h"
#include "settings_store.h"

namespace lumitra {

const char *const kRotaryModeKey = "GunZhou/GunZhouKaiGuan";
const char *const kRotaryAxisKey = "GunZhou/GunZhouZhou";
const char *const kRotaryCircumferenceKey = "GunZhou/GunZhouZhouChang";
const char *const kRotaryDiameterKey = "GunZhou/GunZhouZhiJing";
const char *const kRotaryUnitsKey = "GunZhou/GunZhouMM";

namespace {

// The deliberate approximation of pi used for diameters.
constexpr double kRoughPi = 3.14;

const QByteArray kBumpUpFirst("G91\nG0Z7\nG0Z-7\nG90\n");
const QByteArray kBumpDownFirst("G91\nG0Z-7\nG0Z7\nG90\n");

void readDouble(const char *key, double &field)
{
    bool ok = false;
    const double value = get_setting(QLatin1String(key)).toDouble(&ok);
    if (ok)
        field = value;
}

inline bool isRotaryNumberChar(char c)
{
    return (c >= '0' && c <= '9') || c == '.' || c == '-';
}

// Replaces the last occurrence of `from` by `to`; false when there is none.
bool replaceLast(QByteArray &text, const QByteArray &from, const QByteArray &to)
{
    const int at = text.lastIndexOf(from);
    if (at < 0)
        return false;
    text.replace(at, from.size(), to);
    return true;
}

} // namespace

double RotarySettings::factor() const
{
    if (mode == ByDiameter)
        return unitsPerTurn / (diameter * kRoughPi);
    return unitsPerTurn / circumference;
}

bool RotarySettings::isUsable() const
{
    if (mode == ByCircumference)
        return circumference > 0 && unitsPerTurn > 0;
    if (mode == ByDiameter)
        return diameter > 0 && unitsPerTurn > 0;
    return true;
}

RotarySettings loadRotarySettings()
{
    RotarySettings s;
    bool ok = false;
    const int mode = get_setting(QLatin1String(kRotaryModeKey)).toInt(&ok);
    if (ok)
        s.mode = mode;
    const QString axis = get_setting(QLatin1String(kRotaryAxisKey));
    if (!axis.isEmpty())
        s.axis = axis;
    readDouble(kRotaryCircumferenceKey, s.circumference);
    readDouble(kRotaryDiameterKey, s.diameter);
    readDouble(kRotaryUnitsKey, s.unitsPerTurn);
    return s;
}

void saveRotarySettings(const RotarySettings &s)
{
    set_setting(QLatin1String(kRotaryModeKey), QString::number(s.mode));
    set_setting(QLatin1String(kRotaryAxisKey), s.axis);
    set_setting(QLatin1String(kRotaryCircumferenceKey), QString::number(s.circumference, 'g', 6));
    set_setting(QLatin1String(kRotaryDiameterKey), QString::number(s.diameter, 'g', 6));
    set_setting(QLatin1String(kRotaryUnitsKey), QString::number(s.unitsPerTurn, 'g', 6));
}

QByteArray rewriteForRotary(const QByteArray &piece, const RotarySettings &s)
{
    if (!s.rewrites())
        return piece;
    char letter = 'Y';
    if (s.axis == QLatin1String("X"))
        letter = 'X';
    else if (s.axis == QLatin1String("A"))
        letter = 'A';
    const bool flip = letter == 'X';
    const double factor = s.factor();

    QByteArray out;
    out.reserve(piece.size() + piece.size() / 4);
    const char *p = piece.constData();
    const char *end = p + piece.size();
    char number[kMaxFixedChars];
    while (p < end) {
        const char *valueEnd = p + 1;
        if (*p == letter) {
            while (valueEnd < end && isRotaryNumberChar(*valueEnd))
                ++valueEnd;
        }
        if (*p != letter || valueEnd == p + 1) {
            out.append(*p);
            ++p;
            continue;
        }
        // Text that is not a number (such as "-" alone) reads as 0, as Qt reads it.
        const double value = QByteArray::fromRawData(p + 1, int(valueEnd - p - 1)).toDouble();
        double rotary = value * factor;
        if (flip)
            rotary = -rotary;
        out.append('Z');
        out.append(number, int(writeFixed(number, rotary, 3) - number));
        p = valueEnd;
    }
    const QByteArray home("G0X0Y0");
    if (!replaceLast(out, QByteArrayLiteral("G0X0Z0.000"), home))
        replaceLast(out, QByteArrayLiteral("G0Z0.000Y0"), home);
    return out;
}

QByteArray rotaryStartBump(const RotarySettings &s, bool jobFlag)
{
    if (!s.rewrites() || !jobFlag)
        return QByteArray();
    return s.axis == QLatin1String("X") ? kBumpUpFirst : kBumpDownFirst;
}

QByteArray rotaryPathBump(const RotarySettings &s)
{
    if (s.mode > 0 && s.axis == QLatin1String("X"))
        return kBumpUpFirst;
    return QByteArray();
}

} // namespace lumitra
