// Samples along a cubic Bezier curve at an even spacing of its length.
#pragma once

#include <QPointF>
#include <QVector>

namespace lumitra {

// Default distance between samples on curves, mm.
constexpr double kCurveSampleStep = 0.8;

// Appends to `out` the points of the cubic (p0, c1, c2, p3) at the length
// fractions t = step/L, then t plus step/L again (accumulated), while t < 1,
// and finally p3 itself (t = 1). L is the curve's length. A curve of zero
// length yields p3 only. The length is measured on a fine chord table (chords
// about 0.4 mm), and a fraction of the length is found on the same table.
void sampleCubicByLength(const QPointF &p0, const QPointF &c1, const QPointF &c2, const QPointF &p3,
                         double step, QVector<QPointF> &out);

// Fine sampling: the largest distance allowed between a curve and its chords, mm.
constexpr double kFineCurveDeviation = 0.01;

// Appends to `out` the points of the cubic at n even steps of its parameter (without p0,
// ending with p3 itself), n the least count for which every chord stays within
// `maxDeviation` of the curve: for a cubic B, a chord over a parameter step h lies within
// h^2/8 * max|B''| of it, and |B''| <= 6 max(|p0 - 2 c1 + c2|, |c1 - 2 c2 + p3|).
void sampleCubicByDeviation(const QPointF &p0, const QPointF &c1, const QPointF &c2,
                            const QPointF &p3, double maxDeviation, QVector<QPointF> &out);

// The length of the cubic as sampleCubicByLength measures it.
double cubicLength(const QPointF &p0, const QPointF &c1, const QPointF &c2, const QPointF &p3);

} // namespace lumitra
