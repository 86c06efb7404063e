#pragma once

#include "headless_run.h"

#include <QString>

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
// running). Needs a QCoreApplication; blocks in a local event loop.
struct HeadlessWifiOptions
{
    int connectTimeoutMs = 5000;
    int silenceTimeoutMs = 30000;
    int pollIntervalMs = 1000;
};

int runWifiJobHeadless(const QString &address, int wsPort, const QString &file, QTextStream &out,
                       QTextStream &err, const HeadlessWifiOptions &options = {});
