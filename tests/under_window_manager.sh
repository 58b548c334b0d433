#!/usr/bin/env bash
# Runs a command on the X server of $DISPLAY under a window manager, as players have one: windows are
# activated, placed and sized by it.
set -euo pipefail

openbox --sm-disable &
manager=$!
trap 'kill "$manager" 2>/dev/null || true' EXIT
command -v xprop >/dev/null || { echo "xprop is missing (x11-utils)" >&2; exit 1; }
until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do
    kill -0 "$manager"
    sleep 0.1
done
"$@"
