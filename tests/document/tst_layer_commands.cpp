#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "layer_commands.h"
#include "layer_list.h"
#include "layer_rebuild.h"
#include "program_state.h"

#include "layer_bytes.h"
#include <QDataStream>
#include <QUndoStack>

#include <QtTest>

using lumitra::programState;

namespace {

QVector<LayerKey> listKeys()
{
    QVector<LayerKey> keys;
    for (const TuCeng *l : LayerList::instance().layers())
        keys.append(LayerKey{l->yanse, l->tupian});
    return keys;
}

Jk_tu_yuan *makeItem(int layer, bool bitmap = false)
{
    QImage img(4, 4, QImage::Format_Grayscale8);
    img.fill(0);
    auto *item = bitmap ? new Jk_tu_yuan(img) : new Jk_tu_yuan(0);
    item->layer_id = layer;
    return item;
}

// Parameters other than the defaults, different for every layer.
void customise(TuCeng &l, int n)
{
    l.gonglv = 10 + n;
    l.sudu = 900 + n;
    l.fangxiang = 20 + n;
    l.jianju = 0.05 * (n + 1);
    l.saomiao = 0.5 * (n + 1);
    l.moshi = n % (l.tupian ? 5 : 3);
    l.shuchu = n % 2 == 0;
    l.xianshi = n % 3 != 0;
    l.danxiang = true;
    l.mingcheng = QStringLiteral("layer %1").arg(n);
    l.cishu = n + 2;
}

// A scene whose layer list is rebuilt after every command, as the design pages
// do for the current page.
struct Design
{
    Jk_chang_jing scene;
    Design()
    {
        QObject::connect(&scene, &Jk_chang_jing::designChanged, [this] { rebuild(); });
    }
    void rebuild() { rebuildLayerList(&scene); }
    QUndoStack *stack() { return scene.undoStack(); }
    // Items added in order (the last one on top), then the list rebuilt and
    // every record customised.
    void add(const QVector<LayerKey> &keys)
    {
        for (const LayerKey &k : keys)
            scene.addItem(makeItem(k.number, k.bitmap));
        rebuild();
        int n = 0;
        for (TuCeng *l : LayerList::instance().layers())
            customise(*l, ++n);
    }
};

// A value for `field` that differs from what customise() gave any layer.
TuCeng changedValue(LayerField field)
{
    TuCeng v;
    v.moshi = 4;
    v.shuchu = true;
    v.xianshi = true;
    v.mingcheng = QStringLiteral("cut outline");
    v.fangxiang = 135;
    v.jianju = 0.33;
    v.saomiao = 7.25;
    v.sudu = 12345;
    v.gonglv = 97;
    v.cishu = 9;
    v.danxiang = false;
    v.kerf = 0.125;
    v.cutOrder = CutOptimised;
    if (field == LayerField::Output || field == LayerField::Show)
        v.shuchu = v.xianshi = false;
    return v;
}

} // namespace

Q_DECLARE_METATYPE(LayerField)

// Undo steps for layer settings, layer order and layer deletion, and the
// return of a layer record that lost its last item through an undoable edit.
class TestLayerCommands : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        lumitra::resetProgramState();
        LayerList::instance().clear();
    }
    void cleanup() { LayerList::instance().clear(); }

    // Every field: the change touches that field only, undo gives back the
    // record byte for byte, redo the changed one; both set the unsaved flag.
    void settingRoundTrip_data()
    {
        QTest::addColumn<LayerField>("field");
        QTest::newRow("mode") << LayerField::Mode;
        QTest::newRow("output") << LayerField::Output;
        QTest::newRow("show") << LayerField::Show;
        QTest::newRow("name") << LayerField::Name;
        QTest::newRow("direction") << LayerField::Direction;
        QTest::newRow("spacing") << LayerField::Spacing;
        QTest::newRow("overscan") << LayerField::Overscan;
        QTest::newRow("speed") << LayerField::Speed;
        QTest::newRow("power") << LayerField::Power;
        QTest::newRow("passes") << LayerField::Passes;
        QTest::newRow("single direction") << LayerField::SingleDirection;
        QTest::newRow("parameter set") << LayerField::Parameters;
        QTest::newRow("kerf") << LayerField::Kerf;
        QTest::newRow("cut order") << LayerField::CutOrder;
    }
    void settingRoundTrip()
    {
        QFETCH(LayerField, field);
        Design d;
        d.add({{3, false}, {5, true}, {1, false}});
        const LayerKey key{5, true};
        const QList<QByteArray> before = listBytes();
        TuCeng expected = *LayerList::instance().find(key);
        copyLayerField(expected, changedValue(field), field);
        QVERIFY(bytesOf(expected) != before.at(1));

        programState().unsaved = false;
        auto *command =
            new LayerSettingCommand(&d.scene, LayerEdit{key, field, changedValue(field)});
        QVERIFY(command->isValid());
        d.stack()->push(command);
        QVERIFY(programState().unsaved);
        QList<QByteArray> after = before;
        after[1] = bytesOf(expected);
        QCOMPARE(listBytes(), after); // the other layers are untouched

        programState().unsaved = false;
        d.stack()->undo();
        QVERIFY(programState().unsaved);
        QCOMPARE(listBytes(), before);
        d.stack()->redo();
        QCOMPARE(listBytes(), after);
        d.stack()->undo();
        QCOMPARE(listBytes(), before);
    }

    void editsThatChangeNothingAreRefused()
    {
        Design d;
        d.add({{2, false}});
        const TuCeng current = *LayerList::instance().find(2, false);
        QVERIFY(!LayerSettingCommand(&d.scene, LayerEdit{{2, false}, LayerField::Power, current})
                     .isValid());
        QVERIFY(!LayerSettingCommand(&d.scene,
                                     LayerEdit{{2, true}, LayerField::Power, changedValue({})})
                     .isValid()); // no such layer
        QVERIFY(!LayerSettingCommand(&d.scene,
                                     LayerEdit{{4, false}, LayerField::Power, changedValue({})})
                     .isValid());
    }

    // Steps of one box in one session merge; anything else stays apart.
    void typingMergesIntoOneStep_data()
    {
        QTest::addColumn<int>("secondSession");
        QTest::addColumn<int>("secondLayer");
        QTest::addColumn<LayerField>("secondField");
        QTest::addColumn<int>("steps");
        QTest::newRow("same box, same session") << 7 << 2 << LayerField::Power << 1;
        QTest::newRow("new session") << 8 << 2 << LayerField::Power << 2;
        QTest::newRow("no session") << 0 << 2 << LayerField::Power << 2;
        QTest::newRow("other field") << 7 << 2 << LayerField::Speed << 2;
        QTest::newRow("other layer") << 7 << 6 << LayerField::Power << 2;
    }
    void typingMergesIntoOneStep()
    {
        QFETCH(int, secondSession);
        QFETCH(int, secondLayer);
        QFETCH(LayerField, secondField);
        QFETCH(int, steps);
        Design d;
        d.add({{2, false}, {6, false}});
        const QList<QByteArray> before = listBytes();
        const auto push = [&](int layer, LayerField field, int value, int session) {
            TuCeng v;
            v.gonglv = v.sudu = value;
            d.stack()->push(
                new LayerSettingCommand(&d.scene, LayerEdit{{layer, false}, field, v, session}));
        };
        push(2, LayerField::Power, 1, 7); // "1", "10", "100" typed
        push(2, LayerField::Power, 10, 7);
        push(secondLayer, secondField, 100, secondSession);
        QCOMPARE(d.stack()->count(), steps);
        const QList<QByteArray> after = listBytes();
        for (int i = 0; i < steps; ++i)
            d.stack()->undo();
        QCOMPARE(listBytes(), before);
        for (int i = 0; i < steps; ++i)
            d.stack()->redo();
        QCOMPARE(listBytes(), after);
    }

    void typingBackToTheStartLeavesNoStep()
    {
        Design d;
        d.add({{2, false}});
        const int start = LayerList::instance().find(2, false)->gonglv;
        for (int value : {5, 50, start}) {
            TuCeng v;
            v.gonglv = value;
            d.stack()->push(
                new LayerSettingCommand(&d.scene, LayerEdit{{2, false}, LayerField::Power, v, 3}));
        }
        QCOMPARE(d.stack()->count(), 0);
        QCOMPARE(LayerList::instance().find(2, false)->gonglv, start);
    }

    // Deleting a layer takes its items; undo brings back the items, the record
    // with every parameter and its place in the list, however often it is done.
    void deleteLayerRoundTrip_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<bool>("bitmap");
        QTest::newRow("first") << 3 << false;
        QTest::newRow("middle") << 1 << false;
        QTest::newRow("bitmap twin") << 1 << true;
        QTest::newRow("last") << 8 << false;
    }
    void deleteLayerRoundTrip()
    {
        QFETCH(int, number);
        QFETCH(bool, bitmap);
        Design d;
        // Each layer's first item added decides its place in the list.
        d.add({{8, false}, {1, true}, {1, false}, {5, false}, {1, false}, {3, false}});
        const QList<Jk_tu_yuan *> items = d.scene.designItems();
        const QVector<LayerKey> keys = listKeys();
        const QList<QByteArray> records = listBytes();
        const LayerKey key{number, bitmap};
        const int doomed = itemsOfLayer(&d.scene, key).size();
        QVERIFY(doomed > 0);

        d.stack()->push(new DeleteLayerCommand(&d.scene, key));
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(d.scene.designItemCount(), items.size() - doomed);
            QVERIFY(itemsOfLayer(&d.scene, key).isEmpty());
            QVERIFY(!LayerList::instance().find(key));
            QCOMPARE(listKeys().size(), keys.size() - 1);
            d.stack()->undo();
            QCOMPARE(d.scene.designItems(), items); // same items, same stacking
            QCOMPARE(listKeys(), keys);
            QCOMPARE(listBytes(), records);
            d.stack()->redo();
        }
    }

    // The record that loses its last item through any undoable edit comes back
    // unchanged when the edit is undone (or, for an add, redone).
    void orphanedRecordReturns_data()
    {
        QTest::addColumn<QString>("edit");
        QTest::newRow("delete items") << "delete";
        QTest::newRow("move items to another layer") << "change layer";
        QTest::newRow("redo of an add") << "add";
    }
    void orphanedRecordReturns()
    {
        QFETCH(QString, edit);
        Design d;
        d.add({{4, false}, {6, false}, {4, false}, {9, false}});
        const QList<Jk_tu_yuan *> layer4 = itemsOfLayer(&d.scene, {4, false});
        if (edit == QLatin1String("add")) {
            Jk_tu_yuan *item = makeItem(12);
            d.scene.addItemsUndoable({item});
            customise(*LayerList::instance().find(12, false), 40);
            const QList<QByteArray> records = listBytes();
            d.stack()->undo();
            QVERIFY(!LayerList::instance().find(12, false));
            d.stack()->redo();
            QCOMPARE(listBytes(), records);
            return;
        }
        const QList<QByteArray> records = listBytes();
        if (edit == QLatin1String("delete"))
            d.scene.deleteItemsUndoable(layer4);
        else
            d.stack()->push(new ChangeLayerCommand(&d.scene, layer4, 9));
        QVERIFY(!LayerList::instance().find(4, false));
        d.stack()->undo();
        QCOMPARE(listBytes(), records);
    }

    // A command finds its record by key even when the list replaced it.
    void settingFollowsAReplacedRecord()
    {
        Design d;
        d.add({{2, false}, {7, false}});
        const QList<QByteArray> before = listBytes();
        TuCeng v;
        v.sudu = 321;
        d.stack()->push(
            new LayerSettingCommand(&d.scene, LayerEdit{{2, false}, LayerField::Speed, v}));
        // The layer's only item goes and comes back: the record is a new object.
        d.scene.deleteItemsUndoable(itemsOfLayer(&d.scene, {2, false}));
        d.stack()->undo();
        QCOMPARE(LayerList::instance().find(2, false)->sudu, 321);
        d.stack()->undo();
        QCOMPARE(listBytes(), before);
    }

    void moveLayer_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<int>("to");
        QTest::addColumn<QVector<int>>("order");
        QTest::newRow("first down") << 0 << 1 << QVector<int>{7, 0, 5};
        QTest::newRow("last up") << 5 << 1 << QVector<int>{0, 5, 7};
        QTest::newRow("last to top") << 5 << 0 << QVector<int>{5, 0, 7};
    }
    void moveLayer()
    {
        QFETCH(int, number);
        QFETCH(int, to);
        QFETCH(QVector<int>, order);
        Design d;
        d.add({{0, false}, {7, false}, {5, false}});
        const QList<QByteArray> before = listBytes();
        programState().unsaved = false;
        auto *command = new MoveLayerCommand(&d.scene, {number, false}, to);
        QVERIFY(command->isValid());
        d.stack()->push(command);
        QVERIFY(programState().unsaved);
        QVector<int> got;
        for (const LayerKey &k : listKeys())
            got.append(k.number);
        QCOMPARE(got, order);
        d.rebuild(); // the rebuild keeps the order
        QCOMPARE(listKeys().at(to).number, number);
        d.stack()->undo();
        QCOMPARE(listBytes(), before);
    }

    void moveLayerRefusesNonsense()
    {
        Design d;
        d.add({{0, false}, {7, false}});
        QVERIFY(!MoveLayerCommand(&d.scene, {0, false}, 0).isValid()); // there already
        QVERIFY(!MoveLayerCommand(&d.scene, {7, false}, -1).isValid());
        QVERIFY(!MoveLayerCommand(&d.scene, {7, false}, 2).isValid());
        QVERIFY(!MoveLayerCommand(&d.scene, {3, false}, 1).isValid());
    }
};

QTEST_MAIN(TestLayerCommands)
#include "tst_layer_commands.moc"
