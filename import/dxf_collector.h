// Collects the geometry of a DXF file as dxflib reports it, block by block, and expands
// the model space into one painter path (drawing units, y up).
#pragma once

#include "nurbs_curve.h"

#include <QHash>
#include <QPainterPath>
#include <QString>
#include <QTransform>
#include <QVector>
#include <dxflib/dl_creationadapter.h>

namespace lumitra {

// Where an entity came from: its layer and its colour (ACI; 256 by layer, 0 by block).
struct DxfKey
{
    QString layer;
    int colour = 256;
    bool operator==(const DxfKey &o) const { return layer == o.layer && colour == o.colour; }
};

// Geometry of one layer and resolved colour of the drawing (drawing units, y up).
struct DxfPart
{
    QString layer;
    int colour = 7; // ACI 1..255
    QPainterPath path;
};

struct DxfInsert
{
    int key = 0;
    QString block; // upper-case name
    QPointF at;
    double scaleX = 1, scaleY = 1, angleDegrees = 0;
    int columns = 1, rows = 1;
    double columnSpacing = 0, rowSpacing = 0;
    QTransform ocs; // object coordinate system to world x, y (identity for +Z)
};

struct DxfSpline
{
    int key = 0;
    NurbsCurve curve;
    QVector<QPointF> fitPoints;
    bool closed = false;
};

struct DxfBlock
{
    QPointF base;
    QPainterPath path; // lines, polylines and arcs (arcs as cubic segments)
    // Where each entity's elements start in `path`, with the entity's key.
    QVector<QPair<int, int>> marks;
    QVector<DxfSpline> splines;
    QVector<DxfInsert> inserts;
};

class DxfCollector : public DL_CreationAdapter
{
public:
    DxfCollector();

    // Drawing units per $INSUNITS in millimetres (1 when absent or unitless).
    double millimetresPerUnit() const { return m_mmPerUnit; }
    int unitsCode() const { return m_unitsCode; }

    // The model space with every insert expanded (scale, rotation, arrays, nesting up to
    // a fixed depth), splines flattened to within `toleranceMm`. False when the result
    // would exceed the element budget; *error then says why.
    bool buildModelSpace(double toleranceMm, QPainterPath *out, QString *error);
    // The same drawing split by layer and colour (by-layer colours from the layer table,
    // by-block colours and layer "0" inside blocks from the insert), in order of first
    // appearance.
    bool buildModelSpaceParts(double toleranceMm, QList<DxfPart> *out, QString *error);

    void addLayer(const DL_LayerData &data) override;

    void addPoint(const DL_PointData &) override;
    void addLine(const DL_LineData &data) override;
    void addArc(const DL_ArcData &data) override;
    void addCircle(const DL_CircleData &data) override;
    void addEllipse(const DL_EllipseData &data) override;
    void addPolyline(const DL_PolylineData &data) override;
    void addVertex(const DL_VertexData &data) override;
    void addSpline(const DL_SplineData &data) override;
    void addControlPoint(const DL_ControlPointData &data) override;
    void addKnot(const DL_KnotData &data) override;
    void addFitPoint(const DL_FitPointData &data) override;
    void addInsert(const DL_InsertData &data) override;
    void addBlock(const DL_BlockData &data) override;
    void endBlock() override;
    void endEntity() override;
    void endSequence() override;
    void endSection() override;
    void setVariableInt(const std::string &key, int value, int code) override;

private:
    struct PendingPolyline
    {
        QVector<QPointF> points;
        QVector<double> bulges;
        bool closed = false;
        QTransform ocs;
    };

    QHash<QString, DxfBlock> m_blocks;
    DxfBlock m_model;
    DxfBlock *m_target = nullptr; // where entities go now, or nullptr to drop them
    bool m_inBlock = false;
    PendingPolyline m_polyline;
    bool m_hasPolyline = false;
    DxfBlock *m_polylineTarget = nullptr;
    DxfSpline m_spline;
    bool m_hasSpline = false;
    DxfBlock *m_splineTarget = nullptr;
    double m_mmPerUnit = 1.0;
    int m_unitsCode = 0;
    QVector<DxfKey> m_keys;
    QHash<QString, int> m_layerColours;
    int m_polylineKey = 0;

    // The key of the entity being reported, as an index into m_keys.
    int currentKey();
    // Records that the entity with `key` starts at the end of the block's path.
    static void mark(DxfBlock *block, int key);

    // Finishes a polyline or spline whose vertices were still arriving.
    void flushPending();
    // The container of the entity being reported, or nullptr for paper space.
    DxfBlock *target();
    bool extrusionDown();
    // The entity's object coordinate system (arbitrary axis algorithm) seen from above:
    // OCS x, y at `elevation` to world x, y. The identity for an extrusion of +Z.
    QTransform ocsToWorld(double elevation);

    friend class DxfExpander;
};

} // namespace lumitra
