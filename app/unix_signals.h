#pragma once

#include <functional>

namespace lumitra {

// SIGTERM and SIGINT end the event loop normally (exit code 0), so that a
// session logout or Ctrl+C still runs every destructor. No-op off Unix.
void install_quit_on_terminate_signals();

// While set, SIGTERM and SIGINT call `handler` (on the GUI thread) instead of
// ending the event loop; an empty function restores the default.
void set_terminate_signal_handler(const std::function<void()> &handler);

} // namespace lumitra
