#include "nurbs_curve.h"

#include <QLineF>
#include <cmath>
#include <vector>

namespace lumitra {

namespace {

constexpr int kMaxDegree = 25;

// Distance from p to the segment ab.
double distanceToSegment(const QPointF &p, const QPointF &a, const QPointF &b)
{
    const QPointF d = b - a;
    const double len2 = d.x() * d.x() + d.y() * d.y();
    double t = len2 > 0 ? ((p.x() - a.x()) * d.x() + (p.y() - a.y()) * d.y()) / len2 : 0.0;
    t = std::max(0.0, std::min(1.0, t));
    return QLineF(p, a + t * d).length();
}

struct Flattener
{
    const NurbsCurve &curve;
    double tolerance;
    int maxPoints;
    QPolygonF out;

    void span(double u0, const QPointF &p0, double u1, const QPointF &p1, int depth)
    {
        const double um = (u0 + u1) / 2;
        const QPointF pm = curve.pointAt(um);
        const QPointF pa = curve.pointAt((u0 + um) / 2);
        const QPointF pb = curve.pointAt((um + u1) / 2);
        const bool flat = distanceToSegment(pm, p0, p1) <= tolerance
                          && distanceToSegment(pa, p0, p1) <= tolerance
                          && distanceToSegment(pb, p0, p1) <= tolerance;
        if (depth >= 24 || out.size() >= maxPoints || (flat && depth >= 1)) {
            out.append(p1);
            return;
        }
        span(u0, p0, um, pm, depth + 1);
        span(um, pm, u1, p1, depth + 1);
    }
};

} // namespace

bool NurbsCurve::normalise()
{
    const int n = controlPoints.size();
    if (degree < 1 || degree > kMaxDegree || n < 2)
        return false;
    if (degree >= n)
        degree = n - 1;
    if (weights.size() != n) {
        weights = QVector<double>(n, 1.0);
    } else {
        for (double &w : weights)
            if (!(w > 0) || !std::isfinite(w))
                w = 1.0;
    }
    bool knotsUsable = knots.size() == n + degree + 1;
    for (int i = 1; knotsUsable && i < knots.size(); ++i)
        knotsUsable = std::isfinite(knots[i]) && knots[i] >= knots[i - 1];
    if (knotsUsable)
        knotsUsable = knots[n] > knots[degree];
    if (!knotsUsable) {
        // Clamped uniform knots: degree + 1 zeros, evenly spaced inner knots, degree + 1 ones.
        knots.resize(n + degree + 1);
        const int inner = n - degree;
        for (int i = 0; i < knots.size(); ++i) {
            if (i <= degree)
                knots[i] = 0.0;
            else if (i >= n)
                knots[i] = 1.0;
            else
                knots[i] = double(i - degree) / inner;
        }
    }
    for (const QPointF &p : controlPoints)
        if (!std::isfinite(p.x()) || !std::isfinite(p.y()))
            return false;
    return true;
}

QPointF NurbsCurve::pointAt(double u) const
{
    const int n = controlPoints.size();
    const int p = degree;
    // Knot span k with knots[k] <= u < knots[k + 1], inside [p, n - 1].
    int k = p;
    while (k < n - 1 && knots[k + 1] <= u)
        ++k;
    std::vector<double> x(size_t(p + 1)), y(size_t(p + 1)), w(size_t(p + 1));
    for (int j = 0; j <= p; ++j) {
        const int i = k - p + j;
        const double wi = weights[i];
        x[size_t(j)] = controlPoints[i].x() * wi;
        y[size_t(j)] = controlPoints[i].y() * wi;
        w[size_t(j)] = wi;
    }
    for (int r = 1; r <= p; ++r)
        for (int j = p; j >= r; --j) {
            const int i = k - p + j;
            const double den = knots[i + p - r + 1] - knots[i];
            const double a = den > 0 ? (u - knots[i]) / den : 0.0;
            const size_t s = size_t(j);
            x[s] = (1 - a) * x[s - 1] + a * x[s];
            y[s] = (1 - a) * y[s - 1] + a * y[s];
            w[s] = (1 - a) * w[s - 1] + a * w[s];
        }
    const double wp = w[size_t(p)];
    return wp != 0 ? QPointF(x[size_t(p)] / wp, y[size_t(p)] / wp)
                   : QPointF(x[size_t(p)], y[size_t(p)]);
}

QPolygonF flattenNurbs(const NurbsCurve &curve, double tolerance, int maxPoints)
{
    Flattener f{curve, tolerance, maxPoints, QPolygonF()};
    const int n = curve.controlPoints.size();
    double u0 = curve.firstParameter();
    QPointF p0 = curve.pointAt(u0);
    f.out.append(p0);
    // Each distinct knot span separately, so that kinks at knots are kept.
    for (int k = curve.degree; k < n; ++k) {
        const double u1 = curve.knots[k + 1];
        if (u1 <= u0)
            continue;
        const QPointF p1 = curve.pointAt(u1);
        f.span(u0, p0, u1, p1, 0);
        u0 = u1;
        p0 = p1;
    }
    return f.out;
}

} // namespace lumitra
