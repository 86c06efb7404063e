// The modal compaction written the plain way, with the word pattern
// "([A-Z])([-]?[\d.]+)" and one regular-expression search per word. Tests
// compare the fast scanner against it. Under G91 the axis words are
// increments: all kept, none remembered; G90 forgets the remembered axes.
#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

inline QString referenceCompaction(const QString &piece)
{
    static const QRegularExpression word(QStringLiteral("([A-Z])([-]?[\\d.]+)"));
    const QString modal = QStringLiteral("GXYZSF");
    QString last[6];
    bool relative = false;
    QString out;
    for (const QString &line : piece.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (!line.startsWith(QLatin1Char('G'))) {
            out += line + QLatin1Char('\n');
            continue;
        }
        QString rebuilt;
        auto it = word.globalMatch(line);
        while (it.hasNext()) {
            const QRegularExpressionMatch m = it.next();
            const int slot = modal.indexOf(m.captured(1));
            if (slot < 0)
                continue;
            if (slot == 0 && m.captured(2) == QLatin1String("91")) {
                relative = true;
            } else if (slot == 0 && m.captured(2) == QLatin1String("90") && relative) {
                relative = false;
                last[1] = last[2] = last[3] = QString();
            }
            if (relative && slot >= 1 && slot <= 3) {
                rebuilt += m.captured(1) + m.captured(2);
                continue;
            }
            if (m.captured(2) == last[slot])
                continue;
            last[slot] = m.captured(2);
            rebuilt += m.captured(1) + m.captured(2);
        }
        out += rebuilt + QLatin1Char('\n');
    }
    return out;
}
