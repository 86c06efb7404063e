#include "calibration.h"

#include <QTest>

using namespace lumitra::camera;

namespace {

CalibrationPoints pts(QPointF a, QPointF b, QPointF c, QPointF d)
{
    CalibrationPoints p;
    p.p[0] = a;
    p.p[1] = b;
    p.p[2] = c;
    p.p[3] = d;
    return p;
}

QString describe(const CalibrationPoints &p)
{
    QString s;
    for (const QPointF &q : p.p)
        s += QStringLiteral("(%1,%2)").arg(q.x()).arg(q.y());
    return s;
}

// A path as its elements: "M x y" / "L x y".
QStringList elements(const QPainterPath &path)
{
    QStringList out;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        out << QStringLiteral("%1 %2 %3").arg(e.isMoveTo() ? "M" : "L").arg(e.x).arg(e.y);
    }
    return out;
}

} // namespace

// The calibration file's text, the points it carries and the order of the
// four clicks; the marks the machine burns.
class TestCalibration : public QObject
{
    Q_OBJECT

private slots:
    void fileName() { QCOMPARE(calibrationFileName(), QString("winshexiangtoucanshuzhi2.txt")); }
    void fileText_data();
    void fileText();
    void parse_data();
    void parse();
    void roundTrip();
    void orderClicks_data();
    void orderClicks();
    void calibrated_data();
    void calibrated();
    void marks_data();
    void marks();
};

void TestCalibration::fileText_data()
{
    QTest::addColumn<CalibrationPoints>("points");
    QTest::addColumn<QString>("text");
    QTest::newRow("shortest form") << pts({103.5, 88}, {512, 90.25}, {509, 497}, {101, 494})
                                   << "J103.5,88J512,90.25J509,497J101,494";
    QTest::newRow("six significant digits")
        << pts({123.456789, 0.1234567}, {1234567, 99.99999}, {0, -3.5}, {1e-5, 250})
        << "J123.457,0.123457J1.23457e+06,100J0,-3.5J1e-05,250";
    QTest::newRow("never calibrated") << CalibrationPoints() << "J0,0J0,0J0,0J0,0";
}

void TestCalibration::fileText()
{
    QFETCH(CalibrationPoints, points);
    QFETCH(QString, text);
    QCOMPARE(calibrationFileText(points), text);
}

void TestCalibration::parse_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<CalibrationPoints>("expected");
    // Points start at (9,9),(8,8),(7,7),(6,6): what is not in the file stays.
    QTest::newRow("four points") << "J1,2J3,4J5,6J7,8" << true
                                 << pts({1, 2}, {3, 4}, {5, 6}, {7, 8});
    QTest::newRow("only P1") << "J1,2" << true << pts({1, 2}, {8, 8}, {7, 7}, {6, 6});
    QTest::newRow("empty") << "" << false << pts({9, 9}, {8, 8}, {7, 7}, {6, 6});
    QTest::newRow("blank") << " \n" << false << pts({9, 9}, {8, 8}, {7, 7}, {6, 6});
    QTest::newRow("three fields skipped")
        << "J1,2,3J3,4" << true << pts({9, 9}, {3, 4}, {7, 7}, {6, 6});
    QTest::newRow("empty part skipped")
        << "J1,2JJ5,6" << true << pts({1, 2}, {8, 8}, {5, 6}, {6, 6});
    QTest::newRow("fifth part ignored")
        << "J1,2J3,4J5,6J7,8J9,10" << true << pts({1, 2}, {3, 4}, {5, 6}, {7, 8});
    QTest::newRow("text before the first J ignored")
        << "1,1J103.5,88" << true << pts({103.5, 88}, {8, 8}, {7, 7}, {6, 6});
    QTest::newRow("trailing line break") << "J1,2J3,4J5,6J7,8\n"
                                         << true << pts({1, 2}, {3, 4}, {5, 6}, {7, 8});
    QTest::newRow("not numbers skipped")
        << "Ja,bJ3,4" << true << pts({9, 9}, {3, 4}, {7, 7}, {6, 6});
}

void TestCalibration::parse()
{
    QFETCH(QString, body);
    QFETCH(bool, ok);
    QFETCH(CalibrationPoints, expected);
    CalibrationPoints points = pts({9, 9}, {8, 8}, {7, 7}, {6, 6});
    QCOMPARE(parseCalibrationText(body, &points), ok);
    QVERIFY2(points == expected, qPrintable(describe(points)));
}

void TestCalibration::roundTrip()
{
    const CalibrationPoints written = pts({103.5, 88}, {512, 90.25}, {509, 497}, {101, 494});
    CalibrationPoints read;
    QVERIFY(parseCalibrationText(calibrationFileText(written), &read));
    QVERIFY2(read == written, qPrintable(describe(read)));
}

void TestCalibration::orderClicks_data()
{
    QTest::addColumn<QVector<QPointF>>("clicks");
    QTest::addColumn<CalibrationPoints>("expected");
    const QPointF tl(100, 90), tr(510, 95), br(505, 500), bl(98, 492);
    const CalibrationPoints ordered = pts(tl, tr, br, bl);
    QTest::newRow("bottom-left, top-right, bottom-right, top-left")
        << QVector<QPointF>{bl, tr, br, tl} << ordered;
    QTest::newRow("clockwise from top-left") << QVector<QPointF>{tl, tr, br, bl} << ordered;
    QTest::newRow("anticlockwise from bottom-right") << QVector<QPointF>{br, tr, tl, bl} << ordered;
    QTest::newRow("rows reversed") << QVector<QPointF>{br, bl, tr, tl} << ordered;
    // Strong keystone: the top-right cross is higher than the top-left one.
    const QPointF ktl(300, 160), ktr(900, 140), kbr(1000, 900), kbl(200, 920);
    QTest::newRow("keystone") << QVector<QPointF>{kbl, kbr, ktl, ktr} << pts(ktl, ktr, kbr, kbl);
    QTest::newRow("three clicks") << QVector<QPointF>{tl, tr, br} << CalibrationPoints();
}

void TestCalibration::orderClicks()
{
    QFETCH(QVector<QPointF>, clicks);
    QFETCH(CalibrationPoints, expected);
    const CalibrationPoints got = lumitra::camera::orderClicks(clicks);
    QVERIFY2(got == expected, qPrintable(describe(got)));
}

void TestCalibration::calibrated_data()
{
    QTest::addColumn<CalibrationPoints>("points");
    QTest::addColumn<bool>("calibrated");
    QTest::newRow("never") << CalibrationPoints() << false;
    QTest::newRow("P1.x = 0") << pts({0, 88}, {512, 90}, {509, 497}, {101, 494}) << false;
    QTest::newRow("P1.x < 0") << pts({-1, 88}, {512, 90}, {509, 497}, {101, 494}) << false;
    QTest::newRow("picked") << pts({103.5, 88}, {512, 90}, {509, 497}, {101, 494}) << true;
}

void TestCalibration::calibrated()
{
    QFETCH(CalibrationPoints, points);
    QFETCH(bool, calibrated);
    QCOMPARE(points.calibrated(), calibrated);
}

void TestCalibration::marks_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<QList<QStringList>>("expected");
    QTest::newRow("400 x 400")
        << 400 << 400
        << QList<QStringList>{{"M 20 -375", "L 30 -375", "M 25 -380", "L 25 -370"},
                              {"M 370 -375", "L 380 -375", "M 375 -380", "L 375 -370"},
                              {"M 370 -25", "L 380 -25", "M 375 -20", "L 375 -30"},
                              {"M 20 -25", "L 30 -25", "M 25 -20", "L 25 -30"},
                              {"M 30 -30", "L 370 -30", "L 370 -370", "L 30 -370", "L 30 -30"}};
    QTest::newRow("600 x 300")
        << 600 << 300
        << QList<QStringList>{{"M 20 -275", "L 30 -275", "M 25 -280", "L 25 -270"},
                              {"M 570 -275", "L 580 -275", "M 575 -280", "L 575 -270"},
                              {"M 570 -25", "L 580 -25", "M 575 -20", "L 575 -30"},
                              {"M 20 -25", "L 30 -25", "M 25 -20", "L 25 -30"},
                              {"M 30 -30", "L 570 -30", "L 570 -270", "L 30 -270", "L 30 -30"}};
}

void TestCalibration::marks()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(QList<QStringList>, expected);
    const QVector<QPainterPath> marks = calibrationMarkPaths(width, height);
    QCOMPARE(marks.size(), 5);
    for (int i = 0; i < 5; ++i)
        QCOMPARE(elements(marks[i]), expected[i]);
}

QTEST_APPLESS_MAIN(TestCalibration)
#include "tst_calibration.moc"
