// The code of one G-code line as the controller reads it.
#pragma once

#include <QString>

namespace lumitra {

// `line` in capitals, without its ";" comment and "(...)" comments, trimmed.
QString gcodeLineCode(const QString &line);

} // namespace lumitra
