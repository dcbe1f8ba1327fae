#!/bin/sh
# Installs the build into a scratch prefix and checks the layout a package
# (and an update archive) is made of; the installed program must run.
set -eu
build=$1
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
cmake --install "$build" --prefix "$prefix" > /dev/null
for f in bin/ZuvoAudioTools bin/ZuvoEngine \
         share/applications/org.zuvo.ZuvoAudioTools.desktop \
         share/metainfo/org.zuvo.ZuvoAudioTools.metainfo.xml \
         share/icons/hicolor/64x64/apps/org.zuvo.ZuvoAudioTools.png; do
    [ -e "$prefix/$f" ] || { echo "missing: $f"; exit 1; }
done
[ -x "$prefix/bin/ZuvoAudioTools" ] || { echo "not executable"; exit 1; }
# Engine mode needs no display.
"$prefix/bin/ZuvoAudioTools" --version
"$prefix/bin/ZuvoEngine" --version
echo "install layout ok"
