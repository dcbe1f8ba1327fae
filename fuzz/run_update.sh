#!/usr/bin/env bash
# Builds and runs the update fuzz targets (libFuzzer, ASan + UBSan, clang).
#   fuzz/run_update.sh                 each target for 30 s (what CI runs)
#   fuzz/run_update.sh 600             each target for 600 s
#   fuzz/run_update.sh runs 10000000   each target for ten million inputs
set -euo pipefail
cd "$(dirname "$0")/.."
out=build-fuzz-update
mkdir -p "$out"
limit=(-max_total_time="${1:-30}")
if [ "${1:-}" = runs ]; then limit=(-runs="$2"); fi

flags=(-std=c++20 -g -O1 -fPIC -fsanitize=fuzzer,address,undefined -fno-sanitize-recover=undefined
       -DZUVO_UPDATE_APP_VERSION='"1.2.3"' -Iupdate $(pkg-config --cflags Qt6Core))
libs=($(pkg-config --libs Qt6Core) -lcrypto)

build() {
    local name=$1; shift
    if [ ! -x "$out/$name" ] || [ -n "$(find fuzz/$name.cpp "$@" -newer "$out/$name" 2>/dev/null)" ]; then
        clang++ "${flags[@]}" "fuzz/$name.cpp" "$@" "${libs[@]}" -o "$out/$name"
    fi
}
build fuzz_update_manifest update/update_manifest.cpp update/update_version.cpp update/payload_names.cpp
build fuzz_update_tar update/tar_listing.cpp update/update_install.cpp

run() {
    local name=$1 corpus=$2
    local work="$out/corpus-$corpus"
    mkdir -p "$work"
    echo "== $name (${limit[*]})"
    # Findings land in $out; the seed corpus in the repository stays untouched.
    local status=0
    "$out/$name" "${limit[@]}" -max_len=65536 -timeout=10 -rss_limit_mb=2048 \
        -artifact_prefix="$out/$name-" -print_final_stats=1 "$work" "fuzz/corpus/$corpus" \
        > "$out/$name.log" 2>&1 || status=$?
    grep -E "^(#[0-9]+ +DONE|stat::number_of_executed_units|stat::peak_rss|==[0-9]+==ERROR|SUMMARY|Done)" "$out/$name.log" || true
    if [ "$status" -ne 0 ]; then
        echo "$name: finding (exit $status), see $out/$name.log"
        return 1
    fi
}
failed=0
run fuzz_update_manifest update_manifest || failed=1
run fuzz_update_tar update_tar || failed=1
exit $failed
