#include "run/planar_pcm_sink.h"

#include <algorithm>

namespace zuvo::run {

PlanarPcmSink::PlanarPcmSink(io::PcmWriter& writer, std::size_t channels)
    : writer_(writer), pcm_(channels)
{
}

bool PlanarPcmSink::flush(std::string* error)
{
    const std::size_t ch = pcm_.size();
    std::size_t n = pcm_[0].size();
    for (const auto& p : pcm_)
        n = std::min(n, p.size());
    interleaved_.resize(n * ch);
    for (std::size_t c = 0; c < ch; ++c)
        for (std::size_t i = 0; i < n; ++i)
            interleaved_[i * ch + c] = pcm_[c][i];
    for (auto& p : pcm_)
        p.erase(p.begin(), p.begin() + static_cast<std::ptrdiff_t>(n));
    return writer_.write(interleaved_, error);
}

} // namespace zuvo::run
