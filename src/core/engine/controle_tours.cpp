#include "engine/controle_tours.h"

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace moteur {

bool resteUnTour(int nbteam, int nbJoueurs, int tourCourant, bool repeche)
{
    const double equipes = static_cast<double>(nbteam) / std::max(nbJoueurs, 1);
    return equipes >= std::ldexp(1.0, tourCourant + (repeche ? 0 : 1));
}

int toursPrevus(int nbteam, int nbJoueurs, int tourCourant, bool repeche)
{
    int tours = tourCourant;
    while (resteUnTour(nbteam, nbJoueurs, tours, repeche))
        ++tours;
    return tours;
}

bool tirageARefaire(StatutTirage statut, int tourCourant, int essais)
{
    if (essais >= essaisTirageMax)
        return false;
    return statut == StatutTirage::DejaRencontrees || (statut == StatutTirage::MemeClub && tourCourant == 1);
}

std::vector<Partie> partiesDuTour(const TabTirage &table, std::span<const LigneClassement> classement, int tour)
{
    std::unordered_set<int> remontees;
    for (const LigneClassement &ligne : classement) {
        if (ligne.repechage == 1)
            remontees.insert(ligne.equipe);
    }

    std::vector<Partie> parties;
    parties.reserve(table.lignes.size());
    for (const LigneTirage &ligne : table.lignes) {
        Partie &partie = parties.emplace_back(Partie{.tour = tour, .equipe1 = ligne.equipe1, .equipe2 = ligne.equipe2});
        if (remontees.contains(ligne.equipe1))
            partie.repechage = 1;
        if (ligne.equipe2 == 0) {
            partie.score1 = scoreGagnant;
            partie.score2 = scoreConcedeExempt;
        } else if (remontees.contains(ligne.equipe2)) {
            partie.repechage = 2;
        }
    }
    return parties;
}

} // namespace moteur
