#include "job_simulator.h"

#include <QIODevice>
#include <cmath>

bool readJobLine(QIODevice &device, QString *line)
{
    if (device.atEnd())
        return false;
    QByteArray bytes = device.readLine();
    while (bytes.endsWith('\n') || bytes.endsWith('\r'))
        bytes.chop(1);
    *line = QString::fromLatin1(bytes);
    return true;
}

namespace {
// Reads the number after a word letter; returns the index after it.
int readNumber(const QString &text, int i, double *value, bool *ok)
{
    const int start = i;
    while (i < text.size()
           && (text.at(i).isDigit() || text.at(i) == QLatin1Char('.')
               || text.at(i) == QLatin1Char('-') || text.at(i) == QLatin1Char('+')))
        ++i;
    *value = text.midRef(start, i - start).toDouble(ok);
    return i;
}
} // namespace

bool JobSimulator::step(const QString &raw, Move *move)
{
    ++m_summary.lines;
    QString line = raw;
    const int comment = line.indexOf(QLatin1Char(';'));
    if (comment >= 0)
        line.truncate(comment);
    line = line.toUpper();
    if (line.startsWith(QLatin1String("$J="))) // jogs move the head like G1 moves
        line = line.mid(3);

    bool hasX = false, hasY = false;
    double x = 0, y = 0;
    for (int i = 0; i < line.size();) {
        const QChar letter = line.at(i);
        if (!letter.isLetter()) {
            ++i;
            continue;
        }
        double v = 0;
        bool ok = false;
        i = readNumber(line, i + 1, &v, &ok);
        if (!ok)
            continue;
        switch (letter.unicode()) {
        case 'G':
            if (v == 0)
                m_rapid = true;
            else if (v == 1 || v == 2 || v == 3) // arcs burn too (drawn as their chord)
                m_rapid = false;
            else if (v == 20)
                m_unit = 25.4;
            else if (v == 21)
                m_unit = 1.0;
            else if (v == 90)
                m_absolute = true;
            else if (v == 91)
                m_absolute = false;
            break;
        case 'M':
            if (v == 3 || v == 4)
                m_laserOn = true;
            else if (v == 5 || v == 2 || v == 30)
                m_laserOn = false;
            break;
        case 'S':
            m_power = v;
            break;
        case 'F':
            m_feed = v * m_unit;
            break;
        case 'X':
            hasX = true;
            x = v;
            break;
        case 'Y':
            hasY = true;
            y = v;
            break;
        default:
            break;
        }
    }
    if (!hasX && !hasY)
        return false;

    x *= m_unit;
    y *= m_unit;
    QPointF to = m_pos;
    if (m_absolute) {
        if (hasX)
            to.setX(x);
        if (hasY)
            to.setY(y);
    } else {
        to += QPointF(hasX ? x : 0.0, hasY ? y : 0.0);
    }
    move->from = m_pos;
    move->to = to;
    move->rapid = m_rapid;
    move->burning = !m_rapid && m_laserOn && m_power > 0;
    move->power = m_power;
    move->feed = m_rapid ? kRapidFeed : m_feed;
    m_pos = to;

    const double length = std::hypot(to.x() - move->from.x(), to.y() - move->from.y());
    ++m_summary.moves;
    if (move->burning)
        m_summary.burnLength += length;
    else
        m_summary.travelLength += length;
    if (move->feed > 0)
        m_summary.seconds += length / move->feed * 60.0;
    return true;
}
