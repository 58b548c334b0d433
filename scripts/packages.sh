# Installs Debian packages that are missing and builds. Sourced by ./run, ./test and the scripts.

build_packages=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev libqt6svg6 fonts-liberation2)
test_packages=(libgtest-dev xvfb xauth openbox x11-utils weston qt6-wayland)
fuzz_packages=(clang libclang-rt-14-dev llvm-14) # Debian 12 has clang 14

# install_missing PACKAGE...: names what it installs; silent when nothing is missing.
install_missing() {
    local missing=() package
    for package in "$@"; do
        if [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) != installed ]]; then
            missing+=("$package")
        fi
    done
    if ((${#missing[@]} == 0)); then
        return
    fi
    echo "Installing from Debian: ${missing[*]}"
    local as_root=()
    if ((EUID != 0)); then
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET OPTION...: configures where needed and builds with those options of the build tool;
# shows the output only when it fails.
build() {
    local preset=$1 log
    shift
    log=$(mktemp)
    echo "Building ($preset)"
    if ! { cmake --preset "$preset" && cmake --build --preset "$preset" "$@"; } >"$log" 2>&1; then
        cat "$log"
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}
