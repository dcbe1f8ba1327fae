#pragma once
// Turns the excerpts a ReportTap collected into spectra and noise figures.
// No drawing here: the PDF pages only format what this produces.
#include <memory>
#include <vector>

#include "dsp/dsd_pipeline.h"
#include "report/report_tap.h"
#include "report/spectrum.h"

namespace zuvo::report {

// Modulation error: the 1-bit output (+-1) minus the modulator's ideal input
// (the excerpt run through the same gain and interpolation filters, no
// modulator), over each excerpt's measured span. Its power in a band is the
// noise the conversion added there.
struct ChannelAnalysis {
    Psd input;   // signal entering the encoder, before the gain, at the input rate
    Psd output;  // the +-1 bit stream at the DSD rate
    Psd error;   // modulation error at the DSD rate (empty when no span was long enough)
    double inBandNoiseDbfs = 0;     // error power 20 Hz - 20 kHz
    double ultrasonicNoiseDbfs = 0; // error power 20 kHz - 50 kHz
    double aWeightedNoiseDbfs = 0;  // error power 20 Hz - 20 kHz, A-weighted
    std::vector<double> bandNoiseDbfs; // error power per 1 kHz band (the first from 20 Hz), up to 20 kHz
};

struct Analysis {
    std::vector<ChannelAnalysis> channels; // at most kMaxAnalysedChannels
    std::size_t excerpts = 0;
    double measuredSeconds = 0;  // per channel, summed over the excerpts' measured spans
    double excerptSeconds = 0;   // per channel, whole excerpts (input spectrum)
};

constexpr int kMaxAnalysedChannels = 8;
constexpr int kNoiseBands = 20;

Analysis analyse(const ReportTap& tap, const dsp::ForwardDesign& design);

// FFT length of the DSD-rate spectra: about 40 Hz per bin, at most 2^18.
std::size_t outputSegment(int dsdRate);
// DSD samples measured per excerpt: few enough that the report stays a small
// part of the conversion's cost, at least four spectra's worth.
std::size_t measuredSpan(int dsdRate);

// Power in dBFS (10 log10, full scale 1.0); -inf for none.
double powerDb(double meanSquare);

} // namespace zuvo::report
