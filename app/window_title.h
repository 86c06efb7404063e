#pragma once

#include <QString>

namespace lumitra {

// The main window's title: "Lumitra" for a new design, the project's file
// name before it once the design has a file, and a "*" after the name while
// there are unsaved changes ("未命名*" for a new design with changes).
QString windowTitleFor(const QString &projectPath, bool unsaved);

} // namespace lumitra
