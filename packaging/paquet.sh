#!/usr/bin/env bash
# Builds the program and makes both packages in build/paquets: the portable folder (.tar.gz) and the .deb.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/langue.sh

packaging/construit.sh VarloTour ressources manuel
if ! command -v dpkg-deb >/dev/null; then
    echo "Sans dpkg-deb, seul le dossier à emporter est fait." >&2
    set -- -G TGZ
fi
rm -rf build/paquets
(cd build && cpack "$@" >/dev/null)
rm -rf build/paquets/_CPack_Packages
ls -l build/paquets
