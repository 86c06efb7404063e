#include "alignment.h"

#include "geometry_command.h"
#include "item_geometry.h"
#include "jk_chang_jing.h"
#include "jk_tu_yuan.h"

#include <QCoreApplication>
#include <QVector>
#include <algorithm>

namespace lumitra {

namespace {

// How far an item with bounds `b` moves to meet the selection bounds `all`.
QPointF alignOffset(Alignment alignment, const QRectF &b, const QRectF &all)
{
    switch (alignment) {
    case Alignment::Left:
        return QPointF(all.left() - b.left(), 0);
    case Alignment::Right:
        return QPointF(all.right() - b.right(), 0);
    case Alignment::Top:
        return QPointF(0, all.top() - b.top());
    case Alignment::Bottom:
        return QPointF(0, all.bottom() - b.bottom());
    case Alignment::HorizontalCentre:
        return QPointF(all.center().x() - b.center().x(), 0);
    case Alignment::VerticalCentre:
        return QPointF(0, all.center().y() - b.center().y());
    case Alignment::WorkAreaCentre:
        break;
    }
    return QPointF();
}

} // namespace

void alignItems(const QList<Jk_tu_yuan *> &items, Alignment alignment, const QRectF &workArea)
{
    if (items.isEmpty())
        return;
    const QRectF all = outlineBounds(items);
    if (alignment == Alignment::WorkAreaCentre) {
        translateItems(items, workArea.center() - all.center());
        return;
    }
    for (Jk_tu_yuan *item : items) {
        const QPointF d = alignOffset(alignment, outlineBounds(item), all);
        if (!d.isNull())
            item->setPos(item->pos() + d);
    }
}

void distributeItems(const QList<Jk_tu_yuan *> &items, Qt::Orientation orientation)
{
    if (items.size() < 3)
        return;
    const bool horizontal = orientation == Qt::Horizontal;
    struct Entry
    {
        Jk_tu_yuan *item;
        double start; // left (top) edge
        double size;  // width (height)
    };
    QVector<Entry> entries;
    entries.reserve(items.size());
    for (Jk_tu_yuan *item : items) {
        const QRectF b = outlineBounds(item);
        entries.append(
            Entry{item, horizontal ? b.left() : b.top(), horizontal ? b.width() : b.height()});
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry &a, const Entry &b) { return a.start < b.start; });
    double occupied = 0;
    for (const Entry &e : entries)
        occupied += e.size;
    const Entry &last = entries.last();
    const double span = last.start + last.size - entries.first().start;
    const double gap = (span - occupied) / (entries.size() - 1);
    double next = entries.first().start + entries.first().size + gap;
    for (int i = 1; i < entries.size() - 1; ++i) {
        const Entry &e = entries.at(i);
        const double d = next - e.start;
        e.item->setPos(e.item->pos() + (horizontal ? QPointF(d, 0) : QPointF(0, d)));
        next += e.size + gap;
    }
}

QUndoCommand *makeAlignCommand(const QList<Jk_tu_yuan *> &items, Alignment alignment)
{
    const QRectF area = Jk_chang_jing::workAreaRect();
    return new GeometryCommand(
        items,
        [alignment, area](const QList<Jk_tu_yuan *> &list) { alignItems(list, alignment, area); },
        QCoreApplication::translate("EditCommand", "对齐"));
}

QUndoCommand *makeDistributeCommand(const QList<Jk_tu_yuan *> &items, Qt::Orientation orientation)
{
    return new GeometryCommand(
        items,
        [orientation](const QList<Jk_tu_yuan *> &list) { distributeItems(list, orientation); },
        QCoreApplication::translate("EditCommand", "等间距分布"));
}

} // namespace lumitra
