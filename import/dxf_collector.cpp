#include "dxf_collector.h"

#include "arc_geometry.h"

#include <QCoreApplication>
#include <QDebug>
#include <QTransform>
#include <cmath>
#include <dxflib/dl_extrusion.h>

namespace lumitra {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kMaxInsertDepth = 16;
constexpr int kMaxElements = 5000000;
constexpr int kMaxArray = 10000;       // rows or columns of one insert
constexpr int kMaxExpansions = 200000; // block copies placed in one drawing

// Finite and within a range where sums and products of coordinates stay finite.
constexpr double kMaxMagnitude = 1e12;
bool finite(double a)
{
    return std::isfinite(a) && std::abs(a) <= kMaxMagnitude;
}
template<typename... T> bool finite(double a, T... rest)
{
    return finite(a) && finite(rest...);
}

// Millimetres per drawing unit for the $INSUNITS codes; unitless and unknown codes read as
// millimetres.
double unitsToMm(int code)
{
    switch (code) {
    case 1:
        return 25.4; // inches
    case 2:
        return 304.8; // feet
    case 3:
        return 1609344.0; // miles
    case 5:
        return 10.0; // centimetres
    case 6:
        return 1000.0; // metres
    case 7:
        return 1e6; // kilometres
    case 8:
        return 25.4e-6; // microinches
    case 9:
        return 0.0254; // mils
    case 10:
        return 914.4; // yards
    case 11:
        return 1e-7; // angstroms
    case 12:
        return 1e-6; // nanometres
    case 13:
        return 1e-3; // micrometres
    case 14:
        return 100.0; // decimetres
    case 15:
        return 10000.0; // decametres
    case 16:
        return 100000.0; // hectometres
    default:
        return 1.0;
    }
}

// Sweep from a1 to a2 turning counter-clockwise, in (0, full].
double ccwSweep(double a1, double a2, double full)
{
    double s = std::fmod(a2 - a1, full);
    if (s <= 1e-12)
        s += full;
    return s;
}

const QTransform kMirrorX(-1, 0, 0, 1, 0, 0);

// The largest factor by which a transform stretches a length.
double maxStretch(const QTransform &t)
{
    const double a = t.m11(), b = t.m12(), c = t.m21(), d = t.m22();
    const double s = a * a + b * b + c * c + d * d;
    const double det = a * d - b * c;
    return std::sqrt((s + std::sqrt(std::max(0.0, s * s - 4 * det * det))) / 2);
}

// A smooth curve through fit points (Catmull-Rom segments as cubics).
QPainterPath throughFitPoints(const QVector<QPointF> &p, bool closed)
{
    QPainterPath path;
    const int n = p.size();
    path.moveTo(p[0]);
    const int segments = closed ? n : n - 1;
    auto at = [&](int i) {
        if (closed)
            return p[(i % n + n) % n];
        return p[std::max(0, std::min(n - 1, i))];
    };
    for (int i = 0; i < segments; ++i) {
        const QPointF c1 = at(i) + (at(i + 1) - at(i - 1)) / 6.0;
        const QPointF c2 = at(i + 1) - (at(i + 2) - at(i)) / 6.0;
        path.cubicTo(c1, c2, at(i + 1));
    }
    return path;
}

} // namespace

class DxfExpander
{
public:
    DxfExpander(const DxfCollector &c, double toleranceUnits) : m_c(c), m_tolerance(toleranceUnits)
    {
    }

    // By layer and colour: the part for a key of the block, resolved against the insert
    // that placed the block (outer layer and colour; none at the model space).
    bool expandParts(const DxfBlock &block, const QTransform &t, int depth, const DxfKey *outer,
                     QList<DxfPart> &parts, int &elements)
    {
        for (int m = 0; m < block.marks.size(); ++m) {
            const int from = block.marks[m].first;
            const int to =
                m + 1 < block.marks.size() ? block.marks[m + 1].first : block.path.elementCount();
            QPainterPath piece;
            for (int i = from; i < to; ++i) {
                const QPainterPath::Element e = block.path.elementAt(i);
                if (e.isMoveTo()) {
                    piece.moveTo(e.x, e.y);
                } else if (e.isLineTo()) {
                    piece.lineTo(e.x, e.y);
                } else if (e.isCurveTo() && i + 2 < to) {
                    piece.cubicTo(QPointF(e.x, e.y), block.path.elementAt(i + 1),
                                  block.path.elementAt(i + 2));
                    i += 2;
                }
            }
            elements += piece.elementCount();
            if (elements > kMaxElements)
                return false;
            part(block.marks[m].second, outer, parts).addPath(t.map(piece));
        }
        const double stretch = std::max(maxStretch(t), 1e-12);
        for (const DxfSpline &s : block.splines) {
            QPainterPath local;
            if (s.curve.controlPoints.size() >= 2)
                local.addPolygon(
                    flattenNurbs(s.curve, m_tolerance / stretch, kMaxElements - elements));
            else
                local = throughFitPoints(s.fitPoints, s.closed);
            if (s.closed)
                local.closeSubpath();
            elements += local.elementCount();
            if (elements > kMaxElements)
                return false;
            part(s.key, outer, parts).addPath(t.map(local));
        }
        for (const DxfInsert &ins : block.inserts) {
            const auto it = m_c.m_blocks.constFind(ins.block);
            if (it == m_c.m_blocks.constEnd() || depth >= kMaxInsertDepth)
                continue;
            const DxfKey here = resolve(ins.key, outer);
            for (int col = 0; col < ins.columns; ++col)
                for (int row = 0; row < ins.rows; ++row) {
                    if (++m_expansions > kMaxExpansions
                        || !expandParts(*it, placement(*it, ins, col, row) * t, depth + 1, &here,
                                        parts, elements))
                        return false;
                }
        }
        return true;
    }

    bool expand(const DxfBlock &block, const QTransform &t, int depth, QPainterPath &out)
    {
        if (out.elementCount() + block.path.elementCount() > kMaxElements)
            return false;
        out.addPath(t.map(block.path));
        const double stretch = std::max(maxStretch(t), 1e-12);
        for (const DxfSpline &s : block.splines) {
            QPainterPath local;
            if (s.curve.controlPoints.size() >= 2) {
                const QPolygonF poly =
                    flattenNurbs(s.curve, m_tolerance / stretch, kMaxElements - out.elementCount());
                local.addPolygon(poly);
            } else {
                local = throughFitPoints(s.fitPoints, s.closed);
            }
            if (s.closed)
                local.closeSubpath();
            out.addPath(t.map(local));
            if (out.elementCount() > kMaxElements)
                return false;
        }
        for (const DxfInsert &ins : block.inserts) {
            const auto it = m_c.m_blocks.constFind(ins.block);
            if (it == m_c.m_blocks.constEnd())
                continue;
            if (depth >= kMaxInsertDepth) {
                if (!m_depthReported)
                    qDebug() << "dxf: insert nesting too deep" << ins.block;
                m_depthReported = true;
                continue;
            }
            for (int col = 0; col < ins.columns; ++col)
                for (int row = 0; row < ins.rows; ++row) {
                    const QTransform place = placement(*it, ins, col, row);
                    if (++m_expansions > kMaxExpansions || !expand(*it, place * t, depth + 1, out))
                        return false;
                }
        }
        return true;
    }

private:
    static QTransform placement(const DxfBlock &b, const DxfInsert &ins, int col, int row)
    {
        QTransform place =
            QTransform::fromTranslate(-b.base.x(), -b.base.y())
            * QTransform::fromScale(ins.scaleX, ins.scaleY)
            * QTransform::fromTranslate(col * ins.columnSpacing, row * ins.rowSpacing);
        place = place * QTransform().rotate(ins.angleDegrees)
                * QTransform::fromTranslate(ins.at.x(), ins.at.y());
        if (!ins.ocs.isIdentity())
            place = place * ins.ocs;
        return place;
    }

    // Layer "0" and by-block colours take the placing insert's; by-layer colours the
    // layer's (7 when the table does not say).
    DxfKey resolve(int keyIndex, const DxfKey *outer) const
    {
        DxfKey k = m_c.m_keys.value(keyIndex);
        if (outer && (k.layer == QLatin1String("0") || k.layer.isEmpty()))
            k.layer = outer->layer;
        if (k.colour == 0)
            k.colour = outer ? outer->colour : 7;
        if (k.colour == 256 || k.colour < 0 || k.colour > 256)
            k.colour = std::abs(m_c.m_layerColours.value(k.layer.toUpper(), 7));
        if (k.colour < 1 || k.colour > 255)
            k.colour = 7;
        return k;
    }

    QPainterPath &part(int keyIndex, const DxfKey *outer, QList<DxfPart> &parts) const
    {
        const DxfKey k = resolve(keyIndex, outer);
        for (DxfPart &p : parts)
            if (p.layer == k.layer && p.colour == k.colour)
                return p.path;
        parts.append(DxfPart{k.layer, k.colour, QPainterPath()});
        return parts.last().path;
    }

    const DxfCollector &m_c;
    double m_tolerance;
    int m_expansions = 0;
    bool m_depthReported = false;
};

DxfCollector::DxfCollector() = default;

bool DxfCollector::buildModelSpace(double toleranceMm, QPainterPath *out, QString *error)
{
    flushPending();
    QPainterPath model;
    DxfExpander expander(*this, toleranceMm / m_mmPerUnit);
    if (!expander.expand(m_model, QTransform(), 0, model)) {
        *error = QCoreApplication::translate("DxfImport", "DXF 图形过于复杂");
        return false;
    }
    *out = model;
    return true;
}

bool DxfCollector::buildModelSpaceParts(double toleranceMm, QList<DxfPart> *out, QString *error)
{
    flushPending();
    QList<DxfPart> parts;
    int elements = 0;
    DxfExpander expander(*this, toleranceMm / m_mmPerUnit);
    if (!expander.expandParts(m_model, QTransform(), 0, nullptr, parts, elements)) {
        *error = QCoreApplication::translate("DxfImport", "DXF 图形过于复杂");
        return false;
    }
    *out = parts;
    return true;
}

int DxfCollector::currentKey()
{
    const DL_Attributes &a = getAttributes();
    const DxfKey key{QString::fromStdString(a.getLayer()), a.getColor()};
    const int i = m_keys.indexOf(key);
    if (i >= 0)
        return i;
    m_keys.append(key);
    return m_keys.size() - 1;
}

void DxfCollector::mark(DxfBlock *block, int key)
{
    const int at = block->path.elementCount();
    if (!block->marks.isEmpty() && block->marks.last().first == at)
        block->marks.last().second = key; // the previous entity added nothing
    else if (block->marks.isEmpty() || block->marks.last().second != key)
        block->marks.append(qMakePair(at, key));
}

void DxfCollector::addLayer(const DL_LayerData &data)
{
    m_layerColours.insert(QString::fromStdString(data.name).toUpper(), getAttributes().getColor());
}

DxfBlock *DxfCollector::target()
{
    if (m_inBlock)
        return m_target;
    if (getAttributes().isInPaperSpace())
        return nullptr;
    return &m_model;
}

bool DxfCollector::extrusionDown()
{
    const DL_Extrusion *e = getExtrusion();
    return e && e->getDirection() && e->getDirection()[2] < 0;
}

QTransform DxfCollector::ocsToWorld(double elevation)
{
    const DL_Extrusion *e = getExtrusion();
    if (!e || !e->getDirection())
        return QTransform();
    const double *d = e->getDirection();
    const double len = std::sqrt(d[0] * d[0] + d[1] * d[1] + d[2] * d[2]);
    if (!finite(d[0], d[1], d[2]) || !(len > 1e-12))
        return QTransform();
    const double n[3] = {d[0] / len, d[1] / len, d[2] / len};
    if (n[0] == 0 && n[1] == 0)
        return n[2] > 0 ? QTransform() : kMirrorX;
    // Arbitrary axis algorithm: Ax = Wy x N near the poles, else Wz x N; Ay = N x Ax.
    double ax[3];
    if (std::abs(n[0]) < 1.0 / 64 && std::abs(n[1]) < 1.0 / 64) {
        ax[0] = n[2];
        ax[1] = 0;
        ax[2] = -n[0];
    } else {
        ax[0] = -n[1];
        ax[1] = n[0];
        ax[2] = 0;
    }
    const double al = std::sqrt(ax[0] * ax[0] + ax[1] * ax[1] + ax[2] * ax[2]);
    for (double &v : ax)
        v /= al;
    const double ay[3] = {n[1] * ax[2] - n[2] * ax[1], n[2] * ax[0] - n[0] * ax[2],
                          n[0] * ax[1] - n[1] * ax[0]};
    const double z = finite(elevation) ? elevation : 0.0;
    return QTransform(ax[0], ax[1], ay[0], ay[1], z * n[0], z * n[1]);
}

void DxfCollector::flushPending()
{
    if (m_hasPolyline) {
        m_hasPolyline = false;
        DxfBlock *to = m_polylineTarget;
        const QVector<QPointF> &p = m_polyline.points;
        if (to && !p.isEmpty()) {
            QPainterPath local;
            local.moveTo(p[0]);
            for (int i = 0; i + 1 < p.size(); ++i)
                appendBulgeArc(local, p[i], p[i + 1], m_polyline.bulges[i]);
            if (m_polyline.closed && p.size() > 1) {
                appendBulgeArc(local, p.last(), p[0], m_polyline.bulges.last());
                local.closeSubpath();
            }
            if (local.elementCount() > 1)
                mark(to, m_polylineKey);
            if (local.elementCount() > 1)
                to->path.addPath(m_polyline.ocs.isIdentity() ? local : m_polyline.ocs.map(local));
        }
        m_polyline = PendingPolyline();
    }
    if (m_hasSpline) {
        m_hasSpline = false;
        DxfBlock *to = m_splineTarget;
        if (to) {
            if (m_spline.curve.controlPoints.size() >= 2) {
                if (m_spline.curve.normalise())
                    to->splines.append(m_spline);
            } else if (m_spline.fitPoints.size() >= 2) {
                to->splines.append(m_spline);
            }
        }
        m_spline = DxfSpline();
    }
}

void DxfCollector::addPoint(const DL_PointData &)
{
    flushPending(); // points carry no outline
}

void DxfCollector::addLine(const DL_LineData &d)
{
    flushPending();
    DxfBlock *to = target();
    if (!to || !finite(d.x1, d.y1, d.x2, d.y2))
        return;
    mark(to, currentKey());
    to->path.moveTo(d.x1, d.y1);
    to->path.lineTo(d.x2, d.y2);
}

void DxfCollector::addArc(const DL_ArcData &d)
{
    flushPending();
    DxfBlock *to = target();
    if (!to || !finite(d.cx, d.cy, d.radius, d.angle1, d.angle2) || !(d.radius > 0))
        return;
    const double a1 = d.angle1 * kPi / 180.0;
    const double sweep = ccwSweep(a1, d.angle2 * kPi / 180.0, 2 * kPi);
    const QPointF c(d.cx, d.cy);
    QPainterPath local;
    local.moveTo(ellipsePoint(c, d.radius, d.radius, 0, a1));
    appendEllipticArc(local, c, d.radius, d.radius, 0, a1, sweep);
    const QTransform ocs = ocsToWorld(d.cz);
    mark(to, currentKey());
    to->path.addPath(ocs.isIdentity() ? local : ocs.map(local));
}

void DxfCollector::addCircle(const DL_CircleData &d)
{
    flushPending();
    DxfBlock *to = target();
    if (!to || !finite(d.cx, d.cy, d.radius) || !(d.radius > 0))
        return;
    const QTransform ocs = ocsToWorld(d.cz);
    mark(to, currentKey());
    if (!ocs.isIdentity() && ocs != kMirrorX) {
        // A tilted circle is seen as an ellipse.
        QPainterPath local;
        local.moveTo(d.cx + d.radius, d.cy);
        appendEllipticArc(local, QPointF(d.cx, d.cy), d.radius, d.radius, 0, 0, 2 * kPi);
        local.closeSubpath();
        to->path.addPath(ocs.map(local));
        return;
    }
    const QPointF c(extrusionDown() ? -d.cx : d.cx, d.cy);
    to->path.moveTo(c.x() + d.radius, c.y());
    appendEllipticArc(to->path, c, d.radius, d.radius, 0, 0, 2 * kPi);
    to->path.closeSubpath();
}

void DxfCollector::addEllipse(const DL_EllipseData &d)
{
    flushPending();
    DxfBlock *to = target();
    if (!to || !finite(d.cx, d.cy, d.mx, d.my, d.ratio, d.angle1, d.angle2) || !(d.ratio > 0))
        return;
    const double rx = std::hypot(d.mx, d.my);
    if (!(rx > 0))
        return;
    const double ry = rx * d.ratio;
    mark(to, currentKey());
    const double phi = std::atan2(d.my, d.mx);
    const QPointF c(d.cx, d.cy);
    double start = d.angle1;
    double sweep = ccwSweep(d.angle1, d.angle2, 2 * kPi);
    const DL_Extrusion *e = getExtrusion();
    const double *n = e ? e->getDirection() : nullptr;
    if (n && finite(n[0], n[1], n[2], d.mz) && (n[0] != 0 || n[1] != 0)) {
        // Centre and major axis are world points; the minor axis is ratio * (N x major)
        // normalised to N. Seen from above, the unit circle maps onto the ellipse.
        const double len = std::sqrt(n[0] * n[0] + n[1] * n[1] + n[2] * n[2]);
        const double nx = n[0] / len, ny = n[1] / len, nz = n[2] / len;
        const double minorX = d.ratio * (ny * d.mz - nz * d.my);
        const double minorY = d.ratio * (nz * d.mx - nx * d.mz);
        const QTransform onto(d.mx, d.my, minorX, minorY, d.cx, d.cy);
        QPainterPath local;
        local.moveTo(ellipsePoint(QPointF(), 1, 1, 0, start));
        appendEllipticArc(local, QPointF(), 1, 1, 0, start, sweep);
        if (std::abs(sweep - 2 * kPi) < 1e-9)
            local.closeSubpath();
        to->path.addPath(onto.map(local));
        return;
    }
    if (extrusionDown()) {
        // The minor axis points the other way: the same arc runs at negated parameters.
        start = -start;
        sweep = -sweep;
    }
    to->path.moveTo(ellipsePoint(c, rx, ry, phi, start));
    appendEllipticArc(to->path, c, rx, ry, phi, start, sweep);
    if (std::abs(std::abs(sweep) - 2 * kPi) < 1e-9)
        to->path.closeSubpath();
}

void DxfCollector::addPolyline(const DL_PolylineData &d)
{
    flushPending();
    // Polygon meshes and polyface meshes carry faces, not outlines.
    if (d.flags & (16 | 64))
        return;
    m_hasPolyline = true;
    m_polylineTarget = target();
    m_polylineKey = currentKey();
    m_polyline.closed = d.flags & 1;
    // 3D polylines have world vertices; the others lie in their object coordinate system.
    m_polyline.ocs = (d.flags & 8) ? QTransform() : ocsToWorld(d.elevation);
}

void DxfCollector::addVertex(const DL_VertexData &d)
{
    if (!m_hasPolyline || !finite(d.x, d.y))
        return;
    m_polyline.points.append(QPointF(d.x, d.y));
    m_polyline.bulges.append(finite(d.bulge) ? d.bulge : 0.0);
}

void DxfCollector::addSpline(const DL_SplineData &d)
{
    flushPending();
    m_hasSpline = true;
    m_splineTarget = target();
    m_spline.key = currentKey();
    m_spline.curve.degree = int(d.degree);
    m_spline.closed = d.flags & 1;
}

void DxfCollector::addControlPoint(const DL_ControlPointData &d)
{
    if (!m_hasSpline)
        return;
    m_spline.curve.controlPoints.append(QPointF(d.x, d.y));
    m_spline.curve.weights.append(d.w);
}

void DxfCollector::addKnot(const DL_KnotData &d)
{
    if (m_hasSpline)
        m_spline.curve.knots.append(d.k);
}

void DxfCollector::addFitPoint(const DL_FitPointData &d)
{
    if (m_hasSpline && finite(d.x, d.y))
        m_spline.fitPoints.append(QPointF(d.x, d.y));
}

void DxfCollector::addInsert(const DL_InsertData &d)
{
    flushPending();
    DxfBlock *to = target();
    if (!to || !finite(d.ipx, d.ipy, d.sx, d.sy, d.angle, d.colSp, d.rowSp))
        return;
    DxfInsert ins;
    ins.key = currentKey();
    ins.block = QString::fromStdString(d.name).toUpper();
    ins.at = QPointF(d.ipx, d.ipy);
    ins.scaleX = d.sx;
    ins.scaleY = d.sy;
    ins.angleDegrees = d.angle;
    ins.columns = std::max(1, std::min(d.cols, kMaxArray));
    ins.rows = std::max(1, std::min(d.rows, kMaxArray));
    ins.columnSpacing = d.colSp;
    ins.rowSpacing = d.rowSp;
    ins.ocs = ocsToWorld(d.ipz);
    to->inserts.append(ins);
}

void DxfCollector::addBlock(const DL_BlockData &d)
{
    flushPending();
    const QString name = QString::fromStdString(d.name).toUpper();
    m_inBlock = true;
    // The layout blocks hold what the ENTITIES section already has (or paper space).
    if (name.startsWith(QLatin1String("*MODEL_SPACE"))
        || name.startsWith(QLatin1String("*PAPER_SPACE"))) {
        m_target = nullptr;
        return;
    }
    DxfBlock &block = m_blocks[name];
    block = DxfBlock();
    block.base = finite(d.bpx, d.bpy) ? QPointF(d.bpx, d.bpy) : QPointF();
    m_target = &block;
}

void DxfCollector::endBlock()
{
    flushPending();
    m_inBlock = false;
    m_target = nullptr;
}

void DxfCollector::endEntity() {}

void DxfCollector::endSequence()
{
    flushPending();
}

void DxfCollector::endSection()
{
    // The parser reports this at every entity boundary, not only at ENDSEC, so it cannot
    // close anything: pending entities are finished by the next entity instead.
}

void DxfCollector::setVariableInt(const std::string &key, int value, int)
{
    if (key == "$INSUNITS") {
        m_unitsCode = value;
        m_mmPerUnit = unitsToMm(value);
    }
}

} // namespace lumitra
