#include "module_outline.h"

#include <QVector>

namespace lumitra {

namespace {

// Directions of boundary edges on the vertex grid: right, down, left, up
// (y down). A turn to the right is the next one.
constexpr int kDx[4] = {1, 0, -1, 0};
constexpr int kDy[4] = {0, 1, 0, -1};

} // namespace

QPainterPath moduleOutline(const ModuleGrid &grid, double moduleWidth, double rowHeight,
                           const QPointF &origin)
{
    QPainterPath path; // even-odd, the default
    const int w = grid.columns;
    const int h = grid.rows;
    if (w <= 0 || h <= 0)
        return path;

    // Each vertex (w + 1) x (h + 1) keeps a bit per outgoing boundary edge; the
    // dark module is always on the right of an edge.
    const int vw = w + 1;
    QVector<quint8> out(vw * (h + 1), 0);
    auto vertex = [vw](int x, int y) { return y * vw + x; };
    int edges = 0;
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            if (!grid.isDark(x, y))
                continue;
            if (!grid.isDark(x, y - 1)) { // top, going right
                out[vertex(x, y)] |= 1 << 0;
                ++edges;
            }
            if (!grid.isDark(x + 1, y)) { // right side, going down
                out[vertex(x + 1, y)] |= 1 << 1;
                ++edges;
            }
            if (!grid.isDark(x, y + 1)) { // bottom, going left
                out[vertex(x + 1, y + 1)] |= 1 << 2;
                ++edges;
            }
            if (!grid.isDark(x - 1, y)) { // left side, going up
                out[vertex(x, y + 1)] |= 1 << 3;
                ++edges;
            }
        }
    }

    auto point = [&](int x, int y) {
        return QPointF(origin.x() + x * moduleWidth, origin.y() + y * rowHeight);
    };

    // Loops start on a top edge (scanning rows from the top, so every region
    // and every hole is met) and turn right first at a corner where two
    // regions touch, which keeps each region on its own loop.
    for (int sy = 0; sy <= h && edges > 0; ++sy) {
        for (int sx = 0; sx <= w && edges > 0; ++sx) {
            if (!(out[vertex(sx, sy)] & 1))
                continue;
            int x = sx, y = sy, dir = 0;
            QVector<QPoint> corners;
            int prevDir = -1;
            while (true) {
                if (dir != prevDir)
                    corners.append(QPoint(x, y));
                out[vertex(x, y)] &= quint8(~(1 << dir));
                --edges;
                x += kDx[dir];
                y += kDy[dir];
                prevDir = dir;
                // The start edge counts as still there, so the loop closes
                // exactly where the turning rule would take it again.
                const bool atStart = x == sx && y == sy;
                const quint8 here = out[vertex(x, y)] | (atStart ? 1 : 0);
                int next = -1;
                const int turns[3] = {(dir + 1) % 4, dir, (dir + 3) % 4};
                for (int t : turns) {
                    if (here & (1 << t)) {
                        next = t;
                        break;
                    }
                }
                if (next < 0 || (atStart && next == 0))
                    break;
                dir = next;
            }
            // The loop ends where it began; the first corner closes it.
            path.moveTo(point(corners[0].x(), corners[0].y()));
            for (int i = 1; i < corners.size(); ++i)
                path.lineTo(point(corners[i].x(), corners[i].y()));
            path.closeSubpath();
        }
    }
    return path;
}

} // namespace lumitra
