#include "record/record_options.h"

#include <algorithm>
#include <cctype>

#include "cli/option_values.h"

namespace zuvo::record {

namespace {

bool takeValue(const std::vector<std::string>& args, std::size_t& i, std::string& out, std::vector<std::string>& errors)
{
    if (i + 1 >= args.size()) {
        errors.push_back(args[i] + " needs a value");
        return false;
    }
    out = args[++i];
    return true;
}

bool takeInt(const std::vector<std::string>& args, std::size_t& i, long long lo, long long hi, int& out,
             std::vector<std::string>& errors)
{
    const std::string name = args[i];
    std::string text;
    long long n = 0;
    if (!takeValue(args, i, text, errors))
        return false;
    if (!cli::parseInt(text, n) || n < lo || n > hi) {
        errors.push_back(name + ": '" + text + "' is not a whole number from " + std::to_string(lo) + " to "
                         + std::to_string(hi));
        return false;
    }
    out = static_cast<int>(n);
    return true;
}

bool takeDouble(const std::vector<std::string>& args, std::size_t& i, double lo, double hi, double& out,
                std::vector<std::string>& errors)
{
    const std::string name = args[i];
    std::string text;
    double x = 0;
    if (!takeValue(args, i, text, errors))
        return false;
    if (!cli::parseDouble(text, x) || !(x >= lo && x <= hi)) {
        char range[96];
        std::snprintf(range, sizeof range, " from %g to %g", lo, hi);
        errors.push_back(name + ": '" + text + "' is not a number" + range);
        return false;
    }
    out = x;
    return true;
}

std::string lower(std::string s)
{
    std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return s;
}

} // namespace

bool takeRecordOption(const std::vector<std::string>& args, std::size_t& i, RecordOptions& o,
                      std::vector<std::string>& errors)
{
    const std::string& a = args[i];
    if (a.rfind("--record", 0) != 0 && a != "--dsd-mode")
        return false;
    std::string s;
    if (a == "--record") {
        o.enabled = true;
    } else if (a == "--record-dsd") {
        o.enabled = true;
        o.dsd = true;
    } else if (a == "--dsd-mode") {
        if (takeValue(args, i, s, errors)) {
            if (s != "dop" && s != "native")
                errors.push_back("--dsd-mode: '" + s + "' is not one of dop, native");
            o.dsdMode = s;
        }
    } else if (a == "--record-device") {
        if (takeValue(args, i, s, errors)) {
            if (s.empty())
                errors.push_back("--record-device: empty device name");
            else
                o.device = s;
        }
    } else if (a == "--record-channels") {
        takeInt(args, i, 0, 8, o.channels, errors);
    } else if (a == "--record-samplerate") {
        takeInt(args, i, 0, 384000, o.sampleRate, errors);
    } else if (a == "--record-duration") {
        takeDouble(args, i, 0, 7 * 86400.0, o.durationSeconds, errors);
    } else if (a == "--record-headroom") {
        takeDouble(args, i, 0, 60, o.headroomDb, errors);
    } else if (a == "--record-buffer") {
        takeInt(args, i, 16, 65536, o.bufferFrames, errors);
    } else if (a == "--record-monitor") {
        o.monitor = true;
    } else if (a == "--record-exclusive") {
        o.exclusive = true;
    } else if (a == "--record-monitor-device") {
        takeValue(args, i, o.monitorDevice, errors);
    } else {
        return false;
    }
    if (a != "--record" && a != "--record-dsd")
        o.anyGiven = true;
    return true;
}

void validateRecordOptions(const RecordOptions& o, bool pdfReport, const std::string& output, bool otherMode,
                           std::vector<std::string>& errors)
{
    if (!o.enabled) {
        if (o.anyGiven)
            errors.push_back("the --record-… options and --dsd-mode need --record or --record-dsd");
        return;
    }
    if (otherMode)
        errors.push_back("--record excludes --reverse, --dxd and input files (-i)");
    if (!o.dsd && !o.dsdMode.empty())
        errors.push_back("--dsd-mode applies to --record-dsd only");
    if (o.dsd && o.sampleRate > 0)
        errors.push_back("--record-samplerate applies to PCM recording (--record); --record-dsd takes its rate "
                         "from --oversampling (DSD64 by default)");
    if (pdfReport && o.dsd)
        errors.push_back("-pdfrp: --record-dsd stores the device's DSD as it comes, with no modulator to analyse; "
                         "the PDF report is made for --record (PCM modulated to DSD)");
    if (output.empty())
        errors.push_back("no output file given (the last argument, a .dsf file)");
    else if (output.size() < 4 || lower(output.substr(output.size() - 4)) != ".dsf")
        errors.push_back("a recording is written as DSF: the output must end in .dsf (" + output + ")");
    if (o.sampleRate > 0 && !(o.sampleRate >= 44100 && (o.sampleRate % 44100 == 0 || o.sampleRate % 48000 == 0)))
        errors.push_back("--record-samplerate: " + std::to_string(o.sampleRate)
                         + " Hz is not supported (44.1 and 48 kHz families, 44100 to 384000 Hz, or 0 for automatic)");
}

} // namespace zuvo::record
