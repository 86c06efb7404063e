#pragma once

#include <QString>
#include <functional>

class QTextStream;

// Runs a G-code file on a serial controller without a window: opens the port
// through Jk_com, does the handshake, streams the file with the same send loop
// (homing first only when `home` is set), prints progress to `out`, and returns
// once the controller reports Idle after the last line.
//
// Returns 0 on success; otherwise writes one line with the reason to `err` and
// returns one of the HeadlessExit codes. Needs a QCoreApplication; blocks in a
// local event loop.
//
// A run that ends by interruption after the job started (alarm or error, lost
// port, silent controller, a stop request) prints to `out`
//   "stopped after line <A> was answered, line <S> sent; resume from line <N>"
// where N is the first job line the controller had not surely executed (lines
// of the original job when `options` say the file is a resumed one), and, when
// the controller was reset or raised an alarm, a reminder to home or set the
// origin again first.
enum HeadlessExit {
    HeadlessDone = 0,
    HeadlessBadFile = 2,      // the job file cannot be read
    HeadlessNoPort = 3,       // the port does not open
    HeadlessNoHandshake = 4,  // no "VER:" answer within the handshake time
    HeadlessMachineFault = 5, // alarm or error reported by the controller
    HeadlessPortLost = 6,     // the port failed during the run (unplugged)
    HeadlessSilent = 7,       // the controller stopped answering
    HeadlessNotTaken = 8,     // WiFi: the upload failed or the board did not start the job
    HeadlessStopped = 9,      // stopped on request (SIGINT, SIGTERM)
};

struct HeadlessRunOptions
{
    int handshakeTimeoutMs = 5000;
    int silenceTimeoutMs = 30000; // no line at all for this long ends the run
    // The file is a resumed job: its first `preambleLines` lines restore the
    // state, the next one is line `firstJobLine` of the original job.
    int preambleLines = 0;
    int firstJobLine = 1;
    // Called once the run is under way with the function that stops it (as a
    // stop request); called with an empty function when the run is over.
    std::function<void(const std::function<void()> &)> onStoppable;
};

int runJobHeadless(const QString &port, const QString &file, bool home, QTextStream &out,
                   QTextStream &err, const HeadlessRunOptions &options = {});
