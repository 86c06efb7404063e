#pragma once

#include "grbl_fake.h"
#include "jk_com.h"

#include <QSignalSpy>
#include <QtTest>

// Starts the fake and links `com` to it; true once the handshake completed.
inline bool linkTo(GrblFake &fake, Jk_com &com, int timeoutMs = 3000)
{
    if (fake.portName().isEmpty() && !fake.start())
        return false;
    QSignalSpy linked(&com, &Jk_com::yi_lian_jie);
    if (!com.connectPort(fake.portName()))
        return false;
    if (!linked.wait(timeoutMs))
        return false;
    return linked.first().first().toBool();
}

// Lines received by the fake after the first `skip`.
inline QStringList linesAfter(const GrblFake &fake, int skip)
{
    return fake.lines().mid(skip);
}
