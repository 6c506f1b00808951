#pragma once

#include "engine/partie.h"
#include "engine/tirage_tour1.h"
#include "store/database.h"

#include <vector>

/// A competition as registration leaves it.
struct ConcoursInscrit
{
    QString type = u"2 - Triplettes"_qs;
    int joueurs = 3; ///< Players a team, which must fit \p type.
    bool repeche = false;
    std::vector<moteur::EquipeInscrite> equipes = {};
};

/// Writes a competition with its teams, in one group; gives its number. The club of a team stands on its first member
/// alone: the other members come from a club that no draw may look at.
qint32 poseConcours(store::Database &base, const ConcoursInscrit &inscrit);

/// Writes drawn and played matches of bracket 1, and the last of their rounds as that of the competition.
void poseRencontres(store::Database &base, qint32 concours, const std::vector<moteur::Partie> &rencontres);
