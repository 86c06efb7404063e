// Combine (the outlines of several items become one item) and break apart
// (one item per closed outline, holes staying with the outline around them).
// Bitmap items take part in neither. GUI thread only.
#pragma once

#include <QList>
#include <QPainterPath>

class Jk_tu_yuan;
class Jk_chang_jing;
class QUndoCommand;

namespace lumitra {

// The subpaths of a path in order, curves kept.
QList<QPainterPath> splitSubpaths(const QPainterPath &path);

// True when a single subpath ends where it starts.
bool isClosedSubpath(const QPainterPath &subpath);

// Groups the subpaths of `path`: every closed outline that lies inside an even
// number of others is an outer outline and takes the closed outlines lying
// directly inside it as holes (a letter "O" stays one ring; the island in the
// middle of a "@"-like shape is an outer again). Open subpaths are groups of
// their own. Each group is one even-odd path; their order follows the first
// subpath of each group.
QList<QPainterPath> breakApartOutline(const QPainterPath &path);

// One new item (not in a scene, not selected) holding the outlines of all
// vector items of `items`, even-odd filled so that holes stay holes. When every
// item has the same item transform and jiao_du, the new item keeps them (with
// the first item's position); otherwise the outlines are taken in scene
// coordinates and the new item sits at their top-left with no transform.
// Layer from the first vector item. nullptr with fewer than two vector items.
Jk_tu_yuan *combineItems(const QList<Jk_tu_yuan *> &items);

// The pieces of one vector item (not in a scene), each with the item's
// position, transform, jiao_du and layer; empty when the item has fewer than
// two pieces.
QList<Jk_tu_yuan *> breakApartItem(const Jk_tu_yuan *item);

// Undoable combine / break apart of the given items in `scene`, the result
// selected; nullptr when there is nothing to do.
QUndoCommand *makeCombineCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items);
QUndoCommand *makeBreakApartCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items);

} // namespace lumitra
