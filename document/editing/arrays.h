// Rectangular and circular arrays of a selection. The copies are new items
// (not in a scene); the selection itself is the first cell. GUI thread only.
#pragma once

#include <QList>
#include <QPointF>

class Jk_tu_yuan;
class Jk_chang_jing;
class QUndoCommand;

namespace lumitra {

struct RectangularArray
{
    int rows = 1;
    int columns = 1;
    double gapX = 0; // mm between the selection's bounds in neighbouring columns
    double gapY = 0; // mm between rows; rows run down the screen
};

struct CircularArray
{
    int count = 1;            // cells around the circle, the selection included
    QPointF centre;           // scene mm
    double sweep = 360;       // degrees covered; 360 spreads the cells evenly around
    bool rotateCopies = true; // copies turn with the circle (jiao_du grows)
};

// rows × columns − 1 copies of every item, in row-major order.
QList<Jk_tu_yuan *> rectangularArrayCopies(const QList<Jk_tu_yuan *> &items,
                                           const RectangularArray &array);

// count − 1 copies of every item; cell k is turned by k × step about the
// centre, step = sweep / count for a full circle and sweep / (count − 1)
// otherwise. Without rotateCopies a copy is only moved, so that the centre of
// its bounds follows the circle.
QList<Jk_tu_yuan *> circularArrayCopies(const QList<Jk_tu_yuan *> &items,
                                        const CircularArray &array);

// Undoable forms adding the copies to `scene`, the copies selected; nullptr
// when there would be none.
QUndoCommand *makeRectangularArrayCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items,
                                          const RectangularArray &array);
QUndoCommand *makeCircularArrayCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items,
                                       const CircularArray &array);

} // namespace lumitra
