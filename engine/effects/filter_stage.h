#pragma once
// A gain and a cascade of biquads, the same on every channel: the
// equaliser, the tone controls and the pre-cut. Sections run in transposed
// direct form II in double precision; their coefficients come from the
// shared band design (eq/eq_design.h), so what the window draws is what runs.

#include <string>
#include <vector>

#include "effects/block.h"
#include "eq/eq_design.h"

namespace zuvo::effects {

class FilterStage {
public:
    FilterStage() = default;
    FilterStage(std::string name, double gain, std::vector<eq::Biquad> sections, int channels);

    void process(Planar& block, std::size_t n);
    ResponseMatrix response(double hz, double fs) const;
    // The section response alone (without the gain), for logs and tests.
    cplx transfer(double hz, double fs) const;

    const std::string& name() const { return name_; }
    bool empty() const { return sections_.empty() && gain_ == 1.0; }

private:
    struct State {
        double s1 = 0, s2 = 0;
    };
    std::string name_;
    double gain_ = 1.0;
    std::vector<eq::Biquad> sections_;
    int channels_ = 0;
    std::vector<State> state_; // channels x sections
};

// The designs of the command line's bands at `fs`:
// "--eq" bands in slot order (first a low shelf, a high shelf last only when
// there are ten, peaking otherwise);
std::vector<eq::Biquad> designEqBands(const std::vector<eq::BandSpec>& bands, double fs);

// Tone: low shelf at kBassHz and high shelf at kTrebleHz, shelf Q 0.7071.
constexpr double kBassHz = 100.0;
constexpr double kTrebleHz = 10000.0;
constexpr double kShelfQ = 0.7071067811865476;
eq::Biquad designShelf(eq::BandKind kind, double hz, double gainDb, double fs);

} // namespace zuvo::effects
