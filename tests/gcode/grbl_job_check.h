// What a GRBL 1.1 controller would refuse in a job, for tests of generated jobs.
#pragma once

#include <QByteArray>
#include <QList>
#include <QRegularExpression>
#include <QSet>
#include <QString>

// Checks every line of `job`: at most 80 characters; only printable ASCII
// without the real-time characters "?", "!" and "~"; comments start with ";";
// other lines are words G0 G1 G90 G91, M2 M4 M5 M8 M9 M30, X Y Z S F with
// well-formed numbers, no letter twice in a line; a G1 move needs a positive
// feed set on an earlier or the same line. Returns an empty string when the
// job passes, else "line N: reason" for the first problem.
inline QString grblProblem(const QByteArray &job)
{
    static const QRegularExpression word(
        QStringLiteral("^([A-Z])(-?(?:\\d+(?:\\.\\d*)?|\\.\\d+))"));
    static const QSet<QString> gCodes = {"0", "1", "90", "91"};
    static const QSet<QString> mCodes = {"2", "4", "5", "8", "9", "30"};
    if (!job.isEmpty() && !job.endsWith('\n'))
        return QStringLiteral("the job does not end with a line break");
    const QList<QByteArray> lines = job.split('\n');
    double feed = 0;
    int motion = -1;
    for (int n = 0; n + 1 < lines.size(); ++n) {
        const QByteArray &raw = lines[n];
        const QString at = QStringLiteral("line %1: ").arg(n + 1);
        if (raw.size() > 80)
            return at + QStringLiteral("longer than 80 characters");
        for (const char c : raw) {
            if (uchar(c) < 0x20 || uchar(c) > 0x7e || c == '?' || c == '!' || c == '~')
                return at
                       + QStringLiteral("byte %1 is a real-time command or not text")
                             .arg(int(uchar(c)));
        }
        if (raw.isEmpty() || raw.startsWith(';'))
            continue;
        QString rest = QString::fromLatin1(raw);
        QSet<QChar> seen;
        bool axisWord = false;
        while (!rest.isEmpty()) {
            const QRegularExpressionMatch m = word.match(rest);
            if (!m.hasMatch())
                return at + QStringLiteral("not a word: ") + rest;
            const QChar letter = m.captured(1).at(0);
            const QString value = m.captured(2);
            if (seen.contains(letter))
                return at + QStringLiteral("letter %1 twice").arg(letter);
            seen.insert(letter);
            if (letter == 'G' && !gCodes.contains(value))
                return at + QStringLiteral("unknown G") + value;
            if (letter == 'G' && value.size() == 1)
                motion = value.toInt();
            if (letter == 'M' && !mCodes.contains(value))
                return at + QStringLiteral("unknown M") + value;
            if (letter == 'F' && !((feed = value.toDouble()) > 0))
                return at + QStringLiteral("feed not positive");
            axisWord |= QStringLiteral("XYZ").contains(letter);
            if (!QStringLiteral("GMXYZSF").contains(letter))
                return at + QStringLiteral("unknown letter ") + letter;
            rest = rest.mid(m.capturedLength());
        }
        if (axisWord && motion < 0)
            return at + QStringLiteral("axis words without a motion mode");
        if (axisWord && motion == 1 && !(feed > 0))
            return at + QStringLiteral("G1 before any feed");
    }
    return QString();
}
