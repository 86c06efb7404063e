#include "path_emitter.h"

#include "curve_sampling.h"
#include "job_output.h"
#include "tu_ceng.h"

#include <QPainterPath>
#include <cmath>
#include <cstring>

namespace lumitra {

namespace {

// Room for the longest line: "G1", four words with their letters, newline;
// a short number is copied as two whole machine words.
constexpr size_t kLineRoom = 8 + 4 * (kMaxFixedChars + 1) + 16;

} // namespace

void PathEmitter::NumberText::set(double value)
{
    wide = !packFixed2(value, packed);
    if (wide)
        wideLength = int(writeFixed(text, value, 2) - text);
}

void PathEmitter::NumberText::setShort(double value)
{
    set(value);
    if (!wide)
        trimPacked(packed);
}

Q_ALWAYS_INLINE bool PathEmitter::KeptValue::keep(const NumberText &value)
{
    if (valid && !value.wide && packed.length == value.packed.length
        && packed.low == value.packed.low && packed.high == value.packed.high)
        return false;
    packed = value.packed;
    valid = !value.wide;
    return true;
}

Q_ALWAYS_INLINE char *PathEmitter::writeWord(char *out, char letter, const NumberText &value)
{
    *out++ = letter;
    if (value.wide) {
        std::memcpy(out, value.text, size_t(value.wideLength));
        return out + value.wideLength;
    }
    std::memcpy(out, &value.packed.low, 8); // whole words; the line room absorbs the rest
    std::memcpy(out + 8, &value.packed.high, 8);
    return out + value.packed.length;
}

PathEmitter::PathEmitter(JobOutput &output, const RotarySettings &rotary,
                         const std::atomic_bool *cancel)
    : m_output(output), m_cancel(cancel), m_pathBump(rotaryPathBump(rotary)),
      m_relativeAllowed(!rotary.rewrites())
{
    m_buffer.resize(2 * kFlushThreshold);
    m_xCache.resize(size_t(1) << kXCacheBits);
    m_increments.resize(size_t(2 * kIncrementCache));
    for (int d = -kIncrementCache + 1; d < kIncrementCache; ++d)
        m_increments[size_t(d + kIncrementCache)].setShort(double(d) / 100.0);
    setLayer(TuCeng());
}

void PathEmitter::setLayer(const TuCeng &layer, double feedCap)
{
    const double power = layer.gonglv * 10.0;
    m_power.set(power);
    m_zeroPower.set(0.0);
    for (int grey = 0; grey < 256; ++grey)
        m_greyPower[grey].set(power * (255 - grey) / 255);
    m_feed.set(layer.sudu);
    m_layerPower = power;
    m_layerFeed = layer.sudu;
    m_feedCap = feedCap;
    m_fineCurves = layer.jingxi;
    setRasterWords(m_raster, m_steps);
}

void PathEmitter::setRasterWords(bool on, const PowerSteps &steps)
{
    m_raster = on;
    m_steps = steps;
    m_haveCachedY = false; // the cached text has the other form
    if (!on)
        return;
    m_rasterPower.setShort(std::round(qMax(0.0, m_layerPower))); // whole, as the layer asks
    m_rasterZero.setShort(0.0);
    const std::array<int, 256> grey = greyPowerTable(m_layerPower, steps);
    for (int g = 0; g < 256; ++g)
        m_rasterGrey[g].setShort(grey[size_t(g)]);
    m_rasterFeed.setShort(m_feedCap > 0 ? qMin(m_layerFeed, m_feedCap) : m_layerFeed);
}

char *PathEmitter::reserve(size_t room)
{
    if (m_used + room > m_buffer.size())
        m_buffer.resize(2 * m_buffer.size() + room);
    return m_buffer.data() + m_used;
}

Q_ALWAYS_INLINE void PathEmitter::formatX(double x, NumberText &out, qint64 &hundredths)
{
    quint64 bits;
    std::memcpy(&bits, &x, sizeof bits);
    CachedX &slot = m_xCache[size_t((bits * 0x9E3779B97F4A7C15ull) >> (64 - kXCacheBits))];
    // Compared by bits: 0.0 and -0.0 are the same text anyway, NaN is never cached.
    quint64 slotBits;
    std::memcpy(&slotBits, &slot.value, sizeof slotBits);
    if (slotBits == bits) {
        out.wide = false;
        out.packed = slot.text;
        hundredths = slot.hundredths;
        return;
    }
    out.set(x);
    if (!out.wide) {
        hundredths = packedHundredths(out.packed);
        slot.value = x;
        slot.text = out.packed;
        slot.hundredths = hundredths;
    } else {
        hundredths = std::llround(x * 100.0); // only relative raster rows use it
    }
}

const PathEmitter::NumberText &PathEmitter::incrementText(qint64 delta)
{
    if (delta > -kIncrementCache && delta < kIncrementCache)
        return m_increments[size_t(delta + kIncrementCache)];
    m_wideIncrement.setShort(double(delta) / 100.0);
    return m_wideIncrement;
}

char *PathEmitter::writeRelativeWords(char *p, qint64 x, qint64 y)
{
    if (x != m_atX)
        p = writeWord(p, 'X', incrementText(x - m_atX));
    if (y != m_atY)
        p = writeWord(p, 'Y', incrementText(y - m_atY));
    return p;
}

void PathEmitter::enterRelative()
{
    if (m_relative)
        return;
    appendRaw(QByteArrayLiteral("G91\n"));
    m_relative = true;
}

void PathEmitter::leaveRelative()
{
    if (!m_relative)
        return;
    appendRaw(QByteArrayLiteral("G90\n"));
    m_relative = false;
    // Absolute words written from here on must not be taken as repeats of
    // the ones before the increments.
    m_keptX.valid = m_keptY.valid = false;
}

void PathEmitter::setShift(const QPointF &machineShift)
{
    m_shifted = !machineShift.isNull();
    m_shiftX = machineShift.x();
    m_shiftY = -machineShift.y();
}

void PathEmitter::writeLine(char motion, double x, double y, const NumberText *power, bool atFeed)
{
    if (m_shifted) {
        x += m_shiftX;
        y += m_shiftY;
    }
    // A relative path taken up again after a flush.
    if (m_pathRelative && !m_relative)
        enterRelative();
    char *start = reserve(kLineRoom);
    start[0] = 'G';
    start[1] = motion;
    char *p = start + 2;

    NumberText xText;
    qint64 xHundredths = 0;
    formatX(x, xText, xHundredths);
    if (m_raster && !xText.wide)
        trimPacked(xText.packed);
    if (!m_haveCachedY || y != m_cachedY) {
        m_cachedY = y;
        m_haveCachedY = true;
        if (m_raster)
            m_yText.setShort(-y);
        else
            m_yText.set(-y);
        m_yHundredths = m_yText.wide ? std::llround(-y * 100.0) : packedHundredths(m_yText.packed);
    }
    if (m_relative) {
        p = writeRelativeWords(p, xHundredths, m_yHundredths);
    } else {
        if (m_keptX.keep(xText))
            p = writeWord(p, 'X', xText);
        if (m_keptY.keep(m_yText))
            p = writeWord(p, 'Y', m_yText);
    }
    m_atX = xHundredths;
    m_atY = m_yHundredths;
    // Full line: "G?X" x "Y" y ["S" s "F" f] "\n" (increments: as written).
    m_fullLength +=
        m_relative ? size_t(p - start + 1) : size_t(3 + xText.length() + 1 + m_yText.length() + 1);
    if (power) {
        if (m_keptS.keep(*power))
            p = writeWord(p, 'S', *power);
        const NumberText &feed = m_raster ? m_rasterFeed : m_feed;
        if (m_keptF.keep(feed))
            p = writeWord(p, 'F', feed);
        m_fullLength += size_t(2 + power->length() + feed.length());
    }
    if (atFeed)
        m_feedLength += std::hypot(x - m_lastX, y - m_lastY);
    m_lastX = x;
    m_lastY = y;
    *p++ = '\n';
    m_used += size_t(p - start);
}

void PathEmitter::appendRaw(const QByteArray &text)
{
    std::memcpy(reserve(size_t(text.size())), text.constData(), size_t(text.size()));
    m_used += size_t(text.size());
    m_fullLength += size_t(text.size());
}

void PathEmitter::elementDone()
{
    ++m_index;
    if (m_fullLength > size_t(kFlushThreshold))
        flush();
}

void PathEmitter::flush()
{
    leaveRelative(); // every piece ends in absolute mode
    if (m_used > 0)
        m_output.writePiece(m_buffer.data(), int(m_used));
    m_used = 0;
    m_fullLength = 0;
    // The compaction starts afresh with every piece.
    m_keptX.valid = m_keptY.valid = m_keptS.valid = m_keptF.valid = false;
}

void PathEmitter::beginPath()
{
    m_index = 0;
    m_pathRelative = false;
}

void PathEmitter::endPath()
{
    m_pathRelative = false;
    flush();
}

void PathEmitter::travel(double x, double y)
{
    if (cancelled())
        return;
    writeLine('0', x, y, m_raster ? &m_rasterPower : &m_power, false);
    if (m_index == 0 && !m_pathBump.isEmpty())
        appendRaw(m_pathBump);
    // A raster path goes on in increments from its first move.
    if (m_raster && m_relativeAllowed && !m_pathRelative) {
        m_pathRelative = true;
        enterRelative();
    }
    elementDone();
}

void PathEmitter::burn(double x, double y)
{
    if (cancelled())
        return;
    writeLine('1', x, y, m_raster ? &m_rasterPower : &m_power, true);
    elementDone();
}

void PathEmitter::coast(double x, double y)
{
    if (cancelled())
        return;
    writeLine('1', x, y, m_raster ? &m_rasterZero : &m_zeroPower, true);
    elementDone();
}

void PathEmitter::gap(double x, double y)
{
    if (!m_raster) {
        coast(x, y);
        return;
    }
    if (cancelled())
        return;
    writeLine('0', x, y, nullptr, true);
    elementDone();
}

void PathEmitter::burnGrey(double x, double y, int grey)
{
    if (cancelled())
        return;
    const int g = qBound(0, grey, 255);
    writeLine('1', x, y, m_raster ? &m_rasterGrey[g] : &m_greyPower[g], true);
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
            if (m_fineCurves)
                sampleCubicByDeviation(start, e, control, end, kFineCurveDeviation, m_samples);
            else
                sampleCubicByLength(start, e, control, end, kCurveSampleStep, m_samples);
            for (const QPointF &s : qAsConst(m_samples))
                writeLine('1', s.x(), s.y(), nullptr, true);
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
