#include "modal_compaction.h"

#include <cstring>

namespace lumitra {

namespace {

// Slot of a modal letter in the remembered values, or -1 for any other letter.
inline int modalSlot(char letter)
{
    switch (letter) {
    case 'G':
        return 0;
    case 'X':
        return 1;
    case 'Y':
        return 2;
    case 'Z':
        return 3;
    case 'S':
        return 4;
    case 'F':
        return 5;
    default:
        return -1;
    }
}

inline bool isNumberChar(char c)
{
    return (c >= '0' && c <= '9') || c == '.';
}

struct RememberedValue
{
    const char *text = nullptr; // points into the input, valid for one call
    int length = -1;            // -1: nothing remembered yet
};

// Rebuilds one G line [begin, end) into `out`; returns the new write position.
char *rebuildLine(const char *begin, const char *end, RememberedValue *last, char *out)
{
    const char *p = begin;
    while (p < end) {
        const char letter = *p;
        if (letter < 'A' || letter > 'Z') {
            ++p;
            continue;
        }
        const char *valueBegin = p + 1;
        const char *digits = valueBegin;
        if (digits < end && *digits == '-')
            ++digits;
        const char *valueEnd = digits;
        while (valueEnd < end && isNumberChar(*valueEnd))
            ++valueEnd;
        if (valueEnd == digits) { // no number after the letter: not a word
            ++p;
            continue;
        }
        const int slot = modalSlot(letter);
        if (slot >= 0) {
            const int length = int(valueEnd - valueBegin);
            RememberedValue &value = last[slot];
            if (value.length != length
                || std::memcmp(value.text, valueBegin, size_t(length)) != 0) {
                value.text = valueBegin;
                value.length = length;
                *out++ = letter;
                std::memcpy(out, valueBegin, size_t(length));
                out += length;
            }
        }
        p = valueEnd;
    }
    return out;
}

} // namespace

void appendCompacted(const char *text, int size, QByteArray &out)
{
    const int start = out.size();
    out.resize(start + size + 1); // a rebuilt piece is never longer than this
    char *write = out.data() + start;
    RememberedValue last[6];

    const char *p = text;
    const char *end = text + size;
    while (p < end) {
        const char *lineEnd = static_cast<const char *>(std::memchr(p, '\n', size_t(end - p)));
        if (!lineEnd)
            lineEnd = end;
        if (lineEnd != p) {
            if (*p == 'G') {
                write = rebuildLine(p, lineEnd, last, write);
            } else {
                std::memcpy(write, p, size_t(lineEnd - p));
                write += lineEnd - p;
            }
            *write++ = '\n';
        }
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
