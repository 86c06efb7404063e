// Path data: every command, absolute and relative, implicit repeats, curve reflection,
// arcs against the exact ellipse, and reading stopping at the first error.
#include "svg_path_data.h"

#include <QtTest>
#include <cmath>

using namespace lumitra;

namespace {

QString num(double v)
{
    if (std::abs(v) < 5e-7)
        v = 0;
    return QString::number(v, 'g', 6);
}

// "M x,y L x,y C x,y x,y x,y" with six significant digits.
QString describe(const QPainterPath &path)
{
    QStringList parts;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        const QString xy = num(e.x) + QLatin1Char(',') + num(e.y);
        switch (e.type) {
        case QPainterPath::MoveToElement:
            parts << QStringLiteral("M") + xy;
            break;
        case QPainterPath::LineToElement:
            parts << QStringLiteral("L") + xy;
            break;
        case QPainterPath::CurveToElement:
            parts << QStringLiteral("C") + xy;
            break;
        case QPainterPath::CurveToDataElement:
            parts.last() += QLatin1Char(' ') + xy;
            break;
        }
    }
    return parts.join(QLatin1Char(' '));
}

} // namespace

class TestSvgPathData : public QObject
{
    Q_OBJECT

private slots:
    void commands_data();
    void commands();
    void arcsLieOnTheirEllipse_data();
    void arcsLieOnTheirEllipse();
};

void TestSvgPathData::commands_data()
{
    QTest::addColumn<QString>("d");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<bool>("complete");

    QTest::newRow("absolute lines") << "M10 20 L30 40" << "M10,20 L30,40" << true;
    QTest::newRow("relative with close") << "m10 20 l5 5 h10 v-5 z"
                                         << "M10,20 L15,25 L25,25 L25,20 L10,20" << true;
    QTest::newRow("absolute H V") << "M1 1 H5 V7 H2" << "M1,1 L5,1 L5,7 L2,7" << true;
    QTest::newRow("moveto repeats are linetos") << "M0 0 10 0 10 10" << "M0,0 L10,0 L10,10" << true;
    QTest::newRow("relative moveto repeats are relative linetos") << "m1 1 2 2 3 3"
                                                                  << "M1,1 L3,3 L6,6" << true;
    QTest::newRow("lineto repeats") << "M0 0 L1 1 2 2" << "M0,0 L1,1 L2,2" << true;
    QTest::newRow("glued signs and exponents") << "M10-20L1e-5,0" << "M10,-20 L1e-05,0" << true;
    QTest::newRow("second decimal point") << "M.5.5L-.5-.5" << "M0.5,0.5 L-0.5,-0.5" << true;
    QTest::newRow("no spaces after letters") << "M0,0L10,0l0,10" << "M0,0 L10,0 L10,10" << true;
    QTest::newRow("cubic and smooth reflection")
        << "M0 0 C10 0 20 10 20 20 S 30 40 40 40"
        << "M0,0 C10,0 20,10 20,20 C20,30 30,40 40,40" << true;
    QTest::newRow("relative smooth cubic") << "M0 0 c10 0 20 10 20 20 s10 20 20 20"
                                           << "M0,0 C10,0 20,10 20,20 C20,30 30,40 40,40" << true;
    QTest::newRow("smooth cubic alone uses the current point")
        << "M0 0 S10 10 20 0" << "M0,0 C0,0 10,10 20,0" << true;
    QTest::newRow("smooth cubic after a line does not reflect")
        << "M0 0 L5 5 S10 10 20 0" << "M0,0 L5,5 C5,5 10,10 20,0" << true;
    QTest::newRow("quadratic as cubic") << "M0 0 Q10 10 20 0"
                                        << "M0,0 C6.66667,6.66667 13.3333,6.66667 20,0" << true;
    QTest::newRow("smooth quadratic reflection")
        << "M0 0 Q10 10 20 0 T40 0"
        << "M0,0 C6.66667,6.66667 13.3333,6.66667 20,0 C26.6667,-6.66667 33.3333,-6.66667 40,0"
        << true;
    QTest::newRow("relative quadratic") << "m0 0 q10 10 20 0"
                                        << "M0,0 C6.66667,6.66667 13.3333,6.66667 20,0" << true;
    QTest::newRow("after close, relative from the subpath start")
        << "M10 10 l10 0 l0 10 z l5 5" << "M10,10 L20,10 L20,20 L10,10 M10,10 L15,15" << true;
    QTest::newRow("zero-radius arc is a line") << "M0 0 A0 5 0 0 1 10 10" << "M0,0 L10,10" << true;
    QTest::newRow("arc to its own start draws nothing") << "M5 5 A10 10 0 0 1 5 5" << "M5,5" << true;
    QTest::newRow("empty") << "" << "" << true;
    QTest::newRow("whitespace only") << " \n\t " << "" << true;
    QTest::newRow("unknown letter stops") << "M0 0 L10 10 X 20 20" << "M0,0 L10,10" << false;
    QTest::newRow("missing number stops") << "M0 0 L10" << "M0,0" << false;
    QTest::newRow("nan stops") << "M0 0 L NaN 5" << "M0,0" << false;
    QTest::newRow("overflow stops") << "M1e400 0 L1 1" << "" << false;
    QTest::newRow("numbers before any command") << "10 10 L5 5" << "" << false;
    QTest::newRow("numbers after close") << "M0 0 L1 0 Z 5 5" << "M0,0 L1,0 L0,0" << false;
    QTest::newRow("bad arc flag") << "M0 0 A5 5 0 2 1 10 0" << "M0,0" << false;
}

void TestSvgPathData::commands()
{
    QFETCH(QString, d);
    QFETCH(QString, expected);
    QFETCH(bool, complete);
    bool whole = !complete;
    const QPainterPath path = parseSvgPathData(d, &whole);
    QCOMPARE(describe(path), expected);
    QCOMPARE(whole, complete);
}

void TestSvgPathData::arcsLieOnTheirEllipse_data()
{
    QTest::addColumn<QString>("d");
    QTest::addColumn<QPointF>("centre");
    QTest::addColumn<double>("rx");
    QTest::addColumn<double>("ry");
    QTest::addColumn<double>("phiDegrees");
    QTest::addColumn<QRectF>("box");
    QTest::addColumn<double>("length");

    const double pi = M_PI;
    // Sweep flag 1 turns towards positive angles, which is clockwise on a y-down page.
    QTest::newRow("half circle over the top") << "M0 0 A10 10 0 0 1 20 0" << QPointF(10, 0) << 10.0
                                              << 10.0 << 0.0 << QRectF(0, -10, 20, 10) << 10 * pi;
    QTest::newRow("half circle below") << "M0 0 A10 10 0 0 0 20 0" << QPointF(10, 0) << 10.0
                                       << 10.0 << 0.0 << QRectF(0, 0, 20, 10) << 10 * pi;
    QTest::newRow("radii too small are scaled up") << "M0 0 A1 1 0 0 1 20 0" << QPointF(10, 0)
                                                   << 10.0 << 10.0 << 0.0 << QRectF(0, -10, 20, 10)
                                                   << 10 * pi;
    QTest::newRow("large arc three quarters") << "M0 0 A10 10 0 1 0 10 10" << QPointF(0, 10)
                                              << 10.0 << 10.0 << 0.0 << QRectF(-10, 0, 20, 20)
                                              << 15 * pi;
    QTest::newRow("small arc one quarter") << "M0 0 a10 10 0 0 0 10 10" << QPointF(10, 0) << 10.0
                                           << 10.0 << 0.0 << QRectF(0, 0, 10, 10) << 5 * pi;
    QTest::newRow("rotated ellipse, compact flags") << "M0 0 A20,10 90 010,40" << QPointF(0, 20)
                                                    << 20.0 << 10.0 << 90.0
                                                    << QRectF(0, 0, 10, 40) << -1.0;
    // A nearly closed ellipse whose ends sit at its leftmost point.
    QTest::newRow("relative large arc") << "M5 5 a10 5 0 1 1 0 0.001" << QPointF(15, 5.0005)
                                        << 10.0 << 5.0 << 0.0 << QRectF(5, 0.0005, 20, 10) << -1.0;
}

void TestSvgPathData::arcsLieOnTheirEllipse()
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
    const QRectF b = path.boundingRect();
    QVERIFY2(std::abs(b.left() - box.left()) < 1e-4 && std::abs(b.top() - box.top()) < 1e-4
                 && std::abs(b.right() - box.right()) < 1e-4
                 && std::abs(b.bottom() - box.bottom()) < 1e-4,
             qPrintable(QStringLiteral("%1,%2 %3x%4").arg(b.x()).arg(b.y()).arg(b.width()).arg(b.height())));
    if (length > 0) {
        double sum = 0;
        for (int i = 1; i <= 4000; ++i)
            sum += QLineF(path.pointAtPercent((i - 1) / 4000.0), path.pointAtPercent(i / 4000.0)).length();
        QVERIFY2(std::abs(sum - length) < 1e-3, qPrintable(QString::number(sum)));
    }
}

QTEST_GUILESS_MAIN(TestSvgPathData)
#include "tst_svg_path_data.moc"
