#!/usr/bin/env bash
# Checks the layout of every C++ file (clang-format) and the program's code (clang-tidy); prints
# what they find and exits non-zero.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
source scripts/packages.sh

install_missing "${build_packages[@]}" clang-format clang-tidy

git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run -Werror

# A folder of its own, because each source is checked by itself.
folder=build/tidy
cmake --preset release -B "$folder" -DCMAKE_UNITY_BUILD=OFF \
    -DCELLORA_BUILD_TESTS=OFF >/dev/null
cmake --build "$folder" --target cellora_ui_autogen >/dev/null
git ls-files 'core/*.cpp' 'store/*.cpp' 'rules/*.cpp' 'ui/*.cpp' main.cpp |
    xargs -P "$(nproc)" -n 4 clang-tidy -p "$folder" --quiet
