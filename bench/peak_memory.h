// The benchmarks' memory figure: the process's peak resident memory.
#pragma once

#include <QByteArray>
#include <QFile>

// VmHWM of this process in kB, or -1 where /proc cannot tell. /proc files
// report no size, so the file is read whole, not up to atEnd().
inline long peakMemoryKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLong();
    return -1;
}
