#include "raster_words.h"

#include <QtGlobal>
#include <cmath>
#include <cstring>

namespace lumitra {

int pwmLevel(double s, const PowerSteps &steps)
{
    // In single precision, as the controller computes it.
    const int top = qMax(2, steps.steps - 1);
    const float rpm = float(s), rpmMin = float(steps.sMin), rpmMax = float(steps.sMax);
    if (rpm <= 0.0f)
        return 0;
    if (rpmMin >= rpmMax || rpm >= rpmMax)
        return top;
    if (rpm <= rpmMin)
        return 1;
    const float gradient = float(top - 1) / (rpmMax - rpmMin);
    return qMin(top, int(std::floor((rpm - rpmMin) * gradient)) + 1);
}

namespace {

int trailingZeros(long v)
{
    int zeros = 0;
    for (; v != 0 && v % 10 == 0; v /= 10)
        ++zeros;
    return zeros;
}

} // namespace

int quantisedPower(double s, const PowerSteps &steps)
{
    const int level = pwmLevel(s, steps);
    if (level == 0)
        return 0;
    const int top = qMax(2, steps.steps - 1);
    if (level == top)
        return int(qMax(1.0, std::ceil(steps.sMax - 1e-9)));
    if (level == 1 && steps.sMin >= 1.0 && pwmLevel(std::round(steps.sMin), steps) == 1)
        return int(std::lround(steps.sMin));
    // The S that falls on this level: from sMin + (level - 1) x width up to
    // the next level. The lowest level takes every S up to sMin as well;
    // sMin itself ("the least power") is the one written for it.
    const double width = (steps.sMax - steps.sMin) / (top - 1);
    const double low = steps.sMin + (level - 1) * width;
    const double high = steps.sMin + level * width;
    const double middle = (low + high) / 2;
    // One whole S for every level, so that greys on the same level merge: the
    // roundest one (800 rather than 801), then the one nearest the middle.
    long best = 0;
    for (long c = qMax(1L, long(std::floor(low))); c <= long(std::ceil(high)); ++c) {
        if (pwmLevel(double(c), steps) != level)
            continue;
        if (best == 0 || trailingZeros(c) > trailingZeros(best)
            || (trailingZeros(c) == trailingZeros(best)
                && std::fabs(c - middle) < std::fabs(best - middle)))
            best = c;
    }
    // A range narrower than the levels has levels no whole S reaches.
    return best > 0 ? int(best) : int(qMax(1L, std::lround(s)));
}

std::array<int, 256> greyPowerTable(double power, const PowerSteps &steps)
{
    std::array<int, 256> table{};
    for (int grey = 0; grey < 256; ++grey)
        table[size_t(grey)] = quantisedPower(power * (255 - grey) / 255, steps);
    return table;
}

void trimPacked(PackedNumber &number)
{
    auto charAt = [&number](int i) -> unsigned {
        return unsigned(((i < 8 ? number.low >> (8 * i) : number.high >> (8 * (i - 8)))) & 0xff);
    };
    int n = number.length;
    bool point = false;
    for (int i = 0; i < n; ++i)
        point = point || charAt(i) == '.';
    if (!point)
        return;
    while (n > 0 && charAt(n - 1) == '0')
        --n;
    if (n > 0 && charAt(n - 1) == '.')
        --n;
    auto keep = [](quint64 word, int bytes) -> quint64 {
        return bytes >= 8 ? word : (bytes <= 0 ? 0 : word & ((quint64(1) << (8 * bytes)) - 1));
    };
    number.low = keep(number.low, n);
    number.high = keep(number.high, n - 8);
    number.length = n;
    // A zero alone before the point goes: "0.5" -> ".5", "-0.5" -> "-.5".
    const int zeroAt = charAt(0) == '-' ? 1 : 0;
    if (n > zeroAt + 1 && charAt(zeroAt) == '0' && charAt(zeroAt + 1) == '.') {
        char text[16] = {};
        for (int i = 0, o = 0; i < n; ++i) {
            if (i != zeroAt)
                text[o++] = char(charAt(i));
        }
        std::memcpy(&number.low, text, 8);
        std::memcpy(&number.high, text + 8, 8);
        number.length = n - 1;
    }
}

qint64 packedHundredths(const PackedNumber &number)
{
    qint64 whole = 0;
    int decimals = -1; // digits seen after the point; -1 before it
    bool negative = false;
    for (int i = 0; i < number.length; ++i) {
        const char c = char((i < 8 ? number.low >> (8 * i) : number.high >> (8 * (i - 8))) & 0xff);
        if (c == '-') {
            negative = true;
        } else if (c == '.') {
            decimals = 0;
        } else if (decimals < 2) {
            whole = whole * 10 + (c - '0');
            if (decimals >= 0)
                ++decimals;
        }
    }
    for (int d = qMax(decimals, 0); d < 2; ++d)
        whole *= 10;
    return negative ? -whole : whole;
}

WireLoad wireLoad(double bytes, double feedLength, double feed, double linkBytesPerSecond)
{
    WireLoad load;
    if (!(feedLength > 0) || !(feed > 0) || !(bytes > 0))
        return load;
    const double seconds = feedLength / feed * 60.0;
    load.bytesPerSecond = bytes / seconds;
    load.exceeds = load.bytesPerSecond > linkBytesPerSecond;
    load.fastestFeed = std::floor(feed * qMin(1.0, linkBytesPerSecond / load.bytesPerSecond));
    return load;
}

} // namespace lumitra
