"""Shared pieces of the effect measurements: synthetic inputs, the engine
run, ffmpeg decoding, tone fits and the closed-form references (bilinear-
transform biquads, one-pole filters, delays) computed from the documented
formulas."""
import math
import os
import struct
import subprocess

import numpy as np

FS = 44100
DEC = 88200          # decode rate
SECONDS = 3.0
WINDOW = (0.5, 2.5)  # analysed slice of the decoded file, seconds (whole cycles of integer Hz)

failures = []


def check(ok, text):
    print(("ok   " if ok else "FAIL ") + text)
    if not ok:
        failures.append(text)


def write_wav(path, data, fs=FS):
    """32-bit float WAV; data: frames x channels."""
    data = np.asarray(data, dtype='<f4')
    frames, ch = data.shape
    payload = data.tobytes()
    fmt = struct.pack('<HHIIHH', 3, ch, fs, fs * ch * 4, ch * 4, 32)
    with open(path, 'wb') as f:
        f.write(b'RIFF' + struct.pack('<I', 4 + 8 + len(fmt) + 8 + 4 + 8 + len(payload)) + b'WAVE')
        f.write(b'fmt ' + struct.pack('<I', len(fmt)) + fmt)
        f.write(b'fact' + struct.pack('<II', 4, frames))
        f.write(b'data' + struct.pack('<I', len(payload)) + payload)


def tones(tonesets, seconds=SECONDS, fs=FS):
    """tonesets: list per channel of [(freq, amplitude, phase)]."""
    t = np.arange(int(seconds * fs)) / fs
    out = np.zeros((len(t), len(tonesets)))
    for c, parts in enumerate(tonesets):
        for f, a, p in parts:
            out[:, c] += a * np.sin(2 * np.pi * f * t + p)
    return out


class Engine:
    def __init__(self, path, work):
        self.path = path
        self.work = work
        self.n = 0

    def run(self, args):
        return subprocess.run([self.path] + args, capture_output=True, text=True, timeout=600)

    def convert(self, data, extra, ext='.dsf'):
        self.n += 1
        wav = os.path.join(self.work, 'in%d.wav' % self.n)
        out = os.path.join(self.work, 'out%d%s' % (self.n, ext))
        log = os.path.join(self.work, 'log%d.txt' % self.n)
        write_wav(wav, data)
        r = self.run(['-i', wav] + extra + ['--log-file', log, out])
        if r.returncode != 0:
            raise RuntimeError('engine failed (%d): %s' % (r.returncode, r.stderr))
        with open(log, encoding='utf-8', errors='replace') as f:
            return out, f.read()


def decode(path, channels):
    raw = subprocess.run(['ffmpeg', '-v', 'error', '-i', path, '-ar', str(DEC), '-f', 'f64le', '-acodec', 'pcm_f64le',
                          '-'], capture_output=True, check=True).stdout
    return np.frombuffer(raw, dtype='<f8').reshape(-1, channels)


def phasor(x, f, rate=DEC, window=None):
    """Complex amplitude of the integer-Hz tone f over the analysis window."""
    w = window or WINDOW
    a, b = int(w[0] * rate), int(w[1] * rate)
    n = np.arange(a, b)
    return 2.0 / (b - a) * np.sum(x[a:b] * np.exp(-2j * np.pi * f * n / rate))


def db(x):
    return 20 * np.log10(np.maximum(np.abs(x), 1e-30))


# ---- closed-form references (bilinear-transform biquads, one-pole, delays)

def band_q(f0, g, bw, unit, fs):
    f0 = min(max(f0, 1.0), 0.49 * fs)
    w0 = 2 * np.pi * f0 / fs
    if unit == 'h':
        q = f0 / bw
    elif unit == 'k':
        q = f0 / (1000 * bw)
    elif unit == 'o':
        q = 1 / (2 * math.sinh(math.log(2) / 2 * bw * w0 / math.sin(w0)))
    elif unit == 's':
        A = 10 ** (g / 40)
        q = 1 / math.sqrt((A + 1 / A) * (1 / bw - 1) + 2)
    else:
        q = bw
    return min(max(q, 0.025), 500)


def biquad_h(kind, f0, g, q, f, fs):
    A = 10 ** (g / 40)
    w0 = 2 * np.pi * f0 / fs
    al = math.sin(w0) / (2 * q)
    c = math.cos(w0)
    if kind == 'peak':
        b = [1 + al * A, -2 * c, 1 - al * A]
        a = [1 + al / A, -2 * c, 1 - al / A]
    elif kind == 'low':
        s = 2 * math.sqrt(A) * al
        b = [A * ((A + 1) - (A - 1) * c + s), 2 * A * ((A - 1) - (A + 1) * c), A * ((A + 1) - (A - 1) * c - s)]
        a = [(A + 1) + (A - 1) * c + s, -2 * ((A - 1) + (A + 1) * c), (A + 1) + (A - 1) * c - s]
    else:
        s = 2 * math.sqrt(A) * al
        b = [A * ((A + 1) + (A - 1) * c + s), -2 * A * ((A - 1) + (A + 1) * c), A * ((A + 1) + (A - 1) * c - s)]
        a = [(A + 1) - (A - 1) * c + s, 2 * ((A - 1) - (A + 1) * c), (A + 1) - (A - 1) * c - s]
    z = np.exp(-2j * np.pi * np.asarray(f) / fs)
    return (b[0] + b[1] * z + b[2] * z * z) / (a[0] + a[1] * z + a[2] * z * z)


def eq_h(bands, f, fs=FS):
    """bands: 'f,g,bw[u]' list in slot order."""
    h = np.ones(len(f), dtype=complex)
    n = len(bands)
    for i, text in enumerate(bands):
        f0, g, bw = text.split(',')
        unit = bw[-1] if bw[-1] in 'qhkos' else 'q'
        bw = float(bw[:-1] if bw[-1] in 'qhkos' else bw)
        kind = 'low' if i == 0 else ('high' if n == 10 and i == n - 1 else 'peak')
        f0, g = float(f0), float(g)
        h *= biquad_h(kind, f0, g, band_q(f0, g, bw, unit, fs), f, fs)
    return h


def one_pole(fc, f, fs=FS):
    a = 1 - math.exp(-2 * math.pi * fc / fs)
    z = np.exp(-2j * np.pi * np.asarray(f) / fs)
    return a / (1 - (1 - a) * z)


def delay(samples, f, fs=FS):
    return np.exp(-2j * np.pi * np.asarray(f) * samples / fs)
