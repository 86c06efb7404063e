#pragma once

#include <QString>

// The GRBL vocabulary shared by the serial and the WiFi link: what is sent, how a
// received line is classified, and the normalised status text. Pure functions,
// callable from any thread.
namespace lumitra::grbl {

// Real-time bytes, written straight to the port and never queued.
constexpr char kStatusQuery = '?';
constexpr char kFeedHold = '!';
constexpr char kCycleStart = '~';
constexpr char kSoftReset = 0x18;

// The model string of the maker's own machine.
QString makerModel();

// Lines the link sends (each ends in "\n").
QString identifyText();        // "$i\n": handshake, answered by a "VER:" line
QString settingsRequestText(); // "$I\n$$\n": build info and every setting
QString unlockText();          // "$X\n"
QString homeText();            // "$H\n"
QString laserOffText();        // "M5\n": laser (spindle) off

// What the link writes before it closes its port, so that the laser does not
// stay on when nothing talks to the controller any more.
struct StopBeforeClose
{
    bool hold = false;     // "!" first: feed hold, the motion decelerates
    bool reset = false;    // then 0x18: soft reset, buffers and job dropped
    bool laserOff = false; // "M5\n" last, once the controller is back after a reset
    bool any() const { return hold || reset || laserOff; }
};
// `laserOn`: the laser was switched on outside a job (test fire).
// `machineBusy`: a job streams or the machine reported motion.
StopBeforeClose stopBeforeClose(bool laserOn, bool machineBusy);

// True when a status report ("<Run|...", "<Hold:0|...") names a state in which
// the machine moves or may go on moving: Run, Hold, Jog, Home.
bool statusShowsMotion(const QString &report);

// What a received serial line (cut at "\n", a trailing "\r" kept) means. The
// tests run in this order and the first match decides:
//   Ok              contains "ok"
//   MachineModel    contains "MSG:Using machine"
//   StationMode     contains "Mode=STA"
//   AccessPointMode contains "Mode=AP"
//   Setting         first character "$"
//   Alarm           contains "Alarm" (the status report "<Alarm|..." lands here)
//   Error           contains "Error" (capital E only: GRBL's "error:N" falls
//                   through to Other and releases nothing, on purpose)
//   Status          first character "<"
//   Version         contains "VER:"
//   Other           anything else (the start-up banner among them)
enum class SerialLine {
    Ok,
    MachineModel,
    StationMode,
    AccessPointMode,
    Setting,
    Alarm,
    Error,
    Status,
    Version,
    Other
};
SerialLine classifySerialLine(const QString &line);

// True for the banner a controller prints after a reset ("Grbl 1.1h [...]").
bool isStartupBanner(const QString &line);

// The status report normalised to "<state> X:<x> Y:<y> F:<f> S:<s>" with every
// ">" removed; the Z value is dropped.
QString normaliseStatus(const QString &report);

// The serial form: the normalised report, plus " Cam:<address>" when the line
// carries a camera field.
QString serialStatusText(const QString &line);

// True when a text names the maker's model.
bool namesMakerModel(const QString &text);

} // namespace lumitra::grbl
