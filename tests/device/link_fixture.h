#pragma once

#include "grbl_fake.h"
#include "jk_com.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

// Starts the fake and links `com` to it; true once the handshake completed.
inline bool linkTo(GrblFake &fake, Jk_com &com, int timeoutMs = 3000)
{
    if (fake.portName().isEmpty() && !fake.start())
        return false;
    QSignalSpy linked(&com, &Jk_com::yi_lian_jie);
    return com.connectPort(fake.portName()) && linked.wait(timeoutMs)
           && linked.first().first().toBool();
}

// Line i of a test job: each distinct, so that order can be checked.
inline QString jobLine(int i)
{
    return QString("G1X%1Y%2F3000").arg(i % 400).arg(i / 400);
}

// Writes `count` job lines, each ended by "\n", into `dir`; returns the path.
inline QString writeJobFile(const QTemporaryDir &dir, int count, const QString &name = "job.nc")
{
    QFile f(dir.filePath(name));
    if (!f.open(QIODevice::WriteOnly))
        return QString();
    QByteArray block;
    for (int i = 0; i < count; ++i)
        block += jobLine(i).toLatin1() + '\n';
    f.write(block);
    return f.fileName();
}
