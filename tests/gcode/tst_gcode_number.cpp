// Number text of G-code words against Qt's own fixed-point formatting.
#include "gcode_number.h"

#include <QRandomGenerator>
#include <QtTest>
#include <cmath>
#include <cstring>

using namespace lumitra;

namespace {
// Qt's text, without the sign Qt leaves on values that round to zero.
QString qtText(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    if (text.startsWith(QLatin1Char('-'))
        && text.count(QLatin1Char('0')) + text.count(QLatin1Char('.')) == text.size() - 1)
        text.remove(0, 1);
    return text;
}
} // namespace

class TestGcodeNumber : public QObject
{
    Q_OBJECT

private slots:
    void matchesQt_data();
    void matchesQt();
    void randomValuesMatchQt_data();
    void randomValuesMatchQt();
    void writesIntoBuffer();
    void packedText_data();
    void packedText();
};

void TestGcodeNumber::matchesQt_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("expected");

    QTest::newRow("power 80%") << 800.0 << 2 << "800.00";
    QTest::newRow("feed") << 5000.0 << 2 << "5000.00";
    QTest::newRow("negative") << -3.0 << 2 << "-3.00";
    QTest::newRow("half") << 12.5 << 2 << "12.50";
    QTest::newRow("binary tie rounds away") << 0.125 << 2 << "0.13";
    QTest::newRow("negative tie") << -0.375 << 2 << "-0.38";
    QTest::newRow("below tie in binary") << 1.005 << 2 << "1.00";
    QTest::newRow("2.675 is below") << 2.675 << 2 << "2.67";
    QTest::newRow("negative zero has no sign") << -0.0 << 2 << "0.00";
    QTest::newRow("tiny negative has no sign") << -0.001 << 2 << "0.00";
    QTest::newRow("just below a negative half") << -0.004999 << 2 << "0.00";
    QTest::newRow("negative half rounds away") << -0.005 << 2 << "-0.01";
    QTest::newRow("denormal") << -5e-320 << 2 << "0.00";
    QTest::newRow("three decimals") << -40.0 << 3 << "-40.000";
    QTest::newRow("three decimals tie") << 0.0625 << 3 << "0.063";
    QTest::newRow("no decimals") << 2.5 << 0 << "3";
    QTest::newRow("large") << 123456789.125 << 2 << "123456789.13";
    QTest::newRow("fallback range") << 1e16 << 2 << "10000000000000000.00";
}

void TestGcodeNumber::matchesQt()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(QString, expected);
    QCOMPARE(QString::fromLatin1(fixedText(value, decimals)), expected);
    QCOMPARE(QString::fromLatin1(fixedText(value, decimals)), qtText(value, decimals));
}

void TestGcodeNumber::randomValuesMatchQt_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("decimals");
    QTest::newRow("millimetres") << 1000.0 << 2;
    QTest::newRow("small") << 0.02 << 2;
    QTest::newRow("rotary") << 5000.0 << 3;
    QTest::newRow("huge") << 1e13 << 2;
}

void TestGcodeNumber::randomValuesMatchQt()
{
    QFETCH(double, scale);
    QFETCH(int, decimals);
    QRandomGenerator rng(20240611);
    for (int i = 0; i < 20000; ++i) {
        double v = (rng.generateDouble() * 2 - 1) * scale;
        if (i % 3 == 0) // values on a 1/8 grid hit exact binary ties
            v = std::round(v * 8) / 8;
        const QString ours = QString::fromLatin1(fixedText(v, decimals));
        const QString qt = qtText(v, decimals);
        if (ours != qt)
            QFAIL(qPrintable(QStringLiteral("%1: %2 vs %3").arg(v, 0, 'g', 17).arg(ours, qt)));
    }
}

void TestGcodeNumber::writesIntoBuffer()
{
    char buffer[kMaxFixedChars + 4];
    std::memset(buffer, '#', sizeof buffer);
    char *end = writeFixed(buffer, -12.375, 2);
    QCOMPARE(QByteArray(buffer, int(end - buffer)), QByteArray("-12.38"));
    QCOMPARE(buffer[6], '#'); // nothing written past the end
}

void TestGcodeNumber::packedText_data()
{
    QTest::addColumn<double>("scale");
    QTest::newRow("millimetres") << 1000.0;
    QTest::newRow("small") << 0.05;
    QTest::newRow("up to the limit") << 9.9e11;
}

void TestGcodeNumber::packedText()
{
    QFETCH(double, scale);
    QRandomGenerator rng(5);
    for (int i = 0; i < 20000; ++i) {
        double v = (rng.generateDouble() * 2 - 1) * scale;
        if (i % 3 == 0)
            v = std::round(v * 8) / 8;
        PackedNumber packed;
        QVERIFY(packFixed2(v, packed));
        char bytes[17] = {};
        std::memcpy(bytes, &packed.low, 8);
        std::memcpy(bytes + 8, &packed.high, 8);
        const QByteArray text = fixedText(v, 2);
        QCOMPARE(packed.length, text.size());
        QCOMPARE(QByteArray(bytes), text); // and zero after the text
    }
    PackedNumber packed;
    QVERIFY(!packFixed2(1e12, packed));
    QVERIFY(!packFixed2(-3e15, packed));
    QVERIFY(!packFixed2(std::nan(""), packed));
}

QTEST_GUILESS_MAIN(TestGcodeNumber)
#include "tst_gcode_number.moc"
