// Small helpers shared by the G-code tests.
#pragma once

#include "rotary.h"

#include <QByteArray>
#include <QFile>
#include <QString>

// The whole content of a file, or nothing when it cannot be read.
inline QByteArray readFileBytes(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

inline lumitra::RotarySettings rotarySettings(int mode, const QString &axis, double circumference,
                                              double diameter, double units)
{
    lumitra::RotarySettings s;
    s.mode = mode;
    s.axis = axis;
    s.circumference = circumference;
    s.diameter = diameter;
    s.unitsPerTurn = units;
    return s;
}
