#!/bin/sh
# Checks the desktop entry and the AppStream metadata with the distribution's validators.
set -e
desktop-file-validate "$1"
appstreamcli validate --no-net --pedantic "$2"
