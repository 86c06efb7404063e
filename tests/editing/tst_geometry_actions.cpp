// The offset and boolean actions on real design pages: enabled by the
// selection, the offset dialog driven by its widgets, subtract cutting from
// the bottom-most item, every step undone to the exact previous outlines.
#include "design_pages.h"
#include "editing_test_support.h"
#include "geometry_actions.h"
#include "jk_chang_jing.h"
#include "message_box.h"
#include "offset_dialog.h"
#include "program_state.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QPushButton>
#include <QRadioButton>
#include <QUndoStack>
#include <QtTest>

using namespace lumitra;
using namespace editing_test;

Q_DECLARE_METATYPE(lumitra::BooleanOperation)

namespace {

template<typename T> T *child(QObject *parent, const char *name)
{
    T *w = parent->findChild<T *>(QString::fromLatin1(name));
    if (!w)
        qFatal("no child %s", name);
    return w;
}

// A click on the box itself (the widget may be wider than its box and text).
void clickBox(QAbstractButton *button)
{
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(6, button->height() / 2));
}

struct Window
{
    QWidget window;
    DesignPages *pages = new DesignPages(&window);
    GeometryActions geometry{pages, &window};

    Jk_chang_jing *scene() const { return pages->currentScene(); }
    QUndoStack *stack() const { return scene()->undoStack(); }
    QList<Jk_tu_yuan *> add(const QList<Jk_tu_yuan *> &items)
    {
        for (Jk_tu_yuan *i : items)
            i->setSelected(true);
        scene()->addItemsUndoable(items);
        return items;
    }
};

} // namespace

class TestGeometryActions : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        resetProgramState();
        set_message_handler([](const MessageRequest &) { return 1; });
    }
    void cleanup() { set_message_handler({}); }

    void actionsFollowTheSelection();
    void offsetDialogOffsetsTheSelection_data();
    void offsetDialogOffsetsTheSelection();
    void cancelledDialogChangesNothing();
    void booleanActions_data();
    void booleanActions();
};

void TestGeometryActions::actionsFollowTheSelection()
{
    Window w;
    QCOMPARE(w.geometry.actions().size(), int(GeometryActions::ActionCount));
    for (QAction *a : w.geometry.actions()) {
        QVERIFY(w.window.actions().contains(a));
        QVERIFY(!a->isEnabled());
    }
    w.add({rectItem(0, -10, 5, 5)});
    QCoreApplication::processEvents();
    QVERIFY(w.geometry.action(GeometryActions::Offset)->isEnabled());
    QVERIFY(w.geometry.action(GeometryActions::Weld)->isEnabled());
    QVERIFY(!w.geometry.action(GeometryActions::Subtract)->isEnabled());
    w.add({rectItem(3, -10, 5, 5)});
    for (Jk_tu_yuan *item : w.scene()->designItems())
        item->setSelected(true);
    QCoreApplication::processEvents();
    for (QAction *a : w.geometry.actions())
        QVERIFY(a->isEnabled());
    // Another page: its own (empty) selection.
    w.pages->addPage();
    QCoreApplication::processEvents();
    QVERIFY(!w.geometry.action(GeometryActions::Weld)->isEnabled());
}

void TestGeometryActions::offsetDialogOffsetsTheSelection_data()
{
    QTest::addColumn<QString>("distance");
    QTest::addColumn<bool>("inward");
    QTest::addColumn<int>("corners");
    QTest::addColumn<bool>("keep");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<int>("items");

    QTest::newRow("out, mitre") << "2" << false << 1 << false << QSizeF(24, 14) << 1;
    QTest::newRow("in, round") << "1.5" << true << 0 << false << QSizeF(17, 7) << 1;
    QTest::newRow("out, keep") << "0.5" << false << 2 << true << QSizeF(21, 11) << 2;
}

void TestGeometryActions::offsetDialogOffsetsTheSelection()
{
    QFETCH(QString, distance);
    QFETCH(bool, inward);
    QFETCH(int, corners);
    QFETCH(bool, keep);
    QFETCH(QSizeF, size);
    QFETCH(int, items);
    Window w;
    Jk_tu_yuan *item = w.add({rectItem(10, -40, 20, 10)}).first();
    const QPainterPath before = item->path;
    const int steps = w.stack()->count();

    w.geometry.action(GeometryActions::Offset)->trigger();
    OffsetDialog *dialog = w.geometry.offsetDialog();
    QVERIFY(dialog && dialog->isVisible());
    auto *box = child<QDoubleSpinBox>(dialog, "juli_Box");
    box->selectAll();
    QTest::keyClicks(box, distance);
    if (inward)
        clickBox(child<QRadioButton>(dialog, "xiangnei_Btn"));
    child<QComboBox>(dialog, "guaijiao_Box")->setCurrentIndex(corners);
    if (keep)
        clickBox(child<QCheckBox>(dialog, "baoliu_Box"));
    QTest::mouseClick(child<QPushButton>(dialog, "confirm_Btn"), Qt::LeftButton);

    QCOMPARE(w.stack()->count(), steps + 1);
    const QList<Jk_tu_yuan *> now = w.scene()->designItems();
    QCOMPARE(now.size(), items);
    const Jk_tu_yuan *result = keep ? w.scene()->selectedDesignItems().value(0) : item;
    QVERIFY(result && (!keep || result != item));
    const QSizeF got = result->scenePath().boundingRect().size();
    QVERIFY2(std::fabs(got.width() - size.width()) < 1e-3
                 && std::fabs(got.height() - size.height()) < 1e-3,
             qPrintable(QStringLiteral("%1 x %2").arg(got.width()).arg(got.height())));

    w.stack()->undo();
    QCOMPARE(w.scene()->designItems(), QList<Jk_tu_yuan *>{item});
    QVERIFY(samePath(item->path, before, 0));

    // The dialog opens again with the settings last used.
    item->setSelected(true);
    w.geometry.openOffsetDialog();
    QCOMPARE(child<QDoubleSpinBox>(w.geometry.offsetDialog(), "juli_Box")->value(),
             distance.toDouble());
    QCOMPARE(w.geometry.offsetDialog()->settings().outward, !inward);
    w.geometry.offsetDialog()->reject();
}

void TestGeometryActions::cancelledDialogChangesNothing()
{
    Window w;
    w.add({rectItem(10, -40, 20, 10)});
    const int steps = w.stack()->count();
    w.geometry.openOffsetDialog();
    QTest::mouseClick(child<QPushButton>(w.geometry.offsetDialog(), "close_Btn"), Qt::LeftButton);
    QCOMPARE(w.stack()->count(), steps);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!w.geometry.offsetDialog()); // closed and gone
    w.scene()->clearSelection();
    w.geometry.openOffsetDialog(); // nothing selected: no dialog
    QVERIFY(!w.geometry.offsetDialog());
}

void TestGeometryActions::booleanActions_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<QRectF>("bounds"); // scene bounds of the result

    // Bottom: 20 x 20 at (0, -20); top: 20 x 20 at (10, -30).
    QTest::newRow("weld") << int(GeometryActions::Weld) << QRectF(0, -30, 30, 30);
    QTest::newRow("subtract") << int(GeometryActions::Subtract) << QRectF(0, -20, 20, 20);
    QTest::newRow("intersect") << int(GeometryActions::Intersect) << QRectF(10, -20, 10, 10);
    QTest::newRow("exclude") << int(GeometryActions::Exclude) << QRectF(0, -30, 30, 30);
}

void TestGeometryActions::booleanActions()
{
    QFETCH(int, action);
    QFETCH(QRectF, bounds);
    Window w;
    Jk_tu_yuan *bottom = w.add({rectItem(0, -20, 20, 20)}).first();
    bottom->layer_id = 4;
    Jk_tu_yuan *top = w.add({rectItem(10, -30, 20, 20)}).first();
    bottom->setSelected(true);
    const QVector<QPainterPath> before = scenePaths({bottom, top});
    QCoreApplication::processEvents();

    w.geometry.action(GeometryActions::Action(action))->trigger();
    const QList<Jk_tu_yuan *> now = w.scene()->designItems();
    QCOMPARE(now.size(), 1);
    QCOMPARE(now.first()->layer_id, 4);
    QVERIFY(sameRect(now.first()->scenePath().boundingRect(), bounds, 1e-6));
    if (action == GeometryActions::Subtract) // the notch the top square cut
        QVERIFY(!now.first()->scenePath().contains(QPointF(15, -15)));

    w.stack()->undo();
    QCOMPARE(w.scene()->designItems().size(), 2);
    QVERIFY(samePaths(scenePaths({bottom, top}), before, 0));
    QVERIFY(samePath(bottom->path, before[0].translated(0, 20), 0));
}

QTEST_MAIN(TestGeometryActions)
#include "tst_geometry_actions.moc"
