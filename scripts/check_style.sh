#!/usr/bin/env bash
# Checks the layout of every C++ file (clang-format) and the program's code (clang-tidy); prints
# what they find and exits non-zero.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
source scripts/packages.sh

install_missing "${build_packages[@]}" clang-format clang-tidy

git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run -Werror

# A folder of its own, because clang cannot read the precompiled headers of g++.
folder=build/tidy
cmake --preset release -B "$folder" -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
    -DCELLORA_BUILD_TESTS=OFF >/dev/null
cmake --build "$folder" --target cellora_ui_autogen cellora_autogen >/dev/null
git ls-files 'core/*.cpp' 'store/*.cpp' 'play/*.cpp' 'flow/*.cpp' 'ui/*.cpp' main.cpp |
    xargs -P "$(nproc)" -n 4 clang-tidy -p "$folder" --quiet
