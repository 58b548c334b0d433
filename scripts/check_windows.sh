#!/usr/bin/env bash
# Builds Cellora for Windows with every test, runs the tests under wine, packs what a Windows player
# downloads, installs it, plays from it and removes it again. The moves are played on the build for
# this system too, and the files that both leave are compared. Needs a Qt for Windows, as
# cmake/mingw-w64.cmake says, and does nothing without one.
# Usage: scripts/check_windows.sh
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
source scripts/packages.sh
source scripts/play_moves.sh

readonly suite_patience=240 # seconds for one suite
readonly call_patience=120  # seconds for any other program under wine
readonly max_bytes=$((12 * 1024 * 1024))
readonly uninstall_key='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Cellora'

# The screen is kept in a picture where ImageMagick is there to take it.
fail() {
    echo "check_windows: $*" >&2
    if [[ -s ${work:-}/display ]]; then
        import -window root build/windows/failure.png 2>/dev/null || true
    fi
    exit 1
}

wine_call() {
    timeout "$call_patience" wine "$@" >>"$work/wine.log" 2>&1
}

# to_windows PATH...: in the form of Windows, separated by semicolons.
to_windows() {
    local path paths=()
    for path in "$@"; do
        paths+=("Z:${path//\//\\}")
    done
    local IFS=';'
    echo "${paths[*]}"
}

build_all() {
    if [[ ! -d build/windows-googletest/lib/cmake ]]; then
        echo "Building GoogleTest (windows)"
        cmake -S /usr/src/googletest -B build/windows-googletest/build -G Ninja \
            --toolchain "$PWD/cmake/mingw-w64.cmake" -DCMAKE_BUILD_TYPE=Release \
            -DCMAKE_INSTALL_PREFIX="$PWD/build/windows-googletest" >"$work/gtest.log" 2>&1 &&
            cmake --build build/windows-googletest/build --target install >>"$work/gtest.log" 2>&1 ||
            { cat "$work/gtest.log"; fail "GoogleTest cannot be built"; }
    fi
    build windows -- -k 0
    build release --target cellora
}

# A Windows with the fonts of pixels that a real one has and with smooth texts.
start_windows() {
    export WINEPREFIX=$work/prefix WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
    wine_call wineboot -i || fail "wine does not start"
    mkdir -p "$WINEPREFIX/drive_c/windows/Fonts"
    cp /usr/share/wine/fonts/*.fon "$WINEPREFIX/drive_c/windows/Fonts"
    wine_call reg add 'HKCU\Control Panel\Desktop' /v FontSmoothing /d 2 /f
    wine_call reg add 'HKCU\Control Panel\Desktop' /v FontSmoothingType /t REG_DWORD /d 2 /f
    timeout "$call_patience" wineserver -k -w || true
}

run_suites() {
    local suite name kit compiler failed=()
    kit=$(sed -n 's/^Qt6_DIR:PATH=\(.*\)\/lib\/cmake\/Qt6$/\1/p' build/windows/CMakeCache.txt)
    compiler=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")
    for suite in build/windows/tests/test_*.exe; do
        name=$(basename "$suite" .exe)
        timeout "$suite_patience" env QT_PLUGIN_PATH="$(to_windows "$kit/plugins")" \
            WINEPATH="$(to_windows "$kit/bin" "$compiler" /usr/x86_64-w64-mingw32/lib)" \
            wine "$suite" >"$work/$name.log" 2>&1 ||
            { failed+=("$name"); grep -v '^\[ *\(RUN\|OK\)' "$work/$name.log" | tail -60; }
        echo "  $name: $(grep '^\[==========\].*ran' "$work/$name.log" | cut -c14-)"
    done
    ((${#failed[@]} == 0)) || fail "under wine failed: ${failed[*]}"
}

pack() {
    local package
    cpack --config build/windows/CPackConfig.cmake -B "$work/packed" >"$work/cpack.log" 2>&1 &&
        cpack --config build/windows/CPackConfig.cmake -G NSIS -B "$work/newer" \
            -D CPACK_PACKAGE_VERSION=99.0.0 >>"$work/cpack.log" 2>&1 ||
        { cat "$work/cpack.log"; fail "the packages cannot be built"; }
    for package in "$work"/packed/*.{zip,exe}; do
        (($(stat -c %s "$package") <= max_bytes)) || fail "$(basename "$package") is too large"
        echo "  $(basename "$package"): $(stat -c %s "$package") bytes"
    done
}

# install INSTALLER: into the folder $installed, whose blanks the installer wants without quotes.
install() {
    wine_call "$1" /S '/D=C:\My' 'games\The' Cellora || fail "$(basename "$1") does not install"
}

# check_entry VERSION: the entry in Windows' list of programs.
check_entry() {
    local value
    timeout "$call_patience" wine reg query "$uninstall_key" >"$work/entry" 2>/dev/null ||
        fail "not in the list of programs"
    for value in DisplayName Publisher DisplayIcon EstimatedSize UninstallString \
        QuietUninstallString InstallLocation; do
        grep -q "\b$value\b" "$work/entry" || fail "the entry in the list of programs lacks $value"
    done
    grep -q "DisplayVersion.*\b$1\b" "$work/entry" || fail "the list of programs lacks $1"
    [[ -n $(find "$WINEPREFIX/drive_c" -name Cellora.lnk) ]] || fail "no entry in the start menu"
}

# Without the clock, which runs while keys are pressed.
print_comparable() {
    sed 1,3d "$1/saved.clp"
    sed 1,3d "$1/Über zwei.clp"
    sed '/^path=/d' "$2/cl.ini"
    awk '/Jörg/ { skip = 4 } --skip < 0 || /Jörg/ { print }' "$2/hof.clh"
}

# list_disk: every file of the disk, those of Windows itself and its temporary ones apart.
list_disk() {
    (cd "$WINEPREFIX/drive_c" &&
        find . -type f -not -path './windows/*' -not -path '*/Temp/*' | LC_ALL=C sort)
}

# The settings, the best times and the saved games are all that the player made.
uninstall() {
    wine_call "$installed/uninstall.exe" /S
    until_true "the end of the uninstallation" test ! -e "$installed/uninstall.exe"
    local left
    left=$(comm -13 "$work/disk" <(list_disk) | sed 's|.*/||' | paste -sd ' ')
    echo "  left behind: $left"
    [[ $left == "cl.ini hof.clh Größe 7.clp saved.clp Über zwei.clp" ]] ||
        fail "that is not what the player made"
    ! wine_call reg query "$uninstall_key" || fail "still in the list of programs"
    [[ -z $(find "$WINEPREFIX/drive_c" -name Cellora.lnk) ]] || fail "still in the start menu"
    ! wine_call reg query 'HKCU\Software\QtProject' || fail "traces are left in the registry"
}

# The archive plays where it is unpacked and keeps its files there.
try_archive() {
    local folder=$work/unpacked/cellora-$version-win64
    cmake -E make_directory "$work/unpacked"
    (cd "$work/unpacked" && cmake -E tar xf "$work/packed/cellora-$version-win64.zip")
    start_game wine "$folder/cellora.exe"
    press Cellora alt+F4
    until_true "the end of the program" has_ended "$playing"
    [[ -s $folder/cl.ini && -s $folder/hof.clh ]] || fail "the unpacked game keeps no files"
}

finish() {
    wineserver -k 2>/dev/null || true
    kill $(jobs -p) 2>/dev/null || true
    rm -rf "$work"
}

if [[ -z ${CELLORA_WINDOWS_QT:-} ]] &&
    ! compgen -G '../shared/windows/qt-*-mingw64.tar.xz' >/dev/null; then
    echo "Windows is not checked: set CELLORA_WINDOWS_QT to the folder of a Qt 6.4.2 made with" \
        "MinGW, such as the Qt installer's \"mingw_64\"."
    exit
fi
install_missing "${build_packages[@]}" g++-mingw-w64-x86-64-posix wine wine64 fonts-wine \
    googletest nsis xvfb openbox xdotool x11-xkb-utils
work=$(mktemp -d)
trap finish EXIT
version=$(sed -n 's/^project(cellora VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)

build_all
start_screen
start_windows
echo "Testing under wine"
run_suites
echo "Packing"
pack

echo "Playing from the installed program"
installed="$WINEPREFIX/drive_c/My games/The Cellora"
list_disk >"$work/disk"
install "$work/packed/cellora-$version-win64.exe"
check_entry "$version"
play "$installed" "$WINEPREFIX/drive_c/Spiele für mich" 'C:\Spiele für mich\' \
    wine "$installed/cellora.exe"
echo "Playing the same moves on this system"
mkdir "$work/here"
cp build/release/cellora "$work/here"
play "$work/here" "$work/Spiele für mich" "$work/Spiele für mich/" "$work/here/cellora"
diff <(print_comparable "$WINEPREFIX/drive_c/Spiele für mich" "$installed") \
    <(print_comparable "$work/Spiele für mich" "$work/here") || fail "the files differ"

echo "Installing a newer version, uninstalling"
cp "$installed"/{cl.ini,hof.clh} "$work"
install "$work/newer/cellora-$version-win64.exe"
check_entry 99.0.0
cmp "$work/cl.ini" "$installed/cl.ini" && cmp "$work/hof.clh" "$installed/hof.clh"
uninstall
try_archive
echo "The game is sound on Windows, as far as wine shows."
