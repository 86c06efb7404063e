#include "command_line.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace lumitra {

QStringList process_option_names()
{
    return {QStringLiteral("power"),    QStringLiteral("speed"),   QStringLiteral("passes"),
            QStringLiteral("mode"),     QStringLiteral("spacing"), QStringLiteral("angle"),
            QStringLiteral("overscan"), QStringLiteral("origin")};
}

CommandLine parse_command_line(const QStringList &arguments)
{
    CommandLine result;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Lumitra: design and run jobs on GRBL laser engravers.\n"
                       "Without options the window opens. Headless modes:\n"
                       "  --export INPUT -o OUTPUT   write the G-code job of a design file\n"
                       "  --port PORT --run FILE [--from-line N]\n"
                       "                             stream a G-code file to a controller\n"
                       "  --wifi HOST[:PORT] --run FILE [--ws-port N] [--from-line N]\n"
                       "                             run a G-code file on a WiFi controller\n"
                       "  --camera HOST[:PORT] -o PHOTO.png\n"
                       "                             save the straightened camera photo\n"
                       "  --estimate FILE [--settings DUMP] [--baud N]\n"
                       "                             print how many seconds a G-code file runs\n"
                       "  --check-update             ask the cloud service for a newer version"));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption exportOpt(QStringLiteral("export"),
                                       QStringLiteral("Design file to turn into a G-code job "
                                                      "(.lumitra, .svg, .dxf, .png, .jpg, .bmp)."),
                                       QStringLiteral("INPUT"));
    const QCommandLineOption outputOpt({QStringLiteral("o"), QStringLiteral("output")},
                                       QStringLiteral("G-code file to write."),
                                       QStringLiteral("OUTPUT"));
    const QCommandLineOption portOpt(QStringLiteral("port"),
                                     QStringLiteral("Serial port of the controller."),
                                     QStringLiteral("PORT"));
    const QCommandLineOption runOpt(QStringLiteral("run"),
                                    QStringLiteral("G-code file to stream to the controller."),
                                    QStringLiteral("FILE"));
    const QCommandLineOption wifiOpt(
        QStringLiteral("wifi"),
        QStringLiteral("Address of a WiFi controller (HTTP port 80 unless given)."),
        QStringLiteral("HOST[:PORT]"));
    const QCommandLineOption wsPortOpt(QStringLiteral("ws-port"),
                                       QStringLiteral("WebSocket port of the WiFi controller "
                                                      "(default 81)."),
                                       QStringLiteral("N"));
    const QCommandLineOption cameraOpt(
        QStringLiteral("camera"),
        QStringLiteral("Address of a WiFi controller whose calibrated camera photo is saved to "
                       "-o (HTTP port 80 unless given)."),
        QStringLiteral("HOST[:PORT]"));
    const QCommandLineOption estimateOpt(
        QStringLiteral("estimate"),
        QStringLiteral("G-code file whose running time (seconds) is printed."),
        QStringLiteral("FILE"));
    const QCommandLineOption settingsOpt(
        QStringLiteral("settings"),
        QStringLiteral(
            "Text file with the controller's $$ reply ($110=... lines) used by "
            "--estimate; otherwise the settings the last connected controller reported, else its "
            "factory values."),
        QStringLiteral("DUMP"));
    const QCommandLineOption baudOpt(
        QStringLiteral("baud"),
        QStringLiteral("Time the --estimate job as streamed over a serial link at N baud (N/10 "
                       "bytes a second); without it the link keeps up, as for a job run from "
                       "the controller's card."),
        QStringLiteral("N"));
    const QCommandLineOption homeOpt(QStringLiteral("home"),
                                     QStringLiteral("Home the machine before the job."));
    const QCommandLineOption fromLineOpt(
        QStringLiteral("from-line"),
        QStringLiteral("Resume the --run job at this line (the one an interrupted run printed): "
                       "its state is restored and the head moves there with the laser off."),
        QStringLiteral("N"));
    const QCommandLineOption checkUpdateOpt(
        QStringLiteral("check-update"),
        QStringLiteral("Ask the cloud service (setting CloudBase, or LUMITRA_CLOUD_URL) for a "
                       "newer version; prints its notes and file address, or \"up to date\"."));
    parser.addOption(exportOpt);
    parser.addOption(outputOpt);
    const QMap<QString, QString> optionHelp = {
        {QStringLiteral("power"), QStringLiteral("Laser power in percent (0-100).")},
        {QStringLiteral("speed"), QStringLiteral("Speed in mm/min.")},
        {QStringLiteral("passes"), QStringLiteral("Number of passes.")},
        {QStringLiteral("mode"),
         QStringLiteral("line, fill or crossfill for vectors; threshold, dither, outline, grey "
                        "or negative for bitmaps.")},
        {QStringLiteral("spacing"), QStringLiteral("Fill and raster line spacing in mm.")},
        {QStringLiteral("angle"), QStringLiteral("Fill angle in degrees.")},
        {QStringLiteral("overscan"), QStringLiteral("Overscan in mm.")},
        {QStringLiteral("origin"),
         QStringLiteral("Where the job is placed: absolute (default), or user[:ANCHOR] to put that "
                        "point of the design (top-left, top, top-right, left, centre, right, "
                        "bottom-left, bottom, bottom-right) at the work origin 0,0.")}};
    for (const QString &name : process_option_names())
        parser.addOption(QCommandLineOption(name, optionHelp.value(name), QStringLiteral("VALUE")));
    parser.addOption(portOpt);
    parser.addOption(runOpt);
    parser.addOption(homeOpt);
    parser.addOption(wifiOpt);
    parser.addOption(wsPortOpt);
    parser.addOption(cameraOpt);
    parser.addOption(estimateOpt);
    parser.addOption(settingsOpt);
    parser.addOption(baudOpt);
    parser.addOption(fromLineOpt);
    parser.addOption(checkUpdateOpt);
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QStringLiteral("Design files to open in the window."),
                                 QStringLiteral("[files...]"));

    if (!parser.parse(arguments)) {
        result.mode = CommandLine::Exit;
        result.exitCode = 2;
        result.message = parser.errorText();
        return result;
    }
    if (parser.isSet(help)) {
        result.mode = CommandLine::Exit;
        result.message = parser.helpText();
        return result;
    }
    if (parser.isSet(version)) {
        result.mode = CommandLine::Exit;
        result.message = QCoreApplication::applicationName() + QLatin1Char(' ')
                         + QCoreApplication::applicationVersion();
        return result;
    }

    const bool exporting = parser.isSet(exportOpt);
    const bool running = parser.isSet(portOpt) || parser.isSet(runOpt) || parser.isSet(wifiOpt);
    auto usage = [&result](const QString &text) {
        result.mode = CommandLine::Exit;
        result.exitCode = 2;
        result.message = text;
        return result;
    };
    if (parser.isSet(checkUpdateOpt)) {
        const QStringList given = parser.optionNames();
        if (given.size() != 1 || !parser.positionalArguments().isEmpty())
            return usage(QStringLiteral("--check-update is used alone"));
        result.mode = CommandLine::CheckUpdate;
        return result;
    }
    if (parser.isSet(estimateOpt)) {
        if (exporting || running || parser.isSet(cameraOpt) || parser.isSet(homeOpt)
            || parser.isSet(wsPortOpt) || parser.isSet(outputOpt))
            return usage(
                QStringLiteral("--estimate is used alone, with an optional --settings and --baud"));
        for (const QString &name : process_option_names())
            if (parser.isSet(name))
                return usage(QStringLiteral("--%1 is only used with --export").arg(name));
        result.mode = CommandLine::Estimate;
        result.estimateFile = parser.value(estimateOpt);
        result.settingsFile = parser.value(settingsOpt);
        if (parser.isSet(baudOpt)) {
            bool ok = false;
            result.estimateBaud = parser.value(baudOpt).toInt(&ok);
            if (!ok || result.estimateBaud < 300)
                return usage(QStringLiteral("--baud needs a serial rate (300 or more)"));
        }
        return result;
    }
    if (parser.isSet(settingsOpt))
        return usage(QStringLiteral("--settings is only used with --estimate"));
    if (parser.isSet(baudOpt))
        return usage(QStringLiteral("--baud is only used with --estimate"));
    if (parser.isSet(fromLineOpt)) {
        if (!parser.isSet(runOpt) || (!parser.isSet(portOpt) && !parser.isSet(wifiOpt)))
            return usage(QStringLiteral(
                "--from-line is only used with --run FILE and --port PORT or --wifi HOST"));
        bool ok = false;
        result.fromLine = parser.value(fromLineOpt).toInt(&ok);
        if (!ok || result.fromLine < 1)
            return usage(QStringLiteral("--from-line needs a line number (1 or more)"));
    }
    if (exporting && running)
        return usage(QStringLiteral("--export and --run cannot be used together"));
    if (parser.isSet(cameraOpt)) {
        if (exporting || running || parser.isSet(homeOpt) || parser.isSet(wsPortOpt))
            return usage(QStringLiteral("--camera is used alone with -o PHOTO"));
        if (!parser.isSet(outputOpt))
            return usage(QStringLiteral("--camera needs -o PHOTO"));
        for (const QString &name : process_option_names())
            if (parser.isSet(name))
                return usage(QStringLiteral("--%1 is only used with --export").arg(name));
        result.mode = CommandLine::Camera;
        result.cameraAddress = parser.value(cameraOpt);
        result.output = parser.value(outputOpt);
        return result;
    }
    if (exporting) {
        if (!parser.isSet(outputOpt))
            return usage(QStringLiteral("--export needs -o OUTPUT"));
        result.mode = CommandLine::Export;
        result.input = parser.value(exportOpt);
        result.output = parser.value(outputOpt);
        for (const QString &name : process_option_names())
            if (parser.isSet(name))
                result.processOptions.insert(name, parser.value(name));
        return result;
    }
    if (parser.isSet(wsPortOpt) && !parser.isSet(wifiOpt))
        return usage(QStringLiteral("--ws-port is only used with --wifi"));
    if (running && parser.isSet(wifiOpt)) {
        if (parser.isSet(portOpt))
            return usage(QStringLiteral("--wifi and --port cannot be used together"));
        if (!parser.isSet(runOpt))
            return usage(QStringLiteral("--wifi needs --run FILE"));
        if (parser.isSet(homeOpt))
            return usage(QStringLiteral("--home is only used with --port"));
        if (parser.isSet(wsPortOpt)) {
            bool ok = false;
            result.wsPort = parser.value(wsPortOpt).toInt(&ok);
            if (!ok || result.wsPort < 1 || result.wsPort > 65535)
                return usage(QStringLiteral("--ws-port needs a port number (1-65535)"));
        }
        result.mode = CommandLine::WifiRun;
        result.wifiAddress = parser.value(wifiOpt);
        result.runFile = parser.value(runOpt);
        return result;
    }
    if (running) {
        if (!parser.isSet(portOpt) || !parser.isSet(runOpt))
            return usage(QStringLiteral("--run needs both --port PORT and --run FILE"));
        result.mode = CommandLine::Run;
        result.port = parser.value(portOpt);
        result.runFile = parser.value(runOpt);
        result.home = parser.isSet(homeOpt);
        return result;
    }
    for (const QString &name : process_option_names())
        if (parser.isSet(name))
            return usage(QStringLiteral("--%1 is only used with --export").arg(name));
    if (parser.isSet(outputOpt))
        return usage(QStringLiteral("-o is only used with --export or --camera"));
    if (parser.isSet(homeOpt))
        return usage(QStringLiteral("--home is only used with --run"));
    result.filesToOpen = parser.positionalArguments();
    return result;
}

} // namespace lumitra
