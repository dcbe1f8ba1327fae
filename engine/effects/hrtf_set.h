#pragma once
// Head-related impulse responses read from a SOFA file through libmysofa and
// resampled by it to the input rate. Level: every response is scaled by one
// factor per set so that the frontal direction's power response, averaged
// over both ears and kNormLowHz..kNormHighHz, is 0 dB. (libmysofa's own
// normalisation sets the frontal impulse response to unit energy, which
// makes the level grow with the sample rate: +9.4 dB at 384 kHz against
// 44.1 kHz.) Directions use the SOFA convention: azimuth in degrees
// counter-clockwise from the front (90 = left), elevation up from the
// horizontal plane.

#include <memory>
#include <string>
#include <vector>

namespace zuvo::effects {

// The set Debian's libmysofa1 installs.
constexpr const char* kDefaultSofaPath = "/usr/share/libmysofa/default.sofa";
// Longer filters than this (about 1.4 s at 192 kHz) are refused.
constexpr int kMaxHrirLength = 1 << 18;
constexpr double kNormLowHz = 200.0;
constexpr double kNormHighHz = 1000.0;

struct Hrir {
    std::vector<double> left, right; // the set's delays are folded in (whole samples)
};

class HrtfSet {
public:
    HrtfSet();
    ~HrtfSet();
    HrtfSet(HrtfSet&&) noexcept;
    HrtfSet& operator=(HrtfSet&&) noexcept;

    // False with `error` set when the file cannot be read as a SOFA set.
    bool open(const std::string& path, double fs, std::string& error);
    Hrir at(double azimuthDeg, double elevationDeg) const;
    // The level factor applied to every response.
    double scale() const { return scale_; }
    int length() const { return length_; }
    const std::string& path() const { return path_; }

private:
    struct Easy;
    std::unique_ptr<Easy> easy_;
    int length_ = 0;
    double fs_ = 0;
    double scale_ = 1;
    std::string path_;
};

} // namespace zuvo::effects
