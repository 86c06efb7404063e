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
#include <QTemporaryDir>
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
} // namespace

// The design scene and view: work area, zoom, pan, fit, rubber band, drops,
// tools and the photo background.
class TestSceneView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void workAreaFollowsProgramState();
    void roundToMillimetre_data();
    void roundToMillimetre();
    void zoomKeepsPointUnderCursor_data();
    void zoomKeepsPointUnderCursor();
    void zoomIsClamped();
    void wheelZoomsByNotches();
    void fitShowsWholeWorkArea_data();
    void fitShowsWholeWorkArea();
    void fitsUntilTheUserZooms();
    void middleDragPans();
    void spaceDragPans();
    void rubberBand_data();
    void rubberBand();
    void rubberBandSkipsHiddenLayers();
    void clickOnEmptyCanvasClearsSelection();
    void toolTakesMouseFirst();
    void dropPassesOpenableFiles();
    void photoFillsWorkArea();
    void gridStep_data();
    void gridStep();
    void rulerStep_data();
    void rulerStep();

private:
    struct Fixture
    {
        Jk_chang_jing scene;
        Jk_shi_tu view{&scene};
        Fixture()
        {
            view.resize(600, 500);
            view.show();
        }
    };
    static void drag(QWidget *viewport, Qt::MouseButton button, QPoint from, QPoint to,
                     Qt::KeyboardModifiers mods = Qt::NoModifier);
};

void TestSceneView::init()
{
    lumitra::resetProgramState();
    LayerList::instance().clear();
}

void TestSceneView::drag(QWidget *viewport, Qt::MouseButton button, QPoint from, QPoint to,
                         Qt::KeyboardModifiers mods)
{
    QTest::mousePress(viewport, button, mods, from);
    QMouseEvent move(QEvent::MouseMove, (from + to) / 2, Qt::NoButton, button, mods);
    QApplication::sendEvent(viewport, &move);
    QMouseEvent move2(QEvent::MouseMove, to, Qt::NoButton, button, mods);
    QApplication::sendEvent(viewport, &move2);
    QTest::mouseRelease(viewport, button, mods, to);
}

void TestSceneView::workAreaFollowsProgramState()
{
    QCOMPARE(Jk_chang_jing::workAreaRect(), QRectF(0, -400, 400, 400));
    programState().width = 300;
    programState().height = 181;
    QCOMPARE(Jk_chang_jing::workAreaRect(), QRectF(0, -181, 300, 181));
}

void TestSceneView::roundToMillimetre_data()
{
    QTest::addColumn<QPointF>("in");
    QTest::addColumn<QPointF>("out");
    QTest::newRow("halves up") << QPointF(1.5, -1.5) << QPointF(2, -1);
    QTest::newRow("below half") << QPointF(2.49, -2.51) << QPointF(2, -3);
    QTest::newRow("whole") << QPointF(7, -7) << QPointF(7, -7);
    QTest::newRow("negative half") << QPointF(-0.5, -2.5) << QPointF(0, -2);
}

void TestSceneView::roundToMillimetre()
{
    QFETCH(QPointF, in);
    QFETCH(QPointF, out);
    QCOMPARE(Jk_chang_jing::roundToMillimetre(in), out);
}

void TestSceneView::zoomKeepsPointUnderCursor_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<QPoint>("anchor");
    QTest::newRow("in at corner") << 2.0 << QPoint(20, 30);
    QTest::newRow("in at centre") << 3.0 << QPoint(290, 240);
    QTest::newRow("out") << 0.4 << QPoint(500, 100);
    QTest::newRow("deep in") << 40.0 << QPoint(123, 321);
}

void TestSceneView::zoomKeepsPointUnderCursor()
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

void TestSceneView::zoomIsClamped()
{
    Fixture f;
    f.view.zoomAbout(1e9, QPoint(10, 10));
    QCOMPARE(f.view.zoom(), Jk_shi_tu::kMaxScale);
    f.view.zoomAbout(1e-12, QPoint(10, 10));
    QCOMPARE(f.view.zoom(), Jk_shi_tu::kMinScale);
    f.view.zoomAbout(0, QPoint(10, 10)); // ignored
    QCOMPARE(f.view.zoom(), Jk_shi_tu::kMinScale);
}

void TestSceneView::wheelZoomsByNotches()
{
    Fixture f;
    const double before = f.view.zoom();
    const QPoint at(200, 150);
    const QPointF fixed = f.view.mapToScene(at);
    QWheelEvent up(QPointF(at), f.view.viewport()->mapToGlobal(at), QPoint(), QPoint(0, 240),
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(f.view.viewport(), &up);
    QVERIFY(qAbs(f.view.zoom() - before * 1.15 * 1.15) < 1e-9);
    QVERIFY(QLineF(fixed, f.view.mapToScene(at)).length() <= 1.5 / f.view.zoom());
    QWheelEvent down(QPointF(at), f.view.viewport()->mapToGlobal(at), QPoint(), QPoint(0, -120),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(f.view.viewport(), &down);
    QVERIFY(qAbs(f.view.zoom() - before * 1.15) < 1e-9);
}

void TestSceneView::fitShowsWholeWorkArea_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("400x400") << 400 << 400;
    QTest::newRow("wide 900x100") << 900 << 100;
    QTest::newRow("tall 50x700") << 50 << 700;
}

void TestSceneView::fitShowsWholeWorkArea()
{
    QFETCH(int, width);
    QFETCH(int, height);
    Fixture f;
    QVERIFY(QTest::qWaitForWindowExposed(&f.view));
    f.view.zoomAbout(7, QPoint(0, 0));
    programState().width = width;
    programState().height = height;
    f.view.fitWorkArea();
    const QRect shown = f.view.mapFromScene(Jk_chang_jing::workAreaRect()).boundingRect();
    const QRect viewport = f.view.viewport()->rect();
    QVERIFY2(viewport.contains(shown), "work area cut off");
    // It fills most of the viewport along the tighter direction.
    const double fill =
        qMax(double(shown.width()) / viewport.width(), double(shown.height()) / viewport.height());
    QVERIFY2(fill > 0.85, qPrintable(QString::number(fill)));
    // Centred.
    QVERIFY(qAbs(shown.center().x() - viewport.center().x()) <= 2);
    QVERIFY(qAbs(shown.center().y() - viewport.center().y()) <= 2);
}

void TestSceneView::fitsUntilTheUserZooms()
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

void TestSceneView::middleDragPans()
{
    Fixture f;
    QVERIFY(QTest::qWaitForWindowExposed(&f.view));
    const QPoint from(300, 250);
    const QPointF grabbed = f.view.mapToScene(from);
    const QPoint to(200, 300);
    drag(f.view.viewport(), Qt::MiddleButton, from, to);
    QVERIFY(QLineF(f.view.mapToScene(to), grabbed).length() <= 1.0 / f.view.zoom());
    QVERIFY(!f.view.rubberBandItem());
}

void TestSceneView::spaceDragPans()
{
    Fixture f;
    QVERIFY(QTest::qWaitForWindowExposed(&f.view));
    const QPoint from(100, 100);
    const QPointF grabbed = f.view.mapToScene(from);
    QTest::keyPress(&f.view, Qt::Key_Space);
    drag(f.view.viewport(), Qt::LeftButton, from, QPoint(150, 180));
    QTest::keyRelease(&f.view, Qt::Key_Space);
    QVERIFY(QLineF(f.view.mapToScene(QPoint(150, 180)), grabbed).length() <= 1.0 / f.view.zoom());
    // Without Space the same drag is a rubber band and does not move the view.
    const QPointF still = f.view.mapToScene(from);
    drag(f.view.viewport(), Qt::LeftButton, from, QPoint(150, 180));
    QCOMPARE(f.view.mapToScene(from), still);
}

void TestSceneView::rubberBand_data()
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
    QTest::newRow("empty canvas") << QRectF(100, -300, 50, 50) << false << QVector<int>{};
}

void TestSceneView::rubberBand()
{
    QFETCH(QRectF, band);
    QFETCH(bool, reversed);
    QFETCH(QVector<int>, selected);
    Fixture f;
    QVERIFY(QTest::qWaitForWindowExposed(&f.view));
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

void TestSceneView::rubberBandSkipsHiddenLayers()
{
    Fixture f;
    QVERIFY(QTest::qWaitForWindowExposed(&f.view));
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

void TestSceneView::clickOnEmptyCanvasClearsSelection()
{
    Fixture f;
    QVERIFY(QTest::qWaitForWindowExposed(&f.view));
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

void TestSceneView::toolTakesMouseFirst()
{
    Fixture f;
    QVERIFY(QTest::qWaitForWindowExposed(&f.view));
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

void TestSceneView::dropPassesOpenableFiles()
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

void TestSceneView::photoFillsWorkArea()
{
    Jk_chang_jing scene;
    QPixmap photo(40, 40);
    photo.fill(QColor(200, 30, 30));
    scene.setBackgroundPixmap(photo);
    QCOMPARE(scene.backgroundPixmap().size(), QSize(40, 40));
    QImage image(100, 100, QImage::Format_RGB32);
    QPainter painter(&image);
    // Scene x -100..300, y -300..100 at 0.25 px per mm: the area is (25..125, 25..125).
    scene.render(&painter, QRectF(0, 0, 100, 100), QRectF(-100, -300, 400, 400));
    painter.end();
    const QColor inside = image.pixelColor(60, 60);
    QVERIFY2(qAbs(inside.red() - 200) < 30 && inside.green() < 60, "photo not drawn");
    QVERIFY(image.pixelColor(10, 10) != inside); // outside the work area

    scene.setBackgroundPixmap(QPixmap());
    image.fill(Qt::black);
    QPainter again(&image);
    scene.render(&again, QRectF(0, 0, 100, 100), QRectF(-100, -300, 400, 400));
    again.end();
    QVERIFY(image.pixelColor(60, 60).red() > 200 && image.pixelColor(60, 60).green() > 200);
}

void TestSceneView::gridStep_data()
{
    QTest::addColumn<double>("pixelsPerMm");
    QTest::addColumn<double>("step");
    QTest::newRow("close") << 10.0 << 1.0;
    QTest::newRow("exactly four") << 4.0 << 1.0;
    QTest::newRow("just under four") << 3.9 << 10.0;
    QTest::newRow("far") << 0.2 << 100.0;
}

void TestSceneView::gridStep()
{
    QFETCH(double, pixelsPerMm);
    QFETCH(double, step);
    QCOMPARE(gridStepFor(pixelsPerMm), step);
}

void TestSceneView::rulerStep_data()
{
    QTest::addColumn<double>("pixelsPerMm");
    QTest::addColumn<double>("step");
    QTest::newRow("50 px per mm") << 50.0 << 1.0;
    QTest::newRow("30 px per mm") << 30.0 << 2.0;
    QTest::newRow("11 px per mm") << 11.0 << 5.0;
    QTest::newRow("1.5 px per mm") << 1.5 << 50.0;
    QTest::newRow("0.05 px per mm") << 0.05 << 1000.0;
}

void TestSceneView::rulerStep()
{
    QFETCH(double, pixelsPerMm);
    QFETCH(double, step);
    QVERIFY(qFuzzyCompare(RulerBar::labelStepFor(pixelsPerMm), step));
}

QTEST_MAIN(TestSceneView)
#include "tst_scene_view.moc"
