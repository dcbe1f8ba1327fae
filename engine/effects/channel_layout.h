#pragma once
// Speaker roles of each channel count and the re-mix between two counts.
//
// Layouts (the order of the channels in the file):
//   1 C | 2 L R | 3 L R C | 4 L R BL BR | 5 L R C BL BR | 6 L R C LFE BL BR
//   7 L R C LFE BC SL SR | 8 L R C LFE BL BR SL SR
//
// Re-mix rule (--resetchannels N): every input channel goes to the output
// channel of the same role. When the output has no such role it is shared
// with constant power (each of k targets gets 1/sqrt(k)) by its fold-down
// targets:
//   C -> L R          LFE -> L R        BC -> BL BR, else SL SR, else L R
//   SL -> BL, else L  SR -> BR, else R  BL -> SL, else L   BR -> SR, else R
//   into a mono output every channel goes to C with gain 1.
// Every column of the matrix therefore has unit energy: uncorrelated inputs
// keep their total power. Roles of the output that no input feeds stay
// silent, unless the surround derivation (--unsrs, --quad) fills them.

#include <string>
#include <vector>

namespace zuvo::effects {

enum class Role { L, R, C, LFE, BL, BR, SL, SR, BC };

std::vector<Role> layoutFor(int channels);
const char* roleName(Role role);

// outs x ins, row-major.
std::vector<double> remixMatrix(int ins, int outs);

// Output channels that the surround derivation feeds in a layout, with the
// sign of the ambience each one gets (+1 left side, -1 right side).
struct SurroundTarget {
    int channel;
    double sign;
};
std::vector<SurroundTarget> surroundTargets(int channels);

} // namespace zuvo::effects
