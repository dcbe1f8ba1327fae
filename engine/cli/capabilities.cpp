#include "cli/capabilities.h"

#include <string>

#include "cli/unsupported_options.h"
#include "dsp/modulator.h"

namespace zuvo::cli {

void printCapabilities(std::FILE* out)
{
    for (const std::string& name : unsupportedOptionNames())
        std::fprintf(out, "refused %s\n", name.c_str());
    // MASH is parsed but its design is refused when the run starts.
    dsp::detail::ModulatorDesign probe;
    if (!dsp::detail::designModulator(dsp::ModulatorType::Mash, 0, 0.5, probe, nullptr))
        std::fprintf(out, "refused --mash\n");
}

} // namespace zuvo::cli
