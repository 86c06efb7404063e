// Test helpers for barcodes: a black-and-white picture of outlines and a run
// of the independent zbarimg decoder over it.
#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtMath>

namespace barcode_test {

// `paths` (mm) drawn black on white, `pxPerMm` pixels a millimetre, the frame
// `frameMm` filling the picture. No antialiasing: every module is crisp.
inline QImage renderBlackWhite(const QList<QPainterPath> &paths, const QRectF &frameMm,
                               double pxPerMm)
{
    const QSize size(qCeil(frameMm.width() * pxPerMm), qCeil(frameMm.height() * pxPerMm));
    QImage img(size, QImage::Format_RGB32);
    img.fill(Qt::white);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, false);
    p.scale(pxPerMm, pxPerMm);
    p.translate(-frameMm.topLeft());
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::black);
    for (const QPainterPath &path : paths)
        p.drawPath(path);
    p.end();
    return img.convertToFormat(QImage::Format_Mono);
}

inline QString zbarimg()
{
    return QStandardPaths::findExecutable(QStringLiteral("zbarimg"));
}

// What zbarimg reads from the picture (one symbol per line), or "" when it
// reads nothing.
inline QString decode(const QImage &img)
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("symbol.png"));
    if (!img.save(file))
        return QString();
    QProcess proc;
    proc.start(zbarimg(), {QStringLiteral("--raw"), QStringLiteral("-q"), file});
    if (!proc.waitForFinished(30000))
        return QString();
    return QString::fromUtf8(proc.readAllStandardOutput()).trimmed();
}

} // namespace barcode_test
