// SVG attribute reading: coordinate lists with the number-protection rules, the number
// scanner, transform lists, lengths with units and the root viewport.
#include "svg_geometry_attributes.h"
#include "svg_numbers.h"

#include <QDomDocument>
#include <QtTest>

using namespace lumitra;

using Numbers = QVector<double>;
using Points = QVector<QPointF>;

class TestSvgAttributes : public QObject
{
    Q_OBJECT

private slots:
    void coordinateList_data();
    void coordinateList();
    void numberToken_data();
    void numberToken();
    void scanner_data();
    void scanner();
    void transform_data();
    void transform();
    void badTransform_data();
    void badTransform();
    void length_data();
    void length();
    void rootToMm_data();
    void rootToMm();
};

void TestSvgAttributes::coordinateList_data()
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
    QTest::newRow("empty") << "" << Numbers{} << true;
    QTest::newRow("stops at garbage") << "1 2 abc 3" << Numbers{1, 2} << false;
    QTest::newRow("stops at overflow") << "1 1e999 3" << Numbers{1} << false;
}

void TestSvgAttributes::coordinateList()
{
    QFETCH(QString, text);
    QFETCH(Numbers, expected);
    QFETCH(bool, complete);
    bool whole = !complete;
    const Numbers actual = splitCoordinateList(text, &whole);
    QCOMPARE(actual.size(), expected.size());
    for (int i = 0; i < actual.size(); ++i)
        QVERIFY2(qFuzzyCompare(1.0 + actual[i], 1.0 + expected[i]), qPrintable(QString::number(i)));
    QCOMPARE(whole, complete);
}

void TestSvgAttributes::numberToken_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<double>("expected");
    QTest::addColumn<bool>("ok");
    QTest::newRow("empty reads as -1") << "" << -1.0 << true;
    QTest::newRow("space-minus marker") << "[KGFS]5" << -5.0 << true;
    QTest::newRow("comma-minus marker") << "[DHFS]2.5" << -2.5 << true;
    QTest::newRow("exponent marker") << "2[KXJSFF]3" << 0.002 << true;
    QTest::newRow("plain") << "42.25" << 42.25 << true;
    QTest::newRow("not a number") << "1e" << 0.0 << false;
    QTest::newRow("nan") << "nan" << 0.0 << false;
}

void TestSvgAttributes::numberToken()
{
    QFETCH(QString, token);
    QFETCH(double, expected);
    QFETCH(bool, ok);
    bool good = !ok;
    QCOMPARE(readNumberToken(token, &good), expected);
    QCOMPARE(good, ok);
}

void TestSvgAttributes::scanner_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Numbers>("expected");
    QTest::newRow("second decimal point starts a number") << "0.5.5.25" << Numbers{0.5, 0.5, 0.25};
    QTest::newRow("signs separate") << "10-20+30" << Numbers{10, -20, 30};
    QTest::newRow("exponents") << "1e3 2E-2 -3e+1" << Numbers{1000, 0.02, -30};
    QTest::newRow("e without digits ends the number") << "2em" << Numbers{2};
    QTest::newRow("underflow is zero") << "1e-400 7" << Numbers{0, 7};
    QTest::newRow("overflow stops") << "1 1e400 2" << Numbers{1};
    QTest::newRow("one comma between") << "1, 2 ,3" << Numbers{1, 2, 3};
    QTest::newRow("two commas stop") << "1,,2" << Numbers{1};
    QTest::newRow("long digit run")
        << "0.00000000000000000000000000000000000000000000000000000000000000000001 5"
        << Numbers{1e-68, 5};
}

void TestSvgAttributes::scanner()
{
    QFETCH(QString, text);
    QFETCH(Numbers, expected);
    SvgNumberScanner in(text);
    Numbers actual;
    double v;
    while (in.readNumber(&v))
        actual.append(v);
    QCOMPARE(actual.size(), expected.size());
    for (int i = 0; i < actual.size(); ++i)
        QVERIFY2(qFuzzyCompare(1.0 + actual[i], 1.0 + expected[i]), qPrintable(QString::number(actual[i])));
}

void TestSvgAttributes::transform_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Points>("from");
    QTest::addColumn<Points>("to");

    QTest::newRow("empty") << "" << Points{{3, 4}} << Points{{3, 4}};
    QTest::newRow("translate x only") << "translate(10)" << Points{{1, 2}} << Points{{11, 2}};
    QTest::newRow("translate then scale applies scale first")
        << "translate(10,5) scale(2)" << Points{{1, 2}} << Points{{12, 9}};
    QTest::newRow("scale then translate applies translate first")
        << "scale(2) translate(10,5)" << Points{{1, 2}} << Points{{22, 14}};
    QTest::newRow("scale two values") << "scale(2,-1)" << Points{{3, 4}} << Points{{6, -4}};
    QTest::newRow("rotate 90") << "rotate(90)" << Points{{1, 0}, {0, 1}} << Points{{0, 1}, {-1, 0}};
    QTest::newRow("rotate about a centre") << "rotate(90 10 10)" << Points{{0, 0}, {10, 10}}
                                           << Points{{20, 0}, {10, 10}};
    QTest::newRow("skewX") << "skewX(45)" << Points{{0, 10}} << Points{{10, 10}};
    QTest::newRow("skewY") << "skewY(45)" << Points{{10, 0}} << Points{{10, 10}};
    QTest::newRow("matrix") << "matrix(1 2 3 4 5 6)" << Points{{1, 1}} << Points{{9, 12}};
    QTest::newRow("commas and newlines") << "translate(1,1),\n scale( 3 , 3 )" << Points{{1, 1}}
                                         << Points{{4, 4}};
}

void TestSvgAttributes::transform()
{
    QFETCH(QString, text);
    QFETCH(Points, from);
    QFETCH(Points, to);
    QTransform t(9, 9, 9, 9, 9, 9);
    QVERIFY(parseSvgTransform(text, &t));
    for (int i = 0; i < from.size(); ++i) {
        const QPointF p = t.map(from[i]);
        QVERIFY2(QLineF(p, to[i]).length() < 1e-9,
                 qPrintable(QStringLiteral("%1,%2").arg(p.x()).arg(p.y())));
    }
}

void TestSvgAttributes::badTransform_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("unclosed") << "translate(10";
    QTest::newRow("unknown function") << "foo(1)";
    QTest::newRow("no arguments") << "scale()";
    QTest::newRow("rotate with two arguments") << "rotate(1,2)";
    QTest::newRow("matrix short") << "matrix(1 2 3)";
    QTest::newRow("stray text") << "translate(1) garbage";
    QTest::newRow("nan") << "translate(NaN)";
}

void TestSvgAttributes::badTransform()
{
    QFETCH(QString, text);
    QTransform t = QTransform::fromTranslate(7, 7);
    QVERIFY(!parseSvgTransform(text, &t));
    QCOMPARE(t, QTransform::fromTranslate(7, 7));
}

void TestSvgAttributes::length_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<double>("mm");
    QTest::newRow("mm") << "210mm" << true << 210.0;
    QTest::newRow("cm") << "2.5cm" << true << 25.0;
    QTest::newRow("in") << "8.5in" << true << 215.9;
    QTest::newRow("pt") << "72pt" << true << 25.4;
    QTest::newRow("pc") << "6pc" << true << 25.4;
    QTest::newRow("px") << "96px" << true << 25.4;
    QTest::newRow("bare number is px") << "48" << true << 12.7;
    QTest::newRow("spaces") << " 100 mm " << true << 100.0;
    QTest::newRow("percent") << "100%" << false << 0.0;
    QTest::newRow("unknown unit") << "3furlong" << false << 0.0;
    QTest::newRow("empty") << "" << false << 0.0;
}

void TestSvgAttributes::length()
{
    QFETCH(QString, text);
    QFETCH(bool, ok);
    QFETCH(double, mm);
    double v = -1;
    QCOMPARE(svgLengthToMm(text, &v), ok);
    if (ok)
        QVERIFY2(qAbs(v - mm) < 1e-9, qPrintable(QString::number(v)));
}

void TestSvgAttributes::rootToMm_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QRectF>("userBox");
    QTest::addColumn<QRectF>("mmBox");

    const QRectF unit(0, 0, 100, 100);
    QTest::newRow("mm with viewBox") << "width='50mm' height='50mm' viewBox='0 0 100 100'" << unit
                                     << QRectF(0, 0, 50, 50);
    QTest::newRow("viewBox origin moved") << "width='100mm' height='100mm' viewBox='50 50 100 100'"
                                          << unit << QRectF(-50, -50, 100, 100);
    QTest::newRow("no viewBox: pixels") << "width='100mm' height='100mm'" << QRectF(0, 0, 96, 48)
                                        << QRectF(0, 0, 25.4, 12.7);
    QTest::newRow("viewBox without size: pixels") << "viewBox='0 0 96 96'" << QRectF(0, 0, 96, 96)
                                                  << QRectF(0, 0, 25.4, 25.4);
    QTest::newRow("width only keeps aspect") << "width='10cm' viewBox='0 0 200 100'"
                                             << QRectF(0, 0, 200, 100) << QRectF(0, 0, 100, 50);
    QTest::newRow("meet centres") << "width='100mm' height='100mm' viewBox='0 0 200 100'"
                                  << QRectF(0, 0, 200, 100) << QRectF(0, 25, 100, 50);
    QTest::newRow("xMinYMax meet")
        << "width='100mm' height='100mm' viewBox='0 0 200 100' preserveAspectRatio='xMinYMax'"
        << QRectF(0, 0, 200, 100) << QRectF(0, 50, 100, 50);
    QTest::newRow("none stretches")
        << "width='100mm' height='100mm' viewBox='0 0 200 100' preserveAspectRatio='none'"
        << QRectF(0, 0, 200, 100) << QRectF(0, 0, 100, 100);
    QTest::newRow("slice fills")
        << "width='100mm' height='100mm' viewBox='0 0 200 100' preserveAspectRatio='xMidYMid slice'"
        << QRectF(0, 0, 200, 100) << QRectF(-50, 0, 200, 100);
    QTest::newRow("bad viewBox ignored") << "width='100mm' height='100mm' viewBox='0 0 0 100'"
                                         << QRectF(0, 0, 96, 96) << QRectF(0, 0, 25.4, 25.4);
}

void TestSvgAttributes::rootToMm()
{
    QFETCH(QString, attributes);
    QFETCH(QRectF, userBox);
    QFETCH(QRectF, mmBox);
    QDomDocument doc;
    QVERIFY(doc.setContent(QStringLiteral("<svg %1/>").arg(attributes)));
    const QRectF mapped = svgRootToMm(doc.documentElement()).mapRect(userBox);
    QVERIFY2(qAbs(mapped.left() - mmBox.left()) < 1e-9 && qAbs(mapped.top() - mmBox.top()) < 1e-9
                 && qAbs(mapped.width() - mmBox.width()) < 1e-9
                 && qAbs(mapped.height() - mmBox.height()) < 1e-9,
             qPrintable(QStringLiteral("%1,%2 %3x%4")
                            .arg(mapped.x())
                            .arg(mapped.y())
                            .arg(mapped.width())
                            .arg(mapped.height())));
}

QTEST_GUILESS_MAIN(TestSvgAttributes)
#include "tst_svg_attributes.moc"
