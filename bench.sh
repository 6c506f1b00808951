#!/usr/bin/env bash
# Builds and runs the speed measures; arguments go to them (./bench.sh --benchmark_filter=Tirage).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source packaging/langue.sh

packaging/construit.sh mesures ressources
QT_QPA_PLATFORM=offscreen build/bin/mesures "$@"
