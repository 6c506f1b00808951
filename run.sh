#!/usr/bin/env bash
# Builds VarloTour and starts it; without a display, plays a demonstration instead.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source packaging/langue.sh

if [[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]]; then
    packaging/construit.sh VarloTour ressources manuel
    exec build/bin/VarloTour
fi

echo "Pas d'écran ici : une démonstration de 16 équipes va se jouer sans fenêtre."
packaging/construit.sh demonstration ressources
dossier="$PWD/build/demonstration"
QT_QPA_PLATFORM=offscreen build/bin/demonstration --equipes 16 --dossier "$dossier"
echo "Les images de la journée sont dans $dossier"
