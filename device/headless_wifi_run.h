#pragma once

#include "headless_run.h"

#include <QString>
#include <functional>

class QTextStream;

// Runs a G-code file on a WiFi board without a window, through the same
// HttpThread as the window: connects the WebSocket, uploads the file as
// "001.nc", starts it with "[ESP220]/001.nc", follows the status stream (asking
// for a report every `pollIntervalMs`) and returns once the board reports Idle
// after Run. Progress goes to `out`.
//
// `address` is "HOST" or "HOST:PORT" (HTTP port, 80 when absent); the WebSocket
// is on `wsPort`. Returns HeadlessDone, or writes one line to `err` and returns
// HeadlessBadFile (file unreadable or bad address), HeadlessNoPort (no
// WebSocket), HeadlessNotTaken (upload failed, job not started),
// HeadlessMachineFault (alarm or error), HeadlessPortLost (WebSocket dropped)
// or HeadlessSilent (no line from the board for `silenceTimeoutMs` while
// running) or HeadlessStopped (a stop request: the board is reset). Needs a
// QCoreApplication; blocks in a local event loop.
//
// A run that ends early after the job started prints to `out`
//   "stopped at <P>% of the file; resume from line <N>"
// where N is the first line the board had not surely executed (SdJobProgress;
// a line of the original job when `options` say the file is a resumed one),
// and a reminder to home or set the origin again first.
struct HeadlessWifiOptions
{
    int connectTimeoutMs = 5000;
    int silenceTimeoutMs = 30000;
    int pollIntervalMs = 1000;
    // The file is a resumed job: its first `preambleLines` lines restore the
    // state, the next one is line `firstJobLine` of the original job.
    int preambleLines = 0;
    int firstJobLine = 1;
    // As HeadlessRunOptions::onStoppable.
    std::function<void(const std::function<void()> &)> onStoppable;
};

int runWifiJobHeadless(const QString &address, int wsPort, const QString &file, QTextStream &out,
                       QTextStream &err, const HeadlessWifiOptions &options = {});
