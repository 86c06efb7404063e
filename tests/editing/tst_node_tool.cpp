// The node tool driven through a real design view with mouse and key events
// in scene millimetres: choosing an item, dragging nodes and control points,
// adding and deleting nodes, straight and curved segments, break and join,
// the menu, and undo back to the exact outline. Also the tool's place among
// the edit controller's tools.
#include "design_pages.h"
#include "edit_controller.h"
#include "editing_test_support.h"
#include "jk_chang_jing.h"
#include "jk_shi_tu.h"
#include "node_path.h"
#include "node_tool.h"
#include "program_state.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QUndoStack>
#include <QtTest>

using namespace lumitra;
using namespace editing_test;

namespace {

// A shown view at 4 px per mm centred on (100, -100) with the node tool on a
// 20 x 10 rectangle at (60, -120) and a curve (a half circle made of two
// cubics) at (100, -100).
struct Canvas
{
    Jk_chang_jing scene;
    Jk_shi_tu view{&scene};
    Jk_tu_yuan *rect = rectItem(60, -120, 20, 10);
    Jk_tu_yuan *curve;
    NodeTool tool;

    Canvas()
    {
        view.resize(900, 700);
        view.show();
        QTest::qWaitForWindowExposed(&view);
        view.setTransform(QTransform::fromScale(4, 4));
        view.centerOn(100, -100);
        QPainterPath c;
        c.moveTo(0, 0);
        c.cubicTo(0, -10, 20, -10, 20, 0);
        c.lineTo(40, 0);
        curve = new Jk_tu_yuan(c, 1);
        curve->setPos(100, -100);
        scene.addItem(rect);
        scene.addItem(curve);
        tool.activate(&scene);
    }
    ~Canvas() { scene.setTool(nullptr); }

    void send(QEvent::Type type, const QPointF &at, Qt::MouseButton button, Qt::MouseButtons held)
    {
        const QPoint p = view.mapFromScene(at);
        QMouseEvent e(type, p, view.viewport()->mapToGlobal(p), button, held, Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &e);
    }
    void press(const QPointF &p, Qt::MouseButton b = Qt::LeftButton)
    {
        send(QEvent::MouseButtonPress, p, b, b);
    }
    void release(const QPointF &p, Qt::MouseButton b = Qt::LeftButton)
    {
        send(QEvent::MouseButtonRelease, p, b, Qt::NoButton);
    }
    void click(const QPointF &p)
    {
        press(p);
        release(p);
    }
    void doubleClick(const QPointF &p)
    {
        click(p);
        send(QEvent::MouseButtonDblClick, p, Qt::LeftButton, Qt::LeftButton);
        release(p);
    }
    void drag(const QPointF &from, const QPointF &to)
    {
        press(from);
        for (int i = 1; i <= 4; ++i)
            send(QEvent::MouseMove, from + (to - from) * i / 4.0, Qt::NoButton, Qt::LeftButton);
        release(to);
    }
    void key(int key)
    {
        QKeyEvent e(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &e);
    }
    QUndoStack *stack() const { return scene.undoStack(); }
};

QPainterPath pathOf(std::initializer_list<QPointF> points, bool close)
{
    QPainterPath p;
    auto it = points.begin();
    p.moveTo(*it);
    for (++it; it != points.end(); ++it)
        p.lineTo(*it);
    if (close)
        p.closeSubpath();
    return p;
}

} // namespace

class TestNodeTool : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }

    void clickChoosesTheItemAndShowsItsNodes()
    {
        Canvas c;
        QCOMPARE(c.tool.item(), nullptr);
        QVERIFY(!c.tool.overlay()->isVisible());
        c.click({70, -120}); // on the rectangle's top edge
        QCOMPARE(c.tool.item(), c.rect);
        QVERIFY(c.rect->isSelected());
        QVERIFY(c.tool.overlay()->isVisible());
        QCOMPARE(c.tool.model().nodeCount(), 4);
        QVERIFY(c.tool.overlay()->boundingRect().contains(QRectF(60, -120, 20, 10)));
        // Another item takes over; a click on nothing lets go.
        c.click({130, -100.2});
        QCOMPARE(c.tool.item(), c.curve);
        QVERIFY(!c.rect->isSelected());
        c.click({10, -10});
        QCOMPARE(c.tool.item(), nullptr);
        QVERIFY(!c.tool.overlay()->isVisible());
        QVERIFY(c.scene.selectedDesignItems().isEmpty());
        // Selecting from outside (the selection tool, select all) is followed.
        c.scene.clearSelection();
        c.rect->setSelected(true);
        QCOMPARE(c.tool.item(), c.rect);
    }

    // Drags: a node (with its handles) and a control point; each one undo
    // step back to the exact outline.
    void dragsAreUndoable_data()
    {
        QTest::addColumn<QPointF>("from");
        QTest::addColumn<QPointF>("to");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QVector<QPointF>>("elements"); // the item's outline after
        // The curve's middle node at item (20, 0) moved by (5, -3): its
        // incoming handle (20, -10) follows to (25, -13).
        QTest::newRow("node") << QPointF(120, -100) << QPointF(125, -103)
                              << QStringLiteral("移动节点")
                              << QVector<QPointF>{{0, 0}, {0, -10}, {25, -13}, {25, -3}, {40, 0}};
        // The first control point (0, -10) dragged to (-4, -12).
        QTest::newRow("control point")
            << QPointF(100, -110) << QPointF(96, -112) << QStringLiteral("移动控制点")
            << QVector<QPointF>{{0, 0}, {-4, -12}, {20, -10}, {20, 0}, {40, 0}};
        // Grabbed a pixel off the node: the node keeps that offset, no jump.
        QTest::newRow("node grabbed off centre")
            << QPointF(140.25, -99.75) << QPointF(140.25, -94.75) << QStringLiteral("移动节点")
            << QVector<QPointF>{{0, 0}, {0, -10}, {20, -10}, {20, 0}, {40, 5}};
    }
    void dragsAreUndoable()
    {
        QFETCH(QPointF, from);
        QFETCH(QPointF, to);
        QFETCH(QString, text);
        QFETCH(QVector<QPointF>, elements);
        Canvas c;
        c.click({130, -100.2});
        QCOMPARE(c.tool.item(), c.curve);
        const QPainterPath before = c.curve->path;
        const int index = c.stack()->index();
        c.drag(from, to);
        QCOMPARE(c.stack()->index(), index + 1);
        QCOMPARE(c.stack()->undoText(), text);
        QCOMPARE(c.curve->path.elementCount(), elements.size());
        for (int i = 0; i < elements.size(); ++i) {
            const QPainterPath::Element e = c.curve->path.elementAt(i);
            QVERIFY2(QLineF(QPointF(e.x, e.y), elements.at(i)).length() < 1e-9,
                     qPrintable(describe(c.curve->path)));
        }
        QVERIFY(programState().unsaved);
        c.stack()->undo();
        QVERIFY2(sameElements(c.curve->path, before), qPrintable(describe(c.curve->path)));
        // The tool shows the outline it came back to.
        QVERIFY(sameElements(c.tool.model().path(), before));
        c.stack()->redo();
        QCOMPARE(c.curve->path.elementCount(), elements.size());
    }

    // An item with a rotation and a scale: the node follows the pointer on the
    // screen, and the outline stays in the item's own coordinates.
    void dragOnATransformedItem()
    {
        Canvas c;
        c.rect->setTransform(QTransform().rotate(90).scale(2, 2));
        // Item (20, 0) -> scaled (40, 0) -> rotated (0, 40) -> scene (60, -80).
        c.click({60 - 10, -120 + 0.1}); // on the edge from item (0,0) to (0,10)
        QCOMPARE(c.tool.item(), c.rect);
        const QPainterPath before = c.rect->path;
        c.drag({60, -80}, {66, -80});
        // Scene (6, 0) back through the rotation and the scale: item (0, -3).
        QVERIFY2(samePath(c.rect->path,
                          pathOf({{0, 0}, {20, -3}, {20, 10}, {0, 10}, {0, 0}}, false), 1e-9),
                 qPrintable(describe(c.rect->path)));
        c.stack()->undo();
        QVERIFY(sameElements(c.rect->path, before));
    }

    void clickWithoutMovingChangesNothing()
    {
        Canvas c;
        c.click({70, -120});
        const int index = c.stack()->index();
        c.click({60, -120});
        QCOMPARE(c.stack()->index(), index);
        QCOMPARE(c.tool.chosenNode(), (NodeRef{0, 0}));
        // The chosen node is drawn filled, the others hollow.
        const QImage shown = c.view.viewport()->grab().toImage();
        const QColor chosen = shown.pixelColor(c.view.mapFromScene(60, -120));
        const QColor other = shown.pixelColor(c.view.mapFromScene(80, -110));
        QVERIFY2(chosen.blue() > 150 && chosen.red() < 80, qPrintable(chosen.name()));
        QCOMPARE(other, QColor(Qt::white));
    }

    void doubleClickAddsAndDeletesNodes()
    {
        Canvas c;
        c.click({70, -120});
        const QPainterPath before = c.rect->path;
        // On the top edge, a quarter along: a node there.
        c.doubleClick({65, -120});
        QCOMPARE(c.stack()->undoText(), QStringLiteral("添加节点"));
        QCOMPARE(c.tool.model().nodeCount(), 5);
        QVERIFY(samePath(c.rect->path,
                         pathOf({{0, 0}, {5, 0}, {20, 0}, {20, 10}, {0, 10}, {0, 0}}, false),
                         1e-9));
        QCOMPARE(c.tool.chosenNode(), (NodeRef{0, 1}));
        // On the corner at (20, 10): deleted.
        c.doubleClick({80, -110});
        QCOMPARE(c.stack()->undoText(), QStringLiteral("删除节点"));
        QVERIFY(samePath(c.rect->path, pathOf({{0, 0}, {5, 0}, {20, 0}, {0, 10}, {0, 0}}, false),
                         1e-9));
        c.stack()->undo();
        c.stack()->undo();
        QVERIFY(sameElements(c.rect->path, before));
    }

    // Keys on the chosen node or segment.
    void keysEditTheChoice_data()
    {
        QTest::addColumn<QPointF>("choose");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("elements");
        QTest::addColumn<bool>("curvedFirst");
        // The curve segment chosen by a click on it, made straight.
        QTest::newRow("straight") << QPointF(110, -107.5) << int(Qt::Key_L)
                                  << QStringLiteral("转为直线") << 3 << false;
        // The line segment made curved (a cubic of the same shape).
        QTest::newRow("curved") << QPointF(130, -100) << int(Qt::Key_C)
                                << QStringLiteral("转为曲线") << 7 << true;
        QTest::newRow("delete node")
            << QPointF(120, -100) << int(Qt::Key_Delete) << QStringLiteral("删除节点") << 4 << true;
        QTest::newRow("backspace") << QPointF(120, -100) << int(Qt::Key_Backspace)
                                   << QStringLiteral("删除节点") << 4 << true;
        // Broken at the middle node: two subpaths.
        QTest::newRow("break") << QPointF(120, -100) << int(Qt::Key_B) << QStringLiteral("断开节点")
                               << 6 << true;
        // An end joined with the other end: closed by a line.
        QTest::newRow("join") << QPointF(140, -100) << int(Qt::Key_J) << QStringLiteral("连接节点")
                              << 6 << true;
    }
    void keysEditTheChoice()
    {
        QFETCH(QPointF, choose);
        QFETCH(int, key);
        QFETCH(QString, text);
        QFETCH(int, elements);
        QFETCH(bool, curvedFirst);
        Canvas c;
        c.click({130, -100.2});
        const QPainterPath before = c.curve->path;
        c.click(choose);
        const int index = c.stack()->index();
        c.key(key);
        QCOMPARE(c.stack()->index(), index + 1);
        QCOMPARE(c.stack()->undoText(), text);
        QCOMPARE(c.curve->path.elementCount(), elements);
        QCOMPARE(c.curve->path.elementAt(1).type == QPainterPath::CurveToElement, curvedFirst);
        if (key == Qt::Key_B)
            QCOMPARE(c.tool.model().subpaths().size(), 2);
        if (key == Qt::Key_J)
            QVERIFY(c.tool.model().subpaths().first().closed);
        c.stack()->undo();
        QVERIFY2(sameElements(c.curve->path, before), qPrintable(describe(c.curve->path)));
    }

    void keysWithoutAChoiceDoNothing_data()
    {
        QTest::addColumn<int>("key");
        for (int k :
             {int(Qt::Key_Delete), int(Qt::Key_L), int(Qt::Key_C), int(Qt::Key_B), int(Qt::Key_J)})
            QTest::newRow(qPrintable(QKeySequence(k).toString())) << k;
    }
    void keysWithoutAChoiceDoNothing()
    {
        QFETCH(int, key);
        Canvas c;
        c.click({130, -100.2});
        c.key(Qt::Key_Escape);
        QVERIFY(!c.tool.chosenNode().isValid());
        const QPainterPath before = c.curve->path;
        c.key(key);
        QCOMPARE(c.stack()->count(), 0);
        QVERIFY(sameElements(c.curve->path, before));
        QCOMPARE(c.scene.designItemCount(), 2); // Delete does not remove the item
    }

    void rightClickMenuOffersWhatTheNodeAllows()
    {
        Canvas c;
        c.click({130, -100.2});
        c.press({120, -100}, Qt::RightButton); // on the middle node
        c.release({120, -100}, Qt::RightButton);
        QMenu *menu = c.tool.menu();
        QVERIFY(menu);
        QTRY_VERIFY(menu->isVisible());
        QCOMPARE(c.tool.chosenNode(), (NodeRef{0, 1}));
        QVERIFY(c.tool.action(NodeTool::DeleteNode)->isEnabled());
        QVERIFY(c.tool.action(NodeTool::BreakNode)->isEnabled());
        QVERIFY(!c.tool.action(NodeTool::JoinEnds)->isEnabled());  // not an end
        QVERIFY(c.tool.action(NodeTool::MakeCurved)->isEnabled()); // the line after it
        QVERIFY(!c.tool.action(NodeTool::MakeStraight)->isEnabled());
        QCOMPARE(menu->actions().size(), int(NodeTool::EditCount));
        menu->actions().at(NodeTool::BreakNode)->trigger();
        QCOMPARE(c.stack()->undoText(), QStringLiteral("断开节点"));
        QCOMPARE(c.tool.model().subpaths().size(), 2);
        menu->close();
    }

    void deactivatingHidesTheNodes()
    {
        Canvas c;
        c.click({70, -120});
        QVERIFY(c.tool.overlay());
        c.scene.setTool(nullptr);
        QCOMPARE(c.tool.overlay(), nullptr);
        QCOMPARE(c.tool.item(), nullptr);
        // Only the design items are left on the scene.
        for (QGraphicsItem *g : c.scene.items())
            QVERIFY(dynamic_cast<Jk_tu_yuan *>(g) || !g->isVisible() || g->zValue() < 1e5);
    }

    // The window's Delete (the edit controller's action) takes the chosen
    // node while the node tool has one, else the selected item.
    void deleteActionTakesTheChosenNode()
    {
        QWidget window;
        auto *pages = new DesignPages(&window);
        EditController edit(pages, &window);
        window.resize(900, 700);
        window.show();
        QTest::qWaitForWindowExposed(&window);
        Jk_shi_tu *view = pages->currentView();
        QVERIFY(view);
        view->setTransform(QTransform::fromScale(4, 4));
        view->centerOn(100, -100);
        Jk_tu_yuan *item = rectItem(90, -110, 20, 10);
        const QPainterPath before = item->path;
        item->setSelected(true);
        pages->currentScene()->addItemsUndoable({item});
        edit.setTool(kNodeToolNumber);
        QCOMPARE(edit.nodeTool()->item(), item);
        const auto click = [view](const QPointF &at) {
            const QPoint p = view->mapFromScene(at);
            for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent e(type, p, view->viewport()->mapToGlobal(p), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
                QApplication::sendEvent(view->viewport(), &e);
            }
        };
        click({110, -110}); // the corner at item (20, 0)
        QCOMPARE(edit.nodeTool()->chosenNode(), (NodeRef{0, 1}));
        edit.action(EditController::Delete)->trigger();
        QCOMPARE(pages->currentScene()->designItemCount(), 1);
        QCOMPARE(item->path.elementCount(), 4);
        QCOMPARE(pages->currentScene()->undoStack()->undoText(), QStringLiteral("删除节点"));
        pages->currentScene()->undoStack()->undo();
        QVERIFY(sameElements(item->path, before));
        // Nothing chosen: the item goes.
        QTest::keyClick(view->viewport(), Qt::Key_Escape);
        QVERIFY(!edit.nodeTool()->chosenNode().isValid());
        edit.action(EditController::Delete)->trigger();
        QCOMPARE(pages->currentScene()->designItemCount(), 0);
    }

    void isToolNineOfTheEditController()
    {
        QWidget window;
        auto *pages = new DesignPages(&window);
        EditController edit(pages, &window);
        QVERIFY(edit.nodeToolAction());
        QCOMPARE(edit.toolAction(kNodeToolNumber), edit.nodeToolAction());
        QVERIFY(!edit.toolActions().contains(edit.nodeToolAction()));
        QCOMPARE(edit.toolActions().size(), 9);
        edit.nodeToolAction()->trigger();
        QCOMPARE(edit.currentTool(), kNodeToolNumber);
        QCOMPARE(pages->currentScene()->tool(), static_cast<SceneTool *>(edit.nodeTool()));
        QVERIFY(edit.nodeToolAction()->isChecked());
        QVERIFY(!edit.toolAction(0)->isChecked());
        edit.toolAction(0)->trigger();
        QVERIFY(!edit.nodeToolAction()->isChecked());
        QCOMPARE(edit.nodeTool()->scene(), nullptr);
        edit.setTool(kNodeToolNumber);
        // Follows the current page.
        edit.setTool(kNodeToolNumber);
        Jk_chang_jing *first = pages->currentScene();
        pages->addPage();
        QCOMPARE(first->tool(), nullptr);
        QCOMPARE(pages->currentScene()->tool(), static_cast<SceneTool *>(edit.nodeTool()));
    }
};

QTEST_MAIN(TestNodeTool)
#include "tst_node_tool.moc"
