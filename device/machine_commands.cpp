#include "machine_commands.h"

#include <QUrl>

namespace lumitra::machine {

QString homeCommand(Link link)
{
    return link == Link::Serial ? QStringLiteral("$X\n$H\n") : QStringLiteral("$H");
}

QString goToOriginCommand(Link link)
{
    return link == Link::Serial ? QStringLiteral("$J=G90X0Y0F5000")
                                : QStringLiteral("$J=G90 G21 F5000 X0Y0");
}

QString setOriginCommand()
{
    return QStringLiteral("G92X0Y0Z0");
}

QString clearOriginCommand()
{
    return QStringLiteral("G92.1");
}

QString moveToCommand(Link link, double x, double y)
{
    const QString xy =
        QLatin1Char('X') + QString::number(x) + QLatin1Char('Y') + QString::number(y);
    return link == Link::Serial ? QStringLiteral("G90") + xy
                                : QStringLiteral("$J=G90 G21 F7500 ") + xy;
}

QString wifiPauseCommand()
{
    return QStringLiteral("$!");
}

QString wifiResumeCommand()
{
    return QStringLiteral("$~");
}

QString wifiSoftResetCommand()
{
    return QString(QChar(0x18));
}

QString testFirePower(double percent, double laserMaxS)
{
    return QString::number(percent * laserMaxS / 100.0, 'g', 6);
}

QString testFireOnCommand(const QString &power)
{
    return QStringLiteral("M3S") + power + QStringLiteral("G1F1000");
}

QString testFireOffCommand(Link link)
{
    return link == Link::Serial ? QStringLiteral("M5S0G0F1000") : QStringLiteral("M5S0G0");
}

QString jogCommand(Link link, const QString &dx, const QString &dy, int feed)
{
    const QString f = QString::number(feed);
    if (link == Link::Wifi)
        return QStringLiteral("$J=G91 G21 F") + f + QStringLiteral(" X") + dx + QLatin1Char('Y')
               + dy;
    if (dy == QLatin1String("0"))
        return QStringLiteral("$J=G91X") + dx + QLatin1Char('F') + f;
    if (dx == QLatin1String("0"))
        return QStringLiteral("$J=G91Y") + dy + QLatin1Char('F') + f;
    return QStringLiteral("$J=G91X") + dx + QLatin1Char('Y') + dy + QLatin1Char('F') + f;
}

QString jogCentreCommand(Link link, int feed)
{
    const QString f = QString::number(feed);
    return link == Link::Serial ? QStringLiteral("$J=G90X0Y0F") + f
                                : QStringLiteral("$J=G90 G21 F") + f + QStringLiteral(" X0Y0");
}

JogDirection jogPadDirection(int index)
{
    if (index < 0 || index > 8)
        return {};
    return {index % 3 - 1, 1 - index / 3};
}

QString jogOffset(int direction, int step)
{
    if (direction == 0)
        return QStringLiteral("0");
    const QString s = QString::number(step);
    return direction > 0 ? s : QLatin1Char('-') + s;
}

namespace {

QString jogTo(double x, double y, int feed)
{
    return QStringLiteral("$J=G90X%1Y%2F%3")
        .arg(QString::number(x, 'f', 2), QString::number(y, 'f', 2), QString::number(feed));
}

} // namespace

QStringList framingCommands(const QRectF &machineRect, int feed)
{
    const QRectF r = machineRect.normalized();
    return {QStringLiteral("M5S0"),
            jogTo(r.left(), r.top(), feed),
            jogTo(r.right(), r.top(), feed),
            jogTo(r.right(), r.bottom(), feed),
            jogTo(r.left(), r.bottom(), feed),
            jogTo(r.left(), r.top(), feed)};
}

QString jogBackTo(const QPointF &machinePoint, int feed)
{
    return jogTo(machinePoint.x(), machinePoint.y(), feed);
}

QRectF sceneToMachine(const QRectF &sceneRect)
{
    const QRectF r = sceneRect.normalized();
    return QRectF(QPointF(r.left(), -r.bottom()), QPointF(r.right(), -r.top()));
}

QString wifiCommandUrl(const QString &address, const QString &command)
{
    // The whole text is encoded, not only its blanks: boards decode "+" as a
    // blank and would cut the query at "&" or "#".
    return QStringLiteral("http://") + address + QStringLiteral("/command?commandText=")
           + QString::fromLatin1(QUrl::toPercentEncoding(command)) + QStringLiteral("&PAGEID=0");
}

} // namespace lumitra::machine
