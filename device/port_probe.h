#pragma once

#include <QString>
#include <QStringList>

// Probes that look for a controller on a serial port. They block (up to the
// given wait per attempt) and open their own port, so they run on the port
// watcher's thread or in a test, never on the GUI thread.

// Opens `port` at 115200 8N1 (read buffer 1024), writes "AT\r\n" and waits up to
// `waitMs` for an answer. True when any byte came back.
bool probePort(const QString &port, int waitMs = 500);

// The rates the baud probe tries, in order.
QStringList baudProbeRates();

// Tries each rate on `port`: open, write "AT \r\n", wait `waitMs`; returns the
// first rate at which any byte comes back, or 115200 when none does.
int probeBaudRate(const QString &port, int waitMs = 500);
// The same on the first port present; 115200 when there is none.
int probeBaudRate();

// Names of the serial ports present.
QStringList presentPorts();
