#pragma once

#include <QtGlobal>

class QDataStream;
class QImage;
class QPainterPath;
class QTransform;

// Careful readers for the library types inside a project stream. The library's
// own operators trust the data: a damaged element count makes the path
// operator loop and allocate for billions of elements, and the image operator
// decodes whatever size a damaged PNG header claims. These readers first check
// the data against what is left on the device and then decode with the
// library, so a valid stream reads exactly as the library reads it.
// Each returns false, with the stream status set to ReadCorruptData or
// ReadPastEnd, when the value cannot be read whole.

// Largest bitmap a project may hold, in pixels.
constexpr qint64 kMaxProjectImagePixels = 100'000'000;

bool readPathChecked(QDataStream &in, QPainterPath &path);
bool readImageChecked(QDataStream &in, QImage &image);
bool readTransformChecked(QDataStream &in, QTransform &transform);
