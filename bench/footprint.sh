#!/usr/bin/env bash
# Measures what Cellora costs while it is merely there: the memory it takes with a game on the board,
# and the processor time it burns in a while of nobody touching it while the clock runs. Beside it,
# an empty Qt window of the same size with the same libraries loaded. Memory is the resident set, in
# which a page shared with another program counts in full; the anonymous part is what is the
# program's alone.
# Usage: bench/footprint.sh [BUILD_FOLDER [IDLE_SECONDS]]
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
build=$(readlink -f "${1:-$here/../build/bench}")
idle_seconds=${2:-60}
if [[ -z "${CELLORA_FOOTPRINT_DISPLAY:-}" ]]; then
    export CELLORA_FOOTPRINT_DISPLAY=1
    exec xvfb-run -a -s "-screen 0 1280x1024x24" "$here/../tests/under_window_manager.sh" \
        "${BASH_SOURCE[0]}" "$build" "$idle_seconds"
fi

# A copy keeps its files to itself.
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$work"' EXIT
cp "$build/cellora" "$work"
printf '[general]\r\nstartup=0\r\n' >"$work/cl.ini"

# memory PID: resident and anonymous KiB.
memory() {
    awk '/^Rss:/ {rss = $2} /^Anonymous:/ {print rss, $2}' "/proc/$1/smaps_rollup"
}

# processor_time PID: the nanoseconds that all its threads have run.
processor_time() {
    cat "/proc/$1/task"/*/schedstat | awk '{sum += $1} END {print sum}'
}

# idle_time PID: the milliseconds of processor time of an idle while.
idle_time() {
    local before
    before=$(processor_time "$1")
    sleep "$idle_seconds"
    awk -v before="$before" -v after="$(processor_time "$1")" \
        'BEGIN {printf "%.1f", (after - before) / 1e6}'
}

"$build/bench/cellora_empty_window" maximized 2>/dev/null &
empty=$!
sleep 2
read -r empty_resident empty_anonymous < <(memory "$empty")
empty_idle=$(idle_time "$empty")
kill "$empty"

"$work/cellora" 2>/dev/null &
game=$!
sleep 4
xdotool search --onlyvisible --name '^Cellora$' windowactivate --sync
xdotool key ctrl+n
sleep 1
xdotool key Return
until [[ -e $work/recovery.clp ]]; do # A second after the game has begun it is kept.
    kill -0 "$game"
    sleep 0.1
done
sleep 1
read -r game_resident game_anonymous < <(memory "$game")
game_idle=$(idle_time "$game")

printf '%-16s %14s %14s %20s\n' "" "resident KiB" "anonymous KiB" "ms in $idle_seconds idle s"
printf '%-16s %14d %14d %20s\n' \
    "empty window" "$empty_resident" "$empty_anonymous" "$empty_idle" \
    "game on board" "$game_resident" "$game_anonymous" "$game_idle" \
    "difference" $((game_resident - empty_resident)) $((game_anonymous - empty_anonymous)) ""
