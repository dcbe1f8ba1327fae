#!/usr/bin/env bash
# Builds the preview WAV reader's fuzz target with clang (libFuzzer, ASan,
# UBSan) and runs it on a copy of the seed corpus.
#   fuzz/run_preview.sh [libFuzzer options...]   default: -max_total_time=30
# e.g. fuzz/run_preview.sh -runs=10000000
set -euo pipefail
cd "$(dirname "$0")/.."
out=build-fuzz
mkdir -p "$out"
clang++ -std=c++20 -g -O1 -fno-omit-frame-pointer \
    -fsanitize=fuzzer,address,undefined -fno-sanitize-recover=all \
    -Ipreview fuzz/fuzz_wav_preview.cpp preview/wav_decode.cpp -o "$out/fuzz_wav_preview"
work="$out/corpus_wav_preview"
mkdir -p "$work"
cp -n fuzz/corpus/wav_preview/* "$work/" 2>/dev/null || true
[ $# -gt 0 ] || set -- -max_total_time=30
exec "$out/fuzz_wav_preview" "$work" fuzz/corpus/wav_preview -max_len=4096 -print_final_stats=1 "$@"
