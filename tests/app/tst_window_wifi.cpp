// The window's WiFi road against a fake board on 127.0.0.1: connect from the
// IP and port fields, controls as command requests, a job uploaded and
// started on the card, the status stream driving the window, an alarm, and
// the link dropping mid-job.
#include "window_driver.h"

#include "burn_check.h"
#include "controller_search_dialog.h"
#include "fake_board.h"
#include "http_thread.h"
#include "machine_controller.h"
#include "program_state.h"
#include "resume_dialog.h"
#include "sd_file_manager.h"
#include "sd_job_watch.h"
#include "settings_store.h"
#include "wifi_link_controller.h"
#include "wifi_she_zhi.h"
#include "wifi_tools_controller.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTemporaryFile>
#include <QToolButton>

using namespace lumitra;
using namespace window_test;

class TestWindowWifi : public QObject
{
    Q_OBJECT

    Asked m_asked;

    // A window connected to `board` through its WIFI button.
    bool connectWindow(Widget &w, FakeBoard &board)
    {
        return connectWindow(w, board.httpPort(), board.wsPort());
    }
    bool connectWindow(Widget &w, int httpPort, int wsPort)
    {
        child<QLineEdit>(&w, "ip_Edit")->setText(QStringLiteral("127.0.0.1"));
        child<QLineEdit>(&w, "port_Edit")->setText(QString::number(httpPort));
        w.wifiController()->setWebSocketPort(wsPort);
        w.wifiController()->setConnectTimeout(2000);
        child<QPushButton>(&w, "wifi_Btn")->click();
        return programState().connectionMode == WifiLink;
    }

private slots:
    void init()
    {
        QDir(config_dir()).removeRecursively();
        resetProgramState();
        m_asked = Asked();
        m_asked.answers = {1, 1, 1, 1};
        m_asked.install();
    }
    void cleanupTestCase() { set_message_handler({}); }

    void connectsAndSendsControls()
    {
        FakeBoard board;
        QVERIFY(board.start());
        Widget w;
        w.show();
        QVERIFY(connectWindow(w, board));
        QCOMPARE(child<QPushButton>(&w, "wifi_Btn")->text(), QStringLiteral("已连接"));
        QCOMPARE(get_setting(QStringLiteral("IP")), QStringLiteral("127.0.0.1"));
        QCOMPARE(get_setting(QStringLiteral("Port")), QString::number(board.httpPort()));
        // The link asks who the board is, the window homes it and reads its settings.
        QTRY_VERIFY(board.commands().contains(QStringLiteral("$i")));
        QTRY_VERIFY(board.commands().contains(QStringLiteral("$H")));
        QTRY_VERIFY(board.commands().contains(QStringLiteral("$$")));

        // A jog goes out as one command, blanks and all.
        child<QPushButton>(&w, "jog1_Btn")->click();
        QTRY_VERIFY(std::any_of(board.commands().cbegin(), board.commands().cend(),
                                [](const QString &c) { return c.startsWith("$J=G91 G21 F"); }));
        QVERIFY(m_asked.requests.isEmpty());

        // The board's settings are kept for the job-time estimate, also for
        // the next run without a board.
        QTRY_VERIFY(w.machineController()->machineSettings().contains(QStringLiteral("$110")));
        {
            Widget later;
            QCOMPARE(later.machineController()->machineSettings(),
                     w.machineController()->machineSettings());
        }

        // Disconnecting by the button is quiet and leaves the window usable.
        child<QPushButton>(&w, "wifi_Btn")->click();
        QCOMPARE(programState().connectionMode, int(NotConnected));
        QCOMPARE(child<QPushButton>(&w, "wifi_Btn")->text(), QStringLiteral("WIFI"));
        QVERIFY(m_asked.requests.isEmpty());
    }

    // The camera works on the WiFi link only, and says so from the menu.
    void cameraNeedsWifi()
    {
        Widget w;
        QMenu *tools = child<QToolButton>(&w, "tools_Btn")->menu();
        tools->actions().at(5)->trigger(); // take photo
        tools->actions().at(4)->trigger(); // calibrate
        QCOMPARE(m_asked.messages(), (QStringList{QStringLiteral("使用相机必须要在WiFi模式!"),
                                                  QStringLiteral("使用相机必须要在WiFi模式!")}));
    }

    void refusedConnectIsTold()
    {
        FakeBoard board;
        QVERIFY(board.start());
        const int httpPort = board.httpPort();
        const int wsPort = board.wsPort();
        board.refuse();
        Widget w;
        QVERIFY(!connectWindow(w, httpPort, wsPort));
        QCOMPARE(m_asked.requests.size(), 1);
        QVERIFY(m_asked.messages().first().contains(QStringLiteral("127.0.0.1")));
        QCOMPARE(child<QPushButton>(&w, "wifi_Btn")->text(), QStringLiteral("WIFI"));
    }

    void jobRunsFromTheCard()
    {
        FakeBoard::Options o;
        o.linesPerFrame = 3;
        o.splitFrames = true;
        o.jobMs = 4500;
        FakeBoard board(o);
        QVERIFY(board.start());
        Widget w;
        w.show();
        QVERIFY(connectWindow(w, board));
        Driver d(&w);
        d.drawRectangle(QPointF(20, -20), QPointF(60, -60));
        QSignalSpy busy(w.machineController(), &MachineController::busyChanged);
        child<QPushButton>(&w, "start_Btn")->click();
        QVERIFY(w.wifiController()->uploadWindow());
        QTRY_COMPARE(board.uploadCount(), 1);
        QFile job(programState().jobFilePath);
        QVERIFY(job.open(QIODevice::ReadOnly));
        QCOMPARE(board.cardFile(QStringLiteral("001.nc")), job.readAll());
        QTRY_VERIFY(board.commands().contains(QStringLiteral("[ESP220]/001.nc")));
        QTRY_VERIFY(w.machineController()->busy()); // Run came over the WebSocket
        // The board is asked for its status once a second while it runs, by
        // the job's watch alone (a timer that falls behind skips, never doubles).
        const int asked = board.commands().count(QStringLiteral("?"));
        QTest::qWait(3000);
        const int polls = board.commands().count(QStringLiteral("?")) - asked;
        QVERIFY2(polls >= 1 && polls <= 4, qPrintable(QString::number(polls)));
        QTRY_VERIFY_WITH_TIMEOUT(!w.machineController()->busy(), 5000); // then Idle
        QVERIFY(busy.size() >= 2);
    }

    // A job on the card shows its progress and time left; an alarm halfway
    // offers to resume it at the line the board had surely run, and the
    // resumed job, uploaded and started like any, completes the burn with no
    // gap.
    void cardJobShowsTimeLeftAndResumesAfterAlarm()
    {
        QRandomGenerator random(burn_check::resumeSeed());
        const QStringList job = burn_check::makeJob([&](int n) { return random.bounded(n); });
        QTemporaryFile file;
        QVERIFY(burn_check::writeTemporaryJob(file, job));

        FakeBoard::Options o;
        o.executeJobs = true;
        o.msPerBlock = 12;
        o.reportIntervalMs = 60;
        o.alarmAtBlock = 100 + int(random.bounded(100));
        FakeBoard board(o);
        QVERIFY(board.start());
        Widget w;
        w.show();
        QVERIFY(connectWindow(w, board));
        w.machineController()->runJob(file.fileName());
        QTRY_VERIFY(board.commands().contains(QStringLiteral("[ESP220]/001.nc")));
        QCOMPARE(board.settings().value(10), QStringLiteral("3")); // "Bf:" asked for

        QLabel *remaining = child<QLabel>(&w, "remaining_Lab");
        QTRY_VERIFY2(remaining->text().startsWith(QStringLiteral("剩余 ")),
                     qPrintable(remaining->text()));
        QTRY_VERIFY(child<QProgressBar>(&w, "progress_Bar")->value() > 0);
        // The time left counts from the line the head runs, not from the
        // line the board reads, which is up to a planner's worth ahead.
        SdJobWatch *watch = w.wifiController()->jobWatch();
        QTRY_VERIFY(watch->progress().indexed() && watch->progress().hasPosition());
        if (watch->active()) {
            QVERIFY2(watch->headLine() <= board.jobRunner()->firstQueuedLine(),
                     qPrintable(QStringLiteral("%1 > %2")
                                    .arg(watch->headLine())
                                    .arg(board.jobRunner()->firstQueuedLine())));
        }

        QTRY_VERIFY_WITH_TIMEOUT(w.findChild<ResumeDialog *>(), 10000);
        ResumeDialog *dialog = w.findChild<ResumeDialog *>();
        QTRY_VERIFY(remaining->text().isEmpty());
        QVERIFY(child<QLabel>(dialog, "warning_Lab")->isVisibleTo(dialog)); // home first
        const CardJobRunner &first = *board.jobRunner(); // until the resumed job starts
        const int from = dialog->line();
        const int mayHaveRun = first.linesRead();
        qInfo("resume offered at %d; the board had read %d lines, run through %d", from, mayHaveRun,
              first.lastRunLine());
        QVERIFY(from > 1 && from <= first.firstQueuedLine());
        // The alarm was confirmed (reset and home); then the user resumes.
        QTRY_VERIFY(board.commands().contains(QString(QChar(0x18))));
        QTRY_VERIFY(!w.machineController()->busy());
        dialog->accept();
        QTRY_COMPARE(board.uploadCount(), 2);
        QTRY_COMPARE(board.commands().count(QStringLiteral("[ESP220]/001.nc")), 2);
        QTRY_VERIFY_WITH_TIMEOUT(!board.jobRunning(), 20000);
        QVERIFY(board.jobRunner()->finished());
        QTRY_COMPARE(child<QProgressBar>(&w, "progress_Bar")->value(), 100);
        const QString wrong = burn_check::compare(
            job, burn_check::machineBurns(board.executedMoves()), from, mayHaveRun);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }

    // The WiFi link drops while the board burns on from its card: the resume
    // offered is refused while the reconnected board still runs the job (an
    // upload would replace the file it is reading), and works once it is idle.
    void droppedLinkDoesNotResumeOverARunningCard()
    {
        QRandomGenerator random(5);
        const QStringList job = burn_check::makeJob([&](int n) { return random.bounded(n); });
        QTemporaryFile file;
        QVERIFY(burn_check::writeTemporaryJob(file, job));
        FakeBoard::Options o;
        o.executeJobs = true;
        o.msPerBlock = 15;
        o.reportIntervalMs = 60;
        FakeBoard board(o);
        QVERIFY(board.start());
        Widget w;
        w.show();
        QVERIFY(connectWindow(w, board));
        w.machineController()->runJob(file.fileName());
        QTRY_VERIFY_WITH_TIMEOUT(board.jobRunner() && board.jobRunner()->blocksRun() > 40, 10000);
        board.dropWebSockets();
        QTRY_VERIFY(w.findChild<ResumeDialog *>());
        QTRY_VERIFY(m_asked.messages().contains(QStringLiteral("WiFi连接意外断开!")));
        // Out of reach, the board may have lost power or may burn on.
        QVERIFY(child<QLabel>(w.findChild<ResumeDialog *>(), "warning_Lab")
                    ->text()
                    .contains(QStringLiteral("仍在运行")));
        QVERIFY(board.jobRunning()); // the card job goes on

        QVERIFY(connectWindow(w, board));
        QTRY_VERIFY(w.machineController()->busy());
        w.findChild<ResumeDialog *>()->accept();
        QTRY_COMPARE(m_asked.messages().last(), QStringLiteral("设备雕刻中,暂时停止使用!"));
        QTRY_VERIFY(w.findChild<ResumeDialog *>()); // offered again
        QCOMPARE(board.uploadCount(), 1);

        QTRY_VERIFY_WITH_TIMEOUT(!board.jobRunning(), 20000);
        QTRY_VERIFY(!w.machineController()->busy());
        ResumeDialog *again = w.findChild<ResumeDialog *>();
        const int from = again->line();
        again->accept();
        QTRY_COMPARE(board.uploadCount(), 2);
        QTRY_COMPARE(board.commands().count(QStringLiteral("[ESP220]/001.nc")), 2);
        QTRY_VERIFY_WITH_TIMEOUT(!board.jobRunning(), 20000);
        // The board ran the whole job after the drop: from `from` on, twice.
        const QString wrong = burn_check::compare(
            job, burn_check::machineBurns(board.executedMoves()), from, job.size());
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }

    void droppedLinkMidJobLeavesAUsableWindow()
    {
        FakeBoard::Options o;
        o.jobMs = 5000;
        FakeBoard board(o);
        QVERIFY(board.start());
        Widget w;
        w.show();
        QVERIFY(connectWindow(w, board));
        board.putCardFile(QStringLiteral("001.nc"), "G0X1\n");
        w.wifiController()->link()->runFile(QStringLiteral("/001.nc"));
        QTRY_VERIFY(w.machineController()->busy());
        board.dropWebSockets();
        QTRY_COMPARE(programState().connectionMode, int(NotConnected));
        QCOMPARE(get_setting(QStringLiteral("yichangduankai")), QStringLiteral("-1"));
        QVERIFY(!w.machineController()->busy());
        QCOMPARE(child<QPushButton>(&w, "wifi_Btn")->text(), QStringLiteral("WIFI"));
        QCOMPARE(m_asked.requests.size(), 1); // the user is told once
        // Usable: a control now says to connect first instead of hanging.
        child<QPushButton>(&w, "home_Btn")->click();
        QCOMPARE(m_asked.messages().last(), QStringLiteral("请先连接设备!"));
    }

    void alarmResetsAndHomes()
    {
        FakeBoard::Options o;
        o.jobMs = 3000;
        o.alarmAfterMs = 100;
        FakeBoard board(o);
        QVERIFY(board.start());
        Widget w;
        w.show();
        QVERIFY(connectWindow(w, board));
        board.putCardFile(QStringLiteral("001.nc"), "G0X1\n");
        QTRY_VERIFY(board.commands().contains(QStringLiteral("$H"))); // the connect's home
        const int homesBefore = board.commands().count(QStringLiteral("$H"));
        w.wifiController()->link()->runFile(QStringLiteral("/001.nc"));
        QTRY_COMPARE(m_asked.messages().count(QStringLiteral("设备触发警告!")), 1);
        QTRY_VERIFY(board.commands().contains(QString(QChar(0x18))));
        QTRY_COMPARE(board.commands().count(QStringLiteral("$H")), homesBefore + 1);
    }

    // The tools menu: the radio setup goes out line by line over WiFi with
    // every character intact, the card is listed, a found board lands in the
    // IP and port fields.
    void toolsMenuReachesTheBoard()
    {
        FakeBoard board;
        QVERIFY(board.start());
        board.putCardFile(QStringLiteral("sign.nc"), "G0X1\n");
        Widget w;
        w.show();
        QVERIFY(connectWindow(w, board));
        QMenu *tools = child<QToolButton>(&w, "tools_Btn")->menu();
        QStringList names;
        for (QAction *a : tools->actions())
            names << a->text();
        QCOMPARE(names,
                 (QStringList{QStringLiteral("WiFi设置"), QStringLiteral("SD卡文件管理"),
                              QStringLiteral("搜索设备"), QString(), QStringLiteral("校准摄像头"),
                              QStringLiteral("拍照"), QString(), QStringLiteral("参数库"),
                              QStringLiteral("材料测试卡"), QStringLiteral("二维码/条形码"),
                              QString(), QStringLiteral("按颜色分图层")}));

        tools->actions().at(0)->trigger(); // WiFi setup
        WIFI_She_Zhi *setup = w.wifiTools()->setupDialog();
        QVERIFY(setup && setup->isVisible());
        const QString password = QStringLiteral("a+b&c%d#e f9");
        child<QLineEdit>(setup, "ssid_Edit")->setText(QStringLiteral("Workshop"));
        child<QLineEdit>(setup, "password_Edit")->setText(password);
        child<QPushButton>(setup, "sta_Btn")->click();
        QTRY_VERIFY(board.commands().contains(QStringLiteral("$I")));
        const QStringList sent = board.commands();
        const int first = sent.indexOf(QStringLiteral("$Sta/Password=") + password);
        QVERIFY2(first >= 0, qPrintable(sent.join(QLatin1Char('|'))));
        QCOMPARE(sent.mid(first, 4),
                 (QStringList{QStringLiteral("$Sta/Password=") + password,
                              QStringLiteral("$Sta/SSID=Workshop"),
                              QStringLiteral("$Radio/Mode=STA"), QStringLiteral("$I")}));

        tools->actions().at(1)->trigger(); // SD card
        SdFileManager *sd = w.wifiTools()->sdManager();
        QVERIFY(sd && sd->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(sd->fileNames().contains(QStringLiteral("sign.nc")), 5000);

        w.wifiTools()->setSearchAddresses(
            [&] { return QStringList{QStringLiteral("127.0.0.1:%1").arg(board.httpPort())}; });
        child<QLineEdit>(&w, "ip_Edit")->clear();
        tools->actions().at(2)->trigger(); // search
        ControllerSearchDialog *search = w.wifiTools()->searchDialog();
        QVERIFY(search);
        auto *found = child<QListWidget>(search, "found_List");
        QTRY_COMPARE_WITH_TIMEOUT(found->count(), 1, 10000);
        found->setCurrentRow(0);
        child<QPushButton>(search, "confirm_Btn")->click();
        QCOMPARE(child<QLineEdit>(&w, "ip_Edit")->text(), QStringLiteral("127.0.0.1"));
        QCOMPARE(child<QLineEdit>(&w, "port_Edit")->text(), QString::number(board.httpPort()));
        QVERIFY(m_asked.requests.isEmpty());
    }

    // Only a job the window uploaded is started: another file going up the
    // same link (a calibration, say) never re-runs the last job.
    void onlyJobUploadsAreStarted()
    {
        FakeBoard board;
        QVERIFY(board.start());
        Widget w;
        QVERIFY(connectWindow(w, board));
        QTemporaryFile other;
        QVERIFY(other.open());
        other.write("J1,2J3,4J5,6J7,8");
        other.close();
        QSignalSpy done(w.wifiController()->link(), &HttpThread::uploadFinished);
        w.wifiController()->link()->uploadFile(other.fileName(), QStringLiteral("notes.txt"));
        QVERIFY(done.wait(5000));
        QCOMPARE(board.cardFile(QStringLiteral("notes.txt")), QByteArray("J1,2J3,4J5,6J7,8"));
        QTest::qWait(100);
        for (const QString &c : board.commands())
            QVERIFY2(!c.startsWith(QStringLiteral("[ESP220]")), qPrintable(c));
    }
};

QTEST_MAIN(TestWindowWifi)
#include "tst_window_wifi.moc"
