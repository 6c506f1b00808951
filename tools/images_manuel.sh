#!/usr/bin/env bash
# Takes the pictures of the manual anew, docs/images/*.png, out of one day of the demonstration. Needs ImageMagick and
# poppler-utils. A day with the same seed is the same: what git shows as changed has changed in the program.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/langue.sh

jour=$(mktemp -d)
trap 'rm -rf "$jour"' EXIT
QT_QPA_PLATFORM=offscreen build/bin/demonstration --equipes 37 --type 2 --graine 1 --dossier "$jour"

# Few colours and no date inside: small files that only change with what they show.
reduit() { # picture, name, then what is to be done to it
    local source=$1 nom=$2
    shift 2
    convert "$source" "$@" +repage +dither -colors 128 -strip -define png:exclude-chunks=date,time \
        "PNG8:docs/images/$nom.png"
}

projete() { # name in the manual, picture of the day: what a projector shows, at a third of its size
    reduit "$jour"/[0-9][0-9][0-9]-"$2".png "$1" -resize 640x -bordercolor '#8896A3' -border 1
}

forme() { # name in the manual, picture of the day, part of it to keep (all without)
    reduit "$jour"/[0-9][0-9][0-9]-"$2".png "$1" ${3:+-crop "$3"} -bordercolor '#8896A3' -border 1
}

feuille() { # name in the manual, sheet of the day: its first page
    pdftoppm -r 55 -f 1 -l 1 -singlefile -png "$jour/$2.pdf" "$jour/$2"
    reduit "$jour/$2.png" "$1" -colorspace Gray -bordercolor '#8896A3' -border 1
}

forme journee bureau-resultats
forme accueil accueil 1362x290+0+0
forme concours concours-rempli
forme liste-concours liste-concours 1200x130+0+0
forme equipes bureau-equipes 1068x560+0+162
forme equipes-correction equipes-correction
forme clubs clubs
forme liste-equipes liste-equipes
forme joueurs joueurs-appel
forme liste-joueurs liste-joueurs
forme resultats-depart resultats-avant-depart
forme resultats resultats-rencontre-appelee
forme resultats-complet resultats-tour-complet
forme lettres resultats-lettres
forme attendus vue-attendus-lancee 284x420+0+0
forme classement vue-classement 284x420+0+0
forme groupes vue-groupes 280x420+0+0
forme enregistres vue-joues 262x420+0+0
forme detail detail-equipe 330x520+0+0
forme impression impression-tirage
forme palmares palmares-noms
forme feuille-equipe feuille-equipe
forme outils outils
forme saison saison-clubs
forme langues francais-langues
forme panachees boite-panachees
forme retardataire boite-retardataire
forme importation boite-importation
forme purge boite-purge
forme copies francais-copiessecurite
forme rapport rapport-tirage
forme affichage-reglages affichage-reglages
projete affichage affichage-tirage
feuille feuille-tirage tirage-tour1
feuille feuille-classement classement
feuille feuille-palmares palmares-detail
feuille feuille-club equipe-club
feuille feuille-fiches fiches
feuille feuille-inscrits equipes
ls -l docs/images
