// Samples along cubic curves: spacing, count, placement and end point.
#include "curve_sampling.h"

#include <QPainterPath>
#include <QtTest>
#include <cmath>

using namespace lumitra;

namespace {

struct FinePoint
{
    QPointF at;
    double length; // along the curve from p0
};

// The cubic as a very fine polyline with the length run so far at each point.
QVector<FinePoint> finePolyline(const QPointF &p0, const QPointF &c1, const QPointF &c2,
                                const QPointF &p3)
{
    QVector<FinePoint> out;
    const int n = 200000;
    out.reserve(n + 1);
    out.append({p0, 0.0});
    for (int i = 1; i <= n; ++i) {
        const double t = double(i) / n;
        const double mt = 1 - t;
        const QPointF q
            = mt * mt * mt * p0 + 3 * mt * mt * t * c1 + 3 * mt * t * t * c2 + t * t * t * p3;
        const QPointF prev = out.last().at;
        out.append({q, out.last().length + std::hypot(q.x() - prev.x(), q.y() - prev.y())});
    }
    return out;
}

} // namespace

class TestCurveSampling : public QObject
{
    Q_OBJECT

private slots:
    void evenSpacing_data();
    void evenSpacing();
    void circleSamplesStayOnCircle();
    void straightCurveSamplesAtMultiples();
    void zeroLengthCurveGivesEndOnly();
};

void TestCurveSampling::evenSpacing_data()
{
    QTest::addColumn<QPointF>("p0");
    QTest::addColumn<QPointF>("c1");
    QTest::addColumn<QPointF>("c2");
    QTest::addColumn<QPointF>("p3");

    QTest::newRow("gentle") << QPointF(0, 0) << QPointF(10, 20) << QPointF(30, 20)
                            << QPointF(40, 0);
    QTest::newRow("s-curve") << QPointF(0, 0) << QPointF(50, 0) << QPointF(-50, 30)
                             << QPointF(0, 30);
    QTest::newRow("uneven speed") << QPointF(0, 0) << QPointF(0, 0) << QPointF(1, 1)
                                  << QPointF(25, 3);
    QTest::newRow("short") << QPointF(0, 0) << QPointF(0.2, 0.3) << QPointF(0.5, 0.3)
                           << QPointF(0.7, 0);
    QTest::newRow("long") << QPointF(0, 0) << QPointF(900, 500) << QPointF(-400, 800)
                          << QPointF(300, 300);
}

void TestCurveSampling::evenSpacing()
{
    QFETCH(QPointF, p0);
    QFETCH(QPointF, c1);
    QFETCH(QPointF, c2);
    QFETCH(QPointF, p3);

    const QVector<FinePoint> fine = finePolyline(p0, c1, c2, p3);
    const double length = fine.last().length;
    QVERIFY(std::fabs(cubicLength(p0, c1, c2, p3) - length) < length * 1e-3);

    QVector<QPointF> samples;
    sampleCubicByLength(p0, c1, c2, p3, kCurveSampleStep, samples);
    // One sample per whole step that fits before the end, and the end itself.
    const int expectedCount = int(std::ceil(cubicLength(p0, c1, c2, p3) / kCurveSampleStep));
    QVERIFY(std::abs(samples.size() - expectedCount) <= 1);
    QCOMPARE(samples.last(), p3);

    // Sample i lies (i + 1) steps along the curve, within 0.005 mm (below the
    // written precision): find it on the fine polyline, walking forwards.
    double finest = 0; // no sample is farther than a fine segment from the polyline
    for (int j = 1; j < fine.size(); ++j)
        finest = qMax(finest, fine[j].length - fine[j - 1].length);
    int from = 0;
    for (int i = 0; i + 1 < samples.size(); ++i) {
        const double want = (i + 1) * kCurveSampleStep;
        int best = from;
        double bestDistance = 1e9;
        for (int j = from; j < fine.size() && fine[j].length < want + 0.1; ++j) {
            const double d
                = std::hypot(fine[j].at.x() - samples[i].x(), fine[j].at.y() - samples[i].y());
            if (d < bestDistance) {
                bestDistance = d;
                best = j;
            }
        }
        QVERIFY2(bestDistance < 0.001 + finest, qPrintable(QString::number(bestDistance)));
        QVERIFY2(std::fabs(fine[best].length - want) < 0.005 + finest,
                 qPrintable(QStringLiteral("sample %1 at %2").arg(i).arg(fine[best].length)));
        from = best;
    }
}

void TestCurveSampling::circleSamplesStayOnCircle()
{
    QPainterPath circle;
    circle.addEllipse(QPointF(0, 0), 20, 20);
    double burnt = 0;
    int count = 0;
    for (int i = 0; i < circle.elementCount(); ++i) {
        if (circle.elementAt(i).type != QPainterPath::CurveToElement)
            continue;
        QVector<QPointF> samples;
        sampleCubicByLength(circle.elementAt(i - 1), circle.elementAt(i), circle.elementAt(i + 1),
                            circle.elementAt(i + 2), kCurveSampleStep, samples);
        QPointF prev = circle.elementAt(i - 1);
        for (const QPointF &s : samples) {
            QVERIFY(std::fabs(std::hypot(s.x(), s.y()) - 20) < 0.01);
            burnt += std::hypot(s.x() - prev.x(), s.y() - prev.y());
            prev = s;
        }
        count += samples.size();
    }
    // 2 pi 20 = 125.66 mm: 4 quarters of 31.4 mm, 40 samples each.
    QCOMPARE(count, 4 * 40);
    QVERIFY(std::fabs(burnt - 2 * M_PI * 20) < 0.05);
}

void TestCurveSampling::straightCurveSamplesAtMultiples()
{
    // Control points on the chord but bunched at one end: the parameter runs
    // unevenly, the samples must not.
    QVector<QPointF> samples;
    sampleCubicByLength(QPointF(0, 0), QPointF(0.5, 0), QPointF(1, 0), QPointF(10, 0), 0.8,
                        samples);
    QCOMPARE(samples.size(), 13);
    for (int i = 0; i + 1 < samples.size(); ++i) {
        QVERIFY2(std::fabs(samples[i].x() - 0.8 * (i + 1)) < 0.01,
                 qPrintable(QString::number(samples[i].x())));
        QCOMPARE(samples[i].y(), 0.0);
    }
    QCOMPARE(samples.last(), QPointF(10, 0));
}

void TestCurveSampling::zeroLengthCurveGivesEndOnly()
{
    QVector<QPointF> samples;
    const QPointF p(3, 4);
    sampleCubicByLength(p, p, p, p, kCurveSampleStep, samples);
    QCOMPARE(samples.size(), 1);
    QCOMPARE(samples.first(), p);
}

QTEST_GUILESS_MAIN(TestCurveSampling)
#include "tst_curve_sampling.moc"
