#include "jiao_zhun.h"
#include "jiao_zhun_view.h"

#include <QAbstractButton>
#include <QApplication>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QtTest>

// The calibration dialog driven with mouse and wheel events: clicks kept in
// photo pixels, ordered on the fourth, the button's two roles, wheel zoom.
namespace {

QPixmap testPhoto()
{
    QPixmap photo(800, 600);
    photo.fill(Qt::white);
    return photo;
}

void wheel(QWidget *viewport, const QPoint &at, int delta)
{
    QWheelEvent event(QPointF(at), QPointF(viewport->mapToGlobal(at)), QPoint(), QPoint(0, delta),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(viewport, &event);
}

} // namespace

class TestJiaoZhun : public QObject
{
    Q_OBJECT

private slots:
    void modalAndResetState()
    {
        JiaoZhun dialog;
        QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
        QCOMPARE(dialog.nextButton()->text(), QString::fromUtf8("下一步"));
        QCOMPARE(dialog.clickCount(), 0);
        QVERIFY(!dialog.view()->hasPhoto());
        QCOMPARE(dialog.view()->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(dialog.view()->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    }

    void clicksWithoutPhotoAreIgnored()
    {
        JiaoZhun dialog;
        dialog.resize(700, 560);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QTest::mouseClick(dialog.view()->viewport(), Qt::LeftButton, {}, QPoint(50, 50));
        QCOMPARE(dialog.clickCount(), 0);
    }

    void fourClicksOrderedThenClose()
    {
        JiaoZhun dialog;
        dialog.resize(700, 560);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QSignalSpy picked(&dialog, &JiaoZhun::pointsPicked);
        QSignalSpy asked(&dialog, &JiaoZhun::photoRequested);

        // Before a photo, the button asks for one.
        QTest::mouseClick(dialog.nextButton(), Qt::LeftButton);
        QCOMPARE(asked.count(), 1);
        dialog.setPhoto(testPhoto());
        JiaoZhunView *view = dialog.view();
        QVERIFY(view->hasPhoto());

        // Bottom-left, top-right, bottom-right, top-left, in photo pixels.
        const QPointF targets[4] = {{120, 500}, {690, 90}, {700, 480}, {100, 100}};
        QVector<QPointF> stored;
        for (int i = 0; i < 4; ++i) {
            const QPoint at = view->mapFromScene(targets[i]);
            QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
            QCOMPARE(dialog.clickCount(), i + 1);
            stored.append(view->mapToScene(at));
            // A click lands on the photo pixel under it, whatever the view's scale.
            QVERIFY(QLineF(view->clicks().last(), targets[i]).length() < 1.0 / view->zoom() + 1);
            QCOMPARE(view->clicks().last(), stored.last());
            if (i < 3)
                QCOMPARE(picked.count(), 0);
        }
        QCOMPARE(picked.count(), 1);
        const QList<QVariant> args = picked.first();
        QCOMPARE(args.size(), 8);
        const QPointF expected[4] = {stored[3], stored[1], stored[2], stored[0]};
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(args[2 * i].toDouble(), expected[i].x());
            QCOMPARE(args[2 * i + 1].toDouble(), expected[i].y());
            QCOMPARE(dialog.points().p[i], expected[i]);
        }
        QCOMPARE(dialog.nextButton()->text(), QString::fromUtf8("关闭"));

        // A fifth click changes nothing.
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                          view->mapFromScene(QPointF(400, 300)));
        QCOMPARE(dialog.clickCount(), 4);
        QCOMPARE(picked.count(), 1);

        QTest::mouseClick(dialog.nextButton(), Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(asked.count(), 1);

        dialog.reset();
        QCOMPARE(dialog.nextButton()->text(), QString::fromUtf8("下一步"));
        QCOMPARE(dialog.clickCount(), 0);
        QVERIFY(!dialog.view()->hasPhoto());
        QCOMPARE(dialog.points().p[0], QPointF());
        QCOMPARE(dialog.points().p[3], QPointF());
    }

    void wheelZoomsAboutTheCursor()
    {
        JiaoZhun dialog;
        dialog.resize(700, 560);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        dialog.setPhoto(testPhoto());
        JiaoZhunView *view = dialog.view();
        const QPoint cursor(view->viewport()->width() / 3, view->viewport()->height() / 4);
        const QPointF under = view->mapToScene(cursor);
        const double before = view->zoom();

        wheel(view->viewport(), cursor, 120);
        QVERIFY(qAbs(view->zoom() - before * 1.05) < 1e-9);
        QVERIFY(QLineF(view->mapToScene(cursor), under).length() < 1.5 / view->zoom());
        wheel(view->viewport(), cursor, -120);
        QVERIFY(qAbs(view->zoom() - before * 1.05 * 0.95) < 1e-9);
        QVERIFY(QLineF(view->mapToScene(cursor), under).length() < 2.5 / view->zoom());

        // Clicks after zooming are still photo pixels.
        const QPoint at = view->mapFromScene(QPointF(300, 200));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
        QVERIFY(QLineF(view->clicks().first(), QPointF(300, 200)).length()
                < 1.0 / view->zoom() + 1);
    }
};

QTEST_MAIN(TestJiaoZhun)
#include "tst_jiao_zhun.moc"
