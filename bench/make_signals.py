#!/usr/bin/python3
"""Benchmark test signals: 60 s stereo at 44.1 kHz.

  tone997_f32.wav   997 Hz at -6 dBFS, 32-bit float
  tone997_s24.wav   the same as 24-bit PCM with TPDF dither
  multitone_f32.wav 9 tones 50 Hz - 16 kHz, each -24 dBFS (crest below -4 dBFS)
  pink_f32.wav      pink noise, -12 dBFS RMS, 32-bit float
"""
import struct
import sys

import numpy as np

FS = 44100
SECONDS = 60
MULTITONE = [50, 120, 315, 800, 1987, 3150, 5000, 10000, 16000]


def write_wav(path, data, bits, is_float):
    """data: frames x channels, full scale 1.0."""
    frames, ch = data.shape
    if is_float:
        raw = data.astype('<f4').tobytes()
        fmt_tag = 3
    else:
        scale = 2 ** (bits - 1)
        q = np.clip(np.round(data * scale), -scale, scale - 1).astype('<i4')
        b = q.reshape(-1).view(np.uint8).reshape(-1, 4)[:, :3]
        raw = b.tobytes()
        fmt_tag = 1
    block = ch * bits // 8
    fmt = struct.pack('<HHIIHH', fmt_tag, ch, FS, FS * block, block, bits)
    with open(path, 'wb') as f:
        f.write(b'RIFF' + struct.pack('<I', 4 + 8 + len(fmt) + 8 + len(raw)) + b'WAVE')
        f.write(b'fmt ' + struct.pack('<I', len(fmt)) + fmt)
        f.write(b'data' + struct.pack('<I', len(raw)) + raw)


def main(outdir):
    n = FS * SECONDS
    t = np.arange(n) / FS
    rng = np.random.default_rng(12345)
    tone = 10 ** (-6 / 20) * np.sin(2 * np.pi * 997 * t)
    write_wav(f'{outdir}/tone997_f32.wav', np.stack([tone, tone], 1), 32, True)
    lsb = 1 / 2 ** 23
    dither = (rng.random((n, 2)) - rng.random((n, 2))) * lsb
    write_wav(f'{outdir}/tone997_s24.wav', np.stack([tone, tone], 1) + dither, 24, False)
    mt = np.zeros(n)
    for i, f in enumerate(MULTITONE):
        mt += 10 ** (-24 / 20) * np.sin(2 * np.pi * f * t + 0.7 * i * i)
    write_wav(f'{outdir}/multitone_f32.wav', np.stack([mt, mt], 1), 32, True)
    # Pink: white noise shaped by 1/sqrt(f) in the frequency domain, per channel.
    pink = []
    for _ in range(2):
        spectrum = np.fft.rfft(rng.standard_normal(n))
        f = np.fft.rfftfreq(n, 1 / FS)
        f[0] = f[1]
        spectrum /= np.sqrt(f)
        x = np.fft.irfft(spectrum, n)
        x *= 10 ** (-12 / 20) / np.sqrt(np.mean(x * x))
        pink.append(x)
    pink = np.stack(pink, 1)
    pink = np.clip(pink, -0.999, 0.999)
    write_wav(f'{outdir}/pink_f32.wav', pink, 32, True)
    print('peak multitone %.2f dBFS, pink %.2f dBFS' % (20 * np.log10(np.max(np.abs(mt))),
                                                       20 * np.log10(np.max(np.abs(pink)))))


if __name__ == '__main__':
    main(sys.argv[1] if len(sys.argv) > 1 else '.')
