#!/usr/bin/env bash
# Runs a command on a Wayland compositor that has the X server of $DISPLAY as its screen, keyboard
# and mouse; without a keyboard the toolkit cannot show a text cursor.
set -euo pipefail

runtime=$(mktemp -d)
weston=
trap 'kill $weston 2>/dev/null || true; wait; rm -rf "$runtime"' EXIT
chmod 700 "$runtime"
export XDG_RUNTIME_DIR=$runtime WAYLAND_DISPLAY=wayland-test QT_QPA_PLATFORM=wayland
weston --backend=x11-backend.so --socket="$WAYLAND_DISPLAY" --use-pixman \
    --width=1600 --height=1200 --no-config --idle-time=0 >"$runtime/log" 2>&1 &
weston=$!
for ((tries = 0; tries < 100; ++tries)); do
    [[ -S $runtime/$WAYLAND_DISPLAY ]] && break
    sleep 0.1
done
"$@"
