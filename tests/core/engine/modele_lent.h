#pragma once

#include "engine/tirage_suivant.h"
#include "engine/tirage_tour1.h"

#include <set>
#include <utility>

class SourceAleatoire;

/// The draws written once more, step by step as an organiser would check them on paper: tables of cells, every row
/// read for every meeting, every order sorted afresh. Slow on purpose, and independent of the program's own.
namespace modele {

using Paire = std::pair<int, int>; ///< Two teams, the smaller number first.

Paire normee(int equipe1, int equipe2);

/// What happened on the way, so that a test can tell why a draw is as it is and which of its paths were reached.
struct Journal
{
    std::set<Paire> abandonnees; ///< Pairs left as they stood because the search for a partner ended.
    std::set<Paire> crees; ///< Repeats that an exchange made in the other row.
    int remontees = 0;
    int remplacees = 0; ///< Teams pulled up that gave way to another for the sake of clubs.
    int clubsRestants = 0;
    int toursComplets = 0; ///< Searches that came round to their own row.
    int secondsRetours = 0; ///< Searches stopped from going round for ever.
    int finsMuettes = 0; ///< Searches that ended on a row of another level.
    int retoursAuxClubs = 0;
};

moteur::TabTirage tirageSuivant(const moteur::DonneesTirage &donnees, Journal &journal);

std::vector<moteur::Partie> tirageTour1(const std::vector<moteur::EquipeInscrite> &equipes, SourceAleatoire &alea);

} // namespace modele
