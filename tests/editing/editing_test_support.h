// Helpers shared by the editing tests: path comparison and geometry snapshots.
#pragma once

#include "jk_tu_yuan.h"

#include <QList>
#include <QPainterPath>
#include <QString>
#include <QVector>
#include <cmath>

namespace editing_test {

// True when both paths have the same elements (types and points within `tol`).
inline bool samePath(const QPainterPath &a, const QPainterPath &b, double tol = 1e-9)
{
    if (a.elementCount() != b.elementCount())
        return false;
    for (int i = 0; i < a.elementCount(); ++i) {
        const QPainterPath::Element ea = a.elementAt(i);
        const QPainterPath::Element eb = b.elementAt(i);
        if (ea.type != eb.type || std::abs(ea.x - eb.x) > tol || std::abs(ea.y - eb.y) > tol)
            return false;
    }
    return true;
}

// Readable form of a path for failure messages.
inline QString describe(const QPainterPath &p)
{
    QString s;
    for (int i = 0; i < p.elementCount(); ++i) {
        const QPainterPath::Element e = p.elementAt(i);
        s += QString::asprintf("%d(%.4g,%.4g) ", int(e.type), e.x, e.y);
    }
    return s;
}

inline bool sameRect(const QRectF &a, const QRectF &b, double tol = 1e-6)
{
    return std::abs(a.x() - b.x()) <= tol && std::abs(a.y() - b.y()) <= tol
           && std::abs(a.width() - b.width()) <= tol && std::abs(a.height() - b.height()) <= tol;
}

inline QString describe(const QRectF &r)
{
    return QString::asprintf("(%.6g, %.6g, %.6g x %.6g)", r.x(), r.y(), r.width(), r.height());
}

// The outlines of the items in scene coordinates.
inline QVector<QPainterPath> scenePaths(const QList<Jk_tu_yuan *> &items)
{
    QVector<QPainterPath> paths;
    for (const Jk_tu_yuan *item : items)
        paths.append(item->scenePath());
    return paths;
}

inline bool samePaths(const QVector<QPainterPath> &a, const QVector<QPainterPath> &b,
                      double tol = 1e-9)
{
    if (a.size() != b.size())
        return false;
    for (int i = 0; i < a.size(); ++i) {
        if (!samePath(a.at(i), b.at(i), tol))
            return false;
    }
    return true;
}

// A vector item with a rectangular outline at a scene position (not in a scene).
inline Jk_tu_yuan *rectItem(double x, double y, double w, double h)
{
    QPainterPath p;
    p.addRect(0, 0, w, h);
    auto *item = new Jk_tu_yuan(p, 1);
    item->setPos(x, y);
    return item;
}

} // namespace editing_test
