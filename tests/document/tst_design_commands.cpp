#include "design_commands.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "program_state.h"

#include <QPointer>
#include <QSignalSpy>
#include <QUndoStack>
#include <QtTest>

using lumitra::programState;

static QList<Jk_tu_yuan *> addNumbered(Jk_chang_jing &scene, int n)
{
    QList<Jk_tu_yuan *> items;
    for (int i = 0; i < n; ++i)
        items.append(new Jk_tu_yuan(0));
    scene.addItemsUndoable(items);
    return items;
}

// Undoable edits: add, delete and the layer change, with the unsaved flag,
// the change notice, stacking order and item ownership.
class TestDesignCommands : public QObject
{
    Q_OBJECT

private slots:
    void init() { lumitra::resetProgramState(); }

    void addUndoRedoSelectsOnlyNewItems()
    {
        Jk_chang_jing scene;
        QSignalSpy changed(&scene, &Jk_chang_jing::designChanged);
        const QList<Jk_tu_yuan *> items = addNumbered(scene, 2);
        QCOMPARE(scene.designItemCount(), 2);
        QCOMPARE(scene.undoStack()->count(), 1);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(scene.selectedDesignItems().size(), 2);
        scene.undoStack()->undo();
        QCOMPARE(scene.designItemCount(), 0);
        for (Jk_tu_yuan *item : items)
            QVERIFY(!item->scene());
        scene.undoStack()->redo();
        QCOMPARE(scene.designItemCount(), 2);
        QCOMPARE(changed.count(), 3);
        scene.addItemsUndoable({}); // adding nothing pushes nothing
        QCOMPARE(scene.undoStack()->count(), 1);

        const QList<Jk_tu_yuan *> second = addNumbered(scene, 1);
        QCOMPARE(scene.selectedDesignItems(), second);
        // A made-but-unselected item stays unselected.
        QPainterPath p;
        p.addRect(0, 0, 5, 5);
        auto *quiet = new Jk_tu_yuan(p, 1);
        scene.addItemsUndoable({quiet});
        QVERIFY(!quiet->isSelected());
        QVERIFY(scene.selectedDesignItems().isEmpty());
    }

    void deleteRestoresStackingOrder_data()
    {
        QTest::addColumn<QVector<int>>("doomed"); // indexes, bottom item is 0
        QTest::newRow("bottom") << QVector<int>{0};
        QTest::newRow("top") << QVector<int>{4};
        QTest::newRow("two apart") << QVector<int>{0, 3};
        QTest::newRow("neighbours") << QVector<int>{1, 2};
        QTest::newRow("all") << QVector<int>{0, 1, 2, 3, 4};
    }
    void deleteRestoresStackingOrder()
    {
        QFETCH(QVector<int>, doomed);
        Jk_chang_jing scene;
        const QList<Jk_tu_yuan *> items = addNumbered(scene, 5);
        const QList<Jk_tu_yuan *> before = scene.designItems();
        QList<Jk_tu_yuan *> gone;
        for (int i : doomed)
            gone.append(items.at(i));
        scene.deleteItemsUndoable(gone);
        QCOMPARE(scene.designItemCount(), 5 - doomed.size());
        for (Jk_tu_yuan *item : gone)
            QVERIFY(!item->scene());
        scene.undoStack()->undo();
        QCOMPARE(scene.designItems(), before);
        scene.undoStack()->redo();
        scene.undoStack()->undo();
        QCOMPARE(scene.designItems(), before);
    }

    void everyDoAndUndoMarksUnsaved_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("add") << 0;
        QTest::newRow("delete") << 1;
        QTest::newRow("layer") << 2;
    }
    void everyDoAndUndoMarksUnsaved()
    {
        QFETCH(int, kind);
        Jk_chang_jing scene;
        QList<Jk_tu_yuan *> items = addNumbered(scene, 3);
        items[0]->layer_id = 1;
        items[1]->layer_id = 2;
        items[2]->layer_id = 3;
        scene.undoStack()->clear();
        programState().unsaved = false;
        if (kind == 0)
            addNumbered(scene, 1);
        else if (kind == 1)
            scene.deleteItemsUndoable({items.first()});
        else
            scene.undoStack()->push(new ChangeLayerCommand(&scene, {items[0], items[2]}, 12));
        const QVector<int> done{items[0]->layer_id, items[1]->layer_id, items[2]->layer_id};
        QCOMPARE(done, (kind == 2 ? QVector<int>{12, 2, 12} : QVector<int>{1, 2, 3}));
        QVERIFY(programState().unsaved);
        programState().unsaved = false;
        scene.undoStack()->undo();
        QVERIFY(programState().unsaved);
        programState().unsaved = false;
        scene.undoStack()->redo();
        QVERIFY(programState().unsaved);
        scene.undoStack()->undo();
        QCOMPARE(items[0]->layer_id, 1);
        QCOMPARE(items[2]->layer_id, 3);
        QCOMPARE(scene.designItemCount(), 3);
    }

    void undoneItemsDieWithTheirCommand()
    {
        Jk_chang_jing scene;
        QPointer<Jk_tu_yuan> watchAdded = addNumbered(scene, 2).first();
        const QList<Jk_tu_yuan *> kept = addNumbered(scene, 1);
        QPointer<Jk_tu_yuan> watchKept = kept.first();
        scene.deleteItemsUndoable(kept);
        scene.undoStack()->setIndex(1); // undo the delete and the second add
        QVERIFY(watchKept && !watchKept->scene());
        scene.undoStack()->setIndex(0);
        QVERIFY(watchAdded && !watchAdded->scene());
        scene.undoStack()->clear(); // commands go, and with them the items they held
        QVERIFY(!watchAdded);
        QVERIFY(!watchKept);

        // Items in the scene are the scene's, whatever the stack does.
        QPointer<Jk_tu_yuan> watchLive = addNumbered(scene, 1).first();
        scene.undoStack()->clear();
        QVERIFY(watchLive);
        QCOMPARE(watchLive->scene(), &scene);

        // A scene destroyed with undone commands takes all items with it.
        QPointer<Jk_tu_yuan> inScene;
        QPointer<Jk_tu_yuan> undone;
        {
            Jk_chang_jing other;
            inScene = addNumbered(other, 1).first();
            undone = addNumbered(other, 1).first();
            other.undoStack()->undo();
        }
        QVERIFY(!inScene);
        QVERIFY(!undone);
    }

    void itemsDeletedElsewhereAreSkipped()
    {
        Jk_chang_jing scene;
        const QList<Jk_tu_yuan *> items = addNumbered(scene, 3);
        scene.undoStack()->push(new ChangeLayerCommand(&scene, items, 9));
        delete items.at(1); // e.g. a page cleared behind the stack's back
        scene.undoStack()->undo();
        QCOMPARE(items.at(0)->layer_id, 0);
        scene.undoStack()->undo();
        QCOMPARE(scene.designItemCount(), 0);
        scene.undoStack()->redo();
        QCOMPARE(scene.designItemCount(), 2);
    }
};

QTEST_MAIN(TestDesignCommands)
#include "tst_design_commands.moc"
