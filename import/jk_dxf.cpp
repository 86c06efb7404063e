#include "jk_dxf.h"

#include "dxf_collector.h"
#include "dxf_prepare.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QTransform>
#include <cmath>
#include <dxflib/dl_dxf.h>
#include <new>
#include <sstream>

namespace {
constexpr double kMaxCoordinateMm = 1e6; // one kilometre either way
QString tr(const char *text)
{
    return QCoreApplication::translate("DxfImport", text);
}
} // namespace

Jk_dxf::Jk_dxf(QObject *parent) : QObject(parent) {}

QPainterPath Jk_dxf::dxf_jie_xi(QString path)
{
    m_error.clear();
    m_mmPerUnit = 1.0;
    m_parts.clear();
    const QFileInfo info(path);
    if (!info.isFile() || !info.isReadable()) {
        m_error = tr("无法打开文件") + QStringLiteral(": ") + path;
        return QPainterPath();
    }
    // The parser gets the file only after it has been checked and normalised.
    std::string text;
    if (!lumitra::readDxfForParser(path, &text, &m_error))
        return QPainterPath();

    lumitra::DxfCollector collector;
    bool read = false;
    try {
        std::istringstream stream(text);
        text = std::string();
        DL_Dxf dxf;
        read = dxf.in(stream, &collector);
    } catch (const std::exception &e) {
        qDebug() << "dxf: parser failed" << e.what();
        read = false;
    } catch (...) {
        read = false;
    }
    if (!read) {
        m_error = tr("DXF 文件无法读取");
        return QPainterPath();
    }
    QPainterPath units;
    if (!collector.buildModelSpace(kSplineToleranceMm, &units, &m_error))
        return QPainterPath();
    m_mmPerUnit = collector.millimetresPerUnit();
    QPainterPath mm =
        m_mmPerUnit == 1.0 ? units : QTransform::fromScale(m_mmPerUnit, m_mmPerUnit).map(units);
    const QRectF box = mm.controlPointRect();
    const double extremes[] = {box.left(), box.right(), box.top(), box.bottom()};
    for (double v : extremes)
        if (!std::isfinite(v) || std::abs(v) > kMaxCoordinateMm) {
            m_error = tr("DXF 坐标超出范围");
            return QPainterPath();
        }
    if (mm.elementCount() < 2) {
        m_error = tr("DXF 文件中没有可导入的图形");
        return mm;
    }
    if (m_collectParts) {
        QString error;
        if (collector.buildModelSpaceParts(kSplineToleranceMm, &m_parts, &error))
            for (lumitra::DxfPart &p : m_parts)
                if (m_mmPerUnit != 1.0)
                    p.path = QTransform::fromScale(m_mmPerUnit, m_mmPerUnit).map(p.path);
    }
    return mm;
}
