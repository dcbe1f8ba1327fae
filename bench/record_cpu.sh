#!/bin/bash
# End-to-end recorder load: the real engine records S seconds (default 20)
# of stereo 96 kHz from a test-only ALSA capture device (the `null` plugin,
# which never waits for a clock, fed by a tone through the `file` plugin) to
# DSD64, and the process's whole CPU time (user + system, every thread,
# device reads and DSF writes included) is divided by the audio length.
#
#   bench/record_cpu.sh [seconds] [extra engine options...]
#   ZUVO_ENGINE=path/to/ZuvoEngine bench/record_cpu.sh
set -euo pipefail
ROOT=$(cd "$(dirname "$0")/.." && pwd)
ENGINE=${ZUVO_ENGINE:-$ROOT/build/bin/ZuvoEngine}
SECONDS_TO_RECORD=${1:-20}
shift || true
WORK=$(mktemp -d)
trap 'rm -rf "$WORK"' EXIT
sox -n -r 96000 -c 2 -e signed -b 32 -L -t raw "$WORK/in.raw" synth 2 sine 997 vol 0.5
cat > "$WORK/asound.conf" <<CONF
pcm.benchsource { type file slave.pcm { type null } infile "$WORK/in.raw" file "/dev/null" format "raw" }
CONF
ALSA_CONFIG_PATH="$WORK/asound.conf" /usr/bin/time -f "%U %S %e" -o "$WORK/time" \
    "$ENGINE" --record --record-device benchsource --record-samplerate 96000 --record-channels 2 \
    --record-duration "$SECONDS_TO_RECORD" --record-headroom 3 "$@" "$WORK/out.dsf" < /dev/null > /dev/null 2>&1
read -r user sys wall < "$WORK/time"
awk -v u="$user" -v s="$sys" -v w="$wall" -v a="$SECONDS_TO_RECORD" 'BEGIN {
    printf "recorder: %s s of 96 kHz stereo -> DSD64: CPU %.2f s (user %.2f, sys %.2f), wall %.2f s\n", a, u + s, u, s, w
    printf "load: %.1f %% of one core while recording in real time\n", 100 * (u + s) / a
}'
