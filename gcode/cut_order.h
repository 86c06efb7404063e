// The order in which the outlines of a layer are cut.
//
// "As drawn" cuts every item's outline in the order of the design. "Optimised"
// first makes sure that nothing is cut after the shape around it (a hole, or
// a part lying in a hole, before the outline that would let it fall out) and,
// among the outlines that may go next, takes the one whose start is nearest to
// where the head is. Outlines are whole subpaths (scene mm), entered at their
// first point. Plain functions; any thread.
#pragma once

#include <QList>
#include <QPainterPath>
#include <QPointF>
#include <QVector>

class Jk_tu_yuan;
class LayerList;
struct TuCeng;

namespace lumitra {

// The subpaths of `outline`, each its own path, curves kept.
QVector<QPainterPath> cutPieces(const QPainterPath &outline);

// What a vector layer's job burns as lines, one path per item (empty where it
// burns none): the outlines with the layer's kerf applied (nesting counted
// across the layer) in line and cross fill mode, the open subpaths in fill mode.
QVector<QPainterPath> layerLineOutlines(const QList<const Jk_tu_yuan *> &items,
                                        const TuCeng &layer);

// What a vector layer's job cuts as lines, item by item in design order, as
// cutPieces: the outlines with the layer's kerf applied in line and cross fill
// mode, the open subpaths in fill mode.
QVector<QPainterPath> layerLinePieces(const QList<const Jk_tu_yuan *> &items, const TuCeng &layer);

// The optimised order of `pieces` (indices) for a head that starts at `from`.
QVector<int> optimisedCutOrder(const QVector<QPainterPath> &pieces, const QPointF &from);

// The travel (mm, laser off) of cutting `pieces` in `order`, starting at
// `from`: from each piece's end to the next one's start.
double cutTravel(const QVector<QPainterPath> &pieces, const QVector<int> &order,
                 const QPointF &from);

// The travel (mm) the optimised order saves over "as drawn" in the job of
// `items`: summed over the vector layers switched to output and set to the
// optimised order, each pass counted, outlines as the job cuts them (kerf
// applied). The head starts at the scene origin.
double cutOrderTravelSaved(const QList<Jk_tu_yuan *> &items, const LayerList &layers);

} // namespace lumitra
