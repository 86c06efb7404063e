#include "project_stream.h"

#include <QBuffer>
#include <QDataStream>
#include <QDebug>
#include <QImage>
#include <QPainterPath>
#include <QTransform>
#include <QtEndian>
#include <cmath>

namespace {
constexpr qint64 kPathElementBytes = 4 + 8 + 8; // type, x, y
constexpr qint64 kPathTrailerBytes = 4 + 4;     // start of last subpath, fill rule
// Deflate never expands data by more than 1032 times; a little slack on top.
constexpr qint64 kMaxInflateRatio = 1040;
constexpr qint64 kInflateSlack = 4096;

bool fail(QDataStream &in, QDataStream::Status status, const char *what)
{
    in.setStatus(status);
    qDebug() << " project read:" << what;
    return false;
}

qint64 remaining(const QDataStream &in)
{
    return in.device() ? in.device()->bytesAvailable() : 0;
}

bool readExact(QDataStream &in, qint64 size, QByteArray &out)
{
    if (size > remaining(in))
        return fail(in, QDataStream::ReadPastEnd, "cut short");
    out.resize(int(size));
    if (in.readRawData(out.data(), int(size)) != size)
        return fail(in, QDataStream::ReadPastEnd, "cut short");
    return true;
}

// A stream over `bytes` that reads like `like`.
void prepare(QDataStream &s, const QDataStream &like)
{
    s.setByteOrder(like.byteOrder());
    s.setVersion(like.version());
}

// The element list of a stored path must be one the library could have made:
// it starts with a move, every curve is followed by exactly two control points,
// every coordinate is finite, and the trailer names a move and a fill rule.
bool pathElementsValid(const QByteArray &block, const QDataStream &like)
{
    QDataStream s(block);
    prepare(s, like);
    qint32 count = 0;
    s >> count;
    QVector<qint32> types;
    types.reserve(count);
    int pendingControls = 0;
    for (qint32 i = 0; i < count; ++i) {
        qint32 type = 0;
        double x = 0, y = 0;
        s >> type >> x >> y;
        if (!std::isfinite(x) || !std::isfinite(y) || type < 0 || type > 3)
            return false;
        const bool control = type == QPainterPath::CurveToDataElement;
        if (control != (pendingControls > 0))
            return false;
        if (i == 0 && type != QPainterPath::MoveToElement)
            return false;
        pendingControls = type == QPainterPath::CurveToElement ? 2 : qMax(0, pendingControls - 1);
        types.append(type);
    }
    qint32 subpathStart = 0, fillRule = 0;
    s >> subpathStart >> fillRule;
    return pendingControls == 0 && s.status() == QDataStream::Ok && subpathStart >= 0
           && subpathStart < count && types.at(subpathStart) == QPainterPath::MoveToElement
           && (fillRule == Qt::OddEvenFill || fillRule == Qt::WindingFill);
}

struct PngHeader
{
    qint64 width = 0;
    qint64 height = 0;
    int bitsPerPixel = 0;
};

bool parseHeader(const QByteArray &body, PngHeader &h)
{
    const auto *d = reinterpret_cast<const uchar *>(body.constData());
    h.width = qFromBigEndian<quint32>(d);
    h.height = qFromBigEndian<quint32>(d + 4);
    const int depth = d[8];
    int channels = 0;
    switch (d[9]) {
    case 0:
        channels = 1;
        break; // grey
    case 2:
        channels = 3;
        break; // RGB
    case 3:
        channels = 1;
        break; // palette
    case 4:
        channels = 2;
        break; // grey and alpha
    case 6:
        channels = 4;
        break; // RGBA
    default:
        return false;
    }
    if (depth != 1 && depth != 2 && depth != 4 && depth != 8 && depth != 16)
        return false;
    h.bitsPerPixel = channels * depth;
    return h.width > 0 && h.height > 0 && h.width * h.height <= kMaxProjectImagePixels;
}
} // namespace

bool readPathChecked(QDataStream &in, QPainterPath &path)
{
    qint32 count = 0;
    in >> count;
    if (in.status() != QDataStream::Ok)
        return false;
    if (count == 0) { // the library writes an empty path as a lone zero
        path = QPainterPath();
        return true;
    }
    if (count < 0)
        return fail(in, QDataStream::ReadCorruptData, "path size");
    const qint64 size = count * kPathElementBytes + kPathTrailerBytes;
    QByteArray body;
    if (!readExact(in, size, body))
        return false;

    QByteArray block;
    {
        QDataStream w(&block, QIODevice::WriteOnly);
        prepare(w, in);
        w << count;
    }
    block.append(body);
    if (!pathElementsValid(block, in))
        return fail(in, QDataStream::ReadCorruptData, "path elements");
    QDataStream r(block);
    prepare(r, in);
    r >> path;
    return r.status() == QDataStream::Ok || fail(in, QDataStream::ReadCorruptData, "path decode");
}

bool readImageChecked(QDataStream &in, QImage &image)
{
    qint32 marker = 0;
    in >> marker;
    if (in.status() != QDataStream::Ok)
        return false;
    if (marker == 0) { // null image
        image = QImage();
        return true;
    }
    if (marker != 1)
        return fail(in, QDataStream::ReadCorruptData, "image marker");

    static const QByteArray kSignature("\x89PNG\r\n\x1a\n", 8);
    QByteArray png;
    if (!readExact(in, 8, png))
        return false;
    if (png != kSignature)
        return fail(in, QDataStream::ReadCorruptData, "image signature");

    PngHeader header;
    qint64 compressed = 0;
    for (bool first = true;; first = false) {
        QByteArray head, body;
        if (!readExact(in, 8, head))
            return false;
        const quint32 length = qFromBigEndian<quint32>(head.constData());
        const QByteArray type = head.mid(4, 4);
        if (length > 0x7fffffffu)
            return fail(in, QDataStream::ReadCorruptData, "image chunk");
        if (!readExact(in, qint64(length) + 4, body)) // data and CRC
            return false;
        if (first && (type != "IHDR" || length != 13 || !parseHeader(body, header)))
            return fail(in, QDataStream::ReadCorruptData, "image header");
        if (type == "IDAT")
            compressed += length;
        png += head;
        png += body;
        if (type == "IEND")
            break;
    }
    const qint64 rowBytes = 1 + (header.width * header.bitsPerPixel + 7) / 8;
    if (header.height * rowBytes > compressed * kMaxInflateRatio + kInflateSlack)
        return fail(in, QDataStream::ReadCorruptData, "image larger than its data");
    image = QImage::fromData(png, "PNG");
    return !image.isNull() || fail(in, QDataStream::ReadCorruptData, "image decode");
}

bool readTransformChecked(QDataStream &in, QTransform &t)
{
    in >> t;
    if (in.status() != QDataStream::Ok)
        return false;
    const qreal m[] = {t.m11(), t.m12(), t.m13(), t.m21(), t.m22(),
                       t.m23(), t.m31(), t.m32(), t.m33()};
    for (qreal v : m)
        if (!std::isfinite(v))
            return fail(in, QDataStream::ReadCorruptData, "transform");
    return true;
}
