// Modal compaction of one flushed piece of G-code.
//
// Rules, applied line by line (lines split at "\n", empty lines dropped):
//  - a line that does not begin with "G" is kept unchanged;
//  - a line that begins with "G" is rebuilt from its words, a word being a
//    capital letter followed by an optional "-" and one or more digits or
//    points (the pattern "([A-Z])([-]?[\d.]+)");
//  - G, X, Y, Z, S and F each remember the text of their last value; a word
//    whose value text equals it is dropped, otherwise it is kept and
//    remembered; words with any other letter are dropped from G lines;
//  - after a G91 word (increments), X, Y and Z words are always kept and not
//    remembered, since a repeated increment is another move; a G90 word ends
//    that and forgets the remembered X, Y and Z;
//  - every kept or rebuilt line ends with "\n" (a G line whose words all went
//    becomes an empty line).
// Comparison is on the text ("5.00" and "5.0" differ). The remembered values
// start empty for every call, so the first G line of each piece carries all its
// words. One pass over the bytes, no allocation beyond the output. Reentrant.
#pragma once

#include <QByteArray>

namespace lumitra {

// Appends the compacted form of `size` bytes at `text` to `out`.
void appendCompacted(const char *text, int size, QByteArray &out);

// The compacted form of one piece.
QByteArray compactGcode(const QByteArray &piece);

} // namespace lumitra
