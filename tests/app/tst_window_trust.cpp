// The main window as a new user meets it: each case here is a fault a user
// ran into, driven through the real Widget with mouse and key events.
#include "window_driver.h"

#include "program_state.h"
#include "settings_store.h"

#include <QDir>

using namespace lumitra;
using namespace window_test;

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
};

QTEST_MAIN(TestWindowTrust)
#include "tst_window_trust.moc"
