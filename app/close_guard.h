#pragma once

class QWidget;

namespace lumitra {

// The quit path of the main window. Asks "创作未保存,是否立即退出" only when the
// design has unsaved changes and the canvas holds items. Returns true when the
// application may quit.
bool close_guard(QWidget *parent, bool unsaved, int itemCount);

} // namespace lumitra
