#!/usr/bin/env bash
# Installs the built .deb into a fresh minimal Debian 12 (debootstrap, as
# root; needs the Debian mirror) and starts the program there on a virtual
# display: proves the package's dependencies are complete.
#   packaging/check_deb_clean.sh build/zuvo-audio-suite_0.1.0_amd64.deb [ROOTFS]
set -euo pipefail
deb=$(readlink -f "$1")
root=${2:-/var/tmp/zuvo-deb12}
command -v debootstrap > /dev/null || apt-get install -y -q debootstrap
[ -x "$root/usr/bin/apt-get" ] || debootstrap --variant=minbase bookworm "$root" http://deb.debian.org/debian
cp /etc/resolv.conf "$root/etc/resolv.conf"
cp "$deb" "$root/tmp/zuvo.deb"
display=:97
Xvfb "$display" -nolisten tcp > /dev/null 2>&1 &
xvfb=$!
mkdir -p "$root/tmp/.X11-unix"
mount -t proc proc "$root/proc"
mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
cleanup() { umount "$root/tmp/.X11-unix" "$root/proc" 2>/dev/null || true; kill "$xvfb" 2>/dev/null || true; }
trap cleanup EXIT
chroot "$root" sh -c 'export DEBIAN_FRONTEND=noninteractive; apt-get update -q > /dev/null &&
    apt-get install -y -q --no-install-recommends /tmp/zuvo.deb > /dev/null'
chroot "$root" /usr/bin/ZuvoAudioTools --version
rm -f "$root/tmp/shot.png"
timeout 30 chroot "$root" env DISPLAY="$display" HOME=/root ZUVO_NO_UPDATE_CHECK=1 \
    ZUVO_GUI_SHOT=/tmp/shot.png /usr/bin/ZuvoAudioTools | grep '^\[shot\] saved' || true
[ -s "$root/tmp/shot.png" ] && echo "started on a clean Debian 12: $root/tmp/shot.png"
