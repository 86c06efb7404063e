#pragma once

#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// The lines of a test job: plain G-code moves, each distinct so that order can
// be checked line by line.
inline QString jobLine(int i)
{
    return QString("G1X%1Y%2F3000").arg(i % 400).arg(i / 400);
}

// Writes `count` job lines (ended by "\n") into `dir`; returns the path.
inline QString writeJobFile(const QTemporaryDir &dir, int count, const QString &name = "job.nc")
{
    const QString path = dir.filePath(name);
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly))
        return QString();
    QByteArray block;
    for (int i = 0; i < count; ++i) {
        block += jobLine(i).toLatin1() + '\n';
        if (block.size() > (1 << 16)) {
            f.write(block);
            block.clear();
        }
    }
    f.write(block);
    return path;
}
