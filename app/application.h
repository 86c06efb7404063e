#pragma once

namespace lumitra {

// The whole start-up: command line, language, icon, translator, splash, main
// window and event loop (or one of the headless modes). Returns the exit code.
int run_application(int argc, char **argv);

} // namespace lumitra
