#!/bin/bash
# Cost of the PDF analysis report (-pdfrp, engine/report).
#
#   bench/pdf_report_bench.sh
#
# A 60 s stereo 44.1 kHz programme (pink-ish noise at -20 dBFS RMS plus a
# 1 kHz tone at -20 dBFS) converted to DSD64 and DSD256 without the report,
# with it, and with it and the noise-floor page, three times each. Figures:
# the fastest run's CPU time (user + system) and wall time, and the extra of
# each report run over the plain conversion. Also checks that the DSF bytes
# are the same with and without the report.
#
# Environment: ZUVO_BENCH_BUILD (build tree, default build), ZUVO_ENGINE
# (engine CLI, default <build>/bin/ZuvoEngine), ZUVO_BENCH_OUT (work dir).
set -uo pipefail

ROOT=$(cd "$(dirname "$0")/.." && pwd)
BUILD=${ZUVO_BENCH_BUILD:-$ROOT/build}
OUT=${ZUVO_BENCH_OUT:-$BUILD/bench-pdf-report}
PY=/usr/bin/python3
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
rng = np.random.default_rng(11)
noise = (rng.standard_normal((2, n // 2 + 1)) + 1j * rng.standard_normal((2, n // 2 + 1)))
f = np.maximum(np.fft.rfftfreq(n, 1 / fs), 20.0)
x = np.fft.irfft(noise / np.sqrt(f), n, axis=1)
x *= 0.1 / np.sqrt((x ** 2).mean())
x += 0.1 * np.sqrt(2) * np.sin(2 * np.pi * 1000 * np.arange(n) / fs)
data = np.clip(x.T, -1, 1).astype('<f4').tobytes()
fmt = struct.pack('<HHIIHH', 3, 2, fs, fs * 8, 8, 32)
with open(sys.argv[1], 'wb') as o:
    o.write(b'RIFF' + struct.pack('<I', 4 + 8 + len(fmt) + 8 + len(data)) + b'WAVE')
    o.write(b'fmt ' + struct.pack('<I', len(fmt)) + fmt + b'data' + struct.pack('<I', len(data)) + data)
PYEOF
fi

best() { # output args... -> prints "cpu wall" of the fastest of three runs
  local out=$1; shift
  local best_cpu=999999 best_wall=0
  for run in 1 2 3; do
    /usr/bin/time -f '%U %S %e' -o "$OUT/time.txt" "$ENGINE" -i "$IN" "$@" "$out" > /dev/null 2> "$OUT/err.txt" \
      || { cat "$OUT/err.txt" >&2; exit 1; }
    read -r u s e < "$OUT/time.txt"
    local cpu
    cpu=$(echo "$u + $s" | bc -l)
    if (( $(echo "$cpu < $best_cpu" | bc -l) )); then best_cpu=$cpu; best_wall=$e; fi
  done
  echo "$best_cpu $best_wall"
}

pct() { echo "scale=1; 100 * ($1 - $2) / $2" | bc -l; }

printf '%-8s %-22s %9s %9s %9s %9s\n' rate case cpu_s wall_s cpu_extra wall_extra
for rate in 64 256; do
  read -r pc pw < <(best "$OUT/plain.dsf" --oversampling "$rate")
  read -r rc rw < <(best "$OUT/report.dsf" --oversampling "$rate" -pdfrp)
  read -r nc nw < <(best "$OUT/noise.dsf" --oversampling "$rate" -pdfrp --noise-profiling)
  printf '%-8s %-22s %9s %9s %9s %9s\n' "DSD$rate" "plain" "$pc" "$pw" "" ""
  printf '%-8s %-22s %9s %9s %8s%% %8s%%\n' "DSD$rate" "-pdfrp" "$rc" "$rw" "$(pct "$rc" "$pc")" "$(pct "$rw" "$pw")"
  printf '%-8s %-22s %9s %9s %8s%% %8s%%\n' "DSD$rate" "-pdfrp --noise-prof." "$nc" "$nw" "$(pct "$nc" "$pc")" "$(pct "$nw" "$pw")"
  if cmp -s "$OUT/plain.dsf" "$OUT/report.dsf"; then echo "DSD$rate: DSF bytes identical with and without -pdfrp"
  else echo "DSD$rate: DSF bytes DIFFER with -pdfrp" >&2; exit 1; fi
done
pdfinfo "$OUT/noise.report.pdf" | grep -E '^(Pages|File size)'
