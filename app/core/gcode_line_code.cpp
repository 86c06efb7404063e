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
    line.remove(parens);
    return line.trimmed();
}

} // namespace lumitra
