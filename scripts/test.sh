#!/usr/bin/env bash
# Installs what is needed, builds from scratch in ./build, and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build --output-on-failure --timeout 600 "$@"
# The session and queue suites again under the thread and address sanitizers.
scripts/test-sanitizers.sh
# The preview WAV reader under libFuzzer, briefly.
fuzz/run_preview.sh -max_total_time=20
# The update manifest and archive parsers under libFuzzer, briefly.
fuzz/run_update.sh 15
# Each fuzz target briefly (about 20 s each) on its seed corpus.
fuzz/run.sh --brief
