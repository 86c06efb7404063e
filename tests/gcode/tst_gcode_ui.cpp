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
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(lumitra::JobStart)

using namespace lumitra;

Q_DECLARE_METATYPE(lumitra::RotarySettings)

namespace {

const QString kCheckRotary = QStringLiteral("请在滚轴界面检查相关参数再运行!");

template<typename T> T *child(QWidget *w, const char *name)
{
    T *found = w->findChild<T *>(QLatin1String(name));
    if (!found)
        qFatal("no widget %s", name);
    return found;
}

QComboBox *mode(QWidget *w)
{
    return child<QComboBox>(w, "kaiGuan_Box");
}
QComboBox *axis(QWidget *w)
{
    return child<QComboBox>(w, "zhou_Box");
}
QDoubleSpinBox *circumference(QWidget *w)
{
    return child<QDoubleSpinBox>(w, "zhouChang_Box");
}
QDoubleSpinBox *diameter(QWidget *w)
{
    return child<QDoubleSpinBox>(w, "zhiJing_Box");
}
QDoubleSpinBox *units(QWidget *w)
{
    return child<QDoubleSpinBox>(w, "mm_Box");
}

} // namespace

class TestGcodeUi : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { set_message_handler(nullptr); }
    void dialogShowsAndStoresSettings();
    void dialogCancelStoresNothing();
    void modeEnablesItsField_data();
    void modeEnablesItsField();
    void run_data();
    void run();
    void saveGcode_data();
    void saveGcode();
    void runPlacesTheJob_data();
    void runPlacesTheJob();
    void wireQuestion_data();
    void wireQuestion();

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
    saveJobStart(JobStart()); // jobs start where they are drawn
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

void TestGcodeUi::dialogShowsAndStoresSettings()
{
    saveRotarySettings(rotarySettings(2, "X", 157.5, 50.25, 360));
    Gun_Zhou dialog;
    QCOMPARE(mode(&dialog)->currentIndex(), 2);
    QCOMPARE(axis(&dialog)->currentText(), QStringLiteral("X"));
    QCOMPARE(circumference(&dialog)->value(), 157.5);
    QCOMPARE(diameter(&dialog)->value(), 50.25);
    QCOMPARE(units(&dialog)->value(), 360.0);
    QCOMPARE(dialog.settings().mode, 2);
    QCOMPARE(dialog.settings().axis, QStringLiteral("X"));

    // Confirmed values are stored in their shortest form, six significant digits.
    mode(&dialog)->setCurrentIndex(1);
    axis(&dialog)->setCurrentIndex(2);
    circumference(&dialog)->setValue(12345.678);
    diameter(&dialog)->setValue(80);
    units(&dialog)->setValue(3.14159);
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    child<QPushButton>(&dialog, "confirm_Btn")->click();
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(get_setting(QLatin1String(kRotaryModeKey)), QStringLiteral("1"));
    QCOMPARE(get_setting(QLatin1String(kRotaryAxisKey)), QStringLiteral("A"));
    QCOMPARE(get_setting(QLatin1String(kRotaryCircumferenceKey)), QStringLiteral("12345.7"));
    QCOMPARE(get_setting(QLatin1String(kRotaryDiameterKey)), QStringLiteral("80"));
    QCOMPARE(get_setting(QLatin1String(kRotaryUnitsKey)), QStringLiteral("3.142"));
}

void TestGcodeUi::dialogCancelStoresNothing()
{
    saveRotarySettings(rotarySettings(0, "Y", 100, 50, 360));
    Gun_Zhou dialog;
    mode(&dialog)->setCurrentIndex(2);
    diameter(&dialog)->setValue(12);
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    child<QPushButton>(&dialog, "close_Btn")->click();
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(get_setting(QLatin1String(kRotaryModeKey)), QStringLiteral("0"));
    QCOMPARE(get_setting(QLatin1String(kRotaryDiameterKey)), QStringLiteral("50"));
}

void TestGcodeUi::modeEnablesItsField_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("byCircumference");
    QTest::addColumn<bool>("byDiameter");
    QTest::addColumn<bool>("axisAndUnits");
    QTest::newRow("off") << 0 << false << false << false;
    QTest::newRow("circumference") << 1 << true << false << true;
    QTest::newRow("diameter") << 2 << false << true << true;
}

void TestGcodeUi::modeEnablesItsField()
{
    QFETCH(int, index);
    QFETCH(bool, byCircumference);
    QFETCH(bool, byDiameter);
    QFETCH(bool, axisAndUnits);
    Gun_Zhou dialog;
    mode(&dialog)->setCurrentIndex(index);
    QCOMPARE(circumference(&dialog)->isEnabled(), byCircumference);
    QCOMPARE(diameter(&dialog)->isEnabled(), byDiameter);
    QCOMPARE(axis(&dialog)->isEnabled(), axisAndUnits);
    QCOMPARE(units(&dialog)->isEnabled(), axisAndUnits);
}

void TestGcodeUi::run_data()
{
    QTest::addColumn<RotarySettings>("rotary");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("asked");
    QTest::addColumn<QByteArray>("job"); // a line of code.txt; empty when no job is written

    QTest::newRow("no rotary") << RotarySettings() << 1 << false << QByteArray("G1X20.00");
    QTest::newRow("rotary confirmed") // X written as the rotary's Z
        << rotarySettings(1, "X", 100, 50, 100) << 1 << true << QByteArray("G1Z-20.000");
    QTest::newRow("rotary cancelled")
        << rotarySettings(1, "X", 100, 50, 100) << 0 << true << QByteArray();
    QTest::newRow("unusable rotary")
        << rotarySettings(2, "Y", 100, 0, 360) << 1 << true << QByteArray();
}

void TestGcodeUi::run()
{
    QFETCH(RotarySettings, rotary);
    QFETCH(int, answer);
    QFETCH(bool, asked);
    QFETCH(QByteArray, job);
    saveRotarySettings(rotary);
    m_answer = answer;
    programState().cancel = true; // a stale cancel from an earlier run is cleared
    GcodeJobController controller(nullptr);
    controller.setLayerList(&m_design.layers);
    QSignalSpy ready(&controller, &GcodeJobController::runFileReady);
    QSignalSpy finished(controller.generator(), &Jk_gcode::zhuan_huan_wan_cheng);
    QCOMPARE(controller.prepareRun(m_design.items()), !job.isEmpty());
    QCOMPARE(m_messages.size(), asked ? 1 : 0);
    if (asked)
        QCOMPARE(m_messages.first().message, kCheckRotary);
    if (asked && rotary.isUsable()) {
        QCOMPARE(m_messages.first().firstButton, QStringLiteral("确定"));
        QCOMPARE(m_messages.first().secondButton, QStringLiteral("取消"));
    }
    QCOMPARE(ready.count(), job.isEmpty() ? 0 : 1);
    QCOMPARE(finished.count(), job.isEmpty() ? 0 : 1);
    if (job.isEmpty()) {
        QVERIFY(!QFile::exists(Jk_gcode::defaultJobPath()));
        return;
    }
    QCOMPARE(Jk_gcode::defaultJobPath(), config_dir() + QStringLiteral("/code.txt"));
    QCOMPARE(programState().jobFilePath, Jk_gcode::defaultJobPath());
    QVERIFY(readFileBytes(Jk_gcode::defaultJobPath()).contains(job));
}

void TestGcodeUi::saveGcode_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("written"); // empty when nothing is saved
    QTest::addColumn<QString>("message");
    QTest::newRow("nc") << "a.nc"
                        << "a.nc" << QString();
    QTest::newRow("gcode") << "b.GCODE"
                           << "b.GCODE" << QString();
    QTest::newRow("no suffix") << "c"
                               << "c.nc" << QString();
    QTest::newRow("other suffix") << "d.txt"
                                  << "d.txt.nc" << QString();
    QTest::newRow("cancelled") << QString() << QString() << QString();
    QTest::newRow("folder missing") << "missing/job.nc" << QString() << "保存失败!";
}

void TestGcodeUi::saveGcode()
{
    QFETCH(QString, chosen);
    QFETCH(QString, written);
    QFETCH(QString, message);
    GcodeJobController controller(nullptr);
    controller.setLayerList(&m_design.layers);
    controller.setFileChooser([&](QWidget *, const QString &) {
        return chosen.isEmpty() ? QString() : m_dir.filePath(chosen);
    });
    QSignalSpy saved(&controller, &GcodeJobController::saved);
    QCOMPARE(controller.saveGcode(m_design.items()), !written.isEmpty());
    QCOMPARE(m_messages.size(), message.isEmpty() ? 0 : 1);
    if (!message.isEmpty())
        QCOMPARE(m_messages.first().message, message);
    QCOMPARE(saved.count(), written.isEmpty() ? 0 : 1);
    if (written.isEmpty())
        return;
    QCOMPARE(saved.first().first().toString(), m_dir.filePath(written));
    QVERIFY(readFileBytes(m_dir.filePath(written)).startsWith("M4\nM8\n;L0\n"));
}

void TestGcodeUi::runPlacesTheJob_data()
{
    QTest::addColumn<JobStart>("start");
    QTest::addColumn<QString>("message"); // what the user is asked or told; empty for nothing
    QTest::addColumn<QByteArray>("job");  // a line of code.txt; empty when no job is written
    // The design is one segment at machine X 0..20, Y 10, anchored at its left end.
    JobStart absolute;
    JobStart here;
    here.mode = StartMode::CurrentPosition;
    here.anchor = 3;
    here.headKnown = true;
    here.head = QPointF(100, 100);
    JobStart nearEdge = here;
    nearEdge.head = QPointF(390, 100);
    JobStart unknown = here;
    unknown.headKnown = false;
    JobStart user;
    user.mode = StartMode::UserOrigin;
    user.anchor = kAnchorCentre;
    QTest::newRow("absolute") << absolute << QString() << QByteArray("G0X0.00Y10.00");
    QTest::newRow("current position") << here << QString() << QByteArray("G0X100.00Y100.00");
    // Moved past the right edge of the 400 mm area: asked where it will burn; cancelled.
    QTest::newRow("current position, beyond the area")
        << nearEdge << "X 390.0..410.0, Y 100.0..100.0" << QByteArray();
    QTest::newRow("current position unknown")
        << unknown << "当前位置未知,请先连接设备!" << QByteArray();
    // Negative work coordinates, but the user origin's place is not known: no question.
    QTest::newRow("user origin") << user << QString() << QByteArray("G0X-10.00Y0.00");
}

void TestGcodeUi::runPlacesTheJob()
{
    QFETCH(JobStart, start);
    QFETCH(QString, message);
    QFETCH(QByteArray, job);
    QFile::remove(Jk_gcode::defaultJobPath());
    m_answer = 0; // a work-area question is cancelled
    GcodeJobController controller(nullptr);
    controller.setLayerList(&m_design.layers);
    controller.setJobStartSource([start] { return start; });
    QCOMPARE(controller.prepareRun(m_design.items()), !job.isEmpty());
    QCOMPARE(m_messages.size(), message.isEmpty() ? 0 : 1);
    if (!message.isEmpty())
        QVERIFY2(m_messages.first().message.contains(message),
                 qPrintable(m_messages.first().message));
    if (job.isEmpty()) {
        QVERIFY(!QFile::exists(Jk_gcode::defaultJobPath()));
        return;
    }
    QVERIFY(readFileBytes(Jk_gcode::defaultJobPath()).contains(job));
}

void TestGcodeUi::wireQuestion_data()
{
    QTest::addColumn<bool>("serial");
    QTest::addColumn<int>("feed");
    QTest::addColumn<int>("answer"); // 1 slower, 2 run anyway, 0 cancel
    QTest::addColumn<bool>("asked");
    QTest::addColumn<bool>("runs");
    QTest::addColumn<bool>("slowed");
    QTest::newRow("WiFi, fast") << false << 30000 << 1 << false << true << false;
    QTest::newRow("serial, slow enough") << true << 1000 << 1 << false << true << false;
    QTest::newRow("serial, fast, slower") << true << 30000 << 1 << true << true << true;
    QTest::newRow("serial, fast, run anyway") << true << 30000 << 2 << true << true << false;
    QTest::newRow("serial, fast, cancel") << true << 30000 << 0 << true << false << false;
}

void TestGcodeUi::wireQuestion()
{
    QFETCH(bool, serial);
    QFETCH(int, feed);
    QFETCH(int, answer);
    QFETCH(bool, asked);
    QFETCH(bool, runs);
    QFETCH(bool, slowed);
    JobDesign design;
    TuCeng *layer = design.addLayer(0, true);
    layer->moshi = GreyscaleMode;
    layer->jianju = 0.1;
    layer->sudu = feed;
    layer->mingcheng = QStringLiteral("Photo");
    QImage ramp(200, 20, QImage::Format_Grayscale8);
    for (int y = 0; y < ramp.height(); ++y) {
        for (int x = 0; x < ramp.width(); ++x)
            ramp.scanLine(y)[x] = uchar((x * 37 + y * 11) % 250);
    }
    Jk_tu_yuan *item = design.addBitmap(ramp, 0, QPointF(10, -30));
    item->setTransform(
        QTransform::fromScale(0.1 / Jk_tu_yuan::kPixelMm, 0.1 / Jk_tu_yuan::kPixelMm));

    m_answer = answer;
    GcodeJobController controller(nullptr);
    controller.setLayerList(&design.layers);
    controller.setSerialLinkSource([serial] { return serial; });
    QSignalSpy ready(&controller, &GcodeJobController::runFileReady);
    QCOMPARE(controller.prepareRun(design.items()), runs);
    QCOMPARE(ready.count(), runs ? 1 : 0);
    QCOMPARE(m_messages.size(), asked ? 1 : 0);

    const QByteArray job = readFileBytes(Jk_gcode::defaultJobPath());
    const QRegularExpression feedWord(QStringLiteral("F(\\d+)\\n"));
    const QRegularExpressionMatch written = feedWord.match(QString::fromLatin1(job));
    QVERIFY(written.hasMatch());
    const int used = written.captured(1).toInt();
    if (asked) {
        const MessageRequest &m = m_messages.first();
        QCOMPARE(m.firstButton, QStringLiteral("降速"));
        QCOMPARE(m.thirdButton, QStringLiteral("仍然运行"));
        QCOMPARE(m.secondButton, QStringLiteral("取消"));
        QVERIFY(m.message.contains(QStringLiteral("Photo")));
        QVERIFY(m.message.contains(QStringLiteral("11520")));
    }
    if (!slowed) {
        QCOMPARE(used, feed);
        return;
    }
    // The offered feed is the one written, named in the question, and carried by the wire.
    QVERIFY(used < feed);
    QVERIFY(m_messages.first().message.contains(QStringLiteral(" %1 mm/min").arg(used)));
    const Jk_gcode::RasterSection &section = controller.generator()->lastRasterSections().first();
    QCOMPARE(section.feed, double(used));
    QVERIFY(wireLoad(double(section.bytes), section.feedLength, section.feed).bytesPerSecond
            <= kSerialBytesPerSecond);
    // The slower feed was for that run only.
    QVERIFY(controller.generator()->kai_shi_zhuan_huan(design.items(), QString()));
    QVERIFY(readFileBytes(Jk_gcode::defaultJobPath()).contains("F30000\n"));
}

QTEST_MAIN(TestGcodeUi)
#include "tst_gcode_ui.moc"
