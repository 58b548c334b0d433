#!/usr/bin/env bash
# Builds the Debian package and that of its symbols, has Debian's own tools judge it, and starts the
# program from it as an ordinary user, who must find nothing written outside the user's own data
# folder.
# Usage: scripts/check_package.sh [BUILD_FOLDER]
set -euo pipefail
folder=$(readlink -m "${1:-$(dirname "${BASH_SOURCE[0]}")/../build/package}")
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
source scripts/packages.sh

readonly patience=30 # seconds until the files of a first start must be there
readonly player=64999 # a user of no other program

fail() {
    echo "check_package: $*" >&2
    exit 1
}

install_missing "${build_packages[@]}" desktop-file-utils appstream lintian dpkg-dev \
    shared-mime-info file util-linux
if (($# == 0)); then
    build package
else
    cmake --build "$folder" --target cellora
fi

as_root=()
if ((EUID != 0)); then
    as_root=(sudo)
fi
work=$(mktemp -d)
trap '"${as_root[@]}" rm -rf "$work"' EXIT
chmod 755 "$work"

echo "Packing"
cpack --config "$folder/CPackConfig.cmake" -G DEB -B "$work/packed" >"$work/cpack.log" 2>&1 ||
    { cat "$work/cpack.log"; fail "the package cannot be built"; }
package=$(ls "$work"/packed/*.deb)
dpkg-deb -x "$package" "$work/root"
chmod -R a+rX,go-w "$work/root"
share=$work/root/usr/share

echo "Checking $(basename "$package")"
desktop-file-validate "$share/applications/cellora.desktop"
appstreamcli validate --no-net "$share/metainfo/example.cellora.Cellora.metainfo.xml"
lintian --fail-on error --allow-root "$package"
cp -r "$share/mime" "$work/mime"
XDG_DATA_HOME=$work XDG_DATA_DIRS=/usr/share update-mime-database "$work/mime"
grep -qx 'application/x-cellora-game:\*\.clp' "$work/mime/globs" ||
    fail "saved games have no type of their own"
cmp assets/cl.ini "$share/cellora/cl.ini"

echo "Finding a routine by the symbols aside"
program=$work/root/usr/games/cellora
[[ -z $(nm "$program" 2>/dev/null) ]] || fail "the program carries symbols"
dpkg-deb -x "$work"/packed/*.ddeb "$work/aside"
id=$(readelf -n "$program" | sed -n 's/.*Build ID: //p')
symbols=$work/aside/usr/lib/debug/.build-id/${id:0:2}/${id:2}.debug # where a debugger looks
address=$(nm -C "$symbols" | sed -n 's/ T cellora::MakeView(.*//p')
[[ $(addr2line -e "$symbols" "0x$address") == *rules/view.cpp:* ]] ||
    fail "the symbols do not belong to the program"

echo "Playing as $player"
home=$work/home
mkdir -m 755 "$home"
"${as_root[@]}" chown -R root:root "$work/root"
"${as_root[@]}" install -d -m 700 -o "$player" "$home/tmp" "$home/run" "$home/data"
"${as_root[@]}" chown "$player" "$home"
touch "$work/start"
"${as_root[@]}" setpriv --reuid="$player" --regid="$player" --clear-groups \
    env -i PATH=/usr/bin:/bin LANG=C.UTF-8 HOME="$home" XDG_DATA_HOME="$home/data" \
    XDG_RUNTIME_DIR="$home/run" TMPDIR="$home/tmp" QT_QPA_PLATFORM=offscreen \
    timeout "$patience" "$work/root/usr/games/cellora" >"$work/play.log" 2>&1 &
playing=$!
for written in cl.ini hof.clh; do
    until "${as_root[@]}" test -s "$home/data/cellora/$written"; do
        kill -0 "$playing" 2>/dev/null ||
            { cat "$work/play.log"; fail "$written was not written while the program ran"; }
        sleep 0.2
    done
done
"${as_root[@]}" kill "$playing"
wait "$playing" || true
# Where every user may write, and in the places of this user alone.
strays=$("${as_root[@]}" find "$home" -type f -not -path "$home/data/cellora/*"
    "${as_root[@]}" find "$work/root" -newer "$work/start" -type f
    # Other programs' folders may go while they are searched.
    "${as_root[@]}" find /tmp /var/tmp /dev/shm -path "$work" -prune -o \
        -uid "$player" -newer "$work/start" -print 2>/dev/null || true)
[[ -z $strays ]] || fail "written outside the user's data folder: $strays"
echo "The package is sound."
