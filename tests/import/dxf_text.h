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
inline QString g(int code, double value)
{
    return g(code, QString::number(value, 'g', 17));
}
inline QString g(int code, int value)
{
    return g(code, QString::number(value));
}
inline QString g(int code, const char *value)
{
    return g(code, QString::fromLatin1(value));
}
// Entity start on layer 0, and a point with z = 0 under the codes x, x + 10, x + 20.
inline QString ent(const char *name)
{
    return g(0, name) + g(8, "0");
}
inline QString xy(int code, double x, double y)
{
    return g(code, x) + g(code + 10, y) + g(code + 20, 0.0);
}
inline QString down(bool on)
{
    return on ? g(210, 0.0) + g(220, 0.0) + g(230, -1.0) : QString();
}
// An extrusion direction (group codes 210, 220, 230).
inline QString extrusion(double nx, double ny, double nz)
{
    return g(210, nx) + g(220, ny) + g(230, nz);
}

inline QString line(double x1, double y1, double x2, double y2)
{
    return ent("LINE") + xy(10, x1, y1) + xy(11, x2, y2);
}
inline QString circle(double cx, double cy, double r)
{
    return ent("CIRCLE") + xy(10, cx, cy) + g(40, r);
}
inline QString arc(double cx, double cy, double r, double a1, double a2, bool isDown = false)
{
    return ent("ARC") + xy(10, cx, cy) + g(40, r) + down(isDown) + g(50, a1) + g(51, a2);
}
inline QString ellipse(double cx, double cy, double mx, double my, double ratio, double t1,
                       double t2)
{
    return ent("ELLIPSE") + xy(10, cx, cy) + xy(11, mx, my) + g(40, ratio) + g(41, t1) + g(42, t2);
}
inline QString point(double x, double y)
{
    return ent("POINT") + xy(10, x, y);
}

struct Vertex
{
    double x, y, bulge;
};
inline QString lwpolyline(const QVector<Vertex> &v, bool closed, bool isDown = false)
{
    QString s = ent("LWPOLYLINE") + g(90, v.size()) + g(70, closed ? 1 : 0);
    for (const Vertex &p : v)
        s += g(10, p.x) + g(20, p.y) + (p.bulge != 0 ? g(42, p.bulge) : QString());
    return s + down(isDown);
}
inline QString polyline(const QVector<Vertex> &v)
{
    QString s = ent("POLYLINE") + g(66, 1) + xy(10, 0, 0) + g(70, 0);
    for (const Vertex &p : v)
        s += ent("VERTEX") + xy(10, p.x, p.y) + (p.bulge != 0 ? g(42, p.bulge) : QString());
    return s + ent("SEQEND");
}
inline QString spline(int degree, const QVector<QPointF> &control, const QVector<double> &knots,
                      const QVector<double> &weights = {}, const QVector<QPointF> &fit = {})
{
    QString s = ent("SPLINE") + g(210, 0.0) + g(220, 0.0) + g(230, 1.0)
                + g(70, 8 | (weights.isEmpty() ? 0 : 4)) + g(71, degree) + g(72, knots.size())
                + g(73, control.size()) + g(74, fit.size());
    for (double k : knots)
        s += g(40, k);
    for (int i = 0; i < control.size(); ++i)
        s += xy(10, control[i].x(), control[i].y())
             + (weights.isEmpty() ? QString() : g(41, weights[i]));
    for (const QPointF &p : fit)
        s += xy(11, p.x(), p.y());
    return s;
}
inline QString insert(const char *block, double x, double y, double sx = 1, double sy = 1,
                      double angle = 0, int cols = 1, int rows = 1, double colSp = 0,
                      double rowSp = 0, bool isDown = false)
{
    QString s = ent("INSERT") + g(2, block) + xy(10, x, y) + g(41, sx) + g(42, sy) + g(50, angle);
    if (cols != 1 || rows != 1)
        s += g(70, cols) + g(71, rows) + g(44, colSp) + g(45, rowSp);
    return s + down(isDown);
}
inline QString block(const char *name, double bx, double by, const QString &content)
{
    return ent("BLOCK") + g(2, name) + g(70, 0) + xy(10, bx, by) + g(3, name) + content
           + ent("ENDBLK");
}

// A whole file; insunits < 0 leaves the header variable out.
inline QString file(const QString &entities, int insunits = 4, const QString &blocks = QString())
{
    QString s = g(0, "SECTION") + g(2, "HEADER") + g(9, "$ACADVER") + g(1, "AC1015");
    if (insunits >= 0)
        s += g(9, "$INSUNITS") + g(70, insunits);
    s += g(0, "ENDSEC");
    if (!blocks.isEmpty())
        s += g(0, "SECTION") + g(2, "BLOCKS") + blocks + g(0, "ENDSEC");
    return s + g(0, "SECTION") + g(2, "ENTITIES") + entities + g(0, "ENDSEC") + g(0, "EOF");
}

inline bool write(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

} // namespace dxftext
