// Offset, kerf and boolean operations on outlines: sizes and areas of the
// results, holes by nesting depth, and outlines the operation leaves alone
// coming back with their curves.
#include "editing_test_support.h"
#include "path_booleans.h"
#include "path_offset.h"

#include <QPolygonF>
#include <QtTest>
#include <cmath>

using namespace lumitra;
using namespace editing_test;

Q_DECLARE_METATYPE(lumitra::CornerStyle)
Q_DECLARE_METATYPE(QPainterPath)
Q_DECLARE_METATYPE(lumitra::BooleanOperation)

namespace {

QPainterPath rect(double x, double y, double w, double h)
{
    QPainterPath p;
    p.addRect(x, y, w, h);
    return p;
}

QPainterPath circle(double cx, double cy, double r)
{
    QPainterPath p;
    p.addEllipse(QPointF(cx, cy), r, r);
    return p;
}

QPainterPath joined(const QPainterPath &a, const QPainterPath &b)
{
    QPainterPath p = a;
    p.addPath(b);
    return p;
}

double polygonArea(const QPolygonF &poly)
{
    double a = 0;
    for (int i = 0; i < poly.size(); ++i) {
        const QPointF &p = poly[i];
        const QPointF &q = poly[(i + 1) % poly.size()];
        a += p.x() * q.y() - q.x() * p.y();
    }
    return std::fabs(a) / 2;
}

bool onEdge(const QPointF &p, const QPolygonF &poly)
{
    for (int i = 0; i < poly.size(); ++i) {
        const QPointF a = poly[i];
        const QPointF b = poly[(i + 1) % poly.size()];
        const double len = QLineF(a, b).length();
        if (len > 0 && std::fabs(QLineF(a, p).length() + QLineF(p, b).length() - len) < 1e-9)
            return true;
    }
    return false;
}

// Every point of `inner` inside `outer` or on its edge.
bool heldBy(const QPolygonF &inner, const QPolygonF &outer)
{
    for (const QPointF &p : inner) {
        if (!outer.containsPoint(p, Qt::OddEvenFill) && !onEdge(p, outer))
            return false;
    }
    return true;
}

// Area of a path whose subpaths do not cross, holes by nesting depth.
double evenOddArea(const QPainterPath &path)
{
    const QList<QPolygonF> polys = path.toSubpathPolygons();
    double area = 0;
    for (int i = 0; i < polys.size(); ++i) {
        int depth = 0;
        for (int k = 0; k < polys.size(); ++k) {
            if (k != i && heldBy(polys[i], polys[k]))
                ++depth;
        }
        area += (depth % 2 ? -1 : 1) * polygonArea(polys[i]);
    }
    return area;
}

int subpathCount(const QPainterPath &path)
{
    int n = 0;
    for (int i = 0; i < path.elementCount(); ++i)
        n += path.elementAt(i).type == QPainterPath::MoveToElement;
    return n;
}

// The subpaths of `path`, each as its own path, curves kept.
QList<QPainterPath> subpaths(const QPainterPath &path)
{
    QList<QPainterPath> out;
    QPainterPath current;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        if (e.type == QPainterPath::MoveToElement) {
            if (current.elementCount())
                out.append(current);
            current = QPainterPath();
            current.moveTo(e);
        } else if (e.type == QPainterPath::LineToElement) {
            current.lineTo(e);
        } else if (e.type == QPainterPath::CurveToElement) {
            current.cubicTo(e, path.elementAt(i + 1), path.elementAt(i + 2));
            i += 2;
        }
    }
    if (current.elementCount())
        out.append(current);
    return out;
}

bool containsSubpath(const QPainterPath &path, const QPainterPath &wanted)
{
    for (const QPainterPath &s : subpaths(path)) {
        if (samePath(s, wanted))
            return true;
    }
    return false;
}

bool hasCurves(const QPainterPath &path)
{
    for (int i = 0; i < path.elementCount(); ++i) {
        if (path.elementAt(i).type == QPainterPath::CurveToElement)
            return true;
    }
    return false;
}

} // namespace

class TestPathGeometry : public QObject
{
    Q_OBJECT

private slots:
    void offsetSizes_data();
    void offsetSizes();
    void offsetZeroKeepsThePath();
    void offsetOpenLine();
    void kerf_data();
    void kerf();
    void kerfZeroAndOpenPathsUntouched();
    void booleans_data();
    void booleans();
    void untouchedOutlinesKeepTheirCurves_data();
    void untouchedOutlinesKeepTheirCurves();
    void weldOverlappingLettersOfOneOperand();
};

void TestPathGeometry::offsetSizes_data()
{
    QTest::addColumn<QPainterPath>("path");
    QTest::addColumn<double>("distance");
    QTest::addColumn<CornerStyle>("corners");
    QTest::addColumn<QRectF>("bounds");
    QTest::addColumn<double>("area");
    QTest::addColumn<int>("outlines");

    const double pi = M_PI;
    QTest::newRow("rect out mitre")
        << rect(0, 0, 20, 10) << 1.0 << CornerStyle::Mitre << QRectF(-1, -1, 22, 12) << 264.0 << 1;
    QTest::newRow("rect out round") << rect(0, 0, 20, 10) << 1.0 << CornerStyle::Round
                                    << QRectF(-1, -1, 22, 12) << 200 + 60 + pi << 1;
    // Square corners are cut off at the offset distance beyond the corner.
    QTest::newRow("rect out square")
        << rect(0, 0, 20, 10) << 1.0 << CornerStyle::Square << QRectF(-1, -1, 22, 12)
        << 264 - 4 * (std::sqrt(2.0) - 1) * (std::sqrt(2.0) - 1) << 1;
    QTest::newRow("rect in") << rect(0, 0, 20, 10) << -1.0 << CornerStyle::Round
                             << QRectF(1, 1, 18, 8) << 144.0 << 1;
    QTest::newRow("rect in gone") << rect(0, 0, 20, 10) << -6.0 << CornerStyle::Round << QRectF()
                                  << 0.0 << 0;
    QTest::newRow("circle out") << circle(0, 0, 10) << 2.0 << CornerStyle::Round
                                << QRectF(-12, -12, 24, 24) << pi * 144 << 1;
    // A ring grows outward and its hole shrinks.
    QTest::newRow("ring out") << joined(rect(0, 0, 30, 30), rect(10, 10, 10, 10)) << 1.0
                              << CornerStyle::Mitre << QRectF(-1, -1, 32, 32) << 32 * 32 - 64.0
                              << 2;
    // Two squares 1 mm apart merge when grown by 1 mm.
    QTest::newRow("merge") << joined(rect(0, 0, 10, 10), rect(11, 0, 10, 10)) << 1.0
                           << CornerStyle::Mitre << QRectF(-1, -1, 23, 12) << 23 * 12.0 << 1;
}

void TestPathGeometry::offsetSizes()
{
    QFETCH(QPainterPath, path);
    QFETCH(double, distance);
    QFETCH(CornerStyle, corners);
    QFETCH(QRectF, bounds);
    QFETCH(double, area);
    QFETCH(int, outlines);
    const QPainterPath out = offsetOutline(path, distance, corners);
    QCOMPARE(subpathCount(out), outlines);
    QCOMPARE(out.fillRule(), Qt::OddEvenFill);
    if (outlines == 0)
        return;
    const QRectF b = out.boundingRect();
    QVERIFY2(std::fabs(b.left() - bounds.left()) < 0.01 && std::fabs(b.top() - bounds.top()) < 0.01
                 && std::fabs(b.width() - bounds.width()) < 0.01
                 && std::fabs(b.height() - bounds.height()) < 0.01,
             qPrintable(QStringLiteral("%1 %2 %3 %4")
                            .arg(b.left())
                            .arg(b.top())
                            .arg(b.width())
                            .arg(b.height())));
    QVERIFY2(std::fabs(evenOddArea(out) - area) < 0.05 + area * 0.001,
             qPrintable(QString::number(evenOddArea(out))));
}

void TestPathGeometry::offsetZeroKeepsThePath()
{
    const QPainterPath c = circle(5, 5, 3);
    for (CornerStyle s : {CornerStyle::Round, CornerStyle::Mitre, CornerStyle::Square})
        QVERIFY(samePath(offsetOutline(c, 0.0, s), c));
}

void TestPathGeometry::offsetOpenLine()
{
    QPainterPath line;
    line.moveTo(0, 0);
    line.lineTo(10, 0);
    const QPainterPath grown = offsetOutline(line, 1.0, CornerStyle::Round);
    QCOMPARE(subpathCount(grown), 1);
    QVERIFY(std::fabs(evenOddArea(grown) - (20 + M_PI)) < 0.05);
    // Shrinking has nothing to take from a line: it stays.
    QVERIFY(samePath(offsetOutline(line, -1.0, CornerStyle::Round), line));
}

void TestPathGeometry::kerf_data()
{
    QTest::addColumn<QPainterPath>("path");
    QTest::addColumn<double>("kerf");
    QTest::addColumn<QSizeF>("outer");
    QTest::addColumn<QSizeF>("inner"); // of the innermost outline; empty: none

    QTest::newRow("rect") << rect(0, 0, 20, 10) << 0.1 << QSizeF(20.1, 10.1) << QSizeF();
    QTest::newRow("rect, square hole") << joined(rect(0, 0, 20, 10), rect(7.5, 2.5, 5, 5)) << 0.1
                                       << QSizeF(20.1, 10.1) << QSizeF(4.9, 4.9);
    QTest::newRow("rect, round hole") << joined(rect(0, 0, 20, 10), circle(10, 5, 2.5)) << 0.1
                                      << QSizeF(20.1, 10.1) << QSizeF(4.9, 4.9);
    // An island in the hole is a part again: it grows.
    QTest::newRow("island") << joined(joined(rect(0, 0, 30, 30), rect(5, 5, 20, 20)),
                                      rect(10, 10, 10, 10))
                            << 0.2 << QSizeF(30.2, 30.2) << QSizeF(10.2, 10.2);
    // Overlapping parts of one item are not merged: each outline on its own.
    QTest::newRow("overlap") << joined(rect(0, 0, 10, 10), rect(5, 0, 10, 10)) << 1.0
                             << QSizeF(16, 11) << QSizeF();
}

void TestPathGeometry::kerf()
{
    QFETCH(QPainterPath, path);
    QFETCH(double, kerf);
    QFETCH(QSizeF, outer);
    QFETCH(QSizeF, inner);
    const QPainterPath out = kerfOutline(path, kerf);
    QCOMPARE(subpathCount(out), subpathCount(path));
    const QRectF b = out.boundingRect();
    QVERIFY2(std::fabs(b.width() - outer.width()) < 1e-3
                 && std::fabs(b.height() - outer.height()) < 1e-3,
             qPrintable(QStringLiteral("%1 x %2").arg(b.width()).arg(b.height())));
    if (inner.isEmpty())
        return;
    const QRectF in = subpaths(out).last().boundingRect();
    QVERIFY2(std::fabs(in.width() - inner.width()) < 2e-3
                 && std::fabs(in.height() - inner.height()) < 2e-3,
             qPrintable(QStringLiteral("%1 x %2").arg(in.width()).arg(in.height())));
    // Each outline starts next to where the drawn one started.
    const QPointF drawn = subpaths(path).last().elementAt(0);
    const QPointF cut = subpaths(out).last().elementAt(0);
    QVERIFY(QLineF(drawn, cut).length() < kerf);
}

void TestPathGeometry::kerfZeroAndOpenPathsUntouched()
{
    const QPainterPath ring = joined(circle(0, 0, 10), circle(0, 0, 5));
    QVERIFY(samePath(kerfOutline(ring, 0.0), ring));
    QPainterPath line;
    line.moveTo(0, 0);
    line.cubicTo(5, 5, 10, -5, 15, 0);
    const QPainterPath out = kerfOutline(joined(rect(0, 0, 4, 4), line), 0.2);
    QVERIFY(containsSubpath(out, line));
    QCOMPARE(subpathCount(out), 2);
}

void TestPathGeometry::booleans_data()
{
    QTest::addColumn<BooleanOperation>("operation");
    QTest::addColumn<QList<QPainterPath>>("operands");
    QTest::addColumn<double>("area");
    QTest::addColumn<int>("outlines");

    const QList<QPainterPath> two = {rect(0, 0, 10, 10), rect(5, 5, 10, 10)};
    QTest::newRow("weld") << BooleanOperation::Weld << two << 175.0 << 1;
    QTest::newRow("subtract") << BooleanOperation::Subtract << two << 75.0 << 1;
    QTest::newRow("intersect") << BooleanOperation::Intersect << two << 25.0 << 1;
    QTest::newRow("exclude") << BooleanOperation::Exclude << two << 150.0 << 2;
    const QList<QPainterPath> three = {rect(0, 0, 10, 10), rect(5, 0, 10, 10), rect(2, 2, 20, 2)};
    QTest::newRow("weld three") << BooleanOperation::Weld << three << 150 + 14.0 << 1;
    // A less B, less a notch where the strip crosses it.
    QTest::newRow("subtract two") << BooleanOperation::Subtract << three << 50 - 6.0 << 1;
    QTest::newRow("intersect three") << BooleanOperation::Intersect << three << 10.0 << 1;
    // Nested squares: a ring, and an island in its hole.
    QTest::newRow("exclude nested")
        << BooleanOperation::Exclude
        << QList<QPainterPath>{rect(0, 0, 30, 30), rect(10, 10, 10, 10), rect(12, 12, 2, 2)}
        << 804.0 << 3;
    // A hole in a weld operand stays a hole where nothing else covers it.
    const QList<QPainterPath> ring = {joined(rect(0, 0, 30, 30), rect(10, 10, 10, 10)),
                                      rect(25, 0, 10, 10)};
    QTest::newRow("weld ring") << BooleanOperation::Weld << ring << 800 + 50.0 << 2;
    QTest::newRow("subtract ring from square")
        << BooleanOperation::Subtract << QList<QPainterPath>{ring[1], ring[0]} << 50.0 << 1;
    QTest::newRow("apart") << BooleanOperation::Intersect
                           << QList<QPainterPath>{rect(0, 0, 5, 5), rect(10, 0, 5, 5)} << 0.0 << 0;
}

void TestPathGeometry::booleans()
{
    QFETCH(BooleanOperation, operation);
    QFETCH(QList<QPainterPath>, operands);
    QFETCH(double, area);
    QFETCH(int, outlines);
    const QPainterPath out = combineOutlines(operation, operands);
    QCOMPARE(subpathCount(out), outlines);
    QVERIFY2(std::fabs(evenOddArea(out) - area) < 1e-3,
             qPrintable(QString::number(evenOddArea(out))));
}

void TestPathGeometry::untouchedOutlinesKeepTheirCurves_data()
{
    QTest::addColumn<BooleanOperation>("operation");
    QTest::addColumn<QList<QPainterPath>>("operands");
    QTest::addColumn<QList<QPainterPath>>("kept");

    const QPainterPath c = circle(0, 0, 5);
    const QPainterPath hole = circle(0, 0, 2);
    const QPainterPath far = rect(20, 20, 5, 5);
    QTest::newRow("weld apart") << BooleanOperation::Weld << QList<QPainterPath>{c, far}
                                << QList<QPainterPath>{c, far};
    QTest::newRow("weld ring apart")
        << BooleanOperation::Weld << QList<QPainterPath>{joined(c, hole), far}
        << QList<QPainterPath>{c, hole, far};
    QTest::newRow("subtract far") << BooleanOperation::Subtract << QList<QPainterPath>{c, far}
                                  << QList<QPainterPath>{c};
    QTest::newRow("exclude apart")
        << BooleanOperation::Exclude << QList<QPainterPath>{c, far} << QList<QPainterPath>{c, far};
    // The square eats the ring's outside; the hole inside it is untouched.
    QTest::newRow("subtract touches outer only")
        << BooleanOperation::Subtract << QList<QPainterPath>{joined(c, hole), rect(3, -10, 10, 20)}
        << QList<QPainterPath>{hole};
}

void TestPathGeometry::untouchedOutlinesKeepTheirCurves()
{
    QFETCH(BooleanOperation, operation);
    QFETCH(QList<QPainterPath>, operands);
    QFETCH(QList<QPainterPath>, kept);
    const QPainterPath out = combineOutlines(operation, operands);
    for (const QPainterPath &k : kept) {
        QVERIFY2(containsSubpath(out, k), qPrintable(describe(out)));
        if (hasCurves(k))
            QVERIFY(hasCurves(out));
    }
}

void TestPathGeometry::weldOverlappingLettersOfOneOperand()
{
    // Two "letters" with counters, overlapping, in one even-odd outline: the
    // weld fills the overlap instead of leaving it as a hole.
    QPainterPath text;
    text.setFillRule(Qt::OddEvenFill);
    text.addPath(joined(rect(0, 0, 10, 10), rect(3, 3, 4, 4)));
    text.addPath(joined(rect(8, 0, 10, 10), rect(11, 3, 4, 4)));
    const QPainterPath out = combineOutlines(BooleanOperation::Weld, {text});
    QCOMPARE(subpathCount(out), 3); // one outline, two counters
    QVERIFY(std::fabs(evenOddArea(out) - (180 - 32.0)) < 1e-3);
}

QTEST_GUILESS_MAIN(TestPathGeometry)
#include "tst_path_geometry.moc"
