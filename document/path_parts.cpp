#include "path_parts.h"

#include <cmath>

namespace lumitra {

namespace {

// Calls `take(first, last, closed)` for each subpath [first, last) of the
// element list, a subpath being a move followed by its drawing elements.
template<typename Take> void forEachSubpath(const QPainterPath &path, Take take)
{
    const int n = path.elementCount();
    int start = 0;
    while (start < n) {
        int end = start + 1;
        while (end < n && !path.elementAt(end).isMoveTo())
            ++end;
        if (end - start >= 2) {
            const QPointF first = path.elementAt(start);
            const QPointF last = path.elementAt(end - 1);
            take(start, end,
                 std::hypot(last.x() - first.x(), last.y() - first.y()) <= kClosingTolerance);
        }
        start = end;
    }
}

void appendSubpath(const QPainterPath &from, int first, int last, QPainterPath &to)
{
    to.moveTo(from.elementAt(first));
    for (int i = first + 1; i < last; ++i) {
        const QPainterPath::Element e = from.elementAt(i);
        if (e.isLineTo()) {
            to.lineTo(e);
        } else if (e.isCurveTo() && i + 2 < last) {
            to.cubicTo(e, from.elementAt(i + 1), from.elementAt(i + 2));
            i += 2;
        }
    }
}

} // namespace

PathParts splitByClosure(const QPainterPath &path)
{
    PathParts parts;
    forEachSubpath(path, [&](int first, int last, bool closed) {
        appendSubpath(path, first, last, closed ? parts.closed : parts.open);
    });
    // Only on a path that has elements: on an empty one it adds a move to 0,0.
    if (!parts.closed.isEmpty())
        parts.closed.setFillRule(path.fillRule());
    return parts;
}

bool hasOpenSubpath(const QPainterPath &path)
{
    bool open = false;
    forEachSubpath(path, [&](int, int, bool closed) { open = open || !closed; });
    return open;
}

} // namespace lumitra
