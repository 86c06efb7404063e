#include "arc_geometry.h"

#include <cmath>

namespace lumitra {

namespace {
constexpr double kPi = 3.14159265358979323846;

double vectorAngle(double ux, double uy, double vx, double vy)
{
    return std::atan2(ux * vy - uy * vx, ux * vx + uy * vy);
}
} // namespace

QPointF ellipsePoint(const QPointF &c, double rx, double ry, double phi, double t)
{
    const double cp = std::cos(phi), sp = std::sin(phi);
    const double x = rx * std::cos(t), y = ry * std::sin(t);
    return QPointF(c.x() + cp * x - sp * y, c.y() + sp * x + cp * y);
}

void appendEllipticArc(QPainterPath &path, const QPointF &centre, double rx, double ry, double phi,
                       double start, double sweep)
{
    if (sweep == 0.0 || !std::isfinite(sweep))
        return;
    const int segments =
        std::max(1, int(std::ceil(std::abs(sweep) / kMaxArcSegmentRadians - 1e-9)));
    const double delta = sweep / segments;
    // Control-point distance for one segment of the unit circle.
    const double k = 4.0 / 3.0 * std::tan(delta / 4.0);
    const double cp = std::cos(phi), sp = std::sin(phi);
    auto map = [&](double x, double y) {
        x *= rx;
        y *= ry;
        return QPointF(centre.x() + cp * x - sp * y, centre.y() + sp * x + cp * y);
    };
    double t = start;
    for (int i = 0; i < segments; ++i) {
        const double t2 = (i + 1 == segments) ? start + sweep : t + delta;
        const double c1 = std::cos(t), s1 = std::sin(t);
        const double c2 = std::cos(t2), s2 = std::sin(t2);
        path.cubicTo(map(c1 - k * s1, s1 + k * c1), map(c2 + k * s2, s2 - k * c2), map(c2, s2));
        t = t2;
    }
}

void appendEndpointArc(QPainterPath &path, const QPointF &from, double rx, double ry,
                       double phiDegrees, bool largeArc, bool sweep, const QPointF &to)
{
    if (from == to)
        return;
    rx = std::abs(rx);
    ry = std::abs(ry);
    if (rx == 0.0 || ry == 0.0) {
        path.lineTo(to);
        return;
    }
    const double phi = std::fmod(phiDegrees, 360.0) * kPi / 180.0;
    const double cp = std::cos(phi), sp = std::sin(phi);
    // Step 1: the midpoint in the ellipse's own frame.
    const double dx = (from.x() - to.x()) / 2.0, dy = (from.y() - to.y()) / 2.0;
    const double x1 = cp * dx + sp * dy;
    const double y1 = -sp * dx + cp * dy;
    // Radii that cannot span the chord are scaled up until they just do.
    const double lambda = (x1 * x1) / (rx * rx) + (y1 * y1) / (ry * ry);
    if (lambda > 1.0) {
        const double f = std::sqrt(lambda);
        rx *= f;
        ry *= f;
    }
    // Step 2: the centre in the ellipse's frame.
    const double rx2 = rx * rx, ry2 = ry * ry;
    double num = rx2 * ry2 - rx2 * y1 * y1 - ry2 * x1 * x1;
    const double den = rx2 * y1 * y1 + ry2 * x1 * x1;
    if (num < 0.0)
        num = 0.0;
    double coef = den > 0.0 ? std::sqrt(num / den) : 0.0;
    if (largeArc == sweep)
        coef = -coef;
    const double cx1 = coef * rx * y1 / ry;
    const double cy1 = -coef * ry * x1 / rx;
    // Step 3: back to user space.
    const QPointF centre(cp * cx1 - sp * cy1 + (from.x() + to.x()) / 2.0,
                         sp * cx1 + cp * cy1 + (from.y() + to.y()) / 2.0);
    // Step 4: start angle and sweep.
    const double ux = (x1 - cx1) / rx, uy = (y1 - cy1) / ry;
    const double vx = (-x1 - cx1) / rx, vy = (-y1 - cy1) / ry;
    const double theta = vectorAngle(1.0, 0.0, ux, uy);
    double delta = vectorAngle(ux, uy, vx, vy);
    if (!sweep && delta > 0)
        delta -= 2 * kPi;
    else if (sweep && delta < 0)
        delta += 2 * kPi;
    if (!std::isfinite(centre.x()) || !std::isfinite(centre.y()) || !std::isfinite(delta)) {
        path.lineTo(to);
        return;
    }
    appendEllipticArc(path, centre, rx, ry, phi, theta, delta);
    // The last segment ends on the computed ellipse; pin it to the exact end point.
    const int last = path.elementCount() - 1;
    if (last >= 0)
        path.setElementPositionAt(last, to.x(), to.y());
}

void appendBulgeArc(QPainterPath &path, const QPointF &from, const QPointF &to, double bulge)
{
    const double chordX = to.x() - from.x(), chordY = to.y() - from.y();
    const double chord = std::hypot(chordX, chordY);
    if (bulge == 0.0 || chord == 0.0 || !std::isfinite(bulge)) {
        path.lineTo(to);
        return;
    }
    // Included angle 4 atan(bulge); the centre lies on the chord's perpendicular bisector.
    const double angle = 4.0 * std::atan(bulge);
    const double radius = chord / (2.0 * std::sin(angle / 2.0));
    const double sagittaToCentre = radius * std::cos(angle / 2.0);
    const QPointF mid((from.x() + to.x()) / 2.0, (from.y() + to.y()) / 2.0);
    // Left normal of the chord (counter-clockwise in a y-up frame).
    const double nx = -chordY / chord, ny = chordX / chord;
    const QPointF centre(mid.x() + nx * sagittaToCentre, mid.y() + ny * sagittaToCentre);
    const double r = std::abs(radius);
    const double start = std::atan2(from.y() - centre.y(), from.x() - centre.x());
    appendEllipticArc(path, centre, r, r, 0.0, start, angle);
    const int last = path.elementCount() - 1;
    if (last >= 0)
        path.setElementPositionAt(last, to.x(), to.y());
}

} // namespace lumitra
