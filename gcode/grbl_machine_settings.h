#pragma once

#include <QMap>
#include <QString>

// The controller settings that decide how fast a job runs. Units as the
// controller reports them: rates in mm/min, accelerations in mm/s², the
// junction deviation and arc tolerance in mm. The defaults are the
// controller's own factory values.
struct GrblMachineSettings
{
    double maxRate[3] = {500.0, 500.0, 500.0};   // $110 $111 $112
    double acceleration[3] = {10.0, 10.0, 10.0}; // $120 $121 $122
    double junctionDeviation = 0.010;            // $11
    double arcTolerance = 0.002;                 // $12
    bool laserMode = false;                      // $32
    // How fast the job's bytes reach the controller (bytes/s); 0 when the
    // link never holds the job back (a job run from the board's card). Not a
    // controller setting: the caller sets it for the link the job goes over.
    double linkBytesPerSecond = 0.0;

    // Takes the values found in `values` (setting number -> value text);
    // missing, unreadable or non-positive values keep their defaults.
    static GrblMachineSettings fromMap(const QMap<int, QString> &values);
    // The same from the serial link's information map (keys "$110", ...).
    static GrblMachineSettings fromDeviceInfo(const QMap<QString, QString> &info);
};

// Reads a "$$" reply: every line "$N=VALUE" (an optional trailing comment
// or carriage return is ignored) gives one entry; other lines are skipped.
QMap<int, QString> parseGrblSettingsDump(const QString &text);
