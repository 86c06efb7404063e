#pragma once

namespace lumitra {

// SIGTERM and SIGINT end the event loop normally (exit code 0), so that a
// session logout or Ctrl+C still runs every destructor. No-op off Unix.
void install_quit_on_terminate_signals();

} // namespace lumitra
