#include "raster_words.h"

#include <QtGlobal>
#include <cmath>
#include <cstring>

namespace lumitra {

int quantisedPower(double s, const PowerSteps &steps)
{
    if (!(s > 0))
        return 0;
    const double span = steps.sMax - steps.sMin;
    const int top = qMax(1, steps.steps - 1);
    if (!(span > 0))
        return int(std::lround(qMax(s, steps.sMax)));
    const double step = span / top;
    const int level = qBound(0, int(std::lround((s - steps.sMin) / step)), top);
    return int(std::lround(steps.sMin + level * step));
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
