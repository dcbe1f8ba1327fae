#!/usr/bin/env bash
# Builds the thread-heavy suites (engine sessions, the conversion queue) with
# ThreadSanitizer and with AddressSanitizer + UBSan, and runs them.
set -euo pipefail
cd "$(dirname "$0")/.."
suites=(tst_session_control tst_session_proc tst_session_inproc tst_session_inbox tst_convert_queue tst_playback_controller tst_recording_controller)
for kind in thread address; do
    dir="build-$kind"
    cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZUVO_SANITIZE="$kind" \
          -DZUVO_BUILD_BENCH=OFF > /dev/null
    cmake --build "$dir" --target "${suites[@]}" zuvo_fake_engine_cli
    # die_after_fork=0: the queue suite starts in-process runs (new threads)
    # in a process that has already forked child engines through QProcess.
    TSAN_OPTIONS="suppressions=$PWD/tests/session/tsan.supp die_after_fork=0" QT_QPA_PLATFORM=offscreen ctest --test-dir "$dir" --output-on-failure --timeout 600 \
        -R "^($(IFS='|'; echo "${suites[*]}"))\$"
done
