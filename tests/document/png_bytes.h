#pragma once

// Hand-made PNG bytes for tests of readers that must refuse lying headers.

#include <QByteArray>
#include <QtEndian>

namespace pngbytes {

inline quint32 crc32(const QByteArray &data)
{
    quint32 crc = 0xffffffffu;
    for (char ch : data) {
        crc ^= quint8(ch);
        for (int k = 0; k < 8; ++k)
            crc = (crc >> 1) ^ (0xedb88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

inline QByteArray bigEndian(quint32 v)
{
    QByteArray b(4, '\0');
    qToBigEndian(v, b.data());
    return b;
}

inline QByteArray chunk(const QByteArray &type, const QByteArray &data)
{
    return bigEndian(quint32(data.size())) + type + data + bigEndian(crc32(type + data));
}

inline QByteArray signature()
{
    return QByteArray("\x89PNG\r\n\x1a\n", 8);
}

// A PNG that claims `width` x `height` pixels (8-bit RGBA) but carries only a
// few bytes of image data.
inline QByteArray lyingPng(quint32 width, quint32 height)
{
    QByteArray header = bigEndian(width) + bigEndian(height);
    header.append(char(8)); // bit depth
    header.append(char(6)); // RGBA
    header.append(QByteArray(3, '\0'));
    return signature() + chunk("IHDR", header)
           + chunk("IDAT", QByteArray::fromHex("789c6300010000050001")) + chunk("IEND", {});
}

} // namespace pngbytes
