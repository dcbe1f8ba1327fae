#!/usr/bin/env python3
"""Effects of the conversion engine, measured on the DSD files it writes.

Each case converts a synthetic input twice, once with the effect and once
without (same explicit gain), decodes both DSD files with ffmpeg (an
independent decoder), fits the tones and compares the complex ratio with the
effect's closed-form definition, computed here with numpy from the
documented formulas. The decoder's own response cancels in the ratio.

Usage: effects_measure.py ENGINE CASE   (CASE: eq, eq-advanced, tone, width,
stereo-auto, crossfeed, surround, channels, unsrs, headroom, headroom-square, dsre, snr, refusals)
"""
import math
import os
import sys
import tempfile

import numpy as np

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from fxmeasure import *  # noqa: F401,F403 (the shared helpers and references)


# ---- cases

def measure_freqs(count=40):
    return sorted(set(int(round(x)) for x in np.geomspace(20, 20000, count)))


def response_case(eng, extra, reference, label, tol_db=0.05):
    freqs = measure_freqs()
    rng = np.random.default_rng(1)
    parts = [(f, 0.02, rng.uniform(0, 2 * np.pi)) for f in freqs]
    data = tones([parts, parts])
    gain = ['--absdb', '-24']
    ref, _ = eng.convert(data, gain)
    out, log = eng.convert(data, gain + extra)
    xr, xo = decode(ref, 2), decode(out, 2)
    want = reference(np.array(freqs, dtype=float))
    worst = 0.0
    measured = []
    for k, f in enumerate(freqs):
        for c in range(2):
            got = phasor(xo[:, c], f) / phasor(xr[:, c], f)
            measured.append(db(got))
            worst = max(worst, abs(db(got) - db(want[k])))
    check(worst <= tol_db, '%s: magnitude within %.2f dB of the design formula, 20 Hz-20 kHz (worst %.6f dB, '
          'response spans %.2f to %+.2f dB)' % (label, tol_db, worst, min(measured), max(measured)))
    check('overloads 0' in log and 'overloads 1' not in log, '%s: no modulator overload' % label)


def case_eq(eng):
    ten = ['31,3.0,0.7q', '63,-4.0,1.5q', '125,6.0,1.0o', '250,-6.0,100.0h', '500,4.0,0.2k', '1000,-3.0,2.0q',
           '2000,5.0,0.7s', '4000,-5.0,1.0q', '8000,3.0,0.5o', '16000,-4.0,0.8q']
    response_case(eng, ['--eq', ';'.join(ten)], lambda f: eq_h(ten, f), 'eq 10 bands (shelf, 8 peaking, shelf)')
    three = ['200,3.0,0.7', '1500,-6.0,1.0q', '9000,4.5,1.0o']
    response_case(eng, ['--eq', ';'.join(three), '--eq-precut', '-2.000000'],
                  lambda f: eq_h(three, f) * 10 ** (-2 / 20), 'eq 3 bands (no unit on band 1), pre-cut 2 dB')


def case_eq_advanced(eng):
    def ref(f):
        h = biquad_h('peak', 300, 3, 300 / 100, f, FS) * biquad_h('peak', 7000, -2, 7000 / 2000, f, FS)
        h *= biquad_h('low', 80, 2, 1 / math.sqrt(2), f, FS)
        h *= biquad_h('peak', 3000, -3, band_q(3000, -3, 1, 'o', FS), f, FS)
        h *= biquad_h('high', 12000, 4, 1 / math.sqrt(2), f, FS)
        return h
    response_case(eng, ['--equalizer', '300', '3', '100', '--equalizer', '7000', '-2', '2000', '--eq-bass', '2',
                        '--eq-presence', '-3', '--eq-air', '4'], ref, 'advanced equalizer + bass/presence/air')


def case_tone(eng):
    def ref(f):
        return biquad_h('low', 100, 6, 1 / math.sqrt(2), f, FS) * biquad_h('high', 10000, -4, 1 / math.sqrt(2), f, FS)
    response_case(eng, ['--bass', '6.000000', '--treble', '-4.000000'], ref, 'tone bass +6 / treble -4')


def pair_case(eng, extra, label, expect, gain='-14'):
    """L carries 500 and 520 Hz, R 700 and 710 Hz. expect(f, out, src) -> complex."""
    tonesets = [[(500, 0.1, 0.3), (520, 0.1, 1.0)], [(700, 0.1, 2.0), (710, 0.1, 0.5)]]
    data = tones(tonesets)
    ref, _ = eng.convert(data, ['--absdb', gain])
    out, log = eng.convert(data, ['--absdb', gain] + extra)
    xr, xo = decode(ref, 2), decode(out, 2)
    worst = 0.0
    for src, fs_ in ((0, (500, 520)), (1, (700, 710))):
        for f in fs_:
            for o in range(2):
                want = expect(f, o, src)
                got = phasor(xo[:, o], f) / phasor(xr[:, src], f)
                if abs(want) < 1e-9:
                    worst = max(worst, 0 if abs(got) < 1e-4 else 99)
                else:
                    worst = max(worst, abs(db(got) - db(want)))
    check(worst <= 0.1, '%s: levels within 0.1 dB of the definition (worst %.4f dB)' % (label, worst))
    return xr, xo, log


def measured_delay(xr, xo, out, src, f1, f2, expect_ratio):
    """Delay in input samples of the path src->out, from the phase of the
    measured ratio after removing the non-delay part of the definition."""
    r1 = phasor(xo[:, out], f1) / phasor(xr[:, src], f1) / expect_ratio(f1)
    r2 = phasor(xo[:, out], f2) / phasor(xr[:, src], f2) / expect_ratio(f2)
    coarse = -np.angle(r2 / r1) / (2 * np.pi * (f2 - f1) / FS)
    w = 2 * np.pi * f1 / FS
    k = np.round((coarse * w + np.angle(r1)) / (2 * np.pi))
    return (-np.angle(r1) + 2 * np.pi * k) / w


def case_width(eng):
    w = 1.5
    def expect(f, o, src):
        return (1 + w) / 2 if o == src else (1 - w) / 2
    pair_case(eng, ['--stereo', '--stereo-width', '1.5'], 'stereo width 1.5', expect)


def case_stereo_auto(eng):
    # A narrow mix (side 0.1 of mid) is widened up to --stereo-width; a wide
    # one (side as loud as mid) is left alone. Measured once settled.
    settled = (5.0, 7.0)
    for side, want_w in ((0.1, 1.5), (1.0, 1.0)):
        tonesets = [[(500, 0.1, 0.0), (700, 0.1 * side, 0.0)], [(500, 0.1, 0.0), (700, -0.1 * side, 0.0)]]
        data = tones(tonesets, seconds=8.0)
        ref, _ = eng.convert(data, ['--absdb', '-14'])
        out, _ = eng.convert(data, ['--absdb', '-14', '--stereo-auto', '--stereo-width', '1.5'])
        xr, xo = decode(ref, 2), decode(out, 2)
        got = abs(phasor(xo[:, 0], 700, window=settled) / phasor(xr[:, 0], 700, window=settled))
        mid = abs(phasor(xo[:, 0], 500, window=settled) / phasor(xr[:, 0], 500, window=settled))
        check(abs(db(got) - db(want_w)) < 0.1 and abs(db(mid)) < 0.01,
              'stereo-auto, side/mid %.1f: side scaled by %.4f (want %.1f), mid by %.4f' % (side, got, want_w, mid))


def case_crossfeed(eng):
    c, d = 0.3, round(0.3e-3 * FS)
    def expect(f, o, src):
        return 1.0 if o == src else c * one_pole(700, f)[()] * delay(d, f)[()]
    xr, xo, _ = pair_case(eng, ['--stereo-width', '1.0', '--stereo-crossfeed', '0.3'], 'crossfeed 0.3', expect)
    got = measured_delay(xr, xo, 0, 1, 700, 710, lambda f: c * one_pole(700, f)[()])
    check(abs(got - d) <= 1.0, 'crossfeed delay %.2f samples, defined %d' % (got, d))


def case_surround(eng):
    D = int(math.floor(15e-3 * FS + 0.5))
    g = 0.8
    def plain(f, o, src):
        return 1.0 if o == src else g * delay(D, f)[()]
    xr, xo, _ = pair_case(eng, ['--surround', '15', '80'], 'surround 15 ms 80 %', plain)
    got = measured_delay(xr, xo, 0, 1, 700, 710, lambda f: g)
    check(abs(got - D) <= 1.0, 'surround delay %.2f samples, defined %d' % (got, D))
    gl, gr = g * min(1, 1 + 0.4), g * min(1, 1 - 0.4)
    def side(f, o, src):
        e = delay(D, f)[()]
        gain = gl if o == 0 else gr
        sign = 1 if o == 0 else -1
        s = 0.5 * e * (1 if src == 0 else -1) * sign * gain
        return (1.0 if o == src else 0.0) + s
    pair_case(eng, ['--surround', '15', '80', 'side', '-40'], 'surround side, balance -40', side)


SIX = ['L', 'R', 'C', 'LFE', 'BL', 'BR']
S = 1 / math.sqrt(2)
# Expected matrices of the documented fold-down rule, out x in.
MATRICES = {
    (6, 2): [[1, 0, S, S, 1, 0], [0, 1, S, S, 0, 1]],
    (2, 6): [[1, 0], [0, 1], [0, 0], [0, 0], [0, 0], [0, 0]],
    (2, 1): [[1, 1]],
    (1, 2): [[S], [S]],
    (7, 4): [[1, 0, S, S, 0, 0, 0], [0, 1, S, S, 0, 0, 0], [0, 0, 0, 0, S, 1, 0], [0, 0, 0, 0, S, 0, 1]],
    (8, 6): [[1, 0, 0, 0, 0, 0, 0, 0], [0, 1, 0, 0, 0, 0, 0, 0], [0, 0, 1, 0, 0, 0, 0, 0], [0, 0, 0, 1, 0, 0, 0, 0],
             [0, 0, 0, 0, 1, 0, 1, 0], [0, 0, 0, 0, 0, 1, 0, 1]],
}


def case_channels(eng):
    for (ins, outs), m in MATRICES.items():
        freqs = [300 + 200 * i for i in range(ins)]
        data = tones([[(f, 0.05, 0.1 * i)] for i, f in enumerate(freqs)])
        ext_in = '.dff' if ins > 6 else '.dsf'
        ref, _ = eng.convert(data, ['--absdb', '-20'], ext_in)
        out, log = eng.convert(data, ['--absdb', '-20', '--resetchannels', str(outs)], '.dff' if outs > 6 else '.dsf')
        xr, xo = decode(ref, ins), decode(out, outs)
        worst = 0.0
        for o in range(outs):
            for i, f in enumerate(freqs):
                got = abs(phasor(xo[:, o], f) / phasor(xr[:, i], f))
                want = m[o][i]
                worst = max(worst, (1e3 * got if want == 0 else abs(db(got) - db(want))))
        check(worst <= 0.1, 'resetchannels %d -> %d: matrix within 0.1 dB, silent cells below -60 dB (worst %.4f)'
              % (ins, outs, worst))


def case_unsrs(eng):
    D = round(10e-3 * FS)
    def expect(f, o, src):
        if o < 2:
            return 1.0 if o == src else 0.0
        sign = (1 if o == 2 else -1) * (1 if src == 0 else -1)
        return sign * 0.5 * one_pole(7000, f)[()] * delay(D, f)[()]
    tonesets = [[(500, 0.1, 0.3), (520, 0.1, 1.0)], [(700, 0.1, 2.0), (710, 0.1, 0.5)]]
    data = tones(tonesets)
    ref, _ = eng.convert(data, ['--absdb', '-14'])
    out, _ = eng.convert(data, ['--absdb', '-14', '--unsrs'])
    xr, xo = decode(ref, 2), decode(out, 4)
    worst = 0.0
    for src, fs_ in ((0, (500, 520)), (1, (700, 710))):
        for f in fs_:
            for o in range(4):
                want = expect(f, o, src)
                got = phasor(xo[:, o], f) / phasor(xr[:, src], f)
                worst = max(worst, 1e3 * abs(got) if want == 0 else abs(db(got) - db(want)))
    check(worst <= 0.1, 'unsrs 2 -> 4: fronts kept, surrounds +-(L-R)/2 low-passed, within 0.1 dB (worst %.4f)' % worst)


def inband_snr(x, f0, rate=DEC):
    a, b = int(WINDOW[0] * rate), int(WINDOW[1] * rate)
    seg = x[a:b]
    n = len(seg)
    w = np.kaiser(n, 20)
    power = np.abs(np.fft.rfft(seg * w)) ** 2
    freqs = np.fft.rfftfreq(n, 1 / rate)
    band = (freqs >= 20) & (freqs <= 20000)
    tone = np.abs(freqs - f0) <= 10
    harm = np.zeros_like(band)
    for h in range(2, 20):
        harm |= np.abs(freqs - h * f0) <= 10
    signal = power[tone].sum()
    noise = power[band & ~tone & ~harm].sum()
    thd = power[band & harm].sum()
    return 10 * np.log10(signal / noise), 10 * np.log10(max(thd, 1e-300) / signal)


def case_headroom(eng):
    data = tones([[(1000, 1.0, 0.0)], [(1000, 1.0, 0.5)]])
    out, log = eng.convert(data, ['--eq', '100,0.0,1.0q;1000,12.0,1.0q'])
    check('headroom:' in log, 'headroom: the log says what was done')
    check('turned down' not in log, 'a sine at the bound passes the safety limiter untouched')
    _, log2 = eng.convert(data, ['--absdb', '-1', '--eq', '100,0.0,1.0q;1000,12.0,1.0q'])
    check('the requested gain was lowered' in log2 and 'overloads 1' not in log2 and 'resets 1' not in log2,
          'an explicit -1 dB gain with +12 dB EQ is lowered, and the log says so')
    check('overloads 0, resets 0' in log and 'overloads 1' not in log and 'resets 1' not in log
          and all(('output channel %d: modulator peak input' % c) in log for c in (1, 2)),
          'full scale + 12 dB EQ: no modulator overload or reset')
    x = decode(out, 2)
    a, b = int(WINDOW[0] * DEC), int(WINDOW[1] * DEC)
    for c in range(2):
        seg = x[a:b, c]
        # Envelope in 10 ms frames: a click or an instability shows as a jump.
        frames = seg[: len(seg) // 882 * 882].reshape(-1, 882)
        rms = np.sqrt((frames ** 2).mean(axis=1))
        spread = db(rms.max()) - db(rms.min())
        snr, thd = inband_snr(x[:, c], 1000)
        check(spread < 0.01, 'channel %d: steady level (10 ms RMS spread %.5f dB)' % (c + 1, spread))
        check(snr > 100 and thd < -100, 'channel %d: clean tone, in-band SNR %.1f dB, THD %.1f dB' % (c + 1, snr, thd))


def case_headroom_square(eng):
    t = np.arange(int(SECONDS * FS)) / FS
    square = np.where(np.sin(2 * np.pi * 1000 * t) >= 0, 1.0, -1.0)
    out, log = eng.convert(np.stack([square, square], axis=1), ['--eq', '100,0.0,1.0q;1000,12.0,1.0q'])
    check('safety limiter:' in log and 'turned down' in log, 'full-scale square + 12 dB EQ: the limiter says it worked')
    check('overloads 0, resets 0' in log and 'overloads 1' not in log and 'resets 1' not in log,
          'full-scale square + 12 dB EQ: no modulator overload or reset')
    x = decode(out, 2)
    a, b = int(WINDOW[0] * DEC), int(WINDOW[1] * DEC)
    frames = x[a:b, 0][: (b - a) // 882 * 882].reshape(-1, 882)
    rms = np.sqrt((frames ** 2).mean(axis=1))
    spread = db(rms.max()) - db(rms.min())
    check(spread < 0.05, 'full-scale square + 12 dB EQ: steady level once limited (10 ms RMS spread %.4f dB)' % spread)


def case_snr(eng):
    data = tones([[(1000, 10 ** (-6 / 20), 0.0)], [(1000, 10 ** (-6 / 20), 0.0)]])
    plain, _ = eng.convert(data, [])
    flat, _ = eng.convert(data, ['--eq', '1000,0.0,1.0q'])
    s0, _ = inband_snr(decode(plain, 2)[:, 0], 1000)
    s1, _ = inband_snr(decode(flat, 2)[:, 0], 1000)
    check(abs(s1 - s0) <= 1.0, '-6 dBFS tone: in-band SNR through a flat EQ %.2f dB, without effects %.2f dB' % (s1, s0))


def case_refusals(eng):
    def refused(data, extra, ext, words, label):
        wav = os.path.join(eng.work, 'r.wav')
        out = os.path.join(eng.work, 'refused' + ext)
        write_wav(wav, data)
        r = eng.run(['-i', wav] + extra + [out])
        ok = r.returncode == 2 and not os.path.exists(out) and all(w in r.stderr for w in words)
        check(ok, '%s: exit %d, no output, message %r' % (label, r.returncode, r.stderr.strip().splitlines()[:1]))
    eight = tones([[(300, 0.1, 0)]] * 8, seconds=0.2)
    two = tones([[(300, 0.1, 0)]] * 2, seconds=0.2)
    one = tones([[(300, 0.1, 0)]], seconds=0.2)
    refused(two, ['--resetchannels', '8'], '.dsf', ['DSF', '8', '.dff'], '8 channels into DSF')
    refused(eight, [], '.dsf', ['DSF', '.dff'], '8-channel input into DSF')
    refused(one, ['--unsrs'], '.dsf', ['--unsrs', 'stereo'], '--unsrs on mono')
    refused(one, ['--stereo'], '.dsf', ['front pair'], '--stereo on mono')
    refused(two, ['--quad'], '.dsf', ['--quad', '--resetchannels 4'], '--quad without --resetchannels 4')
    refused(two, ['--no-ns'], '.dsf', ['--no-ns', 'noise'], '--no-ns refused with its reason')
    refused(two, ['--eq', '1000,3.0'], '.dsf', ['--eq', 'band 1'], 'malformed --eq band')
    refused(two, ['--eq', ';'.join(['1000,1.0,1.0q'] * 11)], '.dsf', ['11 bands'], '11 --eq bands')
    refused(two, ['--hrtf', 'ms', '--hrtf-load', os.path.join(eng.work, 'missing.sofa')], '.dsf', ['missing.sofa'],
            'missing HRTF set')
    refused(two, ['--hrtf', 'MS'], '.dsf', ['--hrtf', 'mono, ms, stereo'], '--hrtf mode is case-sensitive')


def case_dsre(eng):
    A = 0.1
    ref_in = tones([[(5000, A, 0.0), (10000, A, 0.0)], [(200, A, 0.0), (400, A, 0.0)]])
    dsre_in = tones([[(5000, A, 0.0)], [(200, A, 0.0)]])
    gain = ['--absdb', '-12']
    ref, _ = eng.convert(ref_in, gain)
    out, log = eng.convert(dsre_in, gain + ['--dsre', '1.000000'])
    xr, xo = decode(ref, 2), decode(out, 2)

    def hp(fc, f):
        return 1 - one_pole(fc, f)

    for c, f in ((0, 5000), (1, 200)):
        # Decoder response at f and 2f, from the reference's known tones.
        d1, d2 = phasor(xr[:, c], f) / A, phasor(xr[:, c], 2 * f) / A
        fund = abs(phasor(xo[:, c], f) / d1) / A
        harm = abs(phasor(xo[:, c], 2 * f) / d2) / A
        side = abs(hp(2500, f) ** 2 * one_pole(8000, f) ** 2)
        want = 1.0 * 0.5 * side * abs(hp(4000, 2 * f) ** 2)
        check(abs(db(fund)) < 0.01, 'dsre: %d Hz fundamental unchanged (%.4f dB)' % (f, db(fund)))
        if f == 5000:
            check(abs(db(harm) - db(want)) < 0.1, 'dsre mix 1: %d Hz harmonic at %.2f dB, defined %.2f dB'
                  % (2 * f, db(harm), db(want)))
        else:
            check(db(harm) < -90, 'dsre: %d Hz gains almost nothing at %d Hz (%.1f dB)' % (f, 2 * f, db(harm)))


CASES = {
    'eq': case_eq, 'eq-advanced': case_eq_advanced, 'tone': case_tone, 'width': case_width,
    'stereo-auto': case_stereo_auto, 'crossfeed': case_crossfeed, 'surround': case_surround, 'channels': case_channels, 'unsrs': case_unsrs,
    'headroom': case_headroom, 'headroom-square': case_headroom_square, 'dsre': case_dsre, 'snr': case_snr, 'refusals': case_refusals,
}


def main():
    if len(sys.argv) != 3 or sys.argv[2] not in CASES:
        print(__doc__)
        return 2
    with tempfile.TemporaryDirectory() as work:
        CASES[sys.argv[2]](Engine(sys.argv[1], work))
    return 1 if failures else 0


if __name__ == '__main__':
    sys.exit(main())
