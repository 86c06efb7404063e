// Splitting outlines into the subpaths a fill can cover and those that can
// only be burnt as lines.
#include "path_parts.h"

#include <QtTest>

using namespace lumitra;

Q_DECLARE_METATYPE(QPainterPath)

class TestPathParts : public QObject
{
    Q_OBJECT

private slots:
    void split_data()
    {
        QTest::addColumn<QPainterPath>("path");
        QTest::addColumn<int>("closedElements");
        QTest::addColumn<int>("openElements");
        QPainterPath square;
        square.addRect(0, 0, 10, 10);
        QPainterPath u;
        u.moveTo(0, 0);
        u.lineTo(0, 10);
        u.lineTo(10, 10);
        u.lineTo(10, 0);
        QPainterPath both = square;
        both.addPath(u.translated(20, 0));
        QPainterPath nearlyClosed; // rounded coordinates from a file
        nearlyClosed.moveTo(0, 0);
        nearlyClosed.lineTo(5, 0);
        nearlyClosed.lineTo(5, 5);
        nearlyClosed.lineTo(0.0005, 0.0002);
        QPainterPath arc; // an open curve keeps its curve elements
        arc.moveTo(0, 0);
        arc.cubicTo(0, 5, 5, 5, 5, 0);
        QPainterPath point;
        point.moveTo(3, 3);
        QTest::newRow("closed square") << square << square.elementCount() << 0;
        QTest::newRow("open U") << u << 0 << u.elementCount();
        QTest::newRow("square and U") << both << square.elementCount() << u.elementCount();
        QTest::newRow("closes within tolerance") << nearlyClosed << 4 << 0;
        QTest::newRow("open curve") << arc << 0 << 4;
        QTest::newRow("lone point") << point << 0 << 0;
    }
    void split()
    {
        QFETCH(QPainterPath, path);
        QFETCH(int, closedElements);
        QFETCH(int, openElements);
        const PathParts parts = splitByClosure(path);
        QCOMPARE(parts.closed.elementCount(), closedElements);
        QCOMPARE(parts.open.elementCount(), openElements);
        QCOMPARE(hasOpenSubpath(path), openElements > 0);
        // Nothing is moved: together the parts cover what the path covers.
        QRectF together = parts.closed.boundingRect() | parts.open.boundingRect();
        if (closedElements + openElements > 0)
            QCOMPARE(together, path.boundingRect());
    }
};

QTEST_MAIN(TestPathParts)
#include "tst_path_parts.moc"
