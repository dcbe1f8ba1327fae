#include "restore/restore_help.h"

#include "restore/spectral/spectral_options.h"

namespace zuvo::restore {

void printRestoreHelp(std::FILE* out)
{
    std::fprintf(out,
        "Processing order (a stage that is off is not run):\n"
        "  decode -> non-finite repair -> restoration (dehum -> decrackle -> spectral denoise ->\n"
        "  downward expander) -> effects (pre-cut/EQ -> tone -> DSRE -> channel re-mix -> surround\n"
        "  derivation -> width/crossfeed -> ambience -> HRTF) -> loudness gain -> safety limiter ->\n"
        "  modulator. Restoration runs per channel at the input rate in 64-bit float.\n"
        "Restoration (PCM to DSD only):\n"
        "  --dehum                remove mains hum: 50 or 60 Hz, found from the first 2 s (energy at\n"
        "                         60+120+180 Hz more than twice that at 50+100+150 Hz gives 60 Hz, else\n"
        "                         50 Hz, also on silence), then refined to +-0.5 Hz of it; notches at the\n"
        "                         fundamental and harmonics 2-10 (those under 0.45 x rate)\n"
        "  --dehum-q Q            Q of the fundamental's notch (default 10, 0.5-100); harmonic k gets\n"
        "                         k x Q, so every notch is mains/Q Hz wide (5 Hz at 50 Hz, Q 10)\n"
        "  --decrackle            repair clicks and crackle: order-32 linear prediction per 4096-sample\n"
        "                         block, samples whose residual exceeds T x robust sigma (1.4826 x median\n"
        "                         absolute residual) are re-estimated from their neighbours (least-squares\n"
        "                         AR interpolation); other samples are left exactly as they are\n"
        "  --decrackle-threshold T  detection threshold T (default 5, 2-50; lower finds more)\n"
        "  --expand               downward expander on the loudest channel's 10 ms RMS level, same gain\n"
        "                         on every channel: below the threshold the level falls ratio x faster\n"
        "  --expand-threshold DB  threshold in dBFS (default -50, -120..0)\n"
        "  --expand-ratio R       expansion ratio (default 2, 1-20): 10 dB under -> 10 x R dB under\n"
        "  --expand-knee DB       soft-knee width in dB around the threshold (default 6, 0-40)\n"
        "  --expand-attack MS     time constant to open when the level rises (default 5 ms, 0-1000)\n"
        "  --expand-release MS    time constant to close when it falls (default 100 ms, 0-10000)\n");
    std::fputs(spectralHelpText().c_str(), out);
    std::fprintf(out,
        "Mastering (sets of the stages above; your own options always win):\n"
        "  --master               dehum + decrackle + expander + gentle shelving EQ (only without your\n"
        "                         own EQ/tone options) + stereo widening (stereo inputs, no stereo option)\n"
        "  --mastering-preset P   classical, pop or jazz; implies --master (--master alone is pop)\n"
        "  --music-type N         1 classical, 2 pop, 3 jazz; other numbers are refused\n"
        "                         preset:           classical   pop      jazz\n"
        "                         dehum Q           10          10       10\n"
        "                         decrackle T       6           5        5.5\n"
        "                         expander dB/ratio -60 / 1.5   -50 / 2  -55 / 1.7\n"
        "                         knee/attack/rel.  10/10/200   6/5/100  8/8/150 (dB/ms/ms)\n"
        "                         shelf 80 Hz, 12k  +0.5 dB     +1.5 dB  +1.0 dB (both shelves)\n"
        "                         stereo width      none        1.15     1.08\n");
}

} // namespace zuvo::restore
