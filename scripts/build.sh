#!/usr/bin/env bash
# Configures and builds into ./build (Release by default).
set -euo pipefail
cd "$(dirname "$0")/.."
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE="${BUILD_TYPE:-Release}" "$@"
cmake --build build
