#pragma once

#include <QString>
#include <QStringList>

// The board's radio settings as "$" commands: station mode (join a network by
// name and password) or access-point mode, each followed by "$I" so that the
// board answers with its new mode, name, status and address. Pure functions.
namespace lumitra::wifi {

// The first rule a station entry breaks, in the order they are checked.
enum class StationCheck {
    Ok,
    Empty,           // name or password empty
    PasswordLength,  // password shorter than 8 or longer than 90 characters
    ForbiddenSymbol, // name or password holds "!", "?" or "~"
    NotPlainText,    // anything but ASCII letters, digits, blanks and punctuation
};

StationCheck checkStation(const QString &name, const QString &password);

// "$Sta/Password=<password>\n$Sta/SSID=<name>\n$Radio/Mode=STA\n$I\n": the
// password line comes first. Unchecked: call checkStation first.
QString stationModeCommand(const QString &name, const QString &password);
// "$Radio/Mode=AP \n$I\n", the blank before the first line end included.
QString accessPointModeCommand();
// "$I\n": asks the board for its mode, name, status and address.
QString infoCommand();

// A command text cut into the lines the WiFi link sends one request each:
// split at "\n", a trailing "\r" dropped, empty lines skipped. Other blanks
// stay as they are.
QStringList wifiCommandLines(const QString &commandText);

} // namespace lumitra::wifi
