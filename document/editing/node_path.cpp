#include "node_path.h"

#include <QLineF>
#include <algorithm>
#include <cmath>
#include <limits>

namespace lumitra {

namespace {

QPointF lerp(const QPointF &a, const QPointF &b, double t)
{
    return a + (b - a) * t;
}

double distance(const QPointF &a, const QPointF &b)
{
    return QLineF(a, b).length();
}

QPointF cubicPoint(const QPointF &p0, const QPointF &c1, const QPointF &c2, const QPointF &p3,
                   double t)
{
    const double u = 1.0 - t;
    return p0 * (u * u * u) + c1 * (3 * u * u * t) + c2 * (3 * u * t * t) + p3 * (t * t * t);
}

// The parameter of the point of segment a..b nearest to p.
double nearestOnLine(const QPointF &a, const QPointF &b, const QPointF &p)
{
    const QPointF d = b - a;
    const double len2 = QPointF::dotProduct(d, d);
    if (len2 <= 0.0)
        return 0.0;
    return std::clamp(QPointF::dotProduct(p - a, d) / len2, 0.0, 1.0);
}

void finishSubpath(NodeSubpath *s, QVector<NodeSubpath> *out)
{
    if (s->nodes.isEmpty())
        return;
    // Closed: the last point is the first one again, after at least two segments.
    if (s->segments.size() >= 2 && s->nodes.last() == s->nodes.first()) {
        s->nodes.removeLast();
        s->closed = true;
    }
    out->append(*s);
    *s = NodeSubpath();
}

} // namespace

void splitCubic(const QPointF &p0, const QPointF &c1, const QPointF &c2, const QPointF &p3,
                double t, QPointF left[4], QPointF right[4])
{
    const QPointF a = lerp(p0, c1, t), b = lerp(c1, c2, t), c = lerp(c2, p3, t);
    const QPointF d = lerp(a, b, t), e = lerp(b, c, t);
    const QPointF f = lerp(d, e, t);
    left[0] = p0;
    left[1] = a;
    left[2] = d;
    left[3] = f;
    right[0] = f;
    right[1] = e;
    right[2] = c;
    right[3] = p3;
}

bool sameElements(const QPainterPath &a, const QPainterPath &b)
{
    if (a.elementCount() != b.elementCount() || a.fillRule() != b.fillRule())
        return false;
    for (int i = 0; i < a.elementCount(); ++i) {
        const QPainterPath::Element ea = a.elementAt(i), eb = b.elementAt(i);
        if (ea.type != eb.type || ea.x != eb.x || ea.y != eb.y)
            return false;
    }
    return true;
}

NodePath::NodePath(const QPainterPath &path) : m_fillRule(path.fillRule())
{
    NodeSubpath current;
    const int n = path.elementCount();
    for (int i = 0; i < n; ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        switch (e.type) {
        case QPainterPath::MoveToElement:
            finishSubpath(&current, &m_subpaths);
            current.nodes.append(QPointF(e.x, e.y));
            break;
        case QPainterPath::LineToElement:
            if (current.nodes.isEmpty())
                current.nodes.append(QPointF(0, 0));
            current.segments.append(NodeSegment());
            current.nodes.append(QPointF(e.x, e.y));
            break;
        case QPainterPath::CurveToElement: {
            if (i + 2 >= n)
                break;
            if (current.nodes.isEmpty())
                current.nodes.append(QPointF(0, 0));
            const QPainterPath::Element c2 = path.elementAt(i + 1);
            const QPainterPath::Element end = path.elementAt(i + 2);
            NodeSegment s;
            s.curve = true;
            s.c1 = QPointF(e.x, e.y);
            s.c2 = QPointF(c2.x, c2.y);
            current.segments.append(s);
            current.nodes.append(QPointF(end.x, end.y));
            i += 2;
            break;
        }
        case QPainterPath::CurveToDataElement:
            break; // read with its curve
        }
    }
    finishSubpath(&current, &m_subpaths);
}

QPainterPath NodePath::path() const
{
    QPainterPath out;
    out.setFillRule(m_fillRule);
    for (const NodeSubpath &s : m_subpaths) {
        if (s.nodes.isEmpty())
            continue;
        out.moveTo(s.nodes.first());
        for (int i = 0; i < s.segments.size(); ++i) {
            const NodeSegment &seg = s.segments.at(i);
            const QPointF &to = s.nodes.at(s.segmentEnd(i));
            if (seg.curve)
                out.cubicTo(seg.c1, seg.c2, to);
            else
                out.lineTo(to);
        }
    }
    return out;
}

int NodePath::nodeCount() const
{
    int n = 0;
    for (const NodeSubpath &s : m_subpaths)
        n += s.nodes.size();
    return n;
}

bool NodePath::validNode(const NodeRef &node) const
{
    return node.subpath >= 0 && node.subpath < m_subpaths.size() && node.node >= 0
           && node.node < m_subpaths.at(node.subpath).nodes.size();
}

bool NodePath::validSegment(int subpath, int segment) const
{
    return subpath >= 0 && subpath < m_subpaths.size() && segment >= 0
           && segment < m_subpaths.at(subpath).segments.size();
}

QPointF NodePath::nodePos(const NodeRef &node) const
{
    return validNode(node) ? m_subpaths.at(node.subpath).nodes.at(node.node) : QPointF();
}

QPointF NodePath::controlPos(const ControlRef &control) const
{
    if (!validSegment(control.subpath, control.segment))
        return QPointF();
    const NodeSegment &s = m_subpaths.at(control.subpath).segments.at(control.segment);
    return control.which == 0 ? s.c1 : s.c2;
}

bool NodePath::isEndNode(const NodeRef &node) const
{
    if (!validNode(node))
        return false;
    const NodeSubpath &s = m_subpaths.at(node.subpath);
    return !s.closed && (node.node == 0 || node.node == s.nodes.size() - 1);
}

NodeRef NodePath::nodeAt(const QPointF &p, double tolerance) const
{
    NodeRef best;
    double bestDistance = tolerance;
    for (int i = 0; i < m_subpaths.size(); ++i) {
        const QVector<QPointF> &nodes = m_subpaths.at(i).nodes;
        for (int k = 0; k < nodes.size(); ++k) {
            const double d = distance(nodes.at(k), p);
            if (d <= bestDistance) {
                bestDistance = d;
                best = {i, k};
            }
        }
    }
    return best;
}

ControlRef NodePath::controlAt(const QPointF &p, double tolerance) const
{
    ControlRef best;
    double bestDistance = tolerance;
    for (int i = 0; i < m_subpaths.size(); ++i) {
        const QVector<NodeSegment> &segments = m_subpaths.at(i).segments;
        for (int k = 0; k < segments.size(); ++k) {
            if (!segments.at(k).curve)
                continue;
            for (int which = 0; which < 2; ++which) {
                const double d = distance(which == 0 ? segments.at(k).c1 : segments.at(k).c2, p);
                if (d <= bestDistance) {
                    bestDistance = d;
                    best = {i, k, which};
                }
            }
        }
    }
    return best;
}

QPointF NodePath::pointOn(int subpath, int segment, double t) const
{
    if (!validSegment(subpath, segment))
        return QPointF();
    const NodeSubpath &s = m_subpaths.at(subpath);
    const NodeSegment &seg = s.segments.at(segment);
    const QPointF &a = s.nodes.at(segment);
    const QPointF &b = s.nodes.at(s.segmentEnd(segment));
    return seg.curve ? cubicPoint(a, seg.c1, seg.c2, b, t) : lerp(a, b, t);
}

SegmentHit NodePath::segmentAt(const QPointF &p, double tolerance) const
{
    SegmentHit best;
    best.distance = std::numeric_limits<double>::max();
    for (int i = 0; i < m_subpaths.size(); ++i) {
        const NodeSubpath &s = m_subpaths.at(i);
        for (int k = 0; k < s.segments.size(); ++k) {
            const NodeSegment &seg = s.segments.at(k);
            double t = 0.0;
            if (!seg.curve) {
                t = nearestOnLine(s.nodes.at(k), s.nodes.at(s.segmentEnd(k)), p);
            } else {
                // Coarse samples, then a few rounds of narrowing around the best.
                constexpr int kSamples = 64;
                double bestD = std::numeric_limits<double>::max();
                for (int j = 0; j <= kSamples; ++j) {
                    const double tj = double(j) / kSamples;
                    const double d = distance(pointOn(i, k, tj), p);
                    if (d < bestD) {
                        bestD = d;
                        t = tj;
                    }
                }
                double step = 1.0 / kSamples;
                for (int round = 0; round < 20; ++round) {
                    step *= 0.5;
                    for (const double tj : {t - step, t + step}) {
                        if (tj < 0.0 || tj > 1.0)
                            continue;
                        const double d = distance(pointOn(i, k, tj), p);
                        if (d < bestD) {
                            bestD = d;
                            t = tj;
                        }
                    }
                }
            }
            const double d = distance(pointOn(i, k, t), p);
            if (d <= tolerance && d < best.distance) {
                best.subpath = i;
                best.segment = k;
                best.t = t;
                best.distance = d;
            }
        }
    }
    return best.isValid() ? best : SegmentHit();
}

bool NodePath::moveNode(const NodeRef &node, const QPointF &pos)
{
    if (!validNode(node))
        return false;
    NodeSubpath &s = m_subpaths[node.subpath];
    const QPointF delta = pos - s.nodes.at(node.node);
    s.nodes[node.node] = pos;
    // The segment leaving the node and the one arriving at it.
    if (node.node < s.segments.size() && s.segments.at(node.node).curve)
        s.segments[node.node].c1 += delta;
    int incoming = node.node - 1;
    if (incoming < 0 && s.closed)
        incoming = s.segments.size() - 1;
    if (incoming >= 0 && incoming < s.segments.size() && s.segments.at(incoming).curve)
        s.segments[incoming].c2 += delta;
    return true;
}

bool NodePath::moveControl(const ControlRef &control, const QPointF &pos)
{
    if (!validSegment(control.subpath, control.segment))
        return false;
    NodeSegment &s = m_subpaths[control.subpath].segments[control.segment];
    if (!s.curve)
        return false;
    (control.which == 0 ? s.c1 : s.c2) = pos;
    return true;
}

bool NodePath::insertNode(int subpath, int segment, double t)
{
    if (!validSegment(subpath, segment) || !(t > 0.0 && t < 1.0))
        return false;
    NodeSubpath &s = m_subpaths[subpath];
    const NodeSegment seg = s.segments.at(segment);
    const QPointF a = s.nodes.at(segment);
    const QPointF b = s.nodes.at(s.segmentEnd(segment));
    NodeSegment first, second;
    QPointF at;
    if (seg.curve) {
        QPointF left[4], right[4];
        splitCubic(a, seg.c1, seg.c2, b, t, left, right);
        first = {true, left[1], left[2]};
        second = {true, right[1], right[2]};
        at = left[3];
    } else {
        at = lerp(a, b, t);
    }
    s.segments[segment] = first;
    s.segments.insert(segment + 1, second);
    s.nodes.insert(segment + 1, at);
    return true;
}

bool NodePath::deleteNode(const NodeRef &node)
{
    if (!validNode(node))
        return false;
    NodeSubpath &s = m_subpaths[node.subpath];
    const int k = node.node;
    const int count = s.nodes.size();
    if (!s.closed && (k == 0 || k == count - 1)) {
        // An end: its one segment goes with it.
        s.nodes.remove(k);
        if (!s.segments.isEmpty())
            s.segments.remove(k == 0 ? 0 : s.segments.size() - 1);
        if (s.nodes.size() < 2)
            m_subpaths.remove(node.subpath);
        return true;
    }
    if (count <= 2) { // a closed subpath with one or two nodes
        m_subpaths.remove(node.subpath);
        return true;
    }
    const int incoming = k > 0 ? k - 1 : s.segments.size() - 1;
    const NodeSegment in = s.segments.at(incoming);
    const NodeSegment out = s.segments.at(k);
    NodeSegment merged;
    if (in.curve || out.curve) {
        merged.curve = true;
        merged.c1 = in.curve ? in.c1 : s.nodes.at(incoming);
        merged.c2 = out.curve ? out.c2 : s.nodes.at(s.segmentEnd(k));
    }
    s.segments[incoming] = merged;
    s.segments.remove(k);
    s.nodes.remove(k);
    return true;
}

bool NodePath::setSegmentCurved(int subpath, int segment, bool curved)
{
    if (!validSegment(subpath, segment))
        return false;
    NodeSubpath &s = m_subpaths[subpath];
    NodeSegment &seg = s.segments[segment];
    if (seg.curve == curved)
        return false;
    const QPointF a = s.nodes.at(segment);
    const QPointF b = s.nodes.at(s.segmentEnd(segment));
    seg.curve = curved;
    if (curved) {
        seg.c1 = lerp(a, b, 1.0 / 3.0);
        seg.c2 = lerp(a, b, 2.0 / 3.0);
    } else {
        seg.c1 = seg.c2 = QPointF();
    }
    return true;
}

bool NodePath::breakAt(const NodeRef &node)
{
    if (!validNode(node))
        return false;
    NodeSubpath &s = m_subpaths[node.subpath];
    const int k = node.node;
    if (s.closed) {
        NodeSubpath open;
        const int n = s.nodes.size();
        for (int i = 0; i < n; ++i) {
            open.nodes.append(s.nodes.at((k + i) % n));
            open.segments.append(s.segments.at((k + i) % n));
        }
        open.nodes.append(s.nodes.at(k));
        s = open;
        return true;
    }
    if (k == 0 || k == s.nodes.size() - 1)
        return false;
    NodeSubpath tail;
    tail.nodes = s.nodes.mid(k);
    tail.segments = s.segments.mid(k);
    s.nodes.resize(k + 1);
    s.segments.resize(k);
    m_subpaths.insert(node.subpath + 1, tail);
    return true;
}

void NodePath::reverse(NodeSubpath *s)
{
    std::reverse(s->nodes.begin(), s->nodes.end());
    std::reverse(s->segments.begin(), s->segments.end());
    for (NodeSegment &seg : s->segments)
        std::swap(seg.c1, seg.c2);
}

bool NodePath::join(const NodeRef &a, const NodeRef &b)
{
    if (!isEndNode(a) || !isEndNode(b) || a == b)
        return false;
    if (a.subpath == b.subpath) {
        NodeSubpath &s = m_subpaths[a.subpath];
        if (s.nodes.first() == s.nodes.last() && s.segments.size() >= 2) {
            s.nodes.removeLast();
        } else {
            s.segments.append(NodeSegment());
        }
        s.closed = true;
        return true;
    }
    NodeSubpath first = m_subpaths.at(a.subpath);
    NodeSubpath second = m_subpaths.at(b.subpath);
    if (a.node == 0) // a must end the first
        reverse(&first);
    if (b.node != 0) // b must start the second
        reverse(&second);
    if (first.nodes.last() == second.nodes.first()) {
        first.nodes.removeLast();
    } else {
        first.segments.append(NodeSegment());
    }
    first.nodes += second.nodes;
    first.segments += second.segments;
    const int keep = std::min(a.subpath, b.subpath);
    const int drop = std::max(a.subpath, b.subpath);
    m_subpaths[keep] = first;
    m_subpaths.remove(drop);
    return true;
}

} // namespace lumitra
