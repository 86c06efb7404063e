#include "program_state.h"

namespace lumitra {

ProgramState &programState()
{
    static ProgramState state;
    return state;
}

namespace {
std::function<void(bool)> &unsavedListener()
{
    static std::function<void(bool)> listener;
    return listener;
}
} // namespace

void setUnsaved(bool unsaved)
{
    ProgramState &s = programState();
    const bool changed = s.unsaved != unsaved;
    s.unsaved = unsaved;
    if (changed && unsavedListener())
        unsavedListener()(unsaved);
}

void setUnsavedListener(std::function<void(bool)> listener)
{
    unsavedListener() = std::move(listener);
}

void resetProgramState()
{
    ProgramState &s = programState();
    s.width = 400;
    s.height = 400;
    s.currentLayer = 0;
    setUnsaved(false);
    s.connectionMode = NotConnected;
    s.modelFlag = false;
    s.running = false;
    s.jobFilePath.clear();
    s.preamble.clear();
    s.cancel = false;
}

} // namespace lumitra
