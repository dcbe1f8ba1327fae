#include "inproc_runner.h"

#include <QtGlobal>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cinttypes>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <system_error>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>
#endif

namespace zuvo {

namespace {

using namespace std::chrono_literals;

constexpr int kPipeBytes = 65536;
constexpr std::size_t kReadChunk = 4096;
// A "line" that never ends must still reach the sink at some point.
constexpr std::size_t kMaxPendingLine = 65536;
// After the entry returned and the descriptors are back, the reader only has
// to drain the pipe; this bounds the wait when someone else (a child the
// engine started, say) still holds a write end.
constexpr auto kReaderDrainGrace = 2000ms;
constexpr auto kFlushInterval = 50ms;

// ---- platform shims -------------------------------------------------------

#ifdef Q_OS_WIN
int sysClose(int fd) { return _close(fd); }
int sysDup(int fd) { return _dup(fd); }
int sysDup2(int from, int to) { return _dup2(from, to); }
long sysWrite(int fd, const void* data, std::size_t n) { return _write(fd, data, unsigned(n)); }
bool descriptorValid(int fd)
{
    const intptr_t h = _get_osfhandle(fd);
    return h != -1 && h != -2;
}
int openNullDevice() { return _open("NUL", _O_RDWR | _O_BINARY); }
int makePipe(int fds[2]) { return _pipe(fds, kPipeBytes, _O_BINARY | _O_NOINHERIT); }
long long osHandle(int fd) { return static_cast<long long>(_get_osfhandle(fd)); }
#else
int sysClose(int fd) { return ::close(fd); }
int sysDup(int fd) { return ::fcntl(fd, F_DUPFD_CLOEXEC, 3); }
int sysDup2(int from, int to)
{
    int r;
    do { r = ::dup2(from, to); } while (r < 0 && errno == EINTR);
    return r;
}
long sysWrite(int fd, const void* data, std::size_t n) { return long(::write(fd, data, n)); }
bool descriptorValid(int fd) { return ::fcntl(fd, F_GETFD) != -1 || errno != EBADF; }
int openNullDevice() { return ::open("/dev/null", O_RDWR); }
int makePipe(int fds[2])
{
    if (::pipe2(fds, O_CLOEXEC) != 0)
        return -1;
#ifdef F_SETPIPE_SZ
    ::fcntl(fds[1], F_SETPIPE_SZ, kPipeBytes); // best effort: the default is often that already
#endif
    return 0;
}
long long osHandle(int fd) { return descriptorValid(fd) ? fd : -1; }
#endif

void closeIfOpen(int& fd)
{
    if (fd >= 0) {
        sysClose(fd);
        fd = -1;
    }
}

// A process started without a console (or with closed descriptors) has
// nothing on 0-2; the engine and our own dup2 calls need them to exist.
void ensureStandardDescriptors()
{
    for (int fd = 0; fd <= 2; ++fd) {
        if (descriptorValid(fd))
            continue;
        const int nul = openNullDevice();
        if (nul >= 0 && nul != fd) {
            sysDup2(nul, fd);
            sysClose(nul);
        }
    }
}

// Whatever sits in the C streams' buffers was written before the run and
// belongs to the original destinations, not to the engine's pipe.
void flushStandardStreams()
{
    std::fflush(stdout);
    std::fflush(stderr);
    if (!descriptorValid(fileno(stdout)))
        std::freopen(
#ifdef Q_OS_WIN
            "NUL",
#else
            "/dev/null",
#endif
            "w", stdout);
    if (!descriptorValid(fileno(stderr)))
        std::freopen(
#ifdef Q_OS_WIN
            "NUL",
#else
            "/dev/null",
#endif
            "w", stderr);
}

// Only one run may own descriptors 0-2 at a time, whichever runner it is.
std::mutex& guardMutex()
{
    static std::mutex m;
    return m;
}
bool g_runActive = false;

bool acquireProcessGuard()
{
    std::lock_guard lock(guardMutex());
    if (g_runActive)
        return false;
    g_runActive = true;
    return true;
}

void releaseProcessGuard()
{
    std::lock_guard lock(guardMutex());
    g_runActive = false;
}

std::string formatAddress(const void* p)
{
    char buf[32];
    std::snprintf(buf, sizeof buf, "%llu", static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(p)));
    return buf;
}

} // namespace

// ---- InprocCtlQueue -------------------------------------------------------

InprocCtlQueue::~InprocCtlQueue()
{
    std::unique_lock lock(mutex_);
    closed_ = true;
    cv_.notify_all();
    cv_.wait(lock, [this] { return readersInside_ == 0; });
}

std::shared_ptr<InprocCtlQueue> InprocCtlQueue::createForEngine()
{
    // The engine's control reader is a detached thread that may call
    // popLine() with this address at any later moment, even after the run
    // (it can be just about to call when its run ends). Only memory that
    // stays a valid, closed queue makes that harmless, so queues given to an
    // engine are kept for the life of the process: a few hundred bytes per
    // in-process run.
    static std::mutex keptMutex;
    static auto* kept = new std::vector<std::shared_ptr<InprocCtlQueue>>;
    auto queue = std::make_shared<InprocCtlQueue>();
    std::lock_guard lock(keptMutex);
    kept->push_back(queue);
    return queue;
}

InprocCtlQueue::Push InprocCtlQueue::push(std::string_view line)
{
    Push result = Push::Refused;
    {
        std::lock_guard lock(mutex_);
        if (!closed_ && lines_.size() < kCapacity) {
            lines_.emplace_back(line);
            result = Push::Accepted;
        } else if (line == "stop") {
            lines_.emplace_back(line);
            result = Push::ForcedStop;
        }
    }
    if (result != Push::Refused)
        cv_.notify_all();
    return result;
}

void InprocCtlQueue::close()
{
    {
        std::lock_guard lock(mutex_);
        closed_ = true;
    }
    cv_.notify_all();
}

int InprocCtlQueue::pop(char* buffer, int capacity)
{
    if (!buffer || capacity < 2)
        return -1;
    std::unique_lock lock(mutex_);
    ++readersInside_;
    int result = 0;
    for (;;) {
        cv_.wait(lock, [this] { return closed_ || !lines_.empty(); });
        if (lines_.empty())
            break; // closed and drained
        std::string line = std::move(lines_.front());
        lines_.pop_front();
        while (!line.empty() && (line.back() == '\n' || line.back() == '\r'))
            line.pop_back();
        if (line.empty())
            continue; // 0 means "no more commands" to the engine; a blank line must not say that
        if (line.size() + 1 <= static_cast<std::size_t>(capacity)) {
            std::memcpy(buffer, line.data(), line.size());
            buffer[line.size()] = '\0';
            result = static_cast<int>(line.size());
            break;
        }
        // Longer than any command the engine can hold: not a command.
    }
    if (--readersInside_ == 0)
        cv_.notify_all();
    return result;
}

int InprocCtlQueue::popLine(void* queue, char* buffer, int capacity)
{
    if (!queue)
        return 0;
    return static_cast<InprocCtlQueue*>(queue)->pop(buffer, capacity);
}

bool InprocCtlQueue::isClosed() const
{
    std::lock_guard lock(mutex_);
    return closed_;
}

std::size_t InprocCtlQueue::size() const
{
    std::lock_guard lock(mutex_);
    return lines_.size();
}

int InprocCtlQueue::readersInside() const
{
    std::lock_guard lock(mutex_);
    return readersInside_;
}

// ---- InProcRunner ---------------------------------------------------------

struct InProcRunner::Run {
    EngineEntryFn entry = nullptr;
    std::vector<std::string> argv;  // including the host options
    int sessionArgCount = 0;
    LineSink sink;
    std::shared_ptr<InprocCtlQueue> queue;

    int outRead = -1;                // reader thread only
    int saved[3] = {-1, -1, -1};     // worker thread only after start
    std::atomic<bool> readerStop{false};

    std::mutex mutex;                // guards everything below
    std::condition_variable cv;
    int ctlWrite = -1;
    bool flusherStop = false;
    bool readerDone = false;
    bool done = false;
    int exitCode = 0;

    std::thread flusher;
    std::thread reader;
};

namespace {

using Run = InProcRunner::Run;

void restoreDescriptors(Run& run)
{
    for (int fd : {1, 2, 0}) {
        if (run.saved[fd] >= 0) {
            sysDup2(run.saved[fd], fd);
            closeIfOpen(run.saved[fd]);
        }
    }
}

void flusherMain(const std::shared_ptr<Run>& run)
{
    for (;;) {
        {
            std::unique_lock lock(run->mutex);
            if (run->cv.wait_for(lock, kFlushInterval, [&] { return run->flusherStop; }))
                break;
        }
        std::fflush(stdout);
        std::fflush(stderr);
    }
    std::fflush(stdout);
    std::fflush(stderr);
}

void deliverToSink(Run& run, const std::string& data, bool tail)
{
    if (!run.sink)
        return;
    try {
        run.sink(data);
    } catch (const std::exception& e) {
        if (tail)
            InProcRunner::logDiagnostic("[inproc] log sink threw (tail)\n");
        else
            InProcRunner::logDiagnostic("[inproc] log sink threw: %s\n", e.what());
    } catch (...) {
        if (tail)
            InProcRunner::logDiagnostic("[inproc] log sink threw (tail)\n");
        else
            InProcRunner::logDiagnostic("[inproc] log sink threw a non-std exception\n");
    }
}

void readerMain(const std::shared_ptr<Run>& run)
{
    std::string pending;
    char chunk[kReadChunk];
    for (;;) {
#ifndef Q_OS_WIN
        // Polling lets the worker end the reader even when a write end of
        // the pipe escaped into some other process and EOF never comes.
        const bool stopping = run->readerStop.load();
        pollfd pfd{run->outRead, POLLIN, 0};
        const int ready = ::poll(&pfd, 1, stopping ? 0 : 100);
        if (ready < 0) {
            if (errno == EINTR)
                continue;
            break;
        }
        if (ready == 0) {
            if (stopping)
                break;
            continue;
        }
        const ssize_t n = ::read(run->outRead, chunk, sizeof chunk);
        if (n < 0 && (errno == EINTR || errno == EAGAIN))
            continue;
#else
        const int n = _read(run->outRead, chunk, unsigned(sizeof chunk));
        if (n < 0 && errno == EINTR)
            continue;
#endif
        if (n <= 0)
            break;
        // Only whole lines go out while the run lasts, so a line written in
        // two pieces (or cut by the chunk size) still reaches consumers as
        // one line. Only the new chunk is searched: a long line costs no
        // rescans of what came before it.
        std::size_t cut = std::string::npos;
        for (std::size_t i = static_cast<std::size_t>(n); i-- > 0;) {
            if (chunk[i] == '\n') {
                cut = pending.size() + i;
                break;
            }
        }
        pending.append(chunk, static_cast<std::size_t>(n));
        if (cut != std::string::npos) {
            std::string lines = pending.substr(0, cut + 1);
            pending.erase(0, cut + 1);
            deliverToSink(*run, lines, false);
        } else if (pending.size() >= kMaxPendingLine) {
            deliverToSink(*run, pending, false);
            pending.clear();
        }
    }
    if (!pending.empty())
        deliverToSink(*run, pending, true);
    closeIfOpen(run->outRead);
    {
        std::lock_guard lock(run->mutex);
        run->readerDone = true;
    }
    run->cv.notify_all();
}

void finishRun(const std::shared_ptr<Run>& run, int exitCode)
{
    // The engine may not have flushed; what it wrote must still reach the
    // pipe before the descriptors go back.
    std::fflush(stdout);
    std::fflush(stderr);
    {
        std::lock_guard lock(run->mutex);
        run->flusherStop = true;
    }
    run->cv.notify_all();
    if (run->flusher.joinable())
        run->flusher.join();

    // The engine's control reader may still be blocked in popLine(); closing
    // wakes it, and it ends as the queue is drained.
    if (run->queue)
        run->queue->close();
    {
        std::lock_guard lock(run->mutex);
        closeIfOpen(run->ctlWrite); // before fd 0 goes back, so no write hits a reader-less pipe
    }

    // Restoring 1 and 2 drops the last write ends of the pipe: the reader
    // sees end of file once it has read everything.
    restoreDescriptors(*run);
    {
        std::unique_lock lock(run->mutex);
        if (!run->cv.wait_for(lock, kReaderDrainGrace, [&] { return run->readerDone; }))
            run->readerStop = true;
    }
    if (run->reader.joinable())
        run->reader.join();

    releaseProcessGuard();
    {
        std::lock_guard lock(run->mutex);
        run->exitCode = exitCode;
        run->done = true;
    }
    run->cv.notify_all();
}

void workerMain(const std::shared_ptr<Run>& run)
{
    const char* flag = std::getenv("ZUVO_INPROC");
    if (!flag || std::strcmp(flag, "1") != 0) {
#ifdef Q_OS_WIN
        _putenv_s("ZUVO_INPROC", "1");
#else
        ::setenv("ZUVO_INPROC", "1", 1);
#endif
    }

    std::vector<char*> argv;
    argv.reserve(run->argv.size() + 1);
    for (std::string& a : run->argv)
        argv.push_back(a.data());
    argv.push_back(nullptr);
    const int argc = static_cast<int>(run->argv.size());

    int rc = InProcRunner::kEntryThrew;
    InProcRunner::logDiagnostic("[inproc] calling entry argc=%d\n", argc);
    try {
        rc = run->entry(argc, argv.data());
        InProcRunner::logDiagnostic("[inproc] engine entry returned rc=%d (args=%d)\n", rc, run->sessionArgCount);
        InProcRunner::logDiagnostic("[inproc] entry rc=%d\n", rc);
    } catch (const std::exception& e) {
        InProcRunner::logDiagnostic("[inproc] the engine threw an exception: %s\n", e.what());
    } catch (...) {
        InProcRunner::logDiagnostic("[inproc] the engine threw a non-std exception\n");
    }
    finishRun(run, rc);
}

bool runDone(const std::shared_ptr<Run>& run)
{
    if (!run)
        return true;
    std::lock_guard lock(run->mutex);
    return run->done;
}

} // namespace

void InProcRunner::logDiagnostic(const char* format, ...)
{
    const char* path = std::getenv("ZUVO_INPROC_LOG");
    if (!path || !*path)
        return;
    char text[2048];
    va_list ap;
    va_start(ap, format);
    std::vsnprintf(text, sizeof text, format, ap);
    va_end(ap);
    if (std::FILE* f = std::fopen(path, "a")) {
        std::fputs(text, f);
        std::fclose(f);
    }
}

InProcRunner::InProcRunner(EngineEntryFn entry, ControlChannel channel)
    : entry_(entry), channel_(channel)
{
}

InProcRunner::~InProcRunner()
{
    std::shared_ptr<Run> run;
    {
        std::lock_guard lock(mutex_);
        run = run_;
    }
    if (run && run->queue)
        run->queue->close();
    if (worker_.joinable()) {
        if (runDone(run))
            worker_.join();
        else
            worker_.detach(); // cannot be ended by force; it owns its state
    }
}

int InProcRunner::start(const std::vector<std::string>& arguments, LineSink sink)
{
    if (!entry_ || arguments.empty())
        return kBadSetup;

    std::lock_guard lock(mutex_);
    if (!runDone(run_))
        return kBusy;
    if (!acquireProcessGuard())
        return kBusy;
    if (worker_.joinable())
        worker_.join(); // done: it is past its last statement

    auto run = std::make_shared<Run>();
    run->entry = entry_;
    run->sink = std::move(sink);
    run->sessionArgCount = static_cast<int>(arguments.size());

    ensureStandardDescriptors();

    int out[2] = {-1, -1};
    int ctl[2] = {-1, -1};
    if (makePipe(out) != 0) {
        releaseProcessGuard();
        return kPipeFailed;
    }
    if (channel_ == ControlChannel::Pipe) {
        if (makePipe(ctl) != 0) {
            closeIfOpen(out[0]);
            closeIfOpen(out[1]);
            releaseProcessGuard();
            return kPipeFailed;
        }
#ifndef Q_OS_WIN
        // A full control pipe must refuse a line, not block the GUI thread.
        ::fcntl(ctl[1], F_SETFL, ::fcntl(ctl[1], F_GETFL) | O_NONBLOCK);
#endif
    }

    flushStandardStreams();

    const auto undo = [&] {
        restoreDescriptors(*run);
        for (int* fd : {&out[0], &out[1], &ctl[0], &ctl[1]})
            closeIfOpen(*fd);
        releaseProcessGuard();
    };

    run->saved[1] = sysDup(1);
    run->saved[2] = sysDup(2);
    run->saved[0] = sysDup(0);
    if (run->saved[0] < 0 || run->saved[1] < 0 || run->saved[2] < 0) {
        undo();
        return kRedirectFailed;
    }

    const int dupOut = sysDup2(out[1], 1);
    const int dupErr = sysDup2(out[1], 2);
    const int dupIn = channel_ == ControlChannel::Pipe ? sysDup2(ctl[0], 0) : -1;
    logDiagnostic("[inproc] dup2 out=%d err=%d in=%d | fileno: in=%d out=%d err=%d | osf: in=%lld out=%lld\n",
                  dupOut, dupErr, dupIn, fileno(stdin), fileno(stdout), fileno(stderr), osHandle(0), osHandle(1));
    if (dupOut < 0 || dupErr < 0 || (channel_ == ControlChannel::Pipe && dupIn < 0)) {
        undo();
        return kRedirectFailed;
    }
    // From here descriptors 1, 2 (and 0) hold the only copies of the ends
    // the engine uses.
    closeIfOpen(out[1]);
    closeIfOpen(ctl[0]);
    run->outRead = out[0];
    run->ctlWrite = ctl[1];
    out[0] = ctl[1] = -1;

    if (channel_ == ControlChannel::Queue)
        run->queue = InprocCtlQueue::createForEngine();

    run->argv = arguments;
    run->argv.emplace_back("-inproc-host");
    if (run->queue) {
        run->argv.emplace_back("-inproc-ctl");
        run->argv.push_back(formatAddress(run->queue.get()));
        run->argv.emplace_back("-inproc-ctl-fn");
        run->argv.push_back(formatAddress(reinterpret_cast<const void*>(&InprocCtlQueue::popLine)));
    }

    try {
        run->flusher = std::thread(flusherMain, run);
        run->reader = std::thread(readerMain, run);
        worker_ = std::thread(workerMain, run);
    } catch (const std::system_error&) {
        {
            std::lock_guard runLock(run->mutex);
            run->flusherStop = true;
            closeIfOpen(run->ctlWrite);
        }
        run->cv.notify_all();
        if (run->flusher.joinable())
            run->flusher.join();
        restoreDescriptors(*run); // the reader, if it runs, now sees end of file
        if (run->reader.joinable())
            run->reader.join();
        else
            closeIfOpen(run->outRead);
        if (run->queue)
            run->queue->close();
        releaseProcessGuard();
        return kThreadFailed;
    }

    run_ = run;
    logDiagnostic("[host] session pipe ready (fd1/fd2 -> InProcRunner pipe)\n");
    return 0;
}

bool InProcRunner::isActive() const
{
    std::lock_guard lock(mutex_);
    return !runDone(run_);
}

int InProcRunner::wait(int timeoutMs)
{
    std::shared_ptr<Run> run;
    {
        std::lock_guard lock(mutex_);
        run = run_;
    }
    if (!run)
        return 0;
    std::unique_lock lock(run->mutex);
    const auto finished = [&] { return run->done; };
    if (timeoutMs < 0)
        run->cv.wait(lock, finished);
    else if (!run->cv.wait_for(lock, std::chrono::milliseconds(timeoutMs), finished))
        return kTimedOut;
    return run->exitCode;
}

int InProcRunner::sendControl(const std::string& line)
{
    std::shared_ptr<Run> run;
    {
        std::lock_guard lock(mutex_);
        run = run_;
    }
    if (run && run->queue) {
        switch (run->queue->push(line)) {
        case InprocCtlQueue::Push::Accepted:
            return 1;
        case InprocCtlQueue::Push::ForcedStop:
            noteDiagnostic("control queue closed -> stop forced through");
            return 1;
        case InprocCtlQueue::Push::Refused:
            noteDiagnostic("control queue closed (session already torn down)");
            return 0;
        }
    }
    if (run) {
        std::unique_lock runLock(run->mutex);
        if (run->ctlWrite >= 0) {
            const std::string data = line + "\n";
            const long written = sysWrite(run->ctlWrite, data.data(), data.size());
            const int err = errno;
            runLock.unlock();
            if (written < static_cast<long>(data.size())) {
                unsigned long lastError = 0;
#ifdef Q_OS_WIN
                lastError = GetLastError();
#endif
                char text[160];
                std::snprintf(text, sizeof text, "control pipe write failed: %d/%d bytes, errno=%d, GetLastError=%lu",
                              int(written), int(data.size()), err, lastError);
                noteDiagnostic(text);
                return 0;
            }
            return 1;
        }
    }
    noteDiagnostic("no control channel (queue not enabled and pipe not created)");
    return 0;
}

void InProcRunner::noteDiagnostic(std::string text)
{
    logDiagnostic("[inproc] %s\n", text.c_str());
    std::lock_guard lock(mutex_);
    lastDiagnostic_ = std::move(text);
}

std::string InProcRunner::lastDiagnostic() const
{
    std::lock_guard lock(mutex_);
    return lastDiagnostic_;
}

std::shared_ptr<InprocCtlQueue> InProcRunner::controlQueue() const
{
    std::lock_guard lock(mutex_);
    return run_ ? run_->queue : nullptr;
}

} // namespace zuvo
