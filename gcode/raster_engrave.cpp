#include "raster_engrave.h"

#include "toolpath_sink.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lumitra {

namespace {

constexpr double kMinRunLength = 1e-9; // mm; shorter runs come from crossing a pixel corner
constexpr double kMaxScanLines = 2e7;

struct Run
{
    double from;
    double to;
    unsigned char level;
};

// Restricts [lo, hi] to the x where a + b x lies in [0, limit).
bool clipToImage(double a, double b, double limit, double &lo, double &hi)
{
    if (b == 0)
        return a >= 0 && a < limit;
    double x0 = -a / b;
    double x1 = (limit - a) / b;
    if (x0 > x1)
        std::swap(x0, x1);
    lo = std::max(lo, x0);
    hi = std::min(hi, x1);
    return lo < hi;
}

// Distance along the line to the next pixel border of one axis.
struct AxisStepper
{
    double origin;  // pixel coordinate at scene x = 0
    double inverse; // scene mm per pixel along the line (1 / slope), 0 when fixed
    int step;       // +1, -1, or 0 when the line never crosses this axis
    int index;

    AxisStepper(double a, double b, double start, int size)
        : origin(a), inverse(b != 0 ? 1.0 / b : 0.0), step(b > 0 ? 1 : (b < 0 ? -1 : 0))
    {
        index = std::clamp(int(std::floor(a + b * start)), 0, size - 1);
    }
    double next() const
    {
        if (step == 0)
            return std::numeric_limits<double>::infinity();
        return (double(step > 0 ? index + 1 : index) - origin) * inverse;
    }
};

// Runs along a line that stays in one pixel row (by == 0): only the pixels
// where the level changes need their border computed.
int collectRowRuns(const LevelMap &map, const AxisStepper &sx, int row, double lo, double hi,
                   std::vector<Run> &runs)
{
    const unsigned char *levels = map.levels.data() + size_t(row) * size_t(map.width);
    const int step = sx.step;
    int count = 0;
    int at = sx.index;
    unsigned char level = levels[at];
    double runStart = lo;
    for (;;) {
        int next = at + step;
        while (next >= 0 && next < map.width && levels[next] == level)
            next += step;
        if (next < 0 || next >= map.width)
            break;
        // The border between two pixels: moving right, the left edge of `next`.
        const double border = (double(step > 0 ? next : next + 1) - sx.origin) * sx.inverse;
        if (!(border < hi))
            break;
        if (border - runStart > kMinRunLength)
            runs[size_t(count++)] = {runStart, border, level};
        runStart = border;
        level = levels[next];
        at = next;
    }
    if (hi - runStart > kMinRunLength)
        runs[size_t(count++)] = {runStart, hi, level};
    return count;
}

// Splits the scan line p(x) = (ax + bx x, ay + by x), x in [lo, hi), into runs
// of equal level. `runs` has room for a run per pixel crossed; returns the count.
int collectRuns(const LevelMap &map, double ax, double bx, double ay, double by, double lo,
                double hi, std::vector<Run> &runs)
{
    AxisStepper sx(ax, bx, lo, map.width);
    AxisStepper sy(ay, by, lo, map.height);
    if (sy.step == 0 && sx.step != 0)
        return collectRowRuns(map, sx, sy.index, lo, hi, runs);
    int count = 0;
    unsigned char level = map.at(sx.index, sy.index);
    double runStart = lo;
    double nextX = sx.next();
    double nextY = sy.next();
    for (int guard = map.width + map.height + 4; guard > 0; --guard) {
        const double border = std::min(nextX, nextY);
        if (!(border < hi))
            break;
        const bool crossX = nextX <= nextY;
        const bool crossY = nextY <= nextX;
        if (crossX) {
            sx.index += sx.step;
            nextX = sx.next();
        }
        if (crossY) {
            sy.index += sy.step;
            nextY = sy.next();
        }
        if (sx.index < 0 || sx.index >= map.width || sy.index < 0 || sy.index >= map.height)
            break;
        const unsigned char now = map.at(sx.index, sy.index);
        if (now != level) {
            if (border - runStart > kMinRunLength)
                runs[size_t(count++)] = {runStart, border, level};
            runStart = border;
            level = now;
        }
    }
    if (hi - runStart > kMinRunLength)
        runs[size_t(count++)] = {runStart, hi, level};
    return count;
}

class LineWriter
{
public:
    LineWriter(const RasterSettings &settings, ToolpathSink &sink)
        : m_overscan(settings.overscan > 0 ? settings.overscan : 0.0), m_grey(settings.greyPower),
          m_sink(sink)
    {
    }

    // Writes the runs [first, last] of one line in direction `dir` (+1 or -1).
    void write(const std::vector<Run> &runs, int first, int last, int dir, double y)
    {
        const int begin = dir > 0 ? first : last;
        const int end = dir > 0 ? last + dir : first + dir;
        const double o = m_overscan * dir;
        const double start = entry(runs[size_t(begin)], dir);
        m_sink.travel(start - o, y);
        if (m_overscan > 0)
            m_sink.coast(start, y);
        for (int i = begin; i != end; i += dir) {
            const Run &r = runs[size_t(i)];
            const double from = entry(r, dir);
            const double to = exit(r, dir);
            if (r.level != LevelMap::kWhite) {
                if (m_grey)
                    m_sink.burnGrey(to, y, r.level);
                else
                    m_sink.burn(to, y);
            } else if (std::fabs(to - from) > kRapidGap + 2 * m_overscan) {
                if (m_overscan > 0)
                    m_sink.coast(from + o, y);
                m_sink.travel(to - o, y);
                if (m_overscan > 0)
                    m_sink.coast(to, y);
            } else if (m_grey) {
                // The grey after a gap nearly always needs its own power
                // word, so a rapid would only add the motion words.
                m_sink.coast(to, y);
            } else {
                m_sink.gap(to, y);
            }
        }
        if (m_overscan > 0)
            m_sink.coast(exit(runs[size_t(end - dir)], dir) + o, y);
    }

private:
    static double entry(const Run &r, int dir) { return dir > 0 ? r.from : r.to; }
    static double exit(const Run &r, int dir) { return dir > 0 ? r.to : r.from; }

    const double m_overscan;
    const bool m_grey;
    ToolpathSink &m_sink;
};

} // namespace

void engraveRaster(const LevelMap &map, const QTransform &pixelToScene,
                   const RasterSettings &settings, ToolpathSink &sink)
{
    const double spacing = settings.spacing;
    if (map.isEmpty() || !(spacing > 0))
        return;
    bool invertible = false;
    const QTransform sceneToPixel = pixelToScene.inverted(&invertible);
    if (!invertible)
        return;
    const QRectF footprint = pixelToScene.mapRect(QRectF(0, 0, map.width, map.height));
    if (!(footprint.height() / spacing < kMaxScanLines))
        return;

    // Along a scene line y = const, pixel = (ax + bx x, ay + by x).
    const double bx = sceneToPixel.m11();
    const double by = sceneToPixel.m12();
    const long long firstLine = (long long)std::ceil(footprint.top() / spacing - 0.5);
    const long long lastLine = (long long)std::ceil(footprint.bottom() / spacing - 0.5) - 1;

    LineWriter writer(settings, sink);
    std::vector<Run> runs(size_t(map.width) + size_t(map.height) + 8);
    // Without rotation or shear every line through one pixel row meets the
    // same runs: keep them for the next line.
    const bool rowsAlongLines = sceneToPixel.m12() == 0 && sceneToPixel.m21() == 0;
    int cachedRow = -1;
    int runCount = 0;
    int dir = 1;
    for (long long k = firstLine; k <= lastLine; ++k) {
        if (sink.stopRequested())
            return;
        const double y = (double(k) + 0.5) * spacing;
        const double ax = sceneToPixel.m21() * y + sceneToPixel.dx();
        const double ay = sceneToPixel.m22() * y + sceneToPixel.dy();
        double lo = footprint.left() - 1;
        double hi = footprint.right() + 1;
        if (!clipToImage(ax, bx, map.width, lo, hi) || !clipToImage(ay, by, map.height, lo, hi))
            continue;
        const int row = rowsAlongLines ? int(std::floor(ay)) : -1;
        if (row < 0 || row != cachedRow)
            runCount = collectRuns(map, ax, bx, ay, by, lo, hi, runs);
        cachedRow = row;
        int first = 0;
        int last = runCount - 1;
        while (first <= last && runs[size_t(first)].level == LevelMap::kWhite)
            ++first;
        while (last >= first && runs[size_t(last)].level == LevelMap::kWhite)
            --last;
        if (first > last)
            continue;
        writer.write(runs, first, last, dir, y);
        if (!settings.oneDirection)
            dir = -dir;
    }
}

} // namespace lumitra
