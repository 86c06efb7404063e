#include "application.h"

#include "cloud_controller.h"
#include "command_line.h"
#include "grbl_time_estimator.h"
#include "headless_camera.h"
#include "headless_run.h"
#include "headless_update_check.h"
#include "headless_wifi_run.h"
#include "importer_registry.h"
#include "job_export.h"
#include "language.h"
#include "qidongye.h"
#include "resume_plan.h"
#include "settings_store.h"
#include "unix_signals.h"
#include "widget.h"
#include "work_area.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTranslator>

namespace lumitra {

namespace {

bool platformHasScreen()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

int printAndExit(const CommandLine &cl)
{
    QTextStream(cl.exitCode == 0 ? stdout : stderr) << cl.message << '\n';
    return cl.exitCode;
}

// --export: the same generator the window uses, without a window.
int runExport(const CommandLine &cl)
{
    load_work_area();
    register_importers();
    QString error;
    if (!exportJob({cl.input, cl.output, cl.processOptions}, &error)) {
        QTextStream(stderr) << error << '\n';
        return 1;
    }
    return 0;
}

// --from-line: the job's state at that line, then the rest of the job, in a
// file of its own in `dir`. False (with the reason on `err`) when it cannot be.
bool writeResumedJob(const CommandLine &cl, const QTemporaryDir &dir, QString *file,
                     gcode::ResumeJob *resumed, QTextStream &out, QTextStream &err)
{
    *file = dir.filePath(QFileInfo(cl.runFile).fileName());
    QString error;
    if (!dir.isValid()) {
        err << "cannot write the resumed job: no temporary folder\n";
        return false;
    }
    if (!gcode::writeResumeJobFile(cl.runFile, cl.fromLine, *file, resumed, &error)) {
        err << error << "\n";
        return false;
    }
    if (resumed->fromLine > resumed->jobLines) {
        err << "the job has only " << resumed->jobLines << " lines\n";
        return false;
    }
    out << "resuming at line " << resumed->fromLine << " of " << resumed->jobLines << "\n";
    return true;
}

// Runs cl.runFile through `run` (the serial or the WiFi sender), or with
// --from-line the resumed job made from it; SIGINT/SIGTERM stop the run.
template<typename Options, typename Run>
int runMaybeResumed(const CommandLine &cl, Options options, Run run)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    options.onStoppable = [](const std::function<void()> &stop) {
        set_terminate_signal_handler(stop);
    };
    if (cl.fromLine <= 0)
        return run(cl.runFile, options, out, err);
    QTemporaryDir dir;
    QString file;
    gcode::ResumeJob resumed;
    if (!writeResumedJob(cl, dir, &file, &resumed, out, err))
        return HeadlessBadFile;
    options.preambleLines = resumed.preambleLines;
    options.firstJobLine = resumed.fromLine;
    return run(file, options, out, err);
}

// --port ... --run: streams a file through the same serial link as the window.
int runSender(const CommandLine &cl)
{
    return runMaybeResumed(cl, HeadlessRunOptions(),
                           [&](const QString &file, const HeadlessRunOptions &options,
                               QTextStream &out, QTextStream &err) {
                               return runJobHeadless(cl.port, file, cl.home, out, err, options);
                           });
}

// --wifi ... --run: uploads and starts the file through the window's HttpThread.
int runWifiSender(const CommandLine &cl)
{
    // The link's debug trace would bury the one line a failure leaves on stderr.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    return runMaybeResumed(cl, HeadlessWifiOptions(),
                           [&](const QString &file, const HeadlessWifiOptions &options,
                               QTextStream &out, QTextStream &err) {
                               return runWifiJobHeadless(cl.wifiAddress, cl.wsPort, file, out, err,
                                                         options);
                           });
}

// --camera ... -o: the straightened photo of the work area, as the window
// would show it under the design.
int runCameraPhoto(const CommandLine &cl)
{
    // Each failed attempt is logged; the one line on stderr says it all.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false\ndefault.warning=false"));
    QTextStream err(stderr);
    return takeCameraPhotoHeadless(cl.cameraAddress, cl.output, err);
}

// --estimate FILE [--settings DUMP] [--baud N]: the job's running time as the
// controller plans it, in seconds, on one line. The settings come from DUMP,
// else from those the last connected controller reported, else its factory
// values.
int runEstimate(const CommandLine &cl)
{
    // Reading the kept settings logs; the one line on stdout (or stderr) says it all.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    QTextStream err(stderr);
    GrblMachineSettings machine = GrblMachineSettings::fromDeviceInfo(stored_machine_settings());
    if (!cl.settingsFile.isEmpty()) {
        QFile dump(cl.settingsFile);
        if (!dump.open(QIODevice::ReadOnly | QIODevice::Text)) {
            err << "cannot read settings " << cl.settingsFile << ": " << dump.errorString() << '\n';
            return 1;
        }
        machine = GrblMachineSettings::fromMap(
            parseGrblSettingsDump(QString::fromLatin1(dump.readAll())));
    }
    machine.linkBytesPerSecond = cl.estimateBaud / 10.0; // 8N1: ten bits a byte
    QFile job(cl.estimateFile);
    double seconds = 0.0;
    if (!job.open(QIODevice::ReadOnly) || !GrblTimeEstimator::estimate(job, machine, &seconds)) {
        err << "cannot read " << cl.estimateFile << ": " << job.errorString() << '\n';
        return 1;
    }
    QTextStream(stdout) << QString::number(seconds, 'f', 3) << '\n';
    return 0;
}

// --check-update: the service's answer on stdout, or one line on stderr.
int runUpdateCheck()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false\ndefault.warning=false"));
    QTextStream out(stdout);
    QTextStream err(stderr);
    return runUpdateCheckHeadless(out, err);
}

int runWindow(QApplication &app, const CommandLine &cl)
{
    const QString languageFile = load_language();
    const QIcon icon(QStringLiteral(":/newIcon/logo2.png"));
    app.setWindowIcon(icon);
    qDebug() << "language " << languageFile;
    QTranslator translator;
    if (translator.load(languageFile))
        app.installTranslator(&translator);
    // Qt's own texts (standard dialog buttons, context menus) in the same
    // language, when the system ships them.
    QTranslator qtTexts;
    const QString code = QFileInfo(languageFile).baseName().chopped(1); // "dw2" -> "dw"
    if (qtTexts.load(qt_translation_file(code)))
        app.installTranslator(&qtTexts);
    load_work_area();
    register_importers();

    QiDongYe *splash = nullptr;
    if (platformHasScreen()) {
        splash = new QiDongYe;
        splash->setAttribute(Qt::WA_DeleteOnClose);
        splash->show();
        app.processEvents();
    }

    Widget window;
    QObject::connect(&window, &Widget::quitRequested, &app, &QCoreApplication::exit,
                     Qt::QueuedConnection);
    window.setWindowIcon(icon);
    window.show();
    window.openFiles(cl.filesToOpen);
    // Asked once the window is up; a failed check shows nothing.
    window.cloudController()->checkForUpdateLater();
    if (splash)
        splash->finish(&window);
    return app.exec();
}

} // namespace

int run_application(int argc, char **argv)
{
    QApplication::setApplicationName(QStringLiteral("Lumitra"));
    QApplication::setApplicationVersion(QStringLiteral("1.2.0"));

    // The command line is read with a plain core application, before any GUI
    // exists, so that --help, --version, usage errors and the headless modes
    // never need a display.
    CommandLine cl;
    {
        QCoreApplication core(argc, argv);
        cl = parse_command_line(QCoreApplication::arguments());
    }
    if (cl.mode == CommandLine::Exit)
        return printAndExit(cl);
    if (cl.mode != CommandLine::Window && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication app(argc, argv);
    install_quit_on_terminate_signals();
    switch (cl.mode) {
    case CommandLine::Export:
        return runExport(cl);
    case CommandLine::Run:
        return runSender(cl);
    case CommandLine::WifiRun:
        return runWifiSender(cl);
    case CommandLine::Camera:
        return runCameraPhoto(cl);
    case CommandLine::Estimate:
        return runEstimate(cl);
    case CommandLine::CheckUpdate:
        return runUpdateCheck();
    case CommandLine::Exit:
    case CommandLine::Window:
        break;
    }
    return runWindow(app, cl);
}

} // namespace lumitra
