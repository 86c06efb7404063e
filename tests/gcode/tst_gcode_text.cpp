// The text of G-code: numbers against Qt's fixed-point formatting, and the
// modal compaction's fast scanner against the word-pattern version.
#include "compaction_reference.h"
#include "gcode_number.h"
#include "modal_compaction.h"

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

class TestGcodeText : public QObject
{
    Q_OBJECT

private slots:
    void numbers_data();
    void numbers();
    void randomNumbers_data();
    void randomNumbers();
    void compaction_data();
    void compaction();
    void compactionAgreesWithWordPattern_data();
    void compactionAgreesWithWordPattern();
};

void TestGcodeText::numbers_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("expected");
    QTest::newRow("power 80%") << 800.0 << 2 << "800.00";
    QTest::newRow("binary tie rounds away") << 0.125 << 2 << "0.13";
    QTest::newRow("below tie in binary") << 1.005 << 2 << "1.00";
    QTest::newRow("negative zero has no sign") << -0.0 << 2 << "0.00";
    QTest::newRow("tiny negative has no sign") << -0.001 << 2 << "0.00";
    QTest::newRow("negative half rounds away") << -0.005 << 2 << "-0.01";
    QTest::newRow("three decimals tie") << 0.0625 << 3 << "0.063";
    QTest::newRow("no decimals") << 2.5 << 0 << "3";
    QTest::newRow("fallback range") << 1e16 << 2 << "10000000000000000.00";
}

void TestGcodeText::numbers()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(QString, expected);
    QCOMPARE(QString::fromLatin1(fixedText(value, decimals)), expected);
    QCOMPARE(QString::fromLatin1(fixedText(value, decimals)), qtText(value, decimals));

    char buffer[kMaxFixedChars + 4];
    std::memset(buffer, '#', sizeof buffer);
    const char *end = writeFixed(buffer, value, decimals);
    QCOMPARE(QString::fromLatin1(buffer, int(end - buffer)), expected);
    QCOMPARE(*end, '#'); // nothing written past the end
}

void TestGcodeText::randomNumbers_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("decimals");
    QTest::newRow("millimetres") << 1000.0 << 2;
    QTest::newRow("small") << 0.02 << 2;
    QTest::newRow("rotary") << 5000.0 << 3;
    QTest::newRow("up to the packed limit") << 9.9e11 << 2;
    QTest::newRow("huge") << 1e13 << 2;
}

void TestGcodeText::randomNumbers()
{
    // Formatted text equals Qt's; the packed form (two decimals, below 1e12)
    // holds the same text followed by zeros.
    QFETCH(double, scale);
    QFETCH(int, decimals);
    QRandomGenerator rng(20240611);
    for (int i = 0; i < 20000; ++i) {
        double v = (rng.generateDouble() * 2 - 1) * scale;
        if (i % 3 == 0) // values on a 1/8 grid hit exact binary ties
            v = std::round(v * 8) / 8;
        const QByteArray ours = fixedText(v, decimals);
        if (QString::fromLatin1(ours) != qtText(v, decimals))
            QFAIL(qPrintable(QStringLiteral("%1: %2").arg(v, 0, 'g', 17).arg(ours.constData())));
        PackedNumber packed;
        if (decimals != 2 || scale > 1e12)
            continue;
        QVERIFY(packFixed2(v, packed));
        char bytes[17] = {};
        std::memcpy(bytes, &packed.low, 8);
        std::memcpy(bytes + 8, &packed.high, 8);
        QCOMPARE(packed.length, ours.size());
        QCOMPARE(QByteArray(bytes), ours);
    }
    PackedNumber packed;
    QVERIFY(!packFixed2(1e12, packed));
    QVERIFY(!packFixed2(-3e15, packed));
    QVERIFY(!packFixed2(std::nan(""), packed));
}

void TestGcodeText::compaction_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("repeated words dropped")
        << QByteArray("G0X10.00Y-5.00S800.00F5000.00\nG1X20.00Y-5.00S800.00F5000.00\n")
        << QByteArray("G0X10.00Y-5.00S800.00F5000.00\nG1X20.00\n");
    QTest::newRow("same G dropped, empty line kept")
        << QByteArray("G1X1.00Y1.00\nG1X2.00Y1.00\nG1X2.00\n")
        << QByteArray("G1X1.00Y1.00\nX2.00\n\n");
    QTest::newRow("text compared, not value")
        << QByteArray("G1F5.00\nG1F5.0\n") << QByteArray("G1F5.00\nF5.0\n");
    QTest::newRow("non-G lines kept, empty lines dropped")
        << QByteArray("\n;L0\nM4\n\n\nG0X1\nM8 x\nM2") << QByteArray(";L0\nM4\nG0X1\nM8 x\nM2\n");
    QTest::newRow("other letters dropped from G lines")
        << QByteArray("G2X1I5.0J-2M3\n") << QByteArray("G2X1\n");
    QTest::newRow("letter without number is no word")
        << QByteArray("G0 X- Y.5 Z-.\n") << QByteArray("G0Y.5Z-.\n");
    QTest::newRow("points are part of the value")
        << QByteArray("G1X1.2.3\nG1X1.2.3\n") << QByteArray("G1X1.2.3\n\n");
    QTest::newRow("lowercase ignored") << QByteArray("G1x5X6\n") << QByteArray("G1X6\n");
    QTest::newRow("increments are all kept, G90 forgets the axes")
        << QByteArray("G0X5Y-2S0F900\nG91\nG1X.1S80\nG1X.1S0\nG1X.1\nG1X-.1Y.1\nG90\nG0X5Y-2\n")
        << QByteArray("G0X5Y-2S0F900\nG91\nG1X.1S80\nX.1S0\nX.1\nX-.1Y.1\nG90\nG0X5Y-2\n");
}

void TestGcodeText::compaction()
{
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, expected);
    QCOMPARE(compactGcode(input), expected);
    QCOMPARE(referenceCompaction(QString::fromLatin1(input)).toLatin1(), expected);
    QByteArray out("M4\n");
    appendCompacted(input.constData(), input.size(), out);
    QCOMPARE(out, "M4\n" + expected);
}

void TestGcodeText::compactionAgreesWithWordPattern_data()
{
    QTest::addColumn<QByteArray>("alphabet");
    QTest::addColumn<int>("seed");
    QTest::newRow("motion words") << QByteArray("GXYSF0123456789.-\n\n") << 1;
    QTest::newRow("every kind of byte") << QByteArray("GXYZSFMIJ ;(xg012345.-\n\r\t") << 2;
    QTest::newRow("mostly digits") << QByteArray("G1X2.-.\n0Y9") << 3;
    QTest::newRow("absolute and relative") << QByteArray("GGG9901XXYZ1.-\n") << 4;
}

void TestGcodeText::compactionAgreesWithWordPattern()
{
    QFETCH(QByteArray, alphabet);
    QFETCH(int, seed);
    QRandomGenerator rng{quint32(seed)};
    for (int round = 0; round < 300; ++round) {
        QByteArray piece;
        const int length = rng.bounded(400);
        for (int i = 0; i < length; ++i)
            piece.append(alphabet.at(rng.bounded(alphabet.size())));
        if (compactGcode(piece) != referenceCompaction(QString::fromLatin1(piece)).toLatin1())
            QFAIL(qPrintable(QStringLiteral("differs for %1")
                                 .arg(QString::fromLatin1(piece.toPercentEncoding()))));
    }
}

QTEST_GUILESS_MAIN(TestGcodeText)
#include "tst_gcode_text.moc"
