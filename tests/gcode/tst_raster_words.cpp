// Raster words: the power steps, the short number texts and the byte rate a
// raster asks of the serial link.
#include "gcode_number.h"
#include "raster_words.h"

#include <QHash>
#include <QtTest>
#include <cmath>
#include <cstring>

using namespace lumitra;

class TestRasterWords : public QObject
{
    Q_OBJECT

private slots:
    void quantisedPowerSteps_data();
    void quantisedPowerSteps();
    void everySKeepsItsLevel();
    void greyTableMergesEqualOutput();
    void shortNumbers_data();
    void shortNumbers();
    void wireLoads_data();
    void wireLoads();
};

void TestRasterWords::quantisedPowerSteps_data()
{
    QTest::addColumn<double>("s");
    QTest::addColumn<double>("sMin");
    QTest::addColumn<double>("sMax");
    QTest::addColumn<int>("expected");
    QTest::newRow("off") << 0.0 << 0.0 << 1000.0 << 0;
    QTest::newRow("negative is off") << -5.0 << 0.0 << 1000.0 << 0;
    QTest::newRow("full") << 1000.0 << 0.0 << 1000.0 << 1000;
    QTest::newRow("above full") << 1500.0 << 0.0 << 1000.0 << 1000;
    // Levels are 1000/254 = 3.94 S wide; any S above 0 fires at least PWM 1.
    QTest::newRow("first level") << 3.0 << 0.0 << 1000.0 << 2;
    QTest::newRow("the least power still fires") << 0.4 << 0.0 << 1000.0 << 2;
    QTest::newRow("layer 80 %") << 800.0 << 0.0 << 1000.0 << 800; // level 204: 799.2 .. 803.1
    QTest::newRow("layer 80 %, off by one") << 802.0 << 0.0 << 1000.0 << 800;
    QTest::newRow("between steps") << 481.0 << 0.0 << 1000.0 << 482; // level 123: 480.3 .. 484.3
    QTest::newRow("raised minimum") << 100.0 << 255.0 << 510.0 << 255;
    // Levels 1.004 S wide from 255: 300.3 is on level 46 (300.18 .. 301.18).
    QTest::newRow("raised minimum, in range") << 300.3 << 255.0 << 510.0 << 301;
}

void TestRasterWords::quantisedPowerSteps()
{
    QFETCH(double, s);
    QFETCH(double, sMin);
    QFETCH(double, sMax);
    QFETCH(int, expected);
    PowerSteps steps;
    steps.sMin = sMin;
    steps.sMax = sMax;
    QCOMPARE(quantisedPower(s, steps), expected);
    // The controller sets the same PWM value for what is written, and what is
    // written stays as it is.
    QCOMPARE(pwmLevel(expected, steps), pwmLevel(s, steps));
    QCOMPARE(quantisedPower(expected, steps), expected);
}

// Over whole ranges and in between: what is written sets the controller's
// PWM value of the S asked for, one S stands for each level, and more power
// is never written as less.
void TestRasterWords::everySKeepsItsLevel()
{
    const QList<PowerSteps> ranges{{0.0, 1000.0, 256}, {255.0, 510.0, 256}, {0.0, 255.0, 256},
                                   {10.0, 12000.0, 256}};
    for (const PowerSteps &steps : ranges) {
        QHash<int, int> sOfLevel;
        int previous = 0;
        for (double s = 0.0; s <= steps.sMax + 5.0; s += 0.25) {
            const int written = quantisedPower(s, steps);
            const QString where = QString("S%1 in %2..%3").arg(s).arg(steps.sMin).arg(steps.sMax);
            QVERIFY2(pwmLevel(written, steps) == pwmLevel(s, steps), qPrintable(where));
            QVERIFY2(written >= previous, qPrintable(where));
            previous = written;
            const int level = pwmLevel(s, steps);
            QVERIFY2(sOfLevel.value(level, written) == written, qPrintable(where));
            sOfLevel.insert(level, written);
        }
        QCOMPARE(sOfLevel.size(), 256); // off and every PWM value
    }
}

void TestRasterWords::greyTableMergesEqualOutput()
{
    // At 30 % only 78 of the 256 PWM levels are in reach: greys share them.
    const std::array<int, 256> table = greyPowerTable(300.0, PowerSteps());
    QCOMPARE(table[0], 300); // level 77: 299.2 .. 303.1
    QCOMPARE(table[255], 0);
    int distinct = 1;
    for (int grey = 1; grey < 256; ++grey) {
        QVERIFY(table[size_t(grey)] <= table[size_t(grey - 1)]);
        distinct += table[size_t(grey)] != table[size_t(grey - 1)];
    }
    QCOMPARE(distinct, 78);
}

void TestRasterWords::shortNumbers_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("one decimal") << 224.1 << QByteArray("224.1");
    QTest::newRow("two decimals") << 224.13 << QByteArray("224.13");
    QTest::newRow("whole") << 224.0 << QByteArray("224");
    QTest::newRow("ten") << 10.0 << QByteArray("10");
    QTest::newRow("zero") << 0.0 << QByteArray("0");
    QTest::newRow("tiny negative is not -0") << -0.001 << QByteArray("0");
    QTest::newRow("negative") << -35.5 << QByteArray("-35.5");
    QTest::newRow("rounded up to whole") << 9.999 << QByteArray("10");
    QTest::newRow("long") << 123456789.1 << QByteArray("123456789.1");
    QTest::newRow("below one: no zero before the point") << 0.5 << QByteArray(".5");
    QTest::newRow("small negative") << -0.1 << QByteArray("-.1");
    QTest::newRow("hundredths") << 0.05 << QByteArray(".05");
}

void TestRasterWords::shortNumbers()
{
    QFETCH(double, value);
    QFETCH(QByteArray, expected);
    PackedNumber packed;
    QVERIFY(packFixed2(value, packed));
    trimPacked(packed);
    QCOMPARE(packed.length, expected.size());
    char text[17] = {};
    std::memcpy(text, &packed.low, 8);
    std::memcpy(text + 8, &packed.high, 8);
    QCOMPARE(QByteArray(text), expected); // nothing left past the end
    // The text reads back as the value it stands for.
    QCOMPARE(packedHundredths(packed), qint64(std::llround(expected.toDouble() * 100)));
}

void TestRasterWords::wireLoads_data()
{
    QTest::addColumn<double>("bytes");
    QTest::addColumn<double>("length");
    QTest::addColumn<double>("feed");
    QTest::addColumn<double>("rate");
    QTest::addColumn<bool>("exceeds");
    QTest::addColumn<double>("fastest");
    // 0.1 mm pixels at 6000 mm/min: 1000 lines a second.
    QTest::newRow("14 bytes a pixel") << 140000.0 << 1000.0 << 6000.0 << 14000.0 << true << 4937.0;
    QTest::newRow("10 bytes a pixel") << 100000.0 << 1000.0 << 6000.0 << 10000.0 << false << 6000.0;
    QTest::newRow("just the link") << 11520.0 << 100.0 << 6000.0 << 11520.0 << false << 6000.0;
    QTest::newRow("no length") << 500.0 << 0.0 << 6000.0 << 0.0 << false << 0.0;
    QTest::newRow("no feed") << 500.0 << 10.0 << 0.0 << 0.0 << false << 0.0;
}

void TestRasterWords::wireLoads()
{
    QFETCH(double, bytes);
    QFETCH(double, length);
    QFETCH(double, feed);
    QFETCH(double, rate);
    QFETCH(bool, exceeds);
    QFETCH(double, fastest);
    const WireLoad load = wireLoad(bytes, length, feed);
    QCOMPARE(load.bytesPerSecond, rate);
    QCOMPARE(load.exceeds, exceeds);
    QCOMPARE(load.fastestFeed, fastest);
    if (exceeds) // at the offered feed the link keeps up
        QVERIFY(wireLoad(bytes, length, load.fastestFeed).bytesPerSecond <= kSerialBytesPerSecond);
}

QTEST_MAIN(TestRasterWords)
#include "tst_raster_words.moc"
