// The main window as a new user meets it: each case here is a fault a user
// ran into, driven through the real Widget with mouse and key events.
#include "window_driver.h"

#include "gcode_job_controller.h"
#include "import_actions.h"
#include "language_controller.h"
#include "layer_panel_controller.h"
#include "program_state.h"
#include "project_commands.h"
#include "recent_files.h"
#include "recent_files_menu.h"
#include "settings_store.h"

#include <QDir>
#include <QDoubleSpinBox>
#include <QMenu>
#include <QTemporaryDir>
#include <QToolButton>
#include <QUndoStack>

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
} // namespace

class TestWindowTrust : public QObject
{
    Q_OBJECT

    Asked m_asked;

private slots:
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
