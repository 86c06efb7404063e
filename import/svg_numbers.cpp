#include "svg_numbers.h"

#include <QRegularExpression>
#include <charconv>
#include <cmath>
#include <cstring>

namespace lumitra {

namespace {

inline bool isDigit(ushort c)
{
    return c >= '0' && c <= '9';
}
inline bool isSpace(ushort c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

} // namespace

double readNumberToken(const QString &token, bool *ok)
{
    if (token.isEmpty()) {
        if (ok)
            *ok = true;
        return -1.0;
    }
    QString text = token;
    text.replace(kExponentMinusMarker, QLatin1String("e-"));
    text.replace(kSpaceMinusMarker, QLatin1String("-"));
    text.replace(kCommaMinusMarker, QLatin1String("-"));
    bool good = false;
    const double v = text.toDouble(&good);
    good = good && std::isfinite(v);
    if (ok)
        *ok = good;
    return good ? v : 0.0;
}

QVector<double> splitCoordinateList(const QString &text, bool *complete)
{
    QString s = text.simplified();
    s.replace(QLatin1String("e-"), kExponentMinusMarker);
    s.replace(QLatin1String("E-"), kExponentMinusMarker);
    s.replace(QLatin1String(" -"), QLatin1Char(' ') + kSpaceMinusMarker);
    s.replace(QLatin1String(",-"), QLatin1Char(',') + kCommaMinusMarker);
    s.replace(QLatin1String("-"), QLatin1String(",-"));

    static const QRegularExpression separators(QStringLiteral("[ ,]"));
    const QStringList tokens = s.split(separators, Qt::SkipEmptyParts);
    QVector<double> numbers;
    numbers.reserve(tokens.size());
    for (const QString &t : tokens) {
        bool ok = false;
        const double v = readNumberToken(t, &ok);
        if (!ok) {
            if (complete)
                *complete = false;
            return numbers;
        }
        numbers.append(v);
    }
    if (complete)
        *complete = true;
    return numbers;
}

void SvgNumberScanner::skipWhitespace()
{
    while (m_p < m_end && isSpace(m_p->unicode()))
        ++m_p;
}

void SvgNumberScanner::skipSeparators()
{
    skipWhitespace();
    if (m_p < m_end && *m_p == QLatin1Char(',')) {
        ++m_p;
        skipWhitespace();
    }
}

bool SvgNumberScanner::startsNumber() const
{
    const QChar *p = m_p;
    while (p < m_end && (isSpace(p->unicode()) || *p == QLatin1Char(',')))
        ++p;
    if (p >= m_end)
        return false;
    const ushort c = p->unicode();
    return isDigit(c) || c == '-' || c == '+' || c == '.';
}

bool SvgNumberScanner::readNumber(double *value)
{
    skipSeparators();
    const QChar *p = m_p;
    char buf[64];
    int n = 0;
    auto put = [&](ushort c) {
        if (n < int(sizeof buf) - 1)
            buf[n] = char(c);
        ++n;
    };
    if (p < m_end && (p->unicode() == '-' || p->unicode() == '+')) {
        if (p->unicode() == '-')
            put('-');
        ++p;
    }
    int digits = 0;
    while (p < m_end && isDigit(p->unicode())) {
        put(p->unicode());
        ++p;
        ++digits;
    }
    if (p < m_end && p->unicode() == '.') {
        put('.');
        ++p;
        while (p < m_end && isDigit(p->unicode())) {
            put(p->unicode());
            ++p;
            ++digits;
        }
    }
    if (digits == 0)
        return false;
    if (p < m_end && (p->unicode() == 'e' || p->unicode() == 'E')) {
        // An exponent only when digits follow (so "2em" or "1e" end the number at 'e').
        const QChar *q = p + 1;
        if (q < m_end && (q->unicode() == '-' || q->unicode() == '+'))
            ++q;
        if (q < m_end && isDigit(q->unicode())) {
            put('e');
            for (const QChar *r = p + 1; r < q; ++r)
                put(r->unicode());
            p = q;
            while (p < m_end && isDigit(p->unicode())) {
                put(p->unicode());
                ++p;
            }
        }
    }
    double v = 0.0;
    if (n >= int(sizeof buf)) {
        // Absurdly long digit runs: fall back to Qt's reader on the whole text.
        bool ok = false;
        v = QString(m_p, int(p - m_p)).toDouble(&ok);
        if (!ok)
            return false;
    } else {
        const auto res = std::from_chars(buf, buf + n, v);
        if (res.ec == std::errc::result_out_of_range) {
            // Underflow reads as zero; overflow is refused.
            if (!std::memchr(buf, 'e', size_t(n)) || !std::memchr(buf, '-', size_t(n)))
                return false;
            const char *e = static_cast<const char *>(std::memchr(buf, 'e', size_t(n)));
            if (e + 1 >= buf + n || e[1] != '-')
                return false;
            v = 0.0;
        } else if (res.ec != std::errc()) {
            return false;
        }
    }
    if (!std::isfinite(v))
        return false;
    m_p = p;
    *value = v;
    return true;
}

bool SvgNumberScanner::readFlag(bool *value)
{
    skipSeparators();
    if (m_p < m_end && (m_p->unicode() == '0' || m_p->unicode() == '1')) {
        *value = m_p->unicode() == '1';
        ++m_p;
        return true;
    }
    return false;
}

} // namespace lumitra
