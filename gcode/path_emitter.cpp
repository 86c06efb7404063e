#include "path_emitter.h"

#include "curve_sampling.h"
#include "gcode_number.h"
#include "job_output.h"
#include "tu_ceng.h"

#include <QPainterPath>
#include <cstring>

namespace lumitra {

namespace {

// Room for the longest line: prefix, two numbers, "Y" and the words.
constexpr size_t kLineRoom = 8 + 2 * kMaxFixedChars;

QByteArray wordsFor(double power, double speed)
{
    return 'S' + fixedText(power, 2) + 'F' + fixedText(speed, 2) + '\n';
}

} // namespace

PathEmitter::PathEmitter(JobOutput &output, const RotarySettings &rotary,
                         const std::atomic_bool *cancel)
    : m_output(output)
    , m_cancel(cancel)
    , m_pathBump(rotaryPathBump(rotary))
    , m_bareEnd("\n")
{
    m_buffer.resize(2 * kFlushThreshold);
    setLayer(TuCeng());
}

void PathEmitter::setLayer(const TuCeng &layer)
{
    const double power = layer.gonglv * 10.0;
    const double speed = layer.sudu;
    m_fullWords = wordsFor(power, speed);
    m_coastWords = wordsFor(0.0, speed);
    for (int grey = 0; grey < 256; ++grey)
        m_greyWords[grey] = wordsFor(power * (255 - grey) / 255, speed);
}

void PathEmitter::writeLine(const char *prefix, double x, double y, const QByteArray &suffix)
{
    const size_t room = kLineRoom + size_t(suffix.size());
    if (m_used + room > m_buffer.size())
        m_buffer.resize(2 * m_buffer.size() + room);
    char *p = m_buffer.data() + m_used;
    std::memcpy(p, prefix, 3);
    p = writeFixed(p + 3, x, 2);
    *p++ = 'Y';
    if (!m_haveCachedY || y != m_cachedY) {
        m_cachedY = y;
        m_haveCachedY = true;
        m_cachedYLength = int(writeFixed(m_cachedYText, -y, 2) - m_cachedYText);
    }
    std::memcpy(p, m_cachedYText, size_t(m_cachedYLength));
    p += m_cachedYLength;
    std::memcpy(p, suffix.constData(), size_t(suffix.size()));
    m_used = size_t(p + suffix.size() - m_buffer.data());
}

void PathEmitter::elementDone()
{
    ++m_index;
    if (m_used > size_t(kFlushThreshold))
        flush();
}

void PathEmitter::flush()
{
    if (m_used == 0)
        return;
    m_output.writePiece(m_buffer.data(), int(m_used));
    m_used = 0;
}

void PathEmitter::beginPath()
{
    m_index = 0;
}

void PathEmitter::endPath()
{
    flush();
}

void PathEmitter::travel(double x, double y)
{
    if (cancelled())
        return;
    writeLine("G0X", x, y, m_fullWords);
    if (m_index == 0 && !m_pathBump.isEmpty()) {
        if (m_used + size_t(m_pathBump.size()) > m_buffer.size())
            m_buffer.resize(2 * m_buffer.size() + size_t(m_pathBump.size()));
        std::memcpy(m_buffer.data() + m_used, m_pathBump.constData(), size_t(m_pathBump.size()));
        m_used += size_t(m_pathBump.size());
    }
    elementDone();
}

void PathEmitter::burn(double x, double y)
{
    if (cancelled())
        return;
    writeLine("G1X", x, y, m_fullWords);
    elementDone();
}

void PathEmitter::coast(double x, double y)
{
    if (cancelled())
        return;
    writeLine("G1X", x, y, m_coastWords);
    elementDone();
}

void PathEmitter::burnGrey(double x, double y, int grey)
{
    if (cancelled())
        return;
    writeLine("G1X", x, y, m_greyWords[qBound(0, grey, 255)]);
    elementDone();
}

void PathEmitter::emitPath(const QPainterPath &path)
{
    beginPath();
    const int count = path.elementCount();
    for (int i = 0; i < count && !cancelled(); ++i) {
        const QPainterPath::Element &e = path.elementAt(i);
        switch (e.type) {
        case QPainterPath::MoveToElement:
            travel(e.x, e.y);
            break;
        case QPainterPath::LineToElement:
            burn(e.x, e.y);
            break;
        case QPainterPath::CurveToElement: {
            if (i == 0 || i + 2 >= count)
                break; // a curve needs its start point and both data elements
            const QPointF start = path.elementAt(i - 1);
            const QPointF control = path.elementAt(i + 1);
            const QPointF end = path.elementAt(i + 2);
            m_samples.resize(0);
            sampleCubicByLength(start, e, control, end, kCurveSampleStep, m_samples);
            for (const QPointF &s : qAsConst(m_samples))
                writeLine("G1X", s.x(), s.y(), m_bareEnd);
            i += 2;
            elementDone();
            break;
        }
        case QPainterPath::CurveToDataElement:
            break; // consumed with its curve
        }
    }
    endPath();
}

} // namespace lumitra
