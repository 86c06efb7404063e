// From import results to design items: centring of SVG drawings, the mirrored DXF item,
// the traced item lying over its bitmap, and the selection rule of the window actions.
#include "dxf_text.h"
#include "import_items.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "program_state.h"

#include <QPainter>
#include <QTemporaryDir>
#include <QUndoStack>
#include <QtTest>

using namespace lumitra;

namespace {

bool near(const QRectF &a, const QRectF &b, double tol)
{
    return qAbs(a.left() - b.left()) <= tol && qAbs(a.top() - b.top()) <= tol
        && qAbs(a.right() - b.right()) <= tol && qAbs(a.bottom() - b.bottom()) <= tol;
}

QString describe(const QRectF &r)
{
    return QStringLiteral("(%1,%2 %3x%4)").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
}

QRectF sceneBox(const Jk_tu_yuan *item) { return item->sceneTransform().map(item->path).boundingRect(); }

QPainterPath rectPath(const QRectF &r)
{
    QPainterPath p;
    p.addRect(r);
    return p;
}

} // namespace

class TestImportItems : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }
    void centredDrawingKeepsItsLayout_data();
    void centredDrawingKeepsItsLayout();
    void svgFileBecomesCentredItems();
    void svgFailures_data();
    void svgFailures();
    void dxfItemIsMirrored_data();
    void dxfItemIsMirrored();
    void dxfFileImport();
    void dxfFailuresCarryAMessage();
    void dxfItemGoesThroughTheUndoableAdd();
    void tracedItemLiesOverTheBitmap_data();
    void tracedItemLiesOverTheBitmap();
    void traceOfBlankBitmapGivesNothing();
    void singleSelectedBitmap_data();
    void singleSelectedBitmap();

private:
    QTemporaryDir m_dir;
};

void TestImportItems::centredDrawingKeepsItsLayout_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<QPointF>("topLeft");
    // Union (10, 10, 50, 40): its top-left goes to (width/2 - 25, height/2 - 20 - height).
    QTest::newRow("400 x 400") << 400 << 400 << QPointF(175, -220);
    QTest::newRow("odd sizes use integer halves") << 301 << 201 << QPointF(125, -121);
}

void TestImportItems::centredDrawingKeepsItsLayout()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(QPointF, topLeft);
    programState().width = width;
    programState().height = height;
    programState().currentLayer = 7;
    const QList<Jk_tu_yuan *> items =
        makeCentredVectorItems({rectPath({10, 10, 20, 20}), rectPath({50, 10, 10, 40})});
    QCOMPARE(items.size(), 2);
    QVERIFY2(near(sceneBox(items[0]), QRectF(topLeft, QSizeF(20, 20)), 1e-6), qPrintable(describe(sceneBox(items[0]))));
    QVERIFY(near(sceneBox(items[1]), QRectF(topLeft + QPointF(40, 0), QSizeF(10, 40)), 1e-6));
    for (Jk_tu_yuan *item : items) {
        QCOMPARE(item->layer_id, 7);
        QVERIFY(!item->is_bitmap);
        QVERIFY(item->isSelected());
    }
    qDeleteAll(items);
}

void TestImportItems::svgFileBecomesCentredItems()
{
    const QList<Jk_tu_yuan *> items = importSvgItems(
        QStringLiteral(LUMITRA_TEST_DATA_DIR "/import/svg/mm_viewbox_layers.svg"), nullptr);
    QCOMPARE(items.size(), 4);
    // In the file: (30,95 50x25), (10,10 100x50), (60,70 20x40), (110,150 40x40); union
    // (10,10)-(150,190), 140 x 180, centred on the 400 x 400 work area.
    const QPointF origin(200 - 70, 200 - 90 - 400);
    const QList<QRectF> inFile = {{30, 95, 50, 25}, {10, 10, 100, 50}, {60, 70, 20, 40}, {110, 150, 40, 40}};
    for (int i = 0; i < items.size(); ++i) {
        const QRectF expected = inFile[i].translated(origin - QPointF(10, 10));
        QVERIFY2(near(sceneBox(items[i]), expected, 0.01),
                 qPrintable(describe(sceneBox(items[i])) + " expected " + describe(expected)));
    }
    qDeleteAll(items);
}

void TestImportItems::svgFailures_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("hasMessage");
    QTest::newRow("malformed: no message") << QByteArray("<svg><g>") << false;
    QTest::newRow("nothing drawable: no message") << QByteArray("<svg><defs><rect width='1' height='1'/></defs></svg>") << false;
    QByteArray deep = "<svg>" + QByteArray("<g>").repeated(300) + QByteArray("</g>").repeated(300) + "</svg>";
    QTest::newRow("too deep: message") << deep << true;
}

void TestImportItems::svgFailures()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, hasMessage);
    const QString path = m_dir.filePath(QStringLiteral("bad.svg"));
    QVERIFY(dxftext::write(path, content));
    QString message;
    QVERIFY(importSvgItems(path, &message).isEmpty());
    QCOMPARE(!message.isEmpty(), hasMessage);
}

void TestImportItems::dxfItemIsMirrored_data()
{
    QTest::addColumn<QRectF>("drawing");
    QTest::addColumn<QRectF>("scene");
    QTest::newRow("on the work area: drawing y up is scene y negative")
        << QRectF(10, 20, 40, 40) << QRectF(10, -60, 40, 40);
    QTest::newRow("touching the origin") << QRectF(0, 0, 400, 400) << QRectF(0, -400, 400, 400);
    QTest::newRow("off the work area: centred") << QRectF(1000, 2000, 100, 50)
                                                << QRectF(150, -225, 100, 50);
    QTest::newRow("below the drawing origin: centred") << QRectF(10, -30, 20, 20)
                                                       << QRectF(190, -210, 20, 20);
}

void TestImportItems::dxfItemIsMirrored()
{
    QFETCH(QRectF, drawing);
    QFETCH(QRectF, scene);
    QPainterPath outline;
    outline.moveTo(drawing.topLeft());
    outline.lineTo(drawing.bottomRight());
    Jk_tu_yuan *item = makeDxfItem(outline);
    QCOMPARE(item->transform(), QTransform::fromScale(1, -1));
    QCOMPARE(item->path, outline); // the flip lives in the transform, not the path
    QVERIFY2(near(sceneBox(item), scene, 1e-4), qPrintable(describe(sceneBox(item))));
    // The end that is higher in the drawing is higher on the screen (smaller scene y).
    const QPointF top = item->sceneTransform().map(drawing.bottomRight());
    const QPointF bottom = item->sceneTransform().map(drawing.topLeft());
    QVERIFY(top.y() < bottom.y());
    delete item;
}

void TestImportItems::dxfFileImport()
{
    using namespace dxftext;
    const QString path = m_dir.filePath(QStringLiteral("part.dxf"));
    QVERIFY(write(path, file(line(0, 0, 2, 1) + circle(1, 1, 0.5), 5).toUtf8())); // centimetres
    QString message;
    const QList<Jk_tu_yuan *> items = importDxfItems(path, &message);
    QCOMPARE(items.size(), 1);
    QVERIFY(message.isEmpty());
    QVERIFY2(near(sceneBox(items[0]), QRectF(0, -15, 20, 15), 1e-6), qPrintable(describe(sceneBox(items[0]))));
    qDeleteAll(items);
}

void TestImportItems::dxfFailuresCarryAMessage()
{
    const QString path = m_dir.filePath(QStringLiteral("junk.dxf"));
    QVERIFY(dxftext::write(path, QByteArray("0\nSECTION\n2\nENTITIES\n0\nPOINT\n10\n1\n20\n1\n0\nENDSEC\n0\nEOF\n")));
    QString message;
    QVERIFY(importDxfItems(path, &message).isEmpty());
    QVERIFY(!message.isEmpty());
    message.clear();
    QVERIFY(importDxfItems(m_dir.filePath(QStringLiteral("missing.dxf")), &message).isEmpty());
    QVERIFY(!message.isEmpty());
}

void TestImportItems::dxfItemGoesThroughTheUndoableAdd()
{
    using namespace dxftext;
    const QString path = m_dir.filePath(QStringLiteral("above.dxf"));
    QVERIFY(write(path, file(lwpolyline({{10, 5, 0}, {60, 5, 0}, {60, 45, 0}}, true)).toUtf8()));
    Jk_chang_jing scene;
    scene.addItemsUndoable(importDxfItems(path, nullptr));
    QCOMPARE(scene.designItemCount(), 1);
    const QRectF box = scene.designItems().first()->sceneBoundingRect();
    QVERIFY2(box.bottom() <= -5 + 1e-6 && box.top() >= -45 - 1e-6, qPrintable(describe(box)));
    scene.undoStack()->undo();
    QCOMPARE(scene.designItemCount(), 0);
    scene.undoStack()->redo();
    QCOMPARE(scene.designItemCount(), 1);
}

void TestImportItems::tracedItemLiesOverTheBitmap_data()
{
    QTest::addColumn<QPointF>("position");
    QTest::addColumn<double>("scale");
    QTest::newRow("as placed") << QPointF(-1, -1) << 1.0;
    QTest::newRow("moved") << QPointF(12.5, -80.0) << 1.0;
    QTest::newRow("moved and enlarged") << QPointF(30.0, -40.0) << 2.0;
}

void TestImportItems::tracedItemLiesOverTheBitmap()
{
    QFETCH(QPointF, position);
    QFETCH(double, scale);
    programState().currentLayer = 3;
    QImage img(100, 80, QImage::Format_ARGB32);
    img.fill(Qt::white);
    QPainter(&img).fillRect(10, 20, 20, 30, Qt::black);
    Jk_tu_yuan bitmap(img);
    if (position != QPointF(-1, -1))
        bitmap.setPos(position);
    bitmap.setTransform(QTransform::fromScale(scale, scale));
    Jk_tu_yuan *traced = traceBitmapItem(&bitmap);
    QVERIFY(traced);
    QVERIFY(!traced->is_bitmap);
    QCOMPARE(traced->layer_id, 3);
    QCOMPARE(traced->pos(), QPointF(0, 0));
    const double px = Jk_tu_yuan::kPixelMm;
    const QRectF expected =
        bitmap.sceneTransform().mapRect(QRectF(10 * px, 20 * px, 20 * px, 30 * px));
    QVERIFY2(near(sceneBox(traced), expected, 1e-6),
             qPrintable(describe(sceneBox(traced)) + " expected " + describe(expected)));
    delete traced;
}

void TestImportItems::traceOfBlankBitmapGivesNothing()
{
    QImage img(20, 20, QImage::Format_ARGB32);
    img.fill(Qt::white);
    Jk_tu_yuan bitmap(img);
    QVERIFY(!traceBitmapItem(&bitmap));
    Jk_tu_yuan vector(0);
    QVERIFY(!traceBitmapItem(&vector));
}

void TestImportItems::singleSelectedBitmap_data()
{
    QTest::addColumn<int>("bitmaps");
    QTest::addColumn<int>("vectors");
    QTest::addColumn<bool>("found");
    QTest::newRow("nothing selected") << 0 << 0 << false;
    QTest::newRow("one bitmap") << 1 << 0 << true;
    QTest::newRow("one vector") << 0 << 1 << false;
    QTest::newRow("two bitmaps") << 2 << 0 << false;
    QTest::newRow("bitmap and vector") << 1 << 1 << false;
}

void TestImportItems::singleSelectedBitmap()
{
    QFETCH(int, bitmaps);
    QFETCH(int, vectors);
    QFETCH(bool, found);
    QList<QGraphicsItem *> selected;
    QImage img(4, 4, QImage::Format_ARGB32);
    img.fill(Qt::black);
    for (int i = 0; i < bitmaps; ++i)
        selected << new Jk_tu_yuan(img);
    for (int i = 0; i < vectors; ++i)
        selected << new Jk_tu_yuan(0);
    Jk_tu_yuan *item = lumitra::singleSelectedBitmap(selected);
    QCOMPARE(item != nullptr, found);
    if (found)
        QCOMPARE(static_cast<QGraphicsItem *>(item), selected.first());
    qDeleteAll(selected);
}

QTEST_MAIN(TestImportItems)
#include "tst_import_items.moc"
