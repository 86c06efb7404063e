#pragma once

#include <functional>

class QWidget;

namespace lumitra {

// The one unsaved-work guard of the window, for closing it and for quitting
// after a language change. Asks "创作未保存,是否立即退出" only when the design
// has unsaved changes and the canvas holds items, with "确定" (quit without
// saving), "保存" (save, then quit) and "取消" (stay). `save` runs the save
// command and returns true once the design is on disk; a save the user cancels
// or that fails keeps the window open. Returns true when the application may
// quit.
bool close_guard(QWidget *parent, bool unsaved, int itemCount,
                 const std::function<bool()> &save = {});

} // namespace lumitra
