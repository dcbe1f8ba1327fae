#include "cli/help.h"

#include "dsp/dsd_pipeline.h"
#include "effects/effects_help.h"

namespace zuvo::cli {

void printHelp(std::FILE* out, const char* version)
{
    std::fprintf(out,
        "ZuvoEngine %s - PCM to DSD conversion engine\n"
        "\n"
        "Usage:\n"
        "  ZuvoEngine [options] -i INPUT OUTPUT.dsf|OUTPUT.dff      PCM to DSD\n"
        "  ZuvoEngine --reverse -i IN.dsf [-i IN2.dsf ...] OUT.wav [--format flac]\n"
        "  ZuvoEngine --dxd [--dxd-samplerate N] -i INPUT OUT.wav|OUT.w64|OUT.flac\n"
        "\n"
        "Inputs: anything libsndfile reads (WAV incl. extensible/RF64/W64, FLAC, AIFF, CAF, ...),\n"
        "  16/24/32-bit integer or 32/64-bit float, 1-8 channels, 44.1 and 48 kHz families up to 384 kHz.\n"
        "  Not supported: .m4a .mp4 .ape .wv .tta .wsd .iso .dst.\n"
        "\n"
        "DSD rate and filters:\n"
        "  --oversampling N       DSD rate as a multiple of 44100 Hz: 64 (default), 128, ... 8192\n"
        "  --taps N               interpolation filter length, 0 = automatic\n"
        "  --passband-cutoff HZ   --stopband-cutoff HZ   0 = automatic\n"
        "  --stopgain-alpha DB    stop-band attenuation, 0 = automatic\n"
        "  --high-bandwidth       wider pass band\n"
        "  --algorithm            Remez design (--maxiterations N, --griddensity N are checked, then\n"
        "                         not used: the design keeps its own limits, with a warning)\n"
        "  --window-type NAME     window design: kaiser blackman flattop bartlett hamming hanning (--beta X)\n"
        "  --minphase             minimum-phase design\n"
        "  --filter-type T        standard (default), slow, minphase\n"
        "  --unpredistortion      no droop compensation of the interpolation chain\n"
        "Modulator (one of), each stable up to the level measured at its input (DSD64):\n"
        "  --sos-ef               cascaded second-order sections with error feedback, order 8\n"
        "                         (default; stable to -6.0 dBFS)\n"
        "  --order N              single loop, orders 2-12 (order 9: stable to -4.5 dBFS)\n"
        "  --cifb N               chain of integrators with distributed feedback (order 7: -6.0 dBFS)\n"
        "  --mp-ns [--mp-poles N] multi-pole noise shaping: the single loop, its NTF with N poles\n"
        "                         (N = order, 2-12, default 9); may come with --order N\n"
        "  --single-pole, --no-ns, --quantization-type, --quantization-ratio: refused, with the reason\n"
        "  --mash [N]             refused: a MASH cancels its first stage's noise by adding the later\n"
        "                         stages' outputs, so its output is multi-level; forcing that back into\n"
        "                         one bit re-quantises it and undoes the cancellation\n"
        "  The exact limit of the chosen design is written to the log (--log ns).\n"
        "Gain:\n"
        "  --abs X | --absdb DB   input gain, linear or in dB\n"
        "                         automatic when absent: 1 dB below the modulator's limit, so a\n"
        "                         full-scale input stays stable (-7 dB with the default modulator)\n"
        "DST compression (DSDIFF output only):\n"
        "  --dst                  lossless DST-compressed .dff (frames that would not shrink are stored)\n"
        "  --dst-compression N    1 (fastest, default) .. 9 (smallest); 0 writes plain DSD.\n"
        "                         Levels 1-5 set the prediction filter length (8, 16, 24, 32, 48 taps);\n"
        "                         6-9 use 64, 96, 128, 128 taps and try 2-3 coefficient scalings per\n"
        "                         frame (level 9 also shorter filters), keeping the smallest\n"
        "Tags (DSF: ID3v2; DFF: DIIN/COMT and ID3):\n"
        "  --artist T --title T --album T --genre T --year T --comment T --track N (1-998)\n"
        "  --metadata-from-input  fill empty tags from the input's own tags\n"
        "  --cover IMAGE          embed a JPEG or PNG front cover (ID3 APIC)\n"
        "Reverse (DSD to PCM, inputs DSF or DFF):\n"
        "  --reverse -i IN ...    inputs of equal rate and channels are joined\n"
        "  --format flac          FLAC output (else by extension: .wav, .w64, .flac)\n"
        "  --sampling N           output rate (default: see below)\n"
        "  --bit 16|24|32         integer sample size (default 24)   --float  32-bit float\n"
        "  --lowpass HZ           low-pass corner of the decimator\n",
        version);
    std::fprintf(out, "  Default output rate per DSD rate:");
    for (int m = 64; m <= 512; m *= 2)
        std::fprintf(out, " DSD%d -> %d Hz%s", m, dsp::reverseDefaultRate(m * dsp::kDsdBaseRate), m < 512 ? "," : "\n");
    std::fprintf(out,
        "DXD (PCM to high-rate PCM):\n"
        "  --dxd                  resample to 352800 Hz (or --dxd-samplerate N), 24-bit unless --bit/--float\n"
        );
    effects::printEffectsHelp(out);
    std::fprintf(out,
        "Run and report:\n"
        "  --gui                  progress as '[PROGRESS] 12.3' lines on standard output\n"
        "  --log-file PATH        append a detailed log to PATH\n"
        "  --log fir|ns|freq|all  put the filter design summary on standard error too\n"
        "  --verbose              more detail on standard error\n"
        "  --report, --peak, --rms  peak and RMS of every input channel, on standard output at the end\n"
        "  --no-dynamic-range     accepted (no dynamic-range section is computed)\n"
        "  --swap-channels        swap the first two channels (before the effects)\n"
        "  -pdfrp                 accepted with a warning: this build makes no PDF report\n"
        "  --version, --help, --list-devices\n"
        "  --capabilities         one line 'refused OPTION' for each option this build refuses\n"
        "Control: the line 'stop' on standard input (or the host's control queue) ends the run;\n"
        "  the partial output is finalised and stays valid.\n"
        "\n"
        "Options for repair, loudness, OpenCL and recording are refused by this version\n"
        "(exit code 2), all of them named in one message.\n"
        "\n"
        "Exit codes:\n"
        "  0    done\n"
        "  1    processing failure (unreadable input, write error, disk full); the output is removed\n"
        "  2    usage error (unknown or unsupported option, bad value, design refused)\n"
        "  195  stopped on request; the partial output is a valid file\n");
}

} // namespace zuvo::cli
