#pragma once
// The engine's command line as a value: what to do, with which design and
// tags. Parsing never stops at the first problem; it collects every bad
// value and every option this version does not implement, so one run tells
// the user everything at once, before any output exists.

#include <optional>
#include <string>
#include <vector>

#include "analysis/analysis_options.h"
#include "dsp/dsd_pipeline.h"
#include "effects/effect_options.h"
#include "io/tags.h"
#include "record/record_options.h"
#include "restore/restore_options.h"

namespace zuvo::cli {

enum class Mode { Forward, Reverse, Dxd, Record };

struct EngineOptions {
    Mode mode = Mode::Forward;
    bool showHelp = false;
    bool showVersion = false;
    bool listDevices = false;
    bool showCapabilities = false; // --capabilities: list what this build refuses

    std::vector<std::string> arguments; // the command line as given, for the report
    std::vector<std::string> inputs;
    std::string output;

    io::Tags tags;
    std::string coverPath;  // --cover: front cover image embedded in the tag
    bool metadataFromInput = false;

    bool gui = false;
    bool verbose = false;
    std::string logFile;
    std::vector<std::string> logTopics; // fir, ns, freq, all
    bool pdfReport = false;             // -pdfrp: PDF analysis report next to the output
    bool noiseProfiling = false;        // --noise-profiling: noise-floor page in that report
    bool report = false;                // per-channel level summary at the end
    bool reportPeak = false;
    bool reportRms = false;
    bool noDynamicRange = false;
    bool swapChannels = false;
    analysis::AnalysisOptions analysis; // --measure, --lufs, --rg, --stop-lossy, --stats

    // Forward (PCM -> DSD).
    int oversampling = 64;
    dsp::FirOptions fir;
    dsp::ModulatorOptions modulator;
    std::optional<double> gain; // linear; absent = automatic
    bool predistortion = true;
    bool dst = false;        // --dst: DST-compressed DSDIFF
    int dstLevel = 1;        // --dst-compression 1..9 (default 1, the fastest); 0 turns --dst off
    effects::EffectOptions effects; // equaliser, tone, channels, stereo image
    restore::RestoreOptions restore; // dehum, decrackle, expander, mastering

    // PCM outputs (reverse and DXD).
    bool flac = false;       // --format flac
    int sampling = 0;        // --sampling, 0 = default of the decimator
    int bits = 0;            // --bit 16/24/32, 0 = 24
    bool floatOut = false;   // --float
    double lowpassHz = 0;    // --lowpass
    int dxdRate = 352800;    // --dxd-samplerate

    // Capture from an audio device (--record); the design options above apply.
    record::RecordOptions record;
};

struct ParsedCommandLine {
    EngineOptions options;
    std::vector<std::string> errors;      // bad or missing values, conflicts
    std::vector<std::string> unsupported; // options this version does not implement
    std::vector<std::string> unknown;     // options nobody sends
    std::vector<std::string> warnings;    // accepted, but worth a line

    bool usageError() const { return !errors.empty() || !unsupported.empty() || !unknown.empty(); }
};

// `args` without the program name and without the in-process host options.
ParsedCommandLine parseCommandLine(const std::vector<std::string>& args);

} // namespace zuvo::cli
