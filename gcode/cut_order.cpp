#include "cut_order.h"

#include "jk_tu_yuan.h"
#include "layer_list.h"
#include "path_offset.h"
#include "path_parts.h"
#include "tu_ceng.h"

#include <QLineF>
#include <QRectF>
#include <algorithm>
#include <cmath>
#include <numeric>

namespace lumitra {

namespace {

QPointF startOf(const QPainterPath &p)
{
    return p.elementCount() ? QPointF(p.elementAt(0)) : QPointF();
}

QPointF endOf(const QPainterPath &p)
{
    return p.elementCount() ? QPointF(p.elementAt(p.elementCount() - 1)) : QPointF();
}

bool isClosed(const QPainterPath &p)
{
    return p.elementCount() > 2 && QLineF(startOf(p), endOf(p)).length() <= kClosingTolerance;
}

} // namespace

QVector<QPainterPath> layerLineOutlines(const QList<const Jk_tu_yuan *> &items, const TuCeng &layer)
{
    QVector<QPainterPath> outlines;
    outlines.reserve(items.size());
    for (const Jk_tu_yuan *item : items) {
        const QPainterPath outline = item->sceneTransform().map(item->path);
        if (layer.moshi == LineMode || layer.moshi == CrossFillMode)
            outlines.append(outline);
        else if (layer.moshi == FillMode && hasOpenSubpath(outline))
            outlines.append(splitByClosure(outline).open);
        else
            outlines.append(QPainterPath());
    }
    if (layer.moshi == LineMode || layer.moshi == CrossFillMode)
        outlines = kerfOutlines(outlines, layer.kerf);
    return outlines;
}

QVector<QPainterPath> layerLinePieces(const QList<const Jk_tu_yuan *> &items, const TuCeng &layer)
{
    QVector<QPainterPath> pieces;
    for (const QPainterPath &outline : layerLineOutlines(items, layer))
        pieces += cutPieces(outline);
    return pieces;
}

QVector<QPainterPath> cutPieces(const QPainterPath &outline)
{
    QVector<QPainterPath> pieces;
    QPainterPath current;
    const int n = outline.elementCount();
    for (int i = 0; i < n; ++i) {
        const QPainterPath::Element &e = outline.elementAt(i);
        switch (e.type) {
        case QPainterPath::MoveToElement:
            if (current.elementCount() > 1)
                pieces.append(current);
            current = QPainterPath();
            current.moveTo(e);
            break;
        case QPainterPath::LineToElement:
            current.lineTo(e);
            break;
        case QPainterPath::CurveToElement:
            if (i + 2 < n) {
                current.cubicTo(e, outline.elementAt(i + 1), outline.elementAt(i + 2));
                i += 2;
            }
            break;
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    if (current.elementCount() > 1)
        pieces.append(current);
    return pieces;
}

QVector<int> optimisedCutOrder(const QVector<QPainterPath> &pieces, const QPointF &from)
{
    const int n = pieces.size();
    QVector<QRectF> bounds(n);
    QVector<bool> closed(n);
    for (int i = 0; i < n; ++i) {
        bounds[i] = pieces[i].boundingRect();
        closed[i] = isClosed(pieces[i]);
    }
    // holders[i]: the closed outlines around piece i; waiting[k]: how many
    // pieces inside k are still to be cut.
    QVector<QVector<int>> holders(n);
    QVector<int> waiting(n, 0);
    for (int k = 0; k < n; ++k) {
        if (!closed[k])
            continue;
        for (int i = 0; i < n; ++i) {
            if (i == k || !bounds[k].contains(bounds[i]))
                continue;
            // Two copies of one outline: the earlier one goes first.
            if (bounds[i] == bounds[k] && i > k)
                continue;
            if (pieces[k].contains(startOf(pieces[i])) || pieces[k].contains(bounds[i].center())) {
                holders[i].append(k);
                ++waiting[k];
            }
        }
    }
    QVector<int> order;
    order.reserve(n);
    QVector<bool> done(n, false);
    QPointF head = from;
    for (int step = 0; step < n; ++step) {
        int best = -1;
        double bestDistance = 0;
        for (int i = 0; i < n; ++i) {
            if (done[i] || waiting[i] > 0)
                continue;
            const QPointF d = startOf(pieces[i]) - head;
            const double distance = d.x() * d.x() + d.y() * d.y();
            if (best < 0 || distance < bestDistance) {
                best = i;
                bestDistance = distance;
            }
        }
        if (best < 0) {
            // Outlines that hold each other (cannot happen with the rules
            // above, kept as a guard): the rest go as drawn.
            for (int i = 0; i < n; ++i) {
                if (!done[i])
                    order.append(i);
            }
            break;
        }
        done[best] = true;
        order.append(best);
        head = endOf(pieces[best]);
        for (int k : qAsConst(holders[best]))
            --waiting[k];
    }
    return order;
}

double cutTravel(const QVector<QPainterPath> &pieces, const QVector<int> &order,
                 const QPointF &from)
{
    double travel = 0;
    QPointF head = from;
    for (int i : order) {
        travel += QLineF(head, startOf(pieces[i])).length();
        head = endOf(pieces[i]);
    }
    return travel;
}

double cutOrderTravelSaved(const QList<Jk_tu_yuan *> &items, const LayerList &layers)
{
    double saved = 0;
    for (const TuCeng *layer : layers.layers()) {
        if (!layer->shuchu || layer->tupian || layer->cutOrder != CutOptimised)
            continue;
        QList<const Jk_tu_yuan *> own;
        for (const Jk_tu_yuan *item : items) {
            if (item && !item->is_bitmap && item->layer_id == layer->yanse)
                own.append(item);
        }
        const QVector<QPainterPath> pieces = layerLinePieces(own, *layer);
        if (pieces.isEmpty())
            continue;
        QVector<int> drawn(pieces.size());
        std::iota(drawn.begin(), drawn.end(), 0);
        const QVector<int> optimised = optimisedCutOrder(pieces, QPointF());
        // Later passes start where the one before ended.
        QPointF drawnFrom, optimisedFrom;
        for (int pass = 0; pass < layer->cishu; ++pass) {
            saved +=
                cutTravel(pieces, drawn, drawnFrom) - cutTravel(pieces, optimised, optimisedFrom);
            drawnFrom = endOf(pieces[drawn.last()]);
            optimisedFrom = endOf(pieces[optimised.last()]);
        }
    }
    return saved;
}

} // namespace lumitra
