// Builds DXF text for tests: group code/value pairs, entities, blocks and whole files.
#pragma once

#include <QFile>
#include <QPointF>
#include <QString>
#include <QVector>

namespace dxftext {

inline QString g(int code, const QString &value)
{
    return QString::number(code) + QLatin1Char('\n') + value + QLatin1Char('\n');
}
inline QString g(int code, double value) { return g(code, QString::number(value, 'g', 17)); }
inline QString g(int code, int value) { return g(code, QString::number(value)); }

inline QString extrusionDown() { return g(210, 0.0) + g(220, 0.0) + g(230, -1.0); }

inline QString line(double x1, double y1, double x2, double y2)
{
    return g(0, QStringLiteral("LINE")) + g(8, QStringLiteral("0")) + g(10, x1) + g(20, y1)
        + g(30, 0.0) + g(11, x2) + g(21, y2) + g(31, 0.0);
}

inline QString circle(double cx, double cy, double r, bool down = false)
{
    return g(0, QStringLiteral("CIRCLE")) + g(8, QStringLiteral("0")) + g(10, cx) + g(20, cy)
        + g(30, 0.0) + g(40, r) + (down ? extrusionDown() : QString());
}

inline QString arc(double cx, double cy, double r, double a1, double a2, bool down = false)
{
    return g(0, QStringLiteral("ARC")) + g(8, QStringLiteral("0")) + g(10, cx) + g(20, cy)
        + g(30, 0.0) + g(40, r) + (down ? extrusionDown() : QString()) + g(50, a1) + g(51, a2);
}

inline QString ellipse(double cx, double cy, double mx, double my, double ratio, double t1, double t2)
{
    return g(0, QStringLiteral("ELLIPSE")) + g(8, QStringLiteral("0")) + g(10, cx) + g(20, cy)
        + g(30, 0.0) + g(11, mx) + g(21, my) + g(31, 0.0) + g(40, ratio) + g(41, t1) + g(42, t2);
}

inline QString point(double x, double y)
{
    return g(0, QStringLiteral("POINT")) + g(8, QStringLiteral("0")) + g(10, x) + g(20, y) + g(30, 0.0);
}

// Vertices as (x, y, bulge).
struct Vertex
{
    double x, y, bulge;
};

inline QString lwpolyline(const QVector<Vertex> &v, bool closed, bool down = false)
{
    QString s = g(0, QStringLiteral("LWPOLYLINE")) + g(8, QStringLiteral("0")) + g(90, v.size())
        + g(70, closed ? 1 : 0);
    for (const Vertex &p : v) {
        s += g(10, p.x) + g(20, p.y);
        if (p.bulge != 0)
            s += g(42, p.bulge);
    }
    if (down)
        s += extrusionDown();
    return s;
}

inline QString polyline(const QVector<Vertex> &v, bool closed)
{
    QString s = g(0, QStringLiteral("POLYLINE")) + g(8, QStringLiteral("0")) + g(66, 1)
        + g(10, 0.0) + g(20, 0.0) + g(30, 0.0) + g(70, closed ? 1 : 0);
    for (const Vertex &p : v) {
        s += g(0, QStringLiteral("VERTEX")) + g(8, QStringLiteral("0")) + g(10, p.x) + g(20, p.y)
            + g(30, 0.0);
        if (p.bulge != 0)
            s += g(42, p.bulge);
    }
    return s + g(0, QStringLiteral("SEQEND")) + g(8, QStringLiteral("0"));
}

inline QString spline(int degree, const QVector<QPointF> &control, const QVector<double> &knots,
                      const QVector<double> &weights = {}, const QVector<QPointF> &fit = {},
                      bool closed = false)
{
    QString s = g(0, QStringLiteral("SPLINE")) + g(8, QStringLiteral("0")) + g(210, 0.0)
        + g(220, 0.0) + g(230, 1.0) + g(70, (closed ? 1 : 0) | 8 | (weights.isEmpty() ? 0 : 4))
        + g(71, degree) + g(72, knots.size()) + g(73, control.size()) + g(74, fit.size());
    for (double k : knots)
        s += g(40, k);
    for (int i = 0; i < control.size(); ++i) {
        s += g(10, control[i].x()) + g(20, control[i].y()) + g(30, 0.0);
        if (!weights.isEmpty())
            s += g(41, weights[i]);
    }
    for (const QPointF &p : fit)
        s += g(11, p.x()) + g(21, p.y()) + g(31, 0.0);
    return s;
}

inline QString insert(const QString &block, double x, double y, double sx = 1, double sy = 1,
                      double angle = 0, int cols = 1, int rows = 1, double colSp = 0, double rowSp = 0,
                      bool down = false)
{
    QString s = g(0, QStringLiteral("INSERT")) + g(8, QStringLiteral("0")) + g(2, block) + g(10, x)
        + g(20, y) + g(30, 0.0) + g(41, sx) + g(42, sy) + g(50, angle);
    if (cols != 1 || rows != 1)
        s += g(70, cols) + g(71, rows) + g(44, colSp) + g(45, rowSp);
    if (down)
        s += extrusionDown();
    return s;
}

inline QString block(const QString &name, double bx, double by, const QString &content)
{
    return g(0, QStringLiteral("BLOCK")) + g(8, QStringLiteral("0")) + g(2, name) + g(70, 0)
        + g(10, bx) + g(20, by) + g(30, 0.0) + g(3, name) + content + g(0, QStringLiteral("ENDBLK"))
        + g(8, QStringLiteral("0"));
}

// A whole file; insunits < 0 leaves the header variable out.
inline QString file(const QString &entities, int insunits = 4, const QString &blocks = QString())
{
    QString s = g(0, QStringLiteral("SECTION")) + g(2, QStringLiteral("HEADER"))
        + g(9, QStringLiteral("$ACADVER")) + g(1, QStringLiteral("AC1015"));
    if (insunits >= 0)
        s += g(9, QStringLiteral("$INSUNITS")) + g(70, insunits);
    s += g(0, QStringLiteral("ENDSEC"));
    if (!blocks.isEmpty())
        s += g(0, QStringLiteral("SECTION")) + g(2, QStringLiteral("BLOCKS")) + blocks
            + g(0, QStringLiteral("ENDSEC"));
    s += g(0, QStringLiteral("SECTION")) + g(2, QStringLiteral("ENTITIES")) + entities
        + g(0, QStringLiteral("ENDSEC")) + g(0, QStringLiteral("EOF"));
    return s;
}

inline bool write(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

} // namespace dxftext
