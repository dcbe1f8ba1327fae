#include "spectrogram_job.h"

#include <QThreadPool>

namespace pv {

std::shared_ptr<SpectrogramJob> SpectrogramJob::create(std::shared_ptr<const PreviewData> data)
{
    // A QObject belongs to the GUI thread, so it is deleted there, later,
    // even when the worker lets go of it last.
    std::shared_ptr<SpectrogramJob> job(new SpectrogramJob, [](SpectrogramJob* j) { j->deleteLater(); });
    {
        const std::lock_guard lock(job->mutex_);
        job->data_ = std::move(data);
    }
    return job;
}

void SpectrogramJob::start(const std::shared_ptr<SpectrogramJob>& job)
{
    // The global pool is waited for when the application ends.
    QThreadPool::globalInstance()->start([job] { job->run(); });
}

void SpectrogramJob::run()
{
    std::shared_ptr<const PreviewData> data;
    {
        const std::lock_guard lock(mutex_);
        data = data_;
    }
    Spectrogram s = computeSpectrogram(data->samples.data(), data->samples.size(), data->sampleRate, &cancel_);
    if (cancel_.load(std::memory_order_relaxed))
        return;
    {
        const std::lock_guard lock(mutex_);
        result_ = std::move(s);
    }
    emit ready();
}

Spectrogram SpectrogramJob::take()
{
    const std::lock_guard lock(mutex_);
    return std::move(result_);
}

} // namespace pv
