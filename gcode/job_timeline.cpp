#include "job_timeline.h"

#include "grbl_time_estimator.h"
#include "job_simulator.h"

#include <QIODevice>
#include <QLineF>
#include <algorithm>
#include <cmath>

bool JobTimeline::load(QIODevice &job, const GrblMachineSettings *machine)
{
    *this = JobTimeline();
    if (!job.isReadable())
        return false;
    m_text = job.readAll();
    m_byMachine = machine != nullptr;
    for (int i = 0; i < m_text.size();) {
        m_lineStarts.append(i);
        const int end = m_text.indexOf('\n', i);
        i = end < 0 ? m_text.size() : end + 1;
    }

    JobSimulator simulator;
    GrblTimeEstimator estimator(machine ? *machine : GrblMachineSettings());
    QVector<double> feedTimes; // per line, from the programmed feeds
    feedTimes.reserve(m_lineStarts.size());
    double elapsed = 0.0;
    short layer = -1;
    bool haveBounds = false;
    double minX = 0, minY = 0, maxX = 0, maxY = 0;
    for (int line = 0; line < m_lineStarts.size(); ++line) {
        const QString text = lineText(line);
        const QString trimmed = text.trimmed();
        if (trimmed.startsWith(QLatin1Char(';'))) {
            const QString name = trimmed.mid(1);
            int index = m_layers.indexOf(name);
            if (index < 0) {
                m_layers.append(name);
                index = m_layers.size() - 1;
            }
            layer = short(index);
        }
        simulator.feedLine(text, [&](const JobSimulator::Move &m) {
            TimelineMove t;
            t.from = m.from;
            t.to = m.to;
            t.power = float(m.power);
            t.line = line;
            t.layer = layer;
            t.burning = m.burning;
            m_moves.append(t);
            const double length = QLineF(m.from, m.to).length();
            const double feed = m.rapid ? JobSimulator::kRapidFeed : m.feed;
            if (feed > 0.0)
                elapsed += length / feed * 60.0;
            for (const QPointF &p : {m.from, m.to}) {
                if (!haveBounds) {
                    minX = maxX = p.x();
                    minY = maxY = p.y();
                    haveBounds = true;
                }
                minX = std::min(minX, p.x());
                maxX = std::max(maxX, p.x());
                minY = std::min(minY, p.y());
                maxY = std::max(maxY, p.y());
            }
        });
        feedTimes.append(elapsed);
        if (machine)
            estimator.feedLine(text);
    }
    m_lineEnds = machine ? estimator.lineEndSeconds() : feedTimes;
    if (haveBounds)
        m_bounds = QRectF(QPointF(minX, minY), QPointF(maxX, maxY));
    return true;
}

QString JobTimeline::lineText(int line) const
{
    if (line < 0 || line >= m_lineStarts.size())
        return QString();
    const int start = m_lineStarts.at(line);
    int end = line + 1 < m_lineStarts.size() ? m_lineStarts.at(line + 1) : m_text.size();
    while (end > start && (m_text.at(end - 1) == '\n' || m_text.at(end - 1) == '\r'))
        --end;
    return QString::fromLatin1(m_text.constData() + start, end - start);
}

double JobTimeline::lineStart(int line) const
{
    if (m_lineEnds.isEmpty() || line <= 0)
        return 0.0;
    return m_lineEnds.at(std::min(line, m_lineEnds.size()) - 1);
}

double JobTimeline::lineEnd(int line) const
{
    if (m_lineEnds.isEmpty() || line < 0)
        return 0.0;
    return m_lineEnds.at(std::min(line, m_lineEnds.size() - 1));
}

int JobTimeline::lineAt(double seconds) const
{
    if (m_lineEnds.isEmpty())
        return -1;
    const auto it = std::upper_bound(m_lineEnds.cbegin(), m_lineEnds.cend(), seconds);
    return it == m_lineEnds.cend() ? m_lineEnds.size() - 1 : int(it - m_lineEnds.cbegin());
}

int JobTimeline::movesDone(double seconds, double *fraction) const
{
    // Moves are in line order and line ends never decrease.
    const auto it =
        std::partition_point(m_moves.cbegin(), m_moves.cend(),
                             [&](const TimelineMove &m) { return lineEnd(m.line) <= seconds; });
    const int done = int(it - m_moves.cbegin());
    if (fraction) {
        *fraction = 0.0;
        if (done < m_moves.size()) {
            const int line = m_moves.at(done).line;
            const double start = lineStart(line), end = lineEnd(line);
            if (end > start && seconds > start)
                *fraction = std::clamp((seconds - start) / (end - start), 0.0, 1.0);
        }
    }
    return done;
}

QPointF JobTimeline::headAt(double seconds) const
{
    double fraction = 0.0;
    const int done = movesDone(seconds, &fraction);
    if (done < m_moves.size()) {
        const TimelineMove &m = m_moves.at(done);
        return m.from + (m.to - m.from) * fraction;
    }
    return m_moves.isEmpty() ? QPointF() : m_moves.last().to;
}

QString JobTimeline::commentName(const QString &layerName)
{
    constexpr int kMaxLineLength = 80;
    QString name;
    for (const QChar c : layerName) {
        if (name.size() + 1 >= kMaxLineLength)
            break;
        const ushort u = c.unicode();
        const bool safe = u >= 0x20 && u < 0x7f && u != '?' && u != '!' && u != '~';
        name.append(safe ? c : QLatin1Char('_'));
    }
    return name.trimmed();
}
