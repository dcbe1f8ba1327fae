#include "effects/filter_stage.h"

#include <utility>

namespace zuvo::effects {

FilterStage::FilterStage(std::string name, double gain, std::vector<eq::Biquad> sections, int channels)
    : name_(std::move(name)), gain_(gain), sections_(std::move(sections)), channels_(channels),
      state_(static_cast<std::size_t>(channels) * sections_.size())
{
}

void FilterStage::process(Planar& block, std::size_t n)
{
    const std::size_t ns = sections_.size();
    int c = 0;
    // Two channels per pass: their recursions are independent, so the CPU
    // overlaps them (one channel alone waits on its own feedback).
    for (; c + 1 < channels_ && c + 1 < static_cast<int>(block.size()); c += 2) {
        double* x = block[static_cast<std::size_t>(c)].data();
        double* z = block[static_cast<std::size_t>(c + 1)].data();
        if (gain_ != 1.0)
            for (std::size_t k = 0; k < n; ++k) {
                x[k] *= gain_;
                z[k] *= gain_;
            }
        for (std::size_t s = 0; s < ns; ++s) {
            const eq::Biquad& q = sections_[s];
            State& sa = state_[static_cast<std::size_t>(c) * ns + s];
            State& sb = state_[static_cast<std::size_t>(c + 1) * ns + s];
            double a1 = sa.s1, a2 = sa.s2, b1 = sb.s1, b2 = sb.s2;
            for (std::size_t k = 0; k < n; ++k) {
                const double u = x[k], v = z[k];
                const double ya = q.b0 * u + a1, yb = q.b0 * v + b1;
                a1 = q.b1 * u - q.a1 * ya + a2;
                b1 = q.b1 * v - q.a1 * yb + b2;
                a2 = q.b2 * u - q.a2 * ya;
                b2 = q.b2 * v - q.a2 * yb;
                x[k] = ya;
                z[k] = yb;
            }
            sa.s1 = a1;
            sa.s2 = a2;
            sb.s1 = b1;
            sb.s2 = b2;
        }
    }
    for (; c < channels_ && c < static_cast<int>(block.size()); ++c) {
        double* x = block[static_cast<std::size_t>(c)].data();
        if (gain_ != 1.0)
            for (std::size_t k = 0; k < n; ++k)
                x[k] *= gain_;
        for (std::size_t s = 0; s < ns; ++s) {
            const eq::Biquad& q = sections_[s];
            State& st = state_[static_cast<std::size_t>(c) * ns + s];
            double s1 = st.s1, s2 = st.s2;
            for (std::size_t k = 0; k < n; ++k) {
                const double in = x[k];
                const double y = q.b0 * in + s1;
                s1 = q.b1 * in - q.a1 * y + s2;
                s2 = q.b2 * in - q.a2 * y;
                x[k] = y;
            }
            st.s1 = s1;
            st.s2 = s2;
        }
    }
}

cplx FilterStage::transfer(double hz, double fs) const
{
    cplx h = 1.0;
    for (const eq::Biquad& q : sections_)
        h *= eq::response(q, hz, fs);
    return h;
}

ResponseMatrix FilterStage::response(double hz, double fs) const
{
    ResponseMatrix r = ResponseMatrix::identity(channels_);
    const cplx h = gain_ * transfer(hz, fs);
    for (int c = 0; c < channels_; ++c)
        r.at(c, c) = h;
    return r;
}

std::vector<eq::Biquad> designEqBands(const std::vector<eq::BandSpec>& bands, double fs)
{
    std::vector<eq::Biquad> out;
    const int n = static_cast<int>(bands.size());
    for (int i = 0; i < n; ++i)
        out.push_back(eq::designBand(bands[static_cast<std::size_t>(i)], eq::bandKindAt(i, n), fs));
    return out;
}

eq::Biquad designShelf(eq::BandKind kind, double hz, double gainDb, double fs)
{
    eq::BandSpec b;
    b.centerHz = hz;
    b.gainDb = gainDb;
    b.bandwidth = kShelfQ;
    b.unit = 'q';
    return eq::designBand(b, kind, fs);
}

} // namespace zuvo::effects
