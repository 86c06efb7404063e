#include "tu_ceng.h"
#include "tu_ceng_zhi.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest>

// The layer parameter panel: its widgets, ranges and defaults, filling from a
// record, the blank fill fields in line mode, and edits written back.
class TestTuCengZhi : public QObject
{
    Q_OBJECT

private slots:
    void spinBoxRangesAndDefaults_data();
    void spinBoxRangesAndDefaults();
    void labelsAndChecks();
    void fillsFromRecord();
    void modeLabelsFollowLayerKind_data();
    void modeLabelsFollowLayerKind();
    void lineModeBlanksFillFields();
    void switchingModeUnlocksFillFields();
    void rangesRefuseTypedValues_data();
    void rangesRefuseTypedValues();
    void editsWriteTheRecord();
    void blankFieldsStayBlankWhenFocusMoves();
    void noRecordDisablesThePanel();

private:
    template<typename T> static T *child(QWidget &w, const char *name)
    {
        T *c = w.findChild<T *>(QLatin1String(name));
        if (!c)
            qFatal("missing widget %s", name);
        return c;
    }
};

void TestTuCengZhi::spinBoxRangesAndDefaults_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("value");
    QTest::newRow("fangxiang") << "fangxiang_Box" << 0.0 << 360.0 << 1.0 << 0.0;
    QTest::newRow("jianju") << "jianju_Box" << 0.01 << 100.0 << 0.01 << 0.1;
    QTest::newRow("saomiao") << "saomiao_Box" << 0.0 << 100.0 << 1.0 << 0.0;
    QTest::newRow("sudu") << "sudu_Box" << 5.0 << 99999999.0 << 1.0 << 5000.0;
    QTest::newRow("gonglv") << "gonglv_Box" << 0.0 << 100.0 << 1.0 << 80.0;
    QTest::newRow("cishu") << "cishu_Box" << 1.0 << 999.0 << 1.0 << 1.0;
}

void TestTuCengZhi::spinBoxRangesAndDefaults()
{
    QFETCH(QString, name);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, step);
    QFETCH(double, value);
    Tu_Ceng_Zhi panel;
    if (auto *box = panel.findChild<QSpinBox *>(name)) {
        QCOMPARE(double(box->minimum()), minimum);
        QCOMPARE(double(box->maximum()), maximum);
        QCOMPARE(double(box->singleStep()), step);
        QCOMPARE(double(box->value()), value);
    } else {
        auto *dbox = panel.findChild<QDoubleSpinBox *>(name);
        QVERIFY2(dbox, qPrintable(name));
        QCOMPARE(dbox->minimum(), minimum);
        QCOMPARE(dbox->maximum(), maximum);
        QCOMPARE(dbox->singleStep(), step);
        QCOMPARE(dbox->value(), value);
        QCOMPARE(dbox->decimals(), 2);
    }
}

void TestTuCengZhi::labelsAndChecks()
{
    Tu_Ceng_Zhi panel;
    QStringList labels;
    for (const QLabel *l : panel.findChildren<QLabel *>())
        labels.append(l->text());
    for (const char *text : {"填充方向(°)：", "填充间距(mm)：", "过扫描mm)：", "速度(mm/min)：",
                             "功率(%)：", "循环次数"})
        QVERIFY2(labels.contains(QString::fromUtf8(text)), text);
    QVERIFY(child<QCheckBox>(panel, "shuchu_Box")->isChecked());
    child<QCheckBox>(panel, "xianshi_Box");
    child<QCheckBox>(panel, "danxaing_Box");
    child<QComboBox>(panel, "moshi_Box");
    child<QLineEdit>(panel, "mingcheng_Edit");
}

void TestTuCengZhi::fillsFromRecord()
{
    TuCeng layer(12, false);
    layer.moshi = FillMode;
    layer.mingcheng = QStringLiteral("engrave");
    layer.fangxiang = 45;
    layer.jianju = 0.25;
    layer.saomiao = 2.5;
    layer.cishu = 3;
    layer.danxiang = true;
    layer.sudu = 1234;
    layer.gonglv = 55;
    layer.shuchu = false;
    layer.xianshi = true;
    Tu_Ceng_Zhi panel;
    QSignalSpy spy(&panel, &Tu_Ceng_Zhi::layerChanged);
    panel.setLayer(&layer);
    QCOMPARE(spy.count(), 0); // filling is no edit
    QCOMPARE(child<QComboBox>(panel, "moshi_Box")->currentIndex(), 1);
    QCOMPARE(child<QLineEdit>(panel, "mingcheng_Edit")->text(), QStringLiteral("engrave"));
    QCOMPARE(child<QSpinBox>(panel, "fangxiang_Box")->value(), 45);
    QCOMPARE(child<QDoubleSpinBox>(panel, "jianju_Box")->value(), 0.25);
    QCOMPARE(child<QDoubleSpinBox>(panel, "saomiao_Box")->value(), 2.5);
    QCOMPARE(child<QSpinBox>(panel, "cishu_Box")->value(), 3);
    QVERIFY(child<QCheckBox>(panel, "danxaing_Box")->isChecked());
    QCOMPARE(child<QSpinBox>(panel, "sudu_Box")->value(), 1234);
    QCOMPARE(child<QSpinBox>(panel, "gonglv_Box")->value(), 55);
    QVERIFY(!child<QCheckBox>(panel, "shuchu_Box")->isChecked());
    QVERIFY(child<QCheckBox>(panel, "xianshi_Box")->isChecked());
    QVERIFY(!child<QSpinBox>(panel, "fangxiang_Box")->isReadOnly());
    QCOMPARE(child<QSpinBox>(panel, "fangxiang_Box")->text(), QStringLiteral("45"));
    QCOMPARE(panel.layerKey(), (LayerKey{12, false}));
}

void TestTuCengZhi::modeLabelsFollowLayerKind_data()
{
    QTest::addColumn<bool>("bitmap");
    QTest::addColumn<QStringList>("labels");
    QTest::newRow("vector") << false << QStringList{"线条", "填充", "交叉填充"};
    QTest::newRow("bitmap") << true << QStringList{"黑白", "抖动", "轮廓", "灰度", "负向"};
}

void TestTuCengZhi::modeLabelsFollowLayerKind()
{
    QFETCH(bool, bitmap);
    QFETCH(QStringList, labels);
    TuCeng layer(0, bitmap);
    Tu_Ceng_Zhi panel;
    panel.setLayer(&layer);
    QComboBox *box = child<QComboBox>(panel, "moshi_Box");
    QStringList got;
    for (int i = 0; i < box->count(); ++i)
        got.append(box->itemText(i));
    QCOMPARE(got, labels);
    // Refilling with the other kind replaces the list.
    TuCeng other(0, !bitmap);
    panel.setLayer(&other);
    QCOMPARE(box->count(), bitmap ? 3 : 5);
}

void TestTuCengZhi::lineModeBlanksFillFields()
{
    TuCeng layer(0, false);
    layer.fangxiang = 90;
    layer.jianju = 0.3;
    layer.saomiao = 4;
    Tu_Ceng_Zhi panel;
    panel.setLayer(&layer);
    for (const char *name : {"fangxiang_Box", "jianju_Box", "saomiao_Box"}) {
        auto *box = child<QAbstractSpinBox>(panel, name);
        QVERIFY2(box->text().isEmpty(), name);
        QVERIFY2(box->isReadOnly(), name);
    }
    QVERIFY(!child<QSpinBox>(panel, "sudu_Box")->isReadOnly());
    // A bitmap layer in its first mode keeps them editable.
    TuCeng bitmap(0, true);
    panel.setLayer(&bitmap);
    QVERIFY(!child<QSpinBox>(panel, "fangxiang_Box")->isReadOnly());
    QCOMPARE(child<QDoubleSpinBox>(panel, "jianju_Box")->text(), QStringLiteral("0.10"));
    // The record is untouched by blanking.
    QCOMPARE(layer.fangxiang, 90);
    QCOMPARE(layer.jianju, 0.3);
}

void TestTuCengZhi::switchingModeUnlocksFillFields()
{
    TuCeng layer(3, false);
    layer.fangxiang = 90;
    Tu_Ceng_Zhi panel;
    panel.show();
    panel.setLayer(&layer);
    QSignalSpy spy(&panel, &Tu_Ceng_Zhi::layerChanged);
    QComboBox *mode = child<QComboBox>(panel, "moshi_Box");
    QTest::keyClick(mode, Qt::Key_Down); // line -> fill, as the user picks it
    QCOMPARE(layer.moshi, int(FillMode));
    QCOMPARE(spy.count(), 1);
    auto *direction = child<QSpinBox>(panel, "fangxiang_Box");
    QVERIFY(!direction->isReadOnly());
    QCOMPARE(direction->text(), QStringLiteral("90"));
    QTest::keyClick(mode, Qt::Key_Up); // back to line
    QCOMPARE(layer.moshi, int(LineMode));
    QVERIFY(direction->isReadOnly());
    QVERIFY(direction->text().isEmpty());
    QCOMPARE(spy.count(), 2);
}

void TestTuCengZhi::rangesRefuseTypedValues_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::newRow("speed below 5") << "sudu_Box"
                                   << "3" << 5 << 99999999;
    QTest::newRow("speed zero") << "sudu_Box"
                                << "0" << 5 << 99999999;
    QTest::newRow("passes below 1") << "cishu_Box"
                                    << "0" << 1 << 999;
    QTest::newRow("passes negative") << "cishu_Box"
                                     << "-4" << 1 << 999;
    QTest::newRow("power above 100") << "gonglv_Box"
                                     << "150" << 0 << 100;
    QTest::newRow("power 101") << "gonglv_Box"
                               << "101" << 0 << 100;
}

void TestTuCengZhi::rangesRefuseTypedValues()
{
    QFETCH(QString, box);
    QFETCH(QString, typed);
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    TuCeng layer(0, false);
    Tu_Ceng_Zhi panel;
    panel.show();
    panel.setLayer(&layer);
    auto *spin = panel.findChild<QSpinBox *>(box);
    spin->setFocus();
    spin->selectAll();
    QTest::keyClicks(spin, typed);
    QTest::keyClick(spin, Qt::Key_Enter);
    spin->clearFocus();
    const int stored = box == QLatin1String("sudu_Box")    ? layer.sudu
                       : box == QLatin1String("cishu_Box") ? layer.cishu
                                                           : layer.gonglv;
    QVERIFY2(stored >= minimum && stored <= maximum, qPrintable(QString::number(stored)));
    QVERIFY(spin->value() >= minimum && spin->value() <= maximum);
    // Setting the value directly is clamped as well.
    spin->setValue(minimum - 1);
    QCOMPARE(spin->value(), minimum);
    spin->setValue(maximum + 1);
    QCOMPARE(spin->value(), maximum);
}

void TestTuCengZhi::editsWriteTheRecord()
{
    TuCeng layer(0, true);
    Tu_Ceng_Zhi panel;
    panel.show();
    panel.setLayer(&layer);
    QSignalSpy spy(&panel, &Tu_Ceng_Zhi::layerChanged);
    child<QSpinBox>(panel, "gonglv_Box")->setValue(33);
    child<QSpinBox>(panel, "sudu_Box")->setValue(777);
    child<QSpinBox>(panel, "cishu_Box")->setValue(4);
    child<QSpinBox>(panel, "fangxiang_Box")->setValue(120);
    child<QDoubleSpinBox>(panel, "jianju_Box")->setValue(0.07);
    child<QDoubleSpinBox>(panel, "saomiao_Box")->setValue(1.25);
    child<QCheckBox>(panel, "danxaing_Box")->setChecked(true);
    child<QCheckBox>(panel, "shuchu_Box")->setChecked(false);
    child<QCheckBox>(panel, "xianshi_Box")->setChecked(false);
    QLineEdit *name = child<QLineEdit>(panel, "mingcheng_Edit");
    name->selectAll();
    QTest::keyClicks(name, QStringLiteral("photo"));
    QCOMPARE(layer.gonglv, 33);
    QCOMPARE(layer.sudu, 777);
    QCOMPARE(layer.cishu, 4);
    QCOMPARE(layer.fangxiang, 120);
    QCOMPARE(layer.jianju, 0.07);
    QCOMPARE(layer.saomiao, 1.25);
    QVERIFY(layer.danxiang);
    QVERIFY(!layer.shuchu);
    QVERIFY(!layer.xianshi);
    QCOMPARE(layer.mingcheng, QStringLiteral("photo"));
    QCOMPARE(spy.count(), 9 + 5);
    QCOMPARE(spy.last().at(0).value<TuCeng *>(), &layer);
}

void TestTuCengZhi::blankFieldsStayBlankWhenFocusMoves()
{
    TuCeng layer(0, false);
    Tu_Ceng_Zhi panel;
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    panel.setLayer(&layer);
    auto *spacing = child<QDoubleSpinBox>(panel, "jianju_Box");
    spacing->setFocus();
    child<QSpinBox>(panel, "sudu_Box")->setFocus();
    QVERIFY(spacing->text().isEmpty());
    QCOMPARE(layer.jianju, 0.1);
}

void TestTuCengZhi::noRecordDisablesThePanel()
{
    TuCeng layer(0, false);
    Tu_Ceng_Zhi panel;
    QVERIFY(!panel.isEnabled());
    panel.setLayer(&layer);
    QVERIFY(panel.isEnabled());
    panel.setLayer(nullptr);
    QVERIFY(!panel.isEnabled());
    QVERIFY(!panel.layer());
    child<QSpinBox>(panel, "gonglv_Box")->setValue(12); // nothing to write to
    QCOMPARE(layer.gonglv, 80);
}

QTEST_MAIN(TestTuCengZhi)
#include "tst_tu_ceng_zhi.moc"
