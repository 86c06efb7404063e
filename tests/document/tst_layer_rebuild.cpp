#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "layer_rebuild.h"
#include "program_state.h"

#include <QtTest>

using lumitra::programState;

// The layer list follows the items of a scene: one record per layer number
// and bitmap flag in use, in the order first met walking the items backwards.
class TestLayerRebuild : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void orderFollowsFirstItems_data();
    void orderFollowsFirstItems();
    void bitmapAndVectorOnOneNumberGiveTwoLayers();
    void lastItemGoneDropsLayerAndDefaultsReturn();
    void parametersSurviveWhileUsed();
    void frozenWhileRunning();
    void copyLeavesTickAlone();

private:
    static Jk_tu_yuan *vectorItem(int layer);
    static Jk_tu_yuan *bitmapItem(int layer);
    static QVector<LayerKey> listKeys();
};

void TestLayerRebuild::init()
{
    lumitra::resetProgramState();
    LayerList::instance().clear();
}

Jk_tu_yuan *TestLayerRebuild::vectorItem(int layer)
{
    auto *item = new Jk_tu_yuan(0);
    item->layer_id = layer;
    return item;
}

Jk_tu_yuan *TestLayerRebuild::bitmapItem(int layer)
{
    QImage image(4, 4, QImage::Format_Grayscale8);
    image.fill(0);
    auto *item = new Jk_tu_yuan(image);
    item->layer_id = layer;
    return item;
}

QVector<LayerKey> TestLayerRebuild::listKeys()
{
    QVector<LayerKey> keys;
    for (const TuCeng *l : LayerList::instance().layers())
        keys.append(LayerKey{l->yanse, l->tupian});
    return keys;
}

void TestLayerRebuild::orderFollowsFirstItems_data()
{
    QTest::addColumn<QVector<int>>("itemLayers"); // in the order added
    QTest::addColumn<QVector<int>>("listOrder");
    QTest::newRow("one layer") << QVector<int>{5} << QVector<int>{5};
    QTest::newRow("added order") << QVector<int>{3, 1, 2} << QVector<int>{3, 1, 2};
    QTest::newRow("repeats") << QVector<int>{7, 7, 0, 7, 0, 29} << QVector<int>{7, 0, 29};
    QTest::newRow("empty") << QVector<int>{} << QVector<int>{};
}

void TestLayerRebuild::orderFollowsFirstItems()
{
    QFETCH(QVector<int>, itemLayers);
    QFETCH(QVector<int>, listOrder);
    Jk_chang_jing scene;
    for (int layer : itemLayers)
        scene.addItem(vectorItem(layer));
    rebuildLayerList(&scene);
    QVector<int> got;
    for (const TuCeng *l : LayerList::instance().layers()) {
        got.append(l->yanse);
        QCOMPARE(l->mingcheng, QStringLiteral("L%1").arg(l->yanse));
        QVERIFY(!l->tupian);
        QVERIFY(!l->shanchu);
    }
    QCOMPARE(got, listOrder);
}

void TestLayerRebuild::bitmapAndVectorOnOneNumberGiveTwoLayers()
{
    Jk_chang_jing scene;
    scene.addItem(bitmapItem(0));
    scene.addItem(vectorItem(0));
    QVERIFY(rebuildLayerList(&scene));
    QCOMPARE(listKeys(), (QVector<LayerKey>{{0, true}, {0, false}}));
    TuCeng *bitmap = LayerList::instance().find(0, true);
    TuCeng *vector = LayerList::instance().find(0, false);
    QVERIFY(bitmap && vector && bitmap != vector);
    QCOMPARE(bitmap->yanse, 0);
    QCOMPARE(vector->yanse, 0);
    QCOMPARE(modeLabelsForPanel(bitmap->tupian).size(), 5);
    QCOMPARE(modeLabelsForPanel(vector->tupian).size(), 3);
    QVERIFY(!rebuildLayerList(&scene)); // nothing changes the second time
}

void TestLayerRebuild::lastItemGoneDropsLayerAndDefaultsReturn()
{
    Jk_chang_jing scene;
    Jk_tu_yuan *a = vectorItem(4);
    Jk_tu_yuan *b = vectorItem(4);
    scene.addItem(a);
    scene.addItem(b);
    scene.addItem(vectorItem(1));
    rebuildLayerList(&scene);
    TuCeng *layer = LayerList::instance().find(4, false);
    QVERIFY(layer);
    layer->gonglv = 33;
    layer->sudu = 1200;
    layer->cishu = 7;
    layer->jianju = 0.5;

    scene.removeItem(a);
    delete a;
    rebuildLayerList(&scene);
    QCOMPARE(LayerList::instance().find(4, false)->gonglv, 33); // still used by b

    scene.removeItem(b);
    delete b;
    QVERIFY(rebuildLayerList(&scene));
    QVERIFY(!LayerList::instance().find(4, false));
    QCOMPARE(listKeys(), (QVector<LayerKey>{{1, false}}));

    scene.addItem(vectorItem(4));
    rebuildLayerList(&scene);
    const TuCeng *fresh = LayerList::instance().find(4, false);
    QVERIFY(fresh);
    QCOMPARE(fresh->gonglv, 80);
    QCOMPARE(fresh->sudu, 5000);
    QCOMPARE(fresh->cishu, 1);
    QCOMPARE(fresh->jianju, 0.1);
    QCOMPARE(fresh->mingcheng, QStringLiteral("L4"));
}

void TestLayerRebuild::parametersSurviveWhileUsed()
{
    Jk_chang_jing scene;
    scene.addItem(vectorItem(2));
    rebuildLayerList(&scene);
    TuCeng *layer = LayerList::instance().find(2, false);
    layer->moshi = FillMode;
    layer->mingcheng = QStringLiteral("cut");
    scene.addItem(vectorItem(9));
    rebuildLayerList(&scene);
    QCOMPARE(LayerList::instance().find(2, false), layer);
    QCOMPARE(layer->moshi, int(FillMode));
    QCOMPARE(layer->mingcheng, QStringLiteral("cut"));
    QCOMPARE(listKeys(), (QVector<LayerKey>{{2, false}, {9, false}}));
}

void TestLayerRebuild::frozenWhileRunning()
{
    Jk_chang_jing scene;
    Jk_tu_yuan *item = vectorItem(6);
    scene.addItem(item);
    rebuildLayerList(&scene);
    programState().running = true;
    scene.addItem(bitmapItem(8));
    scene.removeItem(item);
    QVERIFY(!rebuildLayerList(&scene));
    QCOMPARE(listKeys(), (QVector<LayerKey>{{6, false}}));
    programState().running = false;
    QVERIFY(rebuildLayerList(&scene));
    QCOMPARE(listKeys(), (QVector<LayerKey>{{8, true}}));
    delete item;
}

void TestLayerRebuild::copyLeavesTickAlone()
{
    TuCeng a(3, false);
    a.gonglv = 12;
    a.xuanzhong = true;
    TuCeng b(5, true);
    b = a;
    QCOMPARE(b.yanse, 3);
    QCOMPARE(b.gonglv, 12);
    QVERIFY(!b.tupian);
    QVERIFY(!b.xuanzhong);
    const TuCeng c(a);
    QVERIFY(!c.xuanzhong);
}

QTEST_MAIN(TestLayerRebuild)
#include "tst_layer_rebuild.moc"
