#include "grbl_job_check.h"

#include <QList>
#include <QRegularExpression>
#include <QSet>

namespace {

constexpr int kGrblLineLength = 80;

QString problem(int lineNumber, const QString &reason)
{
    return QStringLiteral("line %1: %2").arg(lineNumber).arg(reason);
}

} // namespace

QString grblProblem(const QByteArray &job)
{
    static const QRegularExpression word(QStringLiteral("^([A-Z])(-?\\d+(?:\\.\\d+)?)"));
    static const QSet<QString> gCodes = {"0", "1", "90", "91"};
    static const QSet<QString> mCodes = {"2", "4", "5", "8", "9", "30"};
    static const QString axes = QStringLiteral("XYZ");

    if (!job.isEmpty() && !job.endsWith('\n'))
        return QStringLiteral("the job does not end with a line break");
    const QList<QByteArray> lines = job.split('\n');
    double feed = 0;
    int motion = -1;
    for (int n = 0; n + 1 < lines.size(); ++n) {
        const QByteArray &raw = lines[n];
        const int number = n + 1;
        if (raw.size() > kGrblLineLength)
            return problem(number, QStringLiteral("longer than 80 characters"));
        for (const char c : raw) {
            const uchar u = uchar(c);
            if (u < 0x20 || u > 0x7e || c == '?' || c == '!' || c == '~')
                return problem(
                    number,
                    QStringLiteral("byte %1 is a real-time command or not text").arg(int(u)));
        }
        if (raw.isEmpty() || raw.startsWith(';'))
            continue;
        QString rest = QString::fromLatin1(raw);
        QSet<QChar> seen;
        bool axisWord = false;
        int lineMotion = motion;
        while (!rest.isEmpty()) {
            const QRegularExpressionMatch m = word.match(rest);
            if (!m.hasMatch())
                return problem(number, QStringLiteral("not a word: ") + rest);
            const QChar letter = m.captured(1).at(0);
            const QString value = m.captured(2);
            if (seen.contains(letter))
                return problem(number, QStringLiteral("letter %1 twice").arg(letter));
            seen.insert(letter);
            if (letter == QLatin1Char('G')) {
                if (!gCodes.contains(value))
                    return problem(number, QStringLiteral("unknown G") + value);
                if (value == QLatin1String("0") || value == QLatin1String("1"))
                    lineMotion = value.toInt();
            } else if (letter == QLatin1Char('M')) {
                if (!mCodes.contains(value))
                    return problem(number, QStringLiteral("unknown M") + value);
            } else if (letter == QLatin1Char('F')) {
                feed = value.toDouble();
                if (!(feed > 0))
                    return problem(number, QStringLiteral("feed not positive"));
            } else if (axes.contains(letter)) {
                axisWord = true;
            } else if (letter != QLatin1Char('S')) {
                return problem(number, QStringLiteral("unknown letter ") + letter);
            }
            rest = rest.mid(m.capturedLength());
        }
        motion = lineMotion;
        if (axisWord && motion < 0)
            return problem(number, QStringLiteral("axis words without a motion mode"));
        if (axisWord && motion == 1 && !(feed > 0))
            return problem(number, QStringLiteral("G1 before any feed"));
    }
    return QString();
}
