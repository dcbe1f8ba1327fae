#pragma once
// The PCM sample format asked for with --bit / --float (24-bit by default).
#include "cli/options.h"
#include "io/pcm_writer.h"

namespace zuvo::run {

inline io::PcmSampleFormat pcmSampleFormat(const cli::EngineOptions& o)
{
    if (o.floatOut)
        return io::PcmSampleFormat::Float32;
    switch (o.bits) {
    case 16: return io::PcmSampleFormat::Int16;
    case 32: return io::PcmSampleFormat::Int32;
    default: return io::PcmSampleFormat::Int24;
    }
}

} // namespace zuvo::run
