// Files laid out as drawing and CAD programs write them (tests/data/import/real): each
// comes in at the sizes worked out by hand below, to within 0.1 mm; small arcs under fine
// curves are cut within 0.01 mm of their true shape.
#include "jk_dxf.h"
#include "job_output.h"
#include "path_emitter.h"
#include "svg_reader.h"
#include "tu_ceng.h"

#include <QBuffer>
#include <QRegularExpression>
#include <QtTest>
#include <cmath>

using namespace lumitra;

using Boxes = QList<QRectF>;

namespace {

constexpr double kTolerance = 0.1; // mm

QString fixture(const char *name)
{
    return QStringLiteral(LUMITRA_TEST_DATA_DIR "/import/real/") + QLatin1String(name);
}

QString describe(const QRectF &r)
{
    return QStringLiteral("(%1,%2 %3x%4)").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
}

bool near(const QRectF &a, const QRectF &b, double tol)
{
    return qAbs(a.left() - b.left()) <= tol && qAbs(a.top() - b.top()) <= tol
           && qAbs(a.right() - b.right()) <= tol && qAbs(a.bottom() - b.bottom()) <= tol;
}

void compareBoxes(const QList<QPainterPath> &paths, const Boxes &expected)
{
    QStringList got;
    for (const QPainterPath &p : paths)
        got << describe(p.boundingRect());
    QVERIFY2(paths.size() == expected.size(), qPrintable(got.join(QLatin1Char(' '))));
    for (int i = 0; i < paths.size(); ++i)
        QVERIFY2(near(paths[i].boundingRect(), expected[i], kTolerance),
                 qPrintable(QStringLiteral("shape %1: %2, expected %3")
                                .arg(i)
                                .arg(got[i], describe(expected[i]))));
}

// The subpaths of a path, each as a path of its own (exact curve bounds).
QList<QPainterPath> subpaths(const QPainterPath &path)
{
    QList<QPainterPath> out;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        if (e.isMoveTo()) {
            out.append(QPainterPath(QPointF(e.x, e.y)));
        } else if (e.isLineTo()) {
            out.last().lineTo(e.x, e.y);
        } else if (e.isCurveTo()) {
            out.last().cubicTo(QPointF(e.x, e.y), path.elementAt(i + 1), path.elementAt(i + 2));
            i += 2;
        }
    }
    return out;
}

// The G1/G0 points of a job text, machine coordinates.
QVector<QPointF> jobPoints(const QByteArray &job)
{
    QVector<QPointF> points;
    QPointF at;
    const QRegularExpression word(QStringLiteral("([XY])(-?[0-9.]+)"));
    for (const QByteArray &line : job.split('\n')) {
        auto it = word.globalMatch(QString::fromLatin1(line));
        bool moved = false;
        while (it.hasNext()) {
            const auto m = it.next();
            (m.captured(1) == QLatin1String("X") ? at.rx() : at.ry()) = m.captured(2).toDouble();
            moved = true;
        }
        if (moved)
            points.append(at);
    }
    return points;
}

} // namespace

class TestRealFiles : public QObject
{
    Q_OBJECT

private slots:
    void svgFiles_data();
    void svgFiles();
    void textAndImage();
    void tiltedDxf();
    void smallArcsUnderFineCurves_data();
    void smallArcsUnderFineCurves();
};

void TestRealFiles::svgFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<Boxes>("boxes");

    // One user unit is one mm (viewBox 100 x 80 on 100 x 80 mm). The plate symbol (viewBox
    // 40 x 20) holds a 40 x 20 rect and two bolts: the bolt symbol (viewBox 10 x 10, a
    // circle r 4 at (5, 5)) used at (2, 5) and (28, 5) with size 10 x 10, so bolt centres
    // (7, 10) and (33, 10) in plate units.
    //   use1: plate at (5, 5), scale 1: rect (5, 5, 40, 20); bolts at (12, 15) and (38, 15)
    //         with r 4: boxes (8, 11, 8, 8), (34, 11, 8, 8).
    //   use2: plate in 80 x 40, scale 2, then translate(10, 35): rect (10, 35, 80, 40);
    //         bolt centres (2*7 + 10, 2*10 + 35) = (24, 55) and (2*33 + 10, 55) = (76, 55),
    //         r 8: boxes (16, 47, 16, 16), (68, 47, 16, 16).
    // The layer group is searched kind by kind: both rects, then the four circles.
    QTest::newRow("symbol library with nested uses")
        << "symbol_library.svg" << Boxes{{5, 5, 40, 20}, {10, 35, 80, 40}, {8, 11, 8, 8},
                                         {34, 11, 8, 8}, {16, 47, 16, 16}, {68, 47, 16, 16}};
    // mm user units. Layer "Cut": m 10,10 h 50 v 30 h -50 z is (10, 10, 50, 30). The hidden
    // "Guides" layer gives nothing; in "Engrave" the ellipse (120, 50) rx 30 ry 20 is
    // (90, 30, 60, 40) and the hidden rect nothing.
    QTest::newRow("layered drawing with a hidden layer")
        << "layers_hidden.svg" << Boxes{{10, 10, 50, 30}, {90, 30, 60, 40}};
    // 240 x 120 user units on 120 x 60 mm: 0.5 mm per unit; font size 10, viewport 240 x 120.
    //   rect: x 10% of 240 = 24, y 10% of 120 = 12, w 120, h 30 -> mm (12, 6, 60, 15)
    //   circle: (75% of 240, 50% of 120) = (180, 60), r 2em = 20 -> mm (80, 20, 20, 20)
    //   group font 20px: x 1em = 20, y 4em = 80, w 3ex = 30, h 0.5em = 10 -> (10, 40, 15, 5)
    //   line: (0, 120) to (240, 120) -> (0, 60, 120, 0)
    QTest::newRow("em- and percent-sized shapes")
        << "em_percent.svg"
        << Boxes{{12, 6, 60, 15}, {80, 20, 20, 20}, {10, 40, 15, 5}, {0, 60, 120, 0}};
    // Pixels (viewBox equal to the size): 25.4/96 mm per unit. The switch takes the group
    // after the refused extension; the third child is never drawn.
    //   python: [v * 25.4 / 96 for v in (28.346, 113.386, 56.693, 212.598, 70.866, 42.52)]
    //   -> 7.500, 30.000, 15.000, 56.250, 18.750, 11.250
    //   rect (7.5, 7.5, 30, 15); circle centre (56.25, 18.75) r 11.25 -> (45, 7.5, 22.5, 22.5)
    QTest::newRow("switch with a drawing program's extension")
        << "switch_extensions.svg" << Boxes{{7.5, 7.5, 30, 15}, {45, 7.5, 22.5, 22.5}};
}

void TestRealFiles::svgFiles()
{
    QFETCH(QString, file);
    QFETCH(Boxes, boxes);
    const SvgImportResult result = readSvgFile(fixture(file.toLatin1().constData()));
    QVERIFY2(result.ok, qPrintable(result.error));
    compareBoxes(result.paths, boxes);
    QCOMPARE(result.textCount, 0);
}

void TestRealFiles::textAndImage()
{
    // Two texts and a flowed text are counted; the flowed text's region rect is not drawn.
    // The embedded 4 x 2 PNG (black left half) is stretched over (25, 5, 20, 10); the one
    // outline is the rect (5, 5, 15, 10). mm user units.
    const SvgImportResult result = readSvgFile(fixture("text_and_image.svg"));
    QVERIFY2(result.ok, qPrintable(result.error));
    compareBoxes(result.paths, Boxes{{5, 5, 15, 10}});
    QCOMPARE(result.textCount, 3);
    QCOMPARE(result.images.size(), 1);
    const SvgImage &image = result.images.first();
    QCOMPARE(image.image.size(), QSize(4, 2));
    QCOMPARE(qGray(image.image.pixel(0, 0)), 0);
    QCOMPARE(qGray(image.image.pixel(3, 1)), 255);
    const QRectF placed = image.pixelToMm.mapRect(QRectF(0, 0, 4, 2));
    QVERIFY2(near(placed, QRectF(25, 5, 20, 10), kTolerance), qPrintable(describe(placed)));
}

void TestRealFiles::tiltedDxf()
{
    // Arbitrary axis algorithm (Ax = Wz x N when N is not near the Z axis, Ay = N x Ax):
    //   circle, N = (0, -0.6, 0.8): Ax = (1, 0, 0), Ay = (0, 0.8, 0.6); seen from above
    //     X = x, Y = 0.8 y + z * -0.6 with z the elevation 5. Centre (10, 20) -> (10, 13);
    //     radius 5 becomes 5 across, 0.8 * 5 = 4 along Y: box (5, 9, 10, 8).
    //   lwpolyline, N = (0.6, 0, 0.8), elevation 2: Ax = (0, 1, 0), Ay = (-0.8, 0, 0.6);
    //     X = -0.8 y + 0.6 * 2, Y = x. Its OCS outline (0, 0) (20, 0) (20, 10), a half circle
    //     over (10, 20) to (0, 10), spans x 0..20, y 0..20: X -14.8..1.2, Y 0..20.
    //   line in world coordinates: (30, 0) to (40, 0).
    // python: import numpy as np
    //   def axes(n): n = np.array(n) / np.linalg.norm(n)
    //       ax = np.cross([0, 0, 1], n) if abs(n[0]) >= 1/64 or abs(n[1]) >= 1/64 \
    //            else np.cross([0, 1, 0], n)
    //       ax /= np.linalg.norm(ax); return ax, np.cross(n, ax), n
    Jk_dxf reader(nullptr);
    const QPainterPath path = reader.dxf_jie_xi(fixture("tilted_ocs.dxf"));
    QVERIFY2(reader.lastError().isEmpty(), qPrintable(reader.lastError()));
    compareBoxes(subpaths(path), Boxes{{5, 9, 10, 8}, {-14.8, 0, 16, 20}, {30, 0, 10, 0}});
}

void TestRealFiles::smallArcsUnderFineCurves_data()
{
    QTest::addColumn<bool>("fine");
    QTest::addColumn<double>("highestSag");
    // Chords of 0.8 mm on the 1.25 mm holes sag by 0.625 - sqrt(0.625^2 - 0.4^2) = 0.145 mm
    // (a chord longer than the radius allows cuts the curve short); fine chords stay within
    // 0.01 mm plus the rounding of the job's two decimals (0.005 * sqrt 2).
    QTest::newRow("default steps") << false << 1.0;
    QTest::newRow("fine curves") << true << 0.01 + 0.0071;
}

void TestRealFiles::smallArcsUnderFineCurves()
{
    QFETCH(bool, fine);
    QFETCH(double, highestSag);
    // Holes r 0.625 at (5, 5) and (10, 5); the bowl is a circle r 1.5 about (20, 5) made of
    // four arcs. mm user units.
    const SvgImportResult result = readSvgFile(fixture("small_arcs.svg"));
    QVERIFY2(result.ok, qPrintable(result.error));
    const Boxes boxes{{18.5, 3.5, 3, 3}, {4.375, 4.375, 1.25, 1.25}, {9.375, 4.375, 1.25, 1.25}};
    compareBoxes(result.paths, boxes);
    double worstOverall = 0;
    for (int k = 0; k < result.paths.size(); ++k) {
        TuCeng layer;
        layer.jingxi = fine;
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        JobOutput output(buffer, RotarySettings());
        PathEmitter emitter(output, RotarySettings(), nullptr);
        emitter.setLayer(layer);
        emitter.emitPath(result.paths[k]);
        QVERIFY(output.finish());
        const QVector<QPointF> points = jobPoints(buffer.data());
        QVERIFY(points.size() > 4);
        // Machine y is the negated scene y.
        const QPointF centre(boxes[k].center().x(), -boxes[k].center().y());
        const double r = boxes[k].width() / 2;
        double worst = 0;
        for (int i = 0; i + 1 < points.size(); ++i) {
            const QPointF mid = (points[i] + points[i + 1]) / 2;
            worst = qMax(worst, r - QLineF(centre, mid).length());
            // Every point lies on the circle, to the rounding of the job.
            QVERIFY(qAbs(QLineF(centre, points[i]).length() - r) <= 0.0071 + 1e-3);
        }
        QVERIFY2(worst <= highestSag, qPrintable(QString::number(worst)));
        worstOverall = qMax(worstOverall, worst);
    }
    if (!fine)
        QVERIFY2(worstOverall > 0.1, qPrintable(QString::number(worstOverall)));
}

QTEST_GUILESS_MAIN(TestRealFiles)
#include "tst_real_files.moc"
