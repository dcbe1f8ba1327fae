#include "effects/hrtf_set.h"

#include <algorithm>
#include <cmath>
#include <fstream>

#include <mysofa.h>

#include "effects/fft_convolver.h"

namespace zuvo::effects {

struct HrtfSet::Easy {
    MYSOFA_EASY* handle = nullptr;
    ~Easy()
    {
        if (handle)
            mysofa_close(handle);
    }
};

HrtfSet::HrtfSet() = default;
HrtfSet::~HrtfSet() = default;
HrtfSet::HrtfSet(HrtfSet&&) noexcept = default;
HrtfSet& HrtfSet::operator=(HrtfSet&&) noexcept = default;

bool HrtfSet::open(const std::string& path, double fs, std::string& error)
{
    if (!std::ifstream(path, std::ios::binary).good()) {
        error = "HRTF set " + path + " cannot be opened";
        return false;
    }
    int length = 0, err = 0;
    MYSOFA_EASY* h = mysofa_open_no_norm(path.c_str(), static_cast<float>(fs), &length, &err);
    if (!h || err != MYSOFA_OK) {
        if (h)
            mysofa_close(h);
        error = "HRTF set " + path + " is not a usable SOFA file (libmysofa error " + std::to_string(err) + ")";
        return false;
    }
    if (length < 1 || length > kMaxHrirLength) {
        mysofa_close(h);
        error = "HRTF set " + path + ": filter length " + std::to_string(length) + " is out of range";
        return false;
    }
    easy_ = std::make_unique<Easy>();
    easy_->handle = h;
    length_ = length;
    fs_ = fs;
    path_ = path;
    scale_ = 1.0;
    const Hrir front = at(0, 0);
    std::size_t n = 1 << 16;
    while (n < 4 * front.left.size())
        n *= 2;
    double power = 0;
    int bins = 0;
    for (const auto* ir : {&front.left, &front.right}) {
        const auto spectrum = spectrumOf(*ir, n);
        for (std::size_t k = 0; k < spectrum.size(); ++k) {
            const double hz = fs * static_cast<double>(k) / static_cast<double>(n);
            if (hz >= kNormLowHz && hz <= kNormHighHz) {
                power += std::norm(spectrum[k]);
                ++bins;
            }
        }
    }
    if (!(power > 0) || bins == 0 || !std::isfinite(power)) {
        error = "HRTF set " + path + ": the frontal response is silent";
        easy_.reset();
        return false;
    }
    scale_ = 1.0 / std::sqrt(power / bins);
    return true;
}

Hrir HrtfSet::at(double azimuthDeg, double elevationDeg) const
{
    float c[3] = {static_cast<float>(azimuthDeg), static_cast<float>(elevationDeg), 1.0f};
    mysofa_s2c(c);
    std::vector<float> l(static_cast<std::size_t>(length_)), r(static_cast<std::size_t>(length_));
    float dl = 0, dr = 0;
    mysofa_getfilter_float(easy_->handle, c[0], c[1], c[2], l.data(), r.data(), &dl, &dr);
    auto shifted = [&](const std::vector<float>& x, float delaySeconds) {
        const double d = std::isfinite(delaySeconds) ? std::max(0.0, std::round(delaySeconds * fs_)) : 0.0;
        const auto shift = static_cast<std::size_t>(std::min(d, static_cast<double>(kMaxHrirLength)));
        std::vector<double> out(shift, 0.0);
        for (float v : x)
            out.push_back(scale_ * v);
        return out;
    };
    return Hrir{shifted(l, dl), shifted(r, dr)};
}

} // namespace zuvo::effects
