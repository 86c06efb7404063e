#include "wifi_setup.h"

#include <QRegularExpression>

namespace lumitra::wifi {

namespace {

bool holdsForbiddenSymbol(const QString &text)
{
    return text.contains(QLatin1Char('!')) || text.contains(QLatin1Char('?'))
           || text.contains(QLatin1Char('~'));
}

bool isPlainText(const QString &text)
{
    // POSIX classes are only valid inside a bracket expression; without
    // Unicode properties they match ASCII only.
    static const QRegularExpression pattern(QStringLiteral("^[a-zA-Z0-9[:space:][:punct:]]+$"));
    return pattern.match(text).hasMatch();
}

} // namespace

StationCheck checkStation(const QString &name, const QString &password)
{
    if (name.isEmpty() || password.isEmpty())
        return StationCheck::Empty;
    if (password.size() > 90 || password.size() < 8)
        return StationCheck::PasswordLength;
    if (holdsForbiddenSymbol(name) || holdsForbiddenSymbol(password))
        return StationCheck::ForbiddenSymbol;
    if (!isPlainText(name) || !isPlainText(password))
        return StationCheck::NotPlainText;
    return StationCheck::Ok;
}

QString stationModeCommand(const QString &name, const QString &password)
{
    return QStringLiteral("$Sta/Password=") + password + QLatin1Char('\n')
           + QStringLiteral("$Sta/SSID=") + name + QLatin1Char('\n')
           + QStringLiteral("$Radio/Mode=STA") + QStringLiteral("\n$I\n");
}

QString accessPointModeCommand()
{
    return QStringLiteral("$Radio/Mode=AP \n$I\n");
}

QString infoCommand()
{
    return QStringLiteral("$I\n");
}

QStringList wifiCommandLines(const QString &commandText)
{
    QStringList lines;
    const QStringList parts = commandText.split(QLatin1Char('\n'));
    for (QString line : parts) {
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        if (!line.isEmpty())
            lines << line;
    }
    return lines;
}

} // namespace lumitra::wifi
