#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace lumitra {

// What the command line asks the one executable to do.
struct CommandLine
{
    enum Mode { Window, Export, Run, Exit, WifiRun, Camera, Estimate, CheckUpdate };
    Mode mode = Window;
    int exitCode = 0; // for Exit: --help, --version or a usage error
    QString message;  // printed for Exit (stdout when exitCode is 0, else stderr)

    // --export INPUT -o OUTPUT [--power P --speed S --passes N --mode M
    //  --spacing MM --angle DEG --overscan MM]
    QString input;
    QString output;
    QMap<QString, QString> processOptions; // option name -> value text, as given

    // --port PORT --run FILE [--home] [--from-line N]
    QString port;
    QString runFile;
    bool home = false;
    // --from-line N: resume the job at its line N (1-based); 0: from the start.
    int fromLine = 0;

    // --wifi HOST[:PORT] --run FILE [--ws-port N]: the board's address as
    // given (HTTP port 80 when absent) and its WebSocket port.
    QString wifiAddress;
    int wsPort = 81;

    // --camera HOST[:PORT] -o PHOTO: the board whose straightened camera
    // photo is written to `output`.
    QString cameraAddress;

    // --estimate FILE [--settings DUMP] [--baud N]: the G-code file to time,
    // a text file holding the controller's "$$" reply (its defaults when
    // empty), and the serial rate it streams at (0: the link keeps up).
    QString estimateFile;
    QString settingsFile;
    int estimateBaud = 0;

    // --check-update: asks the cloud service once and prints its answer (no
    // other field is used).

    // Window mode: design files named on the command line are opened.
    QStringList filesToOpen;
};

// Parses the arguments (argv[0] first). Never exits the process.
CommandLine parse_command_line(const QStringList &arguments);

// Names of the process options accepted with --export.
QStringList process_option_names();

} // namespace lumitra
