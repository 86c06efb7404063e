#include "gcode_number.h"

#include <QString>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace lumitra {

namespace {

constexpr uint64_t kPowersOfTen[] = {1, 10, 100, 1000};
// Magnitudes from here on go through Qt (the integer path needs 64 bits); the
// text is then cut to kMaxFixedChars, far beyond any machine's travel anyway.
constexpr double kFastLimit = 1e15;

char *writeDigits(char *out, uint64_t n)
{
    char tmp[24];
    int len = 0;
    do {
        tmp[len++] = char('0' + n % 10);
        n /= 10;
    } while (n != 0);
    while (len > 0)
        *out++ = tmp[--len];
    return out;
}

// |value| * 10^decimals rounded half away from zero, computed exactly from the
// mantissa and exponent of the double.
uint64_t scaledMagnitude(double magnitude, int decimals)
{
    int exponent = 0;
    const double fraction = std::frexp(magnitude, &exponent); // magnitude = fraction * 2^exponent
    const uint64_t mantissa = uint64_t(std::ldexp(fraction, 53)); // exact: 53 significant bits
    // magnitude = mantissa * 2^-shift; below kFastLimit (< 2^50) the shift is at least 3.
    const int shift = 53 - exponent;
    const uint64_t scaled = mantissa * kPowersOfTen[decimals]; // < 2^63
    if (shift >= 64)
        return 0; // below 2^-11 even after scaling: rounds to zero
    const uint64_t whole = scaled >> shift;
    const uint64_t rest = scaled & ((uint64_t(1) << shift) - 1);
    const uint64_t half = uint64_t(1) << (shift - 1);
    return rest >= half ? whole + 1 : whole;
}

} // namespace

char *writeFixed(char *out, double value, int decimals)
{
    const double magnitude = std::fabs(value);
    if (!(magnitude < kFastLimit)) { // also NaN and infinities
        const QByteArray text = QString::number(value, 'f', decimals).toLatin1();
        const int len = qMin(text.size(), kMaxFixedChars);
        std::memcpy(out, text.constData(), size_t(len));
        return out + len;
    }
    if (value < 0)
        *out++ = '-';
    if (magnitude == 0.0) {
        *out++ = '0';
    } else {
        const uint64_t scaled = scaledMagnitude(magnitude, decimals);
        const uint64_t unit = kPowersOfTen[decimals];
        out = writeDigits(out, scaled / unit);
        if (decimals > 0) {
            *out++ = '.';
            uint64_t rest = scaled % unit;
            for (int i = decimals - 1; i >= 0; --i) {
                out[i] = char('0' + rest % 10);
                rest /= 10;
            }
            return out + decimals;
        }
        return out;
    }
    if (decimals > 0) {
        *out++ = '.';
        for (int i = 0; i < decimals; ++i)
            *out++ = '0';
    }
    return out;
}

QByteArray fixedText(double value, int decimals)
{
    char buffer[kMaxFixedChars];
    const char *end = writeFixed(buffer, value, decimals);
    return QByteArray(buffer, int(end - buffer));
}

} // namespace lumitra
