// The mode preview dialog: the fit-to-label rule, what each label shows for each mode,
// and the window actions that open it (only for a single selected bitmap) and trace a
// selected bitmap.
#include "colour_layers.h"
#include "image_modes.h"
#include "import_actions.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"
#include "message_box.h"
#include "moshiyulan.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QSignalSpy>
#include <QtTest>

namespace {

// Bounding rectangle of the pixels that are not white.
QRect inkBox(const QImage &img)
{
    QRect box;
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            if ((img.pixel(x, y) & 0xffffff) != 0xffffff)
                box |= QRect(x, y, 1, 1);
    return box;
}

QImage sample()
{
    QImage img(120, 80, QImage::Format_ARGB32);
    img.fill(qRgba(0, 0, 0, 0));
    QPainter p(&img);
    p.fillRect(10, 10, 60, 40, QColor(200, 60, 30));
    p.fillRect(70, 30, 40, 40, QColor(20, 20, 20));
    p.setBrush(QColor(120, 120, 120));
    p.drawEllipse(QPoint(40, 60), 15, 12);
    return img;
}

} // namespace

class TestMoShiYuLan : public QObject
{
    Q_OBJECT

    QStringList m_messages;

private slots:
    void initTestCase()
    {
        qRegisterMetaType<QList<Jk_tu_yuan *>>();
        lumitra::set_message_handler([this](const lumitra::MessageRequest &r) {
            m_messages << r.message;
            return 1;
        });
    }
    void init() { m_messages.clear(); }
    void cleanupTestCase() { lumitra::set_message_handler({}); }
    void fitToLabel_data();
    void fitToLabel();
    void fitToLabelDegenerate();
    void labelsShowEachMode();
    void previewOpensOnlyForOneBitmap_data();
    void previewOpensOnlyForOneBitmap();
    void traceSelectionAnnouncesTheItem();
    void colourLayersOptionIsRemembered();
};

void TestMoShiYuLan::fitToLabel_data()
{
    QTest::addColumn<QSize>("source");
    QTest::addColumn<QSize>("target");
    QTest::addColumn<QRect>("drawn");

    QTest::newRow("small, centred") << QSize(50, 30) << QSize(100, 100) << QRect(25, 35, 50, 30);
    QTest::newRow("odd margins round down")
        << QSize(51, 31) << QSize(100, 100) << QRect(24, 34, 51, 31);
    QTest::newRow("wide: width fills")
        << QSize(400, 100) << QSize(200, 200) << QRect(0, 75, 200, 50);
    QTest::newRow("tall: height fills")
        << QSize(100, 400) << QSize(200, 100) << QRect(87, 0, 25, 100);
    QTest::newRow("height rounded") << QSize(300, 200) << QSize(100, 100) << QRect(0, 16, 100, 67);
    QTest::newRow("only one side too large")
        << QSize(150, 50) << QSize(100, 100) << QRect(0, 33, 100, 33);
}

void TestMoShiYuLan::fitToLabel()
{
    QFETCH(QSize, source);
    QFETCH(QSize, target);
    QFETCH(QRect, drawn);
    QPixmap src(source);
    src.fill(QColor(200, 0, 0));
    const QImage out = MoShiYuLan::fitToLabel(src, target.width(), target.height()).toImage();
    QCOMPARE(out.size(), target);
    QCOMPARE(inkBox(out), drawn);
    QCOMPARE(QColor(out.pixel(drawn.center())), QColor(200, 0, 0));
}

void TestMoShiYuLan::fitToLabelDegenerate()
{
    const QImage blank = MoShiYuLan::fitToLabel(QPixmap(), 30, 20).toImage();
    QCOMPARE(blank.size(), QSize(30, 20));
    QVERIFY(inkBox(blank).isNull());
    QVERIFY(MoShiYuLan::fitToLabel(QPixmap(10, 10), 0, 20).isNull());
}

void TestMoShiYuLan::labelsShowEachMode()
{
    const QImage original = sample();
    const QImage untouched = original.copy();
    MoShiYuLan dialog;
    dialog.show();
    dialog.setImage(original);
    auto *oldLab = dialog.findChild<QLabel *>(QStringLiteral("old_Lab"));
    auto *newLab = dialog.findChild<QLabel *>(QStringLiteral("new_Lab"));
    auto *combo = dialog.findChild<QComboBox *>(QStringLiteral("comboBox"));
    QVERIFY(oldLab && newLab && combo);
    QCOMPARE(combo->count(), 5);
    QCOMPARE(combo->itemText(0), QStringLiteral("黑白"));
    QCOMPARE(combo->itemText(4), QStringLiteral("负向"));
    const int w = oldLab->width(), h = oldLab->height();
    auto fitted = [&](const QImage &img) {
        return MoShiYuLan::fitToLabel(QPixmap::fromImage(img), w, h).toImage();
    };
    QCOMPARE(oldLab->pixmap(Qt::ReturnByValue).toImage(), fitted(original));
    QCOMPARE(newLab->pixmap(Qt::ReturnByValue).toImage(),
             fitted(lumitra::applyImageMode(original, 0)));
    for (int mode = 4; mode >= 0; --mode) {
        combo->setCurrentIndex(mode);
        QCOMPARE(newLab->pixmap(Qt::ReturnByValue).toImage(),
                 fitted(lumitra::applyImageMode(original, mode)));
    }
    dialog.modeChanged(9); // outside the list: the unprocessed image
    QCOMPARE(newLab->pixmap(Qt::ReturnByValue).toImage(), fitted(original));
    // The dialog works on its own copy.
    QCOMPARE(original, untouched);
    QCOMPARE(dialog.image(), untouched);
}

void TestMoShiYuLan::previewOpensOnlyForOneBitmap_data()
{
    QTest::addColumn<int>("bitmaps");
    QTest::addColumn<int>("vectors");
    QTest::addColumn<bool>("opens");
    QTest::newRow("one bitmap") << 1 << 0 << true;
    QTest::newRow("one vector") << 0 << 1 << false;
    QTest::newRow("two bitmaps") << 2 << 0 << false;
    QTest::newRow("bitmap and vector") << 1 << 1 << false;
    QTest::newRow("nothing") << 0 << 0 << false;
}

void TestMoShiYuLan::previewOpensOnlyForOneBitmap()
{
    QFETCH(int, bitmaps);
    QFETCH(int, vectors);
    QFETCH(bool, opens);
    QWidget window;
    ImportActions actions(&window);
    QList<QGraphicsItem *> selected;
    for (int i = 0; i < bitmaps; ++i)
        selected << new Jk_tu_yuan(sample());
    for (int i = 0; i < vectors; ++i)
        selected << new Jk_tu_yuan(1);
    MoShiYuLan *dialog = actions.openModePreview(selected);
    QCOMPARE(dialog != nullptr, opens);
    // Without exactly one bitmap the user is told what to select.
    QCOMPARE(m_messages, opens ? QStringList() : QStringList{QStringLiteral("请先选择一张位图!")});
    if (dialog) {
        QCOMPARE(dialog->parentWidget(), &window);
        QVERIFY(dialog->isVisible());
        QVERIFY(dialog->testAttribute(Qt::WA_DeleteOnClose));
        QCOMPARE(dialog->image(), static_cast<Jk_tu_yuan *>(selected.first())->source_image);
    }
    qDeleteAll(selected);
}

void TestMoShiYuLan::traceSelectionAnnouncesTheItem()
{
    QWidget window;
    ImportActions actions(&window);
    QSignalSpy spy(&actions, &ImportActions::itemsCreated);
    QImage img(50, 50, QImage::Format_ARGB32);
    img.fill(Qt::white);
    QPainter(&img).fillRect(5, 5, 10, 10, Qt::black);
    Jk_tu_yuan bitmap(img);
    Jk_tu_yuan vector(0);
    QVERIFY(!actions.traceSelection({&vector}));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(m_messages, QStringList{QStringLiteral("请先选择一张位图!")});
    QVERIFY(!actions.traceSelection({}));
    QCOMPARE(m_messages.size(), 2);
    // A blank bitmap has nothing to trace, and says so.
    QImage blank(20, 20, QImage::Format_ARGB32);
    blank.fill(Qt::white);
    Jk_tu_yuan empty(blank);
    QVERIFY(!actions.traceSelection({&empty}));
    QCOMPARE(m_messages.last(), QStringLiteral("位图中没有可描摹的轮廓!"));
    m_messages.clear();
    QVERIFY(actions.traceSelection({&bitmap}));
    QCOMPARE(spy.count(), 1);
    const auto items = spy.takeFirst().at(0).value<QList<Jk_tu_yuan *>>();
    QCOMPARE(items.size(), 1);
    QVERIFY(!items.first()->is_bitmap);
    qDeleteAll(items);

    // Wired as the window does it: the traced item lands in the scene through the undo stack.
    Jk_chang_jing scene;
    connect(&actions, &ImportActions::itemsCreated, &scene, &Jk_chang_jing::addItemsUndoable);
    QVERIFY(actions.traceSelection({&bitmap}));
    QCOMPARE(scene.designItemCount(), 1);
    QVERIFY(m_messages.isEmpty());
    QVERIFY(!scene.designItems().first()->is_bitmap);
}

QTEST_MAIN(TestMoShiYuLan)
void TestMoShiYuLan::colourLayersOptionIsRemembered()
{
    lumitra::setColourLayersEnabled(false);
    QWidget window;
    {
        ImportActions actions(&window);
        QAction *option = actions.colourLayersAction();
        QCOMPARE(actions.actions(), QList<QAction *>{option});
        QVERIFY(option->isCheckable());
        QVERIFY(!option->isChecked());
        QCOMPARE(option->text(), QStringLiteral("按颜色分图层"));
        option->trigger();
        QVERIFY(lumitra::colourLayersEnabled());
    }
    // A new window starts with the remembered choice.
    ImportActions again(&window);
    QVERIFY(again.colourLayersAction()->isChecked());
    again.colourLayersAction()->trigger();
    QVERIFY(!lumitra::colourLayersEnabled());
}

#include "tst_moshiyulan.moc"
