#include "line_assembler.h"

#include <QtTest>

using Reads = QList<QByteArray>;

class TestLineAssembler : public QObject
{
    Q_OBJECT

private slots:
    void assembly_data();
    void assembly();
    void latin1BytesKept();
};

void TestLineAssembler::assembly_data()
{
    QTest::addColumn<Reads>("reads");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("rest");

    QTest::newRow("two ok in one read")
        << Reads{"ok\r\nok\r\n"} << QStringList{"ok\r", "ok\r"} << "";
    QTest::newRow("split across reads")
        << Reads{"o", "k\r", "\n<Idle|", "MPos>\r\n"} << QStringList{"ok\r", "<Idle|MPos>\r"} << "";
    QTest::newRow("nul drops the rest of its read")
        << Reads{QByteArray("ok\r\nerr\0or\r\nok\r\n", 16), "\r\nok\n"}
        << QStringList{"ok\r", "err\r", "ok"} << "";
    QTest::newRow("leading newline dropped") << Reads{"\nok\n"} << QStringList{"ok"} << "";
    QTest::newRow("blank lines give nothing") << Reads{"\n\n\nok\n\n"} << QStringList{"ok"} << "";
    QTest::newRow("unfinished kept") << Reads{"ok\nVER"} << QStringList{"ok"} << "VER";
}

void TestLineAssembler::assembly()
{
    QFETCH(Reads, reads);
    QFETCH(QStringList, lines);
    QFETCH(QString, rest);
    LineAssembler a;
    QStringList got;
    for (const QByteArray &r : reads)
        got += a.feed(r);
    QCOMPARE(got, lines);
    QCOMPARE(a.pending(), rest);
}

void TestLineAssembler::latin1BytesKept()
{
    LineAssembler a;
    const QStringList got = a.feed(QByteArray("[MSG:\xe9\xff]\r\n"));
    QCOMPARE(got.size(), 1);
    QCOMPARE(got.first().at(5).unicode(), ushort(0xe9));
    QCOMPARE(got.first().at(6).unicode(), ushort(0xff));
}

QTEST_APPLESS_MAIN(TestLineAssembler)
#include "tst_line_assembler.moc"
