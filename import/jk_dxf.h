// The DXF reader: one DXF file into one painter path.
#pragma once

#include <QObject>
#include <QPainterPath>
#include <QString>

#include "dxf_collector.h"

// Reads LINE, LWPOLYLINE and POLYLINE (with bulges), CIRCLE, ARC, ELLIPSE and SPLINE
// (flattened to within 0.01 mm); INSERT expands its block with scale, rotation, arrays and
// nesting; POINT, text, dimensions and hatches are ignored, as is paper space. Coordinates
// are converted to millimetres by the drawing's $INSUNITS (unitless drawings are taken as
// millimetres). The y axis points up, as in the file. One reader per import, GUI thread.
class Jk_dxf : public QObject
{
    Q_OBJECT

public:
    // Spline flattening tolerance, millimetres.
    static constexpr double kSplineToleranceMm = 0.01;

    explicit Jk_dxf(QObject *parent = nullptr);

    // Parses the file at `path`; an unreadable or empty drawing gives an empty path and
    // lastError() says why.
    QPainterPath dxf_jie_xi(QString path);

    // Empty after a read that found geometry.
    QString lastError() const { return m_error; }
    // Millimetres per drawing unit used by the last read.
    double millimetresPerUnit() const { return m_mmPerUnit; }

    // Asked for before dxf_jie_xi: the drawing also split by layer and colour (see
    // DxfCollector::buildModelSpaceParts), in millimetres, y up.
    void setCollectParts(bool on) { m_collectParts = on; }
    const QList<lumitra::DxfPart> &parts() const { return m_parts; }

private:
    bool m_collectParts = false;
    QList<lumitra::DxfPart> m_parts;
    QString m_error;
    double m_mmPerUnit = 1.0;
};
