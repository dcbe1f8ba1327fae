#!/usr/bin/python3
"""Loudness benchmark: --measure against ffmpeg's ebur128 filter, where
--lufs -23 lands on the decoded DSD output, and the --stop-lossy check's
false alarms and detections.

    bench/loudness_bench.py [ENGINE] [WORKDIR]

ENGINE defaults to build/bin/ZuvoEngine, WORKDIR to build/bench-loudness.
Needs ffmpeg (with libmp3lame, aac, libvorbis) and numpy."""
import os
import re
import subprocess
import sys

import numpy as np

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import loudness_signals as sig  # noqa: E402

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
ENGINE = sys.argv[1] if len(sys.argv) > 1 else os.path.join(ROOT, 'build', 'bin', 'ZuvoEngine')
WORK = sys.argv[2] if len(sys.argv) > 2 else os.path.join(ROOT, 'build', 'bench-loudness')
os.makedirs(WORK, exist_ok=True)


def run(args):
    return subprocess.run(args, capture_output=True, text=True)


def ffmpeg_ebur128(path, pre=''):
    """ffmpeg's integrated loudness and true peak (one decimal)."""
    af = (pre + ',' if pre else '') + 'ebur128=peak=true'
    r = run(['ffmpeg', '-nostats', '-i', path, '-af', af, '-f', 'null', '-'])
    summary = r.stderr[r.stderr.rfind('Summary:'):]
    i = float(re.search(r'I:\s+(-?[\d.]+|-inf) LUFS', summary).group(1))
    tp = float(re.search(r'Peak:\s+(-?[\d.]+|-inf) dBFS', summary).group(1))
    return i, tp


def engine_measure(path):
    r = run([ENGINE, '--measure', path])
    line = r.stdout.strip().splitlines()[-1].split(',')
    return float(line[1]), float(line[3])


def main():
    signals = sig.make_all()
    paths = {}
    for name, (x, rate, bits) in signals.items():
        p = os.path.join(WORK, name + '.wav')
        sig.write_wav(p, x, rate, bits)
        paths[name] = p

    print('1. --measure against ffmpeg ebur128 (ffmpeg prints one decimal)')
    print('%-16s %9s %9s %7s %9s %9s %7s' % ('signal', 'I ours', 'I ffmpeg', 'diff', 'TP ours', 'TP ffmpeg', 'diff'))
    worst_i = worst_tp = 0.0
    for name in ['white', 'pink', 'sweep', 'music', 'surround51', 'bandlimited22k', 'music16', 'quiet']:
        i, tp = engine_measure(paths[name])
        fi, ftp = ffmpeg_ebur128(paths[name])
        worst_i, worst_tp = max(worst_i, abs(i - fi)), max(worst_tp, abs(tp - ftp))
        print('%-16s %9.2f %9.1f %7.2f %9.2f %9.1f %7.2f' % (name, i, fi, i - fi, tp, ftp, tp - ftp))
    print('worst |diff|: I %.2f LU, true peak %.2f dB' % (worst_i, worst_tp))

    print('\n2. --lufs -23: integrated loudness of the DSD64 output, decoded by ffmpeg to 88.2 kHz')
    print('(ffmpeg ebur128, one decimal; and --measure of the same decoded file, two decimals)')
    print('%-16s %10s %10s %9s %10s %9s %s' % ('signal', 'expected', 'ffmpeg', 'error', '--measure', 'error', 'note'))
    worst = worst_ours = 0.0
    for name in ['white', 'pink', 'sweep', 'music', 'surround51', 'music16', 'quiet']:
        out = os.path.join(WORK, name + '_lufs.dsf')
        r = run([ENGINE, '--lufs', '-23', '-i', paths[name], out])
        if r.returncode != 0:
            print('%-16s conversion failed: %s' % (name, r.stderr.strip()))
            continue
        m = re.search(r'lands at (-?[\d.]+) LUFS', r.stderr)
        expected = float(m.group(1)) if m else -23.0
        note = 'true-peak cap' if m else ''
        dec = os.path.join(WORK, name + '_lufs.wav')
        run(['ffmpeg', '-v', 'error', '-y', '-i', out, '-ar', '88200', '-c:a', 'pcm_f32le', dec])
        got, _ = ffmpeg_ebur128(dec)
        ours, _ = engine_measure(dec)
        worst = max(worst, abs(got - expected))
        worst_ours = max(worst_ours, abs(ours - expected))
        print('%-16s %10.2f %10.1f %9.2f %10.2f %9.2f %s' % (name, expected, got, got - expected, ours, ours - expected,
                                                            note))
    print('worst landing error: %.2f LU (ffmpeg), %.2f LU (--measure)' % (worst, worst_ours))

    print('\n3. --stop-lossy')
    lossless = ['white', 'pink', 'sweep', 'music', 'surround51', 'bandlimited22k', 'dull', 'quiet', 'quiet_music',
                'music16', 'silence']
    false_alarms = []
    for name in lossless:
        r = run([ENGINE, '--stop-lossy', '-i', paths[name], os.path.join(WORK, 'lossless_check.dsf')])
        if 'looks lossy' in r.stderr:
            false_alarms.append(name)
    print('lossless: %d of %d called lossy %s' % (len(false_alarms), len(lossless), false_alarms or ''))
    codecs = [('mp3 128k', ['-c:a', 'libmp3lame', '-b:a', '128k'], 'mp3'),
              ('mp3 192k', ['-c:a', 'libmp3lame', '-b:a', '192k'], 'mp3'),
              ('aac 128k', ['-c:a', 'aac', '-b:a', '128k'], 'm4a'),
              ('vorbis 128k', ['-c:a', 'libvorbis', '-b:a', '128k'], 'ogg')]
    total = found = 0
    for label, opts, ext in codecs:
        missed = []
        n = 0
        for name in lossless:
            if name in ('silence', 'surround51'):
                continue  # silence has no spectrum to cut; MP3 takes at most two channels
            enc = os.path.join(WORK, 'lossy.' + ext)
            dec = os.path.join(WORK, 'lossy_%s_%s.wav' % (name, ext))
            run(['ffmpeg', '-v', 'error', '-y', '-i', paths[name]] + opts + [enc])
            run(['ffmpeg', '-v', 'error', '-y', '-i', enc, '-c:a', 'pcm_s16le', dec])
            r = run([ENGINE, '--stop-lossy', '-i', dec, os.path.join(WORK, 'lossy_check.dsf')])
            n += 1
            if 'looks lossy' in r.stderr and r.returncode != 0:
                found += 1
            else:
                missed.append(name)
        total += n
        print('%-12s detected %d of %d; missed %s' % (label, n - len(missed), n, missed or '-'))
    print('detection: %d of %d (%.0f %%); false alarms: %d of %d' % (found, total, 100.0 * found / total,
                                                                      len(false_alarms), len(lossless)))


if __name__ == '__main__':
    main()
