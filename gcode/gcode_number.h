// Fixed-point number text for G-code words.
//
// The text is exactly what QString::number(value, 'f', decimals) gives: the
// exact binary value rounded half away from zero, a minus sign for every value
// below zero (so -0.001 reads "-0.00") and none for negative zero. The fast
// path works on the double's bits with integer arithmetic; very large
// magnitudes fall back to Qt. Reentrant.
#pragma once

#include <QByteArray>

namespace lumitra {

// Longest text appendFixed can write (sign, 20 digits, point, decimals).
constexpr int kMaxFixedChars = 32;

// Writes the text of `value` with `decimals` (0..3) digits after the point at
// `out`, which must have room for kMaxFixedChars bytes. Returns one past the
// last byte written.
char *writeFixed(char *out, double value, int decimals);

// The same text as a byte array.
QByteArray fixedText(double value, int decimals);

} // namespace lumitra
