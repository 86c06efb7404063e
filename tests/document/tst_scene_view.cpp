#include "jk_chang_jing.h"
#include "jk_shi_tu.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "program_state.h"
#include "ruler_bar.h"
#include "scene_tool.h"
#include "select_rect_item.h"
#include "work_area_background.h"

#include <QGraphicsSceneMouseEvent>
#include <QMimeData>
#include <QPainter>
#include <QSignalSpy>
#include <QtTest>

using lumitra::programState;

namespace {
// Records what the scene hands to its tool; consumes presses when asked.
class RecordingTool : public SceneTool
{
public:
    bool consume = true;
    QList<QPointF> presses;
    int moves = 0;
    int releases = 0;
    int deactivations = 0;

    int number() const override { return 2; }
    bool mousePress(Jk_chang_jing *, QGraphicsSceneMouseEvent *e) override
    {
        presses.append(e->scenePos());
        return consume;
    }
    bool mouseMove(Jk_chang_jing *, QGraphicsSceneMouseEvent *) override
    {
        ++moves;
        return consume;
    }
    bool mouseRelease(Jk_chang_jing *, QGraphicsSceneMouseEvent *) override
    {
        ++releases;
        return consume;
    }
    void deactivated(Jk_chang_jing *) override { ++deactivations; }
};

struct Fixture
{
    Jk_chang_jing scene;
    Jk_shi_tu view{&scene};
    Fixture()
    {
        view.resize(600, 500);
        view.show();
        if (!QTest::qWaitForWindowExposed(&view))
            qFatal("view not shown");
    }
};

void drag(QWidget *viewport, Qt::MouseButton button, QPoint from, QPoint to)
{
    QTest::mousePress(viewport, button, Qt::NoModifier, from);
    for (QPoint at : {(from + to) / 2, to}) {
        QMouseEvent move(QEvent::MouseMove, at, Qt::NoButton, button, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
    }
    QTest::mouseRelease(viewport, button, Qt::NoModifier, to);
}
} // namespace

// The design scene and view: work area, zoom, pan, fit, rubber band, drops,
// tools and the photo background.
class TestSceneView : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        lumitra::resetProgramState();
        LayerList::instance().clear();
    }

    void roundToMillimetre_data()
    {
        QTest::addColumn<QPointF>("in");
        QTest::addColumn<QPointF>("out");
        QTest::newRow("halves up") << QPointF(1.5, -1.5) << QPointF(2, -1);
        QTest::newRow("below half") << QPointF(2.49, -2.51) << QPointF(2, -3);
        QTest::newRow("negative half") << QPointF(-0.5, -2.5) << QPointF(0, -2);
    }
    void roundToMillimetre()
    {
        QFETCH(QPointF, in);
        QFETCH(QPointF, out);
        QCOMPARE(Jk_chang_jing::roundToMillimetre(in), out);
    }

    void gridAndRulerSteps_data()
    {
        QTest::addColumn<bool>("ruler");
        QTest::addColumn<double>("pixelsPerMm");
        QTest::addColumn<double>("step");
        QTest::newRow("grid exactly four") << false << 4.0 << 1.0;
        QTest::newRow("grid just under four") << false << 3.9 << 10.0;
        QTest::newRow("grid far") << false << 0.2 << 100.0;
        QTest::newRow("ruler 50 px per mm") << true << 50.0 << 1.0;
        QTest::newRow("ruler 30 px per mm") << true << 30.0 << 2.0;
        QTest::newRow("ruler 11 px per mm") << true << 11.0 << 5.0;
        QTest::newRow("ruler 1.5 px per mm") << true << 1.5 << 50.0;
        QTest::newRow("ruler 0.05 px per mm") << true << 0.05 << 1000.0;
    }
    void gridAndRulerSteps()
    {
        QFETCH(bool, ruler);
        QFETCH(double, pixelsPerMm);
        QFETCH(double, step);
        QVERIFY(qFuzzyCompare(
            ruler ? RulerBar::labelStepFor(pixelsPerMm) : gridStepFor(pixelsPerMm), step));
    }

    void zoomKeepsPointUnderCursor_data()
    {
        QTest::addColumn<double>("factor");
        QTest::addColumn<QPoint>("anchor");
        QTest::newRow("in at corner") << 2.0 << QPoint(20, 30);
        QTest::newRow("out") << 0.4 << QPoint(500, 100);
        QTest::newRow("deep in") << 40.0 << QPoint(123, 321);
    }
    void zoomKeepsPointUnderCursor()
    {
        QFETCH(double, factor);
        QFETCH(QPoint, anchor);
        Fixture f;
        const double before = f.view.zoom();
        const QPointF fixed = f.view.mapToScene(anchor);
        QSignalSpy spy(&f.view, &Jk_shi_tu::zoomChanged);
        f.view.zoomAbout(factor, anchor);
        QVERIFY(qAbs(f.view.zoom() - before * factor) < 1e-9 * before * factor);
        const QPointF after = f.view.mapToScene(anchor);
        // Scroll positions are whole pixels: allow one pixel.
        QVERIFY2(QLineF(fixed, after).length() <= 1.5 / f.view.zoom(),
                 qPrintable(QStringLiteral("moved by %1 mm").arg(QLineF(fixed, after).length())));
        QCOMPARE(spy.count(), 1);
    }

    void zoomIsClampedAndWheelZoomsByNotches()
    {
        Fixture f;
        const double before = f.view.zoom();
        const QPoint at(200, 150);
        const QPointF fixed = f.view.mapToScene(at);
        const auto wheel = [&](int delta) {
            QWheelEvent e(QPointF(at), f.view.viewport()->mapToGlobal(at), QPoint(),
                          QPoint(0, delta), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(f.view.viewport(), &e);
        };
        wheel(240);
        QVERIFY(qAbs(f.view.zoom() - before * 1.15 * 1.15) < 1e-9);
        QVERIFY(QLineF(fixed, f.view.mapToScene(at)).length() <= 1.5 / f.view.zoom());
        wheel(-120);
        QVERIFY(qAbs(f.view.zoom() - before * 1.15) < 1e-9);

        f.view.zoomAbout(1e9, QPoint(10, 10));
        QCOMPARE(f.view.zoom(), Jk_shi_tu::kMaxScale);
        f.view.zoomAbout(1e-12, QPoint(10, 10));
        QCOMPARE(f.view.zoom(), Jk_shi_tu::kMinScale);
        f.view.zoomAbout(0, QPoint(10, 10)); // ignored
        QCOMPARE(f.view.zoom(), Jk_shi_tu::kMinScale);
    }

    void fitShowsWholeWorkArea_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::newRow("400x400") << 400 << 400;
        QTest::newRow("wide 900x100") << 900 << 100;
        QTest::newRow("tall 50x700") << 50 << 700;
    }
    void fitShowsWholeWorkArea()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        Fixture f;
        f.view.zoomAbout(7, QPoint(0, 0));
        programState().width = width;
        programState().height = height;
        QCOMPARE(Jk_chang_jing::workAreaRect(), QRectF(0, -height, width, height));
        f.view.fitWorkArea();
        const QRect shown = f.view.mapFromScene(Jk_chang_jing::workAreaRect()).boundingRect();
        const QRect viewport = f.view.viewport()->rect();
        QVERIFY2(viewport.contains(shown), "work area cut off");
        // It fills most of the viewport along the tighter direction, centred.
        const double fill = qMax(double(shown.width()) / viewport.width(),
                                 double(shown.height()) / viewport.height());
        QVERIFY2(fill > 0.85, qPrintable(QString::number(fill)));
        QVERIFY(qAbs(shown.center().x() - viewport.center().x()) <= 2);
        QVERIFY(qAbs(shown.center().y() - viewport.center().y()) <= 2);
    }

    void fitsUntilTheUserZooms()
    {
        Jk_chang_jing scene;
        Jk_shi_tu view(&scene);
        view.resize(300, 200);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const double small = view.zoom();
        view.resize(900, 700); // the window grew: the work area follows
        QTRY_VERIFY(view.zoom() > small * 2);
        const QRect shown = view.mapFromScene(Jk_chang_jing::workAreaRect()).boundingRect();
        QVERIFY(view.viewport()->rect().contains(shown));
        view.zoomAbout(2, QPoint(10, 10));
        const double zoomed = view.zoom();
        view.resize(600, 500); // after the user's zoom the view stays as it is
        QTest::qWait(20);
        QCOMPARE(view.zoom(), zoomed);
    }

    void dragPans_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<bool>("space");
        QTest::addColumn<bool>("pans");
        QTest::newRow("middle button") << int(Qt::MiddleButton) << false << true;
        QTest::newRow("space and left") << int(Qt::LeftButton) << true << true;
        QTest::newRow("left alone is a rubber band") << int(Qt::LeftButton) << false << false;
    }
    void dragPans()
    {
        QFETCH(int, button);
        QFETCH(bool, space);
        QFETCH(bool, pans);
        Fixture f;
        const QPoint from(300, 250);
        const QPoint to(200, 300);
        const QPointF grabbed = f.view.mapToScene(from);
        if (space)
            QTest::keyPress(&f.view, Qt::Key_Space);
        drag(f.view.viewport(), Qt::MouseButton(button), from, to);
        if (space)
            QTest::keyRelease(&f.view, Qt::Key_Space);
        if (pans)
            QVERIFY(QLineF(f.view.mapToScene(to), grabbed).length() <= 1.0 / f.view.zoom());
        else
            QCOMPARE(f.view.mapToScene(from), grabbed);
        QVERIFY(!f.view.rubberBandItem());
    }

    void rubberBand_data()
    {
        QTest::addColumn<QRectF>("band"); // scene mm, dragged from first to second corner
        QTest::addColumn<bool>("reversed");
        QTest::addColumn<QVector<int>>("selected"); // item indexes
        // Items: 0 square (10,-90)-(30,-70), 1 square (50,-90)-(70,-70),
        // 2 horizontal line (10,-40)-(70,-40).
        QTest::newRow("encloses first") << QRectF(5, -95, 30, 30) << false << QVector<int>{0};
        QTest::newRow("touches first, left to right")
            << QRectF(20, -95, 20, 30) << false << QVector<int>{};
        QTest::newRow("touches first, right to left")
            << QRectF(20, -95, 20, 30) << true << QVector<int>{0};
        QTest::newRow("encloses all") << QRectF(0, -100, 80, 70) << false << QVector<int>{0, 1, 2};
        QTest::newRow("crosses line right to left")
            << QRectF(30, -45, 10, 10) << true << QVector<int>{2};
    }
    void rubberBand()
    {
        QFETCH(QRectF, band);
        QFETCH(bool, reversed);
        QFETCH(QVector<int>, selected);
        Fixture f;
        f.view.setTransform(QTransform::fromScale(4, 4));
        f.view.centerOn(40, -60);
        QList<Jk_tu_yuan *> items;
        for (const QPointF &at : {QPointF(10, -90), QPointF(50, -90)}) {
            QPainterPath p;
            p.addRect(0, 0, 20, 20);
            items.append(new Jk_tu_yuan(p, 1));
            items.last()->setPos(at);
        }
        QPainterPath line(QPointF(0, 0));
        line.lineTo(60, 0);
        items.append(new Jk_tu_yuan(line, 1));
        items.last()->setPos(10, -40);
        for (Jk_tu_yuan *item : items)
            f.scene.addItem(item);

        QSignalSpy spy(&f.view, &Jk_shi_tu::rubberBandSelected);
        const QPoint a = f.view.mapFromScene(reversed ? band.topRight() : band.topLeft());
        const QPoint b = f.view.mapFromScene(reversed ? band.bottomLeft() : band.bottomRight());
        QTest::mousePress(f.view.viewport(), Qt::LeftButton, Qt::NoModifier, a);
        QVERIFY(f.view.rubberBandItem());
        QMouseEvent move(QEvent::MouseMove, b, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(f.view.viewport(), &move);
        QCOMPARE(f.view.rubberBandItem()->isReversed(), reversed);
        QCOMPARE(f.scene.designItemCount(), 3); // the band is no design item
        QTest::mouseRelease(f.view.viewport(), Qt::LeftButton, Qt::NoModifier, b);
        QVERIFY(!f.view.rubberBandItem());
        QCOMPARE(f.scene.items().size(), 3);
        QVector<int> got;
        for (int i = 0; i < items.size(); ++i)
            if (items.at(i)->isSelected())
                got.append(i);
        QCOMPARE(got, selected);
        QCOMPARE(spy.count(), 1);
    }

    void rubberBandSkipsHiddenLayers()
    {
        Fixture f;
        auto *shown = new Jk_tu_yuan(0);
        auto *hidden = new Jk_tu_yuan(1);
        hidden->layer_id = 5;
        auto *record = new TuCeng(5, false);
        record->xianshi = false;
        LayerList::instance().append(record);
        f.scene.addItem(shown);
        f.scene.addItem(hidden);
        f.scene.clearSelection();
        const QRectF all = Jk_chang_jing::workAreaRect().adjusted(-5, -5, 5, 5);
        drag(f.view.viewport(), Qt::LeftButton, f.view.mapFromScene(all.topLeft()),
             f.view.mapFromScene(all.bottomRight()));
        QVERIFY(shown->isSelected());
        QVERIFY(!hidden->isSelected());
    }

    void clickOnEmptyCanvasClearsSelection()
    {
        Fixture f;
        auto *item = new Jk_tu_yuan(0);
        f.scene.addItem(item);
        QVERIFY(item->isSelected());
        // Inside the square but away from its outline: not a hit.
        QTest::mouseClick(f.view.viewport(), Qt::LeftButton, Qt::NoModifier,
                          f.view.mapFromScene(item->mapToScene(QPointF(50, 50))));
        QVERIFY(!item->isSelected());
        QVERIFY(!f.view.rubberBandItem());
        // On the outline: picked.
        QTest::mouseClick(f.view.viewport(), Qt::LeftButton, Qt::NoModifier,
                          f.view.mapFromScene(item->mapToScene(QPointF(1, 50))));
        QVERIFY(item->isSelected());
    }

    void toolTakesMouseFirst()
    {
        Fixture f;
        RecordingTool tool;
        QSignalSpy toolSpy(&f.scene, &Jk_chang_jing::toolChanged);
        f.scene.setTool(&tool);
        QCOMPARE(toolSpy.count(), 1);
        QCOMPARE(toolSpy.at(0).at(0).toInt(), 2);
        const QPoint at = f.view.mapFromScene(QPointF(100, -100));
        drag(f.view.viewport(), Qt::LeftButton, at, at + QPoint(40, 40));
        QCOMPARE(tool.presses.size(), 1);
        QVERIFY(QLineF(tool.presses.first(), QPointF(100, -100)).length() < 1.0);
        QCOMPARE(tool.moves, 2);
        QCOMPARE(tool.releases, 1);
        QVERIFY(!f.view.rubberBandItem()); // the tool took the press

        tool.consume = false; // a tool may let the canvas pick and select
        QTest::mousePress(f.view.viewport(), Qt::LeftButton, Qt::NoModifier, at);
        QVERIFY(f.view.rubberBandItem());
        QTest::mouseRelease(f.view.viewport(), Qt::LeftButton, Qt::NoModifier, at);

        f.scene.setTool(nullptr);
        QCOMPARE(tool.deactivations, 1);
        QCOMPARE(toolSpy.last().at(0).toInt(), 0);
    }

    void dropPassesOpenableFiles()
    {
        Fixture f;
        QSignalSpy spy(&f.view, &Jk_shi_tu::filesDropped);
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/a.PNG")),
                      QUrl::fromLocalFile(QStringLiteral("/tmp/notes.txt")),
                      QUrl::fromLocalFile(QStringLiteral("/tmp/b.lumitra")),
                      QUrl(QStringLiteral("http://127.0.0.1/c.png"))});
        const QPoint at(50, 50);
        QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(f.view.viewport(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(f.view.viewport(), &drop);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toStringList(),
                 (QStringList{QStringLiteral("/tmp/a.PNG"), QStringLiteral("/tmp/b.lumitra")}));

        QMimeData text;
        text.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/notes.txt"))});
        QDragEnterEvent refused(at, Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(f.view.viewport(), &refused);
        QVERIFY(!refused.isAccepted());
    }

    void photoFillsWorkArea()
    {
        Jk_chang_jing scene;
        QPixmap photo(40, 40);
        photo.fill(QColor(200, 30, 30));
        scene.setBackgroundPixmap(photo);
        QCOMPARE(scene.backgroundPixmap().size(), QSize(40, 40));
        // Scene x -100..300, y -300..100 at 0.25 px per mm: the area is (25..125, 25..125).
        const auto render = [&scene] {
            QImage image(100, 100, QImage::Format_RGB32);
            image.fill(Qt::black);
            QPainter painter(&image);
            scene.render(&painter, QRectF(0, 0, 100, 100), QRectF(-100, -300, 400, 400));
            return image;
        };
        QImage image = render();
        const QColor inside = image.pixelColor(60, 60);
        QVERIFY2(qAbs(inside.red() - 200) < 30 && inside.green() < 60, "photo not drawn");
        QVERIFY(image.pixelColor(10, 10) != inside); // outside the work area

        scene.setBackgroundPixmap(QPixmap());
        image = render();
        QVERIFY(image.pixelColor(60, 60).red() > 200 && image.pixelColor(60, 60).green() > 200);
    }
};

QTEST_MAIN(TestSceneView)
#include "tst_scene_view.moc"
