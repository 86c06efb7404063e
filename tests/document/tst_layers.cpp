#include "design_pages.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "layer_palette_bar.h"
#include "layer_panel_controller.h"
#include "layer_rebuild.h"
#include "layer_rows_panel.h"
#include "program_state.h"
#include "tu_ceng_item2.h"
#include "tu_ceng_zhi.h"

#include "layer_bytes.h"
#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDataStream>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QSignalSpy>
#include <QSpinBox>
#include <QUndoStack>
#include <QVBoxLayout>

#include <QtTest>

using lumitra::programState;

namespace {

Jk_tu_yuan *makeItem(int layer, bool bitmap = false)
{
    QImage img(8, 8, QImage::Format_Grayscale8);
    img.fill(0);
    auto *item = bitmap ? new Jk_tu_yuan(img) : new Jk_tu_yuan(0);
    item->layer_id = layer;
    return item;
}

QVector<LayerKey> listKeys()
{
    QVector<LayerKey> keys;
    for (const TuCeng *l : LayerList::instance().layers())
        keys.append(LayerKey{l->yanse, l->tupian});
    return keys;
}

QVector<LayerKey> rowKeys(const LayerRowsPanel &rows)
{
    QVector<LayerKey> keys;
    for (const TuCengItem2 *row : rows.rows())
        keys.append(LayerKey{row->layer()->yanse, row->layer()->tupian});
    return keys;
}

QStringList comboTexts(const QComboBox *box)
{
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts.append(box->itemText(i));
    return texts;
}

// The record field behind a numeric widget of the parameter panel.
double fieldValue(const TuCeng &l, const QString &box)
{
    return box == QLatin1String("jianju_Box")      ? l.jianju
           : box == QLatin1String("saomiao_Box")   ? l.saomiao
           : box == QLatin1String("fangxiang_Box") ? l.fangxiang
           : box == QLatin1String("sudu_Box")      ? l.sudu
           : box == QLatin1String("gonglv_Box")    ? l.gonglv
                                                   : l.cishu;
}

void setField(TuCeng &l, const QString &box, double v)
{
    if (box == QLatin1String("jianju_Box"))
        l.jianju = v;
    else if (box == QLatin1String("saomiao_Box"))
        l.saomiao = v;
    else
        (box == QLatin1String("fangxiang_Box") ? l.fangxiang
         : box == QLatin1String("sudu_Box")    ? l.sudu
         : box == QLatin1String("gonglv_Box")  ? l.gonglv
                                               : l.cishu) = qint32(v);
}

// Stands in for the controller: every edit the panel asks for is written into
// `layer` and the panel shows the record again.
void applyEditsTo(Tu_Ceng_Zhi &panel, TuCeng &layer)
{
    QObject::connect(&panel, &Tu_Ceng_Zhi::editRequested, &panel, [&](const LayerEdit &edit) {
        QCOMPARE(edit.key, (LayerKey{layer.yanse, layer.tupian}));
        copyLayerField(layer, edit.value, edit.field);
        panel.refresh();
    });
}

// A wheel notch downwards over the middle of `w`; true when it was taken.
bool wheel(QWidget *w)
{
    const QPoint local = w->rect().center();
    QWheelEvent event(local, w->mapToGlobal(local), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(w, &event);
    return event.isAccepted();
}

bool focusOn(QWidget *w)
{
    QApplication::setActiveWindow(w->window());
    w->setFocus(Qt::OtherFocusReason);
    return QTest::qWaitFor([w] { return w->hasFocus(); });
}

template<typename T> T *child(QWidget &w, const char *name)
{
    T *c = w.findChild<T *>(QLatin1String(name));
    if (!c)
        qFatal("missing widget %s", name);
    return c;
}

struct Fixture
{
    DesignPages pages;
    LayerRowsPanel rows;
    LayerPaletteBar palette;
    Tu_Ceng_Zhi panel;
    LayerPanelController controller{&pages, &rows, &palette, &panel};
    Jk_chang_jing *scene() { return pages.currentScene(); }
    Jk_tu_yuan *add(int layer, bool bitmap = false)
    {
        Jk_tu_yuan *item = makeItem(layer, bitmap);
        scene()->addItemsUndoable({item});
        return item;
    }
};

} // namespace

// Layers: the list rebuilt from the items, the parameter panel, the palette
// bar, the layer rows and the controller that keeps them in step with the page.
class TestLayers : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        lumitra::resetProgramState();
        LayerList::instance().clear();
    }

    void orderFollowsFirstItems_data()
    {
        QTest::addColumn<QVector<int>>("itemLayers"); // in the order added
        QTest::addColumn<QVector<int>>("listOrder");
        QTest::newRow("added order") << QVector<int>{3, 1, 2} << QVector<int>{3, 1, 2};
        QTest::newRow("repeats") << QVector<int>{7, 7, 0, 7, 0, 29} << QVector<int>{7, 0, 29};
        QTest::newRow("empty") << QVector<int>{} << QVector<int>{};
    }
    void orderFollowsFirstItems()
    {
        QFETCH(QVector<int>, itemLayers);
        QFETCH(QVector<int>, listOrder);
        Jk_chang_jing scene;
        for (int layer : itemLayers)
            scene.addItem(makeItem(layer));
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

    void bitmapAndVectorOnOneNumberGiveTwoLayers()
    {
        Jk_chang_jing scene;
        scene.addItem(makeItem(0, true));
        scene.addItem(makeItem(0));
        QVERIFY(rebuildLayerList(&scene));
        QCOMPARE(listKeys(), (QVector<LayerKey>{{0, true}, {0, false}}));
        TuCeng *bitmap = LayerList::instance().find(0, true);
        TuCeng *vector = LayerList::instance().find(0, false);
        QVERIFY(bitmap && vector && bitmap != vector);
        QVERIFY(!rebuildLayerList(&scene)); // nothing changes the second time
    }

    void lastItemGoneDropsLayerAndDefaultsReturn()
    {
        Jk_chang_jing scene;
        Jk_tu_yuan *a = makeItem(4);
        Jk_tu_yuan *b = makeItem(4);
        scene.addItem(a);
        scene.addItem(b);
        scene.addItem(makeItem(1));
        rebuildLayerList(&scene);
        TuCeng *layer = LayerList::instance().find(4, false);
        QVERIFY(layer);
        layer->gonglv = 33;
        layer->sudu = 1200;
        layer->cishu = 7;
        layer->jianju = 0.5;
        layer->mingcheng = QStringLiteral("cut");

        delete a;
        scene.addItem(makeItem(9));
        rebuildLayerList(&scene);
        QCOMPARE(LayerList::instance().find(4, false), layer); // still used by b
        QCOMPARE(layer->gonglv, 33);
        QCOMPARE(layer->mingcheng, QStringLiteral("cut"));

        delete b;
        QVERIFY(rebuildLayerList(&scene));
        QVERIFY(!LayerList::instance().find(4, false));
        QCOMPARE(listKeys(), (QVector<LayerKey>{{1, false}, {9, false}}));

        scene.addItem(makeItem(4));
        rebuildLayerList(&scene);
        const TuCeng *fresh = LayerList::instance().find(4, false);
        QVERIFY(fresh);
        QCOMPARE(fresh->gonglv, 80);
        QCOMPARE(fresh->sudu, 5000);
        QCOMPARE(fresh->cishu, 1);
        QCOMPARE(fresh->jianju, 0.1);
        QCOMPARE(fresh->mingcheng, QStringLiteral("L4"));
    }

    void frozenWhileRunning()
    {
        Jk_chang_jing scene;
        Jk_tu_yuan *item = makeItem(6);
        scene.addItem(item);
        rebuildLayerList(&scene);
        programState().running = true;
        scene.addItem(makeItem(8, true));
        scene.removeItem(item);
        QVERIFY(!rebuildLayerList(&scene));
        QCOMPARE(listKeys(), (QVector<LayerKey>{{6, false}}));
        programState().running = false;
        QVERIFY(rebuildLayerList(&scene));
        QCOMPARE(listKeys(), (QVector<LayerKey>{{8, true}}));
        delete item;
    }

    void copyLeavesTickAlone()
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
        QVERIFY(!TuCeng(a).xuanzhong);
    }

    // Each numeric widget: range, step and default; filled from a record
    // without an edit notice; an edit written back.
    void panelNumbers_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<double>("step");
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("stored");
        QTest::addColumn<double>("edited");
        QTest::newRow("fangxiang")
            << "fangxiang_Box" << 0.0 << 360.0 << 1.0 << 0.0 << 45.0 << 120.0;
        QTest::newRow("jianju") << "jianju_Box" << 0.01 << 100.0 << 0.01 << 0.1 << 0.25 << 0.07;
        QTest::newRow("saomiao") << "saomiao_Box" << 0.0 << 100.0 << 1.0 << 0.0 << 2.5 << 1.25;
        QTest::newRow("sudu") << "sudu_Box" << 5.0 << 99999999.0 << 1.0 << 5000.0 << 1234.0
                              << 777.0;
        QTest::newRow("gonglv") << "gonglv_Box" << 0.0 << 100.0 << 1.0 << 80.0 << 55.0 << 33.0;
        QTest::newRow("cishu") << "cishu_Box" << 1.0 << 999.0 << 1.0 << 1.0 << 3.0 << 4.0;
    }
    void panelNumbers()
    {
        QFETCH(QString, name);
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QFETCH(double, step);
        QFETCH(double, value);
        QFETCH(double, stored);
        QFETCH(double, edited);
        Tu_Ceng_Zhi panel;
        QVERIFY(!panel.isEnabled());
        auto *box = panel.findChild<QAbstractSpinBox *>(name);
        QVERIFY2(box, qPrintable(name));
        auto *ibox = qobject_cast<QSpinBox *>(box);
        auto *dbox = qobject_cast<QDoubleSpinBox *>(box);
        const auto get = [&] { return ibox ? double(ibox->value()) : dbox->value(); };
        const auto set = [&](double v) { ibox ? ibox->setValue(int(v)) : dbox->setValue(v); };
        QCOMPARE(ibox ? double(ibox->minimum()) : dbox->minimum(), minimum);
        QCOMPARE(ibox ? double(ibox->maximum()) : dbox->maximum(), maximum);
        QCOMPARE(ibox ? double(ibox->singleStep()) : dbox->singleStep(), step);
        QCOMPARE(get(), value);
        if (dbox)
            QCOMPARE(dbox->decimals(), 2);

        TuCeng layer(12, false);
        layer.moshi = FillMode; // fill fields shown
        setField(layer, name, stored);
        QSignalSpy spy(&panel, &Tu_Ceng_Zhi::editRequested);
        applyEditsTo(panel, layer);
        panel.setLayer(&layer);
        QVERIFY(panel.isEnabled());
        QCOMPARE(spy.count(), 0); // filling is no edit
        QCOMPARE(get(), stored);
        QVERIFY(!box->isReadOnly());
        set(edited);
        QCOMPARE(fieldValue(layer, name), edited);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.last().at(0).value<LayerEdit>().key, (LayerKey{12, false}));

        panel.setLayer(nullptr); // nothing to write to
        QVERIFY(!panel.isEnabled());
        set(stored);
        QCOMPARE(fieldValue(layer, name), edited);
    }

    // Kerf and cut order: shown from the record, edited through the box and
    // the selector, not offered for bitmap layers.
    void panelKerfAndCutOrder()
    {
        Tu_Ceng_Zhi panel;
        auto *kerf = child<QDoubleSpinBox>(panel, "kerf_Box");
        auto *order = child<QComboBox>(panel, "cutOrder_Box");
        QCOMPARE(kerf->minimum(), 0.0);
        QCOMPARE(kerf->maximum(), 5.0);
        QCOMPARE(kerf->decimals(), 3);
        QCOMPARE(order->count(), 2);
        TuCeng layer(6, false);
        layer.kerf = 0.15;
        layer.cutOrder = CutOptimised;
        QSignalSpy spy(&panel, &Tu_Ceng_Zhi::editRequested);
        applyEditsTo(panel, layer);
        panel.setLayer(&layer);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(kerf->value(), 0.15);
        QCOMPARE(order->currentIndex(), 1);
        QVERIFY(kerf->isEnabled() && order->isEnabled());

        kerf->setValue(0.08);
        QCOMPARE(layer.kerf, 0.08);
        QCOMPARE(spy.last().at(0).value<LayerEdit>().field, LayerField::Kerf);
        order->setFocus();
        QTest::keyClick(order, Qt::Key_Up);
        QCOMPARE(layer.cutOrder, int(CutAsDrawn));
        QCOMPARE(spy.last().at(0).value<LayerEdit>().field, LayerField::CutOrder);
        QCOMPARE(spy.count(), 2);

        TuCeng bitmap(6, true);
        panel.setLayer(&bitmap);
        QVERIFY(!kerf->isEnabled() && !order->isEnabled());
    }

    void panelTextsAndChecks()
    {
        Tu_Ceng_Zhi panel;
        QStringList labels;
        for (const QLabel *l : panel.findChildren<QLabel *>())
            labels.append(l->text());
        for (const char *text : {"填充方向(°)：", "填充间距(mm)：", "过扫描mm)：", "速度(mm/min)：",
                                 "功率(%)：", "循环次数"})
            QVERIFY2(labels.contains(QString::fromUtf8(text)), text);
        QVERIFY(child<QCheckBox>(panel, "shuchu_Box")->isChecked());

        TuCeng layer(12, true);
        layer.moshi = 1;
        layer.mingcheng = QStringLiteral("engrave");
        layer.shuchu = false;
        applyEditsTo(panel, layer);
        panel.setLayer(&layer);
        QCOMPARE(panel.layerKey(), (LayerKey{12, true}));
        QCOMPARE(child<QComboBox>(panel, "moshi_Box")->currentIndex(), 1);
        QCOMPARE(child<QLineEdit>(panel, "mingcheng_Edit")->text(), QStringLiteral("engrave"));
        QVERIFY(!child<QCheckBox>(panel, "shuchu_Box")->isChecked());
        QVERIFY(child<QCheckBox>(panel, "xianshi_Box")->isChecked());
        QVERIFY(!child<QCheckBox>(panel, "danxaing_Box")->isChecked());
        QVERIFY(!child<QCheckBox>(panel, "jingxi_Box")->isChecked());
        QCOMPARE(child<QCheckBox>(panel, "jingxi_Box")->text(), QStringLiteral("精细曲线"));

        QSignalSpy spy(&panel, &Tu_Ceng_Zhi::editRequested);
        child<QCheckBox>(panel, "jingxi_Box")->setChecked(true);
        QVERIFY(layer.jingxi);
        QCOMPARE(spy.last().first().value<LayerEdit>().field, LayerField::FineCurves);
        child<QCheckBox>(panel, "danxaing_Box")->setChecked(true);
        child<QCheckBox>(panel, "shuchu_Box")->setChecked(true);
        child<QCheckBox>(panel, "xianshi_Box")->setChecked(false);
        QLineEdit *name = child<QLineEdit>(panel, "mingcheng_Edit");
        name->selectAll();
        QTest::keyClicks(name, QStringLiteral("photo"));
        QVERIFY(layer.danxiang);
        QVERIFY(layer.shuchu);
        QVERIFY(!layer.xianshi);
        QCOMPARE(layer.mingcheng, QStringLiteral("photo"));
        QCOMPARE(spy.count(), 4 + 5);
    }

    // The panel and the row label the fifth bitmap mode differently.
    void modeLabelsFollowLayerKind_data()
    {
        QTest::addColumn<bool>("bitmap");
        QTest::addColumn<QStringList>("panelLabels");
        QTest::addColumn<QStringList>("rowLabels");
        const QStringList vector{"线条", "填充", "交叉填充"};
        QTest::newRow("vector") << false << vector << vector;
        QTest::newRow("bitmap") << true << QStringList{"黑白", "抖动", "轮廓", "灰度", "负向"}
                                << QStringList{"黑白", "抖动", "轮廓", "灰度", "负像"};
    }
    void modeLabelsFollowLayerKind()
    {
        QFETCH(bool, bitmap);
        QFETCH(QStringList, panelLabels);
        QFETCH(QStringList, rowLabels);
        TuCeng layer(11, bitmap);
        layer.moshi = 2;
        layer.shuchu = false;
        layer.mingcheng = QStringLiteral("outline");
        Tu_Ceng_Zhi panel;
        panel.setLayer(&layer);
        QComboBox *box = child<QComboBox>(panel, "moshi_Box");
        QCOMPARE(comboTexts(box), panelLabels);
        TuCeng other(0, !bitmap); // refilling with the other kind replaces the list
        panel.setLayer(&other);
        QCOMPARE(box->count(), bitmap ? 3 : 5);

        TuCengItem2 row(&layer);
        auto *swatch = child<QLabel>(row, "ceng");
        QCOMPARE(swatch->text(), QStringLiteral("11"));
        QVERIFY(swatch->styleSheet().contains(QStringLiteral("color: white")));
        QVERIFY(swatch->styleSheet().contains(QStringLiteral("rgb(4, 164, 4)")));
        QVERIFY(swatch->styleSheet().contains(QStringLiteral("border-right: 1px solid #E6E6E6")));
        QCOMPARE(child<QLabel>(row, "mingcheng")->text(), QStringLiteral("outline"));
        QCOMPARE(comboTexts(child<QComboBox>(row, "moshi")), rowLabels);
        QCOMPARE(child<QComboBox>(row, "moshi")->currentIndex(), 2);
        QVERIFY(!child<QCheckBox>(row, "shuchu")->isChecked());
        QVERIFY(child<QCheckBox>(row, "xianshi")->isChecked());
        child<QAbstractButton>(row, "delete_Btn");
    }

    void lineModeBlanksFillFields()
    {
        TuCeng layer(3, false);
        layer.fangxiang = 90;
        layer.jianju = 0.3;
        layer.saomiao = 4;
        Tu_Ceng_Zhi panel;
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        applyEditsTo(panel, layer);
        panel.setLayer(&layer);
        const auto blank = [&](bool yes) {
            for (const char *name : {"fangxiang_Box", "jianju_Box", "saomiao_Box"}) {
                auto *box = child<QAbstractSpinBox>(panel, name);
                QVERIFY2(box->text().isEmpty() == yes, name);
                QVERIFY2(box->isReadOnly() == yes, name);
            }
        };
        blank(true);
        QVERIFY(!child<QSpinBox>(panel, "sudu_Box")->isReadOnly());
        // Focus passing through a blank field leaves it blank and the record alone.
        child<QDoubleSpinBox>(panel, "jianju_Box")->setFocus();
        child<QSpinBox>(panel, "sudu_Box")->setFocus();
        blank(true);
        QCOMPARE(layer.jianju, 0.3);

        QSignalSpy spy(&panel, &Tu_Ceng_Zhi::editRequested);
        QComboBox *mode = child<QComboBox>(panel, "moshi_Box");
        QTest::keyClick(mode, Qt::Key_Down); // line -> fill, as the user picks it
        QCOMPARE(layer.moshi, int(FillMode));
        blank(false);
        QCOMPARE(child<QSpinBox>(panel, "fangxiang_Box")->text(), QStringLiteral("90"));
        QTest::keyClick(mode, Qt::Key_Up); // back to line
        QCOMPARE(layer.moshi, int(LineMode));
        blank(true);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(layer.fangxiang, 90); // the record is untouched by blanking

        TuCeng bitmap(0, true); // a bitmap layer in its first mode keeps them editable
        panel.setLayer(&bitmap);
        blank(false);
        QCOMPARE(child<QDoubleSpinBox>(panel, "jianju_Box")->text(), QStringLiteral("0.10"));
    }

    void rangesRefuseTypedValues_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::newRow("speed below 5") << "sudu_Box"
                                       << "3" << 5 << 99999999;
        QTest::newRow("passes below 1") << "cishu_Box"
                                        << "0" << 1 << 999;
        QTest::newRow("passes negative") << "cishu_Box"
                                         << "-4" << 1 << 999;
        QTest::newRow("power 101") << "gonglv_Box"
                                   << "101" << 0 << 100;
    }
    void rangesRefuseTypedValues()
    {
        QFETCH(QString, box);
        QFETCH(QString, typed);
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        TuCeng layer(0, false);
        Tu_Ceng_Zhi panel;
        panel.show();
        applyEditsTo(panel, layer);
        panel.setLayer(&layer);
        auto *spin = panel.findChild<QSpinBox *>(box);
        spin->setFocus();
        spin->selectAll();
        QTest::keyClicks(spin, typed);
        QTest::keyClick(spin, Qt::Key_Enter);
        spin->clearFocus();
        const double stored = fieldValue(layer, box);
        QVERIFY2(stored >= minimum && stored <= maximum, qPrintable(QString::number(stored)));
        QVERIFY(spin->value() >= minimum && spin->value() <= maximum);
        // Setting the value directly is clamped as well.
        spin->setValue(minimum - 1);
        QCOMPARE(spin->value(), minimum);
        spin->setValue(maximum + 1);
        QCOMPARE(spin->value(), maximum);
    }

    void paletteButtons_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("darkText");
        QTest::newRow("3") << 3 << "03" << true;
        QTest::newRow("25") << 25 << "25" << false;
        QTest::newRow("29") << 29 << "29" << true;
    }
    void paletteButtons()
    {
        QFETCH(int, number);
        QFETCH(QString, label);
        QFETCH(bool, darkText);
        LayerPaletteBar bar;
        QAbstractButton *b = bar.button(number);
        QVERIFY(b);
        QCOMPARE(b->objectName(), label);
        QCOMPARE(b->text(), label);
        QCOMPARE(b->size(), QSize(20, 20));
        QVERIFY(b->isCheckable());
        QVERIFY(b->group() && b->group()->exclusive());
        const QColor c = layerColor(number);
        QVERIFY(b->styleSheet().contains(
            QStringLiteral("rgb(%1, %2, %3)").arg(c.red()).arg(c.green()).arg(c.blue())));
        QVERIFY(b->styleSheet().contains(darkText ? QStringLiteral("color: black")
                                                  : QStringLiteral("color: white")));
    }

    void paletteClickPicksLayer()
    {
        LayerPaletteBar bar;
        QCOMPARE(bar.findChildren<QAbstractButton *>().size(), 30);
        QCOMPARE(qobject_cast<QHBoxLayout *>(bar.layout())->spacing(), 8);
        QVERIFY(bar.button(0)->isChecked()); // starts on layer 0
        QCOMPARE(bar.button(0)->text(), QStringLiteral("√"));
        QCOMPARE(bar.checkedLayer(), 0);
        QSignalSpy spy(&bar, &LayerPaletteBar::layerPicked);
        QTest::mouseClick(bar.button(17), Qt::LeftButton);
        QCOMPARE(programState().currentLayer, 17);
        QCOMPARE(bar.button(17)->text(), QStringLiteral("√"));
        QCOMPARE(bar.button(0)->text(), QStringLiteral("00"));
        QVERIFY(bar.button(17)->isChecked());
        QVERIFY(!bar.button(0)->isChecked());
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toInt(), 17);
        bar.setCheckedLayer(9); // shown only
        QCOMPARE(bar.button(9)->text(), QStringLiteral("√"));
        QCOMPARE(bar.button(17)->text(), QStringLiteral("17"));
        QCOMPARE(spy.count(), 1);
    }

    void paletteMovesSelectionUndoably()
    {
        Fixture f;
        Jk_tu_yuan *a = f.add(0);
        Jk_tu_yuan *b = f.add(0);
        Jk_tu_yuan *c = f.add(2);
        f.scene()->clearSelection();
        a->setSelected(true);
        c->setSelected(true);
        programState().unsaved = false;
        QTest::mouseClick(f.palette.button(5), Qt::LeftButton);
        QCOMPARE(a->layer_id, 5);
        QCOMPARE(b->layer_id, 0);
        QCOMPARE(c->layer_id, 5);
        QVERIFY(programState().unsaved);
        // Layer 5 joins behind layer 0; layer 2 lost its only item.
        QCOMPARE(rowKeys(f.rows), (QVector<LayerKey>{{0, false}, {5, false}}));
        f.scene()->undoStack()->undo();
        QCOMPARE(a->layer_id, 0);
        QCOMPARE(c->layer_id, 2);
        QCOMPARE(rowKeys(f.rows), (QVector<LayerKey>{{0, false}, {2, false}}));
        // Nothing selected: the current layer changes, no edit is made.
        f.scene()->clearSelection();
        const int commands = f.scene()->undoStack()->count();
        QTest::mouseClick(f.palette.button(8), Qt::LeftButton);
        QCOMPARE(f.scene()->undoStack()->count(), commands);
        QCOMPARE(programState().currentLayer, 8);
    }

    void rowsFollowTheLayerList()
    {
        Fixture f;
        QVERIFY(f.rows.rows().isEmpty());
        QVERIFY(f.rows.findChild<QWidget *>(QStringLiteral("header"))->isHidden());
        f.add(3);
        f.add(0, true);
        f.add(0);
        f.add(3);
        QCOMPARE(rowKeys(f.rows), (QVector<LayerKey>{{3, false}, {0, true}, {0, false}}));
        QCOMPARE(f.rows.rowButtons()->buttons().size(), 3);
        QVERIFY(!f.rows.findChild<QWidget *>(QStringLiteral("header"))->isHidden());
        for (int i = 0; i < f.rows.rows().size(); ++i)
            QCOMPARE(f.rows.rows().at(i)->layer(), LayerList::instance().layers().at(i));
    }

    void rowEditsMarkUnsavedAndRepaint()
    {
        Fixture f;
        Jk_tu_yuan *item = f.add(1);
        QVERIFY(item->isSelected());
        programState().unsaved = false;
        TuCengItem2 *row = f.rows.rows().first();
        child<QCheckBox>(*row, "xianshi")->click();
        TuCeng *layer = LayerList::instance().find(1, false);
        QVERIFY(!layer->xianshi);
        QVERIFY(programState().unsaved);
        // The rows were rebuilt around the same record.
        QCOMPARE(f.rows.rows().size(), 1);
        QCOMPARE(f.rows.rows().first()->layer(), layer);
        QVERIFY(row->isHidden());
        // The item is repainted from its record: hidden, so deselected.
        QImage image(50, 50, QImage::Format_ARGB32);
        QPainter p(&image);
        f.scene()->render(&p);
        p.end();
        QVERIFY(!item->isSelected());

        programState().unsaved = false;
        auto *mode = child<QComboBox>(*f.rows.rows().first(), "moshi");
        f.rows.rows().first()->show();
        mode->setFocus();
        QTest::keyClick(mode, Qt::Key_Down);
        QCOMPARE(layer->moshi, int(FillMode));
        QVERIFY(programState().unsaved);
    }

    void rowTickAndDoubleClick()
    {
        Fixture f;
        f.add(2);
        f.add(6, true);
        TuCengItem2 *row = f.rows.rows().at(1);
        QSignalSpy checked(&f.rows, &LayerRowsPanel::sendCengChecked);
        QSignalSpy rowChecked(row, &TuCengItem2::sendCengChecked);
        QTest::mouseClick(child<QLabel>(*row, "mingcheng"), Qt::LeftButton);
        QVERIFY(row->layer()->xuanzhong);
        QCOMPARE(checked.count(), 1);
        QCOMPARE(rowChecked.at(0).at(1).toBool(), true);
        QTest::mouseClick(row, Qt::LeftButton);
        QVERIFY(!row->layer()->xuanzhong);
        QCOMPARE(checked.last().at(1).toBool(), false);

        QSignalSpy shown(&f.controller, &LayerPanelController::parametersShown);
        QTest::mouseDClick(child<QLabel>(*row, "ceng"), Qt::LeftButton);
        QCOMPARE(shown.count(), 1);
        QCOMPARE(f.panel.layer(), LayerList::instance().find(6, true));
        QCOMPARE(child<QComboBox>(f.panel, "moshi_Box")->count(), 5);
    }

    // Dragging a row moves its layer (one undoable step); a click still ticks.
    void dragRowMovesTheLayer()
    {
        Fixture f;
        f.add(1);
        f.add(2);
        f.add(3);
        f.rows.resize(600, 400);
        f.rows.show();
        QVERIFY(QTest::qWaitForWindowExposed(&f.rows));
        QCOMPARE(rowKeys(f.rows), (QVector<LayerKey>{{1, false}, {2, false}, {3, false}}));
        QSignalSpy moved(&f.rows, &LayerRowsPanel::moveRequested);
        QSignalSpy checked(&f.rows, &LayerRowsPanel::sendCengChecked);
        const auto drag = [](TuCengItem2 *row, TuCengItem2 *onto) {
            const QPoint start = row->rect().center();
            const QPoint end = row->mapFromGlobal(onto->mapToGlobal(onto->rect().center()));
            QTest::mousePress(row, Qt::LeftButton, {}, start);
            for (int step = 1; step <= 4; ++step) {
                const QPoint p = start + (end - start) * step / 4;
                QMouseEvent move(QEvent::MouseMove, p, row->mapToGlobal(p), Qt::NoButton,
                                 Qt::LeftButton, Qt::NoModifier);
                QApplication::sendEvent(row, &move);
            }
            QTest::mouseRelease(row, Qt::LeftButton, {}, end);
        };
        drag(f.rows.rows().at(0), f.rows.rows().at(2));
        QCOMPARE(moved.count(), 1);
        QCOMPARE(moved.last().at(0).value<LayerKey>(), (LayerKey{1, false}));
        QCOMPARE(moved.last().at(1).toInt(), 2);
        QCOMPARE(checked.count(), 0); // a drag is no click
        QCoreApplication::processEvents();
        QCOMPARE(listKeys(), (QVector<LayerKey>{{2, false}, {3, false}, {1, false}}));
        QCOMPARE(rowKeys(f.rows), listKeys());
        f.scene()->undoStack()->undo();
        QCOMPARE(listKeys(), (QVector<LayerKey>{{1, false}, {2, false}, {3, false}}));
        QCoreApplication::processEvents(); // the new rows are laid out

        drag(f.rows.rows().at(2), f.rows.rows().at(1)); // upwards
        QCOMPARE(moved.count(), 2);
        QCOMPARE(moved.last().at(0).value<LayerKey>(), (LayerKey{3, false}));
        QCOMPARE(moved.last().at(1).toInt(), -1);
        QCOMPARE(listKeys(), (QVector<LayerKey>{{1, false}, {3, false}, {2, false}}));

        // Released where it was pressed: a click, the row ticks.
        QCoreApplication::processEvents();
        TuCengItem2 *row = f.rows.rows().at(0);
        QTest::mouseClick(row, Qt::LeftButton);
        QCOMPARE(checked.count(), 1);
        QVERIFY(row->layer()->xuanzhong);
        QCOMPARE(moved.count(), 2);
    }

    // The row's delete takes the layer's items as one step; undo brings back
    // the items and the layer's record with every parameter at its place.
    void deleteButtonRemovesTheLayersItems()
    {
        Fixture f;
        f.add(2);
        f.add(4);
        f.add(2);
        f.add(2, true);
        QCOMPARE(f.rows.rows().size(), 3);
        TuCeng *layer = LayerList::instance().find(2, false);
        layer->gonglv = 15;
        layer->sudu = 700;
        layer->moshi = FillMode;
        layer->jianju = 0.2;
        layer->cishu = 3;
        layer->mingcheng = QStringLiteral("score");
        layer->shuchu = false;
        const QList<QByteArray> records = listBytes();
        const QList<Jk_tu_yuan *> items = f.scene()->designItems();
        TuCengItem2 *row = f.rows.rows().first();
        QCOMPARE(row->key(), (LayerKey{2, false}));
        programState().unsaved = false;
        QTest::mouseClick(row->deleteButton(), Qt::LeftButton);
        QVERIFY(programState().unsaved);
        QCOMPARE(f.scene()->designItemCount(), 2);
        QCOMPARE(rowKeys(f.rows), (QVector<LayerKey>{{4, false}, {2, true}}));
        f.scene()->undoStack()->undo();
        QCOMPARE(f.scene()->designItems(), items);
        QCOMPARE(listBytes(), records);
        QCOMPARE(rowKeys(f.rows), (QVector<LayerKey>{{2, false}, {4, false}, {2, true}}));
        QCOMPARE(child<QLabel>(*f.rows.rows().first(), "mingcheng")->text(),
                 QStringLiteral("score"));
        f.scene()->undoStack()->redo();
        QCOMPARE(f.scene()->designItemCount(), 2);
    }

    // Mode, output and show changed in a row are undo steps.
    void rowEditsAreUndoSteps_data()
    {
        QTest::addColumn<QString>("widget");
        QTest::newRow("mode") << "moshi";
        QTest::newRow("output") << "shuchu";
        QTest::newRow("show") << "xianshi";
    }
    void rowEditsAreUndoSteps()
    {
        QFETCH(QString, widget);
        Fixture f;
        f.add(1);
        f.add(6);
        const QList<QByteArray> before = listBytes();
        const auto rowWidget = [&] { return f.rows.rows().at(1)->findChild<QWidget *>(widget); };
        if (auto *mode = qobject_cast<QComboBox *>(rowWidget()))
            QTest::keyClick(mode, Qt::Key_Down);
        else
            qobject_cast<QCheckBox *>(rowWidget())->click();
        QCOMPARE(f.scene()->undoStack()->count(), 3); // two adds and the edit
        const QList<QByteArray> after = listBytes();
        QVERIFY(after != before);
        QCOMPARE(after.at(0), before.at(0));
        f.scene()->undoStack()->undo();
        QCOMPARE(listBytes(), before);
        // The new rows show the record as it is again.
        const TuCeng *layer = LayerList::instance().find(6, false);
        if (auto *mode = qobject_cast<QComboBox *>(rowWidget()))
            QCOMPARE(mode->currentIndex(), layer->moshi);
        else
            QCOMPARE(qobject_cast<QCheckBox *>(rowWidget())->isChecked(),
                     widget == QLatin1String("shuchu") ? layer->shuchu : layer->xianshi);
        f.scene()->undoStack()->redo();
        QCOMPARE(listBytes(), after);
    }

    // Typing "100" into the power box is one step; a second stretch of typing
    // after the box finished editing is another. The panel shows what undo gives back.
    void panelTypingIsOneStepEach()
    {
        Fixture f;
        f.add(3);
        f.panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&f.panel));
        f.controller.showParameters(LayerList::instance().find(3, false));
        QUndoStack *stack = f.scene()->undoStack();
        const int start = stack->count();
        auto *power = child<QSpinBox>(f.panel, "gonglv_Box");
        QVERIFY(focusOn(power));
        power->selectAll();
        QTest::keyClicks(power, QStringLiteral("100"));
        QCOMPARE(LayerList::instance().find(3, false)->gonglv, 100);
        QCOMPARE(power->text(), QStringLiteral("100"));
        QCOMPARE(stack->count(), start + 1);
        QTest::keyClick(power, Qt::Key_Enter); // finishes the stretch
        power->selectAll();
        QTest::keyClicks(power, QStringLiteral("42"));
        QCOMPARE(stack->count(), start + 2);
        auto *name = child<QLineEdit>(f.panel, "mingcheng_Edit");
        QVERIFY(focusOn(name));
        name->selectAll();
        QTest::keyClicks(name, QStringLiteral("engrave"));
        QCOMPARE(LayerList::instance().find(3, false)->mingcheng, QStringLiteral("engrave"));
        QCOMPARE(stack->count(), start + 3);

        stack->undo();
        QCOMPARE(LayerList::instance().find(3, false)->mingcheng, QStringLiteral("L3"));
        QCOMPARE(name->text(), QStringLiteral("L3"));
        stack->undo();
        QCOMPARE(LayerList::instance().find(3, false)->gonglv, 100);
        QCOMPARE(power->value(), 100);
        stack->undo();
        QCOMPARE(LayerList::instance().find(3, false)->gonglv, 80);
        QCOMPARE(power->value(), 80);
        QCOMPARE(stack->count() - stack->index(), 3);
    }

    // Every panel field is one undo step that undo reverses exactly.
    void panelFieldsAreUndoable_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("value");
        QTest::newRow("fangxiang") << "fangxiang_Box" << 45.0;
        QTest::newRow("jianju") << "jianju_Box" << 0.25;
        QTest::newRow("saomiao") << "saomiao_Box" << 2.5;
        QTest::newRow("sudu") << "sudu_Box" << 1234.0;
        QTest::newRow("gonglv") << "gonglv_Box" << 55.0;
        QTest::newRow("cishu") << "cishu_Box" << 3.0;
        QTest::newRow("shuchu") << "shuchu_Box" << 0.0;
        QTest::newRow("xianshi") << "xianshi_Box" << 0.0;
        QTest::newRow("danxaing") << "danxaing_Box" << 1.0;
        QTest::newRow("jingxi") << "jingxi_Box" << 1.0;
        QTest::newRow("moshi") << "moshi_Box" << 2.0;
    }
    void panelFieldsAreUndoable()
    {
        QFETCH(QString, name);
        QFETCH(double, value);
        Fixture f;
        f.add(3);
        LayerList::instance().find(3, false)->moshi = FillMode; // fill fields editable
        f.controller.showParameters(LayerList::instance().find(3, false));
        const QList<QByteArray> before = listBytes();
        QWidget *w = f.panel.findChild<QWidget *>(name);
        QVERIFY(w);
        if (auto *i = qobject_cast<QSpinBox *>(w))
            i->setValue(int(value));
        else if (auto *d = qobject_cast<QDoubleSpinBox *>(w))
            d->setValue(value);
        else if (auto *c = qobject_cast<QCheckBox *>(w))
            c->setChecked(value != 0);
        else
            QTest::keyClick(w, Qt::Key_Down);
        const QList<QByteArray> after = listBytes();
        QVERIFY(after != before);
        f.scene()->undoStack()->undo();
        QCOMPARE(listBytes(), before);
        f.scene()->undoStack()->redo();
        QCOMPARE(listBytes(), after);
    }

    // The arrows of a row move its layer, the order the job burns them in.
    void rowArrowsMoveLayers()
    {
        Fixture f;
        f.add(1);
        f.add(2);
        f.add(3);
        QVERIFY(!f.rows.rows().first()->upButton()->isEnabled());
        QVERIFY(f.rows.rows().first()->downButton()->isEnabled());
        QVERIFY(f.rows.rows().last()->upButton()->isEnabled());
        QVERIFY(!f.rows.rows().last()->downButton()->isEnabled());
        programState().unsaved = false;
        QTest::mouseClick(f.rows.rows().first()->downButton(), Qt::LeftButton);
        QCOMPARE(listKeys(), (QVector<LayerKey>{{2, false}, {1, false}, {3, false}}));
        QCOMPARE(rowKeys(f.rows), listKeys());
        QVERIFY(programState().unsaved);
        QTest::mouseClick(f.rows.rows().last()->upButton(), Qt::LeftButton);
        QCOMPARE(listKeys(), (QVector<LayerKey>{{2, false}, {3, false}, {1, false}}));
        f.add(3); // a rebuild keeps the order
        QCOMPARE(listKeys(), (QVector<LayerKey>{{2, false}, {3, false}, {1, false}}));
        f.scene()->undoStack()->undo();
        f.scene()->undoStack()->undo();
        QCOMPARE(listKeys(), (QVector<LayerKey>{{2, false}, {1, false}, {3, false}}));
        f.scene()->undoStack()->undo();
        QCOMPARE(rowKeys(f.rows), (QVector<LayerKey>{{1, false}, {2, false}, {3, false}}));
    }

    // The wheel over an unfocused mode or power box changes nothing; once the
    // box has the focus it does.
    void wheelNeedsFocus_data()
    {
        QTest::addColumn<bool>("inRow");
        QTest::newRow("row mode") << true;
        QTest::newRow("panel power") << false;
    }
    void wheelNeedsFocus()
    {
        QFETCH(bool, inRow);
        QWidget window; // made first, so the fixture's widgets leave it before it goes
        Fixture f;
        f.add(4);
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&f.rows);
        layout->addWidget(&f.panel);
        auto *elsewhere = new QLineEdit(&window);
        layout->addWidget(elsewhere);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(focusOn(elsewhere));
        const QList<QByteArray> before = listBytes();
        const auto box = [&]() -> QWidget * {
            if (inRow)
                return child<QComboBox>(*f.rows.rows().first(), "moshi");
            return child<QSpinBox>(f.panel, "gonglv_Box");
        };
        QVERIFY(!wheel(box()));
        QCOMPARE(listBytes(), before);
        QCOMPARE(f.scene()->undoStack()->count(), 1);
        QVERIFY(focusOn(box()));
        QVERIFY(wheel(box()));
        QVERIFY(listBytes() != before);
        f.scene()->undoStack()->undo();
        QCOMPARE(listBytes(), before);
    }

    void panelEditsRefreshRowsAndFollowVanishedLayer()
    {
        Fixture f;
        Jk_tu_yuan *item = f.add(3);
        Jk_tu_yuan *other = f.add(5);
        f.controller.showParameters(LayerList::instance().find(3, false));
        programState().unsaved = false;
        auto *name = child<QLineEdit>(f.panel, "mingcheng_Edit");
        name->selectAll();
        QTest::keyClicks(name, QStringLiteral("cut"));
        QCOMPARE(child<QLabel>(*f.rows.rows().first(), "mingcheng")->text(), QStringLiteral("cut"));
        QVERIFY(programState().unsaved);
        child<QSpinBox>(f.panel, "gonglv_Box")->setValue(12);
        QCOMPARE(LayerList::instance().find(3, false)->gonglv, 12);

        // The shown layer vanishes: the panel falls back to the first layer left,
        // and empties only with the last one.
        f.scene()->deleteItemsUndoable({item});
        QVERIFY(f.panel.layer());
        QCOMPARE(f.panel.layer()->yanse, 5);
        f.scene()->deleteItemsUndoable({other});
        QVERIFY(!f.panel.layer());
        QVERIFY(!f.panel.isEnabled());
    }

    void eachPageKeepsItsLayers()
    {
        Fixture f;
        f.add(3);
        LayerList::instance().find(3, false)->gonglv = 42;
        f.pages.addPage();
        QCOMPARE(f.pages.currentIndex(), 1);
        QVERIFY(f.rows.rows().isEmpty());
        f.add(3);
        QCOMPARE(LayerList::instance().find(3, false)->gonglv, 80);
        LayerList::instance().find(3, false)->gonglv = 7;
        f.pages.setCurrentIndex(0);
        QCOMPARE(LayerList::instance().find(3, false)->gonglv, 42);
        QCOMPARE(f.rows.rows().size(), 1);
        f.pages.setCurrentIndex(1);
        QCOMPARE(LayerList::instance().find(3, false)->gonglv, 7);
    }
};

QTEST_MAIN(TestLayers)
#include "tst_layers.moc"
