#include "io/channel_layout.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <numeric>

namespace zuvo::io {

namespace {
using S = Speaker;

// DSF channel types 1..7 in their fixed channel order.
const std::array<ChannelLayout, 7> kDsfTypes = {{
    {S::FrontCenter},
    {S::FrontLeft, S::FrontRight},
    {S::FrontLeft, S::FrontRight, S::FrontCenter},
    {S::FrontLeft, S::FrontRight, S::SurroundLeft, S::SurroundRight},
    {S::FrontLeft, S::FrontRight, S::FrontCenter, S::Lfe},
    {S::FrontLeft, S::FrontRight, S::FrontCenter, S::SurroundLeft, S::SurroundRight},
    {S::FrontLeft, S::FrontRight, S::FrontCenter, S::Lfe, S::SurroundLeft, S::SurroundRight},
}};

const char* shortName(Speaker s)
{
    switch (s) {
    case S::FrontLeft: return "FL";
    case S::FrontRight: return "FR";
    case S::FrontCenter: return "C";
    case S::Lfe: return "LFE";
    case S::SurroundLeft: return "LS";
    case S::SurroundRight: return "RS";
    case S::Other: break;
    }
    return "other";
}
} // namespace

ChannelLayout defaultLayout(int channels)
{
    switch (channels) {
    case 1: return kDsfTypes[0];
    case 2: return kDsfTypes[1];
    case 3: return kDsfTypes[2];
    case 4: return kDsfTypes[3];
    case 5: return kDsfTypes[5];
    case 6: return kDsfTypes[6];
    default: return ChannelLayout(static_cast<std::size_t>(std::max(channels, 0)), S::Other);
    }
}

std::vector<std::size_t> containerOrder(const ChannelLayout& layout)
{
    std::vector<std::size_t> order(layout.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return layout[a] < layout[b]; });
    return order;
}

int dsfChannelType(const ChannelLayout& ordered)
{
    for (std::size_t t = 0; t < kDsfTypes.size(); ++t)
        if (kDsfTypes[t] == ordered)
            return static_cast<int>(t) + 1;
    // A lone channel is mono whatever its mask says.
    return ordered.size() == 1 ? 1 : 0;
}

std::vector<std::string> dffChannelIds(const ChannelLayout& ordered)
{
    std::vector<std::string> ids;
    if (ordered.size() == 1)
        return {"C   "};
    const bool stereo = ordered == kDsfTypes[1];
    std::vector<bool> used(7, false);
    for (std::size_t i = 0; i < ordered.size(); ++i) {
        const Speaker s = ordered[i];
        const auto k = static_cast<std::size_t>(s);
        std::string id;
        if (s != S::Other && !used[k]) {
            used[k] = true;
            static const char* names[] = {"MLFT", "MRGT", "C   ", "LFE ", "LS  ", "RS  "};
            id = stereo ? (s == S::FrontLeft ? "SLFT" : "SRGT") : names[k];
        } else {
            char numbered[8];
            std::snprintf(numbered, sizeof numbered, "C%03zu", i % 1000);
            id = numbered;
        }
        ids.push_back(id);
    }
    return ids;
}

std::string layoutText(const ChannelLayout& layout)
{
    std::string out;
    for (Speaker s : layout)
        out += (out.empty() ? "" : " ") + std::string(shortName(s));
    return out;
}

} // namespace zuvo::io
