#include "grbl_protocol.h"

namespace lumitra::grbl {

QString makerModel()
{
    return QStringLiteral("Ortavex_Q7");
}

QString identifyText()
{
    return QStringLiteral("$i\n");
}

QString settingsRequestText()
{
    return QStringLiteral("$I\n$$\n");
}

QString unlockText()
{
    return QStringLiteral("$X\n");
}

QString homeText()
{
    return QStringLiteral("$H\n");
}

QString laserOffText()
{
    return QStringLiteral("M5\n");
}

StopBeforeClose stopBeforeClose(bool laserOn, bool machineBusy)
{
    StopBeforeClose stop;
    stop.hold = machineBusy;
    stop.reset = machineBusy;
    stop.laserOff = laserOn || machineBusy;
    return stop;
}

SerialLine classifySerialLine(const QString &line)
{
    if (line.contains(QLatin1String("ok")))
        return SerialLine::Ok;
    if (line.contains(QLatin1String("MSG:Using machine")))
        return SerialLine::MachineModel;
    if (line.contains(QLatin1String("Mode=STA")))
        return SerialLine::StationMode;
    if (line.contains(QLatin1String("Mode=AP")))
        return SerialLine::AccessPointMode;
    if (line.startsWith(QLatin1Char('$')))
        return SerialLine::Setting;
    if (line.contains(QLatin1String("Alarm")))
        return SerialLine::Alarm;
    if (line.contains(QLatin1String("Error")))
        return SerialLine::Error;
    if (line.startsWith(QLatin1Char('<')))
        return SerialLine::Status;
    if (line.contains(QLatin1String("VER:")))
        return SerialLine::Version;
    return SerialLine::Other;
}

bool isStartupBanner(const QString &line)
{
    return line.startsWith(QLatin1String("Grbl "));
}

namespace {

// Text from `from` up to (not including) `to`; `to` < 0 means the end.
QString span(const QString &text, int from, int to)
{
    return to < 0 ? text.mid(from) : text.mid(from, to - from);
}

} // namespace

QString normaliseStatus(const QString &report)
{
    const QString state = span(report, 1, report.indexOf(QLatin1Char('|')));

    const int xStart = report.indexOf(QLatin1Char(':')) + 1;
    const int xEnd = report.indexOf(QLatin1Char(','), xStart);
    const QString x = span(report, xStart, xEnd);
    const int yEnd = report.indexOf(QLatin1Char(','), xEnd + 1);
    const QString y = span(report, xEnd + 1, yEnd);

    // The feed field, also when fields such as "Bf:" come before it.
    int fStart = report.indexOf(QLatin1String("|FS:"), yEnd + 1);
    if (fStart < 0)
        fStart = report.indexOf(QLatin1String("|F:"), yEnd + 1);
    fStart = fStart >= 0 ? report.indexOf(QLatin1Char(':'), fStart) + 1
                         : report.indexOf(QLatin1Char(':'), yEnd + 1) + 1;
    const int fEnd = report.indexOf(QLatin1Char(','), fStart);
    const QString f = span(report, fStart, fEnd);
    const QString s = span(report, fEnd + 1, report.indexOf(QLatin1Char('|'), fEnd + 1));

    QString out = state + QLatin1String(" X:") + x + QLatin1String(" Y:") + y + QLatin1String(" F:")
                  + f + QLatin1String(" S:") + s;
    out.remove(QLatin1Char('>'));
    return out;
}

QString serialStatusText(const QString &line)
{
    QString text = normaliseStatus(line);
    const int cam = line.indexOf(QLatin1String("Cam:"));
    if (cam >= 0)
        text += QLatin1Char(' ') + span(line, cam, line.indexOf(QLatin1Char('>'), cam));
    return text;
}

bool statusShowsMotion(const QString &report)
{
    if (!report.startsWith(QLatin1Char('<')))
        return false;
    int end = 1;
    while (end < report.size() && !QStringLiteral("|:>").contains(report.at(end)))
        ++end;
    const QString state = report.mid(1, end - 1);
    return state == QLatin1String("Run") || state == QLatin1String("Hold")
           || state == QLatin1String("Jog") || state == QLatin1String("Home");
}

bool namesMakerModel(const QString &text)
{
    return text.contains(makerModel());
}

} // namespace lumitra::grbl
