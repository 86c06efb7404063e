#include "resume_plan.h"

#include "gcode_line_code.h"

#include <QFile>
#include <QRegularExpression>
#include <cmath>

namespace lumitra::gcode {

namespace {

bool near(double a, double b)
{
    return std::fabs(a - b) < 1e-6;
}

QString number(double v)
{
    // Plain decimal, at most four places, no trailing zeros.
    QString text = QString::number(v, 'f', 4);
    while (text.contains(QLatin1Char('.')) && text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    if (text == QLatin1String("-0"))
        text = QStringLiteral("0");
    return text;
}

} // namespace

bool ModalState::operator==(const ModalState &o) const
{
    return motion == o.motion && absolute == o.absolute && inches == o.inches
           && spindle == o.spindle && near(power, o.power) && hasFeed == o.hasFeed
           && (!hasFeed || near(feed, o.feed)) && near(position.x(), o.position.x())
           && near(position.y(), o.position.y());
}

void ModalTracker::feed(const QString &raw)
{
    const QString line = lumitra::gcodeLineCode(raw);
    if (line.isEmpty() || line.startsWith(QLatin1Char('$')))
        return; // system commands ("$H", "$J=") leave the parser state alone

    static const QRegularExpression word(QStringLiteral("([A-Z])\\s*([-+]?\\d*\\.?\\d+)"));
    bool hasX = false, hasY = false, setsOrigin = false;
    double x = 0.0, y = 0.0;
    ModalState &s = m_state;
    for (auto it = word.globalMatch(line); it.hasNext();) {
        const auto m = it.next();
        const double v = m.captured(2).toDouble();
        switch (m.captured(1).at(0).unicode()) {
        case 'G':
            if (v == 0 || v == 1 || v == 2 || v == 3)
                s.motion = int(v);
            else if (v == 90)
                s.absolute = true;
            else if (v == 91)
                s.absolute = false;
            else if (v == 20)
                s.inches = true;
            else if (v == 21)
                s.inches = false;
            else if (v == 92)
                setsOrigin = true;
            break;
        case 'M':
            if (v == 3 || v == 4 || v == 5)
                s.spindle = int(v);
            else if (v == 2 || v == 30) {
                // Program end: the controller's defaults come back.
                s.spindle = 5;
                s.motion = 1;
                s.absolute = true;
            }
            break;
        case 'S':
            s.power = v;
            break;
        case 'F':
            s.feed = v;
            s.hasFeed = true;
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
    if (setsOrigin)
        return; // the work coordinates move, the head does not
    const double unit = s.inches ? 25.4 : 1.0;
    if (s.absolute) {
        if (hasX)
            s.position.setX(x * unit);
        if (hasY)
            s.position.setY(y * unit);
    } else {
        s.position += QPointF(hasX ? x * unit : 0.0, hasY ? y * unit : 0.0);
    }
}

ModalState modalStateBefore(const QStringList &job, int line)
{
    ModalTracker tracker;
    const int end = qMin(line - 1, job.size());
    for (int i = 0; i < end; ++i)
        tracker.feed(job.at(i));
    return tracker.state();
}

QStringList resumePreamble(const ModalState &state)
{
    QStringList lines;
    lines << QStringLiteral("M5 S0") << QStringLiteral("G90 G21");
    lines
        << QStringLiteral("G0 X%1 Y%2").arg(number(state.position.x()), number(state.position.y()));
    if (state.inches)
        lines << QStringLiteral("G20");
    QString motion = state.motion == 0 ? QStringLiteral("G0") : QStringLiteral("G1");
    if (state.hasFeed)
        motion += QStringLiteral(" F") + number(state.feed);
    lines << motion;
    if (!state.absolute)
        lines << QStringLiteral("G91");
    const QString power = QStringLiteral("S") + number(state.power);
    if (state.spindle == 3 || state.spindle == 4)
        lines << QStringLiteral("M%1 %2").arg(state.spindle).arg(power);
    else
        lines << power;
    return lines;
}

int ResumeJob::jobLineOf(int resumedLine) const
{
    if (resumedLine <= preambleLines)
        return fromLine - 1;
    return fromLine + resumedLine - preambleLines - 1;
}

ResumeJob buildResumeJob(const QStringList &job, int fromLine)
{
    ResumeJob r;
    r.fromLine = qBound(1, fromLine, job.size() + 1);
    r.lines = resumePreamble(modalStateBefore(job, r.fromLine));
    r.preambleLines = r.lines.size();
    r.lines += job.mid(r.fromLine - 1);
    // An arc mode cannot be set without an arc: the first resumed line names it
    // when it relies on the modal G2/G3.
    const ModalState state = modalStateBefore(job, r.fromLine);
    if ((state.motion == 2 || state.motion == 3) && r.lines.size() > r.preambleLines) {
        static const QRegularExpression motionWord(QStringLiteral("G0*[0-3](?![0-9.])"),
                                                   QRegularExpression::CaseInsensitiveOption);
        QString &first = r.lines[r.preambleLines];
        if (!first.contains(motionWord))
            first.prepend(QStringLiteral("G%1 ").arg(state.motion));
    }
    return r;
}

bool readJobLines(const QString &path, QStringList *lines, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    lines->clear();
    while (!file.atEnd()) {
        QByteArray line = file.readLine();
        while (line.endsWith('\n') || line.endsWith('\r'))
            line.chop(1);
        lines->append(QString::fromLocal8Bit(line));
    }
    return true;
}

bool writeJobLines(const QString &path, const QStringList &lines, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    QByteArray bytes;
    for (const QString &line : lines)
        bytes += line.toLocal8Bit() + '\n';
    if (file.write(bytes) != bytes.size()) {
        if (error)
            *error = file.errorString();
        return false;
    }
    return true;
}

} // namespace lumitra::gcode
