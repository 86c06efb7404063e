// Number reading for SVG attributes.
#pragma once

#include <QString>
#include <QVector>

namespace lumitra {

// Markers that protect sequences while a coordinate list is split at minus signs:
// the exponent sign "e-" of scientific notation, and a minus that follows a space or a
// comma (which already starts a new number).
inline const QString kExponentMinusMarker = QStringLiteral("[KXJSFF]");
inline const QString kSpaceMinusMarker = QStringLiteral("[KGFS]");
inline const QString kCommaMinusMarker = QStringLiteral("[DHFS]");

// Reads one number token, putting protected sequences back first. An empty token reads
// as -1. *ok (if given) is false when the token is not a finite number.
double readNumberToken(const QString &token, bool *ok = nullptr);

// Splits a coordinate list such as a "points" attribute into numbers: separators are
// whitespace and commas, and a minus glued to a number starts a new one ("10-20" is 10 and
// -20), while "1e-5" stays one number. Reading stops at the first token that is not a
// finite number; *complete (if given) tells whether the whole list was read.
QVector<double> splitCoordinateList(const QString &text, bool *complete = nullptr);

// Sequential reader of SVG number grammar (path data, transform arguments, viewBox):
// optional sign, digits with an optional fraction, optional exponent; numbers may be
// separated by whitespace, one comma, or nothing when the next starts with a sign or a
// second decimal point ("0.5.5" is 0.5 and 0.5).
class SvgNumberScanner
{
public:
    SvgNumberScanner(const QChar *begin, const QChar *end) : m_p(begin), m_end(end) {}
    explicit SvgNumberScanner(const QString &text)
        : m_p(text.constData()), m_end(text.constData() + text.size())
    {
    }

    // Skips whitespace and at most one comma.
    void skipSeparators();
    void skipWhitespace();
    bool atEnd() const { return m_p >= m_end; }
    QChar peek() const { return atEnd() ? QChar() : *m_p; }
    void advance() { ++m_p; }
    bool startsNumber() const;
    // Reads a number after skipping separators; false (position unchanged past the
    // separators) when none is there or it is not finite.
    bool readNumber(double *value);
    // Arc flags: a single '0' or '1', which may be followed directly by the next number.
    bool readFlag(bool *value);
    const QChar *position() const { return m_p; }

private:
    const QChar *m_p;
    const QChar *m_end;
};

} // namespace lumitra
