// Copy, paste, duplicate and delete of items.
#include "design_commands.h"
#include "editing_test_support.h"
#include "item_clipboard.h"
#include "item_geometry.h"
#include "jk_chang_jing.h"
#include "program_state.h"

#include <QMimeData>
#include <QUndoStack>
#include <QtTest>
#include <memory>

using namespace lumitra;
using editing_test::rectItem;
using editing_test::samePath;
using editing_test::samePaths;
using editing_test::scenePaths;

namespace {

QList<Jk_tu_yuan *> sampleItems()
{
    Jk_tu_yuan *a = rectItem(10, -40, 20, 10);
    a->layer_id = 5;
    a->wen_zi = "Hi";
    a->zi_ti = "{\"family\":\"X\",\"size\":3}";
    a->reserved = 17;
    Jk_tu_yuan::rotateItems({a}, 33, QPointF(20, -35));
    QImage image(4, 3, QImage::Format_ARGB32);
    image.fill(qRgba(10, 20, 30, 255));
    image.setPixel(1, 1, qRgba(200, 100, 50, 0));
    QImage shown(4, 3, QImage::Format_Grayscale8);
    shown.fill(128);
    auto *b = new Jk_tu_yuan(image, shown);
    b->setPos(50, -60);
    b->layer_id = 2;
    return {a, b};
}

void compareItems(const Jk_tu_yuan *got, const Jk_tu_yuan *want)
{
    QVERIFY(samePath(got->scenePath(), want->scenePath()));
    QCOMPARE(got->is_bitmap, want->is_bitmap);
    QCOMPARE(got->source_image, want->source_image);
    QCOMPARE(got->display_image, want->display_image);
    QCOMPARE(got->jiao_du, want->jiao_du);
    QCOMPARE(got->layer_id, want->layer_id);
    QCOMPARE(got->reserved, want->reserved);
    QCOMPARE(got->transform(), want->transform());
    QCOMPARE(got->wen_zi, want->wen_zi);
    QCOMPARE(got->zi_ti, want->zi_ti);
    QVERIFY(!got->scene());
}

} // namespace

class TestItemClipboard : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }

    void itemsSurviveTheRoundTrip();
    void cutOffStreamsKeepWholeItems();
    void foreignDataGivesNothing_data();
    void foreignDataGivesNothing();
    void pasteAddsMovedCopies();
    void duplicateThenDeleteUndo();
};

void TestItemClipboard::itemsSurviveTheRoundTrip()
{
    const QList<Jk_tu_yuan *> items = sampleItems();
    const QList<Jk_tu_yuan *> back = decodeItems(encodeItems(items));
    QCOMPARE(back.size(), items.size());
    for (int i = 0; i < items.size(); ++i)
        compareItems(back.at(i), items.at(i));
    qDeleteAll(back);
    qDeleteAll(items);
}

void TestItemClipboard::cutOffStreamsKeepWholeItems()
{
    const QList<Jk_tu_yuan *> items = sampleItems();
    const QByteArray whole = encodeItems(items);
    const QByteArray first = encodeItems({items.first()});
    // The first item ends where a one-item stream ends.
    const int firstEnds = first.size();
    for (int cut = 0; cut < whole.size(); ++cut) {
        const QList<Jk_tu_yuan *> back = decodeItems(whole.left(cut));
        const int expected = cut >= firstEnds ? 1 : 0;
        QVERIFY2(back.size() == expected, qPrintable(QString("cut at %1").arg(cut)));
        if (expected == 1)
            compareItems(back.first(), items.first());
        qDeleteAll(back);
    }
    qDeleteAll(items);
}

void TestItemClipboard::foreignDataGivesNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("hello, clipboard");
    QByteArray wrongVersion = encodeItems({});
    wrongVersion[5] = 9;
    QTest::newRow("wrong version") << wrongVersion;
    QByteArray negative = encodeItems({});
    negative[6] = char(0xff);
    QTest::newRow("negative count") << negative;
}

void TestItemClipboard::foreignDataGivesNothing()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(decodeItems(bytes).isEmpty());
    QMimeData mime;
    mime.setData(kItemsMimeType, bytes);
    Jk_chang_jing scene;
    QVERIFY(!std::unique_ptr<QUndoCommand>(makePasteCommand(&scene, &mime, QPointF())));
}

void TestItemClipboard::pasteAddsMovedCopies()
{
    const QList<Jk_tu_yuan *> items = sampleItems();
    std::unique_ptr<QMimeData> mime(itemsMimeData(items));
    QVERIFY(mime->hasFormat(kItemsMimeType));
    Jk_chang_jing scene;
    QUndoStack stack;
    stack.push(makePasteCommand(&scene, mime.get(), QPointF(10, 10)));
    QCOMPARE(scene.items().size(), 2);
    QCOMPARE(scene.selectedItems().size(), 2);
    for (const Jk_tu_yuan *original : items) {
        bool found = false;
        for (QGraphicsItem *g : scene.items()) {
            auto *copy = dynamic_cast<Jk_tu_yuan *>(g);
            found |= samePath(copy->scenePath(), original->scenePath().translated(10, 10), 1e-9)
                     && copy->layer_id == original->layer_id;
        }
        QVERIFY(found);
    }
    stack.undo();
    QCOMPARE(scene.items().size(), 0);
    QVERIFY(!std::unique_ptr<QUndoCommand>(makePasteCommand(&scene, nullptr, QPointF())));
    QMimeData plain;
    plain.setText("not items");
    QVERIFY(!std::unique_ptr<QUndoCommand>(makePasteCommand(&scene, &plain, QPointF())));
    qDeleteAll(items);
}

void TestItemClipboard::duplicateThenDeleteUndo()
{
    Jk_chang_jing scene;
    const QList<Jk_tu_yuan *> items = sampleItems();
    for (auto *i : items)
        scene.addItem(i);
    const QVector<QPainterPath> start = scenePaths(items);
    QUndoStack stack;
    stack.push(makeDuplicateCommand(&scene, items, QPointF(5, 5)));
    QCOMPARE(scene.items().size(), 4);
    QCOMPARE(scene.selectedItems().size(), 2);
    for (QGraphicsItem *g : scene.selectedItems())
        QVERIFY(!items.contains(dynamic_cast<Jk_tu_yuan *>(g)));
    stack.push(new DeleteItemsCommand(&scene, items));
    QCOMPARE(scene.items().size(), 2);
    QVERIFY(!items.first()->scene());
    stack.undo();
    QCOMPARE(scene.items().size(), 4);
    QVERIFY(samePaths(scenePaths(items), start));
    stack.undo();
    QCOMPARE(scene.items().size(), 2);
    QVERIFY(!std::unique_ptr<QUndoCommand>(makeDuplicateCommand(&scene, {}, QPointF())));
}

QTEST_MAIN(TestItemClipboard)
#include "tst_item_clipboard.moc"
