#!/bin/bash
# Signal-path benchmark: conversion speed, memory and spectral quality of
# the DSD encoder, measured on the 1-bit output itself.
#
#   bench/run.sh [--quick] [--native]
#
#   --quick   DSD64 and DSD128 only, default modulator only, no extra signals
#   --native  use the native driver (bench/dsp_bench) even if the engine CLI
#             is built
#
# Environment: ZUVO_BENCH_BUILD (build tree, default build-dsp),
# ZUVO_ENGINE (engine CLI, default <build>/bin/ZuvoEngine),
# ZUVO_BENCH_OUT (work dir, default <build>/bench-out).
set -uo pipefail

ROOT=$(cd "$(dirname "$0")/.." && pwd)
BUILD=${ZUVO_BENCH_BUILD:-$ROOT/build-dsp}
OUT=${ZUVO_BENCH_OUT:-$BUILD/bench-out}
PY=/usr/bin/python3
QUICK=0
NATIVE=0
for a in "$@"; do
  case "$a" in
    --quick) QUICK=1 ;;
    --native) NATIVE=1 ;;
    *) echo "unknown option $a" >&2; exit 2 ;;
  esac
done

if [ ! -x /usr/bin/time ]; then
  echo "needs /usr/bin/time (Debian package 'time')" >&2
  exit 2
fi

mkdir -p "$OUT/signals" "$OUT/dsf"
cmake -S "$ROOT" -B "$BUILD" -G Ninja -DCMAKE_BUILD_TYPE=Release > "$OUT/cmake.log" 2>&1 || { cat "$OUT/cmake.log"; exit 1; }
ninja -C "$BUILD" dsp_bench > "$OUT/build.log" 2>&1 || { tail -30 "$OUT/build.log"; exit 1; }
ENGINE=${ZUVO_ENGINE:-$BUILD/bin/ZuvoEngine}
if [ "$NATIVE" = 0 ] && [ -z "${ZUVO_ENGINE:-}" ]; then
  ninja -C "$BUILD" ZuvoEngine >> "$OUT/build.log" 2>&1 || ENGINE=""
fi
[ "$NATIVE" = 1 ] && ENGINE=""
[ -n "$ENGINE" ] && [ ! -x "$ENGINE" ] && ENGINE=""
NATIVE_BIN="$BUILD/bin/dsp_bench"

if [ ! -f "$OUT/signals/pink_f32.wav" ]; then
  "$PY" "$ROOT/bench/make_signals.py" "$OUT/signals" > /dev/null
fi

echo "# Zuvo signal-path benchmark, $(date -u '+%Y-%m-%d %H:%M UTC')"
echo "# machine: $(nproc) cores, $(grep -m1 'model name' /proc/cpuinfo | cut -d: -f2 | sed 's/^ //'), load $(cut -d' ' -f1-3 /proc/loadavg)"
if [ -n "$ENGINE" ]; then echo "# converter: engine CLI $ENGINE"; else echo "# converter: native driver $NATIVE_BIN"; fi
echo "# 60 s stereo 44.1 kHz inputs; xRT = audio seconds / wall seconds; xRT/cpu = audio seconds x channels / CPU seconds"
echo "# spectra: Kaiser-40 FFT of 2^23 bits of channel 1 from 5 s in; SNR and THD+N in 20 Hz-20 kHz"
printf '%-5s %-10s %-10s %7s %7s %8s %8s %9s %9s %11s\n' rate modulator signal xRT xRT/cpu 'RSS MB' 'level' 'SNR dB' 'THD+N dB' '20-50k dBFS'

convert() { # in out rate modargs...
  local in=$1 out=$2 rate=$3; shift 3
  if [ -n "$ENGINE" ]; then
    /usr/bin/time -v "$ENGINE" -i "$in" --oversampling "$rate" "$@" "$out" > "$OUT/last.log" 2> "$OUT/last.err"
  else
    /usr/bin/time -v "$NATIVE_BIN" convert "$in" "$out" --oversampling "$rate" "$@" > "$OUT/last.log" 2> "$OUT/last.err"
  fi
}

run_one() { # rate label signal kind modargs...
  local rate=$1 label=$2 sig=$3 kind=$4; shift 4
  local in="$OUT/signals/$sig.wav" out="$OUT/dsf/${sig}_dsd${rate}_${label// /}.dsf"
  rm -f "$out"
  convert "$in" "$out" "$rate" "$@"
  local rc=$?
  if [ $rc -ne 0 ]; then
    local why
    why=$(grep -v '^\s' "$OUT/last.err" | grep -iv 'command\|elapsed\|maximum\|exit status' | head -2 | tr '\n' ' ' | cut -c1-150)
    printf '%-5s %-10s %-10s refused (exit %d): %s\n' "$rate" "$label" "$sig" "$rc" "$why"
    return
  fi
  local wall user sys rss
  wall=$(grep 'Elapsed (wall clock)' "$OUT/last.err" | awk '{print $NF}' | awk -F: '{ if (NF==3) print $1*3600+$2*60+$3; else print $1*60+$2 }')
  user=$(grep 'User time' "$OUT/last.err" | awk '{print $NF}')
  sys=$(grep 'System time' "$OUT/last.err" | awk '{print $NF}')
  rss=$(grep 'Maximum resident' "$OUT/last.err" | awk '{print $NF}')
  local fs=$((rate * 44100))
  local secs
  secs=$(awk -v f=$fs 'BEGIN { printf "%.4f", 8388608 / f }')
  local res
  res=$("$PY" "$ROOT/bench/analyse_dsf.py" "$out" "$kind" --start 5 --seconds "$secs")
  local level snr thdn noise
  level=$(echo "$res" | sed -n 's/.*level_dBFS=\([^ ]*\).*/\1/p')
  snr=$(echo "$res" | sed -n 's/.*snr_dB=\([^ ]*\).*/\1/p')
  thdn=$(echo "$res" | sed -n 's/.*thdn_dB=\([^ ]*\).*/\1/p')
  noise=$(echo "$res" | sed -n 's/.*noise_20k_50k_dBFS=\([^ ]*\).*/\1/p')
  printf '%-5s %-10s %-10s %7.1f %7.1f %8.0f %8s %9s %9s %11s\n' "$rate" "$label" "$sig" \
    "$(awk -v w="$wall" 'BEGIN { print 60 / w }')" \
    "$(awk -v u="$user" -v s="$sys" 'BEGIN { print 120 / (u + s) }')" \
    "$(awk -v r="$rss" 'BEGIN { print r / 1024 }')" "$level" "${snr:--}" "${thdn:--}" "$noise"
  # Keep the disk use bounded: the largest outputs are only needed once.
  [ "$rate" -ge 256 ] && rm -f "$out"
}

if [ "$QUICK" = 1 ]; then
  RATES="64 128"
  MODS=("sos-ef|--sos-ef")
else
  RATES="64 128 256 512"
  MODS=("sos-ef|--sos-ef" "order 9|--order 9" "cifb 7|--cifb 7" "mash|--mash")
fi

for rate in $RATES; do
  for m in "${MODS[@]}"; do
    label=${m%%|*}
    args=${m#*|}
    # shellcheck disable=SC2086
    run_one "$rate" "$label" tone997_f32 tone997 $args
  done
done
if [ "$QUICK" = 0 ]; then
  for rate in 64 128; do
    run_one "$rate" sos-ef tone997_s24 tone997 --sos-ef
    run_one "$rate" sos-ef multitone_f32 multitone --sos-ef
    run_one "$rate" sos-ef pink_f32 pink --sos-ef
  done
fi

echo
echo "# highest stable level: 997 Hz, unity gain, 0.5 s per step of 0.25 dB (native driver)"
for m in "${MODS[@]}"; do
  label=${m%%|*}
  args=${m#*|}
  for rate in 64 128; do
    # shellcheck disable=SC2086
    line=$("$NATIVE_BIN" sweep --oversampling "$rate" $args | tail -1)
    printf '%-5s %-10s %s\n' "$rate" "$label" "$line"
  done
done
