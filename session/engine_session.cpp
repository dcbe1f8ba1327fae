#include "engine_session.h"

EngineSession::EngineSession()
    : callbacks_(std::make_shared<Callbacks>())
{
}

EngineSession::~EngineSession()
{
    callbacks_->clear();
}

bool EngineSession::isInProcess() const
{
    return false;
}

void EngineSession::setCallbacks(LineCallback onLine, FinishedCallback onFinished)
{
    callbacks_->set(std::move(onLine), std::move(onFinished));
}

void EngineSession::Callbacks::set(LineCallback onLine, FinishedCallback onFinished)
{
    std::lock_guard lock(mutex_);
    onLine_ = std::move(onLine);
    onFinished_ = std::move(onFinished);
}

void EngineSession::Callbacks::clear()
{
    set({}, {});
}

bool EngineSession::Callbacks::hasLine() const
{
    std::lock_guard lock(mutex_);
    return static_cast<bool>(onLine_);
}

void EngineSession::Callbacks::line(const QString& text, bool fromStderr) const
{
    std::lock_guard lock(mutex_);
    if (const LineCallback call = onLine_)
        call(text, fromStderr);
}

void EngineSession::Callbacks::finished(int exitCode, bool crashed) const
{
    std::lock_guard lock(mutex_);
    if (const FinishedCallback call = onFinished_)
        call(exitCode, crashed);
}
