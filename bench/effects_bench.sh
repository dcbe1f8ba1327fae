#!/bin/bash
# Cost and quality of the effect chain (engine/effects).
#
#   bench/effects_bench.sh [--quality]
#
# Cost: a 60 s stereo 44.1 kHz programme (pink-ish noise at -20 dBFS RMS)
# converted to DSD64 with and without the full chain -- 10 EQ bands, bass
# and treble, HRTF (ms), surround -- three times each; the figure is the
# extra CPU time (user + system) of the chain relative to the plain
# conversion, from the fastest run of each.
# --quality also runs the measured-response cases of
# tests/engine/effects/effects_measure.py and prints their figures.
#
# Environment: ZUVO_BENCH_BUILD (build tree, default build), ZUVO_ENGINE
# (engine CLI, default <build>/bin/ZuvoEngine), ZUVO_BENCH_OUT (work dir).
set -uo pipefail

ROOT=$(cd "$(dirname "$0")/.." && pwd)
BUILD=${ZUVO_BENCH_BUILD:-$ROOT/build}
OUT=${ZUVO_BENCH_OUT:-$BUILD/bench-effects}
PY=/usr/bin/python3
QUALITY=0
[ "${1:-}" = "--quality" ] && QUALITY=1
[ -x /usr/bin/time ] || { echo "needs /usr/bin/time (Debian package 'time')" >&2; exit 2; }

mkdir -p "$OUT"
ENGINE=${ZUVO_ENGINE:-$BUILD/bin/ZuvoEngine}
if [ -z "${ZUVO_ENGINE:-}" ]; then
  cmake -S "$ROOT" -B "$BUILD" -G Ninja -DCMAKE_BUILD_TYPE=Release > "$OUT/cmake.log" 2>&1 || { cat "$OUT/cmake.log"; exit 1; }
  ninja -C "$BUILD" ZuvoEngine > "$OUT/build.log" 2>&1 || { tail -30 "$OUT/build.log"; exit 1; }
fi

IN="$OUT/programme.wav"
if [ ! -f "$IN" ]; then
  "$PY" - "$IN" <<'PYEOF'
import struct, sys
import numpy as np
fs, n = 44100, 60 * 44100
rng = np.random.default_rng(7)
noise = (rng.standard_normal((2, n // 2 + 1)) + 1j * rng.standard_normal((2, n // 2 + 1)))
f = np.maximum(np.fft.rfftfreq(n, 1 / fs), 20.0)
x = np.fft.irfft(noise / np.sqrt(f), n, axis=1)
x *= 0.1 / np.sqrt((x ** 2).mean())
data = np.clip(x.T, -1, 1).astype('<f4').tobytes()
fmt = struct.pack('<HHIIHH', 3, 2, fs, fs * 8, 8, 32)
with open(sys.argv[1], 'wb') as o:
    o.write(b'RIFF' + struct.pack('<I', 4 + 8 + len(fmt) + 8 + len(data)) + b'WAVE')
    o.write(b'fmt ' + struct.pack('<I', len(fmt)) + fmt + b'data' + struct.pack('<I', len(data)) + data)
PYEOF
fi

CHAIN=(--eq "31,2.0,0.7q;63,-1.0,1.0q;125,1.5,1.0o;250,-2.0,1.0q;500,1.0,1.0q;1000,-1.5,2.0q;2000,2.0,1.0q;4000,-1.0,1.0q;8000,1.5,1.0q;16000,2.0,0.7q"
       --bass 2.000000 --treble -1.000000 --hrtf ms --surround 15 80 side)

cpu_of() { # label args... -> prints "cpu wall"
  local best_cpu=999999 best_wall=0
  for run in 1 2 3; do
    /usr/bin/time -f '%U %S %e' -o "$OUT/time.txt" "$ENGINE" -i "$IN" "$@" "$OUT/out.dsf" > /dev/null 2> "$OUT/err.txt" \
      || { cat "$OUT/err.txt" >&2; exit 1; }
    read -r u s e < "$OUT/time.txt"
    local cpu
    cpu=$(echo "$u + $s" | bc -l)
    if (( $(echo "$cpu < $best_cpu" | bc -l) )); then best_cpu=$cpu; best_wall=$e; fi
  done
  echo "$best_cpu $best_wall"
}

echo "# effect chain cost, $(date -u '+%Y-%m-%d %H:%M UTC'), $(nproc) cores, load $(cut -d' ' -f1-3 /proc/loadavg)"
echo "# 60 s stereo 44.1 kHz -> DSD64, fastest of 3 runs"
read -r plain_cpu plain_wall < <(cpu_of)
read -r fx_cpu fx_wall < <(cpu_of "${CHAIN[@]}")
printf '%-34s %9s %9s\n' run 'cpu s' 'wall s'
printf '%-34s %9.2f %9.2f\n' 'plain conversion' "$plain_cpu" "$plain_wall"
printf '%-34s %9.2f %9.2f\n' 'EQ10 + tone + HRTF ms + surround' "$fx_cpu" "$fx_wall"
printf 'chain cost: %+.1f %% of the plain conversion CPU time (bar: 25 %%)\n' \
  "$(echo "100 * ($fx_cpu - $plain_cpu) / $plain_cpu" | bc -l)"

if [ "$QUALITY" = 1 ]; then
  echo "# measured responses (ffmpeg-decoded DSD64 against the definitions)"
  for c in eq eq-advanced tone width crossfeed surround channels unsrs dsre headroom headroom-square snr; do
    "$PY" "$ROOT/tests/engine/effects/effects_measure.py" "$ENGINE" "$c"
  done
fi
