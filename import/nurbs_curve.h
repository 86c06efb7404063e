// Evaluation and flattening of NURBS curves (DXF splines).
#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QVector>

namespace lumitra {

struct NurbsCurve
{
    int degree = 3;
    QVector<QPointF> controlPoints;
    QVector<double> weights; // one per control point, or empty for all 1
    QVector<double> knots; // controlPoints.size() + degree + 1 values, or empty for clamped uniform

    // Fills in missing or inconsistent weights and knots; false when the curve cannot be
    // evaluated (fewer than two control points, degree below 1, knots not ascending).
    bool normalise();
    double firstParameter() const { return knots[degree]; }
    double lastParameter() const { return knots[controlPoints.size()]; }
    // The point at parameter u (within first..last), by de Boor's algorithm on the
    // homogeneous control points. The curve must be normalised.
    QPointF pointAt(double u) const;
};

// Points along the curve such that the polyline between them stays within `tolerance` of
// the curve: each knot span is split until the chord is within tolerance of the curve at
// three interior points. The curve must be normalised. At most `maxPoints` points.
QPolygonF flattenNurbs(const NurbsCurve &curve, double tolerance, int maxPoints = 1 << 20);

} // namespace lumitra
