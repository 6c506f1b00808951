#include "concours_bench.h"

#include <map>
#include <memory>

std::vector<moteur::EquipeInscrite> champ(int equipes)
{
    std::mt19937 sort(2024);
    return equipesMelangees(equipes, {.clubs = 1 + equipes / 8, .pourcentHote = 20, .pourcentPanache = 5}, sort);
}

essai::Concours &concoursJoue(int equipes, int tours)
{
    static std::map<std::pair<int, int>, std::unique_ptr<essai::Concours>> joues;
    std::unique_ptr<essai::Concours> &concours = joues[{equipes, tours}];
    if (!concours) {
        concours = std::make_unique<essai::Concours>(champ(equipes), false, 7);
        for (int tour = 0; tour < tours; ++tour)
            concours->joueTour({.pourcentMots = 3});
    }
    return *concours;
}
