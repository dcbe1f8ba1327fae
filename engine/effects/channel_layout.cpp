#include "effects/channel_layout.h"

#include <algorithm>
#include <cmath>

namespace zuvo::effects {

std::vector<Role> layoutFor(int channels)
{
    using R = Role;
    switch (channels) {
    case 1: return {R::C};
    case 2: return {R::L, R::R};
    case 3: return {R::L, R::R, R::C};
    case 4: return {R::L, R::R, R::BL, R::BR};
    case 5: return {R::L, R::R, R::C, R::BL, R::BR};
    case 6: return {R::L, R::R, R::C, R::LFE, R::BL, R::BR};
    case 7: return {R::L, R::R, R::C, R::LFE, R::BC, R::SL, R::SR};
    case 8: return {R::L, R::R, R::C, R::LFE, R::BL, R::BR, R::SL, R::SR};
    default: return {};
    }
}

const char* roleName(Role role)
{
    static const char* names[] = {"L", "R", "C", "LFE", "BL", "BR", "SL", "SR", "BC"};
    return names[static_cast<int>(role)];
}

namespace {

int indexOf(const std::vector<Role>& layout, Role r)
{
    const auto it = std::find(layout.begin(), layout.end(), r);
    return it == layout.end() ? -1 : static_cast<int>(it - layout.begin());
}

// Output channels an input role lands on.
std::vector<int> targets(Role role, const std::vector<Role>& out)
{
    if (out.size() == 1)
        return {0};
    if (const int i = indexOf(out, role); i >= 0)
        return {i};
    auto pair = [&](Role a, Role b) -> std::vector<int> {
        const int i = indexOf(out, a), j = indexOf(out, b);
        if (i >= 0 && j >= 0)
            return {i, j};
        return {};
    };
    auto one = [&](Role a, Role fallback) -> std::vector<int> {
        const int i = indexOf(out, a);
        return {i >= 0 ? i : indexOf(out, fallback)};
    };
    switch (role) {
    case Role::C:
    case Role::LFE: return pair(Role::L, Role::R);
    case Role::BC: {
        for (auto p : {pair(Role::BL, Role::BR), pair(Role::SL, Role::SR)})
            if (!p.empty())
                return p;
        return pair(Role::L, Role::R);
    }
    case Role::SL: return one(Role::BL, Role::L);
    case Role::SR: return one(Role::BR, Role::R);
    case Role::BL: return one(Role::SL, Role::L);
    case Role::BR: return one(Role::SR, Role::R);
    default: return {indexOf(out, Role::C)}; // L or R into a layout without them: only mono has none
    }
}

} // namespace

std::vector<double> remixMatrix(int ins, int outs)
{
    const std::vector<Role> in = layoutFor(ins), out = layoutFor(outs);
    std::vector<double> m(static_cast<std::size_t>(ins * outs), 0.0);
    for (int i = 0; i < ins; ++i) {
        const std::vector<int> t = targets(in[static_cast<std::size_t>(i)], out);
        const double g = 1.0 / std::sqrt(static_cast<double>(t.size()));
        for (int o : t)
            m[static_cast<std::size_t>(o * ins + i)] += g;
    }
    return m;
}

std::vector<SurroundTarget> surroundTargets(int channels)
{
    const std::vector<Role> layout = layoutFor(channels);
    std::vector<SurroundTarget> out;
    for (std::size_t c = 0; c < layout.size(); ++c) {
        const Role r = layout[c];
        if (r == Role::BL || r == Role::SL)
            out.push_back({static_cast<int>(c), +1.0});
        else if (r == Role::BR || r == Role::SR)
            out.push_back({static_cast<int>(c), -1.0});
    }
    return out;
}

} // namespace zuvo::effects
