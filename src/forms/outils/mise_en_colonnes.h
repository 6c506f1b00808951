#pragma once

#include <QSizeF>

/// Size of the letters of a page, in pixels.
struct BornesLettre
{
    double petite = 0; ///< Before letters get smaller, further pages are opened.
    double grande = 0;
};

/// How lines stand on pages: in columns of equal width, filled one after the other.
struct MiseEnColonnes
{
    /// Height of a line, and width between two columns, in letters.
    static constexpr double interligne = 1.3;
    static constexpr double gouttiere = 1.2;

    int parPage() const { return colonnes * lignes; }

    int pages = 0; ///< 0 without any line.
    int colonnes = 1;
    int lignes = 0; ///< In a column, its heading not counted.
    double lettre = 0; ///< Pixels.
};

/// Sets \p nombre lines out in \p place, the widest being \p largeur letters wide; with \p entete each column bears a
/// heading of one line. It opens as few pages as leave the letters above \p bornes.petite, and makes them as large as
/// these pages allow. Where a single line is too wide for that, the letters are as large as the line allows.
MiseEnColonnes metEnColonnes(int nombre, double largeur, QSizeF place, BornesLettre bornes, bool entete = false);
