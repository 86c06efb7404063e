// The node model of outlines and its undoable edits: reading nodes and control
// points from a path, each edit's geometry, and undo back to the exact path.
#include "editing_test_support.h"
#include "jk_chang_jing.h"
#include "node_commands.h"
#include "node_path.h"
#include "program_state.h"

#include <QUndoStack>
#include <QtTest>
#include <functional>

using namespace lumitra;
using namespace editing_test;

using Edit = std::function<bool(lumitra::NodePath &)>;
Q_DECLARE_METATYPE(Edit)
Q_DECLARE_METATYPE(QPainterPath)

namespace {

QPainterPath rectPath()
{
    QPainterPath p;
    p.addRect(0, 0, 20, 10); // nodes (0,0) (20,0) (20,10) (0,10), closed
    return p;
}

QPainterPath openCurve()
{
    QPainterPath p;
    p.moveTo(0, 0);
    p.cubicTo(0, 10, 30, 10, 30, 0);
    p.lineTo(40, 0);
    p.lineTo(40, 20);
    return p;
}

QPainterPath twoLines()
{
    QPainterPath p;
    p.moveTo(0, 0);
    p.lineTo(10, 0);
    p.moveTo(30, 0);
    p.lineTo(20, 0);
    return p;
}

QPainterPath circlePath()
{
    QPainterPath p;
    p.addEllipse(0, 0, 20, 20);
    return p;
}

// Largest distance from points sampled on `a` to the outline `b` (and back):
// for shapes that must not change.
double outlineGap(const QPainterPath &a, const QPainterPath &b)
{
    double worst = 0.0;
    for (const auto &pair : {std::make_pair(a, b), std::make_pair(b, a)}) {
        const QPainterPath &from = pair.first;
        const NodePath to(pair.second);
        for (int i = 0; i <= 400; ++i) {
            const QPointF p = from.pointAtPercent(i / 400.0);
            worst = std::max(worst, to.segmentAt(p, 1e9).distance);
        }
    }
    return worst;
}

} // namespace

class TestNodePath : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetProgramState(); }

    void readsNodesAndWritesTheSamePath_data()
    {
        QTest::addColumn<QPainterPath>("path");
        QTest::addColumn<int>("subpaths");
        QTest::addColumn<int>("nodes");
        QTest::addColumn<bool>("firstClosed");
        QTest::newRow("rectangle") << rectPath() << 1 << 4 << true;
        QTest::newRow("circle") << circlePath() << 1 << 4 << true;
        QTest::newRow("open curve and lines") << openCurve() << 1 << 4 << false;
        QTest::newRow("two open lines") << twoLines() << 2 << 4 << false;
        QPainterPath text;
        text.addText(0, 0, QFont(QStringLiteral("Sans"), 20), QStringLiteral("Bo"));
        QTest::newRow("text outline") << text << -1 << -1 << true;
    }
    void readsNodesAndWritesTheSamePath()
    {
        QFETCH(QPainterPath, path);
        QFETCH(int, subpaths);
        QFETCH(int, nodes);
        QFETCH(bool, firstClosed);
        const NodePath model(path);
        if (subpaths >= 0) {
            QCOMPARE(model.subpaths().size(), subpaths);
            QCOMPARE(model.nodeCount(), nodes);
        }
        QVERIFY(!model.subpaths().isEmpty());
        QCOMPARE(model.subpaths().first().closed, firstClosed);
        QVERIFY2(sameElements(model.path(), path), qPrintable(describe(model.path())));
    }

    void circleHasFourCurvedSegments()
    {
        const NodePath model(circlePath());
        const NodeSubpath &s = model.subpaths().first();
        QCOMPARE(s.segmentCount(), 4);
        for (const NodeSegment &seg : s.segments)
            QVERIFY(seg.curve);
        QCOMPARE(model.nodePos({0, 0}), QPointF(20, 10));
    }

    // Each edit: what it does to the outline, checked on the elements.
    void edits_data()
    {
        QTest::addColumn<QPainterPath>("before");
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<QPainterPath>("expected");

        {
            QPainterPath e;
            e.moveTo(0, 0);
            e.lineTo(25, 5);
            e.lineTo(20, 10);
            e.lineTo(0, 10);
            e.lineTo(0, 0);
            QTest::newRow("move a corner") << rectPath() << Edit([](NodePath &m) {
                return m.moveNode({0, 1}, {25, 5});
            }) << e;
        }
        {
            // The curve's first control point follows its start node.
            QPainterPath e;
            e.moveTo(5, 5);
            e.cubicTo(5, 15, 30, 10, 30, 0);
            e.lineTo(40, 0);
            e.lineTo(40, 20);
            QTest::newRow("move a node, its handle follows")
                << openCurve() << Edit([](NodePath &m) {
                       return m.moveNode({0, 0}, {5, 5});
                   })
                << e;
        }
        {
            // The end node of the curve: its c2 follows, the line after it starts there.
            QPainterPath e;
            e.moveTo(0, 0);
            e.cubicTo(0, 10, 32, 13, 32, 3);
            e.lineTo(40, 0);
            e.lineTo(40, 20);
            QTest::newRow("move a node between a curve and a line")
                << openCurve() << Edit([](NodePath &m) {
                       return m.moveNode({0, 1}, {32, 3});
                   })
                << e;
        }
        {
            QPainterPath e;
            e.moveTo(0, 0);
            e.cubicTo(-5, 20, 30, 10, 30, 0);
            e.lineTo(40, 0);
            e.lineTo(40, 20);
            QTest::newRow("move a control point") << openCurve() << Edit([](NodePath &m) {
                return m.moveControl({0, 0, 0}, {-5, 20});
            }) << e;
        }
        {
            QPainterPath e;
            e.moveTo(0, 0);
            e.lineTo(5, 0);
            e.lineTo(20, 0);
            e.lineTo(20, 10);
            e.lineTo(0, 10);
            e.lineTo(0, 0);
            QTest::newRow("add a node on a line")
                << rectPath() << Edit([](NodePath &m) { return m.insertNode(0, 0, 0.25); }) << e;
        }
        {
            // de Casteljau at 0.5 of (0,0) (0,10) (30,10) (30,0).
            QPainterPath e;
            e.moveTo(0, 0);
            e.cubicTo(0, 5, 7.5, 7.5, 15, 7.5);
            e.cubicTo(22.5, 7.5, 30, 5, 30, 0);
            e.lineTo(40, 0);
            e.lineTo(40, 20);
            QTest::newRow("add a node on a curve")
                << openCurve() << Edit([](NodePath &m) { return m.insertNode(0, 0, 0.5); }) << e;
        }
        {
            QPainterPath e;
            e.moveTo(0, 0);
            e.lineTo(20, 10);
            e.lineTo(0, 10);
            e.lineTo(0, 0);
            QTest::newRow("delete a corner") << rectPath() << Edit([](NodePath &m) {
                return m.deleteNode({0, 1});
            }) << e;
        }
        {
            QPainterPath e;
            e.moveTo(20, 0);
            e.lineTo(20, 10);
            e.lineTo(0, 10);
            e.lineTo(20, 0);
            QTest::newRow("delete the first node of a closed path")
                << rectPath() << Edit([](NodePath &m) {
                       return m.deleteNode({0, 0});
                   })
                << e;
        }
        {
            // The curve and the line after it become one curve keeping the outer handles.
            QPainterPath e;
            e.moveTo(0, 0);
            e.cubicTo(0, 10, 40, 0, 40, 0);
            e.lineTo(40, 20);
            QTest::newRow("delete a node between a curve and a line")
                << openCurve() << Edit([](NodePath &m) {
                       return m.deleteNode({0, 1});
                   })
                << e;
        }
        {
            QPainterPath e;
            e.moveTo(0, 0);
            e.cubicTo(0, 10, 30, 10, 30, 0);
            e.lineTo(40, 0);
            QTest::newRow("delete an end") << openCurve() << Edit([](NodePath &m) {
                return m.deleteNode({0, 3});
            }) << e;
        }
        {
            QPainterPath e;
            e.moveTo(30, 0);
            e.lineTo(20, 0);
            QTest::newRow("deleting an end of a two-node line removes it")
                << twoLines() << Edit([](NodePath &m) {
                       return m.deleteNode({0, 0});
                   })
                << e;
        }
        {
            QPainterPath e;
            e.moveTo(0, 0);
            e.lineTo(30, 0);
            e.lineTo(40, 0);
            e.lineTo(40, 20);
            QTest::newRow("curve made straight")
                << openCurve() << Edit([](NodePath &m) { return m.setSegmentCurved(0, 0, false); })
                << e;
        }
        {
            QPainterPath e;
            e.moveTo(0, 0);
            e.cubicTo(QPointF(20.0 / 3, 0), QPointF(40.0 / 3, 0), QPointF(20, 0));
            e.lineTo(20, 10);
            e.lineTo(0, 10);
            e.lineTo(0, 0);
            QTest::newRow("line made curved, same shape")
                << rectPath() << Edit([](NodePath &m) { return m.setSegmentCurved(0, 0, true); })
                << e;
        }
        {
            QPainterPath e;
            e.moveTo(20, 10);
            e.lineTo(0, 10);
            e.lineTo(0, 0);
            e.lineTo(20, 0);
            e.lineTo(20, 10);
            QTest::newRow("break a closed path") << rectPath() << Edit([](NodePath &m) {
                return m.breakAt({0, 2});
            }) << e;
        }
        {
            QPainterPath e;
            e.moveTo(0, 0);
            e.cubicTo(0, 10, 30, 10, 30, 0);
            e.lineTo(40, 0);
            e.moveTo(40, 0);
            e.lineTo(40, 20);
            QTest::newRow("break an open path") << openCurve() << Edit([](NodePath &m) {
                return m.breakAt({0, 2});
            }) << e;
        }
        {
            // Ends 10 mm apart: a straight segment joins them; the second line
            // is turned round so that its far end ends the result.
            QPainterPath e;
            e.moveTo(0, 0);
            e.lineTo(10, 0);
            e.lineTo(20, 0);
            e.lineTo(30, 0);
            QTest::newRow("join two lines") << twoLines() << Edit([](NodePath &m) {
                return m.join({0, 1}, {1, 1});
            }) << e;
        }
        {
            QPainterPath e;
            e.moveTo(0, 0);
            e.cubicTo(0, 10, 30, 10, 30, 0);
            e.lineTo(40, 0);
            e.lineTo(40, 20);
            e.lineTo(0, 0);
            QTest::newRow("join the ends of one path closes it")
                << openCurve() << Edit([](NodePath &m) {
                       return m.join({0, 0}, {0, 3});
                   })
                << e;
        }
        {
            // Broken and joined again at the same place: the rectangle is back.
            QPainterPath e;
            e.moveTo(20, 10);
            e.lineTo(0, 10);
            e.lineTo(0, 0);
            e.lineTo(20, 0);
            e.lineTo(20, 10);
            QTest::newRow("break then join at one place") << rectPath() << Edit([](NodePath &m) {
                return m.breakAt({0, 2}) && m.join({0, 0}, {0, 4}) && m.subpaths().first().closed
                       && m.nodeCount() == 4;
            }) << e;
        }
    }
    void edits()
    {
        QFETCH(QPainterPath, before);
        QFETCH(Edit, edit);
        QFETCH(QPainterPath, expected);
        NodePath model(before);
        QVERIFY(edit(model));
        QVERIFY2(samePath(model.path(), expected, 1e-9),
                 qPrintable(describe(model.path()) + QStringLiteral(" != ") + describe(expected)));
    }

    void refusedEdits_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::newRow("break at an end") << Edit([](NodePath &m) { return m.breakAt({0, 0}); });
        QTest::newRow("join an inner node") << Edit([](NodePath &m) {
            return m.join({0, 1}, {0, 3});
        });
        QTest::newRow("join a node with itself") << Edit([](NodePath &m) {
            return m.join({0, 3}, {0, 3});
        });
        QTest::newRow("add a node at t = 1")
            << Edit([](NodePath &m) { return m.insertNode(0, 0, 1.0); });
        QTest::newRow("no such node") << Edit([](NodePath &m) { return m.deleteNode({0, 9}); });
        QTest::newRow("control point of a line") << Edit([](NodePath &m) {
            return m.moveControl({0, 1, 0}, {1, 1});
        });
        QTest::newRow("straight line made straight")
            << Edit([](NodePath &m) { return m.setSegmentCurved(0, 1, false); });
    }
    void refusedEdits()
    {
        QFETCH(Edit, edit);
        NodePath model(openCurve());
        QVERIFY(!edit(model));
        QVERIFY(sameElements(model.path(), openCurve()));
    }

    // Adding a node anywhere on a curve keeps the shape.
    void addingNodesKeepsTheShape_data()
    {
        QTest::addColumn<double>("t");
        for (double t : {0.1, 0.33, 0.5, 0.9})
            QTest::newRow(qPrintable(QString::number(t))) << t;
    }
    void addingNodesKeepsTheShape()
    {
        QFETCH(double, t);
        NodePath model(circlePath());
        for (int segment = 3; segment >= 0; --segment)
            QVERIFY(model.insertNode(0, segment, t));
        QCOMPARE(model.nodeCount(), 8);
        QVERIFY(outlineGap(model.path(), circlePath()) < 1e-6);
    }

    // The first node of a closed outline is also where its last segment ends:
    // both move, and the handles at its two sides with it.
    void movingTheFirstNodeOfAClosedOutline_data()
    {
        QTest::addColumn<QPainterPath>("path");
        QTest::newRow("rectangle") << rectPath();
        QTest::newRow("circle") << circlePath();
    }
    void movingTheFirstNodeOfAClosedOutline()
    {
        QFETCH(QPainterPath, path);
        const QPointF delta(1.5, -2.25);
        NodePath model(path);
        QVERIFY(model.moveNode({0, 0}, model.nodePos({0, 0}) + delta));
        const QPainterPath moved = model.path();
        QCOMPARE(moved.elementCount(), path.elementCount());
        const int n = path.elementCount();
        const bool curves = path.elementAt(1).type == QPainterPath::CurveToElement;
        for (int i = 0; i < n; ++i) {
            const bool follows = i == 0 || i == n - 1 || (curves && (i == 1 || i == n - 2));
            const QPointF a(path.elementAt(i).x, path.elementAt(i).y);
            const QPointF b(moved.elementAt(i).x, moved.elementAt(i).y);
            QVERIFY2(QLineF(a + (follows ? delta : QPointF()), b).length() < 1e-12,
                     qPrintable(QString::number(i)));
        }
        QVERIFY(NodePath(moved).subpaths().first().closed);
    }

    void findsNodesControlsAndSegments()
    {
        const NodePath model(openCurve());
        QCOMPARE(model.nodeAt({30.4, 0.3}, 1.0), (NodeRef{0, 1}));
        QVERIFY(!model.nodeAt({35, 5}, 1.0).isValid());
        const ControlRef c = model.controlAt({29.5, 10.5}, 1.0);
        QCOMPARE(c.segment, 0);
        QCOMPARE(c.which, 1);
        const SegmentHit onLine = model.segmentAt({35, 0.5}, 1.0);
        QCOMPARE(onLine.segment, 1);
        QVERIFY(std::fabs(onLine.t - 0.5) < 1e-9);
        const SegmentHit onCurve = model.segmentAt({15, 7.6}, 1.0);
        QCOMPARE(onCurve.segment, 0);
        QVERIFY(std::fabs(onCurve.t - 0.5) < 1e-3);
        QVERIFY(model.isEndNode({0, 3}));
        QVERIFY(!model.isEndNode({0, 2}));
    }

    // Every edit as a command on an item in a scene: undo gives back exactly
    // the previous elements, redo exactly the edited ones.
    void commandsUndoToTheExactPath_data()
    {
        QTest::addColumn<QPainterPath>("before");
        QTest::addColumn<int>("kind");
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<QString>("text");
        QTest::newRow("move") << circlePath() << int(NodeEdit::MoveNode) << Edit([](NodePath &m) {
            return m.moveNode({0, 2}, {0.1, 9.7});
        }) << QStringLiteral("移动节点");
        QTest::newRow("control") << circlePath() << int(NodeEdit::MoveControl)
                                 << Edit([](NodePath &m) {
                                        return m.moveControl({0, 1, 1}, {3.3, 0.7});
                                    })
                                 << QStringLiteral("移动控制点");
        QTest::newRow("add") << circlePath() << int(NodeEdit::AddNode)
                             << Edit([](NodePath &m) { return m.insertNode(0, 1, 0.3); })
                             << QStringLiteral("添加节点");
        QTest::newRow("delete") << circlePath() << int(NodeEdit::DeleteNode)
                                << Edit([](NodePath &m) {
                                       return m.deleteNode({0, 0});
                                   })
                                << QStringLiteral("删除节点");
        QTest::newRow("straight") << circlePath() << int(NodeEdit::Straight)
                                  << Edit([](NodePath &m) {
                                         return m.setSegmentCurved(0, 2, false);
                                     })
                                  << QStringLiteral("转为直线");
        QTest::newRow("curved") << rectPath() << int(NodeEdit::Curved)
                                << Edit([](NodePath &m) { return m.setSegmentCurved(0, 3, true); })
                                << QStringLiteral("转为曲线");
        QTest::newRow("break") << circlePath() << int(NodeEdit::Break) << Edit([](NodePath &m) {
            return m.breakAt({0, 1});
        }) << QStringLiteral("断开节点");
        QTest::newRow("join") << twoLines() << int(NodeEdit::Join) << Edit([](NodePath &m) {
            return m.join({0, 0}, {1, 0});
        }) << QStringLiteral("连接节点");
    }
    void commandsUndoToTheExactPath()
    {
        QFETCH(QPainterPath, before);
        QFETCH(int, kind);
        QFETCH(Edit, edit);
        QFETCH(QString, text);
        Jk_chang_jing scene;
        auto *item = new Jk_tu_yuan(before, 1);
        scene.addItem(item);
        NodePath model(item->path);
        QVERIFY(edit(model));
        QUndoCommand *command = makeNodeEditCommand(item, model, NodeEdit(kind));
        QVERIFY(command);
        QCOMPARE(command->text(), text);
        scene.undoStack()->push(command);
        QVERIFY(programState().unsaved);
        const QPainterPath edited = model.path();
        QVERIFY(sameElements(item->path, edited));
        QVERIFY(!sameElements(item->path, before));
        scene.undoStack()->undo();
        QVERIFY2(sameElements(item->path, before), qPrintable(describe(item->path)));
        scene.undoStack()->redo();
        QVERIFY(sameElements(item->path, edited));
        scene.undoStack()->undo();
        QVERIFY(sameElements(item->path, before));
    }

    void noCommandForNoChange()
    {
        Jk_chang_jing scene;
        auto *item = new Jk_tu_yuan(rectPath(), 1);
        scene.addItem(item);
        QVERIFY(!makeNodeEditCommand(item, NodePath(item->path), NodeEdit::MoveNode));
        QVERIFY(!makeNodeDragCommand(item, item->path, NodeEdit::MoveNode));
        QVERIFY(!makeNodeEditCommand(nullptr, NodePath(rectPath()), NodeEdit::MoveNode));
    }
};

QTEST_MAIN(TestNodePath)
#include "tst_node_path.moc"
