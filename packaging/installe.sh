#!/usr/bin/env bash
# Installs the packages of paquets-debian.txt that are missing, with --controle those of paquets-controle.txt too.
# Quick, quiet and offline when none is.
set -euo pipefail

ici="$(dirname "${BASH_SOURCE[0]}")"
listes=("$ici/paquets-debian.txt")
[[ "${1:-}" == --controle ]] && listes+=("$ici/paquets-controle.txt")
mapfile -t voulus < <(sed -e 's/#.*//' -e 's/[[:space:]]//g' -e '/^$/d' "${listes[@]}")

if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    {
        echo "Ce système n'installe pas ses paquets par apt-get. VarloTour demande un compilateur C++20, CMake 3.25,"
        echo "Ninja, pkg-config, Qt 6.4 (Base, Svg et Multimedia), SQLCipher, GoogleTest et Google Benchmark ; sous Debian 12 :"
        echo "  ${voulus[*]}"
    } >&2
    exit 1
fi

installes="$(dpkg-query -W -f='${db:Status-Abbrev}${Package}\n' "${voulus[@]}" 2>/dev/null | sed -n 's/^ii //p' || true)"
mapfile -t manquants < <(printf '%s\n' "${voulus[@]}" | grep -vxF -f <(printf '%s\n' "$installes") || true)
((${#manquants[@]})) || exit 0

# env carries the variable through sudo, which would drop it otherwise.
admin=(env DEBIAN_FRONTEND=noninteractive)
if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
        echo "Il manque des paquets et sudo n'est pas là ; à installer par l'administrateur : ${manquants[*]}" >&2
        exit 1
    fi
    admin=(sudo "${admin[@]}")
fi

echo "Paquets à installer : ${manquants[*]}"
"${admin[@]}" apt-get update
"${admin[@]}" apt-get install -y --no-install-recommends "${manquants[@]}"
