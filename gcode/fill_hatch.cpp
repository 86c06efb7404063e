#include "fill_hatch.h"

#include "outline_polygons.h"
#include "toolpath_sink.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace lumitra {

namespace {

// More lines than this in one item means a spacing far too fine for its size.
constexpr double kMaxLines = 2e7;
constexpr double kMinSpanLength = 1e-9;

// Maps between scene coordinates and the hatch frame (u along the lines).
struct HatchFrame
{
    double c;
    double s;

    explicit HatchFrame(double angleDegrees)
        : c(std::cos(angleDegrees * M_PI / 180.0)), s(std::sin(angleDegrees * M_PI / 180.0))
    {
        // Exact axes for the usual right angles.
        if (std::fmod(angleDegrees, 90.0) == 0.0) {
            c = std::round(c);
            s = std::round(s);
        }
    }
    // Scene (x, y) -> machine (x, -y) -> rotated by -angle.
    double u(double x, double y) const { return x * c - y * s; }
    double v(double x, double y) const { return -x * s - y * c; }
    double x(double u, double v) const { return u * c - v * s; }
    double y(double u, double v) const { return -(u * s + v * c); }
};

struct Edge
{
    double vLow;
    double vHigh;
    double uAtLow;
    double slope; // du / dv
};

} // namespace

QVector<HatchLine> hatchLines(const QPainterPath &scenePath, const HatchSettings &settings)
{
    QVector<HatchLine> lines;
    const double spacing = settings.spacing;
    if (!(spacing > 0))
        return lines;
    const QVector<QPolygonF> polygons = closedPolygons(scenePath, kHatchTolerance);
    if (polygons.isEmpty())
        return lines;

    const HatchFrame frame(settings.angle);
    std::vector<Edge> edges;
    double vMin = std::numeric_limits<double>::infinity();
    double vMax = -vMin;
    for (const QPolygonF &poly : polygons) {
        const int n = poly.size();
        for (int i = 0; i < n; ++i) {
            const QPointF &a = poly[i];
            const QPointF &b = poly[(i + 1) % n];
            const double ua = frame.u(a.x(), a.y());
            const double va = frame.v(a.x(), a.y());
            const double ub = frame.u(b.x(), b.y());
            const double vb = frame.v(b.x(), b.y());
            if (va == vb)
                continue; // along a line: crosses none
            Edge e = va < vb ? Edge{va, vb, ua, (ub - ua) / (vb - va)}
                             : Edge{vb, va, ub, (ua - ub) / (va - vb)};
            vMin = std::min(vMin, e.vLow);
            vMax = std::max(vMax, e.vHigh);
            edges.push_back(e);
        }
    }
    if (edges.empty() || !std::isfinite(vMin) || !std::isfinite(vMax))
        return lines;
    if ((vMax - vMin) / spacing > kMaxLines)
        return lines;

    // Line k lies at v = (k + 0.5) * spacing; an edge counts on the lines with
    // vLow <= v < vHigh, so a vertex shared by two edges is crossed once.
    const long long first = (long long)std::ceil(vMin / spacing - 0.5);
    const long long last = (long long)std::ceil(vMax / spacing - 0.5) - 1;
    std::sort(edges.begin(), edges.end(),
              [](const Edge &a, const Edge &b) { return a.vLow < b.vLow; });

    std::vector<const Edge *> active;
    std::vector<double> crossings;
    size_t nextEdge = 0;
    for (long long k = first; k <= last; ++k) {
        const double v = (double(k) + 0.5) * spacing;
        while (nextEdge < edges.size() && edges[nextEdge].vLow <= v)
            active.push_back(&edges[nextEdge++]);
        active.erase(std::remove_if(active.begin(), active.end(),
                                    [v](const Edge *e) { return e->vHigh <= v; }),
                     active.end());
        crossings.clear();
        for (const Edge *e : active)
            crossings.push_back(e->uAtLow + (v - e->vLow) * e->slope);
        std::sort(crossings.begin(), crossings.end());
        HatchLine line;
        line.v = v;
        for (size_t i = 0; i + 1 < crossings.size(); i += 2) {
            if (crossings[i + 1] - crossings[i] > kMinSpanLength)
                line.spans.append({crossings[i], crossings[i + 1]});
        }
        lines.append(line);
    }
    // Trim empty lines at both ends; inner empty lines keep the numbering.
    while (!lines.isEmpty() && lines.last().spans.isEmpty())
        lines.removeLast();
    int lead = 0;
    while (lead < lines.size() && lines[lead].spans.isEmpty())
        ++lead;
    lines.remove(0, lead);
    return lines;
}

void hatchOutline(const QPainterPath &scenePath, const HatchSettings &settings, ToolpathSink &sink)
{
    const QVector<HatchLine> lines = hatchLines(scenePath, settings);
    if (lines.isEmpty())
        return;
    const HatchFrame frame(settings.angle);
    const double overscan = settings.overscan > 0 ? settings.overscan : 0.0;
    for (const OrderedSpan &o : orderHatchSpans(lines, settings.oneDirection)) {
        if (sink.stopRequested())
            return;
        const double v = lines[o.line].v;
        const HatchSpan &span = lines[o.line].spans[o.span];
        const double from = o.reversed ? span.u1 : span.u0;
        const double to = o.reversed ? span.u0 : span.u1;
        const double out = o.reversed ? -overscan : overscan;
        if (overscan > 0) {
            sink.travel(frame.x(from - out, v), frame.y(from - out, v));
            sink.coast(frame.x(from, v), frame.y(from, v));
            sink.burn(frame.x(to, v), frame.y(to, v));
            sink.coast(frame.x(to + out, v), frame.y(to + out, v));
        } else {
            sink.travel(frame.x(from, v), frame.y(from, v));
            sink.burn(frame.x(to, v), frame.y(to, v));
        }
    }
}

} // namespace lumitra
