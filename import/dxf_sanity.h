// A quick look through a DXF file before the parser reads it.
#pragma once

#include <QString>

namespace lumitra {

// False (with a reason in *error) for files the parser must not see: larger than the
// import limit, binary rather than text, or with a vertex, knot or control point count
// that is negative or absurdly large (the parser allocates such counts up front).
bool dxfLooksSane(const QString &path, QString *error);

} // namespace lumitra
