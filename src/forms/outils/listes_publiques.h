#pragma once

#include "engine/affichage_public.h"
#include "outils/carrousel.h"

#include <QCoreApplication>

/// A text of a line.
struct CellulePublique
{
    enum class Encre { Normale, Discrete, Gagnante };

    QString texte = {};
    bool grasse = false;
    Encre encre = Encre::Normale;
};

/// A line, or a heading between lines.
struct LignePublique
{
    std::vector<CellulePublique> cellules = {};
    QString intertitre = {}; ///< Stands alone where it is not empty.
};

struct ColonnePublique
{
    Qt::Alignment cadrage = Qt::AlignLeft;
    double plafond = 0; ///< Width in letters that its longer texts are made smaller for; 0 for any width.
};

/// What one kind of page shows, whatever the number of its pages.
struct ListePublique
{
    QString titre = {};
    std::vector<ColonnePublique> colonnes = {};
    std::vector<CellulePublique> entetes = {}; ///< Above each column of lines; may be empty.
    std::vector<LignePublique> lignes = {};
};

/// The words of the public view, in the language of the program.
class ListesPubliques
{
    Q_DECLARE_TR_FUNCTIONS(ListesPubliques)

public:
    /// Newest results that the page of the results shows.
    static constexpr std::size_t resultatsMontres = 16;

    /// The list of the kind; without lines where there is nothing to show, and always for the clock.
    static ListePublique liste(const Partage &partage, const EtatPublic &etat, GenrePage genre);
    static QString titre(const EtatPublic &etat, GenrePage genre);
    /// How far the competition has got, in one phrase.
    static QString drapeau(const EtatPublic &etat);
    /// The result entered last; empty before the first.
    static QString dernierResultat(const Partage &partage, const EtatPublic &etat);
};
