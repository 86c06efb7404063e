#include "hatch_order.h"

#include <cmath>
#include <limits>

namespace lumitra {

namespace {

struct Candidate
{
    int line = -1;
    int span = -1;
    bool reversed = false;
    double distance = std::numeric_limits<double>::infinity();
};

class SpanOrderer
{
public:
    SpanOrderer(const QVector<HatchLine> &lines, bool oneDirection)
        : m_lines(lines), m_oneDirection(oneDirection)
    {
        m_remaining.resize(lines.size());
        m_firstFlag.resize(lines.size());
        int total = 0;
        for (int i = 0; i < lines.size(); ++i) {
            m_firstFlag[i] = total;
            m_remaining[i] = lines[i].spans.size();
            total += lines[i].spans.size();
        }
        m_done.fill(false, total);
        m_left = total;
    }

    QVector<OrderedSpan> run()
    {
        QVector<OrderedSpan> order;
        order.reserve(m_left);
        int line = firstLineWithSpans();
        if (line < 0)
            return order;
        // Start as if standing at the first span's start.
        double u = m_lines[line].spans.first().u0;
        double v = m_lines[line].v;
        int sweep = 1;
        int currentSpan = -1;
        while (m_left > 0) {
            Candidate next;
            if (currentSpan >= 0)
                next = overlappingOnLine(line + sweep, m_lines[line].spans[currentSpan], u, v);
            if (next.line < 0)
                next = nearestAnywhere(line, u, v);
            if (next.line != line)
                sweep = next.line > line ? 1 : -1;
            line = next.line;
            currentSpan = next.span;
            take(line, currentSpan);
            order.append({line, currentSpan, next.reversed});
            const HatchSpan &s = m_lines[line].spans[currentSpan];
            u = next.reversed ? s.u0 : s.u1;
            v = m_lines[line].v;
        }
        return order;
    }

private:
    int firstLineWithSpans() const
    {
        for (int i = 0; i < m_lines.size(); ++i) {
            if (m_remaining[i] > 0)
                return i;
        }
        return -1;
    }

    void take(int line, int span)
    {
        m_done[m_firstFlag[line] + span] = true;
        --m_remaining[line];
        --m_left;
    }

    bool isDone(int line, int span) const { return m_done[m_firstFlag[line] + span]; }

    // Considers entering span `span` of `line` from (u, v).
    void consider(int line, int span, double u, double v, Candidate &best) const
    {
        const HatchSpan &s = m_lines[line].spans[span];
        const double dv = m_lines[line].v - v;
        const double toStart = std::hypot(s.u0 - u, dv);
        double distance = toStart;
        bool reversed = false;
        if (!m_oneDirection) {
            const double toEnd = std::hypot(s.u1 - u, dv);
            if (toEnd < toStart) {
                distance = toEnd;
                reversed = true;
            }
        }
        if (distance < best.distance)
            best = {line, span, reversed, distance};
    }

    Candidate overlappingOnLine(int line, const HatchSpan &current, double u, double v) const
    {
        Candidate best;
        if (line < 0 || line >= m_lines.size() || m_remaining[line] == 0)
            return best;
        const QVector<HatchSpan> &spans = m_lines[line].spans;
        for (int i = 0; i < spans.size(); ++i) {
            if (isDone(line, i) || spans[i].u1 < current.u0 || spans[i].u0 > current.u1)
                continue;
            consider(line, i, u, v, best);
        }
        return best;
    }

    void considerLine(int line, double u, double v, Candidate &best) const
    {
        if (m_remaining[line] == 0)
            return;
        const int count = m_lines[line].spans.size();
        for (int i = 0; i < count; ++i) {
            if (!isDone(line, i))
                consider(line, i, u, v, best);
        }
    }

    // Searches outwards from `line` until the lines are farther off than the
    // best span found so far.
    Candidate nearestAnywhere(int line, double u, double v) const
    {
        Candidate best;
        const int count = m_lines.size();
        for (int delta = 0;; ++delta) {
            const int below = line - delta;
            const int above = line + delta;
            if (below < 0 && above >= count)
                break;
            const double nearestOffset =
                qMin(below >= 0 ? std::fabs(m_lines[below].v - v)
                                : std::numeric_limits<double>::infinity(),
                     above < count ? std::fabs(m_lines[above].v - v)
                                   : std::numeric_limits<double>::infinity());
            if (nearestOffset > best.distance)
                break;
            if (below >= 0)
                considerLine(below, u, v, best);
            if (delta > 0 && above < count)
                considerLine(above, u, v, best);
        }
        return best;
    }

    const QVector<HatchLine> &m_lines;
    const bool m_oneDirection;
    QVector<int> m_remaining;
    QVector<int> m_firstFlag;
    QVector<bool> m_done;
    int m_left = 0;
};

} // namespace

QVector<OrderedSpan> orderHatchSpans(const QVector<HatchLine> &lines, bool oneDirection)
{
    return SpanOrderer(lines, oneDirection).run();
}

} // namespace lumitra
