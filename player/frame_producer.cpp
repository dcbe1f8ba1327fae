#include "frame_producer.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "dsp/dsd_pipeline.h"
#include "io/bit_order.h"
#include "io/dsd_reader.h"
#include "io/pcm_reader.h"
#include "sample_packing.h"

namespace zuvo::player {

namespace {

bool looksLikeDsd(const std::string& path)
{
    std::FILE* f = std::fopen(path.c_str(), "rb");
    if (!f)
        return false;
    char magic[4] = {};
    const bool ok = std::fread(magic, 1, 4, f) == 4;
    std::fclose(f);
    return ok && (std::memcmp(magic, "DSD ", 4) == 0 || std::memcmp(magic, "FRM8", 4) == 0);
}

constexpr std::size_t kDsdChunkBytes = 32768; // per channel and piece
constexpr std::size_t kPcmChunkFrames = 8192;

class DsdProducer final : public FrameProducer {
public:
    explicit DsdProducer(std::unique_ptr<io::DsdReader> reader)
        : reader_(std::move(reader))
    {
        const io::DsdStreamInfo& i = reader_->info();
        info_.format = {true, i.sampleRate, i.channels};
        info_.seconds = double(i.bytesPerChannel) * 8.0 / double(i.sampleRate);
        info_.summary = i.container + ", DSD" + std::to_string(i.sampleRate / dsp::kDsdBaseRate) + " ("
            + std::to_string(i.sampleRate) + " Hz), " + std::to_string(i.channels) + " ch";
    }

    bool prepare(const OutputPlan& plan, std::string* error) override
    {
        plan_ = plan;
        unit_ = plan.path == OutputPath::NativeDsd ? std::size_t(dsdBytesPerFrame(plan.format))
              : plan.path == OutputPath::Dop       ? 2
                                                   : 1;
        if (plan.path == OutputPath::DsdToPcm) {
            dsp::ReverseConfig cfg;
            cfg.dsdRate = info_.format.rate;
            cfg.outputRate = int(plan.rate);
            for (int c = 0; c < info_.format.channels; ++c) {
                decimators_.emplace_back(cfg, error);
                if (!decimators_.back().valid())
                    return false;
            }
            pcm_.resize(std::size_t(info_.format.channels));
        }
        return true;
    }

    int next(std::vector<std::uint8_t>& out, std::string* error) override
    {
        if (ended_)
            return 0;
        const long long got = reader_->read(kDsdChunkBytes, bytes_, error);
        if (got < 0)
            return finishWith(out, -1);
        auto n = static_cast<std::size_t>(got);
        if (n == 0)
            return finishWith(out, 0);
        if (n % unit_ != 0) {
            // Only the last piece can be short: fill it up with DSD silence.
            const std::size_t padded = (n / unit_ + 1) * unit_;
            for (auto& c : bytes_)
                c.resize(padded, io::kDsdSilenceMsbFirst);
            n = padded;
        }
        emit(n, out);
        // A short piece may be the end or a cut file: the next read tells.
        return 1;
    }

private:
    void emit(std::size_t n, std::vector<std::uint8_t>& out)
    {
        switch (plan_.path) {
        case OutputPath::NativeDsd: appendNativeDsd(bytes_, n, plan_.format, out); break;
        case OutputPath::Dop: appendDop(bytes_, n, plan_.format, dopPhase_, out); break;
        default:
            for (std::size_t c = 0; c < decimators_.size(); ++c) {
                pcm_[c].clear();
                decimators_[c].process(bytes_[c].data(), n, pcm_[c]);
            }
            emitPcm(out);
        }
    }

    void emitPcm(std::vector<std::uint8_t>& out)
    {
        std::size_t m = pcm_.empty() ? 0 : pcm_[0].size();
        for (const auto& c : pcm_)
            m = std::min(m, c.size());
        appendPcm(pcm_, m, plan_.format, out);
    }

    int finishWith(std::vector<std::uint8_t>& out, int code)
    {
        ended_ = true;
        if (plan_.path == OutputPath::DsdToPcm) {
            for (std::size_t c = 0; c < decimators_.size(); ++c) {
                pcm_[c].clear();
                decimators_[c].finish(pcm_[c]);
            }
            emitPcm(out);
        }
        return code;
    }

    std::unique_ptr<io::DsdReader> reader_;
    std::vector<std::vector<std::uint8_t>> bytes_;
    std::vector<dsp::ChannelDecimator> decimators_;
    std::vector<std::vector<double>> pcm_;
    std::size_t unit_ = 1;
    bool dopPhase_ = false;
    bool ended_ = false;
};

class PcmProducer final : public FrameProducer {
public:
    explicit PcmProducer(std::unique_ptr<io::PcmReader> reader)
        : reader_(std::move(reader))
    {
        const io::PcmStreamInfo& i = reader_->info();
        info_.format = {false, i.sampleRate, i.channels};
        info_.seconds = i.sampleRate > 0 ? double(i.frames) / i.sampleRate : 0;
        info_.summary = i.formatName + ", " + std::to_string(i.sampleRate) + " Hz, " + std::to_string(i.channels)
            + " ch";
    }

    bool prepare(const OutputPlan& plan, std::string* error) override
    {
        plan_ = plan;
        planar_.resize(std::size_t(info_.format.channels));
        if (plan.path == OutputPath::PcmResampled) {
            for (int c = 0; c < info_.format.channels; ++c) {
                resamplers_.emplace_back(info_.format.rate, int(plan.rate), error);
                if (!resamplers_.back().valid())
                    return false;
            }
            resampled_.resize(planar_.size());
        }
        return true;
    }

    int next(std::vector<std::uint8_t>& out, std::string* error) override
    {
        if (ended_)
            return 0;
        const long long got = reader_->read(kPcmChunkFrames, interleaved_, error);
        if (got <= 0) {
            ended_ = true;
            flushResamplers(out);
            return got < 0 ? -1 : 0;
        }
        const auto n = static_cast<std::size_t>(got);
        const std::size_t ch = planar_.size();
        for (std::size_t c = 0; c < ch; ++c) {
            planar_[c].resize(n);
            for (std::size_t i = 0; i < n; ++i)
                planar_[c][i] = interleaved_[i * ch + c];
        }
        if (resamplers_.empty()) {
            appendPcm(planar_, n, plan_.format, out);
        } else {
            for (std::size_t c = 0; c < ch; ++c) {
                resampled_[c].clear();
                resamplers_[c].process(planar_[c].data(), n, resampled_[c]);
            }
            appendResampled(out);
        }
        return 1;
    }

private:
    void flushResamplers(std::vector<std::uint8_t>& out)
    {
        if (resamplers_.empty())
            return;
        for (std::size_t c = 0; c < resamplers_.size(); ++c) {
            resampled_[c].clear();
            resamplers_[c].finish(resampled_[c]);
        }
        appendResampled(out);
    }

    void appendResampled(std::vector<std::uint8_t>& out)
    {
        std::size_t m = resampled_[0].size();
        for (const auto& c : resampled_)
            m = std::min(m, c.size());
        appendPcm(resampled_, m, plan_.format, out);
    }

    std::unique_ptr<io::PcmReader> reader_;
    std::vector<double> interleaved_;
    std::vector<std::vector<double>> planar_, resampled_;
    std::vector<dsp::ChannelResampler> resamplers_;
    bool ended_ = false;
};

} // namespace

FrameProducer::~FrameProducer() = default;

std::unique_ptr<FrameProducer> FrameProducer::open(const std::string& path, std::string* error)
{
    if (looksLikeDsd(path)) {
        auto reader = io::openDsdFile(path, error);
        if (!reader)
            return nullptr;
        return std::make_unique<DsdProducer>(std::move(reader));
    }
    auto reader = std::make_unique<io::PcmReader>();
    if (!reader->open(path, error))
        return nullptr;
    return std::make_unique<PcmProducer>(std::move(reader));
}

} // namespace zuvo::player
