// The nodes and control points of an outline, for editing it node by node.
//
// An outline (QPainterPath) is read as subpaths; each is a list of nodes and
// the segments between them, a segment being a straight line or a cubic curve
// with two control points. A subpath is closed when its last point is its
// first one (what closeSubpath and the shape builders write); the segment back
// to the first node is then the last segment, and the first node is not
// repeated. path() writes the same elements back, so an outline that was not
// edited comes back element for element.
//
// Every edit returns false and leaves the outline alone when it does not apply
// (a bad index, breaking an open path at its end, ...). Pure geometry in the
// item's own coordinates (mm); any thread.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QVector>

namespace lumitra {

struct NodeSegment
{
    bool curve = false;
    QPointF c1; // control points; unused by a line
    QPointF c2;
};

struct NodeSubpath
{
    QVector<QPointF> nodes;
    // segments[i] runs from nodes[i] to nodes[i + 1], or back to nodes[0] for
    // the last segment of a closed subpath.
    QVector<NodeSegment> segments;
    bool closed = false;

    int segmentCount() const { return segments.size(); }
    int segmentEnd(int segment) const { return (segment + 1) % nodes.size(); }
};

// A node: subpath and node index.
struct NodeRef
{
    int subpath = -1;
    int node = -1;
    bool isValid() const { return subpath >= 0 && node >= 0; }
    bool operator==(const NodeRef &o) const { return subpath == o.subpath && node == o.node; }
};

// A control point: the segment it shapes and which of its two (0: c1, near
// the segment's start node; 1: c2, near its end node).
struct ControlRef
{
    int subpath = -1;
    int segment = -1;
    int which = 0;
    bool isValid() const { return subpath >= 0 && segment >= 0; }
};

// A point on a segment, at the curve parameter t in [0, 1].
struct SegmentHit
{
    int subpath = -1;
    int segment = -1;
    double t = 0.0;
    double distance = 0.0;
    bool isValid() const { return subpath >= 0 && segment >= 0; }
};

class NodePath
{
public:
    NodePath() = default;
    explicit NodePath(const QPainterPath &path);

    QPainterPath path() const;

    const QVector<NodeSubpath> &subpaths() const { return m_subpaths; }
    int nodeCount() const;
    QPointF nodePos(const NodeRef &node) const;
    QPointF controlPos(const ControlRef &control) const;
    bool isEndNode(const NodeRef &node) const; // an end of an open subpath

    // Finding what lies near a point (within `tolerance`).
    NodeRef nodeAt(const QPointF &p, double tolerance) const;
    ControlRef controlAt(const QPointF &p, double tolerance) const;
    SegmentHit segmentAt(const QPointF &p, double tolerance) const;
    // The point of a segment at t.
    QPointF pointOn(int subpath, int segment, double t) const;

    // Moves a node to `pos`; the control points at its sides move with it.
    bool moveNode(const NodeRef &node, const QPointF &pos);
    bool moveControl(const ControlRef &control, const QPointF &pos);
    // Puts a node on a segment at t, 0 < t < 1, without changing the shape
    // (a curve is split by de Casteljau). The new node is the segment's end + 1.
    bool insertNode(int subpath, int segment, double t);
    // Removes a node; the segments at its sides become one (a curve when either
    // was). A subpath left with one node (open) or none goes away.
    bool deleteNode(const NodeRef &node);
    // A line becomes a curve of the same shape (control points at a third and
    // two thirds) and a curve becomes the straight line between its nodes.
    bool setSegmentCurved(int subpath, int segment, bool curved);
    // A closed subpath opens at the node (it becomes both ends); an open one is
    // cut in two there. An end of an open subpath cannot be broken.
    bool breakAt(const NodeRef &node);
    // Joins two ends of open subpaths: the ends of one subpath close it, ends of
    // two subpaths make one. Ends at the same place become one node; otherwise
    // a straight segment joins them.
    bool join(const NodeRef &a, const NodeRef &b);

private:
    bool validNode(const NodeRef &node) const;
    bool validSegment(int subpath, int segment) const;
    static void reverse(NodeSubpath *s);

    QVector<NodeSubpath> m_subpaths;
    Qt::FillRule m_fillRule = Qt::OddEvenFill;
};

// Splits the cubic (p0, c1, c2, p3) at t into two cubics: `left` and `right`
// hold their four points each.
void splitCubic(const QPointF &p0, const QPointF &c1, const QPointF &c2, const QPointF &p3,
                double t, QPointF left[4], QPointF right[4]);

// True when both outlines have the same elements in the same order with the
// same exact coordinates, and the same fill rule.
bool sameElements(const QPainterPath &a, const QPainterPath &b);

} // namespace lumitra
