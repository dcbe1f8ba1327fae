// libFuzzer target for the preview's WAV decoder: any bytes, any chunk
// layout; the decoder must neither crash nor read outside the input.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "wav_decode.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    pv::MemorySource src(data, size);
    std::vector<float> samples;
    const pv::WavDecodeResult r = pv::decodeWavPreview(src, samples);
    // Invariants the preview relies on.
    if (r.error == pv::WavError::None && samples.empty())
        __builtin_trap();
    if (!samples.empty() && (r.channels < 1 || r.channels > 8))
        __builtin_trap();
    if (samples.size() > size)
        __builtin_trap();
    return 0;
}
