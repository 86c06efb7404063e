// Where a selection sits, as the user reads and types it: machine
// coordinates in millimetres (X to the right, Y up, the origin at the work
// area's lower-left corner), the position being the selection's lower-left
// corner. Scene y is the negated machine Y.
#pragma once

#include <QList>
#include <QRectF>
#include <QString>

class Jk_tu_yuan;
class QUndoCommand;

namespace lumitra {

// Machine rectangle (x, y = lower-left corner, width, height) of scene bounds.
QRectF machineRectFromScene(const QRectF &sceneBounds);
// The scene rectangle of a machine rectangle given like that.
QRectF sceneRectFromMachine(const QRectF &machineRect);

// "X: 12.00  Y: 30.50  W: 40.00  H: 20.00 mm" for a selection, or an empty
// string when nothing is selected.
QString placementText(const QRectF &sceneBounds, int count);

// An exact placement typed into the move dialog.
struct Placement
{
    QRectF machineRect;  // wanted lower-left corner and size
    double rotation = 0; // degrees to turn about the selection's centre first
    bool resize = true;  // false: only move to the corner, keep the size
};

// Turns the items by `rotation` about their bounds' centre, then scales and
// moves them so that their outline bounds become the machine rectangle.
void placeItems(const QList<Jk_tu_yuan *> &items, const Placement &placement);
QUndoCommand *makePlaceCommand(const QList<Jk_tu_yuan *> &items, const Placement &placement);

} // namespace lumitra
