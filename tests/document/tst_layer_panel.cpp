#include "design_pages.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "layer_palette_bar.h"
#include "layer_panel_controller.h"
#include "layer_rows_panel.h"
#include "program_state.h"
#include "tu_ceng_item2.h"
#include "tu_ceng_zhi.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QSignalSpy>
#include <QSpinBox>
#include <QUndoStack>
#include <QtTest>

using lumitra::programState;

// The palette bar, the layer rows and the controller that keeps them in step
// with the current page.
class TestLayerPanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void paletteButtons_data();
    void paletteButtons();
    void paletteStartsOnZero();
    void paletteClickPicksLayer();
    void paletteMovesSelectionUndoably();
    void rowsFollowTheLayerList();
    void rowShowsItsRecord_data();
    void rowShowsItsRecord();
    void rowEditsMarkUnsavedAndRepaint();
    void rowTickAndDoubleClick();
    void deleteButtonRemovesTheLayersItems();
    void panelEditsRefreshRows();
    void panelLetsGoOfVanishedLayer();
    void frozenWhileRunning();
    void eachPageKeepsItsLayers();

private:
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
            Jk_tu_yuan *item;
            if (bitmap) {
                QImage img(8, 8, QImage::Format_Grayscale8);
                img.fill(0);
                item = new Jk_tu_yuan(img);
            } else {
                item = new Jk_tu_yuan(0);
            }
            item->layer_id = layer;
            scene()->addItemsUndoable({item});
            return item;
        }
    };
    static QVector<LayerKey> rowKeys(const LayerRowsPanel &rows);
};

void TestLayerPanel::init()
{
    lumitra::resetProgramState();
}

QVector<LayerKey> TestLayerPanel::rowKeys(const LayerRowsPanel &rows)
{
    QVector<LayerKey> keys;
    for (const TuCengItem2 *row : rows.rows())
        keys.append(LayerKey{row->layer()->yanse, row->layer()->tupian});
    return keys;
}

void TestLayerPanel::paletteButtons_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("label");
    QTest::addColumn<bool>("darkText");
    QTest::newRow("0") << 0 << "00" << false;
    QTest::newRow("3") << 3 << "03" << true;
    QTest::newRow("6") << 6 << "06" << true;
    QTest::newRow("9") << 9 << "09" << false;
    QTest::newRow("10") << 10 << "10" << false;
    QTest::newRow("21") << 21 << "21" << true;
    QTest::newRow("24") << 24 << "24" << true;
    QTest::newRow("25") << 25 << "25" << false;
    QTest::newRow("29") << 29 << "29" << true;
}

void TestLayerPanel::paletteButtons()
{
    QFETCH(int, number);
    QFETCH(QString, label);
    QFETCH(bool, darkText);
    LayerPaletteBar bar;
    QAbstractButton *b = bar.button(number);
    QVERIFY(b);
    QCOMPARE(b->objectName(), label);
    if (number != 0)
        QCOMPARE(b->text(), label);
    QCOMPARE(b->size(), QSize(20, 20));
    QVERIFY(b->isCheckable());
    QVERIFY(b->group() && b->group()->exclusive());
    const QString style = b->styleSheet();
    const QColor c = layerColor(number);
    QVERIFY(style.contains(
        QStringLiteral("rgb(%1, %2, %3)").arg(c.red()).arg(c.green()).arg(c.blue())));
    QVERIFY(
        style.contains(darkText ? QStringLiteral("color: black") : QStringLiteral("color: white")));
    QCOMPARE(bar.findChildren<QAbstractButton *>().size(), 30);
    auto *layout = qobject_cast<QHBoxLayout *>(bar.layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 8);
}

void TestLayerPanel::paletteStartsOnZero()
{
    LayerPaletteBar bar;
    QVERIFY(bar.button(0)->isChecked());
    QCOMPARE(bar.button(0)->text(), QStringLiteral("√"));
    QCOMPARE(bar.checkedLayer(), 0);
}

void TestLayerPanel::paletteClickPicksLayer()
{
    LayerPaletteBar bar;
    QSignalSpy spy(&bar, &LayerPaletteBar::layerPicked);
    QTest::mouseClick(bar.button(17), Qt::LeftButton);
    QCOMPARE(programState().currentLayer, 17);
    QCOMPARE(bar.button(17)->text(), QStringLiteral("√"));
    QCOMPARE(bar.button(0)->text(), QStringLiteral("00"));
    QVERIFY(bar.button(17)->isChecked());
    QVERIFY(!bar.button(0)->isChecked());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 17);
    QTest::mouseClick(bar.button(4), Qt::LeftButton);
    QCOMPARE(bar.button(17)->text(), QStringLiteral("17"));
    QCOMPARE(programState().currentLayer, 4);
    bar.setCheckedLayer(9); // shown only
    QCOMPARE(bar.button(9)->text(), QStringLiteral("√"));
    QCOMPARE(bar.button(4)->text(), QStringLiteral("04"));
    QCOMPARE(spy.count(), 2);
}

void TestLayerPanel::paletteMovesSelectionUndoably()
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

void TestLayerPanel::rowsFollowTheLayerList()
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
    QCOMPARE(rowKeys(f.rows).size(), LayerList::instance().count());
    for (int i = 0; i < f.rows.rows().size(); ++i)
        QCOMPARE(f.rows.rows().at(i)->layer(), LayerList::instance().layers().at(i));
    const QList<int> widths{50, 60, 50, 60, 50, 50};
    const QStringList headers{"header_ceng",  "header_mingcheng", "header_shuchu",
                              "header_moshi", "header_xianshi",   "header_delete"};
    for (int i = 0; i < headers.size(); ++i)
        QCOMPARE(f.rows.findChild<QLabel *>(headers.at(i))->minimumWidth(), widths.at(i));
}

void TestLayerPanel::rowShowsItsRecord_data()
{
    QTest::addColumn<bool>("bitmap");
    QTest::addColumn<QStringList>("modes");
    QTest::newRow("vector") << false << QStringList{"线条", "填充", "交叉填充"};
    QTest::newRow("bitmap") << true << QStringList{"黑白", "抖动", "轮廓", "灰度", "负像"};
}

void TestLayerPanel::rowShowsItsRecord()
{
    QFETCH(bool, bitmap);
    QFETCH(QStringList, modes);
    TuCeng layer(11, bitmap);
    layer.moshi = 2;
    layer.shuchu = false;
    layer.mingcheng = QStringLiteral("outline");
    TuCengItem2 row(&layer);
    auto *swatch = row.findChild<QLabel *>(QStringLiteral("ceng"));
    QCOMPARE(swatch->text(), QStringLiteral("11"));
    QVERIFY(swatch->styleSheet().contains(QStringLiteral("color: white")));
    QVERIFY(swatch->styleSheet().contains(QStringLiteral("rgb(4, 164, 4)")));
    QVERIFY(swatch->styleSheet().contains(QStringLiteral("border-right: 1px solid #E6E6E6")));
    QCOMPARE(row.findChild<QLabel *>(QStringLiteral("mingcheng"))->text(),
             QStringLiteral("outline"));
    auto *mode = row.findChild<QComboBox *>(QStringLiteral("moshi"));
    QStringList got;
    for (int i = 0; i < mode->count(); ++i)
        got.append(mode->itemText(i));
    QCOMPARE(got, modes);
    QCOMPARE(mode->currentIndex(), 2);
    QVERIFY(!row.findChild<QCheckBox *>(QStringLiteral("shuchu"))->isChecked());
    QVERIFY(row.findChild<QCheckBox *>(QStringLiteral("xianshi"))->isChecked());
    QVERIFY(row.findChild<QAbstractButton *>(QStringLiteral("delete_Btn")));
}

void TestLayerPanel::rowEditsMarkUnsavedAndRepaint()
{
    Fixture f;
    Jk_tu_yuan *item = f.add(1);
    QVERIFY(item->isSelected());
    programState().unsaved = false;
    TuCengItem2 *row = f.rows.rows().first();
    row->findChild<QCheckBox *>(QStringLiteral("xianshi"))->click();
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
    auto *mode = f.rows.rows().first()->findChild<QComboBox *>(QStringLiteral("moshi"));
    f.rows.rows().first()->show();
    mode->setFocus();
    QTest::keyClick(mode, Qt::Key_Down);
    QCOMPARE(layer->moshi, int(FillMode));
    QVERIFY(programState().unsaved);
}

void TestLayerPanel::rowTickAndDoubleClick()
{
    Fixture f;
    f.add(2);
    f.add(6, true);
    TuCengItem2 *row = f.rows.rows().at(1);
    QSignalSpy checked(&f.rows, &LayerRowsPanel::sendCengChecked);
    QSignalSpy rowChecked(row, &TuCengItem2::sendCengChecked);
    QTest::mouseClick(row->findChild<QLabel *>(QStringLiteral("mingcheng")), Qt::LeftButton);
    QVERIFY(row->layer()->xuanzhong);
    QCOMPARE(checked.count(), 1);
    QCOMPARE(rowChecked.at(0).at(1).toBool(), true);
    QTest::mouseClick(row, Qt::LeftButton);
    QVERIFY(!row->layer()->xuanzhong);
    QCOMPARE(checked.last().at(1).toBool(), false);

    QSignalSpy shown(&f.controller, &LayerPanelController::parametersShown);
    QTest::mouseDClick(row->findChild<QLabel *>(QStringLiteral("ceng")), Qt::LeftButton);
    QCOMPARE(shown.count(), 1);
    QCOMPARE(f.panel.layer(), LayerList::instance().find(6, true));
    QCOMPARE(f.panel.findChild<QComboBox *>(QStringLiteral("moshi_Box"))->count(), 5);
}

void TestLayerPanel::deleteButtonRemovesTheLayersItems()
{
    Fixture f;
    f.add(2);
    f.add(4);
    f.add(2);
    f.add(2, true);
    QCOMPARE(f.rows.rows().size(), 3);
    TuCengItem2 *row = f.rows.rows().first();
    QCOMPARE(row->layer()->yanse, 2);
    QVERIFY(!row->layer()->tupian);
    QTest::mouseClick(row->deleteButton(), Qt::LeftButton);
    QCOMPARE(f.scene()->designItemCount(), 2);
    QCOMPARE(rowKeys(f.rows), (QVector<LayerKey>{{4, false}, {2, true}}));
    f.scene()->undoStack()->undo();
    QCOMPARE(f.scene()->designItemCount(), 4);
    QCOMPARE(f.rows.rows().size(), 3);
}

void TestLayerPanel::panelEditsRefreshRows()
{
    Fixture f;
    f.add(3);
    f.controller.showParameters(LayerList::instance().find(3, false));
    programState().unsaved = false;
    auto *name = f.panel.findChild<QLineEdit *>(QStringLiteral("mingcheng_Edit"));
    name->selectAll();
    QTest::keyClicks(name, QStringLiteral("cut"));
    QCOMPARE(f.rows.rows().first()->findChild<QLabel *>(QStringLiteral("mingcheng"))->text(),
             QStringLiteral("cut"));
    QVERIFY(programState().unsaved);
    f.panel.findChild<QSpinBox *>(QStringLiteral("gonglv_Box"))->setValue(12);
    QCOMPARE(LayerList::instance().find(3, false)->gonglv, 12);
}

void TestLayerPanel::panelLetsGoOfVanishedLayer()
{
    Fixture f;
    Jk_tu_yuan *item = f.add(3);
    f.add(5);
    f.controller.showParameters(LayerList::instance().find(3, false));
    QVERIFY(f.panel.layer());
    f.scene()->deleteItemsUndoable({item});
    QVERIFY(!f.panel.layer());
    QVERIFY(!f.panel.isEnabled());
}

void TestLayerPanel::frozenWhileRunning()
{
    Fixture f;
    f.add(1);
    programState().running = true;
    f.add(2);
    QCOMPARE(rowKeys(f.rows), (QVector<LayerKey>{{1, false}}));
    QCOMPARE(LayerList::instance().count(), 1);
    programState().running = false;
    f.controller.rebuild();
    QCOMPARE(rowKeys(f.rows), (QVector<LayerKey>{{1, false}, {2, false}}));
}

void TestLayerPanel::eachPageKeepsItsLayers()
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

QTEST_MAIN(TestLayerPanel)
#include "tst_layer_panel.moc"
