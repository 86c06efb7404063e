#pragma once

#include <QMap>
#include <QString>

namespace lumitra {

// What the controller's setting list ("$$") tells about the machine.
struct MachineTravel
{
    int maxRateX = -1;          // setting 110 rounded, or -1 when not reported
    int maxRateY = -1;          // setting 101 rounded, or -1 when not reported
    double zTravel = 0.0;       // setting 132
    bool workAreaKnown = false; // 130 and 131 were both non-zero
    int width = 0;              // rounded 130, valid when workAreaKnown
    int height = 0;             // rounded 131, valid when workAreaKnown
};

// Reads settings 101, 110, 130, 131 and 132 from a map of setting number to
// value text. When 130 and 131 are both non-zero it replaces the program's work
// area and stores it under "BianKuang/kuan" and "BianKuang/gao"; otherwise the
// work area is left as it is.
MachineTravel work_area_from_machine(const QMap<int, QString> &settings);

// Same, for the serial link's information map whose keys read "$130".
QMap<int, QString> numbered_settings(const QMap<QString, QString> &info);

// Loads the work area saved by an earlier run (keys as above); values that are
// missing or not positive keep the current size.
void load_work_area();

} // namespace lumitra
