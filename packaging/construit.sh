#!/usr/bin/env bash
# Installs what is missing, configures once and builds the targets given, or everything.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

packaging/installe.sh
# A configuration made for another folder (a moved or copied checkout) is of no use.
if ! grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" build/CMakeCache.txt; then
    rm -rf build/CMakeCache.txt build/CMakeFiles
fi
[[ -f build/CMakeCache.txt && -f build/build.ninja ]] || cmake --preset release
cmake --build --preset release ${@:+--target "$@"}
