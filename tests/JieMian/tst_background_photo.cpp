#include "jk_chang_jing.h"
#include "jk_shi_tu.h"
#include "photo_warp.h"
#include "program_state.h"
#include "work_area_background.h"

#include <QPainter>
#include <QtTest>

// The photo under the design: drawn by the view at the rectangle it is given,
// with its opacity, hidden on request, never an item of the scene.
class TestBackgroundPhoto : public QObject
{
    Q_OBJECT

private slots:
    void init() { lumitra::resetProgramState(); }

    void drawnAtItsRectangle()
    {
        Jk_chang_jing scene;
        Jk_shi_tu view(&scene);
        view.resize(1200, 600);
        view.fitWorkArea();
        QPixmap photo(650, 650);
        photo.fill(QColor(200, 30, 30));
        const QRectF rect = lumitra::camera::photoSceneRect(400, 400);
        view.setBackgroundPhoto(photo, rect);
        QCOMPARE(view.backgroundPhoto().rect, rect);
        QCOMPARE(scene.items().size(), 0); // background only

        const QImage image = grab(view);
        // Inside the work area.
        QVERIFY(isRed(colourAt(view, image, QPointF(205.5, -205.5))));
        // In the photo but beyond the work area: the photo is not fitted to it.
        QVERIFY(rect.contains(QPointF(-40, -200)));
        QVERIFY(isRed(colourAt(view, image, QPointF(-40, -200))));
        // Beyond the photo: the grey surround.
        const QPointF outside(rect.left() - 20, -200);
        QCOMPARE(colourAt(view, image, outside), QColor(214, 214, 214));
    }

    void opacityAndHide()
    {
        Jk_chang_jing scene;
        Jk_shi_tu view(&scene);
        view.resize(1200, 600);
        view.fitWorkArea();
        QPixmap photo(650, 650);
        photo.fill(QColor(0, 0, 0));
        view.setBackgroundPhoto(photo, lumitra::camera::photoSceneRect(400, 400));
        const QPointF inside(205.5, -205.5); // between grid lines

        QCOMPARE(colourAt(view, grab(view), inside), QColor(0, 0, 0));
        view.setPhotoOpacity(0.5);
        const QColor half = colourAt(view, grab(view), inside);
        QVERIFY2(qAbs(half.red() - 128) <= 3, qPrintable(half.name()));
        view.setPhotoOpacity(7.0); // clamped
        QCOMPARE(view.backgroundPhoto().opacity, 1.0);

        view.setPhotoHidden(true);
        QCOMPARE(colourAt(view, grab(view), inside), QColor(Qt::white));
        view.setPhotoHidden(false);
        view.clearBackgroundPhoto();
        QCOMPARE(colourAt(view, grab(view), inside), QColor(Qt::white));
    }

    void sceneBackgroundWithoutViewPhoto()
    {
        // Without a photo of its own the view shows the scene's stretched one.
        Jk_chang_jing scene;
        Jk_shi_tu view(&scene);
        view.resize(1200, 600);
        view.fitWorkArea();
        QPixmap photo(40, 40);
        photo.fill(QColor(200, 30, 30));
        scene.setBackgroundPixmap(photo);
        const QImage image = grab(view);
        QVERIFY(isRed(colourAt(view, image, QPointF(205.5, -205.5))));
        QCOMPARE(colourAt(view, image, QPointF(-40, -200)), QColor(214, 214, 214));
    }

    void paintedUnderTheGrid()
    {
        // The pure painter: photo between the white area and the grid lines.
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.setWindow(0, -100, 100, 100); // 1 px per mm, area 0..100, -100..0
        BackgroundPhoto photo;
        photo.pixmap = QPixmap(10, 10);
        photo.pixmap.fill(QColor(0, 0, 255));
        photo.rect = QRectF(0, -100, 50, 100);
        paintWorkArea(&painter, QRectF(0, -100, 100, 100), QRectF(0, -100, 100, 100), photo);
        painter.end();
        QCOMPARE(image.pixelColor(25, 55), QColor(0, 0, 255)); // photo
        QCOMPARE(image.pixelColor(75, 55), QColor(Qt::white)); // right of it
        bool gridOnTop = false; // the 10 mm line at x = 20 crosses the photo
        for (int x = 19; x <= 21; ++x)
            gridOnTop = gridOnTop || image.pixelColor(x, 55) == QColor(200, 200, 200);
        QVERIFY(gridOnTop);
    }

private:
    static QImage grab(Jk_shi_tu &view) { return view.viewport()->grab().toImage(); }
    static QColor colourAt(Jk_shi_tu &view, const QImage &image, const QPointF &scenePoint)
    {
        return image.pixelColor(view.mapFromScene(scenePoint));
    }
    static bool isRed(const QColor &c)
    {
        return qAbs(c.red() - 200) < 30 && c.green() < 60 && c.blue() < 60;
    }
};

QTEST_MAIN(TestBackgroundPhoto)
#include "tst_background_photo.moc"
