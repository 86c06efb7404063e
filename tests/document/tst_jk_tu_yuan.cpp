#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "program_state.h"

#include <QGraphicsView>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using lumitra::programState;

static QImage render(QGraphicsScene &scene)
{
    QImage image(120, 120, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    scene.render(&painter, QRectF(0, 0, 120, 120), QRectF(-10, -10, 120, 120));
    return image;
}

static QPainterPath rectPath(double w, double h)
{
    QPainterPath p;
    p.addRect(0, 0, w, h);
    return p;
}

// The graphic item: constructors and placement, bounds, picking, painting by
// layer record, rotation.
class TestJkTuYuan : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        lumitra::resetProgramState();
        LayerList::instance().clear();
    }

    void shapeConstructorCentres_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("shape");
        QTest::addColumn<QPointF>("pos");
        // pos = (width/2 - 50, height/2 - 50 - height), integer halves of the area.
        QTest::newRow("square 400x400") << 400 << 400 << 0 << QPointF(150, -250);
        QTest::newRow("triangle 400x400") << 400 << 400 << 2 << QPointF(150, -250);
        QTest::newRow("square 300x181") << 300 << 181 << 0 << QPointF(100, -141);
        QTest::newRow("circle 301x99") << 301 << 99 << 1 << QPointF(100, -100);
    }
    void shapeConstructorCentres()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(int, shape);
        QFETCH(QPointF, pos);
        programState().width = width;
        programState().height = height;
        programState().currentLayer = 7;
        Jk_tu_yuan item(shape);
        QCOMPARE(item.path.boundingRect(), QRectF(0, 0, 100, 100));
        QCOMPARE(item.pos(), pos);
        QCOMPARE(item.layer_id, 7);
        QVERIFY(item.isSelected());
        QVERIFY(!item.is_bitmap);
        QCOMPARE(int(item.flags()), 6); // selectable and focusable, not movable
        QVERIFY(item.acceptHoverEvents());
    }

    void centringUsesSinglePrecision()
    {
        programState().width = 401; // 401 / 2 == 200 in integers
        programState().height = 399;
        Jk_tu_yuan item(rectPath(0.1, 33.3), 0);
        QCOMPARE(item.pos().x(), double(200.0f - 0.1f * 0.5f));
        QCOMPARE(item.pos().y(), double(199.0f - 33.3f * 0.5f - 399.0f));
        QVERIFY(item.pos().x() != 200.0 - 0.1 * 0.5); // the double sum differs
    }

    void bitmapSizeFollowsPixels()
    {
        QImage image(1000, 500, QImage::Format_ARGB32);
        image.fill(Qt::gray);
        Jk_tu_yuan item(image);
        QVERIFY(item.is_bitmap);
        QCOMPARE(item.path.boundingRect().topLeft(), QPointF(0, 0));
        QVERIFY(qFuzzyCompare(item.path.boundingRect().width(), 254));
        QVERIFY(qFuzzyCompare(item.path.boundingRect().height(), 127));
        QVERIFY(item.isSelected());
        QCOMPARE(item.display_image, image);
        QCOMPARE(item.source_image, image);
    }

    void fileLoadGreysOnlyVisiblePixels_data()
    {
        QTest::addColumn<QRgb>("stored");
        QTest::addColumn<QRgb>("loaded");
        QTest::newRow("transparent keeps colour") << qRgba(10, 200, 30, 0) << qRgba(10, 200, 30, 0);
        QTest::newRow("opaque red") << qRgba(255, 0, 0, 255) << qRgba(85, 85, 85, 255);
        QTest::newRow("half alpha") << qRgba(30, 60, 90, 128) << qRgba(60, 60, 60, 128);
        QTest::newRow("integer division") << qRgba(1, 1, 2, 255) << qRgba(1, 1, 1, 255);
        QTest::newRow("alpha one") << qRgba(255, 255, 254, 1) << qRgba(254, 254, 254, 1);
    }
    void fileLoadGreysOnlyVisiblePixels()
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

    void pixmapBecomesGrey8()
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

    void pathConstructorPlacement_data()
    {
        QTest::addColumn<int>("keepPlace");
        QTest::addColumn<QPointF>("pos");
        QTest::addColumn<bool>("selected");
        QTest::newRow("centred") << 0 << QPointF(190, -205) << true;
        QTest::newRow("kept at origin") << 1 << QPointF(0, 0) << false;
        QTest::newRow("any other flag") << 5 << QPointF(0, 0) << false;
    }
    void pathConstructorPlacement()
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

    void copyConstructorCopiesState()
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
        QVERIFY(copy.is_bitmap);
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

    void boundsKeepTheMinimumAndFollowSetPath()
    {
        QPainterPath vertical(QPointF(5, 0));
        vertical.lineTo(5, 20);
        QCOMPARE(Jk_tu_yuan(vertical, 1).boundingRect(), QRectF(5, 0, 0.3, 20));
        QPainterPath diagonal(QPointF(0, 0));
        diagonal.lineTo(3, 4);
        QCOMPARE(Jk_tu_yuan(diagonal, 1).boundingRect(), QRectF(0, 0, 3, 4));

        QGraphicsScene scene;
        auto *item = new Jk_tu_yuan(0);
        scene.addItem(item);
        const QPointF at = item->pos();
        item->set_path(rectPath(300, 10));
        QCOMPARE(item->path, rectPath(300, 10));
        QCOMPARE(item->sceneBoundingRect(), QRectF(at, QSizeF(300, 10)));
        // The scene index knows the new geometry.
        QVERIFY(scene.items(at + QPointF(250, 5)).contains(item));
    }

    void clickSelectsNearStrokeOnly_data()
    {
        QTest::addColumn<QPointF>("scenePoint");
        QTest::addColumn<bool>("selected");
        // A 50 mm horizontal line at scene y = -200 from x 100 to 150: the pick
        // area is its 5 mm stroke cut to the 0.3 mm high bounding rectangle.
        QTest::newRow("on the line") << QPointF(120, -199.85) << true;
        QTest::newRow("near its start") << QPointF(100.5, -199.8) << true;
        QTest::newRow("1.5 mm below") << QPointF(120, -198.5) << false;
        QTest::newRow("beyond the end") << QPointF(160, -199.85) << false;
    }
    void clickSelectsNearStrokeOnly()
    {
        QFETCH(QPointF, scenePoint);
        QFETCH(bool, selected);
        QGraphicsScene scene;
        QPainterPath line(QPointF(0, 0));
        line.lineTo(50, 0);
        auto *item = new Jk_tu_yuan(line, 1);
        item->setPos(100, -200);
        scene.addItem(item);
        QCOMPARE(item->boundingRect(), QRectF(0, 0, 50, 0.3));
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

    void paintByLayerRecord_data()
    {
        QTest::addColumn<bool>("haveRecord");
        QTest::addColumn<int>("moshi");
        QTest::addColumn<int>("layer");
        QTest::addColumn<int>("current");
        QTest::addColumn<QRgb>("edge");
        QTest::addColumn<QRgb>("centre");
        const QRgb white = qRgb(255, 255, 255);
        QTest::newRow("no layers: current colour")
            << false << 0 << 2 << 1 << qRgb(0, 0, 255) << white;
        QTest::newRow("line mode") << true << 0 << 2 << 1 << qRgb(255, 0, 0) << white;
        QTest::newRow("fill mode") << true << 1 << 2 << 1 << qRgb(255, 0, 0) << qRgb(255, 0, 0);
        QTest::newRow("cross fill") << true << 2 << 9 << 0 << qRgb(0, 0, 160) << qRgb(0, 0, 160);
    }
    void paintByLayerRecord()
    {
        QFETCH(bool, haveRecord);
        QFETCH(int, moshi);
        QFETCH(int, layer);
        QFETCH(int, current);
        QFETCH(QRgb, edge);
        QFETCH(QRgb, centre);
        if (haveRecord) {
            auto *record = new TuCeng(layer, false);
            record->moshi = moshi;
            LayerList::instance().append(record);
        }
        programState().currentLayer = current;
        QGraphicsScene scene;
        auto *item = new Jk_tu_yuan(rectPath(100, 100), 1);
        item->layer_id = layer;
        item->setCacheMode(QGraphicsItem::NoCache);
        scene.addItem(item);
        const QImage image = render(scene);
        QCOMPARE(QString::number(image.pixel(10, 60), 16), QString::number(edge, 16));
        QCOMPARE(QString::number(image.pixel(60, 60), 16), QString::number(centre, 16));
        QCOMPARE(item->filled, centre != qRgb(255, 255, 255));
    }

    void hiddenLayerDeselectsAndDrawsNothing()
    {
        auto *record = new TuCeng(3, false);
        record->moshi = FillMode;
        record->xianshi = false;
        LayerList::instance().append(record);
        auto *bitmapRecord = new TuCeng(3, true);
        bitmapRecord->xianshi = false;
        LayerList::instance().append(bitmapRecord);
        Jk_chang_jing scene;
        auto *item = new Jk_tu_yuan(rectPath(100, 100), 1);
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
        Jk_chang_jing empty;
        QCOMPARE(render(scene), render(empty));
        QVERIFY(!item->isSelected());
        QVERIFY(!bitmap->isSelected());
        QVERIFY(item->isOnHiddenLayer());

        record->xianshi = true;
        scene.repaintItems(); // cached drawings of the item are dropped
        QCOMPARE(render(scene).pixel(60, 60), layerColor(3).rgb());
    }

    void rotationTurnsGeometryAndAccumulates_data()
    {
        QTest::addColumn<QList<double>>("angles");
        QTest::addColumn<double>("jiaoDu");
        QTest::newRow("90 then 300") << QList<double>{90, 300} << 390.0;
        QTest::newRow("never normalised") << QList<double>{180, 180, 180} << 540.0;
        QTest::newRow("negative") << QList<double>{-45, 10} << -35.0;
    }
    void rotationTurnsGeometryAndAccumulates()
    {
        QFETCH(QList<double>, angles);
        QFETCH(double, jiaoDu);
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
        double sum = 0;
        for (double angle : angles) {
            Jk_tu_yuan::rotateItems({a, b}, angle, QPointF(200, -200));
            sum += angle;
        }
        QCOMPARE(a->jiao_du, jiaoDu);
        QCOMPARE(b->jiao_du, jiaoDu);
        QTransform turn;
        turn.translate(200, -200).rotate(sum).translate(-200, 200);
        for (auto [item, before] : {std::pair(a, beforeA), std::pair(b, beforeB)}) {
            const QPainterPath expected = turn.map(before);
            for (int i = 0; i < expected.elementCount(); ++i)
                QVERIFY(QLineF(item->scenePath().elementAt(i), expected.elementAt(i)).length()
                        < 1e-9);
        }
        // The rotation lives in each item's own transform, the outline is untouched.
        QCOMPARE(a->path, beforeA.translated(-150, 250));
    }

    void doubleClickAsksForTextDialog()
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
};

QTEST_MAIN(TestJkTuYuan)
#include "tst_jk_tu_yuan.moc"
