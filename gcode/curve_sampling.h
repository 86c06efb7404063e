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

// The length of the cubic as sampleCubicByLength measures it.
double cubicLength(const QPointF &p0, const QPointF &c1, const QPointF &c2, const QPointF &p3);

} // namespace lumitra
