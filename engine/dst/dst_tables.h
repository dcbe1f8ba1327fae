#pragma once
// The frame header between the "DST coded" bit and the arithmetic code:
// segmentation (one segment per channel), the channel-to-element maps, the
// half-probability flags, the filter coefficients and the probability tables.
#include <string>

#include "dst/dst_bits.h"
#include "dst/dst_frame.h"

namespace zuvo::dst {

void writeFrameTables(BitWriter& w, const FrameTables& t);
// False with a reason when the header is malformed or uses a feature this
// decoder does not implement (more than one segment per channel).
bool readFrameTables(BitReader& r, int channels, FrameTables& t, std::string* why);

// Header bits one filter or one probability table costs as written (the
// plain or the Rice-coded form, whichever is smaller).
double filterBits(const std::vector<int>& coefs);
double ptableBits(const std::vector<int>& probs);

} // namespace zuvo::dst
