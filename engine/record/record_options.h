#pragma once
// The recorder's part of the engine command line. The recorder captures PCM
// from an ALSA device and modulates it to DSD as it arrives, with the same
// design options as a file conversion.

#include <cmath>
#include <string>
#include <vector>

namespace zuvo::record {

struct RecordOptions {
    bool enabled = false;        // --record or --record-dsd
    bool dsd = false;            // --record-dsd (direct DSD capture)
    std::string dsdMode;         // --dsd-mode dop|native
    std::string device = "default";
    int channels = 0;            // 0 = what the device offers (stereo first)
    int sampleRate = 0;          // 0 = the first rate the device takes
    double durationSeconds = 0;  // 0 = until "q"/"stop"
    double headroomDb = NAN;     // below the modulator's full scale; NaN = the design's safe gain
    int bufferFrames = 512;      // ALSA period; the buffer holds eight
    bool monitor = false;
    bool exclusive = false;
    std::string monitorDevice;   // empty = "default"
    bool anyGiven = false;       // some record option appeared at all
};

// Takes the option `args[i]` (and its value, moving `i` past it) when it is
// one of the recorder's. Bad values go to `errors`. Returns false for every
// other option.
bool takeRecordOption(const std::vector<std::string>& args, std::size_t& i, RecordOptions& options,
                      std::vector<std::string>& errors);

// Checks that need the whole command line: `pdfReport` is -pdfrp, `output`
// the output path, `otherMode` a conversion mode given alongside.
void validateRecordOptions(const RecordOptions& options, bool pdfReport, const std::string& output,
                           bool otherMode, std::vector<std::string>& errors);

} // namespace zuvo::record
