// Fixed-point number text for G-code words.
//
// The text is what QString::number(value, 'f', decimals) gives, the exact
// binary value rounded half away from zero, with one difference: a value that
// rounds to zero never carries a minus sign (Qt writes -0.001 as "-0.00"; here
// it is "0.00"), so a coordinate on an axis always reads the same. The fast
// path works on the double's bits with integer arithmetic; very large
// magnitudes fall back to Qt. Reentrant.
#pragma once

#include <QByteArray>

namespace lumitra {

// Longest text writeFixed can write (sign, 20 digits, point, decimals).
constexpr int kMaxFixedChars = 32;

// Writes the text of `value` with `decimals` (0..3; more count as 3) digits after the point at
// `out`, which must have room for kMaxFixedChars bytes. Returns one past the
// last byte written.
char *writeFixed(char *out, double value, int decimals);

// The same text as a byte array.
QByteArray fixedText(double value, int decimals);

// The two-decimal text of a number held in two little-endian machine words
// (character i in bits 8i.. of the pair, zero after the text), for code that
// compares and copies numbers as words. Only texts of up to 16 characters fit
// (magnitudes below 10^12); for others it returns false.
struct PackedNumber
{
    quint64 low = 0;
    quint64 high = 0;
    int length = 0;
};
bool packFixed2(double value, PackedNumber &out);

} // namespace lumitra
