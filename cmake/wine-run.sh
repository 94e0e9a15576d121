#!/bin/sh
# Runs a Windows program under Wine in the project's private prefix, without Wine's own chatter.
: "${WINEPREFIX:=$(cd "$(dirname "$0")/.." && pwd)/build/wine}"
export WINEPREFIX WINEDEBUG="${WINEDEBUG:--all}"
exec wine "$@"
