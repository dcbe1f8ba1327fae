#pragma once
// Speaker positions of the channels, from the input's channel mask to the
// DSF channel type and the DSDIFF channel ids, so that both containers label
// the same channels the same way.
#include <string>
#include <vector>

namespace zuvo::io {

// Only the positions a DSD container can name; everything else is Other.
// Back and side surrounds are one position here: both containers have a
// single left/right surround pair.
enum class Speaker { FrontLeft, FrontRight, FrontCenter, Lfe, SurroundLeft, SurroundRight, Other };

using ChannelLayout = std::vector<Speaker>;

// The layout assumed for a file without a channel mask: mono, stereo,
// L R C, quad, 5.0, 5.1 (the WAVE defaults); 7 and 8 channels have none.
ChannelLayout defaultLayout(int channels);

// Order in which the channels of `layout` go into a DSD file (FL FR C LFE
// LS RS): entry i is the index in `layout` of the i-th written channel.
// Others keep their relative order after the named ones.
std::vector<std::size_t> containerOrder(const ChannelLayout& layout);

// DSF channel type (1 mono .. 7 5.1) of a layout already in container
// order, or 0 when DSF has no type for it.
int dsfChannelType(const ChannelLayout& ordered);

// DSDIFF CHNL ids of a layout already in container order: SLFT/SRGT for
// stereo, C for mono, MLFT MRGT C LFE LS RS otherwise, Cnnn for a channel
// without a name (or a repeated one).
std::vector<std::string> dffChannelIds(const ChannelLayout& ordered);

// Short text for messages: "FL FR C LFE LS RS".
std::string layoutText(const ChannelLayout& layout);

} // namespace zuvo::io
