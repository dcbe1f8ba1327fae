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
    // Options a front-end may offer only when the engine says it has them.
    for (const char* name : {"-pdfrp", "--pdf-report", "--noise-profiling", "--noise-profile"})
        std::fprintf(out, "supports %s\n", name);
}

} // namespace zuvo::cli
