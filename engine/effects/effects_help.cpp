#include "effects/effects_help.h"

#include <cmath>

#include "effects/channel_stages.h"
#include "effects/dsre_stage.h"
#include "effects/effect_chain.h"
#include "effects/hrtf_stage.h"
#include "effects/stereo_stages.h"

namespace zuvo::effects {

void printEffectsHelp(std::FILE* out)
{
    std::fprintf(out,
        "Effects (DSD conversion only; 64-bit float, at the input rate, before the modulator; in this order):\n"
        "  --eq \"F,G,BW[u];...\"   up to 10 bands: centre Hz, gain dB, bandwidth in unit u (default q):\n"
        "                         q = Q, h = Hz (Q = F/BW), k = kHz, o = octaves, s = shelf slope.\n"
        "                         The first band is a low shelf, the last a high shelf only when there\n"
        "                         are 10 bands, every other band peaking. An empty list is accepted.\n"
        "  --eq-precut DB         lowers the equaliser's input by |DB| dB\n"
        "  --equalizer F G BW     one more peaking band, bandwidth in Hz (repeatable)\n"
        "  --eq-bass DB           low shelf at %.0f Hz, Q 0.7071\n"
        "  --eq-presence DB       peaking band at %.0f Hz, one octave wide\n"
        "  --eq-air DB            high shelf at %.0f Hz, Q 0.7071\n"
        "  --bass DB | --treble DB  tone: low shelf at %.0f Hz / high shelf at %.0f Hz, Q 0.7071\n"
        "                         (all bands: bilinear-transform biquads designed at the input rate)\n",
        kEqBassHz, kEqPresenceHz, kEqAirHz, kBassHz, kTrebleHz);
    std::fprintf(out,
        "  --forcechannels        keep the input's channels (excludes the three options below)\n"
        "  --resetchannels N      re-mix to N channels (1-8). Layouts: 1 C, 2 L R, 3 L R C, 4 L R BL BR,\n"
        "                         5 L R C BL BR, 6 L R C LFE BL BR, 7 L R C LFE BC SL SR,\n"
        "                         8 L R C LFE BL BR SL SR. A channel keeps its role; a role the output\n"
        "                         lacks folds down with constant power (1/sqrt(k) to each of k targets):\n"
        "                         C, LFE -> L R; BC -> BL BR (else SL SR, else L R); SL -> BL (else L);\n"
        "                         BL -> SL (else L), same on the right; to mono every channel -> C at 1.\n"
        "  --quad                 four channels; needs --resetchannels 4; a stereo input gets its back\n"
        "                         pair derived as with --unsrs\n"
        "  --unsrs                surround channels from a stereo input (4 channels unless\n"
        "                         --resetchannels says more): (L-R)/2, %.0f ms later, one-pole low-pass\n"
        "                         at %.0f Hz, + on the left surrounds and - on the right ones\n"
        "                         (1/sqrt(2) each when the layout has two surround pairs)\n"
        "  DSF holds up to 6 channels, DSDIFF up to 8; a larger result is refused before writing.\n",
        kDeriveDelayMs, kDeriveLowpassHz);
    std::fprintf(out,
        "  --stereo               mid/side width on L R: L = M + W S, R = M - W S (M, S = (L+-R)/2)\n"
        "  --stereo-width W       W, 0-4 (default 1.2); implies --stereo\n"
        "  --stereoexpander W[,C] the same stage: width W and crossfeed C (default 0) in one value\n"
        "  --stereo-auto          W follows the music towards rms(S) = %.1f rms(M), between 1 and\n"
        "                         --stereo-width, smoothed over %.1f s\n"
        "  --stereo-crossfeed C   0-1: each side gets C x the other side, %.1f ms later, through a\n"
        "                         one-pole low-pass at %.0f Hz; implies --stereo\n"
        "  --surround D M [side] [B]  ambience: delay D ms (0-500), level M %% (0-100), balance B\n"
        "                         (-100 left only .. 100 right only). Each side gets the other side\n"
        "                         D ms later at M %%; with 'side' it gets the side signal (L-R)/2\n"
        "                         instead (+ left, - right), so centred sound is left untouched.\n",
        kAutoSideToMid, kAutoTimeConstant, kCrossfeedDelayMs, kCrossfeedHz);
    std::fprintf(out,
        "  --dsre [MIX]           harmonic enhancement, MIX 0-1 (default 0.35); --dsre-mix MIX also takes\n"
        "                         a percentage above 1. The %.1f-%.0f kHz region (two one-pole high-\n"
        "                         and low-passes) drives an envelope-normalised second-order Chebyshev\n"
        "                         generator, h = e T2(s/e): a sine there gains exactly its second harmonic\n"
        "                         at its own level; h is high-passed at %.0f Hz and added at %.0f dB x MIX.\n"
        "                         At MIX 1 (44.1 kHz) a 5 kHz sine gains a 10 kHz harmonic 20.2 dB below\n"
        "                         it, a 200 Hz sine one 98 dB below; the dry signal is untouched.\n",
        kDsreLowHz / 1000, kDsreHighHz / 1000, kDsreOutHz, 20 * std::log10(kDsreLevel));
    std::fprintf(out,
        "  --hrtf mono|ms|stereo  binaural rendering of L R through head-related impulse responses\n"
        "                         (partitioned FFT convolution, %zu-sample blocks). Speakers at azimuth\n"
        "                         +-(30 + 60 (1 - D)) degrees, a centre source at 0 (D >= 0) or 180\n"
        "                         degrees, elevation 90 (1 - |D|). M, S = (L+-R)/2; stereo: M + m S and\n"
        "                         M - m S to the speakers; ms: M to the centre, +-m S to the speakers;\n"
        "                         mono: M to the centre\n"
        "  --hrtf-mix X           dry/wet 0-1 (default 1)      --hrtf-side-mix m   0-1 (default 1)\n"
        "  --hrtf-depth D         -1 behind .. 0 at the ears .. 1 in front (default 1)\n"
        "  --hrtf-load FILE.sofa  the set to use (default %s), read through\n"
        "                         libmysofa, resampled to the input rate; level: the frontal power\n"
        "                         response averaged over %.0f Hz-%.0f kHz and both ears is 0 dB\n",
        kHrtfBlock, kDefaultSofaPath, kNormLowHz, kNormHighHz / 1000);
    std::fprintf(out,
        "  Headroom: the chain's worst-case gain (largest sum of |H| over the inputs, any frequency)\n"
        "  lowers the automatic gain by as much, and lowers an explicit --abs/--absdb when it would\n"
        "  pass the automatic level; a full-scale input therefore stays stable. The log says what it did.\n");
}

} // namespace zuvo::effects
