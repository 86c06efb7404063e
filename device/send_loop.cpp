#include "send_loop.h"

#include "stream_state.h"

void runSendLoop(StreamState &stream, const std::atomic_bool &running, const SendLoopOutput &out)
{
    StreamState::Taken taken;
    while (running.load()) {
        if (!stream.takeNext(taken, kEmptyQueueWaitMs))
            continue;

        int room = 0;
        while (running.load() && (room = stream.waitForRoom(taken, kNoRoomWaitMs)) == 0) {
        }
        if (room < 0 || !running.load())
            continue;

        for (int p : stream.countSent(taken.jobLine > 0))
            out.progress(p);
        stream.commit(taken, out.write);
        stream.refillIfLow();
    }
}
