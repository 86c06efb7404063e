#pragma once

class QWidget;

namespace lumitra {

// Makes every spin box and combo box under `root` (those there now and those
// created later) take the mouse wheel only while it has the keyboard focus:
// such a box gets the focus policy Qt::StrongFocus (a click or Tab focuses it,
// the wheel never does), and a wheel event over an unfocused box is ignored so
// that it travels on to the parent (a scroll area scrolls, the canvas zooms)
// instead of changing the value. Calling it again for a root, or for a widget
// inside a guarded root, is harmless. GUI thread only.
void guardWheel(QWidget *root);

} // namespace lumitra
