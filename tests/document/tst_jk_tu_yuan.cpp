#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "program_state.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using lumitra::programState;

// The graphic item: constructors and placement, bounds, picking, painting by
// layer record, rotation.
class TestJkTuYuan : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void shapeConstructorCentres_data();
    void shapeConstructorCentres();
    void centringUsesSinglePrecision();
    void bitmapSizeFollowsPixels_data();
    void bitmapSizeFollowsPixels();
    void fileLoadGreysOnlyVisiblePixels_data();
    void fileLoadGreysOnlyVisiblePixels();
    void pixmapBecomesGrey8();
    void twoImagesKeepTheirRoles();
    void pathConstructorPlacement_data();
    void pathConstructorPlacement();
    void copyConstructorCopiesState();
    void boundingRectMinimum_data();
    void boundingRectMinimum();
    void setPathMovesBounds();
    void hitTestFollowsStroke_data();
    void hitTestFollowsStroke();
    void clickSelectsNearStrokeOnly_data();
    void clickSelectsNearStrokeOnly();
    void paintByLayerRecord_data();
    void paintByLayerRecord();
    void hiddenLayerDeselectsAndDrawsNothing();
    void rotationAccumulates_data();
    void rotationAccumulates();
    void rotationAboutCentreMovesGeometry();
    void doubleClickAsksForTextDialog();

private:
    static QImage render(QGraphicsScene &scene, const QRectF &source, int px);
};

void TestJkTuYuan::init()
{
    lumitra::resetProgramState();
    LayerList::instance().clear();
}

void TestJkTuYuan::shapeConstructorCentres_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("shape");
    QTest::addColumn<QRectF>("bounds");
    QTest::addColumn<QPointF>("pos");
    // pos = (width/2 - w/2, height/2 - h/2 - height), integer halves of the area.
    QTest::newRow("square 400x400")
        << 400 << 400 << 0 << QRectF(0, 0, 100, 100) << QPointF(150, -250);
    QTest::newRow("circle 400x400")
        << 400 << 400 << 1 << QRectF(0, 0, 100, 100) << QPointF(150, -250);
    QTest::newRow("triangle 400x400")
        << 400 << 400 << 2 << QRectF(0, 0, 100, 100) << QPointF(150, -250);
    QTest::newRow("square 300x181")
        << 300 << 181 << 0 << QRectF(0, 0, 100, 100) << QPointF(100, -141);
    QTest::newRow("circle 301x99")
        << 301 << 99 << 1 << QRectF(0, 0, 100, 100) << QPointF(100, -100);
}

void TestJkTuYuan::shapeConstructorCentres()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, shape);
    QFETCH(QRectF, bounds);
    QFETCH(QPointF, pos);
    programState().width = width;
    programState().height = height;
    programState().currentLayer = 7;
    Jk_tu_yuan item(shape);
    QCOMPARE(item.path.boundingRect(), bounds);
    QCOMPARE(item.pos(), pos);
    QCOMPARE(item.layer_id, 7);
    QVERIFY(item.isSelected());
    QVERIFY(!item.is_bitmap);
    QCOMPARE(int(item.flags()), 6); // selectable and focusable, not movable
    QVERIFY(item.acceptHoverEvents());
}

void TestJkTuYuan::centringUsesSinglePrecision()
{
    programState().width = 401; // 401 / 2 == 200 in integers
    programState().height = 399;
    QPainterPath p;
    p.addRect(0, 0, 0.1, 33.3);
    Jk_tu_yuan item(p, 0);
    const float x = 200.0f - 0.1f * 0.5f;
    const float y = 199.0f - 33.3f * 0.5f - 399.0f;
    QCOMPARE(item.pos().x(), double(x));
    QCOMPARE(item.pos().y(), double(y));
    QVERIFY(item.pos().x() != 200.0 - 0.1 * 0.5); // the double sum differs
}

void TestJkTuYuan::bitmapSizeFollowsPixels_data()
{
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<QSizeF>("mm");
    QTest::newRow("1000x500") << QSize(1000, 500) << QSizeF(254, 127);
    QTest::newRow("1x1") << QSize(1, 1) << QSizeF(0.254, 0.254);
    QTest::newRow("100x3") << QSize(100, 3) << QSizeF(25.4, 0.762);
}

void TestJkTuYuan::bitmapSizeFollowsPixels()
{
    QFETCH(QSize, pixels);
    QFETCH(QSizeF, mm);
    QImage image(pixels, QImage::Format_ARGB32);
    image.fill(Qt::gray);
    Jk_tu_yuan item(image);
    QVERIFY(item.is_bitmap);
    QCOMPARE(item.path.boundingRect().topLeft(), QPointF(0, 0));
    QVERIFY(qFuzzyCompare(item.path.boundingRect().width(), mm.width()));
    QVERIFY(qFuzzyCompare(item.path.boundingRect().height(), mm.height()));
    QVERIFY(item.isSelected());
    QCOMPARE(item.display_image, image);
    QCOMPARE(item.source_image, image);
}

void TestJkTuYuan::fileLoadGreysOnlyVisiblePixels_data()
{
    QTest::addColumn<QRgb>("stored");
    QTest::addColumn<QRgb>("loaded");
    QTest::newRow("transparent keeps colour") << qRgba(10, 200, 30, 0) << qRgba(10, 200, 30, 0);
    QTest::newRow("opaque red") << qRgba(255, 0, 0, 255) << qRgba(85, 85, 85, 255);
    QTest::newRow("half alpha") << qRgba(30, 60, 90, 128) << qRgba(60, 60, 60, 128);
    QTest::newRow("integer division") << qRgba(1, 1, 2, 255) << qRgba(1, 1, 1, 255);
    QTest::newRow("alpha one") << qRgba(255, 255, 254, 1) << qRgba(254, 254, 254, 1);
}

void TestJkTuYuan::fileLoadGreysOnlyVisiblePixels()
{
    QFETCH(QRgb, stored);
    QFETCH(QRgb, loaded);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("pixel.png"));
    QImage image(3, 2, QImage::Format_ARGB32);
    image.fill(stored);
    QVERIFY(image.save(file));
    Jk_tu_yuan item(file);
    QVERIFY(item.is_bitmap);
    QCOMPARE(item.source_image.size(), QSize(3, 2));
    const QImage argb = item.source_image.convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(QString::number(argb.pixel(2, 1), 16), QString::number(loaded, 16));
    QCOMPARE(item.display_image, item.source_image);
}

void TestJkTuYuan::pixmapBecomesGrey8()
{
    QImage colour(4, 4, QImage::Format_RGB32);
    colour.fill(qRgb(255, 0, 0));
    Jk_tu_yuan item(QPixmap::fromImage(colour));
    QCOMPARE(item.source_image.format(), QImage::Format_Grayscale8);
    QCOMPARE(item.display_image.format(), QImage::Format_Grayscale8);
    // The library's grey, not the per-pixel average (which would give 85).
    QCOMPARE(qGray(item.source_image.pixel(0, 0)),
             qGray(colour.convertToFormat(QImage::Format_Grayscale8).pixel(0, 0)));
    QVERIFY(qGray(item.source_image.pixel(0, 0)) != 85);
}

void TestJkTuYuan::twoImagesKeepTheirRoles()
{
    QImage source(10, 20, QImage::Format_Grayscale8);
    source.fill(200);
    QImage display(10, 20, QImage::Format_Grayscale8);
    display.fill(0);
    Jk_tu_yuan item(source, display);
    QCOMPARE(item.source_image, source);
    QCOMPARE(item.display_image, display);
    QVERIFY(qFuzzyCompare(item.path.boundingRect().height(), 20 * 0.254));
}

void TestJkTuYuan::pathConstructorPlacement_data()
{
    QTest::addColumn<int>("keepPlace");
    QTest::addColumn<QPointF>("pos");
    QTest::addColumn<bool>("selected");
    QTest::newRow("centred") << 0 << QPointF(190, -205) << true;
    QTest::newRow("kept at origin") << 1 << QPointF(0, 0) << false;
    QTest::newRow("any other flag") << 5 << QPointF(0, 0) << false;
}

void TestJkTuYuan::pathConstructorPlacement()
{
    QFETCH(int, keepPlace);
    QFETCH(QPointF, pos);
    QFETCH(bool, selected);
    QPainterPath p;
    p.addRect(3, 4, 20, 10);
    Jk_tu_yuan item(p, keepPlace);
    QCOMPARE(item.path, p);
    QCOMPARE(item.pos(), pos);
    QCOMPARE(item.isSelected(), selected);
    QCOMPARE(item.cacheMode(), QGraphicsItem::DeviceCoordinateCache);
}

void TestJkTuYuan::copyConstructorCopiesState()
{
    programState().currentLayer = 4;
    QImage img(5, 5, QImage::Format_Grayscale8);
    img.fill(77);
    Jk_tu_yuan original(img);
    original.jiao_du = 33.5;
    original.reserved = 9;
    original.wen_zi = QStringLiteral("abc");
    original.setTransform(QTransform().rotate(30).scale(2, 1));
    original.setPos(12, -40);
    programState().currentLayer = 11;

    Jk_tu_yuan copy(&original);
    QCOMPARE(copy.path, original.path);
    QCOMPARE(copy.is_bitmap, true);
    QCOMPARE(copy.source_image, img);
    QCOMPARE(copy.display_image, img);
    QCOMPARE(copy.jiao_du, 33.5);
    QCOMPARE(copy.layer_id, 4);
    QCOMPARE(copy.reserved, 9);
    QCOMPARE(copy.transform(), original.transform());
    QCOMPARE(copy.pos(), QPointF(0, 0));
    QVERIFY(!copy.isSelected());
    QVERIFY(copy.wen_zi.isEmpty());
}

void TestJkTuYuan::boundingRectMinimum_data()
{
    QTest::addColumn<QLineF>("line");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("horizontal 50") << QLineF(0, 0, 50, 0) << QSizeF(50, 0.3);
    QTest::newRow("vertical 20") << QLineF(5, 0, 5, 20) << QSizeF(0.3, 20);
    QTest::newRow("diagonal") << QLineF(0, 0, 3, 4) << QSizeF(3, 4);
}

void TestJkTuYuan::boundingRectMinimum()
{
    QFETCH(QLineF, line);
    QFETCH(QSizeF, size);
    QPainterPath p(line.p1());
    p.lineTo(line.p2());
    Jk_tu_yuan item(p, 1);
    QCOMPARE(item.boundingRect().size(), size);
    QCOMPARE(item.boundingRect().topLeft(), p.boundingRect().topLeft());
}

void TestJkTuYuan::setPathMovesBounds()
{
    QGraphicsScene scene;
    auto *item = new Jk_tu_yuan(0);
    scene.addItem(item);
    const QPointF at = item->pos();
    QPainterPath bigger;
    bigger.addRect(0, 0, 300, 10);
    item->set_path(bigger);
    QCOMPARE(item->path, bigger);
    QCOMPARE(item->sceneBoundingRect(), QRectF(at, QSizeF(300, 10)));
    // The scene index knows the new geometry.
    QVERIFY(scene.items(at + QPointF(250, 5)).contains(item));
}

void TestJkTuYuan::hitTestFollowsStroke_data()
{
    QTest::addColumn<int>("shape");
    QTest::addColumn<QPointF>("local");
    QTest::addColumn<bool>("hit");
    QTest::newRow("on square edge") << 0 << QPointF(0.5, 50) << true;
    QTest::newRow("2 mm inside edge") << 0 << QPointF(2, 50) << true;
    QTest::newRow("square interior") << 0 << QPointF(50, 50) << false;
    QTest::newRow("4 mm inside edge") << 0 << QPointF(4, 50) << false;
    QTest::newRow("outside the bounds") << 0 << QPointF(-1, 50) << false;
    QTest::newRow("triangle apex side") << 2 << QPointF(50, 99) << true;
    QTest::newRow("triangle middle") << 2 << QPointF(50, 40) << false;
}

void TestJkTuYuan::hitTestFollowsStroke()
{
    QFETCH(int, shape);
    QFETCH(QPointF, local);
    QFETCH(bool, hit);
    Jk_tu_yuan item(shape);
    QCOMPARE(item.hitTest(item.mapToScene(local)), hit);
}

void TestJkTuYuan::clickSelectsNearStrokeOnly_data()
{
    QTest::addColumn<QPointF>("scenePoint");
    QTest::addColumn<bool>("selected");
    // A 50 mm horizontal line at scene y = -200 from x 100 to 150: the pick
    // area is its 5 mm stroke cut to the 0.3 mm high bounding rectangle.
    QTest::newRow("on the line") << QPointF(120, -199.85) << true;
    QTest::newRow("near its start") << QPointF(100.5, -199.8) << true;
    QTest::newRow("1.5 mm below") << QPointF(120, -198.5) << false;
    QTest::newRow("8 mm above") << QPointF(120, -208) << false;
    QTest::newRow("beyond the end") << QPointF(160, -199.85) << false;
}

void TestJkTuYuan::clickSelectsNearStrokeOnly()
{
    QFETCH(QPointF, scenePoint);
    QFETCH(bool, selected);
    QGraphicsScene scene;
    QPainterPath line(QPointF(0, 0));
    line.lineTo(50, 0);
    auto *item = new Jk_tu_yuan(line, 1);
    item->setPos(100, -200);
    scene.addItem(item);
    QGraphicsView view(&scene);
    view.resize(400, 400);
    view.setSceneRect(0, -400, 400, 400);
    view.setTransform(QTransform::fromScale(20, 20));
    view.centerOn(scenePoint);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                      view.mapFromScene(scenePoint));
    QCOMPARE(item->isSelected(), selected);
}

QImage TestJkTuYuan::render(QGraphicsScene &scene, const QRectF &source, int px)
{
    QImage image(px, px, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    scene.render(&painter, QRectF(0, 0, px, px), source);
    return image;
}

void TestJkTuYuan::paintByLayerRecord_data()
{
    QTest::addColumn<bool>("haveRecord");
    QTest::addColumn<int>("moshi");
    QTest::addColumn<int>("layer");
    QTest::addColumn<int>("current");
    QTest::addColumn<QRgb>("edge");
    QTest::addColumn<QRgb>("centre");
    QTest::addColumn<bool>("filled");
    const QRgb white = qRgb(255, 255, 255);
    QTest::newRow("no layers: current colour")
        << false << 0 << 2 << 1 << qRgb(0, 0, 255) << white << false;
    QTest::newRow("line mode") << true << 0 << 2 << 1 << qRgb(255, 0, 0) << white << false;
    QTest::newRow("fill mode") << true << 1 << 2 << 1 << qRgb(255, 0, 0) << qRgb(255, 0, 0) << true;
    QTest::newRow("cross fill") << true << 2 << 9 << 0 << qRgb(0, 0, 160) << qRgb(0, 0, 160)
                                << true;
}

void TestJkTuYuan::paintByLayerRecord()
{
    QFETCH(bool, haveRecord);
    QFETCH(int, moshi);
    QFETCH(int, layer);
    QFETCH(int, current);
    QFETCH(QRgb, edge);
    QFETCH(QRgb, centre);
    QFETCH(bool, filled);
    if (haveRecord) {
        auto *record = new TuCeng(layer, false);
        record->moshi = moshi;
        LayerList::instance().append(record);
    }
    programState().currentLayer = current;
    QGraphicsScene scene;
    QPainterPath square;
    square.addRect(0, 0, 100, 100);
    auto *item = new Jk_tu_yuan(square, 1);
    item->layer_id = layer;
    item->setCacheMode(QGraphicsItem::NoCache);
    scene.addItem(item);
    const QImage image = render(scene, QRectF(-10, -10, 120, 120), 120);
    QCOMPARE(QString::number(image.pixel(10, 60), 16), QString::number(edge, 16));
    QCOMPARE(QString::number(image.pixel(60, 60), 16), QString::number(centre, 16));
    QCOMPARE(item->filled, filled);
}

void TestJkTuYuan::hiddenLayerDeselectsAndDrawsNothing()
{
    auto *record = new TuCeng(3, false);
    record->moshi = FillMode;
    record->xianshi = false;
    LayerList::instance().append(record);
    auto *bitmapRecord = new TuCeng(3, true);
    bitmapRecord->xianshi = false;
    LayerList::instance().append(bitmapRecord);
    Jk_chang_jing scene;
    QPainterPath square;
    square.addRect(0, 0, 100, 100);
    auto *item = new Jk_tu_yuan(square, 1);
    item->layer_id = 3;
    item->setSelected(true);
    QImage black(50, 50, QImage::Format_RGB32);
    black.fill(Qt::black);
    auto *bitmap = new Jk_tu_yuan(black);
    bitmap->layer_id = 3;
    bitmap->setPos(0, 0);
    scene.addItem(item);
    scene.addItem(bitmap);
    QVERIFY(item->isSelected() && bitmap->isSelected());
    const QImage image = render(scene, QRectF(-10, -10, 120, 120), 120);
    Jk_chang_jing empty;
    QCOMPARE(image, render(empty, QRectF(-10, -10, 120, 120), 120));
    QVERIFY(!item->isSelected());
    QVERIFY(!bitmap->isSelected());
    QVERIFY(item->isOnHiddenLayer());

    record->xianshi = true;
    scene.repaintItems(); // cached drawings of the item are dropped
    const QImage shown = render(scene, QRectF(-10, -10, 120, 120), 120);
    QCOMPARE(shown.pixel(60, 60), layerColor(3).rgb());
}

void TestJkTuYuan::rotationAccumulates_data()
{
    QTest::addColumn<QList<double>>("angles");
    QTest::addColumn<double>("jiaoDu");
    QTest::newRow("90 then 300") << QList<double>{90, 300} << 390.0;
    QTest::newRow("never normalised") << QList<double>{180, 180, 180} << 540.0;
    QTest::newRow("negative") << QList<double>{-45, 10} << -35.0;
}

void TestJkTuYuan::rotationAccumulates()
{
    QFETCH(QList<double>, angles);
    QFETCH(double, jiaoDu);
    Jk_tu_yuan item(0);
    for (double a : angles)
        Jk_tu_yuan::rotateItems({&item}, a, QPointF(200, -200));
    QCOMPARE(item.jiao_du, jiaoDu);
    double sum = 0;
    for (double a : angles)
        sum += a;
    // The geometry turned by the same total about the centre.
    QTransform expected;
    expected.translate(200, -200).rotate(sum).translate(-200, 200);
    const QPointF corner = QTransform::fromTranslate(150, -250).map(QPointF(0, 0));
    const QPointF got = item.mapToScene(QPointF(0, 0));
    QVERIFY2(QLineF(got, expected.map(corner)).length() < 1e-9, "corner misplaced");
}

void TestJkTuYuan::rotationAboutCentreMovesGeometry()
{
    QGraphicsScene scene;
    auto *a = new Jk_tu_yuan(0); // square at (150, -250)..(250, -150)
    QPainterPath line(QPointF(0, 0));
    line.lineTo(10, 0);
    auto *b = new Jk_tu_yuan(line, 1);
    b->setPos(300, -200);
    scene.addItem(a);
    scene.addItem(b);
    const QPainterPath beforeA = a->scenePath();
    const QPainterPath beforeB = b->scenePath();
    const QPointF centre(200, -200);
    Jk_tu_yuan::rotateItems({a, b}, 90, centre);
    QTransform turn;
    turn.translate(centre.x(), centre.y()).rotate(90).translate(-centre.x(), -centre.y());
    const QPainterPath expectA = turn.map(beforeA);
    const QPainterPath expectB = turn.map(beforeB);
    for (int i = 0; i < expectA.elementCount(); ++i)
        QVERIFY(QLineF(a->scenePath().elementAt(i), expectA.elementAt(i)).length() < 1e-9);
    for (int i = 0; i < expectB.elementCount(); ++i)
        QVERIFY(QLineF(b->scenePath().elementAt(i), expectB.elementAt(i)).length() < 1e-9);
    // The rotation lives in each item's own transform, the outline is untouched.
    QCOMPARE(a->path, beforeA.translated(-150, 250));
    QVERIFY(qFuzzyCompare(a->transform().m12(), 1.0));
    QCOMPARE(a->jiao_du, 90.0);
    QCOMPARE(b->jiao_du, 90.0);
}

void TestJkTuYuan::doubleClickAsksForTextDialog()
{
    Jk_chang_jing scene;
    auto *item = new Jk_tu_yuan(0);
    scene.addItem(item);
    QSignalSpy itemSpy(item, &Jk_tu_yuan::textEditRequested);
    QSignalSpy sceneSpy(&scene, &Jk_chang_jing::textEditRequested);
    QGraphicsView view(&scene);
    view.resize(500, 500);
    view.fitInView(QRectF(0, -400, 400, 400));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QPoint onEdge = view.mapFromScene(item->mapToScene(QPointF(0.5, 50)));
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, onEdge);
    QCOMPARE(itemSpy.count(), 1);
    QCOMPARE(sceneSpy.count(), 1);
    QCOMPARE(sceneSpy.at(0).at(0).value<Jk_tu_yuan *>(), item);
    QTest::mouseDClick(view.viewport(), Qt::RightButton, Qt::NoModifier, onEdge);
    QCOMPARE(itemSpy.count(), 1);
}

QTEST_MAIN(TestJkTuYuan)
#include "tst_jk_tu_yuan.moc"
