#include "gcode_number.h"

#include <QString>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace lumitra {

namespace {

// Magnitudes from here on go through Qt (the integer path needs 64 bits); the
// text is then cut to kMaxFixedChars, far beyond any machine's travel anyway.
constexpr double kFastLimit = 1e15;

constexpr char kDigitPairs[] =
    "00010203040506070809101112131415161718192021222324252627282930313233343536373839"
    "40414243444546474849505152535455565758596061626364656667686970717273747576777879"
    "8081828384858687888990919293949596979899";

char *writeWhole(char *out, uint64_t n)
{
    char tmp[24];
    char *end = tmp + sizeof tmp;
    char *p = end;
    while (n >= 100) {
        p -= 2;
        std::memcpy(p, kDigitPairs + 2 * (n % 100), 2);
        n /= 100;
    }
    if (n >= 10) {
        p -= 2;
        std::memcpy(p, kDigitPairs + 2 * n, 2);
    } else {
        *--p = char('0' + n);
    }
    std::memcpy(out, p, size_t(end - p));
    return out + (end - p);
}

// |value| * Scale rounded half away from zero, computed exactly from the
// mantissa and exponent bits of the double (magnitude below kFastLimit).
template<uint64_t Scale> uint64_t scaledMagnitude(double magnitude)
{
    uint64_t bits;
    std::memcpy(&bits, &magnitude, sizeof bits);
    const int biased = int(bits >> 52);
    if (biased == 0)
        return 0; // zero or subnormal
    const uint64_t mantissa = (bits & ((uint64_t(1) << 52) - 1)) | (uint64_t(1) << 52);
    // magnitude = mantissa * 2^-shift; below kFastLimit (< 2^50) the shift is at least 3.
    const int shift = 1075 - biased;
    const uint64_t scaled = mantissa * Scale; // < 2^63
    if (shift >= 64)
        return 0; // below 2^-11 even after scaling: rounds to zero
    const uint64_t whole = scaled >> shift;
    const uint64_t rest = scaled & ((uint64_t(1) << shift) - 1);
    return rest >= (uint64_t(1) << (shift - 1)) ? whole + 1 : whole;
}

template<int Decimals, uint64_t Scale> char *writeFast(char *out, double value)
{
    const uint64_t scaled = scaledMagnitude<Scale>(std::fabs(value));
    if (value < 0 && scaled != 0)
        *out++ = '-';
    out = writeWhole(out, scaled / Scale);
    if (Decimals == 0)
        return out;
    *out++ = '.';
    uint64_t rest = scaled % Scale;
    for (int i = Decimals - 1; i >= 0; --i) {
        out[i] = char('0' + rest % 10);
        rest /= 10;
    }
    return out + Decimals;
}

} // namespace

char *writeFixed(char *out, double value, int decimals)
{
    if (!(std::fabs(value) < kFastLimit)) { // also NaN and infinities
        const QByteArray text = QString::number(value, 'f', decimals).toLatin1();
        const int len = qMin(text.size(), kMaxFixedChars);
        std::memcpy(out, text.constData(), size_t(len));
        return out + len;
    }
    switch (decimals) {
    case 0:
        return writeFast<0, 1>(out, value);
    case 1:
        return writeFast<1, 10>(out, value);
    case 2:
        return writeFast<2, 100>(out, value);
    default:
        return writeFast<3, 1000>(out, value);
    }
}

bool packFixed2(double value, PackedNumber &out)
{
    const double magnitude = std::fabs(value);
    if (!(magnitude < 1e12))
        return false;
    const uint64_t scaled = scaledMagnitude<100>(magnitude);
    // Characters are pushed from the last to the first, each shifting the
    // earlier ones up a byte, so the first ends in the lowest byte.
    unsigned __int128 text = 0;
    int length = 0;
    auto push = [&](unsigned c) {
        text = (text << 8) | c;
        ++length;
    };
    uint64_t whole = scaled / 100;
    const unsigned fraction = unsigned(scaled - whole * 100);
    push('0' + fraction % 10);
    push('0' + fraction / 10);
    push('.');
    do {
        push('0' + unsigned(whole % 10));
        whole /= 10;
    } while (whole != 0);
    if (value < 0 && scaled != 0)
        push('-');
    out.low = quint64(text);
    out.high = quint64(text >> 64);
    out.length = length;
    return true;
}

QByteArray fixedText(double value, int decimals)
{
    char buffer[kMaxFixedChars];
    const char *end = writeFixed(buffer, value, decimals);
    return QByteArray(buffer, int(end - buffer));
}

} // namespace lumitra
