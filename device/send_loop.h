#pragma once

#include <atomic>
#include <functional>

class QString;
class StreamState;

// Where the send loop puts its results. Both are called on the loop's thread;
// `write` is called with the stream mutex held and must only hand the line on
// (the link emits a queued signal).
struct SendLoopOutput
{
    std::function<void(const QString &)> write;
    std::function<void(int)> progress; // job progress, percent
};

// GRBL character-counting send loop; runs until `running` is cleared:
//   take the first queued line (waiting up to 10 ms for one) and append "\n";
//   wait (3 ms at a time) until it fits the controller's 127-byte buffer;
//   announce progress; hand it to `write` and count it in flight;
//   top the queue up from the pending lines when it holds fewer than 300.
// A 128-byte line never fits and blocks the loop until a stop drops it.
void runSendLoop(StreamState &stream, const std::atomic_bool &running, const SendLoopOutput &out);

// The loop's waits, in milliseconds.
constexpr int kEmptyQueueWaitMs = 10;
constexpr int kNoRoomWaitMs = 3;
