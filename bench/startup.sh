#!/usr/bin/env bash
# Launch-to-shown time of the main window, offscreen: from starting the
# program until its screenshot hook reports the shown window (the grab is
# taken after the first paint; a .bmp keeps encoding time out of it).
# Prints every run and the median.  Target: under 400 ms.
#
#   bench/startup.sh [runs] [path/to/ZuvoAudioTools]
set -euo pipefail
runs=${1:-9}
app=${2:-"$(dirname "$0")/../build/bin/ZuvoAudioTools"}
[ -x "$app" ] || { echo "no program at $app (build the ZuvoAudioTools target)" >&2; exit 1; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
exec python3 - "$app" "$runs" "$work" <<'PY'
import os, statistics, subprocess, sys, time
app, runs, work = sys.argv[1], int(sys.argv[2]), sys.argv[3]
env = dict(os.environ, QT_QPA_PLATFORM="offscreen", ZUVO_NO_UPDATE_CHECK="1",
           ZUVO_GUI_DUMP_MOD="1", ZUVO_SETTINGS_DIR=os.path.join(work, "settings"),
           ZUVO_GUI_SHOT=os.path.join(work, "shot.bmp"))
times = []
for i in range(runs + 1):
    start = time.monotonic()
    p = subprocess.Popen([app], env=env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    shown = None
    for line in p.stdout:
        if line.startswith("[shot]"):
            shown = (time.monotonic() - start) * 1000.0
            if "saved" not in line:
                sys.exit("screenshot failed: " + line.strip())
    p.wait()
    if shown is None:
        sys.exit("the program never reported a shown window")
    if i == 0:
        continue  # the first run warms the file cache
    times.append(shown)
    print(f"run {i}: {shown:.0f} ms")
print(f"median launch-to-shown: {statistics.median(times):.0f} ms over {runs} runs "
      f"(min {min(times):.0f}, max {max(times):.0f}); target < 400 ms")
PY
