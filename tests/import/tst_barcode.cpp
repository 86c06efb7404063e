// Barcodes and 2D codes: zint's modules merged into outlines that decode back
// to their content with zbarimg, cover exactly the dark modules, and are
// hatched by a fill job so that no module is burnt twice; content a kind
// cannot hold is refused with zint's reason.
#include "barcode_items.h"
#include "barcode_render.h"
#include "fill_hatch.h"
#include "jk_tu_yuan.h"
#include "module_outline.h"
#include "toolpath_sink.h"

#include <QtTest>
#include <cmath>

using namespace lumitra;

namespace {

// Signed area of the closed polygons of a path made of lines only.
double signedArea(const QPainterPath &path)
{
    double area = 0;
    for (const QPolygonF &poly : path.toSubpathPolygons()) {
        for (int i = 0; i + 1 < poly.size(); ++i)
            area += poly[i].x() * poly[i + 1].y() - poly[i + 1].x() * poly[i].y();
        const QPointF &a = poly.last(), &b = poly.first();
        area += a.x() * b.y() - b.x() * a.y();
    }
    return area / 2;
}

int subpathCount(const QPainterPath &path)
{
    int n = 0;
    for (int i = 0; i < path.elementCount(); ++i)
        n += path.elementAt(i).isMoveTo() ? 1 : 0;
    return n;
}

ModuleGrid gridFrom(const QStringList &rows)
{
    ModuleGrid g;
    g.rows = rows.size();
    g.columns = rows.first().size();
    for (const QString &r : rows)
        for (QChar c : r)
            g.dark.append(c == QLatin1Char('#'));
    return g;
}

// Burnt segments of a fill job; travel and coasting are not burning.
struct BurnSink : ToolpathSink
{
    QPointF at;
    QVector<QLineF> burns;
    void travel(double x, double y) override { at = QPointF(x, y); }
    void coast(double x, double y) override { at = QPointF(x, y); }
    void burn(double x, double y) override
    {
        burns.append(QLineF(at, QPointF(x, y)));
        at = QPointF(x, y);
    }
    void burnGrey(double x, double y, int) override { burn(x, y); }
    bool stopRequested() const override { return false; }
};

BarcodeSettings settingsFor(BarcodeKind kind, const QString &data, double width,
                            QrLevel level = QrLevel::M)
{
    BarcodeSettings s;
    s.kind = kind;
    s.data = data;
    s.widthMm = width;
    s.heightMm = 12;
    s.level = level;
    s.quietModules = defaultQuietModules(kind);
    return s;
}

} // namespace

class TestBarcode : public QObject
{
    Q_OBJECT

private slots:
    void outlineOfHandMadeGrids_data()
    {
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<int>("loops");
        QTest::addColumn<int>("corners"); // points of all loops together
        QTest::newRow("one module") << QStringList{"#"} << 1 << 4;
        QTest::newRow("solid block") << QStringList{"##", "##"} << 1 << 4;
        QTest::newRow("run") << QStringList{"###."} << 1 << 4;
        QTest::newRow("L shape") << QStringList{"#.", "##"} << 1 << 6;
        QTest::newRow("ring with hole") << QStringList{"###", "#.#", "###"} << 2 << 8;
        QTest::newRow("corner touch") << QStringList{"#.", ".#"} << 2 << 8;
        QTest::newRow("checker") << QStringList{"#.#", ".#.", "#.#"} << 5 << 20;
        // The C-shaped region's ends meet at a corner: its hole opens there,
        // so one loop, and the bar touching it at a corner is a second one.
        QTest::newRow("ring touching itself")
            << QStringList{"###.", "#.#.", "##.#", "...#"} << 2 << 14;
        QTest::newRow("nothing dark") << QStringList{"..", ".."} << 0 << 0;
    }
    void outlineOfHandMadeGrids()
    {
        QFETCH(QStringList, rows);
        QFETCH(int, loops);
        QFETCH(int, corners);
        const ModuleGrid g = gridFrom(rows);
        const QPainterPath path = moduleOutline(g, 1.0, 1.0);
        QCOMPARE(subpathCount(path), loops);
        QCOMPARE(path.elementCount(), corners + loops); // each loop closes on its start
        QCOMPARE(signedArea(path), double(g.darkCount()));
        QPainterPath winding = path;
        winding.setFillRule(Qt::WindingFill);
        for (int y = 0; y < g.rows; ++y)
            for (int x = 0; x < g.columns; ++x) {
                const QPointF centre(x + 0.5, y + 0.5);
                QCOMPARE(path.contains(centre), g.isDark(x, y));
                QCOMPARE(winding.contains(centre), g.isDark(x, y));
            }
    }

    void decodesWithZbar_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("data");
        QTest::addColumn<double>("width");
        QTest::addColumn<QString>("expected");
        const QString url = QStringLiteral("https://example.com/lumitra?id=42");
        QTest::newRow("QR L") << int(BarcodeKind::Qr) << int(QrLevel::L) << url << 20.0 << url;
        QTest::newRow("QR M") << int(BarcodeKind::Qr) << int(QrLevel::M) << url << 20.0 << url;
        QTest::newRow("QR Q") << int(BarcodeKind::Qr) << int(QrLevel::Q) << url << 25.0 << url;
        QTest::newRow("QR H") << int(BarcodeKind::Qr) << int(QrLevel::H) << url << 30.0 << url;
        const QString chinese = QStringLiteral("激光雕刻 Lumitra 123");
        QTest::newRow("QR unicode")
            << int(BarcodeKind::Qr) << int(QrLevel::M) << chinese << 20.0 << chinese;
        QTest::newRow("Code 128") << int(BarcodeKind::Code128) << 0
                                  << QStringLiteral("Lumitra-2024 ok") << 60.0
                                  << QStringLiteral("Lumitra-2024 ok");
        QTest::newRow("EAN-13 check digit added")
            << int(BarcodeKind::Ean13) << 0 << QStringLiteral("400638133393") << 37.29
            << QStringLiteral("4006381333931");
        QTest::newRow("EAN-13 with check digit")
            << int(BarcodeKind::Ean13) << 0 << QStringLiteral("9780201379624") << 30.0
            << QStringLiteral("9780201379624");
        // zbar reports UPC-A in its EAN-13 form, a leading zero in front.
        QTest::newRow("UPC-A") << int(BarcodeKind::UpcA) << 0 << QStringLiteral("03600029145")
                               << 37.29 << QStringLiteral("0036000291452");
    }
    void decodesWithZbar()
    {
        if (barcode_test::zbarimg().isEmpty())
            QSKIP("zbarimg is not installed (Debian package zbar-tools)");
        QFETCH(int, kind);
        QFETCH(int, level);
        QFETCH(QString, data);
        QFETCH(double, width);
        QFETCH(QString, expected);

        BarcodeLayout layout;
        QString error;
        QVERIFY2(layoutBarcode(settingsFor(BarcodeKind(kind), data, width, QrLevel(level)), &layout,
                               &error),
                 qPrintable(error));
        const QList<Jk_tu_yuan *> items = createBarcodeItems(layout);
        QVERIFY(!items.isEmpty());
        // The items as placed, back in the frame's coordinates.
        QList<QPainterPath> paths;
        const QPointF base = items.first()->pos();
        for (Jk_tu_yuan *item : items)
            paths << item->scenePath().translated(-base);
        QCOMPARE(paths.first().boundingRect(), layout.bars.boundingRect());
        // Four pixels a module.
        const QImage img =
            barcode_test::renderBlackWhite(paths, layout.frame, 4.0 / layout.moduleMm);
        QCOMPARE(barcode_test::decode(img), expected);
        qDeleteAll(items);
    }

    void outlineCoversExactlyTheModules_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("data");
        QTest::newRow("QR") << int(BarcodeKind::Qr) << QStringLiteral("Lumitra laser engraver");
        QTest::newRow("Data Matrix")
            << int(BarcodeKind::DataMatrix) << QStringLiteral("Lumitra 0123456789");
        QTest::newRow("Code 128") << int(BarcodeKind::Code128) << QStringLiteral("ABC-123");
        QTest::newRow("EAN-13") << int(BarcodeKind::Ean13) << QStringLiteral("400638133393");
    }
    void outlineCoversExactlyTheModules()
    {
        QFETCH(int, kind);
        QFETCH(QString, data);
        BarcodeLayout l;
        QString error;
        QVERIFY2(layoutBarcode(settingsFor(BarcodeKind(kind), data, 21.0), &l, &error),
                 qPrintable(error));
        const ModuleGrid &g = l.symbol.grid;
        QVERIFY(g.darkCount() > 0);
        const double moduleArea = l.moduleMm * l.rowMm;
        QVERIFY(qAbs(signedArea(l.bars) - g.darkCount() * moduleArea) < 1e-6 * g.darkCount());
        // Merged: far fewer outlines than dark modules; a barcode has one per bar.
        const int loops = subpathCount(l.bars);
        if (l.symbol.linear) {
            int bars = 0;
            for (int x = 0; x < g.columns; ++x)
                bars += g.isDark(x, 0) && !g.isDark(x - 1, 0) ? 1 : 0;
            QCOMPARE(loops, bars);
        } else {
            QVERIFY2(loops * 3 < g.darkCount(), qPrintable(QString::number(loops)));
        }
        for (int y = 0; y < g.rows; ++y)
            for (int x = 0; x < g.columns; ++x) {
                const QPointF c =
                    l.symbolOrigin + QPointF((x + 0.5) * l.moduleMm, (y + 0.5) * l.rowMm);
                QCOMPARE(l.bars.contains(c), g.isDark(x, y));
            }
    }

    // The fill job's burnt segments, laid over the module grid: each dark
    // module is crossed once by every hatch line through it, over its whole
    // width, and no light module is touched.
    void fillBurnsEachModuleOnce_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("oneDirection");
        QTest::newRow("QR") << int(BarcodeKind::Qr) << false;
        QTest::newRow("QR one direction") << int(BarcodeKind::Qr) << true;
        QTest::newRow("Data Matrix") << int(BarcodeKind::DataMatrix) << false;
        QTest::newRow("Code 128") << int(BarcodeKind::Code128) << false;
    }
    void fillBurnsEachModuleOnce()
    {
        QFETCH(int, kind);
        QFETCH(bool, oneDirection);
        BarcodeLayout l;
        QString error;
        QVERIFY(layoutBarcode(settingsFor(BarcodeKind(kind), QStringLiteral("HELLO 0042"), 19.7),
                              &l, &error));
        // Somewhere on the work area, off the hatch grid.
        const QPointF shift(31.013, -240.0371);
        const QPointF origin = l.symbolOrigin + shift;
        HatchSettings hs;
        hs.spacing = l.moduleMm / 3.7;
        hs.oneDirection = oneDirection;
        BurnSink sink;
        hatchOutline(l.bars.translated(shift), hs, sink);
        QVERIFY(!sink.burns.isEmpty());

        const ModuleGrid &g = l.symbol.grid;
        QVector<double> covered(g.columns * g.rows, 0.0);
        for (const QLineF &b : sink.burns) {
            QCOMPARE(b.y1(), b.y2()); // hatch lines at 0 degrees run along x
            const int row = int(std::floor((b.y1() - origin.y()) / l.rowMm));
            QVERIFY(row >= 0 && row < g.rows);
            const double u0 = qMin(b.x1(), b.x2()) - origin.x();
            const double u1 = qMax(b.x1(), b.x2()) - origin.x();
            for (int x = 0; x < g.columns; ++x) {
                const double overlap = qMin(u1, (x + 1) * l.moduleMm) - qMax(u0, x * l.moduleMm);
                if (overlap > 0)
                    covered[row * g.columns + x] += overlap;
            }
        }
        for (int y = 0; y < g.rows; ++y) {
            // Hatch lines lie at scene y = -(k + 0.5) * spacing.
            const double top = origin.y() + y * l.rowMm, bottom = top + l.rowMm;
            const int kFirst = int(std::ceil(-bottom / hs.spacing - 0.5));
            const int kLast = int(std::floor(-top / hs.spacing - 0.5));
            const int lines = kLast - kFirst + 1;
            QVERIFY(lines >= 1);
            for (int x = 0; x < g.columns; ++x) {
                const double want = g.isDark(x, y) ? lines * l.moduleMm : 0.0;
                const double got = covered[y * g.columns + x];
                QVERIFY2(qAbs(got - want) < 1e-6,
                         qPrintable(QStringLiteral("module %1,%2: burnt %3 mm, want %4")
                                        .arg(x)
                                        .arg(y)
                                        .arg(got)
                                        .arg(want)));
            }
        }
    }

    void invalidContentRefused_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("data");
        QTest::addColumn<QString>("reason"); // part of the message
        QTest::newRow("EAN-13 letters") << int(BarcodeKind::Ean13) << QStringLiteral("40063813339A")
                                        << QStringLiteral("Invalid character");
        QTest::newRow("EAN-13 wrong check digit")
            << int(BarcodeKind::Ean13) << QStringLiteral("4006381333932")
            << QStringLiteral("check digit");
        QTest::newRow("EAN-13 too long")
            << int(BarcodeKind::Ean13) << QStringLiteral("40063813339311")
            << QStringLiteral("too long");
        QTest::newRow("EAN-13 too short")
            << int(BarcodeKind::Ean13) << QStringLiteral("12345") << QStringLiteral("EAN-13");
        QTest::newRow("UPC-A letters") << int(BarcodeKind::UpcA) << QStringLiteral("0360002914X")
                                       << QStringLiteral("Invalid character");
        QTest::newRow("UPC-A too short")
            << int(BarcodeKind::UpcA) << QStringLiteral("036000") << QStringLiteral("UPC-A");
        QTest::newRow("QR too long") << int(BarcodeKind::Qr) << QString(8000, QLatin1Char('x'))
                                     << QStringLiteral("too long");
        QTest::newRow("Code 128 empty") << int(BarcodeKind::Code128) << QString() << QString();
    }
    void invalidContentRefused()
    {
        QFETCH(int, kind);
        QFETCH(QString, data);
        QFETCH(QString, reason);
        BarcodeLayout l;
        QString error;
        QVERIFY(!layoutBarcode(settingsFor(BarcodeKind(kind), data, 20.0), &l, &error));
        QVERIFY(!error.isEmpty());
        QVERIFY2(error.contains(reason, Qt::CaseInsensitive), qPrintable(error));
        QVERIFY(l.bars.isEmpty());
    }

    void textBeneathBarcode()
    {
        BarcodeSettings s = settingsFor(BarcodeKind::Ean13, QStringLiteral("400638133393"), 37.29);
        BarcodeLayout l;
        QString error;
        QVERIFY(layoutBarcode(s, &l, &error));
        QCOMPARE(l.text, QStringLiteral("4006381333931"));
        const QRectF bars = l.bars.boundingRect();
        const QRectF text = l.textOutline.boundingRect().translated(l.textPos);
        QVERIFY(text.top() > bars.bottom());
        QVERIFY(qAbs(text.center().x() - bars.center().x()) < 1e-6);
        QVERIFY(l.frame.contains(text));
        const QList<Jk_tu_yuan *> items = createBarcodeItems(l);
        QCOMPARE(items.size(), 2);
        QCOMPARE(items[1]->wen_zi, QStringLiteral("4006381333931"));
        QVERIFY(!items[1]->zi_ti.isEmpty());
        QCOMPARE(items[1]->pos() - items[0]->pos(), l.textPos);
        qDeleteAll(items);

        s.showText = false;
        QVERIFY(layoutBarcode(s, &l, &error));
        QVERIFY(l.text.isEmpty());
        const QList<Jk_tu_yuan *> alone = createBarcodeItems(l);
        QCOMPARE(alone.size(), 1);
        qDeleteAll(alone);
    }
};

QTEST_MAIN(TestBarcode)
#include "tst_barcode.moc"
