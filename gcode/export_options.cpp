#include "export_options.h"

#include "tu_ceng.h"

#include <type_traits>

namespace lumitra {

namespace {

const QStringList kVectorModes = {QStringLiteral("line"), QStringLiteral("fill"),
                                  QStringLiteral("crossfill")};
const QStringList kBitmapModes = {QStringLiteral("threshold"), QStringLiteral("dither"),
                                  QStringLiteral("outline"), QStringLiteral("grey"),
                                  QStringLiteral("negative")};

// Reads a whole (integral T) or decimal number into `field`, within [low, high].
template<typename T>
bool readNumber(const QString &name, const QString &text, T low, T high, std::optional<T> &field,
                QString *error)
{
    constexpr bool whole = std::is_integral<T>::value;
    bool ok = false;
    const QString trimmed = text.trimmed();
    const double value = whole ? double(trimmed.toLongLong(&ok)) : trimmed.toDouble(&ok);
    if (!ok || !(value >= low && value <= high)) {
        *error =
            QStringLiteral("--%1 must be %2 from %3 to %4, not \"%5\"")
                .arg(name, whole ? QStringLiteral("a whole number") : QStringLiteral("a number"))
                .arg(low)
                .arg(high)
                .arg(text);
        return false;
    }
    field = T(value);
    return true;
}

bool readMode(const QString &text, LayerOverrides &out, QString *error)
{
    const QString mode = text.trimmed().toLower();
    if (kVectorModes.contains(mode)) {
        out.vectorMode = kVectorModes.indexOf(mode);
        return true;
    }
    if (kBitmapModes.contains(mode)) {
        out.bitmapMode = kBitmapModes.indexOf(mode);
        return true;
    }
    *error = QStringLiteral("--mode must be one of %1 (vector) or %2 (bitmap), not \"%3\"")
                 .arg(kVectorModes.join(QLatin1String(", ")),
                      kBitmapModes.join(QLatin1String(", ")), text);
    return false;
}

} // namespace

void LayerOverrides::applyTo(TuCeng &layer) const
{
    if (power)
        layer.gonglv = *power;
    if (speed)
        layer.sudu = *speed;
    if (passes)
        layer.cishu = *passes;
    if (spacing)
        layer.jianju = *spacing;
    if (angle)
        layer.fangxiang = *angle;
    if (overscan)
        layer.saomiao = *overscan;
    const std::optional<int> &mode = layer.tupian ? bitmapMode : vectorMode;
    if (mode)
        layer.moshi = *mode;
}

QStringList exportOptionNames()
{
    return {QStringLiteral("power"),   QStringLiteral("speed"),   QStringLiteral("passes"),
            QStringLiteral("mode"),    QStringLiteral("spacing"), QStringLiteral("angle"),
            QStringLiteral("overscan")};
}

bool parseLayerOverrides(const QMap<QString, QString> &options, LayerOverrides *out, QString *error)
{
    LayerOverrides result;
    for (auto it = options.constBegin(); it != options.constEnd(); ++it) {
        const QString &name = it.key();
        const QString &text = it.value();
        bool ok = true;
        if (name == QLatin1String("power"))
            ok = readNumber(name, text, 0, 100, result.power, error);
        else if (name == QLatin1String("speed"))
            ok = readNumber(name, text, 5, 99999999, result.speed, error);
        else if (name == QLatin1String("passes"))
            ok = readNumber(name, text, 1, 999, result.passes, error);
        else if (name == QLatin1String("angle"))
            ok = readNumber(name, text, 0, 360, result.angle, error);
        else if (name == QLatin1String("spacing"))
            ok = readNumber(name, text, 0.01, 100.0, result.spacing, error);
        else if (name == QLatin1String("overscan"))
            ok = readNumber(name, text, 0.0, 100.0, result.overscan, error);
        else if (name == QLatin1String("mode"))
            ok = readMode(text, result, error);
        else {
            *error = QStringLiteral("unknown option --%1").arg(name);
            ok = false;
        }
        if (!ok)
            return false;
    }
    *out = result;
    return true;
}

} // namespace lumitra
