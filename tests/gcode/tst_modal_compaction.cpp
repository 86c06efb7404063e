// Modal compaction: the rules on hand-made pieces, and the fast scanner against
// the word-pattern version on generated pieces.
#include "compaction_reference.h"
#include "modal_compaction.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace lumitra;

class TestModalCompaction : public QObject
{
    Q_OBJECT

private slots:
    void rules_data();
    void rules();
    void agreesWithWordPattern_data();
    void agreesWithWordPattern();
    void appendsAfterExistingText();
};

void TestModalCompaction::rules_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("repeated words dropped")
        << QByteArray("G0X10.00Y-5.00S800.00F5000.00\nG1X20.00Y-5.00S800.00F5000.00\n")
        << QByteArray("G0X10.00Y-5.00S800.00F5000.00\nG1X20.00\n");
    QTest::newRow("same G dropped")
        << QByteArray("G1X1.00Y1.00\nG1X2.00Y1.00\n") << QByteArray("G1X1.00Y1.00\nX2.00\n");
    QTest::newRow("all words repeated gives an empty line")
        << QByteArray("G1X1.00\nG1X1.00\n") << QByteArray("G1X1.00\n\n");
    QTest::newRow("text compared, not value")
        << QByteArray("G1F5.00\nG1F5.0\n") << QByteArray("G1F5.00\nF5.0\n");
    QTest::newRow("non-G lines kept")
        << QByteArray(";L0\nM4\nG0X1\nM8 x\n") << QByteArray(";L0\nM4\nG0X1\nM8 x\n");
    QTest::newRow("empty lines dropped")
        << QByteArray("\n\nG0X1\n\n\nM2") << QByteArray("G0X1\nM2\n");
    QTest::newRow("other letters dropped from G lines")
        << QByteArray("G2X1I5.0J-2M3\n") << QByteArray("G2X1\n");
    QTest::newRow("letter without number is no word")
        << QByteArray("G0 X- Y.5 Z-.\n") << QByteArray("G0Y.5Z-.\n");
    QTest::newRow("points are part of the value")
        << QByteArray("G1X1.2.3\nG1X1.2.3\n") << QByteArray("G1X1.2.3\n\n");
    QTest::newRow("lowercase ignored") << QByteArray("G1x5X6\n") << QByteArray("G1X6\n");
    QTest::newRow("state is per piece")
        << QByteArray("G0X0Y0S800.00F5000.00\n") << QByteArray("G0X0Y0S800.00F5000.00\n");
}

void TestModalCompaction::rules()
{
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, expected);
    QCOMPARE(compactGcode(input), expected);
    QCOMPARE(referenceCompaction(QString::fromLatin1(input)).toLatin1(), expected);
}

void TestModalCompaction::agreesWithWordPattern_data()
{
    QTest::addColumn<QByteArray>("alphabet");
    QTest::addColumn<int>("seed");
    QTest::newRow("motion words") << QByteArray("GXYSF0123456789.-\n\n") << 1;
    QTest::newRow("every kind of byte") << QByteArray("GXYZSFMIJ ;(xg012345.-\n\r\t") << 2;
    QTest::newRow("mostly digits") << QByteArray("G1X2.-.\n0Y9") << 3;
}

void TestModalCompaction::agreesWithWordPattern()
{
    QFETCH(QByteArray, alphabet);
    QFETCH(int, seed);
    QRandomGenerator rng{quint32(seed)};
    for (int round = 0; round < 300; ++round) {
        QByteArray piece;
        const int length = rng.bounded(400);
        for (int i = 0; i < length; ++i)
            piece.append(alphabet.at(rng.bounded(alphabet.size())));
        const QByteArray expected = referenceCompaction(QString::fromLatin1(piece)).toLatin1();
        if (compactGcode(piece) != expected)
            QFAIL(qPrintable(QStringLiteral("differs for %1")
                                 .arg(QString::fromLatin1(piece.toPercentEncoding()))));
    }
}

void TestModalCompaction::appendsAfterExistingText()
{
    QByteArray out("M4\n");
    const QByteArray piece("G1X1.00Y2.00\nG1X1.00Y3.00");
    appendCompacted(piece.constData(), piece.size(), out);
    QCOMPARE(out, QByteArray("M4\nG1X1.00Y2.00\nY3.00\n"));
}

QTEST_GUILESS_MAIN(TestModalCompaction)
#include "tst_modal_compaction.moc"
