#!/usr/bin/env bash
# Measures what Cellora costs while it is merely there: the memory it takes with a game on the board
# and the processor time it burns while nobody touches it and the clock runs. Beside it, an empty Qt
# window of the same size with the same libraries loaded. Memory is the resident set, in
# which a page shared with another program counts in full; the anonymous part is what is the
# program's alone. For the processor time the floor is a window with a clock.
# Usage: bench/footprint.sh [BUILD_FOLDER [IDLE_SECONDS]]
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
build=$(readlink -m "${1:-$here/../build/bench}")
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

# empty_window KIND: sets what such a window takes.
empty_window() {
    "$build/bench/cellora_empty_window" "$1" 2>/dev/null &
    local empty=$!
    sleep 2
    read -r resident anonymous < <(memory "$empty")
    idle=$(idle_time "$empty")
    kill "$empty"
}

row() {
    printf '%-16s %14s %14s %20s\n' "$@"
}

row "" "resident KiB" "anonymous KiB" "ms in $idle_seconds idle s"
empty_window clock
row "a clock alone" "$resident" "$anonymous" "$idle"
empty_window maximized
row "empty window" "$resident" "$anonymous" "$idle"

"$work/cellora" 2>/dev/null &
game=$!
sleep 4
xdotool search --onlyvisible --name '^Cellora$' windowactivate --sync
xdotool key ctrl+n
sleep 1
xdotool key Return
for ((tries = 0; tries < 100; ++tries)); do # A second after the game has begun it is kept.
    [[ ! -e $work/.recovery/copy-1 ]] || break
    sleep 0.1
done
[[ -e $work/.recovery/copy-1 ]] || { echo "footprint: no game was started" >&2; exit 1; }
sleep 1
read -r game_resident game_anonymous < <(memory "$game")
row "game on board" "$game_resident" "$game_anonymous" "$(idle_time "$game")"
row "over empty" $((game_resident - resident)) $((game_anonymous - anonymous)) ""
