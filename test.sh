#!/usr/bin/env bash
# Builds everything and runs all the tests with no display; arguments go to ctest (./test.sh -R Classement).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source packaging/langue.sh

packaging/construit.sh
ctest --preset release --output-on-failure -j2 "$@"
