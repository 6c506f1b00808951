#pragma once

#include "engine/rapport_tirage.h"
#include "engine/routines_tirage.h"

/// What a report on the rounds of the current competition is made from, read once.
struct MatiereRapport
{
    std::vector<moteur::Partie> parties;
    QHash<int, QString> tousLesClubs;
    QHash<int, QString> clubs; ///< Those that keep teams apart: without mixed ones.
};

MatiereRapport LitMatiere(Partage &partage);

/// Whether the current round may be drawn anew: it has matches, and none of them between two teams has a score.
bool PeutRefaireTour(Partage &partage);

/// The best of up to \p essais draws of the current round by the same rules, and the report on it. \p continuer is
/// asked behind each with the number drawn so far; false ends the search. A draw that has no defect ends it too.
struct MeilleurTour
{
    TourPropose tour;
    moteur::RapportTour rapport;
    int essais = 0;
};
MeilleurTour CherchePlusieursTours(Partage &partage, int essais, const std::function<bool(int)> &continuer = {});
