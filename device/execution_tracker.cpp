#include "execution_tracker.h"

#include <QRegularExpression>
#include <cmath>

void ExecutionTracker::beginJob()
{
    m_absolute = true;
    m_inches = false;
    m_inFlight.clear();
    m_unsettled.clear();
    m_lastSent = 0;
    m_lastAcknowledged = 0;
    m_lastExecuted = 0;
    m_queuedBlocks = -1;
    m_frozen = false;
}

void ExecutionTracker::setStepSizes(double xMm, double yMm)
{
    if (xMm > 0.0)
        m_stepX = xMm;
    if (yMm > 0.0)
        m_stepY = yMm;
}

namespace {

struct LineWords
{
    QList<double> g;
    bool hasX = false, hasY = false;
    double x = 0.0, y = 0.0;
    double f = -1.0;     // none
    bool system = false; // a "$" line
};

// The words of a line as the controller reads them: letters (either case)
// with a number after them ("X 10", "x-.5"), comments in parentheses and after
// ";" left out. Written out by hand: it runs for every line streamed and for
// every line of a job on the card.
LineWords readWords(const QString &raw)
{
    LineWords w;
    const QChar *text = raw.constData();
    const int n = raw.size();
    int i = 0;
    while (i < n && text[i].isSpace())
        ++i;
    if (i < n && text[i] == QLatin1Char('$')) {
        w.system = true;
        return w;
    }
    auto digit = [&](int k) {
        return k < n && text[k] >= QLatin1Char('0') && text[k] <= QLatin1Char('9');
    };
    while (i < n) {
        const ushort c = text[i].unicode();
        if (c == ';')
            break;
        if (c == '(') {
            while (i < n && text[i] != QLatin1Char(')'))
                ++i;
            ++i;
            continue;
        }
        const ushort letter = c >= 'a' && c <= 'z' ? ushort(c - 'a' + 'A') : c;
        if (letter < 'A' || letter > 'Z') {
            ++i;
            continue;
        }
        int k = i + 1;
        while (k < n && (text[k] == QLatin1Char(' ') || text[k] == QLatin1Char('\t')))
            ++k;
        bool negative = false;
        if (k < n && (text[k] == QLatin1Char('-') || text[k] == QLatin1Char('+'))) {
            negative = text[k] == QLatin1Char('-');
            ++k;
        }
        // Digits as a whole number and a power of ten: one correctly rounded
        // division gives the same double as reading the text ("92.1").
        qint64 mantissa = 0;
        int decimals = 0;
        int digits = 0;
        while (digit(k)) {
            if (digits < 18) {
                mantissa = mantissa * 10 + (text[k].unicode() - '0');
                ++digits;
            }
            ++k;
        }
        bool any = digits > 0;
        if (k < n && text[k] == QLatin1Char('.') && digit(k + 1)) {
            ++k;
            while (digit(k)) {
                if (digits < 18) {
                    mantissa = mantissa * 10 + (text[k].unicode() - '0');
                    ++digits;
                    ++decimals;
                }
                any = true;
                ++k;
            }
        }
        if (!any) {
            ++i; // a letter without a number
            continue;
        }
        static const double kPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8, 1e9,
                                         1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18};
        double value = double(mantissa) / kPowers[decimals];
        if (negative)
            value = -value;
        switch (letter) {
        case 'G':
            w.g.append(value);
            break;
        case 'X':
            w.hasX = true;
            w.x = value;
            break;
        case 'Y':
            w.hasY = true;
            w.y = value;
            break;
        case 'F':
            w.f = value;
            break;
        default:
            break;
        }
        i = k;
    }
    return w;
}

} // namespace

int ExecutionTracker::sureBlocks(const QString &line)
{
    return sureBlocks(line, nullptr);
}

int ExecutionTracker::sureBlocks(const QString &line, double *shortestSeconds)
{
    if (shortestSeconds)
        *shortestSeconds = 0.0;
    const LineWords w = readWords(line);
    if (w.system) {
        // Homing or a jog moves the head somewhere this model does not follow.
        m_knownX = m_knownY = false;
        m_anchoredX = m_anchoredY = false;
        return 0;
    }
    bool setsPosition = false; // G92, G10, G28, G30, G53: not followed
    for (double g : w.g) {
        if (g == 90)
            m_absolute = true;
        else if (g == 91)
            m_absolute = false;
        else if (g == 20)
            m_inches = true;
        else if (g == 21)
            m_inches = false;
        else if (g == 92 || g == 10 || g == 28 || g == 30 || g == 53 || g == 92.1)
            setsPosition = true;
        else if (g == 2 || g == 3)
            m_sawArc = true;
        if (g == 0 || g == 1 || g == 2 || g == 3)
            m_rapid = g == 0;
    }
    if (w.f > 0.0)
        m_feed = w.f * (m_inches ? 25.4 : 1.0);
    if (setsPosition) {
        m_knownX = m_knownY = false;
        m_anchoredX = m_anchoredY = false;
        return 0;
    }
    if (!w.hasX && !w.hasY)
        return 0;
    const double unit = m_inches ? 25.4 : 1.0;
    double dx = 0.0, dy = 0.0;
    bool sureX = false, sureY = false;
    if (w.hasX) {
        if (m_absolute) {
            dx = w.x * unit - m_x;
            sureX = m_knownX;
            m_x = w.x * unit;
            m_knownX = m_anchoredX = true;
        } else {
            dx = w.x * unit;
            sureX = true;
            m_x += dx;
        }
    }
    if (w.hasY) {
        if (m_absolute) {
            dy = w.y * unit - m_y;
            sureY = m_knownY;
            m_y = w.y * unit;
            m_knownY = m_anchoredY = true;
        } else {
            dy = w.y * unit;
            sureY = true;
            m_y += dy;
        }
    }
    // One whole step on an axis always moves the rounded step position.
    const bool moves =
        (sureX && std::fabs(dx) >= m_stepX - 1e-9) || (sureY && std::fabs(dy) >= m_stepY - 1e-9);
    // The least it can take: at twice its feed (the most a feed override
    // gives); a rapid, or a move from an unknown place, may take no time.
    if (moves && shortestSeconds && !m_rapid && m_feed > 0.0 && sureX == w.hasX && sureY == w.hasY)
        *shortestSeconds = std::hypot(dx, dy) / (2.0 * m_feed / 60.0);
    return moves ? 1 : 0;
}

ExecutionTracker::ParserModel ExecutionTracker::parserModel() const
{
    ParserModel m;
    m.absolute = m_absolute;
    m.inches = m_inches;
    m.knownX = m_knownX;
    m.knownY = m_knownY;
    m.anchoredX = m_anchoredX;
    m.anchoredY = m_anchoredY;
    m.x = m_x;
    m.y = m_y;
    m.rapid = m_rapid;
    m.feed = m_feed;
    return m;
}

void ExecutionTracker::setParserModel(const ParserModel &model)
{
    m_absolute = model.absolute;
    m_inches = model.inches;
    m_knownX = model.knownX;
    m_knownY = model.knownY;
    m_anchoredX = model.anchoredX;
    m_anchoredY = model.anchoredY;
    m_x = model.x;
    m_y = model.y;
    m_rapid = model.rapid;
    m_feed = model.feed;
}

void ExecutionTracker::lineSent(int number, const QString &line)
{
    if (m_frozen || number <= 0)
        return;
    Sent sent{number, 0, 0.0};
    sent.blocks = sureBlocks(line, &sent.shortestSeconds);
    m_inFlight.push_back(sent);
    m_lastSent = number;
}

void ExecutionTracker::lineAcknowledged(int number)
{
    if (m_frozen || number <= 0)
        return;
    while (!m_inFlight.empty() && m_inFlight.front().number <= number) {
        const Sent s = m_inFlight.front();
        m_inFlight.pop_front();
        if (s.number == number) {
            m_unsettled.push_back({s.number, s.blocks, s.shortestSeconds});
            m_lastAcknowledged = number;
            break;
        }
    }
}

void ExecutionTracker::statusReport(const QString &report)
{
    if (m_frozen || !report.startsWith(QLatin1Char('<')))
        return;
    const QString state = report.mid(1).section(QRegularExpression(QStringLiteral("[|:>]")), 0, 0);
    // Idle does not mean an empty planner: the controller starts the cycle
    // only when its buffer fills or the serial input runs dry.
    if (state != QLatin1String("Run") && state != QLatin1String("Hold")
        && state != QLatin1String("Idle"))
        return; // Alarm, Door, Sleep, ...: nothing to learn about the job
    const int free = lumitra::grbl::blocksFree(report);
    settle(free < 0 ? kPlannerBlocks : qBound(0, kPlannerBlocks - free, kPlannerBlocks),
           state != QLatin1String("Idle"));
}

void ExecutionTracker::settle(int queuedBlocks, bool running)
{
    m_queuedBlocks = queuedBlocks;
    // Smallest tail of the answered lines holding `queuedBlocks` sure blocks.
    int sum = 0;
    int first = int(m_unsettled.size());
    while (first > 0 && sum < queuedBlocks) {
        --first;
        sum += m_unsettled[size_t(first)].blocks;
    }
    if (running) {
        // Blocks that left the planner for the step segments may not have run:
        // the one before the queued ones, and more before it only while the
        // blocks after them fit in the segments' time.
        double budget = kSegmentSeconds;
        int extra = 0;
        int later = -1;
        for (int k = first - 1; k >= 0 && extra < lumitra::grbl::kSegmentBlocks; --k) {
            if (m_unsettled[size_t(k)].blocks == 0)
                continue;
            if (later >= 0) {
                const double t = m_unsettled[size_t(later)].shortestSeconds;
                if (t > budget)
                    break;
                budget -= t;
            }
            later = k;
            first = k;
            ++extra;
        }
    }
    if (first >= int(m_unsettled.size())) {
        m_lastExecuted = qMax(m_lastExecuted, m_lastAcknowledged);
        m_unsettled.clear();
        return;
    }
    m_lastExecuted = qMax(m_lastExecuted, m_unsettled[size_t(first)].number - 1);
    m_unsettled.erase(m_unsettled.begin(), m_unsettled.begin() + first);
}

namespace lumitra::grbl {

int blocksToRun(const QString &report, int plannerBlocks)
{
    const int free = blocksFree(report);
    const int queued = free < 0 ? plannerBlocks : qBound(0, plannerBlocks - free, plannerBlocks);
    return report.startsWith(QLatin1String("<Idle")) ? queued : queued + kSegmentBlocks;
}

int blocksFree(const QString &report)
{
    static const QRegularExpression field(QStringLiteral("Bf:(\\d+)"));
    const auto m = field.match(report);
    return m.hasMatch() ? m.captured(1).toInt() : -1;
}

int statusMaskWithBuffer(const QString &report)
{
    return (report.contains(QLatin1String("WPos:")) ? 0 : 1) | 2;
}

} // namespace lumitra::grbl
