#pragma once

#include <QString>

// How the main window reacts to a normalised status text from a link: what it
// shows, hides, logs and asks. The decision is pure; the window carries it out.
// The two links differ on purpose (console limits, camera, alarm follow-up).
enum class StatusLink { Serial, Wifi };

// What the window keeps between two status texts of one link.
struct StatusDisplayState
{
    bool busy = false;       // set by Run/Hold, cleared by Idle
    int idleCounter = 0;     // Idle reports since the last Run/Hold
    bool alarmShown = false; // the alarm message is up (or its follow-up pending)
    QString cameraAddress;   // last camera address seen (serial)
    int wifiTextCount = 0;   // WiFi texts received (logged)
};

struct StatusReaction
{
    bool ignored = false; // WiFi text containing "$": nothing else applies
    bool hasX = false;    // an "X:" value was found
    double x = 0.0;       // machine position, mm
    bool hasY = false;
    double y = 0.0;
    bool cameraChanged = false; // serial: a new camera address; show the camera controls
    QString cameraAddress;
    bool showIndicator = false;       // Run/Hold: show the running indicator
    bool startIndicatorTimer = false; // WiFi Run/Hold: start the 1000 ms timer if idle
    bool stopIndicatorTimer = false;  // stop the 1000 ms indicator timer
    bool hideIndicator = false;       // hide the running indicator
    bool clearConsole = false;        // before appending
    bool appendConsole = false;       // append the text on a new line
    bool showAlarm = false;           // show "设备触发警告!" (the flag is already set)
};

// Applies one status text to `state` and says what to do. `consoleLength` is
// the number of characters the console holds now.
StatusReaction reactToStatus(StatusLink link, StatusDisplayState &state, const QString &text,
                             int consoleLength);

// Idle counter limits: the indicator hides on the 4th to 10th Idle report; a
// counter at this value or above starts again at kIdleCounterRestart.
constexpr int kIdleCounterCeiling = 100001;
constexpr int kIdleCounterRestart = 101;
// A job started from the window sets the counter here so that the indicator is
// not hidden before the machine first reports Run.
constexpr int kIdleCounterJobStart = 11;
