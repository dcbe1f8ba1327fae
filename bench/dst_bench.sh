#!/bin/bash
# DST benchmark: compression ratio and encoding speed per level, and the cost
# of --dst in a whole conversion against the uncompressed conversion.
#
#   bench/dst_bench.sh [SECONDS]
#
# SECONDS (default 10) limits the per-level table to the first seconds of
# each signal (level 9 codes at about 1x realtime). Environment as run.sh:
# ZUVO_BENCH_BUILD (build tree, default build-dsp), ZUVO_BENCH_OUT.
set -uo pipefail

ROOT=$(cd "$(dirname "$0")/.." && pwd)
BUILD=${ZUVO_BENCH_BUILD:-$ROOT/build-dsp}
OUT=${ZUVO_BENCH_OUT:-$BUILD/bench-out}
PY=/usr/bin/python3
SECONDS_LIMIT=${1:-10}

mkdir -p "$OUT/signals" "$OUT/dst"
cmake -S "$ROOT" -B "$BUILD" -G Ninja -DCMAKE_BUILD_TYPE=Release > "$OUT/cmake.log" 2>&1 || { cat "$OUT/cmake.log"; exit 1; }
ninja -C "$BUILD" ZuvoEngine dst_tool > "$OUT/build.log" 2>&1 || { tail -30 "$OUT/build.log"; exit 1; }
ENGINE=$BUILD/bin/ZuvoEngine
TOOL=$BUILD/bin/dst_tool
[ -f "$OUT/signals/pink_f32.wav" ] || "$PY" "$ROOT/bench/make_signals.py" "$OUT/signals" > /dev/null

echo "# Zuvo DST benchmark, $(date -u '+%Y-%m-%d %H:%M UTC'), $(nproc) cores, load $(cut -d' ' -f1-3 /proc/loadavg)"
echo
echo "## Whole conversion, plain DSDIFF vs --dst (default level), 60 s stereo"
echo
echo "| DSD | signal | plain wall s | plain cpu s | DST wall s | DST cpu s | wall ratio | cpu ratio | size ratio | our decode = plain |"
echo "|-----|--------|--------------|-------------|------------|-----------|------------|-----------|------------|--------------------|"
run_timed() { # prints "wall cpu"
  /usr/bin/time -f "%e %U %S" -o "$OUT/dst/time.txt" "$@" > /dev/null 2>&1 || return 1
  awk '{printf "%.2f %.2f", $1, $2 + $3}' "$OUT/dst/time.txt"
}
for item in 64:tone997_f32 64:multitone_f32 64:pink_f32 128:pink_f32; do
  os=${item%%:*}; sig=${item#*:}
  in="$OUT/signals/$sig.wav"
  plain="$OUT/dst/${sig}_dsd$os.dff"; dst="$OUT/dst/${sig}_dsd${os}_dst.dff"
  read -r pw pc <<< "$(run_timed "$ENGINE" -i "$in" --oversampling "$os" "$plain")"
  read -r dw dc <<< "$(run_timed "$ENGINE" -i "$in" --oversampling "$os" --dst "$dst")"
  same=$("$TOOL" compare "$plain" "$dst" > /dev/null && echo yes || echo NO)
  ps=$(stat -c %s "$plain"); ds=$(stat -c %s "$dst")
  awk -v os="$os" -v sig="$sig" -v pw="$pw" -v pc="$pc" -v dw="$dw" -v dc="$dc" -v ps="$ps" -v ds="$ds" -v same="$same" \
    'BEGIN { printf "| %s | %s | %.2f | %.2f | %.2f | %.2f | %.2f | %.2f | %.3f | %s |\n", os, sig, pw, pc, dw, dc, dw / pw, dc / pc, ds / ps, same }'
done
echo
echo "## Per level (first $SECONDS_LIMIT s; speeds in audio seconds per CPU second of one core)"
for f in tone997_f32_dsd64 multitone_f32_dsd64 pink_f32_dsd64 pink_f32_dsd128; do
  echo
  echo '```'
  "$TOOL" stats "$OUT/dst/$f.dff" "$SECONDS_LIMIT" 1 2 3 4 5 6 7 8 9
  echo '```'
done
