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
    libqt6opengl6-dev libgl-dev libvulkan-dev qt6-qpa-plugins qt6-translations-l10n \
    libsndfile1-dev libliquid-dev libebur128-dev libfftw3-dev libmysofa-dev libmysofa1 \
    libasound2-dev libasound2-plugins alsa-utils libcairo2-dev libssl-dev \
    clang llvm libclang-rt-14-dev \
    ffmpeg python3 python3-numpy time sox poppler-utils locales \
    appstream desktop-file-utils dpkg-dev file \
    fonts-wqy-microhei fonts-noto-core fonts-noto-cjk xvfb xauth

# The tests run the builder and a conversion under a decimal-comma locale.
if ! locale -a 2>/dev/null | grep -qi '^de_DE\.utf-\?8$'; then
    $SUDO localedef -i de_DE -f UTF-8 de_DE.UTF-8
fi
