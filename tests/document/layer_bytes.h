#pragma once

// Layer records compared by their stored form: equal bytes mean every
// parameter is equal.
#include "layer_list.h"
#include "tu_ceng.h"

#include <QByteArray>
#include <QDataStream>
#include <QList>

inline QByteArray bytesOf(const TuCeng &l)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    writeTuCeng(out, l);
    if (l.jingxi)
        out << QStringLiteral("MY_CENG_JINGXI"); // as the project file stores it
    return bytes;
}

// Every record of the program-wide list, in list order.
inline QList<QByteArray> listBytes()
{
    QList<QByteArray> all;
    for (const TuCeng *l : LayerList::instance().layers())
        all.append(bytesOf(*l));
    return all;
}
