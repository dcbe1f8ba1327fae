#pragma once
#include <QObject>
#include <atomic>
#include <memory>
#include <mutex>

#include "preview_reader.h"
#include "spectrogram.h"

namespace pv {

// One spectrogram computed on a pool thread. The job is shared by the view
// that started it and the worker; the worker leaves its result in the
// mutex-guarded inbox and then emits `ready` (queued to the GUI thread),
// so nothing but the view's own slot ever touches the view.
class SpectrogramJob : public QObject {
    Q_OBJECT
public:
    // A job stays valid for as long as anybody holds it, whatever happens
    // to the view. Connect to `ready` before calling `start`.
    static std::shared_ptr<SpectrogramJob> create(std::shared_ptr<const PreviewData> data);
    static void start(const std::shared_ptr<SpectrogramJob>& job);

    void cancel() { cancel_.store(true, std::memory_order_relaxed); }
    // The result once `ready` was emitted; empty before.
    Spectrogram take();

signals:
    void ready();

private:
    SpectrogramJob() = default;
    void run();

    std::mutex mutex_;
    std::shared_ptr<const PreviewData> data_; // guarded: published to the worker through the mutex
    Spectrogram result_;                      // guarded
    std::atomic<bool> cancel_{false};
};

} // namespace pv
