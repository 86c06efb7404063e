#include "curve_sampling.h"

#include <QVarLengthArray>
#include <cmath>

namespace lumitra {

namespace {

constexpr double kChordLength = 0.4; // mm, target length of one chord of the table
constexpr int kMinChords = 16;
constexpr int kMaxChords = 8192;

struct Cubic
{
    double ax, bx, cx, dx; // x(u) = ((ax u + bx) u + cx) u + dx
    double ay, by, cy, dy;

    Cubic(const QPointF &p0, const QPointF &c1, const QPointF &c2, const QPointF &p3)
    {
        cx = 3 * (c1.x() - p0.x());
        bx = 3 * (c2.x() - c1.x()) - cx;
        ax = p3.x() - p0.x() - cx - bx;
        dx = p0.x();
        cy = 3 * (c1.y() - p0.y());
        by = 3 * (c2.y() - c1.y()) - cy;
        ay = p3.y() - p0.y() - cy - by;
        dy = p0.y();
    }
    double x(double u) const { return ((ax * u + bx) * u + cx) * u + dx; }
    double y(double u) const { return ((ay * u + by) * u + cy) * u + dy; }
};

int chordCount(const QPointF &p0, const QPointF &c1, const QPointF &c2, const QPointF &p3)
{
    const double polygon = std::hypot(c1.x() - p0.x(), c1.y() - p0.y())
                           + std::hypot(c2.x() - c1.x(), c2.y() - c1.y())
                           + std::hypot(p3.x() - c2.x(), p3.y() - c2.y());
    if (!(polygon < kMaxChords * kChordLength)) // also NaN
        return kMaxChords;
    return qMax(kMinChords, int(std::ceil(polygon / kChordLength)));
}

// Cumulative chord lengths at u = i / n, i = 0..n.
template<typename Table> double buildTable(const Cubic &c, int n, Table &cumulative)
{
    cumulative.resize(n + 1);
    cumulative[0] = 0.0;
    double px = c.dx;
    double py = c.dy;
    double total = 0.0;
    for (int i = 1; i <= n; ++i) {
        const double u = double(i) / n;
        const double x = c.x(u);
        const double y = c.y(u);
        total += std::sqrt((x - px) * (x - px) + (y - py) * (y - py));
        cumulative[i] = total;
        px = x;
        py = y;
    }
    return total;
}

} // namespace

double cubicLength(const QPointF &p0, const QPointF &c1, const QPointF &c2, const QPointF &p3)
{
    QVarLengthArray<double, 256> table;
    return buildTable(Cubic(p0, c1, c2, p3), chordCount(p0, c1, c2, p3), table);
}

void sampleCubicByLength(const QPointF &p0, const QPointF &c1, const QPointF &c2, const QPointF &p3,
                         double step, QVector<QPointF> &out)
{
    const Cubic curve(p0, c1, c2, p3);
    const int n = chordCount(p0, c1, c2, p3);
    QVarLengthArray<double, 256> table;
    const double length = buildTable(curve, n, table);
    if (length > 0 && step > 0) {
        const double increment = step / length;
        int chord = 0;
        for (double t = increment; t < 1; t += increment) {
            const double target = t * length;
            while (chord < n - 1 && table[chord + 1] < target)
                ++chord;
            const double span = table[chord + 1] - table[chord];
            const double within = span > 0 ? (target - table[chord]) / span : 0.0;
            const double u = (chord + within) / n;
            out.append(QPointF(curve.x(u), curve.y(u)));
        }
    }
    out.append(p3);
}

void sampleCubicByDeviation(const QPointF &p0, const QPointF &c1, const QPointF &c2,
                            const QPointF &p3, double maxDeviation, QVector<QPointF> &out)
{
    const QPointF d1 = p0 - 2 * c1 + c2, d2 = c1 - 2 * c2 + p3;
    const double m = 6 * std::max(std::hypot(d1.x(), d1.y()), std::hypot(d2.x(), d2.y()));
    // h = 1/n with n^2 >= max|B''| / (8 deviation).
    double n = std::ceil(std::sqrt(m / (8 * maxDeviation)));
    if (!(n >= 1))
        n = 1;
    const int steps = int(std::min(n, double(kMaxChords)));
    const Cubic c(p0, c1, c2, p3);
    for (int i = 1; i < steps; ++i) {
        const double u = double(i) / steps;
        out.append(QPointF(c.x(u), c.y(u)));
    }
    out.append(p3);
}

} // namespace lumitra
