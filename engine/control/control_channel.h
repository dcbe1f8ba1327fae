#pragma once
// Control lines ("stop", "q", …) reach an engine run either on its standard
// input (child process) or through the host's in-memory queue when the run
// lives inside the front-end's process. Conversion, player and recorder all
// read their commands through this one class so the two transports behave
// the same everywhere.

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace zuvo {

// Consumer side of the host's queue: blocks until a line is available or the
// queue is closed. Returns the line length, 0 when closed and drained, -1 on
// a bad buffer. Trailing CR/LF are already stripped.
using PopLineFn = int (*)(void* queue, char* buffer, int capacity);

// What the in-process host told the engine on its command line.
struct InprocHostOptions {
    bool host = false;            // "-inproc-host" was given
    void* queue = nullptr;        // "-inproc-ctl ADDRESS"
    PopLineFn popLine = nullptr;  // "-inproc-ctl-fn ADDRESS"
    bool malformed = false;       // an address option without a valid value
    bool hasQueue() const { return queue != nullptr && popLine != nullptr; }
};

// Removes the host options from `args` (argv[0] untouched) and returns them.
InprocHostOptions takeInprocHostOptions(std::vector<std::string>& args);

// Listens for control lines on a background thread and hands every non-empty
// line (CR/LF and surrounding blanks removed) to the callback, on that thread.
// End of input is not a command: it just ends listening.
class ControlListener {
public:
    using LineHandler = std::function<void(const std::string& line)>;

    explicit ControlListener(const InprocHostOptions& options);
    ~ControlListener();
    ControlListener(const ControlListener&) = delete;
    ControlListener& operator=(const ControlListener&) = delete;

    void start(LineHandler onLine);

    // True once a line equal to `word` has arrived (e.g. "stop" or "q").
    bool received(std::string_view word) const;
    bool stopRequested() const { return received("stop"); }

private:
    struct State;
    std::shared_ptr<State> state_;
    InprocHostOptions options_;
    bool started_ = false;
    std::thread stdinThread_;
};

} // namespace zuvo
