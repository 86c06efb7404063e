// The DXF reader: each entity kind, bulges, object coordinate systems pointing down, units,
// blocks (base point, scale, rotation, arrays, nesting, recursion) and spline accuracy.
#include "dxf_text.h"
#include "jk_dxf.h"

#include <QTemporaryDir>
#include <QtTest>
#include <cmath>

using namespace dxftext;

namespace {

QString describe(const QRectF &r)
{
    return QStringLiteral("(%1,%2 %3x%4)").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
}

// The outline's vertices, subpath by subpath (the reader flattens splines into lines).
QVector<QPolygonF> lineVertices(const QPainterPath &path)
{
    QVector<QPolygonF> out;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        if (e.isMoveTo() || out.isEmpty())
            out.append(QPolygonF());
        out.last().append(QPointF(e.x, e.y));
    }
    return out;
}

double distanceToPolyline(const QPointF &p, const QPolygonF &poly)
{
    double best = 1e300;
    for (int i = 0; i + 1 < poly.size(); ++i) {
        const QPointF a = poly[i], d = poly[i + 1] - a;
        const double len2 = QPointF::dotProduct(d, d);
        const double t = len2 > 0 ? qBound(0.0, QPointF::dotProduct(p - a, d) / len2, 1.0) : 0.0;
        best = std::min(best, QLineF(p, a + t * d).length());
    }
    return best;
}

} // namespace

class TestDxfReader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }
    void entities_data();
    void entities();
    void nothingToDraw();
    void unitsFromHeader_data();
    void unitsFromHeader();
    void splineWithinTolerance_data();
    void splineWithinTolerance();
    void rationalSplineIsACircle_data();
    void rationalSplineIsACircle();
    void fitPointSplinePassesThroughItsPoints();
    void selfInsertingBlockEnds();

private:
    QTemporaryDir m_dir;
    int m_files = 0;

    QPainterPath read(const QString &text, Jk_dxf *reader)
    {
        const QString path = m_dir.filePath(QStringLiteral("f%1.dxf").arg(++m_files));
        if (!write(path, text.toUtf8()))
            return QPainterPath();
        return reader->dxf_jie_xi(path);
    }
};

void TestDxfReader::entities_data()
{
    QTest::addColumn<QString>("blocks");
    QTest::addColumn<QString>("entities");
    QTest::addColumn<QRectF>("box");
    QTest::addColumn<int>("subpaths");

    QTest::newRow("line") << QString() << line(0, 0, 100, 50) << QRectF(0, 0, 100, 50) << 1;
    QTest::newRow("circle") << QString() << circle(10, 20, 5) << QRectF(5, 15, 10, 10) << 1;
    QTest::newRow("arc first quadrant") << QString() << arc(0, 0, 10, 0, 90) << QRectF(0, 0, 10, 10) << 1;
    QTest::newRow("arc across zero degrees") << QString() << arc(0, 0, 10, 270, 90)
                                             << QRectF(0, -10, 10, 20) << 1;
    QTest::newRow("arc upper half") << QString() << arc(0, 0, 10, 0, 180) << QRectF(-10, 0, 20, 10) << 1;
    QTest::newRow("full ellipse") << QString() << ellipse(0, 0, 20, 0, 0.5, 0, 2 * M_PI)
                                  << QRectF(-20, -10, 40, 20) << 1;
    QTest::newRow("ellipse with vertical major axis") << QString()
                                                      << ellipse(0, 0, 0, 20, 0.25, 0, 2 * M_PI)
                                                      << QRectF(-5, -20, 10, 40) << 1;
    QTest::newRow("half ellipse") << QString() << ellipse(0, 0, 20, 0, 0.5, 0, M_PI)
                                  << QRectF(-20, 0, 40, 10) << 1;
    QTest::newRow("closed lwpolyline")
        << QString() << lwpolyline({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}}, true)
        << QRectF(0, 0, 10, 10) << 1;
    // A bulge of 1 is a half circle turning counter-clockwise: below a left-to-right chord.
    QTest::newRow("bulge 1 bows below") << QString() << lwpolyline({{0, 0, 1}, {10, 0, 0}}, false)
                                        << QRectF(0, -5, 10, 5) << 1;
    QTest::newRow("bulge -1 bows above") << QString() << lwpolyline({{0, 0, -1}, {10, 0, 0}}, false)
                                         << QRectF(0, 0, 10, 5) << 1;
    QTest::newRow("closing segment with bulge")
                << QString() << lwpolyline({{0, 0, 0}, {10, 0, 0}, {10, 10, 1}}, true)
        << QRectF(5 - std::sqrt(50.0), 0, 5 + std::sqrt(50.0), 5 + std::sqrt(50.0)) << 1;
    QTest::newRow("old-style polyline with bulge")
        << QString() << polyline({{0, 0, 0}, {20, 0, 1}, {20, 10, 0}}, false)
        << QRectF(0, 0, 25, 10) << 1;
    QTest::newRow("point ignored beside a line") << QString() << point(500, 500) + line(0, 0, 1, 1)
                                                 << QRectF(0, 0, 1, 1) << 1;
    QTest::newRow("arc with extrusion down is mirrored")
        << QString() << arc(10, 0, 5, 0, 90, true) << QRectF(-15, 0, 5, 5) << 1;
    QTest::newRow("circle with extrusion down") << QString() << circle(10, 0, 5, true)
                                                << QRectF(-15, -5, 10, 10) << 1;
    QTest::newRow("lwpolyline with extrusion down")
        << QString() << lwpolyline({{1, 1, 0}, {2, 3, 0}}, false, true) << QRectF(-2, 1, 1, 2) << 1;
    QTest::newRow("next entity no longer mirrored")
        << QString() << arc(10, 0, 5, 0, 90, true) + line(0, 0, 1, 1) << QRectF(-15, 0, 16, 5) << 2;

    const QString square = lwpolyline({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}, true);
    QTest::newRow("insert scaled and rotated") << block(QStringLiteral("SQ"), 0, 0, square)
                                               << insert(QStringLiteral("SQ"), 100, 200, 2, 2, 90)
                                               << QRectF(98, 200, 2, 2) << 1;
    QTest::newRow("block base point")
        << block(QStringLiteral("B"), 5, 5,
                 lwpolyline({{5, 5, 0}, {6, 5, 0}, {6, 6, 0}, {5, 6, 0}}, true))
        << insert(QStringLiteral("B"), 0, 0) << QRectF(0, 0, 1, 1) << 1;
    QTest::newRow("nested blocks") << block(QStringLiteral("INNER"), 0, 0, line(0, 0, 1, 0))
                                          + block(QStringLiteral("OUTER"), 0, 0,
                                                  insert(QStringLiteral("INNER"), 10, 0))
                                   << insert(QStringLiteral("OUTER"), 0, 5, 3, 3)
                                   << QRectF(30, 5, 3, 0) << 1;
    QTest::newRow("array of inserts") << block(QStringLiteral("SQ"), 0, 0, square)
                                      << insert(QStringLiteral("SQ"), 0, 0, 1, 1, 0, 3, 2, 10, 20)
                                      << QRectF(0, 0, 21, 21) << 6;
    QTest::newRow("mirrored insert") << block(QStringLiteral("SQ"), 0, 0, square)
                                     << insert(QStringLiteral("SQ"), 5, 0, -1, 1)
                                     << QRectF(4, 0, 1, 1) << 1;
    QTest::newRow("insert with extrusion down")
        << block(QStringLiteral("SQ"), 0, 0, square)
        << insert(QStringLiteral("SQ"), 5, 0, 1, 1, 0, 1, 1, 0, 0, true) << QRectF(-6, 0, 1, 1) << 1;
    QTest::newRow("block names ignore case") << block(QStringLiteral("Part"), 0, 0, square)
                                             << insert(QStringLiteral("PART"), 7, 7)
                                             << QRectF(7, 7, 1, 1) << 1;
    QTest::newRow("missing block skipped") << QString()
                                           << insert(QStringLiteral("NONE"), 7, 7) + line(0, 0, 2, 2)
                                           << QRectF(0, 0, 2, 2) << 1;
    QTest::newRow("block content alone is not drawn")
        << block(QStringLiteral("UNUSED"), 0, 0, line(100, 100, 200, 200)) << line(0, 0, 2, 2)
        << QRectF(0, 0, 2, 2) << 1;
}

void TestDxfReader::entities()
{
    QFETCH(QString, blocks);
    QFETCH(QString, entities);
    QFETCH(QRectF, box);
    QFETCH(int, subpaths);
    Jk_dxf reader(nullptr);
    const QPainterPath path = read(file(entities, 4, blocks), &reader);
    QVERIFY2(reader.lastError().isEmpty(), qPrintable(reader.lastError()));
    const QRectF b = path.boundingRect();
    const double tol = 1e-6;
    QVERIFY2(qAbs(b.left() - box.left()) < tol && qAbs(b.top() - box.top()) < tol
                 && qAbs(b.right() - box.right()) < tol && qAbs(b.bottom() - box.bottom()) < tol,
             qPrintable(describe(b) + " expected " + describe(box)));
    QCOMPARE(lineVertices(path).size(), subpaths);
}

void TestDxfReader::nothingToDraw()
{
    Jk_dxf reader(nullptr);
    const QPainterPath path = read(file(point(1, 2) + point(3, 4)), &reader);
    QVERIFY(path.isEmpty());
    QVERIFY(!reader.lastError().isEmpty());
}

void TestDxfReader::unitsFromHeader_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<double>("mmPerUnit");
    QTest::newRow("no header variable") << -1 << 1.0;
    QTest::newRow("unitless") << 0 << 1.0;
    QTest::newRow("inches") << 1 << 25.4;
    QTest::newRow("feet") << 2 << 304.8;
    QTest::newRow("millimetres") << 4 << 1.0;
    QTest::newRow("centimetres") << 5 << 10.0;
    QTest::newRow("metres") << 6 << 1000.0;
    QTest::newRow("mils") << 9 << 0.0254;
    QTest::newRow("micrometres") << 13 << 0.001;
    QTest::newRow("decimetres") << 14 << 100.0;
    QTest::newRow("unknown code") << 99 << 1.0;
}

void TestDxfReader::unitsFromHeader()
{
    QFETCH(int, code);
    QFETCH(double, mmPerUnit);
    Jk_dxf reader(nullptr);
    const QPainterPath path = read(file(line(1, 2, 3, 6) + circle(0, 0, 0.5), code), &reader);
    QCOMPARE(reader.millimetresPerUnit(), mmPerUnit);
    const QRectF b = path.boundingRect();
    const QRectF expected(-0.5 * mmPerUnit, -0.5 * mmPerUnit, 3.5 * mmPerUnit, 6.5 * mmPerUnit);
    QVERIFY2(qAbs(b.left() - expected.left()) < 1e-9 && qAbs(b.right() - expected.right()) < 1e-9
                 && qAbs(b.top() - expected.top()) < 1e-9 && qAbs(b.bottom() - expected.bottom()) < 1e-9,
             qPrintable(describe(b)));
}

void TestDxfReader::splineWithinTolerance_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<double>("insertScale");
    QTest::newRow("millimetres") << 4 << 1.0;
    QTest::newRow("inches") << 1 << 1.0;
    QTest::newRow("inserted 50 times larger") << 4 << 50.0;
}

void TestDxfReader::splineWithinTolerance()
{
    // A clamped cubic with four control points is one Bézier segment, evaluated here with
    // the Bernstein form, independently of the reader.
    QFETCH(int, units);
    QFETCH(double, insertScale);
    const QVector<QPointF> c = {{0, 0}, {30, 80}, {70, -60}, {100, 20}};
    const QString s = spline(3, c, {0, 0, 0, 0, 1, 1, 1, 1});
    const QString text = insertScale == 1.0
        ? file(s, units)
        : file(insert(QStringLiteral("S"), 0, 0, insertScale, insertScale), units,
               block(QStringLiteral("S"), 0, 0, s));
    Jk_dxf reader(nullptr);
    const QPainterPath path = read(text, &reader);
    QVERIFY2(reader.lastError().isEmpty(), qPrintable(reader.lastError()));
    const QVector<QPolygonF> polys = lineVertices(path);
    QCOMPARE(polys.size(), 1);
    const double f = reader.millimetresPerUnit() * insertScale;
    double worst = 0;
    for (int i = 0; i <= 4000; ++i) {
        const double t = i / 4000.0, u = 1 - t;
        const QPointF p = (u * u * u * c[0] + 3 * u * u * t * c[1] + 3 * u * t * t * c[2] + t * t * t * c[3]) * f;
        worst = std::max(worst, distanceToPolyline(p, polys[0]));
    }
    QVERIFY2(worst <= Jk_dxf::kSplineToleranceMm + 1e-9, qPrintable(QString::number(worst)));
    QVERIFY(worst > 0.0005); // flattened, not oversampled into a point cloud
    QCOMPARE(polys[0].first(), c[0] * f);
    QVERIFY(QLineF(polys[0].last(), c[3] * f).length() < 1e-9);
}

void TestDxfReader::rationalSplineIsACircle_data()
{
    QTest::addColumn<double>("radius");
    QTest::newRow("radius 1") << 1.0;
    QTest::newRow("radius 500") << 500.0;
}

void TestDxfReader::rationalSplineIsACircle()
{
    // A rational quadratic with weights 1, sqrt(2)/2, 1 is exactly a quarter circle.
    QFETCH(double, radius);
    const double r = radius;
    Jk_dxf reader(nullptr);
    const QPainterPath path = read(
        file(spline(2, {{r, 0}, {r, r}, {0, r}}, {0, 0, 0, 1, 1, 1}, {1, std::sqrt(0.5), 1})), &reader);
    const QVector<QPolygonF> polys = lineVertices(path);
    QCOMPARE(polys.size(), 1);
    const QPolygonF &poly = polys[0];
    QVERIFY(poly.size() >= 3);
    for (int i = 0; i < poly.size(); ++i) {
        QVERIFY(qAbs(QLineF(QPointF(), poly[i]).length() - r) < 1e-9 * r);
        if (i > 0) {
            const double half = QLineF(poly[i - 1], poly[i]).length() / 2;
            const double sag = r - std::sqrt(r * r - half * half);
            QVERIFY2(sag <= Jk_dxf::kSplineToleranceMm + 1e-9, qPrintable(QString::number(sag)));
        }
    }
}

void TestDxfReader::fitPointSplinePassesThroughItsPoints()
{
    const QVector<QPointF> fit = {{0, 0}, {10, 5}, {20, -5}, {30, 0}};
    Jk_dxf reader(nullptr);
    const QPainterPath path = read(file(spline(3, {}, {}, {}, fit)), &reader);
    QVERIFY2(reader.lastError().isEmpty(), qPrintable(reader.lastError()));
    for (const QPointF &p : fit) {
        bool found = false;
        for (int i = 0; i < path.elementCount(); ++i)
            found |= QLineF(p, QPointF(path.elementAt(i).x, path.elementAt(i).y)).length() < 1e-9;
        QVERIFY(found);
    }
}

void TestDxfReader::selfInsertingBlockEnds()
{
    // A block that inserts itself twice: expansion stops at the nesting limit.
    const QString blocks = block(QStringLiteral("LOOP"), 0, 0,
                                 line(0, 0, 1, 0) + insert(QStringLiteral("LOOP"), 1, 0, 0.5, 0.5)
                                     + insert(QStringLiteral("LOOP"), 0, 1, 0.5, 0.5));
    Jk_dxf reader(nullptr);
    QElapsedTimer timer;
    timer.start();
    const QPainterPath path = read(file(insert(QStringLiteral("LOOP"), 0, 0), 4, blocks), &reader);
    QVERIFY(!path.isEmpty());
    QVERIFY(path.boundingRect().width() < 3);
    QVERIFY(timer.elapsed() < 20000);
}

QTEST_GUILESS_MAIN(TestDxfReader)
#include "tst_dxf_reader.moc"
