#!/usr/bin/env bash
# Builds the fuzz targets with clang in ./build-fuzz and runs them on their
# seed corpus (fuzz/make_corpus.py plus the committed regression inputs in
# fuzz/corpus/<target>/).
#   fuzz/run.sh                 each target for N executions (default 10000000)
#   fuzz/run.sh --brief         each target for about 20 s (CI)
#   fuzz/run.sh [--brief] TARGET...   only those (dsf_reader dff_reader engine_cli preset_json spectral_options)
# Environment: FUZZ_RUNS=N, FUZZ_SECONDS=S (brief), FUZZ_MAX_LEN=bytes (16384),
# FUZZ_JOBS_DIR (where findings go).
set -euo pipefail
cd "$(dirname "$0")/.."
root=$(pwd)
brief=0
targets=()
for a in "$@"; do
    case "$a" in
        --brief) brief=1 ;;
        -h|--help) sed -n 2,9p "$0"; exit 0 ;;
        *) targets+=("$a") ;;
    esac
done
[ ${#targets[@]} -gt 0 ] || targets=(dsf_reader dff_reader engine_cli preset_json spectral_options)

build="$root/build-fuzz"
cmake -S fuzz -B "$build" -G Ninja -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ >/dev/null
cmake --build "$build" >/dev/null

work="$build/work"
mkdir -p "$work"
# Seeds of this run only, so that two runs on different targets can share
# the build folder.
seeds_dir=$(mktemp -d "$work/seeds.XXXXXX")
trap 'rm -rf "$seeds_dir"' EXIT
python3 fuzz/make_corpus.py "$seeds_dir"
findings="${FUZZ_JOBS_DIR:-$work/findings}"
mkdir -p "$findings"

export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:allocator_may_return_null=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
failed=0
for t in "${targets[@]}"; do
    bin="$build/fuzz_$t"
    if [ ! -x "$bin" ]; then
        echo "fuzz: $t was not built (missing Qt 6 Core?)" >&2
        failed=1
        continue
    fi
    corpus="$work/corpus/$t"
    mkdir -p "$corpus"
    seeds=("$seeds_dir/$t")
    [ -d "fuzz/corpus/$t" ] && seeds+=("fuzz/corpus/$t")
    # The committed regression inputs must pass first, on their own.
    if [ -d "fuzz/corpus/$t" ] && ls "fuzz/corpus/$t"/* >/dev/null 2>&1; then
        "$bin" -runs=0 "fuzz/corpus/$t"/* >"$work/$t.regress.log" 2>&1 \
            || { echo "fuzz: $t fails on a committed regression input (see $work/$t.regress.log)" >&2; failed=1; continue; }
    fi
    if [ $brief = 1 ]; then
        limit=(-max_total_time="${FUZZ_SECONDS:-20}")
    else
        limit=(-runs="${FUZZ_RUNS:-10000000}")
    fi
    # -timeout catches a parser that loops; -rss_limit_mb one that hoards memory.
    if "$bin" "${limit[@]}" -timeout=10 -rss_limit_mb=2048 -malloc_limit_mb=1024 -max_len="${FUZZ_MAX_LEN:-16384}" \
        -artifact_prefix="$findings/$t-" -print_final_stats=1 "$corpus" "${seeds[@]}" >"$work/$t.log" 2>&1; then
        runs=$(grep -o 'stat::number_of_executed_units: *[0-9]*' "$work/$t.log" | grep -o '[0-9]*$' || true)
        speed=$(grep -o 'stat::average_exec_per_sec: *[0-9]*' "$work/$t.log" | grep -o '[0-9]*$' || true)
        echo "fuzz: $t: ${runs:-?} executions, ${speed:-?} exec/s, no finding"
    else
        echo "fuzz: $t: FINDING (log $work/$t.log, input in $findings/)" >&2
        tail -40 "$work/$t.log" >&2
        failed=1
    fi
done
exit $failed
