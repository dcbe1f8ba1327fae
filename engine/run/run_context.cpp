#include "run/run_context.h"

#include "run/exit_codes.h"

namespace zuvo::run {

namespace {
void emit(RunContext& ctx, std::FILE* stream, const char* format, va_list ap)
{
    char text[4096];
    std::vsnprintf(text, sizeof text, format, ap);
    if (stream) {
        std::fprintf(stream, "ZuvoEngine: %s\n", text);
        std::fflush(stream);
    }
    ctx.log.line("%s", text);
}
} // namespace

void report(RunContext& ctx, const char* format, ...)
{
    va_list ap;
    va_start(ap, format);
    emit(ctx, stderr, format, ap);
    va_end(ap);
}

void detail(RunContext& ctx, const char* format, ...)
{
    va_list ap;
    va_start(ap, format);
    emit(ctx, ctx.options.verbose ? stderr : nullptr, format, ap);
    va_end(ap);
}

int reportStopped(RunContext& ctx)
{
    report(ctx, "stopped on request; the partial output is complete up to that point: %s", ctx.options.output.c_str());
    return kExitStopped;
}

} // namespace zuvo::run
