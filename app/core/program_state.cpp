#include "program_state.h"

namespace lumitra {

ProgramState &programState()
{
    static ProgramState state;
    return state;
}

void resetProgramState()
{
    ProgramState &s = programState();
    s.width = 400;
    s.height = 400;
    s.currentLayer = 0;
    s.unsaved = false;
    s.connectionMode = NotConnected;
    s.modelFlag = false;
    s.running = false;
    s.jobFilePath.clear();
    s.preamble.clear();
    s.cancel = false;
}

} // namespace lumitra
