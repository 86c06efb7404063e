#include "grbl_time_estimator.h"

#include "gcode_words.h"

#include "job_simulator.h"

#include <QIODevice>
#include <QVector>
#include <algorithm>
#include <cmath>

namespace {

constexpr double kMinimumFeed = 1.0; // mm/min, the controller's floor
constexpr double kHugeSq = 1e38;
constexpr double kArcEpsilon = 5e-7;

// The largest value along `unit` that keeps every axis within its limit.
double limitByAxes(const double limits[3], const double unit[3])
{
    double value = kHugeSq;
    for (int i = 0; i < 3; ++i)
        if (unit[i] != 0.0)
            value = std::min(value, std::fabs(limits[i] / unit[i]));
    return value;
}

} // namespace

double trapezoid_seconds(double length, double v0, double v1, double nominal, double accel)
{
    if (length <= 0.0 || nominal <= 0.0)
        return 0.0;
    if (accel <= 0.0)
        return length / nominal;
    v0 = std::min(v0, nominal);
    v1 = std::min(v1, nominal);
    const double up = (nominal * nominal - v0 * v0) / (2.0 * accel);
    const double down = (nominal * nominal - v1 * v1) / (2.0 * accel);
    if (up + down <= length)
        return (nominal - v0) / accel + (nominal - v1) / accel + (length - up - down) / nominal;
    // Too short to reach the nominal speed: accelerate to a peak, then brake.
    const double peak =
        std::sqrt(std::max({(2.0 * accel * length + v0 * v0 + v1 * v1) / 2.0, v0 * v0, v1 * v1}));
    return (peak - v0) / accel + (peak - v1) / accel;
}

GrblTimeEstimator::GrblTimeEstimator(const GrblMachineSettings &settings, bool lineTimes)
    : m_settings(settings), m_lineTimes(lineTimes)
{
}

void GrblTimeEstimator::addLine(const double target[3], bool rapid)
{
    double delta[3];
    double lengthSq = 0.0;
    for (int i = 0; i < 3; ++i) {
        delta[i] = target[i] - m_pos[i];
        lengthSq += delta[i] * delta[i];
    }
    for (int i = 0; i < 3; ++i)
        m_pos[i] = target[i];
    const double length = std::sqrt(lengthSq);
    if (length < 1e-9)
        return;
    double unit[3];
    for (int i = 0; i < 3; ++i)
        unit[i] = delta[i] / length;

    Block b;
    b.line = m_lines - 1;
    b.length = length;
    b.accel = limitByAxes(m_settings.acceleration, unit);
    const double rapidRate = limitByAxes(m_settings.maxRate, unit); // mm/min
    const double rate = rapid ? rapidRate : std::min(m_feed, rapidRate);
    b.nominal = std::max(rate, kMinimumFeed) / 60.0;

    if (m_queue.empty()) {
        b.maxEntrySq = 0.0; // starts from rest
    } else {
        double junctionSq;
        const double cosTheta =
            -(unit[0] * m_prevUnit[0] + unit[1] * m_prevUnit[1] + unit[2] * m_prevUnit[2]);
        if (cosTheta > 0.999999) {
            junctionSq = 0.0; // reversal
        } else if (cosTheta < -0.999999) {
            junctionSq = kHugeSq; // straight on
        } else {
            double junctionUnit[3];
            double norm = 0.0;
            for (int i = 0; i < 3; ++i) {
                junctionUnit[i] = unit[i] - m_prevUnit[i];
                norm += junctionUnit[i] * junctionUnit[i];
            }
            norm = std::sqrt(norm);
            for (int i = 0; i < 3; ++i)
                junctionUnit[i] /= norm;
            const double junctionAccel = limitByAxes(m_settings.acceleration, junctionUnit);
            const double sinHalf = std::sqrt(0.5 * (1.0 - cosTheta));
            junctionSq = junctionAccel * m_settings.junctionDeviation * sinHalf / (1.0 - sinHalf);
        }
        const double slower = std::min(b.nominal, m_prevNominal);
        b.maxEntrySq = std::min(junctionSq, slower * slower);
    }
    for (int i = 0; i < 3; ++i)
        m_prevUnit[i] = unit[i];
    m_prevNominal = b.nominal;

    if (int(m_queue.size()) >= kBufferBlocks - 1) {
        executeFront(); // the buffer is full: wait for the running block
        m_now = std::max(m_now, m_seconds);
    }
    b.parsed = m_now;
    m_queue.push_back(b);
    ++m_blocks;
}

// The fastest the front block may leave at when the buffer knows its first
// `known` blocks: every later one must still be able to stop at the end of
// what is known.
double GrblTimeEstimator::exitSqWithin(size_t known) const
{
    double nextEntrySq = 0.0;
    for (size_t k = known; k-- > 1;) {
        const Block &b = m_queue[k];
        nextEntrySq = std::min(b.maxEntrySq, nextEntrySq + 2.0 * b.accel * b.length);
    }
    const Block &front = m_queue.front();
    return std::min(nextEntrySq, m_entrySq + 2.0 * front.accel * front.length);
}

// Runs the front block with what the buffer knows while it runs. Blocks still
// on their way down the link are unknown: the plan stops before them.
void GrblTimeEstimator::executeFront()
{
    if (m_queue.empty())
        return;
    const Block &front = m_queue.front();
    const double start = std::max(m_seconds, front.parsed);
    if (front.parsed > m_seconds)
        m_entrySq = 0.0; // the machine stood waiting for it
    const double entry = std::sqrt(m_entrySq);
    double exitSq = exitSqWithin(m_queue.size());
    double seconds =
        trapezoid_seconds(front.length, entry, std::sqrt(exitSq), front.nominal, front.accel);
    if (m_settings.linkBytesPerSecond > 0.0) {
        // A block that comes while the front one runs still raises its exit
        // speed; blocks are short against that, so "before it would end" it is.
        size_t known = 1;
        while (known < m_queue.size() && m_queue[known].parsed <= start + seconds)
            ++known;
        if (known < m_queue.size()) {
            exitSq = exitSqWithin(known);
            seconds = trapezoid_seconds(front.length, entry, std::sqrt(exitSq), front.nominal,
                                        front.accel);
        }
    }
    m_seconds = start + seconds;
    m_entrySq = exitSq;
    if (front.line >= 0 && size_t(front.line) < m_lineEnd.size())
        m_lineEnd[size_t(front.line)] = m_seconds;
    m_queue.pop_front();
}

void GrblTimeEstimator::synchronize()
{
    while (!m_queue.empty())
        executeFront();
    m_entrySq = 0.0;
    m_now = std::max(m_now, m_seconds);
}

// When the controller has the whole of a line of `bytes` (its end included)
// and has answered the lines before it.
double GrblTimeEstimator::receive(int bytes)
{
    const double rate = m_settings.linkBytesPerSecond;
    if (rate <= 0.0)
        return m_lastAnswered;
    m_sent += bytes;
    // The line may go once the lines before it that would overfill the
    // receive buffer have been answered.
    while (!m_answers.empty() && m_answers.front().first < m_sent - kReceiveBuffer)
        m_answers.pop_front();
    const double room = m_answers.empty() ? m_lastAnswered : m_answers.front().second;
    m_wireFree = std::max(m_wireFree, room) + bytes / rate;
    return std::max(m_wireFree, m_lastAnswered);
}

void GrblTimeEstimator::addArc(const double target[3], const double offset[3], bool clockwise)
{
    const int a0 = m_plane[0], a1 = m_plane[1];
    int linear = 0;
    while (linear == a0 || linear == a1)
        ++linear;
    const double center0 = m_pos[a0] + offset[a0];
    const double center1 = m_pos[a1] + offset[a1];
    const double r0 = -offset[a0], r1 = -offset[a1];
    const double radius = std::hypot(r0, r1);
    const double rt0 = target[a0] - center0, rt1 = target[a1] - center1;
    double travel = std::atan2(r0 * rt1 - r1 * rt0, r0 * rt0 + r1 * rt1);
    if (clockwise) {
        if (travel >= -kArcEpsilon)
            travel -= 2.0 * M_PI;
    } else if (travel <= kArcEpsilon) {
        travel += 2.0 * M_PI;
    }
    const double tol = m_settings.arcTolerance;
    const double chord = std::sqrt(std::max(tol * (2.0 * radius - tol), 1e-12));
    const int segments = int(std::floor(std::fabs(0.5 * travel * radius) / chord));
    const double start[3] = {m_pos[0], m_pos[1], m_pos[2]};
    for (int i = 1; i < segments; ++i) {
        const double angle = travel * i / segments;
        double p[3];
        p[a0] = center0 + r0 * std::cos(angle) - r1 * std::sin(angle);
        p[a1] = center1 + r0 * std::sin(angle) + r1 * std::cos(angle);
        p[linear] = start[linear] + (target[linear] - start[linear]) * i / segments;
        addLine(p, false);
    }
    addLine(target, false);
}

void GrblTimeEstimator::feedLine(const QString &line)
{
    ++m_lines;
    if (m_lineTimes)
        m_lineEnd.push_back(-1.0);
    m_now = receive(line.size() + 1);
    const int blocksBefore = m_blocks;
    parseLine(line);
    // The controller answers once the line is planned (or waited for); a line
    // that plans no move has run by then.
    m_lastAnswered = m_now;
    if (m_blocks == blocksBefore && m_lineTimes)
        m_lineEnd.back() = std::max(m_lineEnd.back(), m_now);
    if (m_settings.linkBytesPerSecond > 0.0)
        m_answers.emplace_back(m_sent, m_now);
}

void GrblTimeEstimator::parseLine(const QString &line)
{
    if (line.trimmed().startsWith(QLatin1Char('$')))
        return; // system commands do not move in a job
    QVector<GcodeWord> words;
    if (!splitGcodeWords(line, &words) || words.isEmpty())
        return; // the controller refuses the line

    int motion = m_motion;
    bool dwell = false, setOrigin = false, absolute = m_absolute;
    bool ccwArc = false;
    double unit = m_unit;
    int spindle = m_spindle, coolant = m_coolant, plane0 = m_plane[0], plane1 = m_plane[1];
    bool end = false;
    bool hasAxis[3] = {false, false, false}, hasOffset[3] = {false, false, false};
    double axis[3] = {0, 0, 0}, offset[3] = {0, 0, 0};
    double feed = -1.0, power = m_power, pause = 0.0, radius = 0.0;
    bool hasRadius = false;
    for (const GcodeWord &w : words) {
        const int code = int(std::lround(w.value * 10.0));
        switch (w.letter) {
        case 'G':
            switch (code) {
            case 0:
            case 10:
            case 20:
            case 30:
                motion = code / 10;
                break;
            case 40:
                dwell = true;
                break;
            case 170:
                plane0 = 0;
                plane1 = 1;
                break;
            case 180:
                plane0 = 2;
                plane1 = 0;
                break;
            case 190:
                plane0 = 1;
                plane1 = 2;
                break;
            case 200:
                unit = 25.4;
                break;
            case 210:
                unit = 1.0;
                break;
            case 900:
                absolute = true;
                break;
            case 910:
                absolute = false;
                break;
            case 920:
                setOrigin = true;
                break;
            case 800:
                motion = -1;
                break;
            default:
                break;
            }
            break;
        case 'M':
            switch (code) {
            case 30:
            case 40:
            case 50:
                spindle = code / 10;
                break;
            case 70:
            case 80:
            case 90:
                coolant = code / 10;
                break;
            case 20:
            case 300:
                end = true;
                break;
            default:
                break;
            }
            break;
        case 'X':
        case 'Y':
        case 'Z': {
            const int i = w.letter - 'X';
            hasAxis[i] = true;
            axis[i] = w.value;
            break;
        }
        case 'I':
        case 'J':
        case 'K': {
            const int i = w.letter - 'I';
            hasOffset[i] = true;
            offset[i] = w.value;
            break;
        }
        case 'R':
            hasRadius = true;
            radius = w.value;
            break;
        case 'F':
            feed = w.value;
            break;
        case 'S':
            power = w.value;
            break;
        case 'P':
            pause = w.value;
            break;
        default:
            break;
        }
    }
    ccwArc = motion == 3;
    m_plane[0] = plane0;
    m_plane[1] = plane1;
    m_unit = unit;
    if (feed >= 0.0)
        m_feed = feed * unit;
    const bool anyAxis = hasAxis[0] || hasAxis[1] || hasAxis[2];
    const bool moves = anyAxis && !setOrigin && motion >= 0;

    // Power: in laser mode a change that rides on a move goes with the move;
    // otherwise the controller lets the buffer run empty before applying it.
    bool powerSync = false;
    if (m_settings.laserMode) {
        const bool cutting = motion == 1 || motion == 2 || motion == 3;
        if (!moves && m_spindle == 3) {
            const bool wasCutting = m_motion == 1 || m_motion == 2 || m_motion == 3;
            powerSync = wasCutting != cutting;
        }
        if ((power != m_power || powerSync) && m_spindle != 5 && !moves)
            synchronize();
    } else if (power != m_power && m_spindle != 5) {
        synchronize();
    }
    m_power = power;
    if (spindle != m_spindle) {
        synchronize();
        m_spindle = spindle;
    }
    if (coolant != m_coolant) {
        synchronize();
        m_coolant = coolant;
    }
    if (dwell) {
        synchronize();
        m_seconds = m_now + std::max(0.0, pause);
        m_now = m_seconds;
        if (m_lineTimes)
            m_lineEnd.back() = m_seconds;
    }
    m_absolute = absolute;
    if (setOrigin) {
        for (int i = 0; i < 3; ++i)
            if (hasAxis[i])
                m_pos[i] = axis[i] * unit; // the work position is now the given one
    }
    m_motion = motion;

    if (moves) {
        double target[3];
        for (int i = 0; i < 3; ++i) {
            target[i] = m_pos[i];
            if (hasAxis[i])
                target[i] = m_absolute ? axis[i] * unit : m_pos[i] + axis[i] * unit;
        }
        if (m_motion == 0) {
            addLine(target, true);
        } else if (m_feed > 0.0) { // without a feed the controller refuses the move
            if (m_motion == 1) {
                addLine(target, false);
            } else if (hasRadius) {
                const int a0 = m_plane[0], a1 = m_plane[1];
                const double x = target[a0] - m_pos[a0], y = target[a1] - m_pos[a1];
                double r = radius * unit;
                double h = 4.0 * r * r - x * x - y * y;
                if (h >= 0.0 && (x != 0.0 || y != 0.0)) {
                    h = -std::sqrt(h) / std::hypot(x, y);
                    if (ccwArc)
                        h = -h;
                    if (r < 0.0)
                        h = -h;
                    double arcOffset[3] = {0, 0, 0};
                    arcOffset[a0] = 0.5 * (x - y * h);
                    arcOffset[a1] = 0.5 * (y + x * h);
                    addArc(target, arcOffset, !ccwArc);
                }
            } else if (hasOffset[0] || hasOffset[1] || hasOffset[2]) {
                double arcOffset[3];
                for (int i = 0; i < 3; ++i)
                    arcOffset[i] = offset[i] * unit;
                addArc(target, arcOffset, !ccwArc);
            }
        }
    }
    if (end) {
        synchronize();
        m_spindle = 5;
        m_coolant = 9;
        m_motion = 1;
        m_absolute = true;
    }
}

double GrblTimeEstimator::seconds()
{
    synchronize();
    return std::max(m_seconds, m_lastAnswered);
}

QVector<double> GrblTimeEstimator::lineEndSeconds()
{
    synchronize();
    QVector<double> ends(int(m_lineEnd.size()));
    double last = 0.0;
    for (size_t i = 0; i < m_lineEnd.size(); ++i) {
        last = std::max(last, m_lineEnd[i]);
        ends[int(i)] = last;
    }
    return ends;
}

bool GrblTimeEstimator::estimate(QIODevice &job, const GrblMachineSettings &settings,
                                 double *seconds)
{
    if (!job.isReadable())
        return false;
    GrblTimeEstimator estimator(settings, false);
    QString line;
    while (readJobLine(job, &line))
        estimator.feedLine(line);
    *seconds = estimator.seconds();
    return true;
}
