#pragma once
// What the run itself knows for the report: settings, design figures and the
// levels and modulator statistics it measured on the whole file.
#include <cstdint>
#include <string>
#include <vector>

namespace zuvo::report {

struct LevelFacts {
    double peakDbfs = 0, rmsDbfs = 0;
};

struct ModulatorFacts {
    double peakInput = 0; // largest |sample| entering the modulator (after the gain)
    std::uint64_t overloads = 0, resets = 0;
};

struct RunFacts {
    std::string version, input, output, commandLine;
    int inputRate = 0, dsdRate = 0, dsdMultiple = 0, inChannels = 0, outChannels = 0;
    std::string modulator;            // "SOS error feedback, order 9"
    std::string designText;           // the design summary of the log
    std::vector<std::string> effects; // effect chain description, empty without effects
    double seconds = 0;               // audio converted
    double appliedGainDb = 0, passbandRippleDb = 0, stopbandAttenuationDb = 0;
    double modulatorMaxStableDbfs = 0; // at the modulator's input
    std::vector<LevelFacts> inputLevels;
    std::vector<ModulatorFacts> modulators;
    bool noiseProfiling = false;
};

} // namespace zuvo::report
