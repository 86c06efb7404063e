#pragma once

#include <QString>
#include <atomic>
#include <functional>

namespace lumitra {

// Program-wide state that several subsystems read. Every field is touched on the
// GUI thread only, except `cancel`, which a long generation polls.
struct ProgramState
{
    int width = 400;                // work area, whole millimetres (scene x 0..width)
    int height = 400;               // work area, whole millimetres (scene y -height..0)
    int currentLayer = 0;           // layer number picked on the palette, 0..29
    bool unsaved = false;           // the design changed since the last project save
    int connectionMode = 0;         // 0 not connected, 1 serial, 2 WiFi
    bool modelFlag = false;         // the controller identified itself as the maker's model
    bool running = false;           // a job is on the machine (serial or WiFi busy)
    QString jobFilePath;            // G-code file that the next run sends
    QString preamble;               // text written once at the top of the next job
    std::atomic_bool cancel{false}; // asks a running generation to stop
};

ProgramState &programState();

// Sets the unsaved flag and tells the listener (the window's title) when it
// changes. Every write of the flag goes through here.
void setUnsaved(bool unsaved);
// One listener, called on the GUI thread with the new value; an empty
// function removes it.
void setUnsavedListener(std::function<void(bool)> listener);

// Puts every field back to its start value (used by tests and by a new session).
void resetProgramState();

// Connection modes.
enum ConnectionMode { NotConnected = 0, SerialLink = 1, WifiLink = 2 };

} // namespace lumitra
