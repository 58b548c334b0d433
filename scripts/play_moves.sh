# Plays the program on the screen $DISPLAY with keys alone, as a player does, and looks at the files
# that it leaves. Sourced by the checks of what players download; `fail MESSAGE` is theirs, and so is
# $work, a folder for what comes up. Needs openbox, xdotool and setxkbmap.

readonly patience=30 # seconds for whatever has to appear

# start_screen: a screen with a window manager and a German keyboard: names have umlauts, and Shift
# makes other signs of the row of digits. Sets DISPLAY. A server that may reset itself when its last
# program goes, as setxkbmap does at once, throws out the window manager that is just coming.
start_screen() {
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$work/display" 2>/dev/null &
    until_true "a screen" test -s "$work/display"
    DISPLAY=:$(<"$work/display")
    export DISPLAY
    openbox >/dev/null 2>&1 &
    until_true "the window manager" xdotool get_desktop
    setxkbmap de
}

# until_true WHAT COMMAND...: waits until the command succeeds.
until_true() {
    local what=$1 end=$((SECONDS + patience))
    shift
    until "$@" >/dev/null 2>&1; do
        ((SECONDS < end)) || fail "waited in vain: $what"
        sleep 0.2
    done
}

# list_windows TITLE: those that can be seen, the newest last. One that goes meanwhile is no failure.
list_windows() {
    xdotool search --onlyvisible --name "^$1\$" 2>/dev/null || true
}

has_window() {
    [[ -n $(list_windows "$1") ]]
}

has_no_window() {
    ! has_window "$1"
}

# press TITLE KEY...: gives the keys to the newest window of this title.
press() {
    local title=$1
    shift
    until_true "window \"$title\"" has_window "$title"
    xdotool windowactivate --sync "$(list_windows "$title" | tail -1)" 2>/dev/null || true
    sleep 0.3
    xdotool key --delay 60 "$@"
    sleep 0.3
}

# enter TITLE TEXT: types the text into a window and confirms it, which closes the window. A dialog
# of the system's that is still filling itself garbles what is typed and complains; then once more.
enter() {
    local try wait
    for try in 1 2 3; do
        until_true "window \"$1\"" has_window "$1"
        sleep 1.5
        if ((try > 1)); then
            xdotool key Return # to the complaint
            sleep 1
        fi
        press "$1" Home shift+End
        xdotool type --delay 40 "$2"
        sleep 0.5
        xdotool key Return
        for ((wait = 0; wait < 25; ++wait)); do
            if has_no_window "$1"; then
                return
            fi
            sleep 0.2
        done
    done
    fail "\"$1\" does not take \"$2\""
}

# Splash, main window and Instructions share their title; the last is told by its width.
find_instructions() {
    local window
    for window in $(list_windows Cellora); do
        if xdotool getwindowgeometry --shell "$window" 2>/dev/null | grep -qx WIDTH=540; then
            return
        fi
    done
    return 1
}

no_instructions() {
    ! find_instructions
}

# start_game COMMAND...: until the Instructions are read. Sets `playing` to the process.
start_game() {
    "$@" >>"$work/play.log" 2>&1 &
    playing=$!
    until_true "the Instructions" find_instructions
    press Cellora Return
    until_true "end of the Instructions" no_instructions
}

has_ended() {
    ! kill -0 "$1" 2>/dev/null
}

# write_game FILE: a saved game of which the cells 41 to 45 remain, 9 1 2 3 4.
write_game() {
    awk 'BEGIN {
        ORS = "\r\n"
        print 0; print 1; print 2; print "\"Level 7\""
        print "\"76\""; print "\"0\""; print "\"5\""; print "\"0\""
        for (i = 1; i <= 81; ++i) {
            r = int((i - 1) / 9); c = (i - 1) % 9
            print "\"" i "\""
            print (i < 41 || i > 45) ? "#TRUE#" : "#FALSE#"
            print "\"" (3 * r + int(r / 3) + c) % 9 + 1 "\""
            print "\"\""; print "\"\""
        }
    }' >"$1"
}

# play FOLDER GAMES TYPED COMMAND...: FOLDER is where the program keeps its files; GAMES, where games
# are saved, is typed as TYPED.
play() {
    local folder=$1 games=$2 typed=$3 first
    shift 3
    mkdir -p "$games"
    write_game "$games/Größe 7.clp"

    echo "  a new game, killed and restored"
    start_game "$@"
    press Cellora ctrl+n
    press "New Game" Return
    until_true "the new game on disk" test -s "$folder/.recovery/copy-1"
    kill -KILL "$playing"
    wait "$playing" 2>/dev/null || true
    start_game "$@"
    press "Restore Game\?" Return
    until_true "end of the question" has_no_window "Restore Game\?"
    first=$playing

    echo "  a second copy beside it"
    start_second "$folder" "$@"

    echo "  open, digits, notes, save"
    playing=$first
    press Cellora ctrl+o
    press "Save Game\?" n
    enter Open "${typed}Größe 7.clp"
    until_true "the opened game's folder in cl.ini" grep -qF "path=$typed" "$folder/cl.ini"
    # Shift and a digit count as the digit; so does the key of a layout that has digits with Shift.
    press Cellora shift+9 Right 1 Right
    setxkbmap fr
    press Cellora quotedbl eacute
    setxkbmap de
    press Cellora Right 7 Right shift+F10
    xdotool key 8
    press Cellora shift+F10
    xdotool key 4
    press Cellora ctrl+s
    cp "$games/Größe 7.clp" "$games/saved.clp"
    press Cellora alt+f e
    enter "Save As" "${typed}Über zwei.clp"
    until_true "the game saved as another" test -s "$games/Über zwei.clp"

    echo "  a place in the Top Ten, exit"
    press Cellora Left 3 Right 4
    enter "Congratulations!" "Jörg"
    until_true "the name among the best" grep -q "Jörg" "$folder/hof.clh"
    press Cellora alt+F4
    press "Save Game\?" n
    until_true "the end of the program" has_ended "$playing"
}

# start_second FOLDER COMMAND...: a copy of the program beside a running one keeps its own game.
start_second() {
    local folder=$1
    shift
    start_game "$@"
    press Cellora ctrl+n
    press "New Game" Return
    until_true "the second copy's game on disk" test -s "$folder/.recovery/copy-2"
    press Cellora alt+F4
    press "Save Game\?" n
    until_true "the end of the second copy" has_ended "$playing"
    [[ ! -e $folder/.recovery/copy-2 ]] || fail "the second copy left its game behind"
}
