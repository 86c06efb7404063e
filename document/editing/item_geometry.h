// Geometry of sets of items in scene millimetres, and the transforms the
// editing commands apply to them.
//
// Convention shared with Jk_tu_yuan::rotateItems: an item's position holds the
// translation of its scene transform and its item transform holds only the
// linear part (rotation, scale, mirror). Its outline (`path`) is never touched
// by a transform. GUI thread only.
#pragma once

#include <QList>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QTransform>

class Jk_tu_yuan;

namespace lumitra {

// What an editing command may change on an item, so that undo and redo put
// back exactly the same geometry.
struct ItemGeometry
{
    QPointF pos;
    QTransform transform;
    double jiao_du = 0.0;
    QPainterPath path;
    QString wen_zi;
    QString zi_ti;
};

ItemGeometry captureGeometry(const Jk_tu_yuan *item);
// Outline changes go through set_path; an unchanged outline is left alone.
void applyGeometry(Jk_tu_yuan *item, const ItemGeometry &geometry);

// The tight bounds of an item's outline in scene coordinates, and of a set.
QRectF outlineBounds(const Jk_tu_yuan *item);
QRectF outlineBounds(const QList<Jk_tu_yuan *> &items);

void translateItems(const QList<Jk_tu_yuan *> &items, const QPointF &delta);

// Applies the linear map `linear` about the scene point `centre` to every item:
// scene transform := scene transform * (translate(-centre) linear translate(centre)).
void transformItemsAbout(const QList<Jk_tu_yuan *> &items, const QTransform &linear,
                         const QPointF &centre);

// Scales by (sx, sy) about `centre`. jiao_du is unchanged.
void scaleItems(const QList<Jk_tu_yuan *> &items, double sx, double sy, const QPointF &centre);

// Mirrors the set about the vertical (horizontal mirror) or horizontal line
// through `centre`. A mirrored item's rotation runs the other way, so jiao_du
// becomes -jiao_du: the item transform stays "own mirror, then rotation by
// jiao_du".
void mirrorItems(const QList<Jk_tu_yuan *> &items, bool horizontal, const QPointF &centre);

// Scales and moves the set so that its outline bounds become `target`
// (scene coordinates). With `keepRatio` the smaller of the two factors is used
// on both axes and the result is placed at target's top-left. An axis of zero
// extent (a straight line) keeps its scale on that axis.
void fitItemsTo(const QList<Jk_tu_yuan *> &items, const QRectF &target, bool keepRatio);

// Items copied with everything that makes them look the same (outline, images,
// layer, transform, position, jiao_du, text); the copy is not in a scene and not
// selected.
Jk_tu_yuan *cloneItem(const Jk_tu_yuan *item);

// The vector items of `items` (bitmaps left out), in order.
QList<Jk_tu_yuan *> vectorItemsOf(const QList<Jk_tu_yuan *> &items);
// True when every item has the first one's transform and turn, and that
// transform can be undone: their outlines can be joined in its frame.
bool shareItemFrame(const QList<Jk_tu_yuan *> &items);

// The frame of an item made from the outlines of `items` (one or more): the
// first item's when they all share it (shareItemFrame), else an upright frame
// at their top-left corner.
struct JoinedFrame
{
    QTransform sceneToFrame;
    QPointF pos;
    const Jk_tu_yuan *kept = nullptr; // the item whose transform and turn it keeps
};
JoinedFrame joinedFrame(const QList<Jk_tu_yuan *> &items);
// The outline of `item` in that frame.
QPainterPath outlineInFrame(const Jk_tu_yuan *item, const JoinedFrame &frame);
// Puts `item` (whose outline is in the frame) where the frame says.
void placeInFrame(Jk_tu_yuan *item, const JoinedFrame &frame);

} // namespace lumitra
