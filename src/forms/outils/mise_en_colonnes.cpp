#include "outils/mise_en_colonnes.h"

#include <algorithm>
#include <cmath>

namespace {

int quotient(int nombre, int diviseur)
{
    return (nombre + diviseur - 1) / diviseur;
}

double lettrePossible(int lignes, int colonnes, double largeur, QSizeF place)
{
    const double enLargeur = colonnes * largeur + (colonnes - 1) * MiseEnColonnes::gouttiere;
    return std::min(place.height() / (lignes * MiseEnColonnes::interligne), place.width() / enLargeur);
}

/// The columns that leave the largest letters on so many pages.
MiseEnColonnes surPages(int pages, int nombre, double largeur, QSizeF place, double grande, int entete)
{
    MiseEnColonnes meilleure;
    for (int colonnes = 1; colonnes <= quotient(nombre, pages); ++colonnes) {
        const int lignes = quotient(nombre, pages * colonnes);
        const double lettre = std::min(grande, lettrePossible(lignes + entete, colonnes, largeur, place));
        if (lettre > meilleure.lettre)
            meilleure = {pages, colonnes, lignes, lettre};
        else if (colonnes * largeur * meilleure.lettre > place.width())
            break; // wider still leaves smaller letters
    }
    return meilleure;
}

} // namespace

MiseEnColonnes metEnColonnes(int nombre, double largeur, QSizeF place, BornesLettre bornes, bool entete)
{
    if (nombre <= 0)
        return {};
    const int tete = entete ? 1 : 0;
    const double assez =
        std::min({bornes.petite, bornes.grande, lettrePossible(1 + tete, 1, std::max(largeur, 1.0), place)});
    for (int pages = 1;; ++pages) {
        MiseEnColonnes essai = surPages(pages, nombre, std::max(largeur, 1.0), place, bornes.grande, tete);
        if (essai.lettre >= assez || pages >= nombre) {
            essai.pages = quotient(nombre, essai.parPage());
            return essai;
        }
    }
}
