// SVG import: coordinate lists with the number-protection rules, transforms, lengths and
// the root viewport; path data against hand-worked results and arcs
// against their exact ellipse; the reader's traversal order and shapes; and files laid out
// the way drawing programs save them, compared by bounding box to within 0.01 mm.
#include "svg_geometry_attributes.h"
#include "svg_numbers.h"
#include "svg_path_data.h"
#include "svg_reader.h"

#include <QBuffer>
#include <QDomDocument>
#include <QTemporaryDir>
#include <QtTest>
#include <cmath>

using namespace lumitra;

using Numbers = QVector<double>;
using Points = QVector<QPointF>;
using Boxes = QList<QRectF>;

namespace {

QString num(double v)
{
    return QString::number(std::abs(v) < 5e-7 ? 0.0 : v, 'g', 6);
}

// "M x,y L x,y C x,y x,y x,y" with six significant digits.
QString describe(const QPainterPath &path)
{
    QStringList parts;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        const QString xy = num(e.x) + QLatin1Char(',') + num(e.y);
        if (e.type == QPainterPath::CurveToDataElement)
            parts.last() += QLatin1Char(' ') + xy;
        else
            parts << QLatin1String(e.isMoveTo() ? "M" : e.isLineTo() ? "L" : "C") + xy;
    }
    return parts.join(QLatin1Char(' '));
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

void compareNumbers(const Numbers &actual, const Numbers &expected)
{
    QCOMPARE(actual.size(), expected.size());
    for (int i = 0; i < actual.size(); ++i)
        QVERIFY2(qFuzzyCompare(1.0 + actual[i], 1.0 + expected[i]),
                 qPrintable(QString::number(actual[i])));
}

void compareBoxes(const QList<QPainterPath> &paths, const Boxes &expected, double tol)
{
    QStringList got;
    for (const QPainterPath &p : paths)
        got << describe(p.boundingRect());
    QVERIFY2(paths.size() == expected.size(), qPrintable(got.join(QLatin1Char(' '))));
    for (int i = 0; i < paths.size(); ++i)
        QVERIFY2(near(paths[i].boundingRect(), expected[i], tol),
                 qPrintable(QStringLiteral("shape %1: %2, expected %3")
                                .arg(i)
                                .arg(got[i], describe(expected[i]))));
}

// Without a viewBox one user unit is one CSS pixel; the default root makes it one millimetre.
QString svgDoc(const QString &body,
               const char *root = "width='1000mm' height='1000mm' viewBox='0 0 1000 1000'")
{
    return QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' %1>%2</svg>")
        .arg(QLatin1String(root), body);
}

} // namespace

class TestSvgReader : public QObject
{
    Q_OBJECT

private slots:
    void coordinateList_data();
    void coordinateList();
    void transform_data();
    void transform();
    void length_data();
    void length();
    void rootToMm_data();
    void rootToMm();
    void pathData_data();
    void pathData();
    void arcsLieOnTheirEllipse_data();
    void arcsLieOnTheirEllipse();
    void traversal_data();
    void traversal();
    void savedFiles_data();
    void savedFiles();
    void polygonAndRoundedRectangle();
    void drawnElements_data();
    void drawnElements();
    void images();
    void colours();
};

void TestSvgReader::coordinateList_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Numbers>("expected");
    QTest::addColumn<bool>("complete");
    QTest::newRow("exponent minus is kept") << "1e-5,2" << Numbers{0.00001, 2} << true;
    QTest::newRow("upper-case exponent") << "1E-5 3" << Numbers{0.00001, 3} << true;
    QTest::newRow("glued minus") << "10-20" << Numbers{10, -20} << true;
    QTest::newRow("space minus") << "10 -20" << Numbers{10, -20} << true;
    QTest::newRow("comma minus") << "10,-20" << Numbers{10, -20} << true;
    QTest::newRow("leading minus") << "-5-6" << Numbers{-5, -6} << true;
    QTest::newRow("exponent then glued minus") << "1.5e-3-2" << Numbers{0.0015, -2} << true;
    QTest::newRow("loose whitespace") << "  3 ,\n 4\t5  " << Numbers{3, 4, 5} << true;
    QTest::newRow("stops at garbage") << "1 2 abc 3" << Numbers{1, 2} << false;
    QTest::newRow("stops at overflow") << "1 1e999 3" << Numbers{1} << false;
}

void TestSvgReader::coordinateList()
{
    QFETCH(QString, text);
    QFETCH(Numbers, expected);
    QFETCH(bool, complete);
    bool whole = !complete;
    compareNumbers(splitCoordinateList(text, &whole), expected);
    QCOMPARE(whole, complete);
}

void TestSvgReader::transform_data()
{
    // An empty "to" list means the text is refused and the transform left untouched.
    QTest::addColumn<QString>("text");
    QTest::addColumn<Points>("from");
    QTest::addColumn<Points>("to");
    QTest::newRow("translate x only") << "translate(10)" << Points{{1, 2}} << Points{{11, 2}};
    QTest::newRow("translate then scale applies scale first")
        << "translate(10,5) scale(2)" << Points{{1, 2}} << Points{{12, 9}};
    QTest::newRow("scale then translate applies translate first")
        << "scale(2) translate(10,5)" << Points{{1, 2}} << Points{{22, 14}};
    QTest::newRow("scale two values") << "scale(2,-1)" << Points{{3, 4}} << Points{{6, -4}};
    QTest::newRow("rotate about a centre")
        << "rotate(90 10 10)" << Points{{0, 0}, {10, 10}} << Points{{20, 0}, {10, 10}};
    QTest::newRow("skewX") << "skewX(45)" << Points{{0, 10}} << Points{{10, 10}};
    QTest::newRow("skewY") << "skewY(45)" << Points{{10, 0}} << Points{{10, 10}};
    QTest::newRow("matrix") << "matrix(1 2 3 4 5 6)" << Points{{1, 1}} << Points{{9, 12}};
    QTest::newRow("commas and newlines")
        << "translate(1,1),\n scale( 3 , 3 )" << Points{{1, 1}} << Points{{4, 4}};
    for (const char *bad : {"translate(10", "foo(1)", "scale()", "rotate(1,2)", "matrix(1 2 3)",
                            "translate(1) garbage", "translate(NaN)"})
        QTest::addRow("refused: %s", bad) << QString::fromLatin1(bad) << Points{{1, 1}} << Points{};
}

void TestSvgReader::transform()
{
    QFETCH(QString, text);
    QFETCH(Points, from);
    QFETCH(Points, to);
    QTransform t = QTransform::fromTranslate(7, 7);
    QCOMPARE(parseSvgTransform(text, &t), !to.isEmpty());
    if (to.isEmpty())
        QCOMPARE(t, QTransform::fromTranslate(7, 7));
    for (int i = 0; i < to.size(); ++i) {
        const QPointF p = t.map(from[i]);
        QVERIFY2(QLineF(p, to[i]).length() < 1e-9,
                 qPrintable(QStringLiteral("%1,%2").arg(p.x()).arg(p.y())));
    }
}

void TestSvgReader::length_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<double>("mm");
    const QList<QPair<const char *, double>> good = {
        {"210mm", 210}, {"2.5cm", 25},  {"8.5in", 215.9}, {"72pt", 25.4},
        {"6pc", 25.4},  {"96px", 25.4}, {"48", 12.7},     {" 100 mm ", 100}};
    for (const auto &g : good)
        QTest::addRow("%s", g.first) << QString::fromLatin1(g.first) << true << g.second;
    for (const char *bad : {"100%", "3furlong", ""})
        QTest::addRow("refused '%s'", bad) << QString::fromLatin1(bad) << false << 0.0;
}

void TestSvgReader::length()
{
    QFETCH(QString, text);
    QFETCH(bool, ok);
    QFETCH(double, mm);
    double v = -1;
    QCOMPARE(svgLengthToMm(text, &v), ok);
    if (ok)
        QVERIFY2(qAbs(v - mm) < 1e-9, qPrintable(QString::number(v)));
}

void TestSvgReader::rootToMm_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QRectF>("userBox");
    QTest::addColumn<QRectF>("mmBox");
    const QRectF square(0, 0, 100, 100), wide(0, 0, 200, 100);
    const QString page = QStringLiteral("width='100mm' height='100mm' viewBox='0 0 200 100' ");
    QTest::newRow("mm with viewBox")
        << "width='50mm' height='50mm' viewBox='0 0 100 100'" << square << QRectF(0, 0, 50, 50);
    QTest::newRow("viewBox origin moved") << "width='100mm' height='100mm' viewBox='50 50 100 100'"
                                          << square << QRectF(-50, -50, 100, 100);
    QTest::newRow("no viewBox: pixels")
        << "width='100mm' height='100mm'" << QRectF(0, 0, 96, 48) << QRectF(0, 0, 25.4, 12.7);
    QTest::newRow("viewBox without size: pixels")
        << "viewBox='0 0 96 96'" << QRectF(0, 0, 96, 96) << QRectF(0, 0, 25.4, 25.4);
    QTest::newRow("width only keeps aspect")
        << "width='10cm' viewBox='0 0 200 100'" << wide << QRectF(0, 0, 100, 50);
    QTest::newRow("meet centres") << page << wide << QRectF(0, 25, 100, 50);
    QTest::newRow("xMinYMax meet")
        << page + "preserveAspectRatio='xMinYMax'" << wide << QRectF(0, 50, 100, 50);
    QTest::newRow("none stretches")
        << page + "preserveAspectRatio='none'" << wide << QRectF(0, 0, 100, 100);
    QTest::newRow("slice fills") << page + "preserveAspectRatio='xMidYMid slice'" << wide
                                 << QRectF(-50, 0, 200, 100);
    QTest::newRow("bad viewBox ignored") << "width='100mm' height='100mm' viewBox='0 0 0 100'"
                                         << QRectF(0, 0, 96, 96) << QRectF(0, 0, 25.4, 25.4);
}

void TestSvgReader::rootToMm()
{
    QFETCH(QString, attributes);
    QFETCH(QRectF, userBox);
    QFETCH(QRectF, mmBox);
    QDomDocument doc;
    QVERIFY(doc.setContent(QStringLiteral("<svg %1/>").arg(attributes)));
    const QRectF mapped = svgRootToMm(doc.documentElement()).mapRect(userBox);
    QVERIFY2(near(mapped, mmBox, 1e-9), qPrintable(describe(mapped)));
}

void TestSvgReader::pathData_data()
{
    QTest::addColumn<QString>("d");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<bool>("complete");
    QTest::newRow("relative with close") << "m10 20 l5 5 h10 v-5 z"
                                         << "M10,20 L15,25 L25,25 L25,20 L10,20" << true;
    QTest::newRow("absolute H V") << "M1 1 H5 V7 H2"
                                  << "M1,1 L5,1 L5,7 L2,7" << true;
    QTest::newRow("moveto repeats are linetos") << "M0 0 10 0 10 10"
                                                << "M0,0 L10,0 L10,10" << true;
    QTest::newRow("relative moveto repeats are relative linetos") << "m1 1 2 2 3 3"
                                                                  << "M1,1 L3,3 L6,6" << true;
    QTest::newRow("glued signs, exponents, no spaces") << "M10-20L1e-5,0l.5.5"
                                                       << "M10,-20 L1e-05,0 L0.50001,0.5" << true;
    QTest::newRow("cubic and smooth reflection")
        << "M0 0 C10 0 20 10 20 20 S 30 40 40 40"
        << "M0,0 C10,0 20,10 20,20 C20,30 30,40 40,40" << true;
    QTest::newRow("relative smooth cubic") << "M0 0 c10 0 20 10 20 20 s10 20 20 20"
                                           << "M0,0 C10,0 20,10 20,20 C20,30 30,40 40,40" << true;
    QTest::newRow("smooth cubic alone uses the current point") << "M0 0 S10 10 20 0"
                                                               << "M0,0 C0,0 10,10 20,0" << true;
    QTest::newRow("smooth cubic after a line does not reflect")
        << "M0 0 L5 5 S10 10 20 0"
        << "M0,0 L5,5 C5,5 10,10 20,0" << true;
    QTest::newRow("quadratic and smooth reflection")
        << "M0 0 Q10 10 20 0 T40 0"
        << "M0,0 C6.66667,6.66667 13.3333,6.66667 20,0 C26.6667,-6.66667 33.3333,-6.66667 40,0"
        << true;
    QTest::newRow("relative quadratic") << "m0 0 q10 10 20 0"
                                        << "M0,0 C6.66667,6.66667 13.3333,6.66667 20,0" << true;
    QTest::newRow("after close, relative from the subpath start")
        << "M10 10 l10 0 l0 10 z l5 5"
        << "M10,10 L20,10 L20,20 L10,10 M10,10 L15,15" << true;
    QTest::newRow("zero-radius arc is a line") << "M0 0 A0 5 0 0 1 10 10"
                                               << "M0,0 L10,10" << true;
    QTest::newRow("arc to its own start draws nothing") << "M5 5 A10 10 0 0 1 5 5"
                                                        << "M5,5" << true;
    QTest::newRow("underflow is zero") << "M1e-400 7"
                                       << "M0,7" << true;
    QTest::newRow("long digit run")
        << "M1.000000000000000000000000000000000000000000000000000000000000000001 5"
        << "M1,5" << true;
    QTest::newRow("two commas stop") << "M1,,2"
                                     << "" << false;
    QTest::newRow("whitespace only") << " \n\t "
                                     << "" << true;
    QTest::newRow("unknown letter stops") << "M0 0 L10 10 X 20 20"
                                          << "M0,0 L10,10" << false;
    QTest::newRow("missing number stops") << "M0 0 L10"
                                          << "M0,0" << false;
    QTest::newRow("nan stops") << "M0 0 L NaN 5"
                               << "M0,0" << false;
    QTest::newRow("overflow stops") << "M1e400 0 L1 1"
                                    << "" << false;
    QTest::newRow("numbers before any command") << "10 10 L5 5"
                                                << "" << false;
    QTest::newRow("line before any move") << "L10 10 L20 20"
                                          << "" << false;
    QTest::newRow("relative curve before any move") << "c1 1 2 2 3 3 M0 0 L1 1"
                                                    << "" << false;
    QTest::newRow("close before any move") << "Z M0 0 L1 1"
                                           << "" << false;
    QTest::newRow("numbers after close") << "M0 0 L1 0 Z 5 5"
                                         << "M0,0 L1,0 L0,0" << false;
    QTest::newRow("bad arc flag") << "M0 0 A5 5 0 2 1 10 0"
                                  << "M0,0" << false;
}

void TestSvgReader::pathData()
{
    QFETCH(QString, d);
    QFETCH(QString, expected);
    QFETCH(bool, complete);
    bool whole = !complete;
    QCOMPARE(describe(parseSvgPathData(d, &whole)), expected);
    QCOMPARE(whole, complete);
}

void TestSvgReader::arcsLieOnTheirEllipse_data()
{
    QTest::addColumn<QString>("d");
    QTest::addColumn<QPointF>("centre");
    QTest::addColumn<double>("rx");
    QTest::addColumn<double>("ry");
    QTest::addColumn<double>("phiDegrees");
    QTest::addColumn<QRectF>("box");
    QTest::addColumn<double>("length"); // < 0: not checked

    const double pi = M_PI;
    // Sweep flag 1 turns towards positive angles, which is clockwise on a y-down page.
    QTest::newRow("half circle over the top") << "M0 0 A10 10 0 0 1 20 0" << QPointF(10, 0) << 10.0
                                              << 10.0 << 0.0 << QRectF(0, -10, 20, 10) << 10 * pi;
    QTest::newRow("half circle below") << "M0 0 A10 10 0 0 0 20 0" << QPointF(10, 0) << 10.0 << 10.0
                                       << 0.0 << QRectF(0, 0, 20, 10) << 10 * pi;
    QTest::newRow("radii too small are scaled up")
        << "M0 0 A1 1 0 0 1 20 0" << QPointF(10, 0) << 10.0 << 10.0 << 0.0 << QRectF(0, -10, 20, 10)
        << 10 * pi;
    QTest::newRow("large arc three quarters") << "M0 0 A10 10 0 1 0 10 10" << QPointF(0, 10) << 10.0
                                              << 10.0 << 0.0 << QRectF(-10, 0, 20, 20) << 15 * pi;
    QTest::newRow("rotated ellipse, compact flags")
        << "M0 0 A20,10 90 010,40" << QPointF(0, 20) << 20.0 << 10.0 << 90.0 << QRectF(0, 0, 10, 40)
        << -1.0;
    // A nearly closed ellipse whose ends sit at its leftmost point.
    QTest::newRow("relative large arc") << "M5 5 a10 5 0 1 1 0 0.001" << QPointF(15, 5.0005) << 10.0
                                        << 5.0 << 0.0 << QRectF(5, 0.0005, 20, 10) << -1.0;
}

void TestSvgReader::arcsLieOnTheirEllipse()
{
    QFETCH(QString, d);
    QFETCH(QPointF, centre);
    QFETCH(double, rx);
    QFETCH(double, ry);
    QFETCH(double, phiDegrees);
    QFETCH(QRectF, box);
    QFETCH(double, length);
    bool whole = false;
    const QPainterPath path = parseSvgPathData(d, &whole);
    QVERIFY(whole);
    const double phi = phiDegrees * M_PI / 180.0;
    // Points along the curves sit on the ellipse to within 1e-5 of the radius.
    for (int i = 0; i <= 200; ++i) {
        const QPointF p = path.pointAtPercent(i / 200.0) - centre;
        const double x = std::cos(phi) * p.x() + std::sin(phi) * p.y();
        const double y = -std::sin(phi) * p.x() + std::cos(phi) * p.y();
        const double r = std::sqrt((x * x) / (rx * rx) + (y * y) / (ry * ry));
        QVERIFY2(std::abs(r - 1.0) < 1e-5, qPrintable(QStringLiteral("at %1: %2").arg(i).arg(r)));
    }
    QVERIFY2(near(path.boundingRect(), box, 1e-4), qPrintable(describe(path.boundingRect())));
    if (length > 0) {
        double sum = 0;
        for (int i = 1; i <= 4000; ++i)
            sum += QLineF(path.pointAtPercent((i - 1) / 4000.0), path.pointAtPercent(i / 4000.0))
                       .length();
        QVERIFY2(std::abs(sum - length) < 1e-3, qPrintable(QString::number(sum)));
    }
}

void TestSvgReader::traversal_data()
{
    QTest::addColumn<QString>("svg");
    QTest::addColumn<Boxes>("boxes");

    QTest::newRow("shapes only inside defs")
        << svgDoc("<defs><rect x='0' y='0' width='5' height='5'/><path d='M0 0 L9 9'/></defs>")
        << Boxes{};
    QTest::newRow("desc skipped with content")
        << svgDoc("<desc><rect x='0' y='0' width='5' height='5'/></desc><rect x='1' y='1' "
                  "width='2' height='2'/>")
        << Boxes{{1, 1, 2, 2}};
    QTest::newRow("group: every kind in the fixed order")
        << svgDoc("<g><polyline points='0 0 1 1'/><polygon points='0 0 2 0 2 2'/><line x1='0' "
                  "y1='0' x2='3' y2='3'/>"
                  "<ellipse cx='10' cy='10' rx='4' ry='2'/><circle cx='20' cy='20' r='5'/>"
                  "<rect x='30' y='30' width='6' height='6'/><path d='M40 40 h7 v7'/></g>")
        << Boxes{{40, 40, 7, 7}, {30, 30, 6, 6}, {15, 15, 10, 10}, {6, 8, 8, 4},
                 {0, 0, 3, 3},   {0, 0, 2, 2},   {0, 0, 1, 1}};
    QTest::newRow("root children keep document order")
        << svgDoc("<circle cx='50' cy='50' r='10'/><path d='M0 0 L10 5'/>")
        << Boxes{{40, 40, 20, 20}, {0, 0, 10, 5}};
    QTest::newRow("groups one after the other")
        << svgDoc("<g><rect x='5' y='5' width='1' height='1'/></g><path d='M0 0 L2 2'/><g><path "
                  "d='M7 7 L8 9'/></g>")
        << Boxes{{5, 5, 1, 1}, {0, 0, 2, 2}, {7, 7, 1, 2}};
    QTest::newRow("defs nested inside a group, other elements skipped") << svgDoc(
        "<g><defs><path d='M0 0 L100 100'/></defs><clipPath><rect width='50' "
        "height='50'/></clipPath>"
        "<text x='5' y='5'>hello</text><image width='10' height='10'/><path d='M1 1 L2 2'/></g>")
                                                                        << Boxes{{1, 1, 1, 1}};
    QTest::newRow("nested group transforms combine")
        << svgDoc("<g transform='translate(100,0)'><g transform='scale(2)'>"
                  "<rect x='1' y='1' width='5' height='5' transform='translate(10 10)'/></g></g>")
        << Boxes{{122, 22, 10, 10}};
    QTest::newRow("rotation about a centre") << svgDoc(
        "<g transform='rotate(-90 50 50)'><rect x='50' y='50' width='20' height='10'/></g>")
                                             << Boxes{{50, 30, 10, 20}};
    QTest::newRow("nested svg viewport")
        << svgDoc("<svg x='10' y='20' width='100' height='100' viewBox='0 0 10 10'><rect "
                  "width='10' height='5'/></svg>")
        << Boxes{{10, 20, 100, 50}};
    QTest::newRow("prefixed tags")
        << QStringLiteral("<svg:svg xmlns:svg='http://www.w3.org/2000/svg' width='100mm' "
                          "height='100mm' viewBox='0 0 100 100'>"
                          "<svg:g><svg:rect x='1' y='2' width='3' height='4'/></svg:g></svg:svg>")
        << Boxes{{1, 2, 3, 4}};
    QTest::newRow("absent coordinates are zero")
        << svgDoc("<line x2='10'/><rect width='3' height='2'/>")
        << Boxes{{0, 0, 10, 0}, {0, 0, 3, 2}};
    // Units on coordinates count in pixels of the user space: true millimetres when the user
    // unit is the pixel, scaled with the viewBox otherwise.
    QTest::newRow("lengths with units, pixel user space")
        << svgDoc("<rect x='1mm' y='0' width='2cm' height='10mm'/>", "width='100mm' height='100mm'")
        << Boxes{{1, 0, 20, 10}};
    QTest::newRow("lengths with units, scaled user space")
        << svgDoc("<rect x='0' y='0' width='96px' height='1in'/>",
                  "width='200mm' height='200mm' viewBox='0 0 100 100'")
        << Boxes{{0, 0, 192, 192}};
    QTest::newRow("degenerate shapes dropped") << svgDoc(
        "<rect width='0' height='5'/><circle r='-1'/><ellipse rx='3' ry='0'/><polygon points='1'/>"
        "<path d='M5 5'/><rect x='1' y='1' width='1' height='1'/>")
                                               << Boxes{{1, 1, 1, 1}};
    QTest::newRow("bad transform ignored, huge coordinates dropped")
        << svgDoc("<rect x='1' y='1' width='1' height='1' transform='rotate(oops)'/><path d='M0 0 "
                  "L1e300 1e300'/>")
        << Boxes{{1, 1, 1, 1}};
    QTest::newRow("points with exponent and glued minus")
        << svgDoc("<polyline points='1e-5,0 10-20'/>") << Boxes{{0.00001, -20, 9.99999, 20}};
}

void TestSvgReader::traversal()
{
    QFETCH(QString, svg);
    QFETCH(Boxes, boxes);
    const SvgImportResult result = readSvgData(svg.toUtf8());
    QVERIFY2(result.ok, qPrintable(result.error));
    compareBoxes(result.paths, boxes, 1e-6);
}

void TestSvgReader::savedFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<Boxes>("boxes");
    // Page in mm, layer group moved by (-20, -30): paths first, then rects, then circles.
    QTest::newRow("mm page with layer groups")
        << "mm_viewbox_layers.svg"
        << Boxes{{30, 95, 50, 25}, {10, 10, 100, 50}, {60, 70, 20, 40}, {110, 150, 40, 40}};
    // User unit of one point on a 100 x 50 mm page.
    QTest::newRow("points as user units")
        << "pt_viewbox.svg" << Boxes{{10, 10, 80, 30}, {0, 0, 100, 50}, {5, 25, 90, 0}};
    // A hundredth of a millimetre per user unit, matrix, scale and skew.
    QTest::newRow("hundredths with matrices")
        << "hundredth_mm_matrix.svg" << Boxes{{10, 5, 20, 10}, {20, 10, 20, 10}, {50, 0, 20, 10}};
}

void TestSvgReader::savedFiles()
{
    QFETCH(QString, file);
    QFETCH(Boxes, boxes);
    const SvgImportResult result =
        readSvgFile(QStringLiteral(LUMITRA_TEST_DATA_DIR "/import/svg/") + file);
    QVERIFY2(result.ok, qPrintable(result.error));
    compareBoxes(result.paths, boxes, 0.01);
}

void TestSvgReader::polygonAndRoundedRectangle()
{
    const SvgImportResult result =
        readSvgData(svgDoc("<polygon points='0,0 10,0 10,10'/><polyline points='0,0 10,0 10,10'/>"
                           "<rect x='0' y='0' width='40' height='20' rx='5'/>")
                        .toUtf8());
    QCOMPARE(result.paths.size(), 3);
    const QPolygonF closed = result.paths[0].toSubpathPolygons().value(0);
    const QPolygonF open = result.paths[1].toSubpathPolygons().value(0);
    QCOMPARE(closed.size(), 4);
    QCOMPARE(closed.first(), closed.last());
    QCOMPARE(open.size(), 3);
    QCOMPARE(open.last(), QPointF(10, 10));
    const QPainterPath &rounded = result.paths[2];
    QCOMPARE(rounded.boundingRect(), QRectF(0, 0, 40, 20));
    QVERIFY(!rounded.contains(QPointF(0.5, 0.5))); // the corner is cut
    QVERIFY(rounded.contains(QPointF(20, 0.5)));   // the edge is straight
}

QTEST_GUILESS_MAIN(TestSvgReader)
void TestSvgReader::drawnElements_data()
{
    QTest::addColumn<QString>("svg");
    QTest::addColumn<Boxes>("boxes");
    QTest::addColumn<int>("texts");
    const char *xlink = "width='1000mm' height='1000mm' viewBox='0 0 1000 1000' "
                        "xmlns:xlink='http://www.w3.org/1999/xlink'";

    // Reused parts.
    QTest::newRow("use of a symbol: x, y and the viewBox fitted into width and height")
        << svgDoc("<defs><symbol id='s' viewBox='0 0 10 10'><rect width='10' height='5'/>"
                  "</symbol></defs><use href='#s' x='5' y='6' width='20' height='20'/>")
        << Boxes{{5, 6, 20, 10}} << 0;
    QTest::newRow("use of an element with xlink:href, transform before x and y")
        << svgDoc("<defs><circle id='c' r='2'/></defs>"
                  "<use xlink:href='#c' x='10' transform='translate(0 5)'/>",
                  xlink)
        << Boxes{{8, 3, 4, 4}} << 0;
    QTest::newRow("nested uses add up, the original in defs is not drawn")
        << svgDoc("<defs><rect id='r' width='1' height='2'/><g id='pair'><use href='#r'/>"
                  "<use href='#r' x='10'/></g></defs>"
                  "<use href='#pair' y='100'/><use href='#pair' x='50' y='200'/>")
        << Boxes{{0, 100, 1, 2}, {10, 100, 1, 2}, {50, 200, 1, 2}, {60, 200, 1, 2}} << 0;
    QTest::newRow("a used element that is drawn in place too")
        << svgDoc("<rect id='r' x='1' y='1' width='2' height='2'/><use href='#r' x='10'/>")
        << Boxes{{1, 1, 2, 2}, {11, 1, 2, 2}} << 0;
    QTest::newRow("uses in a cycle end, the rest is drawn")
        << svgDoc("<g id='a'><rect width='3' height='3'/><use href='#a' x='5'/></g>"
                  "<use id='u1' href='#u2'/><use id='u2' href='#u1'/><use href='#missing'/>")
        << Boxes{{0, 0, 3, 3}} << 0;
    QTest::newRow("symbol without use is not drawn")
        << svgDoc("<symbol id='s'><rect width='10' height='10'/></symbol>") << Boxes{} << 0;

    // Units relative to the font size and the viewport (one user unit is one mm here).
    QTest::newRow("em of the default 16 px font size")
        << svgDoc("<circle cx='2em' cy='1em' r='0.5em'/>") << Boxes{{24, 8, 16, 16}} << 0;
    QTest::newRow("em and ex of an inherited font size, attribute and style")
        << svgDoc("<g font-size='10'><rect width='2em' height='1ex'/>"
                  "<g style='font-size:4px'><rect x='1em' width='1em' height='1em'/></g>"
                  "<g font-size='150%'><rect width='1em' height='1em'/></g></g>")
        << Boxes{{0, 0, 20, 5}, {4, 0, 4, 4}, {0, 0, 15, 15}} << 0;
    QTest::newRow("rem of the root font size, ch")
        << svgDoc("<g font-size='2'><rect width='1rem' height='4ch'/></g>",
                  "width='1000mm' height='1000mm' viewBox='0 0 1000 1000' font-size='20'")
        << Boxes{{0, 0, 20, 4}} << 0;
    QTest::newRow("percent of the viewBox, diagonal for r")
        << svgDoc("<rect x='10%' y='20%' width='50%' height='25%'/><circle cx='50%' cy='50%' "
                  "r='10%'/>",
                  "width='1000mm' height='500mm' viewBox='0 0 1000 500'")
        << Boxes{{100, 100, 500, 125}, {500 - 79.0569, 250 - 79.0569, 158.1139, 158.1139}} << 0;
    QTest::newRow("percent of a nested viewport")
        << svgDoc("<svg x='100' width='200' height='100' viewBox='0 0 20 10'>"
                  "<rect width='50%' height='100%'/></svg>")
        << Boxes{{100, 0, 100, 100}} << 0;
    QTest::newRow("Q, vw and vh as pixels of the user space")
        << svgDoc("<rect width='40Q' height='1vh'/>", "width='100mm' height='50mm'")
        << Boxes{{0, 0, 10, 0.5}} << 0;

    // Never drawn.
    QTest::newRow("display none as attribute and as style")
        << svgDoc("<g display='none'><rect width='9' height='9'/></g>"
                  "<rect style='fill:red; display : none' width='8' height='8'/>"
                  "<rect width='1' height='1'/>")
        << Boxes{{0, 0, 1, 1}} << 0;
    QTest::newRow("hidden layer, but a visible child shows")
        << svgDoc("<g style='visibility:hidden'><rect width='9' height='9'/>"
                  "<rect visibility='visible' width='2' height='2'/></g>"
                  "<circle visibility='collapse' r='5'/>")
        << Boxes{{0, 0, 2, 2}} << 0;
    QTest::newRow("switch: the first child whose conditions hold")
        << svgDoc("<switch><rect requiredExtensions='http://example.com/x' width='9' "
                  "height='9'/><rect systemLanguage='qx-nope' width='8' height='8'/>"
                  "<rect systemLanguage='' width='7' height='7'/>"
                  "<g><rect width='3' height='3'/></g><rect width='6' height='6'/></switch>")
        << Boxes{{0, 0, 3, 3}} << 0;
    QTest::newRow("flowed text: the region frame is not drawn, the text is counted")
        << svgDoc("<flowRoot><flowRegion><rect width='50' height='50'/></flowRegion>"
                  "<flowPara>hello</flowPara></flowRoot><rect width='1' height='1'/>")
        << Boxes{{0, 0, 1, 1}} << 1;
    QTest::newRow("elements of other namespaces and unknown elements skipped")
        << svgDoc("<foo:g xmlns:foo='urn:foo'><rect width='9' height='9'/></foo:g>"
                  "<g xmlns='urn:other'><rect width='8' height='8'/></g>"
                  "<wrapper><rect width='7' height='7'/></wrapper>"
                  "<foreignObject><rect width='6' height='6'/></foreignObject>"
                  "<g><rect width='1' height='1'/></g>")
        << Boxes{{0, 0, 1, 1}} << 0;
    QTest::newRow("path data not opening with a move")
        << svgDoc("<path d='L10 10 L20 20'/><path d='M0 0 L1 1'/>") << Boxes{{0, 0, 1, 1}} << 0;
    QTest::newRow("texts counted, hidden ones not")
        << svgDoc("<text x='1' y='1'>a</text><g><text><tspan>b</tspan></text></g>"
                  "<text display='none'>c</text><defs><text>d</text></defs>")
        << Boxes{} << 2;
}

void TestSvgReader::drawnElements()
{
    QFETCH(QString, svg);
    QFETCH(Boxes, boxes);
    QFETCH(int, texts);
    const SvgImportResult result = readSvgData(svg.toUtf8());
    QVERIFY2(result.ok, qPrintable(result.error));
    compareBoxes(result.paths, boxes, 1e-3);
    QCOMPARE(result.textCount, texts);
}

void TestSvgReader::images()
{
    // A 4 x 2 image: embedded as a data URI, and as a file beside the SVG.
    QImage image(4, 2, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setPixel(0, 0, qRgb(0, 0, 0));
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    QVERIFY(image.save(&buffer, "PNG"));
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QVERIFY(image.save(dir.filePath(QStringLiteral("side.png"))));
    const QString svg =
        svgDoc(QStringLiteral(
                   "<image x='10' y='20' width='40' height='20' href='data:image/png;base64,%1'/>"
                   "<g transform='translate(100 0)'><image width='8' href='side.png'/></g>"
                   "<image href='missing.png' width='5' height='5'/>")
                   .arg(QString::fromLatin1(png.toBase64())));
    QFile file(dir.filePath(QStringLiteral("drawing.svg")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(svg.toUtf8());
    file.close();
    const SvgImportResult result = readSvgFile(file.fileName());
    QVERIFY2(result.ok, qPrintable(result.error));
    QCOMPARE(result.images.size(), 2);
    QCOMPARE(result.images[0].image.size(), QSize(4, 2));
    QCOMPARE(result.images[0].image.pixel(0, 0), qRgb(0, 0, 0));
    auto mapped = [&](int i) { return result.images[i].pixelToMm.mapRect(QRectF(0, 0, 4, 2)); };
    QVERIFY2(near(mapped(0), QRectF(10, 20, 40, 20), 1e-9), qPrintable(describe(mapped(0))));
    // Only a width: the height follows the image's proportions.
    QVERIFY2(near(mapped(1), QRectF(100, 0, 8, 4), 1e-9), qPrintable(describe(mapped(1))));
    // Read from data, relative files have no folder to be found in.
    QCOMPARE(readSvgData(svg.toUtf8()).images.size(), 1);
}

void TestSvgReader::colours()
{
    // Stroke first, else fill; both inherited, as attributes or styles; fill is black
    // unless said otherwise.
    const QString svg =
        svgDoc("<g stroke='#ff0000'><rect width='1' height='1'/>"
               "<rect stroke='none' fill='blue' width='2' height='2'/></g>"
               "<circle style='stroke:rgb(0,128,0)' r='1'/><path fill='none' d='M0 0 L1 1'/>"
               "<g style='fill:#0f0;stroke:none'><line x2='3' fill='url(#gradient) #123456'/></g>");
    const SvgImportResult result = readSvgData(svg.toUtf8(), QString(), true);
    QVERIFY(result.ok);
    QCOMPARE(result.paths.size(), 5);
    // The group's kinds come path first, then rects, circles, lines.
    const QVector<QRgb> expected = {qRgb(255, 0, 0), qRgb(0, 0, 255), qRgb(0, 128, 0),
                                    qRgb(0, 0, 0), qRgb(0x12, 0x34, 0x56)};
    QVector<QRgb> got = result.colours;
    for (QRgb &c : got)
        c |= 0xff000000u;
    QCOMPARE(got, expected);
    // Not asked for: none read.
    QVERIFY(readSvgData(svg.toUtf8()).colours.isEmpty());
}

#include "tst_svg_reader.moc"
