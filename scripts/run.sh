#!/usr/bin/env bash
# Installs what is needed, builds, and starts the program. Without a display
# (no $DISPLAY and no Wayland) the window is opened on a virtual X server.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
    echo "No display found: starting on a virtual X server (xvfb-run)." >&2
    exec xvfb-run -a -s "-screen 0 1280x800x24" ./build/bin/ZuvoAudioTools "$@"
fi
exec ./build/bin/ZuvoAudioTools "$@"
