// The rotary dialog and the job actions of the window.
#include "gcode_job_controller.h"
#include "gcode_test_support.h"
#include "gun_zhou.h"
#include "jk_gcode.h"
#include "job_designs.h"
#include "message_box.h"
#include "program_state.h"
#include "rotary.h"
#include "settings_store.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace lumitra;

namespace {

template<typename T>
T *child(QWidget *w, const char *name)
{
    T *found = w->findChild<T *>(QLatin1String(name));
    if (!found)
        qFatal("no widget %s", name);
    return found;
}

} // namespace

class TestGcodeUi : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { set_message_handler(nullptr); }
    void dialogShowsStoredSettings();
    void modeEnablesItsField_data();
    void modeEnablesItsField();
    void confirmStoresSixDigits();
    void cancelStoresNothing();
    void runWithoutRotary();
    void runWithRotaryAsksFirst_data();
    void runWithRotaryAsksFirst();
    void runRefusesUnusableRotary();
    void saveGcode_data();
    void saveGcode();
    void saveFailureIsReported();

private:
    QList<MessageRequest> m_messages;
    int m_answer = 1;
    JobDesign m_design;
    QTemporaryDir m_dir;
};

void TestGcodeUi::init()
{
    resetProgramState();
    saveRotarySettings(RotarySettings());
    m_messages.clear();
    m_answer = 1;
    set_message_handler([this](const MessageRequest &r) {
        m_messages.append(r);
        return m_answer;
    });
    if (m_design.layers.isEmpty()) {
        m_design.addLayer(0, false);
        m_design.addSegment({0, -10}, {20, -10}, 0);
    }
    QFile::remove(Jk_gcode::defaultJobPath());
}

void TestGcodeUi::dialogShowsStoredSettings()
{
    saveRotarySettings(rotarySettings(2, "X", 157.5, 50.25, 360));
    Gun_Zhou dialog;
    QCOMPARE(child<QComboBox>(&dialog, "kaiGuan_Box")->currentIndex(), 2);
    QCOMPARE(child<QComboBox>(&dialog, "zhou_Box")->currentText(), QStringLiteral("X"));
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "zhouChang_Box")->value(), 157.5);
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "zhiJing_Box")->value(), 50.25);
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "mm_Box")->value(), 360.0);
    const RotarySettings shown = dialog.settings();
    QCOMPARE(shown.mode, 2);
    QCOMPARE(shown.axis, QStringLiteral("X"));
}

void TestGcodeUi::modeEnablesItsField_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("circumference");
    QTest::addColumn<bool>("diameter");
    QTest::addColumn<bool>("axisAndUnits");
    QTest::newRow("off") << 0 << false << false << false;
    QTest::newRow("circumference") << 1 << true << false << true;
    QTest::newRow("diameter") << 2 << false << true << true;
}

void TestGcodeUi::modeEnablesItsField()
{
    QFETCH(int, mode);
    QFETCH(bool, circumference);
    QFETCH(bool, diameter);
    QFETCH(bool, axisAndUnits);
    Gun_Zhou dialog;
    child<QComboBox>(&dialog, "kaiGuan_Box")->setCurrentIndex(mode);
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "zhouChang_Box")->isEnabled(), circumference);
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "zhiJing_Box")->isEnabled(), diameter);
    QCOMPARE(child<QComboBox>(&dialog, "zhou_Box")->isEnabled(), axisAndUnits);
    QCOMPARE(child<QDoubleSpinBox>(&dialog, "mm_Box")->isEnabled(), axisAndUnits);
}

void TestGcodeUi::confirmStoresSixDigits()
{
    Gun_Zhou dialog;
    child<QComboBox>(&dialog, "kaiGuan_Box")->setCurrentIndex(1);
    child<QComboBox>(&dialog, "zhou_Box")->setCurrentIndex(2);
    child<QDoubleSpinBox>(&dialog, "zhouChang_Box")->setValue(12345.678);
    child<QDoubleSpinBox>(&dialog, "zhiJing_Box")->setValue(80);
    child<QDoubleSpinBox>(&dialog, "mm_Box")->setValue(3.14159);
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    child<QPushButton>(&dialog, "confirm_Btn")->click();
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(get_setting(QLatin1String(kRotaryModeKey)), QStringLiteral("1"));
    QCOMPARE(get_setting(QLatin1String(kRotaryAxisKey)), QStringLiteral("A"));
    QCOMPARE(get_setting(QLatin1String(kRotaryCircumferenceKey)), QStringLiteral("12345.7"));
    QCOMPARE(get_setting(QLatin1String(kRotaryDiameterKey)), QStringLiteral("80"));
    QCOMPARE(get_setting(QLatin1String(kRotaryUnitsKey)), QStringLiteral("3.142"));
}

void TestGcodeUi::cancelStoresNothing()
{
    saveRotarySettings(rotarySettings(0, "Y", 100, 50, 360));
    Gun_Zhou dialog;
    child<QComboBox>(&dialog, "kaiGuan_Box")->setCurrentIndex(2);
    child<QDoubleSpinBox>(&dialog, "zhiJing_Box")->setValue(12);
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    child<QPushButton>(&dialog, "close_Btn")->click();
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(get_setting(QLatin1String(kRotaryModeKey)), QStringLiteral("0"));
    QCOMPARE(get_setting(QLatin1String(kRotaryDiameterKey)), QStringLiteral("50"));
}

void TestGcodeUi::runWithoutRotary()
{
    GcodeJobController controller(nullptr);
    controller.setLayerList(&m_design.layers);
    QSignalSpy ready(&controller, &GcodeJobController::runFileReady);
    QSignalSpy finished(controller.generator(), &Jk_gcode::zhuan_huan_wan_cheng);
    programState().cancel = true; // a stale cancel from an earlier run is cleared
    QVERIFY(controller.prepareRun(m_design.items()));
    QVERIFY(m_messages.isEmpty());
    QCOMPARE(ready.count(), 1);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(programState().jobFilePath, Jk_gcode::defaultJobPath());
    QVERIFY(readFileBytes(Jk_gcode::defaultJobPath()).contains("G1X20.00"));
}

void TestGcodeUi::runWithRotaryAsksFirst_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("confirmed") << 1;
    QTest::newRow("cancelled") << 0;
}

void TestGcodeUi::runWithRotaryAsksFirst()
{
    QFETCH(int, answer);
    saveRotarySettings(rotarySettings(1, "X", 100, 50, 100));
    m_answer = answer;
    GcodeJobController controller(nullptr);
    controller.setLayerList(&m_design.layers);
    QCOMPARE(controller.prepareRun(m_design.items()), answer == 1);
    QCOMPARE(m_messages.size(), 1);
    QCOMPARE(m_messages.first().message, QStringLiteral("请在滚轴界面检查相关参数再运行!"));
    QCOMPARE(m_messages.first().firstButton, QStringLiteral("确定"));
    QCOMPARE(m_messages.first().secondButton, QStringLiteral("取消"));
    const QByteArray job = readFileBytes(Jk_gcode::defaultJobPath());
    if (answer == 1)
        QVERIFY(job.contains("G1Z-20.000")); // X written as the rotary's Z
    else
        QVERIFY(job.isEmpty());
}

void TestGcodeUi::runRefusesUnusableRotary()
{
    saveRotarySettings(rotarySettings(2, "Y", 100, 0, 360));
    GcodeJobController controller(nullptr);
    controller.setLayerList(&m_design.layers);
    QVERIFY(!controller.prepareRun(m_design.items()));
    QCOMPARE(m_messages.size(), 1);
    QCOMPARE(m_messages.first().message, QStringLiteral("请在滚轴界面检查相关参数再运行!"));
    QVERIFY(!QFile::exists(Jk_gcode::defaultJobPath()));
}

void TestGcodeUi::saveGcode_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("written");
    QTest::newRow("nc") << "a.nc"
                        << "a.nc";
    QTest::newRow("gcode") << "b.GCODE"
                           << "b.GCODE";
    QTest::newRow("no suffix") << "c"
                               << "c.nc";
    QTest::newRow("other suffix") << "d.txt"
                                  << "d.txt.nc";
    QTest::newRow("cancelled") << ""
                               << "";
}

void TestGcodeUi::saveGcode()
{
    QFETCH(QString, chosen);
    QFETCH(QString, written);
    GcodeJobController controller(nullptr);
    controller.setLayerList(&m_design.layers);
    controller.setFileChooser([&](QWidget *, const QString &) {
        return chosen.isEmpty() ? QString() : m_dir.filePath(chosen);
    });
    QSignalSpy saved(&controller, &GcodeJobController::saved);
    QCOMPARE(controller.saveGcode(m_design.items()), !written.isEmpty());
    if (written.isEmpty()) {
        QCOMPARE(saved.count(), 0);
        return;
    }
    QCOMPARE(saved.count(), 1);
    QCOMPARE(saved.first().first().toString(), m_dir.filePath(written));
    QVERIFY(readFileBytes(m_dir.filePath(written)).startsWith("M4\nM8\n;L0\n"));
    QVERIFY(m_messages.isEmpty());
}

void TestGcodeUi::saveFailureIsReported()
{
    GcodeJobController controller(nullptr);
    controller.setLayerList(&m_design.layers);
    QVERIFY(!controller.saveGcodeTo(m_design.items(), m_dir.filePath("missing/job.nc")));
    QCOMPARE(m_messages.size(), 1);
    QCOMPARE(m_messages.first().message, QStringLiteral("保存失败!"));
}

QTEST_MAIN(TestGcodeUi)
#include "tst_gcode_ui.moc"
