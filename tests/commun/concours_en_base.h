#pragma once

#include "donnees/equipes.h"
#include "engine/partie.h"
#include "engine/tirage_tour1.h"
#include "store/database.h"

#include <random>
#include <vector>

/// A competition as registration leaves it.
struct ConcoursInscrit
{
    QString type = u"1 - Doublettes"_qs; ///< Its code tells the players a team.
    bool repeche = false;
    QString lieu = u"Sète"_qs;
    QString categorie = u"Seniors"_qs;
    std::vector<moteur::EquipeInscrite> equipes = {};
    /// Club of the members behind the first, which no draw may look at; that of their team when empty.
    QString clubDesAutres = u"Club des autres membres"_qs;
};

/// How the clubs of a field are mixed.
struct Melange
{
    int clubs = 10;
    int pourcentHote = 0; ///< Share of the club that receives.
    int pourcentPanache = 0; ///< Share of mixed teams, at times spelt in capitals.
    int pourcentSans = 0; ///< Share of teams without a club.
    bool casseMelee = false; ///< Names of one club in different cases of letters.
};

/// Teams 1 to \p nombre, each of a club of its own, "Club 1" and so on.
std::vector<moteur::EquipeInscrite> equipesDeClubs(int nombre);
/// Teams 1 to \p nombre of clubs that are drawn.
std::vector<moteur::EquipeInscrite> equipesMelangees(int nombre, const Melange &melange, std::mt19937 &sort);

/// Writes a competition of 14 July 2026 with its teams, in one group; gives its number. Member m of team n is "NOMn Pm"
/// of licence "Ln-m".
qint32 poseConcours(store::Database &base, const ConcoursInscrit &inscrit);

/// Writes one member of a team, or a known player: one of competition 0.
void poseMembre(store::Database &base, qint32 concours, qint64 equipe, int place, const donnees::Membre &membre);

/// Writes drawn and played matches of bracket 1, and the last of their rounds as that of the competition.
void poseRencontres(store::Database &base, qint32 concours, const std::vector<moteur::Partie> &rencontres);
