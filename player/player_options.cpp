#include "player_options.h"

#include <charconv>

namespace zuvo::player {

namespace {

bool parseRate(const std::string& text, int& out)
{
    long long v = 0;
    const char* first = text.data();
    const char* last = first + text.size();
    auto [ptr, ec] = std::from_chars(first, last, v);
    if (ec != std::errc() || ptr != last || v < 1 || v > 100000000)
        return false;
    out = static_cast<int>(v);
    return true;
}

} // namespace

ParsedPlayerArgs parsePlayerArgs(const std::vector<std::string>& args)
{
    ParsedPlayerArgs r;
    PlayerOptions& o = r.options;
    auto fail = [&](std::string message) {
        if (r.error.empty())
            r.error = std::move(message);
    };
    for (std::size_t i = 1; i < args.size(); ++i) {
        const std::string& a = args[i];
        auto value = [&](std::string& into) {
            if (i + 1 >= args.size()) {
                fail(a + " needs a value");
                return false;
            }
            into = args[++i];
            return true;
        };
        if (a == "-i" || a == "--input") {
            value(o.input);
        } else if (a == "-dev" || a == "--device") {
            std::string name;
            if (value(name)) {
                if (name.empty())
                    fail(a + " needs a device name");
                o.device = name;
            }
        } else if (a == "-stream" || a == "--stream") {
            o.stream = true;
        } else if (a == "-dop" || a == "--dop") {
            o.forceDop = true;
        } else if (a == "-pcm" || a == "--pcm") {
            o.forcePcm = true;
        } else if (a == "-maxrate" || a == "--max-rate") {
            std::string text;
            if (value(text) && !parseRate(text, o.maxRate))
                fail("invalid rate for " + a + ": " + text);
        } else if (a == "--list-devices" || a == "-list-devices") {
            o.listDevices = true;
        } else if (a == "--version") {
            o.version = true;
        } else if (a == "--help" || a == "-h") {
            o.help = true;
        } else if (!a.empty() && a[0] == '-') {
            fail("unknown option: " + a);
        } else if (o.input.empty()) {
            o.input = a;
        } else {
            fail("more than one input file: " + a);
        }
    }
    if (o.forceDop && o.forcePcm)
        fail("-dop and -pcm exclude each other");
    if (r.error.empty() && !o.help && !o.version && !o.listDevices && o.input.empty())
        fail("no input file (use -i FILE)");
    return r;
}

const char* playerUsage()
{
    return "Usage: ZuvoPlayerEngine -i FILE [-dev NAME] [-stream] [-dop | -pcm] [-maxrate HZ]\n"
           "       ZuvoPlayerEngine --list-devices | --version | --help\n"
           "Plays a DSF or DSDIFF file (native DSD, DoP or PCM, whichever the device takes)\n"
           "or a PCM file (WAV, FLAC, AIFF, ...) to an ALSA playback device.\n"
           "  -i FILE        the file to play\n"
           "  -dev NAME      ALSA device (default: \"default\")\n"
           "  -stream        read the file while playing, with a small bounded buffer\n"
           "  -dop           send DSD as DoP even when the device takes native DSD\n"
           "  -pcm           convert DSD to PCM even when the device takes DSD or DoP\n"
           "  -maxrate HZ    never use a device rate above HZ\n"
           "Control lines on standard input: \"stop\" ends playback (exit code 3).\n"
           "Exit codes: 0 end of file, 1 usage, 2 unplayable file, 3 stopped,\n"
           "            4 device cannot be opened, 5 device refuses every format, 6 playback error.\n";
}

} // namespace zuvo::player
