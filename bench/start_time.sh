#!/usr/bin/env bash
# Times the start of Cellora against an empty Qt window that loads the same libraries: from the
# moment before the process is started until its first frame is on the screen, the splash here, an
# empty square there. "On the screen" is taken literally: a stop-watch reads the pixel in the middle
# of an otherwise black X server, about every millisecond, until it changes. A window that is mapped
# but not yet drawn leaves that pixel alone. No window manager runs, and neither program knows that
# it is being timed. The two take turns, so that what else the machine does falls on both; one start
# of each goes uncounted.
# Usage: bench/start_time.sh [BUILD_FOLDER [STARTS]]
set -euo pipefail
build=$(readlink -m "${1:-$(dirname "${BASH_SOURCE[0]}")/../build/bench}")
starts=${2:-21}
if [[ -z "${CELLORA_START_TIME_DISPLAY:-}" ]]; then
    export CELLORA_START_TIME_DISPLAY=1 QT_LOGGING_RULES="*=false"
    exec xvfb-run -a -s "-screen 0 1280x900x24" "${BASH_SOURCE[0]}" "$build" "$starts"
fi

# A copy keeps its files to itself.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$build/cellora" "$work"
printf '[general]\r\nstartup=0\r\n' >"$work/cl.ini" # The Instructions stay closed.

# start_time PROGRAM [CHANGES]: prints the milliseconds of one start. What a killed copy left behind
# is no part of a usual start.
start_time() {
    rm -rf "$work"/.recovery
    "$build/bench/cellora_first_paint" "$@"
}

median() {
    sort -n "$1" | awk '{time[NR] = $1} END {print time[int((NR + 1) / 2)]}'
}

start_time "$work/cellora" >"$work/uncounted"
start_time "$build/bench/cellora_empty_window" >"$work/uncounted"
for ((start = 0; start < starts; ++start)); do
    start_time "$work/cellora" >>"$work/splash"
    start_time "$build/bench/cellora_empty_window" >>"$work/empty"
done
for ((start = 0; start < 5; ++start)); do
    start_time "$work/cellora" 2 >>"$work/usable"
done
awk -v splash="$(median "$work/splash")" -v empty="$(median "$work/empty")" -v starts="$starts" \
    -v usable="$(median "$work/usable")" \
    'BEGIN {
        printf "Medians of %d starts, process start to first frame:\n", starts
        printf "  splash        %6.1f ms\n  empty window  %6.1f ms\n  ratio         %6.2f\n",
            splash, empty, splash / empty
        printf "Median of 5 starts, process start to the window without the splash:\n"
        printf "                %6.1f ms\n", usable
    }'
