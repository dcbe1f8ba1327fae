#pragma once
// Runs an engine's argc/argv entry inside this process as if it were a
// console program: descriptors 1 and 2 go into a pipe that a reader thread
// turns into lines, the entry runs on a worker thread, and control lines
// reach it through an in-memory queue (or a pipe on descriptor 0).
//
// The standard descriptors are process-wide, so only one run may be active
// in the whole process at a time, whatever runner it belongs to.

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace zuvo {

using EngineEntryFn = int (*)(int argc, char** argv);

// The control queue handed to an in-process engine. The engine reads it
// through popLine(), on a thread of its own that may outlive the run, so
// a queue handed to an engine is never freed (see createForEngine()).
class InprocCtlQueue {
public:
    static constexpr std::size_t kCapacity = 4096;

    enum class Push { Refused, Accepted, ForcedStop };

    InprocCtlQueue() = default;
    // Closes the queue and waits until no reader is inside pop().
    ~InprocCtlQueue();
    InprocCtlQueue(const InprocCtlQueue&) = delete;
    InprocCtlQueue& operator=(const InprocCtlQueue&) = delete;

    // A fresh queue that stays valid for the rest of the process.
    static std::shared_ptr<InprocCtlQueue> createForEngine();

    // Open and below capacity: appended. Otherwise only "stop" is appended,
    // because a stop request must never be lost.
    Push push(std::string_view line);

    // Wakes every blocked reader; afterwards readers drain what is left and
    // then get 0.
    void close();

    // Blocks until a line is queued or the queue is closed. Returns the
    // length of the line (trailing CR/LF removed, zero-terminated in
    // `buffer`), 0 when closed and drained, -1 for a bad buffer. Lines that
    // are empty once stripped, or that do not fit in `capacity`, carry no
    // command: they are dropped and the wait goes on.
    int pop(char* buffer, int capacity);

    // The consumer entry whose address is given to the engine.
    static int popLine(void* queue, char* buffer, int capacity);

    bool isClosed() const;
    std::size_t size() const;
    int readersInside() const;

private:
    mutable std::mutex mutex_;
    std::condition_variable cv_;
    std::deque<std::string> lines_;
    bool closed_ = false;
    int readersInside_ = 0;
};

class InProcRunner {
public:
    enum class ControlChannel { Queue, Pipe };

    // Start codes besides 0.
    static constexpr int kBadSetup = -1;       // no entry or no arguments
    static constexpr int kBusy = -2;           // a run is active in this process
    static constexpr int kPipeFailed = -3;     // the output or control pipe
    static constexpr int kRedirectFailed = -4; // saving or redirecting 0-2
    static constexpr int kThreadFailed = -5;
    // wait(): the run did not end in time.
    static constexpr int kTimedOut = -1000;
    // Exit code recorded when an exception escaped the entry.
    static constexpr int kEntryThrew = -1;

    // Receives engine output, whole lines with their "\n" (a last line
    // without one comes at the end of the run). Runs on the reader thread.
    using LineSink = std::function<void(const std::string& chunk)>;

    explicit InProcRunner(EngineEntryFn entry, ControlChannel channel = ControlChannel::Queue);
    // A run still going on is left to finish on its own threads; its
    // control queue is closed so that only "stop" still gets through.
    ~InProcRunner();
    InProcRunner(const InProcRunner&) = delete;
    InProcRunner& operator=(const InProcRunner&) = delete;

    // `arguments` starts with argv[0].
    int start(const std::vector<std::string>& arguments, LineSink sink);

    bool isActive() const;

    // The entry's exit code, or kTimedOut. Without a pending run: the exit
    // code of the last run (0 before any).
    int wait(int timeoutMs);

    // 1 accepted, 0 not (the reason is in lastDiagnostic()).
    int sendControl(const std::string& line);

    std::string lastDiagnostic() const;

    // The queue of the current or last run; empty before the first run or
    // with a control pipe.
    std::shared_ptr<InprocCtlQueue> controlQueue() const;

    // Appends one line to the ZUVO_INPROC_LOG file, when that is set.
    static void logDiagnostic(const char* format, ...)
#if defined(__GNUC__)
        __attribute__((format(printf, 1, 2)))
#endif
        ;

    struct Run; // shared by the runner and the threads of one run

private:
    void noteDiagnostic(std::string text);

    EngineEntryFn entry_;
    ControlChannel channel_;
    mutable std::mutex mutex_;
    std::shared_ptr<Run> run_;
    std::thread worker_;
    std::string lastDiagnostic_;
    int lastExitCode_ = 0;
};

} // namespace zuvo
