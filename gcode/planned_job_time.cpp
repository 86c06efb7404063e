#include "planned_job_time.h"

#include "grbl_time_estimator.h"

#include <QFile>
#include <cmath>

class PlannedJobTime::Builder
{
public:
    Builder(const GrblMachineSettings &settings, int lineCount)
        : m_estimator(settings, false),
          m_every(qMax(1, (lineCount + kCheckpoints - 1) / kCheckpoints))
    {
        m_timeline.m_lineCount = lineCount;
        m_timeline.m_marks.append(0);
        m_timeline.m_seconds.append(0.0);
        m_timeline.m_answered.append(0.0);
    }

    void feed(const QString &line)
    {
        m_estimator.feedLine(line);
        if (++m_line % m_every == 0 && m_line < m_timeline.m_lineCount) {
            // What has run once these lines are done (a cheap copy: the
            // estimator keeps no per-line times here).
            GrblTimeEstimator toStop = m_estimator;
            m_timeline.m_marks.append(m_line);
            m_timeline.m_answered.append(m_estimator.answeredSeconds());
            m_timeline.m_seconds.append(toStop.seconds());
        }
    }

    PlannedJobTime finish()
    {
        m_timeline.m_total = m_estimator.seconds();
        m_timeline.m_lineCount = m_line;
        m_timeline.m_marks.append(m_line);
        m_timeline.m_seconds.append(m_timeline.m_total);
        m_timeline.m_answered.append(m_estimator.answeredSeconds());
        return m_timeline;
    }

private:
    GrblTimeEstimator m_estimator;
    int m_every;
    int m_line = 0;
    PlannedJobTime m_timeline;
};

PlannedJobTime PlannedJobTime::plan(const QStringList &job, const GrblMachineSettings &settings)
{
    Builder b(settings, job.size());
    for (const QString &line : job)
        b.feed(line);
    return b.finish();
}

bool PlannedJobTime::planFile(const QString &path, const GrblMachineSettings &settings,
                              PlannedJobTime *timeline)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    int count = 0;
    while (!file.atEnd()) {
        file.readLine();
        ++count;
    }
    file.seek(0);
    Builder b(settings, count);
    while (!file.atEnd()) {
        QByteArray line = file.readLine();
        while (line.endsWith('\n') || line.endsWith('\r'))
            line.chop(1);
        b.feed(QString::fromLocal8Bit(line));
    }
    *timeline = b.finish();
    return true;
}

double PlannedJobTime::interpolated(const QVector<double> &atMarks, int line) const
{
    if (m_marks.isEmpty() || line <= 0)
        return 0.0;
    if (line >= m_marks.last())
        return atMarks.last();
    const auto it = std::upper_bound(m_marks.cbegin(), m_marks.cend(), line);
    const int hi = int(it - m_marks.cbegin());
    const int lo = hi - 1;
    const double k = double(line - m_marks[lo]) / double(m_marks[hi] - m_marks[lo]);
    return atMarks[lo] + k * (atMarks[hi] - atMarks[lo]);
}

double PlannedJobTime::secondsThrough(int line) const
{
    return interpolated(m_seconds, line);
}

double PlannedJobTime::secondsAnswered(int line) const
{
    return interpolated(m_answered, line);
}

double PlannedJobTime::remainingAfter(double done, double elapsed) const
{
    double rest = qMax(0.0, m_total - done);
    if (done >= kCorrectAfter && elapsed > 0.0)
        rest *= qBound(0.5, elapsed / done, 3.0);
    return rest;
}

double PlannedJobTime::remainingSeconds(int acknowledged, double elapsed) const
{
    return remainingAfter(secondsAnswered(acknowledged), elapsed);
}

double PlannedJobTime::remainingFromRunning(int running, double elapsed) const
{
    return remainingAfter(secondsThrough(running - 1), elapsed);
}

QString formatRunTime(double seconds)
{
    const qint64 s = qMax<qint64>(0, qint64(std::llround(seconds)));
    const qint64 h = s / 3600, m = (s / 60) % 60, r = s % 60;
    if (h > 0)
        return QStringLiteral("%1:%2:%3")
            .arg(h)
            .arg(m, 2, 10, QLatin1Char('0'))
            .arg(r, 2, 10, QLatin1Char('0'));
    return QStringLiteral("%1:%2").arg(m).arg(r, 2, 10, QLatin1Char('0'));
}
