#!/usr/bin/env bash
# End to end: an installed ZuvoAudioTools (0.1.0) updates itself to 9.9.9 from
# a local server after "检查更新…" and "下载并更新" are clicked, restarts as
# 9.9.9; a tampered manifest and a tampered payload leave it untouched.
#
# Uses its own build folder (build-e2e) configured with ZUVO_UPDATE_TEST_HOOKS,
# which only test builds have: the key override and the automatic clicks.
set -euo pipefail
cd "$(dirname "$0")/../.."
src=$PWD
build=$src/build-e2e
work=$(mktemp -d /tmp/zuvo-e2e-XXXXXX)
pids=()
cleanup() {
    for p in "${pids[@]}"; do kill "$p" 2>/dev/null || true; done
    rm -rf "$work"
}
trap cleanup EXIT

cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DZUVO_BUILD_TESTS=OFF -DZUVO_BUILD_BENCH=OFF \
      -DZUVO_UPDATE_TEST_HOOKS=ON -DZUVO_APP_VERSION=0.1.0 > /dev/null
cmake --build "$build" --target ZuvoAudioTools ZuvoEngine zuvo-sign-manifest > /dev/null
prefix=$work/prefix
cmake --install "$build" --prefix "$prefix" > /dev/null
# The update: the same package layout built as 9.9.9, as a tar archive.
cmake -S . -B "$build" -DZUVO_APP_VERSION=9.9.9 > /dev/null
cmake --build "$build" --target ZuvoAudioTools ZuvoEngine > /dev/null
cmake --install "$build" --prefix "$work/stage" > /dev/null
cmake -S . -B "$build" -DZUVO_APP_VERSION=0.1.0 > /dev/null
tar -C "$work/stage" -cf "$work/zuvo-9.9.9-linux-x64.tar" .

serve=$work/serve
mkdir -p "$serve"
cp "$work/zuvo-9.9.9-linux-x64.tar" "$serve/"
pub=$("$build/bin/zuvo-sign-manifest" genkey "$work/test-signing.pem")
exec 3> >(python3 "$src/tests/update/update_server.py" "$serve" > "$work/port")
for _ in $(seq 1 50); do [ -s "$work/port" ] && break; sleep 0.2; done
port=$(head -1 "$work/port")
[ -n "$port" ] || { echo "the test server did not start"; exit 1; }

publish() { # $1 sha256 of the payload
    cat > "$serve/latest.json" <<JSON
{"latest": {"version": "9.9.9", "released": "2026-11-23", "notes": "End-to-end test release",
 "files": [{"platform": "linux-x64", "overwrite": {"name": "zuvo-9.9.9-linux-x64.tar",
   "url": "http://127.0.0.1:$port/redirect/zuvo-9.9.9-linux-x64.tar",
   "size": $(stat -c %s "$serve/zuvo-9.9.9-linux-x64.tar"), "sha256": "$1"}}]}}
JSON
    "$build/bin/zuvo-sign-manifest" sign "$work/test-signing.pem" "$serve/latest.json"
}
fingerprint() { (cd "$prefix" && find . -type f -exec sha256sum {} + | sort | sha256sum); }

run_program() { # $1 log file, $2 text that ends the run; waits until the program quits or 90 s pass
    env QT_QPA_PLATFORM=offscreen TMPDIR="$work/tmp" ZUVO_NO_UPDATE_CHECK=1 ZUVO_UPDATE_TEST_CLICK=1 \
        ZUVO_UPDATE_URL="http://127.0.0.1:$port/latest.json" ZUVO_UPDATE_TEST_PUBKEY="$pub" \
        "$prefix/bin/ZuvoAudioTools" > "$1" 2>&1 &
    local pid=$!
    pids+=("$pid")
    for _ in $(seq 1 180); do
        kill -0 "$pid" 2>/dev/null || return 0
        if grep -q "$2" "$1"; then sleep 1; break; fi
        sleep 0.5
    done
    kill "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
}
mkdir -p "$work/tmp"
payload_sha=$(sha256sum "$serve/zuvo-9.9.9-linux-x64.tar" | cut -d' ' -f1)
before=$(fingerprint)
failures=0
check() { if eval "$2"; then echo "ok   - $1"; else echo "FAIL - $1"; failures=$((failures + 1)); fi; }

echo "# tampered manifest"
publish "$payload_sha"
sed -i 's/End-to-end/End-to-End/' "$serve/latest.json"
run_program "$work/tampered-manifest.log" "box updateFailedBox"
grep '\[test-hook\]\|\[update\]' "$work/tampered-manifest.log" || true
check "tampered manifest refused with a reason" "grep -q '签名无效' '$work/tampered-manifest.log'"
check "installation untouched" "[ \"\$(fingerprint)\" = '$before' ]"

echo "# tampered payload"
publish "$payload_sha"
printf 'X' | dd of="$serve/zuvo-9.9.9-linux-x64.tar" bs=1 seek=2000 conv=notrunc 2>/dev/null
run_program "$work/tampered-payload.log" "box updateFailedInstallBox"
grep '\[test-hook\]\|\[update\]' "$work/tampered-payload.log" || true
check "tampered payload refused with a reason" "grep -q 'updateFailedInstallBox: 校验和不匹配' '$work/tampered-payload.log'"
check "installation untouched" "[ \"\$(fingerprint)\" = '$before' ]"
check "unverified payload deleted" "[ ! -e '$work/tmp/zuvo-update/zuvo-9.9.9-linux-x64.tar' ]"

echo "# good update"
cp "$work/zuvo-9.9.9-linux-x64.tar" "$serve/"
publish "$payload_sha"
run_program "$work/update.log" "no-such-text: wait for the program to quit"
grep '\[test-hook\]\|\[update\]' "$work/update.log" || true
check "offer shown" "grep -q 'updateOfferBox: 发现新版本 9.9.9（当前 0.1.0）' '$work/update.log'"
check "program quit after the update was handed over" "grep -q 'updateDoneBox: 更新已下载并校验通过' '$work/update.log'"
# The restarted program runs the same clicks; its check now says 9.9.9 is current.
for _ in $(seq 1 90); do grep -q 'updateLatestBox' "$work/tmp/zuvo-update/update.log" 2>/dev/null && break; sleep 1; done
grep '\[test-hook\]\|\[update\]' "$work/tmp/zuvo-update/update.log" || true
check "restarted as 9.9.9" "grep -q 'already latest: local 9.9.9, remote 9.9.9' '$work/tmp/zuvo-update/update.log'"
check "installed files are the 9.9.9 layout" "cmp -s '$prefix/bin/ZuvoAudioTools' '$work/stage/bin/ZuvoAudioTools'"
check "metadata says 9.9.9" "grep -q 'version=\"9.9.9\"' '$prefix/share/metainfo/org.zuvo.ZuvoAudioTools.metainfo.xml'"
restarted=$(sed -n 's/.*program restarted (pid \([0-9]*\)).*/\1/p' "$work/tmp/zuvo-update/update.log" | tail -1)
[ -n "$restarted" ] && pids+=("$restarted")
echo "$failures failure(s)"
[ "$failures" -eq 0 ]
