#!/usr/bin/python3
"""Spectral figures of a DSF file, measured on the 1-bit stream itself.

Usage: analyse_dsf.py FILE.dsf KIND [--start S] [--seconds S]
  KIND: tone997 | multitone | pink
Prints one line of key=value pairs: in-band (20 Hz - 20 kHz) SNR and THD+N
for tones, noise 20-50 kHz, signal level.
"""
import argparse
import struct

import numpy as np

MULTITONE = [50, 120, 315, 800, 1987, 3150, 5000, 10000, 16000]
LOBE = 16


def read_dsf(path, start_s, seconds, channel=0):
    with open(path, 'rb') as f:
        head = f.read(28)
        assert head[:4] == b'DSD ', 'not a DSF file'
        fmt = f.read(52)
        assert fmt[:4] == b'fmt '
        (_, _, _, _, ch_type, channels, fs, bits, count, block, _) = struct.unpack('<4sQIIIIIIQII', fmt)
        data_head = f.read(12)
        assert data_head[:4] == b'data'
        data_start = f.tell()
        # Blocks of `block` bytes per channel, interleaved.
        first_block = int(start_s * fs / 8) // block
        nblocks = int(np.ceil(seconds * fs / 8 / block))
        f.seek(data_start + first_block * block * channels)
        raw = np.frombuffer(f.read(nblocks * block * channels), dtype=np.uint8)
    raw = raw[: (len(raw) // (block * channels)) * block * channels]
    blocks = raw.reshape(-1, channels, block)[:, channel, :].reshape(-1)
    bits = np.unpackbits(blocks, bitorder='little').astype(np.float64) * 2 - 1
    return bits, fs, channels, count


def spectrum(x, fs):
    # Kaiser, beta 40: side lobes far below anything measured here (a
    # 7-term Blackman-Harris leaks the tone's skirts into the band at about
    # -165 dB, which is above a DSD128 modulator's floor); main lobe about
    # +-13 bins, hence LOBE below.
    n = 1 << int(np.floor(np.log2(len(x))))
    x = x[:n]
    w = np.kaiser(n, 40.0)
    p = np.abs(np.fft.rfft(x * w)) ** 2 * (2.0 / (n * np.sum(w * w)))
    return p, fs / n


def band(p, df, lo, hi):
    return p[int(np.ceil(lo / df)): int(hi / df) + 1]


def db(v):
    return 10 * np.log10(max(v, 1e-300))


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument('file')
    ap.add_argument('kind')
    ap.add_argument('--start', type=float, default=5.0)
    ap.add_argument('--seconds', type=float, default=1.5)
    a = ap.parse_args()
    x, fs, ch, count = read_dsf(a.file, a.start, a.seconds)
    p, df = spectrum(x, fs)
    lobe = LOBE
    out = {'fs': fs}
    inband = band(p, df, 20, 20000).copy()
    off = int(np.ceil(20 / df))
    if a.kind in ('tone997', 'multitone'):
        tones = [997] if a.kind == 'tone997' else MULTITONE
        sig = 0.0
        mask = np.ones(len(inband), bool)
        for f0 in tones:
            k = int(round(f0 / df))
            k = k - 20 + int(np.argmax(p[k - 20: k + 20]))
            sig += np.sum(p[k - lobe: k + lobe + 1])
            mask[max(0, k - lobe - off): k + lobe + 1 - off] = False
        harm = 0.0
        if a.kind == 'tone997':
            k0 = int(round(997 / df))
            for h in range(2, 21):
                kh = int(round(h * 997 / df))
                if kh * df > 20000:
                    break
                lo, hi = kh - lobe - off, kh + lobe + 1 - off
                harm += np.sum(inband[lo:hi][mask[lo:hi]])
                mask[lo:hi] = False
        noise = np.sum(inband[mask])
        out['level_dBFS'] = round(db(sig / 0.5), 2)
        out['snr_dB'] = round(db(sig / noise), 2)
        out['thdn_dB'] = round(db((noise + harm) / sig), 2)
    else:
        out['level_dBFS'] = round(db(np.sum(inband) / 0.5), 2)
    out['noise_20k_50k_dBFS'] = round(db(np.sum(band(p, df, 20000, 50000)) / 0.5), 2)
    print(' '.join(f'{k}={v}' for k, v in out.items()))


if __name__ == '__main__':
    main()
