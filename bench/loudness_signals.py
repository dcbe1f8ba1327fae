"""Test signals for the loudness benchmark: numpy arrays (frames x channels,
full scale 1.0) written as WAV through a tiny writer of our own."""
import struct

import numpy as np


def write_wav(path, x, rate, bits=24):
    x = np.atleast_2d(np.asarray(x, dtype=np.float64).T).T
    frames, channels = x.shape
    if bits == 16 and np.any(x):
        rng = np.random.default_rng(99)
        tpdf = (rng.random(x.shape) - rng.random(x.shape)) / 32768.0
        q = np.clip(np.round((x + tpdf) * 32767), -32768, 32767).astype('<i2')
        data = q.tobytes()
    else:
        q = np.clip(np.round(x * 8388607), -8388608, 8388607).astype('<i4')
        b = q.astype('<i4').view(np.uint8).reshape(-1, 4)[:, :3]
        data = b.tobytes()
    width = bits // 8
    with open(path, 'wb') as f:
        f.write(b'RIFF' + struct.pack('<I', 36 + len(data)) + b'WAVE')
        f.write(b'fmt ' + struct.pack('<IHHIIHH', 16, 1, channels, rate, rate * channels * width,
                                       channels * width, bits))
        f.write(b'data' + struct.pack('<I', len(data)) + data)
        if len(data) & 1:
            f.write(b'\0')


def shaped_noise(n, rate, rng, slope_db_per_oct=-3.0, lowpass=None, order=None):
    """Gaussian noise with a spectral slope (pink: -3 dB/octave), optionally
    low-passed: a brick wall (order None) or a gentle Butterworth-like
    magnitude of the given order."""
    bins = rng.standard_normal(n // 2 + 1) + 1j * rng.standard_normal(n // 2 + 1)
    f = np.fft.rfftfreq(n, 1.0 / rate)
    f[0] = f[1]
    mag = (f / 1000.0) ** (slope_db_per_oct / (20 * np.log10(2)))
    mag[f < 20] = 0
    if lowpass is not None:
        if order is None:
            mag[f > lowpass] = 0
        else:
            mag /= np.sqrt(1 + (f / lowpass) ** (2 * order))
    x = np.fft.irfft(bins * mag, n)
    return x / np.sqrt(np.mean(x ** 2))


def music_like(seconds, rate, rng, level=0.25):
    """Notes with harmonics (amplitude 1/k, up to 0.45 x the rate), attack/
    decay envelopes, loud and quiet passages and a little breath noise that
    rolls off gently above 12 kHz, as microphones and rooms do."""
    top = 0.45 * rate
    n = int(seconds * rate)
    t = np.arange(n) / rate
    out = np.zeros((n, 2))
    note = int(0.4 * rate)
    for start in range(0, n, note):
        f0 = 110.0 * 2 ** (rng.integers(0, 36) / 12.0)
        seg = np.arange(min(note * 2, n - start)) / rate
        env = (1 - np.exp(-seg * 60)) * np.exp(-seg * 3)
        tone = np.zeros_like(seg)
        k = 1
        while f0 * k < top and k < 60:
            tone += np.sin(2 * np.pi * f0 * k * seg + rng.random() * 6.28) / k
            k += 1
        pan = rng.random()
        # Loud and quiet passages (8 s period).
        dyn = 0.3 + 0.7 * (0.5 + 0.5 * np.sin(2 * np.pi * (start / rate) / 8.0))
        out[start:start + len(seg), 0] += tone * env * dyn * (1 - pan)
        out[start:start + len(seg), 1] += tone * env * dyn * pan
    breath = shaped_noise(n, rate, rng, -3.0, 12000, 2) * 0.01
    out += breath[:, None]
    return out / np.max(np.abs(out)) * level


def make_all(seconds=20, seed=5):
    """name -> (array, rate, bits); lossless signals only."""
    rng = np.random.default_rng(seed)
    s = {}
    n44, n48 = seconds * 44100, seconds * 48000
    s['white'] = (np.stack([rng.standard_normal(n44), rng.standard_normal(n44)], 1) * 0.1, 44100, 24)
    s['pink'] = (np.stack([shaped_noise(n44, 44100, rng), shaped_noise(n44, 44100, rng)], 1) * 0.1, 44100, 24)
    t = np.arange(n48) / 48000
    f1, f2 = 20.0, 20000.0
    k = np.log(f2 / f1) / seconds
    sweep = 0.5 * np.sin(2 * np.pi * f1 * (np.exp(k * t) - 1) / k)
    s['sweep'] = (sweep[:, None], 48000, 24)
    s['music'] = (music_like(seconds, 44100, rng), 44100, 24)
    base = shaped_noise(n48, 48000, rng)
    lfe = shaped_noise(n48, 48000, rng, 0, 120, 4)
    s['surround51'] = (np.stack([base * 0.1, shaped_noise(n48, 48000, rng) * 0.1, base * 0.07, lfe * 0.1,
                                 shaped_noise(n48, 48000, rng) * 0.05, shaped_noise(n48, 48000, rng) * 0.05], 1),
                       48000, 24)
    s['bandlimited22k'] = (np.stack([shaped_noise(n48, 48000, rng, -3, 22000), shaped_noise(n48, 48000, rng, -3, 22000)],
                                    1) * 0.1, 48000, 24)
    s['dull'] = (np.stack([shaped_noise(n44, 44100, rng, -3, 8000, 2)] * 2, 1) * 0.1, 44100, 24)
    s['quiet'] = (np.stack([shaped_noise(n44, 44100, rng), shaped_noise(n44, 44100, rng)], 1) * 0.001, 44100, 16)
    s['quiet_music'] = (music_like(seconds, 44100, rng, level=0.01), 44100, 16)
    s['music16'] = (music_like(seconds, 44100, rng, level=0.5), 44100, 16)
    s['silence'] = (np.zeros((n44, 2)), 44100, 16)
    return s
