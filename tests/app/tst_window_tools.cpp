// The tools that joined the window, used as a user meets them: the outline
// operations in the edit menu, the node tool on the tool bar, the cloud button.
#include "importer_registry.h"
#include "job_preview_dialog.h"
#include "program_state.h"
#include "settings_store.h"
#include "window_driver.h"

#include <QLabel>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QUndoStack>
#include <QtTest>

using namespace lumitra;
using namespace window_test;

namespace {

QAction *menuAction(Widget &w, const char *button, const QString &text)
{
    QMenu *menu = child<QToolButton>(&w, button)->menu();
    if (!menu)
        return nullptr;
    for (QAction *a : menu->actions()) {
        if (a->text() == text)
            return a;
    }
    return nullptr;
}

QList<Jk_tu_yuan *> designItems(Jk_chang_jing *scene)
{
    QList<Jk_tu_yuan *> out;
    for (QGraphicsItem *i : scene->items()) {
        if (auto *item = dynamic_cast<Jk_tu_yuan *>(i))
            out << item;
    }
    return out;
}

} // namespace

class TestWindowTools : public QObject
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

    // Two overlapping rectangles drawn on the canvas, selected, welded from
    // the edit menu: one outline around both; undo gives both back.
    void weldFromTheEditMenu()
    {
        Widget w;
        w.resize(1280, 720);
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        Driver d(&w);
        d.drawRectangle(QPointF(50, -50), QPointF(120, -100));
        d.drawRectangle(QPointF(100, -60), QPointF(160, -120));
        Driver::settle();
        QCOMPARE(designItems(d.scene()).size(), 2);
        w.editController()->action(EditController::SelectAll)->trigger();
        Driver::settle();

        QAction *weld = menuAction(w, "edit_Btn", QStringLiteral("焊接"));
        QVERIFY(weld);
        weld->trigger();
        Driver::settle();
        const QList<Jk_tu_yuan *> welded = designItems(d.scene());
        QCOMPARE(welded.size(), 1);
        const QRectF bounds = welded.first()->mapToScene(welded.first()->path).boundingRect();
        QVERIFY2(qAbs(bounds.width() - 110) < 0.01 && qAbs(bounds.height() - 70) < 0.01,
                 qPrintable(QStringLiteral("%1 x %2").arg(bounds.width()).arg(bounds.height())));
        // One outline: the overlap is gone, not a hole.
        QCOMPARE(welded.first()->path.toSubpathPolygons().size(), 1);

        w.editController()->action(EditController::Undo)->trigger();
        Driver::settle();
        QCOMPARE(designItems(d.scene()).size(), 2);
    }

    // The node tool sits on the tool bar with the drawing tools and is one of
    // them: choosing it unchecks the rectangle.
    void nodeToolOnTheToolBar()
    {
        Widget w;
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        QAction *node = w.editController()->nodeToolAction();
        bool onBar = false;
        for (QToolBar *bar : w.findChildren<QToolBar *>())
            onBar = onBar || bar->actions().contains(node);
        QVERIFY(onBar);
        Driver d(&w);
        d.tool(2);
        node->trigger();
        QVERIFY(node->isChecked());
        QVERIFY(!w.editController()->toolAction(2)->isChecked());
    }

    // While the node tool drags a corner, the status bar shows the new size.
    void nodeDragShowsTheNewSize()
    {
        Widget w;
        w.resize(1280, 720);
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        Driver d(&w);
        d.drawRectangle(QPointF(50, -50), QPointF(120, -100)); // 70 x 50 mm
        Driver::settle();
        QLabel *status = child<QLabel>(&w, "selection_Lab");
        d.tool(0);
        d.click(QPointF(85, -50)); // on its top edge
        QVERIFY2(status->text().contains("W: 70.00"), qPrintable(status->text()));
        w.editController()->nodeToolAction()->trigger();
        d.mouse(QEvent::MouseButtonPress, QPointF(120, -100), Qt::LeftButton, Qt::LeftButton);
        d.mouse(QEvent::MouseMove, QPointF(130, -100), Qt::NoButton, Qt::LeftButton);
        d.mouse(QEvent::MouseMove, QPointF(140, -100), Qt::NoButton, Qt::LeftButton);
        // The corner moved 20 mm right (within the view's pixels): W 90, H 50.
        auto sizeShown = [status] {
            const auto m = QRegularExpression("W: ([\\d.]+)  H: ([\\d.]+)").match(status->text());
            return m.hasMatch() ? QSizeF(m.captured(1).toDouble(), m.captured(2).toDouble())
                                : QSizeF();
        };
        QVERIFY2(qAbs(sizeShown().width() - 90) < 1 && qAbs(sizeShown().height() - 50) < 1,
                 qPrintable(status->text()));
        d.mouse(QEvent::MouseButtonRelease, QPointF(140, -100), Qt::LeftButton, Qt::NoButton);
        Driver::settle();
        QVERIFY2(qAbs(sizeShown().width() - 90) < 1, qPrintable(status->text()));
    }

    // The preview button opens the preview with the job loaded in its player,
    // timed by the controller's planning: its factory settings (and a tip
    // saying so) until a machine has reported its own, then those.
    void previewPlaysTheJob()
    {
        Widget w;
        w.resize(1280, 720);
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        Driver d(&w);
        d.drawRectangle(QPointF(50, -50), QPointF(120, -100));
        Driver::settle();
        auto openPreview = [&w]() -> JobPreviewDialog * {
            child<QAbstractButton>(&w, "preview_Btn")->click();
            JobPreviewDialog *dialog = nullptr;
            if (!QTest::qWaitFor([&] { return (dialog = w.findChild<JobPreviewDialog *>()); }))
                return nullptr;
            return dialog;
        };
        JobPreviewDialog *dialog = openPreview();
        QVERIFY(dialog);
        // The rectangle: a move and four burns at least.
        QVERIFY2(dialog->timeline().lineCount() >= 5,
                 qPrintable(QString::number(dialog->timeline().lineCount())));
        QVERIFY(dialog->timeline().timedByMachine());
        const double factoryTime = dialog->timeline().totalSeconds();
        QVERIFY(factoryTime > 0);
        const QString factoryTip = child<QLabel>(dialog, "time_Lab")->toolTip();
        QVERIFY2(factoryTip.contains(QStringLiteral("出厂设置")), qPrintable(factoryTip));
        delete dialog;

        // A laser's own settings, as a connection stores them: far faster
        // than the factory's 500 mm/min and 10 mm/s².
        set_setting(QStringLiteral("JiQi/CanShu"),
                    QStringLiteral("$32=1 $110=6000 $111=6000 $120=3000 $121=3000"));
        dialog = openPreview();
        QVERIFY(dialog);
        const double machineTime = dialog->timeline().totalSeconds();
        QVERIFY2(machineTime > 0 && machineTime < factoryTime,
                 qPrintable(QStringLiteral("%1 vs %2").arg(machineTime).arg(factoryTime)));
        QVERIFY(!child<QLabel>(dialog, "time_Lab")->toolTip().contains(QStringLiteral("出厂设置")));
        delete dialog;
    }

    // The cloud button: account features ask to log in first.
    void cloudAsksToLogIn()
    {
        Widget w;
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        QMenu *menu = child<QToolButton>(&w, "cloud_Btn")->menu();
        QVERIFY(menu);
        QCOMPARE(menu->actions().size(), 4);
        QAction *centre = menuAction(w, "cloud_Btn", QStringLiteral("个人中心"));
        QVERIFY(centre);
        centre->trigger();
        QTRY_VERIFY(m_asked.messages().contains(QStringLiteral("请先登录")));
    }
};

QTEST_MAIN(TestWindowTools)
#include "tst_window_tools.moc"
