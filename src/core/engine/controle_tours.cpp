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

std::vector<Partie> rencontresDuTour(const TabTirage &table, std::span<const LigneClassement> classement, int tour)
{
    std::unordered_set<int> remontees;
    for (const LigneClassement &ligne : classement) {
        if (ligne.repechage == 1)
            remontees.insert(ligne.equipe);
    }

    std::vector<Partie> rencontres;
    rencontres.reserve(table.lignes.size());
    for (const LigneTirage &ligne : table.lignes) {
        Partie &rencontre =
            rencontres.emplace_back(Partie{.tour = tour, .equipe1 = ligne.equipe1, .equipe2 = ligne.equipe2});
        if (remontees.contains(ligne.equipe1))
            rencontre.repechage = 1;
        if (ligne.equipe2 == 0) {
            rencontre.score1 = scoreGagnant;
            rencontre.score2 = scoreConcedeExempt;
        } else if (remontees.contains(ligne.equipe2)) {
            rencontre.repechage = 2;
        }
    }
    return rencontres;
}

} // namespace moteur
