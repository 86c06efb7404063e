#include "resume_plan.h"

#include "gcode_words.h"
#include "job_simulator.h"

#include <QBuffer>
#include <QFile>
#include <QSaveFile>
#include <algorithm>
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

// "$H", "$J=...", "$$": system commands, not G-code.
bool isSystemLine(const QString &line)
{
    for (const QChar c : line) {
        if (c == QLatin1Char('$'))
            return true;
        if (!c.isSpace())
            return false;
    }
    return false;
}

bool isMotionWord(const GcodeWord &w)
{
    return w.letter == 'G' && (w.value == 0 || w.value == 1 || w.value == 2 || w.value == 3);
}

bool isAxisWord(const GcodeWord &w)
{
    return w.letter == 'X' || w.letter == 'Y' || w.letter == 'Z';
}

// G10, G28, G30 and G92 take the axis words for themselves: no motion mode
// may stand beside them.
bool takesAxisWords(const GcodeWord &w)
{
    return w.letter == 'G' && (w.value == 10 || w.value == 28 || w.value == 30 || w.value == 92);
}

} // namespace

bool ModalState::operator==(const ModalState &o) const
{
    return motion == o.motion && absolute == o.absolute && inches == o.inches
           && spindle == o.spindle && near(power, o.power) && hasFeed == o.hasFeed
           && (!hasFeed || near(feed, o.feed)) && near(position.x(), o.position.x())
           && near(position.y(), o.position.y()) && movesZ == o.movesZ && near(z, o.z);
}

void ModalTracker::feed(const QString &raw)
{
    // System commands leave the parser state alone, and so does a line the
    // controller refuses.
    thread_local QVector<GcodeWord> words;
    if (isSystemLine(raw) || !splitGcodeWords(raw, &words))
        return;
    bool has[3] = {false, false, false}, setsOrigin = false;
    double axis[3] = {0.0, 0.0, 0.0};
    ModalState &s = m_state;
    for (const GcodeWord &w : qAsConst(words)) {
        const double v = w.value;
        switch (w.letter) {
        case 'G':
            if (isMotionWord(w))
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
        case 'Y':
        case 'Z':
            has[w.letter - 'X'] = true;
            axis[w.letter - 'X'] = v;
            break;
        default:
            break;
        }
    }
    if (setsOrigin)
        return; // the work coordinates move, the head does not
    const double unit = s.inches ? 25.4 : 1.0;
    double at[3] = {s.position.x(), s.position.y(), s.z};
    for (int i = 0; i < 3; ++i)
        if (has[i])
            at[i] = s.absolute ? axis[i] * unit : at[i] + axis[i] * unit;
    s.position = QPointF(at[0], at[1]);
    s.z = at[2];
    s.movesZ = s.movesZ || has[2];
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
    QString move =
        QStringLiteral("G0 X%1 Y%2").arg(number(state.position.x()), number(state.position.y()));
    if (state.movesZ)
        move += QStringLiteral(" Z") + number(state.z);
    lines << move;
    if (state.inches)
        lines << QStringLiteral("G20");
    if (state.hasFeed)
        lines << QStringLiteral("G0 F") + number(state.feed);
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

bool writeResumeJob(QIODevice &job, int fromLine, QIODevice &out, ResumeJob *info,
                    const JobCheckpoint &start)
{
    ResumeJob r;
    r.fromLine = qMax(1, fromLine);
    const bool fromCheckpoint = start.line > 1 && start.line <= r.fromLine;
    if (fromCheckpoint && !job.seek(start.offset))
        return false;
    ModalTracker tracker(fromCheckpoint ? start.state : ModalState());
    int read = fromCheckpoint ? start.line - 1 : 0;
    QString line;
    while (read < r.fromLine - 1 && readJobLine(job, &line)) {
        tracker.feed(line);
        ++read;
    }
    const ModalState state = tracker.state();
    bool ok = true;
    const QStringList preamble = resumePreamble(state);
    for (const QString &l : preamble) {
        const QByteArray bytes = l.toLatin1() + '\n';
        ok = ok && out.write(bytes) == bytes.size();
    }
    r.preambleLines = preamble.size();

    // Line by line while the job's motion mode still has to be named on the
    // first line that moves (unless that line, or one before it, names its own).
    bool motionPending = state.motion != 0;
    QVector<GcodeWord> words;
    while (ok && motionPending && !job.atEnd()) {
        QByteArray bytes = job.readLine();
        while (bytes.endsWith('\n') || bytes.endsWith('\r'))
            bytes.chop(1);
        ++read;
        const QString text = QString::fromLatin1(bytes);
        if (!isSystemLine(text) && splitGcodeWords(text, &words)) {
            const bool namesMotion = std::any_of(words.begin(), words.end(), isMotionWord);
            const bool moves = std::any_of(words.begin(), words.end(), isAxisWord)
                               && std::none_of(words.begin(), words.end(), takesAxisWords);
            if (!namesMotion && moves)
                bytes.prepend(QStringLiteral("G%1 ").arg(state.motion).toLatin1());
            motionPending = !namesMotion && !moves;
        }
        bytes.append('\n');
        ok = out.write(bytes) == bytes.size();
    }
    // The rest as it stands, in large pieces; only its lines are counted.
    char last = '\n';
    while (ok && !job.atEnd()) {
        const QByteArray piece = job.read(1 << 20);
        if (piece.isEmpty()) {
            ok = false; // not at the end, yet nothing to read
            break;
        }
        read += int(piece.count('\n'));
        last = piece.back();
        ok = out.write(piece) == piece.size();
    }
    if (ok && last != '\n') {
        ++read; // a last line without its end
        ok = out.write("\n", 1) == 1;
    }
    r.jobLines = read;
    r.fromLine = qMin(r.fromLine, read + 1);
    if (info)
        *info = r;
    return ok;
}

bool writeResumeJobFile(const QString &jobPath, int fromLine, const QString &outPath,
                        ResumeJob *info, QString *error, const JobCheckpoint &start)
{
    QFile job(jobPath);
    if (!job.open(QIODevice::ReadOnly)) {
        if (error)
            *error = QStringLiteral("cannot read %1: %2").arg(jobPath, job.errorString());
        return false;
    }
    QSaveFile out(outPath);
    if (!out.open(QIODevice::WriteOnly) || !writeResumeJob(job, fromLine, out, info, start)
        || !out.commit()) {
        if (error)
            *error = QStringLiteral("cannot write %1: %2").arg(outPath, out.errorString());
        return false;
    }
    return true;
}

ResumeJob buildResumeJob(const QStringList &job, int fromLine)
{
    QByteArray text;
    for (const QString &line : job)
        text += line.toUtf8() + '\n';
    QBuffer in(&text);
    in.open(QIODevice::ReadOnly);
    QByteArray written;
    QBuffer out(&written);
    out.open(QIODevice::WriteOnly);
    ResumeJob r;
    writeResumeJob(in, qBound(1, fromLine, job.size() + 1), out, &r);
    r.lines = QString::fromUtf8(written).split(QLatin1Char('\n'));
    r.lines.removeLast(); // after the last line's end
    return r;
}

} // namespace lumitra::gcode
