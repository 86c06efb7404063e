#include "combine.h"

#include "command_sequence.h"
#include "item_geometry.h"
#include "jk_tu_yuan.h"

#include <QCoreApplication>
#include <QPolygonF>
#include <cmath>

namespace lumitra {

QList<QPainterPath> splitSubpaths(const QPainterPath &path)
{
    QList<QPainterPath> result;
    QPainterPath current;
    const int n = path.elementCount();
    for (int i = 0; i < n; ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        switch (e.type) {
        case QPainterPath::MoveToElement:
            if (current.elementCount() > 1)
                result.append(current);
            current = QPainterPath();
            current.setFillRule(path.fillRule());
            current.moveTo(e.x, e.y);
            break;
        case QPainterPath::LineToElement:
            current.lineTo(e.x, e.y);
            break;
        case QPainterPath::CurveToElement:
            if (i + 2 < n) {
                const QPainterPath::Element c2 = path.elementAt(i + 1);
                const QPainterPath::Element end = path.elementAt(i + 2);
                current.cubicTo(e.x, e.y, c2.x, c2.y, end.x, end.y);
                i += 2;
            }
            break;
        case QPainterPath::CurveToDataElement:
            break; // consumed with its curve
        }
    }
    if (current.elementCount() > 1)
        result.append(current);
    return result;
}

bool isClosedSubpath(const QPainterPath &subpath)
{
    const int n = subpath.elementCount();
    if (n < 3)
        return false;
    const QPointF first = subpath.elementAt(0);
    const QPointF last = subpath.elementAt(n - 1);
    return qFuzzyCompare(first.x() + 1, last.x() + 1) && qFuzzyCompare(first.y() + 1, last.y() + 1);
}

namespace {

struct Outline
{
    QPainterPath path;
    QPolygonF polygon;
    QRectF bounds;
    double area = 0;
    bool closed = false;
};

double polygonArea(const QPolygonF &p)
{
    double twice = 0;
    for (int i = 0; i < p.size(); ++i) {
        const QPointF a = p.at(i);
        const QPointF b = p.at((i + 1) % p.size());
        twice += a.x() * b.y() - b.x() * a.y();
    }
    return std::abs(twice) / 2;
}

// True when `inner` lies inside `outer`: bounds inside and most of a sample of
// its vertices inside, so a shared touching point does not decide it.
bool liesInside(const Outline &inner, const Outline &outer)
{
    if (!outer.closed || outer.area <= inner.area || !outer.bounds.contains(inner.bounds))
        return false;
    const int n = inner.polygon.size();
    const int samples = std::min(n, 16);
    int inside = 0;
    for (int k = 0; k < samples; ++k) {
        if (outer.polygon.containsPoint(inner.polygon.at(k * n / samples), Qt::OddEvenFill))
            ++inside;
    }
    return samples > 0 && inside * 2 > samples;
}

} // namespace

QList<QPainterPath> breakApartOutline(const QPainterPath &path)
{
    QVector<Outline> outlines;
    for (const QPainterPath &sub : splitSubpaths(path)) {
        Outline o;
        o.path = sub;
        o.closed = isClosedSubpath(sub);
        o.polygon = sub.toFillPolygon();
        o.bounds = sub.boundingRect();
        o.area = o.closed ? polygonArea(o.polygon) : 0;
        outlines.append(o);
    }
    const int n = outlines.size();
    QVector<int> depth(n, 0);
    QVector<int> parent(n, -1);
    for (int i = 0; i < n; ++i) {
        if (!outlines[i].closed)
            continue;
        for (int j = 0; j < n; ++j) {
            if (i == j || !liesInside(outlines[i], outlines[j]))
                continue;
            ++depth[i];
            if (parent[i] < 0 || outlines[j].area < outlines[parent[i]].area)
                parent[i] = j;
        }
    }
    QVector<int> group(n, -1);
    QList<QPainterPath> groups;
    for (int i = 0; i < n; ++i) {
        if (depth[i] % 2 == 0) {
            group[i] = groups.size();
            QPainterPath p;
            p.setFillRule(Qt::OddEvenFill);
            groups.append(p);
        }
    }
    for (int i = 0; i < n; ++i) {
        int owner = depth[i] % 2 == 0 ? i : parent[i];
        if (owner < 0 || group[owner] < 0) {
            // Crossing outlines can leave a hole without an outer one: keep it whole.
            owner = i;
            group[i] = groups.size();
            QPainterPath p;
            p.setFillRule(Qt::OddEvenFill);
            groups.append(p);
        }
        groups[group[owner]].addPath(outlines[i].path);
    }
    return groups;
}

Jk_tu_yuan *combineItems(const QList<Jk_tu_yuan *> &items)
{
    const QList<Jk_tu_yuan *> parts = vectorItemsOf(items);
    if (parts.size() < 2)
        return nullptr;
    const Jk_tu_yuan *first = parts.first();
    const JoinedFrame frame = joinedFrame(parts);
    QPainterPath combined;
    combined.setFillRule(Qt::OddEvenFill);
    for (const Jk_tu_yuan *item : parts)
        combined.addPath(outlineInFrame(item, frame));

    auto *result = new Jk_tu_yuan(combined, 1);
    result->layer_id = first->layer_id;
    placeInFrame(result, frame);
    return result;
}

QList<Jk_tu_yuan *> breakApartItem(const Jk_tu_yuan *item)
{
    QList<Jk_tu_yuan *> pieces;
    if (!item || item->is_bitmap)
        return pieces;
    const QList<QPainterPath> groups = breakApartOutline(item->path);
    if (groups.size() < 2)
        return pieces;
    for (const QPainterPath &g : groups) {
        Jk_tu_yuan *piece = cloneItem(item);
        piece->path = g;
        piece->wen_zi.clear();
        piece->zi_ti.clear();
        pieces.append(piece);
    }
    return pieces;
}

QUndoCommand *makeCombineCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items)
{
    Jk_tu_yuan *combined = combineItems(items);
    if (!combined)
        return nullptr;
    combined->setSelected(true);
    return makeReplaceItemsCommand(scene, vectorItemsOf(items), {combined},
                                   QCoreApplication::translate("EditCommand", "组合"));
}

QUndoCommand *makeBreakApartCommand(Jk_chang_jing *scene, const QList<Jk_tu_yuan *> &items)
{
    QList<Jk_tu_yuan *> removed;
    QList<Jk_tu_yuan *> added;
    for (Jk_tu_yuan *item : items) {
        const QList<Jk_tu_yuan *> pieces = breakApartItem(item);
        if (pieces.isEmpty())
            continue;
        removed.append(item);
        for (Jk_tu_yuan *piece : pieces)
            piece->setSelected(true);
        added.append(pieces);
    }
    if (removed.isEmpty())
        return nullptr;
    return makeReplaceItemsCommand(scene, removed, added,
                                   QCoreApplication::translate("EditCommand", "打散"));
}

} // namespace lumitra
