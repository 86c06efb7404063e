#pragma once

#include <QString>

class QTextStream;

// Runs a G-code file on a serial controller without a window: opens the port
// through Jk_com, does the handshake, streams the file with the same send loop
// (homing first only when `home` is set), prints progress to `out`, and returns
// once the controller reports Idle after the last line.
//
// Returns 0 on success; otherwise writes one line with the reason to `err` and
// returns one of the HeadlessExit codes. Needs a QCoreApplication; blocks in a
// local event loop.
enum HeadlessExit {
    HeadlessDone = 0,
    HeadlessBadFile = 2,      // the job file cannot be read
    HeadlessNoPort = 3,       // the port does not open
    HeadlessNoHandshake = 4,  // no "VER:" answer within the handshake time
    HeadlessMachineFault = 5, // alarm or error reported by the controller
    HeadlessPortLost = 6,     // the port failed during the run (unplugged)
    HeadlessSilent = 7,       // the controller stopped answering
    HeadlessNotTaken = 8,     // WiFi: the upload failed or the board did not start the job
};

struct HeadlessRunOptions
{
    int handshakeTimeoutMs = 5000;
    int silenceTimeoutMs = 30000; // no line at all for this long ends the run
};

int runJobHeadless(const QString &port, const QString &file, bool home, QTextStream &out,
                   QTextStream &err, const HeadlessRunOptions &options = {});
