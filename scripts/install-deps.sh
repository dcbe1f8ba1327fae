#!/usr/bin/env bash
# Installs everything needed to build, run and test Zuvo Audio Suite on Debian 12.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive
SUDO=""
[ "$(id -u)" -eq 0 ] || SUDO="sudo"
$SUDO apt-get update -q
$SUDO apt-get install -y -q --no-install-recommends \
    build-essential cmake ninja-build pkg-config ccache git \
    qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools \
    libqt6opengl6-dev libgl-dev libvulkan-dev qt6-qpa-plugins \
    libsndfile1-dev libliquid-dev libebur128-dev \
    ffmpeg python3 python3-numpy time \
    fonts-wqy-microhei fonts-noto-core xvfb xauth
