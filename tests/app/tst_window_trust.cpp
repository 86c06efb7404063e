// The main window as a new user meets it: each case here is a fault a user
// ran into, driven through the real Widget with mouse and key events.
#include "window_driver.h"

#include "gcode_job_controller.h"
#include "layer_panel_controller.h"
#include "program_state.h"
#include "project_commands.h"
#include "settings_store.h"

#include <QDir>
#include <QTemporaryDir>

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
