// The main window as a new user meets it: each case here is a fault a user
// ran into, driven through the real Widget with mouse and key events.
#include "window_driver.h"

#include "../document/layer_bytes.h"
#include "burn_check.h"
#include "gcode_job_controller.h"
#include "grbl_fake.h"
#include "import_actions.h"
#include "importer_registry.h"
#include "jk_com.h"
#include "job_simulator.h"
#include "language_controller.h"
#include "layer_list.h"
#include "layer_panel_controller.h"
#include "layer_rows_panel.h"
#include "machine_controller.h"
#include "path_parts.h"
#include "program_state.h"
#include "project_commands.h"
#include "recent_files.h"
#include "recent_files_menu.h"
#include "resume_dialog.h"
#include "settings_store.h"
#include "tu_ceng.h"
#include "tu_ceng_item2.h"
#include "wifi_she_zhi.h"
#include "wifi_tools_controller.h"

#include <QBuffer>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScrollArea>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTranslator>
#include <QUndoStack>
#include <QWheelEvent>

using namespace lumitra;
using namespace window_test;

namespace {
QByteArray jobBytes(Widget &w, const QString &path)
{
    if (!w.jobController()->saveGcodeTo(w.pages()->currentScene()->designItems(), path))
        return QByteArray();
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}
// The moves of a job that burn, machine coordinates.
QList<JobSimulator::Move> burns(const QByteArray &job)
{
    QBuffer buffer;
    buffer.setData(job);
    buffer.open(QIODevice::ReadOnly);
    QList<JobSimulator::Move> out;
    JobSimulator sim;
    sim.run(buffer, [&](const JobSimulator::Move &m) {
        if (m.burning)
            out << m;
    });
    return out;
}

bool hasOpenSubpathOf(const Jk_tu_yuan *item)
{
    return hasOpenSubpath(item->path);
}
} // namespace

class TestWindowTrust : public QObject
{
    Q_OBJECT

    Asked m_asked;

private slots:
    void initTestCase() { register_importers(); }
    void init()
    {
        QDir(config_dir()).removeRecursively();
        resetProgramState();
        m_asked = Asked();
        m_asked.install();
    }
    void cleanupTestCase() { set_message_handler({}); }

    // Empty click with the select tool, a new page, back to the first page:
    // the view used to paint a frame item that had been deleted.
    void switchingPagesAfterAnEmptyClickPaints()
    {
        Widget w;
        w.resize(1280, 720);
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        Driver d(&w);
        d.drawRectangle(QPointF(50, -50), QPointF(120, -100));
        QCOMPARE(d.scene()->designItemCount(), 1);
        d.tool(0);
        d.click(QPointF(300, -300));
        d.paintView();
        d.addPageByButton();
        QCOMPARE(d.pages()->count(), 2);
        d.paintView();
        for (int round = 0; round < 10; ++round) {
            d.clickTab(round % 2);
            QCOMPARE(d.pages()->currentIndex(), round % 2);
            d.paintView();
            d.click(QPointF(10 + round, -10));
            d.paintView();
        }
        d.clickTab(0);
        QCOMPARE(d.scene()->designItemCount(), 1);
    }

    // The close question offered no way to save, and a language change with
    // unsaved work quit without asking at all.
    void quittingAsksAndCanSave_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("viaLanguage");
        QTest::addColumn<bool>("quits");
        QTest::addColumn<bool>("saved");
        QTest::newRow("close, cancel") << 0 << false << false << false;
        QTest::newRow("close, quit") << 1 << false << true << false;
        QTest::newRow("close, save") << 2 << false << true << true;
        QTest::newRow("language, cancel") << 0 << true << false << false;
        QTest::newRow("language, quit") << 1 << true << true << false;
        QTest::newRow("language, save") << 2 << true << true << true;
    }
    void quittingAsksAndCanSave()
    {
        QFETCH(int, answer);
        QFETCH(bool, viaLanguage);
        QFETCH(bool, quits);
        QFETCH(bool, saved);
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("work.lumitra"));
        set_setting(QStringLiteral("language"), QStringLiteral("yw"));
        Widget w;
        w.show();
        Driver d(&w);
        w.projectCommands()->setSavePathAsker(
            [file](QWidget *, const QString &, const QString &, const QString &) { return file; });
        d.drawRectangle(QPointF(20, -20), QPointF(60, -60));
        QVERIFY(programState().unsaved);
        if (viaLanguage) {
            m_asked.answers = {1, answer}; // restart now, then the unsaved question
            QSignalSpy quit(&w, &Widget::quitRequested);
            w.languageController()->set_language(QStringLiteral("dw"));
            QTRY_COMPARE(m_asked.requests.size(), 2);
            QCOMPARE(m_asked.requests.at(0).message, QStringLiteral("语言修改成功,请重启软件!"));
            QTest::qWait(10);
            QCOMPARE(quit.size(), quits ? 1 : 0);
        } else {
            m_asked.answers = {answer};
            QCOMPARE(w.close(), quits);
            QCOMPARE(m_asked.requests.size(), 1);
        }
        const MessageRequest &guard = m_asked.requests.last();
        QCOMPARE(guard.message, QStringLiteral("创作未保存,是否立即退出"));
        QCOMPARE(guard.firstButton, QStringLiteral("确定"));
        QCOMPARE(guard.secondButton, QStringLiteral("取消"));
        QCOMPARE(guard.thirdButton, QStringLiteral("保存"));
        QCOMPARE(QFile::exists(file), saved);
        QCOMPARE(programState().unsaved, !saved);
    }

    // Ctrl+S asked for a name every time, the title never showed the file or
    // that it was unsaved, and there was no list of recent files.
    void saveKeepsTheFileAndTheTitleTellsIt()
    {
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("sign.lumitra"));
        Widget w;
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        Driver d(&w);
        int asked = 0;
        w.projectCommands()->setSavePathAsker(
            [&](QWidget *, const QString &, const QString &, const QString &) {
                ++asked;
                return file;
            });
        QCOMPARE(w.windowTitle(), QStringLiteral("Lumitra"));
        d.drawRectangle(QPointF(20, -20), QPointF(60, -60));
        QVERIFY(w.windowTitle().contains(QLatin1Char('*')));
        QVERIFY(w.isWindowModified());

        QTest::keyClick(&w, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(asked, 1);
        QVERIFY(QFile::exists(file));
        QCOMPARE(w.windowTitle(), QStringLiteral("sign.lumitra - Lumitra"));
        QVERIFY(!w.isWindowModified());

        d.drawRectangle(QPointF(80, -20), QPointF(90, -30));
        QCOMPARE(w.windowTitle(), QStringLiteral("sign.lumitra* - Lumitra"));
        QTest::keyClick(&w, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(asked, 1); // saved to the same file without asking
        QCOMPARE(w.windowTitle(), QStringLiteral("sign.lumitra - Lumitra"));

        // Save as always asks, and the design takes the new name.
        const QString other = dir.filePath(QStringLiteral("copy.lumitra"));
        w.projectCommands()->setSavePathAsker(
            [&](QWidget *, const QString &, const QString &, const QString &) { return other; });
        QTest::keyClick(&w, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(QFile::exists(other));
        QCOMPARE(w.windowTitle(), QStringLiteral("copy.lumitra - Lumitra"));

        // Both files are in the recent list, newest first, and the menu opens them.
        QCOMPARE(RecentFiles::paths().mid(0, 2), (QStringList{other, file}));
        RecentFilesMenu *recent = w.findChild<RecentFilesMenu *>();
        QVERIFY(recent);
        recent->refresh();
        QVERIFY(recent->actions().size() >= 2);
        QCOMPARE(recent->actions().at(1)->toolTip(), QDir::toNativeSeparators(file));
        Widget second;
        Driver d2(&second);
        second.findChild<RecentFilesMenu *>()->actions().at(1)->trigger();
        QCOMPARE(d2.scene()->designItemCount(), 2);
        QCOMPARE(second.windowTitle(), QStringLiteral("sign.lumitra - Lumitra"));
        QVERIFY(m_asked.requests.isEmpty());
    }

    // Type an angle and press Enter: one undo step that the first Ctrl+Z
    // undoes, and the box shows the selection's angle.
    void rotationBoxTurnsOnceAndUndoesAtOnce()
    {
        Widget w;
        w.resize(1280, 720);
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        Driver d(&w);
        d.drawRectangle(QPointF(20, -20), QPointF(60, -40));
        d.drawRectangle(QPointF(100, -20), QPointF(120, -40));
        d.tool(0);
        QList<Jk_tu_yuan *> items = d.scene()->designItems();
        d.scene()->clearSelection();
        items.last()->setSelected(true);
        Driver::settle();
        auto *box = child<QDoubleSpinBox>(&w, "rotate_Box");
        QVERIFY(box->isEnabled());
        QCOMPARE(box->value(), 0.0);
        QUndoStack *stack = d.scene()->undoStack();
        const int steps = stack->index();

        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QStringLiteral("45"));
        QTest::keyClick(box, Qt::Key_Return);
        Driver::settle();
        QCOMPARE(stack->index(), steps + 1);
        QCOMPARE(items.last()->jiao_du, 45.0);
        QVERIFY(!box->hasFocus());
        box->clearFocus(); // leaving the box confirms nothing new
        QCOMPARE(stack->index(), steps + 1);

        QTest::keyClick(&w, Qt::Key_Z, Qt::ControlModifier);
        Driver::settle();
        QCOMPARE(items.last()->jiao_du, 0.0);
        QCOMPARE(box->value(), 0.0);
        QTest::keyClick(&w, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        Driver::settle();
        QCOMPARE(items.last()->jiao_du, 45.0);
        QCOMPARE(box->value(), 45.0);
        QTest::keyClick(&w, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        Driver::settle();
        QCOMPARE(items.last()->jiao_du, 45.0); // nothing more to redo

        // The box follows the selection.
        d.scene()->clearSelection();
        items.first()->setSelected(true);
        Driver::settle();
        QCOMPARE(box->value(), 0.0);
        d.scene()->clearSelection();
        Driver::settle();
        QVERIFY(!box->isEnabled());
    }

    // A broken SVG, a damaged project, tracing and the mode preview with
    // nothing selected all used to do nothing visible.
    void failuresAreTold()
    {
        QTemporaryDir dir;
        const auto write = [&](const char *name, const QByteArray &bytes) {
            QFile f(dir.filePath(QString::fromLatin1(name)));
            f.open(QIODevice::WriteOnly);
            f.write(bytes);
            return f.fileName();
        };
        Widget w;
        Driver d(&w);
        w.openFiles({write("broken.svg", "<svg><path d='M 0 0 L"),
                     write("damaged.lumitra", QByteArray(64, '\x7f'))});
        QCOMPARE(m_asked.requests.size(), 2);
        QVERIFY(m_asked.messages().at(0).contains(QStringLiteral("broken.svg")));
        QVERIFY(m_asked.messages().at(1).contains(QStringLiteral("damaged.lumitra")));
        QCOMPARE(d.scene()->designItemCount(), 0);

        m_asked.requests.clear();
        QMenu *file = child<QToolButton>(&w, "file_Btn")->menu();
        for (QAction *a : file->actions())
            if (a->text() == QStringLiteral("描摹位图")
                || a->text() == QStringLiteral("图像模式预览"))
                a->trigger();
        QCOMPARE(m_asked.messages(), (QStringList{QStringLiteral("请先选择一张位图!"),
                                                  QStringLiteral("请先选择一张位图!")}));
    }

    // Open shapes on a fill layer were painted filled and silently left out
    // of the job: now they are drawn as outlines and burnt as lines.
    void openShapesOnAFillLayerBurnAsTheyShow()
    {
        QTemporaryDir dir;
        const QString svg = dir.filePath(QStringLiteral("open.svg"));
        {
            QFile f(svg);
            QVERIFY(f.open(QIODevice::WriteOnly));
            // A "U" 80 mm wide, open at the top, beside a closed square.
            f.write("<svg xmlns='http://www.w3.org/2000/svg' width='200mm' height='100mm'"
                    " viewBox='0 0 200 100'>"
                    "<polyline points='10,10 10,90 90,90 90,10' fill='none' stroke='black'/>"
                    "<rect x='120' y='10' width='60' height='60'/></svg>");
        }
        Widget w;
        w.resize(1280, 720);
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        Driver d(&w);
        QCOMPARE(w.projectCommands()->open_file(svg), ProjectCommands::OpenOutcome::Opened);
        d.scene()->clearSelection();
        const auto jobFor = [&](int mode, const char *name) {
            TuCeng *layer = LayerList::instance().find(0, false);
            layer->moshi = mode;
            return jobBytes(w, dir.filePath(QString::fromLatin1(name)));
        };
        const QList<JobSimulator::Move> lineJob = burns(jobFor(LineMode, "line.nc"));
        const QList<JobSimulator::Move> fillJob = burns(jobFor(FillMode, "fill.nc"));
        Jk_tu_yuan *u = nullptr;
        Jk_tu_yuan *square = nullptr;
        for (Jk_tu_yuan *item : d.scene()->designItems())
            (hasOpenSubpathOf(item) ? u : square) = item;
        QVERIFY(u && square);
        // Every stroke of the "U" that the line job burns, the fill job burns
        // too: nothing of it is left out.
        const QRectF uArea = u->sceneBoundingRect().adjusted(-0.5, -0.5, 0.5, 0.5);
        int strokes = 0;
        for (const JobSimulator::Move &m : lineJob) {
            const QPointF mid = (m.from + m.to) / 2;
            if (!uArea.contains(QPointF(mid.x(), -mid.y())))
                continue;
            ++strokes;
            const bool alsoInFill =
                std::any_of(fillJob.begin(), fillJob.end(), [&](const JobSimulator::Move &f) {
                    return QLineF(f.from, m.from).length() < 0.01
                           && QLineF(f.to, m.to).length() < 0.01;
                });
            QVERIFY(alsoInFill);
        }
        QCOMPARE(strokes, 3);

        // On the canvas the inside of the "U" stays empty while the square is
        // filled.
        d.scene()->repaintItems();
        const QImage shown = d.paintView();
        const QColor fill = layerColor(0);
        const auto at = [&](Jk_tu_yuan *item) {
            return QColor(shown.pixel(d.view()->mapFromScene(item->sceneBoundingRect().center())));
        };
        QCOMPARE(at(square), fill);
        QVERIFY(at(u) != fill);
    }

    // Items beyond the work area were cut off in the preview but sent to the
    // machine: saving or running the job names them and asks first.
    void itemsBeyondTheWorkAreaAreNamedFirst()
    {
        QTemporaryDir dir;
        Widget w;
        w.show();
        Driver d(&w);
        d.drawRectangle(QPointF(20, -20), QPointF(60, -60));
        const QString inside = dir.filePath(QStringLiteral("inside.nc"));
        w.jobController()->setFileChooser([&](QWidget *, const QString &) { return inside; });
        QVERIFY(w.jobController()->saveGcode(d.scene()->designItems()));
        QVERIFY(m_asked.requests.isEmpty());

        Jk_tu_yuan *far = d.scene()->designItems().first();
        far->moveBy(370, 0); // now 390..430 mm in X on a 400 mm machine
        const QString beyond = dir.filePath(QStringLiteral("beyond.nc"));
        w.jobController()->setFileChooser([&](QWidget *, const QString &) { return beyond; });
        m_asked.answers = {0}; // cancel
        QVERIFY(!w.jobController()->saveGcode(d.scene()->designItems()));
        QVERIFY(!QFile::exists(beyond));
        QCOMPARE(m_asked.requests.size(), 1);
        const MessageRequest q = m_asked.requests.first();
        QCOMPARE(q.firstButton, QStringLiteral("继续"));
        QCOMPARE(q.secondButton, QStringLiteral("取消"));
        QVERIFY2(q.message.contains(QStringLiteral("L0"))
                     && q.message.contains(QStringLiteral("430.0")),
                 qPrintable(q.message));

        m_asked.answers = {1}; // continue
        QVERIFY(w.jobController()->saveGcode(d.scene()->designItems()));
        QVERIFY(QFile::exists(beyond));

        // The run asks the same question before anything is generated.
        m_asked.requests.clear();
        m_asked.answers = {0};
        QVERIFY(!w.jobController()->prepareRun(d.scene()->designItems()));
        QCOMPARE(m_asked.requests.size(), 1);
        QCOMPARE(m_asked.requests.first().message, q.message);
    }

    // The window could not be smaller than about 1012 px high: at 1280x720
    // the jog pad, progress, console, palette and the bottom of the canvas
    // were off-screen, and the layer list showed under three rows.
    void windowFits1280x720_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("source texts") << QString();
        QTest::newRow("English") << QStringLiteral("yw");
    }
    void windowFits1280x720()
    {
        QFETCH(QString, language);
        QTranslator translator;
        if (!language.isEmpty()) {
            QVERIFY(
                translator.load(QStringLiteral(":/language/") + language + QStringLiteral("2.qm")));
            QCoreApplication::installTranslator(&translator);
        }
        Widget w;
        const QSize least = w.minimumSizeHint().expandedTo(w.minimumSize());
        QVERIFY2(least.width() <= 1280 && least.height() <= 720,
                 qPrintable(QStringLiteral("%1x%2").arg(least.width()).arg(least.height())));
        w.resize(1280, 720);
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        QCOMPARE(w.size(), QSize(1280, 720));
        Driver d(&w);
        for (int i = 0; i < 7; ++i) { // seven layers, one item each
            d.drawRectangle(QPointF(20 + 40 * i, -20), QPointF(50 + 40 * i, -50));
            w.layerController()->moveSelectionToLayer(i);
        }
        Driver::settle();

        // Everything is on screen, or in a scroll area on screen that
        // reaches it; nothing is cut off by the window's edge.
        const QRect window = w.rect();
        const auto reachable = [&](QWidget *c) {
            for (QWidget *p = c->parentWidget(); p && p != &w; p = p->parentWidget()) {
                if (auto *area = qobject_cast<QScrollArea *>(p))
                    if (area->widget()->isAncestorOf(c))
                        return window.contains(QRect(area->mapTo(&w, QPoint()), area->size()));
            }
            return window.contains(QRect(c->mapTo(&w, QPoint()), c->size()));
        };
        QStringList names{"progress_Bar", "console_Edit", "connect_Btn", "port_Box",
                          "stop_Btn",     "fire_Btn",     "start_Btn",   "selection_Lab"};
        for (int i = 0; i < 9; ++i)
            names << QStringLiteral("jog%1_Btn").arg(i);
        for (int i = 0; i < 30; ++i)
            names << QStringLiteral("%1").arg(i, 2, 10, QLatin1Char('0'));
        for (const QString &name : names) {
            QWidget *c = w.findChild<QWidget *>(name);
            QVERIFY2(c, qPrintable(name));
            QVERIFY2(reachable(c), qPrintable(name));
        }
        const QRect view(d.view()->mapTo(&w, QPoint()), d.view()->size());
        QVERIFY(window.contains(view));
        QVERIFY(view.height() >= 400);

        // Six layer rows at least are in sight at once, none of them cut.
        auto *rows = w.findChild<LayerRowsPanel *>();
        QCOMPARE(rows->rows().size(), 7);
        auto *scroll = child<QScrollArea>(&w, "layerScroll");
        const QRect sight(scroll->viewport()->mapTo(&w, QPoint()), scroll->viewport()->size());
        int inSight = 0;
        for (TuCengItem2 *row : rows->rows()) {
            QWidget *port = rows->scrollArea()->viewport();
            const QRect r(row->mapTo(&w, QPoint()), row->size());
            const QRect rowsSight(port->mapTo(&w, QPoint()), port->size());
            if (sight.contains(r) && rowsSight.contains(r))
                ++inSight;
        }
        QVERIFY2(inSight >= 6, qPrintable(QString::number(inSight)));
        QCoreApplication::removeTranslator(&translator);
    }

    // The wheel over a layer row's mode box or the power box changed the
    // job; layer settings could not be undone; a deleted layer row came back
    // with default settings.
    void layerSettingsAreSafeAndUndoable()
    {
        Widget w;
        w.resize(1280, 720);
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        QApplication::setActiveWindow(&w);
        Driver d(&w);
        d.drawRectangle(QPointF(20, -20), QPointF(60, -60));
        d.drawRectangle(QPointF(80, -20), QPointF(120, -60));
        w.layerController()->moveSelectionToLayer(3);
        Driver::settle();
        const auto records = listBytes;
        auto *rows = w.findChild<LayerRowsPanel *>();
        QCOMPARE(rows->rows().size(), 2);
        auto *power = child<QSpinBox>(&w, "gonglv_Box");
        auto *mode = child<QComboBox>(rows->rows().first(), "moshi");

        // The wheel over unfocused boxes scrolls on; the records stay.
        d.view()->setFocus();
        const QList<QByteArray> before = records();
        for (QWidget *box : {static_cast<QWidget *>(mode), static_cast<QWidget *>(power)}) {
            const QPoint at = box->rect().center();
            QWheelEvent wheel(at, box->mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(box, &wheel);
        }
        QCOMPARE(records(), before);

        // Typed settings are one undo step each, undone from the canvas.
        power->setFocus();
        power->selectAll();
        QTest::keyClicks(power, QStringLiteral("55"));
        QTest::keyClick(power, Qt::Key_Return);
        Driver::settle();
        QVERIFY(records() != before);
        d.view()->setFocus();
        QTest::keyClick(d.view(), Qt::Key_Z, Qt::ControlModifier);
        Driver::settle();
        QCOMPARE(records(), before);
        QTest::keyClick(d.view(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        Driver::settle();
        const QList<QByteArray> edited = records();
        QVERIFY(edited != before);

        // Deleting a row and undoing brings back its items and its record.
        QTest::mouseClick(rows->rows().first()->deleteButton(), Qt::LeftButton);
        Driver::settle();
        QCOMPARE(LayerList::instance().layers().size(), 1);
        QCOMPARE(d.scene()->designItemCount(), 1);
        QTest::keyClick(d.view(), Qt::Key_Z, Qt::ControlModifier);
        Driver::settle();
        QCOMPARE(d.scene()->designItemCount(), 2);
        QCOMPARE(records(), edited);
    }

    // Unchecking test fire while a job ran queued "M5S0G0F1000" into the job;
    // quitting with test fire on left the laser burning. Through the window:
    // connect by typing the port, fire, get busy, try to switch off, quit.
    void testFireIsSafeFromTheWindow()
    {
        GrblFake fake;
        QVERIFY(fake.start());
        Widget w;
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        auto *port = child<QComboBox>(&w, "port_Box");
        port->setEditText(fake.portName()); // typed, not picked from the list
        child<QPushButton>(&w, "connect_Btn")->click();
        QTRY_COMPARE_WITH_TIMEOUT(programState().connectionMode, int(SerialLink), 5000);
        auto *fire = child<QPushButton>(&w, "fire_Btn");
        fire->click();
        QTRY_VERIFY(fake.lines().contains(QStringLiteral("M3S10G1F1000")));

        // A job runs: switching test fire off is refused and changes nothing.
        QSignalSpy busy(w.machineController(), &MachineController::busyChanged);
        fake.sendRaw("<Run|MPos:1.000,2.000,0.000|FS:100,0>\r\n");
        QVERIFY(busy.wait(2000));
        const int sent = fake.lineCount();
        m_asked.requests.clear();
        fire->click();
        QCOMPARE(m_asked.messages(), QStringList{QStringLiteral("设备运行中禁用此功能!")});
        QVERIFY(fire->isChecked());
        QTest::qWait(50);
        QCOMPARE(fake.lineCount(), sent);
        QVERIFY(!fake.lines().contains(QStringLiteral("M5S0G0F1000")));

        // Quitting stops the job and puts the laser out before the port closes.
        QVERIFY(w.close()); // nothing drawn: no unsaved question
        QVERIFY(fake.realTimeBytes().contains("!\x18"));
        QTRY_VERIFY(fake.lines().contains(QStringLiteral("M5")));
    }

    // A serial job through the window, the way a user meets it: connect by
    // the port box first, then run a job; an alarm halfway offers to resume
    // at the line after the last one the machine ran, and the resumed job
    // completes the burn with no gap. (The lines sent on connecting used to
    // pass for the start of a job, so no offer came.)
    void serialJobResumesAfterAnAlarm()
    {
        QRandomGenerator random(burn_check::resumeSeed());
        const QStringList job = burn_check::makeJob([&](int n) { return random.bounded(n); });
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("job.nc"));
        QVERIFY(burn_check::writeJob(file, job));
        const int alarmAt = 40 + int(random.bounded(job.size() - 80));

        GrblFake::Options o;
        o.motionMsPerLine = 8;
        GrblFake fake(o);
        fake.alarmAtLine(alarmAt, 1);
        QVERIFY(fake.start());
        Widget w;
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        child<QComboBox>(&w, "port_Box")->setEditText(fake.portName());
        child<QPushButton>(&w, "connect_Btn")->click();
        QTRY_COMPARE_WITH_TIMEOUT(programState().connectionMode, int(SerialLink), 5000);
        QTRY_VERIFY(fake.lines().contains(QStringLiteral("$$"))); // the connect's own lines
        const int connectLines = fake.lineCount();

        w.machineController()->runJob(file);
        QTRY_VERIFY_WITH_TIMEOUT(w.findChild<ResumeDialog *>(), 20000);
        ResumeDialog *dialog = w.findChild<ResumeDialog *>();
        const int from = dialog->line();
        // The alarm came instead of the answer to the fake's line alarmAt:
        // the job's line there and every one after it never ran.
        const int jobStart = fake.lines().indexOf(job.first(), connectLines);
        QVERIFY(jobStart >= 0);
        const int alarmLine = alarmAt - jobStart;
        qInfo("alarm at job line %d; resume offered at %d", alarmLine, from);
        // (Line 1 when no status report had shown a line run yet.)
        QVERIFY(from >= 1 && from <= alarmLine);
        QVERIFY(child<QLabel>(dialog, "warning_Lab")->isVisibleTo(dialog)); // home first

        // The user homes (which clears the alarm), then resumes.
        child<QPushButton>(&w, "home_Btn")->click();
        QTRY_VERIFY(!fake.inAlarm());
        QTRY_VERIFY(!w.machineController()->busy());
        QSignalSpy finished(w.machineController()->link(), &Jk_com::jobFinished);
        dialog->accept();
        QVERIFY(finished.wait(30000));
        const QString wrong = burn_check::compare(
            job, burn_check::machineBurns(fake.executedMoves()), from, alarmLine - 1);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }

    // The board's radio setup goes over the serial link when that is the
    // link in use.
    void radioSetupGoesOverSerial()
    {
        GrblFake fake;
        QVERIFY(fake.start());
        Widget w;
        w.show();
        child<QComboBox>(&w, "port_Box")->setEditText(fake.portName());
        child<QPushButton>(&w, "connect_Btn")->click();
        QTRY_COMPARE_WITH_TIMEOUT(programState().connectionMode, int(SerialLink), 5000);
        w.wifiTools()->openSetup();
        QWidget *setup = w.wifiTools()->setupDialog();
        QVERIFY(setup && setup->isVisible());
        child<QPushButton>(setup, "ap_Btn")->click();
        QTRY_VERIFY(fake.lines().contains(QStringLiteral("$Radio/Mode=AP")));
        QTRY_VERIFY(fake.lines().contains(QStringLiteral("$I")));
        QVERIFY(m_asked.requests.isEmpty());
    }

    // Saving and reopening used to reverse the stacking order, and with it
    // the order in which a layer's items burn (inner cuts after outer ones).
    void projectRoundTripKeepsTheJob()
    {
        QTemporaryDir dir;
        const QString project = dir.filePath(QStringLiteral("three.lumitra"));
        QByteArray before;
        QList<QRectF> stackBefore;
        {
            Widget w;
            w.resize(1280, 720);
            w.show();
            Driver d(&w);
            d.drawRectangle(QPointF(20, -20), QPointF(120, -120)); // outer
            d.drawRectangle(QPointF(40, -40), QPointF(60, -60));   // inner
            d.drawRectangle(QPointF(150, -30), QPointF(200, -80)); // beside, other layer
            d.scene()->clearSelection();
            d.scene()->designItems().first()->setSelected(true);
            w.layerController()->moveSelectionToLayer(3);
            QCOMPARE(d.scene()->designItemCount(), 3);
            for (Jk_tu_yuan *item : d.scene()->designItems())
                stackBefore << item->sceneBoundingRect();
            before = jobBytes(w, dir.filePath(QStringLiteral("before.nc")));
            QVERIFY(w.projectCommands()->saveProjectTo(project).ok);
        }
        Widget w;
        Driver d(&w);
        QCOMPARE(w.projectCommands()->open_file(project), ProjectCommands::OpenOutcome::Opened);
        QList<QRectF> stackAfter;
        for (Jk_tu_yuan *item : d.scene()->designItems())
            stackAfter << item->sceneBoundingRect();
        QCOMPARE(stackAfter, stackBefore);
        const QByteArray after = jobBytes(w, dir.filePath(QStringLiteral("after.nc")));
        QVERIFY(!before.isEmpty());
        QCOMPARE(after, before);
    }
};

QTEST_MAIN(TestWindowTrust)
#include "tst_window_trust.moc"
