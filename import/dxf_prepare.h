// Reads a DXF file into the form the parser is handed: checked and normalised.
#pragma once

#include <QString>
#include <string>

namespace lumitra {

// Reads the file at `path` into *text, one group code or value per line, each line stripped
// of surrounding whitespace and cut to a length the parser reads in one piece (so that
// codes and values pair up the same way for it as here). Refuses, with a reason in *error,
// files that are empty, larger than the import limit, binary (which says so) or hold zero bytes,
// and files whose entities would make the parser allocate blindly or write outside what it
// allocated: a negative or absurd vertex, knot or control point count, vertices or bulges of a
// lightweight polyline before its vertex count or first vertex, a spline without its counts.
bool readDxfForParser(const QString &path, std::string *text, QString *error);

} // namespace lumitra
