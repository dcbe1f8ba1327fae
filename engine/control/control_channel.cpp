#include "control_channel.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <mutex>
#include <set>
#include <thread>

#ifdef _WIN32
#include <io.h>
#else
#include <poll.h>
#include <unistd.h>
#endif

namespace zuvo {

namespace {

// How long the standard-input reader waits before it looks at its quit flag:
// the listener's destructor joins it, so this is added to every run's exit
// after "stop" (the player must answer within 200 ms).
constexpr int kStdinPollMs = 20;

bool parseAddress(const std::string& text, std::uintptr_t& out)
{
    unsigned long long value = 0;
    const char* first = text.data();
    const char* last = first + text.size();
    auto [ptr, ec] = std::from_chars(first, last, value);
    if (ec != std::errc() || ptr != last || value == 0)
        return false;
    out = static_cast<std::uintptr_t>(value);
    return true;
}

std::string trimmed(std::string_view s)
{
    const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
    while (!s.empty() && isBlank(s.front())) s.remove_prefix(1);
    while (!s.empty() && isBlank(s.back())) s.remove_suffix(1);
    return std::string(s);
}

} // namespace

InprocHostOptions takeInprocHostOptions(std::vector<std::string>& args)
{
    InprocHostOptions opts;
    std::vector<std::string> kept;
    kept.reserve(args.size());
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (i > 0 && a == "-inproc-host") {
            opts.host = true;
        } else if (i > 0 && (a == "-inproc-ctl" || a == "-inproc-ctl-fn")) {
            std::uintptr_t addr = 0;
            if (i + 1 < args.size() && parseAddress(args[i + 1], addr)) {
                if (a == "-inproc-ctl")
                    opts.queue = reinterpret_cast<void*>(addr);
                else
                    opts.popLine = reinterpret_cast<PopLineFn>(addr);
                ++i;
            } else {
                opts.malformed = true;
            }
        } else {
            kept.push_back(a);
        }
    }
    args.swap(kept);
    return opts;
}

struct ControlListener::State {
    std::mutex mutex;
    std::set<std::string, std::less<>> seen;
    std::atomic<bool> quit{false};
    // Held while the handler runs, so that once the listener is gone no
    // handler call is in progress or still to come: a detached queue reader
    // can outlive the engine objects the handler refers to.
    std::mutex handlerMutex;
    LineHandler onLine;

    void deliver(std::string_view raw)
    {
        std::string line = trimmed(raw);
        if (line.empty())
            return; // "stop\n" + newline from a host arrives as an empty second line
        {
            std::lock_guard lock(mutex);
            seen.insert(line);
        }
        std::lock_guard lock(handlerMutex);
        if (onLine && !quit)
            onLine(line);
    }

    void shutDown()
    {
        std::lock_guard lock(handlerMutex);
        quit = true;
        onLine = nullptr;
    }
};

namespace {

// Appends a chunk of input and hands every completed line on.
template <typename State>
void deliverLines(State& state, std::string& pending, const char* chunk, std::size_t n)
{
    pending.append(chunk, n);
    std::size_t pos;
    while ((pos = pending.find('\n')) != std::string::npos) {
        state.deliver(std::string_view(pending).substr(0, pos));
        pending.erase(0, pos + 1);
    }
}

} // namespace

ControlListener::ControlListener(const InprocHostOptions& options)
    : state_(std::make_shared<State>()), options_(options)
{
}

ControlListener::~ControlListener()
{
    state_->shutDown();
    // A queue reader owns a reference to the state and wakes when the host
    // closes its queue; a stdin reader notices `quit` within one poll
    // interval, and is joined so it never reads a descriptor the host has
    // already restored.
    if (stdinThread_.joinable())
        stdinThread_.join();
}

void ControlListener::start(LineHandler onLine)
{
    if (started_)
        return;
    started_ = true;
    state_->onLine = std::move(onLine);

    if (options_.hasQueue()) {
        std::thread([state = state_, queue = options_.queue, pop = options_.popLine] {
            std::vector<char> buf(4096);
            while (!state->quit) {
                const int n = pop(queue, buf.data(), static_cast<int>(buf.size()));
                if (n <= 0)
                    break; // closed and drained: no more commands
                state->deliver(std::string_view(buf.data(), static_cast<std::size_t>(n)));
            }
        }).detach();
        return;
    }

    if (options_.host && options_.malformed)
        return; // the host meant to give a queue and failed: fd 0 is not a channel then
    // A host without a queue puts its control pipe on descriptor 0.

#ifdef _WIN32
    // Console and pipe handles cannot be waited on with a time-out the way a
    // POSIX descriptor can, so this reader blocks in _read and is detached;
    // it owns its share of the state and delivers nothing once shut down.
    std::thread([state = state_] {
        std::string pending;
        char chunk[512];
        while (!state->quit) {
            const int n = ::_read(0, chunk, sizeof chunk);
            if (n <= 0)
                break; // end of input is not a stop request
            deliverLines(*state, pending, chunk, static_cast<std::size_t>(n));
        }
        if (!pending.empty() && !state->quit)
            state->deliver(pending);
    }).detach();
#else
    stdinThread_ = std::thread([state = state_] {
        std::string pending;
        char chunk[512];
        while (!state->quit) {
            pollfd pfd{0, POLLIN, 0};
            const int ready = ::poll(&pfd, 1, kStdinPollMs);
            if (ready < 0) {
                if (errno == EINTR)
                    continue;
                break; // a failing poll would otherwise spin
            }
            if (ready == 0)
                continue;
            const ssize_t n = ::read(0, chunk, sizeof chunk);
            if (n < 0 && errno == EINTR)
                continue;
            if (n <= 0)
                break; // end of input is not a stop request
            deliverLines(*state, pending, chunk, static_cast<std::size_t>(n));
        }
        if (!pending.empty() && !state->quit)
            state->deliver(pending);
    });
#endif
}

bool ControlListener::received(std::string_view word) const
{
    std::lock_guard lock(state_->mutex);
    return state_->seen.find(word) != state_->seen.end();
}

} // namespace zuvo
