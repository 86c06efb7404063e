// Alignment and equal spacing of a selection, by the outline bounds of each
// item in scene coordinates. Items only move; nothing else changes.
// GUI thread only.
#pragma once

#include <QList>
#include <QRectF>

class Jk_tu_yuan;
class QUndoCommand;

namespace lumitra {

enum class Alignment {
    Left,             // left edges on the selection's left edge
    Right,            // right edges on the selection's right edge
    Top,              // top edges (on the screen) on the selection's top edge
    Bottom,           // bottom edges on the selection's bottom edge
    HorizontalCentre, // centres on one vertical line: the selection's centre x
    VerticalCentre,   // centres on one horizontal line: the selection's centre y
    WorkAreaCentre,   // the selection, as one block, centred on the work area
};

// Aligns the items; `workArea` is used by WorkAreaCentre only.
void alignItems(const QList<Jk_tu_yuan *> &items, Alignment alignment, const QRectF &workArea);

// Equal gaps between neighbours along one axis. The items are ordered by their
// left (top) edge; the first and the last keep their place and the others are
// moved so that every gap between consecutive items is the same. Needs three
// items or more.
void distributeItems(const QList<Jk_tu_yuan *> &items, Qt::Orientation orientation);

// Undoable forms; the work area is the program's current one.
QUndoCommand *makeAlignCommand(const QList<Jk_tu_yuan *> &items, Alignment alignment);
QUndoCommand *makeDistributeCommand(const QList<Jk_tu_yuan *> &items, Qt::Orientation orientation);

} // namespace lumitra
