#include "gcode_line_code.h"

#include <QRegularExpression>

namespace lumitra {

QString gcodeLineCode(const QString &raw)
{
    QString line = raw.toUpper();
    const int semicolon = line.indexOf(QLatin1Char(';'));
    if (semicolon >= 0)
        line.truncate(semicolon);
    static const QRegularExpression parens(QStringLiteral("\\([^)]*\\)"));
    if (line.contains(QLatin1Char('('))) // most job lines have none: no regex for them
        line.remove(parens);
    return line.trimmed();
}

} // namespace lumitra
