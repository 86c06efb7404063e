#include "modal_compaction.h"

#include <cstdint>
#include <cstring>

namespace lumitra {

namespace {

// Values up to this many characters are compared and copied as two 64-bit
// words; longer ones (never written by the generator) byte by byte.
constexpr int kPackedLength = 16;
// The output may be written up to this far past its end before it is cut.
constexpr int kSlack = kPackedLength;

// Slot of each capital letter in the remembered values: G X Y Z S F, or -1.
constexpr signed char kSlots[26] = {-1, -1, -1, -1, -1, 5, 0,  -1, -1, -1, -1, -1, -1,
                                    -1, -1, -1, -1, -1, 4, -1, -1, -1, -1, 1,  2,  3};

inline bool isNumberChar(char c)
{
    return uchar(c - '0') <= 9 || c == '.';
}

inline uint64_t load64(const char *p)
{
    uint64_t v;
    std::memcpy(&v, p, sizeof v);
    return v;
}

// The first `n` (0..8) bytes of a word, the rest zero.
inline uint64_t keepBytes(uint64_t v, int n)
{
    return n >= 8 ? v : (n <= 0 ? 0 : v & ((uint64_t(1) << (8 * n)) - 1));
}

// A word's value text: where it lies in the input, and its first 16
// characters packed into two words (zero beyond the end).
struct Value
{
    const char *text = nullptr;
    int length = -1; // -1: nothing remembered yet
    uint64_t low = 0;
    uint64_t high = 0;

    bool operator==(const Value &o) const
    {
        // One combined test: which words repeat is data, so fewer branches
        // mean fewer mispredictions.
        const bool packedSame = (length == o.length) & (low == o.low) & (high == o.high);
        if (Q_LIKELY(length <= kPackedLength) || !packedSame)
            return packedSame;
        for (int i = kPackedLength; i < length; ++i) {
            if (text[i] != o.text[i])
                return false;
        }
        return true;
    }
};

// Reads the value of a word starting at `p` (an optional "-", then digits and
// points). Returns its end; `value.length` is 0 when there is no number.
inline const char *readValue(const char *p, const char *end, Value &value)
{
    const char *digits = p;
    if (digits < end && *digits == '-')
        ++digits;
    const char *q = digits;
    while (q < end && isNumberChar(*q))
        ++q;
    value.text = p;
    value.length = q == digits ? 0 : int(q - p);
    if (end - p >= kPackedLength) {
        value.low = keepBytes(load64(p), value.length);
        value.high = keepBytes(load64(p + 8), value.length - 8);
    } else {
        char padded[kPackedLength] = {};
        std::memcpy(padded, p, size_t(qMin(value.length, kPackedLength)));
        value.low = load64(padded);
        value.high = load64(padded + 8);
    }
    return q;
}

inline char *writeWord(char *out, char letter, const Value &value)
{
    *out++ = letter;
    if (value.length <= kPackedLength) {
        std::memcpy(out, &value.low, 8); // fixed sizes: inlined; the slack absorbs the excess
        std::memcpy(out + 8, &value.high, 8);
    } else {
        std::memcpy(out, value.text, size_t(value.length));
    }
    return out + value.length;
}

// Slots of the axis words, which increments never drop.
constexpr int kFirstAxisSlot = 1;
constexpr int kLastAxisSlot = 3;

// True when `value` is the text "9" followed by `digit`.
inline bool isNinety(const Value &value, char digit)
{
    return value.length == 2 && value.text[0] == '9' && value.text[1] == digit;
}

// Rebuilds the G line at `p` up to its line break or `end` into `out`.
// Returns the end of the line; `out` is advanced. `relative` follows G90/G91.
const char *rebuildLine(const char *p, const char *end, Value *last, bool &relative, char *&out)
{
    Value value;
    while (p < end && *p != '\n') {
        const uchar letter = uchar(*p - 'A');
        if (letter >= 26) {
            ++p;
            continue;
        }
        const char *valueEnd = readValue(p + 1, end, value);
        if (value.length == 0) { // no number after the letter: not a word
            ++p;
            continue;
        }
        const int slot = kSlots[letter];
        if (slot == 0 && isNinety(value, '1')) {
            relative = true;
        } else if (slot == 0 && isNinety(value, '0') && relative) {
            relative = false;
            // The remembered axis texts were positions before the increments.
            for (int axis = kFirstAxisSlot; axis <= kLastAxisSlot; ++axis)
                last[axis] = Value();
        }
        if (relative && slot >= kFirstAxisSlot && slot <= kLastAxisSlot) {
            out = writeWord(out, char('A' + letter), value); // every increment moves
        } else if (slot >= 0 && !(value == last[slot])) {
            last[slot] = value;
            out = writeWord(out, char('A' + letter), value);
        }
        p = valueEnd;
    }
    return p;
}

} // namespace

void appendCompacted(const char *text, int size, QByteArray &out)
{
    const int start = out.size();
    // A rebuilt piece is never longer than its input plus a final line break.
    out.resize(start + size + 1 + kSlack);
    char *write = out.data() + start;
    Value last[6];
    bool relative = false;

    const char *p = text;
    const char *end = text + size;
    while (p < end) {
        if (*p == '\n') { // an empty line is dropped
            ++p;
            continue;
        }
        const char *lineEnd;
        if (*p == 'G') {
            lineEnd = rebuildLine(p, end, last, relative, write);
        } else {
            lineEnd = static_cast<const char *>(std::memchr(p, '\n', size_t(end - p)));
            if (!lineEnd)
                lineEnd = end;
            std::memcpy(write, p, size_t(lineEnd - p));
            write += lineEnd - p;
        }
        *write++ = '\n';
        if (lineEnd >= end)
            break;
        p = lineEnd + 1;
    }
    out.resize(int(write - out.constData()));
}

QByteArray compactGcode(const QByteArray &piece)
{
    QByteArray out;
    appendCompacted(piece.constData(), piece.size(), out);
    return out;
}

} // namespace lumitra
