#include "chuan_kou_jian_ce.h"
#include "frame_area.h"
#include "jk_com.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "link_fixture.h"
#include "machine_controller.h"
#include "machine_panel.h"
#include "message_box.h"
#include "port_choice.h"
#include "program_state.h"
#include "raster_words.h"
#include "settings_store.h"
#include "stream_state.h"
#include "ui_machine_panel.h"

#include <QLineEdit>
#include <atomic>
#include <memory>

using lumitra::programState;

class TestMachineController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void connectHomesAndShowsLinked();
    void jobTimingFollowsTheLink();
    void settingsGiveWorkArea();
    void controls_data();
    void controls();
    void refusedWithoutLink_data();
    void refusedWithoutLink();
    void whileBusy();
    void testFireFollowsPower();
    void testFireRefusedWhileBusy_data();
    void testFireRefusedWhileBusy();
    void closingStopsTheLaser_data();
    void closingStopsTheLaser();
    void lostPortClosesQuietly_data();
    void lostPortClosesQuietly();
    void connectOutcomes_data();
    void connectOutcomes();
    void typedPortSurvivesWatcher_data();
    void typedPortSurvivesWatcher();
    void typedLinkConnects();
    void stopEmptiesTheStream();
    void alarmShowsOnceThenHomes();
    void runFileShowsIndicatorUntilIdle();
    void unplugShowsDisconnected();
    void framing();
    void framingFollowsTheJobStart_data();
    void framingFollowsTheJobStart();
    void startChoiceSurvivesARestart();
    void outputBoundsSkipsHiddenLayers();
    void watcherFillsPortList();
    void wifiCommands();

private:
    // Connects the controller to a started fake through the panel.
    bool connectTo(GrblFake &fake);
    // Queues a line the fake acknowledges and waits until it arrived: every
    // line queued before it has arrived too.
    bool syncWith(GrblFake &fake);
    // Busy as while a job runs: a Run report from the fake (serial), or the
    // WiFi link's flag.
    bool makeBusy(GrblFake &fake, bool wifi);
    QStringList linesAfterConnect(const GrblFake &fake) const { return fake.lines().mid(2); }

    QList<lumitra::MessageRequest> m_messages;
    std::unique_ptr<MachinePanel> m_panel;
    std::unique_ptr<MachineController> m_controller;
};

void TestMachineController::init()
{
    lumitra::resetProgramState();
    m_messages.clear();
    lumitra::set_message_handler([this](const lumitra::MessageRequest &r) {
        m_messages.append(r);
        return 1;
    });
    lumitra::saveJobStart(lumitra::JobStart()); // jobs start where they are drawn
    m_panel = std::make_unique<MachinePanel>();
    m_controller = std::make_unique<MachineController>(m_panel.get(), m_panel.get());
}

void TestMachineController::cleanup()
{
    m_controller.reset();
    m_panel.reset();
    lumitra::set_message_handler({});
    LayerList::instance().clear();
}

bool TestMachineController::connectTo(GrblFake &fake)
{
    if (!fake.start())
        return false;
    Ui::MachinePanel &f = m_panel->form();
    f.port_Box->addItem(fake.portName());
    f.port_Box->setCurrentText(fake.portName());
    f.connect_Btn->click();
    // Linked, and the home command queued after linking has arrived.
    return QTest::qWaitFor([&] {
        return programState().connectionMode == lumitra::SerialLink && fake.lineCount() >= 2;
    });
}

void TestMachineController::connectHomesAndShowsLinked()
{
    GrblFake fake;
    QSignalSpy changed(m_controller.get(), &MachineController::connectionChanged);
    QVERIFY(connectTo(fake));
    QCOMPARE(fake.lines(), (QStringList{"$i", "$H"}));
    QCOMPARE(m_panel->form().connect_Btn->text(), QString("已连接"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toInt(), int(lumitra::SerialLink));

    m_panel->form().connect_Btn->click(); // the second click disconnects
    QCOMPARE(programState().connectionMode, int(lumitra::NotConnected));
    QCOMPARE(m_panel->form().connect_Btn->text(), QString("连接"));
    QVERIFY(!m_controller->link()->isOpen());
    QVERIFY(m_messages.isEmpty());
}

// A previewed job is timed for the link it will run over: the serial link's
// rate, or none for a WiFi job run from the board's card; with no link up,
// the link last used (kept across runs).
void TestMachineController::jobTimingFollowsTheLink()
{
    lumitra::set_setting(QStringLiteral("JiQi/LianJie"), QString());
    const double serial = lumitra::kSerialBytesPerSecond;
    QCOMPARE(m_controller->plannedJobSettings().linkBytesPerSecond, serial); // never linked

    m_controller->setWifiLinked(QStringLiteral("127.0.0.1:1"));
    QCOMPARE(m_controller->plannedJobSettings().linkBytesPerSecond, 0.0);
    m_controller->onWifiLost(true);
    QCOMPARE(programState().connectionMode, int(lumitra::NotConnected));
    QCOMPARE(m_controller->plannedJobSettings().linkBytesPerSecond, 0.0);
    // A later run remembers it too.
    m_controller = std::make_unique<MachineController>(m_panel.get(), m_panel.get());
    QCOMPARE(m_controller->plannedJobSettings().linkBytesPerSecond, 0.0);

    GrblFake fake;
    QVERIFY(connectTo(fake));
    QCOMPARE(m_controller->plannedJobSettings().linkBytesPerSecond, serial);
    m_panel->form().connect_Btn->click();
    QCOMPARE(programState().connectionMode, int(lumitra::NotConnected));
    QCOMPARE(m_controller->plannedJobSettings().linkBytesPerSecond, serial);
}

void TestMachineController::settingsGiveWorkArea()
{
    GrblFake::Options o;
    o.settings = {{30, "255"}, {110, "8000.000"}, {130, "300.4"}, {131, "180.6"}, {132, "45.5"}};
    GrblFake fake(o);
    QSignalSpy travel(m_controller.get(), &MachineController::machineTravelKnown);
    QVERIFY(connectTo(fake));
    // The settings are asked for 2 s after linking.
    QVERIFY(travel.wait(3500));
    QCOMPARE(linesAfterConnect(fake), (QStringList{"$I", "$$"}));
    QCOMPARE(programState().width, 300);
    QCOMPARE(programState().height, 181);
    QCOMPARE(travel.first().at(1).toBool(), true);
    QVERIFY(m_controller->travelKnown());
    QCOMPARE(m_controller->zTravel(), 45.5);
    QCOMPARE(m_controller->laserMaxS(), 255.0);
    QCOMPARE(m_panel->form().feed_Slider->maximum(), 8000);
    QCOMPARE(m_panel->form().feed_Slider->value(), 4000);
}

void TestMachineController::controls_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("sent");

    QTest::newRow("home unlocks first") << "home_Btn" << QStringList{"$X", "$H"};
    QTest::newRow("go to origin") << "origin_Btn" << QStringList{"$J=G90X0Y0F5000"};
    QTest::newRow("set origin") << "setOrigin_Btn" << QStringList{"G92X0Y0Z0"};
    QTest::newRow("clear origin") << "clearOrigin_Btn" << QStringList{"G92.1"};
    QTest::newRow("move to") << "move_Btn" << QStringList{"G90X12.5Y-3"};
    QTest::newRow("jog up-left") << "jog0_Btn" << QStringList{"$J=G91X-10Y10F3000"};
    QTest::newRow("jog right") << "jog5_Btn" << QStringList{"$J=G91X10F3000"};
    QTest::newRow("jog down") << "jog7_Btn" << QStringList{"$J=G91Y-10F3000"};
    QTest::newRow("jog up") << "jog1_Btn" << QStringList{"$J=G91Y10F3000"};
    QTest::newRow("jog left") << "jog3_Btn" << QStringList{"$J=G91X-10F3000"};
    QTest::newRow("jog down-right") << "jog8_Btn" << QStringList{"$J=G91X10Y-10F3000"};
    QTest::newRow("jog centre") << "jog4_Btn" << QStringList{"$J=G90X0Y0F3000"};
    QTest::newRow("test fire") << "fire_Btn" << QStringList{"M3S10G1F1000"};
}

void TestMachineController::controls()
{
    QFETCH(QString, button);
    QFETCH(QStringList, sent);
    GrblFake fake;
    QVERIFY(connectTo(fake));
    m_panel->form().x_Box->setValue(12.5);
    m_panel->form().y_Box->setValue(-3);
    auto *b = m_panel->findChild<QPushButton *>(button);
    QVERIFY(b);
    b->click();
    QTRY_COMPARE(linesAfterConnect(fake), sent);
    QVERIFY(m_messages.isEmpty());
}

void TestMachineController::refusedWithoutLink_data()
{
    QTest::addColumn<QString>("button");
    for (const char *b : {"home_Btn", "origin_Btn", "setOrigin_Btn", "clearOrigin_Btn", "move_Btn",
                          "stop_Btn", "jog3_Btn", "frame_Btn", "fire_Btn"})
        QTest::newRow(b) << QString(b);
}

void TestMachineController::refusedWithoutLink()
{
    QFETCH(QString, button);
    m_panel->findChild<QPushButton *>(button)->click();
    QCOMPARE(m_messages.size(), 1);
    QCOMPARE(m_messages.first().message, QString("请先连接设备!"));
    QCOMPARE(m_messages.first().title, QString("提示"));
    QVERIFY(!m_panel->form().fire_Btn->isChecked());
    QVERIFY(m_controller->link() == nullptr);
}

void TestMachineController::whileBusy()
{
    GrblFake fake;
    QVERIFY(connectTo(fake));
    Ui::MachinePanel &f = m_panel->form();
    f.pause_Btn->click(); // not busy: nothing
    QCOMPARE(f.pause_Btn->text(), QString("暂停"));

    QSignalSpy busy(m_controller.get(), &MachineController::busyChanged);
    fake.sendRaw("<Run|MPos:1.000,2.000,0.000|FS:100,0>\r\n");
    QVERIFY(busy.wait(2000));
    QVERIFY(m_controller->busy());
    QVERIFY(programState().running);
    QCOMPARE(f.pos_Lab->text(), QString("X:1.000 Y:2.000"));
    f.home_Btn->click();
    f.fire_Btn->click();
    f.run_Btn->click();
    QCOMPARE(m_messages.size(), 3);
    QCOMPARE(m_messages.at(0).message, QString("设备运行中禁用此功能!"));
    QCOMPARE(m_messages.at(1).message, QString("设备运行中禁用此功能!"));
    QCOMPARE(m_messages.at(2).message, QString("设备雕刻中,暂时停止使用!"));
    QVERIFY(!f.fire_Btn->isChecked());

    f.pause_Btn->click();
    QCOMPARE(f.pause_Btn->text(), QString("继续"));
    QTRY_VERIFY(fake.realTimeBytes().contains('!'));
    QCOMPARE(fake.realTimeBytes().count('!'), 1); // the first click sent nothing
    f.pause_Btn->click();
    QCOMPARE(f.pause_Btn->text(), QString("暂停"));
    QTRY_VERIFY(fake.realTimeBytes().contains('~'));
    QCOMPARE(fake.lineCount(), 2); // none of it went as a line
}

void TestMachineController::testFireFollowsPower()
{
    GrblFake fake;
    QVERIFY(connectTo(fake));
    Ui::MachinePanel &f = m_panel->form();
    f.power_Box->setValue(2);
    f.fire_Btn->click();
    QVERIFY(f.fire_Btn->isChecked());
    f.power_Box->setValue(5);
    f.fire_Btn->click();
    QVERIFY(!f.fire_Btn->isChecked());
    QCOMPARE(f.fire_Btn->text(), QString("点火"));
    f.power_Box->setValue(7); // unchecked: not sent
    QTRY_COMPARE(linesAfterConnect(fake),
                 (QStringList{"M3S20G1F1000", "M3S50G1F1000", "M5S0G0F1000"}));
    QTest::qWait(50);
    QCOMPARE(fake.lineCount(), 5);
}

bool TestMachineController::syncWith(GrblFake &fake)
{
    m_controller->link()->queueText("G4P0");
    return QTest::qWaitFor([&] { return fake.lines().endsWith("G4P0"); });
}

bool TestMachineController::makeBusy(GrblFake &fake, bool wifi)
{
    if (wifi) {
        m_controller->setWifiBusy(true);
        return m_controller->busy();
    }
    QSignalSpy busy(m_controller.get(), &MachineController::busyChanged);
    fake.sendRaw("<Run|MPos:1.000,2.000,0.000|FS:100,0>\r\n");
    return busy.wait(2000) && m_controller->busy();
}

void TestMachineController::testFireRefusedWhileBusy_data()
{
    QTest::addColumn<bool>("wifi");
    QTest::addColumn<bool>("firingBefore"); // switched on before the job ran
    QTest::newRow("serial, on refused") << false << false;
    QTest::newRow("serial, off refused") << false << true;
    QTest::newRow("wifi, on refused") << true << false;
    QTest::newRow("wifi, off refused") << true << true;
}

void TestMachineController::testFireRefusedWhileBusy()
{
    QFETCH(bool, wifi);
    QFETCH(bool, firingBefore);
    Ui::MachinePanel &f = m_panel->form();
    GrblFake fake;
    QSignalSpy urls(m_controller.get(), &MachineController::wifiCommand);
    if (wifi) {
        programState().connectionMode = lumitra::WifiLink;
        m_controller->setWifiAddress("127.0.0.1");
    } else {
        QVERIFY(connectTo(fake));
    }
    if (firingBefore) {
        f.fire_Btn->click();
        QVERIFY(f.fire_Btn->isChecked());
    }
    const int urlsBefore = urls.count();
    QVERIFY(makeBusy(fake, wifi));

    f.fire_Btn->click();
    QCOMPARE(m_messages.size(), 1);
    QCOMPARE(m_messages.first().message, QString("设备运行中禁用此功能!"));
    // The button still shows what the laser does.
    QCOMPARE(f.fire_Btn->isChecked(), firingBefore);
    f.power_Box->setValue(f.power_Box->value() + 3); // no new power into the job either
    QCOMPARE(urls.count(), urlsBefore);
    if (!wifi) {
        QVERIFY(syncWith(fake));
        const QStringList expected =
            firingBefore ? QStringList{"M3S10G1F1000", "G4P0"} : QStringList{"G4P0"};
        QCOMPARE(linesAfterConnect(fake), expected);
        QCOMPARE(m_controller->link()->laserOn(), firingBefore);
    }
}

void TestMachineController::closingStopsTheLaser_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<bool>("job"); // a job runs, else test fire is on
    for (const char *how : {"disconnect button", "shutdownLink", "application quits",
                            "controller destroyed", "new connect replaces the link"}) {
        QTest::newRow(qPrintable(QString("%1, test fire").arg(how))) << QString(how) << false;
        QTest::newRow(qPrintable(QString("%1, job").arg(how))) << QString(how) << true;
    }
}

void TestMachineController::closingStopsTheLaser()
{
    QFETCH(QString, how);
    QFETCH(bool, job);
    QTemporaryDir dir;
    GrblFake::Options o;
    o.bytesPerSecond = 11520.0; // the job is still streaming when the link closes
    o.resetBootMs = 50;         // what arrives during the restart after 0x18 is lost
    GrblFake fake(o);
    QVERIFY(connectTo(fake));
    if (job) {
        m_controller->runJob(writeJobFile(dir, 20000));
        QTRY_VERIFY(fake.lineCount() > 30);
    } else {
        m_panel->form().fire_Btn->click();
        QTRY_COMPARE(linesAfterConnect(fake), QStringList{"M3S10G1F1000"});
    }

    Jk_com *link = m_controller->link();
    if (how == "disconnect button") {
        m_panel->form().connect_Btn->click();
    } else if (how == "shutdownLink") {
        m_controller->shutdownLink();
        m_controller->shutdownLink(); // twice: nothing more happens
    } else if (how == "application quits") {
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        qApp->exec(); // returns after aboutToQuit
    } else if (how == "controller destroyed") {
        m_controller.reset();
        link = nullptr;
    } else {
        QVERIFY(!link->connectPort("/nonexistent/lumitra-port"));
    }
    if (link)
        QVERIFY(!link->isOpen());
    if (m_controller && how != "new connect replaces the link")
        QVERIFY(!m_panel->form().fire_Btn->isChecked());

    // Written before the port closed: nothing can be written after it.
    QTRY_VERIFY(fake.lines().endsWith("M5"));
    const QByteArray wire = fake.received();
    const int laserOff = wire.lastIndexOf("M5\n");
    if (job) {
        const int hold = wire.lastIndexOf('!');
        const int reset = wire.lastIndexOf(char(0x18));
        QVERIFY(hold >= 0);
        QVERIFY2(hold < reset && reset < laserOff, wire.right(40).toHex().constData());
        QCOMPARE(fake.resetCount(), 1);
        // Nothing of the job after the reset.
        QCOMPARE(wire.mid(reset + 1).replace("?", ""), QByteArray("M5\n"));
    } else {
        QVERIFY(!wire.contains('!'));
        QCOMPARE(fake.resetCount(), 0);
        QCOMPARE(linesAfterConnect(fake), (QStringList{"M3S10G1F1000", "M5"}));
    }
    QCOMPARE(wire.count("M5\n"), 1);
    QVERIFY(!fake.overrun());
}

void TestMachineController::lostPortClosesQuietly_data()
{
    QTest::addColumn<bool>("job");
    QTest::newRow("test fire on") << false;
    QTest::newRow("job running") << true;
}

void TestMachineController::lostPortClosesQuietly()
{
    QFETCH(bool, job);
    QTemporaryDir dir;
    GrblFake::Options o;
    o.bytesPerSecond = 11520.0;
    GrblFake fake(o);
    QVERIFY(connectTo(fake));
    if (job) {
        m_controller->runJob(writeJobFile(dir, 20000));
        QTRY_VERIFY(fake.lineCount() > 30);
    } else {
        m_panel->form().fire_Btn->click();
        QTRY_COMPARE(linesAfterConnect(fake), QStringList{"M3S10G1F1000"});
    }
    QSignalSpy changed(m_controller.get(), &MachineController::connectionChanged);
    fake.closeFarEnd();
    QVERIFY(changed.wait(3000));
    QCOMPARE(programState().connectionMode, int(lumitra::NotConnected));
    QVERIFY(!m_panel->form().fire_Btn->isChecked());
    QVERIFY(!m_controller->link()->isOpen());
    // Nothing to write to: closing again and destroying neither crash nor hang.
    m_controller->shutdownLink();
    m_controller.reset();
    QVERIFY(m_messages.isEmpty());
}

void TestMachineController::connectOutcomes_data()
{
    QTest::addColumn<QString>("port"); // "fake": the fake's port
    QTest::addColumn<bool>("answer");  // the fake answers "$i"
    QTest::addColumn<bool>("unplug");  // the fake goes away during the handshake
    QTest::addColumn<QString>("text"); // console line and message; "%1" the port
    QTest::addColumn<bool>("message");

    QTest::newRow("linked") << "fake" << true << false << "已连接到串口 %1" << false;
    QTest::newRow("empty port box") << "" << true << false << "请选择或输入串口!" << true;
    QTest::newRow("port does not open")
        << "/nonexistent/lumitra-port" << true << false << "无法打开串口 %1:" << true;
    QTest::newRow("no GRBL answer")
        << "fake" << false << false << "串口 %1 上的设备没有作为GRBL控制器应答!" << true;
    QTest::newRow("port fails during the handshake")
        << "fake" << false << true << "串口 %1 在连接时出错:" << true;
}

void TestMachineController::connectOutcomes()
{
    QFETCH(QString, port);
    QFETCH(bool, answer);
    QFETCH(bool, unplug);
    QFETCH(QString, text);
    QFETCH(bool, message);
    GrblFake::Options o;
    o.answerIdentify = answer;
    GrblFake fake(o);
    if (port == "fake") {
        QVERIFY(fake.start());
        port = fake.portName();
    }
    const QString expected = text.contains("%1") ? text.arg(port) : text;
    Ui::MachinePanel &f = m_panel->form();
    QTest::keyClicks(f.port_Box->lineEdit(), port);
    m_controller->setHandshakeTimeout(unplug ? 60000 : 300);
    f.connect_Btn->click();
    if (unplug) {
        QTRY_COMPARE(fake.lines(), QStringList{"$i"});
        fake.closeFarEnd();
    }
    QTRY_VERIFY_WITH_TIMEOUT(!f.console_Edit->toPlainText().isEmpty(), 3000);
    const QString console = f.console_Edit->toPlainText();
    QVERIFY2(console.startsWith(expected), qPrintable(console));
    QCOMPARE(console.count('\n'), 0); // one line per attempt
    if (!message) {
        QCOMPARE(programState().connectionMode, int(lumitra::SerialLink));
        QVERIFY(m_messages.isEmpty());
        return;
    }
    QCOMPARE(m_messages.size(), 1);
    QCOMPARE(m_messages.first().message, console);
    QCOMPARE(m_messages.first().title, QString("提示"));
    QCOMPARE(programState().connectionMode, int(lumitra::NotConnected));
    QCOMPARE(f.connect_Btn->text(), QString("连接"));
    if (expected.endsWith(":")) {
        // The system's reason follows the port.
        QVERIFY(console.size() > expected.size());
        QCOMPARE(console.mid(expected.size()), m_controller->link()->lastError());
    }
}

void TestMachineController::typedPortSurvivesWatcher_data()
{
    QTest::addColumn<QStringList>("listed"); // entries before the change
    QTest::addColumn<bool>("type");          // the user types "/dev/typed"
    QTest::addColumn<QString>("change");     // append, remove0, select
    QTest::addColumn<QString>("shown");

    QTest::newRow("typed, first entry appended") << QStringList{} << true << "append"
                                                 << "/dev/typed";
    QTest::newRow("typed, entry appended") << QStringList{"A"} << true << "append"
                                           << "/dev/typed";
    QTest::newRow("typed, current entry removed") << QStringList{"A", "B"} << true << "remove0"
                                                  << "/dev/typed";
    QTest::newRow("typed, last entry removed") << QStringList{"A"} << true << "remove0"
                                               << "/dev/typed";
    QTest::newRow("typed, watcher selects") << QStringList{"A", "N"} << true << "select"
                                            << "/dev/typed";
    QTest::newRow("picked, watcher selects") << QStringList{"A", "N"} << false << "select"
                                             << "N";
    QTest::newRow("picked, first entry appended") << QStringList{} << false << "append"
                                                  << "N";
    QTest::newRow("picked, current entry removed") << QStringList{"A", "B"} << false << "remove0"
                                                   << "B";
}

void TestMachineController::typedPortSurvivesWatcher()
{
    QFETCH(QStringList, listed);
    QFETCH(bool, type);
    QFETCH(QString, change);
    QFETCH(QString, shown);
    QComboBox *box = m_panel->form().port_Box;
    PortChoice *choice = m_controller->portChoice();
    QVERIFY(box->isEditable());
    for (const QString &port : listed)
        choice->appendPort(port);
    if (type) {
        box->lineEdit()->selectAll(); // typing replaces the entry shown
        QTest::keyClicks(box->lineEdit(), "/dev/typed");
    }
    QCOMPARE(choice->typed(), type);
    if (change == "append")
        choice->appendPort("N");
    else if (change == "remove0")
        choice->removePortAt(0);
    else
        choice->autoSelect("N");
    QCOMPARE(box->currentText(), shown);
    QCOMPARE(choice->port(), shown);
    QVERIFY(box->findText("/dev/typed") < 0); // never added to the list

    if (type) {
        // Picking an entry hands the box back to the watcher.
        const int row = box->count() - 1;
        box->setCurrentIndex(row);
        emit box->activated(row);
        QVERIFY(!choice->typed());
        choice->autoSelect("N");
        QCOMPARE(choice->port(), QString("N"));
    }
}

void TestMachineController::typedLinkConnects()
{
    GrblFake fake;
    QVERIFY(fake.start());
    QTemporaryDir dir;
    const QString typed = dir.filePath("usb-Lumitra_GRBL-if00-port0");
    QVERIFY(QFile::link(fake.portName(), typed));
    Ui::MachinePanel &f = m_panel->form();
    QTest::keyClicks(f.port_Box->lineEdit(), typed);

    // The watcher lists the real device, probes it and selects it: what the
    // user typed stays.
    // The port appears in the watcher's second round, once the spy listens.
    const QString listed = fake.portName();
    auto present = std::make_shared<std::atomic_bool>(false);
    m_controller->startPortWatcher(
        [listed, present] { return *present ? QStringList{listed} : QStringList{}; });
    QSignalSpy selected(m_controller->portWatcher(), &Chuan_Kou_Jian_Ce::selectPort);
    *present = true;
    QTRY_COMPARE_WITH_TIMEOUT(selected.count(), 2, 5000);
    QCoreApplication::processEvents();
    QCOMPARE(f.port_Box->count(), 1);
    QCOMPARE(f.port_Box->currentText(), typed);

    f.connect_Btn->click();
    QTRY_COMPARE(programState().connectionMode, int(lumitra::SerialLink));
    QCOMPARE(m_controller->link()->portName(), typed); // not resolved
    QTRY_COMPARE(fake.lines(), (QStringList{"AT", "$i", "$H"}));
    QVERIFY(m_messages.isEmpty());
    QCOMPARE(f.console_Edit->toPlainText(), "已连接到串口 " + typed);
}

void TestMachineController::stopEmptiesTheStream()
{
    QTemporaryDir dir;
    const QString path = writeJobFile(dir, 20000);
    GrblFake::Options o;
    o.bytesPerSecond = 11520.0;
    GrblFake fake(o);
    QVERIFY(connectTo(fake));
    m_controller->runJob(path);
    QTRY_VERIFY(fake.lineCount() > 30);
    m_panel->form().pause_Btn->setText("继续");
    m_panel->form().stop_Btn->click();
    QCOMPARE(m_panel->form().pause_Btn->text(), QString("暂停"));
    QVERIFY(m_controller->link()->stream().drained());
    QVERIFY(!m_controller->link()->jobRunning());
    QTRY_VERIFY(fake.realTimeBytes().contains(char(0x18)));
    QVERIFY(!fake.overrun());
}

void TestMachineController::alarmShowsOnceThenHomes()
{
    GrblFake fake;
    QVERIFY(connectTo(fake));
    fake.raiseAlarm(1);
    // The 500 ms poll reads the alarm; the link resets and unlocks.
    QTRY_COMPARE_WITH_TIMEOUT(m_messages.size(), 1, 3000);
    QCOMPARE(m_messages.first().message, QString("设备触发警告!"));
    QCOMPARE(m_messages.first().title, QString("警告"));
    QCOMPARE(m_messages.first().firstButton, QString("确定"));
    QCOMPARE(m_messages.first().kind, lumitra::MessageKind::Warning);
    // The link unlocked, and one second after the message the machine is homed.
    QTRY_VERIFY_WITH_TIMEOUT(linesAfterConnect(fake).contains("$X"), 3000);
    QTRY_COMPARE_WITH_TIMEOUT(linesAfterConnect(fake).last(), QString("$H"), 3000);
    const QStringList after = linesAfterConnect(fake);
    QVERIFY(after.indexOf("$X") < after.lastIndexOf("$H"));
    QCOMPARE(m_messages.size(), 1);
    QVERIFY(!m_controller->statusState().alarmShown);
}

void TestMachineController::runFileShowsIndicatorUntilIdle()
{
    QTemporaryDir dir;
    const QString path = writeJobFile(dir, 40, "job.NC");
    GrblFake::Options o;
    o.motionMsPerLine = 20; // about 0.8 s of Run
    GrblFake fake(o);
    QVERIFY(connectTo(fake));
    m_controller->setFileChooser([path] { return path; });
    QSignalSpy busy(m_controller.get(), &MachineController::busyChanged);
    m_panel->form().run_Btn->click();
    QCOMPARE(programState().jobFilePath, path);
    QTRY_VERIFY_WITH_TIMEOUT(m_panel->form().running_Lab->isVisibleTo(m_panel.get()), 3000);
    QVERIFY(m_controller->busy());
    // Idle again: the indicator goes on the fourth Idle report.
    QTRY_VERIFY_WITH_TIMEOUT(!m_controller->busy(), 5000);
    QVERIFY(m_panel->form().running_Lab->isVisibleTo(m_panel.get()));
    QTRY_VERIFY_WITH_TIMEOUT(!m_panel->form().running_Lab->isVisibleTo(m_panel.get()), 4000);
    QVERIFY(fake.lines().contains(jobLine(39)));
    QCOMPARE(m_panel->form().progress_Bar->value(), 100);
    QCOMPARE(busy.count(), 2);
    QVERIFY(m_panel->form().console_Edit->toPlainText().contains("Run X:"));
}

void TestMachineController::unplugShowsDisconnected()
{
    GrblFake fake;
    QVERIFY(connectTo(fake));
    QSignalSpy changed(m_controller.get(), &MachineController::connectionChanged);
    fake.closeFarEnd();
    QVERIFY(changed.wait(3000));
    QCOMPARE(changed.first().first().toInt(), int(lumitra::NotConnected));
    QCOMPARE(programState().connectionMode, int(lumitra::NotConnected));
    QCOMPARE(m_panel->form().connect_Btn->text(), QString("连接"));
    QVERIFY(!m_controller->link()->isOpen());
    m_panel->form().home_Btn->click();
    QCOMPARE(m_messages.last().message, QString("请先连接设备!"));
}

void TestMachineController::framingFollowsTheJobStart_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("anchor");
    QTest::addColumn<QStringList>("expected");
    // The design covers machine X 10..60, Y 50..80; the head reports 100, 40.
    // Started there, the head comes back to it after the frame.
    QTest::newRow("current position, bottom left") << 1 << 6
                                                   << QStringList{"M5S0",
                                                                  "$J=G90X100.00Y40.00F3000",
                                                                  "$J=G90X150.00Y40.00F3000",
                                                                  "$J=G90X150.00Y70.00F3000",
                                                                  "$J=G90X100.00Y70.00F3000",
                                                                  "$J=G90X100.00Y40.00F3000",
                                                                  "$J=G90X100.00Y40.00F3000"};
    QTest::newRow("current position, top right") << 1 << 2
                                                 << QStringList{"M5S0",
                                                                "$J=G90X50.00Y10.00F3000",
                                                                "$J=G90X100.00Y10.00F3000",
                                                                "$J=G90X100.00Y40.00F3000",
                                                                "$J=G90X50.00Y40.00F3000",
                                                                "$J=G90X50.00Y10.00F3000",
                                                                "$J=G90X100.00Y40.00F3000"};
    QTest::newRow("user origin, centre") << 2 << 4
                                         << QStringList{"M5S0",
                                                        "$J=G90X-25.00Y-15.00F3000",
                                                        "$J=G90X25.00Y-15.00F3000",
                                                        "$J=G90X25.00Y15.00F3000",
                                                        "$J=G90X-25.00Y15.00F3000",
                                                        "$J=G90X-25.00Y-15.00F3000"};
}

void TestMachineController::framingFollowsTheJobStart()
{
    QFETCH(int, mode);
    QFETCH(int, anchor);
    QFETCH(QStringList, expected);
    GrblFake fake;
    QVERIFY(connectTo(fake));
    Ui::MachinePanel &f = m_panel->form();
    f.startMode_Box->setCurrentIndex(mode);
    f.startAnchor_Box->setCurrentIndex(anchor);
    m_controller->setFrameSource([] { return QRectF(10, -80, 50, 30); });
    if (mode == 1) {
        // No position reported yet: refused.
        f.frame_Btn->click();
        QCOMPARE(m_messages.last().message, QString("当前位置未知,请等待设备上报位置!"));
        QSignalSpy moved(m_controller.get(), &MachineController::positionChanged);
        fake.sendRaw("<Idle|MPos:100.000,40.000,0.000|FS:0,0>\r\n");
        QVERIFY(moved.wait(3000));
        QVERIFY(m_controller->headKnown());
    }
    f.frame_Btn->click();
    // Only the frame: the settings query after connecting may come in between.
    auto frameLines = [&fake] {
        QStringList lines = fake.lines();
        lines.erase(
            std::remove_if(lines.begin(), lines.end(),
                           [](const QString &l) { return !l.startsWith("$J=") && l != "M5S0"; }),
            lines.end());
        return lines;
    };
    QTRY_COMPARE(frameLines(), expected);
    m_panel->form().startMode_Box->setCurrentIndex(0);
}

void TestMachineController::startChoiceSurvivesARestart()
{
    m_panel->form().startMode_Box->setCurrentIndex(2);
    m_panel->form().startAnchor_Box->setCurrentIndex(8);
    QCOMPARE(int(m_controller->jobStart().mode), int(lumitra::StartMode::UserOrigin));
    QCOMPARE(m_controller->jobStart().anchor, 8);
    // A new panel and controller, as at the next start: the same choice.
    m_controller.reset();
    m_panel = std::make_unique<MachinePanel>();
    m_controller = std::make_unique<MachineController>(m_panel.get(), m_panel.get());
    QCOMPARE(m_panel->form().startMode_Box->currentIndex(), 2);
    QCOMPARE(m_panel->form().startAnchor_Box->currentIndex(), 8);
    QVERIFY(m_panel->form().startAnchor_Box->isEnabled());
    m_panel->form().startMode_Box->setCurrentIndex(0);
    QVERIFY(!m_panel->form().startAnchor_Box->isEnabled());
    QCOMPARE(int(lumitra::loadJobStart().mode), int(lumitra::StartMode::Absolute));
}

void TestMachineController::framing()
{
    GrblFake fake;
    QVERIFY(connectTo(fake));
    m_panel->form().frame_Btn->click(); // no design: nothing
    m_controller->setFrameSource([] { return QRectF(10, -80, 50, 30); });
    m_panel->form().frame_Btn->click();
    QTRY_COMPARE(linesAfterConnect(fake),
                 (QStringList{"M5S0", "$J=G90X10.00Y50.00F3000", "$J=G90X60.00Y50.00F3000",
                              "$J=G90X60.00Y80.00F3000", "$J=G90X10.00Y80.00F3000",
                              "$J=G90X10.00Y50.00F3000"}));
}

void TestMachineController::outputBoundsSkipsHiddenLayers()
{
    QPainterPath square;
    square.addRect(0, 0, 10, 10);
    Jk_tu_yuan a(square, 1);
    a.setPos(5, -50);
    Jk_tu_yuan b(square, 1);
    b.setPos(100, -20);
    b.layer_id = 3;
    LayerList layers;
    layers.append(new TuCeng(0, false));
    auto *off = new TuCeng(3, false);
    off->shuchu = false;
    layers.append(off);
    QCOMPARE(outputBounds({&a, &b}, layers), QRectF(5, -50, 10, 10));
    off->shuchu = true;
    QCOMPARE(outputBounds({&a, &b}, layers), QRectF(5, -50, 105, 40));
    QVERIFY(outputBounds({}, layers).isNull());
}

void TestMachineController::watcherFillsPortList()
{
    GrblFake fake;
    QVERIFY(fake.start());
    const QString port = fake.portName();
    m_controller->startPortWatcher([port] { return QStringList{port}; });
    // Not linked: the watcher probes the port and selects it.
    QTRY_COMPARE(m_panel->form().port_Box->count(), 1);
    QTRY_COMPARE(m_panel->form().port_Box->currentText(), port);
    QTRY_COMPARE(fake.lines(), QStringList{"AT"});
}

void TestMachineController::wifiCommands()
{
    programState().connectionMode = lumitra::WifiLink;
    QSignalSpy urls(m_controller.get(), &MachineController::wifiCommand);
    m_panel->form().jog1_Btn->click();
    QCOMPARE(m_messages.size(), 1);
    QCOMPARE(m_messages.first().message, QString("IP不能为空!"));
    m_controller->setWifiAddress("192.168.0.1");
    m_panel->form().home_Btn->click();
    m_panel->form().jog1_Btn->click();
    QCOMPARE(urls.count(), 2);
    QCOMPARE(urls.at(0).first().toString(),
             QString("http://192.168.0.1/command?commandText=%24H&PAGEID=0"));
    QCOMPARE(
        urls.at(1).first().toString(),
        QString(
            "http://192.168.0.1/command?commandText=%24J%3DG91%20G21%20F3000%20X0Y10&PAGEID=0"));
}

QTEST_MAIN(TestMachineController)
#include "tst_machine_controller.moc"
