#pragma once

#include <QRectF>
#include <QString>
#include <QStringList>

// The command text of every machine control, for either link. Serial texts go
// through the link's queue (which splits on "\n"); WiFi texts are the plain
// "commandText" of the board's command URL (blanks as blanks, the soft reset as
// the byte 0x18), percent-encoded as a whole by wifiCommandUrl.
// Coordinates in millimetres, feeds in mm/min. The differences between the two
// columns (serial home unlocks first, serial move-to has no feed, serial
// test-fire off keeps "F1000") are intended.
namespace lumitra::machine {

enum class Link { Serial, Wifi };

QString homeCommand(Link link);
QString goToOriginCommand(Link link);
QString setOriginCommand();
QString clearOriginCommand();
// `x` and `y` as the spin boxes give them, written as general numbers.
QString moveToCommand(Link link, double x, double y);

// WiFi only: the board takes these as command texts; the serial link writes the
// real-time bytes instead.
QString wifiPauseCommand();     // "$!"
QString wifiResumeCommand();    // "$~"
QString wifiSoftResetCommand(); // the byte 0x18

// S value of a test fire: power percent × laser maximum S / 100, general number
// with 6 significant digits.
QString testFirePower(double percent, double laserMaxS);
QString testFireOnCommand(const QString &power);
QString testFireOffCommand(Link link);

// One jog step. `dx` and `dy` are the step, its negative ("-" + step) or "0".
QString jogCommand(Link link, const QString &dx, const QString &dy, int feed);
QString jogCentreCommand(Link link, int feed);

// Direction of each button of the nine-button pad, row by row from the top left;
// the centre (index 4) is the jog-centre button. +Y is away from the user (the
// top of the canvas).
struct JogDirection
{
    int x = 0; // -1, 0 or 1
    int y = 0;
};
JogDirection jogPadDirection(int index);
// dx/dy texts for a direction and a step in whole millimetres.
QString jogOffset(int direction, int step);

// Traces the rectangle with the laser off at `feed`: laser off, then absolute
// jogs to the four corners and back to the first. `machineRect` in machine
// coordinates (Y up), numbers written with two decimals.
QStringList framingCommands(const QRectF &machineRect, int feed);
// An absolute jog to `machinePoint` at `feed` ("$J=G90X..Y..F.."), such as the
// way back to where the head was before framing.
QString jogBackTo(const QPointF &machinePoint, int feed);
// A canvas rectangle (scene units, y down) in machine coordinates (Y negated).
QRectF sceneToMachine(const QRectF &sceneRect);

// "http://<address>/command?commandText=<command>&PAGEID=0" with the command
// percent-encoded as a whole ("+" travels as "%2B", 0x18 as "%18").
// `address` is the IP field's text, optionally with ":port".
QString wifiCommandUrl(const QString &address, const QString &command);

} // namespace lumitra::machine
